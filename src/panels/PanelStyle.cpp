#include "panels/PanelStyle.h"

QString selectorSheet(const QString &checkedRule)
{
    return QStringLiteral("QPushButton{background:rgb(25,25,25);border:none;min-height:25px;"
                          "font-size:12px;}:hover{background:rgb(81,81,81);}:checked{") +
           checkedRule + QLatin1Char('}');
}
