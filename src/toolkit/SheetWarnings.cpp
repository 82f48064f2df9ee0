#include "interfaces/SheetWarnings.h"

#include <QLatin1String>
#include <QString>

#include <algorithm>
#include <iterator>

bool isSheetWarning(const QString &text)
{
    constexpr QLatin1String warnings[] = {
        QLatin1String("Could not parse stylesheet of object Keyboard("),
        QLatin1String("Specified color without alpha value but alpha given: 'rgb 0,0,0,200'"),
        QLatin1String("Specified color without alpha value but alpha given: 'rgb 255,255,255,50'"),
    };
    return std::any_of(std::begin(warnings), std::end(warnings),
                       [&text](QLatin1String warning) { return text.contains(warning); });
}
