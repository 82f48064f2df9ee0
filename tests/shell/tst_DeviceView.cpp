#include "shell/DeviceView.h"

#include "ShellFixture.h"
#include "shell/DepthSlider.h"
#include "shell/PadView.h"
#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QTreeWidget>

#include <memory>

class tst_DeviceView : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void showsWhatTheDeviceHas();
    void facesAreShort();
    void saysWhatIsPending();
    void pressWithTheMouse();
    void dragGoesDeeper();
    void pressWithTheKeyboard();
    void arrowsChooseNeighbours();
    void slider();
    void followsTheSelectedKey();
    void sliderMarksTheEdges();
    void dualActions_data();
    void dualActions();
    void macro();
    void profileKey();
    void chooseProfile();
    void losingFocusLetsGo();
    void hidingLetsGo();
    void changesBehindItsBackAreShown();
    void letGoAndClear();
    void logIsCut();
    void nothingIsStored();
    void everyKeyHasItsPlace();

private:
    ProfileStore &store() { return m_shell->store(); }
    PadView *pad() { return child<PadView>(m_view.get(), "m_pad"); }
    QTreeWidget *log() { return child<QTreeWidget>(m_view.get(), "m_log"); }
    QStringList sent()
    {
        QStringList texts;
        for (int i = 0; i < log()->topLevelItemCount(); ++i)
            texts << log()->topLevelItem(i)->text(2);
        return texts;
    }
    QPoint centre(int keyIdx) { return pad()->keyRect(keyIdx).center().toPoint(); }
    void pressAt(QEvent::Type type, const QPoint &at)
    {
        const bool isUp = type == QEvent::MouseButtonRelease;
        QMouseEvent event(type, at,
                          isUp || type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                          isUp ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(pad(), &event);
    }

    std::unique_ptr<ShellFixture> m_shell;
    std::unique_ptr<DeviceView> m_view;
};

void tst_DeviceView::init()
{
    m_shell = std::make_unique<ShellFixture>();
    m_shell->services.environment().setLanguage(2);
    m_view = std::make_unique<DeviceView>(m_shell->context);
    m_view->resize(400, 620);
    m_view->show();
    QVERIFY(QTest::qWaitForWindowActive(m_view.get()));
}

void tst_DeviceView::cleanup()
{
    m_view.reset();
    m_shell.reset();
}

void tst_DeviceView::showsWhatTheDeviceHas()
{
    QCOMPARE(pad()->keys()[7].text, QStringLiteral("W"));
    QCOMPARE(pad()->keys()[7].description, QStringLiteral("Key 7 (W): UNASSIGNED"));
    m_shell->assign(7, 5);
    QCOMPARE(pad()->keys()[7].text, QStringLiteral("W")); // it was not sent
    m_shell->apply();
    QCOMPARE(pad()->keys()[7].text, QStringLiteral("B"));
    QCOMPARE(pad()->keys()[7].description, QStringLiteral("Key 7 (W): B"));
    QCOMPARE(pad()->keys()[7].inputType, int(InputType::Keyboard));
}

void tst_DeviceView::facesAreShort()
{
    vantrix_app_assign app;
    app.appType = 0;
    app.funcId = 3;
    store().setAppAssign(0, 0, 3, &app);
    const vantrix_hotkey_assign hotKey{0, QStringLiteral("CTRL+S"), QStringLiteral("Save")};
    store().setHotKeyAssign(0, 0, 4, &hotKey);
    m_shell->apply();
    QCOMPARE(pad()->keys()[3].text, QStringLiteral("BLUR"));
    QCOMPARE(pad()->keys()[3].description, QStringLiteral("Key 3 (3 #): PHOTOSHOP: BLUR"));
    QCOMPARE(pad()->keys()[4].text, QStringLiteral("Save"));
    QCOMPARE(pad()->keys()[4].description, QStringLiteral("Key 4 (4 $): Save (CTRL+S)"));
}

void tst_DeviceView::saysWhatIsPending()
{
    auto *const pending = child<QLabel>(m_view.get(), "m_pending");
    QCOMPARE(pending->text(), QStringLiteral("It has what the profile holds."));
    m_shell->assign(7, 5);
    QCOMPARE(pending->text(), QStringLiteral("One key differs from the profile; APPLY sends it."));
    m_shell->assign(8, 5);
    QCOMPARE(pending->text(), QStringLiteral("2 keys differ from the profile; APPLY sends them."));
    m_shell->context.setProfile(3);
    QCOMPARE(pending->text(), QStringLiteral("Not on the device yet: PROFILE 1."));
    m_shell->context.setProfile(0);
    QCOMPARE(pending->text(), QStringLiteral("2 keys differ from the profile; APPLY sends them."));
    m_shell->apply();
    QCOMPARE(pending->text(), QStringLiteral("It has what the profile holds."));
}

void tst_DeviceView::pressWithTheMouse()
{
    m_shell->assign(7, 5);
    m_shell->apply();
    pressAt(QEvent::MouseButtonPress, centre(7));
    QCOMPARE(pad()->currentKey(), 7);
    QCOMPARE(m_shell->device().keyDepth(7), 30);
    QCOMPARE(sent(), QStringList(QStringLiteral("\u25BC press B")));
    QCOMPARE(log()->topLevelItem(0)->text(0), QStringLiteral("Key 7"));
    QCOMPARE(log()->topLevelItem(0)->text(1), QStringLiteral("30 %"));
    QCOMPARE(log()->topLevelItem(0)->text(3), QStringLiteral("5"));
    pressAt(QEvent::MouseButtonRelease, centre(7));
    QCOMPARE(m_shell->device().keyDepth(7), 0);
    QCOMPARE(sent(),
             QStringList({QStringLiteral("\u25BC press B"), QStringLiteral("\u25B2 release B")}));
}

void tst_DeviceView::dragGoesDeeper()
{
    const QPoint start = centre(12);
    pressAt(QEvent::MouseButtonPress, start);
    pressAt(QEvent::MouseMove, start + QPoint(0, 25));
    QCOMPARE(m_shell->device().keyDepth(12), 55);
    QCOMPARE(child<QSlider>(m_view.get(), "m_depth")->value(), 55);
    QCOMPARE(child<QLabel>(m_view.get(), "m_depthText")->text(), QStringLiteral("55 %"));
    pressAt(QEvent::MouseMove, start + QPoint(0, 500));
    QCOMPARE(m_shell->device().keyDepth(12), 100);
    pressAt(QEvent::MouseMove, start - QPoint(0, 20));
    QCOMPARE(m_shell->device().keyDepth(12), 10);
    pressAt(QEvent::MouseMove, start - QPoint(0, 100));
    QCOMPARE(m_shell->device().keyDepth(12), 0);
    pressAt(QEvent::MouseButtonRelease, start);
    QCOMPARE(sent(),
             QStringList({QStringLiteral("\u25BC press S"), QStringLiteral("\u25B2 release S")}));
}

void tst_DeviceView::pressWithTheKeyboard()
{
    pad()->setFocus();
    pad()->setCurrentKey(12);
    QTest::keyPress(pad(), Qt::Key_Space);
    QCOMPARE(m_shell->device().keyDepth(12), 30);
    QTest::keyRelease(pad(), Qt::Key_Space);
    QCOMPARE(m_shell->device().keyDepth(12), 0);
    QTest::keyPress(pad(), Qt::Key_Space, Qt::ShiftModifier);
    QCOMPARE(m_shell->device().keyDepth(12), 100);
    QTest::keyRelease(pad(), Qt::Key_Space);
    QCOMPARE(sent().size(), 4);
}

void tst_DeviceView::arrowsChooseNeighbours()
{
    pad()->setFocus();
    pad()->setCurrentKey(12);
    const auto press = [this](Qt::Key key) {
        pressKey(pad(), key);
        return pad()->currentKey();
    };
    QCOMPARE(press(Qt::Key_Left), 11);
    QCOMPARE(press(Qt::Key_Up), 6);
    QCOMPARE(press(Qt::Key_Right), 7);
    QCOMPARE(press(Qt::Key_Down), 12);
    QCOMPARE(press(Qt::Key_Down), 17);
    QCOMPARE(press(Qt::Key_Down), 22);
    QCOMPARE(press(Qt::Key_Right), 23);
    QCOMPARE(press(Qt::Key_Right), 23);
    QCOMPARE(press(Qt::Key_Down), 23);
    pad()->setCurrentKey(0);
    QCOMPARE(press(Qt::Key_Up), 26);
    QCOMPARE(press(Qt::Key_Up), 27);
    QCOMPARE(press(Qt::Key_Right), 24);
    QCOMPARE(press(Qt::Key_Down), 25);
}

void tst_DeviceView::slider()
{
    pad()->setCurrentKey(12);
    emit pad()->currentKeyChanged(12);
    auto *const slider = child<QSlider>(m_view.get(), "m_depth");
    slider->setValue(7);
    QCOMPARE(sent(), QStringList());
    slider->setValue(8);
    slider->setValue(4);
    QCOMPARE(sent(),
             QStringList({QStringLiteral("\u25BC press S"), QStringLiteral("\u25B2 release S")}));
    emit pad()->currentKeyChanged(13);
    QCOMPARE(slider->value(), 0);
    slider->setFocus();
    pressKey(slider, Qt::Key_PageDown); // down is deeper
    QCOMPARE(slider->value(), 10);
    pressKey(slider, Qt::Key_Down);
    QCOMPARE(slider->value(), 11);
    pressKey(slider, Qt::Key_Up);
    QCOMPARE(slider->value(), 10);
}

void tst_DeviceView::followsTheSelectedKey()
{
    store().setCurrentKey(0, 0, 9);
    store().flush();
    QCOMPARE(pad()->currentKey(), 9);
    store().clearCurrentKey(0, 0);
    store().flush();
    QCOMPARE(pad()->currentKey(), 9);
    m_view->hide();
    store().setCurrentKey(0, 0, 5);
    store().flush();
    m_view->show();
    QCOMPARE(pad()->currentKey(), 5);
}

void tst_DeviceView::sliderMarksTheEdges()
{
    auto *const slider = child<DepthSlider>(m_view.get(), "m_depth");
    QVERIFY(slider->edges() == std::vector<int>({8}));
    vantrix_key_mapping key = clearedKey();
    key.type = 3;
    key.digital = {4, 5, 0, 60};
    store().setKeyMapping(0, 0, 12, &key);
    m_shell->apply();
    emit pad()->currentKeyChanged(12);
    QVERIFY(slider->edges() == std::vector<int>({8, 60}));
    m_shell->device().setPressureEnabled(false);
    store().flush();
    QVERIFY(slider->edges() == std::vector<int>({8}));
    m_shell->device().setPressureEnabled(true);
    store().flush();
    QVERIFY(slider->edges() == std::vector<int>({8, 60}));
    const vantrix_shortcut_assign shortcut{1, 0};
    store().setShortcutAssign(0, 0, 12, &shortcut);
    m_shell->apply();
    QVERIFY(slider->edges() == std::vector<int>({8}));
}

void tst_DeviceView::dualActions_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("normal") << 0
                            << QStringList({"\u25BC press A", "\u25B2 release A", "\u25BC press B",
                                            "\u25B2 release B"});
    QTest::newRow("toggle") << 1
                            << QStringList({"\u25BC press A", "\u25B2 release A", "\u25BC press B",
                                            "\u25B2 release B", "\u25BC press A",
                                            "\u25B2 release A"});
    QTest::newRow("combine") << 2
                             << QStringList({"\u25BC press A", "\u25BC press B", "\u25B2 release B",
                                             "\u25B2 release A"});
}

void tst_DeviceView::dualActions()
{
    QFETCH(int, type);
    QFETCH(QStringList, texts);
    vantrix_key_mapping key = clearedKey();
    key.type = 3;
    key.digital = {4, 5, quint8(type), 60};
    store().setKeyMapping(0, 0, 12, &key);
    m_shell->apply();
    const QPoint start = centre(12);
    pressAt(QEvent::MouseButtonPress, start);
    QCOMPARE(sent().size(), 1);
    pressAt(QEvent::MouseMove, start + QPoint(0, 30));
    pressAt(QEvent::MouseMove, start);
    pressAt(QEvent::MouseButtonRelease, start);
    QCOMPARE(sent(), texts);
}

void tst_DeviceView::macro()
{
    vantrix_macro_record record;
    record.count = 2;
    record.events[0] = {4, 1, 15};
    record.events[1] = {4, 0, 0};
    store().addMacro(0, QStringLiteral("M"), record);
    store().setNamedMacroKey(0, 0, "M", 12);
    m_shell->apply();
    QCOMPARE(pad()->keys()[12].text, QStringLiteral("M"));
    pressAt(QEvent::MouseButtonPress, centre(12));
    pressAt(QEvent::MouseButtonRelease, centre(12));
    QCOMPARE(sent(), QStringList({QStringLiteral("\u25BC press A"), QStringLiteral("wait 15 ms"),
                                  QStringLiteral("\u25B2 release A")}));
    QCOMPARE(log()->topLevelItem(1)->text(0), QString());
    QCOMPARE(log()->topLevelItem(1)->text(3), QString());
}

void tst_DeviceView::profileKey()
{
    m_shell->assign(12, 1538);
    m_shell->assign(7, 5, 2);
    store().setProfileName(0, 2, QStringLiteral("Games"));
    m_shell->apply(2);
    m_shell->apply(0);
    pressAt(QEvent::MouseButtonPress, centre(12));
    pressAt(QEvent::MouseButtonRelease, centre(12));
    store().flush();
    QCOMPARE(sent(), QStringList(QStringLiteral("switch to Games")));
    QCOMPARE(child<QComboBox>(m_view.get(), "m_profile")->currentText(), QStringLiteral("Games"));
    QCOMPARE(pad()->keys()[7].text, QStringLiteral("B"));
}

void tst_DeviceView::chooseProfile()
{
    m_shell->assign(7, 5, 2);
    m_shell->apply(2);
    m_shell->apply(0);
    auto *const profile = child<QComboBox>(m_view.get(), "m_profile");
    QCOMPARE(profile->count(), 24);
    QCOMPARE(profile->currentIndex(), 0);
    profile->setCurrentIndex(2);
    emit profile->activated(2);
    QCOMPARE(m_shell->device().currentProfile(), 2);
    QCOMPARE(pad()->keys()[7].text, QStringLiteral("B"));
}

void tst_DeviceView::losingFocusLetsGo()
{
    pad()->setFocus();
    pad()->setCurrentKey(12);
    QTest::keyPress(pad(), Qt::Key_Space);
    child<QSlider>(m_view.get(), "m_depth")->setFocus();
    QCOMPARE(m_shell->device().keyDepth(12), 0);
}

void tst_DeviceView::hidingLetsGo()
{
    child<QSlider>(m_view.get(), "m_depth")->setValue(50);
    QCOMPARE(m_shell->device().keyDepth(0), 50);
    m_view->hide();
    QCOMPARE(m_shell->device().keyDepth(0), 0);
}

void tst_DeviceView::changesBehindItsBackAreShown()
{
    m_view->hide();
    m_shell->assign(7, 5);
    m_shell->apply();
    m_view->show();
    QCOMPARE(pad()->keys()[7].text, QStringLiteral("B"));
}

void tst_DeviceView::letGoAndClear()
{
    auto *const slider = child<QSlider>(m_view.get(), "m_depth");
    slider->setValue(50);
    clickOn(child<QPushButton>(m_view.get(), "m_releaseBtn"));
    QCOMPARE(m_shell->device().keyDepth(0), 0);
    QCOMPARE(slider->value(), 0);
    QCOMPARE(sent().size(), 2);
    clickOn(child<QPushButton>(m_view.get(), "m_clearBtn"));
    QCOMPARE(sent().size(), 0);
}

void tst_DeviceView::logIsCut()
{
    for (int i = 0; i < 600; ++i) {
        emit pad()->depthRequested(12, 30);
        emit pad()->depthRequested(12, 0);
    }
    QCOMPARE(log()->topLevelItemCount(), 1000);
}

void tst_DeviceView::nothingIsStored()
{
    m_shell->assign(7, 5);
    m_shell->apply();
    const QByteArray before = store().state().toBytes();
    const int steps = store().stepPosition();
    for (int key = 0; key < 28; ++key) {
        pressAt(QEvent::MouseButtonPress, centre(key));
        pressAt(QEvent::MouseMove, centre(key) + QPoint(0, 60));
        pressAt(QEvent::MouseButtonRelease, centre(key));
    }
    store().flush();
    QCOMPARE(store().state().toBytes(), before);
    QCOMPARE(store().stepPosition(), steps);
}

void tst_DeviceView::everyKeyHasItsPlace()
{
    for (const QSize size : {QSize(300, 400), QSize(900, 300), QSize(120, 900)}) {
        PadView view;
        view.resize(size);
        for (int key = 0; key < 28; ++key) {
            const QRectF rect = view.keyRect(key);
            QVERIFY(QRectF(view.rect()).contains(rect));
            QCOMPARE(view.keyAt(rect.center()), key);
            for (int other = 0; other < key; ++other)
                QVERIFY(!rect.intersects(view.keyRect(other)));
        }
        QCOMPARE(view.keyAt(QPointF(0, 0)), 28);
        QVERIFY(view.keyRect(28).isEmpty());
    }
}

VANTRIX_TEST_MAIN(tst_DeviceView)
#include "tst_DeviceView.moc"
