#include "shell/Language.h"

#include "host/ProfileStore.h"
#include "translations/PageTranslation.h"
#include "vocabulary/KeyLegends.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QTranslator>

#include <array>

namespace {

/// What speakers call their language, by the numbers of `LanguageIndex`.
constexpr std::array<const char *, LanguageCount> OwnNames = {
    "简体中文", "繁體中文",  "English", "Français", "Deutsch", "Italiano", "日本語",     "한국어",
    "Melayu",   "Português", "Русский", "Español",  "ไทย",     "Türkçe",   "Tiếng Việt",
};

QString systemName()
{
    const QLocale locale = QLocale::system();
    if (locale.language() != QLocale::Chinese)
        return QLocale::languageToString(locale.language());
    return locale.script() == QLocale::TraditionalHanScript ? QStringLiteral("ChineseTraditional")
                                                            : QStringLiteral("ChineseSimplified");
}

/// The locale of the file's texts; the C locale without a file.
QString load(const QString &path)
{
    auto *const translator = new QTranslator(qApp);
    if (path.isEmpty() || !translator->load(path) ||
        !QCoreApplication::installTranslator(translator)) {
        delete translator;
        return QString();
    }
    return translator->language();
}

void loadQt(const QLocale &locale)
{
    auto *const translator = new QTranslator(qApp);
    const QString folder = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
    if (!translator->load(locale, QStringLiteral("qtbase"), QStringLiteral("_"), folder) ||
        !QCoreApplication::installTranslator(translator))
        delete translator;
}

} // namespace

QString Language::settingKey()
{
    return QStringLiteral("language");
}

int Language::ofSystem()
{
    const int ofSystem = parse(systemName());
    return ofSystem >= 0 ? ofSystem : parse(QStringLiteral("English"));
}

int Language::of(const ProfileStore &store)
{
    const int chosen = parse(store.setting(settingKey()));
    return chosen >= 0 ? chosen : ofSystem();
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
    static const QRegularExpression betweenWords(QStringLiteral("(?<=[a-z])(?=[A-Z])"));
    const QString name = languageName(language).replace(betweenWords, QStringLiteral(" "));
    if (name.isEmpty())
        return name;
    const QString own = QString::fromUtf8(OwnNames[std::size_t(language)]);
    return own == name ? name : QStringLiteral("%1 (%2)").arg(name, own);
}

void Language::install(int language)
{
    Q_INIT_RESOURCE(shell_translations);
    qDeleteAll(qApp->findChildren<QTranslator *>(QString(), Qt::FindDirectChildrenOnly));
    load(pageTranslation(language));
    const QString locale =
        load(QStringLiteral(":/shell/translations/%1.qm").arg(languageName(language)));
    if (!locale.isEmpty())
        loadQt(QLocale(locale));
}
