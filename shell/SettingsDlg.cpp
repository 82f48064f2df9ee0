#include "shell/SettingsDlg.h"

#include "interfaces/Modal.h"
#include "shell/Language.h"
#include "shell/ShellStyle.h"
#include "vocabulary/AppTables.h"
#include "vocabulary/KeyLegends.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

#include <algorithm>

namespace {

constexpr int MinWidth = 560;

} // namespace

SettingsDlg::SettingsDlg(ShellContext &context, QWidget *parent)
    : QDialog(parent), m_context(context), m_language(new QComboBox(this)),
      m_hotKeys(new QLineEdit(this)), m_macroAssigns(new QSpinBox(this)),
      m_message(new QLabel(this))
{
    setWindowTitle(tr("Settings"));
    setObjectName(QStringLiteral("SettingsDlg"));
    setMinimumWidth(MinWidth);
    setStyleSheet(ShellStyle::panelSheet());
    m_language->setObjectName(QStringLiteral("m_language"));
    m_hotKeys->setObjectName(QStringLiteral("m_hotKeys"));
    m_macroAssigns->setObjectName(QStringLiteral("m_macroAssigns"));
    fillLanguages();
    ProfileStore &store = context.store();
    m_hotKeys->setText(store.setting(HostLocations::hotKeysFolderKey()));
    m_hotKeys->setPlaceholderText(context.services().locations().hotKeysFolder(store));
    m_macroAssigns->setRange(0, KeyCount);
    m_macroAssigns->setValue(store.macroAssignLimit());

    auto *form = new QFormLayout(this);
    form->setContentsMargins(16, 16, 16, 16);
    form->addRow(tr("&Language:"), m_language);
    QList<QWidget *> stops{m_language};
    stops += addPathRow(form, tr("&Hot-key catalog:"), m_hotKeys, [this] {
        return Modal::openFolder(this, tr("Hot-key catalog"), m_hotKeys->text());
    });
    for (int type = 0; type < AppType::Count; ++type) {
        auto *edit = new QLineEdit(this);
        edit->setObjectName(QStringLiteral("m_app%1").arg(type));
        QString path;
        store.getAppPath(type, path);
        edit->setText(path);
        m_shownPaths[std::size_t(type)] = path;
        edit->setPlaceholderText(tr("not found"));
        m_apps[std::size_t(type)] = edit;
        stops += addPathRow(form, appTypeText(type) + QLatin1Char(':'), edit, [this, edit] {
            return Modal::openFileName(this, tr("Program"), edit->text(), QString());
        });
    }
    form->addRow(tr("Keys with &macros in a profile:"), m_macroAssigns);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Cancel)->setText(tr("CANCEL"));
    m_message->setObjectName(QStringLiteral("m_settingsMessage"));
    m_message->setTextFormat(Qt::PlainText);
    m_message->setWordWrap(true);
    m_message->setStyleSheet(QStringLiteral("color:%1;").arg(ShellStyle::warning().name()));
    m_message->hide();
    form->addRow(m_message);
    form->addRow(buttons);
    stops << m_macroAssigns << buttons->button(QDialogButtonBox::Ok)
          << buttons->button(QDialogButtonBox::Cancel);
    for (int i = 1; i < stops.size(); ++i)
        setTabOrder(stops[i - 1], stops[i]);
    connect(buttons, &QDialogButtonBox::accepted, this, &SettingsDlg::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &SettingsDlg::reject);
}

void SettingsDlg::fillLanguages()
{
    for (int index = 0; index < LanguageCount; ++index)
        m_language->addItem(Language::title(index), index);
    const int language = m_context.services().environment().getLanguage();
    m_language->setCurrentIndex(m_language->findData(language));
}

/// Gives what the Tab key stops at, in order.
QList<QWidget *> SettingsDlg::addPathRow(QFormLayout *form, const QString &title, QLineEdit *edit,
                                         const std::function<QString()> &browse)
{
    auto *row = new QWidget(this);
    auto *button = new QPushButton(tr("BROWSE"), row);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(edit, 1);
    layout->addWidget(button);
    form->addRow(title, row);
    qobject_cast<QLabel *>(form->labelForField(row))->setBuddy(edit);
    edit->setAcceptDrops(false); // a file comes as an address, which is no path
    connect(button, &QPushButton::clicked, edit, [edit, browse] {
        const QString path = browse();
        if (!path.isEmpty())
            edit->setText(path);
    });
    return {edit, button};
}

/// Says what is wrong with a path that was edited, and goes there; true when nothing is.
bool SettingsDlg::checkPath(QLineEdit *edit, const QString &shown, bool isFolder)
{
    const QString path = edit->text().trimmed();
    const QFileInfo info(path);
    if (path.isEmpty() || path == shown ||
        (isFolder ? info.isDir() : info.isFile() || info.isBundle()))
        return true;
    m_message->setText(
        (isFolder ? tr("There is no folder %1.") : tr("There is no program %1.")).arg(path));
    m_message->show();
    edit->setFocus();
    return false;
}

void SettingsDlg::accept()
{
    ProfileStore &store = m_context.store();
    HostLocations &locations = m_context.services().locations();
    bool isRight = checkPath(m_hotKeys, store.setting(HostLocations::hotKeysFolderKey()), true);
    for (std::size_t type = 0; type < m_apps.size(); ++type)
        isRight = isRight && checkPath(m_apps[type], m_shownPaths[type], false);
    if (!isRight)
        return;
    for (int type = 0; type < AppType::Count; ++type) {
        // one that was found meanwhile stays
        const QString path = m_apps[std::size_t(type)]->text().trimmed();
        if (path == m_shownPaths[std::size_t(type)])
            continue;
        store.setAppPath(type, path);
        locations.setLatestAppPath(type, path);
    }
    locations.install(store);
    if (m_macroAssigns->value() != std::min(store.macroAssignLimit(), KeyCount))
        store.setMacroAssignLimit(m_macroAssigns->value());
    store.setSetting(HostLocations::hotKeysFolderKey(), m_hotKeys->text().trimmed());
    if (m_language->currentData().toInt() != m_context.services().environment().getLanguage()) {
        // told also when it is stored already, and another one was asked for at the start
        store.setSetting(Language::settingKey(), QString());
        store.setSetting(Language::settingKey(), m_language->currentData().toString());
    }
    QDialog::accept();
}
