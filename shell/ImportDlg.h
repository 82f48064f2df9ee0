#pragma once

#include "host/ProfileExchange.h"
#include "shell/ShellContext.h"

#include <QDialog>

class QLabel;
class QPushButton;
class QTreeWidget;

/// Imports profiles from a file: choose the file, then which of its profiles, and in place of
/// which of one's own. A file with anything wrong in it is refused with file, place and reason.
/// Everything that is imported is one step that can be undone; afterwards the dialog says what was
/// renamed and what is missing on this computer. Run it with `Modal::exec`.
class ImportDlg : public QDialog
{
    Q_OBJECT

public:
    explicit ImportDlg(ShellContext &context, QWidget *parent = nullptr);

    /// Reads a file and lists its profiles; false if it is refused, which the dialog says.
    bool openFile(const QString &fileName);
    /// Puts the checked profiles into the store.
    void importChecked();

private:
    void chooseFile();
    void fill();
    void showState();
    void say(const QString &text, bool isTrouble);
    QString clash() const;
    int targetOf(int row) const;
    ExchangeContent checkedContent() const;
    void report(int count, const ExchangeReport &report);

    ShellContext &m_context;
    ExchangeContent m_content;
    QLabel *m_file;
    QTreeWidget *m_list;
    QLabel *m_macros;
    QLabel *m_message;
    QPushButton *m_importBtn;
    QPushButton *m_cancelBtn;
    bool m_isRead = false;
};
