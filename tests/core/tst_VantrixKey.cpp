#include "core/VantrixKey.h"

#include "core/BoardFixture.h"
#include "core/DualActionTipWid.h"
#include "support/TestMain.h"

#include <QLabel>

/// Sheet of a state's colours: background with alpha 50, border of the colour.
static QString colors(const QString &rgb)
{
    return "QPushButton{background:#32" + rgb + ";border-radius:5px;border:2px solid #ff" + rgb +
           ";min-height:1px;}:hover{background:rgba(255,255,255,125)}"
           ":checked{background:rgb(255,255,255,50);border:2px solid white;}";
}

class tst_VantrixKey : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_page = std::make_unique<QWidget>();
        m_page->resize(600, 600);
        auto *const board = new QWidget(m_page.get());
        board->setGeometry(40, 10, 400, 400);
        auto *const keys = new QWidget(board);
        keys->setGeometry(20, 30, 300, 300);
        m_key = new VantrixKey(keys);
        m_key->setObjectName("key_0");
        m_key->move(5, 7);
        m_key->fixSize(80, 60);
        m_page->show();
    }
    void cleanup() { m_page.reset(); }

    void fresh();
    void rendering_data();
    void rendering();
    void wrapsBelow24Only();
    void infoOfTheCompanionKey();
    void dualAction();
    void dualActionWithoutFirstAction();
    void stagedDualAction();
    void macro();
    void hotKey();
    void appFunction_data();
    void appFunction();
    void appFunctionTips_data();
    void appFunctionTips();
    void iconGoesWithItsRule();
    void labelToolTipStays();
    void toolTipShowsNamesAsTheyAre();
    void labelAndItsEnd();
    void cutTextHasToolTip();
    void sameSheetIsNotSetAgain();
    void updateStylesOnce();
    void fixedSizeSurvivesStyles();
    void tipShowsBesideADualActionKey();
    void tipFollowsTheKey();
    void ampersandsOfNames();
    void tipMayGoFirst();

private:
    DualActionTipWid *tip() const { return m_page->findChild<DualActionTipWid *>("m_tip"); }
    void enter() const
    {
        QEvent event(QEvent::Enter);
        QCoreApplication::sendEvent(m_key, &event);
    }
    void leave() const
    {
        QEvent event(QEvent::Leave);
        QCoreApplication::sendEvent(m_key, &event);
    }

    FakeEnvironment m_environment;
    std::unique_ptr<QWidget> m_page;
    VantrixKey *m_key = nullptr;
};

void tst_VantrixKey::fresh()
{
    QVERIFY(m_key->isCheckable());
    QCOMPARE(m_key->mapping(), vantrix_key_mapping());
    QVERIFY(tip());
    QVERIFY(!tip()->isVisible());
    QCOMPARE(tip()->parentWidget(), m_page.get());
}

void tst_VantrixKey::rendering_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<vantrix_key_mapping>("record");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("rgb");
    QTest::addColumn<bool>("hasIcon");
    QTest::newRow("keyboard") << 0 << plainKey(5) << "B"
                              << "fd00fd" << false;
    QTest::newRow("mouse") << 0 << plainKey(481) << "CURSOR\nUP"
                           << "f6941d" << false;
    QTest::newRow("media") << 0 << plainKey(244) << ""
                           << "0054a6" << true;
    QTest::newRow("game") << 0 << gameKey(474) << ""
                          << "00aeee" << true;
    QTest::newRow("presso") << 0 << plainKey(312) << "CALIBRATE"
                            << "0000ff" << false;
    QTest::newRow("disabled") << 0 << plainKey(0) << "DISABLE"
                              << "ff0000" << false;
    QTest::newRow("unassigned") << 11 << plainKey(255) << "A"
                                << "00ff00" << false;
    QTest::newRow("default code") << 11 << plainKey(4) << "A"
                                  << "00ff00" << false;
}

void tst_VantrixKey::rendering()
{
    QFETCH(int, index);
    QFETCH(vantrix_key_mapping, record);
    QFETCH(QString, text);
    QFETCH(QString, rgb);
    QFETCH(bool, hasIcon);
    m_key->fixSize(200, 60);
    m_key->setMapping(ushort(index), record);
    QCOMPARE(m_key->mapping(), record);
    QCOMPARE(m_key->text(), text);
    QVERIFY2(m_key->styleSheet().startsWith(colors(rgb)), qPrintable(m_key->styleSheet()));
    QVERIFY(
        m_key->styleSheet().endsWith("qproperty-iconSize:30px;text-align:top;font-size:11px;}") ||
        m_key->styleSheet().endsWith("qproperty-iconSize:40px;text-align:top;font-size:11px;}"));
    QCOMPARE(!m_key->icon().isNull(), hasIcon);
    QCOMPARE(m_key->accessibleName().isEmpty(), !hasIcon);
}

void tst_VantrixKey::wrapsBelow24Only()
{
    m_key->fixSize(300, 60);
    m_key->setMapping(23, plainKey(481));
    QCOMPARE(m_key->text(), QString("CURSOR\nUP"));
    m_key->setMapping(24, plainKey(481));
    QCOMPARE(m_key->text(), QString("CURSOR UP"));
}

void tst_VantrixKey::infoOfTheCompanionKey()
{
    m_key->setInfo("NORTH");
    m_key->setMapping(0, plainKey(0xC5));
    QCOMPARE(m_key->text(), QString("NORTH"));
    m_key->setInfo("");
    m_key->setMapping(0, plainKey(0xC5));
    QCOMPARE(m_key->text(), QString());
}

void tst_VantrixKey::dualAction()
{
    m_key->setMapping(2, dualKey(4, 5, 0, 50));
    QCOMPARE(m_key->text(), QString("50%"));
    QCOMPARE(m_key->styleSheet(), colors("3cb878"));
    m_key->setDepth(70);
    QCOMPARE(m_key->text(), QString("70%"));
    QCOMPARE(int(m_key->mapping().digital.depth), 70);
}

void tst_VantrixKey::dualActionWithoutFirstAction()
{
    m_key->setMapping(2, dualKey(0, 5, 0, 50));
    QVERIFY(m_key->text() != QString("50%"));
    enter();
    QVERIFY(!tip()->isVisible());
}

void tst_VantrixKey::stagedDualAction()
{
    vantrix_key_mapping record = plainKey(5);
    record.digital = {5, 6, 0, 40};
    m_key->showStagedDualAction(2, record);
    QCOMPARE(m_key->mapping(), record);
    QCOMPARE(m_key->text(), QString("B"));
    QVERIFY(m_key->styleSheet().startsWith(colors("fd00fd")));
    QVERIFY(m_key->styleSheet().endsWith(colors("3cb878")));
}

void tst_VantrixKey::macro()
{
    m_key->setMapping(2, plainKey(255));
    m_key->showMacro("M3", "Build all");
    QCOMPARE(int(m_key->mapping().type), 1);
    QCOMPARE(ushort(m_key->mapping().code), ushort(255));
    QCOMPARE(m_key->text(), QString("M3"));
    QCOMPARE(m_key->toolTip(), QString("Build all"));
    QCOMPARE(m_key->styleSheet(), colors("d50681"));
}

void tst_VantrixKey::hotKey()
{
    m_key->showHotKey("CTRL+S", "Save");
    QCOMPARE(int(m_key->mapping().type), 1);
    QCOMPARE(m_key->text(), QString("Save"));
    QCOMPARE(m_key->toolTip(), QString("Save (CTRL+S) "));
    QCOMPARE(m_key->styleSheet(), colors("ffff00"));
}

void tst_VantrixKey::appFunction_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("function");
    QTest::addColumn<bool>("isEmpty");
    QTest::newRow("first") << 0 << 0 << false;
    QTest::newRow("last") << 2 << 18 << false;
    QTest::newRow("unknown type") << 3 << 0 << true;
}

void tst_VantrixKey::appFunction()
{
    QFETCH(int, type);
    QFETCH(int, function);
    QFETCH(bool, isEmpty);
    m_key->fixSize(400, 60);
    m_key->showAppFunction(type, function);
    QCOMPARE(m_key->text().isEmpty(), isEmpty);
    QCOMPARE(m_key->toolTip().isEmpty(), isEmpty);
    QCOMPARE(int(m_key->mapping().type), 1);
    QCOMPARE(m_key->styleSheet(), colors("ffff00"));
}

void tst_VantrixKey::appFunctionTips_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("function");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("toolTip");
    QTest::newRow("with a hint") << 0 << 0 << "A1"
                                 << "Play Action 1. Please assign F2 to an Action in Photoshop";
    QTest::newRow("with an empty hint") << 0 << 8 << "DODGE"
                                        << "DODGE";
    QTest::newRow("without a hint") << 1 << 17 << "TEXT"
                                    << "TEXT";
    QTest::newRow("unknown function") << 2 << 19 << "UNKNOWN"
                                      << "UNKNOWN";
}

void tst_VantrixKey::appFunctionTips()
{
    QFETCH(int, type);
    QFETCH(int, function);
    QFETCH(QString, text);
    QFETCH(QString, toolTip);
    m_key->fixSize(400, 60);
    m_key->showAppFunction(type, function);
    QCOMPARE(m_key->text(), text);
    QCOMPARE(m_key->toolTip(), toolTip);
}

void tst_VantrixKey::iconGoesWithItsRule()
{
    m_key->setMapping(0, plainKey(244));
    QVERIFY(!m_key->icon().isNull());
    m_key->showMacro("M1", "");
    QVERIFY(m_key->icon().isNull());
    m_key->setMapping(0, gameKey(474));
    QVERIFY(!m_key->icon().isNull());
    m_key->setMapping(0, dualKey(4, 5, 0, 50));
    QVERIFY(m_key->icon().isNull());
    m_key->setMapping(0, plainKey(244));
    m_key->setMapping(0, plainKey(5));
    QVERIFY(m_key->icon().isNull());
}

void tst_VantrixKey::labelToolTipStays()
{
    m_key->showMacro("M3", "Build all");
    m_key->setMapping(0, plainKey(5));
    QCOMPARE(m_key->toolTip(), QString("Build all"));
    m_key->fixSize(90, 60);
    QCOMPARE(m_key->toolTip(), QString("Build all"));
    m_key->showHotKey("F1", "Help");
    QCOMPARE(m_key->toolTip(), QString("Help (F1) "));
}

void tst_VantrixKey::toolTipShowsNamesAsTheyAre()
{
    m_key->showMacro("M3", "Copy & Paste > \"x\"");
    QCOMPARE(m_key->toolTip(), QString("Copy & Paste > \"x\""));
    m_key->showMacro("M3", "a<b>c");
    QCOMPARE(m_key->toolTip(), QString("<span>a&lt;b&gt;c</span>"));
    m_key->fixSize(90, 60);
    QCOMPARE(m_key->toolTip(), QString("<span>a&lt;b&gt;c</span>"));
    QCOMPARE(m_key->label().toolTip, QString("a<b>c"));
    m_key->setLabelToolTip("<i>");
    QCOMPARE(m_key->toolTip(), QString("<span>&lt;i&gt;</span>"));
    m_key->showHotKey("CTRL+B", "<B>BOLD</B>");
    QCOMPARE(m_key->toolTip(), QString("<span>&lt;B&gt;BOLD&lt;/B&gt; (CTRL+B) </span>"));
}

void tst_VantrixKey::labelAndItsEnd()
{
    QCOMPARE(m_key->label().state, -1);
    vantrix_key_mapping pending = plainKey(5);
    pending.digital = {5, 6, 0, 40};
    for (int way = 0; way < 3; ++way) {
        m_key->showMacro("M3", "Build all");
        QCOMPARE(m_key->label().state, 3);
        QCOMPARE(m_key->label().text, QString("M3"));
        QCOMPARE(m_key->label().toolTip, QString("Build all"));
        if (way == 0)
            m_key->setMapping(0, plainKey(5));
        else if (way == 1)
            m_key->showDualAction(dualKey(4, 5, 0, 50));
        else
            m_key->showStagedDualAction(0, pending);
        QCOMPARE(m_key->label().state, -1);
    }
    m_key->showHotKey("F1", "Help");
    QCOMPARE(m_key->label().state, 5);
}

void tst_VantrixKey::cutTextHasToolTip()
{
    m_key->fixSize(30, 60);
    m_key->setMapping(24, plainKey(481));
    QVERIFY(m_key->text() != QString("CURSOR UP"));
    QCOMPARE(m_key->toolTip(), QString("CURSOR UP"));
    QCOMPARE(m_key->fullText(), QString("CURSOR UP"));
    m_key->fixSize(300, 60);
    QCOMPARE(m_key->text(), QString("CURSOR UP"));
    QCOMPARE(m_key->toolTip(), QString());
}

void tst_VantrixKey::sameSheetIsNotSetAgain()
{
    m_key->setMapping(0, plainKey(5));
    const int before = m_key->styleCount();
    m_key->setMapping(0, plainKey(6));
    m_key->setMapping(0, plainKey(5));
    QCOMPARE(m_key->styleCount(), before);
}

void tst_VantrixKey::updateStylesOnce()
{
    m_key->showMacro("M1", "one");
    const int before = m_key->styleCount();
    m_key->beginUpdate();
    m_key->setMapping(0, plainKey(255));
    m_key->showMacro("M1", "one");
    m_key->endUpdate();
    QCOMPARE(m_key->styleCount(), before);
    m_key->beginUpdate();
    m_key->setMapping(0, plainKey(244));
    QVERIFY(m_key->icon().isNull());
    m_key->endUpdate();
    QCOMPARE(m_key->styleCount(), before + 1);
    QVERIFY(!m_key->icon().isNull());
}

void tst_VantrixKey::fixedSizeSurvivesStyles()
{
    m_key->fixSize(41, 37);
    for (const ushort code : {ushort(5), ushort(244), ushort(0)}) {
        m_key->setMapping(0, plainKey(code));
        QCoreApplication::processEvents();
        QCOMPARE(m_key->minimumSize(), QSize(41, 37));
        QCOMPARE(m_key->maximumSize(), QSize(41, 37));
    }
}

void tst_VantrixKey::tipShowsBesideADualActionKey()
{
    m_key->setMapping(2, dualKey(0x36, 0x24, 0, 50));
    enter();
    QVERIFY(tip()->isVisible());
    QCOMPARE(tip()->pos(), QPoint(5 + 20 + 40 + 80, 7 + 30 + 10));
    QCOMPARE(tip()->size(), QSize(137, 51));
    QCOMPARE(child<QLabel>(tip(), "m_action1")->text(), QString("  ACTION1 - &lt;\n,"));
    QCOMPARE(child<QLabel>(tip(), "m_action2")->text(), QString("  ACTION2 - 7\n&"));
    leave();
    QVERIFY(!tip()->isVisible());
    enter();
    m_key->setMapping(2, plainKey(5));
    enter();
    QVERIFY(!tip()->isVisible());
}

void tst_VantrixKey::tipFollowsTheKey()
{
    m_key->setMapping(2, dualKey(4, 5, 50));
    enter();
    m_key->setMapping(2, dualKey(4, 6, 50));
    QVERIFY(tip()->isVisible());
    QCOMPARE(child<QLabel>(tip(), "m_action2")->text(), QString("  ACTION2 - C"));
    m_key->setMapping(2, plainKey(5));
    QVERIFY(!tip()->isVisible());
    m_key->setMapping(2, dualKey(4, 5, 50));
    QVERIFY(!tip()->isVisible());
    enter();
    m_key->showMacro("M1", "one");
    QVERIFY(!tip()->isVisible());
}

void tst_VantrixKey::ampersandsOfNames()
{
    m_key->setMapping(2, plainKey(255));
    m_key->showHotKey("F1", "A&B");
    QCOMPARE(m_key->text(), QString("A&&B"));
    QCOMPARE(m_key->fullText(), QString("A&B"));
    QVERIFY(m_key->shortcut().isEmpty());
    m_key->setMapping(2, plainKey(0x24));
    QCOMPARE(m_key->text(), QString("7\n&&"));
    m_key->setInfo("C&D");
    m_key->setMapping(2, plainKey(0xC5));
    QCOMPARE(m_key->text(), QString("C&&D"));
}

void tst_VantrixKey::tipMayGoFirst()
{
    m_key->setMapping(2, dualKey(4, 5, 0, 50));
    delete tip();
    enter();
    leave();
    delete m_key;
    QVERIFY(!tip());
}

VANTRIX_TEST_MAIN(tst_VantrixKey)
#include "tst_VantrixKey.moc"
