#include "StoreEdits.h"

#include "host/ProfileExchange.h"

void StoreEdits::look()
{
    m_profile = below(ProfileCount);
    m_key = below(KeyCount);
    m_store.setMode(Owner, m_profile, below(2));
    m_store.setInput(Owner, m_profile, below(11));
    m_store.setCurrentKey(Owner, m_profile, m_key);
}

void StoreEdits::edit()
{
    using Edit = void (StoreEdits::*)();
    static const Edit edits[] = {
        &StoreEdits::editKey,      &StoreEdits::editDual,     &StoreEdits::editPreset,
        &StoreEdits::editApp,      &StoreEdits::editHotKey,   &StoreEdits::editShortcut,
        &StoreEdits::editExtended, &StoreEdits::editMacroKey, &StoreEdits::editMacros,
        &StoreEdits::editProfiles, &StoreEdits::editPresso,   &StoreEdits::clearKey,
        &StoreEdits::importFile,   &StoreEdits::putBack};
    const StoreState before = m_store.state();
    // an edit can hit upon what is there already; another one will not
    do {
        ++m_count;
        (this->*edits[below(int(std::size(edits)))])();
    } while (before == m_store.state());
}

void StoreEdits::clearExtras(int keyIdx)
{
    m_store.delAppAssign(Owner, m_profile, keyIdx);
    m_store.delHotKeyAssign(Owner, m_profile, keyIdx);
    m_store.delNamedMacroKey(Owner, m_profile, keyIdx);
    m_store.delShortcutAssign(Owner, m_profile, keyIdx);
    m_store.delExtendedKey(Owner, m_profile, keyIdx);
}

void StoreEdits::clearKey()
{
    clearExtras(m_key);
    const vantrix_key_mapping cleared = clearedKey();
    m_store.setKeyMapping(Owner, m_profile, m_key, &cleared);
}

void StoreEdits::editKey()
{
    clearExtras(m_key);
    const vantrix_key_mapping key =
        below(3) ? plainKey(ushort(4 + below(90))) : gameKey(ushort(462 + below(11)));
    m_store.setKeyMapping(Owner, m_profile, m_key, &key);
}

void StoreEdits::editDual()
{
    clearExtras(m_key);
    vantrix_key_mapping key;
    key.type = KeyType::DualAction;
    key.digital.firstAction = quint16(4 + below(26));
    key.digital.secondAction = quint16(4 + below(26));
    key.digital.dualType = quint8(below(3));
    key.digital.depth = quint8(10 + below(81));
    m_store.setKeyMapping(Owner, m_profile, m_key, &key);
}

void StoreEdits::editPreset()
{
    m_store.clearAssignsForPreset(Owner, m_profile);
    m_store.clearNamedMacros(Owner, m_profile);
    std::vector<vantrix_key_mapping> keys;
    for (int i = 0; i < KeyCount; ++i) {
        keys.push_back(plainKey(ushort(4 + below(90))));
        m_store.setKeyMapping(Owner, m_profile, i, &keys.back());
    }
    m_store.setKeyMappings(Owner, m_profile, &keys);
    m_store.setPanel(Owner, m_profile, below(3));
}

void StoreEdits::editApp()
{
    clearKey();
    vantrix_app_assign assign;
    assign.appType = below(3);
    assign.funcId = below(19);
    assign.macro = randomMacro();
    m_store.setAppAssign(Owner, m_profile, m_key, &assign);
}

void StoreEdits::editHotKey()
{
    clearKey();
    const vantrix_hotkey_assign assign{0, QStringLiteral("CTRL+S"),
                                       QStringLiteral("SAVE %1").arg(m_count)};
    m_store.setHotKeyAssign(Owner, m_profile, m_key, &assign);
}

void StoreEdits::editShortcut()
{
    clearKey();
    const vantrix_shortcut_assign assign{quint8(below(17)), 0};
    m_store.setShortcutAssign(Owner, m_profile, m_key, &assign);
}

void StoreEdits::editExtended()
{
    clearKey();
    const vantrix_extended_key key{0, quint16(3072 + below(21))};
    m_store.setExtendedKey(Owner, m_profile, m_key, &key);
}

QString StoreEdits::anyMacro()
{
    const QStringList names = m_store.state().macroNames(Owner);
    return names.isEmpty() ? QString() : names.at(below(int(names.size())));
}

void StoreEdits::editMacroKey()
{
    const QString name = anyMacro();
    if (name.isEmpty())
        return;
    clearKey();
    m_store.setNamedMacroKey(Owner, m_profile, name.toStdString(), m_key);
}

vantrix_macro_record StoreEdits::randomMacro()
{
    vantrix_macro_record record;
    record.count = quint8(2 * (1 + below(10)));
    for (int i = 0; i < record.count; ++i) {
        record.events[std::size_t(i)] = {quint16(4 + below(26)), quint8(i < record.count / 2),
                                         quint16(below(500))};
    }
    return record;
}

void StoreEdits::editMacros()
{
    const QString name = anyMacro();
    const QString fresh = QStringLiteral("Macro %1").arg(m_count);
    const int last = int(m_store.state().macroNames(Owner).size()) - 1;
    switch (below(6)) {
    case 0:
        m_store.renameMacro(Owner, name, fresh);
        break;
    case 1:
        m_store.removeMacro(Owner, name);
        break;
    case 2:
        m_store.setMacro(Owner, name, randomMacro());
        break;
    case 3:
        m_store.moveMacro(Owner, 0, last);
        break;
    default:
        m_store.addMacro(Owner, fresh, randomMacro());
        break;
    }
}

void StoreEdits::editProfiles()
{
    switch (below(4)) {
    case 0:
        m_store.setProfileName(Owner, m_profile, QStringLiteral("Name %1").arg(m_count));
        break;
    case 1:
        m_store.moveProfile(Owner, below(ProfileCount), below(ProfileCount));
        break;
    case 2:
        m_store.duplicateProfile(Owner, below(ProfileCount), m_profile);
        break;
    default:
        m_store.clearProfile(Owner, m_profile);
        break;
    }
}

void StoreEdits::editPresso()
{
    m_store.setPressoEnabled(!m_store.getPressoEnabled());
}

void StoreEdits::importFile()
{
    // a profile that was taken some time ago, with macros that are others by now
    QString error;
    const auto content = ProfileExchange::fromJson(m_file, QStringLiteral("old.json"), &error);
    const int taken = below(ProfileCount);
    m_file = ProfileExchange::toJson(
        ProfileExchange::take(m_store.state(), Owner, {taken, (taken + 1) % ProfileCount}));
    if (content)
        ProfileExchange::put(*content, m_store, Owner);
}

void StoreEdits::putBack()
{
    const StoreStepScope step(m_store, QStringLiteral("Put back"));
    for (int i = 0; i < 3; ++i)
        m_sent.putBack(below(KeyCount), m_store);
    m_sent = DeviceImage::of(m_store.state(), Owner, below(ProfileCount));
}
