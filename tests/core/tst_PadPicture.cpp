#include "core/PadPicture.h"

#include "core/records.h"
#include "support/TestMain.h"

#include <QBitmap>

class tst_PadPicture : public QObject
{
    Q_OBJECT

private slots:
    void parts_data();
    void parts();
    void trimsTheOutline();
    void outlineFollowsItsPlace();
    void noOutline();
};

void tst_PadPicture::parts_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QSize>("room");
    QTest::addColumn<QSize>("size");
    // 425 by 740 as a whole, 425 by 555 without the upper quarter.
    QTest::newRow("advanced, as drawn") << 1 << QSize(425, 740) << QSize(425, 740);
    QTest::newRow("simple, as drawn") << 0 << QSize(425, 555) << QSize(425, 555);
    QTest::newRow("wide room") << 1 << QSize(2000, 370) << QSize(212, 370);
    QTest::newRow("high room") << 0 << QSize(850, 2000) << QSize(850, 1110);
    QTest::newRow("no room") << 0 << QSize(0, 0) << QSize(0, 0);
}

void tst_PadPicture::parts()
{
    QFETCH(int, mode);
    QFETCH(QSize, room);
    QFETCH(QSize, size);
    PadPicture picture;
    QCOMPARE(picture.showPart(mode, room), size);
    QCOMPARE(picture.pixmap(Qt::ReturnByValue).size(), size);
}

void tst_PadPicture::trimsTheOutline()
{
    PadPicture picture;
    picture.resize(picture.showPart(Mode::Advanced, {850, 1480}));
    const QRegion outline(picture.pixmap(Qt::ReturnByValue).mask());
    const std::vector<QRect> drawn(outline.begin(), outline.end());
    const QRegion region = picture.outlineIn(&picture);
    const std::vector<QRect> rects(region.begin(), region.end());
    QVERIFY(rects.size() > 2);
    QCOMPARE(rects.front(), drawn.front().adjusted(6, 0, -5, 0));
    QCOMPARE(rects.back(), drawn.at(rects.size() - 1).adjusted(0, 0, -1, -15));
    // The ground below the pad is fifteen pixels high at any size, so the outline ends with the
    // pad.
    QCOMPARE(region.boundingRect().bottom() + 1, 1480 - 50);
}

void tst_PadPicture::outlineFollowsItsPlace()
{
    QWidget window;
    window.resize(600, 900);
    PadPicture picture(&window);
    picture.move(50, 20);
    picture.resize(picture.showPart(Mode::Advanced, {425, 740}));
    QCOMPARE(picture.outlineIn(&window), picture.outlineIn(&picture).translated(50, 20));
    QWidget elsewhere;
    window.move(100, 100);
    elsewhere.move(130, 90);
    window.show();
    elsewhere.show();
    QCOMPARE(picture.outlineIn(&elsewhere), picture.outlineIn(&picture).translated(20, 30));
}

void tst_PadPicture::noOutline()
{
    PadPicture picture;
    QVERIFY(picture.outlineIn(&picture).isEmpty());
    picture.showPart(Mode::Simple, {425, 555});
    QVERIFY(picture.outlineIn(nullptr).isEmpty());
    picture.showPart(Mode::Simple, {0, 0});
    QVERIFY(picture.outlineIn(&picture).isEmpty());
}

VANTRIX_TEST_MAIN(tst_PadPicture)
#include "tst_PadPicture.moc"
