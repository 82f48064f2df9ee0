#include "panels/PressoWid.h"

#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QPushButton>
#include <QSignalSpy>

class tst_PressoWid : public QObject
{
    Q_OBJECT

private slots:
    void form();
    void clicksEmit();
    void showingEmitsNothing();
    void heightOfTheButtons();
    void buttonsStandInside();
};

void tst_PressoWid::form()
{
    const PressoWid panel;
    QCOMPARE(panel.size(), QSize(366, 86));
    QCOMPARE(child<QWidget>(&panel, "presso")->styleSheet(),
             QStringLiteral("QWidget#presso{background:rgb(51,51,51);border-radius:5px;}"));
    auto *const grid = qobject_cast<QGridLayout *>(child<QWidget>(&panel, "presso")->layout());
    QCOMPARE(grid->contentsMargins(), QMargins(0, 5, 3, 5));
    QCOMPARE(grid->horizontalSpacing(), 6);
    QCOMPARE(grid->verticalSpacing(), 6);
    QCOMPARE(child<QWidget>(&panel, "m_logo")->styleSheet(),
             QStringLiteral("image: url(:/VantrixMap/PressoFunction/presso logo.png);"));
    for (const char *name : {"label_3", "label_4"})
        QCOMPARE(child<QWidget>(&panel, QLatin1String(name))->styleSheet(),
                 QStringLiteral("font-size:12px;"));
    const auto *const group = panel.findChild<QButtonGroup *>();
    QCOMPARE(group->button(1), child<QPushButton>(&panel, "m_on"));
    QCOMPARE(group->button(0), child<QPushButton>(&panel, "m_off"));
    QCOMPARE(group->button(1)->text(), QStringLiteral("ON"));
    QCOMPARE(group->button(0)->text(), QStringLiteral("OFF"));
    for (const int id : {0, 1})
        QCOMPARE(group->button(id)->styleSheet(),
                 QStringLiteral("QPushButton{background:transparent;"
                                "border:1px solid rgb(132,49,155);min-height:15px;}\n"
                                ":checked{background:rgb(132,49,155)}"));
}

void tst_PressoWid::clicksEmit()
{
    PressoWid panel;
    panel.show();
    QSignalSpy spy(&panel, &PressoWid::sigPressoEnableChanged);
    clickOn(child<QPushButton>(&panel, "m_on"));
    clickOn(child<QPushButton>(&panel, "m_off"));
    clickOn(child<QPushButton>(&panel, "m_off"));
    pressKey(child<QPushButton>(&panel, "m_on"), Qt::Key_Space);
    QList<int> values;
    for (const auto &arguments : spy)
        values << arguments.at(0).toInt();
    QCOMPARE(values, (QList<int>{1, 0, 0, 1}));
    QVERIFY(child<QPushButton>(&panel, "m_on")->isChecked());
    QVERIFY(!child<QPushButton>(&panel, "m_off")->isChecked());
}

void tst_PressoWid::showingEmitsNothing()
{
    PressoWid panel;
    QSignalSpy spy(&panel, &PressoWid::sigPressoEnableChanged);
    panel.setPressoEnable(true);
    QVERIFY(child<QPushButton>(&panel, "m_on")->isChecked());
    panel.setPressoEnable(false);
    QVERIFY(child<QPushButton>(&panel, "m_off")->isChecked());
    QVERIFY(!child<QPushButton>(&panel, "m_on")->isChecked());
    QCOMPARE(spy.count(), 0);
}

void tst_PressoWid::heightOfTheButtons()
{
    QWidget page;
    PressoWid panel(&page);
    page.show();
    const std::vector<std::pair<QSize, int>> rows = {
        {{366, 86}, 17},  {{183, 43}, 8},   {{732, 172}, 34},
        {{1200, 57}, 11}, {{122, 300}, 60}, {{122, 4}, 0},
    };
    for (const auto &[size, height] : rows) {
        panel.resize(size);
        for (const char *name : {"m_on", "m_off"}) {
            const auto *const button = child<QPushButton>(&panel, QLatin1String(name));
            QCOMPARE(button->height(), height);
            QCOMPARE(button->minimumHeight(), height);
        }
    }
    panel.resize(366, 86);
    page.setStyleSheet(QStringLiteral("QWidget{color:white;}"));
    QCOMPARE(child<QPushButton>(&panel, "m_on")->height(), 17);
    QCOMPARE(child<QPushButton>(&panel, "m_on")->minimumHeight(), 17);
}

void tst_PressoWid::buttonsStandInside()
{
    QWidget page;
    PressoWid panel(&page);
    page.show();
    for (const QSize &size : {QSize(122, 57), QSize(366, 86), QSize(732, 172)}) {
        panel.resize(size);
        QCoreApplication::processEvents();
        QRect rects[2];
        int i = 0;
        for (const char *name : {"m_on", "m_off"}) {
            const auto *const button = child<QPushButton>(&panel, QLatin1String(name));
            rects[i] = QRect(button->mapTo(&panel, QPoint()), button->size());
            QVERIFY(panel.rect().contains(rects[i++]));
        }
        QVERIFY(!rects[0].intersects(rects[1]));
    }
}

VANTRIX_TEST_MAIN(tst_PressoWid)
#include "tst_PressoWid.moc"
