#include "shell/SettingsDlg.h"

#include "interfaces/Modal.h"
#include "shell/Language.h"
#include "shell/ShellStyle.h"
#include "vocabulary/AppTables.h"
#include "vocabulary/KeyLegends.h"

#include <QComboBox>
#include <QDialogButtonBox>
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
      m_hotKeys(new QLineEdit(this)), m_macroAssigns(new QSpinBox(this))
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
    form->addRow(tr("&Hot-key catalog:"), makePathRow(m_hotKeys, [this] {
                     return Modal::openFolder(this, tr("Hot-key catalog"), m_hotKeys->text());
                 }));
    for (int type = 0; type < AppType::Count; ++type) {
        auto *edit = new QLineEdit(this);
        edit->setObjectName(QStringLiteral("m_app%1").arg(type));
        QString path;
        store.getAppPath(type, path);
        edit->setText(path);
        m_shownPaths[std::size_t(type)] = path;
        edit->setPlaceholderText(tr("not found"));
        m_apps[std::size_t(type)] = edit;
        form->addRow(appTypeText(type) + QLatin1Char(':'), makePathRow(edit, [this, edit] {
                         return Modal::openFileName(this, tr("Program"), edit->text(), QString());
                     }));
    }
    form->addRow(tr("Keys with &macros in a profile:"), m_macroAssigns);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Cancel)->setText(tr("CANCEL"));
    form->addRow(buttons);
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

QWidget *SettingsDlg::makePathRow(QLineEdit *edit, const std::function<QString()> &browse)
{
    auto *row = new QWidget(this);
    auto *button = new QPushButton(tr("BROWSE"), row);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(edit, 1);
    layout->addWidget(button);
    row->setFocusProxy(edit);
    connect(button, &QPushButton::clicked, edit, [edit, browse] {
        const QString path = browse();
        if (!path.isEmpty())
            edit->setText(path);
    });
    return row;
}

void SettingsDlg::accept()
{
    ProfileStore &store = m_context.store();
    HostLocations &locations = m_context.services().locations();
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
