#include "vocabulary/KeyNames.h"

#include "interfaces/IEnvironment.h"
#include "vocabulary/KeyCodes.h"
#include "vocabulary/KeyLegends.h"

QString keyLegendOfCode(ushort code)
{
    const int scanCode = scanOfKeyCode(code);
    if (scanCode == 0)
        return keyFunctionText(code);
    return keyLegend(scanCode, IEnvironment::Instance()->getLanguage());
}
