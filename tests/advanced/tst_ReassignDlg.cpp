#include "DialogRig.h"
#include "support/TestMain.h"

class tst_ReassignDlg : public DialogRig
{
    Q_OBJECT

private slots:
    void initTestCase() { registerRecordTypes(); }
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void hasItsTexts();
    void listsTheInputs();
    void hasAPageForEachInput();
    void titlesThePickers();
    void opensOnAPage_data();
    void opensOnAPage();
    void clickChangesThePage();
    void controllerPageReadsTheStore();
    void openingTellsThePages();
    void pagesHearWithTheirPageInFront();
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
    void leavesBeforeItCloses_data();
    void leavesBeforeItCloses();
    void searchReachesThePages();
    void searchReachesEveryPage_data();
    void searchReachesEveryPage();
    void searchReachesTheController();
    void everyPageShowsItsKeys_data();
    void everyPageShowsItsKeys();
    void aProfileEmptiesTheMacros();
    void forwardsMacros();
    void abandonedMacroIsNotChecked();
};

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
    const auto *const second = button("m_action2");
    QVERIFY(!second->isEnabled());
    open(0, 6, dualKey(4, 5), [&] {
        QVERIFY(second->isEnabled());
        pick("mouse");
        QVERIFY(!second->isEnabled());
    });
}

/// The input is chosen, and the controller page has read the store, when the pages are told.
void tst_ReassignDlg::pagesHearWithTheirPageInFront()
{
    m_dialog->setProfile(2, 5);
    open(0, 6, dualKey(4, 5), [] {});
    QStringList heard;
    connect(m_dialog.get(), &ReassignDlg::sigVantrixKeySelected, this, [&] {
        const auto *const search = child<QStackedWidget>(m_dialog.get(), "m_searchStack");
        heard << QString("input %1 page %2 search %3 reads %4")
                     .arg(input(4)->isChecked())
                     .arg(page())
                     .arg(search->currentIndex())
                     .arg(m_store->calls().filter("getKeyMappings 2 5").size());
    });
    open(0, 4, gameKey(462), [] {});
    QCOMPARE(heard, QStringList{"input 1 page 4 search 0 reads 1"});
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

void tst_ReassignDlg::leavesBeforeItCloses_data()
{
    QTest::addColumn<QString>("picked");
    QTest::addColumn<QString>("sent");
    QTest::newRow("record") << "mouse"
                            << "record 0 496 0 0";
    QTest::newRow("macro") << "macro"
                           << "macro 1 M2 Jump -1";
    QTest::newRow("hot key") << "hotkey"
                             << "hotkey 'CTRL+S' 'Save'";
    QTest::newRow("new macro") << ""
                               << "create";
}

void tst_ReassignDlg::leavesBeforeItCloses()
{
    QFETCH(QString, picked);
    QFETCH(QString, sent);
    connect(m_dialog.get(), &QDialog::accepted, this, [this] { m_sent << "accepted"; });
    open(0, 0, plainKey(7), [&] {
        m_dialog->show();
        if (picked.isEmpty()) {
            emit child<MacroAdvWid>(m_dialog.get(), "m_macro")->sigCreateMacro();
        } else {
            pick(picked);
            button("m_apply")->click();
        }
    });
    QCOMPARE(m_sent, QStringList({sent, "accepted"}));
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

void tst_ReassignDlg::searchReachesEveryPage_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("hidden");
    QTest::newRow("keyboard") << "m_keyboard"
                              << "b"
                              << "A";
    QTest::newRow("mouse") << "m_mouse"
                           << "ri"
                           << "LEFT CLICK";
    QTest::newRow("media") << "m_media"
                           << "vol"
                           << "STOP";
    QTest::newRow("macro") << "m_macro"
                           << "co"
                           << "CLOSE ACTIVE WINDOW";
    QTest::newRow("presso") << "m_pressoFunc"
                            << "x"
                            << "CALIBRATE";
    QTest::newRow("backlight") << "m_backlight"
                               << "led"
                               << "EFFECT CYCLE+";
    QTest::newRow("profile") << "m_profile"
                             << "profile 2"
                             << "PROFILE 1";
}

void tst_ReassignDlg::searchReachesEveryPage()
{
    QFETCH(QString, page);
    QFETCH(QString, text);
    const auto keys = [this, page] {
        QFETCH(QString, hidden);
        QVector<const QPushButton *> found;
        for (const QPushButton *key :
             child<QWidget>(m_dialog.get(), page)->findChildren<QPushButton *>()) {
            if (key->text() == hidden)
                found << key;
        }
        return found;
    };
    QVERIFY(!keys().isEmpty());
    child<QLineEdit>(m_dialog.get(), "m_search")->setText(text);
    for (const QPushButton *key : keys())
        QVERIFY(key->isHidden());
    child<QLineEdit>(m_dialog.get(), "m_search")->clear();
    for (const QPushButton *key : keys())
        QVERIFY(!key->isHidden());
}

void tst_ReassignDlg::searchReachesTheController()
{
    const auto bold = [this] {
        int rows = 0;
        for (const QLabel *name : child<QWidget>(m_dialog.get(), "m_gameController")
                                      ->findChildren<QLabel *>("m_gamepad"))
            rows += name->styleSheet().contains("bold") ? 1 : 0;
        return rows;
    };
    child<QLineEdit>(m_dialog.get(), "m_search")->setText("r stick");
    QCOMPARE(bold(), 5);
    child<QLineEdit>(m_dialog.get(), "m_search")->clear();
    QCOMPARE(bold(), 0);
}

/// A key's function is checked on its page and nowhere else, and a pick elsewhere takes it off.
void tst_ReassignDlg::everyPageShowsItsKeys_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("text");
    QTest::newRow("keyboard") << "m_keyboard" << 4 << "A";
    QTest::newRow("mouse") << "m_mouse" << 496 << "LEFT CLICK";
    QTest::newRow("media") << "m_media" << 241 << "STOP";
    QTest::newRow("presso") << "m_pressoFunc" << 312 << "CALIBRATE";
    QTest::newRow("backlight") << "m_backlight" << 402 << "LED DARKER-";
    QTest::newRow("profile") << "m_profile" << 1571 << "PROFILE CYCLE-";
}

void tst_ReassignDlg::everyPageShowsItsKeys()
{
    QFETCH(QString, page);
    QFETCH(int, code);
    QFETCH(QString, text);
    const auto checked = [this] {
        QStringList found;
        for (const char *each : {"m_keyboard", "m_mouse", "m_media", "m_macro", "m_pressoFunc",
                                 "m_backlight", "m_profile"}) {
            for (const QPushButton *key :
                 child<QWidget>(m_dialog.get(), each)->findChildren<QPushButton *>()) {
                if (key->isChecked())
                    found << each + QString(':') + key->text();
            }
        }
        return found;
    };
    open(0, 0, plainKey(ushort(code)), [&] {
        QCOMPARE(checked(), QStringList(page + ':' + text));
        pick("hotkey");
        QCOMPARE(checked(), QStringList());
    });
}

void tst_ReassignDlg::aProfileEmptiesTheMacros()
{
    const auto *const macro = child<MacroAdvWid>(m_dialog.get(), "m_macro");
    const auto has = [macro](const QString &name) {
        const auto buttons = macro->findChildren<QPushButton *>();
        return std::any_of(buttons.begin(), buttons.end(),
                           [&](const QPushButton *button) { return button->text() == name; });
    };
    for (const int profile : {2, 3, 3, 0}) {
        m_dialog->addKeyAssignMacro("Jump");
        QVERIFY(has("Jump"));
        m_dialog->setProfile(1, profile);
        QVERIFY(!has("Jump"));
    }
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

VANTRIX_TEST_MAIN(tst_ReassignDlg)
#include "tst_ReassignDlg.moc"
