#include "interfaces/ISystemHotKey.h"
#include "support/TestMain.h"

#include <QProcess>

namespace {

class CountingHotKey final : public ISystemHotKey
{
public:
    virtual ~CountingHotKey() = default;
    void startKeyCapture(QWidget *) override { ++starts; }
    void stopKeyCapture() override { ++stops; }

    int starts = 0;
    int stops = 0;
};

} // namespace

class tst_ServiceInstance : public QObject
{
    Q_OBJECT

private slots:
    void installedServiceIsReturned();
    void askingWithNothingInstalledNamesTheService();
};

void tst_ServiceInstance::installedServiceIsReturned()
{
    QVERIFY(!ISystemHotKey::isInstalled());
    CountingHotKey service;
    ISystemHotKey::setInstance(&service);
    QVERIFY(ISystemHotKey::isInstalled());
    ISystemHotKey::Instance()->startKeyCapture(nullptr);
    ISystemHotKey::Instance()->stopKeyCapture();
    QCOMPARE(service.starts, 1);
    QCOMPARE(service.stops, 1);
    ISystemHotKey::setInstance(nullptr);
    QVERIFY(!ISystemHotKey::isInstalled());
}

void tst_ServiceInstance::askingWithNothingInstalledNamesTheService()
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--ask")});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::CrashExit);
    QVERIFY(process.readAllStandardError().contains("ISystemHotKey::Instance()"));
}

int main(int argc, char **argv)
{
    if (argc > 1 && qstrcmp(argv[1], "--ask") == 0)
        return ISystemHotKey::Instance() ? 0 : 1;
    return runTest(argc, argv, [] { return new tst_ServiceInstance; });
}
#include "tst_ServiceInstance.moc"
