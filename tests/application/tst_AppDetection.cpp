#include "application/AppDetection.h"

#include "fakes/FakeProfileCfg.h"
#include "interfaces/CfgFile.h"
#include "support/TestMain.h"

#include <QDir>
#include <QFile>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QThreadPool>

#include <memory>

namespace {

const QString uninstall =
    QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\");

void writeFile(const QString &path, const QString &text)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text.toUtf8());
}

/// A registry of files in the current folder.
struct Registry
{
    /// Lists an uninstall group; `values` are lines of its own file.
    void add(const QString &group, const QStringList &values)
    {
        list += QStringLiteral("[%1]\nlisted=1\n").arg(group);
        writeFile(uninstall, list);
        writeFile(uninstall + group, QStringLiteral("[General]\n") +
                                         values.join(QLatin1Char('\n')) + QLatin1Char('\n'));
    }

    void add(const QString &group, int major, int minor, const QString &location = {})
    {
        QStringList values{QStringLiteral("VersionMajor=%1").arg(major),
                           QStringLiteral("VersionMinor=%1").arg(minor)};
        if (!location.isEmpty())
            values << QStringLiteral("InstallLocation=%1").arg(location);
        add(group, values);
    }

    QString list;
};

/// Keeps detections waiting.
class BusyPool
{
public:
    BusyPool() { m_threads = QThreadPool::globalInstance()->maxThreadCount(); }

    /// Keeps all threads of the pool busy.
    void block()
    {
        for (int i = 0; i < m_threads; ++i)
            QThreadPool::globalInstance()->start([this] { m_gate.acquire(); });
    }
    void release() { m_gate.release(m_threads); }

private:
    int m_threads;
    QSemaphore m_gate;
};

} // namespace

class tst_AppDetection : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void storedPathThatExists();
    void storedPathThatIsGone();
    void shortList_data();
    void shortList();
    void latestPathOfTheList();
    void listComesBeforeRegistry();
    void registryAfterList_data();
    void registryAfterList();
    void nothingFoundIsStored();
    void unusualPaths_data();
    void unusualPaths();
    void newestGroup_data();
    void newestGroup();
    void missingVersionsCountAsNothing();
    void hugeVersionsAreNegative();
    void noGroups();
    void codeIsCaseSensitive();
    void codeIsAPrefix();
    void newestWithoutLocation();
    void newestWithoutExecutable();
    void separatorIsNotTrimmed();
    void unknownType_data();
    void unknownType();
    void startLooksForAllThree();
    void startReturnsAtOnce();
    void storeTakenAway();

private:
    QString makeFile(const QString &name)
    {
        const QString path = m_folder->filePath(name);
        writeFile(path, QStringLiteral("x"));
        return path;
    }
    QString registryPath(int appType)
    {
        QString path = QStringLiteral("before");
        AppDetection::registryPath(appType, path);
        return path;
    }
    QString stored(int appType)
    {
        QString path;
        m_store->getAppPath(appType, path);
        return path;
    }
    void setLatest(const QStringList &paths) { CfgFile::setLocations({QString(), paths}); }
    /// An installation of Photoshop with its executable there.
    QString install(const QString &folder)
    {
        makeFile(folder + QStringLiteral("/Photoshop.exe"));
        return m_folder->filePath(folder);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<FakeProfileCfg> m_store;
    QString m_before;
};

void tst_AppDetection::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_store = std::make_unique<FakeProfileCfg>();
    m_before = QDir::currentPath();
    QDir::setCurrent(m_folder->path());
}

void tst_AppDetection::cleanup()
{
    QVERIFY(QThreadPool::globalInstance()->waitForDone());
    CfgFile::setLocations({});
    QDir::setCurrent(m_before);
    m_store.reset();
    m_folder.reset();
}

void tst_AppDetection::storedPathThatExists()
{
    const QString path = makeFile(QStringLiteral("a.exe"));
    m_store->setAppPath(0, path);
    setLatest({makeFile(QStringLiteral("b.exe"))});
    AppDetection::detect(0);
    QCOMPARE(stored(0), path);
    QCOMPARE(m_store->setAppPathCount, 1);
}

void tst_AppDetection::storedPathThatIsGone()
{
    m_store->setAppPath(0, m_folder->filePath(QStringLiteral("gone.exe")));
    const QString path = makeFile(QStringLiteral("b.exe"));
    setLatest({path});
    AppDetection::detect(0);
    QCOMPARE(stored(0), path);
    QCOMPARE(m_store->setAppPathCount, 2);
}

void tst_AppDetection::shortList_data()
{
    QTest::addColumn<int>("appType");
    QTest::newRow("one entry, second type") << 1;
    QTest::newRow("one entry, third type") << 2;
    QTest::newRow("negative type") << -1;
}

void tst_AppDetection::shortList()
{
    QFETCH(int, appType);
    Registry registry;
    makeFile(QStringLiteral("app/Adobe Premiere Pro.exe"));
    makeFile(QStringLiteral("app/Illustrator.exe"));
    registry.add(QStringLiteral("PPRO_1"), 1, 0, m_folder->filePath(QStringLiteral("app")));
    registry.add(QStringLiteral("ILST_1"), 1, 0, m_folder->filePath(QStringLiteral("app")));
    m_store->setAppPath(appType, m_folder->filePath(QStringLiteral("gone.exe")));
    setLatest({makeFile(QStringLiteral("b.exe"))});
    AppDetection::detect(appType);
    QCOMPARE(stored(appType), QString());
    QCOMPARE(m_store->setAppPathCount, 2);
}

void tst_AppDetection::latestPathOfTheList()
{
    const QStringList paths{makeFile(QStringLiteral("0.exe")), makeFile(QStringLiteral("1.exe")),
                            makeFile(QStringLiteral("2.exe"))};
    setLatest(paths);
    for (int appType = 0; appType < 3; ++appType) {
        AppDetection::detect(appType);
        QCOMPARE(stored(appType), paths.at(appType));
    }
}

void tst_AppDetection::listComesBeforeRegistry()
{
    Registry registry;
    registry.add(QStringLiteral("PHSP_1"), 20, 0, install(QStringLiteral("ps")));
    const QString path = makeFile(QStringLiteral("listed.exe"));
    setLatest({path});
    AppDetection::detect(0);
    QCOMPARE(stored(0), path);
}

void tst_AppDetection::registryAfterList_data()
{
    QTest::addColumn<int>("appType");
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("executable");
    QTest::newRow("0") << 0 << "PHSP_21_0"
                       << "Photoshop.exe";
    QTest::newRow("1") << 1 << "PPRO_14_0"
                       << "Adobe Premiere Pro.exe";
    QTest::newRow("2") << 2 << "ILST_24_0"
                       << "Illustrator.exe";
}

void tst_AppDetection::registryAfterList()
{
    QFETCH(int, appType);
    QFETCH(QString, group);
    QFETCH(QString, executable);
    const QString path = makeFile(QStringLiteral("app/") + executable);
    Registry registry;
    registry.add(group, 21, 0, m_folder->filePath(QStringLiteral("app")));
    setLatest({QStringLiteral("gone"), QString(), QStringLiteral("gone")});
    AppDetection::detect(appType);
    QCOMPARE(stored(appType), path);
}

void tst_AppDetection::nothingFoundIsStored()
{
    setLatest({QString(), QString(), QString()});
    AppDetection::detect(0);
    QCOMPARE(stored(0), QString());
    QCOMPARE(m_store->setAppPathCount, 1);
    AppDetection::detect(0);
    QCOMPARE(m_store->setAppPathCount, 2);
}

void tst_AppDetection::unusualPaths_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("blanks") << "Program Files (x86)/My App 2/a b.exe";
    QTest::newRow("Cyrillic") << QString::fromUtf8("Программы/Фото.exe");
    QTest::newRow("Chinese") << QString::fromUtf8("程序/图像 处理.exe");
}

void tst_AppDetection::unusualPaths()
{
    QFETCH(QString, name);
    const QString path = makeFile(name);
    setLatest({path});
    AppDetection::detect(0);
    QCOMPARE(stored(0), path);
}

void tst_AppDetection::newestGroup_data()
{
    QTest::addColumn<QVector<QPoint>>("versions");
    QTest::addColumn<QString>("latest");
    using Versions = QVector<QPoint>;
    QTest::newRow("equal: the second") << Versions{{12, 0}, {12, 0}} << "PHSP_1";
    QTest::newRow("equal at the end") << Versions{{13, 1}, {14, 0}, {14, 0}} << "PHSP_2";
    QTest::newRow("higher minor first") << Versions{{14, 1}, {14, 0}} << "PHSP_0";
    QTest::newRow("higher minor last") << Versions{{14, 0}, {14, 1}} << "PHSP_1";
    QTest::newRow("major outweighs minor") << Versions{{14, 0}, {13, 9}} << "PHSP_0";
    QTest::newRow("minor starts anew with a major") << Versions{{13, 9}, {14, 0}} << "PHSP_1";
    QTest::newRow("nothing better") << Versions{{0, 0}} << "PHSP_0";
    QTest::newRow("zero after something") << Versions{{0, 1}, {0, 0}} << "PHSP_0";
}

void tst_AppDetection::newestGroup()
{
    QFETCH(QVector<QPoint>, versions);
    QFETCH(QString, latest);
    Registry registry;
    QStringList groups;
    for (const QPoint &version : qAsConst(versions)) {
        const QString group = QStringLiteral("PHSP_%1").arg(groups.size());
        registry.add(group, version.x(), version.y(), install(group));
        groups << group;
    }
    QString found;
    AppDetection::latestVersion(uninstall, groups, found);
    QCOMPARE(found, latest);
    QCOMPARE(registryPath(0), m_folder->filePath(latest + QStringLiteral("/Photoshop.exe")));
}

void tst_AppDetection::missingVersionsCountAsNothing()
{
    Registry registry;
    registry.add(QStringLiteral("PHSP_0"), {QStringLiteral("VersionMinor=3")});
    registry.add(QStringLiteral("PHSP_1"), QStringList{QStringLiteral("VersionMajor=1")});
    registry.add(QStringLiteral("PHSP_2"), {QStringLiteral("VersionMajor=junk")});
    const QStringList groups{QStringLiteral("PHSP_0"), QStringLiteral("PHSP_1"),
                             QStringLiteral("PHSP_2")};
    QString found;
    AppDetection::latestVersion(uninstall, groups, found);
    QCOMPARE(found, QStringLiteral("PHSP_1"));
}

void tst_AppDetection::hugeVersionsAreNegative()
{
    Registry registry;
    registry.add(QStringLiteral("PHSP_0"), {QStringLiteral("VersionMajor=4294967295")});
    registry.add(QStringLiteral("PHSP_1"), 0, 0);
    QString found;
    AppDetection::latestVersion(uninstall, {QStringLiteral("PHSP_1"), QStringLiteral("PHSP_0")},
                                found);
    QCOMPARE(found, QStringLiteral("PHSP_1"));
}

void tst_AppDetection::noGroups()
{
    QString found = QStringLiteral("before");
    AppDetection::latestVersion(uninstall, {}, found);
    QCOMPARE(found, QStringLiteral("before"));
    QCOMPARE(registryPath(0), QString());
}

void tst_AppDetection::codeIsCaseSensitive()
{
    Registry registry;
    registry.add(QStringLiteral("phsp_1"), 20, 0, install(QStringLiteral("ps")));
    QCOMPARE(registryPath(0), QString());
}

void tst_AppDetection::codeIsAPrefix()
{
    Registry registry;
    registry.add(QStringLiteral("X_PHSP_1"), 20, 0, install(QStringLiteral("other")));
    registry.add(QStringLiteral("ILST_1"), 20, 0, install(QStringLiteral("another")));
    QCOMPARE(registryPath(0), QString());
}

void tst_AppDetection::newestWithoutLocation()
{
    // The candidate would be "/Photoshop.exe".
    Registry registry;
    registry.add(QStringLiteral("PHSP_1"), 20, 0, install(QStringLiteral("old")));
    registry.add(QStringLiteral("PHSP_2"), 21, 0);
    QCOMPARE(registryPath(0), QString());
}

void tst_AppDetection::newestWithoutExecutable()
{
    Registry registry;
    registry.add(QStringLiteral("PHSP_1"), 20, 0, install(QStringLiteral("old")));
    registry.add(QStringLiteral("PHSP_2"), 21, 0, m_folder->filePath(QStringLiteral("new")));
    QCOMPARE(registryPath(0), QString());
}

void tst_AppDetection::separatorIsNotTrimmed()
{
    Registry registry;
    const QString folder = install(QStringLiteral("ps"));
    registry.add(QStringLiteral("PHSP_1"), 20, 0, folder + QLatin1Char('/'));
    QCOMPARE(registryPath(0), folder + QStringLiteral("//Photoshop.exe"));
}

void tst_AppDetection::unknownType_data()
{
    QTest::addColumn<int>("appType");
    QTest::newRow("3") << 3;
    QTest::newRow("-1") << -1;
}

void tst_AppDetection::unknownType()
{
    QFETCH(int, appType);
    Registry registry;
    registry.add(QStringLiteral("PHSP_1"), 20, 0, install(QStringLiteral("ps")));
    QCOMPARE(registryPath(appType), QString());
}

void tst_AppDetection::startLooksForAllThree()
{
    const QStringList paths{makeFile(QStringLiteral("0.exe")), makeFile(QStringLiteral("1.exe")),
                            makeFile(QStringLiteral("2.exe"))};
    setLatest(paths);
    AppDetection::start();
    QVERIFY(QThreadPool::globalInstance()->waitForDone());
    for (int appType = 0; appType < 3; ++appType)
        QCOMPARE(stored(appType), paths.at(appType));
    QCOMPARE(m_store->setAppPathCount, 3);
}

void tst_AppDetection::startReturnsAtOnce()
{
    BusyPool pool;
    pool.block();
    {
        // Whoever started the detection is gone before it runs.
        const auto page = std::make_unique<QObject>();
        AppDetection::start();
    }
    QCOMPARE(m_store->setAppPathCount, 0);
    pool.release();
    QVERIFY(QThreadPool::globalInstance()->waitForDone());
    QCOMPARE(m_store->setAppPathCount, 3);
}

void tst_AppDetection::storeTakenAway()
{
    BusyPool pool;
    pool.block();
    AppDetection::start();
    m_store.reset();
    pool.release();
    QVERIFY(QThreadPool::globalInstance()->waitForDone());
    AppDetection::detect(0);
    QVERIFY(!IVantrixProfileCfg::isInstalled());
}

VANTRIX_TEST_MAIN(tst_AppDetection)
#include "tst_AppDetection.moc"
