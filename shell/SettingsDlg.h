#pragma once

#include "shell/ShellContext.h"

#include <QDialog>

class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QSpinBox;

/// The settings: language, folder of the hot-key catalog, paths of the applications, and
/// how many keys of a profile may hold macros. Nothing changes before OK.
class SettingsDlg : public QDialog
{
    Q_OBJECT

public:
    explicit SettingsDlg(ShellContext &context, QWidget *parent = nullptr);

    void accept() override;

private:
    void fillLanguages();
    QList<QWidget *> addPathRow(QFormLayout *form, const QString &title, QLineEdit *edit,
                                const std::function<QString()> &browse);
    bool checkPath(QLineEdit *edit, const QString &shown, bool isFolder);

    ShellContext &m_context;
    QComboBox *m_language;
    QLineEdit *m_hotKeys;
    std::array<QLineEdit *, AppType::Count> m_apps{};
    std::array<QString, AppType::Count> m_shownPaths;
    QSpinBox *m_macroAssigns;
    QLabel *m_message;
};
