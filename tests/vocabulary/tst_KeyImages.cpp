#include "vocabulary/KeyImages.h"

#include "support/TestMain.h"

#include <QPixmap>

namespace {

const std::map<ushort, QString> &imagesNamed(const QString &name)
{
    if (name == QLatin1String("MediaImages"))
        return MediaImages();
    return name == QLatin1String("GameHandleImages") ? GameHandleImages() : GameAssignImages();
}

} // namespace

/// The pictures of device codes, row by row; the resource tree holds each of them.
class tst_KeyImages : public QObject
{
    Q_OBJECT

private slots:
    void image_data();
    void image();
    void noOtherRows();
    void codesWithoutAPicture();
};

void tst_KeyImages::image_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("path");
    const auto row = [](const char *table, int code, const char *path) {
        QTest::addRow("%s %d", table, code) << table << code << path;
    };
    // clang-format off
    row("MediaImages", 240, ":/VantrixMap/Media/play_pause");
    row("MediaImages", 241, ":/VantrixMap/Media/stop");
    row("MediaImages", 242, ":/VantrixMap/Media/pre_track");
    row("MediaImages", 243, ":/VantrixMap/Media/next_track");
    row("MediaImages", 244, ":/VantrixMap/Media/mute");
    row("MediaImages", 245, ":/VantrixMap/Media/vol_dec");
    row("MediaImages", 246, ":/VantrixMap/Media/vol_inc");
    row("GameHandleImages", 462, ":/VantrixMap/GameCtrl/handle/a");
    row("GameHandleImages", 463, ":/VantrixMap/GameCtrl/handle/b");
    row("GameHandleImages", 464, ":/VantrixMap/GameCtrl/handle/x");
    row("GameHandleImages", 465, ":/VantrixMap/GameCtrl/handle/y");
    row("GameHandleImages", 466, ":/VantrixMap/GameCtrl/handle/lb");
    row("GameHandleImages", 467, ":/VantrixMap/GameCtrl/handle/rb");
    row("GameHandleImages", 468, ":/VantrixMap/GameCtrl/handle/back");
    row("GameHandleImages", 469, ":/VantrixMap/GameCtrl/handle/start");
    row("GameHandleImages", 470, ":/VantrixMap/GameCtrl/handle/logo");
    row("GameHandleImages", 471, ":/VantrixMap/GameCtrl/handle/l_r");
    row("GameHandleImages", 472, ":/VantrixMap/GameCtrl/handle/l_r");
    row("GameHandleImages", 222, ":/VantrixMap/GameCtrl/handle/lt");
    row("GameHandleImages", 223, ":/VantrixMap/GameCtrl/handle/rt");
    row("GameAssignImages", 454, ":/VantrixMap/GameCtrl/assign/d_up_right");
    row("GameAssignImages", 2521, ":/VantrixMap/GameCtrl/assign/d_up_right");
    row("GameAssignImages", 455, ":/VantrixMap/GameCtrl/assign/d_down_right");
    row("GameAssignImages", 2777, ":/VantrixMap/GameCtrl/assign/d_down_right");
    row("GameAssignImages", 456, ":/VantrixMap/GameCtrl/assign/d_down_left");
    row("GameAssignImages", 1753, ":/VantrixMap/GameCtrl/assign/d_down_left");
    row("GameAssignImages", 457, ":/VantrixMap/GameCtrl/assign/d_up_left");
    row("GameAssignImages", 1497, ":/VantrixMap/GameCtrl/assign/d_up_left");
    row("GameAssignImages", 458, ":/VantrixMap/GameCtrl/assign/d_up");
    row("GameAssignImages", 473, ":/VantrixMap/GameCtrl/assign/d_up");
    row("GameAssignImages", 459, ":/VantrixMap/GameCtrl/assign/d_down");
    row("GameAssignImages", 729, ":/VantrixMap/GameCtrl/assign/d_down");
    row("GameAssignImages", 460, ":/VantrixMap/GameCtrl/assign/d_left");
    row("GameAssignImages", 1241, ":/VantrixMap/GameCtrl/assign/d_left");
    row("GameAssignImages", 461, ":/VantrixMap/GameCtrl/assign/d_right");
    row("GameAssignImages", 2265, ":/VantrixMap/GameCtrl/assign/d_right");
    row("GameAssignImages", 462, ":/VantrixMap/GameCtrl/assign/a");
    row("GameAssignImages", 463, ":/VantrixMap/GameCtrl/assign/b");
    row("GameAssignImages", 464, ":/VantrixMap/GameCtrl/assign/x");
    row("GameAssignImages", 465, ":/VantrixMap/GameCtrl/assign/y");
    row("GameAssignImages", 466, ":/VantrixMap/GameCtrl/assign/lb");
    row("GameAssignImages", 467, ":/VantrixMap/GameCtrl/assign/rb");
    row("GameAssignImages", 468, ":/VantrixMap/GameCtrl/assign/back");
    row("GameAssignImages", 469, ":/VantrixMap/GameCtrl/assign/start");
    row("GameAssignImages", 470, ":/VantrixMap/GameCtrl/assign/logo");
    row("GameAssignImages", 471, ":/VantrixMap/GameCtrl/assign/ls");
    row("GameAssignImages", 472, ":/VantrixMap/GameCtrl/assign/rs");
    row("GameAssignImages", 731, ":/VantrixMap/GameCtrl/assign/l_up");
    row("GameAssignImages", 475, ":/VantrixMap/GameCtrl/assign/l_down");
    row("GameAssignImages", 474, ":/VantrixMap/GameCtrl/assign/l_left");
    row("GameAssignImages", 730, ":/VantrixMap/GameCtrl/assign/l_right");
    row("GameAssignImages", 733, ":/VantrixMap/GameCtrl/assign/r_up");
    row("GameAssignImages", 477, ":/VantrixMap/GameCtrl/assign/r_down");
    row("GameAssignImages", 476, ":/VantrixMap/GameCtrl/assign/r_left");
    row("GameAssignImages", 732, ":/VantrixMap/GameCtrl/assign/r_right");
    row("GameAssignImages", 222, ":/VantrixMap/GameCtrl/assign/lt");
    row("GameAssignImages", 223, ":/VantrixMap/GameCtrl/assign/rt");
    // clang-format on
}

void tst_KeyImages::image()
{
    QFETCH(QString, table);
    QFETCH(int, code);
    QFETCH(QString, path);
    const auto &images = imagesNamed(table);
    QVERIFY(images.count(ushort(code)));
    QCOMPARE(images.at(ushort(code)), path);
    QCOMPARE(imageOf(images, ushort(code)), path);
    QVERIFY(!QPixmap(path).isNull());
}

void tst_KeyImages::noOtherRows()
{
    QCOMPARE(MediaImages().size(), std::size_t(7));
    QCOMPARE(GameHandleImages().size(), std::size_t(13));
    QCOMPARE(GameAssignImages().size(), std::size_t(37));
}

void tst_KeyImages::codesWithoutAPicture()
{
    QCOMPARE(imageOf(MediaImages(), 239), QString());
    QCOMPARE(imageOf(MediaImages(), 247), QString());
    QCOMPARE(imageOf(GameAssignImages(), 240), QString());
    QCOMPARE(imageOf(GameHandleImages(), 454), QString());
    QCOMPARE(MediaImages().count(239), std::size_t(0));
}

VANTRIX_TEST_MAIN(tst_KeyImages)
#include "tst_KeyImages.moc"
