#include "vocabulary/Presets.h"

#include "support/TestMain.h"

// clang-format off
namespace {

using KeyTable = std::map<int, std::array<int, 28>>;

const KeyTable KeyboardCodes = {
    // preset, codes by key
    {0, {{0x35, 0x1E, 0x1F, 0x20, 0x21, 0x2B, 0x14, 0x1A, 0x08, 0x15, 0x39, 0x04, 0x16, 0x07, 0x09, 0xE1, 0x1D, 0x1B, 0x06, 0x19, 0xE0, 0xE3, 0xE2, 0x2C, 0xF6, 0xF5, 0xC6, 0xC7}}},
    {1, {{0x1E, 0x1F, 0x20, 0x21, 0x22, 0x14, 0x1A, 0x08, 0x15, 0x17, 0x04, 0x16, 0x07, 0x09, 0x0A, 0x1D, 0x1B, 0x06, 0x19, 0x05, 0xE0, 0xE3, 0xE2, 0x2C, 0xF6, 0xF5, 0xC6, 0xC7}}},
    {2, {{0x4B, 0x74, 0x53, 0x75, 0x54, 0x4E, 0x5F, 0x60, 0x61, 0x55, 0x52, 0x5C, 0x5D, 0x5E, 0x56, 0x51, 0x59, 0x5A, 0x5B, 0x57, 0x4C, 0x62, 0x63, 0x58, 0xF6, 0xF5, 0xC6, 0xC7}}},
};

const std::map<int, std::map<int, int>> GameCodes = {
    // preset, {key, controller code}
    {3, {{7, 731}, {11, 474}, {12, 475}, {13, 730}}},
    {4, {{7, 223}, {11, 474}, {12, 222}, {13, 730}}},
    {5, {{0, 470}, {1, 1241}, {2, 473}, {3, 2265}, {4, 729}, {5, 469}, {6, 222}, {7, 731}, {8, 223}, {9, 733}, {10, 468}, {11, 474}, {12, 475}, {13, 730}, {14, 477}, {15, 471}, {16, 466}, {18, 467}, {20, 463}, {22, 472}, {23, 462}}},
};

const KeyTable AppEntries = {
    // preset, one code, nineteen function ids, eight codes
    {6, {{41, 0, 1, 2, 11, 15, 12, 13, 7, 5, 18, 10, 9, 6, 4, 17, 3, 8, 14, 16, 225, 224, 226, 44, 246, 245, 198, 199}}},
    {7, {{41, 0, 1, 2, 10, 12, 6, 17, 9, 5, 18, 11, 8, 3, 4, 15, 16, 7, 13, 14, 225, 224, 226, 44, 246, 245, 198, 199}}},
    {8, {{41, 16, 18, 12, 6, 11, 13, 9, 14, 15, 5, 17, 1, 7, 8, 3, 0, 10, 2, 4, 225, 224, 226, 44, 246, 245, 198, 199}}},
};

} // namespace
// clang-format on

/// The nine presets, key by key.
class tst_Presets : public QObject
{
    Q_OBJECT

private slots:
    void keyboardPreset_data();
    void keyboardPreset();
    void gamePreset_data();
    void gamePreset();
    void appPreset_data();
    void appPreset();
    void appPresetType();
    void everyFunctionOnce();
    void gaps();
    void sidePanel_data();
    void sidePanel();
    void sidePanelGroups();
};

namespace {

void addKeyRows(const KeyTable &table)
{
    QTest::addColumn<int>("preset");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("code");
    for (const auto &[preset, codes] : table) {
        for (int key = 0; key < 28; ++key)
            QTest::addRow("preset %d key %d", preset, key)
                << preset << key << codes[std::size_t(key)];
    }
}

} // namespace

void tst_Presets::keyboardPreset_data()
{
    addKeyRows(KeyboardCodes);
}

void tst_Presets::keyboardPreset()
{
    QFETCH(int, preset);
    QFETCH(int, key);
    QFETCH(int, code);
    QCOMPARE(KeyboardPresets().size(), std::size_t(3));
    QVERIFY(KeyboardPresets().count(preset));
    QCOMPARE(int(KeyboardPresets().at(preset)[std::size_t(key)]), code);
}

void tst_Presets::gamePreset_data()
{
    QTest::addColumn<int>("preset");
    QTest::addColumn<int>("key");
    for (const int preset : {3, 4, 5}) {
        for (int key = 0; key < 28; ++key)
            QTest::addRow("preset %d key %d", preset, key) << preset << key;
    }
}

void tst_Presets::gamePreset()
{
    QFETCH(int, preset);
    QFETCH(int, key);
    QCOMPARE(GamePresets().size(), std::size_t(3));
    const auto &expected = GameCodes.at(preset);
    QVERIFY(GamePresets().count(preset));
    const auto &rows = GamePresets().at(preset);
    QCOMPARE(rows.count(key), expected.count(key));
    if (expected.count(key))
        QCOMPARE(int(rows.at(key)), expected.at(key));
}

void tst_Presets::appPreset_data()
{
    addKeyRows(AppEntries);
}

void tst_Presets::appPreset()
{
    QFETCH(int, preset);
    QFETCH(int, key);
    QFETCH(int, code);
    QCOMPARE(AppPresetKeys().size(), std::size_t(3));
    QVERIFY(AppPresetKeys().count(preset));
    QCOMPARE(int(AppPresetKeys().at(preset)[std::size_t(key)]), code);
    QCOMPARE(isAppPresetCode(key), key < 1 || key > 19);
}

void tst_Presets::appPresetType()
{
    const std::map<int, int> types = {{6, 0}, {7, 2}, {8, 1}};
    QVERIFY(AppPresetType() == types);
}

/// Keys 1 to 19 lay each of the 19 functions of the application over the block.
void tst_Presets::everyFunctionOnce()
{
    for (const int preset : {6, 7, 8}) {
        QVERIFY(AppPresetKeys().count(preset));
        std::map<int, int> counts;
        for (int key = 1; key <= 19; ++key)
            ++counts[AppPresetKeys().at(preset)[std::size_t(key)]];
        for (int id = 0; id < 19; ++id)
            QVERIFY2(counts[id] == 1, qPrintable(QStringLiteral("%1: %2").arg(preset).arg(id)));
    }
}

void tst_Presets::gaps()
{
    QVERIFY(GamePresets().count(5));
    QVERIFY(KeyboardPresets().count(0) && KeyboardPresets().count(2));
    for (const int key : {17, 19, 21, 24, 25, 26, 27})
        QCOMPARE(GamePresets().at(5).count(key), std::size_t(0));
    const auto &base = KeyboardPresets().at(0);
    QCOMPARE(int(base[21]), 227);
    QCOMPARE(int(base[24]), 246);
    QCOMPARE(int(base[27]), 199);
    QCOMPARE(int(KeyboardPresets().at(2)[1]), 116);
    QCOMPARE(int(KeyboardPresets().at(2)[3]), 117);
}

void tst_Presets::sidePanel_data()
{
    QTest::addColumn<bool>("isGroup");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("input");
    // clang-format off
    QTest::newRow("group 0")  << true  << 0 << "K"  << "Keyboard" << -1;
    QTest::newRow("group 4")  << true  << 4 << "G"  << "Gaming" << -1;
    QTest::newRow("group 5")  << true  << 5 << "A"  << "Creative Application" << -1;
    QTest::newRow("preset 0") << false << 0 << "W"  << "Standard WASD" << 0;
    QTest::newRow("preset 1") << false << 1 << "E"  << "Standard ESDF" << 0;
    QTest::newRow("preset 2") << false << 2 << "N"  << "Numpad Mode" << 0;
    QTest::newRow("preset 3") << false << 3 << "F"  << "FPS Mode" << 4;
    QTest::newRow("preset 4") << false << 4 << "E"  << "Driving Mode" << 4;
    QTest::newRow("preset 5") << false << 5 << "A"  << "Adv. Flight Mode" << 4;
    QTest::newRow("preset 6") << false << 6 << "P"  << "Photoshop" << 5;
    QTest::newRow("preset 7") << false << 7 << "I"  << "Illustrator" << 5;
    QTest::newRow("preset 8") << false << 8 << "PP" << "Premiere Pro" << 5;
    // clang-format on
}

void tst_Presets::sidePanel()
{
    QFETCH(bool, isGroup);
    QFETCH(int, number);
    QFETCH(QString, tag);
    QFETCH(QString, name);
    QFETCH(int, input);
    const auto &rows = isGroup ? PresetGroups() : PresetPanels();
    QVERIFY(rows.count(number));
    const PresetPanelRow &row = rows.at(number);
    QCOMPARE(QString::fromLatin1(row.tag), tag);
    QCOMPARE(QString::fromLatin1(row.name), name);
    QCOMPARE(row.inputType, input);
}

void tst_Presets::sidePanelGroups()
{
    QCOMPARE(PresetGroups().size(), std::size_t(3));
    QCOMPARE(PresetPanels().size(), std::size_t(9));
    QCOMPARE(PresetCount, 9);
}

VANTRIX_TEST_MAIN(tst_Presets)
#include "tst_Presets.moc"
