#include "panels/MapWid.h"

#include "application/ApplicationWid.h"
#include "dualaction/ActionAssignWid.h"
#include "dualaction/ActionWid.h"
#include "dualaction/DualActionWid.h"
#include "fakes/FakeProfileCfg.h"
#include "fakes/FakeServices.h"
#include "interfaces/ButtonGroupEx.h"
#include "macro/MacroWid.h"
#include "panels/BackLightWid.h"
#include "panels/GameCtrlWid.h"
#include "panels/Keyboard.h"
#include "panels/KeyboardWid.h"
#include "panels/MediaWid.h"
#include "panels/MouseWid.h"
#include "panels/PressoFunWid.h"
#include "panels/ProfileWid.h"
#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QHBoxLayout>
#include <QSignalSpy>
#include <QStackedWidget>

#include <memory>

class tst_MapWid : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { registerRecordTypes(); }
    void init();
    void cleanup();
    void form();
    void pages();
    void currentInput();
    void captureRule_data();
    void captureRule();
    void captureFollowsEachChange();
    void overlayTakesThePermission_data();
    void overlayTakesThePermission();
    void recordsOfThePanels();
    void applicationsAndDualActions();
    void macros();
    void selectedKeyReachesThePanels();
    void resetClearsThePanels();
    void showingWritesNothing();

private:
    template <typename Panel>
    Panel *panel(const char *name) const
    {
        return child<Panel>(m_map.get(), QLatin1String(name));
    }
    bool isCapturing() const
    {
        return QWidget::keyboardGrabber() == m_map->findChild<Keyboard *>() && m_hotKey->capturing;
    }

    std::unique_ptr<FakeEnvironment> m_environment;
    std::unique_ptr<FakeSystemHotKey> m_hotKey;
    std::unique_ptr<FakeProfileCfg> m_store;
    std::unique_ptr<QWidget> m_main;
    std::unique_ptr<MapWid> m_map;
};

void tst_MapWid::init()
{
    m_environment = std::make_unique<FakeEnvironment>();
    m_hotKey = std::make_unique<FakeSystemHotKey>();
    m_store = std::make_unique<FakeProfileCfg>();
    m_main = std::make_unique<QWidget>();
    m_environment->mainWidget = m_main.get();
    m_map = std::make_unique<MapWid>();
}

void tst_MapWid::cleanup()
{
    m_map.reset();
    m_main.reset();
    m_store.reset();
    m_hotKey.reset();
    m_environment.reset();
}

void tst_MapWid::form()
{
    QCOMPARE(m_map->size(), QSize(909, 250));
    const auto *const layout = child<QHBoxLayout>(m_map.get(), "horizontalLayout_2");
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(layout->itemAt(0)->widget(), panel<QStackedWidget>("m_map"));
}

void tst_MapWid::pages()
{
    auto *const stack = panel<QStackedWidget>("m_map");
    const QList<QPair<QString, QByteArray>> pages = {{"m_keyboard", "KeyboardWid"},
                                                     {"m_mouse", "MouseWid"},
                                                     {"m_media", "MediaWid"},
                                                     {"m_macro", "MacroWid"},
                                                     {"m_game_controller", "GameCtrlWid"},
                                                     {"m_application", "ApplicationWid"},
                                                     {"m_dual_action", "DualActionWid"},
                                                     {"m_presso_functions", "PressoFunWid"},
                                                     {"m_backlight", "BackLightWid"},
                                                     {"m_profile", "ProfileWid"},
                                                     {"m_presetMode", "QWidget"}};
    QCOMPARE(stack->count(), 11);
    for (int i = 0; i < 11; ++i) {
        QCOMPARE(stack->widget(i)->objectName(), pages[i].first);
        QCOMPARE(QByteArray(stack->widget(i)->metaObject()->className()), pages[i].second);
    }
    QCOMPARE(stack->currentIndex(), 0);
}

void tst_MapWid::currentInput()
{
    const auto *const stack = panel<QStackedWidget>("m_map");
    for (int input = 10; input >= 0; --input) {
        m_map->setCurrentInput(input);
        QCOMPARE(stack->currentIndex(), input);
    }
    m_map->setCurrentInput(4);
    for (const int input : {11, 12, -1, 1000}) {
        m_map->setCurrentInput(input);
        QCOMPARE(stack->currentIndex(), 4);
    }
}

void tst_MapWid::captureRule_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("selected");
    QTest::addColumn<int>("input");
    QTest::addColumn<bool>("captures");
    for (const bool enabled : {false, true}) {
        for (const bool selected : {false, true}) {
            for (int input = 0; input <= 10; ++input)
                QTest::addRow("enabled %d, selected %d, input %d", enabled, selected, input)
                    << enabled << selected << input << (enabled && selected && input == 0);
        }
    }
}

void tst_MapWid::captureRule()
{
    QFETCH(bool, enabled);
    QFETCH(bool, selected);
    QFETCH(int, input);
    QFETCH(bool, captures);
    m_map->setCaptureEnabled(enabled);
    m_map->setKeySelected(selected);
    m_map->setCurrentInput(input);
    QCOMPARE(isCapturing(), captures);
    // The order plays no part.
    m_map->setCurrentInput(0);
    m_map->setKeySelected(true);
    m_map->setCaptureEnabled(true);
    m_map->setCurrentInput(input);
    m_map->setCaptureEnabled(enabled);
    m_map->setKeySelected(selected);
    QCOMPARE(isCapturing(), captures);
}

void tst_MapWid::overlayTakesThePermission_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::newRow("enabled") << true;
    QTest::newRow("not enabled") << false;
}

void tst_MapWid::overlayTakesThePermission()
{
    QFETCH(bool, enabled);
    m_map->setCurrentInput(6);
    m_map->setCaptureEnabled(enabled);
    emit panel<ActionWid>("m_action1")->sigActionAssigned(1, 0, QStringLiteral("ACTION  1"));
    QCOMPARE(QWidget::keyboardGrabber() != nullptr, enabled);
    auto *const overlay = m_environment->mainWidget->findChild<ActionAssignWid *>();
    overlay->closeOverlay();
}

void tst_MapWid::captureFollowsEachChange()
{
    m_map->setCurrentInput(0);
    QVERIFY(!isCapturing());
    m_map->setKeySelected(true);
    QVERIFY(isCapturing());
    m_map->setCurrentInput(1);
    QVERIFY(!isCapturing());
    m_map->setCurrentInput(0);
    QVERIFY(isCapturing());
    // An input without a panel changes nothing.
    m_map->setCurrentInput(11);
    QVERIFY(isCapturing());
    m_map->setCaptureEnabled(false);
    QVERIFY(!isCapturing());
    m_map->setCaptureEnabled(true);
    QVERIFY(isCapturing());
    m_map->setKeySelected(false);
    QVERIFY(!isCapturing());
}

void tst_MapWid::recordsOfThePanels()
{
    QSignalSpy spy(m_map.get(), &MapWid::sigVantrixKeyAssigned);
    emit panel<KeyboardWid>("m_keyboard")->sigKeyChanged(plainKey(5));
    emit panel<MouseWid>("m_mouse")->sigMouseChanged(plainKey(496));
    emit panel<MediaWid>("m_media")->sigMediaChanged(plainKey(240));
    emit panel<GameCtrlWid>("m_game_controller")->sigGameChanged(gameKey(462));
    emit panel<PressoFunWid>("m_presso_functions")->sigPressoFunChanged(plainKey(312));
    emit panel<BackLightWid>("m_backlight")->sigBackLightChanged(plainKey(385));
    emit panel<ProfileWid>("m_profile")->sigProfileChanged(plainKey(1536));
    const std::vector<vantrix_key_mapping> expected = {plainKey(5),   plainKey(496), plainKey(240),
                                                       gameKey(462),  plainKey(312), plainKey(385),
                                                       plainKey(1536)};
    QCOMPARE(std::size_t(spy.count()), expected.size());
    for (int i = 0; i < spy.count(); ++i)
        QCOMPARE(spy.at(i).at(0).value<vantrix_key_mapping>(), expected[std::size_t(i)]);
}

void tst_MapWid::applicationsAndDualActions()
{
    auto *const application = panel<ApplicationWid>("m_application");
    QSignalSpy assigned(m_map.get(), &MapWid::sigApplicationAssigned);
    emit application->sigApplicationAssigned(1, 7);
    QCOMPARE(assigned.count(), 1);
    QCOMPARE(assigned.at(0), (QList<QVariant>{1, 7}));
    QSignalSpy selected(application, &ApplicationWid::sigApplicationSelected);
    emit m_map->sigApplicationSelected(2, 3);
    QCOMPARE(selected.count(), 1);
    QCOMPARE(selected.at(0), (QList<QVariant>{2, 3}));

    auto *const dual = panel<DualActionWid>("m_dual_action");
    QSignalSpy mask(m_map.get(), &MapWid::sigGetVantrixMask);
    QSignalSpy depth(m_map.get(), &MapWid::sigDualActionDepthChanged);
    QSignalSpy changed(m_map.get(), &MapWid::sigDualActionAssigned);
    QSignalSpy back(m_map.get(), &MapWid::sigDualActionBack);
    QSignalSpy apply(m_map.get(), &MapWid::sigDualActionApply);
    emit dual->sigGetVantrixMask(m_main.get());
    emit dual->sigDualActionDepthChanged(40);
    emit dual->sigDualActionChanged(plainKey(9));
    emit dual->sigDualActionBack();
    emit dual->sigDualActionApply();
    QCOMPARE(mask.count(), 1);
    QCOMPARE(mask.at(0).at(0).value<QWidget *>(), m_main.get());
    QCOMPARE(depth.count(), 1);
    QCOMPARE(depth.at(0).at(0).toInt(), 40);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).value<vantrix_key_mapping>(), plainKey(9));
    QCOMPARE(back.count(), 1);
    QCOMPARE(apply.count(), 1);
}

void tst_MapWid::macros()
{
    auto *const macros = panel<MacroWid>("m_macro");
    QSignalSpy create(m_map.get(), &MapWid::sigCreateMacro);
    QSignalSpy assigned(m_map.get(), &MapWid::sigMacroAssigned);
    QSignalSpy renamed(m_map.get(), &MapWid::sigRenameMacro);
    int keys = 0;
    connect(m_map.get(), &MapWid::sigAssignedKey, this,
            [&](const QString &, const QString &, const std::map<uchar, uchar> &assign) {
                keys = int(assign.size());
            });
    emit macros->sigCreateMacro();
    emit macros->sigMacroAssigned(true, QStringLiteral("M1"), QStringLiteral("one"));
    emit macros->sigMacroAssigned(false, QStringLiteral("M9"), QStringLiteral("copy"), 7);
    emit macros->sigRenameMacro(QStringLiteral("M1"), QStringLiteral("two"));
    emit macros->sigAssignedKey(QStringLiteral("M1"), QStringLiteral("one"), {{3, 3}, {5, 5}});
    QCOMPARE(create.count(), 1);
    QCOMPARE(assigned.count(), 2);
    QCOMPARE(assigned.at(0), (QList<QVariant>{true, "M1", "one", -1}));
    QCOMPARE(assigned.at(1), (QList<QVariant>{false, "M9", "copy", 7}));
    QCOMPARE(renamed.count(), 1);
    QCOMPARE(renamed.at(0), (QList<QVariant>{"M1", "two"}));
    QCOMPARE(keys, 2);
}

void tst_MapWid::selectedKeyReachesThePanels()
{
    const auto checked = [this](const char *name) {
        const auto *const group = panel<QWidget>(name)->findChild<ButtonGroupEx *>();
        return group->checkedButton() ? group->id(group->checkedButton()) : -1;
    };
    emit m_map->sigVantrixKeySelected(plainKey(5));
    QCOMPARE(checked("m_keyboard"), 48);
    QCOMPARE(checked("m_backlight"), -1);
    emit m_map->sigVantrixKeySelected(plainKey(403));
    QCOMPARE(checked("m_keyboard"), -1);
    QCOMPARE(checked("m_backlight"), 403);
    emit m_map->sigVantrixKeySelected(plainKey(312));
    QCOMPARE(checked("m_backlight"), -1);
    QCOMPARE(checked("m_presso_functions"), 312);
    emit m_map->sigVantrixKeySelected(plainKey(1571));
    QCOMPARE(checked("m_presso_functions"), -1);
    QCOMPARE(checked("m_profile"), 1571);
}

void tst_MapWid::resetClearsThePanels()
{
    for (const int code : {5, 403, 312, 1571}) {
        emit m_map->sigVantrixKeySelected(plainKey(ushort(code)));
        m_map->slotResetCurrKey();
        const auto groups = m_map->findChildren<ButtonGroupEx *>();
        for (const ButtonGroupEx *group : groups)
            QVERIFY(!group->checkedButton());
    }
}

void tst_MapWid::showingWritesNothing()
{
    QSignalSpy spy(m_map.get(), &MapWid::sigVantrixKeyAssigned);
    for (int input = 0; input <= 10; ++input) {
        m_map->setCurrentInput(input);
        for (int code = 0; code < 1600; code += 7)
            emit m_map->sigVantrixKeySelected(plainKey(ushort(code)));
        emit m_map->sigVantrixKeySelected(gameKey(462));
        m_map->slotResetCurrKey();
    }
    QCOMPARE(spy.count(), 0);
    QCOMPARE(m_store->writes(), QStringList());
}

VANTRIX_TEST_MAIN(tst_MapWid)
#include "tst_MapWid.moc"
