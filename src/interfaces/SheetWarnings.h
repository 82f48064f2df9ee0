#pragma once

#include "interfaces/VantrixExport.h"

class QString;

/// True for what Qt says of those style sheets of the page whose text is fixed, although Qt does
/// not take all of it: colours without the alpha value that they give, and one rule that it cannot
/// read. `text` is the message or a line of a log that holds it.
///
/// The page says it about forty times and installs no message handler. A host that wants a quiet
/// log asks this in its own, and passes everything else on. Any thread.
VANTRIX_EXPORT bool isSheetWarning(const QString &text);
