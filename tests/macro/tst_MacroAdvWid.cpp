#include "macro/MacroAdvWid.h"

#include "fakes/FakeProfileCfg.h"
#include "fakes/FakeServices.h"
#include "interfaces/ButtonGroupEx.h"
#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QGridLayout>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

namespace {

const QStringList ShortcutNames = {
    QStringLiteral("OPEN TASK MANAGER"),
    QStringLiteral("SWITCH BETWEEN OPEN APPS"),
    QStringLiteral("BROWSER BACKWARD"),
    QStringLiteral("BROWSER FORWARD"),
    QStringLiteral("MOVE UP ONE SCREEN"),
    QStringLiteral("MOVE DOWN ONE SCREEN"),
    QStringLiteral("VIEW OPEN APPS"),
    QStringLiteral("COPY SELECTED ITEMS TO CLIPBOARD"),
    QStringLiteral("CUT SELECTED ITEMS"),
    QStringLiteral("PASTE CONTENT FROM CLIPBOARD"),
    QStringLiteral("SELECT ALL CONTENT"),
    QStringLiteral("UNDO AN ACTION"),
    QStringLiteral("REDO AN ACTION"),
    QStringLiteral("DELETE THE SELECTED ITEM AND MOVE IT TO THE RECYCLE BIN"),
    QStringLiteral("OPEN THE START MENU"),
    QStringLiteral("SWITCH THE KEYBOARD LAYOUT"),
    QStringLiteral("CLOSE ACTIVE WINDOW"),
};

const QStringList ChordTexts = {
    QStringLiteral("CTRL + SHIFT + ESC"),
    QStringLiteral("ALT + TAB"),
    QStringLiteral("ALT + <"),
    QStringLiteral("ALT + >"),
    QStringLiteral("ALT + PGUP"),
    QStringLiteral("ALT + PGDN"),
    QStringLiteral("CTRL + ALT + TAB"),
    QStringLiteral("CTRL + C"),
    QStringLiteral("CTRL + X"),
    QStringLiteral("CTRL + V"),
    QStringLiteral("CTRL + A"),
    QStringLiteral("CTRL + Z"),
    QStringLiteral("CTRL + Y"),
    QStringLiteral("CTRL + D"),
    QStringLiteral("CTRL + ESC"),
    QStringLiteral("CTRL + SHIFT"),
    QStringLiteral("CTRL + F4"),
};

} // namespace

class tst_MacroAdvWid : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void texts();
    void shortcuts();
    void chordInAnotherLanguage();
    void addedMacros();
    void removedMacros();
    void renamedMacro();
    void clearedMacros();
    void ampersandInAName();
    void clicks();
    void numbersMoveWithTheMacros();
    void secondClickUnselects();
    void oneCheckedOfBoth();
    void selectMacro_data();
    void selectMacro();
    void selectedKeys();
    void showingIsSilent();
    void search_data();
    void search();
    void searchStaysForNewMacros();
    void folding();
    void searchOpensNothing();
    void createMacro();
    void tabOrder();
    void manyMacrosScroll();

private:
    void addMacros(const QStringList &names);
    ButtonGroupEx *group() const { return m_picker->findChild<ButtonGroupEx *>(); }
    QAbstractButton *button(int id) const { return group()->button(id); }
    QString cell(int id) const;
    QStringList visible(int firstId, int lastId) const;

    std::unique_ptr<FakeEnvironment> m_environment;
    std::unique_ptr<FakeProfileCfg> m_store;
    std::unique_ptr<MacroAdvWid> m_picker;
};

void tst_MacroAdvWid::init()
{
    m_environment = std::make_unique<FakeEnvironment>();
    m_store = std::make_unique<FakeProfileCfg>();
    m_picker = std::make_unique<MacroAdvWid>();
}

void tst_MacroAdvWid::cleanup()
{
    QCOMPARE(m_store->calls(), QStringList());
    m_picker.reset();
    m_store.reset();
    m_environment.reset();
}

void tst_MacroAdvWid::addMacros(const QStringList &names)
{
    for (const QString &name : names)
        m_picker->addMacro(name.toStdString());
}

/// Row and column of a button.
QString tst_MacroAdvWid::cell(int id) const
{
    auto *const layout =
        child<QGridLayout>(m_picker.get(), id < 17 ? "m_winLayout" : "m_userLayout");
    const int index = layout->indexOf(button(id));
    if (index < 0)
        return QStringLiteral("nowhere");
    int row = -1, column = -1, rows = 0, columns = 0;
    layout->getItemPosition(index, &row, &column, &rows, &columns);
    return QStringLiteral("%1 %2").arg(row).arg(column);
}

QStringList tst_MacroAdvWid::visible(int firstId, int lastId) const
{
    QStringList found;
    for (int id = firstId; id <= lastId; ++id) {
        if (!button(id)->isHidden())
            found << button(id)->text() + QLatin1Char(':') + cell(id);
    }
    return found;
}

void tst_MacroAdvWid::texts()
{
    QCOMPARE(child<QPushButton>(m_picker.get(), "m_userBtn")->text(),
             QStringLiteral("USER MACROS"));
    QCOMPARE(child<QPushButton>(m_picker.get(), "m_winBtn")->text(),
             QStringLiteral("WINDOWS KEYBOARD SHORTCUTS"));
    QCOMPARE(child<QPushButton>(m_picker.get(), "m_createBtn")->text(),
             QStringLiteral("CREATE NEW MACRO"));
    QCOMPARE(child<QWidget>(m_picker.get(), "line")->styleSheet(),
             QStringLiteral("background:rgb(127,128,132);"));
    QCOMPARE(child<QWidget>(m_picker.get(), "line_2")->maximumHeight(), 1);
    QCOMPARE(child<QGridLayout>(m_picker.get(), "m_winLayout")->horizontalSpacing(), 6);
    QCOMPARE(child<QGridLayout>(m_picker.get(), "m_winLayout")->verticalSpacing(), 2);
    QCOMPARE(child<QGridLayout>(m_picker.get(), "m_userLayout")->spacing(), 2);
    for (const char *layout : {"m_userLayout", "m_winLayout"})
        QCOMPARE(child<QGridLayout>(m_picker.get(), layout)->alignment(),
                 Qt::AlignLeft | Qt::AlignTop);
}

void tst_MacroAdvWid::shortcuts()
{
    QCOMPARE(group()->buttons().size(), 17);
    for (int id = 0; id < 17; ++id) {
        QCOMPARE(button(id)->text(), ShortcutNames[id]);
        QCOMPARE(button(id)->toolTip(), ChordTexts[id]);
        QCOMPARE(cell(id), QStringLiteral("%1 %2").arg(id % 10).arg(id / 10));
        QVERIFY(button(id)->isCheckable());
    }
}

void tst_MacroAdvWid::chordInAnotherLanguage()
{
    m_environment->language = 4;
    const MacroAdvWid german;
    auto *const buttons = german.findChild<ButtonGroupEx *>();
    QCOMPARE(buttons->button(4)->toolTip(), QStringLiteral("ALT + BILD"));
    QCOMPARE(buttons->button(15)->toolTip(), QStringLiteral("CTRL + SHIFT"));
}

void tst_MacroAdvWid::addedMacros()
{
    addMacros({"a", "b", "c", "d", "e", "f", "g"});
    QCOMPARE(group()->buttons().size(), 24);
    for (int i = 0; i < 7; ++i) {
        QCOMPARE(button(17 + i)->text(), QString(QLatin1Char(char('a' + i))));
        QCOMPARE(cell(17 + i), QStringLiteral("%1 %2").arg(i % 6).arg(i / 6));
    }
}

void tst_MacroAdvWid::removedMacros()
{
    addMacros({"a", "twice", "b", "twice", "c"});
    m_picker->delMacro("nobody");
    QCOMPARE(group()->buttons().size(), 22);
    m_picker->delMacro("twice");
    QCOMPARE(visible(17, 19), QStringList({"a:0 0", "b:1 0", "c:2 0"}));
    QCOMPARE(group()->buttons().size(), 20);
    m_picker->delMacro("a");
    QCOMPARE(visible(17, 18), QStringList({"b:0 0", "c:1 0"}));
    QCOMPARE(m_picker->findChildren<QPushButton *>().size(), 3 + 17 + 2);
}

void tst_MacroAdvWid::renamedMacro()
{
    addMacros({"a", "twice", "twice"});
    m_picker->renameMacro("nobody", "x");
    m_picker->renameMacro("twice", "once");
    QCOMPARE(visible(17, 19), QStringList({"a:0 0", "once:1 0", "twice:2 0"}));
    QSignalSpy spy(m_picker.get(), &MacroAdvWid::sigMacroAssigned);
    button(18)->click();
    QCOMPARE(spy.takeFirst(), QVariantList({true, "M2", "once", -1}));
}

void tst_MacroAdvWid::clearedMacros()
{
    addMacros({"a", "b"});
    m_picker->clearMacros();
    QCOMPARE(group()->buttons().size(), 17);
    QCOMPARE(m_picker->findChildren<QPushButton *>().size(), 3 + 17);
    addMacros({"c"});
    QCOMPARE(visible(17, 17), QStringList({"c:0 0"}));
}

void tst_MacroAdvWid::ampersandInAName()
{
    addMacros({"cut & paste"});
    QCOMPARE(button(17)->text(), QStringLiteral("cut && paste"));
    QVERIFY(button(17)->shortcut().isEmpty());
    QSignalSpy spy(m_picker.get(), &MacroAdvWid::sigMacroAssigned);
    button(17)->click();
    QCOMPARE(spy.takeFirst(), QVariantList({true, "M1", "cut & paste", -1}));
    m_picker->slotSearch(QStringLiteral("cut & p"));
    QVERIFY(!button(17)->isHidden());
    m_picker->delMacro("cut & paste");
    QCOMPARE(group()->buttons().size(), 17);
}

void tst_MacroAdvWid::clicks()
{
    addMacros({"a", "b", "c"});
    m_picker->show();
    QSignalSpy spy(m_picker.get(), &MacroAdvWid::sigMacroAssigned);
    clickOn(button(17));
    QCOMPARE(spy.takeFirst(), QVariantList({true, "M1", "a", -1}));
    clickOn(button(19));
    QCOMPARE(spy.takeFirst(), QVariantList({true, "M3", "c", -1}));
    clickOn(button(0));
    QCOMPARE(spy.takeFirst(), QVariantList({true, "M4", "OPEN TASK MANAGER", 0}));
    button(16)->setFocus();
    pressKey(button(16), Qt::Key_Space);
    QCOMPARE(spy.takeFirst(), QVariantList({true, "M20", "CLOSE ACTIVE WINDOW", 16}));
    QCOMPARE(spy.count(), 0);
}

void tst_MacroAdvWid::numbersMoveWithTheMacros()
{
    QSignalSpy spy(m_picker.get(), &MacroAdvWid::sigMacroAssigned);
    button(5)->click();
    QCOMPARE(spy.takeFirst().at(1).toString(), QStringLiteral("M6"));
    addMacros({"a"});
    button(6)->click();
    QCOMPARE(spy.takeFirst().at(1).toString(), QStringLiteral("M8"));
    m_picker->selectMacro(QStringLiteral("M6"));
    QCOMPARE(group()->checkedId(), 4);
}

void tst_MacroAdvWid::secondClickUnselects()
{
    addMacros({"a"});
    for (const int id : {3, 17}) {
        button(id)->click();
        QSignalSpy spy(m_picker.get(), &MacroAdvWid::sigMacroAssigned);
        button(id)->click();
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toBool(), false);
        QVERIFY(!group()->checkedButton());
    }
}

void tst_MacroAdvWid::oneCheckedOfBoth()
{
    addMacros({"a"});
    button(17)->click();
    button(2)->click();
    QCOMPARE(group()->checkedId(), 2);
    QVERIFY(!button(17)->isChecked());
}

void tst_MacroAdvWid::selectMacro_data()
{
    QTest::addColumn<int>("macros");
    QTest::addColumn<QString>("number");
    QTest::addColumn<int>("checked");

    QTest::newRow("fourth of three") << 3 << "M4" << 0;
    QTest::newRow("fourth of four") << 4 << "M4" << 20;
    QTest::newRow("first") << 3 << "M1" << 17;
    QTest::newRow("first, no macros") << 0 << "M1" << 0;
    QTest::newRow("last shortcut") << 3 << "M20" << 16;
    QTest::newRow("past the end") << 3 << "M21" << -1;
    QTest::newRow("zero") << 3 << "M0" << -1;
    QTest::newRow("zero, no macros") << 0 << "M0" << -1;
    QTest::newRow("below") << 3 << "M-1" << -1;
    QTest::newRow("no number") << 3 << "Mx" << -1;
    QTest::newRow("empty") << 3 << "" << -1;
}

void tst_MacroAdvWid::selectMacro()
{
    QFETCH(int, macros);
    QFETCH(QString, number);
    for (int i = 0; i < macros; ++i)
        m_picker->addMacro(std::to_string(i));
    m_picker->selectMacro(QStringLiteral("M2"));
    m_picker->selectMacro(number);
    QTEST(group()->checkedId(), "checked");
}

void tst_MacroAdvWid::selectedKeys()
{
    const auto select = [this](const vantrix_key_mapping &key) {
        m_picker->selectMacro(QStringLiteral("M3"));
        m_picker->slotVantrixKeySelected(key);
        return group()->checkedId();
    };
    vantrix_key_mapping label = clearedKey();
    label.type = KeyType::Label;
    vantrix_key_mapping dual = clearedKey();
    dual.type = KeyType::DualAction;
    dual.digital.firstAction = 4;
    QCOMPARE(select(label), 2);
    QCOMPARE(select(plainKey(4)), -1);
    QCOMPARE(select(plainKey(0)), -1);
    QCOMPARE(select(clearedKey()), -1);
    QCOMPARE(select(gameKey(466)), -1);
    QCOMPARE(select(dual), -1);
}

void tst_MacroAdvWid::showingIsSilent()
{
    addMacros({"a", "b"});
    QSignalSpy spy(m_picker.get(), &MacroAdvWid::sigMacroAssigned);
    m_picker->selectMacro(QStringLiteral("M2"));
    m_picker->selectMacro(QStringLiteral("M9"));
    m_picker->slotVantrixKeySelected(clearedKey());
    m_picker->slotSearch(QStringLiteral("a"));
    m_picker->delMacro("a");
    m_picker->clearMacros();
    QCOMPARE(spy.count(), 0);
}

void tst_MacroAdvWid::search_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("macros");
    QTest::addColumn<QStringList>("shortcuts");

    QTest::newRow("prefix") << "co" << QStringList({"Commit:0 0", "copy:1 0"})
                            << QStringList({"COPY SELECTED ITEMS TO CLIPBOARD:0 0"});
    QTest::newRow("one letter") << "C" << QStringList({"Commit:0 0", "copy:1 0", "cut:2 0"})
                                << QStringList({"COPY SELECTED ITEMS TO CLIPBOARD:0 0",
                                                "CUT SELECTED ITEMS:1 0",
                                                "CLOSE ACTIVE WINDOW:2 0"});
    QTest::newRow("inside") << "selected" << QStringList() << QStringList();
    QTest::newRow("none") << "zzz" << QStringList() << QStringList();
}

void tst_MacroAdvWid::search()
{
    QFETCH(QString, text);
    addMacros({"Mail", "Commit", "Build", "copy", "cut"});
    m_picker->show();
    m_picker->slotSearch(text);
    QTEST(visible(17, 21), "macros");
    QTEST(visible(0, 16), "shortcuts");
    m_picker->slotSearch(QString());
    QCOMPARE(visible(17, 21),
             QStringList({"Mail:0 0", "Commit:1 0", "Build:2 0", "copy:3 0", "cut:4 0"}));
    for (int id = 0; id < 17; ++id)
        QCOMPARE(cell(id), QStringLiteral("%1 %2").arg(id % 10).arg(id / 10));
    QCOMPARE(visible(0, 16).size(), 17);
}

void tst_MacroAdvWid::searchStaysForNewMacros()
{
    addMacros({"a1", "b"});
    m_picker->slotSearch(QStringLiteral("a"));
    addMacros({"c", "a2"});
    QCOMPARE(visible(17, 20), QStringList({"a1:0 0", "a2:1 0"}));
    m_picker->delMacro("a1");
    QCOMPARE(visible(17, 19), QStringList({"a2:0 0"}));
    m_picker->renameMacro("c", "a3");
    QCOMPARE(visible(17, 19), QStringList({"a3:0 0", "a2:1 0"}));
}

void tst_MacroAdvWid::folding()
{
    m_picker->show();
    const QPair<const char *, const char *> folds[] = {{"m_userBtn", "m_userWid"},
                                                       {"m_winBtn", "m_winWid"}};
    for (const auto &[head, list] : folds) {
        auto *const folded = child<QWidget>(m_picker.get(), list);
        QVERIFY(folded->isVisible());
        clickOn(child<QWidget>(m_picker.get(), head));
        QVERIFY(!folded->isVisible());
        clickOn(child<QWidget>(m_picker.get(), head));
        QVERIFY(folded->isVisible());
    }
}

void tst_MacroAdvWid::searchOpensNothing()
{
    addMacros({"a"});
    m_picker->show();
    clickOn(child<QWidget>(m_picker.get(), "m_userBtn"));
    clickOn(child<QWidget>(m_picker.get(), "m_winBtn"));
    for (const char *text : {"a", "zzz", ""}) {
        m_picker->slotSearch(QLatin1String(text));
        QVERIFY(!child<QWidget>(m_picker.get(), "m_userWid")->isVisible());
        QVERIFY(!child<QWidget>(m_picker.get(), "m_winWid")->isVisible());
    }
}

void tst_MacroAdvWid::createMacro()
{
    m_picker->show();
    QSignalSpy create(m_picker.get(), &MacroAdvWid::sigCreateMacro);
    QSignalSpy assigned(m_picker.get(), &MacroAdvWid::sigMacroAssigned);
    clickOn(child<QWidget>(m_picker.get(), "m_createBtn"));
    QCOMPARE(create.count(), 1);
    QCOMPARE(assigned.count(), 0);
}

void tst_MacroAdvWid::tabOrder()
{
    addMacros({"a", "gone", "b"});
    m_picker->delMacro("gone");
    addMacros({"c"});
    m_picker->show();
    QStringList order;
    QWidget *const first = child<QWidget>(m_picker.get(), "m_userBtn");
    QWidget *widget = first;
    do {
        if (auto *const key = qobject_cast<QPushButton *>(widget))
            order << key->text();
        widget = widget->nextInFocusChain();
    } while (widget != first);
    QStringList expected = {
        "USER MACROS", "a", "b", "c", "CREATE NEW MACRO", "WINDOWS KEYBOARD SHORTCUTS"};
    QCOMPARE(order, expected + ShortcutNames);
}

void tst_MacroAdvWid::manyMacrosScroll()
{
    m_picker->resize(600, 354);
    m_picker->show();
    for (int i = 0; i < 200; ++i)
        m_picker->addMacro("A rather long name of macro " + std::to_string(i));
    QVERIFY(m_picker->minimumSizeHint().width() < 600);
    auto *const area = child<QScrollArea>(m_picker.get(), "scrollArea");
    QTRY_VERIFY(area->horizontalScrollBar()->maximum() > 0);
    for (const int id : {17, 100, 216}) {
        const int text = button(id)->fontMetrics().horizontalAdvance(button(id)->text());
        QVERIFY2(button(id)->width() >= text, qPrintable(button(id)->text()));
    }
}

VANTRIX_TEST_MAIN(tst_MacroAdvWid)
#include "tst_MacroAdvWid.moc"
