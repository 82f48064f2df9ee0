#include "application/ReadHotKeysThr.h"

#include "CatalogFolder.h"
#include "support/QtUnderTsan.h"
#include "support/TestMain.h"

#include <QRandomGenerator>
#include <QSignalSpy>
#include <QThreadPool>

#include <memory>

using Keys = std::map<QString, QString>;

namespace {

/// The format once more, row by row and as plainly as it goes.
HotKeyMap plainRead(const QString &path)
{
    HotKeyMap hotKeys;
    QStringList waiting;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        qFatal("cannot read %s", qPrintable(path));
    while (!file.atEnd()) {
        const QString row(file.readLine());
        if (row.startsWith(QStringLiteral("\t\t\t\t"))) {
            waiting.clear();
            continue;
        }
        waiting << row;
        if (waiting.size() < 2)
            continue;
        const QStringList names = waiting.at(0).split(QLatin1Char('\t'));
        const QStringList texts = waiting.at(1).split(QLatin1Char('\t'));
        waiting.clear();
        if (names.size() != texts.size() || names.at(0).isEmpty())
            continue;
        Keys keys;
        for (int i = 2; i < names.size() && !names.at(i).isEmpty(); ++i)
            keys[names.at(i).toUpper().remove(QLatin1Char('\n'))] =
                texts.at(i).toUpper().remove(QLatin1Char('\n'));
        hotKeys[names.at(0).toUpper()] = keys;
    }
    return hotKeys;
}

/// Writes files of chance, with the oddities that it is told.
class Generator
{
public:
    explicit Generator(quint32 seed) : m_random(seed) {}

    QByteArray bytes(const QStringList &features)
    {
        m_features = features;
        QByteArray all;
        const int pairs = below(40);
        for (int i = 0; i < pairs; ++i) {
            if (chance("separators", 3))
                all += separator();
            const int columns = below(12);
            all += row(columns) + lineEnd();
            if (chance("separators", 6))
                all += separator();
            if (chance("blank", 5))
                all += lineEnd();
            all += row(chance("unequal", 4) ? below(12) : columns) + lineEnd();
        }
        if (has("no end") && all.endsWith('\n'))
            all.chop(all.endsWith("\r\n") ? 2 : 1);
        return all;
    }

private:
    bool has(const char *feature) const { return m_features.contains(QLatin1String(feature)); }
    int below(int limit) { return int(m_random.bounded(limit)); }
    bool chance(const char *feature, int oneOf) { return has(feature) && below(oneOf) == 0; }
    QByteArray lineEnd() { return has("crlf") ? "\r\n" : "\n"; }
    QByteArray separator() { return QByteArray(4 + below(3), '\t') + word() + lineEnd(); }

    QByteArray word()
    {
        static const QByteArrayList words = {"Copy",
                                             "paste",
                                             "x",
                                             "",
                                             "\xC3\xA9t\xC3\xA9",
                                             "stra\xC3\x9F"
                                             "e",
                                             "\xE2\x8C\x98",
                                             "a b",
                                             "GROUP",
                                             "ctrl+c"};
        static const QByteArrayList broken = {"\xC3",
                                              "\xE2\x82",
                                              "\xFF\xFE",
                                              "\x80"
                                              "a",
                                              "\xED\xA0\x80",
                                              "\xEF\xBB\xBF"
                                              "a",
                                              "\xF4\x90\x80\x80"};
        if (chance("invalid", 6))
            return broken.at(below(broken.size()));
        if (chance("nul", 10))
            return QByteArray("cut\0off", 7);
        return words.at(below(words.size()));
    }

    QByteArray row(int columns)
    {
        QByteArray bytes = word();
        for (int i = 1; i < columns; ++i)
            bytes += '\t' + word();
        return bytes;
    }

    QRandomGenerator m_random;
    QStringList m_features;
};

QString text(const HotKeyMap &map)
{
    QString result;
    for (const auto &group : map) {
        result += QLatin1Char('[') + group.first + QLatin1Char(']');
        for (const auto &key : group.second)
            result += key.first + QLatin1Char('=') + key.second + QLatin1Char(';');
    }
    return result.replace(QLatin1Char('\n'), QLatin1String("\\n"));
}

/// Runs a reader and notes its signals in their order.
class Reading
{
public:
    Reading()
    {
        QObject::connect(&reader, &ReadHotKeysThr::sigAddTopLevel,
                         [this](const QString &top) { log << top; });
        QObject::connect(&reader, &ReadHotKeysThr::sigAddSecondLev,
                         [this](const QString &top, const QStringList &second) {
                             log << top + QLatin1Char(':') + second.join(QLatin1Char(','));
                         });
        QObject::connect(&reader, &ReadHotKeysThr::sigAddHotKeys,
                         [this](const QString &top, const QString &second, const QString &third,
                                const HotKeyMap &map) {
                             log << top + QLatin1Char('/') + second + QLatin1Char('/') + third +
                                        QLatin1Char(' ') + text(map);
                         });
    }
    /// Everything that a catalog gives.
    QStringList all()
    {
        reader.startRead();
        reader.wait();
        QThreadPool::globalInstance()->waitForDone();
        int before = -1;
        while (before != log.size()) {
            before = log.size();
            QTest::qWait(1);
        }
        return log;
    }

    ReadHotKeysThr reader;
    QStringList log;
};

} // namespace

class tst_ReadHotKeysThr : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_catalog = std::make_unique<CatalogFolder>(); }
    void cleanup();
    void format_data();
    void format();
    void sameAsPlainParser_data();
    void sameAsPlainParser();
    void longLine_data();
    void longLine();
    void walkInOrder();
    void foldersWithoutOrder();
    void filesInOrder();
    void stopsInTheMiddleOfAFile();
    void onlyItsDepths();
    void namesOfFiles();
    void noCatalog_data();
    void noCatalog();
    void emptyFolders();
    void fileThatCannotBeRead();
    void tooLargeFile();
    void stopIsNotAbandon();
    void stoppedBeforeItBegan();
    void abandonedSaysNothing();
    void secondWalk();
    void destroyedAtAnyTime_data();
    void destroyedAtAnyTime();
    void destroyedFromItsSignal();
    void manyFiles();
    void mapCrossesThreads();

private:
    std::unique_ptr<CatalogFolder> m_catalog;
};

void tst_ReadHotKeysThr::cleanup()
{
    QThreadPool::globalInstance()->waitForDone();
    m_catalog.reset();
}

void tst_ReadHotKeysThr::format_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const QByteArray &bytes, const char *expected) {
        QTest::newRow(name) << bytes << QString::fromUtf8(expected);
    };
    row("empty", "", "");
    row("one pair", "Edit\t\tCopy\tPaste\n\t\tctrl+c\tctrl+v\n", "[EDIT]COPY=CTRL+C;PASTE=CTRL+V;");
    row("CR LF", "Edit\t\tCopy\r\n\t\tctrl+c\r\n", "[EDIT]COPY=CTRL+C;");
    row("CR alone", "E\t\tA\tB\n\t\tx\ry\tz\r\r\n", "[E]A=X\rY;B=Z\r;");
    row("no line end", "Edit\t\tCopy\n\t\tctrl+c", "[EDIT]COPY=CTRL+C;");
    row("only separators", "\t\t\t\t\n\t\t\t\tx\n\t\t\t\t\t\n", "");
    row("empty name ends the pair", "E\t\tA\t\tB\n\t\t1\t2\t3\n", "[E]A=1;");
    row("two columns", "E\t\n\t\n", "[E]");
    row("one column", "E\nx\n", "[E\\n]");
    row("two blank lines", "\n\n", "[\\n]");
    row("no title", "\t\tA\n\t\t1\n", "");
    row("unequal", "E\t\tA\n\t\t1\t2\nF\t\tB\n\t\t2\n", "[F]B=2;");
    row("name row at the end", "E\t\tA\n\t\t1\nF\t\tB\n", "[E]A=1;");
    row("stray between separators", "\t\t\t\t\nX\n\t\t\t\t\nE\t\tA\n\t\t1\n", "[E]A=1;");
    row("stray shifts", "X\nE\t\tA\n\t\t1\n", "");
    row("separator takes the name row", "E\t\tA\n\t\t\t\t\n\t\t1\nF\t\tB\n", "");
    row("three tabs are a row", "E\t\tA\tB\n\t\t\tx\n", "[E]A=;B=X;");
    row("title twice", "E\t\tA\n\t\t1\nE\t\tB\n\t\t2\n", "[E]B=2;");
    row("name twice", "E\t\tA\ta\n\t\t1\t2\n", "[E]A=2;");
    row("no text", "E\t\tA\tB\n\t\t\tX\n", "[E]A=;B=X;");
    row("last name is the line end", "E\t\tA\t\n\t\t1\t2\n", "[E]=2;A=1;");
    row("title is not stripped", " e \t\tA\n\t\t1\n", "[ E ]A=1;");
    row("NUL ends a line", QByteArray("E\t\tA\0B\tC\n\t\t1\n", 13), "[E]A=1;");
    row("NUL at the front", QByteArray("\0\n\0\nE\t\tA\n\t\t1\n", 13), "[E]A=1;");
    row("not UTF-8", "E\t\tA\xFF\n\t\t1\n", "[E]A\xEF\xBF\xBD=1;");
    row("upper case grows",
        "E\t\tstra\xC3\x9F"
        "e\n\t\t1\n",
        "[E]STRASSE=1;");
    row("byte order mark",
        "\xEF\xBB\xBF"
        "E\t\tA\n\t\t1\n",
        "[E]A=1;");
}

void tst_ReadHotKeysThr::format()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, expected);
    QCOMPARE(text(HotKeyFile::parse(bytes)), expected);
    m_catalog->addFile(QStringLiteral("A/B/C"), bytes);
    QCOMPARE(text(plainRead(m_catalog->root() + QStringLiteral("/A/B/C"))), expected);
    const QStringList log{QStringLiteral("A"), QStringLiteral("A:B"),
                          QStringLiteral("A/B/C ") + expected};
    QCOMPARE(Reading().all(), log);
}

void tst_ReadHotKeysThr::sameAsPlainParser_data()
{
    QTest::addColumn<QStringList>("features");
    QTest::newRow("well-formed") << QStringList();
    for (const char *feature :
         {"unequal", "separators", "blank", "crlf", "nul", "invalid", "no end"})
        QTest::newRow(feature) << QStringList(QLatin1String(feature));
    QTest::newRow("all") << QStringList{QStringLiteral("unequal"), QStringLiteral("separators"),
                                        QStringLiteral("blank"),   QStringLiteral("crlf"),
                                        QStringLiteral("nul"),     QStringLiteral("invalid"),
                                        QStringLiteral("no end")};
}

void tst_ReadHotKeysThr::sameAsPlainParser()
{
    QFETCH(QStringList, features);
    int groups = 0;
    for (quint32 seed = 1; seed <= 150; ++seed) {
        m_catalog->addFile(QStringLiteral("A/B/C.txt"), Generator(seed).bytes(features));
        const QString file = m_catalog->root() + QStringLiteral("/A/B/C.txt");
        HotKeyMap read;
        QVERIFY(HotKeyFile::read(file, read, [] { return false; }));
        const HotKeyMap plain = plainRead(file);
        QCOMPARE(text(read), text(plain));
        groups += int(plain.size());
    }
    QVERIFY(groups > 300);
}

void tst_ReadHotKeysThr::longLine_data()
{
    QTest::addColumn<QByteArray>("line");
    const int MiB = 1024 * 1024;
    QTest::newRow("letters") << QByteArray(MiB, 'a');
    QTest::newRow("name") << "E\t\t" + QByteArray(MiB, 'a');
    QTest::newRow("tabs") << "E" + QByteArray(MiB, '\t');
    QTest::newRow("columns") << "E\t" + QByteArray("\tab").repeated(MiB / 3);
    QTest::newRow("NULs") << QByteArray(MiB, '\0');
    QTest::newRow("broken") << "E\t\t" + QByteArray(MiB, '\xFF');
}

void tst_ReadHotKeysThr::longLine()
{
    QFETCH(QByteArray, line);
    for (const QByteArray &bytes : {line, line + '\n' + line, line + "\nx\n" + line + '\n'}) {
        m_catalog->addFile(QStringLiteral("A/B/C"), bytes);
        const HotKeyMap plain = plainRead(m_catalog->root() + QStringLiteral("/A/B/C"));
        QVERIFY(HotKeyFile::parse(bytes) == plain);
    }
}

void tst_ReadHotKeysThr::walkInOrder()
{
    m_catalog->addFile(QStringLiteral("b/X/one.txt"), "E\t\tA\n\t\t1\n");
    m_catalog->addFile(QStringLiteral("A/z/two.txt"), "");
    m_catalog->addFile(QStringLiteral("A/Y/three.txt"), "");
    m_catalog->addFile(QStringLiteral("C/M/four.txt"), "");
    Reading reading;
    QStringList log = reading.all();
    QStringList names;
    for (const QString &line : log) {
        if (!line.contains(QLatin1Char('/')))
            names << line;
    }
    QCOMPARE(names,
             QStringList({QStringLiteral("A"), QStringLiteral("A:Y,z"), QStringLiteral("b"),
                          QStringLiteral("b:X"), QStringLiteral("C"), QStringLiteral("C:M")}));
    for (const char *file : {"A/Z/TWO ", "A/Y/THREE ", "B/X/ONE [E]A=1;", "C/M/FOUR "})
        QCOMPARE(log.count(QLatin1String(file)), 1);
    QVERIFY(log.indexOf(QStringLiteral("A/Z/TWO ")) > log.indexOf(QStringLiteral("A:Y,z")));
    QVERIFY(log.indexOf(QStringLiteral("B/X/ONE [E]A=1;")) > log.indexOf(QStringLiteral("b:X")));
    QCOMPARE(log.size(), 10);
}

void tst_ReadHotKeysThr::foldersWithoutOrder()
{
    for (int i = 0; i < 9; ++i)
        m_catalog->addFile(QStringLiteral("A/%1/F").arg(QChar(i % 2 ? 'a' + i : 'A' + i)), "");
    const QStringList log = Reading().all();
    QCOMPARE(log.at(1), QStringLiteral("A:A,b,C,d,E,f,G,h,I"));
}

/// Files are begun folder by folder, capitals first, and in a folder by name, ignoring case.
void tst_ReadHotKeysThr::filesInOrder()
{
    for (const char *file : {"A/b/x", "A/C/d", "A/C/E", "A/C/c", "A/D/x"})
        m_catalog->addFile(QLatin1String(file), "");
    QThreadPool *const pool = QThreadPool::globalInstance();
    const int threads = pool->maxThreadCount();
    pool->setMaxThreadCount(1);
    const QStringList log = Reading().all();
    pool->setMaxThreadCount(threads);
    QCOMPARE(log,
             QStringList({QStringLiteral("A"), QStringLiteral("A:b,C,D"), QStringLiteral("A/C/C "),
                          QStringLiteral("A/C/D "), QStringLiteral("A/C/E "),
                          QStringLiteral("A/D/X "), QStringLiteral("A/B/X ")}));
}

void tst_ReadHotKeysThr::stopsInTheMiddleOfAFile()
{
    m_catalog->addFile(QStringLiteral("A/B/C"), CatalogFolder::rows(4000, 1));
    int questions = 0;
    const auto stopped = [&questions] {
        return ++questions > 2;
    };
    HotKeyMap read;
    QVERIFY(!HotKeyFile::read(m_catalog->root() + QStringLiteral("/A/B/C"), read, stopped));
    QVERIFY2(!read.empty() && read.size() < 1000, qPrintable(QString::number(read.size())));
    QVERIFY2(questions < 10, qPrintable(QString::number(questions)));
}

void tst_ReadHotKeysThr::onlyItsDepths()
{
    m_catalog->addFile(QStringLiteral("FILE"), "E\t\tA\n\t\t1\n");
    m_catalog->addFile(QStringLiteral("A/FILE"), "E\t\tA\n\t\t1\n");
    m_catalog->addFile(QStringLiteral("A/B/FILE"), "");
    m_catalog->addFile(QStringLiteral("A/B/C/FILE"), "E\t\tA\n\t\t1\n");
    m_catalog->addFile(QStringLiteral(".HIDDEN/B/FILE"), "");
    m_catalog->addFile(QStringLiteral("A/.HIDDEN/FILE"), "");
    m_catalog->addFile(QStringLiteral("A/B/.HIDDEN"), "");
    const QString root = m_catalog->root();
    QVERIFY(QFile::link(root + QStringLiteral("/A"), root + QStringLiteral("/LINK")));
    QVERIFY(QFile::link(root + QStringLiteral("/A/B"), root + QStringLiteral("/A/LINK")));
    QVERIFY(QFile::link(root + QStringLiteral("/FILE"), root + QStringLiteral("/A/B/LINK")));
    QCOMPARE(Reading().all(), QStringList({QStringLiteral("A"), QStringLiteral("A:B"),
                                           QStringLiteral("A/B/FILE ")}));
}

void tst_ReadHotKeysThr::namesOfFiles()
{
    for (const char *name : {"noend", "two.dots.txt", "Two.other"})
        m_catalog->addFile(QStringLiteral("A/B/") + QLatin1String(name), "");
    QStringList log = Reading().all();
    log.sort();
    QCOMPARE(log, QStringList({QStringLiteral("A"), QStringLiteral("A/B/NOEND "),
                               QStringLiteral("A/B/TWO "), QStringLiteral("A/B/TWO "),
                               QStringLiteral("A:B")}));
}

void tst_ReadHotKeysThr::noCatalog_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("none") << QString();
    QTest::newRow("missing") << QStringLiteral("/nowhere/at/all");
    QTest::newRow("a file") << QStringLiteral("/dev/null");
}

void tst_ReadHotKeysThr::noCatalog()
{
    QFETCH(QString, folder);
    CfgFile::Locations locations;
    locations.hotKeysFolder = folder;
    CfgFile::setLocations(locations);
    Reading reading;
    QCOMPARE(reading.all(), QStringList());
    QVERIFY(reading.reader.isFinished());
}

void tst_ReadHotKeysThr::emptyFolders()
{
    m_catalog->addFolder(QStringLiteral("A"));
    m_catalog->addFolder(QStringLiteral("B/C"));
    QCOMPARE(Reading().all(), QStringList({QStringLiteral("A"), QStringLiteral("A:"),
                                           QStringLiteral("B"), QStringLiteral("B:C")}));
}

void tst_ReadHotKeysThr::fileThatCannotBeRead()
{
    HotKeyMap read;
    QVERIFY(!HotKeyFile::read(m_catalog->root(), read, [] { return false; }));
    m_catalog->addFile(QStringLiteral("A/B/C"), "");
    QFile file(m_catalog->root() + QStringLiteral("/A/B/C"));
    QVERIFY(file.setPermissions(QFileDevice::WriteOwner));
    // Some users may read everything.
    if (file.open(QIODevice::ReadOnly))
        return;
    m_catalog->addFile(QStringLiteral("A/B/D"), "");
    QCOMPARE(Reading().all(),
             QStringList({QStringLiteral("A"), QStringLiteral("A:B"), QStringLiteral("A/B/D ")}));
}

void tst_ReadHotKeysThr::tooLargeFile()
{
    m_catalog->addFile(QStringLiteral("A/B/C"), "E\t\tA\n\t\t1\n");
    m_catalog->addFile(QStringLiteral("A/B/D"), "E\t\tA\n\t\t1\n");
    QFile file(m_catalog->root() + QStringLiteral("/A/B/C"));
    QVERIFY(file.resize(16 * 1024 * 1024));
    QCOMPARE(Reading().all().size(), 4);
    QVERIFY(file.resize(16 * 1024 * 1024 + 1));
    QCOMPARE(Reading().all(), QStringList({QStringLiteral("A"), QStringLiteral("A:B"),
                                           QStringLiteral("A/B/D [E]A=1;")}));
}

void tst_ReadHotKeysThr::stopIsNotAbandon()
{
    for (int i = 0; i < 50; ++i)
        m_catalog->addFile(QStringLiteral("A/B/C%1").arg(i), "");
    Reading reading;
    reading.reader.startRead();
    QTRY_VERIFY(!reading.log.isEmpty());
    reading.reader.stopRead();
    QVERIFY(!reading.reader.isRunning());
    QTRY_COMPARE(reading.log.size(), 52);
}

void tst_ReadHotKeysThr::stoppedBeforeItBegan()
{
    ReadHotKeysThr reader;
    reader.stopRead();
    QVERIFY(!reader.isRunning());
}

void tst_ReadHotKeysThr::abandonedSaysNothing()
{
    for (int i = 0; i < 50; ++i)
        m_catalog->addFile(QStringLiteral("A/B/C%1").arg(i), CatalogFolder::rows(3, 3));
    Reading reading;
    reading.reader.startRead();
    QTRY_VERIFY(reading.log.size() >= 2);
    reading.reader.abandon();
    const int before = reading.log.size();
    QThreadPool::globalInstance()->waitForDone();
    QTest::qWait(20);
    QCOMPARE(reading.log.size(), before);
}

void tst_ReadHotKeysThr::secondWalk()
{
    m_catalog->addFile(QStringLiteral("A/B/C"), "");
    Reading reading;
    QCOMPARE(reading.all().size(), 3);
    m_catalog->addFile(QStringLiteral("A/B/D"), "");
    QTest::qWait(20);
    QCOMPARE(reading.log.size(), 3);
    QCOMPARE(reading.all().size(), 7);
}

void tst_ReadHotKeysThr::destroyedAtAnyTime_data()
{
    QTest::addColumn<int>("moment");
    QTest::newRow("at once") << 0;
    QTest::newRow("while walking") << 1;
    QTest::newRow("walk over, tasks under way") << 2;
    QTest::newRow("tasks over, results queued") << 3;
    QTest::newRow("some taken") << 4;
}

void tst_ReadHotKeysThr::destroyedAtAnyTime()
{
    QFETCH(int, moment);
    for (int i = 0; i < 200; ++i)
        m_catalog->addFile(QStringLiteral("A/B%1/C%2").arg(i % 20).arg(i),
                           CatalogFolder::rows(5, 5));
    auto reading = std::make_unique<Reading>();
    if (moment > 0)
        reading->reader.startRead();
    if (moment == 1)
        QThread::usleep(500);
    if (moment > 1)
        reading->reader.wait();
    if (moment > 2)
        QThreadPool::globalInstance()->waitForDone();
    if (moment == 4)
        QTRY_VERIFY(reading->log.size() > 10);
    reading.reset();
    QTest::qWait(5);
}

void tst_ReadHotKeysThr::destroyedFromItsSignal()
{
    for (int i = 0; i < 20; ++i)
        m_catalog->addFile(QStringLiteral("A/B/C%1").arg(i), CatalogFolder::rows(2, 2));
    auto *const reader = new ReadHotKeysThr;
    int files = 0;
    connect(reader, &ReadHotKeysThr::sigAddHotKeys, this, [&] {
        if (++files == 3)
            delete reader;
    });
    reader->startRead();
    QTRY_COMPARE(files, 3);
    QTest::qWait(20);
    QCOMPARE(files, 3);
}

void tst_ReadHotKeysThr::manyFiles()
{
    for (int i = 0; i < 600; ++i)
        m_catalog->addFile(QStringLiteral("A%1/B/C%2").arg(i % 4).arg(i),
                           CatalogFolder::rows(2, 4));
    Reading reading;
    QCOMPARE(reading.all().size(), 4 + 4 + 600);
}

void tst_ReadHotKeysThr::mapCrossesThreads()
{
    m_catalog->addFile(QStringLiteral("A/B/C"), "E\t\tA\n\t\t1\n");
    ReadHotKeysThr reader;
    QVERIFY(QMetaType::type("std::map<QString, std::map< QString, QString >>") !=
            QMetaType::UnknownType);
    QSignalSpy spy(&reader, &ReadHotKeysThr::sigAddHotKeys);
    reader.startRead();
    QTRY_COMPARE(spy.size(), 1);
    const HotKeyMap expected{{QStringLiteral("E"), {{QStringLiteral("A"), QStringLiteral("1")}}}};
    QVERIFY(spy.at(0).at(3).value<HotKeyMap>() == expected);
}

VANTRIX_TEST_MAIN(tst_ReadHotKeysThr)

#include "tst_ReadHotKeysThr.moc"
