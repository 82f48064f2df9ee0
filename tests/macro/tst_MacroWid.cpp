#include "macro/MacroWid.h"

#include "core/records.h"
#include "fakes/FakeProfileCfg.h"
#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QBoxLayout>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QSignalSpy>

using Keys = std::map<uchar, uchar>;
Q_DECLARE_METATYPE(Keys)

class tst_MacroWid : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void form();
    void numbersMacrosInOrder();
    void announcesTheKeysOfANewMacro();
    void macroWithoutKeysIsNotAnnounced();
    void failedReadIsNotAnnounced();
    void deletionRenumbersTheRest();
    void deletionAssignsNothing_data();
    void deletionAssignsNothing();
    void deletesTheFirstOfTwoOfOneName();
    void renamesTheFirstOfTwoOfOneName();
    void unknownNamesChangeNothing();
    void namesAreComparedExactly();
    void refreshAnnouncesInOrder();
    void ownerAndProfileReachTheStore();
    void anotherProfileEmptiesTheListSilently();
    void clickSelectsAndSecondClickTakesBack();
    void clickOnAnotherMovesTheSelection();
    void dragIsOneClick();
    void spaceSelects();
    void arrowKeysSelectNothing();
    void typingSelectsNothing();
    void showingASelectionIsSilent();
    void clickAfterShowing();
    void clearingTheSelectionIsSilent();
    void noCurrentItemEmitsNothing();
    void createButton();
    void deletedPanelEmitsNothing();
    void longNamesStayInside();
    void tipsShowNamesAsTheyAre_data();
    void tipsShowNamesAsTheyAre();
    void everythingStaysInside_data();
    void everythingStaysInside();

private:
    struct Panel
    {
        FakeProfileCfg store;
        MacroWid widget;
        QSignalSpy assignedKey{&widget, &MacroWid::sigAssignedKey};
        QSignalSpy assigned{&widget, &MacroWid::sigMacroAssigned};
        QSignalSpy renamed{&widget, &MacroWid::sigRenameMacro};

        explicit Panel(const QStringList &names = {})
        {
            widget.show();
            for (const QString &name : names)
                widget.addMacro(name.toStdString());
        }

        QListWidget *list() { return child<QListWidget>(&widget, "m_macroList"); }

        void bind(int key, const char *name) { store.profile(0, 0).macros[uchar(key)] = name; }

        QStringList texts()
        {
            QStringList all;
            for (int row = 0; row < list()->count(); ++row)
                all << list()->item(row)->text();
            return all;
        }

        QStringList selected()
        {
            QStringList all;
            const auto items = list()->selectedItems();
            for (const QListWidgetItem *item : items)
                all << item->text();
            return all;
        }

        void click(int row)
        {
            clickOn(list()->viewport(), list()->visualItemRect(list()->item(row)).center());
        }

        /// What sigMacroAssigned told, as "M1 A on"; forgets it.
        QStringList takeAssigned()
        {
            QStringList all;
            for (const auto &call : qAsConst(assigned)) {
                if (call.at(3).toInt() != -1)
                    all << QStringLiteral("shortcut");
                all << call.at(1).toString() + QLatin1Char(' ') + call.at(2).toString() +
                           (call.at(0).toBool() ? QLatin1String(" on") : QLatin1String(" off"));
            }
            assigned.clear();
            return all;
        }

        /// What sigAssignedKey told, as "M1 A 3 5"; forgets it.
        QStringList takeAssignedKeys()
        {
            QStringList all;
            for (const auto &call : qAsConst(assignedKey)) {
                QString text = call.at(0).toString() + QLatin1Char(' ') + call.at(1).toString();
                const Keys keys = call.at(2).value<Keys>();
                for (const auto &key : keys)
                    text += QLatin1Char(' ') + QString::number(key.first);
                all << text;
            }
            assignedKey.clear();
            return all;
        }
    };
};

void tst_MacroWid::initTestCase()
{
    registerRecordTypes();
}

void tst_MacroWid::form()
{
    Panel panel;
    const MacroWid fresh;
    QCOMPARE(fresh.size(), QSize(403, 253));
    QCOMPARE(child<QWidget>(&fresh, "widget")->styleSheet(),
             QStringLiteral("background:rgb(51,51,51);"));
    const auto *const column = child<QBoxLayout>(&fresh, "verticalLayout_2");
    QCOMPARE(column->spacing(), 1);
    QCOMPARE(column->contentsMargins(), QMargins(15, 15, 15, 15));
    const auto *const create = child<QPushButton>(&fresh, "m_createBtn");
    QCOMPARE(create->text(), QStringLiteral("+ CREATE NEW MACRO"));
    QCOMPARE(create->styleSheet(),
             QStringLiteral("QPushButton{background:black;border:none;min-height:30px}\n"
                            ":hover{background:#444444}\n:pressed{background:rgb(132,50,155)}"));
    QCOMPARE(panel.list()->selectionMode(), QAbstractItemView::MultiSelection);
    QCOMPARE(panel.list()->accessibleName(), QStringLiteral("MACRO"));
}

void tst_MacroWid::numbersMacrosInOrder()
{
    Panel panel({"Build", "Greeting", QString::fromUtf8("Grüße - zwei")});
    QCOMPARE(panel.texts(),
             QStringList({"M1 - Build", "M2 - Greeting", QString::fromUtf8("M3 - Grüße - zwei")}));
    for (int row = 0; row < 3; ++row)
        QCOMPARE(panel.list()->item(row)->textAlignment(), int(Qt::AlignCenter));
}

void tst_MacroWid::announcesTheKeysOfANewMacro()
{
    Panel panel({"A"});
    panel.bind(3, "B");
    panel.bind(27, "B");
    panel.bind(4, "A");
    panel.widget.addMacro("B");
    QCOMPARE(panel.takeAssignedKeys(), QStringList({"M2 B 3 27"}));
    QCOMPARE(panel.takeAssigned(), QStringList());
}

void tst_MacroWid::macroWithoutKeysIsNotAnnounced()
{
    Panel panel({"A"});
    // The store knows of it and has no key.
    QCOMPARE(panel.store.calls(), QStringList({"getKeysOfMacro 0 0 A"}));
    QCOMPARE(panel.assignedKey.count(), 0);
}

void tst_MacroWid::failedReadIsNotAnnounced()
{
    Panel panel;
    panel.bind(3, "A");
    panel.store.readsFail = true;
    panel.widget.addMacro("A");
    QCOMPARE(panel.texts(), QStringList({"M1 - A"}));
    QCOMPARE(panel.assignedKey.count(), 0);
}

void tst_MacroWid::deletionRenumbersTheRest()
{
    Panel panel({"A", "B", "C"});
    panel.bind(1, "A");
    panel.bind(2, "B");
    panel.bind(5, "C");
    panel.store.clearLog();
    panel.widget.delMacro("A");
    QCOMPARE(panel.texts(), QStringList({"M1 - B", "M2 - C"}));
    QCOMPARE(panel.takeAssignedKeys(), QStringList({"M1 B 2", "M2 C 5"}));
    QCOMPARE(panel.store.calls(), QStringList({"getKeysOfMacro 0 0 B", "getKeysOfMacro 0 0 C"}));
    panel.widget.delMacro("C");
    QCOMPARE(panel.texts(), QStringList({"M1 - B"}));
    QCOMPARE(panel.takeAssignedKeys(), QStringList());
    panel.widget.addMacro("D");
    QCOMPARE(panel.texts(), QStringList({"M1 - B", "M2 - D"}));
}

void tst_MacroWid::deletionAssignsNothing_data()
{
    QTest::addColumn<int>("clicked");
    QTest::addColumn<QString>("deleted");
    QTest::addColumn<QStringList>("selected");
    QTest::newRow("the selected one") << 1 << "B" << QStringList();
    QTest::newRow("one before it") << 1 << "A" << QStringList({"M1 - B"});
    QTest::newRow("one behind it") << 1 << "C" << QStringList({"M2 - B"});
    QTest::newRow("the first, selected") << 0 << "A" << QStringList();
    QTest::newRow("the last, selected") << 2 << "C" << QStringList();
}

void tst_MacroWid::deletionAssignsNothing()
{
    QFETCH(const int, clicked);
    QFETCH(const QString, deleted);
    QFETCH(const QStringList, selected);
    Panel panel({"A", "B", "C"});
    panel.click(clicked);
    panel.takeAssigned();
    panel.widget.delMacro(deleted.toStdString());
    QCoreApplication::processEvents();
    QCOMPARE(panel.takeAssigned(), QStringList());
    QCOMPARE(panel.selected(), selected);
    QCOMPARE(panel.list()->count(), 2);
}

void tst_MacroWid::deletesTheFirstOfTwoOfOneName()
{
    Panel panel({"A", "B", "A", "C"});
    panel.widget.delMacro("A");
    QCOMPARE(panel.texts(), QStringList({"M1 - B", "M2 - A", "M3 - C"}));
    panel.widget.delMacro("A");
    QCOMPARE(panel.texts(), QStringList({"M1 - B", "M2 - C"}));
}

void tst_MacroWid::renamesTheFirstOfTwoOfOneName()
{
    Panel panel({"B", "A", "A"});
    panel.store.clearLog();
    panel.widget.renameMacro("A", "Z");
    QCOMPARE(panel.texts(), QStringList({"M1 - B", "M2 - Z", "M3 - A"}));
    QCOMPARE(panel.renamed.count(), 1);
    QCOMPARE(panel.renamed.at(0), QVariantList({"M2", "Z"}));
    QCOMPARE(panel.store.calls(), QStringList());
    QCOMPARE(panel.takeAssigned(), QStringList());
}

void tst_MacroWid::unknownNamesChangeNothing()
{
    Panel panel({"A", "B"});
    panel.bind(1, "A");
    panel.store.clearLog();
    panel.widget.delMacro("C");
    panel.widget.renameMacro("C", "D");
    QCOMPARE(panel.texts(), QStringList({"M1 - A", "M2 - B"}));
    QCOMPARE(panel.renamed.count(), 0);
    QCOMPARE(panel.assignedKey.count(), 0);
    QCOMPARE(panel.store.calls(), QStringList());
}

void tst_MacroWid::namesAreComparedExactly()
{
    Panel panel({"macro", "Macro", "Macro "});
    panel.widget.delMacro("Macro ");
    QCOMPARE(panel.texts(), QStringList({"M1 - macro", "M2 - Macro"}));
    panel.widget.renameMacro("Macro", "X");
    QCOMPARE(panel.texts(), QStringList({"M1 - macro", "M2 - X"}));
}

void tst_MacroWid::refreshAnnouncesInOrder()
{
    Panel panel({"A", "B", "C"});
    panel.bind(9, "A");
    panel.bind(1, "C");
    panel.store.clearLog();
    panel.widget.refreshAssigns();
    QCOMPARE(panel.takeAssignedKeys(), QStringList({"M1 A 9", "M3 C 1"}));
    QCOMPARE(panel.store.calls(),
             QStringList({"getKeysOfMacro 0 0 A", "getKeysOfMacro 0 0 B", "getKeysOfMacro 0 0 C"}));
    QCOMPARE(panel.takeAssigned(), QStringList());
}

void tst_MacroWid::ownerAndProfileReachTheStore()
{
    Panel panel;
    panel.widget.setOwnerProfile(7, 4);
    panel.store.profile(7, 4).macros[6] = "A";
    panel.widget.addMacro("A");
    QCOMPARE(panel.store.calls(), QStringList({"getKeysOfMacro 7 4 A"}));
    QCOMPARE(panel.takeAssignedKeys(), QStringList({"M1 A 6"}));
}

void tst_MacroWid::anotherProfileEmptiesTheListSilently()
{
    Panel panel({"A", "B"});
    panel.click(0);
    panel.takeAssigned();
    panel.store.clearLog();
    panel.widget.setOwnerProfile(0, 1);
    QCoreApplication::processEvents();
    QCOMPARE(panel.list()->count(), 0);
    QCOMPARE(panel.takeAssigned(), QStringList());
    QCOMPARE(panel.store.calls(), QStringList());
    panel.widget.addMacro("C");
    QCOMPARE(panel.texts(), QStringList({"M1 - C"}));
}

void tst_MacroWid::clickSelectsAndSecondClickTakesBack()
{
    Panel panel({"A", "B"});
    panel.click(1);
    QCOMPARE(panel.takeAssigned(), QStringList({"M2 B on"}));
    QCOMPARE(panel.selected(), QStringList({"M2 - B"}));
    panel.click(1);
    QCOMPARE(panel.takeAssigned(), QStringList({"M2 B off"}));
    QCOMPARE(panel.selected(), QStringList());
    panel.click(1);
    QCOMPARE(panel.takeAssigned(), QStringList({"M2 B on"}));
    // Whether the key took it is the board's matter: nothing was written here.
    QCOMPARE(panel.store.writes(), QStringList());
}

void tst_MacroWid::clickOnAnotherMovesTheSelection()
{
    Panel panel({"A", "B", "C"});
    panel.click(0);
    panel.takeAssigned();
    panel.click(2);
    QCOMPARE(panel.takeAssigned(), QStringList({"M3 C on"}));
    QCOMPARE(panel.selected(), QStringList({"M3 - C"}));
}

void tst_MacroWid::dragIsOneClick()
{
    Panel panel({"A", "B", "C"});
    QWidget *const viewport = panel.list()->viewport();
    const auto at = [&panel](int row) {
        return panel.list()->visualItemRect(panel.list()->item(row)).center();
    };
    QTest::mousePress(viewport, Qt::LeftButton, {}, at(0));
    for (QPoint point = at(0); point.y() <= at(2).y(); point += QPoint(1, 4)) {
        QMouseEvent move(QEvent::MouseMove, point, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(viewport, &move);
    }
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, at(2));
    QCOMPARE(panel.takeAssigned(), QStringList({"M1 A on"}));
    QCOMPARE(panel.selected(), QStringList({"M1 - A"}));
}

void tst_MacroWid::spaceSelects()
{
    Panel panel({"A", "B"});
    panel.list()->setFocus();
    panel.list()->setCurrentRow(0, QItemSelectionModel::NoUpdate);
    pressKey(panel.list(), Qt::Key_Space);
    QCOMPARE(panel.takeAssigned(), QStringList({"M1 A on"}));
    pressKey(panel.list(), Qt::Key_Space);
    QCOMPARE(panel.takeAssigned(), QStringList({"M1 A off"}));
    pressKey(panel.list(), Qt::Key_Space);
    panel.takeAssigned();
    pressKey(panel.list(), Qt::Key_Down);
    pressKey(panel.list(), Qt::Key_Space);
    QCOMPARE(panel.takeAssigned(), QStringList({"M2 B on"}));
    QCOMPARE(panel.selected(), QStringList({"M2 - B"}));
}

void tst_MacroWid::arrowKeysSelectNothing()
{
    Panel panel({"A", "B", "C"});
    panel.click(0);
    panel.takeAssigned();
    pressKey(panel.list(), Qt::Key_Down);
    pressKey(panel.list(), Qt::Key_End);
    pressKey(panel.list(), Qt::Key_Up);
    QCOMPARE(panel.takeAssigned(), QStringList());
    QCOMPARE(panel.selected(), QStringList({"M1 - A"}));
}

void tst_MacroWid::typingSelectsNothing()
{
    Panel panel({"A", "B", "C"});
    panel.list()->setFocus();
    panel.click(0);
    panel.takeAssigned();
    typeInto(panel.list(), QStringLiteral("m2"));
    pressKey(panel.list(), Qt::Key_A, Qt::ControlModifier);
    pressKey(panel.list(), Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(panel.takeAssigned(), QStringList());
    QCOMPARE(panel.selected(), QStringList({"M1 - A"}));
}

void tst_MacroWid::showingASelectionIsSilent()
{
    Panel panel({"A", "B", "C"});
    panel.store.clearLog();
    panel.widget.slotMacroSelected("M2");
    QCOMPARE(panel.selected(), QStringList({"M2 - B"}));
    panel.widget.slotMacroSelected("M3");
    QCOMPARE(panel.selected(), QStringList({"M3 - C"}));
    panel.widget.slotMacroSelected("M4");
    QCOMPARE(panel.selected(), QStringList());
    panel.click(0);
    panel.takeAssigned();
    panel.widget.slotMacroSelected("M9");
    QCOMPARE(panel.selected(), QStringList());
    QCOMPARE(panel.takeAssigned(), QStringList());
    QCOMPARE(panel.store.calls(), QStringList());
}

void tst_MacroWid::clickAfterShowing()
{
    Panel panel({"A", "B", "C"});
    panel.widget.slotMacroSelected("M2");
    panel.click(0);
    QCOMPARE(panel.takeAssigned(), QStringList({"M1 A on"}));
    QCOMPARE(panel.selected(), QStringList({"M1 - A"}));
    panel.widget.slotMacroSelected("M2");
    panel.click(1);
    QCOMPARE(panel.takeAssigned(), QStringList({"M2 B off"}));
    QCOMPARE(panel.selected(), QStringList());
}

void tst_MacroWid::clearingTheSelectionIsSilent()
{
    Panel panel({"A", "B"});
    panel.click(1);
    panel.takeAssigned();
    panel.widget.clearSelection();
    QCOMPARE(panel.selected(), QStringList());
    QCOMPARE(panel.takeAssigned(), QStringList());
}

void tst_MacroWid::noCurrentItemEmitsNothing()
{
    Panel panel({"A", "B"});
    QVERIFY(!panel.list()->currentItem());
    panel.list()->item(0)->setSelected(true);
    QCOMPARE(panel.takeAssigned(), QStringList());
}

void tst_MacroWid::createButton()
{
    Panel panel({"A"});
    QSignalSpy create(&panel.widget, &MacroWid::sigCreateMacro);
    auto *const button = child<QPushButton>(&panel.widget, "m_createBtn");
    clickOn(button);
    QCOMPARE(create.count(), 1);
    pressKey(button, Qt::Key_Space);
    QCOMPARE(create.count(), 2);
    QCOMPARE(panel.takeAssigned(), QStringList());
}

void tst_MacroWid::deletedPanelEmitsNothing()
{
    FakeProfileCfg store;
    auto widget = std::make_unique<MacroWid>();
    widget->show();
    widget->addMacro("A");
    auto *const list = child<QListWidget>(widget.get(), "m_macroList");
    clickOn(list->viewport(), list->visualItemRect(list->item(0)).center());
    int count = 0;
    connect(widget.get(), &MacroWid::sigMacroAssigned, this, [&count] { ++count; });
    widget.reset();
    QCOMPARE(count, 0);
}

void tst_MacroWid::longNamesStayInside()
{
    Panel panel({QString(300, QLatin1Char('W'))});
    QVERIFY(panel.list()->visualItemRect(panel.list()->item(0)).width() <=
            panel.list()->viewport()->width());
}

void tst_MacroWid::tipsShowNamesAsTheyAre_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("tip");
    QTest::newRow("plain") << "Build all"
                           << "M1 - Build all";
    QTest::newRow("ampersand") << "Copy & Paste"
                               << "M1 - Copy & Paste";
    QTest::newRow("quotes") << "\"x\" 'y'"
                            << "M1 - \"x\" 'y'";
    QTest::newRow("greater") << "a > b"
                             << "M1 - a > b";
    QTest::newRow("less") << "a < b"
                          << "M1 - a < b";
    QTest::newRow("tag") << "<b>A</b> & \"B\""
                         << "<span>M1 - &lt;b&gt;A&lt;/b&gt; &amp; &quot;B&quot;</span>";
    QTest::newRow("entity") << "&lt;"
                            << "<span>M1 - &amp;lt;</span>";
}

void tst_MacroWid::tipsShowNamesAsTheyAre()
{
    QFETCH(QString, name);
    QFETCH(QString, tip);
    Panel panel({name});
    QCOMPARE(panel.list()->item(0)->toolTip(), tip);
    panel.widget.renameMacro(name.toStdString(), "other");
    QCOMPARE(panel.list()->item(0)->toolTip(), QStringLiteral("M1 - other"));
}

void tst_MacroWid::everythingStaysInside_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("design") << QSize(403, 253);
    QTest::newRow("half") << QSize(201, 126);
    QTest::newRow("double") << QSize(806, 506);
    QTest::newRow("very wide") << QSize(2400, 126);
    QTest::newRow("very tall") << QSize(201, 1200);
}

void tst_MacroWid::everythingStaysInside()
{
    QFETCH(const QSize, size);
    FakeProfileCfg store;
    QWidget page;
    MacroWid panel(&page);
    for (const char *name : {"A", "B", "C"})
        panel.addMacro(name);
    page.show();
    panel.resize(size);
    QCoreApplication::processEvents();
    QCOMPARE(panel.size(), size);
    const auto rectOf = [&panel](const char *name) {
        auto *const part = child<QWidget>(&panel, QLatin1String(name));
        return QRect(part->mapTo(&panel, QPoint()), part->size());
    };
    const QRect column = rectOf("widget");
    const QRect create = rectOf("m_createBtn");
    const QRect list = rectOf("m_macroList");
    QVERIFY(panel.rect().contains(column));
    QCOMPARE(create.topLeft(), column.topLeft() + QPoint(15, 15));
    QCOMPARE(create.width(), column.width() - 30);
    QCOMPARE(create.height(), 30);
    QCOMPARE(list.top(), create.bottom() + 2);
    QCOMPARE(list.bottomRight(), column.bottomRight() - QPoint(15, 15));
    const auto *const button = child<QPushButton>(&panel, "m_createBtn");
    QVERIFY(button->fontMetrics().horizontalAdvance(button->text()) <= button->width());
}

VANTRIX_TEST_MAIN(tst_MacroWid)
#include "tst_MacroWid.moc"
