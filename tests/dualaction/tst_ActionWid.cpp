#include "dualaction/ActionWid.h"

#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QSignalSpy>

class tst_ActionWid : public QObject
{
    Q_OBJECT

private slots:
    void form();
    void menuHasThreeKinds();
    void title_data();
    void title();
    void clickFoldsTheMenu();
    void kindIsReported_data();
    void kindIsReported();
    void checkedKindIsReportedAgain();
    void setInput_data();
    void setInput();
    void disablingHidesTheMenu();
    void resetKeepsKindAndTitle();
};

namespace {

QButtonGroup *groupOf(const ActionWid &action)
{
    return action.findChild<QButtonGroup *>();
}

bool isMenuOpen(const ActionWid &action)
{
    return !child<QWidget>(&action, "m_assignMenu")->isHidden();
}

} // namespace

void tst_ActionWid::form()
{
    const ActionWid action;
    QCOMPARE(action.size(), QSize(241, 210));
    const auto *layout = qobject_cast<QVBoxLayout *>(action.layout());
    QVERIFY(layout);
    QCOMPARE(layout->spacing(), 1);
    QCOMPARE(layout->contentsMargins(), QMargins(10, 27, 10, 0));
    QCOMPARE(layout->itemAt(0)->widget(), child<QWidget>(&action, "m_action"));
    QCOMPARE(layout->itemAt(1)->widget(), child<QWidget>(&action, "m_assignMenu"));
    QVERIFY(layout->itemAt(2)->spacerItem());
    QCOMPARE(child<QWidget>(&action, "m_action")->minimumSize(), QSize(100, 27));
    QCOMPARE(child<QWidget>(&action, "m_action")->styleSheet(),
             QStringLiteral("QPushButton{background:transparent;color:white;border:1px solid "
                            "white;min-height:25px;}\n:hover{background:rgba(255,255,255,50)}\n:"
                            "disabled{background:rgb(121,121,121);border:1px solid "
                            "gray;color:rgb(168,168,168);}"));
    QCOMPARE(child<QLayout>(&action, "m_layout")->spacing(), 1);
    QCOMPARE(child<QWidget>(&action, "m_assignMenu")->layout()->spacing(), 0);
    QCOMPARE(child<QWidget>(&action, "m_assignMenu")->layout()->contentsMargins(), QMargins());
}

void tst_ActionWid::menuHasThreeKinds()
{
    const ActionWid action;
    const QStringList texts = {"KEYBOARD", "MOUSE", "MEDIA"};
    QCOMPARE(groupOf(action)->buttons().size(), 3);
    const auto *layout = child<QLayout>(&action, "m_layout");
    for (int id = 0; id < 3; ++id) {
        const auto *button = qobject_cast<MenuBtn *>(groupOf(action)->button(id));
        QVERIFY(button);
        QCOMPARE(button->text(), texts.at(id));
        QVERIFY(button->isCheckable());
        QVERIFY(!button->isChecked());
        QCOMPARE(layout->itemAt(id)->widget(), button);
        QCOMPARE(button->styleSheet(),
                 QStringLiteral("QPushButton{background:transparent;color:white;border:1px solid "
                                "white;min-height:25px;font-size:11px;}:hover{background:rgba(255,"
                                "255,255,50);}:checked{background:rgb(132,50,155)}"));
    }
    QVERIFY(!isMenuOpen(action));
    QCOMPARE(action.keyCode(), ushort(0));
}

void tst_ActionWid::title_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("text");
    QTest::newRow("1") << 1 << "ACTION  1";
    QTest::newRow("2") << 2 << "ACTION  2";
}

void tst_ActionWid::title()
{
    QFETCH(int, number);
    QFETCH(QString, text);
    ActionWid action;
    action.setActionNo(number);
    QCOMPARE(child<QPushButton>(&action, "m_action")->text(), text);
}

void tst_ActionWid::clickFoldsTheMenu()
{
    ActionWid action;
    action.show();
    QSignalSpy spy(&action, &ActionWid::sigActionAssigned);
    auto *button = child<QPushButton>(&action, "m_action");
    clickOn(button);
    QVERIFY(isMenuOpen(action));
    clickOn(button);
    QVERIFY(!isMenuOpen(action));
    pressKey(button, Qt::Key_Space);
    QVERIFY(isMenuOpen(action));
    QCOMPARE(spy.count(), 0);
}

void tst_ActionWid::kindIsReported_data()
{
    QTest::addColumn<int>("input");
    QTest::newRow("keyboard") << 0;
    QTest::newRow("mouse") << 1;
    QTest::newRow("media") << 2;
}

void tst_ActionWid::kindIsReported()
{
    QFETCH(int, input);
    ActionWid action;
    action.setActionNo(2);
    action.show();
    QSignalSpy spy(&action, &ActionWid::sigActionAssigned);
    clickOn(child<QPushButton>(&action, "m_action"));
    clickOn(groupOf(action)->button(input));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0), (QVariantList{2, input, QStringLiteral("ACTION  2")}));
    QCOMPARE(groupOf(action)->checkedId(), input);
    QVERIFY(isMenuOpen(action));
}

void tst_ActionWid::checkedKindIsReportedAgain()
{
    ActionWid action;
    action.setActionNo(1);
    action.show();
    action.setInput(1);
    QSignalSpy spy(&action, &ActionWid::sigActionAssigned);
    clickOn(groupOf(action)->button(1));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(groupOf(action)->checkedId(), 1);
}

void tst_ActionWid::setInput_data()
{
    QTest::addColumn<int>("input");
    QTest::addColumn<bool>("hasButton");
    for (int input = -1; input <= 13; ++input)
        QTest::addRow("input %d", input) << input << (input >= 0 && input <= 2);
}

void tst_ActionWid::setInput()
{
    QFETCH(int, input);
    QFETCH(bool, hasButton);
    ActionWid action;
    QSignalSpy spy(&action, &ActionWid::sigActionAssigned);
    action.setInput(input);
    QCOMPARE(isMenuOpen(action), hasButton);
    QCOMPARE(groupOf(action)->checkedId(), hasButton ? input : -1);

    // A column that shows something already.
    ActionWid shown;
    shown.setInput(2);
    shown.setInput(input);
    QVERIFY(isMenuOpen(shown));
    QCOMPARE(groupOf(shown)->checkedId(), hasButton ? input : 2);
    QCOMPARE(spy.count(), 0);
}

void tst_ActionWid::disablingHidesTheMenu()
{
    ActionWid action;
    action.setInput(0);
    action.setKeyCode(5);
    action.setActionEnabled(false);
    QVERIFY(!isMenuOpen(action));
    QVERIFY(!child<QPushButton>(&action, "m_action")->isEnabled());
    QCOMPARE(action.keyCode(), ushort(5));
    action.setActionEnabled(true);
    QVERIFY(!isMenuOpen(action));
    QVERIFY(child<QPushButton>(&action, "m_action")->isEnabled());
    QCOMPARE(groupOf(action)->checkedId(), 0);
}

void tst_ActionWid::resetKeepsKindAndTitle()
{
    ActionWid action;
    action.setActionNo(1);
    action.setInput(2);
    action.setKeyCode(240);
    action.resetAction();
    QCOMPARE(action.keyCode(), ushort(0));
    QVERIFY(!isMenuOpen(action));
    QCOMPARE(groupOf(action)->checkedId(), 2);
    QCOMPARE(child<QPushButton>(&action, "m_action")->text(), QStringLiteral("ACTION  1"));
}

VANTRIX_TEST_MAIN(tst_ActionWid)
#include "tst_ActionWid.moc"
