#include "core/PageFixture.h"

#include "core/BoardFixture.h"
#include "panels/InputWid.h"
#include "support/TestMain.h"

#include <QButtonGroup>
#include <QImage>

#include <cstring>

/// The whole page shows what the store holds, in both modes and with every input: it writes
/// nothing by that, and nothing that a store can hold harms it.
class tst_PageShowing : public QObject, PageFixture
{
    Q_OBJECT

private slots:
    void init() { open(); }
    void cleanup() { close(); }

    void selectingWritesOnlyTheSelection_data() { addModes(); }
    void selectingWritesOnlyTheSelection();
    void switchingWritesOnlyTheSwitch();
    void openingTheDialogWritesNothing();
    void resizingAndHidingWriteNothing();
    void anyBytes_data() { addModes(); }
    void anyBytes();
    void everyTypeAndCode();
    void anyExtras();

private:
    static void addModes();
    void assignEverything();
    QAbstractButton *input(int number) const
    {
        return find<InputWid>("m_inputWid")->findChild<QButtonGroup *>()->button(number);
    }
    void show(int mode, int inputNumber)
    {
        profile().mode = mode;
        profile().input = inputNumber;
        m_page->updateUi(2);
        m_store->clearLog();
    }
    void selectAll() const
    {
        for (int index = 0; index < 28; ++index)
            key(index)->click();
    }
};

void tst_PageShowing::addModes()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("simple") << 0;
    QTest::newRow("advanced") << 1;
}

/// One key of each kind that there is, and some more of those that differ.
void tst_PageShowing::assignEverything()
{
    auto &stored = profile();
    const ushort codes[] = {0,   4,   100,  240,  255,  312,  385,  386,  403,  481, 488,
                            496, 500, 1282, 1536, 1559, 1570, 1571, 0xC1, 0xC5, 116, 225};
    for (int index = 0; index < 22; ++index)
        stored.keys[std::size_t(index)] = plainKey(codes[index]);
    stored.keys[20] = gameKey(474);
    stored.keys[21] = gameKey(2265);
    stored.keys[22] = dualKey(4, 481, 0, 50);
    stored.keys[23] = dualKey(240, 0, 0, 10);
    for (int index : {24, 25, 26, 27, 18, 19})
        stored.keys[std::size_t(index)] = plainKey(255);
    stored.apps[24] = {0, 3, {}};
    stored.apps[18] = {2, 4, {}};
    stored.hotKeys[25] = {0, "CTRL+S", "Save"};
    stored.shortcuts[26] = 16;
    stored.extended[27].code = 2816;
    stored.macros[19] = "one";
    m_page->slotAddKeyAssignMacro("one");
}

void tst_PageShowing::selectingWritesOnlyTheSelection()
{
    QFETCH(int, mode);
    assignEverything();
    for (int inputNumber = 0; inputNumber <= 12; ++inputNumber) {
        show(mode, inputNumber);
        m_page->slotAddKeyAssignMacro("one");
        m_page->slotUpdateWinShortcutKeys();
        QCOMPARE(m_store->writes(), QStringList());
        const FakeProfileCfg::Profile before = profile();
        for (int index = 0; index < 28; ++index) {
            m_store->clearLog();
            key(index)->click();
            QCoreApplication::processEvents();
            QCOMPARE(m_store->writes(), QStringList({QString("setCurrentKey 5 2 %1").arg(index)}));
        }
        m_store->clearLog();
        key(27)->click();
        QCOMPARE(m_store->writes(), QStringList({"clearCurrentKey 5 2"}));
        QVERIFY(profile().keys == before.keys);
        QVERIFY(profile().apps == before.apps);
        QCOMPARE(profile().dirty, false);
    }
    QVERIFY(m_asked.isEmpty());
}

void tst_PageShowing::switchingWritesOnlyTheSwitch()
{
    assignEverything();
    for (int index = 0; index < 28; ++index) {
        show(0, 0);
        key(index)->click();
        for (int number = 1; number <= 10; ++number) {
            m_store->clearLog();
            input(number)->click();
            QCOMPARE(m_store->writes(), QStringList({QString("setInput 5 2 %1").arg(number)}));
        }
        m_store->clearLog();
        click("m_advanced");
        QCOMPARE(m_store->writes(), QStringList({"setMode 5 2 1"}));
        m_store->clearLog();
        click("m_simple");
        QCOMPARE(m_store->writes(), QStringList({"setMode 5 2 0"}));
    }
    QCOMPARE(profile().dirty, false);
}

void tst_PageShowing::openingTheDialogWritesNothing()
{
    assignEverything();
    show(1, 0);
    for (int index = 0; index < 28; ++index) {
        key(index)->click();
        m_store->clearLog();
        for (const char *const button : {"m_reassignKey", "m_controllerMode", "m_dualActionMode"})
            click(button);
        QCOMPARE(m_store->writes(), QStringList());
    }
    QCOMPARE(m_asked.size(), 28 * 3);
    QCOMPARE(profile().dirty, false);
}

void tst_PageShowing::resizingAndHidingWriteNothing()
{
    assignEverything();
    for (int mode : {0, 1}) {
        show(mode, 0);
        key(7)->click();
        m_store->clearLog();
        m_page->resize(1500, 900);
        m_page->resize(400, 300);
        m_page->hide();
        m_page->showMapping(false);
        m_page->showMapping(true);
        m_page->show();
        QCoreApplication::processEvents();
        QCOMPARE(m_store->writes(), QStringList());
    }
}

void tst_PageShowing::anyBytes()
{
    QFETCH(int, mode);
    quint32 seed = 4711u + quint32(mode);
    const auto random = [&seed] {
        seed = seed * 1664525 + 1013904223;
        return uchar(seed >> 24);
    };
    for (int round = 0; round < 33; ++round) {
        for (vantrix_key_mapping &stored : profile().keys) {
            uchar bytes[sizeof stored];
            for (uchar &byte : bytes)
                byte = random();
            // The types that mean something shall not be rare.
            bytes[0] = round % 2 ? bytes[0] % 5 : bytes[0];
            std::memcpy(static_cast<void *>(&stored), bytes, sizeof stored);
        }
        const auto before = profile().keys;
        show(mode, round % 11);
        selectAll();
        if (mode == 1)
            click("m_reassignKey");
        else
            input(random() % 11)->click();
        if (round % 4 == 0)
            QVERIFY(!m_page->grab().isNull());
        QVERIFY(profile().keys == before);
    }
}

void tst_PageShowing::everyTypeAndCode()
{
    const ushort codes[] = {0,    3,    4,    99,   100,  103,   116,   191,   192,  193,
                            197,  222,  231,  240,  246,  247,   255,   256,   312,  384,
                            385,  403,  404,  454,  477,  481,   500,   501,   1241, 1280,
                            1283, 1535, 1536, 1571, 1572, 32767, 32768, 65280, 65535};
    for (int type : {0, 1, 2, 3, 4, 255}) {
        std::size_t place = 0;
        for (const ushort code : codes) {
            vantrix_key_mapping &stored = profile().keys[place++ % 28];
            stored.type = quint8(type);
            stored.code = code;
            stored.altCode = code;
            stored.digital = {code, code, quint8(type), 255};
        }
        for (int mode : {0, 1}) {
            show(mode, type % 11);
            selectAll();
            QEvent enter(QEvent::Enter);
            for (int index = 0; index < 28; ++index)
                QCoreApplication::sendEvent(key(index), &enter);
            QVERIFY(!m_page->grab().isNull());
        }
    }
}

void tst_PageShowing::anyExtras()
{
    auto &stored = profile();
    for (int index = 0; index < 256; ++index) {
        const auto place = uchar(index);
        vantrix_app_assign app;
        app.appType = index % 7 - 3;
        app.funcId = index - 100;
        app.macro.count = place;
        if (index % 3 == 0)
            stored.apps[place] = app;
        if (index % 3 == 1)
            stored.hotKeys[place] = {place, QString(index, QChar(0x4e00)), QString(index, '<')};
        stored.shortcuts[place] = uchar(255 - index);
        if (index % 2)
            stored.extended[place].code = quint16(index * 257);
    }
    stored.currentKey = -1;
    for (int mode : {0, 1}) {
        for (int inputNumber : {-1, 0, 5, 6, 10, 11, 1000}) {
            show(mode, inputNumber);
            selectAll();
            m_page->updateKeyMapping();
            m_page->slotUpdateMacroAssign();
        }
    }
    for (int odd : {-1, 2, 255}) {
        show(odd, 0);
        selectAll();
        QVERIFY(!m_page->grab().isNull());
    }
}

VANTRIX_TEST_MAIN(tst_PageShowing)
#include "tst_PageShowing.moc"
