#include "panels/MouseWid.h"

#include "panels/FunctionPanel.h"
#include "panels/MouseKey.h"
#include "panels/Places.h"
#include "support/TestMain.h"

#include <QMouseEvent>
#include <QVBoxLayout>

namespace {

// At the design size the outer radius of the ring is 74, the inner one 24, around (75, 75).
const std::map<int, QPoint> RingMiddles = {
    {481, {75, 25}}, {483, {125, 75}}, {485, {75, 125}}, {487, {25, 75}}};
const QPoint Corner(2, 2);

class PaintCount : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint;
        return false;
    }
    int count = 0;
};

void moveOver(QWidget *widget, const QPoint &at)
{
    QMouseEvent move(QEvent::MouseMove, at, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &move);
}

QColor colorAt(QWidget *widget, const QPoint &at)
{
    QImage image(widget->size(), QImage::Format_RGB32);
    image.fill(Qt::black);
    widget->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image.pixelColor(at);
}

} // namespace

class tst_MouseWid : public QObject
{
    Q_OBJECT

private slots:
    void listsItsFunctions() { m_common.listsItsFunctions(); }
    void showsASelectedKey() { m_common.showsASelectedKey(); }
    void form();
    void clickSpaceAndSecondClick();
    void placesFollowThePicture_data();
    void placesFollowThePicture();
    void shapesLieApart_data();
    void shapesLieApart();
    void everyShapeTakesItsClicks();
    void neverPaintedRingTakesClicks();
    void cornerOfTheSquareDoesNothing();
    void releaseOutsideUnpresses();
    void pointInASiblingsRingBelongsToIt();
    void dragToASiblingSendsNothing();
    void panelMayGoInASiblingsClick();
    void moveRaisesAndLowers();
    void hoverShows();
    void checkedHasTheColorOfTheMouse();
    void paintingChangesNothing();
    void fontFollowsThePicture();
    void noHeightIsHarmless();
    void shrinksInsideALayout();

private:
    static MouseKey *key(const MouseWid &panel, int code)
    {
        return static_cast<MouseKey *>(panel.findChild<ButtonGroupEx *>()->button(code));
    }
    static QPoint middle(const MouseKey *key, int code)
    {
        return RingMiddles.count(code) ? RingMiddles.at(code) : key->rect().center();
    }

    FunctionPanelTest<MouseWid, decltype(&MouseWid::sigMouseChanged)> m_common{
        &MouseWid::sigMouseChanged,
        {{496, QStringLiteral("LEFT CLICK")},
         {497, QStringLiteral("RIGHT CLICK")},
         {498, QStringLiteral("WHEEL CLICK")},
         {488, QStringLiteral("SCROLL UP")},
         {489, QStringLiteral("SCROLL DOWN")},
         {500, QStringLiteral("FORWARD")},
         {499, QStringLiteral("BACKWARD")},
         {481, QStringLiteral("CURSOR UP")},
         {483, QStringLiteral("CURSOR RIGHT")},
         {485, QStringLiteral("CURSOR DOWN")},
         {487, QStringLiteral("CURSOR LEFT")}}};
};

void tst_MouseWid::form()
{
    const MouseWid panel;
    QCOMPARE(panel.size(), QSize(833, 263));
    child<QLabel>(&panel, "m_backgroundLab");
    const auto buttons = m_common.group(panel)->buttons();
    for (const QAbstractButton *button : buttons) {
        QCOMPARE(button->accessibleName(), button->text());
        QCOMPARE(button->toolTip(), button->text());
    }
}

void tst_MouseWid::clickSpaceAndSecondClick()
{
    MouseWid panel;
    panel.show();
    QSignalSpy spy(&panel, &MouseWid::sigMouseChanged);
    const auto buttons = m_common.group(panel)->buttons();
    for (QAbstractButton *button : buttons) {
        const int code = m_common.group(panel)->id(button);
        const QPoint at = middle(key(panel, code), code);
        clickOn(button, at);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.takeFirst().at(0).value<vantrix_key_mapping>(), plainKey(ushort(code)));
        QCOMPARE(m_common.group(panel)->checkedButton(), button);
        clickOn(button, at);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.takeFirst().at(0).value<vantrix_key_mapping>(), clearedKey());
        QVERIFY(!m_common.group(panel)->checkedButton());
        pressKey(button, Qt::Key_Space);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.takeFirst().at(0).value<vantrix_key_mapping>(), plainKey(ushort(code)));
    }
}

void tst_MouseWid::placesFollowThePicture_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("picture");
    QTest::addColumn<QRect>("cursor");
    QTest::addColumn<Places>("places");
    // clang-format off
    QTest::newRow("design") << QSize(833, 263) << QRect(342, 13, 148, 237) << QRect(69, 121, 14, 21)
        << Places{
            {496, {248, 46, 134, 25}}, {497, {437, 84, 134, 25}}, {498, {409, 40, 172, 31}},
            {488, {409, 8, 148, 22}},  {489, {409, 61, 291, 31}}, {500, {231, 84, 134, 25}},
            {499, {233, 126, 134, 25}},
            {481, {2, 55, 150, 150}},  {483, {4, 57, 150, 150}},
            {485, {2, 59, 150, 150}},  {487, {0, 57, 150, 150}}};
    QTest::newRow("half") << QSize(416, 131) << QRect(171, 6, 73, 118) << QRect(37, 60, 7, 10)
        << Places{
            {496, {122, 23, 68, 12}},  {497, {217, 42, 68, 12}},  {498, {203, 20, 86, 15}},
            {488, {203, 4, 76, 11}},   {489, {203, 30, 144, 15}}, {500, {116, 42, 68, 12}},
            {499, {117, 63, 68, 12}},
            {481, {4, 27, 74, 74}},    {483, {6, 29, 74, 74}},
            {485, {4, 31, 74, 74}},    {487, {2, 29, 74, 74}}};
    QTest::newRow("double") << QSize(1666, 526) << QRect(685, 26, 296, 474) << QRect(139, 242, 29, 43)
        << Places{
            {496, {502, 93, 263, 50}},  {497, {875, 169, 263, 50}}, {498, {822, 80, 338, 63}},
            {488, {822, 16, 292, 45}},  {489, {822, 122, 576, 63}}, {500, {464, 169, 263, 50}},
            {499, {468, 253, 263, 50}},
            {481, {5, 113, 298, 298}},  {483, {7, 115, 298, 298}},
            {485, {5, 117, 298, 298}},  {487, {3, 115, 298, 298}}};
    QTest::newRow("very wide") << QSize(2400, 263) << QRect(1126, 13, 148, 237) << QRect(853, 121, 14, 21)
        << Places{
            {496, {1032, 46, 134, 25}}, {497, {1221, 84, 134, 25}}, {498, {1193, 40, 172, 31}},
            {488, {1193, 8, 148, 22}},  {489, {1193, 61, 291, 31}}, {500, {1015, 84, 134, 25}},
            {499, {1017, 126, 134, 25}},
            {481, {786, 55, 150, 150}}, {483, {788, 57, 150, 150}},
            {485, {786, 59, 150, 150}}, {487, {784, 57, 150, 150}}};
    // Too narrow for a picture of nine tenths of the height.
    QTest::newRow("very tall") << QSize(400, 900) << QRect(159, 384, 82, 131) << QRect(39, 444, 8, 12)
        << Places{
            {496, {104, 402, 77, 14}}, {497, {211, 423, 77, 14}}, {498, {195, 399, 97, 17}},
            {488, {195, 381, 84, 12}}, {489, {195, 410, 162, 17}}, {500, {96, 423, 77, 14}},
            {499, {97, 447, 77, 14}},
            {481, {2, 407, 84, 84}},   {483, {4, 409, 84, 84}},
            {485, {2, 411, 84, 84}},   {487, {0, 409, 84, 84}}};
    // The picture has room, the ring comes nearer to it.
    QTest::newRow("on the page") << QSize(766, 270) << QRect(307, 13, 151, 243) << QRect(70, 124, 15, 22)
        << Places{
            {496, {211, 47, 136, 25}}, {497, {404, 86, 136, 25}}, {498, {376, 41, 175, 32}},
            {488, {376, 8, 152, 23}},  {489, {376, 62, 297, 32}}, {500, {194, 86, 136, 25}},
            {499, {196, 130, 136, 25}},
            {481, {2, 58, 152, 152}},  {483, {4, 60, 152, 152}},
            {485, {2, 62, 152, 152}},  {487, {0, 60, 152, 152}}};
    // clang-format on
}

void tst_MouseWid::placesFollowThePicture()
{
    QFETCH(const QSize, size);
    QFETCH(const QRect, picture);
    QFETCH(const QRect, cursor);
    QFETCH(const Places, places);
    QWidget page;
    MouseWid panel(&page);
    page.show();
    panel.resize(size);
    QCOMPARE(panel.size(), size);
    comparePlaces(panel, m_common.group(panel), places);
    QCOMPARE(child<QLabel>(&panel, "m_backgroundLab")->geometry(), picture);
    QCOMPARE(child<QLabel>(&panel, "m_cursorLab")->geometry(), cursor);
}

void tst_MouseWid::shapesLieApart_data()
{
    placesFollowThePicture_data();
}

void tst_MouseWid::shapesLieApart()
{
    QFETCH(const QSize, size);
    QWidget page;
    MouseWid panel(&page);
    page.show();
    panel.resize(size);
    const auto buttons = m_common.group(panel)->buttons();
    QRegion taken;
    QRegion ring;
    for (const QAbstractButton *button : buttons) {
        const QRegion shape = button->mask().translated(button->pos());
        QVERIFY(!shape.isEmpty());
        QVERIFY2(!shape.intersects(taken), qPrintable(button->text()));
        if (static_cast<const MouseKey *>(button)->figure() == MouseKey::Figure::Ring)
            ring += shape;
        else
            taken += shape;
    }
    QVERIFY(!ring.intersects(taken));
    QVERIFY(!ring.intersects(child<QLabel>(&panel, "m_backgroundLab")->geometry()));
}

void tst_MouseWid::everyShapeTakesItsClicks()
{
    MouseWid panel;
    panel.show();
    // The middles of the boxes and of the ring's segments, on the panel of 833 by 263.
    const std::map<int, QPoint> points = {{496, {286, 58}},  {497, {528, 104}}, {498, {533, 55}},
                                          {488, {521, 19}},  {489, {650, 76}},  {500, {269, 96}},
                                          {499, {271, 138}}, {481, {77, 80}},   {483, {129, 132}},
                                          {485, {77, 184}},  {487, {25, 132}}};
    for (const auto &[code, point] : points)
        QCOMPARE(panel.childAt(point), key(panel, code));
    // The lower edge of RIGHT CLICK, where the square around SCROLL DOWN reaches.
    QCOMPARE(panel.childAt(528, 88), key(panel, 497));
    // The hole of the ring.
    QCOMPARE(panel.childAt(77, 132), child<QLabel>(&panel, "m_cursorLab"));
}

void tst_MouseWid::neverPaintedRingTakesClicks()
{
    for (const int code : {481, 483, 485, 487}) {
        MouseWid panel;
        PaintCount paints;
        key(panel, code)->installEventFilter(&paints);
        panel.show();
        QSignalSpy spy(&panel, &MouseWid::sigMouseChanged);
        clickOn(key(panel, code), RingMiddles.at(code));
        QCOMPARE(paints.count, 0);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).value<vantrix_key_mapping>(), plainKey(ushort(code)));
    }
}

void tst_MouseWid::cornerOfTheSquareDoesNothing()
{
    MouseWid panel;
    panel.show();
    QSignalSpy spy(&panel, &MouseWid::sigMouseChanged);
    for (const int code : {481, 483, 485, 487}) {
        MouseKey *const segment = key(panel, code);
        const QPoint hole = segment->rect().center();
        const QPoint farCorner = segment->rect().bottomRight() - Corner;
        for (const QPoint &at : {Corner, farCorner, hole}) {
            clickOn(segment, at);
            QVERIFY(!segment->isDown());
        }
    }
    QCOMPARE(spy.count(), 0);
}

void tst_MouseWid::releaseOutsideUnpresses()
{
    MouseWid panel;
    panel.show();
    QSignalSpy spy(&panel, &MouseWid::sigMouseChanged);
    MouseKey *const segment = key(panel, 481);
    QTest::mousePress(segment, Qt::LeftButton, {}, RingMiddles.at(481));
    QVERIFY(segment->isDown());
    QTest::mouseRelease(segment, Qt::LeftButton, {}, Corner);
    QVERIFY(!segment->isDown());
    QVERIFY(!segment->isChecked());
    QCOMPARE(spy.count(), 0);
    // And the next click is a whole one.
    clickOn(segment, RingMiddles.at(481));
    QCOMPARE(spy.count(), 1);
}

void tst_MouseWid::pointInASiblingsRingBelongsToIt()
{
    MouseWid panel;
    panel.show();
    QSignalSpy spy(&panel, &MouseWid::sigMouseChanged);
    for (const int receiver : {481, 483, 485, 487}) {
        for (const auto &[code, point] : RingMiddles) {
            panel.clearChecked();
            clickOn(key(panel, receiver), point);
            QCOMPARE(spy.count(), 1);
            QCOMPARE(spy.takeFirst().at(0).value<vantrix_key_mapping>(), plainKey(ushort(code)));
            QVERIFY(key(panel, code)->isChecked());
            QVERIFY(!key(panel, receiver)->isDown());
        }
    }
}

void tst_MouseWid::dragToASiblingSendsNothing()
{
    MouseWid panel;
    panel.show();
    QSignalSpy spy(&panel, &MouseWid::sigMouseChanged);
    MouseKey *const segment = key(panel, 481);
    QTest::mousePress(segment, Qt::LeftButton, {}, RingMiddles.at(481));
    QTest::mouseRelease(segment, Qt::LeftButton, {}, RingMiddles.at(483));
    QTest::mousePress(segment, Qt::LeftButton, {}, RingMiddles.at(483));
    QTest::mouseRelease(segment, Qt::LeftButton, {}, RingMiddles.at(481));
    for (const int code : {481, 483, 485, 487})
        QVERIFY(!key(panel, code)->isDown());
    QCOMPARE(spy.count(), 0);
}

void tst_MouseWid::panelMayGoInASiblingsClick()
{
    auto *panel = new MouseWid;
    panel->resize(833, 263);
    panel->show();
    connect(panel, &MouseWid::sigMouseChanged, this, [&panel] {
        delete panel;
        panel = nullptr;
    });
    clickOn(key(*panel, 481), RingMiddles.at(483));
    QVERIFY(!panel);
}

void tst_MouseWid::moveRaisesAndLowers()
{
    MouseWid panel;
    panel.show();
    MouseKey *const segment = key(panel, 483);
    QVERIFY(segment->hasMouseTracking());
    moveOver(segment, RingMiddles.at(483));
    QCOMPARE(panel.findChildren<QWidget *>().last(), segment);
    moveOver(segment, Corner);
    QCOMPARE(panel.findChildren<QWidget *>().first(), segment);
}

void tst_MouseWid::hoverShows()
{
    MouseWid panel;
    panel.show();
    for (const int code : {481, 499}) {
        MouseKey *const button = key(panel, code);
        const QPoint at = code == 481 ? QPoint(75, 6) : QPoint(4, 4);
        QCOMPARE(colorAt(button, at), QColor(Qt::black));
        QEvent enter(QEvent::Enter);
        QCoreApplication::sendEvent(button, &enter);
        QCOMPARE(colorAt(button, at), QColor(50, 50, 50));
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(button, &leave);
        QCOMPARE(colorAt(button, at), QColor(Qt::black));
    }
}

void tst_MouseWid::checkedHasTheColorOfTheMouse()
{
    MouseWid panel;
    panel.show();
    panel.slotVantrixKeySelected(plainKey(481));
    QCOMPARE(colorAt(key(panel, 481), {75, 6}), QColor(246, 148, 29));
    QCOMPARE(colorAt(key(panel, 499), {4, 4}), QColor(Qt::black));
    panel.slotVantrixKeySelected(plainKey(499));
    QCOMPARE(colorAt(key(panel, 481), {75, 6}), QColor(Qt::black));
    QCOMPARE(colorAt(key(panel, 499), {4, 4}), QColor(246, 148, 29));
}

void tst_MouseWid::paintingChangesNothing()
{
    MouseWid panel;
    panel.show();
    const auto buttons = m_common.group(panel)->buttons();
    for (QAbstractButton *button : buttons) {
        const QRect place = button->geometry();
        const QRegion mask = button->mask();
        button->grab();
        QCOMPARE(button->geometry(), place);
        QCOMPARE(button->mask(), mask);
    }
}

void tst_MouseWid::fontFollowsThePicture()
{
    QWidget page;
    MouseWid panel(&page);
    page.show();
    const std::vector<std::pair<QSize, int>> fonts = {
        {{833, 263}, 12}, {{416, 131}, 6}, {{1666, 526}, 24}, {{766, 270}, 12}};
    for (const auto &[size, pixels] : fonts) {
        panel.resize(size);
        const auto buttons = m_common.group(panel)->buttons();
        for (const QAbstractButton *button : buttons) {
            QCOMPARE(button->font().pixelSize(), pixels);
            const auto *const mouseKey = static_cast<const MouseKey *>(button);
            if (mouseKey->figure() == MouseKey::Figure::Ring)
                continue;
            const int boxWidth = button->height() * 3;
            QVERIFY2(QFontMetrics(button->font()).horizontalAdvance(button->text()) <= boxWidth,
                     qPrintable(button->text()));
        }
    }
}

void tst_MouseWid::noHeightIsHarmless()
{
    QWidget page;
    MouseWid panel(&page);
    page.show();
    for (const QSize &size : {QSize(833, 0), QSize(0, 263), QSize(0, 0), QSize(20, 400)}) {
        panel.resize(size);
        panel.grab();
        QCOMPARE(child<QLabel>(&panel, "m_backgroundLab")->size(), QSize(0, 0));
    }
    panel.resize(833, 263);
    QCOMPARE(key(panel, 496)->geometry(), QRect(248, 46, 134, 25));
}

void tst_MouseWid::shrinksInsideALayout()
{
    QWidget page;
    auto *const layout = new QVBoxLayout(&page);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *const panel = new MouseWid(&page);
    layout->addWidget(panel);
    page.show();
    for (const QSize &size : {QSize(1666, 526), QSize(416, 131), QSize(100, 40)}) {
        page.resize(size);
        QCoreApplication::processEvents();
        QCOMPARE(panel->size(), size);
    }
}

VANTRIX_TEST_MAIN(tst_MouseWid)
#include "tst_MouseWid.moc"
