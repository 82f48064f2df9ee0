#include "panels/ProfileWid.h"

#include "panels/FunctionPanel.h"
#include "support/TestMain.h"

#include <QBoxLayout>
#include <QScrollArea>
#include <QScrollBar>

class tst_ProfileWid : public QObject
{
    Q_OBJECT

private slots:
    void listsItsFunctions() { m_common.listsItsFunctions(); }
    void clickSpaceAndSecondClick() { m_common.clickSpaceAndSecondClick(); }
    void showsASelectedKey() { m_common.showsASelectedKey(); }
    void form();
    void functionsStandUnderEachOther();
    void checkedFunctionIsInView();

private:
    FunctionPanelTest<ProfileWid, decltype(&ProfileWid::sigProfileChanged)> m_common{
        &ProfileWid::sigProfileChanged,
        {{1536, QStringLiteral("PROFILE 1")},      {1537, QStringLiteral("PROFILE 2")},
         {1538, QStringLiteral("PROFILE 3")},      {1539, QStringLiteral("PROFILE 4")},
         {1540, QStringLiteral("PROFILE 5")},      {1541, QStringLiteral("PROFILE 6")},
         {1542, QStringLiteral("PROFILE 7")},      {1543, QStringLiteral("PROFILE 8")},
         {1544, QStringLiteral("PROFILE 9")},      {1545, QStringLiteral("PROFILE 10")},
         {1546, QStringLiteral("PROFILE 11")},     {1547, QStringLiteral("PROFILE 12")},
         {1548, QStringLiteral("PROFILE 13")},     {1549, QStringLiteral("PROFILE 14")},
         {1550, QStringLiteral("PROFILE 15")},     {1551, QStringLiteral("PROFILE 16")},
         {1552, QStringLiteral("PROFILE 17")},     {1553, QStringLiteral("PROFILE 18")},
         {1554, QStringLiteral("PROFILE 19")},     {1555, QStringLiteral("PROFILE 20")},
         {1556, QStringLiteral("PROFILE 21")},     {1557, QStringLiteral("PROFILE 22")},
         {1558, QStringLiteral("PROFILE 23")},     {1559, QStringLiteral("PROFILE 24")},
         {1570, QStringLiteral("PROFILE CYCLE+")}, {1571, QStringLiteral("PROFILE CYCLE-")}}};
};

void tst_ProfileWid::form()
{
    const ProfileWid panel;
    QCOMPARE(panel.size(), QSize(432, 189));
    QCOMPARE(child<QLabel>(&panel, "label")->text(), QStringLiteral("PROFILE"));
    QCOMPARE(child<QWidget>(&panel, "widget")->styleSheet(),
             QStringLiteral("background:rgb(101,103,108);"));
    auto *const area = child<QScrollArea>(&panel, "scrollArea");
    QCOMPARE(area->styleSheet(),
             QStringLiteral("QScrollArea{background:transparent;border:none;}"));
    QVERIFY(area->widgetResizable());
    QCOMPARE(area->widget(), child<QWidget>(&panel, "scrollAreaWidgetContents_2"));
    QCOMPARE(m_common.group(panel)->button(1536)->styleSheet(),
             QStringLiteral("QPushButton{background:transparent;color:white;"
                            "border:1px solid white;min-height:30px;}"
                            ":hover{background:rgba(255,255,255,50);}"
                            ":checked{background:#64fff799;}"));
}

void tst_ProfileWid::functionsStandUnderEachOther()
{
    QWidget page;
    ProfileWid panel(&page);
    page.show();
    auto *const column = child<QBoxLayout>(&panel, "m_layout");
    QCOMPARE(column->count(), 26);
    QCOMPARE(column->direction(), QBoxLayout::TopToBottom);
    for (const QSize &size :
         {QSize(432, 189), QSize(216, 94), QSize(864, 378), QSize(2400, 120), QSize(300, 1200)}) {
        panel.resize(size);
        QCoreApplication::processEvents();
        QCOMPARE(panel.size(), size);
        const auto *const area = child<QScrollArea>(&panel, "scrollArea");
        QVERIFY(panel.rect().contains(QRect(area->mapTo(&panel, QPoint()), area->size())));
        int bottom = -1;
        for (int i = 0; i < 26; ++i) {
            const QRect rect = column->itemAt(i)->widget()->geometry();
            QVERIFY(rect.top() > bottom);
            bottom = rect.bottom();
        }
        // Names get narrower; nothing is cut off at the side.
        QCOMPARE(area->widget()->width(), area->viewport()->width());
        QVERIFY(!area->horizontalScrollBar()->isVisible());
    }
}

void tst_ProfileWid::checkedFunctionIsInView()
{
    QWidget page;
    ProfileWid panel(&page);
    vantrix_key_mapping key;
    key.code = 1571;
    panel.slotVantrixKeySelected(key);
    page.show();
    const auto isInView = [&](int code) {
        const QWidget *const button = m_common.group(panel)->button(code);
        return button->visibleRegion().boundingRect() == button->rect();
    };
    QVERIFY(isInView(1571));
    for (const int code : {1536, 1559, 1570, 1540}) {
        key.code = ushort(code);
        panel.slotVantrixKeySelected(key);
        QVERIFY2(isInView(code), qPrintable(QString::number(code)));
    }
    panel.resize(300, 110);
    QVERIFY(isInView(1540));
}

VANTRIX_TEST_MAIN(tst_ProfileWid)
#include "tst_ProfileWid.moc"
