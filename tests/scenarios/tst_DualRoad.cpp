#include "ShellRoad.h"
#include "XGestures.h"
#include "core/VantrixMapWid.h"
#include "dualaction/ActionAssignWid.h"
#include "dualaction/ActionWid.h"
#include "panels/InputWid.h"
#include "shell/MappingView.h"
#include "support/TestMain.h"

#include <QApplication>
#include <QButtonGroup>

#include <functional>
#include <memory>

/// A person gives keys two actions, with real keys and the mouse, and sends them to the device.
class tst_DualRoad : public QObject, ShellRoad
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void realKeysChoose();
    void bothActionsReachTheDevice();
    void backAndResize();
    void leavingTheMappingView();
    void theVeilHoldsForTheKeyboard();
    void byKeyboardAlone();

private:
    ActionAssignWid *overlay() { return m_window->findChild<ActionAssignWid *>("m_overlay"); }
    void open(int number, int input);
    void closeWith(const char *button);
    bool isHoleAroundTheKeys();
    void tabTo(const QString &name);
    static QWidget *tabOnTo(const std::function<bool(QWidget *)> &isThere);
};

void tst_DualRoad::init()
{
    forget();
    start();
    auto *const inputs = m_window->findChild<InputWid *>();
    XGestures::click(inputs->findChild<QButtonGroup *>()->button(6));
}

void tst_DualRoad::cleanup()
{
    quit();
    QVERIFY(!QWidget::keyboardGrabber());
}

/// The column's button, when its menu is closed, and a kind of function.
void tst_DualRoad::open(int number, int input)
{
    auto *const action = child<ActionWid>(m_window.get(), number == 1 ? "m_action1" : "m_action2");
    if (child<QWidget>(action, "m_assignMenu")->isHidden())
        XGestures::click(child<QPushButton>(action, "m_action"));
    XGestures::click(action->findChild<QButtonGroup *>()->button(input));
    QVERIFY(overlay()->isVisible());
}

void tst_DualRoad::closeWith(const char *button)
{
    XGestures::click(child<QPushButton>(overlay(), button));
    QVERIFY(!overlay()->isVisible());
    QVERIFY(!QWidget::keyboardGrabber());
}

bool tst_DualRoad::isHoleAroundTheKeys()
{
    QWidget *const under = overlay()->parentWidget();
    QRect keys;
    for (int keyIdx = 0; keyIdx < 24; ++keyIdx)
        keys |= QRect(key(keyIdx)->mapTo(under, QPoint(0, 0)), key(keyIdx)->size());
    const QRegion hole = QRegion(under->rect()) - overlay()->mask();
    return (QRegion(keys) - hole).isEmpty() && hole.boundingRect().width() < 2 * keys.width();
}

void tst_DualRoad::realKeysChoose()
{
    const vantrix_key_mapping before = stored(8);
    XGestures::click(key(7));
    open(1, 0);
    XGestures::key(QStringLiteral("b"));
    QCOMPARE(key(7)->text(), QStringLiteral("B"));
    XGestures::click(key(8));
    QVERIFY(key(8)->isChecked());
    XGestures::key(QStringLiteral("Escape"));
    QVERIFY(overlay()->isVisible());
    QCOMPARE(key(8)->text(), QStringLiteral("ESC"));
    XGestures::key(QStringLiteral("Shift_R"));
    QCOMPARE(key(8)->toolTip().isEmpty() ? key(8)->text() : key(8)->toolTip(),
             QStringLiteral("R_SHIFT"));
    QCOMPARE(stored(8), before);
    closeWith("m_apply");
    QCOMPARE(int(stored(7).type), 3);
    QCOMPARE(ushort(stored(7).digital.firstAction), ushort(5));
    QCOMPARE(int(stored(8).type), 3);
    QCOMPARE(ushort(stored(8).digital.firstAction), ushort(229));
    QCOMPARE(int(stored(8).digital.depth), 50);
}

void tst_DualRoad::bothActionsReachTheDevice()
{
    XGestures::click(key(7));
    open(1, 0);
    XGestures::key(QStringLiteral("b"));
    closeWith("m_apply");
    open(2, 1);
    XGestures::click(
        child<QWidget>(overlay(), "m_mouse")->findChild<QButtonGroup *>()->button(497));
    closeWith("m_apply");
    XGestures::click(child<QPushButton>(m_window->findChild<VantrixMapWid *>(), "m_apply"));
    const auto image = m_services->device().image(0, 0);
    const vantrix_key_mapping sent = image.keys[7].content.mapping;
    QCOMPARE(sent, stored(7));
    QCOMPARE(int(sent.type), 3);
    QCOMPARE(ushort(sent.digital.firstAction), ushort(5));
    QCOMPARE(ushort(sent.digital.secondAction), ushort(497));
    QCOMPARE(int(sent.digital.dualType), 0);
}

void tst_DualRoad::backAndResize()
{
    const QString before = key(9)->text();
    const vantrix_key_mapping stays = stored(9);
    XGestures::click(key(9));
    open(1, 0);
    XGestures::key(QStringLiteral("b"));
    QCOMPARE(key(9)->text(), QStringLiteral("B"));
    m_window->resize(m_window->width() + 100, m_window->height() - 60);
    QTRY_COMPARE(overlay()->size(), overlay()->parentWidget()->size());
    // The hole has moved along.
    QTRY_VERIFY(isHoleAroundTheKeys());
    XGestures::click(key(13));
    QVERIFY(key(13)->isChecked());
    XGestures::click(key(9));
    QVERIFY(key(9)->isChecked());
    closeWith("m_back");
    QCOMPARE(key(9)->text(), before);
    QCOMPARE(stored(9), stays);
}

void tst_DualRoad::leavingTheMappingView()
{
    XGestures::click(key(9));
    open(1, 0);
    QVERIFY(QWidget::keyboardGrabber());
    m_window->mappingView()->hide();
    QVERIFY(!QWidget::keyboardGrabber());
    QVERIFY(!overlay()->isVisible());
    m_window->mappingView()->show();
    QVERIFY(!overlay()->isVisible());
}

/// Goes on with Tab, which leads to the overlay's widgets and the pad's keys alone.
void tst_DualRoad::tabTo(const QString &name)
{
    QString at;
    for (int i = 0; i < 8 && at != name; ++i) {
        XGestures::key(QStringLiteral("Tab"));
        const QWidget *const focused = QApplication::focusWidget();
        at = focused ? focused->objectName() : QString();
        QVERIFY2(overlay()->isAncestorOf(focused) || at.startsWith(QLatin1String("key_")),
                 qPrintable(at));
    }
    QCOMPARE(at, name);
}

/// An undo of something else would take what is staged along.
void tst_DualRoad::theVeilHoldsForTheKeyboard()
{
    m_services->store().setProfileName(0, 0, QStringLiteral("renamed"));
    XGestures::click(key(7));
    open(1, 1);
    XGestures::key(QStringLiteral("space"));
    QCOMPARE(key(7)->text(), QStringLiteral("LEFT\nCLICK"));
    XGestures::key(QStringLiteral("ctrl+z"));
    QVERIFY(overlay()->isVisible());
    QCOMPARE(m_services->store().state().profileName(0, 0), QStringLiteral("renamed"));
    tabTo(QStringLiteral("m_back"));
    tabTo(QStringLiteral("m_apply"));
    XGestures::key(QStringLiteral("space"));
    QVERIFY(!overlay()->isVisible());
    QCOMPARE(int(stored(7).type), 3);
    QCOMPARE(ushort(stored(7).digital.firstAction), ushort(496));
}

/// Goes on with Tab until that is where the focus is.
QWidget *tst_DualRoad::tabOnTo(const std::function<bool(QWidget *)> &isThere)
{
    constexpr int patience = 40;
    for (int i = 0; i < patience; ++i) {
        XGestures::key(QStringLiteral("Tab"));
        QWidget *const focused = QApplication::focusWidget();
        if (focused && isThere(focused))
            return focused;
    }
    return nullptr;
}

void tst_DualRoad::byKeyboardAlone()
{
    XGestures::key(QStringLiteral("ctrl+k"));
    QWidget *const padKey = tabOnTo([](const QWidget *widget) {
        return widget->objectName().startsWith(QLatin1String("key_"));
    });
    QVERIFY(padKey);
    const int keyIdx = padKey->objectName().mid(4).toInt();
    XGestures::key(QStringLiteral("space"));
    QVERIFY(key(keyIdx)->isChecked());
    const auto *const action = child<ActionWid>(m_window.get(), "m_action1");
    QVERIFY(tabOnTo([action](const QWidget *widget) {
        return action->isAncestorOf(widget) && widget->objectName() == QLatin1String("m_action");
    }));
    XGestures::key(QStringLiteral("space"));
    QWidget *const kind = tabOnTo([action](const QWidget *widget) {
        return action->isAncestorOf(widget) && widget->objectName() != QLatin1String("m_action");
    });
    QVERIFY(kind);
    QCOMPARE(static_cast<QPushButton *>(kind)->text(), QStringLiteral("KEYBOARD"));
    XGestures::key(QStringLiteral("space"));
    QVERIFY(overlay()->isVisible());
    QVERIFY(!QWidget::keyboardGrabber());
    QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("btn_1"));
    XGestures::key(QStringLiteral("Right"));
    XGestures::key(QStringLiteral("space"));
    QCOMPARE(key(keyIdx)->text(), QStringLiteral("F1"));
    XGestures::key(QStringLiteral("Escape"));
    QVERIFY(overlay()->isVisible());
    QCOMPARE(key(keyIdx)->text(), QStringLiteral("F1"));
    tabTo(QStringLiteral("m_apply"));
    XGestures::key(QStringLiteral("space"));
    QVERIFY(!overlay()->isVisible());
    QCOMPARE(QApplication::focusWidget(), kind);
    QCOMPARE(int(stored(keyIdx).type), 3);
    QCOMPARE(ushort(stored(keyIdx).digital.firstAction), ushort(58));
    XGestures::key(QStringLiteral("ctrl+z"));
    QVERIFY(int(stored(keyIdx).type) != 3);
}

VANTRIX_TEST_MAIN(tst_DualRoad)
#include "tst_DualRoad.moc"
