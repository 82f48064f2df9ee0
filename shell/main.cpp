#include "host/HostServices.h"
#include "interfaces/SheetWarnings.h"
#include "shell/Headless.h"
#include "shell/Language.h"
#include "shell/MainWindow.h"
#include "shell/ShellStyle.h"
#include "vocabulary/KeyLegends.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <QTemporaryDir>
#include <QTextStream>

#include <cstdlib>
#include <cstring>

namespace {

/// What the event loop returns when the window is to be made anew.
constexpr int AgainCode = -1;

/// What was asked for on the command line.
struct Options
{
    bool isHeadless = false;
    bool isPrinting = false;
    QString screenshot;
    QString dataFolder;
    int profile = -1; ///< from 0; -1: the one that was shown last
    int language = -1;
};

bool hasDisplay()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    return !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
#else
    return true;
#endif
}

bool hasArgument(int argc, char **argv, const char *name)
{
    for (int i = 1; i < argc; ++i) {
        const std::size_t length = std::strlen(name);
        if (!std::strncmp(argv[i], name, length) && (!argv[i][length] || argv[i][length] == '='))
            return true;
    }
    return false;
}

/// True when the program runs without a display. The platform must be chosen before Qt starts.
bool choosePlatform(int argc, char **argv)
{
    bool isHeadless = hasArgument(argc, argv, "--headless");
    if (!isHeadless && !hasDisplay() && !hasArgument(argc, argv, "--print-profile")) {
        if (hasArgument(argc, argv, "--data")) {
            // the walk assigns a key, which nobody has asked for in a folder of somebody's
            QTextStream(stderr) << "There is no display, and --headless was not given.\n";
            std::exit(2);
        }
        QTextStream(stderr) << "There is no display: running headless.\n";
        isHeadless = true;
    }
    if (isHeadless || hasArgument(argc, argv, "--print-profile"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    return isHeadless;
}

/// Leaves with one line: what is wrong with an option's value, and what it may be.
[[noreturn]] void refuse(const QString &value, const QString &reason)
{
    QTextStream(stderr) << "vantrix: \"" << value << "\" " << reason << '\n';
    std::exit(2);
}

/// From 0; -1 without the option.
int readProfile(const QCommandLineParser &parser)
{
    if (!parser.isSet(QStringLiteral("profile")))
        return -1;
    const QString value = parser.value(QStringLiteral("profile"));
    bool isNumber = false;
    const int number = value.toInt(&isNumber);
    if (!isNumber || number < 1 || number > ProfileCount)
        refuse(value, QStringLiteral("is no profile: --profile takes a number from 1 to %1.")
                          .arg(ProfileCount));
    return number - 1;
}

/// By the numbers of `LanguageIndex`; -1 without the option.
int readLanguage(const QCommandLineParser &parser)
{
    if (!parser.isSet(QStringLiteral("language")))
        return -1;
    const QString value = parser.value(QStringLiteral("language"));
    const int language = Language::parse(value);
    if (language >= 0)
        return language;
    QStringList names;
    for (int i = 0; i < LanguageCount; ++i)
        names << languageName(i);
    refuse(value, QStringLiteral("is no language: --language takes %1, or a number from 0 to %2.")
                      .arg(names.join(QStringLiteral(", ")))
                      .arg(LanguageCount - 1));
}

Options readOptions(bool isHeadless)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Says what each key of the pad does."));
    parser.addHelpOption();
    parser.addVersionOption();
    const auto option = [&parser](const char *name, const char *text, const char *value = "") {
        parser.addOption(
            QCommandLineOption(QLatin1String(name), QLatin1String(text), QLatin1String(value)));
    };
    option("headless", "Walk the whole road without a display: assign B to key 7 of a profile, "
                       "apply, and print what the device received. Works on a data folder of its "
                       "own unless --data names one.");
    option("screenshot", "With --headless: save the picture of the page.", "file.png");
    option("data", "Keep everything in this folder instead of the user's.", "folder");
    option("profile", "Show this profile, 1 to 24.", "number");
    option("language", "Language of the interface, by name or by number from 0.", "language");
    option("print-profile", "Print what store and device have of the profile, and leave.");
    parser.process(*qApp);

    Options options;
    options.isHeadless = isHeadless;
    options.isPrinting = parser.isSet(QStringLiteral("print-profile"));
    options.screenshot = parser.value(QStringLiteral("screenshot"));
    options.dataFolder = parser.value(QStringLiteral("data"));
    options.profile = readProfile(parser);
    options.language = readLanguage(parser);
    return options;
}

/// Passes on what Qt has to say, except for what it says about sheets whose text is fixed.
void writeMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (isSheetWarning(text) ||
        text.startsWith(QLatin1String("This plugin does not support propagateSizeHints")))
        return;
    QTextStream(stderr) << qFormatLogMessage(type, context, text) << '\n';
    if (type == QtFatalMsg)
        std::abort();
}

/// Until the store says which language was chosen.
void setFirstLanguage(const Options &options)
{
    Language::install(options.language >= 0 ? options.language : Language::ofSystem());
}

void setLanguage(HostServices &services, const Options &options)
{
    const int language = options.language >= 0 ? options.language : Language::of(services.store());
    services.environment().setLanguage(language);
    Language::install(language);
}

int runHeadless(Options options)
{
    QTextStream out(stdout);
    QTextStream err(stderr);
    QTemporaryDir folder;
    if (options.dataFolder.isEmpty() && !options.isPrinting)
        options.dataFolder = folder.path();
    setFirstLanguage(options);
    HostServices services(options.dataFolder);
    err << "Data folder: " << services.locations().dataFolder() << '\n';
    setLanguage(services, options);
    for (const QString &message : services.store().messages())
        err << message << '\n';
    const int profile = qMax(0, options.profile);
    if (options.isPrinting) {
        Headless::printProfile(services, profile, out);
        return 0;
    }
    return Headless::walk(services, {profile, options.screenshot}, out, err);
}

/// Shows the window until it is closed, or until it is to be made anew with the page it leaves.
int showWindow(ShellContext &context, int profile, ShellPage *page)
{
    MainWindow window(context);
    QObject::connect(
        &window, &MainWindow::languageChanged, &window, [] { QApplication::exit(AgainCode); },
        Qt::QueuedConnection);
    if (profile >= 0)
        emit context.goTo(profile, NoKey);
    window.showPage(*page);
    window.show();
    const int code = QApplication::exec();
    *page = window.shownPage();
    if (code == AgainCode)
        window.remember();
    return code;
}

int runWindow(const Options &options)
{
    setFirstLanguage(options);
    HostServices services(options.dataFolder);
    setLanguage(services, options);
    ShellContext context(services);
    ShellPage page = ShellPage::Mapping;
    int code = showWindow(context, options.profile, &page);
    while (code == AgainCode)
        code = showWindow(context, -1, &page);
    return code;
}

} // namespace

int main(int argc, char **argv)
{
    const bool isHeadless = choosePlatform(argc, argv);
    qInstallMessageHandler(writeMessage);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("vantrix"));
    QApplication::setApplicationVersion(QStringLiteral("1.0.0"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/VantrixMap/logo.png")));
    QApplication::setDesktopFileName(QStringLiteral("vantrix-shell"));
    ShellStyle::install();
    const Options options = readOptions(isHeadless);
    return isHeadless || options.isPrinting ? runHeadless(options) : runWindow(options);
}
