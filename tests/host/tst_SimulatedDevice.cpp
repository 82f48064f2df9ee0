#include "host/ProfileStore.h"
#include "host/SimulatedDevice.h"
#include "support/DualKey.h"
#include "support/TestMain.h"

#include <QTemporaryDir>

/// What the pad sends, written by hand: "+4" code 4 goes down, "-4" it comes up.
class tst_SimulatedDevice : public QObject
{
    Q_OBJECT

private slots:
    void curves_data();
    void curves();
    void sharedCodes_data();
    void sharedCodes();
    void fastAndSlowSendTheSame_data();
    void fastAndSlowSendTheSame();
    void everyDepthHasItsEdge();
    void plainKeys_data();
    void plainKeys();
    void extras();
    void directFunctionIsPlain();
    void macros();
    void missingMacroSendsNothing();
    void pressureOff();
    void profileCodes_data();
    void profileCodes();
    void heldKeyComesUpAsItWentDown();
    void memorySurvives();
    void pendingAndApply();
    void reset();
    void outsideThePad();
    void releaseAll();
    void storeGone();
};

namespace {

constexpr int Owner = 3;
constexpr int Key = 7; // by default it sends 26

/// A store and a device that was sent profile 0 with one key set.
struct Pad
{
    Pad() : store(QString()), device(&store) {}

    void set(const vantrix_key_mapping &key)
    {
        store.setKeyMapping(Owner, 0, Key, &key);
        apply();
    }
    void apply(int profile = 0) { device.send(DeviceImage::of(store.state(), Owner, profile)); }
    QString move(const QVector<int> &depths, int keyIdx = Key)
    {
        std::vector<DeviceEvent> events;
        for (const int depth : depths) {
            const auto some = device.setKeyDepth(keyIdx, depth);
            events.insert(events.end(), some.begin(), some.end());
        }
        return deviceEventText(events);
    }

    ProfileStore store;
    SimulatedDevice device;
};

} // namespace

void tst_SimulatedDevice::curves_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("depth");
    QTest::addColumn<QVector<int>>("curve");
    QTest::addColumn<QString>("events");

    // first action 4, second action 5
    // clang-format off
    QTest::newRow("normal, down and up")   << 0 << 50 << QVector<int>{3, 10, 30, 50, 80, 100, 60, 40, 20, 4, 0} << "+4 -4 +5 -5";
    QTest::newRow("normal, shallow")       << 0 << 50 << QVector<int>{10, 30, 49, 30, 0}                        << "+4 -4";
    QTest::newRow("normal, fast")          << 0 << 50 << QVector<int>{100, 0}                                   << "+4 -4 +5 -5";
    QTest::newRow("normal, twice past")    << 0 << 50 << QVector<int>{30, 60, 30, 60, 0}                        << "+4 -4 +5 -5";
    QTest::newRow("normal, trembling")     << 0 << 50 << QVector<int>{49, 50, 49, 50, 47, 51, 46, 50, 0}        << "+4 -4 +5 -5";
    QTest::newRow("toggle, down and up")   << 1 << 50 << QVector<int>{3, 10, 30, 50, 80, 100, 60, 46, 20, 4, 0} << "+4 -4 +5 -5 +4 -4";
    QTest::newRow("toggle, shallow")       << 1 << 50 << QVector<int>{10, 30, 49, 30, 0}                        << "+4 -4";
    QTest::newRow("toggle, fast")          << 1 << 50 << QVector<int>{100, 0}                                   << "+4 -4 +5 -5 +4 -4";
    QTest::newRow("toggle, twice past")    << 1 << 50 << QVector<int>{30, 60, 30, 60, 0}                        << "+4 -4 +5 -5 +4 -4 +5 -5 +4 -4";
    QTest::newRow("toggle, trembling")     << 1 << 50 << QVector<int>{49, 50, 49, 50, 47, 51, 48, 50}           << "+4 -4 +5";
    QTest::newRow("toggle, just back")     << 1 << 50 << QVector<int>{50, 47, 46, 49, 50}                       << "+4 -4 +5 -5 +4 -4 +5";
    QTest::newRow("combine, down and up")  << 2 << 50 << QVector<int>{3, 10, 30, 50, 80, 100, 60, 46, 20, 4, 0} << "+4 +5 -5 -4";
    QTest::newRow("combine, shallow")      << 2 << 50 << QVector<int>{10, 30, 49, 30, 0}                        << "+4 -4";
    QTest::newRow("combine, fast")         << 2 << 50 << QVector<int>{100, 0}                                   << "+4 +5 -5 -4";
    QTest::newRow("combine, twice past")   << 2 << 50 << QVector<int>{30, 60, 30, 60, 0}                        << "+4 +5 -5 +5 -5 -4";
    QTest::newRow("combine, trembling")    << 2 << 50 << QVector<int>{49, 50, 49, 50, 47, 51, 48, 50}           << "+4 +5";
    QTest::newRow("first edge, trembling") << 0 << 50 << QVector<int>{7, 8, 7, 8, 5, 9, 6, 4, 7, 5, 8}          << "+4 -4 +4";
    QTest::newRow("below the first edge")  << 0 << 50 << QVector<int>{1, 5, 7, 0}                               << "";
    QTest::newRow("least depth")           << 1 << 10 << QVector<int>{8, 9, 10, 7, 6, 5, 4}                     << "+4 -4 +5 -5 +4 -4";
    QTest::newRow("greatest depth")        << 1 << 90 << QVector<int>{89, 90, 87, 86, 0}                        << "+4 -4 +5 -5 +4 -4";
    QTest::newRow("depth below the range") << 1 << 0  << QVector<int>{8, 9, 10, 6, 0}                           << "+4 -4 +5 -5 +4 -4";
    QTest::newRow("depth above the range") << 1 << 200 << QVector<int>{89, 90, 0}                               << "+4 -4 +5 -5 +4 -4";
    QTest::newRow("beyond the travel")     << 0 << 50 << QVector<int>{300, -20}                                 << "+4 -4 +5 -5";
    // clang-format on
}

void tst_SimulatedDevice::curves()
{
    QFETCH(int, type);
    QFETCH(int, depth);
    QFETCH(QVector<int>, curve);
    QFETCH(QString, events);
    Pad pad;
    pad.set(dualKey(4, 5, type, depth));
    QCOMPARE(pad.move(curve), events);
}

/// 3073 goes down as 225 and 30, 116 as 98 twice.
void tst_SimulatedDevice::sharedCodes_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    QTest::addColumn<QString>("past");
    QTest::addColumn<QString>("back");
    QTest::addColumn<QString>("again");
    QTest::addColumn<QString>("up");
    // clang-format off
    QTest::newRow("combine, the same")      << 2 << 4    << 4    << "+4 -4 +4"              << ""         << "-4 +4"         << "-4";
    QTest::newRow("combine, adds a code")   << 2 << 225  << 3073 << "+225 -225 +225 +30"    << "-30"      << "-225 +225 +30" << "-30 -225";
    QTest::newRow("combine, part of first") << 2 << 3073 << 225  << "+225 +30 -225 +225"    << ""         << "-225 +225"     << "-225 -30";
    QTest::newRow("combine, zero and two")  << 2 << 98   << 116  << "+98 -98 +98 -98 +98"   << ""         << "-98 +98 -98 +98" << "-98";
    QTest::newRow("toggle, the same")       << 1 << 4    << 4    << "+4 -4 +4"              << "-4 +4"    << "-4 +4"         << "-4 +4 -4";
    QTest::newRow("normal, the same")       << 0 << 4    << 4    << "+4 -4 +4"              << ""         << ""              << "-4";
    // clang-format on
}

void tst_SimulatedDevice::sharedCodes()
{
    QFETCH(int, type);
    QFETCH(int, first);
    QFETCH(int, second);
    QFETCH(QString, past);
    QFETCH(QString, back);
    QFETCH(QString, again);
    QFETCH(QString, up);
    Pad pad;
    pad.set(dualKey(ushort(first), ushort(second), type, 50));
    QCOMPARE(pad.move({60}), past);
    QCOMPARE(pad.move({30}), back);
    QCOMPARE(pad.move({60}), again);
    QCOMPARE(pad.move({0}), up);
}

void tst_SimulatedDevice::fastAndSlowSendTheSame_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("events");
    QTest::newRow("normal") << 0 << "+4 -4 +5 -5";
    QTest::newRow("toggle") << 1 << "+4 -4 +5 -5 +4 -4";
    QTest::newRow("combine") << 2 << "+4 +5 -5 -4";
}

void tst_SimulatedDevice::fastAndSlowSendTheSame()
{
    QFETCH(int, type);
    QFETCH(QString, events);
    QVector<int> slow;
    for (int depth = 0; depth <= 100; ++depth)
        slow << depth;
    for (int depth = 100; depth >= 0; --depth)
        slow << depth;
    Pad pad;
    pad.set(dualKey(4, 5, type, 37));
    QCOMPARE(pad.move(slow), events);
    QCOMPARE(pad.move({100, 0}), events);
}

void tst_SimulatedDevice::everyDepthHasItsEdge()
{
    for (int depth = 10; depth <= 90; ++depth) {
        Pad pad;
        pad.set(dualKey(4, 5, DualType::Combine, depth));
        QCOMPARE(pad.move({depth - 1}), QStringLiteral("+4"));
        QCOMPARE(pad.move({depth}), QStringLiteral("+5"));
        QCOMPARE(pad.move({depth - 3}), QString());
        QCOMPARE(pad.move({depth - 4}), QStringLiteral("-5"));
    }
}

void tst_SimulatedDevice::plainKeys_data()
{
    QTest::addColumn<vantrix_key_mapping>("key");
    QTest::addColumn<QString>("events");
    vantrix_key_mapping withoutActions = clearedKey();
    withoutActions.type = KeyType::DualAction;
    vantrix_key_mapping withoutAndDisabled = plainKey(0);
    withoutAndDisabled.type = KeyType::DualAction;
    withoutAndDisabled.digital.secondAction = 5;
    // clang-format off
    QTest::newRow("letter")             << plainKey(5)                         << "+5 -5";
    QTest::newRow("controller")         << gameKey(474)                        << "+474 -474";
    QTest::newRow("media")              << plainKey(240)                       << "+240 -240";
    QTest::newRow("disabled")           << plainKey(0)                         << "";
    QTest::newRow("unassigned")         << clearedKey()                        << "+26 -26";
    QTest::newRow("dual, first only")   << dualKey(4, 0, 0, 50)                << "+4 -4";
    QTest::newRow("dual, no actions")   << withoutActions                      << "+26 -26";
    QTest::newRow("dual, none, code 0") << withoutAndDisabled                  << "";
    QTest::newRow("dual, pseudo code")  << dualKey(3073, 4, 0, 50)             << "+225 +30 -30 -225 +4 -4";
    QTest::newRow("two zeros")          << plainKey(116)                       << "+98 -98 +98 -98";
    QTest::newRow("unknown dual type")  << dualKey(4, 5, 9, 50)                << "+4 -4 +5 -5";
    // clang-format on
}

void tst_SimulatedDevice::plainKeys()
{
    QFETCH(vantrix_key_mapping, key);
    QFETCH(QString, events);
    Pad pad;
    pad.set(key);
    QCOMPARE(pad.move({10, 60, 100, 10, 0}), events);
}

void tst_SimulatedDevice::extras()
{
    Pad pad;
    const vantrix_shortcut_assign copy{7, 0};
    pad.store.setShortcutAssign(Owner, 0, 1, &copy);
    const vantrix_extended_key exclamation{0, 3073};
    pad.store.setExtendedKey(Owner, 0, 2, &exclamation);
    const vantrix_hotkey_assign hotKey{0, QStringLiteral("CTRL+SHIFT+S"),
                                       QStringLiteral("SAVE AS")};
    pad.store.setHotKeyAssign(Owner, 0, 3, &hotKey);
    const vantrix_hotkey_assign unknown{0, QStringLiteral("WHEEL UP"), QStringLiteral("ZOOM")};
    pad.store.setHotKeyAssign(Owner, 0, 4, &unknown);
    const vantrix_extended_key zeros{0, 116};
    pad.store.setExtendedKey(Owner, 0, 5, &zeros);
    pad.apply();
    QCOMPARE(pad.move({50, 0}, 1), QStringLiteral("+224 20ms +6 20ms -6 20ms -224 20ms"));
    QCOMPARE(pad.move({50, 0}, 2), QStringLiteral("+225 20ms +30 20ms -30 20ms -225 20ms"));
    QCOMPARE(pad.move({50, 0}, 3),
             QStringLiteral("+224 20ms +225 20ms +22 20ms -22 20ms -225 20ms -224 20ms"));
    QCOMPARE(pad.move({50, 0}, 4), QString());
    QCOMPARE(pad.move({50, 0}, 5), QStringLiteral("+98 20ms -98 20ms +98 20ms -98 20ms"));
}

void tst_SimulatedDevice::directFunctionIsPlain()
{
    Pad pad;
    const vantrix_key_mapping brush = plainKey(719);
    pad.store.setKeyMapping(Owner, 0, Key, &brush);
    vantrix_app_assign assign;
    assign.appType = 0;
    assign.funcId = 4;
    assign.macro.count = 2;
    assign.macro.events[0] = {719, 1, 20};
    assign.macro.events[1] = {719, 0, 20};
    pad.store.setAppAssign(Owner, 0, Key, &assign);
    pad.apply();
    QCOMPARE(pad.move({50, 0}), QStringLiteral("+719 -719"));
    assign.macro.code = 26;
    pad.store.setAppAssign(Owner, 0, Key, &assign);
    pad.apply();
    QCOMPARE(pad.move({50, 0}), QStringLiteral("+719 20ms -719 20ms"));
}

void tst_SimulatedDevice::macros()
{
    Pad pad;
    vantrix_macro_record record;
    record.count = 4;
    record.events[0] = {225, 1, 0};
    record.events[1] = {11, 1, 250};
    record.events[2] = {11, 0, 1};
    record.events[3] = {225, 0, 0};
    pad.store.addMacro(Owner, QStringLiteral("H"), record);
    pad.store.setNamedMacroKey(Owner, 0, "H", Key);
    pad.apply();
    QCOMPARE(pad.move({8, 100, 0}), QStringLiteral("+225 +11 250ms -11 1ms -225"));
    record.count = 255;
    pad.store.setMacro(Owner, QStringLiteral("H"), record);
    pad.apply();
    QCOMPARE(int(pad.device.setKeyDepth(Key, 50).size()), 127 + 2);
}

void tst_SimulatedDevice::missingMacroSendsNothing()
{
    Pad pad;
    pad.store.setNamedMacroKey(Owner, 0, "gone", Key);
    pad.apply();
    QCOMPARE(pad.move({50, 0}), QString());
}

void tst_SimulatedDevice::pressureOff()
{
    Pad pad;
    pad.set(dualKey(4, 5, DualType::Toggle, 50));
    pad.device.setPressureEnabled(false);
    QCOMPARE(pad.move({100, 0}), QStringLiteral("+4 -4"));
    pad.device.setPressureEnabled(true);
    QCOMPARE(pad.move({100, 0}), QStringLiteral("+4 -4 +5 -5 +4 -4"));
}

void tst_SimulatedDevice::profileCodes_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("to");
    QTest::newRow("first") << 9 << 1536 << 0;
    QTest::newRow("last") << 9 << 1559 << 23;
    QTest::newRow("cycle up") << 9 << 1570 << 10;
    QTest::newRow("cycle up around") << 23 << 1570 << 0;
    QTest::newRow("cycle down") << 9 << 1571 << 8;
    QTest::newRow("cycle down around") << 0 << 1571 << 23;
    QTest::newRow("up") << 9 << 1568 << 10;
    QTest::newRow("up stops") << 23 << 1568 << 23;
    QTest::newRow("down") << 9 << 1569 << 8;
    QTest::newRow("down stops") << 0 << 1569 << 0;
}

void tst_SimulatedDevice::profileCodes()
{
    QFETCH(int, from);
    QFETCH(int, code);
    QFETCH(int, to);
    Pad pad;
    const vantrix_key_mapping key = plainKey(ushort(code));
    pad.store.setKeyMapping(Owner, from, Key, &key);
    pad.apply(from);
    QCOMPARE(pad.device.currentProfile(), from);
    QCOMPARE(pad.move({50, 0}), QStringLiteral("profile %1").arg(to + 1));
    QCOMPARE(pad.device.currentProfile(), to);
    QCOMPARE(pad.device.currentOwner(), Owner);
}

void tst_SimulatedDevice::heldKeyComesUpAsItWentDown()
{
    Pad pad;
    const vantrix_key_mapping away = plainKey(1537);
    pad.store.setKeyMapping(Owner, 0, 1, &away);
    pad.set(plainKey(5));
    QCOMPARE(pad.move({50}), QStringLiteral("+5"));
    QCOMPARE(pad.move({50, 0}, 1), QStringLiteral("profile 2"));
    QCOMPARE(pad.move({0}), QStringLiteral("-5"));
    QCOMPARE(pad.move({50, 0}), QStringLiteral("+26 -26"));
}

void tst_SimulatedDevice::memorySurvives()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("store"));
    {
        ProfileStore store(name);
        SimulatedDevice device(&store);
        const vantrix_key_mapping key = dualKey(4, 5, DualType::Combine, 30);
        store.setKeyMapping(Owner, 6, Key, &key);
        QVERIFY(device.send(DeviceImage::of(store.state(), Owner, 6)));
        device.setPressureEnabled(false);
        const vantrix_key_mapping later = plainKey(9);
        store.setKeyMapping(Owner, 6, 2, &later);
    }
    ProfileStore store(name);
    SimulatedDevice device(&store);
    QCOMPARE(device.currentProfile(), 6);
    QVERIFY(!device.isPressureEnabled());
    QCOMPARE(device.image(Owner, 6).keys[Key].content.mapping,
             dualKey(4, 5, DualType::Combine, 30));
    QVERIFY(device.differs(Owner, 6));
    QVERIFY(!device.differs(Owner, 5));
    QCOMPARE(int(device.pending(Owner, 6).size()), 1);
    QCOMPARE(device.pending(Owner, 6).at(0).keyIdx, 2);
}

void tst_SimulatedDevice::pendingAndApply()
{
    Pad pad;
    QVERIFY(!pad.device.differs(Owner, 0));
    const vantrix_key_mapping key = plainKey(5);
    pad.store.setKeyMapping(Owner, 0, Key, &key);
    QVERIFY(pad.device.differs(Owner, 0));
    const auto list = pad.device.pending(Owner, 0);
    QCOMPARE(int(list.size()), 1);
    QCOMPARE(list[0].beforeText, QStringLiteral("UNASSIGNED"));
    QCOMPARE(list[0].afterText, QStringLiteral("B"));
    pad.apply();
    QVERIFY(!pad.device.differs(Owner, 0));
    pad.store.flush();
    pad.store.undo();
    QVERIFY(pad.device.differs(Owner, 0));
    // one key put back as the device has it
    pad.store.redo();
    pad.store.setProfileKey(Owner, 0, Key, pad.device.image(Owner, 0).keys[Key].content);
    QVERIFY(!pad.device.differs(Owner, 0));
}

void tst_SimulatedDevice::reset()
{
    Pad pad;
    pad.set(plainKey(5));
    pad.apply(2);
    pad.device.reset();
    QCOMPARE(pad.device.currentProfile(), 0);
    QCOMPARE(pad.device.image(Owner, 0), DeviceImage::factory(Owner, 0));
    QVERIFY(pad.device.differs(Owner, 0));
}

void tst_SimulatedDevice::outsideThePad()
{
    Pad pad;
    QCOMPARE(pad.move({100, 0}, 28), QString());
    QCOMPARE(pad.move({100, 0}, -1), QString());
    QCOMPARE(pad.device.keyDepth(28), 0);
}

void tst_SimulatedDevice::releaseAll()
{
    Pad pad;
    pad.set(plainKey(5));
    pad.move({40});
    pad.move({40}, 2);
    QCOMPARE(pad.device.keyDepth(Key), 40);
    QCOMPARE(deviceEventText(pad.device.releaseAll()), QStringLiteral("-31 -5"));
    QCOMPARE(pad.device.keyDepth(Key), 0);
}

void tst_SimulatedDevice::storeGone()
{
    auto store = std::make_unique<ProfileStore>(QString());
    SimulatedDevice device(store.get());
    const DeviceImage image = DeviceImage::of(store->state(), 0, 0);
    store.reset();
    QVERIFY(!device.send(image));
    QCOMPARE(deviceEventText(device.setKeyDepth(Key, 50)), QStringLiteral("+26"));
}

VANTRIX_TEST_MAIN(tst_SimulatedDevice)
#include "tst_SimulatedDevice.moc"
