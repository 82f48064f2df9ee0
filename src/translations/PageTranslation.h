#pragma once

#include "interfaces/VantrixExport.h"

#include <QString>

/// Where the page keeps its texts in a language, for the host to load into a QTranslator before it
/// creates the page; e.g. ":/VantrixMap/translations/German.qm" for 4. Texts that are on the
/// screen already stay as they are. `language` is a number of `LanguageIndex`. Empty for English,
/// the language of the sources, and for any other number. Any thread.
VANTRIX_EXPORT QString pageTranslation(int language);
