#include "host/ProfileStore.h"
#include "support/TestMain.h"

#include <QTemporaryDir>

#include <numeric>

/// Every operation of the store, in memory and again after reopening.
class tst_ProfileStore : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void freshStore();
    void appPaths();
    void presso();
    void dirtyIsFoundByComparing();
    void macroAssignLimit();
    void views();
    void currentKey();
    void keyMappings();
    void keyMappingsAnyBytes();
    void appAssigns();
    void hotKeyAssigns();
    void shortcuts();
    void extendedKeys();
    void clearForPreset();
    void namedMacros();
    void scopesAreApart();
    void outsideTheProfiles();
    void profileNames();
    void profileOrder();
    void duplicateAndClear();
    void macros();
    void macroRenameAndRemoveReachKeys();
    void macroNames();
    void settings();
    void stateBytes();

private:
    /// Closes the store and opens it again.
    void reopen();

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<ProfileStore> m_store;
};

namespace {
constexpr int Owner = 2;
constexpr int Profile = 3;

vantrix_app_assign appAssign(int type, int function)
{
    vantrix_app_assign assign;
    assign.appType = type;
    assign.funcId = function;
    assign.macro.count = 2;
    assign.macro.events[0] = {25, 1, 20};
    assign.macro.events[1] = {25, 0, 20};
    return assign;
}
} // namespace

void tst_ProfileStore::init()
{
    m_store.reset();
    m_folder = std::make_unique<QTemporaryDir>();
    reopen();
}

void tst_ProfileStore::reopen()
{
    m_store.reset();
    m_store = std::make_unique<ProfileStore>(m_folder->filePath(QStringLiteral("store")));
    QCOMPARE(m_store->messages(), QStringList());
}

void tst_ProfileStore::freshStore()
{
    QString path = QStringLiteral("x");
    m_store->getAppPath(0, path);
    QCOMPARE(path, QString());
    QVERIFY(!m_store->hasAppPath(0));
    QVERIFY(m_store->getPressoEnabled());
    for (int profile = 0; profile < 24; ++profile) {
        QCOMPARE(m_store->getMode(Owner, profile), 0);
        QCOMPARE(m_store->getInput(Owner, profile), 0);
        QCOMPARE(m_store->getPanel(Owner, profile), 0);
        QVERIFY(m_store->getCurrentKey(Owner, profile) >= 28);
        std::vector<vantrix_key_mapping> keys;
        QVERIFY(m_store->getKeyMappings(Owner, profile, &keys));
        QCOMPARE(int(keys.size()), 28);
        for (int i = 0; i < 28; ++i)
            QCOMPARE(keys[std::size_t(i)], plainKey(i == 21 ? 385 : 255));
    }
    QVERIFY(m_store->state().records().empty());
}

void tst_ProfileStore::appPaths()
{
    m_store->setAppPath(1, QStringLiteral("C:/Program Files/é.exe"));
    QVERIFY(m_store->hasAppPath(1));
    QVERIFY(!m_store->hasAppPath(0));
    reopen();
    QString path;
    m_store->getAppPath(1, path);
    QCOMPARE(path, QStringLiteral("C:/Program Files/é.exe"));
    m_store->setAppPath(1, QString());
    QVERIFY(!m_store->hasAppPath(1));
    reopen();
    QVERIFY(!m_store->hasAppPath(1));
}

void tst_ProfileStore::presso()
{
    QSignalSpy changed(m_store.get(), &ProfileStore::pressoChanged);
    m_store->setPressoEnabled(0);
    QVERIFY(!m_store->getPressoEnabled());
    m_store->flush();
    QCOMPARE(changed.count(), 1);
    reopen();
    QVERIFY(!m_store->getPressoEnabled());
    m_store->setPressoEnabled(2);
    QVERIFY(m_store->getPressoEnabled());
}

void tst_ProfileStore::dirtyIsFoundByComparing()
{
    m_store->setProfileDirty(Owner, Profile, true);
    m_store->setProfileDirty(Owner, Profile, false);
    QVERIFY(m_store->state().records().empty());
}

void tst_ProfileStore::macroAssignLimit()
{
    QCOMPARE(m_store->macroAssignLimit(), 28);
    m_store->setMacroAssignLimit(4);
    const vantrix_app_assign app = appAssign(0, 1);
    const vantrix_hotkey_assign hotKey{0, QStringLiteral("A"), QStringLiteral("B")};
    const vantrix_shortcut_assign shortcut{1, 0};
    const vantrix_extended_key extended{0, 3072};
    m_store->setExtendedKey(Owner, Profile, 9, &extended);
    m_store->setAppAssign(Owner, Profile, 0, &app);
    m_store->setHotKeyAssign(Owner, Profile, 1, &hotKey);
    m_store->setShortcutAssign(Owner, Profile, 2, &shortcut);
    QVERIFY(m_store->canAddMacroAssign(Owner, Profile));
    m_store->setNamedMacroKey(Owner, Profile, "M", 3);
    QVERIFY(!m_store->canAddMacroAssign(Owner, Profile));
    QVERIFY(m_store->canAddMacroAssign(Owner, Profile + 1));
    reopen();
    QVERIFY(!m_store->canAddMacroAssign(Owner, Profile));
    m_store->delHotKeyAssign(Owner, Profile, 1);
    QVERIFY(m_store->canAddMacroAssign(Owner, Profile));
    m_store->setMacroAssignLimit(0);
    QVERIFY(!m_store->canAddMacroAssign(Owner, Profile + 1));
}

void tst_ProfileStore::views()
{
    m_store->setMode(Owner, Profile, 1);
    m_store->setInput(Owner, Profile, 10);
    m_store->setPanel(Owner, Profile, 8);
    reopen();
    QCOMPARE(m_store->getMode(Owner, Profile), 1);
    QCOMPARE(m_store->getInput(Owner, Profile), 10);
    QCOMPARE(m_store->getPanel(Owner, Profile), 8);
    QCOMPARE(m_store->getMode(Owner, Profile + 1), 0);
}

void tst_ProfileStore::currentKey()
{
    m_store->setCurrentKey(Owner, Profile, 27);
    reopen();
    QCOMPARE(m_store->getCurrentKey(Owner, Profile), 27);
    m_store->setCurrentKey(Owner, Profile, 28);
    QVERIFY((m_store->getCurrentKey(Owner, Profile) & 0xffff) >= 28);
    m_store->setCurrentKey(Owner, Profile, 5);
    m_store->setCurrentKey(Owner, Profile, -1);
    QVERIFY((m_store->getCurrentKey(Owner, Profile) & 0xffff) >= 28);
    m_store->setCurrentKey(Owner, Profile, 5);
    m_store->clearCurrentKey(Owner, Profile);
    QVERIFY((m_store->getCurrentKey(Owner, Profile) & 0xffff) >= 28);
}

void tst_ProfileStore::keyMappings()
{
    vantrix_key_mapping dual;
    dual.type = KeyType::DualAction;
    dual.digital = {4, 5, DualType::Toggle, 35};
    m_store->setKeyMapping(Owner, Profile, 27, &dual);
    std::vector<vantrix_key_mapping> some = {plainKey(4), gameKey(474)};
    m_store->setKeyMappings(Owner, Profile, &some);
    m_store->setKeyMapping(Owner, Profile, 28, &dual);
    m_store->setKeyMapping(Owner, Profile, -1, &dual);
    reopen();
    std::vector<vantrix_key_mapping> keys = {plainKey(9)};
    QVERIFY(m_store->getKeyMappings(Owner, Profile, &keys));
    QCOMPARE(int(keys.size()), 28);
    QCOMPARE(keys[0], plainKey(4));
    QCOMPARE(keys[1], gameKey(474));
    QCOMPARE(keys[2], clearedKey());
    QCOMPARE(keys[27], dual);
    std::vector<vantrix_key_mapping> many(40, plainKey(6));
    m_store->setKeyMappings(Owner, Profile, &many);
    QVERIFY(m_store->getKeyMappings(Owner, Profile, &keys));
    QCOMPARE(int(keys.size()), 28);
    QCOMPARE(keys[27], plainKey(6));
}

void tst_ProfileStore::keyMappingsAnyBytes()
{
    for (int round = 0; round < 256; ++round) {
        const QByteArray bytes(11, char(round));
        const auto key = StoreCodec::record<vantrix_key_mapping>(bytes);
        QVERIFY(key);
        m_store->setKeyMapping(Owner, Profile, round % 28, &*key);
        std::vector<vantrix_key_mapping> keys;
        QVERIFY(m_store->getKeyMappings(Owner, Profile, &keys));
        QCOMPARE(keys[std::size_t(round % 28)], *key);
    }
}

void tst_ProfileStore::appAssigns()
{
    const vantrix_app_assign first = appAssign(0, 11);
    const vantrix_app_assign second = appAssign(2, 18);
    m_store->setAppAssign(Owner, Profile, 0, &first);
    m_store->setAppAssign(Owner, Profile, 27, &second);
    m_store->setAppAssign(Owner, Profile, 28, &second);
    reopen();
    vantrix_app_assign read;
    QVERIFY(m_store->getAppAssign(Owner, Profile, 0, &read));
    QCOMPARE(read, first);
    QVERIFY(!m_store->getAppAssign(Owner, Profile, 1, &read));
    QCOMPARE(read, vantrix_app_assign());
    std::map<uchar, vantrix_app_assign> all = {{9, first}};
    QVERIFY(m_store->getAppAssigns(Owner, Profile, &all));
    QCOMPARE(int(all.size()), 2);
    QCOMPARE(all.at(27), second);
    m_store->delAppAssign(Owner, Profile, 27);
    m_store->delAppAssign(Owner, Profile, 26);
    reopen();
    QVERIFY(m_store->getAppAssigns(Owner, Profile, &all));
    QCOMPARE(int(all.size()), 1);
}

void tst_ProfileStore::hotKeyAssigns()
{
    const vantrix_hotkey_assign first{0, QStringLiteral("CTRL+ALT+Ω"), QStringLiteral("ÄNDERN")};
    const vantrix_hotkey_assign empty{0, QString(), QStringLiteral("NO KEY")};
    m_store->setHotKeyAssign(Owner, Profile, 3, &first);
    m_store->setHotKeyAssign(Owner, Profile, 4, &empty);
    reopen();
    vantrix_hotkey_assign read;
    QVERIFY(m_store->getHotKeyAssign(Owner, Profile, 3, &read));
    QCOMPARE(read, first);
    QVERIFY(m_store->getHotKeyAssign(Owner, Profile, 4, &read));
    QCOMPARE(read, empty);
    QVERIFY(!m_store->getHotKeyAssign(Owner, Profile, 5, &read));
    std::map<uchar, vantrix_hotkey_assign> all;
    QVERIFY(m_store->getHotKeyAssigns(Owner, Profile, &all));
    QCOMPARE(int(all.size()), 2);
    m_store->delHotKeyAssign(Owner, Profile, 3);
    QVERIFY(m_store->getHotKeyAssigns(Owner, Profile, &all));
    QCOMPARE(int(all.size()), 1);
}

void tst_ProfileStore::shortcuts()
{
    const vantrix_shortcut_assign first{0, 0};
    const vantrix_shortcut_assign last{16, 0};
    m_store->setShortcutAssign(Owner, Profile, 5, &first);
    m_store->setShortcutAssign(Owner, Profile, 6, &last);
    reopen();
    std::map<uchar, uchar> all = {{1, 1}};
    QVERIFY(m_store->getShortcutAssigns(Owner, Profile, &all));
    QVERIFY((all == std::map<uchar, uchar>{{5, 0}, {6, 16}}));
    m_store->delShortcutAssign(Owner, Profile, 5);
    QVERIFY(m_store->getShortcutAssigns(Owner, Profile, &all));
    QVERIFY((all == std::map<uchar, uchar>{{6, 16}}));
}

void tst_ProfileStore::extendedKeys()
{
    const vantrix_extended_key key{0, 3092};
    m_store->setExtendedKey(Owner, Profile, 5, &key);
    reopen();
    std::map<uchar, vantrix_extended_key> all;
    QVERIFY(m_store->getExtendedKeys(Owner, Profile, &all));
    QCOMPARE(int(all.size()), 1);
    QCOMPARE(all.at(5), key);
    m_store->delExtendedKey(Owner, Profile, 5);
    QVERIFY(m_store->getExtendedKeys(Owner, Profile, &all));
    QVERIFY(all.empty());
}

void tst_ProfileStore::clearForPreset()
{
    const vantrix_app_assign app = appAssign(0, 1);
    const vantrix_hotkey_assign hotKey{0, QStringLiteral("A"), QStringLiteral("B")};
    const vantrix_shortcut_assign shortcut{1, 0};
    const vantrix_extended_key extended{0, 3072};
    const vantrix_key_mapping mapping = plainKey(4);
    m_store->setAppAssign(Owner, Profile, 0, &app);
    m_store->setHotKeyAssign(Owner, Profile, 1, &hotKey);
    m_store->setShortcutAssign(Owner, Profile, 2, &shortcut);
    m_store->setExtendedKey(Owner, Profile, 3, &extended);
    m_store->setNamedMacroKey(Owner, Profile, "M", 4);
    m_store->setKeyMapping(Owner, Profile, 5, &mapping);
    m_store->setAppAssign(Owner, Profile + 1, 0, &app);
    m_store->clearAssignsForPreset(Owner, Profile);
    const StoreState &state = m_store->state();
    QVERIFY(!state.appAssign(Owner, Profile, 0));
    QVERIFY(!state.hotKeyAssign(Owner, Profile, 1));
    QVERIFY(!state.shortcut(Owner, Profile, 2));
    QVERIFY(!state.extendedKey(Owner, Profile, 3));
    QVERIFY(state.macroKey(Owner, Profile, 4));
    QCOMPARE(state.mapping(Owner, Profile, 5), mapping);
    QVERIFY(state.appAssign(Owner, Profile + 1, 0));
    m_store->clearNamedMacros(Owner, Profile);
    QVERIFY(!state.macroKey(Owner, Profile, 4));
    QCOMPARE(state.mapping(Owner, Profile, 5), mapping);
}

void tst_ProfileStore::namedMacros()
{
    const std::string name = "Grüße";
    std::map<uchar, uchar> keys = {{1, 1}};
    QVERIFY(!m_store->getKeysOfMacro(Owner, Profile, name, &keys));
    QVERIFY(keys.empty());
    QVERIFY(m_store->addMacro(Owner, QString::fromStdString(name), vantrix_macro_record()));
    QVERIFY(m_store->getKeysOfMacro(Owner, Profile, name, &keys));
    QVERIFY(keys.empty());
    m_store->setNamedMacroKey(Owner, Profile, name, 3);
    m_store->setNamedMacroKey(Owner, Profile, name, 9);
    m_store->setNamedMacroKey(Owner, Profile, "other", 10);
    reopen();
    QVERIFY(m_store->getKeysOfMacro(Owner, Profile, name, &keys));
    QVERIFY((keys == std::map<uchar, uchar>{{3, 3}, {9, 9}}));
    QVERIFY(m_store->getKeysOfMacro(Owner, Profile, "other", &keys));
    QVERIFY(m_store->getKeysOfMacro(Owner, Profile + 1, name, &keys));
    QVERIFY(keys.empty());
    m_store->delNamedMacroKey(Owner, Profile, 3);
    QVERIFY(m_store->delNamedMacro(Owner, Profile, name));
    QVERIFY(!m_store->delNamedMacro(Owner, Profile, name));
    QVERIFY(!m_store->delNamedMacro(Owner, Profile, "never heard of"));
    QVERIFY(m_store->getKeysOfMacro(Owner, Profile, name, &keys));
    QVERIFY(keys.empty());
}

void tst_ProfileStore::scopesAreApart()
{
    const vantrix_key_mapping key = plainKey(4);
    m_store->setKeyMapping(Owner, Profile, 0, &key);
    m_store->setMode(Owner, Profile, 1);
    QVERIFY(m_store->addMacro(Owner, QStringLiteral("M"), vantrix_macro_record()));
    reopen();
    const StoreState &state = m_store->state();
    QCOMPARE(state.mapping(Owner, Profile, 0), key);
    QCOMPARE(state.mapping(Owner, Profile + 1, 0), clearedKey());
    QCOMPARE(state.mapping(Owner + 1, Profile, 0), clearedKey());
    QCOMPARE(m_store->getMode(Owner + 1, Profile), 0);
    QCOMPARE(m_store->getShortcutBase(Owner, Profile), 1);
    QCOMPARE(m_store->getShortcutBase(Owner + 1, Profile), 0);
}

void tst_ProfileStore::outsideTheProfiles()
{
    for (const int profile : {-1, 24, 1000}) {
        const vantrix_key_mapping key = plainKey(4);
        m_store->setKeyMapping(Owner, profile, 0, &key);
        m_store->setMode(Owner, profile, 1);
        m_store->setProfileName(Owner, profile, QStringLiteral("x"));
        m_store->clearProfile(Owner, profile);
        m_store->duplicateProfile(Owner, profile, 0);
        m_store->duplicateProfile(Owner, 0, profile);
        std::vector<vantrix_key_mapping> keys = {key};
        QVERIFY(!m_store->getKeyMappings(Owner, profile, &keys));
        QVERIFY(keys.empty());
        std::map<uchar, uchar> map = {{1, 1}};
        QVERIFY(!m_store->getShortcutAssigns(Owner, profile, &map));
        QVERIFY(map.empty());
        QVERIFY(!m_store->getKeysOfMacro(Owner, profile, "M", &map));
    }
    QVERIFY(m_store->state().records().empty());
}

void tst_ProfileStore::profileNames()
{
    QCOMPARE(m_store->state().profileName(Owner, 0), QStringLiteral("PROFILE 1"));
    QCOMPARE(m_store->state().profileName(Owner, 23), QStringLiteral("PROFILE 24"));
    QSignalSpy changed(m_store.get(), &ProfileStore::profileListChanged);
    m_store->setProfileName(Owner, 1, QStringLiteral("  Video work "));
    m_store->flush();
    QCOMPARE(changed.count(), 1);
    reopen();
    QCOMPARE(m_store->state().profileName(Owner, 1), QStringLiteral("Video work"));
    m_store->setProfileName(Owner, 2, QStringLiteral("Two\nlines\tand more"));
    QCOMPARE(m_store->state().profileName(Owner, 2), QStringLiteral("Two lines and more"));
    m_store->setProfileName(Owner, 1, QStringLiteral("  "));
    QCOMPARE(m_store->state().profileName(Owner, 1), QStringLiteral("PROFILE 2"));
}

void tst_ProfileStore::profileOrder()
{
    std::vector<int> natural(24);
    std::iota(natural.begin(), natural.end(), 0);
    QVERIFY(m_store->state().profileOrder(Owner) == natural);
    m_store->moveProfile(Owner, 0, 2);
    reopen();
    const std::vector<int> order = m_store->state().profileOrder(Owner);
    QCOMPARE(int(order.size()), 24);
    QVERIFY((std::vector<int>(order.begin(), order.begin() + 4) == std::vector<int>{1, 2, 0, 3}));
    m_store->moveProfile(Owner, 2, 0);
    QVERIFY(m_store->state().records().empty());
    m_store->moveProfile(Owner, 24, 0);
    m_store->moveProfile(Owner, 0, -1);
    QVERIFY(m_store->state().records().empty());
    m_store->setProfileOrder(Owner, {5, 5, 77, -1, 3});
    const std::vector<int> odd = m_store->state().profileOrder(Owner);
    QCOMPARE(int(odd.size()), 24);
    QVERIFY((std::vector<int>(odd.begin(), odd.begin() + 4) == std::vector<int>{5, 3, 0, 1}));
}

void tst_ProfileStore::duplicateAndClear()
{
    const vantrix_key_mapping key = plainKey(4);
    const vantrix_app_assign app = appAssign(1, 2);
    m_store->setKeyMapping(Owner, 0, 3, &key);
    m_store->setAppAssign(Owner, 0, 4, &app);
    m_store->setNamedMacroKey(Owner, 0, "M", 5);
    m_store->setKeyMapping(Owner, 1, 9, &key);
    m_store->setProfileName(Owner, 0, QStringLiteral("Work"));
    m_store->duplicateProfile(Owner, 0, 1);
    QVERIFY(m_store->state().keys(Owner, 0) == m_store->state().keys(Owner, 1));
    QCOMPARE(m_store->state().profileName(Owner, 1), QStringLiteral("Work COPY"));
    m_store->clearProfile(Owner, 0);
    QVERIFY(m_store->state().keys(Owner, 0) == freshKeys());
    QCOMPARE(m_store->state().profileName(Owner, 0), QStringLiteral("Work"));
    QCOMPARE(m_store->state().mapping(Owner, 1, 3), key);
    const StoreState before = m_store->state();
    m_store->duplicateProfile(Owner, 1, 1);
    QVERIFY(m_store->state() == before);
}

void tst_ProfileStore::macros()
{
    vantrix_macro_record record;
    record.count = 127;
    record.events[126] = {4, 1, 65535};
    QVERIFY(m_store->addMacro(Owner, QStringLiteral("A"), record));
    QVERIFY(m_store->addMacro(Owner, QStringLiteral("B"), vantrix_macro_record()));
    QVERIFY(m_store->addMacro(Owner, QStringLiteral("C"), vantrix_macro_record()));
    QCOMPARE(m_store->getShortcutBase(Owner, Profile), 3);
    reopen();
    QCOMPARE(m_store->state().macroNames(Owner),
             QStringList({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")}));
    QCOMPARE(*m_store->state().macro(Owner, QStringLiteral("A")), record);
    QVERIFY(m_store->moveMacro(Owner, 0, 2));
    QCOMPARE(m_store->state().macroNames(Owner),
             QStringList({QStringLiteral("B"), QStringLiteral("C"), QStringLiteral("A")}));
    QVERIFY(!m_store->moveMacro(Owner, 0, 3));
    QVERIFY(!m_store->moveMacro(Owner, -1, 0));
    QVERIFY(m_store->setMacro(Owner, QStringLiteral("B"), record));
    QCOMPARE(*m_store->state().macro(Owner, QStringLiteral("B")), record);
    QVERIFY(!m_store->setMacro(Owner, QStringLiteral("Z"), record));
    QVERIFY(!m_store->state().macro(Owner, QStringLiteral("Z")));
    QVERIFY(m_store->removeMacro(Owner, QStringLiteral("C")));
    QVERIFY(!m_store->removeMacro(Owner, QStringLiteral("C")));
    QVERIFY(!m_store->state().macro(Owner, QStringLiteral("C")));
    QCOMPARE(m_store->getShortcutBase(Owner, Profile), 2);
}

void tst_ProfileStore::macroRenameAndRemoveReachKeys()
{
    QVERIFY(m_store->addMacro(Owner, QStringLiteral("A"), vantrix_macro_record()));
    m_store->setNamedMacroKey(Owner, 0, "A", 3);
    m_store->setNamedMacroKey(Owner, 5, "A", 4);
    m_store->setNamedMacroKey(Owner + 1, 5, "A", 4);
    const std::vector<std::pair<int, int>> keys = {{0, 3}, {5, 4}};
    QVERIFY(m_store->keysOfMacro(Owner, QStringLiteral("A")) == keys);
    QVERIFY(m_store->renameMacro(Owner, QStringLiteral("A"), QStringLiteral("B")));
    QVERIFY(m_store->keysOfMacro(Owner, QStringLiteral("A")).empty());
    QVERIFY(m_store->keysOfMacro(Owner, QStringLiteral("B")) == keys);
    QCOMPARE(int(m_store->keysOfMacro(Owner + 1, QStringLiteral("A")).size()), 1);
    m_store->flush();
    QSignalSpy replaced(m_store.get(), &ProfileStore::profileReplaced);
    QVERIFY(m_store->removeMacro(Owner, QStringLiteral("B")));
    QVERIFY(m_store->keysOfMacro(Owner, QStringLiteral("B")).empty());
    m_store->flush();
    QCOMPARE(replaced.count(), 2);
    QVERIFY(m_store->undo());
    QVERIFY(m_store->keysOfMacro(Owner, QStringLiteral("B")) == keys);
}

void tst_ProfileStore::macroNames()
{
    QVERIFY(!m_store->addMacro(Owner, QString(), vantrix_macro_record()));
    QVERIFY(m_store->addMacro(Owner, QStringLiteral("A"), vantrix_macro_record()));
    QVERIFY(!m_store->addMacro(Owner, QStringLiteral("A"), vantrix_macro_record()));
    QVERIFY(m_store->addMacro(Owner, QStringLiteral("a"), vantrix_macro_record()));
    QVERIFY(!m_store->renameMacro(Owner, QStringLiteral("A"), QStringLiteral("a")));
    QVERIFY(!m_store->renameMacro(Owner, QStringLiteral("A"), QString()));
    QVERIFY(!m_store->renameMacro(Owner, QStringLiteral("Z"), QStringLiteral("Y")));
    QCOMPARE(m_store->freeMacroName(Owner, QStringLiteral("Z")), QStringLiteral("Z"));
    QCOMPARE(m_store->freeMacroName(Owner, QStringLiteral("A")), QStringLiteral("A 2"));
    QVERIFY(m_store->addMacro(Owner, QStringLiteral("A 2"), vantrix_macro_record()));
    QCOMPARE(m_store->freeMacroName(Owner, QStringLiteral("A")), QStringLiteral("A 3"));
    m_store->setNamedMacroKey(Owner, Profile, std::string("a\0b", 3), 1);
    QCOMPARE(m_store->state().macroKey(Owner, Profile, 1)->size(), 3);
}

void tst_ProfileStore::settings()
{
    QCOMPARE(m_store->setting(QStringLiteral("language"), QStringLiteral("7")),
             QStringLiteral("7"));
    QSignalSpy changed(m_store.get(), &ProfileStore::settingChanged);
    m_store->setSetting(QStringLiteral("language"), QStringLiteral("3"));
    m_store->flush();
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).toString(), QStringLiteral("language"));
    reopen();
    QCOMPARE(m_store->setting(QStringLiteral("language")), QStringLiteral("3"));
    m_store->setSetting(QStringLiteral("macroAssignLimit"), QStringLiteral("many"));
    QCOMPARE(m_store->macroAssignLimit(), 28);
}

void tst_ProfileStore::stateBytes()
{
    const vantrix_key_mapping key = plainKey(4);
    m_store->setKeyMapping(Owner, Profile, 1, &key);
    m_store->setSetting(QStringLiteral("a"), QStringLiteral("b"));
    const QByteArray bytes = m_store->state().toBytes();
    const StoreState copy = m_store->state();
    reopen();
    QCOMPARE(m_store->state().toBytes(), bytes);
    QVERIFY(m_store->state() == copy);
    const vantrix_key_mapping other = plainKey(5);
    m_store->setKeyMapping(Owner, Profile, 1, &other);
    QVERIFY(m_store->state().toBytes() != bytes);
    m_store->setKeyMapping(Owner, Profile, 1, &key);
    QCOMPARE(m_store->state().toBytes(), bytes);
}

VANTRIX_TEST_MAIN(tst_ProfileStore)
#include "tst_ProfileStore.moc"
