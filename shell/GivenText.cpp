#include "shell/GivenText.h"

#include <QTextDocument>

QString GivenText::forButton(QString text)
{
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

QString GivenText::forTip(const QString &text)
{
    if (!Qt::mightBeRichText(text))
        return text;
    return QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped());
}
