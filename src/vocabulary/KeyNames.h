#pragma once

#include "interfaces/VantrixExport.h"

#include <QString>

/// Name of a device code as a key button shows it: the legend of the key in the environment's
/// language when the code stands in ScanToKeyCode, else the translated function name.
/// Interface thread only.
VANTRIX_EXPORT QString keyLegendOfCode(ushort code);
