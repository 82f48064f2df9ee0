#include "translations/PageTranslation.h"

#include "vocabulary/KeyLegends.h"

#include <QFile>

/// A static library's resources are there only when asked for, and not from within a namespace.
static void initPageTranslations()
{
    Q_INIT_RESOURCE(page_translations);
}

QString pageTranslation(int language)
{
    initPageTranslations();
    const QString path =
        QStringLiteral(":/VantrixMap/translations/%1.qm").arg(languageName(language));
    return QFile::exists(path) ? path : QString();
}
