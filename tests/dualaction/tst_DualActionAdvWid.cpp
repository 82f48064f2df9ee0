#include "dualaction/DualActionAdvWid.h"

#include "dualaction/ActionBtn.h"
#include "dualaction/DualActionType.h"
#include "fakes/FakeServices.h"
#include "interfaces/OstraAction.h"
#include "interfaces/OstraMenu.h"
#include "support/DualKey.h"
#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QLabel>
#include <QSignalSpy>
#include <QSlider>

#include <cstring>
#include <memory>

class tst_DualActionAdvWid : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { registerRecordTypes(); }
    void init();
    void cleanup();
    void form();
    void freshForm();
    void types();
    void sliderWithNothingChosen();
    void typeReportsARecord();
    void actionReportsARecord();
    void showsAStoredDualAction();
    void storedWithoutASecondAction();
    void noDualAction_data();
    void noDualAction();
    void typeOutOfRange();
    void typeStaysWithAnotherKey();
    void secondActionIsEnabledByTheStoredOnly();
    void echoEnablesTheSecondAction();
    void echoLeavesADragAlone();
    void echoOfAnotherRecordIsShown();
    void oneMenuAtATime();
    void searchDoesNothing();
    void roundTrip_data();
    void roundTrip();

private:
    ActionBtn *action(int number)
    {
        return child<ActionBtn>(m_form, number == 1 ? "m_action1" : "m_action2");
    }
    QSlider *slider() { return child<QSlider>(m_form, "m_distanceSlider"); }
    QButtonGroup *group() { return m_form->findChild<QButtonGroup *>(); }
    vantrix_key_mapping lastRecord() const;
    void choose(int number, const QString &kind, int id);
    void echoRecords();

    std::unique_ptr<FakeEnvironment> m_environment;
    std::unique_ptr<QWidget> m_window;
    DualActionAdvWid *m_form = nullptr;
    std::unique_ptr<QSignalSpy> m_spy;
};

void tst_DualActionAdvWid::init()
{
    m_environment = std::make_unique<FakeEnvironment>();
    m_window = std::make_unique<QWidget>();
    m_window->resize(1280, 900);
    m_form = new DualActionAdvWid(m_window.get());
    m_spy = std::make_unique<QSignalSpy>(m_form, &DualActionAdvWid::sigDualActionChanged);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void tst_DualActionAdvWid::cleanup()
{
    m_spy.reset();
    m_window.reset();
    m_environment.reset();
}

vantrix_key_mapping tst_DualActionAdvWid::lastRecord() const
{
    return m_spy->isEmpty() ? vantrix_key_mapping()
                            : m_spy->last().at(0).value<vantrix_key_mapping>();
}

/// Picks a code of "MOUSE" or "MEDIA" from an action's menu.
void tst_DualActionAdvWid::choose(int number, const QString &kind, int id)
{
    clickOn(action(number));
    for (const OstraMenu *menu : m_window->findChildren<OstraMenu *>()) {
        if (!menu->isVisible())
            continue;
        for (const auto *entry :
             menu->findChildren<OstraAction *>(QString(), Qt::FindDirectChildrenOnly)) {
            if (entry->text() == kind)
                emit entry->ostraMenu()->sigActionChanged(ushort(id), QStringLiteral("NAME"));
        }
    }
}

/// As the dialog does: each pick is shown to all pages.
void tst_DualActionAdvWid::echoRecords()
{
    connect(m_form, &DualActionAdvWid::sigDualActionChanged, m_form,
            &DualActionAdvWid::slotVantrixKeySelected);
}

void tst_DualActionAdvWid::form()
{
    QCOMPARE(m_form->size(), QSize(1049, 327));
    QCOMPARE(m_form->styleSheet(), QStringLiteral("QWidget{font-size:12px;}\n"));
    QCOMPARE(m_form->layout()->spacing(), 20);
    QCOMPARE(m_form->layout()->contentsMargins().top(), 20);
    const auto *grid = child<QGridLayout>(m_form, "gridLayout");
    QCOMPARE(grid->itemAtPosition(0, 0)->widget(), action(1));
    QCOMPARE(grid->itemAtPosition(0, 1)->widget(), child<QWidget>(m_form, "m_distanceWid"));
    QCOMPARE(grid->itemAtPosition(0, 2)->widget(), action(2));
    QCOMPARE(grid->contentsMargins().bottom(), 0);
    const auto *labels = m_form->layout()->itemAt(1)->widget();
    QCOMPARE(labels->objectName(), QStringLiteral("label_3"));
    QCOMPARE(static_cast<const QLabel *>(labels)->text(), QStringLiteral("TYPE"));
    QCOMPARE(static_cast<const QLabel *>(labels)->alignment(), Qt::AlignCenter);
}

void tst_DualActionAdvWid::freshForm()
{
    QCOMPARE(action(1)->text(), QStringLiteral("ACTION 1"));
    QCOMPARE(action(2)->text(), QStringLiteral("ACTION 2"));
    QVERIFY(action(1)->isEnabled());
    QVERIFY(!action(2)->isEnabled());
    QCOMPARE(slider()->value(), 50);
    QCOMPARE(group()->checkedId(), 0);
    QCOMPARE(m_spy->count(), 0);
}

void tst_DualActionAdvWid::types()
{
    QCOMPARE(group()->buttons().size(), 3);
    const auto *layout = child<QHBoxLayout>(m_form, "m_typeLayout");
    QCOMPARE(layout->count(), 7);
    for (int type = 0; type < 3; ++type) {
        QVERIFY(layout->itemAt(2 * type)->spacerItem());
        auto *button = qobject_cast<DualActionType *>(group()->button(type));
        QVERIFY(button);
        QCOMPARE(layout->itemAt(2 * type + 1)->widget(), button);
    }
    QVERIFY(layout->itemAt(6)->spacerItem());
}

void tst_DualActionAdvWid::sliderWithNothingChosen()
{
    slider()->setValue(60);
    QCOMPARE(m_spy->count(), 1);
    QCOMPARE(lastRecord(), dualKey(0, 0, 0, 60));
    QVERIFY(!isDualAction(lastRecord()));
}

void tst_DualActionAdvWid::typeReportsARecord()
{
    clickOn(group()->button(2));
    QCOMPARE(m_spy->count(), 1);
    QCOMPARE(lastRecord(), dualKey(0, 0, 2, 50));
    clickOn(group()->button(1));
    QCOMPARE(lastRecord(), dualKey(0, 0, 1, 50));
    QCOMPARE(group()->checkedId(), 1);
}

void tst_DualActionAdvWid::actionReportsARecord()
{
    choose(1, QStringLiteral("MEDIA"), 240);
    QCOMPARE(m_spy->count(), 1);
    QCOMPARE(lastRecord(), dualKey(240, 0, 0, 50));
    QCOMPARE(action(1)->text(), QStringLiteral("NAME"));
    slider()->setValue(70);
    QCOMPARE(lastRecord(), dualKey(240, 0, 0, 70));
}

void tst_DualActionAdvWid::showsAStoredDualAction()
{
    m_form->slotVantrixKeySelected(dualKey(4, 497, 1, 30));
    QCOMPARE(m_spy->count(), 0);
    QCOMPARE(action(1)->text(), QStringLiteral("A"));
    QCOMPARE(action(2)->text(), QStringLiteral("RIGHT CLICK"));
    QVERIFY(action(1)->isEnabled());
    QVERIFY(action(2)->isEnabled());
    QCOMPARE(slider()->value(), 30);
    QCOMPARE(child<QLabel>(m_form, "m_distanceLab")->text(), QStringLiteral("30%"));
    QCOMPARE(group()->checkedId(), 1);
}

void tst_DualActionAdvWid::storedWithoutASecondAction()
{
    m_form->slotVantrixKeySelected(dualKey(4, 0, 0, 50));
    QCOMPARE(action(2)->text(), QStringLiteral("ACTION 2"));
    QCOMPARE(action(2)->keyCode(), ushort(0));
    QVERIFY(action(2)->isEnabled());
}

void tst_DualActionAdvWid::noDualAction_data()
{
    QTest::addColumn<vantrix_key_mapping>("key");
    vantrix_key_mapping label = dualKey(4, 5, 2, 80);
    label.type = 1;
    vantrix_key_mapping plain = dualKey(4, 5, 2, 80);
    plain.type = 0;
    QTest::newRow("plain") << plainKey(4);
    QTest::newRow("plain with something in its dual part") << plain;
    QTest::newRow("cleared") << clearedKey();
    QTest::newRow("controller") << gameKey(462);
    QTest::newRow("label") << label;
    QTest::newRow("type 3 without a first action") << dualKey(0, 5, 2, 80);
}

void tst_DualActionAdvWid::noDualAction()
{
    QFETCH(vantrix_key_mapping, key);
    m_form->slotVantrixKeySelected(dualKey(4, 497, 1, 30));
    m_form->slotVantrixKeySelected(key);
    QCOMPARE(action(1)->text(), QStringLiteral("ACTION 1"));
    QCOMPARE(action(2)->text(), QStringLiteral("ACTION 2"));
    QVERIFY(!action(2)->isEnabled());
    QCOMPARE(slider()->value(), 50);
    QCOMPARE(group()->checkedId(), 1);
    QCOMPARE(m_spy->count(), 0);
    // Nothing of the old key is left in the next record.
    clickOn(group()->button(0));
    QCOMPARE(lastRecord(), dualKey(0, 0, 0, 50));
}

void tst_DualActionAdvWid::typeOutOfRange()
{
    m_form->slotVantrixKeySelected(dualKey(4, 5, 2, 80));
    m_form->slotVantrixKeySelected(dualKey(4, 5, 3, 80));
    QCOMPARE(group()->checkedId(), 2);
    m_form->slotVantrixKeySelected(dualKey(4, 5, 255, 80));
    QCOMPARE(group()->checkedId(), 2);
}

void tst_DualActionAdvWid::typeStaysWithAnotherKey()
{
    clickOn(group()->button(2));
    m_form->slotVantrixKeySelected(plainKey(4));
    QCOMPARE(group()->checkedId(), 2);
}

void tst_DualActionAdvWid::secondActionIsEnabledByTheStoredOnly()
{
    choose(1, QStringLiteral("MEDIA"), 240);
    QVERIFY(!action(2)->isEnabled());
    m_form->slotVantrixKeySelected(dualKey(240, 0, 0, 50));
    QVERIFY(action(2)->isEnabled());
}

void tst_DualActionAdvWid::echoEnablesTheSecondAction()
{
    echoRecords();
    slider()->setValue(70);
    QVERIFY(!action(2)->isEnabled());
    QCOMPARE(slider()->value(), 70);
    choose(1, QStringLiteral("MEDIA"), 240);
    QVERIFY(action(2)->isEnabled());
    QCOMPARE(slider()->value(), 70);
    choose(2, QStringLiteral("MOUSE"), 496);
    QCOMPARE(lastRecord(), dualKey(240, 496, 0, 70));
    QCOMPARE(m_spy->count(), 3);
}

void tst_DualActionAdvWid::echoLeavesADragAlone()
{
    echoRecords();
    QTest::mousePress(slider(), Qt::LeftButton, Qt::NoModifier, slider()->rect().center());
    slider()->setSliderDown(true);
    for (const int depth : {51, 55, 62, 61}) {
        slider()->setSliderPosition(depth);
        QCOMPARE(slider()->value(), depth);
        QVERIFY(slider()->isSliderDown());
        QCOMPARE(lastRecord(), dualKey(0, 0, 0, depth));
        QCOMPARE(child<QLabel>(m_form, "m_distanceLab")->text(), QString::number(depth) + "%");
    }
    slider()->setSliderDown(false);
}

/// What comes back may be another key.
void tst_DualActionAdvWid::echoOfAnotherRecordIsShown()
{
    connect(m_form, &DualActionAdvWid::sigDualActionChanged, m_form,
            [this] { m_form->slotVantrixKeySelected(dualKey(5, 6, 2, 20)); });
    slider()->setValue(70);
    QCOMPARE(slider()->value(), 20);
    QCOMPARE(action(1)->text(), QStringLiteral("B"));
}

void tst_DualActionAdvWid::oneMenuAtATime()
{
    m_form->slotVantrixKeySelected(dualKey(4, 5, 0, 50));
    const auto openMenus = [this] {
        int count = 0;
        for (const OstraMenu *menu : m_window->findChildren<OstraMenu *>())
            count += menu->isVisible() ? 1 : 0;
        return count;
    };
    QCOMPARE(openMenus(), 0);
    clickOn(action(1));
    QCOMPARE(openMenus(), 1);
    clickOn(action(2));
    QCOMPARE(openMenus(), 1);
    clickOn(action(2));
    QCOMPARE(openMenus(), 0);
    pressKey(action(1), Qt::Key_Space);
    QCOMPARE(openMenus(), 1);
    pressKey(action(2), Qt::Key_Space);
    QCOMPARE(openMenus(), 1);
}

void tst_DualActionAdvWid::searchDoesNothing()
{
    m_form->slotVantrixKeySelected(dualKey(4, 5, 1, 40));
    m_form->slotSearch(QStringLiteral("x"));
    QVERIFY(action(1)->isVisible());
    QVERIFY(group()->button(2)->isVisible());
    QCOMPARE(group()->checkedId(), 1);
    QCOMPARE(m_spy->count(), 0);
}

void tst_DualActionAdvWid::roundTrip_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("normal") << 0;
    QTest::newRow("toggle") << 1;
    QTest::newRow("combine") << 2;
}

/// What is shown comes back byte for byte with the next report, at every depth.
void tst_DualActionAdvWid::roundTrip()
{
    QFETCH(int, type);
    for (int depth = 10; depth <= 90; ++depth) {
        for (const int second : {0, 497, 1283, 240}) {
            const vantrix_key_mapping key = dualKey(4 + depth % 20, second, type, depth);
            m_form->slotVantrixKeySelected(key);
            QCOMPARE(m_spy->count(), 0);
            clickOn(group()->button(type));
            QCOMPARE(m_spy->count(), 1);
            const vantrix_key_mapping reported = lastRecord();
            QCOMPARE(reported, key);
            QCOMPARE(std::memcmp(&reported, &key, 11), 0);
            m_spy->clear();
        }
    }
}

VANTRIX_TEST_MAIN(tst_DualActionAdvWid)
#include "tst_DualActionAdvWid.moc"
