#include "interfaces/CfgFile.h"
#include "support/TestMain.h"

class tst_CfgFile : public QObject
{
    Q_OBJECT

private slots:
    void fixedNames();
    void locations();
};

void tst_CfgFile::fixedNames()
{
    QCOMPARE(CfgFile::filename(), QString("/config/param/param.arg"));
    QCOMPARE(CfgFile::filename_chg(), QString("/config/param/param_chg.arg"));
    QCOMPARE(CfgFile::hotkeysFolder(), QString("/hotkeys"));
    QCOMPARE(CfgFile::resetFile(), QString("/reset.ini"));
}

void tst_CfgFile::locations()
{
    QString folder = "old";
    QStringList paths = {"old"};
    CfgFile::ReadAppHotKeysFolder(folder);
    CfgFile::ReadLatestAppPath(paths);
    QCOMPARE(folder, QString());
    QCOMPARE(paths, QStringList());

    CfgFile::Locations locations;
    locations.hotKeysFolder = "/somewhere/hotkeys";
    locations.latestAppPaths = QStringList({"/a", "/b", "/c"});
    CfgFile::setLocations(locations);
    CfgFile::ReadAppHotKeysFolder(folder);
    CfgFile::ReadLatestAppPath(paths);
    QCOMPARE(folder, QString("/somewhere/hotkeys"));
    QCOMPARE(paths, QStringList({"/a", "/b", "/c"}));
}

VANTRIX_TEST_MAIN(tst_CfgFile)
#include "tst_CfgFile.moc"
