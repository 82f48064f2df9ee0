#include "shell/Headless.h"

#include "ShellFixture.h"
#include "support/TestMain.h"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTextStream>

/// The road without a display, in this process and as a program.
class tst_Headless : public QObject
{
    Q_OBJECT

private slots:
    void walksTheRoad();
    void walksOnAnotherProfile();
    void tellsWhenThePictureCannotBeWritten();
    void printsStoreAndDevice();
    void program();
    void programWithoutDisplay();
    void programWithoutDisplayOnData();
    void programKeepsItsDataFolder();
    void brokenStore_data();
    void brokenStore();
    void badOptions_data();
    void badOptions();

private:
    static QByteArray run(const QStringList &arguments, QByteArray *errors = nullptr,
                          int *exitCode = nullptr, bool hasDisplay = true);
};

QByteArray tst_Headless::run(const QStringList &arguments, QByteArray *errors, int *exitCode,
                             bool hasDisplay)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (!hasDisplay) {
        for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            environment.remove(QLatin1String(name));
    }
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(SHELL_PROGRAM), arguments);
    process.waitForFinished(60000);
    if (errors)
        *errors = process.readAllStandardError();
    if (exitCode)
        *exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    return process.readAllStandardOutput();
}

void tst_Headless::walksTheRoad()
{
    ShellFixture shell;
    QString text;
    QString errors;
    QTextStream out(&text);
    QTextStream err(&errors);
    const QString picture = shell.folder.filePath(QStringLiteral("page.png"));
    QCOMPARE(Headless::walk(shell.services, {0, picture}, out, err), 0);
    QCOMPARE(errors, QString());
    const QStringList lines = text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 30);
    QCOMPARE(lines[0], QStringLiteral("The device received profile 1:"));
    QCOMPARE(lines[9].simplified(), QStringLiteral("7 W KEYBOARD 5 B"));
    QCOMPARE(lines[10].simplified(), QStringLiteral("8 E UNASSIGNED 255 UNASSIGNED"));
    QCOMPARE(QImage(picture).size(), QSize(784, 808));
    QCOMPARE(ushort(shell.device().image(0, 0).keys[7].content.mapping.code), ushort(5));
}

void tst_Headless::walksOnAnotherProfile()
{
    ShellFixture shell;
    QString text;
    QTextStream out(&text);
    QCOMPARE(Headless::walk(shell.services, {11, QString()}, out, out), 0);
    QVERIFY(text.startsWith(QStringLiteral("The device received profile 12:")));
    QCOMPARE(shell.device().currentProfile(), 11);
}

void tst_Headless::tellsWhenThePictureCannotBeWritten()
{
    ShellFixture shell;
    QString text;
    QString errors;
    QTextStream out(&text);
    QTextStream err(&errors);
    const QString picture = shell.folder.filePath(QStringLiteral("no/such/folder.png"));
    QCOMPARE(Headless::walk(shell.services, {0, picture}, out, err), 1);
    QVERIFY(errors.contains(QStringLiteral("could not be written")));
}

void tst_Headless::printsStoreAndDevice()
{
    ShellFixture shell;
    shell.assign(7, 5);
    shell.apply();
    shell.assign(7, 6);
    QString text;
    QTextStream out(&text);
    Headless::printProfile(shell.services, 0, out);
    const int device = text.indexOf(QStringLiteral("Device:"));
    QVERIFY(text.left(device).simplified().contains(QStringLiteral("7 W KEYBOARD 6 C")));
    QVERIFY(text.mid(device).simplified().contains(QStringLiteral("7 W KEYBOARD 5 B")));
}

void tst_Headless::program()
{
    int exitCode = -1;
    const QByteArray text = run({QStringLiteral("--headless")}, nullptr, &exitCode);
    QCOMPARE(exitCode, 0);
    QCOMPARE(text.count('\n'), 30);
}

void tst_Headless::programWithoutDisplay()
{
    int exitCode = -1;
    QByteArray errors;
    const QByteArray text = run({}, &errors, &exitCode, false);
    QCOMPARE(exitCode, 0);
    QVERIFY(errors.contains("There is no display: running headless."));
    QCOMPARE(text.count('\n'), 30);
}

/// A folder of somebody's gets a key only when --headless asks for it.
void tst_Headless::programWithoutDisplayOnData()
{
    const QTemporaryDir folder;
    for (const QString &data : {QStringLiteral("--data=%1"), QStringLiteral("--data %1")}) {
        int exitCode = -1;
        QByteArray errors;
        QCOMPARE(run(data.arg(folder.path()).split(' '), &errors, &exitCode, false), QByteArray());
        QCOMPARE(exitCode, 2);
        QCOMPARE(errors, QByteArray("There is no display, and --headless was not given.\n"));
    }
    QVERIFY(QDir(folder.path()).isEmpty());
}

void tst_Headless::programKeepsItsDataFolder()
{
    const QTemporaryDir folder;
    const QStringList data = {QStringLiteral("--data"), folder.path()};
    run(QStringList(data) << QStringLiteral("--headless") << QStringLiteral("--profile")
                          << QStringLiteral("3"));
    QVERIFY(QFile::exists(folder.filePath(QStringLiteral("profiles.sqlite"))));
    const QByteArray text =
        run(QStringList(data) << QStringLiteral("--print-profile") << QStringLiteral("--profile")
                              << QStringLiteral("3"));
    QCOMPARE(text.simplified().count("7 W KEYBOARD 5 B"), 2);
}

void tst_Headless::brokenStore_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("no store") << QByteArray("This is not a store of profiles.\n").repeated(99);
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("cut") << QByteArray("SQLite format 3\0\x10\0\1\1\0\x40\x20\x20", 24);
}

/// The program says in plain words what is wrong, keeps the file, and works all the same.
void tst_Headless::brokenStore()
{
    QFETCH(QByteArray, bytes);
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("profiles.sqlite")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();
    int exitCode = -1;
    QByteArray errors;
    const QByteArray text =
        run({QStringLiteral("--data"), folder.path(), QStringLiteral("--headless")}, &errors,
            &exitCode);
    QCOMPARE(exitCode, 0);
    QCOMPARE(text.count('\n'), 30);
    if (bytes.isEmpty())
        return; // nothing is lost
    QVERIFY2(errors.contains("is damaged and cannot be read"), errors);
    bool isKept = false;
    const auto names = QDir(folder.path()).entryList(QDir::Files);
    for (const QString &name : names) {
        QFile kept(folder.filePath(name));
        QVERIFY(kept.open(QIODevice::ReadOnly));
        isKept |= kept.readAll() == bytes;
    }
    QVERIFY(isKept);
}

void tst_Headless::badOptions_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("error");
    const QByteArray profiles = " is no profile: --profile takes a number from 1 to 24.\n";
    const QByteArray languages =
        " is no language: --language takes ChineseSimplified, ChineseTraditional, English, French, "
        "German, Italian, Japanese, Korean, Malay, Portuguese, Russian, Spanish, Thai, Turkish, "
        "Vietnamese, or a number from 0 to 14.\n";
    for (const char *value : {"0", "25", "-1", "x", "7x", ""})
        QTest::addRow("profile %s", value)
            << QStringList({"--headless", QStringLiteral("--profile=%1").arg(value)})
            << '"' + QByteArray(value) + '"' + profiles;
    for (const char *value : {"Elvish", "15", "-1", "%1", ""})
        QTest::addRow("language %s", value)
            << QStringList({"--headless", QStringLiteral("--language=") + value})
            << '"' + QByteArray(value) + '"' + languages;
    QTest::newRow("unknown") << QStringList({"--headless", "--nonsense"})
                             << QByteArray("Unknown option 'nonsense'.\n");
}

/// One line says what is wrong and what is allowed.
void tst_Headless::badOptions()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, error);
    // Without a folder of this kind Qt has a line of its own to say.
    const QTemporaryDir runtime;
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime.path()));
    int exitCode = 0;
    QByteArray errors;
    const QByteArray text = run(arguments, &errors, &exitCode);
    QVERIFY(exitCode > 0);
    QCOMPARE(text, QByteArray());
    QCOMPARE(errors, "vantrix: " + error);
}

VANTRIX_TEST_MAIN(tst_Headless)
#include "tst_Headless.moc"
