#pragma once

#include "shell/ShellContext.h"

#include <QDialog>

class QLabel;
class QListWidget;
class QPushButton;

/// Exports profiles with the macros that their keys have: choose profiles, then a file. All of
/// them checked export all macros and the order of the list as well. Run it with `Modal::exec`;
/// it is accepted once the file is written whole.
class ExportDlg : public QDialog
{
    Q_OBJECT

public:
    /// The shown profile is checked at first.
    explicit ExportDlg(ShellContext &context, QWidget *parent = nullptr);

    /// Checked profiles, in the order of the list.
    std::vector<int> profiles() const;
    /// Writes the checked profiles; false if that failed, which the dialog says.
    bool exportTo(const QString &fileName);

private:
    void fill();
    void checkAll(bool checked);
    void showState();
    QString suggestedName() const;
    void chooseFile();

    ShellContext &m_context;
    QListWidget *m_list;
    QLabel *m_macros;
    QLabel *m_message;
    QPushButton *m_exportBtn;
};
