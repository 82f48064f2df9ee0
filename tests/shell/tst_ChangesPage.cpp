#include "shell/ChangesPage.h"

#include "ShellFixture.h"
#include "shell/FunctionDelegate.h"
#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>

#include <memory>

class tst_ChangesPage : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void nothingToApply();
    void listsOldAndNew();
    void dualActionTellsDepth();
    void followsTheStore();
    void putsOneKeyBack();
    void putsAllBackInOneStep();
    void putsAMacroBack_data();
    void putsAMacroBack();
    void renamedMacroIsNoChange();
    void applyAsks();
    void showsWhatTheDeviceHas();
    void enterGoesToTheKey();
    void hiddenPageDoesNotWork();

private:
    QTreeWidget *pending() { return child<QTreeWidget>(m_page.get(), "m_pendingTree"); }
    QPushButton *button(const char *name) { return child<QPushButton>(m_page.get(), name); }
    /// The list has just come up: let it be laid out first.
    void press(const char *name)
    {
        QCoreApplication::processEvents();
        clickOn(button(name));
    }
    QString text(int row, int column) { return pending()->topLevelItem(row)->text(column); }

    std::unique_ptr<ShellFixture> m_shell;
    std::unique_ptr<ChangesPage> m_page;
};

void tst_ChangesPage::init()
{
    m_shell = std::make_unique<ShellFixture>();
    m_page = std::make_unique<ChangesPage>(m_shell->context);
    m_page->resize(430, 700);
    m_page->show();
}

void tst_ChangesPage::cleanup()
{
    m_page.reset();
    m_shell.reset();
}

void tst_ChangesPage::nothingToApply()
{
    QCOMPARE(pending()->topLevelItemCount(), 0);
    QCOMPARE(child<QLabel>(m_page.get(), "m_changesLab")->text(),
             QStringLiteral("The device has PROFILE 1 as it is shown."));
    QVERIFY(!button("m_putBackBtn")->isEnabled());
    QVERIFY(!button("m_putBackAllBtn")->isEnabled());
    QVERIFY(!button("m_applyChangesBtn")->isEnabled());
}

void tst_ChangesPage::listsOldAndNew()
{
    m_shell->assign(7, 0x05);
    m_shell->apply();
    m_shell->assign(7, 497);
    QTRY_COMPARE(pending()->topLevelItemCount(), 1);
    QCOMPARE(text(0, 0), QStringLiteral("Key 7 (W)"));
    QCOMPARE(text(0, 1), QStringLiteral("B"));
    QCOMPARE(text(0, 2), QStringLiteral("RIGHT CLICK"));
    const QTreeWidgetItem *const item = pending()->topLevelItem(0);
    QCOMPARE(item->data(1, FunctionDelegate::KindRole).toInt(), 0);
    QCOMPARE(item->data(2, FunctionDelegate::KindRole).toInt(), 1);
}

void tst_ChangesPage::dualActionTellsDepth()
{
    vantrix_key_mapping dual = clearedKey();
    dual.type = 3;
    dual.digital = {0x04, 0x05, 0, 60};
    m_shell->store().setKeyMapping(0, 0, 3, &dual);
    QTRY_COMPARE(pending()->topLevelItemCount(), 1);
    QCOMPARE(text(0, 1), QStringLiteral("UNASSIGNED"));
    QCOMPARE(text(0, 2), QStringLiteral("A > B at 60%"));
    QCOMPARE(pending()->topLevelItem(0)->data(2, FunctionDelegate::KindRole).toInt(), 6);
}

void tst_ChangesPage::followsTheStore()
{
    m_shell->assign(2, 0x05, 4);
    QCoreApplication::processEvents();
    QCOMPARE(pending()->topLevelItemCount(), 0);
    m_shell->context.setProfile(4);
    QTRY_COMPARE(pending()->topLevelItemCount(), 1);
    m_shell->apply(4);
    QTRY_COMPARE(pending()->topLevelItemCount(), 0);
}

void tst_ChangesPage::putsOneKeyBack()
{
    m_shell->assign(1, 0x05);
    m_shell->apply();
    m_shell->assign(1, 0x06);
    m_shell->assign(2, 0x07);
    QTRY_COMPARE(pending()->topLevelItemCount(), 2);
    pending()->topLevelItem(0)->setSelected(true);
    press("m_putBackBtn");
    QCOMPARE(m_shell->store().undoName(), QStringLiteral("Put back key 1"));
    const StoreState &state = m_shell->store().state();
    QCOMPARE(ushort(state.mapping(0, 0, 1).code), ushort(0x05));
    QCOMPARE(ushort(state.mapping(0, 0, 2).code), ushort(0x07));
    QTRY_COMPARE(pending()->topLevelItemCount(), 1);
    m_shell->store().undo();
    QCOMPARE(ushort(state.mapping(0, 0, 1).code), ushort(0x06));
}

void tst_ChangesPage::putsAllBackInOneStep()
{
    m_shell->assign(1, 0x06);
    m_shell->assign(2, 0x07);
    QTRY_COMPARE(pending()->topLevelItemCount(), 2);
    press("m_putBackAllBtn");
    QTRY_COMPARE(pending()->topLevelItemCount(), 0);
    QCOMPARE(m_shell->store().stepNames().last(), QStringLiteral("Put back 2 keys"));
    QVERIFY(!m_shell->device().differs(0, 0));
}

void tst_ChangesPage::putsAMacroBack_data()
{
    QTest::addColumn<QStringList>("edits"); // done to the macro "Greet" that the device plays
    QTest::addColumn<QString>("name");      // of the macro on the key afterwards
    QTest::addColumn<QStringList>("names"); // of all macros
    const auto list = [](const char *names) {
        return QString::fromLatin1(names).split(' ');
    };
    QTest::newRow("edited") << list("edit") << "Greet 2" << QStringList{"Greet", "Greet 2"};
    QTest::newRow("deleted") << list("delete") << "Greet" << list("Greet");
    QTest::newRow("renamed, another on the key")
        << list("rename unassign") << "Hello" << list("Hello");
    QTest::newRow("renamed and edited") << list("rename edit") << "Greet" << list("Hello Greet");
    QTest::newRow("empty, deleted") << list("empty apply delete") << "Greet" << list("Greet");
    QTest::newRow("not touched") << list("unassign") << "Greet" << list("Greet");
}

void tst_ChangesPage::putsAMacroBack()
{
    QFETCH(QStringList, edits);
    QFETCH(QString, name);
    QFETCH(QStringList, names);
    constexpr int Owner = ShellContext::Owner;
    ProfileStore &store = m_shell->store();
    vantrix_macro_record played;
    played.count = 1;
    played.events[0] = {9, 1, 33};
    QString current = QStringLiteral("Greet");
    store.addMacro(Owner, current, played);
    store.setNamedMacroKey(Owner, 0, "Greet", 4);
    store.setNamedMacroKey(Owner, 0, "Greet", 6);
    store.flush();
    m_shell->apply();
    vantrix_macro_record other = played;
    other.events[0] = {10, 1, 33};
    for (const QString &edit : qAsConst(edits)) {
        if (edit == QLatin1String("edit"))
            store.setMacro(Owner, current, other);
        else if (edit == QLatin1String("empty"))
            store.setMacro(Owner, current, played = vantrix_macro_record());
        else if (edit == QLatin1String("apply"))
            m_shell->apply();
        else if (edit == QLatin1String("delete"))
            store.removeMacro(Owner, current);
        else if (edit == QLatin1String("unassign"))
            store.delNamedMacroKey(Owner, 0, 4);
        else {
            store.renameMacro(Owner, current, QStringLiteral("Hello"));
            current = QStringLiteral("Hello");
        }
        store.flush();
    }
    QTRY_VERIFY(pending()->topLevelItemCount() > 0);
    const QByteArray before = store.state().toBytes();
    QSignalSpy added(&m_shell->context, &ShellContext::macroAdded);
    QStringList log;
    connect(&store, &ProfileStore::stepsChanged, this, [&log] { log << QStringLiteral("step"); });
    connect(&m_shell->context, &ShellContext::status, this,
            [&log](const QString &text) { log << text; });
    press("m_putBackAllBtn");
    const StoreState &state = store.state();
    QCOMPARE(state.macroKey(Owner, 0, 4), std::make_optional(name));
    QVERIFY(state.macro(Owner, name) == played);
    QCOMPARE(state.macroNames(Owner), names);
    QCOMPARE(added.count(), edits.contains("unassign") ? 0 : 1);
    QCOMPARE(log.last(), edits.contains("unassign")
                             ? QStringLiteral("step")
                             : QStringLiteral("Back from the device, as a macro: %1").arg(name));
    QTRY_COMPARE(pending()->topLevelItemCount(), 0);
    QVERIFY(!m_shell->device().differs(Owner, 0));
    store.undo();
    QVERIFY(state.toBytes() == before);
}

void tst_ChangesPage::renamedMacroIsNoChange()
{
    constexpr int Owner = ShellContext::Owner;
    ProfileStore &store = m_shell->store();
    store.addMacro(Owner, QStringLiteral("Greet"), vantrix_macro_record());
    store.setNamedMacroKey(Owner, 0, "Greet", 4);
    store.flush();
    m_shell->apply();
    store.renameMacro(Owner, QStringLiteral("Greet"), QStringLiteral("Hello"));
    store.flush();
    QCoreApplication::processEvents();
    QCOMPARE(pending()->topLevelItemCount(), 0);
    QVERIFY(!m_shell->device().differs(Owner, 0));
}

void tst_ChangesPage::applyAsks()
{
    m_shell->assign(1, 0x06);
    QSignalSpy asked(&m_shell->context, &ShellContext::applyRequested);
    QTRY_VERIFY(button("m_applyChangesBtn")->isEnabled());
    press("m_applyChangesBtn");
    QCOMPARE(asked.count(), 1);
}

void tst_ChangesPage::showsWhatTheDeviceHas()
{
    m_shell->assign(9, 0x05);
    m_shell->apply();
    m_shell->assign(9, 0x06);
    QTRY_COMPARE(pending()->topLevelItemCount(), 1);
    auto *const device = child<QTreeWidget>(m_page.get(), "m_deviceTree");
    QCOMPARE(device->topLevelItemCount(), 28);
    QCOMPARE(device->topLevelItem(9)->text(1), QStringLiteral("B"));
    QCOMPARE(device->topLevelItem(10)->text(1), QStringLiteral("UNASSIGNED"));
}

void tst_ChangesPage::enterGoesToTheKey()
{
    m_shell->assign(5, 0x06);
    QSignalSpy asked(&m_shell->context, &ShellContext::goTo);
    QTRY_COMPARE(pending()->topLevelItemCount(), 1);
    pending()->setFocus();
    pending()->setCurrentItem(pending()->topLevelItem(0));
    pressKey(pending(), Qt::Key_Return);
    QCOMPARE(asked.count(), 1);
    QCOMPARE(asked.first(), QVariantList({0, 5}));
}

void tst_ChangesPage::hiddenPageDoesNotWork()
{
    m_page->hide();
    m_shell->assign(5, 0x06);
    QCoreApplication::processEvents();
    QCOMPARE(pending()->topLevelItemCount(), 0);
    m_page->show();
    QCOMPARE(pending()->topLevelItemCount(), 1);
}

VANTRIX_TEST_MAIN(tst_ChangesPage)
#include "tst_ChangesPage.moc"
