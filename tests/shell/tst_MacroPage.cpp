#include "shell/MacroPage.h"

#include "ShellFixture.h"
#include "shell/KeyCombo.h"
#include "shell/MacroEventModel.h"
#include "support/Gestures.h"
#include "support/TestMain.h"
#include "vocabulary/KeyLegends.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QTreeWidget>

#include <memory>
#include <random>

class tst_MacroPage : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void newMacro();
    void newNamesAreUnique();
    void duplicate();
    void renameInTheList();
    void closedWhileANameIsEdited();
    void renameToATakenName();
    void renameToNothing();
    void removeTellsThePageFirst();
    void removeChoosesTheNext();
    void undoChoosesWhatComesBack();
    void moveInTheList();
    void keysOfTheEventTable();
    void removeByKeyboard();
    void recordKeys();
    void undoWhileRecording();
    void recordWithFixedDelays();
    void recordWithoutDelays();
    void recordAppends();
    void recordWithoutAMacroMakesOne();
    void recordEndsWithTheFocus();
    void recordFull();
    void shortcutsAreRecordedNotRun();
    void addEvents();
    void addAfterTheChosenEvent();
    void addPastTheLimit();
    void refusalsLeaveWithTheEvents();
    void namesAreShownLetterByLetter();
    void addWhatIsNoKey();
    void deleteEvents();
    void moveEvents();
    void editCells();
    void editCellsWithEditors();
    void setAllDelays();
    void everyChangeIsAStep();
    void undoIsShown();
    void showingWritesNothing();
    void usesLeadToTheirKeys();
    void changesBehindItsBackAreShown();
    void beginForAKeyAndBack();
    void beginForAKeyAndBackWithNothing();
    void leftByATabWithNothing();
    void begunTwiceForAKey();
    void begunAndDeleted();
    void begunAndAnotherChosen();
    void begunAndLeft();
    void keysOfANameEditor();
    void anyOrderOfGestures_data();
    void anyOrderOfGestures();
    void foreignBytesStay();
    void keysFollowTheLanguage();
    void narrowAndWide();

private:
    using Events = MacroEventModel::Events;

    ProfileStore &store() { return m_shell->store(); }
    template <typename T>
    T *child(const char *name)
    {
        return ::child<T>(m_page.get(), QLatin1String(name));
    }
    void click(const char *name) { clickOn(child<QPushButton>(name)); }
    QTreeWidget *list() { return child<QTreeWidget>("m_macroList"); }
    QTableView *table() { return child<QTableView>("m_eventTable"); }
    QStringList names() { return store().state().macroNames(0); }
    QString message() { return child<QLabel>("m_message")->text(); }
    Events events(const char *name)
    {
        return MacroEventModel::eventsOf(*store().state().macro(0, QLatin1String(name)));
    }
    void add(const char *name, const Events &events)
    {
        store().addMacro(0, QLatin1String(name),
                         MacroEventModel::withEvents(vantrix_macro_record(), events));
        store().flush();
        m_page->selectMacro(QLatin1String(name));
    }
    /// Records A into a new macro "Save", with fixed delays of 75 ms.
    void recordA75()
    {
        add("Save", {});
        choose("m_delayMode", MacroRecorder::Fixed);
        child<QSpinBox>("m_fixedDelay")->setValue(75);
        click("m_recordBtn");
        type(0x1E, 0x41, 30);
        click("m_recordBtn");
    }
    void type(quint32 scan, quint32 key, int ms)
    {
        QWidget *const pad = child<QLabel>("m_recordPad");
        sendNativeKey(pad, QEvent::KeyPress, scan, key);
        m_now += ms;
        sendNativeKey(pad, QEvent::KeyRelease, scan, key);
        m_now += ms;
    }
    void choose(const char *combo, const QVariant &data)
    {
        auto *const box = child<QComboBox>(combo);
        box->setCurrentIndex(box->findData(data));
    }

    qint64 m_now = 0;
    std::unique_ptr<ShellFixture> m_shell;
    std::unique_ptr<MacroPage> m_page;
};

namespace {

const MacroEventModel::Events Four = {{4, 1, 10}, {4, 0, 20}, {5, 1, 30}, {5, 0, 40}};

} // namespace

void tst_MacroPage::init()
{
    m_now = 0;
    m_shell = std::make_unique<ShellFixture>();
    m_shell->services.environment().setLanguage(2);
    m_page = std::make_unique<MacroPage>(m_shell->context);
    m_page->setClock([this] { return m_now; });
    m_page->resize(400, 620);
    m_page->show();
    m_page->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_page.get()));
}

void tst_MacroPage::cleanup()
{
    m_page.reset();
    m_shell.reset();
}

// ---- the list ----

void tst_MacroPage::newMacro()
{
    QSignalSpy added(&m_shell->context, &ShellContext::macroAdded);
    click("m_newBtn");
    QCOMPARE(names(), QStringList(QStringLiteral("Macro")));
    QCOMPARE(added.count(), 1);
    QCOMPARE(added[0][0].toString(), QStringLiteral("Macro"));
    QCOMPARE(m_page->currentMacro(), QStringLiteral("Macro"));
    QCOMPARE(list()->topLevelItemCount(), 1);
    QCOMPARE(list()->topLevelItem(0)->text(0), QStringLiteral("M1"));
    QCOMPARE(child<QLabel>("m_title")->text(), QStringLiteral("Macro: 0 of 127 events"));
}

void tst_MacroPage::newNamesAreUnique()
{
    for (int i = 0; i < 3; ++i)
        click("m_newBtn");
    QCOMPARE(names(), QStringList({QStringLiteral("Macro"), QStringLiteral("Macro 2"),
                                   QStringLiteral("Macro 3")}));
}

void tst_MacroPage::duplicate()
{
    add("Save", Four);
    click("m_duplicateBtn");
    QCOMPARE(names(), QStringList({QStringLiteral("Save"), QStringLiteral("Save 2")}));
    QVERIFY(events("Save 2") == Four);
    QCOMPARE(m_page->currentMacro(), QStringLiteral("Save 2"));
    click("m_duplicateBtn");
    QCOMPARE(m_page->currentMacro(), QStringLiteral("Save 3"));
    add("Level 5", Four);
    click("m_duplicateBtn");
    QCOMPARE(m_page->currentMacro(), QStringLiteral("Level 5 2"));
}

void tst_MacroPage::renameInTheList()
{
    add("Save", Four);
    store().setNamedMacroKey(0, 3, "Save", 7);
    QSignalSpy renamed(&m_shell->context, &ShellContext::macroRenamed);
    list()->setFocus();
    pressKey(list(), Qt::Key_F2);
    auto *const editor = list()->findChild<QLineEdit *>();
    QVERIFY(editor);
    editor->setText(QStringLiteral("  Keep  "));
    pressKey(editor, Qt::Key_Return);
    QTRY_COMPARE(names(), QStringList(QStringLiteral("Keep")));
    QCOMPARE(*store().state().macroKey(0, 3, 7), QStringLiteral("Keep"));
    QCOMPARE(renamed.count(), 1);
    QCOMPARE(renamed[0], QVariantList({QStringLiteral("Save"), QStringLiteral("Keep")}));
    QCOMPARE(list()->topLevelItem(0)->text(1), QStringLiteral("Keep"));
    QCOMPARE(m_page->currentMacro(), QStringLiteral("Keep"));
    store().flush();
    QCOMPARE(store().undoName(), QStringLiteral("Rename macro Save to Keep"));
}

void tst_MacroPage::closedWhileANameIsEdited()
{
    add("Save", Four);
    list()->setFocus();
    pressKey(list(), Qt::Key_F2);
    list()->findChild<QLineEdit *>()->setText(QStringLiteral("Keep"));
    m_page.reset();
    QCOMPARE(names().size(), 1);
}

void tst_MacroPage::renameToATakenName()
{
    add("Save", Four);
    add("Keep", Four);
    QSignalSpy renamed(&m_shell->context, &ShellContext::macroRenamed);
    list()->topLevelItem(1)->setText(1, QStringLiteral("Save"));
    QCOMPARE(names(), QStringList({QStringLiteral("Save"), QStringLiteral("Keep")}));
    QCOMPARE(message(), QStringLiteral("There is another macro named \"Save\"."));
    QCOMPARE(list()->topLevelItem(1)->text(1), QStringLiteral("Keep"));
    QCOMPARE(renamed.count(), 0);
}

void tst_MacroPage::renameToNothing()
{
    add("Save", Four);
    list()->topLevelItem(0)->setText(1, QStringLiteral("   "));
    QCOMPARE(names(), QStringList(QStringLiteral("Save")));
    QCOMPARE(message(), QStringLiteral("A macro needs a name."));
    QCOMPARE(list()->topLevelItem(0)->text(1), QStringLiteral("Save"));
}

void tst_MacroPage::removeTellsThePageFirst()
{
    add("Save", Four);
    store().setNamedMacroKey(0, 0, "Save", 7);
    store().setNamedMacroKey(0, 5, "Save", 8);
    store().flush();
    QStringList said;
    connect(&m_shell->context, &ShellContext::status, this,
            [&said](const QString &text) { said << text; });
    int keysThen = -1;
    connect(&m_shell->context, &ShellContext::macroAboutToBeRemoved, this,
            [&](const QString &name) { keysThen = int(store().keysOfMacro(0, name).size()); });
    click("m_deleteBtn");
    QCOMPARE(keysThen, 2);
    QVERIFY(names().isEmpty());
    QVERIFY(!store().state().macroKey(0, 5, 8));
    QCOMPARE(said.last(), QStringLiteral("Macro Save was deleted and taken off 2 keys."));
    store().flush();
    QCOMPARE(store().undoName(), QStringLiteral("Delete macro Save"));
    store().undo();
    QCOMPARE(*store().state().macroKey(0, 5, 8), QStringLiteral("Save"));
}

void tst_MacroPage::undoChoosesWhatComesBack()
{
    for (const char *const name : {"A", "B", "C"})
        add(name, Four);
    list()->topLevelItem(2)->setText(1, QStringLiteral("Z"));
    store().flush();
    QCOMPARE(m_page->currentMacro(), QStringLiteral("Z"));
    store().undo();
    QCOMPARE(m_page->currentMacro(), QStringLiteral("C"));
    store().redo();
    QCOMPARE(m_page->currentMacro(), QStringLiteral("Z"));
    m_page->selectMacro(QStringLiteral("B"));
    click("m_deleteBtn");
    store().flush();
    QCOMPARE(m_page->currentMacro(), QStringLiteral("Z"));
    store().undo();
    QCOMPARE(m_page->currentMacro(), QStringLiteral("B"));
    store().redo(); // B goes again, and Z takes its place
    QCOMPARE(m_page->currentMacro(), QStringLiteral("Z"));
}

void tst_MacroPage::moveInTheList()
{
    for (const char *const name : {"A", "B", "C"})
        add(name, Four);
    QCOMPARE(m_page->currentMacro(), QStringLiteral("C"));
    list()->setFocus();
    QTest::keyClick(list(), Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(names(), QStringList({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")}));
    QTest::keyClick(list(), Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(names(), QStringList({QStringLiteral("A"), QStringLiteral("C"), QStringLiteral("B")}));
    QCOMPARE(m_page->currentMacro(), QStringLiteral("C"));
    QCOMPARE(list()->currentIndex().row(), 1);
    store().flush();
    QCOMPARE(store().undoName(), QStringLiteral("Move macro C"));
    QTest::keyClick(list(), Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(names(), QStringList({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")}));
}

void tst_MacroPage::keysOfTheEventTable()
{
    add("Save", Four);
    table()->setFocus();
    table()->setCurrentIndex(table()->model()->index(1, 2));
    QTest::keyClick(table(), Qt::Key_F2);
    QVERIFY(table()->findChild<QSpinBox *>());
}

void tst_MacroPage::removeChoosesTheNext()
{
    for (const char *const name : {"A", "B", "C"})
        add(name, Four);
    m_page->selectMacro(QStringLiteral("B"));
    click("m_deleteBtn");
    QCOMPARE(m_page->currentMacro(), QStringLiteral("C"));
    QCOMPARE(list()->topLevelItem(1)->text(0), QStringLiteral("M2"));
    click("m_deleteBtn");
    QCOMPARE(m_page->currentMacro(), QStringLiteral("A"));
    click("m_deleteBtn");
    QCOMPARE(m_page->currentMacro(), QString());
    QVERIFY(!child<QPushButton>("m_deleteBtn")->isEnabled());
    QCOMPARE(child<QLabel>("m_title")->text(),
             QStringLiteral("Make a new macro, then record keys."));
}

void tst_MacroPage::removeByKeyboard()
{
    add("Save", Four);
    list()->setFocus();
    pressKey(list(), Qt::Key_Delete);
    QVERIFY(names().isEmpty());
}

// ---- recording ----

void tst_MacroPage::recordKeys()
{
    add("Save", {});
    click("m_recordBtn");
    QWidget *const pad = child<QLabel>("m_recordPad");
    QVERIFY(pad->isVisible());
    QCOMPARE(m_shell->services.keyCapture().capturing(), pad);
    sendNativeKey(pad, QEvent::KeyPress, 0x1D, 0x11); // Ctrl
    m_now += 50;
    type(0x1F, 0x53, 30); // S
    sendNativeKey(pad, QEvent::KeyRelease, 0x1D, 0x11);
    m_now += 1000;
    click("m_recordBtn");
    QVERIFY(!pad->isVisible());
    QVERIFY(!m_shell->services.keyCapture().capturing());
    QVERIFY(events("Save") == Events({{0xE0, 1, 50}, {0x16, 1, 30}, {0x16, 0, 30}, {0xE0, 0, 0}}));
    QCOMPARE(table()->model()->rowCount(), 4);
    QCOMPARE(list()->topLevelItem(0)->text(2), QStringLiteral("4"));
}

/// What is recorded follows what the macro has now, not what it had when the recording began.
void tst_MacroPage::undoWhileRecording()
{
    recordA75();
    QCOMPARE(int(events("Save").size()), 2);
    click("m_recordBtn");
    type(0x1F, 0x53, 30);
    store().undo();
    store().flush();
    QVERIFY(events("Save") == Events());
    click("m_recordBtn");
    QVERIFY(events("Save") == Events({{22, 1, 75}, {22, 0, 75}}));
}

void tst_MacroPage::recordWithFixedDelays()
{
    recordA75();
    QVERIFY(events("Save") == Events({{4, 1, 75}, {4, 0, 75}}));
}

void tst_MacroPage::recordWithoutDelays()
{
    add("Save", {});
    choose("m_delayMode", MacroRecorder::None);
    click("m_recordBtn");
    type(0x1E, 0x41, 30);
    click("m_recordBtn");
    QVERIFY(events("Save") == Events({{4, 1, 0}, {4, 0, 0}}));
}

void tst_MacroPage::recordAppends()
{
    add("Save", Four);
    click("m_recordBtn");
    type(0x20, 0x44, 30);
    click("m_recordBtn");
    Events expected = Four;
    expected.push_back({7, 1, 30});
    expected.push_back({7, 0, 0});
    QVERIFY(events("Save") == expected);
}

void tst_MacroPage::recordWithoutAMacroMakesOne()
{
    click("m_recordBtn");
    type(0x1E, 0x41, 30);
    click("m_recordBtn");
    QCOMPARE(names(), QStringList(QStringLiteral("Macro")));
    QCOMPARE(int(events("Macro").size()), 2);
}

void tst_MacroPage::recordEndsWithTheFocus()
{
    add("Save", {});
    click("m_recordBtn");
    type(0x1E, 0x41, 30);
    list()->setEnabled(true);
    list()->setFocus();
    QVERIFY(!child<QLabel>("m_recordPad")->isVisible());
    QCOMPARE(int(events("Save").size()), 2);
    QCOMPARE(child<QPushButton>("m_recordBtn")->text(), QStringLiteral("RECORD"));
}

void tst_MacroPage::recordFull()
{
    add("Save", Events(124, {4, 1, 0}));
    click("m_recordBtn");
    type(0x1E, 0x41, 1);
    type(0x1E, 0x41, 1);
    QVERIFY(!child<QLabel>("m_recordPad")->isVisible());
    QCOMPARE(int(events("Save").size()), 126);
    QCOMPARE(message(), QStringLiteral("A macro holds at most 127 events."));
    click("m_recordBtn");
    QVERIFY(!child<QLabel>("m_recordPad")->isVisible());
    QCOMPARE(message(), QStringLiteral("A macro holds at most 127 events."));
}

void tst_MacroPage::shortcutsAreRecordedNotRun()
{
    add("Save", {});
    QAction undo(m_page.get());
    undo.setShortcut(Qt::CTRL | Qt::Key_Z);
    m_page->addAction(&undo);
    QSignalSpy ran(&undo, &QAction::triggered);
    click("m_recordBtn");
    QWidget *const pad = child<QLabel>("m_recordPad");
    QTest::keyClick(pad, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(ran.count(), 0);
    type(0x2C, 0x5A, 30);
    click("m_recordBtn");
    QCOMPARE(ran.count(), 0);
    QVERIFY(events("Save") == Events({{29, 1, 30}, {29, 0, 0}}));
}

// ---- events ----

void tst_MacroPage::addEvents()
{
    add("Save", {});
    child<KeyCombo>("m_newKey")->setEditText(QStringLiteral("b"));
    click("m_addEventBtn");
    choose("m_newEvent", 1);
    click("m_addEventBtn");
    choose("m_newEvent", 2);
    choose("m_newKey", 481); // a mouse function
    child<QSpinBox>("m_fixedDelay")->setValue(300);
    click("m_addEventBtn");
    QVERIFY(events("Save") == Events({{5, 1, 20}, {5, 0, 20}, {5, 1, 20}, {481, 0, 300}}));
}

void tst_MacroPage::addAfterTheChosenEvent()
{
    add("Save", Four);
    table()->selectRow(1);
    choose("m_newKey", 7);
    click("m_addEventBtn");
    QVERIFY(events("Save") ==
            Events({{4, 1, 10}, {4, 0, 20}, {7, 1, 20}, {7, 0, 20}, {5, 1, 30}, {5, 0, 40}}));
    QCOMPARE(table()->currentIndex().row(), 3);
}

void tst_MacroPage::addPastTheLimit()
{
    const Events most(126, {4, 1, 0});
    add("Save", most);
    choose("m_newKey", 7);
    choose("m_newEvent", 1);
    click("m_addEventBtn");
    QCOMPARE(int(events("Save").size()), 127);
    QCOMPARE(message(), QString());
    click("m_addEventBtn");
    QCOMPARE(int(events("Save").size()), 127);
    QCOMPARE(message(), QStringLiteral("A macro holds at most 127 events."));
}

void tst_MacroPage::refusalsLeaveWithTheEvents()
{
    add("Save", Events(127, {4, 1, 0}));
    click("m_addEventBtn");
    QCOMPARE(message(), QStringLiteral("A macro holds at most 127 events."));
    store().undo();
    store().flush();
    QCOMPARE(message(), QString());
}

void tst_MacroPage::namesAreShownLetterByLetter()
{
    add("R&D <b> 5%2", Four);
    auto *const title = child<QLabel>("m_title");
    QCOMPARE(title->text(), QStringLiteral("R&D <b> 5%2: 4 of 127 events"));
    QCOMPARE(title->textFormat(), Qt::PlainText);
    QCOMPARE(child<QLabel>("m_message")->textFormat(), Qt::PlainText);
    store().setProfileName(0, 0, QStringLiteral("P&Q"));
    store().setNamedMacroKey(0, 0, "R&D <b> 5%2", 7);
    store().flush();
    auto *const chip = child<QWidget>("m_uses")->findChild<QPushButton *>();
    QVERIFY(chip);
    QVERIFY2(chip->text().startsWith(QLatin1String("P&&Q ")), qPrintable(chip->text()));
}

void tst_MacroPage::addWhatIsNoKey()
{
    add("Save", Four);
    child<KeyCombo>("m_newKey")->setEditText(QStringLiteral("nonsense"));
    click("m_addEventBtn");
    QVERIFY(events("Save") == Four);
    QCOMPARE(message(), QStringLiteral("\"nonsense\" is not a key that a macro can have."));
}

void tst_MacroPage::deleteEvents()
{
    add("Save", Four);
    QVERIFY(!child<QPushButton>("m_deleteEventBtn")->isEnabled());
    table()->selectRow(0);
    table()->selectionModel()->select(table()->model()->index(2, 0),
                                      QItemSelectionModel::Select | QItemSelectionModel::Rows);
    click("m_deleteEventBtn");
    QVERIFY(events("Save") == Events({{4, 0, 20}, {5, 0, 40}}));
    table()->selectRow(0);
    table()->setFocus();
    pressKey(table(), Qt::Key_Delete);
    QVERIFY(events("Save") == Events({{5, 0, 40}}));
}

void tst_MacroPage::moveEvents()
{
    add("Save", Four);
    table()->selectRow(0);
    QVERIFY(!child<QPushButton>("m_upBtn")->isEnabled());
    click("m_downBtn");
    QVERIFY(events("Save") == Events({{4, 0, 20}, {4, 1, 10}, {5, 1, 30}, {5, 0, 40}}));
    QCOMPARE(table()->currentIndex().row(), 1);
    table()->setFocus();
    pressKey(table(), Qt::Key_Down, Qt::AltModifier);
    pressKey(table(), Qt::Key_Down, Qt::AltModifier);
    QVERIFY(events("Save") == Events({{4, 0, 20}, {5, 1, 30}, {5, 0, 40}, {4, 1, 10}}));
    QVERIFY(!child<QPushButton>("m_downBtn")->isEnabled());
    pressKey(table(), Qt::Key_Down, Qt::AltModifier);
    click("m_upBtn");
    QVERIFY(events("Save") == Events({{4, 0, 20}, {5, 1, 30}, {4, 1, 10}, {5, 0, 40}}));
}

void tst_MacroPage::editCells()
{
    add("Save", Four);
    QAbstractItemModel *const model = table()->model();
    QVERIFY(model->setData(model->index(0, 2), 500));
    QVERIFY(model->setData(model->index(1, 1), 9));
    QVERIFY(model->setData(model->index(2, 0), 0));
    QVERIFY(!model->setData(model->index(3, 1), QVariant()));
    QVERIFY(events("Save") == Events({{4, 1, 500}, {9, 0, 20}, {5, 0, 30}, {5, 0, 40}}));
    QCOMPARE(model->index(0, 2).data().toString(), QStringLiteral("500 ms"));
}

void tst_MacroPage::editCellsWithEditors()
{
    add("Save", Four);
    table()->edit(table()->model()->index(0, 2));
    auto *const spin = table()->findChild<QSpinBox *>();
    QVERIFY(spin);
    QCOMPARE(spin->value(), 10);
    spin->setValue(70);
    pressKey(spin, Qt::Key_Return);
    QTRY_COMPARE(int(events("Save")[0].delay), 70);
    table()->edit(table()->model()->index(1, 1));
    auto *const keys = table()->findChild<KeyCombo *>();
    QVERIFY(keys);
    QCOMPARE(keys->code(), 4);
    keys->setEditText(QStringLiteral("C"));
    pressKey(keys, Qt::Key_Return);
    QTRY_VERIFY(events("Save") == Events({{4, 1, 70}, {6, 0, 20}, {5, 1, 30}, {5, 0, 40}}));
}

void tst_MacroPage::setAllDelays()
{
    add("Save", Four);
    child<QSpinBox>("m_fixedDelay")->setValue(5);
    click("m_setDelaysBtn");
    QVERIFY(events("Save") == Events({{4, 1, 5}, {4, 0, 5}, {5, 1, 5}, {5, 0, 5}}));
    choose("m_delayMode", MacroRecorder::None);
    click("m_setDelaysBtn");
    QVERIFY(events("Save") == Events({{4, 1, 0}, {4, 0, 0}, {5, 1, 0}, {5, 0, 0}}));
}

void tst_MacroPage::everyChangeIsAStep()
{
    click("m_newBtn");
    store().flush();
    click("m_recordBtn");
    type(0x1E, 0x41, 30);
    click("m_recordBtn");
    store().flush();
    table()->selectRow(0);
    click("m_downBtn");
    store().flush();
    click("m_deleteEventBtn");
    store().flush();
    QAbstractItemModel *const model = table()->model();
    model->setData(model->index(0, 2), 500);
    store().flush();
    QCOMPARE(store().stepNames(), QStringList({QStringLiteral("Add macro Macro"),
                                               QStringLiteral("Add events to macro Macro"),
                                               QStringLiteral("Move an event of macro Macro"),
                                               QStringLiteral("Delete events of macro Macro"),
                                               QStringLiteral("Change a delay of macro Macro")}));
}

void tst_MacroPage::undoIsShown()
{
    add("Save", Four);
    table()->selectRow(0);
    click("m_deleteEventBtn");
    store().flush();
    QCOMPARE(table()->model()->rowCount(), 3);
    store().undo();
    QCOMPARE(table()->model()->rowCount(), 4);
    store().undo();
    QCOMPARE(list()->topLevelItemCount(), 0);
    QCOMPARE(table()->model()->rowCount(), 0);
    store().redo();
    QCOMPARE(list()->topLevelItemCount(), 1);
    QCOMPARE(m_page->currentMacro(), QStringLiteral("Save"));
}

void tst_MacroPage::showingWritesNothing()
{
    add("A", Four);
    add("B", {});
    store().flush();
    const QByteArray before = store().state().toBytes();
    const int steps = store().stepPosition();
    list()->setCurrentItem(list()->topLevelItem(0));
    list()->setCurrentItem(list()->topLevelItem(1));
    m_page->hide();
    m_page->show();
    store().flush();
    QCOMPARE(store().state().toBytes(), before);
    QCOMPARE(store().stepPosition(), steps);
}

// ---- keys ----

void tst_MacroPage::usesLeadToTheirKeys()
{
    add("Save", Four);
    QCOMPARE(child<QLabel>("m_usesTitle")->text(), QStringLiteral("NO KEY HAS IT"));
    store().setNamedMacroKey(0, 0, "Save", 7);
    store().setNamedMacroKey(0, 4, "Save", 22);
    store().setProfileName(0, 4, QStringLiteral("Games"));
    store().flush();
    QCOMPARE(child<QLabel>("m_usesTitle")->text(), QStringLiteral("KEYS THAT HAVE IT"));
    QCOMPARE(list()->topLevelItem(0)->text(3), QStringLiteral("2"));
    QList<QPushButton *> chips;
    for (QPushButton *const chip : child<QWidget>("m_uses")->findChildren<QPushButton *>()) {
        if (!chip->isHidden())
            chips << chip;
    }
    QCOMPARE(chips.size(), 2);
    QCOMPARE(chips[0]->text(), QStringLiteral("PROFILE 1 \u00B7 Key 7"));
    QCOMPARE(chips[1]->text(), QStringLiteral("Games \u00B7 Key 22"));
    QSignalSpy asked(&m_shell->context, &ShellContext::goTo);
    clickOn(chips[1]);
    QCOMPARE(asked.count(), 1);
    QCOMPARE(asked[0], QVariantList({4, 22}));
}

void tst_MacroPage::changesBehindItsBackAreShown()
{
    add("Save", Four);
    m_page->hide();
    store().setNamedMacroKey(0, 0, "Save", 7);
    store().addMacro(0, QStringLiteral("Other"), vantrix_macro_record());
    store().flush();
    m_page->show();
    QCOMPARE(list()->topLevelItemCount(), 2);
    QCOMPARE(list()->topLevelItem(0)->text(3), QStringLiteral("1"));
    QCOMPARE(child<QLabel>("m_usesTitle")->text(), QStringLiteral("KEYS THAT HAVE IT"));
}

void tst_MacroPage::beginForAKeyAndBack()
{
    std::vector<ShellPage> asked;
    connect(&m_shell->context, &ShellContext::pageRequested, this,
            [&asked](ShellPage page) { asked.push_back(page); });
    emit m_shell->context.newMacroRequested();
    QCOMPARE(names(), QStringList(QStringLiteral("Macro")));
    QVERIFY(child<QPushButton>("m_backBtn")->isVisible());
    click("m_recordBtn");
    type(0x1E, 0x41, 30);
    click("m_backBtn");
    QCOMPARE(int(events("Macro").size()), 2);
    QVERIFY(!child<QPushButton>("m_backBtn")->isVisible());
    QVERIFY(asked == std::vector<ShellPage>({ShellPage::Mapping}));
}

void tst_MacroPage::beginForAKeyAndBackWithNothing()
{
    QSignalSpy removed(&m_shell->context, &ShellContext::macroAboutToBeRemoved);
    emit m_shell->context.newMacroRequested();
    click("m_backBtn");
    QVERIFY(names().isEmpty());
    QCOMPARE(removed.count(), 1);
}

void tst_MacroPage::leftByATabWithNothing()
{
    emit m_shell->context.newMacroRequested();
    emit m_shell->context.pageShown(ShellPage::Macros);
    QCOMPARE(names(), QStringList(QStringLiteral("Macro")));
    emit m_shell->context.pageShown(ShellPage::History);
    QVERIFY(names().isEmpty());
    QVERIFY(!child<QPushButton>("m_backBtn")->isVisible());
}

void tst_MacroPage::begunTwiceForAKey()
{
    emit m_shell->context.newMacroRequested();
    emit m_shell->context.newMacroRequested();
    QCOMPARE(names(), QStringList(QStringLiteral("Macro")));
    click("m_recordBtn");
    type(0x1E, 0x41, 30);
    emit m_shell->context.newMacroRequested();
    QCOMPARE(names(), QStringList({QStringLiteral("Macro"), QStringLiteral("Macro 2")}));
    QCOMPARE(int(events("Macro").size()), 2);
    QVERIFY(child<QPushButton>("m_backBtn")->isVisible());
    emit m_shell->context.pageShown(ShellPage::Mapping);
    QCOMPARE(names(), QStringList(QStringLiteral("Macro")));
}

void tst_MacroPage::begunAndDeleted()
{
    emit m_shell->context.newMacroRequested();
    click("m_deleteBtn");
    click("m_newBtn");
    emit m_shell->context.pageShown(ShellPage::History);
    QCOMPARE(names(), QStringList(QStringLiteral("Macro")));
}

void tst_MacroPage::begunAndAnotherChosen()
{
    for (const char *const name : {"A", "B", "C"})
        add(name, Four);
    emit m_shell->context.newMacroRequested();
    m_page->selectMacro(QStringLiteral("A"));
    emit m_shell->context.pageShown(ShellPage::History);
    QCOMPARE(names().size(), 3);
    QCOMPARE(m_page->currentMacro(), QStringLiteral("A"));
}

void tst_MacroPage::begunAndLeft()
{
    emit m_shell->context.newMacroRequested();
    emit m_shell->context.leaving();
    QVERIFY(names().isEmpty());
}

/// Keys that an editor in the list has no use for do not act on the list.
void tst_MacroPage::keysOfANameEditor()
{
    for (const char *const name : {"A", "B"})
        add(name, Four);
    m_page->selectMacro(QStringLiteral("A"));
    list()->setFocus();
    pressKey(list(), Qt::Key_F2);
    auto *const editor = list()->findChild<QLineEdit *>();
    QVERIFY(editor);
    editor->setText(QStringLiteral("New"));
    QTest::keyClick(editor, Qt::Key_Down, Qt::AltModifier);
    pressKey(editor, Qt::Key_Return);
    QTRY_COMPARE(names(), QStringList({QStringLiteral("New"), QStringLiteral("B")}));
}

void tst_MacroPage::anyOrderOfGestures_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 4; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

/// Whatever is done in whatever order, the page shows what the store has.
void tst_MacroPage::anyOrderOfGestures()
{
    QFETCH(quint32, seed);
    std::mt19937 random(seed);
    const auto any = [&random](int count) {
        return int(random() % quint32(count));
    };
    const QStringList buttons = {QStringLiteral("m_newBtn"),    QStringLiteral("m_duplicateBtn"),
                                 QStringLiteral("m_deleteBtn"), QStringLiteral("m_addEventBtn"),
                                 QStringLiteral("m_upBtn"),     QStringLiteral("m_downBtn"),
                                 QStringLiteral("m_recordBtn"), QStringLiteral("m_deleteEventBtn"),
                                 QStringLiteral("m_backBtn"),   QStringLiteral("m_setDelaysBtn")};
    const std::vector<std::function<void()>> others = {
        [this] { store().undo(); },
        [this] { store().undo(); },
        [this] { store().redo(); },
        [this] { emit m_shell->context.newMacroRequested(); },
        [this] { type(0x1E, 0x41, 5); },
        [this] { type(0x30, 0x42, 5); },
        [this] {
            m_page->hide();
            m_page->show();
        },
        [&] { table()->selectRow(any(6)); },
        [&] {
            if (QTreeWidgetItem *const item = list()->topLevelItem(any(5)))
                list()->setCurrentItem(item);
        },
        [&] { store().setNamedMacroKey(0, any(3), m_page->currentMacro().toStdString(), any(28)); },
        [&] {
            if (QTreeWidgetItem *const item = list()->topLevelItem(any(4)))
                item->setText(1, QStringLiteral("N%1").arg(any(6)));
        },
        [&] { child<QComboBox>("m_delayMode")->setCurrentIndex(any(3)); },
    };
    for (int i = 0; i < 400; ++i) {
        const int choice = any(buttons.size() + int(others.size()));
        if (choice < buttons.size())
            child<QPushButton>(qPrintable(buttons[choice]))->click();
        else
            others[std::size_t(choice - buttons.size())]();
        store().flush();
        QStringList listed;
        for (int row = 0; row < list()->topLevelItemCount(); ++row)
            listed << list()->topLevelItem(row)->text(1);
        QCOMPARE(listed, names());
        QVERIFY(names().isEmpty() ? m_page->currentMacro().isEmpty()
                                  : names().contains(m_page->currentMacro()));
        if (child<QLabel>("m_recordPad")->isVisible() || names().isEmpty())
            continue;
        const auto macro = store().state().macro(0, m_page->currentMacro());
        QVERIFY(static_cast<MacroEventModel *>(table()->model())->events() ==
                MacroEventModel::eventsOf(*macro));
    }
}

void tst_MacroPage::foreignBytesStay()
{
    vantrix_macro_record record = MacroEventModel::withEvents(vantrix_macro_record(), Four);
    record.type = 9;
    record.code = 77;
    record.reserved[3] = 1;
    store().addMacro(0, QStringLiteral("Save"), record);
    store().flush();
    table()->selectRow(3);
    click("m_deleteEventBtn");
    record.count = 3;
    record.events[3] = vantrix_macro_event();
    QCOMPARE(*store().state().macro(0, QStringLiteral("Save")), record);
}

void tst_MacroPage::keysFollowTheLanguage()
{
    add("Save", {{0x1C, 1, 0}}); // Y in English, Z in German
    auto *const keys = child<KeyCombo>("m_newKey");
    keys->setCurrentIndex(keys->findData(0x1C));
    QCOMPARE(keys->currentText(), QStringLiteral("Y"));
    m_shell->services.environment().setLanguage(LanguageIndex().at(QStringLiteral("German")));
    store().setSetting(QStringLiteral("language"), QStringLiteral("German"));
    store().flush();
    QTRY_COMPARE(keys->currentText(), QStringLiteral("Z"));
    QCOMPARE(keys->code(), 0x1C);
    QCOMPARE(table()->model()->index(0, 1).data().toString(), QStringLiteral("Z"));
}

void tst_MacroPage::narrowAndWide()
{
    add("Save", Four);
    QVERIFY(table()->mapTo(m_page.get(), QPoint()).y() > list()->geometry().bottom());
    m_page->resize(1000, 620);
    QCoreApplication::processEvents();
    QVERIFY(table()->mapTo(m_page.get(), QPoint()).x() >
            list()->mapTo(m_page.get(), QPoint(list()->width(), 0)).x());
}

VANTRIX_TEST_MAIN(tst_MacroPage)
#include "tst_MacroPage.moc"
