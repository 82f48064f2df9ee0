#include "core/AssignWid.h"

#include "core/BoardFixture.h"
#include "interfaces/ButtonGroupEx.h"
#include "support/TestMain.h"

#include <QBitmap>
#include <QGridLayout>
#include <QLabel>

#include <memory>

/// Form, geometry and selection of the board.
class tst_AssignWid : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { registerRecordTypes(); }
    void init() { m = std::make_unique<BoardFixture>(); }
    void cleanup() { m.reset(); }

    void form();
    void geometry_data();
    void geometry();
    void keysInTheirRows();
    void keysLieOnThePicture_data();
    void keysLieOnThePicture();
    void upperKeys_data();
    void upperKeys();
    void clickSelectsAndAgainCancels();
    void announcement_data();
    void announcement();
    void cutNamesAreAnnouncedWhole();
    void applyInputAnnouncesTheCheckedKey();
    void applyInputWithoutSelection();
    void dropSelection();
    void refusedAssignmentUnchecks();
    void maskOfTheOutline();
    void maskFollowsThePicture();
    void maskWithoutWidget();
    void maskForAForeignWindow();
    void tinyAndHugeBoards();

private:
    std::unique_ptr<BoardFixture> m;
};

void tst_AssignWid::form()
{
    QCOMPARE(m->board.layout()->objectName(), QString("verticalLayout_2"));
    QCOMPARE(m->board.layout()->spacing(), 520 * 16 / 260);
    QCOMPARE(child<QWidget>(&m->board, "m_wheelWid")->styleSheet(), QString("image:none;"));
    QCOMPARE(child<QWidget>(&m->board, "m_keyWid")->styleSheet(), QString("image:none;"));
    const auto *const group = m->board.findChild<ButtonGroupEx *>();
    QCOMPARE(group->buttons().size(), 28);
    for (int index = 0; index < 28; ++index)
        QCOMPARE(group->button(index), m->key(index));
    QVERIFY(m->board.testAttribute(Qt::WA_StyledBackground));
}

void tst_AssignWid::geometry_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QRect>("picture");
    QTest::addColumn<QSize>("square");
    QTest::addColumn<QSize>("wide");
    QTest::addColumn<QSize>("upper");
    QTest::addColumn<QList<int>>("margins");
    QTest::addColumn<int>("spacing");
    QTest::addColumn<QSize>("wheel");
    QTest::addColumn<int>("side");
    // The picture is 425 by 740; simple mode cuts 185 off its top.
    QTest::newRow("advanced, as drawn")
        << QSize(425, 740) << 1 << QRect(0, 0, 425, 740) << QSize(68, 68) << QSize(138, 68)
        << QSize(147, 34) << QList<int>{36, 207, 36, 56} << 45 << QSize(354, 82) << 354;
    QTest::newRow("simple, as drawn")
        << QSize(425, 555) << 0 << QRect(0, 0, 425, 555) << QSize(68, 68) << QSize(138, 68)
        << QSize(147, 34) << QList<int>{36, 17, 36, 42} << 34 << QSize(354, 78) << 354;
    QTest::newRow("simple, wider than the picture")
        << QSize(1000, 555) << 0 << QRect(287, 0, 425, 555) << QSize(68, 68) << QSize(138, 68)
        << QSize(147, 34) << QList<int>{323, 17, 36, 42} << 34 << QSize(354, 78) << 354;
    QTest::newRow("simple, half") << QSize(212, 277) << 0 << QRect(0, 0, 212, 277) << QSize(33, 33)
                                  << QSize(67, 33) << QSize(73, 16) << QList<int>{18, 8, 18, 21}
                                  << 17 << QSize(176, 37) << 176;
}

void tst_AssignWid::geometry()
{
    QFETCH(QSize, size);
    QFETCH(int, mode);
    QFETCH(QRect, picture);
    QFETCH(QSize, square);
    QFETCH(QSize, wide);
    QFETCH(QSize, upper);
    QFETCH(QList<int>, margins);
    QFETCH(int, spacing);
    QFETCH(QSize, wheel);
    QFETCH(int, side);
    m->board.resize(size);
    m->board.show();
    m->board.layoutForMode(mode);
    QCOMPARE(child<QLabel>(&m->board, "m_picture")->geometry(), picture);
    for (int index = 0; index <= 22; ++index)
        QCOMPARE(m->key(index)->size(), square);
    QCOMPARE(m->key(23)->size(), wide);
    for (int index = 24; index <= 27; ++index)
        QCOMPARE(m->key(index)->size(), upper);
    const QMargins given = m->board.layout()->contentsMargins();
    QCOMPARE(QList<int>({given.left(), given.top(), given.right(), given.bottom()}), margins);
    QCOMPARE(m->board.layout()->spacing(), spacing);
    QCOMPARE(child<QWidget>(&m->board, "m_wheelWid")->size(), wheel);
    QCOMPARE(child<QWidget>(&m->board, "m_keyWid")->size(), QSize(side, side));
}

void tst_AssignWid::keysInTheirRows()
{
    m->board.resize(425, 740);
    m->board.layoutForMode(1);
    m->board.show();
    m->board.layout()->activate();
    const auto place = [this](int index) {
        return m->key(index)->mapTo(&m->board, m->key(index)->rect().center());
    };
    for (int index = 0; index < 23; ++index) {
        if (index % 5 != 4)
            QVERIFY(place(index).x() < place(index + 1).x());
        if (index + 5 < 23)
            QVERIFY(place(index).y() < place(index + 5).y());
    }
    QVERIFY(place(22).x() < place(23).x());
    QCOMPARE(place(27).y(), place(24).y());
    QCOMPARE(place(26).y(), place(25).y());
    QVERIFY(place(27).x() < place(24).x());
    QVERIFY(place(27).y() < place(26).y());
    QVERIFY(place(26).y() < place(0).y());
}

void tst_AssignWid::keysLieOnThePicture_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QPoint>("wheel");
    QTest::addColumn<QPoint>("keys");
    QTest::newRow("as drawn") << QSize(425, 740) << 1 << QPoint(36, 207) << QPoint(36, 334);
    // The picture stands at the top of a board that is taller, and so do the keys.
    QTest::newRow("taller board") << QSize(425, 1000) << 1 << QPoint(36, 207) << QPoint(36, 334);
    QTest::newRow("wider board") << QSize(625, 740) << 1 << QPoint(136, 207) << QPoint(136, 334);
    // Margins and spacing leave room in simple mode, and the layout spreads it evenly.
    QTest::newRow("simple") << QSize(425, 555) << 0 << QPoint(36, 27) << QPoint(36, 149);
    QTest::newRow("simple, taller") << QSize(425, 900) << 0 << QPoint(36, 27) << QPoint(36, 149);
}

void tst_AssignWid::keysLieOnThePicture()
{
    QFETCH(QSize, size);
    QFETCH(int, mode);
    QFETCH(QPoint, wheel);
    QFETCH(QPoint, keys);
    m->board.resize(size);
    m->board.layoutForMode(mode);
    m->board.show();
    m->board.layout()->activate();
    QCOMPARE(child<QWidget>(&m->board, "m_wheelWid")->pos(), wheel);
    QCOMPARE(child<QWidget>(&m->board, "m_keyWid")->pos(), keys);
    const auto *const upper = child<QGridLayout>(&m->board, "gridLayout_2");
    QCOMPARE(upper->horizontalSpacing(), 48);
    QCOMPARE(upper->verticalSpacing(), mode == 1 ? 14 : 10);
    const auto *const main = child<QGridLayout>(&m->board, "gridLayout_3");
    QCOMPARE(main->horizontalSpacing(), 2);
    QCOMPARE(main->verticalSpacing(), 2);
}

void tst_AssignWid::upperKeys_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("input");
    QTest::addColumn<bool>("isVisible");
    for (int input = 0; input <= 10; ++input) {
        QTest::addRow("simple %d", input) << 0 << input << (input != 4 && input != 6);
        QTest::addRow("advanced %d", input) << 1 << input << true;
    }
}

void tst_AssignWid::upperKeys()
{
    QFETCH(int, mode);
    QFETCH(int, input);
    QFETCH(bool, isVisible);
    m->profile().mode = mode;
    m->profile().input = input;
    m->board.layoutForMode(mode);
    for (int index = 24; index < 28; ++index)
        QCOMPARE(!m->key(index)->isHidden(), isVisible);
    for (int other : {0, input}) {
        m->profile().input = other;
        m->board.applyInput(other);
    }
    for (int index = 24; index < 28; ++index)
        QCOMPARE(!m->key(index)->isHidden(), isVisible);
    QVERIFY(!m->key(23)->isHidden());
}

void tst_AssignWid::clickSelectsAndAgainCancels()
{
    QStringList told;
    connect(&m->board, &AssignWid::sigResetCurrKey, this, [&] { told << "reset"; });
    connect(&m->board, &AssignWid::sigCancelKeySelection, this, [&] { told << "cancel"; });
    connect(&m->board, &AssignWid::sigKeySelectionChanged, this,
            [&](int index) { told << QString("changed %1").arg(index); });
    connect(&m->board, &AssignWid::sigVantrixKeySelected, this, [&] { told << "key"; });
    m->key(7)->click();
    QCOMPARE(told, QStringList({"reset", "changed 7", "key"}));
    QCOMPARE(m->calls(), QStringList({"setCurrentKey 7", "getAppAssign 7", "getHotKeyAssign 7"}));
    m->key(9)->click();
    QCOMPARE(m->profile().currentKey, 9);
    QVERIFY(!m->key(7)->isChecked());
    told.clear();
    m->store.clearLog();
    m->key(9)->click();
    QCOMPARE(told, QStringList({"reset", "cancel"}));
    QCOMPARE(m->calls(), QStringList({"clearCurrentKey"}));
    QVERIFY(!m->key(9)->isChecked());
}

void tst_AssignWid::announcement_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("plain") << 0 << QStringList{"key"};
    QTest::newRow("application") << 1 << QStringList{"key", "app 1 4"};
    QTest::newRow("application of type -1") << 2 << QStringList{"key", "macro "};
    QTest::newRow("hot key") << 3 << QStringList{"key", "hotkey Save"};
    QTest::newRow("dual") << 4 << QStringList{"key", "dual 0 1 60", "adv 60"};
    QTest::newRow("dual without first action") << 5 << QStringList{"key"};
    QTest::newRow("macro") << 6 << QStringList{"key", "macro M2"};
}

void tst_AssignWid::announcement()
{
    QFETCH(int, kind);
    QFETCH(QStringList, expected);
    auto &profile = m->profile();
    if (kind == 1)
        profile.apps[2] = {1, 4, {}};
    else if (kind == 2)
        profile.apps[2] = {-1, 4, {}};
    else if (kind == 3)
        profile.hotKeys[2] = {0, "CTRL+S", "Save"};
    else if (kind == 4)
        profile.keys[2] = dualKey(4, 481, 0, 60);
    else if (kind == 5)
        profile.keys[2] = dualKey(0, 481, 0, 60);
    m->board.showProfile(7, 3);
    if (kind == 6)
        m->board.slotAssignedKey("M2", "two", {{2, 1}});

    QStringList told;
    connect(&m->board, &AssignWid::sigVantrixKeySelected, this, [&] { told << "key"; });
    connect(&m->board, &AssignWid::sigApplicationSelected, this,
            [&](int type, int id) { told << QString("app %1 %2").arg(type).arg(id); });
    connect(&m->board, &AssignWid::sigApplicationAdvSelected, this,
            [&](const QString &name) { told << "hotkey " + name; });
    connect(&m->board, &AssignWid::sigDualActionSelected, this,
            [&](int a, int b, vantrix_presso_digital digital) {
                told << QString("dual %1 %2 %3").arg(a).arg(b).arg(int(digital.depth));
            });
    connect(&m->board, &AssignWid::sigDualActionSelectedToAdv, this, [&](vantrix_key_mapping key) {
        told << QString("adv %1").arg(int(key.digital.depth));
    });
    connect(&m->board, &AssignWid::sigMacroSelected, this,
            [&](const QString &text) { told << "macro " + text; });
    m->key(2)->click();
    QCOMPARE(told, expected);
}

void tst_AssignWid::cutNamesAreAnnouncedWhole()
{
    const QString name = "Save for the web and for devices";
    m->profile().hotKeys[2] = {0, "CTRL+S", name};
    m->board.showProfile(7, 3);
    m->board.slotAssignedKey("M123456789", "a macro", {{3, 0}});
    m->board.resize(120, 200);
    m->board.layoutForMode(1);
    QVERIFY(m->key(2)->text() != name);
    QVERIFY(m->key(3)->text() != QString("M123456789"));
    QSignalSpy hotKey(&m->board, &AssignWid::sigApplicationAdvSelected);
    m->key(2)->click();
    QCOMPARE(hotKey.at(0).at(0).toString(), name);
    QSignalSpy macro(&m->board, &AssignWid::sigMacroSelected);
    m->key(3)->click();
    QCOMPARE(macro.at(0).at(0).toString(), QString("M123456789"));
    m->board.slotRenameMacro("M123456789", "another name");
    QCOMPARE(m->key(3)->toolTip(), QString("another name"));
}

void tst_AssignWid::applyInputAnnouncesTheCheckedKey()
{
    m->select(4);
    QSignalSpy reset(&m->board, &AssignWid::sigResetCurrKey);
    QSignalSpy key(&m->board, &AssignWid::sigVantrixKeySelected);
    m->board.applyInput(1);
    QCOMPARE(reset.count(), 1);
    QCOMPARE(key.count(), 1);
    QCOMPARE(m->writes(), QStringList());
}

void tst_AssignWid::applyInputWithoutSelection()
{
    QSignalSpy reset(&m->board, &AssignWid::sigResetCurrKey);
    QSignalSpy key(&m->board, &AssignWid::sigVantrixKeySelected);
    m->board.applyInput(1);
    QCOMPARE(reset.count(), 1);
    QCOMPARE(key.count(), 0);
}

void tst_AssignWid::dropSelection()
{
    m->select(4);
    QSignalSpy reset(&m->board, &AssignWid::sigResetCurrKey);
    m->board.dropSelection();
    QVERIFY(!m->key(4)->isChecked());
    QCOMPARE(reset.count(), 1);
    QCOMPARE(m->calls(), QStringList({"clearCurrentKey"}));
}

void tst_AssignWid::refusedAssignmentUnchecks()
{
    m->select(4);
    for (const int none : {28, 255, -1, 0x1001C}) {
        m->key(4)->setChecked(true);
        m->profile().currentKey = none;
        m->store.clearLog();
        m->board.slotVantrixKeyAssigned(plainKey(5));
        QVERIFY(!m->key(4)->isChecked());
        QCOMPARE(m->calls(), QStringList({"getCurrentKey"}));
    }
    // The selected key stands in the low 16 bits.
    m->profile().currentKey = 0x30004;
    m->board.slotVantrixKeyAssigned(plainKey(5));
    QCOMPARE(m->stored(4), plainKey(5));
}

void tst_AssignWid::maskOfTheOutline()
{
    QWidget window;
    window.resize(600, 900);
    m->board.setParent(&window);
    m->board.setGeometry(50, 20, 425, 740);
    m->board.layoutForMode(1);
    window.show();
    const QRegion region = m->board.keyBoardRegion(&window);
    QVERIFY(!region.isEmpty());
    const QRect bounds = region.boundingRect();
    QCOMPARE(bounds.left(), 50);
    QCOMPARE(bounds.right(), 50 + 425 - 1);
    // The tallest rectangle, the block below the seam, gives up a column on its right.
    QVERIFY(region.contains(QPoint(50 + 424, 20 + 100)));
    QVERIFY(region.contains(QPoint(50 + 423, 20 + 370)));
    QVERIFY(!region.contains(QPoint(50 + 424, 20 + 370)));
    QVERIFY(region.contains(QPoint(50 + 212, 20 + 370)));
    // It ends fifteen pixels early, and nothing lies below it.
    QVERIFY(bounds.bottom() < 20 + 740 - 15);
    QVERIFY(!region.contains(QPoint(50, 20)));
    m->board.setParent(nullptr);
}

void tst_AssignWid::maskFollowsThePicture()
{
    m->board.resize(425, 740);
    m->board.layoutForMode(1);
    const auto *const picture = child<QLabel>(&m->board, "m_picture");
    const QRegion outline(picture->pixmap(Qt::ReturnByValue).mask());
    const std::vector<QRect> drawn(outline.begin(), outline.end());
    const QRegion region = m->board.keyBoardRegion(picture);
    const std::vector<QRect> rects(region.begin(), region.end());
    std::size_t tallest = 0;
    for (std::size_t i = 0; i < drawn.size(); ++i) {
        if (drawn[i].height() >= drawn[tallest].height())
            tallest = i;
    }
    QVERIFY(tallest > 0);
    QCOMPARE(rects.size(), tallest + 1);
    QCOMPARE(rects.front(), drawn.front().adjusted(6, 0, -5, 0));
    for (std::size_t i = 1; i < tallest; ++i)
        QCOMPARE(rects[i], drawn[i]);
    QCOMPARE(rects.back(), drawn[tallest].adjusted(0, 0, -1, -15));
}

void tst_AssignWid::maskWithoutWidget()
{
    QVERIFY(m->board.keyBoardRegion(nullptr).isEmpty());
}

void tst_AssignWid::maskForAForeignWindow()
{
    QWidget other;
    other.setGeometry(100, 50, 500, 800);
    other.show();
    m->board.setGeometry(150, 90, 425, 740);
    m->board.layoutForMode(1);
    m->board.show();
    QCOMPARE(m->board.keyBoardRegion(&other).boundingRect().left(), 50);
    // The outline leaves its topmost row to the rounded corners.
    QVERIFY(m->board.keyBoardRegion(&other).boundingRect().top() >= 40);
    QVERIFY(m->board.keyBoardRegion(&other).boundingRect().top() <= 42);
}

void tst_AssignWid::tinyAndHugeBoards()
{
    for (const QSize size :
         {QSize(0, 0), QSize(1, 1), QSize(1, 500), QSize(3000, 2), QSize(3000, 3000)}) {
        m->board.resize(size);
        m->board.layoutForMode(0);
        m->board.layoutForMode(1);
        m->board.keyBoardRegion(&m->board);
        QCOMPARE(m->board.size(), size);
    }
}

VANTRIX_TEST_MAIN(tst_AssignWid)
#include "tst_AssignWid.moc"
