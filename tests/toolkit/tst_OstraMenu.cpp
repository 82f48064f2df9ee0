#include "interfaces/OstraAction.h"
#include "interfaces/OstraMenu.h"
#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QGridLayout>
#include <QPushButton>

class tst_OstraMenu : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void fillsColumnsDownward();
    void staysInsideTheWindow_data();
    void staysInsideTheWindow();
    void leafReportsIdAndText();
    void hoverOpensOneMenuAtATime();
    void sideDecidesWhereAMenuOpens();
    void keyboardWalks();
    void leftClosesAMenuOnTheRight();
    void rightClosesAMenuOnTheLeft_data();
    void rightClosesAMenuOnTheLeft();
    void escapeClosesOneLevel();
    void clickElsewhereCloses();
    void clickOnAnchorLeavesItOpen();
    void resizeOfWindowCloses();
    void diesWithItsWindowOrBefore();

private:
    OstraAction *leaf(ushort id) const { return m_leaves.at(id - 100); }

    QWidget *m_window = nullptr;
    QPushButton *m_anchor = nullptr;
    QPushButton *m_other = nullptr;
    OstraMenu *m_menu = nullptr;
    OstraMenu *m_sub = nullptr;
    OstraAction *m_branch = nullptr;
    OstraAction *m_branch2 = nullptr;
    OstraAction *m_plain = nullptr;
    QList<OstraAction *> m_leaves;
};

void tst_OstraMenu::init()
{
    m_window = new QWidget;
    m_window->resize(800, 600);
    m_anchor = new QPushButton("anchor", m_window);
    m_anchor->setGeometry(100, 100, 100, 30);
    m_other = new QPushButton("other", m_window);
    m_other->setGeometry(600, 500, 100, 30);

    m_menu = new OstraMenu(m_window);
    m_sub = new OstraMenu(m_menu);
    m_branch = new OstraAction(1, 0, "BRANCH", m_menu);
    m_branch2 = new OstraAction(1, 0, "SECOND", m_menu);
    m_plain = new OstraAction(1, 7, "PLAIN", m_menu);
    m_branch->setOstraMenu(m_sub);
    m_branch2->setOstraMenu(new OstraMenu(m_menu));
    m_branch2->ostraMenu()->addOstraActions({new OstraAction(1, 8, "EIGHT", m_branch2)}, 12);
    m_menu->addOstraActions({m_branch, m_branch2, m_plain}, 12);
    m_leaves.clear();
    for (ushort id = 100; id < 130; ++id)
        m_leaves << new OstraAction(1, id, QString::number(id), m_sub);
    m_sub->addOstraActions(m_leaves, 12);

    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
}

void tst_OstraMenu::cleanup()
{
    delete m_window;
}

void tst_OstraMenu::fillsColumnsDownward()
{
    auto *grid = qobject_cast<QGridLayout *>(m_sub->layout());
    QVERIFY(grid);
    QCOMPARE(grid->itemAtPosition(0, 0)->widget(), leaf(100));
    QCOMPARE(grid->itemAtPosition(11, 0)->widget(), leaf(111));
    QCOMPARE(grid->itemAtPosition(0, 1)->widget(), leaf(112));
    QCOMPARE(grid->itemAtPosition(5, 2)->widget(), leaf(129));
    QVERIFY(!grid->itemAtPosition(6, 2));
}

void tst_OstraMenu::staysInsideTheWindow_data()
{
    QTest::addColumn<QPoint>("at");
    QTest::newRow("inside") << QPoint(100, 130);
    QTest::newRow("right") << QPoint(790, 130);
    QTest::newRow("below") << QPoint(100, 599);
    QTest::newRow("left above") << QPoint(-50, -50);
}

void tst_OstraMenu::staysInsideTheWindow()
{
    QFETCH(QPoint, at);
    m_menu->popup(m_anchor, m_window->mapToGlobal(at));
    QVERIFY(m_menu->isVisible());
    QVERIFY(m_window->rect().contains(m_menu->geometry()));
    if (at == QPoint(100, 130))
        QCOMPARE(m_menu->pos(), at);
    m_branch->openMenu();
    QVERIFY(m_sub->isVisible());
    QVERIFY(m_window->rect().contains(m_sub->geometry()));
}

void tst_OstraMenu::leafReportsIdAndText()
{
    QSignalSpy top(m_menu, &OstraMenu::sigActionChanged);
    QSignalSpy sub(m_sub, &OstraMenu::sigActionChanged);
    m_menu->popup(m_anchor, m_anchor->mapToGlobal(QPoint(0, 30)));
    clickOn(m_plain);
    QCOMPARE(top.count(), 1);
    QCOMPARE(top.at(0).at(0).value<ushort>(), ushort(7));
    QCOMPARE(top.at(0).at(1).toString(), QString("PLAIN"));
    clickOn(m_branch);
    QCOMPARE(top.count(), 1);
    QVERIFY(m_sub->isVisible());
    clickOn(leaf(112));
    QCOMPARE(sub.count(), 1);
    QCOMPARE(sub.at(0).at(0).value<ushort>(), ushort(112));
    QCOMPARE(top.count(), 1);
}

void tst_OstraMenu::hoverOpensOneMenuAtATime()
{
    m_menu->popup(m_anchor, m_anchor->mapToGlobal(QPoint(0, 30)));
    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(m_branch, &enter);
    QVERIFY(m_sub->isVisible());
    QCoreApplication::sendEvent(m_branch2, &enter);
    QVERIFY(!m_sub->isVisible());
    QVERIFY(m_branch2->ostraMenu()->isVisible());
    QCoreApplication::sendEvent(m_plain, &enter);
    QVERIFY(!m_branch2->ostraMenu()->isVisible());
}

void tst_OstraMenu::sideDecidesWhereAMenuOpens()
{
    m_menu->popup(m_anchor, m_anchor->mapToGlobal(QPoint(0, 30)));
    m_branch->openMenu();
    QCOMPARE(m_sub->x(), m_branch->mapTo(m_window, QPoint(m_branch->width(), 0)).x());
    m_menu->hideMenu();

    OstraMenu menu(m_window);
    auto *entry = new OstraAction(0, 0, "LEFT", &menu);
    auto *sub = new OstraMenu(&menu);
    sub->addOstraActions({new OstraAction(0, 5, "FIVE", sub)}, 12);
    entry->setOstraMenu(sub);
    menu.addOstraActions({entry}, 12);
    menu.popup(m_other, m_window->mapToGlobal(QPoint(500, 300)));
    entry->openMenu();
    QCOMPARE(sub->geometry().right() + 1, entry->mapTo(m_window, QPoint(0, 0)).x());
}

void tst_OstraMenu::keyboardWalks()
{
    m_menu->popup(m_anchor, m_anchor->mapToGlobal(QPoint(0, 30)));
    m_menu->focusFirst();
    QVERIFY(m_branch->hasFocus());
    pressKey(m_branch, Qt::Key_Down);
    QVERIFY(m_branch2->hasFocus());
    pressKey(m_branch2, Qt::Key_Up);
    pressKey(m_branch, Qt::Key_Up);
    QVERIFY(m_plain->hasFocus());
    pressKey(m_plain, Qt::Key_Down);
    pressKey(m_branch, Qt::Key_Right);
    QVERIFY(m_sub->isVisible());
    QVERIFY(leaf(100)->hasFocus());
    pressKey(leaf(100), Qt::Key_Right);
    QVERIFY(leaf(112)->hasFocus());
    pressKey(leaf(112), Qt::Key_Down);
    QVERIFY(leaf(113)->hasFocus());
    QSignalSpy spy(m_sub, &OstraMenu::sigActionChanged);
    pressKey(leaf(113), Qt::Key_Return);
    QTRY_COMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).value<ushort>(), ushort(113));
    pressKey(leaf(113), Qt::Key_Space);
    QCOMPARE(spy.count(), 2);
}

void tst_OstraMenu::leftClosesAMenuOnTheRight()
{
    m_menu->popup(m_anchor, m_anchor->mapToGlobal(QPoint(0, 30)));
    clickOn(m_branch);
    leaf(125)->setFocus();
    pressKey(leaf(125), Qt::Key_Right);
    QVERIFY(leaf(125)->hasFocus());
    pressKey(leaf(125), Qt::Key_Left);
    QVERIFY(leaf(113)->hasFocus());
    pressKey(leaf(113), Qt::Key_Left);
    pressKey(leaf(101), Qt::Key_Left);
    QVERIFY(!m_sub->isVisible());
    QVERIFY(m_branch->hasFocus());
    pressKey(m_branch, Qt::Key_Left);
    QVERIFY(m_menu->isVisible());
}

void tst_OstraMenu::rightClosesAMenuOnTheLeft_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QVector<int>>("way"); // places of the entries that Right leads to
    QTest::newRow("one column") << 3 << QVector<int>{1};
    QTest::newRow("two columns") << 24 << QVector<int>{1, 13};
    QTest::newRow("two columns, one shorter") << 13 << QVector<int>{0, 12};
    QTest::newRow("beside a shorter column") << 13 << QVector<int>{1};
}

/// The menus of the second action: what opens to the left is left to the right.
void tst_OstraMenu::rightClosesAMenuOnTheLeft()
{
    QFETCH(int, count);
    QFETCH(QVector<int>, way);
    OstraMenu menu(m_window);
    auto *const entry = new OstraAction(0, 0, "LEFT", &menu);
    auto *const sub = new OstraMenu(&menu);
    QList<OstraAction *> leaves;
    for (int i = 0; i < count; ++i)
        leaves << new OstraAction(0, ushort(i + 1), QString::number(i), sub);
    sub->addOstraActions(leaves, 12);
    entry->setOstraMenu(sub);
    menu.addOstraActions({entry}, 12);
    menu.popup(m_other, m_window->mapToGlobal(QPoint(500, 300)));
    menu.focusFirst();
    pressKey(entry, Qt::Key_Left);
    QVERIFY(leaves.first()->hasFocus());
    OstraAction *const start = leaves.at(way.first());
    start->setFocus();
    pressKey(start, Qt::Key_Left);
    QVERIFY(sub->isVisible());
    QVERIFY(start->hasFocus());
    for (const int place : qAsConst(way)) {
        QVERIFY(leaves.at(place)->hasFocus());
        pressKey(leaves.at(place), Qt::Key_Right);
    }
    QVERIFY(!sub->isVisible());
    QVERIFY(menu.isVisible());
    QVERIFY(entry->hasFocus());
    pressKey(entry, Qt::Key_Right);
    QVERIFY(menu.isVisible());
    QVERIFY(entry->hasFocus());
}

void tst_OstraMenu::escapeClosesOneLevel()
{
    m_menu->popup(m_anchor, m_anchor->mapToGlobal(QPoint(0, 30)));
    clickOn(m_branch);
    QVERIFY(leaf(100)->hasFocus());
    pressKey(leaf(100), Qt::Key_Escape);
    QVERIFY(!m_sub->isVisible());
    QVERIFY(m_menu->isVisible());
    QVERIFY(m_branch->hasFocus());
    pressKey(m_branch, Qt::Key_Escape);
    QVERIFY(!m_menu->isVisible());
    QVERIFY(m_anchor->hasFocus());
}

void tst_OstraMenu::clickElsewhereCloses()
{
    m_menu->popup(m_anchor, m_anchor->mapToGlobal(QPoint(0, 30)));
    clickOn(m_branch);
    clickOn(m_other);
    QVERIFY(!m_menu->isVisible());
    QVERIFY(!m_sub->isVisible());
}

void tst_OstraMenu::clickOnAnchorLeavesItOpen()
{
    m_menu->popup(m_anchor, m_anchor->mapToGlobal(QPoint(0, 30)));
    clickOn(m_anchor);
    QVERIFY(m_menu->isVisible());
}

void tst_OstraMenu::resizeOfWindowCloses()
{
    m_menu->popup(m_anchor, m_anchor->mapToGlobal(QPoint(0, 30)));
    m_window->resize(500, 400);
    QTRY_VERIFY(!m_menu->isVisible());
}

void tst_OstraMenu::diesWithItsWindowOrBefore()
{
    auto *window = new QWidget;
    auto *anchor = new QPushButton(window);
    window->show();
    auto *holder = new QWidget;
    auto *entry = new OstraAction(1, 0, "A", holder);
    QPointer<OstraMenu> first = new OstraMenu(holder);
    entry->setOstraMenu(first);
    first->popup(anchor, QPoint(0, 0));
    QCOMPARE(first->parentWidget(), window);
    delete window;
    QVERIFY(!first);
    delete holder;

    QWidget second;
    QPushButton button(&second);
    second.show();
    auto *action = new OstraAction(1, 0, "B", nullptr);
    QPointer<OstraMenu> menu = new OstraMenu(action);
    action->setOstraMenu(menu);
    menu->popup(&button, QPoint(0, 0));
    delete action;
    QVERIFY(!menu);
}

VANTRIX_TEST_MAIN(tst_OstraMenu)
#include "tst_OstraMenu.moc"
