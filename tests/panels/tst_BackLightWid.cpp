#include "panels/BackLightWid.h"

#include "panels/FunctionPanel.h"
#include "support/TestMain.h"

#include <QGridLayout>

class tst_BackLightWid : public QObject
{
    Q_OBJECT

private slots:
    void listsItsFunctions() { m_common.listsItsFunctions(); }
    void clickSpaceAndSecondClick() { m_common.clickSpaceAndSecondClick(); }
    void showsASelectedKey() { m_common.showsASelectedKey(); }
    void form();
    void pairsStandSideBySide();
    void buttonsLieApart();

private:
    FunctionPanelTest<BackLightWid, decltype(&BackLightWid::sigBackLightChanged)> m_common{
        &BackLightWid::sigBackLightChanged,
        {{385, QStringLiteral("EFFECT CYCLE+")},
         {386, QStringLiteral("EFFECT CYCLE-")},
         {403, QStringLiteral("LED BRIGHTER+")},
         {402, QStringLiteral("LED DARKER-")},
         {401, QStringLiteral("SPEED UP LED EFFECT+")},
         {400, QStringLiteral("SPEED DOWN LED EFFECT-")}}};
};

void tst_BackLightWid::form()
{
    const BackLightWid panel;
    QCOMPARE(panel.size(), QSize(331, 91));
    QCOMPARE(child<QLabel>(&panel, "label")->text(), QStringLiteral("BACKLIGHT"));
    QCOMPARE(child<QWidget>(&panel, "widget")->styleSheet(),
             QStringLiteral("background:rgb(101,103,108);"));
    QCOMPARE(m_common.group(panel)->button(385)->styleSheet(),
             QStringLiteral("QPushButton{background:transparent;color:white;"
                            "border:1px solid white;min-height:30px;}"
                            ":hover{background:rgba(255,255,255,50);}"
                            ":checked{background:#64a67c52;}"));
}

void tst_BackLightWid::pairsStandSideBySide()
{
    const BackLightWid panel;
    auto *const grid = child<QGridLayout>(&panel, "m_layout");
    const std::vector<std::vector<int>> rows = {{385, 386}, {403, 402}, {401, 400}};
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 2; ++column)
            QCOMPARE(grid->itemAtPosition(row, column)->widget(),
                     m_common.group(panel)->button(rows[std::size_t(row)][std::size_t(column)]));
    }
}

void tst_BackLightWid::buttonsLieApart()
{
    QWidget page;
    BackLightWid panel(&page);
    page.show();
    for (const QSize &size :
         {QSize(331, 91), QSize(165, 45), QSize(662, 182), QSize(993, 91), QSize(331, 273),
          QSize(766, 288), QSize(450, 160), QSize(1532, 576), QSize(2400, 160), QSize(450, 900)}) {
        panel.resize(size);
        QCoreApplication::processEvents();
        QCOMPARE(panel.size(), size);
        compareButtonsLieApart(panel);
        const auto buttons = m_common.group(panel)->buttons();
        for (const QAbstractButton *button : buttons) {
            const int room = button->width() - (size.width() > 450 ? 10 : 0);
            QVERIFY2(button->fontMetrics().horizontalAdvance(button->text()) <= room,
                     qPrintable(QStringLiteral("%1 at %2").arg(button->text()).arg(size.width())));
        }
    }
}

VANTRIX_TEST_MAIN(tst_BackLightWid)
#include "tst_BackLightWid.moc"
