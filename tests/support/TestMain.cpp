#include "support/TestMain.h"

#include "interfaces/SheetWarnings.h"
#include "support/QtUnderAsan.h"

#include <QApplication>
#include <QFile>
#include <QLocale>
#include <QTemporaryDir>

#include <cstdio>
#include <memory>

namespace {

void setHome(const QString &home)
{
    const QByteArray path = QFile::encodeName(home);
    qputenv("HOME", path);
    qputenv("XDG_DATA_HOME", path + "/data");
    qputenv("XDG_CONFIG_HOME", path + "/config");
    qputenv("XDG_CACHE_HOME", path + "/cache");
    qunsetenv("XDG_DATA_DIRS");
}

/// Warnings that are announced once for all tests: what the offscreen platform cannot do, and
/// the sheets that are literals of the page and are not to Qt's taste.
bool isAnnounced(const QByteArray &line)
{
    return line.contains(" This plugin does not support ") ||
           isSheetWarning(QString::fromUtf8(line));
}

/// Number of warnings in a log of Qt Test, each told to the person who runs the test.
int countWarnings(const QString &logName)
{
    QFile log(logName);
    if (!log.open(QIODevice::ReadOnly))
        return 1;
    int count = 0;
    const QList<QByteArray> lines = log.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (!line.startsWith("QWARN") && !line.startsWith("QCRITICAL"))
            continue;
        if (isAnnounced(line))
            continue;
        ++count;
        std::fprintf(stderr, "Unannounced warning: %s\n", line.constData());
    }
    return count;
}

} // namespace

#ifdef VANTRIX_LEAKS_ARE_FOUND
/// Qt forgets the animation of a line edit's clear button when the field goes while it runs.
extern "C" const char *__lsan_default_suppressions();
extern "C" const char *__lsan_default_suppressions()
{
    return "leak:QPropertyAnimation::QPropertyAnimation\n";
}
#endif

int runTest(int argc, char **argv, const std::function<QObject *()> &makeTest)
{
    const QTemporaryDir home;
    setHome(home.path());
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QLocale::setDefault(QLocale::c());
    QApplication::setStyle(QStringLiteral("Fusion"));
    const std::unique_ptr<QApplication> app = makeApplication(argc, argv);
    const std::unique_ptr<QObject> test(makeTest());

    QStringList arguments = app->arguments();
    if (arguments.contains(QStringLiteral("-o")))
        return QTest::qExec(test.get(), arguments);
    const QString log = home.filePath(QStringLiteral("log.txt"));
    // Every warning counts, however many there are.
    arguments << QStringLiteral("-maxwarnings") << QStringLiteral("0");
    arguments << QStringLiteral("-o") << log + QStringLiteral(",txt") << QStringLiteral("-o")
              << QStringLiteral("-,txt");
    const int failures = QTest::qExec(test.get(), arguments);
    return failures + countWarnings(log);
}
