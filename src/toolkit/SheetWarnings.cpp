#include "interfaces/SheetWarnings.h"

#include <QString>

#include <algorithm>
#include <iterator>

bool isSheetWarning(const QString &text)
{
    constexpr const char *warnings[] = {
        "Could not parse stylesheet of object Keyboard(",
        "Specified color without alpha value but alpha given: 'rgb 0,0,0,200'",
        "Specified color without alpha value but alpha given: 'rgb 255,255,255,50'",
    };
    return std::any_of(std::begin(warnings), std::end(warnings), [&text](const char *warning) {
        return text.contains(QLatin1String(warning));
    });
}
