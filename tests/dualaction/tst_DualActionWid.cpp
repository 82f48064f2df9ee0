#include "dualaction/DualActionWid.h"

#include "dualaction/ActionAssignWid.h"
#include "dualaction/ActionWid.h"
#include "fakes/FakeServices.h"
#include "interfaces/ButtonGroupEx.h"
#include "panels/Keyboard.h"
#include "panels/MouseWid.h"
#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QStackedWidget>

#include <cstring>
#include <memory>

class tst_DualActionWid : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { registerRecordTypes(); }
    void init();
    void cleanup();
    void form();
    void freshPanel();
    void maskIsAskedForBeforeTheOverlayShows();
    void openingKinds_data();
    void openingKinds();
    void overlayCapturesByPermission();
    void firstAction();
    void otherRecordsGiveTheirAltCode();
    void takingTheFirstActionBack_data();
    void takingTheFirstActionBack();
    void secondAction();
    void laterChoiceWins();
    void choiceTakesTheSlidersDepth();
    void choiceKeepsTheRecordsType();
    void depthOfTheUser();
    void showingIsSilent();
    void showsTheKindsOfTheActions_data();
    void showsTheKindsOfTheActions();
    void storedWithoutASecondAction();
    void resetPanel();
    void backAndApplyArePassedOn_data();
    void backAndApplyArePassedOn();
    void maskIsTheWindowWithoutTheRegion();
    void resetKeepsTheOverlayOpen();
    void secondActionNeedsAFirst();
    void overlayFollowsTheWindow();
    void closedOverlayFollowsSilently();
    void hidingThePageGoesBack();
    void hidingWithAClosedOverlayIsSilent();
    void overlayDiesWithThePanel();
    void overlayMayDieFirst();
    void noMainWidget();
    void roundTripOfEveryDepth();

private:
    ActionAssignWid *overlay() { return m_main->findChild<ActionAssignWid *>("m_overlay"); }
    ActionWid *action(int number)
    {
        return child<ActionWid>(m_panel, number == 1 ? "m_action1" : "m_action2");
    }
    QPushButton *actionButton(int number) { return child<QPushButton>(action(number), "m_action"); }
    bool isMenuOpen(int number)
    {
        return !child<QWidget>(action(number), "m_assignMenu")->isHidden();
    }
    QSlider *slider() { return child<QSlider>(m_panel, "m_distanceSlider"); }
    void open(int number, int input);
    vantrix_key_mapping lastRecord() const;

    std::unique_ptr<FakeEnvironment> m_environment;
    std::unique_ptr<FakeSystemHotKey> m_hotKey;
    std::unique_ptr<QWidget> m_main;
    DualActionWid *m_panel = nullptr;
    std::unique_ptr<QSignalSpy> m_changed;
};

namespace {

vantrix_presso_digital digital(int first, int second, int depth)
{
    vantrix_presso_digital part;
    part.firstAction = ushort(first);
    part.secondAction = ushort(second);
    part.depth = uchar(depth);
    return part;
}

vantrix_key_mapping picked(int code, const vantrix_presso_digital &part)
{
    vantrix_key_mapping key = plainKey(ushort(code));
    key.digital = part;
    return key;
}

} // namespace

void tst_DualActionWid::init()
{
    m_environment = std::make_unique<FakeEnvironment>();
    m_hotKey = std::make_unique<FakeSystemHotKey>();
    m_main = std::make_unique<QWidget>();
    m_main->resize(1185, 790);
    m_environment->mainWidget = m_main.get();
    m_panel = new DualActionWid(m_main.get());
    m_panel->setGeometry(0, 590, 992, 200);
    m_changed = std::make_unique<QSignalSpy>(m_panel, &DualActionWid::sigDualActionChanged);
    m_main->show();
    QVERIFY(QTest::qWaitForWindowActive(m_main.get()));
}

void tst_DualActionWid::cleanup()
{
    m_changed.reset();
    m_main.reset();
    m_hotKey.reset();
    m_environment.reset();
    QVERIFY(!QWidget::keyboardGrabber());
}

/// As the user does it: the column's button, then a kind of its menu.
void tst_DualActionWid::open(int number, int input)
{
    if (!isMenuOpen(number))
        clickOn(actionButton(number));
    clickOn(action(number)->findChild<QButtonGroup *>()->button(input));
}

vantrix_key_mapping tst_DualActionWid::lastRecord() const
{
    return m_changed->isEmpty() ? vantrix_key_mapping()
                                : m_changed->last().at(0).value<vantrix_key_mapping>();
}

void tst_DualActionWid::form()
{
    const auto *row = qobject_cast<QHBoxLayout *>(m_panel->layout());
    QVERIFY(row);
    QCOMPARE(row->objectName(), QStringLiteral("horizontalLayout_2"));
    QCOMPARE(row->contentsMargins(), QMargins(9, 0, 9, 0));
    QCOMPARE(row->count(), 3);
    QCOMPARE(row->stretch(0), 1);
    QCOMPARE(row->stretch(1), 4);
    QCOMPARE(row->stretch(2), 1);
    const auto *columns = child<QHBoxLayout>(m_panel, "horizontalLayout");
    QCOMPARE(columns->count(), 3);
    QCOMPARE(columns->itemAt(0)->widget(), action(1));
    QCOMPARE(columns->itemAt(1)->layout()->itemAt(0)->widget(),
             child<QWidget>(m_panel, "m_distanceWid"));
    QCOMPARE(columns->itemAt(2)->widget(), action(2));
}

void tst_DualActionWid::freshPanel()
{
    QCOMPARE(child<QLabel>(m_panel, "m_distanceLab")->text(), QStringLiteral("50%"));
    QCOMPARE(actionButton(1)->text(), QStringLiteral("ACTION  1"));
    QCOMPARE(actionButton(2)->text(), QStringLiteral("ACTION  2"));
    QVERIFY(actionButton(1)->isEnabled());
    QVERIFY(!actionButton(2)->isEnabled());
    QVERIFY(!isMenuOpen(1));
    QVERIFY(!isMenuOpen(2));
    QVERIFY(overlay());
    QCOMPARE(overlay()->parentWidget(), m_main.get());
    QVERIFY(overlay()->isHidden());
}

void tst_DualActionWid::maskIsAskedForBeforeTheOverlayShows()
{
    QList<QWidget *> asked;
    bool wasVisible = true;
    connect(m_panel, &DualActionWid::sigGetVantrixMask, this, [&](QWidget *mainWid) {
        asked << mainWid;
        wasVisible = overlay()->isVisible();
    });
    open(1, 1);
    QCOMPARE(asked, QList<QWidget *>{m_main.get()});
    QVERIFY(!wasVisible);
    QVERIFY(overlay()->isVisible());
    QCOMPARE(overlay()->geometry(), QRect(0, 0, 1185, 790));
}

void tst_DualActionWid::openingKinds_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("input");
    for (const int number : {1, 2}) {
        QTest::addRow("action %d keyboard", number) << number << 0;
        QTest::addRow("action %d mouse", number) << number << 1;
        QTest::addRow("action %d media", number) << number << 2;
    }
}

void tst_DualActionWid::openingKinds()
{
    QFETCH(int, number);
    QFETCH(int, input);
    m_panel->slotDualActionSelected(0, 0, digital(4, 5, 50));
    open(number, input);
    QCOMPARE(child<QLabel>(overlay(), "m_action")->text(),
             QStringLiteral("ACTION  %1").arg(number));
    QCOMPARE(child<QStackedWidget>(overlay(), "m_map")->currentIndex(), input);
    QCOMPARE(QWidget::keyboardGrabber() != nullptr, input == 0);
    QCOMPARE(m_changed->count(), 0);
    emit overlay()->sigDualActionChanged(number, plainKey(496));
    QCOMPARE(action(number)->keyCode(), ushort(496));
}

/// The permission is asked as the overlay opens: the focus that it takes has no say in it.
void tst_DualActionWid::overlayCapturesByPermission()
{
    m_panel->setCaptureEnabled(false);
    open(1, 0);
    QVERIFY(overlay()->isVisible());
    QVERIFY(!QWidget::keyboardGrabber());
    QCOMPARE(m_hotKey->startCount, 0);
    clickOn(child<QPushButton>(overlay(), "m_back"));
    m_panel->setCaptureEnabled(true);
    QVERIFY(!QWidget::keyboardGrabber());
    open(1, 0);
    QVERIFY(QWidget::keyboardGrabber());
    m_panel->setCaptureEnabled(false);
    QVERIFY(QWidget::keyboardGrabber());
    clickOn(child<QPushButton>(overlay(), "m_back"));
    QVERIFY(!QWidget::keyboardGrabber());
}

void tst_DualActionWid::firstAction()
{
    open(1, 0);
    clickOn(child<QPushButton>(overlay(), "btn_30"));
    QCOMPARE(m_changed->count(), 1);
    QCOMPARE(lastRecord(), picked(4, digital(4, 0, 50)));
    QVERIFY(actionButton(2)->isEnabled());
    QVERIFY(overlay()->isVisible());
}

void tst_DualActionWid::otherRecordsGiveTheirAltCode()
{
    vantrix_key_mapping key = gameKey(462);
    emit overlay()->sigDualActionChanged(1, key);
    QCOMPARE(action(1)->keyCode(), ushort(462));
    key.altCode = 255;
    emit overlay()->sigDualActionChanged(1, key);
    QCOMPARE(action(1)->keyCode(), ushort(0));
}

void tst_DualActionWid::takingTheFirstActionBack_data()
{
    QTest::addColumn<int>("code");
    QTest::newRow("unassigned") << 255;
    QTest::newRow("disabled") << 0;
}

void tst_DualActionWid::takingTheFirstActionBack()
{
    QFETCH(int, code);
    m_panel->slotDualActionSelected(0, 1, digital(4, 497, 60));
    QVERIFY(isMenuOpen(2));
    emit overlay()->sigDualActionChanged(1, plainKey(ushort(code)));
    QVERIFY(!actionButton(2)->isEnabled());
    QVERIFY(!isMenuOpen(2));
    QCOMPARE(lastRecord(), picked(code, digital(0, 497, 60)));
    QCOMPARE(action(2)->keyCode(), ushort(497));
    QCOMPARE(action(1)->keyCode(), ushort(0));
}

void tst_DualActionWid::secondAction()
{
    m_panel->slotDualActionSelected(0, 12, digital(4, 0, 50));
    emit overlay()->sigDualActionChanged(2, plainKey(240));
    QCOMPARE(lastRecord(), picked(240, digital(4, 240, 50)));
    emit overlay()->sigDualActionChanged(2, clearedKey());
    QCOMPARE(lastRecord(), picked(255, digital(4, 0, 50)));
    QVERIFY(actionButton(2)->isEnabled());
}

void tst_DualActionWid::laterChoiceWins()
{
    open(1, 0);
    clickOn(child<QPushButton>(overlay(), "btn_30"));
    clickOn(child<QPushButton>(overlay(), "btn_48"));
    QCOMPARE(m_changed->count(), 2);
    QCOMPARE(lastRecord(), picked(5, digital(5, 0, 50)));
}

void tst_DualActionWid::choiceTakesTheSlidersDepth()
{
    slider()->setValue(73);
    emit overlay()->sigDualActionChanged(1, plainKey(4));
    QCOMPARE(lastRecord(), picked(4, digital(4, 0, 73)));
}

/// The simple panel writes the normal type, whatever the record held.
void tst_DualActionWid::choiceKeepsTheRecordsType()
{
    vantrix_key_mapping key = plainKey(4);
    key.digital.dualType = 2;
    key.digital.depth = 11;
    emit overlay()->sigDualActionChanged(1, key);
    QCOMPARE(lastRecord(), picked(4, digital(4, 0, 50)));
    QCOMPARE(int(lastRecord().type), 0);
}

void tst_DualActionWid::depthOfTheUser()
{
    QSignalSpy depth(m_panel, &DualActionWid::sigDualActionDepthChanged);
    slider()->setValue(20);
    QCOMPARE(depth.count(), 1);
    QCOMPARE(depth.at(0).at(0).toInt(), 20);
    QCOMPARE(m_changed->count(), 0);
}

void tst_DualActionWid::showingIsSilent()
{
    QSignalSpy depth(m_panel, &DualActionWid::sigDualActionDepthChanged);
    QSignalSpy mask(m_panel, &DualActionWid::sigGetVantrixMask);
    for (const int value : {10, 37, 90, 50}) {
        m_panel->slotDualActionSelected(1, 2, digital(496, 240, value));
        QCOMPARE(slider()->value(), value);
        QCOMPARE(child<QLabel>(m_panel, "m_distanceLab")->text(), QString::number(value) + "%");
    }
    m_panel->resetPanel();
    QCOMPARE(depth.count(), 0);
    QCOMPARE(mask.count(), 0);
    QCOMPARE(m_changed->count(), 0);
    QVERIFY(overlay()->isHidden());
}

void tst_DualActionWid::showsTheKindsOfTheActions_data()
{
    QTest::addColumn<int>("input");
    QTest::addColumn<bool>("hasButton");
    for (const int input : {0, 1, 2, 4, 7, 8, 9, 11, 12})
        QTest::addRow("input %d", input) << input << (input <= 2);
}

void tst_DualActionWid::showsTheKindsOfTheActions()
{
    QFETCH(int, input);
    QFETCH(bool, hasButton);
    m_panel->slotDualActionSelected(input, input, digital(4, 5, 50));
    for (const int number : {1, 2}) {
        QCOMPARE(isMenuOpen(number), hasButton);
        QCOMPARE(action(number)->findChild<QButtonGroup *>()->checkedId(), hasButton ? input : -1);
    }
    QCOMPARE(action(1)->keyCode(), ushort(4));
    QCOMPARE(action(2)->keyCode(), ushort(5));
}

void tst_DualActionWid::storedWithoutASecondAction()
{
    m_panel->slotDualActionSelected(0, 11, digital(4, 0, 50));
    QVERIFY(actionButton(2)->isEnabled());
    QVERIFY(!isMenuOpen(2));
    QCOMPARE(action(2)->keyCode(), ushort(0));
}

void tst_DualActionWid::resetPanel()
{
    m_panel->slotDualActionSelected(1, 2, digital(496, 240, 80));
    child<QPushButton>(overlay(), "btn_30")->setChecked(true);
    m_panel->resetPanel();
    for (const int number : {1, 2}) {
        QCOMPARE(action(number)->keyCode(), ushort(0));
        QVERIFY(!isMenuOpen(number));
        QCOMPARE(action(number)->findChild<QButtonGroup *>()->checkedId(), number);
    }
    QVERIFY(actionButton(1)->isEnabled());
    QVERIFY(!actionButton(2)->isEnabled());
    QCOMPARE(slider()->value(), 50);
    QVERIFY(!child<QPushButton>(overlay(), "btn_30")->isChecked());
}

void tst_DualActionWid::backAndApplyArePassedOn_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("backs");
    QTest::newRow("back") << "m_back" << 1;
    QTest::newRow("apply") << "m_apply" << 0;
}

/// The panel keeps its values.
void tst_DualActionWid::backAndApplyArePassedOn()
{
    QFETCH(QString, button);
    QFETCH(int, backs);
    QSignalSpy back(m_panel, &DualActionWid::sigDualActionBack);
    QSignalSpy apply(m_panel, &DualActionWid::sigDualActionApply);
    open(1, 1);
    emit overlay()->sigDualActionChanged(1, plainKey(497));
    clickOn(child<QPushButton>(overlay(), button));
    QCOMPARE(back.count(), backs);
    QCOMPARE(apply.count(), 1 - backs);
    QVERIFY(overlay()->isHidden());
    QCOMPARE(action(1)->keyCode(), ushort(497));
    QVERIFY(actionButton(2)->isEnabled());
}

void tst_DualActionWid::maskIsTheWindowWithoutTheRegion()
{
    const QRegion hole(QRegion(300, 100, 400, 300) - QRegion(310, 110, 10, 10));
    connect(m_panel, &DualActionWid::sigGetVantrixMask, m_panel,
            [this, hole] { m_panel->setOverlayMask(hole); });
    open(1, 1);
    QCOMPARE(overlay()->mask(), QRegion(0, 0, 1185, 790) - hole);
    // What lies under the hole gets its clicks, what lies under the layer does not.
    QCOMPARE(m_main->childAt(400, 200), nullptr);
    QVERIFY(m_main->childAt(315, 115));
    QVERIFY(m_main->childAt(10, 10));
    QVERIFY(overlay()->isAncestorOf(m_main->childAt(100, 700)) ||
            m_main->childAt(100, 700) == overlay());
}

void tst_DualActionWid::resetKeepsTheOverlayOpen()
{
    open(1, 0);
    m_panel->resetPanel();
    QVERIFY(overlay()->isVisible());
    QVERIFY(QWidget::keyboardGrabber());
}

void tst_DualActionWid::secondActionNeedsAFirst()
{
    const auto title = [this] {
        return child<QLabel>(overlay(), "m_action")->text();
    };
    const auto pick = [this](int code) {
        emit child<MouseWid>(overlay(), "m_mouse")->sigMouseChanged(plainKey(ushort(code)));
    };
    m_panel->slotDualActionSelected(0, 12, digital(4, 0, 50));
    open(2, 1);
    pick(497);
    QCOMPARE(lastRecord(), picked(497, digital(4, 497, 50)));

    // A key without a dual action.
    m_panel->resetPanel();
    QCOMPARE(title(), QStringLiteral("ACTION  1"));
    pick(488);
    QCOMPARE(lastRecord(), picked(488, digital(488, 0, 50)));

    // One with a dual action; its selection resets the panel first.
    m_panel->resetPanel();
    m_panel->slotDualActionSelected(0, 1, digital(5, 497, 30));
    QCOMPARE(title(), QStringLiteral("ACTION  2"));
    pick(489);
    QCOMPARE(lastRecord(), picked(489, digital(5, 489, 30)));

    // Opened for the first action it stays there.
    clickOn(child<QPushButton>(overlay(), "m_back"));
    open(1, 1);
    m_panel->slotDualActionSelected(0, 1, digital(5, 497, 30));
    QCOMPARE(title(), QStringLiteral("ACTION  1"));
}

void tst_DualActionWid::overlayFollowsTheWindow()
{
    QSignalSpy mask(m_panel, &DualActionWid::sigGetVantrixMask);
    open(1, 1);
    QCOMPARE(mask.count(), 1);
    m_main->resize(1280, 900);
    QTRY_COMPARE(mask.count(), 2);
    QCOMPARE(overlay()->size(), QSize(1280, 900));
    QCOMPARE(mask.at(1).at(0).value<QWidget *>(), m_main.get());
    m_main->resize(784, 808);
    QTRY_COMPARE(mask.count(), 3);
    QCOMPARE(overlay()->size(), QSize(784, 808));
    m_panel->resize(700, 150);
    QTRY_COMPARE(mask.count(), 4);
}

void tst_DualActionWid::closedOverlayFollowsSilently()
{
    QSignalSpy mask(m_panel, &DualActionWid::sigGetVantrixMask);
    m_main->resize(1280, 900);
    QCoreApplication::processEvents();
    QCOMPARE(overlay()->size(), QSize(1280, 900));
    QVERIFY(overlay()->isHidden());
    QCOMPARE(mask.count(), 0);
}

void tst_DualActionWid::hidingThePageGoesBack()
{
    QSignalSpy back(m_panel, &DualActionWid::sigDualActionBack);
    open(1, 0);
    QVERIFY(QWidget::keyboardGrabber());
    m_panel->hide();
    QVERIFY(!QWidget::keyboardGrabber());
    QVERIFY(!m_hotKey->capturing);
    QVERIFY(overlay()->isHidden());
    QCOMPARE(back.count(), 1);
    m_panel->show();
    QVERIFY(overlay()->isHidden());
}

void tst_DualActionWid::hidingWithAClosedOverlayIsSilent()
{
    QSignalSpy back(m_panel, &DualActionWid::sigDualActionBack);
    m_panel->hide();
    m_panel->show();
    m_main->hide();
    QCOMPARE(back.count(), 0);
}

void tst_DualActionWid::overlayDiesWithThePanel()
{
    open(1, 0);
    const QPointer<ActionAssignWid> watched = overlay();
    delete m_panel;
    QVERIFY(!watched);
    QVERIFY(!QWidget::keyboardGrabber());
    QVERIFY(!m_hotKey->capturing);
    m_main->resize(900, 900);
}

void tst_DualActionWid::overlayMayDieFirst()
{
    DualActionWid *const panel = new DualActionWid;
    m_panel->deleteLater();
    m_panel = panel;
    panel->resize(900, 200);
    panel->show();
    m_main.reset();
    panel->resetPanel();
    panel->setOverlayMask(QRegion(0, 0, 10, 10));
    panel->resize(800, 200);
    panel->slotDualActionSelected(0, 1, digital(4, 497, 60));
    QCOMPARE(action(2)->keyCode(), ushort(497));
    delete panel;
}

/// Nothing to lie over: nothing opens.
void tst_DualActionWid::noMainWidget()
{
    DualActionWid *const panel = new DualActionWid;
    panel->show();
    m_main.reset();
    QSignalSpy mask(panel, &DualActionWid::sigGetVantrixMask);
    m_panel = panel;
    open(1, 0);
    QCOMPARE(mask.count(), 0);
    QVERIFY(!QWidget::keyboardGrabber());

    // A new main widget serves the next opening.
    m_main = std::make_unique<QWidget>();
    m_main->resize(800, 600);
    m_main->show();
    m_environment->mainWidget = m_main.get();
    open(1, 1);
    QCOMPARE(mask.count(), 1);
    QVERIFY(overlay() && overlay()->isVisible());
    QCOMPARE(overlay()->size(), QSize(800, 600));
    delete panel;
    QVERIFY(!overlay());
}

void tst_DualActionWid::roundTripOfEveryDepth()
{
    for (int depth = 10; depth <= 90; ++depth) {
        const vantrix_presso_digital shown = digital(4, 497, depth);
        m_panel->slotDualActionSelected(0, 1, shown);
        QCOMPARE(m_changed->count(), 0);
        emit overlay()->sigDualActionChanged(2, plainKey(497));
        const vantrix_presso_digital reported = lastRecord().digital;
        QCOMPARE(std::memcmp(&reported, &shown, 6), 0);
        m_changed->clear();
    }
}

VANTRIX_TEST_MAIN(tst_DualActionWid)
#include "tst_DualActionWid.moc"
