#include "advanced/AdvAssignWid.h"
#include "advanced/GameControllerAdvWid.h"
#include "advanced/KeyboardAdvWid.h"
#include "advanced/ReassignDlg.h"
#include "application/ApplicationAdvWid.h"
#include "dualaction/DualActionAdvWid.h"
#include "fakes/FakeProfileCfg.h"
#include "fakes/FakeServices.h"
#include "interfaces/Modal.h"
#include "macro/MacroAdvWid.h"
#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QWindow>

#include <memory>

namespace {

vantrix_key_mapping dualKey(ushort first, ushort second)
{
    vantrix_key_mapping key;
    key.type = 3;
    key.digital.firstAction = first;
    key.digital.secondAction = second;
    key.digital.depth = 40;
    return key;
}

vantrix_key_mapping labelKey()
{
    vantrix_key_mapping key;
    key.type = 1;
    return key;
}

} // namespace

class tst_ReassignDlg : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { registerRecordTypes(); }
    void init();
    void cleanup();

    void hasItsTexts();
    void listsTheInputs();
    void hasAPageForEachInput();
    void titlesThePickers();
    void opensOnAPage_data();
    void opensOnAPage();
    void upperKeysHaveNoModes();
    void clickChangesThePage();
    void dualActionHasNoSearch();
    void controllerPageReadsTheStore();
    void openingTellsThePages();
    void lastPickWins_data();
    void lastPickWins();
    void changingThePageKeepsThePick();
    void takenBackMacroIsSent();
    void takenBackHotKeyIsSent();
    void picksTellThePages();
    void applyWithoutAPick();
    void openingForgetsThePick();
    void leavingSendsNothing_data();
    void leavingSendsNothing();
    void newMacroClosesAndDropsThePick();
    void searchReachesThePages();
    void enterInTheSearchDoesNotApply();
    void enterOnAButtonPressesIt();
    void anotherProfileEmptiesTheMacros();
    void forwardsMacros();
    void abandonedMacroIsNotChecked();
    void coversTheMainWindow_data();
    void coversTheMainWindow();
    void followsTheMainWindow();
    void centresItsPanel_data();
    void centresItsPanel();
    void paintsTheVeil();
    void runsModally();
    void tabOrderFollowsReading();
    void destroyedWhileOpen();
    void destroyedByItsPick();

private:
    /// What a page says when the user picks there, by name.
    void pick(const QString &kind);
    void open(int keyIdx, int state, const vantrix_key_mapping &key,
              const std::function<void()> &user);
    QPushButton *button(const char *name) const { return child<QPushButton>(m_dialog.get(), name); }
    QAbstractButton *input(int id) const
    {
        return child<QButtonGroup>(m_dialog.get(), QString())->button(id);
    }
    int page() const { return child<QStackedWidget>(m_dialog.get(), "m_stacked")->currentIndex(); }

    std::unique_ptr<FakeProfileCfg> m_store;
    std::unique_ptr<FakeEnvironment> m_environment;
    std::unique_ptr<QWidget> m_main;
    std::unique_ptr<ReassignDlg> m_dialog;
    QStringList m_sent; ///< what left the dialog, in order
};

void tst_ReassignDlg::init()
{
    m_store = std::make_unique<FakeProfileCfg>();
    m_environment = std::make_unique<FakeEnvironment>();
    m_main = std::make_unique<QWidget>();
    m_main->setGeometry(40, 30, 1000, 700);
    m_main->show();
    m_environment->mainWidget = m_main.get();
    m_environment->mainWindow = m_main->windowHandle();
    m_dialog = std::make_unique<ReassignDlg>(m_main.get());
    m_sent.clear();
    connect(m_dialog.get(), &ReassignDlg::sigVantrixKeyAssigned, this,
            [this](vantrix_key_mapping key) {
                m_sent << QString("record %1 %2 %3 %4")
                              .arg(key.type)
                              .arg(ushort(key.code))
                              .arg(ushort(key.altCode))
                              .arg(ushort(key.digital.firstAction));
            });
    connect(m_dialog.get(), &ReassignDlg::sigMacroAssigned, this,
            [this](bool bSelected, const QString &no, const QString &name, int shortcut) {
                m_sent << QString("macro %1 %2 %3 %4").arg(bSelected).arg(no, name).arg(shortcut);
            });
    connect(m_dialog.get(), &ReassignDlg::sigApplicationAdvAssigned, this,
            [this](const QString &hotKey, const QString &name) {
                m_sent << QString("hotkey '%1' '%2'").arg(hotKey, name);
            });
    connect(m_dialog.get(), &ReassignDlg::sigCreateMacro, this, [this] { m_sent << "create"; });
}

void tst_ReassignDlg::cleanup()
{
    Modal::setAnswerer(nullptr);
    m_dialog.reset();
    m_environment->mainWindow = nullptr;
    m_main.reset();
    m_environment.reset();
    m_store.reset();
}

void tst_ReassignDlg::open(int keyIdx, int state, const vantrix_key_mapping &key,
                           const std::function<void()> &user)
{
    Modal::setAnswerer([&](const ModalPrompt &) {
        user();
        return QVariant(0);
    });
    m_dialog->openFor(keyIdx, state, &key);
    Modal::setAnswerer(nullptr);
}

void tst_ReassignDlg::pick(const QString &kind)
{
    const QWidget *const dialog = m_dialog.get();
    if (kind == "keyboard")
        emit child<KeyboardAdvWid>(dialog, "m_keyboard")->sigKeyChanged(plainKey(4));
    else if (kind == "mouse")
        emit child<AdvAssignWid>(dialog, "m_mouse")->sigKeyChanged(plainKey(496));
    else if (kind == "media")
        emit child<AdvAssignWid>(dialog, "m_media")->sigKeyChanged(plainKey(240));
    else if (kind == "presso")
        emit child<AdvAssignWid>(dialog, "m_pressoFunc")->sigKeyChanged(plainKey(312));
    else if (kind == "backlight")
        emit child<AdvAssignWid>(dialog, "m_backlight")->sigKeyChanged(plainKey(385));
    else if (kind == "profile")
        emit child<AdvAssignWid>(dialog, "m_profile")->sigKeyChanged(plainKey(1536));
    else if (kind == "controller")
        emit child<GameControllerAdvWid>(dialog, "m_gameController")
            ->sigGameControllerChanged(gameKey(462));
    else if (kind == "dual")
        emit child<DualActionAdvWid>(dialog, "m_dualAction")->sigDualActionChanged(dualKey(4, 5));
    else if (kind == "macro")
        emit child<MacroAdvWid>(dialog, "m_macro")->sigMacroAssigned(true, "M2", "Jump", -1);
    else if (kind == "shortcut")
        emit child<MacroAdvWid>(dialog, "m_macro")->sigMacroAssigned(true, "M9", "COPY", 4);
    else if (kind == "hotkey")
        emit child<ApplicationAdvWid>(dialog, "m_application")
            ->sigAppHotKeyChanged("CTRL+S", "Save");
    else
        QFAIL(qPrintable("no pick named " + kind));
}

void tst_ReassignDlg::hasItsTexts()
{
    QCOMPARE(m_dialog->windowTitle(), QString("KEY ASSIGNMENT"));
    QCOMPARE(child<QLabel>(m_dialog.get(), "label")->text(), QString("KEY ASSIGNMENT - VANTRIX "));
    QCOMPARE(child<QLineEdit>(m_dialog.get(), "m_search")->placeholderText(), QString("SEARCH"));
    QCOMPARE(button("m_cancel")->text(), QString("CANCEL"));
    QCOMPARE(button("m_apply")->text(), QString("APPLY"));
    QCOMPARE(button("m_close")->accessibleName(), QString("CLOSE"));
    QCOMPARE(button("m_cancel")->minimumWidth(), 100);
    QCOMPARE(button("m_apply")->minimumWidth(), 100);
    QVERIFY(m_dialog->windowFlags() & Qt::FramelessWindowHint);
    QVERIFY(m_dialog->isWindow());
}

void tst_ReassignDlg::listsTheInputs()
{
    const QStringList names = {"KEYBOARD",        "MOUSE",       "MEDIA",       "MACRO",
                               "GAME CONTROLLER", "APPLICATION", "DUAL ACTION", "PRESSO FUNCTIONS",
                               "BACKLIGHT",       "PROFILE"};
    for (int id = 0; id < 10; ++id)
        QCOMPARE(input(id)->text(), names.at(id));
    QVERIFY(!input(10));
}

void tst_ReassignDlg::hasAPageForEachInput()
{
    const QStringList names = {"m_keyboard",       "m_mouse",       "m_media",      "m_macro",
                               "m_gameController", "m_application", "m_dualAction", "m_pressoFunc",
                               "m_backlight",      "m_profile"};
    const auto *const pages = child<QStackedWidget>(m_dialog.get(), "m_stacked");
    QCOMPARE(pages->count(), 10);
    for (int id = 0; id < 10; ++id)
        QCOMPARE(pages->widget(id)->objectName(), names.at(id));
}

void tst_ReassignDlg::titlesThePickers()
{
    const QStringList pages = {"m_mouse", "m_media", "m_pressoFunc", "m_backlight", "m_profile"};
    const QStringList titles = {"MOUSE BUTTONS", "MEDIA COMMANDS", "PRESSO FUNCTIONS", "BACKLIGHT",
                                "PROFILE"};
    const QVector<int> counts = {13, 7, 1, 6, 26};
    for (int i = 0; i < pages.size(); ++i) {
        const auto *const picker = child<AdvAssignWid>(m_dialog.get(), pages.at(i));
        QCOMPARE(child<QPushButton>(picker, "m_title")->text(), titles.at(i));
        QCOMPARE(picker->findChildren<QPushButton *>().size(), counts.at(i) + 1);
    }
}

void tst_ReassignDlg::opensOnAPage_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("page");
    for (int state = 0; state < 10; ++state)
        QTest::addRow("state %d", state) << state << state;
    QTest::newRow("preset mode") << 10 << 0;
    QTest::newRow("disabled") << 11 << 0;
    QTest::newRow("unassigned") << 12 << 0;
    QTest::newRow("below") << -1 << 0;
}

void tst_ReassignDlg::opensOnAPage()
{
    QFETCH(int, state);
    open(8, state, plainKey(4), [this] {
        QTEST(page(), "page");
        QFETCH(int, page);
        for (int id = 0; id < 10; ++id)
            QCOMPARE(input(id)->isChecked(), id == page);
        QCOMPARE(child<QLabel>(m_dialog.get(), "m_keyNo")->text(), QString("09"));
        QCOMPARE(child<QStackedWidget>(m_dialog.get(), "m_searchStack")->currentIndex(),
                 page == 6 ? 1 : 0);
    });
}

void tst_ReassignDlg::upperKeysHaveNoModes()
{
    const QVector<int> keys = {23, 24, 27, 0};
    for (const int keyIdx : keys) {
        open(keyIdx, 0, plainKey(4), [this, keyIdx] {
            m_dialog->show();
            QCoreApplication::processEvents();
            for (int id = 0; id < 10; ++id)
                QCOMPARE(input(id)->isHidden(), keyIdx >= 24 && (id == 4 || id == 6));
            int bottom = input(3)->geometry().bottom();
            for (int id = 4; id < 10; ++id) {
                if (input(id)->isHidden())
                    continue;
                QCOMPARE(input(id)->geometry().top(), bottom + 2);
                bottom = input(id)->geometry().bottom();
            }
            m_dialog->hide();
        });
    }
}

void tst_ReassignDlg::clickChangesThePage()
{
    m_dialog->show();
    for (const int id : {3, 6, 9, 4, 0}) {
        clickOn(input(id));
        QCOMPARE(page(), id);
        QVERIFY(input(id)->isChecked());
    }
    clickOn(input(0));
    QVERIFY2(input(0)->isChecked(), "one input is always chosen");
    QCOMPARE(m_sent, QStringList());
}

void tst_ReassignDlg::dualActionHasNoSearch()
{
    auto *const search = child<QLineEdit>(m_dialog.get(), "m_search");
    open(0, 0, plainKey(4), [&] {
        m_dialog->show();
        search->setText("lef");
    });
    open(0, 6, plainKey(4), [&] {
        m_dialog->show();
        QVERIFY(!search->isVisible());
        input(1)->click();
        QVERIFY(search->isVisible());
        QCOMPARE(search->text(), QString("lef"));
    });
}

void tst_ReassignDlg::controllerPageReadsTheStore()
{
    const auto reads = [this] {
        return m_store->calls().filter("getKeyMappings 2 5").size();
    };
    m_dialog->setProfile(2, 5);
    open(0, 0, plainKey(4), [&] {
        QCOMPARE(reads(), 0);
        input(4)->click();
        QCOMPARE(reads(), 1);
        input(0)->click();
        QCOMPARE(reads(), 1);
    });
    open(0, 4, gameKey(462), [] {});
    QCOMPARE(reads(), 2);
    QCOMPARE(m_store->writes(), QStringList());
}

void tst_ReassignDlg::openingTellsThePages()
{
    QSignalSpy selected(m_dialog.get(), &ReassignDlg::sigVantrixKeySelected);
    QSignalSpy keyboard(child<KeyboardAdvWid>(m_dialog.get(), "m_keyboard"),
                        &KeyboardAdvWid::sigVantrixKeySelected);
    QSignalSpy application(child<ApplicationAdvWid>(m_dialog.get(), "m_application"),
                           &ApplicationAdvWid::sigVantrixKeySelected);
    open(0, 0, plainKey(9), [] {});
    QCOMPARE(selected.count(), 1);
    QCOMPARE(selected.at(0).at(0).value<vantrix_key_mapping>(), plainKey(9));
    QCOMPARE(keyboard.count(), 1);
    QCOMPARE(application.count(), 1);
}

void tst_ReassignDlg::lastPickWins_data()
{
    QTest::addColumn<QStringList>("picks");
    QTest::addColumn<QString>("sent");
    const QVector<QPair<QString, QString>> kinds = {
        {"keyboard", "record 0 4 0 0"},       {"mouse", "record 0 496 0 0"},
        {"media", "record 0 240 0 0"},        {"controller", "record 2 255 462 0"},
        {"dual", "record 3 0 0 4"},           {"presso", "record 0 312 0 0"},
        {"backlight", "record 0 385 0 0"},    {"profile", "record 0 1536 0 0"},
        {"macro", "macro 1 M2 Jump -1"},      {"shortcut", "macro 1 M9 COPY 4"},
        {"hotkey", "hotkey 'CTRL+S' 'Save'"},
    };
    for (const auto &kind : kinds)
        QTest::addRow("%s alone", qPrintable(kind.first)) << QStringList{kind.first} << kind.second;
    for (const auto &first : kinds) {
        for (const auto &last : kinds)
            QTest::addRow("%s, %s", qPrintable(first.first), qPrintable(last.first))
                << QStringList{first.first, last.first} << last.second;
    }
    const QVector<int> three = {0, 8, 10};
    for (const int a : three) {
        for (const int b : three) {
            for (const int c : three)
                QTest::addRow("%s, %s, %s", qPrintable(kinds[a].first), qPrintable(kinds[b].first),
                              qPrintable(kinds[c].first))
                    << QStringList{kinds[a].first, kinds[b].first, kinds[c].first}
                    << kinds[c].second;
        }
    }
}

void tst_ReassignDlg::lastPickWins()
{
    QFETCH(QStringList, picks);
    QFETCH(QString, sent);
    QSignalSpy accepted(m_dialog.get(), &QDialog::accepted);
    open(0, 0, plainKey(7), [&] {
        m_dialog->show();
        for (const QString &kind : picks)
            pick(kind);
        QCOMPARE(m_sent, QStringList());
        button("m_apply")->click();
    });
    QCOMPARE(m_sent, QStringList{sent});
    QCOMPARE(accepted.count(), 1);
    QVERIFY(!m_dialog->isVisible());
}

void tst_ReassignDlg::changingThePageKeepsThePick()
{
    open(0, 0, plainKey(7), [this] {
        pick("hotkey");
        for (const int id : {1, 4, 6, 0})
            input(id)->click();
        button("m_apply")->click();
    });
    QCOMPARE(m_sent, QStringList{"hotkey 'CTRL+S' 'Save'"});
}

void tst_ReassignDlg::takenBackMacroIsSent()
{
    open(0, 3, labelKey(), [this] {
        emit child<MacroAdvWid>(m_dialog.get(), "m_macro")
            ->sigMacroAssigned(false, "M2", "Jump", -1);
        button("m_apply")->click();
    });
    QCOMPARE(m_sent, QStringList{"macro 0 M2 Jump -1"});
}

void tst_ReassignDlg::takenBackHotKeyIsSent()
{
    open(0, 5, labelKey(), [this] {
        pick("hotkey");
        emit child<ApplicationAdvWid>(m_dialog.get(), "m_application")->sigAppHotKeyChanged("", "");
        button("m_apply")->click();
    });
    QCOMPARE(m_sent, QStringList{"hotkey '' ''"});
}

void tst_ReassignDlg::picksTellThePages()
{
    QSignalSpy selected(m_dialog.get(), &ReassignDlg::sigVantrixKeySelected);
    const auto told = [&] {
        return selected.takeLast().at(0).value<vantrix_key_mapping>();
    };
    pick("mouse");
    QCOMPARE(told(), plainKey(496));
    pick("macro");
    QCOMPARE(told(), labelKey());
    pick("hotkey");
    QCOMPARE(told(), vantrix_key_mapping());
    QCOMPARE(selected.count(), 0);
    emit child<MacroAdvWid>(m_dialog.get(), "m_macro")->sigMacroAssigned(false, "M2", "Jump", -1);
    QCOMPARE(selected.count(), 0);
}

void tst_ReassignDlg::applyWithoutAPick()
{
    const auto apply = [this] {
        button("m_apply")->click();
    };
    open(0, 0, plainKey(7), apply);
    open(0, 4, gameKey(462), apply);
    open(0, 6, dualKey(9, 8), apply);
    QCOMPARE(m_sent, (QStringList{"record 0 7 0 0", "record 2 255 462 0", "record 3 0 0 9"}));
    m_sent.clear();
    open(0, 3, labelKey(), apply);
    open(0, 5, labelKey(), apply);
    QCOMPARE(m_sent, QStringList());
}

void tst_ReassignDlg::openingForgetsThePick()
{
    for (const char *kind : {"macro", "hotkey", "mouse"}) {
        open(0, 3, labelKey(), [&] {
            pick(kind);
            button("m_cancel")->click();
        });
        open(1, 3, labelKey(), [this] { button("m_apply")->click(); });
        open(1, 0, plainKey(7), [this] { button("m_apply")->click(); });
        QCOMPARE(m_sent, QStringList{"record 0 7 0 0"});
        m_sent.clear();
    }
}

void tst_ReassignDlg::leavingSendsNothing_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("way");
    for (const char *kind : {"mouse", "dual", "controller", "macro", "shortcut", "hotkey"}) {
        for (const char *way : {"cancel", "close", "escape", "escape in search", "window"})
            QTest::addRow("%s, %s", kind, way) << kind << way;
    }
}

void tst_ReassignDlg::leavingSendsNothing()
{
    QFETCH(QString, kind);
    QFETCH(QString, way);
    QSignalSpy rejected(m_dialog.get(), &QDialog::rejected);
    open(0, 0, plainKey(7), [&] {
        m_dialog->show();
        pick(kind);
        if (way == "cancel")
            clickOn(button("m_cancel"));
        else if (way == "close")
            clickOn(button("m_close"));
        else if (way == "escape")
            pressKey(m_dialog.get(), Qt::Key_Escape);
        else if (way == "escape in search")
            pressKey(child<QLineEdit>(m_dialog.get(), "m_search"), Qt::Key_Escape);
        else
            m_dialog->close();
    });
    QCOMPARE(m_sent, QStringList());
    QCOMPARE(rejected.count(), 1);
    QVERIFY(!m_dialog->isVisible());
}

void tst_ReassignDlg::newMacroClosesAndDropsThePick()
{
    QSignalSpy accepted(m_dialog.get(), &QDialog::accepted);
    open(0, 0, plainKey(7), [this] {
        m_dialog->show();
        pick("mouse");
        emit child<MacroAdvWid>(m_dialog.get(), "m_macro")->sigCreateMacro();
    });
    QCOMPARE(m_sent, QStringList{"create"});
    QCOMPARE(accepted.count(), 1);
}

void tst_ReassignDlg::searchReachesThePages()
{
    QSignalSpy keyboard(child<KeyboardAdvWid>(m_dialog.get(), "m_keyboard"),
                        &KeyboardAdvWid::sigSearch);
    QSignalSpy application(child<ApplicationAdvWid>(m_dialog.get(), "m_application"),
                           &ApplicationAdvWid::sigSearch);
    m_dialog->show();
    typeInto(child<QLineEdit>(m_dialog.get(), "m_search"), "ri");
    QCOMPARE(keyboard.count(), 2);
    QCOMPARE(keyboard.at(1).at(0).toString(), QString("ri"));
    QCOMPARE(application.count(), 2);
    QCOMPARE(application.at(1).at(0).toString(), QString("ri"));
    const auto *const mouse = child<AdvAssignWid>(m_dialog.get(), "m_mouse");
    for (const QPushButton *key : mouse->findChildren<QPushButton *>()) {
        if (key->objectName() != "m_title")
            QCOMPARE(key->isHidden(), !key->text().startsWith("RI"));
    }
}

void tst_ReassignDlg::enterInTheSearchDoesNotApply()
{
    open(0, 0, plainKey(7), [this] {
        m_dialog->show();
        auto *const search = child<QLineEdit>(m_dialog.get(), "m_search");
        search->setFocus();
        typeInto(search, "a");
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
            pressKey(search, key);
            pressKey(m_dialog.get(), key);
        }
        QVERIFY(m_dialog->isVisible());
        QCOMPARE(page(), 0);
        QCOMPARE(m_sent, QStringList());
    });
}

void tst_ReassignDlg::enterOnAButtonPressesIt()
{
    open(0, 0, plainKey(7), [this] {
        m_dialog->show();
        button("m_apply")->setFocus();
        pressKey(button("m_apply"), Qt::Key_Return);
        QVERIFY(!m_dialog->isVisible());
    });
    QCOMPARE(m_sent, QStringList{"record 0 7 0 0"});
}

void tst_ReassignDlg::anotherProfileEmptiesTheMacros()
{
    const auto *const macro = child<MacroAdvWid>(m_dialog.get(), "m_macro");
    const auto has = [macro](const QString &name) {
        const auto buttons = macro->findChildren<QPushButton *>();
        return std::any_of(buttons.begin(), buttons.end(),
                           [&](const QPushButton *button) { return button->text() == name; });
    };
    m_dialog->setProfile(1, 2);
    m_dialog->addKeyAssignMacro("Jump");
    m_dialog->setProfile(1, 2);
    QVERIFY(has("Jump"));
    m_dialog->setProfile(1, 3);
    QTRY_VERIFY(!has("Jump"));
}

void tst_ReassignDlg::forwardsMacros()
{
    const auto *const macro = child<MacroAdvWid>(m_dialog.get(), "m_macro");
    const auto checked = [macro] {
        for (const QPushButton *button : macro->findChildren<QPushButton *>()) {
            if (button->isChecked())
                return button->text();
        }
        return QString();
    };
    m_dialog->addKeyAssignMacro("Jump");
    m_dialog->addKeyAssignMacro("Run");
    m_dialog->setMacroSelected("M2");
    QCOMPARE(checked(), QString("Run"));
    m_dialog->renameKeyAssignMacro("Run", "Walk");
    QCOMPARE(checked(), QString("Walk"));
    m_dialog->delKeyAssignMacro("Jump");
    m_dialog->setMacroSelected("M1");
    QCOMPARE(checked(), QString("Walk"));
    m_dialog->setMacroSelected(QString());
    QCOMPARE(checked(), QString());
}

void tst_ReassignDlg::abandonedMacroIsNotChecked()
{
    m_dialog->addKeyAssignMacro("Jump");
    m_dialog->setMacroSelected("M1");
    open(0, 0, plainKey(7), [] {});
    for (const QPushButton *button :
         child<MacroAdvWid>(m_dialog.get(), "m_macro")->findChildren<QPushButton *>())
        QVERIFY(!button->isChecked());
}

void tst_ReassignDlg::coversTheMainWindow_data()
{
    QTest::addColumn<QRect>("window");
    QTest::newRow("784 x 808") << QRect(10, 20, 784, 808);
    QTest::newRow("1280 x 800") << QRect(12, 4, 1280, 800);
    QTest::newRow("937 x 603") << QRect(100, 50, 937, 603);
    QTest::newRow("1920 x 1080") << QRect(3, 3, 1920, 1080);
    QTest::newRow("small") << QRect(5, 5, 600, 400);
}

void tst_ReassignDlg::coversTheMainWindow()
{
    QFETCH(QRect, window);
    m_main->windowHandle()->setGeometry(window);
    for (const int state : {0, 4, 6, 9}) {
        open(0, state, plainKey(4), [&] {
            m_dialog->show();
            QCoreApplication::processEvents();
            QCOMPARE(m_dialog->geometry(), window);
            m_dialog->hide();
        });
    }
}

void tst_ReassignDlg::followsTheMainWindow()
{
    open(0, 0, plainKey(4), [this] {
        m_dialog->show();
        m_main->windowHandle()->setGeometry(70, 80, 1100, 720);
        QCoreApplication::processEvents();
        QCOMPARE(m_dialog->geometry(), QRect(70, 80, 1100, 720));
    });
}

void tst_ReassignDlg::centresItsPanel_data()
{
    coversTheMainWindow_data();
}

void tst_ReassignDlg::centresItsPanel()
{
    QFETCH(QRect, window);
    m_main->windowHandle()->setGeometry(window);
    open(0, 0, plainKey(4), [&] {
        m_dialog->show();
        QCoreApplication::processEvents();
        const auto *const top = child<QWidget>(m_dialog.get(), "top_widget");
        const auto *const left = child<QWidget>(m_dialog.get(), "left_widget");
        const auto *const right = child<QWidget>(m_dialog.get(), "right_widget");
        QCOMPARE(top->geometry().bottom() + 1, left->geometry().top());
        QCOMPARE(left->geometry().right() + 1, right->geometry().left());
        QCOMPARE(left->geometry().bottom(), right->geometry().bottom());
        QCOMPARE(top->geometry().left(), left->geometry().left());
        QCOMPARE(top->geometry().right(), right->geometry().right());
        const QRect panel = top->geometry() | right->geometry() | left->geometry();
        QVERIFY(m_dialog->rect().contains(panel));
        QVERIFY(qAbs(panel.left() - (m_dialog->width() - 1 - panel.right())) <= 1);
        QVERIFY(qAbs(panel.top() - (m_dialog->height() - 1 - panel.bottom())) <= 1);
        for (const char *name : {"m_apply", "m_cancel", "m_close"})
            QVERIFY(m_dialog->rect().contains(
                QRect(button(name)->mapTo(m_dialog.get(), QPoint()), button(name)->size())));
    });
}

void tst_ReassignDlg::paintsTheVeil()
{
    open(0, 0, plainKey(4), [this] {
        m_dialog->setGeometry(0, 0, 1600, 1100);
        m_dialog->show();
        QImage image(m_dialog->size(), QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        m_dialog->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
        QCOMPARE(image.pixelColor(2, 2), QColor(0, 0, 0, 200));
    });
    QVERIFY(m_dialog->testAttribute(Qt::WA_TranslucentBackground));
}

void tst_ReassignDlg::runsModally()
{
    const vantrix_key_mapping key = plainKey(4);
    QTimer::singleShot(0, this, [this] {
        QVERIFY(m_dialog->isVisible());
        QVERIFY(m_dialog->isModal());
        pressKey(m_dialog.get(), Qt::Key_Escape);
    });
    m_dialog->openFor(0, 0, &key);
    QVERIFY(!m_dialog->isVisible());
}

void tst_ReassignDlg::tabOrderFollowsReading()
{
    open(0, 1, plainKey(496), [this] {
        m_dialog->show();
        QStringList order;
        QWidget *const first = button("m_close");
        QWidget *at = first;
        do {
            const QString name = at->objectName();
            if (at->focusPolicy() & Qt::TabFocus && at->isVisible() &&
                QStringList{"m_close", "m_search", "m_title", "m_cancel", "m_apply"}.contains(name))
                order << name;
            else if (name.startsWith("input_"))
                order << name;
            at = at->nextInFocusChain();
        } while (at != first);
        QCOMPARE(order, (QStringList{"m_close", "input_0", "input_1", "input_2", "input_3",
                                     "input_4", "input_5", "input_6", "input_7", "input_8",
                                     "input_9", "m_search", "m_title", "m_cancel", "m_apply"}));
    });
}

void tst_ReassignDlg::destroyedWhileOpen()
{
    const vantrix_key_mapping key = plainKey(4);
    QTimer::singleShot(0, this, [this] { m_dialog.reset(); });
    m_dialog->openFor(0, 0, &key);
    QVERIFY(!m_dialog);
}

void tst_ReassignDlg::destroyedByItsPick()
{
    connect(m_dialog.get(), &ReassignDlg::sigVantrixKeyAssigned, this,
            [this] { m_dialog.reset(); });
    const vantrix_key_mapping key = plainKey(4);
    QTimer::singleShot(0, this, [this] { button("m_apply")->click(); });
    m_dialog->openFor(0, 0, &key);
    QVERIFY(!m_dialog);
}

VANTRIX_TEST_MAIN(tst_ReassignDlg)
#include "tst_ReassignDlg.moc"
