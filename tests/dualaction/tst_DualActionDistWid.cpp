#include "dualaction/DualActionDistWid.h"

#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QGridLayout>
#include <QLabel>
#include <QSignalSpy>
#include <QSlider>

class tst_DualActionDistWid : public QObject
{
    Q_OBJECT

private slots:
    void form();
    void sliderOfAFreshPanel();
    void everyStepOfTheUser();
    void setFromCodeIsSilent_data();
    void setFromCodeIsSilent();
    void keysMoveTheSlider();
};

void tst_DualActionDistWid::form()
{
    const DualActionDistWid panel;
    QCOMPARE(panel.size(), QSize(777, 53));
    QCOMPARE(child<QLabel>(&panel, "label")->text(), QStringLiteral("ACTIVATION DISTANCE"));
    QCOMPARE(child<QLabel>(&panel, "label")->alignment(), Qt::AlignCenter);
    QCOMPARE(child<QLabel>(&panel, "label_3")->text(), QStringLiteral("TRAVEL"));
    QCOMPARE(child<QLabel>(&panel, "m_distanceLab")->alignment(),
             Qt::AlignRight | Qt::AlignVCenter);
    auto *grid = qobject_cast<QGridLayout *>(panel.layout());
    QVERIFY(grid);
    QCOMPARE(grid->contentsMargins(), QMargins(9, 0, 9, 0));
    QCOMPARE(grid->itemAtPosition(0, 1)->widget(), child<QLabel>(&panel, "label"));
    QCOMPARE(grid->itemAtPosition(1, 0)->widget(), child<QSlider>(&panel, "m_distanceSlider"));
    QCOMPARE(grid->itemAtPosition(1, 1)->widget(), child<QSlider>(&panel, "m_distanceSlider"));
    QCOMPARE(grid->itemAtPosition(2, 0)->widget(), child<QLabel>(&panel, "m_distanceLab"));
    QCOMPARE(grid->itemAtPosition(2, 1)->widget(), child<QLabel>(&panel, "label_3"));
}

void tst_DualActionDistWid::sliderOfAFreshPanel()
{
    const DualActionDistWid panel;
    const auto *slider = child<QSlider>(&panel, "m_distanceSlider");
    QCOMPARE(slider->minimum(), 10);
    QCOMPARE(slider->maximum(), 90);
    QCOMPARE(slider->value(), 50);
    QCOMPARE(slider->singleStep(), QSlider().singleStep());
    QCOMPARE(slider->orientation(), Qt::Horizontal);
    QCOMPARE(panel.distance(), 50);
    QCOMPARE(child<QLabel>(&panel, "m_distanceLab")->text(), QStringLiteral("50%"));
    QCOMPARE(slider->styleSheet(),
             QStringLiteral(
                 "QSlider::add-page:Horizontal{background-color: black;border:1px solid "
                 "rgb(54,54,54);}\nQSlider::sub-page:Horizontal{background-color:rgb(132,50,155);"
                 "border:1px solid rgb(54,54,54);}\nQSlider::groove:Horizontal{ "
                 "background:transparent;height:12px;}\nQSlider::handle:Horizontal{height: "
                 "30px;width:8px;border-image: url(:/VantrixMap/DualAction/slider.png);margin: -8 "
                 "0px;}\n\n"));
}

void tst_DualActionDistWid::everyStepOfTheUser()
{
    const DualActionDistWid panel;
    auto *slider = child<QSlider>(&panel, "m_distanceSlider");
    QSignalSpy spy(&panel, &DualActionDistWid::sigDualActionDepthChanged);
    slider->setValue(10);
    spy.clear();
    for (int depth = 11; depth <= 90; ++depth) {
        slider->setValue(depth);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.takeFirst().at(0).toInt(), depth);
        QCOMPARE(panel.distance(), depth);
        QCOMPARE(child<QLabel>(&panel, "m_distanceLab")->text(), QString::number(depth) + "%");
    }
    slider->setValue(91);
    QCOMPARE(panel.distance(), 90);
    QCOMPARE(spy.count(), 0);
}

void tst_DualActionDistWid::setFromCodeIsSilent_data()
{
    QTest::addColumn<int>("set");
    QTest::addColumn<int>("shown");
    QTest::newRow("least") << 10 << 10;
    QTest::newRow("most") << 90 << 90;
    QTest::newRow("between") << 37 << 37;
    QTest::newRow("the same") << 50 << 50;
    QTest::newRow("too little") << 0 << 10;
    QTest::newRow("too much") << 255 << 90;
}

void tst_DualActionDistWid::setFromCodeIsSilent()
{
    QFETCH(int, set);
    QFETCH(int, shown);
    DualActionDistWid panel;
    auto *slider = child<QSlider>(&panel, "m_distanceSlider");
    QSignalSpy spy(&panel, &DualActionDistWid::sigDualActionDepthChanged);
    panel.setDistance(set);
    QCOMPARE(spy.count(), 0);
    QCOMPARE(panel.distance(), shown);
    QCOMPARE(slider->value(), shown);
    QCOMPARE(child<QLabel>(&panel, "m_distanceLab")->text(), QString::number(set) + "%");
    // The user is heard again.
    slider->setValue(shown == 90 ? 89 : 90);
    QCOMPARE(spy.count(), 1);
}

void tst_DualActionDistWid::keysMoveTheSlider()
{
    DualActionDistWid panel;
    panel.show();
    auto *slider = child<QSlider>(&panel, "m_distanceSlider");
    QSignalSpy spy(&panel, &DualActionDistWid::sigDualActionDepthChanged);
    pressKey(slider, Qt::Key_Right);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.last().at(0).toInt(), 51);
    pressKey(slider, Qt::Key_Home);
    QCOMPARE(spy.last().at(0).toInt(), 10);
    pressKey(slider, Qt::Key_Left);
    QCOMPARE(spy.count(), 2);
    QVERIFY(!slider->accessibleName().isEmpty());
}

VANTRIX_TEST_MAIN(tst_DualActionDistWid)
#include "tst_DualActionDistWid.moc"
