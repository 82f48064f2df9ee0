#include "interfaces/ButtonGroupEx.h"
#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QPushButton>
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

VANTRIX_TEST_MAIN(tst_ButtonGroupEx)
#include "tst_ButtonGroupEx.moc"
