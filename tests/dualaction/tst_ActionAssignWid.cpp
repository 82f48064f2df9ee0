#include "dualaction/ActionAssignWid.h"

#include "fakes/FakeServices.h"
#include "interfaces/ButtonGroupEx.h"
#include "interfaces/Modal.h"
#include "panels/Keyboard.h"
#include "panels/MediaWid.h"
#include "panels/MouseWid.h"
#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QApplication>
#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QWindow>

#include <memory>

class tst_ActionAssignWid : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { registerRecordTypes(); }
    void init();
    void cleanup();
    void form();
    void roomIsShared_data();
    void roomIsShared();
    void pages();
    void opens_data();
    void opens();
    void otherPagesLeaveTheKeyboardAlone_data();
    void otherPagesLeaveTheKeyboardAlone();
    void anotherPageLetsTheKeyboardGo();
    void closes_data();
    void closes();
    void escapeDoesNotClose();
    void picksArePassedOnAtOnce();
    void realKeysChoose();
    void modalThingsPauseTheCapture();
    void hidingItsWindowLetsTheKeyboardGo();
    void destroyingLetsTheKeyboardGo();
    void resetUnchecksAllPages();
    void resetKeepsItOpen();
    void takesTheFocusAndGivesItBack();
    void focusInTheHoleStays();
    void tabStaysAboveTheVeil_data();
    void tabStaysAboveTheVeil();
    void shortcutsOfTheWindowRest();

private:
    ActionAssignWid *overlay() { return m_overlay; }
    QPushButton *buttonBelow(const QRect &place);
    bool isCapturing() const;

    std::unique_ptr<FakeEnvironment> m_environment;
    std::unique_ptr<FakeSystemHotKey> m_hotKey;
    std::unique_ptr<QWidget> m_main;
    ActionAssignWid *m_overlay = nullptr;
};

void tst_ActionAssignWid::init()
{
    m_environment = std::make_unique<FakeEnvironment>();
    m_hotKey = std::make_unique<FakeSystemHotKey>();
    m_main = std::make_unique<QWidget>();
    m_main->resize(1185, 790);
    m_overlay = new ActionAssignWid(m_main.get());
    m_overlay->hide();
    m_main->show();
    QVERIFY(QTest::qWaitForWindowActive(m_main.get()));
}

void tst_ActionAssignWid::cleanup()
{
    m_main.reset();
    m_hotKey.reset();
    m_environment.reset();
    QVERIFY(!QWidget::keyboardGrabber());
}

bool tst_ActionAssignWid::isCapturing() const
{
    const Keyboard *const keyboard = m_overlay->findChild<Keyboard *>();
    return QWidget::keyboardGrabber() == keyboard && m_hotKey->capturing == keyboard;
}

void tst_ActionAssignWid::form()
{
    QCOMPARE(overlay()->size(), QSize(1185, 790));
    QCOMPARE(overlay()->layout()->contentsMargins(), QMargins());
    QCOMPARE(overlay()->layout()->spacing(), 0);
    QCOMPARE(child<QWidget>(overlay(), "widget")->styleSheet(),
             QStringLiteral("QWidget{background:rgb(0,0,0,200);}"));
    const auto *rows = child<QVBoxLayout>(overlay(), "verticalLayout");
    QCOMPARE(rows->count(), 3);
    QCOMPARE(rows->stretch(0), 5);
    QCOMPARE(rows->stretch(1), 2);
    QCOMPARE(rows->contentsMargins().bottom(), 10);
    const auto *top = child<QGridLayout>(overlay(), "gridLayout");
    const QList<int> stretches = {25, 3, 30, 6, 6, 2};
    for (int column = 0; column < 6; ++column)
        QCOMPARE(top->columnStretch(column), stretches.at(column));
    QCOMPARE(top->itemAtPosition(0, 1)->widget(), child<QLabel>(overlay(), "m_action"));
    QCOMPARE(top->itemAtPosition(0, 3)->widget(), child<QPushButton>(overlay(), "m_back"));
    QCOMPARE(top->itemAtPosition(0, 4)->widget(), child<QPushButton>(overlay(), "m_apply"));
    const auto *row = child<QHBoxLayout>(overlay(), "horizontalLayout");
    QCOMPARE(row->stretch(0), 1);
    QCOMPARE(row->stretch(1), 8);
    QCOMPARE(row->contentsMargins().left(), 0);

    QCOMPARE(child<QLabel>(overlay(), "m_action")->text(), QString());
    QCOMPARE(child<QLabel>(overlay(), "m_action")->styleSheet(),
             QStringLiteral("background:transparent;"));
    auto *back = child<QPushButton>(overlay(), "m_back");
    auto *apply = child<QPushButton>(overlay(), "m_apply");
    QCOMPARE(back->text(), QStringLiteral("BACK"));
    QCOMPARE(apply->text(), QStringLiteral("APPLY"));
    for (const QPushButton *button : {back, apply})
        QCOMPARE(button->minimumSize(), QSize(150, 42));
    QCOMPARE(back->styleSheet(), apply->styleSheet() + QLatin1Char('\n'));
    QVERIFY(apply->styleSheet().startsWith(
        QStringLiteral("QPushButton{ background:qlineargradient(spread:pad, x1:0, y1:0, x2:1, "
                       "y2:0,\n                        stop:0 rgba(61, 61, 61, 255),\n")));
    QVERIFY(apply->styleSheet().endsWith(
        QStringLiteral("min-height:40px; }\nQPushButton:hover{background-color: "
                       "#333333;}\nQPushButton:pressed{background-color: rgb(132,49,155)}")));
}

void tst_ActionAssignWid::roomIsShared_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("small") << QSize(784, 808);
    QTest::newRow("large") << QSize(1280, 900);
}

/// Five parts for the pad, two for the pages; the buttons stand between them, beside no pad.
void tst_ActionAssignWid::roomIsShared()
{
    QFETCH(QSize, size);
    overlay()->setFixedSize(size);
    overlay()->openOverlay(1, 0, QStringLiteral("ACTION  1"));
    const QRect top = child<QLayout>(overlay(), "gridLayout")->geometry();
    const QRect map = child<QLayout>(overlay(), "horizontalLayout")->geometry();
    QVERIFY(qAbs(top.height() * 2 - map.height() * 5) <= 5);
    for (const char *name : {"m_action", "m_back", "m_apply"}) {
        const QRect place = child<QWidget>(overlay(), name)->geometry();
        QCOMPARE(place.bottom(), top.bottom());
        QVERIFY(map.top() > place.bottom());
        QVERIFY(overlay()->rect().contains(place));
    }
    QCOMPARE(child<QWidget>(overlay(), "m_back")->height(), 42);
}

void tst_ActionAssignWid::pages()
{
    const auto *map = child<QStackedWidget>(overlay(), "m_map");
    QCOMPARE(map->styleSheet(), QStringLiteral("background:transparent;"));
    QCOMPARE(map->count(), 3);
    QCOMPARE(map->widget(0)->objectName(), QStringLiteral("m_keyboard"));
    QCOMPARE(map->widget(1)->objectName(), QStringLiteral("m_mouse"));
    QCOMPARE(map->widget(2)->objectName(), QStringLiteral("m_media"));
    QVERIFY(overlay()->isHidden());
}

void tst_ActionAssignWid::opens_data()
{
    QTest::addColumn<int>("action");
    QTest::addColumn<int>("input");
    QTest::addColumn<QString>("title");
    QTest::newRow("keyboard") << 1 << 0 << "ACTION  1";
    QTest::newRow("mouse") << 2 << 1 << "ACTION  2";
    QTest::newRow("media") << 1 << 2 << "ACTION  1";
}

void tst_ActionAssignWid::opens()
{
    QFETCH(int, action);
    QFETCH(int, input);
    QFETCH(QString, title);
    overlay()->openOverlay(action, input, title);
    QVERIFY(overlay()->isVisible());
    QCOMPARE(child<QLabel>(overlay(), "m_action")->text(), title);
    QCOMPARE(child<QStackedWidget>(overlay(), "m_map")->currentIndex(), input);
    QCOMPARE(isCapturing(), input == 0);
    QCOMPARE(m_hotKey->startCount, input == 0 ? 1 : 0);
    QCOMPARE(m_hotKey->stopCount, 0);
}

void tst_ActionAssignWid::otherPagesLeaveTheKeyboardAlone_data()
{
    QTest::addColumn<int>("input");
    QTest::addColumn<QString>("button");
    QTest::newRow("mouse, back") << 1 << "m_back";
    QTest::newRow("mouse, apply") << 1 << "m_apply";
    QTest::newRow("media, back") << 2 << "m_back";
    QTest::newRow("media, apply") << 2 << "m_apply";
}

/// Somebody else's grab lives on.
void tst_ActionAssignWid::otherPagesLeaveTheKeyboardAlone()
{
    QFETCH(int, input);
    QFETCH(QString, button);
    m_main->grabKeyboard();
    overlay()->openOverlay(1, input, QStringLiteral("ACTION  1"));
    QCOMPARE(QWidget::keyboardGrabber(), m_main.get());
    clickOn(child<QPushButton>(overlay(), button));
    QCOMPARE(QWidget::keyboardGrabber(), m_main.get());
    QCOMPARE(m_hotKey->startCount, 0);
    QCOMPARE(m_hotKey->stopCount, 0);
    m_main->releaseKeyboard();
}

void tst_ActionAssignWid::anotherPageLetsTheKeyboardGo()
{
    overlay()->openOverlay(1, 0, QStringLiteral("ACTION  1"));
    QVERIFY(isCapturing());
    overlay()->openOverlay(2, 1, QStringLiteral("ACTION  2"));
    QVERIFY(!QWidget::keyboardGrabber());
    QCOMPARE(m_hotKey->stopCount, 1);
    QCOMPARE(child<QLabel>(overlay(), "m_action")->text(), QStringLiteral("ACTION  2"));
}

void tst_ActionAssignWid::closes_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("input");
    QTest::addColumn<int>("backs");
    QTest::addColumn<int>("applies");
    QTest::newRow("back from the keyboard") << "m_back" << 0 << 1 << 0;
    QTest::newRow("back from the mouse") << "m_back" << 1 << 1 << 0;
    QTest::newRow("apply from the keyboard") << "m_apply" << 0 << 0 << 1;
    QTest::newRow("apply from media") << "m_apply" << 2 << 0 << 1;
}

/// The keyboard is free when the signal comes, and the layer still up.
void tst_ActionAssignWid::closes()
{
    QFETCH(QString, button);
    QFETCH(int, input);
    QFETCH(int, backs);
    QFETCH(int, applies);
    QSignalSpy back(overlay(), &ActionAssignWid::sigDualActionBack);
    QSignalSpy apply(overlay(), &ActionAssignWid::sigDualActionApply);
    QSignalSpy changed(overlay(), &ActionAssignWid::sigDualActionChanged);
    bool wasVisible = false;
    bool wasFree = false;
    const auto look = [&] {
        wasVisible = overlay()->isVisible();
        wasFree = !QWidget::keyboardGrabber() && !m_hotKey->capturing;
    };
    connect(overlay(), &ActionAssignWid::sigDualActionBack, this, look);
    connect(overlay(), &ActionAssignWid::sigDualActionApply, this, look);
    overlay()->openOverlay(1, input, QStringLiteral("ACTION  1"));
    clickOn(child<QPushButton>(overlay(), button));
    QCOMPARE(back.count(), backs);
    QCOMPARE(apply.count(), applies);
    QCOMPARE(changed.count(), 0);
    QVERIFY(wasVisible);
    QVERIFY(wasFree);
    QVERIFY(overlay()->isHidden());
    QCOMPARE(m_hotKey->stopCount, input == 0 ? 1 : 0);
}

void tst_ActionAssignWid::escapeDoesNotClose()
{
    QSignalSpy back(overlay(), &ActionAssignWid::sigDualActionBack);
    overlay()->openOverlay(1, 1, QStringLiteral("ACTION  1"));
    pressKey(overlay(), Qt::Key_Escape);
    pressKey(child<MouseWid>(overlay(), "m_mouse"), Qt::Key_Escape);
    QVERIFY(overlay()->isVisible());
    QCOMPARE(back.count(), 0);
}

void tst_ActionAssignWid::picksArePassedOnAtOnce()
{
    QSignalSpy spy(overlay(), &ActionAssignWid::sigDualActionChanged);
    overlay()->openOverlay(2, 2, QStringLiteral("ACTION  2"));
    auto *media = child<MediaWid>(overlay(), "m_media");
    emit media->sigMediaChanged(plainKey(240));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toInt(), 2);
    QCOMPARE(spy.at(0).at(1).value<vantrix_key_mapping>(), plainKey(240));
    emit media->sigMediaChanged(plainKey(246));
    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.at(1).at(1).value<vantrix_key_mapping>(), plainKey(246));
    emit media->sigMediaChanged(clearedKey());
    QCOMPARE(spy.at(2).at(1).value<vantrix_key_mapping>(), clearedKey());

    overlay()->openOverlay(1, 1, QStringLiteral("ACTION  1"));
    emit child<MouseWid>(overlay(), "m_mouse")->sigMouseChanged(plainKey(497));
    QCOMPARE(spy.last().at(0).toInt(), 1);
    QCOMPARE(spy.last().at(1).value<vantrix_key_mapping>(), plainKey(497));
    QVERIFY(overlay()->isVisible());
}

void tst_ActionAssignWid::realKeysChoose()
{
    QSignalSpy spy(overlay(), &ActionAssignWid::sigDualActionChanged);
    overlay()->openOverlay(1, 0, QStringLiteral("ACTION  1"));
    sendNativeKey(QWidget::keyboardGrabber(), QEvent::KeyPress, 30, 65);
    sendNativeKey(QWidget::keyboardGrabber(), QEvent::KeyRelease, 30, 65);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toInt(), 1);
    QCOMPARE(spy.at(0).at(1).value<vantrix_key_mapping>(), plainKey(4));
    clickOn(child<QPushButton>(overlay(), "btn_57"));
    QCOMPARE(spy.last().at(1).value<vantrix_key_mapping>(), plainKey(44));
}

void tst_ActionAssignWid::modalThingsPauseTheCapture()
{
    overlay()->openOverlay(1, 0, QStringLiteral("ACTION  1"));
    bool wasFree = false;
    Modal::setAnswerer([&wasFree](const ModalPrompt &) {
        wasFree = !QWidget::keyboardGrabber();
        return QVariant(0);
    });
    Modal::warning(overlay(), QStringLiteral("warning"), QStringLiteral("text"));
    Modal::setAnswerer(nullptr);
    QVERIFY(wasFree);
    QVERIFY(isCapturing());
    clickOn(child<QPushButton>(overlay(), "m_back"));
    Modal::setAnswerer([](const ModalPrompt &) { return QVariant(0); });
    Modal::warning(overlay(), QStringLiteral("warning"), QStringLiteral("text"));
    Modal::setAnswerer(nullptr);
    QVERIFY(!QWidget::keyboardGrabber());
}

void tst_ActionAssignWid::hidingItsWindowLetsTheKeyboardGo()
{
    overlay()->openOverlay(1, 0, QStringLiteral("ACTION  1"));
    m_main->hide();
    QVERIFY(!QWidget::keyboardGrabber());
    QVERIFY(!m_hotKey->capturing);
}

void tst_ActionAssignWid::destroyingLetsTheKeyboardGo()
{
    overlay()->openOverlay(1, 0, QStringLiteral("ACTION  1"));
    delete m_overlay;
    QVERIFY(!QWidget::keyboardGrabber());
    QVERIFY(!m_hotKey->capturing);
    QCOMPARE(m_hotKey->stopCount, 1);
}

void tst_ActionAssignWid::resetUnchecksAllPages()
{
    overlay()->openOverlay(1, 1, QStringLiteral("ACTION  1"));
    const auto groups = overlay()->findChildren<ButtonGroupEx *>();
    QCOMPARE(groups.size(), 3);
    for (ButtonGroupEx *group : groups)
        group->buttons().constFirst()->setChecked(true);
    QSignalSpy spy(overlay(), &ActionAssignWid::sigDualActionChanged);
    overlay()->resetOverlay();
    for (const ButtonGroupEx *group : groups)
        QVERIFY(!group->checkedButton());
    QCOMPARE(spy.count(), 0);
}

void tst_ActionAssignWid::resetKeepsItOpen()
{
    overlay()->openOverlay(2, 0, QStringLiteral("ACTION  2"));
    overlay()->resetOverlay();
    QVERIFY(overlay()->isVisible());
    QVERIFY(isCapturing());
    QSignalSpy spy(overlay(), &ActionAssignWid::sigDualActionChanged);
    clickOn(child<QPushButton>(overlay(), "btn_30"));
    QCOMPARE(spy.last().at(0).toInt(), 2);
}

QPushButton *tst_ActionAssignWid::buttonBelow(const QRect &place)
{
    auto *const button = new QPushButton(m_main.get());
    button->setGeometry(place);
    button->stackUnder(overlay());
    button->show();
    return button;
}

void tst_ActionAssignWid::takesTheFocusAndGivesItBack()
{
    QPushButton *const veiled = buttonBelow({10, 10, 80, 30});
    veiled->setFocus();
    for (const int input : {1, 2}) {
        overlay()->openOverlay(1, input, QStringLiteral("ACTION  1"));
        const QWidget *const page = child<QStackedWidget>(overlay(), "m_map")->currentWidget();
        QVERIFY(page->isAncestorOf(QApplication::focusWidget()));
        clickOn(child<QPushButton>(overlay(), input == 1 ? "m_back" : "m_apply"));
        QCOMPARE(QApplication::focusWidget(), veiled);
    }
    overlay()->openOverlay(1, 1, QStringLiteral("ACTION  1"));
    overlay()->closeOverlay();
    QCOMPARE(QApplication::focusWidget(), veiled);
}

void tst_ActionAssignWid::focusInTheHoleStays()
{
    buttonBelow({10, 10, 80, 30})->setFocus();
    QPushButton *const key = buttonBelow({300, 200, 40, 40});
    overlay()->setMask(QRegion(overlay()->rect()) - QRect(280, 180, 200, 200));
    overlay()->openOverlay(1, 1, QStringLiteral("ACTION  1"));
    key->setFocus();
    overlay()->closeOverlay();
    QCOMPARE(QApplication::focusWidget(), key);
}

void tst_ActionAssignWid::tabStaysAboveTheVeil_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("forth") << Qt::Key_Tab;
    QTest::newRow("back") << Qt::Key_Backtab;
}

/// The page, what the hole leaves free, BACK and APPLY; around and around.
void tst_ActionAssignWid::tabStaysAboveTheVeil()
{
    QFETCH(Qt::Key, key);
    QPushButton *const veiled = buttonBelow({10, 10, 80, 30});
    QPushButton *const free = buttonBelow({300, 200, 40, 40});
    QPushButton *const hidden = buttonBelow({350, 200, 40, 40});
    hidden->hide();
    QPushButton *const disabled = buttonBelow({400, 200, 40, 40});
    disabled->setEnabled(false);
    veiled->setFocus();
    overlay()->setMask(QRegion(overlay()->rect()) - QRect(280, 180, 200, 200));
    overlay()->openOverlay(1, 1, QStringLiteral("ACTION  1"));
    QWidget *const page = child<MouseWid>(overlay(), "m_mouse");
    QStringList stops;
    for (int i = 0; i < 8; ++i) {
        const QWidget *const at = QApplication::focusWidget();
        stops << (page->isAncestorOf(at) ? QStringLiteral("page")
                  : at == free           ? QStringLiteral("free")
                  : at == veiled         ? QStringLiteral("veiled")
                                         : at->objectName());
        QTest::keyClick(m_main->windowHandle(), key);
    }
    const QStringList forth = {"page", "free", "m_back", "m_apply",
                               "page", "free", "m_back", "m_apply"};
    const QStringList back = {"page", "m_apply", "m_back", "free",
                              "page", "m_apply", "m_back", "free"};
    QCOMPARE(stops, key == Qt::Key_Tab ? forth : back);
}

/// They would change what lies below, the selected key included.
void tst_ActionAssignWid::shortcutsOfTheWindowRest()
{
    QPushButton *const free = buttonBelow({300, 200, 40, 40});
    QShortcut undo(QKeySequence(Qt::CTRL | Qt::Key_Z), m_main.get());
    QSignalSpy spy(&undo, &QShortcut::activated);
    const auto press = [this] {
        QTest::keyClick(m_main->windowHandle(), Qt::Key_Z, Qt::ControlModifier);
    };
    overlay()->setMask(QRegion(overlay()->rect()) - QRect(280, 180, 200, 200));
    overlay()->openOverlay(1, 1, QStringLiteral("ACTION  1"));
    press();
    free->setFocus();
    press();
    QCOMPARE(spy.count(), 0);
    clickOn(child<QPushButton>(overlay(), "m_back"));
    press();
    QCOMPARE(spy.count(), 1);
}

VANTRIX_TEST_MAIN(tst_ActionAssignWid)
#include "tst_ActionAssignWid.moc"
