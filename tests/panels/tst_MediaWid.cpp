#include "panels/MediaWid.h"

#include "panels/FunctionPanel.h"
#include "support/TestMain.h"

#include <QBoxLayout>
#include <QPushButton>

class tst_MediaWid : public QObject
{
    Q_OBJECT

private slots:
    void listsItsFunctions() { m_common.listsItsFunctions(); }
    void clickSpaceAndSecondClick() { m_common.clickSpaceAndSecondClick(); }
    void showsASelectedKey() { m_common.showsASelectedKey(); }
    void form();
    void keysShowTheirPictures();
    void keysStandInARow_data();
    void keysStandInARow();

private:
    FunctionPanelTest<MediaWid, decltype(&MediaWid::sigMediaChanged)> m_common{
        &MediaWid::sigMediaChanged,
        {{240, QStringLiteral("PLAY/PAUSE")},
         {241, QStringLiteral("STOP")},
         {242, QStringLiteral("PREVIOUS TRACK")},
         {243, QStringLiteral("NEXT TRACK")},
         {246, QStringLiteral("VOLUME UP")},
         {245, QStringLiteral("VOLUME DOWN")},
         {244, QStringLiteral("VOLUME MUTE/UNMUTE")}}};
};

void tst_MediaWid::form()
{
    const MediaWid panel;
    QCOMPARE(panel.size(), QSize(766, 357));
    QCOMPARE(child<QLabel>(&panel, "label")->text(), QStringLiteral("MULTIMEDIA KEYS"));
    QCOMPARE(child<QWidget>(&panel, "widget")->styleSheet(),
             QStringLiteral("background:rgb(101,103,108);"));
    QCOMPARE(child<QBoxLayout>(&panel, "m_keyLayout")->spacing(), 3);
    const QAbstractButton *const key = m_common.group(panel)->button(245);
    QCOMPARE(key->styleSheet(),
             QStringLiteral("QPushButton{background:transparent;border:1px solid white;"
                            "min-height:20px;qproperty-icon:url(:/VantrixMap/Media/vol_dec);"
                            "qproperty-iconSize:30px 20px;}"
                            ":hover{background:rgba(255,255,255,50);}"
                            ":checked{background:#ff0054a6;border:none;}"));
    QCOMPARE(key->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(key->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
}

void tst_MediaWid::keysShowTheirPictures()
{
    MediaWid panel;
    panel.show();
    QList<QImage> pictures;
    const auto keys = m_common.group(panel)->buttons();
    for (const QAbstractButton *key : keys) {
        QVERIFY(key->text().isEmpty());
        QCOMPARE(key->iconSize(), QSize(30, 20));
        const QImage picture = key->icon().pixmap(30, 20).toImage();
        QVERIFY(!picture.isNull());
        QVERIFY(!pictures.contains(picture));
        pictures << picture;
    }
}

void tst_MediaWid::keysStandInARow_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("design") << QSize(766, 357);
    QTest::newRow("half") << QSize(383, 178);
    QTest::newRow("double") << QSize(1532, 714);
    QTest::newRow("very wide") << QSize(2400, 120);
    QTest::newRow("very tall") << QSize(330, 1200);
}

void tst_MediaWid::keysStandInARow()
{
    QFETCH(const QSize, size);
    QWidget page;
    MediaWid panel(&page);
    page.show();
    panel.resize(size);
    QCoreApplication::processEvents();
    QCOMPARE(panel.size(), size);
    compareButtonsLieApart(panel);
    const auto keys = m_common.group(panel)->buttons();
    for (int i = 1; i < keys.size(); ++i) {
        QCOMPARE(keys[i]->y(), keys[0]->y());
        QCOMPARE(keys[i]->height(), keys[0]->height());
        QVERIFY(qAbs(keys[i]->width() - keys[0]->width()) <= 1);
        QCOMPARE(keys[i]->x(), keys[i - 1]->x() + keys[i - 1]->width() + 3);
    }
}

VANTRIX_TEST_MAIN(tst_MediaWid)
#include "tst_MediaWid.moc"
