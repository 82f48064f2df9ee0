#include "CatalogCheck.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Says what the page would drop of a hot-key catalog."));
    parser.addHelpOption();
    const QCommandLineOption least(QStringLiteral("at-least"),
                                   QStringLiteral("Number of hot keys expected."),
                                   QStringLiteral("count"), QStringLiteral("1"));
    parser.addOption(least);
    parser.addPositionalArgument(QStringLiteral("folder"), QStringLiteral("The catalog."));
    parser.process(application);
    if (parser.positionalArguments().size() != 1)
        parser.showHelp(2);

    const CatalogCheck check(parser.positionalArguments().constFirst());
    QTextStream out(stdout);
    for (const QString &finding : check.findings())
        out << finding << '\n';
    out << check.hotKeys() << " hot keys in " << check.files() << " files, "
        << check.findings().size() << " findings\n";
    const bool isEnough = check.hotKeys() >= parser.value(least).toInt();
    if (!isEnough)
        out << "fewer than the " << parser.value(least) << " expected\n";
    return check.findings().isEmpty() && isEnough ? 0 : 1;
}
