#include "host/DeviceImage.h"
#include "host/KeyText.h"
#include "host/ProfileStore.h"
#include "support/TestMain.h"

class tst_DeviceImage : public QObject
{
    Q_OBJECT

private slots:
    void freshProfile();
    void sequences();
    void chords_data();
    void chords();
    void hotKeys_data();
    void hotKeys();
    void bytesRoundTrip();
    void brokenBytes();
    void differencesInWords();
    void macroEditIsADifference();
    void namesDoNotMatter();
    void nameOfMacroDoesNotMatter();
    void ownCodeIsNoDifference();
    void functionNames_data();
    void functionNames();
};

namespace {
constexpr int Owner = 1;

QString eventsOf(const vantrix_macro_record &record)
{
    QStringList texts;
    for (int i = 0; i < record.count; ++i) {
        const vantrix_macro_event event = record.events[std::size_t(i)];
        texts << QStringLiteral("%1%2/%3")
                     .arg(event.state ? QLatin1Char('+') : QLatin1Char('-'))
                     .arg(event.code)
                     .arg(event.delay);
    }
    return texts.join(QLatin1Char(' '));
}

/// A profile with a key of every kind.
void fill(ProfileStore &store)
{
    const vantrix_key_mapping letter = plainKey(5);
    store.setKeyMapping(Owner, 2, 0, &letter);
    const vantrix_key_mapping game = gameKey(474);
    store.setKeyMapping(Owner, 2, 1, &game);
    vantrix_key_mapping dual;
    dual.type = KeyType::DualAction;
    dual.digital = {4, 5, DualType::Combine, 40};
    store.setKeyMapping(Owner, 2, 2, &dual);
    vantrix_app_assign app;
    app.appType = 0;
    app.funcId = 6;
    app.macro.code = 0x20;
    app.macro.count = 2;
    app.macro.events[0] = {6, 1, 20};
    app.macro.events[1] = {6, 0, 20};
    store.setAppAssign(Owner, 2, 3, &app);
    const vantrix_hotkey_assign hotKey{0, QStringLiteral("ALT+A"), QStringLiteral("ALL")};
    store.setHotKeyAssign(Owner, 2, 4, &hotKey);
    const vantrix_shortcut_assign shortcut{0, 0};
    store.setShortcutAssign(Owner, 2, 5, &shortcut);
    const vantrix_extended_key extended{0, 3072};
    store.setExtendedKey(Owner, 2, 6, &extended);
    vantrix_macro_record macro;
    macro.count = 1;
    macro.events[0] = {9, 1, 33};
    store.addMacro(Owner, QStringLiteral("Greeting"), macro);
    store.setNamedMacroKey(Owner, 2, "Greeting", 7);
}
} // namespace

void tst_DeviceImage::freshProfile()
{
    const ProfileStore store{QString()};
    const DeviceImage image = DeviceImage::of(store.state(), 4, 9);
    QCOMPARE(image, DeviceImage::factory(4, 9));
    QCOMPARE(image.owner, 4);
    QCOMPARE(image.profile, 9);
    for (int i = 0; i < KeyCount; ++i) {
        const DeviceKey &key = image.keys[std::size_t(i)];
        QCOMPARE(key.content.mapping, plainKey(i == 21 ? 385 : 255));
        QCOMPARE(int(key.sequence.count), 0);
    }
}

void tst_DeviceImage::sequences()
{
    ProfileStore store{QString()};
    fill(store);
    const DeviceImage image = DeviceImage::of(store.state(), Owner, 2);
    QCOMPARE(eventsOf(image.keys[0].sequence), QString());
    QCOMPARE(eventsOf(image.keys[1].sequence), QString());
    QCOMPARE(eventsOf(image.keys[2].sequence), QString());
    QCOMPARE(eventsOf(image.keys[3].sequence), QStringLiteral("+6/20 -6/20"));
    QCOMPARE(eventsOf(image.keys[4].sequence), QStringLiteral("+226/20 +4/20 -4/20 -226/20"));
    QCOMPARE(eventsOf(image.keys[5].sequence),
             QStringLiteral("+224/20 +225/20 +41/20 -41/20 -225/20 -224/20"));
    QCOMPARE(eventsOf(image.keys[6].sequence), QStringLiteral("+225/20 +53/20 -53/20 -225/20"));
    QCOMPARE(eventsOf(image.keys[7].sequence), QStringLiteral("+9/33"));
    QCOMPARE(int(image.keys[4].sequence.code), 0x21);
    QCOMPARE(int(image.keys[7].sequence.code), 0x1A);
}

void tst_DeviceImage::chords_data()
{
    QTest::addColumn<QVector<int>>("codes");
    QTest::addColumn<QString>("events");
    QTest::newRow("none") << QVector<int>{} << "";
    QTest::newRow("one") << QVector<int>{6} << "+6/20 -6/20";
    QTest::newRow("three") << QVector<int>{224, 225, 6}
                           << "+224/20 +225/20 +6/20 -6/20 -225/20 -224/20";
    QTest::newRow("twice") << QVector<int>{98, 98} << "+98/20 -98/20 +98/20 -98/20";
}

void tst_DeviceImage::chords()
{
    QFETCH(QVector<int>, codes);
    QFETCH(QString, events);
    const vantrix_macro_record record =
        chordRecord(std::vector<ushort>(codes.begin(), codes.end()), 0x35);
    QCOMPARE(eventsOf(record), events);
    QCOMPARE(int(record.code), 0x35);
}

void tst_DeviceImage::hotKeys_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVector<int>>("codes");
    QTest::newRow("letter") << "S" << QVector<int>{22};
    QTest::newRow("chord") << "CTRL+SHIFT+S" << QVector<int>{224, 225, 22};
    QTest::newRow("lower case, blanks") << " ctrl + s " << QVector<int>{224, 22};
    QTest::newRow("plus") << "CTRL++" << QVector<int>{224, 46};
    QTest::newRow("plus alone") << "+" << QVector<int>{46};
    QTest::newRow("minus") << "CTRL+-" << QVector<int>{224, 45};
    QTest::newRow("bracket") << "[" << QVector<int>{47};
    QTest::newRow("short name") << "DEL" << QVector<int>{76};
    QTest::newRow("name with a blank") << "SHIFT+PAGE UP" << QVector<int>{225, 75};
    QTest::newRow("unknown part") << "CTRL+WHEEL" << QVector<int>{};
    QTest::newRow("nothing") << "" << QVector<int>{};
}

void tst_DeviceImage::hotKeys()
{
    QFETCH(QString, text);
    QFETCH(QVector<int>, codes);
    const std::vector<ushort> found = hotKeyCodes(text);
    QCOMPARE(QVector<int>(found.begin(), found.end()), codes);
}

void tst_DeviceImage::bytesRoundTrip()
{
    ProfileStore store{QString()};
    fill(store);
    const DeviceImage image = DeviceImage::of(store.state(), Owner, 2);
    const auto again = DeviceImage::fromBytes(image.toBytes());
    QVERIFY(again);
    QVERIFY(*again == image);
}

void tst_DeviceImage::brokenBytes()
{
    ProfileStore store{QString()};
    fill(store);
    QVERIFY(!DeviceImage::fromBytes(QByteArray()));
    const QByteArray bytes = qUncompress(DeviceImage::of(store.state(), Owner, 2).toBytes());
    QVERIFY(!DeviceImage::fromBytes(qCompress(bytes.left(bytes.size() / 2))));
}

void tst_DeviceImage::differencesInWords()
{
    ProfileStore store{QString()};
    const DeviceImage before = DeviceImage::of(store.state(), Owner, 2);
    fill(store);
    const auto list = differences(before, DeviceImage::of(store.state(), Owner, 2));
    QStringList texts;
    for (const DeviceDifference &difference : list)
        texts << QStringLiteral("%1 %2 -> %3")
                     .arg(difference.keyIdx)
                     .arg(difference.beforeText, difference.afterText);
    QCOMPARE(texts, QStringList({QStringLiteral("0 UNASSIGNED -> B"),
                                 QStringLiteral("1 UNASSIGNED -> L STICK LEFT"),
                                 QStringLiteral("2 UNASSIGNED -> A > A + B at 40%"),
                                 QStringLiteral("3 UNASSIGNED -> PHOTOSHOP: CROP"),
                                 QStringLiteral("4 UNASSIGNED -> ALL (ALT+A)"),
                                 QStringLiteral("5 UNASSIGNED -> OPEN TASK MANAGER"),
                                 QStringLiteral("6 UNASSIGNED -> ~"),
                                 QStringLiteral("7 UNASSIGNED -> Greeting")}));
    QVERIFY(differences(before, before).empty());
}

void tst_DeviceImage::macroEditIsADifference()
{
    ProfileStore store{QString()};
    fill(store);
    const DeviceImage before = DeviceImage::of(store.state(), Owner, 2);
    vantrix_macro_record macro;
    macro.count = 1;
    macro.events[0] = {10, 1, 33};
    store.setMacro(Owner, QStringLiteral("Greeting"), macro);
    const auto list = differences(before, DeviceImage::of(store.state(), Owner, 2));
    QCOMPARE(int(list.size()), 1);
    QCOMPARE(list[0].keyIdx, 7);
    QCOMPARE(list[0].beforeText, QStringLiteral("Greeting"));
    QCOMPARE(list[0].afterText, QStringLiteral("Greeting (changed)"));
}

void tst_DeviceImage::namesDoNotMatter()
{
    ProfileStore store{QString()};
    const DeviceImage before = DeviceImage::of(store.state(), Owner, 2);
    store.setProfileName(Owner, 2, QStringLiteral("Work"));
    QVERIFY(DeviceImage::of(store.state(), Owner, 2) == before);
}

void tst_DeviceImage::nameOfMacroDoesNotMatter()
{
    ProfileStore store{QString()};
    fill(store);
    const DeviceImage before = DeviceImage::of(store.state(), Owner, 2);
    store.renameMacro(Owner, QStringLiteral("Greeting"), QStringLiteral("Hello"));
    const DeviceImage renamed = DeviceImage::of(store.state(), Owner, 2);
    QVERIFY(renamed != before);
    QVERIFY(actAlike(before, renamed));
    QVERIFY(differences(before, renamed).empty());
    store.delNamedMacroKey(Owner, 2, 7);
    QVERIFY(!actAlike(before, DeviceImage::of(store.state(), Owner, 2)));
}

/// A key that gets its own letter does what it did without.
void tst_DeviceImage::ownCodeIsNoDifference()
{
    ProfileStore store{QString()};
    const DeviceImage before = DeviceImage::of(store.state(), Owner, 0);
    const vantrix_key_mapping w = plainKey(26); // W, as printed on key 7
    store.setKeyMapping(Owner, 0, 7, &w);
    QVERIFY(actAlike(before, DeviceImage::of(store.state(), Owner, 0)));
    QVERIFY(actAlike(DeviceImage::of(store.state(), Owner, 0), before));
    store.setKeyMapping(Owner, 0, 8, &w);
    const auto list = differences(before, DeviceImage::of(store.state(), Owner, 0));
    QCOMPARE(int(list.size()), 1);
    QCOMPARE(list[0].keyIdx, 8);
    // disabled, and two actions, are something else
    const vantrix_key_mapping disabled = plainKey(0);
    store.setKeyMapping(Owner, 0, 8, &disabled);
    QCOMPARE(int(differences(before, DeviceImage::of(store.state(), Owner, 0)).size()), 1);
}

void tst_DeviceImage::functionNames_data()
{
    QTest::addColumn<int>("keyIdx");
    QTest::addColumn<vantrix_key_mapping>("key");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("inputType");
    vantrix_key_mapping dual;
    dual.type = KeyType::DualAction;
    dual.digital = {4, 5, DualType::Normal, 50};
    vantrix_key_mapping toggle = dual;
    toggle.digital.dualType = DualType::Toggle;
    vantrix_key_mapping single = dual;
    single.digital.secondAction = 0;
    // clang-format off
    QTest::newRow("letter")       << 0  << plainKey(5)    << "B"                  << 0;
    QTest::newRow("media")        << 0  << plainKey(246)  << "VOLUME UP"          << 2;
    QTest::newRow("mouse")        << 0  << plainKey(496)  << "LEFT CLICK"         << 1;
    QTest::newRow("controller")   << 0  << gameKey(474)   << "L STICK LEFT"       << 4;
    QTest::newRow("disabled")     << 0  << plainKey(0)    << "DISABLED"           << 11;
    QTest::newRow("cleared")      << 0  << clearedKey()   << "UNASSIGNED"         << 12;
    QTest::newRow("own function") << 21 << plainKey(385)  << "UNASSIGNED"         << 12;
    QTest::newRow("profile")      << 0  << plainKey(1536) << "PROFILE 1"          << 9;
    QTest::newRow("tool")         << 0  << plainKey(719)  << "CODE 719"           << 0;
    QTest::newRow("normal")       << 0  << dual           << "A > B at 50%"       << 6;
    QTest::newRow("toggle")       << 0  << toggle         << "A > B > A at 50%"   << 6;
    QTest::newRow("one action")   << 0  << single         << "A"                  << 6;
    // clang-format on
}

void tst_DeviceImage::functionNames()
{
    QFETCH(int, keyIdx);
    QFETCH(vantrix_key_mapping, key);
    KeyContent content;
    content.mapping = key;
    QTEST(KeyText::functionName(keyIdx, content), "name");
    QTEST(KeyText::inputType(keyIdx, content), "inputType");
}

VANTRIX_TEST_MAIN(tst_DeviceImage)
#include "tst_DeviceImage.moc"
