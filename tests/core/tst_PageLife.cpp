#include "core/PageFixture.h"

#include "advanced/AssignMenuWid.h"
#include "advanced/ReassignDlg.h"
#include "application/AppPathDlg.h"
#include "application/ApplicationBtn.h"
#include "core/BoardFixture.h"
#include "interfaces/ButtonGroupEx.h"
#include "panels/InputWid.h"
#include "panels/Keyboard.h"
#include "panels/SidePanelWid.h"
#include "support/TestMain.h"

#include <QAbstractItemView>
#include <QButtonGroup>
#include <QSemaphore>
#include <QTimer>
#include <QToolButton>

#include <functional>

class tst_PageLife;
using Action = std::function<void(tst_PageLife *)>;
Q_DECLARE_METATYPE(Action)

/// Whatever goes first, and at whatever moment: nothing crashes, and what is left works on.
class tst_PageLife : public QObject, PageFixture
{
    Q_OBJECT

private slots:
    void init() { open(); }
    void cleanup() { close(); }

    void diesInABox_data();
    void diesInABox();
    void diesInARealBox_data();
    void diesInARealBox();
    void diesByItsOwnClick_data();
    void diesByItsOwnClick();
    void diesWhileItCaptures();
    void diesWhileItDetects();
    void mainWidgetGoesFirst();
    void withoutAMainWidget();
    void twoPagesOnOneStore();
    void secondPageTakesTheKeyboardOver();

private:
    QAbstractButton *input(int number) const
    {
        return find<InputWid>("m_inputWid")->findChild<QButtonGroup *>()->button(number);
    }
    void setMode(int mode)
    {
        profile().mode = mode;
        m_page->updateUi(2);
    }
    QAbstractButton *function(int appType, int funcId) const
    {
        const auto sections = m_page->findChildren<ApplicationBtn *>();
        return sections.at(appType)->findChild<ButtonGroupEx *>()->button(funcId);
    }
    void addMacro()
    {
        m_page->slotAddKeyAssignMacro("one");
        input(3)->click();
        key(7)->click();
        m_store->canAddMacro = false;
    }
    void pressMacro() const
    {
        auto *const list = find<QAbstractItemView>("m_macroList");
        QTest::mousePress(list->viewport(), Qt::LeftButton, {},
                          list->visualRect(list->model()->index(0, 0)).center());
    }
    void openDialog(const char *button) const
    {
        clickOn(child<QPushButton>(find<QWidget>("m_assignMenuWid"), QLatin1String(button)));
    }
    void addWays();
};

/// Each way to a box, as a person goes it.
void tst_PageLife::addWays()
{
    QTest::addColumn<Action>("way");
    const auto add = [](const char *name, const Action &way) {
        QTest::newRow(name) << way;
    };
    add("reset", [](tst_PageLife *t) { clickOn(t->find<QPushButton>("m_reset")); });
    add("application at the limit", [](tst_PageLife *t) {
        t->input(5)->click();
        t->key(7)->click();
        t->m_store->canAddMacro = false;
        t->function(0, 3)->click();
    });
    add("application without its path", [](tst_PageLife *t) {
        t->input(5)->click();
        t->key(7)->click();
        t->function(0, 11)->click();
    });
    add("macro at the limit", [](tst_PageLife *t) {
        t->addMacro();
        t->pressMacro();
    });
    add("macro at the limit, by keyboard", [](tst_PageLife *t) {
        t->addMacro();
        auto *const list = t->find<QAbstractItemView>("m_macroList");
        QTest::keyPress(list, Qt::Key_Down);
        QTest::keyPress(list, Qt::Key_Space);
    });
    add("application preset", [](tst_PageLife *t) {
        t->input(10)->click();
        const auto groups =
            t->find<SidePanelWid>("m_sidePanelWid")->findChildren<ButtonGroupEx *>();
        for (ButtonGroupEx *const group : groups) {
            if (QAbstractButton *const preset = group->button(6)) {
                preset->click();
                break;
            }
        }
    });
    add("profile with two paths missing", [](tst_PageLife *t) {
        t->profile().apps[7] = {0, 11, {}};
        t->profile().apps[8] = {1, 6, {}};
        t->m_page->updateUi(2);
    });
    add("profile read anew", [](tst_PageLife *t) {
        t->profile().apps[7] = {0, 11, {}};
        t->profile().apps[8] = {1, 6, {}};
        t->m_page->updateKeyMapping();
    });
    for (const char *const button : {"m_reassignKey", "m_controllerMode", "m_dualActionMode"}) {
        add(button, [button](tst_PageLife *t) {
            t->setMode(1);
            t->key(7)->click();
            t->openDialog(button);
        });
    }
    add("path of an application", [](tst_PageLife *t) {
        t->input(5)->click();
        clickOn(t->find<QPushButton>("m_folderBtn"));
    });
}

void tst_PageLife::diesInABox_data()
{
    addWays();
}

void tst_PageLife::diesInABox()
{
    QFETCH(Action, way);
    int asked = 0;
    Modal::setAnswerer([&](const ModalPrompt &) {
        ++asked;
        delete m_page;
        return QVariant(1);
    });
    way(this);
    QVERIFY(asked > 0);
    QVERIFY(!m_page);
    QVERIFY(!isCapturing());
    QVERIFY(!QWidget::keyboardGrabber());
}

void tst_PageLife::diesInARealBox_data()
{
    addWays();
}

void tst_PageLife::diesInARealBox()
{
    QFETCH(Action, way);
    Modal::setAnswerer(nullptr);
    bool wasOpen = false;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
        if (!QApplication::activeModalWidget())
            return;
        wasOpen = true;
        m_window.reset();
    });
    timer.start(0);
    way(this);
    QTRY_VERIFY(!m_page);
    QVERIFY(wasOpen);
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(!isCapturing());
}

void tst_PageLife::diesByItsOwnClick_data()
{
    QTest::addColumn<Action>("way");
    const auto add = [](const char *name, const Action &way) {
        QTest::newRow(name) << way;
    };
    add("apply, keys", [](tst_PageLife *t) {
        connect(t->m_page, &VantrixMapWid::sigUpdateKeyMapping, t, [t] { delete t->m_page; });
        t->key(7)->click();
        clickOn(t->find<QPushButton>("m_apply"));
    });
    add("apply, macros", [](tst_PageLife *t) {
        connect(t->m_page, &VantrixMapWid::sigUpdateMacroAssign, t, [t] { delete t->m_page; });
        clickOn(t->find<QPushButton>("m_apply"));
    });
    add("reset", [](tst_PageLife *t) {
        t->m_answer = 1;
        connect(t->m_page, &VantrixMapWid::sigSdkRequest, t, [t] { delete t->m_page; });
        clickOn(t->find<QPushButton>("m_reset"));
    });
    add("pressure", [](tst_PageLife *t) {
        connect(t->m_page, &VantrixMapWid::sigSdkRequest, t, [t] { delete t->m_page; });
        clickOn(t->find<QPushButton>("m_off"));
    });
    add("create a macro", [](tst_PageLife *t) {
        connect(t->m_page, &VantrixMapWid::sigSwitchToMacro, t, [t] { delete t->m_page; });
        t->input(3)->click();
        clickOn(t->find<QPushButton>("m_createBtn"));
    });
    add("deleted macro", [](tst_PageLife *t) {
        connect(t->m_page, &VantrixMapWid::sigUpdateKeyMapping, t, [t] { delete t->m_page; });
        t->profile().macros[7] = "one";
        t->m_page->slotDelKeyAssignMacro("one");
    });
    add("macros updated", [](tst_PageLife *t) {
        connect(t->m_page, &VantrixMapWid::sigUpdateKeyMapping, t, [t] { delete t->m_page; });
        t->m_page->slotUpdateMacroAssign();
    });
}

void tst_PageLife::diesByItsOwnClick()
{
    QFETCH(Action, way);
    way(this);
    QVERIFY(!m_page);
}

void tst_PageLife::diesWhileItCaptures()
{
    key(7)->click();
    QVERIFY(isCapturing());
    delete m_page;
    QVERIFY(!isCapturing());
    QVERIFY(!QWidget::keyboardGrabber());
}

void tst_PageLife::diesWhileItDetects()
{
    // One thread for everything, and the page's pictures are converted with its help.
    auto *const pool = QThreadPool::globalInstance();
    const int threads = pool->maxThreadCount();
    pool->waitForDone();
    pool->setMaxThreadCount(1);
    const int written = m_store->setAppPathCount;
    QSemaphore running;
    QSemaphore answers;
    m_store->beforeAppPath = [&] {
        running.release();
        answers.tryAcquire(1, 20000);
    };
    auto *const page = new VantrixMapWid(6, m_window.get());
    const bool allRun = running.tryAcquire(3, 10000);
    delete page;
    const int writtenSince = m_store->setAppPathCount - written;
    answers.release(3);
    pool->waitForDone();
    pool->setMaxThreadCount(threads);
    m_store->beforeAppPath = nullptr;
    QVERIFY(allRun);
    QCOMPARE(writtenSince, 0);
    QCOMPARE(m_store->setAppPathCount, written + 3);
}

void tst_PageLife::mainWidgetGoesFirst()
{
    auto mainWidget = std::make_unique<QWidget>();
    m_environment->mainWidget = mainWidget.get();
    VantrixMapWid page(5);
    page.resize(784, 808);
    page.show();
    page.updateUi(2);
    child<QPushButton>(&page, "key_7")->click();
    mainWidget.reset();
    for (int mode : {1, 0}) {
        profile().mode = mode;
        page.updateUi(2);
        child<QPushButton>(&page, "key_7")->click();
        const auto buttons =
            child<AssignMenuWid>(&page, "m_assignMenuWid")->findChildren<QPushButton *>();
        for (QPushButton *const button : buttons)
            button->click();
        for (int number = 0; number <= 10; ++number)
            child<InputWid>(&page, "m_inputWid")
                ->findChild<QButtonGroup *>()
                ->button(number)
                ->click();
        page.resize(900, 700 + mode);
    }
    page.slotAddKeyAssignMacro("one");
    page.slotRenameKeyAssignMacro("one", "two");
    page.slotDelKeyAssignMacro("two");
    QVERIFY(m_asked.isEmpty());
}

void tst_PageLife::withoutAMainWidget()
{
    m_environment->mainWidget = nullptr;
    auto page = std::make_unique<VantrixMapWid>(5);
    page->resize(784, 808);
    page->show();
    for (int mode : {0, 1}) {
        profile().mode = mode;
        page->updateUi(2);
        for (int number = 0; number <= 10; ++number) {
            auto *const selector = child<InputWid>(page.get(), "m_inputWid");
            selector->findChild<QButtonGroup *>()->button(number)->click();
            for (int index = 0; index < 28; ++index)
                child<QPushButton>(page.get(), QString("key_%1").arg(index))->click();
        }
        // The panel of dual actions has nothing to lie over.
        const auto actions = page->findChildren<QPushButton *>("m_action");
        QCOMPARE(actions.size(), 2);
        for (QPushButton *const action : actions)
            action->click();
        child<QPushButton>(page.get(), "m_clearKey")->click();
        child<QPushButton>(page.get(), "m_reassignKey")->click();
    }
    QCOMPARE(m_asked.size(), 2);
    page.reset();
    QVERIFY(!QWidget::keyboardGrabber());
}

void tst_PageLife::twoPagesOnOneStore()
{
    auto second = std::make_unique<VantrixMapWid>(5, m_window.get());
    second->resize(784, 808);
    second->show();
    second->updateUi(3);
    const auto keyOf = [](const VantrixMapWid *page, int index) {
        return child<QPushButton>(page, QString("key_%1").arg(index));
    };
    key(7)->click();
    keyOf(second.get(), 8)->click();
    QCOMPARE(profile(2).currentKey, 7);
    QCOMPARE(profile(3).currentKey, 8);
    child<QPushButton>(second.get(), "btn_48")->click();
    QCOMPARE(profile(3).keys.at(8), plainKey(5));
    QCOMPARE(profile(2).keys.at(8), plainKey(255));
    QCOMPARE(key(8)->text(), keyOf(m_page, 8)->text());
    second.reset();
    click("btn_49");
    QCOMPARE(profile(2).keys.at(7), plainKey(17));
    // Two pages on one profile: the later one takes the selection along.
    second = std::make_unique<VantrixMapWid>(5, m_window.get());
    second->updateUi(2);
    QCOMPARE(keyOf(second.get(), 7)->text(), QString("N"));
    click("btn_48");
    QCOMPARE(profile(2).keys.at(7), plainKey(17));
    QVERIFY(!key(7)->isChecked());
    delete m_page;
    keyOf(second.get(), 7)->click();
    child<QPushButton>(second.get(), "btn_48")->click();
    QCOMPARE(profile(2).keys.at(7), plainKey(5));
}

void tst_PageLife::secondPageTakesTheKeyboardOver()
{
    VantrixMapWid second(5, m_window.get());
    second.resize(784, 808);
    second.show();
    second.updateUi(3);
    key(7)->click();
    child<QPushButton>(&second, "key_8")->click();
    auto *const its = second.findChild<Keyboard *>();
    QCOMPARE(QWidget::keyboardGrabber(), its);
    QCOMPARE(m_hotKeys->capturing, its);
    // What the first lets go of belongs to the second by now.
    key(7)->click();
    QCOMPARE(QWidget::keyboardGrabber(), its);
    QCOMPARE(m_hotKeys->capturing, its);
    key(7)->click();
    delete m_page;
    QVERIFY(!m_hotKeys->capturing);
}

VANTRIX_TEST_MAIN(tst_PageLife)
#include "tst_PageLife.moc"
