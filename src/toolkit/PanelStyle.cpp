#include "toolkit/PanelStyle.h"

QString selectorSheet(const QString &checkedRule)
{
    return QStringLiteral("QPushButton{background:rgb(25,25,25);border:none;min-height:25px;"
                          "font-size:12px;}:hover{background:rgb(81,81,81);}:checked{") +
           checkedRule + QLatin1Char('}');
}

QString scrollBarSheet()
{
    const QString sheet =
        QStringLiteral("QScrollBar:%1{background:transparent;%2:10px;margin:0px;}"
                       "QScrollBar::handle:%1{background:rgb(160,160,160);border-radius:3px;"
                       "min-%3:24px;margin:%4;}"
                       "QScrollBar::add-line:%1,QScrollBar::sub-line:%1{%3:0px;}"
                       "QScrollBar::add-page:%1,QScrollBar::sub-page:%1{background:transparent;}");
    return sheet.arg(QStringLiteral("vertical"), QStringLiteral("width"), QStringLiteral("height"),
                     QStringLiteral("0px 2px")) +
           sheet.arg(QStringLiteral("horizontal"), QStringLiteral("height"),
                     QStringLiteral("width"), QStringLiteral("2px 0px"));
}
