#include "core/records.h"
#include "support/TestMain.h"

#include <cstring>

class tst_records : public QObject
{
    Q_OBJECT

private slots:
    void freshRecordsAreZero();
    void mappingBytes();
    void dualActionBytes();
    void macroBytes();
    void hotKeyEquality();
    void helpers();
};

namespace {
template <typename T>
QByteArray bytesOf(const T &record)
{
    return QByteArray(reinterpret_cast<const char *>(&record), int(sizeof(T)));
}
} // namespace

void tst_records::freshRecordsAreZero()
{
    QCOMPARE(bytesOf(vantrix_key_mapping()), QByteArray(11, '\0'));
    QCOMPARE(bytesOf(vantrix_presso_digital()), QByteArray(6, '\0'));
    QCOMPARE(bytesOf(vantrix_macro_record()), QByteArray(656, '\0'));
    QCOMPARE(bytesOf(vantrix_shortcut_assign()), QByteArray(2, '\0'));
    QCOMPARE(bytesOf(vantrix_extended_key()), QByteArray(3, '\0'));
    const vantrix_app_assign assign;
    QCOMPARE(int(assign.appType), -1);
    QCOMPARE(int(assign.funcId), -1);
}

void tst_records::mappingBytes()
{
    vantrix_key_mapping key;
    key.type = 2;
    key.code = 0x0102;
    key.altCode = 0x0304;
    key.digital.firstAction = 0x0506;
    key.digital.secondAction = 0x0708;
    key.digital.dualType = 9;
    key.digital.depth = 10;
    QCOMPARE(bytesOf(key).toHex(), QByteArray("02020104030605080709"
                                              "0a"));
}

void tst_records::dualActionBytes()
{
    vantrix_presso_digital digital;
    digital.depth = 90;
    QCOMPARE(bytesOf(digital).toHex(), QByteArray("00000000005a"));
}

void tst_records::macroBytes()
{
    vantrix_macro_record record;
    record.code = 0x35;
    record.count = 2;
    record.events[0] = {0x04, 1, 20};
    record.events[126] = {0x1234, 0, 0x5678};
    const QByteArray bytes = bytesOf(record);
    QCOMPARE(bytes.left(3).toHex(), QByteArray("003500"));
    QCOMPARE(bytes.mid(20, 6).toHex(), QByteArray("020400011400"));
    QCOMPARE(bytes.mid(651).toHex(), QByteArray("3412007856"));
}

void tst_records::hotKeyEquality()
{
    const vantrix_hotkey_assign a{0, QStringLiteral("CTRL+S"), QStringLiteral("SAVE")};
    vantrix_hotkey_assign b = a;
    QVERIFY(a == b);
    b.keyName = QStringLiteral("SAVE AS");
    QVERIFY(a != b);
}

void tst_records::helpers()
{
    QCOMPARE(bytesOf(clearedKey()).toHex(), QByteArray("00ff00000000000000"
                                                       "0000"));
    QCOMPARE(bytesOf(gameKey(0x01d9)).toHex(), QByteArray("02ff00d901000000000000"));
    QCOMPARE(int(effectiveCode(gameKey(473))), 473);
    QCOMPARE(int(effectiveCode(plainKey(5))), 5);
    QVERIFY(isValidKey(27));
    QVERIFY(!isValidKey(28));
    QVERIFY(!isValidKey(-1));
    vantrix_key_mapping dual;
    dual.type = KeyType::DualAction;
    QVERIFY(!isDualAction(dual));
    dual.digital.firstAction = 4;
    QVERIFY(isDualAction(dual));
}

VANTRIX_TEST_MAIN(tst_records)
#include "tst_records.moc"
