#include "shell/MainWindow.h"

#include "ShellFixture.h"
#include "core/VantrixMapWid.h"
#include "host/ProfileExchange.h"
#include "interfaces/Modal.h"
#include "shell/Language.h"
#include "shell/MappingView.h"
#include "shell/MessageBar.h"
#include "shell/ProfileList.h"
#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QAction>
#include <QDir>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>

#include <cstring>
#include <memory>
#include <random>

class tst_MainWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void firstRoad();
    void undoShowsInSimpleMode();
    void undoShowsInAdvancedMode();
    void undoOfAPreset();
    void undoOfADepth();
    void undoGoesToItsProfile();
    void stepsHaveNames();
    void statusKeepsUpWithSteps();
    void historyTravels();
    void keysOfProfilesStayInTheirList();
    void randomEditsUndone();
    void putBackShows();
    void resetIsAStep();
    void resetDeclined();
    void pressure();
    void undonePressureReachesTheDevice();
    void macrosAreTold();
    void macroUndoIsTold();
    void removedMacroLeavesTheKeys();
    void pagesShareTheRoom();
    void profilesShrink();
    void renamingNeedsTheNames();
    void longNamesDoNotWidenTheWindow();
    void goToShowsTheKey();
    void goToInTheShownProfile();
    void languageKeepsTheSelection();
    void languageIsSpokenAtOnce();
    void captureCanBeForbidden();
    void hintLeavesWithTheMappingPage();
    void hintWaitsForNewsToBeRead();
    void hintIsNotForRecordingMacros();
    void noStepsWhileRecording();
    void statusGoesWithItsProfile();
    void captureKeepsShortcutsOut();
    void releasesOfOtherWindowsAreNotTaken();
    void pressForOneKeyIsNotTakenByAnother();
    void longPressIsTakenOnce();
    void captureEndsElsewhere();
    void reopening();
    void shownProfileIsKeptAtOnce();
    void keysComeIntoView();
    void reopeningWithNothingToApply();
    void anyBytesAreShown();
    void secondShell();
    void deletingAMacroAppliesNothing();
    void fullDisk();
    void closingWithWhatCannotBeSaved();
    void closingWithoutEditsOnAFullDisk();
    void closingAfterTheFileIsGone();
    void opensNarrow();
    void titleAndCounts();

private:
    void open(int width = 1280, int height = 900);
    QPushButton *key(int index)
    {
        return child<QPushButton>(page(), QStringLiteral("key_%1").arg(index));
    }
    QWidget *page() { return m_window->mappingView()->page(); }
    void click(const char *name) { child<QAbstractButton>(page(), name)->click(); }
    /// A key and an entry of the drawn keyboard.
    void assign(int index, const char *entry);
    QStringList faces();
    void editAnything(std::mt19937 &random);
    const StoreState &state() { return m_shell->store().state(); }
    ushort code(int index, int profile = 0) { return state().mapping(0, profile, index).code; }
    QString said() { return m_window->statusText(); }
    QByteArray contents();

    std::unique_ptr<ShellFixture> m_shell;
    std::unique_ptr<MainWindow> m_window;
};

void tst_MainWindow::open(int width, int height)
{
    m_window = std::make_unique<MainWindow>(m_shell->context);
    m_window->resize(width, height);
    m_window->show();
    QCoreApplication::processEvents();
}

void tst_MainWindow::init()
{
    m_shell = std::make_unique<ShellFixture>();
    open();
}

void tst_MainWindow::cleanup()
{
    Modal::setAnswerer(nullptr);
    m_window.reset();
    m_shell.reset();
    Language::install(Language::parse(QStringLiteral("English")));
}

void tst_MainWindow::assign(int index, const char *entry)
{
    if (!key(index)->isChecked())
        key(index)->click();
    click(entry);
    m_shell->store().flush();
}

/// Everything that the history is about, of all profiles.
QByteArray tst_MainWindow::contents()
{
    QByteArray bytes;
    for (const auto &[id, value] : state().records()) {
        if (kindOf(id.table) == StoreKind::Content)
            bytes += QByteArray::number(int(id.table)) + ' ' + QByteArray::number(id.profile) +
                     ' ' + QByteArray::number(id.index) + ' ' + value.toHex() + '\n';
    }
    return bytes;
}

void tst_MainWindow::firstRoad()
{
    QCOMPARE(said(), QStringLiteral("Click a key of the pad, then choose what it does."));
    assign(7, "btn_48");
    QCOMPARE(key(7)->text(), QStringLiteral("B"));
    QCOMPARE(code(7), ushort(0x05));
    QVERIFY(m_shell->device().differs(0, 0));
    click("m_apply");
    QVERIFY(!m_shell->device().differs(0, 0));
    QCOMPARE(said(), QStringLiteral("PROFILE 1 is on the device."));
    const DeviceImage image = m_shell->device().image(0, 0);
    QCOMPARE(ushort(image.keys[7].content.mapping.code), ushort(0x05));
}

void tst_MainWindow::undoShowsInSimpleMode()
{
    assign(7, "btn_48");
    m_window->undo();
    QCOMPARE(key(7)->text(), QStringLiteral("W"));
    QVERIFY(key(7)->isChecked());
    QCOMPARE(m_shell->store().getCurrentKey(0, 0), 7);
    QCOMPARE(said(), QStringLiteral("Undone: Assign B to key 7"));
    m_window->redo();
    QCOMPARE(key(7)->text(), QStringLiteral("B"));
    QVERIFY(key(7)->isChecked());
    QCOMPARE(said(), QStringLiteral("Done again: Assign B to key 7"));
}

void tst_MainWindow::undoShowsInAdvancedMode()
{
    click("m_advanced");
    key(9)->click();
    m_shell->assign(9, 0x05);
    m_window->mappingView()->refresh();
    QCOMPARE(key(9)->text(), QStringLiteral("B"));
    m_window->undo();
    QCOMPARE(key(9)->text(), QStringLiteral("R"));
    QVERIFY(key(9)->isChecked());
    QCOMPARE(m_shell->store().getMode(0, 0), 1);
    QVERIFY(child<QPushButton>(page(), "m_advanced")->isChecked());
}

void tst_MainWindow::undoOfAPreset()
{
    assign(7, "btn_48");
    const QByteArray before = contents();
    const int transactions = m_shell->store().transactionCount();
    m_window->mappingView()->page()->slotPanelChanged(0, 2);
    m_shell->store().flush();
    QCOMPARE(m_shell->store().transactionCount(), transactions + 1);
    QCOMPARE(code(7), ushort(0x60));
    QCOMPARE(key(7)->text().simplified(), QStringLiteral("8"));
    m_window->undo();
    QCOMPARE(contents(), before);
    QCOMPARE(key(7)->text(), QStringLiteral("B"));
    QVERIFY(key(7)->isChecked());
    QCOMPARE(said(), QStringLiteral("Undone: Preset: Numpad Mode"));
}

void tst_MainWindow::undoOfADepth()
{
    vantrix_key_mapping dual = clearedKey();
    dual.type = 3;
    dual.digital = {4, 5, 0, 50};
    m_shell->store().setKeyMapping(0, 0, 7, &dual);
    m_shell->store().flush();
    m_window->mappingView()->showProfile(0, 7);
    QCOMPARE(key(7)->text(), QStringLiteral("50%"));
    dual.digital.depth = 70;
    m_shell->store().setKeyMapping(0, 0, 7, &dual);
    m_shell->store().flush();
    m_window->mappingView()->refresh();
    QCOMPARE(key(7)->text(), QStringLiteral("70%"));
    m_window->undo();
    QCOMPARE(key(7)->text(), QStringLiteral("50%"));
    QVERIFY(key(7)->isChecked());
}

void tst_MainWindow::undoGoesToItsProfile()
{
    assign(7, "btn_48");
    emit m_shell->context.goTo(5, 3);
    QCOMPARE(m_shell->context.profile(), 5);
    QVERIFY(key(3)->isChecked());
    m_window->undo();
    QCOMPARE(m_shell->context.profile(), 0);
    QVERIFY(key(7)->isChecked());
    QCOMPARE(key(7)->text(), QStringLiteral("W"));
}

void tst_MainWindow::stepsHaveNames()
{
    auto actions = m_window->findChildren<QAction *>();
    const auto state = [&actions](const QString &text) {
        for (const QAction *action : actions) {
            if (action->text().remove(QLatin1Char('&')) == text)
                return QLatin1String(action->isEnabled() ? "enabled" : "disabled");
        }
        return QLatin1String("none");
    };
    QCOMPARE(state(QStringLiteral("Undo")), QLatin1String("disabled"));
    assign(7, "btn_48");
    QCOMPARE(state(QStringLiteral("Undo Assign B to key 7")), QLatin1String("enabled"));
    m_window->undo();
    QCOMPARE(state(QStringLiteral("Redo Assign B to key 7")), QLatin1String("enabled"));
    QCOMPARE(state(QStringLiteral("Undo")), QLatin1String("disabled"));
}

void tst_MainWindow::statusKeepsUpWithSteps()
{
    assign(7, "btn_48");
    click("m_apply");
    QCOMPARE(said(), QStringLiteral("PROFILE 1 is on the device."));
    assign(8, "btn_48");
    QCOMPARE(said(), QStringLiteral("Assign B to key 8"));
    m_window->undo();
    QCOMPARE(said(), QStringLiteral("Undone: Assign B to key 8"));
    m_window->redo();
    click("m_apply");
    m_shell->store().flush();
    QVERIFY2(said().startsWith(QLatin1String("PROFILE 1 is on the device.")), qPrintable(said()));
    m_window->undo();
    assign(9, "btn_48");
    QCOMPARE(said(), QStringLiteral("Assign B to key 9"));
}

void tst_MainWindow::historyTravels()
{
    assign(7, "btn_48");
    assign(8, "btn_48");
    assign(9, "btn_48");
    emit m_shell->context.historyRequested(1);
    QCOMPARE(key(7)->text(), QStringLiteral("B"));
    QCOMPARE(key(8)->text(), QStringLiteral("E"));
    emit m_shell->context.historyRequested(3);
    QCOMPARE(key(9)->text(), QStringLiteral("B"));
    const int transactions = m_shell->store().transactionCount();
    const int shown = m_window->mappingView()->showCount();
    emit m_shell->context.historyRequested(0);
    QCOMPARE(key(7)->text(), QStringLiteral("W"));
    QCOMPARE(said(), QStringLiteral("Steps undone: 3"));
    QCOMPARE(m_shell->store().transactionCount(), transactions + 1);
    QCOMPARE(m_window->mappingView()->showCount(), shown + 1);
}

void tst_MainWindow::keysOfProfilesStayInTheirList()
{
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_window->showPage(ShellPage::Macros);
    for (const char *name : {"m_delayMode", "m_macroList", "m_eventTable"}) {
        auto *const widget = child<QWidget>(m_window.get(), name);
        widget->setFocus();
        QTest::keyClick(widget, Qt::Key_Down, Qt::AltModifier);
        QTest::keyClick(widget, Qt::Key_Escape);
        QTest::keyClick(widget, Qt::Key_F2);
        QVERIFY(!m_window->findChild<QWidget *>(QStringLiteral("m_nameEdit")));
    }
    QCOMPARE(m_shell->store().stepNames(), QStringList());
}

/// What the page shows of each key.
QStringList tst_MainWindow::faces()
{
    QStringList faces;
    for (int index = 0; index < KeyCount; ++index) {
        const QPushButton *const button = key(index);
        faces << button->text() + button->toolTip() + button->styleSheet() +
                     (button->isChecked() ? QStringLiteral(" checked") : QString());
    }
    return faces;
}

/// One edit of any sort that a person can make in the window.
void tst_MainWindow::editAnything(std::mt19937 &random)
{
    static const char *const entries[] = {"btn_48", "btn_30", "btn_31", "btn_57", "btn_59"};
    ProfileStore &store = m_shell->store();
    const int profile = int(random() % 24);
    const QStringList macros = state().macroNames(0);
    switch (random() % 16) {
    case 0:
        emit m_shell->context.goTo(profile, int(random() % 29));
        break;
    case 1:
        m_window->mappingView()->page()->slotPanelChanged(0, int(random() % 3));
        break;
    case 2:
        m_window->mappingView()->page()->slotPanelChanged(4, 3 + int(random() % 3));
        break;
    case 3:
        store.setProfileName(0, profile, QString::number(random() % 100));
        break;
    case 4:
        store.moveProfile(0, profile, int(random() % 24));
        break;
    case 5:
        store.duplicateProfile(0, m_shell->context.profile(), profile);
        break;
    case 12: {
        vantrix_key_mapping dual = clearedKey();
        dual.type = KeyType::DualAction;
        dual.digital = {quint16(4 + random() % 26), 5, quint8(random() % 3),
                        quint8(10 + random() % 81)};
        store.setKeyMapping(0, profile, int(random() % 28), &dual);
        break;
    }
    case 13:
        m_window->showPage(ShellPage::Changes);
        QCoreApplication::processEvents();
        child<QPushButton>(m_window.get(), "m_putBackAllBtn")->click();
        break;
    case 14: {
        ExchangeContent content = ProfileExchange::take(state(), 0, {profile});
        content.profiles[0].profile = int(random() % 24);
        ProfileExchange::put(content, store, 0);
        break;
    }
    case 15:
        if (!macros.isEmpty()) {
            vantrix_macro_record record;
            record.count = quint8(1 + random() % 9);
            store.setMacro(0, macros.at(int(random() % quint32(macros.size()))), record);
        }
        break;
    case 6: {
        const QString name = store.freeMacroName(0, QStringLiteral("Macro"));
        store.addMacro(0, name, {});
        emit m_shell->context.macroAdded(name);
        break;
    }
    case 7:
        if (macros.isEmpty())
            break;
        emit m_shell->context.macroAboutToBeRemoved(macros.first());
        store.removeMacro(0, macros.first());
        break;
    case 8:
        store.setPressoEnabled(int(random() % 2));
        break;
    default:
        assign(int(random() % 28), entries[random() % 5]);
    }
    store.flush();
}

void tst_MainWindow::randomEditsUndone()
{
    std::mt19937 random(4711);
    const QByteArray start = contents();
    for (int i = 0; i < 200; ++i)
        editAnything(random);
    const QByteArray end = contents();
    QVERIFY(start != end);
    for (int step = 0; m_shell->store().canUndo(); ++step) {
        m_window->undo();
        if (step % 5)
            continue;
        const QStringList shown = faces();
        m_window->mappingView()->refresh();
        QCOMPARE(shown, faces());
    }
    QCOMPARE(contents(), start);
    while (m_shell->store().canRedo())
        m_window->redo();
    QCOMPARE(contents(), end);
}

void tst_MainWindow::putBackShows()
{
    assign(7, "btn_48");
    m_window->showPage(ShellPage::Changes);
    child<QPushButton>(m_window.get(), "m_putBackAllBtn")->click();
    m_shell->store().flush();
    QCOMPARE(key(7)->text(), QStringLiteral("W"));
    QVERIFY(key(7)->isChecked());
    QCOMPARE(code(7), ushort(255));
}

void tst_MainWindow::resetIsAStep()
{
    assign(7, "btn_48");
    click("m_apply");
    Modal::setAnswerer([](const ModalPrompt &) { return QVariant(1); });
    click("m_reset");
    m_shell->store().flush();
    QCOMPARE(code(7), ushort(255));
    QCOMPARE(key(7)->text(), QStringLiteral("W"));
    QVERIFY(!m_shell->device().differs(0, 0));
    QCOMPARE(m_shell->store().undoName(), QStringLiteral("Reset PROFILE 1"));
    m_window->undo();
    QCOMPARE(key(7)->text(), QStringLiteral("B"));
    QVERIFY(m_shell->device().differs(0, 0));
}

void tst_MainWindow::resetDeclined()
{
    assign(7, "btn_48");
    Modal::setAnswerer([](const ModalPrompt &) { return QVariant(0); });
    click("m_reset");
    QCOMPARE(code(7), ushort(0x05));
}

void tst_MainWindow::pressure()
{
    QVERIFY(m_shell->device().isPressureEnabled());
    m_shell->store().setPressoEnabled(0);
    emit m_window->mappingView()->page()->sigSdkRequest(23, nullptr);
    QVERIFY(!m_shell->device().isPressureEnabled());
}

void tst_MainWindow::undonePressureReachesTheDevice()
{
    m_shell->store().setPressoEnabled(0);
    emit m_window->mappingView()->page()->sigSdkRequest(23, nullptr);
    m_shell->store().flush();
    m_window->undo();
    QVERIFY(m_shell->device().isPressureEnabled());
}

void tst_MainWindow::macrosAreTold()
{
    auto *const list = child<QListWidget>(page(), "m_macroList");
    QVERIFY(m_shell->store().addMacro(0, QStringLiteral("Hello"), {}));
    emit m_shell->context.macroAdded(QStringLiteral("Hello"));
    m_shell->store().flush();
    QCOMPARE(list->count(), 1);
    QCOMPARE(list->item(0)->text(), QStringLiteral("M1 - Hello"));
    m_shell->store().renameMacro(0, QStringLiteral("Hello"), QStringLiteral("Bye"));
    emit m_shell->context.macroRenamed(QStringLiteral("Hello"), QStringLiteral("Bye"));
    m_shell->store().flush();
    QCOMPARE(list->item(0)->text(), QStringLiteral("M1 - Bye"));
    emit m_shell->context.goTo(3, NoKey);
    QCOMPARE(list->count(), 1);
}

void tst_MainWindow::macroUndoIsTold()
{
    auto *const list = child<QListWidget>(page(), "m_macroList");
    m_shell->store().addMacro(0, QStringLiteral("Hello"), {});
    emit m_shell->context.macroAdded(QStringLiteral("Hello"));
    m_shell->store().flush();
    m_window->undo();
    QCOMPARE(list->count(), 0);
    m_window->redo();
    QCOMPARE(list->count(), 1);
}

void tst_MainWindow::removedMacroLeavesTheKeys()
{
    m_shell->store().addMacro(0, QStringLiteral("Hello"), {});
    emit m_shell->context.macroAdded(QStringLiteral("Hello"));
    m_shell->store().setNamedMacroKey(0, 0, "Hello", 4);
    m_shell->store().flush();
    m_window->mappingView()->refresh();
    QCOMPARE(key(4)->text(), QStringLiteral("M1"));
    emit m_shell->context.macroAboutToBeRemoved(QStringLiteral("Hello"));
    m_shell->store().removeMacro(0, QStringLiteral("Hello"));
    m_shell->store().flush();
    QVERIFY(key(4)->text() != QStringLiteral("M1"));
    QVERIFY(!state().macroKey(0, 0, 4));
}

void tst_MainWindow::pagesShareTheRoom()
{
    auto *const side = child<QWidget>(m_window.get(), "m_sidePages");
    QVERIFY(page()->isVisible());
    QVERIFY(!side->isVisible());
    m_window->showPage(ShellPage::Changes);
    QVERIFY(!page()->isVisible());
    QVERIFY(side->isVisible());
    m_window->resize(1600, 1000);
    QTRY_VERIFY(page()->isVisible());
    QVERIFY(side->isVisible());
    m_window->showPage(ShellPage::Mapping);
    QVERIFY(!side->isVisible());
}

void tst_MainWindow::profilesShrink()
{
    auto *const list = child<QWidget>(m_window.get(), "m_profileList");
    QVERIFY(list->width() >= 240);
    m_window->resize(1024, 700);
    QTRY_COMPARE(list->width(), 60);
    QCOMPARE(child<QLabel>(m_window.get(), "m_shownLab")->text(), QStringLiteral("PROFILE 1"));
    QCOMPARE(m_window->size(), QSize(1024, 700));
}

void tst_MainWindow::renamingNeedsTheNames()
{
    auto *const list = child<ProfileList>(m_window.get(), "m_profileList");
    m_window->resize(1024, 700);
    QTRY_VERIFY(list->isCompact());
    emit m_shell->context.goTo(23, NoKey);
    list->rename();
    QVERIFY(!list->isCompact());
    QTRY_VERIFY(list->findChild<QLineEdit *>(QStringLiteral("m_nameEdit")));
    auto *const edit = child<QLineEdit>(list, "m_nameEdit");
    QVERIFY(edit->isVisible());
    QTRY_VERIFY(edit->width() > 100);
    QVERIFY(!edit->visibleRegion().isEmpty());
}

void tst_MainWindow::longNamesDoNotWidenTheWindow()
{
    m_shell->store().setProfileName(0, 0, QString(40, QLatin1Char('W')));
    m_shell->store().flush();
    m_window->resize(1024, 700);
    for (int page = 0; page < 6; ++page) {
        m_window->showPage(ShellPage(page));
        QCoreApplication::processEvents();
        QCOMPARE(m_window->size(), QSize(1024, 700));
        QVERIFY(m_window->minimumSizeHint().width() <= 1024);
        QVERIFY(m_window->minimumSizeHint().height() <= 700);
    }
}

void tst_MainWindow::goToShowsTheKey()
{
    m_window->showPage(ShellPage::Changes);
    emit m_shell->context.goTo(2, 11);
    QCOMPARE(m_window->shownPage(), ShellPage::Mapping);
    QVERIFY(key(11)->isChecked());
    QCOMPARE(m_shell->store().getCurrentKey(0, 2), 11);
}

void tst_MainWindow::goToInTheShownProfile()
{
    key(3)->click();
    QSignalSpy shown(&m_shell->context, &ShellContext::profileShown);
    emit m_shell->context.goTo(0, 11);
    QVERIFY(key(11)->isChecked());
    QVERIFY(!key(3)->isChecked());
    emit m_shell->context.goTo(0, 11);
    QVERIFY(key(11)->isChecked());
    QCOMPARE(shown.count(), 0);
    emit m_shell->context.goTo(0, NoKey);
    QVERIFY(!key(11)->isChecked());
}

void tst_MainWindow::languageKeepsTheSelection()
{
    key(7)->click();
    const QWidget *const before = page();
    m_shell->store().setSetting(QStringLiteral("language"), QStringLiteral("2"));
    m_shell->store().flush();
    QVERIFY(page() != before);
    QCOMPARE(m_shell->services.environment().getLanguage(), 2);
    QVERIFY(key(7)->isChecked());
    QVERIFY(page()->isVisible());
}

void tst_MainWindow::languageIsSpokenAtOnce()
{
    const QSignalSpy changed(m_window.get(), &MainWindow::languageChanged);
    m_shell->store().setSetting(QStringLiteral("language"), QStringLiteral("4"));
    m_shell->store().flush();
    QCOMPARE(changed.count(), 1);
    QCOMPARE(child<QPushButton>(page(), "m_apply")->text(), QStringLiteral("ÜBERNEHMEN"));
    m_window = std::make_unique<MainWindow>(m_shell->context);
    QCOMPARE(child<QPushButton>(m_window.get(), "m_tab0")->text(), QStringLiteral("BELEGUNG"));
}

void tst_MainWindow::captureCanBeForbidden()
{
    m_window->mappingView()->setCaptureAllowed(true);
    clickOn(key(7));
    QVERIFY(m_shell->services.keyCapture().capturing());
    m_shell->store().flush();
    QVERIFY(said().startsWith(QStringLiteral("Key 7 (W) takes the next key you press.")));
    clickOn(key(7));
    m_shell->store().flush();
    QCOMPARE(said(), QString());
    clickOn(key(7));
    m_window->mappingView()->setCaptureAllowed(false);
    QVERIFY(!m_shell->services.keyCapture().capturing());
}

void tst_MainWindow::hintLeavesWithTheMappingPage()
{
    const QString hint = QStringLiteral("Key 7 (W) takes the next key you press.");
    m_window->resize(1024, 700);
    clickOn(key(7));
    m_shell->store().flush();
    QVERIFY(said().startsWith(hint));
    sendNativeKey(m_shell->services.keyCapture().capturing(), QEvent::KeyPress, 0x30, 0x42);
    sendNativeKey(m_shell->services.keyCapture().capturing(), QEvent::KeyRelease, 0x30, 0x42);
    m_shell->store().flush();
    QVERIFY(said().startsWith(hint));
    m_window->showPage(ShellPage::History);
    QCOMPARE(said(), QStringLiteral("Assign B to key 7"));
    m_window->undo();
    QCOMPARE(said(), QStringLiteral("Undone: Assign B to key 7"));
}

void tst_MainWindow::hintWaitsForNewsToBeRead()
{
    clickOn(key(7));
    m_shell->store().flush();
    QVERIFY(said().startsWith(QStringLiteral("Key 7 (W) takes the next key you press.")));
    emit m_shell->context.status(QStringLiteral("One profile was imported."));
    m_window->mappingView()->setCaptureAllowed(false);
    m_window->mappingView()->setCaptureAllowed(true); // as after a dialog
    QVERIFY(m_shell->services.keyCapture().capturing());
    QCOMPARE(said(), QStringLiteral("One profile was imported."));
    QTest::mousePress(key(7), Qt::LeftButton);
    QVERIFY(said().startsWith(QStringLiteral("Key 7 (W) takes the next key you press.")));
    QTest::mouseRelease(key(7), Qt::LeftButton);
}

void tst_MainWindow::hintIsNotForRecordingMacros()
{
    clickOn(key(7));
    m_window->showPage(ShellPage::Macros);
    clickOn(child<QPushButton>(m_window.get(), "m_recordBtn"));
    m_shell->store().flush();
    QVERIFY(m_shell->services.keyCapture().capturing());
    QVERIFY2(!said().contains(QStringLiteral("Key 7 (W)")), qPrintable(said()));
}

void tst_MainWindow::noStepsWhileRecording()
{
    assign(9, "btn_48");
    const auto undo = [this] {
        for (const QAction *action : m_window->findChildren<QAction *>()) {
            if (action->shortcut() == QKeySequence(Qt::CTRL | Qt::Key_Z))
                return action->isEnabled();
        }
        return false;
    };
    QVERIFY(undo());
    m_window->showPage(ShellPage::Macros);
    clickOn(child<QPushButton>(m_window.get(), "m_recordBtn"));
    QVERIFY(!undo());
    clickOn(child<QPushButton>(m_window.get(), "m_recordBtn"));
    QVERIFY(undo());
}

void tst_MainWindow::statusGoesWithItsProfile()
{
    assign(7, "btn_48");
    QCOMPARE(said(), QStringLiteral("Assign B to key 7"));
    emit m_shell->context.goTo(3, NoKey);
    QCOMPARE(said(), QString());
    emit m_shell->context.status(QStringLiteral("It was copied."));
    emit m_shell->context.goTo(4, NoKey);
    QCOMPARE(said(), QStringLiteral("It was copied."));
}

void tst_MainWindow::captureKeepsShortcutsOut()
{
    clickOn(key(7));
    QVERIFY(m_shell->services.keyCapture().capturing());
    QKeyEvent event(QEvent::ShortcutOverride, Qt::Key_Z, Qt::ControlModifier);
    event.ignore();
    QCoreApplication::sendEvent(m_window.get(), &event);
    QVERIFY(event.isAccepted());
    clickOn(key(7));
    QVERIFY(!m_shell->services.keyCapture().capturing());
    event.ignore();
    QCoreApplication::sendEvent(m_window.get(), &event);
    QVERIFY(!event.isAccepted());
}

void tst_MainWindow::releasesOfOtherWindowsAreNotTaken()
{
    clickOn(key(7));
    QWidget *const capturing = m_shell->services.keyCapture().capturing();
    QVERIFY(capturing);
    sendNativeKey(capturing, QEvent::KeyRelease, 0x30, 0x42); // went down in a dialog
    m_shell->store().flush();
    QCOMPARE(key(7)->text(), QStringLiteral("W"));
    for (int i = 0; i < 2; ++i) {
        sendNativeKey(capturing, QEvent::KeyPress, 0x30, 0x42);
        sendNativeKey(capturing, QEvent::KeyRelease, 0x30, 0x42);
        m_shell->store().flush();
        QCOMPARE(key(7)->text(), QStringLiteral("B"));
        m_window->undo();
        clickOn(key(8));
        clickOn(key(7));
    }
}

void tst_MainWindow::pressForOneKeyIsNotTakenByAnother()
{
    clickOn(key(7));
    QWidget *const capturing = m_shell->services.keyCapture().capturing();
    QVERIFY(capturing);
    sendNativeKey(capturing, QEvent::KeyPress, 0x1D, 0x11); // Ctrl
    clickOn(key(8));
    QCOMPARE(m_shell->services.keyCapture().capturing(), capturing);
    sendNativeKey(capturing, QEvent::KeyRelease, 0x1D, 0x11);
    m_shell->store().flush();
    QCOMPARE(key(7)->text(), QStringLiteral("W"));
    QCOMPARE(key(8)->text(), QStringLiteral("E"));
    sendNativeKey(capturing, QEvent::KeyPress, 0x1D, 0x11);
    sendNativeKey(capturing, QEvent::KeyRelease, 0x1D, 0x11);
    m_shell->store().flush();
    QCOMPARE(key(7)->text(), QStringLiteral("W"));
    QVERIFY(key(8)->text().startsWith(QLatin1String("L_C")));
}

void tst_MainWindow::longPressIsTakenOnce()
{
    clickOn(key(7));
    QWidget *const capturing = m_shell->services.keyCapture().capturing();
    const auto send = [capturing](QEvent::Type type, bool isRepeat) {
        sendNativeKey(capturing, type, 0x30, 0x42, isRepeat);
    };
    const auto repeat = [&send] {
        send(QEvent::KeyRelease, true);
        send(QEvent::KeyPress, true);
    };
    // Went down in a dialog and is held over the page.
    repeat();
    send(QEvent::KeyRelease, false);
    m_shell->store().flush();
    QCOMPARE(key(7)->text(), QStringLiteral("W"));
    // Went down here, and is still down when another key is selected.
    send(QEvent::KeyPress, false);
    clickOn(key(8));
    repeat();
    send(QEvent::KeyRelease, false);
    m_shell->store().flush();
    QCOMPARE(key(8)->text(), QStringLiteral("E"));
    // Down and up for one key.
    send(QEvent::KeyPress, false);
    repeat();
    repeat();
    send(QEvent::KeyRelease, false);
    m_shell->store().flush();
    QCOMPARE(key(8)->text(), QStringLiteral("B"));
    QCOMPARE(key(7)->text(), QStringLiteral("W"));
}

void tst_MainWindow::captureEndsElsewhere()
{
    clickOn(key(7));
    clickOn(child<QListWidget>(m_window.get(), "m_profiles")->viewport(), QPoint(40, 10));
    QVERIFY(!m_shell->services.keyCapture().capturing());
}

void tst_MainWindow::reopening()
{
    assign(7, "btn_48");
    emit m_shell->context.goTo(2, 11);
    m_window->resize(1100, 800);
    m_window->close();
    m_window.reset();
    m_window = std::make_unique<MainWindow>(m_shell->context);
    m_window->show();
    QCOMPARE(m_window->size(), QSize(1100, 800));
    QCOMPARE(m_shell->context.profile(), 2);
    QVERIFY(key(11)->isChecked());
    QCOMPARE(said(), QStringLiteral("Not on the device yet: PROFILE 1."));
    m_window->undo();
    QCOMPARE(m_shell->context.profile(), 0);
    QCOMPARE(key(7)->text(), QStringLiteral("W"));
}

/// As after a process that was killed: nothing was told of an end.
void tst_MainWindow::shownProfileIsKeptAtOnce()
{
    emit m_shell->context.goTo(2, NoKey);
    m_shell->store().flush();
    QCOMPARE(m_shell->store().setting(QStringLiteral("shownProfile")), QStringLiteral("2"));
}

void tst_MainWindow::keysComeIntoView()
{
    m_window->resize(1024, 700);
    m_window->showPage(ShellPage::Check);
    emit m_shell->context.goTo(3, NoKey);
    QCOMPARE(m_window->shownPage(), ShellPage::Check);
    emit m_shell->context.keysWanted();
    QCOMPARE(m_window->shownPage(), ShellPage::Mapping);
    m_window->resize(1900, 1000);
    m_window->showPage(ShellPage::Check);
    QCoreApplication::processEvents();
    emit m_shell->context.keysWanted();
    QCOMPARE(m_window->shownPage(), ShellPage::Check);
}

void tst_MainWindow::reopeningWithNothingToApply()
{
    assign(7, "btn_48");
    click("m_apply");
    m_window.reset();
    open();
    QCOMPARE(said(), QStringLiteral("Everything is on the device."));
}

void tst_MainWindow::deletingAMacroAppliesNothing()
{
    m_shell->store().addMacro(0, QStringLiteral("Hello"), {});
    m_shell->store().setNamedMacroKey(0, 0, "Hello", 5);
    assign(7, "btn_48");
    QVERIFY(m_shell->device().differs(0, 0));
    emit m_shell->context.macroAboutToBeRemoved(QStringLiteral("Hello"));
    m_shell->store().removeMacro(0, QStringLiteral("Hello"));
    m_shell->store().flush();
    QVERIFY(m_shell->device().differs(0, 0));
    click("m_apply");
    QVERIFY(!m_shell->device().differs(0, 0));
}

void tst_MainWindow::fullDisk()
{
    auto *const bar = child<MessageBar>(m_window.get(), "m_messageBar");
    auto *const saved = child<QLabel>(m_window.get(), "m_savedLab");
    QCOMPARE(saved->text(), QStringLiteral("Saved"));
    m_shell->store().setPageLimit(m_shell->store().pageCount());
    for (int index = 0; index < 28 && m_shell->store().isSaved(); ++index) {
        m_shell->store().addMacro(0, QStringLiteral("M%1").arg(index), {});
        m_shell->store().flush();
    }
    QVERIFY(!m_shell->store().isSaved());
    QVERIFY(bar->isVisible());
    QCOMPARE(saved->text(), QStringLiteral("NOT SAVED"));
    assign(7, "btn_48");
    QCOMPARE(key(7)->text(), QStringLiteral("B"));
    m_shell->store().setPageLimit(0);
    QVERIFY(m_shell->store().flush());
    QCOMPARE(saved->text(), QStringLiteral("Saved"));
    const QString again = QStringLiteral("All changes are saved again.");
    auto *const message = child<QLabel>(bar, "m_messageLab");
    QVERIFY(message->text().endsWith(again));
    m_shell->store().setPageLimit(m_shell->store().pageCount());
    for (int index = 28; index < 56 && m_shell->store().isSaved(); ++index) {
        m_shell->store().addMacro(0, QStringLiteral("M%1").arg(index), {});
        m_shell->store().flush();
    }
    QCOMPARE(saved->text(), QStringLiteral("NOT SAVED"));
    QVERIFY(!message->text().endsWith(again));
    QCOMPARE(message->text().count('\n'), 1);
    m_shell->store().setPageLimit(0);
}

void tst_MainWindow::closingWithWhatCannotBeSaved()
{
    QStringList asked;
    int answer = 0;
    Modal::setAnswerer([&](const ModalPrompt &prompt) {
        asked << prompt.text;
        return QVariant(answer);
    });
    m_shell->store().setPageLimit(m_shell->store().pageCount());
    for (int index = 0; index < 28 && m_shell->store().isSaved(); ++index) {
        m_shell->store().addMacro(0, QStringLiteral("M%1").arg(index), {});
        m_shell->store().flush();
    }
    QVERIFY(!m_window->close());
    QVERIFY(m_window->isVisible());
    QCOMPARE(asked, QStringList(QStringLiteral("The changes cannot be saved and are lost with "
                                               "the window. Close it?")));
    answer = 1;
    QVERIFY(m_window->close());
    QCOMPARE(asked.size(), 2);
    m_window->show();
    m_shell->store().setPageLimit(0);
    QVERIFY(m_window->close());
    QCOMPARE(asked.size(), 2);
}

/// Where the window went is not worth a question.
void tst_MainWindow::closingWithoutEditsOnAFullDisk()
{
    bool isAsked = false;
    Modal::setAnswerer([&](const ModalPrompt &) {
        isAsked = true;
        return QVariant(0);
    });
    ProfileStore &store = m_shell->store();
    store.setPageLimit(store.pageCount());
    for (int size = 1000; store.isSaved() && size < 1'000'000; size *= 2) {
        store.setSetting(QStringLiteral("large"), QString(size, QLatin1Char('x')));
        store.flush();
    }
    QVERIFY(!store.isSaved());
    QVERIFY(m_window->close());
    QVERIFY(!isAsked);
    m_window->show();
    assign(7, "btn_48");
    QVERIFY(!m_window->close());
    QVERIFY(isAsked);
}

void tst_MainWindow::closingAfterTheFileIsGone()
{
    QStringList asked;
    Modal::setAnswerer([&](const ModalPrompt &prompt) {
        asked << prompt.text;
        return QVariant(0);
    });
    const QString folder = m_shell->folder.filePath(QStringLiteral("data"));
    QVERIFY(QDir(folder).removeRecursively());
    QFile notAFolder(folder);
    QVERIFY(notAFolder.open(QIODevice::WriteOnly));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("our own lock file")));
    QVERIFY(!m_window->close());
    QCOMPARE(asked.size(), 1);
    QVERIFY(notAFolder.remove());
    QVERIFY(m_window->close());
    QCOMPARE(asked.size(), 1);
}

void tst_MainWindow::opensNarrow()
{
    m_window.reset();
    open(1024, 700);
    auto *const profiles = child<ProfileList>(m_window.get(), "m_profileList");
    QVERIFY(profiles->isCompact());
}

/// A store may hold anything: every key with any bytes is shown, selected and listed.
void tst_MainWindow::anyBytesAreShown()
{
    std::mt19937 random(42);
    m_window->showPage(ShellPage::Changes);
    for (int round = 0; round < 12; ++round) {
        for (int index = 0; index < KeyCount; ++index) {
            std::array<quint8, sizeof(vantrix_key_mapping)> bytes;
            for (quint8 &byte : bytes)
                byte = quint8(random());
            if (round % 2)
                bytes[0] = quint8(random() % 4);
            vantrix_key_mapping mapping;
            std::memcpy(&mapping, bytes.data(), bytes.size());
            m_shell->store().setKeyMapping(0, 0, index, &mapping);
        }
        m_shell->store().setMode(0, 0, round % 4 / 2);
        m_shell->store().setInput(0, 0, int(random() % 13));
        m_shell->store().flush();
        m_window->mappingView()->refresh();
        for (int index = 0; index < KeyCount; ++index)
            emit m_shell->context.goTo(0, index);
        m_window->showPage(ShellPage(1 + round % 5));
        QCoreApplication::processEvents();
        click("m_apply");
        m_shell->store().flush();
        QVERIFY(!m_shell->device().differs(0, 0));
    }
}

void tst_MainWindow::secondShell()
{
    m_window->close();
    m_window.reset();
    HostServices second(m_shell->folder.filePath(QStringLiteral("data")));
    ShellContext context(second);
    MainWindow window(context);
    window.show();
    auto *const bar = child<MessageBar>(&window, "m_messageBar");
    QVERIFY(bar->isVisible());
    QCOMPARE(bar->messages().size(), 1);
    QVERIFY(window.windowTitle().contains(QStringLiteral("(read only)")));
    QCOMPARE(child<QLabel>(&window, "m_savedLab")->text(), QStringLiteral("READ ONLY"));
    child<QPushButton>(bar, "m_dismissBtn")->click();
    QVERIFY(!bar->isVisible());
}

void tst_MainWindow::titleAndCounts()
{
    auto *const tab = child<QPushButton>(m_window.get(), "m_tab1");
    QCOMPARE(tab->text(), QStringLiteral("CHANGES"));
    assign(7, "btn_48");
    QCOMPARE(tab->text(), QStringLiteral("CHANGES 1"));
    m_shell->store().setProfileName(0, 0, QStringLiteral("Games"));
    m_shell->store().flush();
    QCOMPARE(m_window->windowTitle(), QStringLiteral("Games - VANTRIX"));
}

VANTRIX_TEST_MAIN(tst_MainWindow)
#include "tst_MainWindow.moc"
