#include "toolkit/PanelStyle.h"

QString selectorSheet(const QString &checkedRule)
{
    return QStringLiteral("QPushButton{background:rgb(25,25,25);border:none;min-height:25px;"
                          "font-size:12px;}:hover{background:rgb(81,81,81);}:checked{") +
           checkedRule + QLatin1Char('}');
}

QString scrollBarSheet()
{
    return QStringLiteral(
        "QScrollBar:vertical{background:transparent;width:10px;margin:0px;}"
        "QScrollBar::handle:vertical{background:rgb(160,160,160);border-radius:3px;"
        "min-height:24px;margin:0px 2px;}"
        "QScrollBar::add-line:vertical,QScrollBar::sub-line:vertical{height:0px;}"
        "QScrollBar::add-page:vertical,QScrollBar::sub-page:vertical{background:transparent;}");
}
