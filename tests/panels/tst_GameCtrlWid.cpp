#include "panels/GameCtrlWid.h"

#include "panels/Places.h"
#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QLabel>
#include <QSignalSpy>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

struct Control
{
    int code;
    const char *name;
};

// clang-format off
const std::vector<Control> WholeController = {
    {466, "L BUMPER"},     {467, "R BUMPER"},
    {471, "L STICK PRESS"}, {472, "R STICK PRESS"},
    {462, "A BUTTON"},     {463, "B BUTTON"},      {464, "X BUTTON"},     {465, "Y BUTTON"},
    {468, "GUIDE BUTTON"}, {469, "START BUTTON"},
    {473, "D PAD UP"},     {729, "D PAD DOWN"},    {1241, "D PAD LEFT"},  {2265, "D PAD RIGHT"},
    {222, "L TRIGGER"},    {223, "R TRIGGER"},
    {731, "L STICK UP"},   {475, "L STICK DOWN"},  {474, "L STICK LEFT"}, {730, "L STICK RIGHT"},
    {733, "R STICK UP"},   {477, "R STICK DOWN"},  {476, "R STICK LEFT"}, {732, "R STICK RIGHT"},
    {470, "HOME BUTTON"},
};

const std::vector<Control> Pad = {
    {466, "L BUMPER"},     {467, "R BUMPER"},
    {471, "L STICK PRESS"}, {472, "R STICK PRESS"},
    {462, "A BUTTON"},     {463, "B BUTTON"},      {464, "X BUTTON"},     {465, "Y BUTTON"},
    {468, "GUIDE BUTTON"}, {469, "START BUTTON"},
    {458, "D PAD UP"},     {459, "D PAD DOWN"},    {460, "D PAD LEFT"},   {461, "D PAD RIGHT"},
    {470, "HOME BUTTON"},
};

/// The directions that stand on the rim of a stick.
const std::map<int, QList<int>> Sticks = {{471, {731, 475, 474, 730}}, {472, {733, 477, 476, 732}}};
// clang-format on

vantrix_key_mapping record(quint8 type, ushort code, ushort altCode)
{
    vantrix_key_mapping key;
    key.type = type;
    key.code = code;
    key.altCode = altCode;
    return key;
}

/// What one sees of a control: the square ones are discs.
QRegion shapeOf(const QAbstractButton *button)
{
    const QRect rect = button->geometry();
    return {rect, rect.width() == rect.height() ? QRegion::Ellipse : QRegion::Rectangle};
}

/// Where the dark part of an arrow's picture weighs more, from its centre.
QPoint heavySide(const QAbstractButton *button)
{
    const QImage image = button->icon().pixmap(32, 32).toImage();
    qint64 x = 0;
    qint64 y = 0;
    for (int row = 0; row < image.height(); ++row) {
        for (int column = 0; column < image.width(); ++column) {
            const int weight = qAlpha(image.pixel(column, row));
            x += weight * (2 * column + 1 - image.width());
            y += weight * (2 * row + 1 - image.height());
        }
    }
    const qint64 noise = 255 * image.width();
    return {x > noise ? 1 : x < -noise ? -1 : 0, y > noise ? 1 : y < -noise ? -1 : 0};
}

} // namespace

class tst_GameCtrlWid : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { registerRecordTypes(); }
    void listsItsControls_data();
    void listsItsControls();
    void clickSpaceAndSecondClick();
    void showsASelectedKey();
    void firstFormFindsNoControl();
    void placesFollowThePicture_data();
    void placesFollowThePicture();
    void padPlaces();
    void controlsLieApart_data();
    void controlsLieApart();
    void sheets();
    void sheetsFollowTheSize();
    void arrowsPointTheirWay();
    void buildsAnew();
    void noHeightIsHarmless();
    void shrinksInsideALayout();

private:
    static ButtonGroupEx *group(const GameCtrlWid &panel)
    {
        return panel.findChild<ButtonGroupEx *>();
    }
    static int checkedCode(const GameCtrlWid &panel)
    {
        QAbstractButton *const button = group(panel)->checkedButton();
        return button ? group(panel)->id(button) : -1;
    }
};

void tst_GameCtrlWid::listsItsControls_data()
{
    QTest::addColumn<bool>("padMode");
    QTest::newRow("whole controller") << false;
    QTest::newRow("pad") << true;
}

void tst_GameCtrlWid::listsItsControls()
{
    QFETCH(const bool, padMode);
    GameCtrlWid panel;
    QCOMPARE(panel.size(), QSize(688, 226));
    QVERIFY(group(panel)->buttons().isEmpty());
    panel.setPadMode(padMode);
    const auto &controls = padMode ? Pad : WholeController;
    const auto buttons = group(panel)->buttons();
    QCOMPARE(std::size_t(buttons.size()), controls.size());
    for (int i = 0; i < buttons.size(); ++i) {
        const auto &[code, name] = controls[std::size_t(i)];
        QCOMPARE(group(panel)->id(buttons[i]), code);
        QCOMPARE(buttons[i]->accessibleName(), QLatin1String(name));
        QCOMPARE(buttons[i]->toolTip(), QLatin1String(name));
        QVERIFY(buttons[i]->isCheckable());
        QVERIFY(qobject_cast<QToolButton *>(buttons[i]));
        const QString letter = code == 471   ? QStringLiteral("L")
                               : code == 472 ? QStringLiteral("R")
                                             : QString();
        QCOMPARE(buttons[i]->text(), letter);
    }
}

void tst_GameCtrlWid::clickSpaceAndSecondClick()
{
    GameCtrlWid panel;
    panel.setPadMode(false);
    panel.show();
    QSignalSpy spy(&panel, &GameCtrlWid::sigGameChanged);
    for (const Control &control : WholeController) {
        QAbstractButton *const button = group(panel)->button(control.code);
        const auto assigned = record(2, 255, ushort(control.code));
        clickOn(button);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.takeFirst().at(0).value<vantrix_key_mapping>(), assigned);
        QCOMPARE(checkedCode(panel), control.code);
        clickOn(button);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.takeFirst().at(0).value<vantrix_key_mapping>(), record(0, 255, 255));
        QCOMPARE(checkedCode(panel), -1);
        pressKey(button, Qt::Key_Space);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.takeFirst().at(0).value<vantrix_key_mapping>(), assigned);
    }
}

void tst_GameCtrlWid::showsASelectedKey()
{
    GameCtrlWid panel;
    panel.setPadMode(false);
    QSignalSpy spy(&panel, &GameCtrlWid::sigGameChanged);
    for (int code = 0; code <= 3100; ++code) {
        panel.slotVantrixKeySelected(record(2, 255, ushort(code)));
        const bool listed = std::any_of(WholeController.begin(), WholeController.end(),
                                        [code](const Control &c) { return c.code == code; });
        QCOMPARE(checkedCode(panel), listed ? code : -1);
    }
    panel.slotVantrixKeySelected(record(2, 255, 462));
    for (const int type : {0, 1, 3}) {
        panel.slotVantrixKeySelected(record(quint8(type), 463, 464));
        QCOMPARE(checkedCode(panel), 462);
    }
    panel.clearChecked();
    QCOMPARE(checkedCode(panel), -1);
    QCOMPARE(spy.count(), 0);
}

void tst_GameCtrlWid::firstFormFindsNoControl()
{
    GameCtrlWid whole;
    whole.setPadMode(false);
    GameCtrlWid pad;
    pad.setPadMode(true);
    for (const int code : {458, 459, 460, 461}) {
        whole.slotVantrixKeySelected(record(2, 255, ushort(code)));
        QCOMPARE(checkedCode(whole), -1);
        pad.slotVantrixKeySelected(record(2, 255, ushort(code)));
        QCOMPARE(checkedCode(pad), code);
    }
}

void tst_GameCtrlWid::placesFollowThePicture_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("picture");
    QTest::addColumn<Places>("places");
    // clang-format off
    QTest::newRow("design") << QSize(688, 226) << QRect(205, 11, 278, 204) << Places{
        {466, {212, 42, 31, 22}},  {467, {445, 42, 31, 22}},
        {471, {253, 72, 31, 31}},  {472, {364, 118, 31, 31}},
        {462, {409, 101, 17, 17}}, {463, {426, 84, 17, 17}},
        {464, {391, 84, 17, 17}},  {465, {409, 66, 17, 17}},
        {468, {310, 87, 12, 12}},  {469, {366, 87, 12, 12}},
        {473, {299, 110, 12, 12}}, {729, {299, 146, 12, 12}},
        {1241, {281, 128, 12, 12}}, {2265, {317, 128, 12, 12}},
        {222, {252, 11, 22, 31}},  {223, {414, 11, 22, 31}},
        {731, {262, 66, 12, 12}},  {475, {262, 97, 12, 12}},
        {474, {247, 81, 12, 12}},  {730, {278, 81, 12, 12}},
        {733, {373, 112, 12, 12}}, {477, {373, 143, 12, 12}},
        {476, {358, 127, 12, 12}}, {732, {389, 127, 12, 12}},
        {470, {330, 75, 28, 21}}};
    QTest::newRow("half") << QSize(344, 113) << QRect(102, 5, 139, 102) << Places{
        {466, {105, 20, 15, 11}}, {467, {224, 20, 15, 11}},
        {471, {126, 35, 15, 15}}, {472, {182, 58, 15, 15}},
        {462, {204, 51, 8, 8}},   {463, {213, 42, 8, 8}},
        {464, {195, 42, 8, 8}},   {465, {204, 33, 8, 8}},
        {468, {155, 43, 6, 6}},   {469, {183, 43, 6, 6}},
        {473, {150, 54, 6, 6}},   {729, {150, 72, 6, 6}},
        {1241, {141, 63, 6, 6}},  {2265, {159, 63, 6, 6}},
        {222, {125, 5, 11, 15}},  {223, {208, 5, 11, 15}},
        {731, {130, 32, 6, 6}},   {475, {130, 47, 6, 6}},
        {474, {123, 39, 6, 6}},   {730, {138, 39, 6, 6}},
        {733, {186, 55, 6, 6}},   {477, {186, 70, 6, 6}},
        {476, {179, 62, 6, 6}},   {732, {194, 62, 6, 6}},
        {470, {165, 38, 14, 10}}};
    QTest::newRow("double") << QSize(1376, 452) << QRect(410, 22, 555, 407) << Places{
        {466, {425, 85, 63, 45}},   {467, {888, 85, 63, 45}},
        {471, {505, 144, 63, 63}},  {472, {727, 236, 63, 63}},
        {462, {818, 201, 35, 35}},  {463, {852, 167, 35, 35}},
        {464, {783, 167, 35, 35}},  {465, {818, 132, 35, 35}},
        {468, {619, 174, 24, 24}},  {469, {733, 174, 24, 24}},
        {473, {597, 219, 24, 24}},  {729, {597, 293, 24, 24}},
        {1241, {560, 256, 24, 24}}, {2265, {634, 256, 24, 24}},
        {222, {504, 22, 45, 63}},   {223, {827, 22, 45, 63}},
        {731, {524, 132, 24, 24}},  {475, {524, 195, 24, 24}},
        {474, {493, 163, 24, 24}},  {730, {556, 163, 24, 24}},
        {733, {746, 224, 24, 24}},  {477, {746, 287, 24, 24}},
        {476, {715, 255, 24, 24}},  {732, {778, 255, 24, 24}},
        {470, {660, 149, 56, 42}}};
    QTest::newRow("very wide") << QSize(2400, 226) << QRect(1061, 11, 278, 204) << Places{
        {466, {1068, 42, 31, 22}},  {467, {1301, 42, 31, 22}},
        {471, {1109, 72, 31, 31}},  {472, {1220, 118, 31, 31}},
        {462, {1265, 101, 17, 17}}, {463, {1282, 84, 17, 17}},
        {464, {1247, 84, 17, 17}},  {465, {1265, 66, 17, 17}},
        {468, {1166, 87, 12, 12}},  {469, {1222, 87, 12, 12}},
        {473, {1155, 110, 12, 12}}, {729, {1155, 146, 12, 12}},
        {1241, {1137, 128, 12, 12}}, {2265, {1173, 128, 12, 12}},
        {222, {1108, 11, 22, 31}},  {223, {1270, 11, 22, 31}},
        {731, {1118, 66, 12, 12}},  {475, {1118, 97, 12, 12}},
        {474, {1103, 81, 12, 12}},  {730, {1134, 81, 12, 12}},
        {733, {1229, 112, 12, 12}}, {477, {1229, 143, 12, 12}},
        {476, {1214, 127, 12, 12}}, {732, {1245, 127, 12, 12}},
        {470, {1186, 75, 28, 21}}};
    QTest::newRow("very tall") << QSize(400, 900) << QRect(0, 303, 400, 293) << Places{
        {466, {11, 348, 45, 32}},   {467, {344, 348, 45, 32}},
        {471, {69, 391, 45, 45}},   {472, {228, 457, 45, 45}},
        {462, {294, 432, 25, 25}},  {463, {318, 408, 25, 25}},
        {464, {269, 408, 25, 25}},  {465, {294, 383, 25, 25}},
        {468, {151, 413, 17, 17}},  {469, {232, 413, 17, 17}},
        {473, {135, 445, 17, 17}},  {729, {135, 498, 17, 17}},
        {1241, {108, 472, 17, 17}}, {2265, {161, 472, 17, 17}},
        {222, {68, 303, 32, 45}},   {223, {300, 303, 32, 45}},
        {731, {83, 383, 17, 17}},   {475, {83, 427, 17, 17}},
        {474, {61, 405, 17, 17}},   {730, {105, 405, 17, 17}},
        {733, {242, 449, 17, 17}},  {477, {242, 493, 17, 17}},
        {476, {220, 471, 17, 17}},  {732, {264, 471, 17, 17}},
        {470, {180, 395, 40, 30}}};
    // clang-format on
}

void tst_GameCtrlWid::placesFollowThePicture()
{
    QFETCH(const QSize, size);
    QFETCH(const QRect, picture);
    QFETCH(const Places, places);
    QWidget page;
    GameCtrlWid panel(&page);
    panel.setPadMode(false);
    page.show();
    panel.resize(size);
    QCOMPARE(panel.size(), size);
    comparePlaces(panel, group(panel), places);
    QCOMPARE(child<QLabel>(&panel, "m_backgroundLab")->geometry(), picture);
}

void tst_GameCtrlWid::padPlaces()
{
    GameCtrlWid panel;
    panel.setPadMode(true);
    panel.show();
    // clang-format off
    comparePlaces(panel, group(panel), Places{
        {466, {212, 42, 31, 22}},  {467, {445, 42, 31, 22}},
        {471, {253, 72, 31, 31}},  {472, {364, 118, 31, 31}},
        {462, {409, 101, 17, 17}}, {463, {426, 84, 17, 17}},
        {464, {391, 84, 17, 17}},  {465, {409, 66, 17, 17}},
        {468, {310, 87, 12, 12}},  {469, {366, 87, 12, 12}},
        {458, {299, 110, 12, 12}}, {459, {299, 146, 12, 12}},
        {460, {281, 128, 12, 12}}, {461, {317, 128, 12, 12}},
        {470, {330, 75, 28, 21}}});
    // clang-format on
}

void tst_GameCtrlWid::controlsLieApart_data()
{
    placesFollowThePicture_data();
}

void tst_GameCtrlWid::controlsLieApart()
{
    QFETCH(const QSize, size);
    QWidget page;
    GameCtrlWid panel(&page);
    panel.setPadMode(false);
    page.show();
    panel.resize(size);
    for (const Control &one : WholeController) {
        for (const Control &other : WholeController) {
            if (one.code >= other.code)
                continue;
            // A stick carries its four directions.
            if (Sticks.count(one.code) && Sticks.at(one.code).contains(other.code))
                continue;
            const QRegion first = shapeOf(group(panel)->button(one.code));
            const QRegion second = shapeOf(group(panel)->button(other.code));
            QVERIFY2(!first.intersects(second),
                     qPrintable(QLatin1String(one.name) + QLatin1String(" and ") +
                                QLatin1String(other.name)));
        }
    }
    // The directions are above their stick, whose middle stays free.
    for (const auto &[press, directions] : Sticks) {
        const QRect stick = group(panel)->button(press)->geometry();
        QCOMPARE(panel.childAt(stick.center()), group(panel)->button(press));
        for (const int code : directions) {
            const QPoint middle = group(panel)->button(code)->geometry().center();
            QCOMPARE(panel.childAt(middle), group(panel)->button(code));
        }
    }
}

void tst_GameCtrlWid::sheets()
{
    GameCtrlWid panel;
    panel.setPadMode(false);
    panel.show();
    const auto sheet = [&panel](int code) {
        return group(panel)->button(code)->styleSheet();
    };
    const auto image = [](const char *stem) {
        return QStringLiteral("QToolButton{background:transparent;border:none;"
                              "border-image:url(:/VantrixMap/GameCtrl/handle/") +
               QLatin1String(stem) +
               QStringLiteral(");}:hover{background:rgba(255,255,255,50);}"
                              ":checked{background:#ff00aeee}");
    };
    QCOMPARE(sheet(470), image("logo"));
    // Bumpers are 31 by 22, triggers 22 by 31.
    const QString left = QStringLiteral("QToolButton{border-top-left-radius:11px;}");
    const QString right = QStringLiteral("QToolButton{border-top-right-radius:11px;}");
    QCOMPARE(sheet(466), image("lb") + left);
    QCOMPARE(sheet(222), image("lt") + left);
    QCOMPARE(sheet(467), image("rb") + right);
    QCOMPARE(sheet(223), image("rt") + right);
    QCOMPARE(sheet(471), image("l_r") + QStringLiteral("QToolButton{border-radius:14px;}"));
    QCOMPARE(sheet(472), image("l_r") + QStringLiteral("QToolButton{border-radius:14px;}"));
    QCOMPARE(sheet(462), image("a") + QStringLiteral("QToolButton{border-radius:7px;}"));
    QCOMPARE(sheet(469), image("start") + QStringLiteral("QToolButton{border-radius:5px;}"));
    for (const int code : {473, 729, 1241, 2265, 731, 732}) {
        QCOMPARE(sheet(code),
                 QStringLiteral("QToolButton{background:white;border:none;border-radius:5px;"
                                "qproperty-iconSize:6px;}"
                                ":hover{border:2px solid rgba(255,255,255,50);}"
                                ":checked{border:2px solid #ff00aeee}"));
        QCOMPARE(group(panel)->button(code)->iconSize(), QSize(6, 6));
    }
}

void tst_GameCtrlWid::sheetsFollowTheSize()
{
    QWidget page;
    GameCtrlWid panel(&page);
    panel.setPadMode(false);
    page.show();
    panel.resize(1376, 452);
    QVERIFY(group(panel)->button(473)->styleSheet().contains(
        QStringLiteral("border-radius:11px;qproperty-iconSize:12px;")));
    QVERIFY(group(panel)->button(466)->styleSheet().endsWith(
        QStringLiteral("QToolButton{border-top-left-radius:22px;}")));
    QCOMPARE(group(panel)->button(471)->font().pixelSize(), 25);
    panel.resize(344, 113);
    QVERIFY(group(panel)->button(473)->styleSheet().contains(
        QStringLiteral("border-radius:2px;qproperty-iconSize:3px;")));
    QCOMPARE(group(panel)->button(471)->font().pixelSize(), 6);
}

void tst_GameCtrlWid::arrowsPointTheirWay()
{
    // A triangle weighs more on the side away from its tip.
    const std::map<int, QPoint> heavySides = {{473, {0, 1}},   {729, {0, -1}}, {1241, {1, 0}},
                                              {2265, {-1, 0}}, {731, {0, 1}},  {475, {0, -1}},
                                              {474, {1, 0}},   {730, {-1, 0}}, {733, {0, 1}},
                                              {477, {0, -1}},  {476, {1, 0}},  {732, {-1, 0}}};
    GameCtrlWid panel;
    panel.setPadMode(false);
    for (const auto &[code, side] : heavySides)
        QCOMPARE(heavySide(group(panel)->button(code)), side);
    panel.setPadMode(true);
    QCOMPARE(heavySide(group(panel)->button(458)), QPoint(0, 1));
    QCOMPARE(heavySide(group(panel)->button(459)), QPoint(0, -1));
    QCOMPARE(heavySide(group(panel)->button(460)), QPoint(1, 0));
    QCOMPARE(heavySide(group(panel)->button(461)), QPoint(-1, 0));
}

void tst_GameCtrlWid::buildsAnew()
{
    GameCtrlWid panel;
    panel.show();
    panel.setPadMode(false);
    panel.setPadMode(true);
    QCOMPARE(panel.findChildren<QToolButton *>().size(), 15);
    QVERIFY(group(panel)->button(458)->isVisible());
    QSignalSpy spy(&panel, &GameCtrlWid::sigGameChanged);
    clickOn(group(panel)->button(458));
    QCOMPARE(spy.count(), 1);
}

void tst_GameCtrlWid::noHeightIsHarmless()
{
    QWidget page;
    GameCtrlWid panel(&page);
    panel.setPadMode(false);
    page.show();
    for (const QSize &size : {QSize(688, 0), QSize(0, 226), QSize(0, 0)}) {
        panel.resize(size);
        const auto buttons = group(panel)->buttons();
        for (const QAbstractButton *button : buttons)
            QCOMPARE(button->size(), QSize(0, 0));
        QVERIFY(group(panel)->button(473)->styleSheet().contains(
            QStringLiteral("border-radius:0px;qproperty-iconSize:0px;")));
        panel.grab();
    }
    panel.resize(688, 226);
    QCOMPARE(group(panel)->button(466)->geometry(), QRect(212, 42, 31, 22));
}

void tst_GameCtrlWid::shrinksInsideALayout()
{
    QWidget page;
    auto *const layout = new QVBoxLayout(&page);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *const panel = new GameCtrlWid(&page);
    panel->setPadMode(false);
    layout->addWidget(panel);
    page.show();
    for (const QSize &size : {QSize(1376, 452), QSize(344, 113), QSize(100, 40)}) {
        page.resize(size);
        QCoreApplication::processEvents();
        QCOMPARE(panel->size(), size);
    }
}

VANTRIX_TEST_MAIN(tst_GameCtrlWid)
#include "tst_GameCtrlWid.moc"
