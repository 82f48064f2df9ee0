#include "shell/GivenText.h"

#include "vocabulary/Common.h"

QString GivenText::forButton(QString text)
{
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

QString GivenText::forTip(const QString &text)
{
    return Common::PlainTip(text);
}
