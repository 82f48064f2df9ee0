#include "interfaces/ButtonGroupEx.h"
#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

class tst_ButtonGroupEx : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void clickChecksAndUnchecks_data();
    void clickChecksAndUnchecks();
    void checkingOneUnchecksTheOther();
    void codeEmitsNoClick();
    void unknownIdChangesNothing();
    void noneChecked();
    void automaticIdsAreNegative();
    void stateHasChangedWhenTheClickIsTold();
    void arrowsGoToTheNearest();
    void arrowsPassWhatCannotBeUsed();
    void enterChecks_data();
    void enterChecks();
    void heldEnterChecksOnce();
    void enterWithAModifierIsForOthers();
    void arrowsScroll();
    void tabPassesTheGroup();
    void tabReachesTheGroupAgain();
    void focusedButtonMayDie();

private:
    QStringList states() const;

    QWidget *m_window = nullptr;
    ButtonGroupEx *m_group = nullptr;
    QList<QPushButton *> m_buttons;
};

void tst_ButtonGroupEx::init()
{
    m_window = new QWidget;
    m_group = new ButtonGroupEx(m_window);
    auto *layout = new QVBoxLayout(m_window);
    for (int id : {10, 20, 30}) {
        auto *button = new QPushButton(m_window);
        button->setCheckable(true);
        layout->addWidget(button);
        m_group->addButton(button, id);
        m_buttons << button;
    }
    m_window->show();
}

void tst_ButtonGroupEx::cleanup()
{
    delete m_window;
    m_buttons.clear();
}

QStringList tst_ButtonGroupEx::states() const
{
    QStringList list;
    for (const QPushButton *button : m_buttons)
        list << (button->isChecked() ? "1" : "0");
    return list;
}

void tst_ButtonGroupEx::clickChecksAndUnchecks_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("mouse") << 0;
    QTest::newRow("space") << 1;
    QTest::newRow("click") << 2;
    QTest::newRow("animateClick") << 3;
}

void tst_ButtonGroupEx::clickChecksAndUnchecks()
{
    QFETCH(int, way);
    qRegisterMetaType<QAbstractButton *>();
    QPushButton *const button = m_buttons.at(1);
    QSignalSpy spy(m_group, &ButtonGroupEx::sigButtonClicked);
    for (int times = 1; times <= 3; ++times) {
        if (way == 0)
            clickOn(button);
        else if (way == 1)
            pressKey(button, Qt::Key_Space);
        else if (way == 2)
            button->click();
        else
            button->animateClick(1);
        QTRY_COMPARE(spy.count(), times);
        QCOMPARE(button->isChecked(), times % 2 == 1);
    }
    QCOMPARE(spy.at(0).at(0).value<QAbstractButton *>(), button);
}

void tst_ButtonGroupEx::checkingOneUnchecksTheOther()
{
    clickOn(m_buttons.at(0));
    QCOMPARE(states(), QStringList({"1", "0", "0"}));
    clickOn(m_buttons.at(2));
    QCOMPARE(states(), QStringList({"0", "0", "1"}));
    m_group->setButtonChecked(20, true);
    QCOMPARE(states(), QStringList({"0", "1", "0"}));
}

void tst_ButtonGroupEx::codeEmitsNoClick()
{
    QSignalSpy spy(m_group, &ButtonGroupEx::sigButtonClicked);
    m_group->setButtonChecked(10, true);
    m_group->setButtonChecked(20, true);
    m_group->setButtonChecked(20, false);
    m_buttons.at(2)->setChecked(true);
    m_group->setNoneButtonChecked();
    QCOMPARE(spy.count(), 0);
}

void tst_ButtonGroupEx::unknownIdChangesNothing()
{
    m_group->setButtonChecked(10, true);
    m_group->setButtonChecked(99, true);
    m_group->setButtonChecked(0, false);
    QCOMPARE(states(), QStringList({"1", "0", "0"}));
}

void tst_ButtonGroupEx::noneChecked()
{
    m_group->setButtonChecked(10, true);
    m_group->setNoneButtonChecked();
    QCOMPARE(states(), QStringList({"0", "0", "0"}));
}

void tst_ButtonGroupEx::automaticIdsAreNegative()
{
    ButtonGroupEx group;
    for (QPushButton *button : qAsConst(m_buttons)) {
        group.addButton(button);
        QVERIFY(group.id(button) < 0);
    }
}

void tst_ButtonGroupEx::stateHasChangedWhenTheClickIsTold()
{
    QStringList seen;
    connect(m_group, &ButtonGroupEx::sigButtonClicked, this,
            [&] { seen << states().join(QString()); });
    clickOn(m_buttons.at(0));
    clickOn(m_buttons.at(1));
    clickOn(m_buttons.at(1));
    QCOMPARE(seen, QStringList({"100", "010", "000"}));
}

namespace {

/// Nine buttons in a square between two fields.
struct Square : QWidget
{
    Square()
    {
        auto *const grid = new QGridLayout(this);
        grid->addWidget(before, 0, 0, 1, 3);
        for (int i = 0; i < 9; ++i) {
            buttons << new QPushButton(QString::number(i), this);
            buttons.last()->setCheckable(true);
            grid->addWidget(buttons.last(), 1 + i / 3, i % 3);
            group->addButton(buttons.last(), i);
        }
        grid->addWidget(after, 4, 0, 1, 3);
        setTabOrder(buttons.last(), after);
        resize(300, 200);
        show();
        activateWindow();
        QTRY_VERIFY(isActiveWindow());
    }

    int press(Qt::Key key)
    {
        pressKey(focusWidget(), key);
        return buttons.indexOf(qobject_cast<QPushButton *>(focusWidget()));
    }

    QLineEdit *before = new QLineEdit(this);
    QLineEdit *after = new QLineEdit(this);
    ButtonGroupEx *group = new ButtonGroupEx(this);
    QList<QPushButton *> buttons;
};

} // namespace

void tst_ButtonGroupEx::arrowsGoToTheNearest()
{
    Square square;
    QSignalSpy clicked(square.group, &ButtonGroupEx::sigButtonClicked);
    square.buttons.at(0)->setFocus();
    QCOMPARE(square.press(Qt::Key_Right), 1);
    QCOMPARE(square.press(Qt::Key_Down), 4);
    QCOMPARE(square.press(Qt::Key_Down), 7);
    QCOMPARE(square.press(Qt::Key_Left), 6);
    QCOMPARE(square.press(Qt::Key_Left), 6);
    QCOMPARE(square.press(Qt::Key_Up), 3);
    QCOMPARE(clicked.count(), 0);
    QVERIFY(!square.group->checkedButton());
    square.press(Qt::Key_Space);
    QCOMPARE(square.group->checkedId(), 3);
}

void tst_ButtonGroupEx::arrowsPassWhatCannotBeUsed()
{
    Square square;
    square.buttons.at(1)->hide();
    square.buttons.at(4)->setEnabled(false);
    square.buttons.at(0)->setFocus();
    QCOMPARE(square.press(Qt::Key_Right), 2);
    square.buttons.at(3)->setFocus();
    QCOMPARE(square.press(Qt::Key_Right), 5);
}

void tst_ButtonGroupEx::enterChecks_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("return") << Qt::Key_Return;
    QTest::newRow("enter") << Qt::Key_Enter;
}

/// As it comes up, like Space: whoever takes the keyboard on the click is not to see the key.
void tst_ButtonGroupEx::enterChecks()
{
    QFETCH(Qt::Key, key);
    const auto modifiers = key == Qt::Key_Enter ? Qt::KeypadModifier : Qt::NoModifier;
    Square square;
    QSignalSpy clicked(square.group, &ButtonGroupEx::sigButtonClicked);
    QPushButton *const button = square.buttons.at(3);
    button->setFocus();
    for (int times = 1; times <= 2; ++times) {
        QTest::keyPress(button, key, modifiers);
        QVERIFY(button->isDown());
        QCOMPARE(clicked.count(), times - 1);
        QTest::keyRelease(button, key, modifiers);
        QVERIFY(!button->isDown());
        QCOMPARE(clicked.count(), times);
        QCOMPARE(square.group->checkedId(), times == 1 ? 3 : -1);
    }
    // The release of an Enter that went down elsewhere.
    QTest::keyRelease(button, key, modifiers);
    QCOMPARE(clicked.count(), 2);
}

void tst_ButtonGroupEx::heldEnterChecksOnce()
{
    Square square;
    QSignalSpy clicked(square.group, &ButtonGroupEx::sigButtonClicked);
    QPushButton *const button = square.buttons.at(3);
    button->setFocus();
    QTest::keyPress(button, Qt::Key_Return);
    for (const QEvent::Type type : {QEvent::KeyRelease, QEvent::KeyPress}) {
        QKeyEvent repeat(type, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"), true);
        QCoreApplication::sendEvent(button, &repeat);
    }
    QCOMPARE(clicked.count(), 0);
    QTest::keyRelease(button, Qt::Key_Return);
    QCOMPARE(clicked.count(), 1);
}

void tst_ButtonGroupEx::enterWithAModifierIsForOthers()
{
    Square square;
    QSignalSpy clicked(square.group, &ButtonGroupEx::sigButtonClicked);
    square.buttons.at(3)->setFocus();
    pressKey(square.buttons.at(3), Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(clicked.count(), 0);
}

void tst_ButtonGroupEx::arrowsScroll()
{
    QScrollArea area;
    auto *const list = new QWidget;
    auto *const rows = new QVBoxLayout(list);
    ButtonGroupEx group;
    QList<QPushButton *> buttons;
    for (int i = 0; i < 40; ++i) {
        buttons << new QPushButton(list);
        buttons.last()->setCheckable(true);
        rows->addWidget(buttons.last());
        group.addButton(buttons.last(), i);
    }
    area.setWidget(list);
    area.resize(150, 120);
    area.show();
    area.activateWindow();
    QTRY_VERIFY(area.isActiveWindow());
    buttons.first()->setFocus();
    for (int i = 1; i < 40; ++i) {
        pressKey(buttons.at(i - 1), Qt::Key_Down);
        QVERIFY(buttons.at(i)->hasFocus());
        QVERIFY(!buttons.at(i)->visibleRegion().isEmpty());
    }
}

void tst_ButtonGroupEx::tabPassesTheGroup()
{
    Square square;
    square.before->setFocus();
    QCOMPARE(square.press(Qt::Key_Tab), 0);
    square.press(Qt::Key_Right);
    square.press(Qt::Key_Tab);
    QVERIFY(square.after->hasFocus());
}

void tst_ButtonGroupEx::tabReachesTheGroupAgain()
{
    Square square;
    square.buttons.at(0)->setFocus();
    square.before->setFocus();
    square.buttons.at(0)->hide();
    QCOMPARE(square.press(Qt::Key_Tab), 1);
}

void tst_ButtonGroupEx::focusedButtonMayDie()
{
    Square square;
    square.buttons.at(4)->setFocus();
    delete square.buttons.takeAt(4);
    square.buttons.at(0)->setFocus();
    QCOMPARE(square.press(Qt::Key_Down), 3);
}

VANTRIX_TEST_MAIN(tst_ButtonGroupEx)
#include "tst_ButtonGroupEx.moc"
