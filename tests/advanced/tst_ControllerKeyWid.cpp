#include "advanced/ControllerKeyWid.h"

#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QLabel>
#include <QPushButton>

class tst_ControllerKeyWid : public QObject
{
    Q_OBJECT

private slots:
    void names_data();
    void names();
    void form();
    void keysInTheirOrder();
    void clickGives();
    void clickTakes();
    void twiceLeavesTheListAsItWas();
    void currentKeyLeaves();
    void showingIsSilent();
    void search_data();
    void search();
    void searchRestylesOnlyOnChange();
    void widthsStay();
    void narrowRow();
    void growsWithItsKeys();
    void enterClicksNothing();
    void accessible();

private:
    static QPushButton *button(const ControllerKeyWid &row)
    {
        return child<QPushButton>(&row, "m_keyNo");
    }
    static QLabel *label(const ControllerKeyWid &row) { return child<QLabel>(&row, "m_gamepad"); }
};

void tst_ControllerKeyWid::names_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("name");

    const std::pair<int, const char *> names[] = {
        {466, "L BUMPER"},      {222, "L TRIGGER"},    {731, "L STICK UP"},
        {475, "L STICK DOWN"},  {474, "L STICK LEFT"}, {730, "L STICK RIGHT"},
        {471, "L STICK PRESS"}, {473, "D PAD UP"},     {729, "D PAD DOWN"},
        {1241, "D PAD LEFT"},   {2265, "D PAD RIGHT"}, {470, "HOME BUTTON"},
        {468, "GUIDE BUTTON"},  {469, "START BUTTON"}, {467, "R BUMPER"},
        {223, "R TRIGGER"},     {464, "X BUTTON"},     {465, "Y BUTTON"},
        {462, "A BUTTON"},      {463, "B BUTTON"},     {733, "R STICK UP"},
        {477, "R STICK DOWN"},  {476, "R STICK LEFT"}, {732, "R STICK RIGHT"},
        {472, "R STICK PRESS"},
    };
    for (const auto &[code, name] : names)
        QTest::newRow(name) << code << QString::fromLatin1(name);
}

void tst_ControllerKeyWid::names()
{
    QFETCH(int, code);
    const ControllerKeyWid row(code, nullptr);
    QTEST(label(row)->text(), "name");
    QCOMPARE(button(row)->text(), QString());
    QVERIFY(row.keys().empty());
}

void tst_ControllerKeyWid::form()
{
    const ControllerKeyWid row(466, nullptr);
    QCOMPARE(row.size(), QSize(244, 29));
    QCOMPARE(row.styleSheet(), QStringLiteral("font-size:12px;"));
    QCOMPARE(row.sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(row.sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(label(row)->styleSheet(),
             QStringLiteral("background:transparent;color:rgb(235,235,235);border:1px solid "
                            "rgb(132,50,155);"));
    QCOMPARE(label(row)->alignment(), Qt::AlignCenter);
    QVERIFY(button(row)->styleSheet().startsWith(
        QStringLiteral("QPushButton{background:rgb(132,50,155);border:none;color:white;"
                       "min-height:25px;}\nQToolTip{ background:rgb(204,0,255);")));
    QCOMPARE(button(row)->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
}

void tst_ControllerKeyWid::keysInTheirOrder()
{
    ControllerKeyWid row(466, nullptr);
    row.show();
    row.setKeys(7, {7, 1, 3});
    QCOMPARE(button(row)->text(), QStringLiteral("VANTRIX 08,\nVANTRIX 02,\nVANTRIX 04"));
    row.setKeys(7, {23});
    QCOMPARE(button(row)->text(), QStringLiteral("VANTRIX 24"));
    row.setKeys(7, {});
    QCOMPARE(button(row)->text(), QString());
}

void tst_ControllerKeyWid::clickGives()
{
    ControllerKeyWid row(466, nullptr);
    row.show();
    row.setKeys(7, {1, 3});
    QStringList order;
    connect(&row, &ControllerKeyWid::sigAddCurrKeyToGamepad, this,
            [&order](ushort code) { order << QStringLiteral("add %1").arg(code); });
    connect(&row, &ControllerKeyWid::sigGameControllerChanged, this,
            [&order](const vantrix_key_mapping &key) {
                order << QStringLiteral("%1 %2").arg(key.type).arg(ushort(key.altCode));
            });
    clickOn(button(row));
    QCOMPARE(order, QStringList({"add 466", "2 466"}));
    QCOMPARE(row.keys(), std::vector<int>({7, 1, 3}));
    QCOMPARE(button(row)->text(), QStringLiteral("VANTRIX 08,\nVANTRIX 02,\nVANTRIX 04"));
}

void tst_ControllerKeyWid::clickTakes()
{
    ControllerKeyWid row(2265, nullptr);
    row.show();
    row.setKeys(7, {7, 1});
    QSignalSpy added(&row, &ControllerKeyWid::sigAddCurrKeyToGamepad);
    QSignalSpy changed(&row, &ControllerKeyWid::sigGameControllerChanged);
    button(row)->setFocus();
    pressKey(button(row), Qt::Key_Space);
    QCOMPARE(added.count(), 0);
    QCOMPARE(changed.count(), 1);
    const auto key = changed.at(0).at(0).value<vantrix_key_mapping>();
    QCOMPARE(int(key.type), 0);
    QCOMPARE(ushort(key.code), ushort(255));
    QCOMPARE(button(row)->text(), QStringLiteral("VANTRIX 02"));
}

void tst_ControllerKeyWid::twiceLeavesTheListAsItWas()
{
    ControllerKeyWid row(466, nullptr);
    row.setKeys(0, {4, 9});
    QSignalSpy changed(&row, &ControllerKeyWid::sigGameControllerChanged);
    button(row)->click();
    button(row)->click();
    QCOMPARE(row.keys(), std::vector<int>({4, 9}));
    QCOMPARE(changed.count(), 2);
    QCOMPARE(changed.at(0).at(0).value<vantrix_key_mapping>(), gameKey(466));
    QCOMPARE(changed.at(1).at(0).value<vantrix_key_mapping>(), clearedKey());
}

void tst_ControllerKeyWid::currentKeyLeaves()
{
    ControllerKeyWid row(466, nullptr);
    row.setKeys(4, {4, 9});
    row.delCurrKey();
    QCOMPARE(row.keys(), std::vector<int>({9}));
    QCOMPARE(button(row)->text(), QStringLiteral("VANTRIX 10"));
    row.delCurrKey();
    QCOMPARE(row.keys(), std::vector<int>({9}));
}

void tst_ControllerKeyWid::showingIsSilent()
{
    ControllerKeyWid row(466, nullptr);
    QSignalSpy added(&row, &ControllerKeyWid::sigAddCurrKeyToGamepad);
    QSignalSpy changed(&row, &ControllerKeyWid::sigGameControllerChanged);
    row.setKeys(4, {4, 9});
    row.delCurrKey();
    row.search(QStringLiteral("l"));
    QCOMPARE(added.count() + changed.count(), 0);
}

void tst_ControllerKeyWid::search_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("found");

    QTest::newRow("nothing") << "" << false;
    QTest::newRow("letter") << "L" << true;
    QTest::newRow("other case") << "l stick" << true;
    QTest::newRow("whole") << "L STICK UP" << true;
    QTest::newRow("longer") << "L STICK UPS" << false;
    QTest::newRow("inside") << "STICK" << false;
    QTest::newRow("none") << "zzz" << false;
}

void tst_ControllerKeyWid::search()
{
    QFETCH(QString, text);
    QFETCH(bool, found);
    ControllerKeyWid row(731, nullptr);
    const QString base = QStringLiteral("background:transparent;border:1px solid rgb(132,50,155);");
    row.search(text);
    QCOMPARE(label(row)->styleSheet(),
             base + (found ? QStringLiteral("color:white;font-weight:bold;")
                           : QStringLiteral("color:rgb(235,235,235);")));
    QVERIFY(!label(row)->isHidden());
    row.search(QString());
    QCOMPARE(label(row)->styleSheet(), base + QStringLiteral("color:rgb(235,235,235);"));
}

void tst_ControllerKeyWid::searchRestylesOnlyOnChange()
{
    class Counter : public QObject
    {
    public:
        int restyled = 0;

    protected:
        bool eventFilter(QObject *, QEvent *event) override
        {
            restyled += event->type() == QEvent::StyleChange;
            return false;
        }
    } counter;
    ControllerKeyWid row(731, nullptr);
    row.show();
    row.search(QString());
    label(row)->installEventFilter(&counter);
    row.search(QStringLiteral("x"));
    row.search(QStringLiteral("xy"));
    QCOMPARE(counter.restyled, 0);
    row.search(QStringLiteral("l"));
    const int once = counter.restyled;
    QVERIFY(once > 0);
    row.search(QStringLiteral("l stick"));
    QCOMPARE(counter.restyled, once);
}

void tst_ControllerKeyWid::widthsStay()
{
    ControllerKeyWid row(732, nullptr);
    row.show();
    const int width = row.minimumSizeHint().width();
    const int ofButton = button(row)->width();
    row.setKeys(0, {0, 27});
    row.search(QStringLiteral("r"));
    QCoreApplication::processEvents();
    QCOMPARE(row.minimumSizeHint().width(), width);
    QCOMPARE(button(row)->width(), ofButton);
    QVERIFY(button(row)->toolTip().isEmpty());
}

void tst_ControllerKeyWid::narrowRow()
{
    ControllerKeyWid row(732, nullptr);
    row.show();
    row.setKeys(0, {0, 27});
    row.resize(140, 40);
    QCoreApplication::processEvents();
    QCOMPARE(button(row)->text(), QStringLiteral("VANTRIX 01,\nVANTRIX 28"));
    QVERIFY(button(row)->font().stretch() < 100);
    for (const char *text : {"", "r"}) {
        row.search(QLatin1String(text));
        QVERIFY(label(row)->font().stretch() < 100);
        QVERIFY(label(row)->width() >= label(row)->sizeHint().width());
    }
    row.resize(300, 40);
    QCoreApplication::processEvents();
    QCOMPARE(label(row)->font().stretch(), 100);
    QCOMPARE(button(row)->font().stretch(), 100);
}

void tst_ControllerKeyWid::growsWithItsKeys()
{
    ControllerKeyWid row(466, nullptr);
    row.show();
    const int empty = row.minimumSizeHint().height();
    std::vector<int> all;
    for (int keyIdx = 0; keyIdx < 24; ++keyIdx)
        all.push_back(keyIdx);
    row.setKeys(0, all);
    QCOMPARE(button(row)->text().count(QLatin1Char('\n')), 23);
    QVERIFY(button(row)->text().endsWith(QStringLiteral("VANTRIX 24")));
    QVERIFY(row.minimumSizeHint().height() >= 24 * button(row)->fontMetrics().lineSpacing());
    row.setKeys(0, {});
    QCOMPARE(row.minimumSizeHint().height(), empty);
}

void tst_ControllerKeyWid::enterClicksNothing()
{
    const ControllerKeyWid row(466, nullptr);
    QVERIFY(!button(row)->autoDefault());
}

void tst_ControllerKeyWid::accessible()
{
    ControllerKeyWid row(466, nullptr);
    QCOMPARE(button(row)->accessibleName(), QStringLiteral("L BUMPER"));
    QCOMPARE(button(row)->accessibleDescription(), QString());
    row.setKeys(7, {7, 1});
    QCOMPARE(button(row)->accessibleDescription(), QStringLiteral("VANTRIX 08, VANTRIX 02"));
}

VANTRIX_TEST_MAIN(tst_ControllerKeyWid)
#include "tst_ControllerKeyWid.moc"
