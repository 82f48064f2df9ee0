#include "host/HostServices.h"
#include "interfaces/CfgFile.h"
#include "support/TestMain.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThreadPool>

class tst_HostServices : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void installsEverything();
    void waitsForThePool();
    void storeIsInTheDataFolder();
    void environment();
    void mainWindowOfTheWidget();
    void keyCapture();
    void requests();
    void catalogOfTheUser();
    void catalogBySetting();
    void catalogOfTheProgram();
    void catalogPlaces_data();
    void catalogPlaces();
    void catalogOfThisTree();
    void catalogOfTheUserReplaces();
    void catalogIsNowhere();
    void latestPaths();

private:
    QString data() const { return m_folder->filePath(QStringLiteral("data")); }
    static QString catalog()
    {
        QString folder = QStringLiteral("x");
        CfgFile::ReadAppHotKeysFolder(folder);
        return folder;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_HostServices::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

void tst_HostServices::installsEverything()
{
    {
        HostServices services(data());
        QVERIFY(IVantrixProfileCfg::Instance() == &services.store());
        QVERIFY(IEnvironment::Instance() == &services.environment());
        QVERIFY(ISystemHotKey::Instance() == &services.keyCapture());
        QVERIFY(IParseVantrix::Instance() == &services.parse());
        QCOMPARE(services.device().currentProfile(), 0);
    }
    QVERIFY(!IVantrixProfileCfg::isInstalled());
    QVERIFY(!IEnvironment::isInstalled());
    QVERIFY(!ISystemHotKey::isInstalled());
    QVERIFY(!IParseVantrix::isInstalled());
    QCOMPARE(catalog(), QString());
}

void tst_HostServices::waitsForThePool()
{
    std::atomic<bool> asked{false};
    {
        HostServices services(data());
        QThreadPool::globalInstance()->start([&asked] {
            QThread::msleep(50);
            IVantrixProfileCfg::Instance()->setAppPath(0, QStringLiteral("/late"));
            asked = true;
        });
    }
    QVERIFY(asked);
    ProfileStore store(data() + QStringLiteral("/profiles.sqlite"));
    QVERIFY(store.hasAppPath(0));
}

void tst_HostServices::storeIsInTheDataFolder()
{
    HostServices services(data());
    QVERIFY(QFile::exists(data() + QStringLiteral("/profiles.sqlite")));
    QCOMPARE(HostLocations().dataFolder(),
             QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
}

void tst_HostServices::environment()
{
    HostEnvironment environment;
    QCOMPARE(environment.getLanguage(), 0);
    environment.setLanguage(14);
    QCOMPARE(environment.getLanguage(), 14);
    environment.setLanguage(15);
    environment.setLanguage(-1);
    QCOMPARE(environment.getLanguage(), 14);
    QVERIFY(!environment.getMainWidget());
    QVERIFY(!environment.getMainWindow());
}

void tst_HostServices::mainWindowOfTheWidget()
{
    HostEnvironment environment;
    {
        QWidget window;
        QWidget inner(&window);
        environment.setMainWidget(&inner);
        QVERIFY(environment.getMainWidget() == &inner);
        QVERIFY(!environment.getMainWindow());
        window.winId();
        QVERIFY(environment.getMainWindow() == window.windowHandle());
    }
    QVERIFY(!environment.getMainWidget());
    QVERIFY(!environment.getMainWindow());
}

void tst_HostServices::keyCapture()
{
    HostKeyCapture capture;
    QVERIFY(!capture.capturing());
    {
        QWidget widget;
        capture.startKeyCapture(&widget);
        QVERIFY(capture.capturing() == &widget);
    }
    QVERIFY(!capture.capturing());
    QWidget widget;
    capture.startKeyCapture(&widget);
    capture.stopKeyCapture();
    QVERIFY(!capture.capturing());
}

void tst_HostServices::requests()
{
    HostParse parse;
    void *data = nullptr;
    parse.makeSdkRequest(2, &data);
    QVERIFY(data);
    QVERIFY(parse.request(data));
    QCOMPARE(parse.request(data)->id, int(DeviceRequest::Reset));
    void *other = nullptr;
    parse.makeSdkRequest(9, &other);
    QCOMPARE(parse.request(other)->id, 9);
    QCOMPARE(parse.request(data)->id, 2);
    QVERIFY(!parse.request(nullptr));
    QVERIFY(!parse.request(this));
}

void tst_HostServices::catalogOfTheUser()
{
    QVERIFY(QDir().mkpath(data() + QStringLiteral("/hotkeys")));
    HostServices services(data());
    QCOMPARE(catalog(), data() + QStringLiteral("/hotkeys"));
}

void tst_HostServices::catalogBySetting()
{
    const QString own = m_folder->filePath(QStringLiteral("my catalog"));
    QVERIFY(QDir().mkpath(own));
    QVERIFY(QDir().mkpath(data() + QStringLiteral("/hotkeys")));
    HostServices services(data());
    services.store().setSetting(HostLocations::hotKeysFolderKey(), own);
    services.store().flush();
    QCOMPARE(catalog(), own);
    services.store().setSetting(HostLocations::hotKeysFolderKey(), own + QStringLiteral("/gone"));
    services.store().flush();
    QCOMPARE(catalog(), data() + QStringLiteral("/hotkeys"));
}

void tst_HostServices::catalogOfTheProgram()
{
    QVERIFY(QDir().mkpath(m_folder->filePath(QStringLiteral("share/hotkeys"))));
    HostServices services(data());
    services.locations().setShareFolder(m_folder->filePath(QStringLiteral("share")));
    QCOMPARE(services.locations().hotKeysFolder(services.store()),
             m_folder->filePath(QStringLiteral("share/hotkeys")));
}

void tst_HostServices::catalogPlaces_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("share");
    QTest::newRow("installed") << "/usr/bin"
                               << "/usr/share/vantrixmap";
    QTest::newRow("one folder") << "/opt/map"
                                << "/opt/map";
    QTest::newRow("one folder with share") << "/opt/map"
                                           << "/opt/map/share";
    QTest::newRow("build tree") << "/dev/shell"
                                << "/dev/share";
    QTest::newRow("build tree, configuration") << "/dev/shell/Debug"
                                               << "/dev/share";
    QTest::newRow("build tree, test") << "/dev/tests/host"
                                      << "/dev/share";
    QTest::newRow("build tree, both") << "/dev/tests/host/Debug"
                                      << "/dev/share";
}

void tst_HostServices::catalogPlaces()
{
    QFETCH(QString, program);
    QFETCH(QString, share);
    const QString root = m_folder->path();
    QVERIFY(QDir().mkpath(root + program));
    QCOMPARE(HostLocations::shareFolderOf(root + program), QString());
    QVERIFY(QDir().mkpath(root + share + QStringLiteral("/hotkeys")));
    QCOMPARE(HostLocations::shareFolderOf(root + program), root + share);
}

void tst_HostServices::catalogOfThisTree()
{
    const HostServices services(data());
    QVERIFY(catalog().endsWith(QStringLiteral("/share/hotkeys")));
    QCOMPARE(QDir(catalog()).entryList(QDir::Dirs | QDir::NoDotAndDotDot),
             QStringList({QStringLiteral("ILLUSTRATOR"), QStringLiteral("PHOTOSHOP"),
                          QStringLiteral("PREMIERE PRO"), QStringLiteral("WINDOWS")}));
}

void tst_HostServices::catalogOfTheUserReplaces()
{
    HostServices services(data());
    const QString shipped = catalog();
    QVERIFY(!shipped.isEmpty());
    const QString own = m_folder->filePath(QStringLiteral("own"));
    QVERIFY(QDir().mkpath(own));
    services.store().setSetting(HostLocations::hotKeysFolderKey(), own);
    services.store().flush();
    QCOMPARE(catalog(), own);
    services.store().setSetting(HostLocations::hotKeysFolderKey(), QString());
    services.store().flush();
    QCOMPARE(catalog(), shipped);
}

void tst_HostServices::catalogIsNowhere()
{
    HostServices services(data());
    services.locations().setShareFolder(QString());
    QCOMPARE(services.locations().hotKeysFolder(services.store()), QString());
}

void tst_HostServices::latestPaths()
{
    HostLocations locations(data());
    QCOMPARE(locations.latestAppPaths(), QStringList({QString(), QString(), QString()}));
    locations.setLatestAppPath(1, QStringLiteral("/opt/pr.exe"));
    QVERIFY(QFile::exists(data() + QStringLiteral("/reset.ini")));
    const HostServices services(data());
    QStringList paths;
    CfgFile::ReadLatestAppPath(paths);
    QCOMPARE(paths, QStringList({QString(), QStringLiteral("/opt/pr.exe"), QString()}));
}

VANTRIX_TEST_MAIN(tst_HostServices)
#include "tst_HostServices.moc"
