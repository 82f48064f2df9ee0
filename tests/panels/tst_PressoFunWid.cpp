#include "panels/PressoFunWid.h"

#include "panels/FunctionPanel.h"
#include "support/TestMain.h"

#include <QBoxLayout>

class tst_PressoFunWid : public QObject
{
    Q_OBJECT

private slots:
    void listsItsFunctions() { m_common.listsItsFunctions(); }
    void clickSpaceAndSecondClick() { m_common.clickSpaceAndSecondClick(); }
    void showsASelectedKey() { m_common.showsASelectedKey(); }
    void form();
    void buttonKeepsItsSize();

private:
    FunctionPanelTest<PressoFunWid, decltype(&PressoFunWid::sigPressoFunChanged)> m_common{
        &PressoFunWid::sigPressoFunChanged, {{312, QStringLiteral("CALIBRATE")}}};
};

void tst_PressoFunWid::form()
{
    const PressoFunWid panel;
    QCOMPARE(panel.size(), QSize(950, 289));
    QCOMPARE(child<QLabel>(&panel, "label")->text(), QStringLiteral("DEADZONE CALIBRATION"));
    QCOMPARE(child<QWidget>(&panel, "widget")->styleSheet(),
             QStringLiteral("background:rgb(101,103,108);"));
    auto *const row = child<QBoxLayout>(&panel, "m_keyLayout");
    QCOMPARE(row->spacing(), 6);
    QCOMPARE(row->count(), 2);
    QVERIFY(row->itemAt(1)->spacerItem());
    QCOMPARE(m_common.group(panel)->button(312)->styleSheet(),
             QStringLiteral("QPushButton{background:transparent;border:1px solid white;"
                            "min-height:30px;font-size:11px;}"
                            ":hover{background:rgba(255,255,255,50);}"
                            ":checked{background:#ff0000ff;border:none;}"));
}

void tst_PressoFunWid::buttonKeepsItsSize()
{
    QWidget page;
    PressoFunWid panel(&page);
    page.show();
    const QAbstractButton *const button = m_common.group(panel)->button(312);
    for (const QSize &size :
         {QSize(950, 289), QSize(475, 144), QSize(1900, 578), QSize(2000, 80), QSize(300, 900)}) {
        panel.resize(size);
        QCoreApplication::processEvents();
        QCOMPARE(button->size(), QSize(50, 30));
        compareButtonsLieApart(panel);
    }
    page.setStyleSheet(QStringLiteral("QWidget{color:white;}"));
    QCoreApplication::processEvents();
    QCOMPARE(button->size(), QSize(50, 30));
    QCOMPARE(button->minimumSize(), QSize(50, 30));
}

VANTRIX_TEST_MAIN(tst_PressoFunWid)
#include "tst_PressoFunWid.moc"
