#pragma once

#include <QtGlobal>

/// Marks what the page's library gives to others. Static builds define VANTRIX_STATIC.
#if defined(VANTRIX_STATIC)
#define VANTRIX_EXPORT
#elif defined(VANTRIX_LIBRARY)
#define VANTRIX_EXPORT Q_DECL_EXPORT
#else
#define VANTRIX_EXPORT Q_DECL_IMPORT
#endif
