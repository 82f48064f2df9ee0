#include "advanced/AdvAssignWid.h"
#include "advanced/AssignMenuWid.h"
#include "advanced/ReassignDlg.h"
#include "application/ApplicationAdvWid.h"
#include "core/VantrixMapWid.h"
#include "dualaction/DualActionAdvWid.h"
#include "fakes/FakeProfileCfg.h"
#include "fakes/FakeServices.h"
#include "interfaces/Modal.h"
#include "macro/MacroAdvWid.h"
#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QThreadPool>

#include <memory>

/// The menu and its dialog on the page they belong to: what a person does, and what the store
/// holds afterwards.
class tst_AdvancedPage : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void menuComesAndGoes();
    void menuComesBackAfterApplyAndUpdates();
    void standsBesideTheBoard_data();
    void standsBesideTheBoard();
    void storesARecord();
    void storesADualActionAndTakesItOff();
    void storesAHotKeyAndTakesItOff();
    void storesAMacro();
    void dualActionWithoutAFirstActionIsNone();
    void deletedMacroLeavesTheMenu();
    void lostLabelLeavesTheMenu();
    void clearsAndDisables();
    void aRefusedMacroLeavesTheMenuWithTheKey();
    void applyWithoutAPickLeavesALabelledKey();
    void cancelWritesNothing();
    void openingWritesNothing();
    void updateKeepsTheMacros();
    void macrosThatAreToldAgainStandOnce();
    void pageDestroyedWhileTheDialogIsOpen();
    void pageDestroyedByWhatItAsksFor();

private:
    FakeProfileCfg::Profile &profile() { return m_store->profile(0, 0); }
    AssignMenuWid *menu() const { return child<AssignMenuWid>(m_page.get(), "m_assignMenuWid"); }
    QString shown() const { return child<QLabel>(menu(), "m_assignLab")->text(); }
    void selectKey(int keyIdx)
    {
        clickOn(child<QPushButton>(m_page.get(), QString("key_%1").arg(keyIdx)));
    }
    /// Opens the dialog; `user` acts in it before APPLY.
    void reassign(const std::function<void(QObject *dialog)> &user);

    std::unique_ptr<FakeProfileCfg> m_store;
    std::unique_ptr<FakeEnvironment> m_environment;
    std::unique_ptr<FakeParse> m_parse;
    std::unique_ptr<FakeSystemHotKey> m_hotKeys;
    std::unique_ptr<QWidget> m_main;
    std::unique_ptr<VantrixMapWid> m_page;
};

void tst_AdvancedPage::init()
{
    m_store = std::make_unique<FakeProfileCfg>();
    m_environment = std::make_unique<FakeEnvironment>();
    m_parse = std::make_unique<FakeParse>();
    m_hotKeys = std::make_unique<FakeSystemHotKey>();
    m_main = std::make_unique<QWidget>();
    m_main->resize(1280, 800);
    m_environment->mainWidget = m_main.get();
    m_page = std::make_unique<VantrixMapWid>(0, m_main.get());
    m_page->setGeometry(m_main->rect());
    profile().mode = 1;
    m_main->show();
    m_environment->mainWindow = m_main->windowHandle();
    m_page->updateUi(0);
}

void tst_AdvancedPage::cleanup()
{
    Modal::setAnswerer(nullptr);
    m_page.reset();
    m_environment->mainWindow = nullptr;
    m_main.reset();
    QThreadPool::globalInstance()->waitForDone();
    m_hotKeys.reset();
    m_parse.reset();
    m_environment.reset();
    m_store.reset();
}

void tst_AdvancedPage::reassign(const std::function<void(QObject *)> &user)
{
    Modal::setAnswerer([&](const ModalPrompt &prompt) {
        if (prompt.kind == ModalPrompt::Dialog) {
            user(prompt.dialog);
            child<QPushButton>(prompt.dialog, "m_apply")->click();
        }
        return QVariant(1);
    });
    child<QPushButton>(menu(), "m_reassignKey")->click();
    Modal::setAnswerer(nullptr);
}

void tst_AdvancedPage::menuComesAndGoes()
{
    QVERIFY(!menu()->isVisible());
    selectKey(3);
    QVERIFY(menu()->isVisible());
    QCOMPARE(child<QLabel>(menu(), "m_keyLab")->text(), QString("VANTRIX 04"));
    selectKey(3);
    QVERIFY(!menu()->isVisible());
    selectKey(5);
    QVERIFY(menu()->isVisible());
    clickOn(child<QPushButton>(m_page.get(), "m_simple"));
    QVERIFY(!menu()->isVisible());
    clickOn(child<QPushButton>(m_page.get(), "m_advanced"));
    QVERIFY(menu()->isVisible());
}

void tst_AdvancedPage::menuComesBackAfterApplyAndUpdates()
{
    selectKey(3);
    clickOn(child<QPushButton>(m_page.get(), "m_apply"));
    QVERIFY(!menu()->isVisible());
    selectKey(3);
    QVERIFY(menu()->isVisible());
    m_page->updateUi(0);
    QVERIFY(!menu()->isVisible());
    selectKey(3);
    QVERIFY(menu()->isVisible());
    m_page->updateKeyMapping();
    QVERIFY(!menu()->isVisible());
    selectKey(4);
    QVERIFY(menu()->isVisible());
}

void tst_AdvancedPage::standsBesideTheBoard_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("784 x 808") << QSize(784, 808);
    QTest::newRow("1280 x 800") << QSize(1280, 800);
    QTest::newRow("1600 x 1000") << QSize(1600, 1000);
}

void tst_AdvancedPage::standsBesideTheBoard()
{
    QFETCH(QSize, size);
    m_main->resize(size);
    m_page->resize(size);
    QCoreApplication::processEvents();
    selectKey(7);
    QCoreApplication::processEvents();
    const QSize board = child<QWidget>(m_page.get(), "m_assignWid")->size();
    const int height = int(board.height() * 0.35);
    QCOMPARE(menu()->geometry(),
             QRect(int(size.width() * 0.65), int(board.height() * 0.95 - height),
                   int(board.width() * 0.5), height));
    QVERIFY(m_page->rect().contains(menu()->geometry()));
}

void tst_AdvancedPage::storesARecord()
{
    selectKey(11);
    reassign([](QObject *dialog) {
        emit child<AdvAssignWid>(dialog, "m_mouse")->sigKeyChanged(plainKey(496));
    });
    QCOMPARE(profile().keys[11], plainKey(496));
    QVERIFY(profile().dirty);
    QCOMPARE(shown(), QString("LEFT CLICK"));
}

void tst_AdvancedPage::storesADualActionAndTakesItOff()
{
    vantrix_key_mapping dual;
    dual.type = 3;
    dual.digital.firstAction = 5;
    dual.digital.secondAction = 6;
    dual.digital.depth = 30;
    const auto pick = [](const vantrix_key_mapping &key) {
        return [key](QObject *dialog) {
            emit child<DualActionAdvWid>(dialog, "m_dualAction")->sigDualActionChanged(key);
        };
    };
    selectKey(11);
    reassign(pick(dual));
    QCOMPARE(profile().keys[11], dual);
    QCOMPARE(child<QPushButton>(m_page.get(), "key_11")->text(), QString("30%"));
    QVERIFY(child<QLabel>(menu(), "m_dualActionLab")->isVisible());

    dual.digital.firstAction = 0;
    reassign(pick(dual));
    QCOMPARE(profile().keys[11], plainKey(255));
    QCOMPARE(shown(), QString("A"));
    QVERIFY(!child<QLabel>(menu(), "m_dualActionLab")->isVisible());
}

void tst_AdvancedPage::storesAHotKeyAndTakesItOff()
{
    const auto pick = [](const QString &hotKey, const QString &name) {
        return [=](QObject *dialog) {
            emit child<ApplicationAdvWid>(dialog, "m_application")
                ->sigAppHotKeyChanged(hotKey, name);
        };
    };
    selectKey(11);
    reassign(pick("CTRL+S", "Save"));
    QCOMPARE(int(profile().hotKeys.count(11)), 1);
    QCOMPARE(profile().hotKeys[11].hotKey, QString("CTRL+S"));
    QCOMPARE(profile().hotKeys[11].keyName, QString("Save"));
    reassign(pick(QString(), QString()));
    QCOMPARE(int(profile().hotKeys.count(11)), 0);
    QCOMPARE(shown(), QString("A"));
}

void tst_AdvancedPage::storesAMacro()
{
    m_page->slotAddKeyAssignMacro("Jump");
    selectKey(11);
    reassign([](QObject *dialog) {
        emit child<MacroAdvWid>(dialog, "m_macro")->sigMacroAssigned(true, "M1", "Jump", -1);
    });
    QCOMPARE(profile().macros[11], std::string("Jump"));
    QCOMPARE(shown(), QString("M1"));
    selectKey(12);
    selectKey(11);
    reassign([](QObject *dialog) {
        QCOMPARE(child<QStackedWidget>(dialog, "m_stacked")->currentIndex(), 3);
        QStringList checked;
        for (const QPushButton *button :
             child<MacroAdvWid>(dialog, "m_macro")->findChildren<QPushButton *>()) {
            if (button->isChecked())
                checked << button->text();
        }
        QCOMPARE(checked, QStringList{"Jump"});
    });
    QCOMPARE(profile().macros[11], std::string("Jump"));
}

/// The key is disabled, as its button says, and no other key's function comes to it.
void tst_AdvancedPage::dualActionWithoutAFirstActionIsNone()
{
    profile().keys[3] = plainKey(5);
    profile().keys[4].type = 3;
    profile().keys[4].code = 0;
    profile().keys[4].digital.depth = 40;
    m_page->updateUi(0);
    selectKey(3);
    QCOMPARE(shown(), QString("B"));
    selectKey(4);
    QCOMPARE(shown(), QString("DISABLE"));
    reassign([](QObject *) {});
    QCOMPARE(profile().keys[4], plainKey(0));
}

void tst_AdvancedPage::deletedMacroLeavesTheMenu()
{
    m_page->slotAddKeyAssignMacro("Jump");
    selectKey(11);
    reassign([](QObject *dialog) {
        emit child<MacroAdvWid>(dialog, "m_macro")->sigMacroAssigned(true, "M1", "Jump", -1);
    });
    QCOMPARE(shown(), QString("M1"));
    m_page->slotDelKeyAssignMacro("Jump");
    QCOMPARE(shown(), QString("A"));
}

/// A label that lost its assign behind the page's back.
void tst_AdvancedPage::lostLabelLeavesTheMenu()
{
    profile().keys[11].type = 1;
    profile().hotKeys[11] = {0, "F1", "Help"};
    m_page->updateUi(0);
    selectKey(11);
    QCOMPARE(shown(), QString("Help"));
    profile().hotKeys.clear();
    m_page->slotUpdateMacroAssign();
    QCOMPARE(shown(), QString("A"));
}

void tst_AdvancedPage::clearsAndDisables()
{
    profile().keys[11] = plainKey(5);
    m_page->updateUi(0);
    selectKey(11);
    clickOn(child<QPushButton>(menu(), "m_disableKey"));
    QCOMPARE(profile().keys[11], plainKey(0));
    clickOn(child<QPushButton>(menu(), "m_clearKey"));
    QCOMPARE(profile().keys[11], plainKey(255));
    QCOMPARE(shown(), QString("A"));
}

void tst_AdvancedPage::aRefusedMacroLeavesTheMenuWithTheKey()
{
    profile().keys[11] = plainKey(5);
    m_page->updateUi(0);
    m_store->canAddMacro = false;
    selectKey(11);
    reassign([](QObject *dialog) {
        emit child<MacroAdvWid>(dialog, "m_macro")->sigMacroAssigned(true, "M1", "Jump", -1);
    });
    QCOMPARE(shown(), QString("B"));
    reassign([](QObject *dialog) {
        emit child<ApplicationAdvWid>(dialog, "m_application")->sigAppHotKeyChanged("F1", "Help");
    });
    QCOMPARE(shown(), QString("B"));
    QCOMPARE(profile().keys[11], plainKey(5));
}

void tst_AdvancedPage::applyWithoutAPickLeavesALabelledKey()
{
    profile().macros[11] = "Jump";
    profile().hotKeys[12] = {0, "CTRL+S", "Save"};
    profile().shortcuts[13] = 4;
    vantrix_app_assign app;
    app.appType = 0;
    app.funcId = 3;
    profile().apps[14] = app;
    m_page->updateUi(0);
    m_page->slotAddKeyAssignMacro("Jump");
    m_page->slotUpdateMacroAssign();
    m_store->clearLog();
    for (const int keyIdx : {11, 12, 13, 14}) {
        selectKey(keyIdx);
        reassign([](QObject *) {});
    }
    QCOMPARE(m_store->writes().filter(QRegularExpression("^(set|del)(?!CurrentKey)")),
             QStringList());
}

void tst_AdvancedPage::cancelWritesNothing()
{
    selectKey(11);
    m_store->clearLog();
    Modal::setAnswerer([](const ModalPrompt &prompt) {
        emit child<AdvAssignWid>(prompt.dialog, "m_mouse")->sigKeyChanged(plainKey(496));
        child<QPushButton>(prompt.dialog, "m_cancel")->click();
        return QVariant(0);
    });
    for (const char *command : {"m_reassignKey", "m_controllerMode", "m_dualActionMode"})
        child<QPushButton>(menu(), command)->click();
    QCOMPARE(m_store->writes(), QStringList());
}

void tst_AdvancedPage::openingWritesNothing()
{
    vantrix_key_mapping dual;
    dual.type = 3;
    dual.digital.firstAction = 5;
    dual.digital.depth = 30;
    const QVector<vantrix_key_mapping> kinds = {
        plainKey(5),    plainKey(496), plainKey(240),  gameKey(462), dual,
        plainKey(312),  plainKey(385), plainKey(1536), plainKey(0),  plainKey(255),
        plainKey(2816), plainKey(196), plainKey(197),
    };
    for (int i = 0; i < kinds.size(); ++i)
        profile().keys[std::size_t(i)] = kinds.at(i);
    m_page->updateUi(0);
    Modal::setAnswerer([](const ModalPrompt &prompt) {
        for (int id = 0; id < 10; ++id)
            child<QPushButton>(prompt.dialog, QString("input_%1").arg(id))->click();
        child<QPushButton>(prompt.dialog, "m_cancel")->click();
        return QVariant(0);
    });
    for (int keyIdx = 0; keyIdx < kinds.size(); ++keyIdx) {
        selectKey(keyIdx);
        m_store->clearLog();
        child<QPushButton>(menu(), "m_reassignKey")->click();
        QCOMPARE(m_store->writes(), QStringList());
    }
}

void tst_AdvancedPage::updateKeepsTheMacros()
{
    m_page->slotAddKeyAssignMacro("Jump");
    m_page->updateKeyMapping();
    const auto *const macros =
        child<MacroAdvWid>(m_main->findChild<ReassignDlg *>("m_reassignDlg"), "m_macro");
    const auto has = [macros] {
        const auto buttons = macros->findChildren<QPushButton *>();
        return std::any_of(buttons.begin(), buttons.end(),
                           [](const QPushButton *button) { return button->text() == "Jump"; });
    };
    QVERIFY(has());
    m_page->updateUi(1);
    QTRY_VERIFY(!has());
}

/// A host shows its profile anew, say after an undo, and tells its macros with it.
void tst_AdvancedPage::macrosThatAreToldAgainStandOnce()
{
    for (int i = 0; i < 3; ++i) {
        m_page->updateUi(0);
        m_page->slotAddKeyAssignMacro("Jump");
        m_page->slotAddKeyAssignMacro("Run");
    }
    profile().macros[11] = "Run";
    m_page->updateKeyMapping();
    selectKey(11);
    reassign([](QObject *dialog) {
        QStringList macros;
        for (const QPushButton *button :
             child<MacroAdvWid>(dialog, "m_macro")->findChildren<QPushButton *>()) {
            if (button->text() == "Jump" || button->text() == "Run")
                macros << button->text() + (button->isChecked() ? "*" : "");
        }
        QCOMPARE(macros, (QStringList{"Jump", "Run*"}));
    });
}

void tst_AdvancedPage::pageDestroyedWhileTheDialogIsOpen()
{
    selectKey(3);
    QTimer::singleShot(0, this, [this] { m_page.reset(); });
    child<QPushButton>(menu(), "m_reassignKey")->click();
    QVERIFY(!m_page);
    QVERIFY(!m_main->findChild<ReassignDlg *>());
}

void tst_AdvancedPage::pageDestroyedByWhatItAsksFor()
{
    connect(m_page.get(), &VantrixMapWid::sigSwitchToMacro, this, [this] { m_page.reset(); });
    selectKey(3);
    QTimer::singleShot(0, this, [this] {
        emit child<MacroAdvWid>(m_main->findChild<ReassignDlg *>("m_reassignDlg"), "m_macro")
            ->sigCreateMacro();
    });
    child<QPushButton>(menu(), "m_reassignKey")->click();
    QVERIFY(!m_page);
}

VANTRIX_TEST_MAIN(tst_AdvancedPage)
#include "tst_AdvancedPage.moc"
