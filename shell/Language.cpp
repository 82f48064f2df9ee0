#include "shell/Language.h"

#include "host/ProfileStore.h"
#include "vocabulary/KeyLegends.h"

#include <QLocale>
#include <QRegularExpression>

namespace {

QString systemName()
{
    const QLocale locale = QLocale::system();
    if (locale.language() != QLocale::Chinese)
        return QLocale::languageToString(locale.language());
    return locale.script() == QLocale::TraditionalHanScript ? QStringLiteral("ChineseTraditional")
                                                            : QStringLiteral("ChineseSimplified");
}

} // namespace

QString Language::settingKey()
{
    return QStringLiteral("language");
}

int Language::of(const ProfileStore &store)
{
    const int chosen = parse(store.setting(settingKey()));
    if (chosen >= 0)
        return chosen;
    const int ofSystem = parse(systemName());
    return ofSystem >= 0 ? ofSystem : parse(QStringLiteral("English"));
}

int Language::parse(const QString &text)
{
    for (const auto &[name, index] : LanguageIndex()) {
        if (!name.compare(text, Qt::CaseInsensitive))
            return index;
    }
    bool ok = false;
    const int index = text.toInt(&ok);
    return ok && index >= 0 && index < LanguageCount ? index : -1;
}

QString Language::title(int language)
{
    for (const auto &[name, index] : LanguageIndex()) {
        if (index == language)
            return QString(name).replace(QRegularExpression(QStringLiteral("(?<=[a-z])(?=[A-Z])")),
                                         QStringLiteral(" "));
    }
    return QString();
}
