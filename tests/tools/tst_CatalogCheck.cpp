#include "CatalogCheck.h"
#include "support/TestMain.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

class tst_CatalogCheck : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void soundCatalog();
    void rows_data();
    void rows();
    void places_data();
    void places();
    void links();
    void noFolder();
    void emptyFolders();
    void exitCode_data();
    void exitCode();

private:
    void write(const QString &place, const QByteArray &content) const
    {
        QFile file(m_folder->filePath(place));
        QVERIFY(QDir().mkpath(QFileInfo(file).path()));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), qint64(content.size()));
    }
    QStringList findings() const { return CatalogCheck(m_folder->path()).findings(); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {

const QByteArray Sound = "FILE\tNAME\tNEW\tOPEN\n\tKEYS\tCTRL+N\tCTRL+O\n";

} // namespace

void tst_CatalogCheck::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

void tst_CatalogCheck::soundCatalog()
{
    write("APP/MENUS/FILE.txt", Sound + "\t\t\t\t\nMORE\t\tExit\r\n\t\tctrl+q\r\n");
    write("APP/MENUS/PADDED", "A\tNAME\tX\t\t\n\tKEYS\t1\t\t\n\t\t\t\t\n");
    write("APP/MENUS/EDIT", "EDIT\tNAME\tZOOM IN\n\tKEYS\tCTRL++");
    const CatalogCheck check(m_folder->path());
    QCOMPARE(check.findings(), QStringList());
    QCOMPARE(check.files(), 3);
    QCOMPARE(check.hotKeys(), 5);
}

void tst_CatalogCheck::rows_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("finding");
    QTest::addColumn<int>("hotKeys");
    const QByteArray part = "\t\t\t\t\n";
    QTest::newRow("unequal") << Sound + part + "A\tN\tX\tY\n\tK\tX\n"
                             << ":4: 4 columns over 3: the pair is dropped" << 2;
    QTest::newRow("no title") << "\tN\tX\n\tK\tX\n" + part + Sound
                              << ":1: no group title: the pair is dropped" << 2;
    QTest::newRow("odd row") << "A\tN\tX\n" + part + Sound << ":1: a row without a partner" << 2;
    QTest::newRow("odd row at the end") << Sound + "A\tN\tX\n"
                                        << ":3: a row without a partner" << 2;
    QTest::newRow("title twice") << Sound + part + "File\tN\tX\n\tK\tX\n"
                                 << ":4: a second group FILE replaces the first" << 1;
    QTest::newRow("blanks at title")
        << QByteArray("A \tN\tX\n\tK\tX\n") << ":1: blanks around the title A " << 1;
    QTest::newRow("blanks at name")
        << QByteArray("A\tN\t X\n\tK\tX\n") << ":1: blanks around the name  X" << 1;
    QTest::newRow("name twice") << QByteArray("A\tN\tX\tx\n\tK\t1\t2\n")
                                << ":1: a second X replaces the first" << 1;
    QTest::newRow("gap") << QByteArray("A\tN\tX\t\tY\n\tK\t1\t2\t3\n")
                         << ":1: no name in column 3: the rest is dropped" << 1;
    QTest::newRow("tab at the end") << QByteArray("A\tN\tX\t\n\tK\t1\t\n")
                                    << ":1: the last column makes a hot key without a name" << 2;
    QTest::newRow("keys without a name") << QByteArray("A\tN\tX\t\t\n\tK\t1\t2\t\n")
                                         << ":1: no name in column 3: the rest is dropped" << 1;
    QTest::newRow("no keys") << QByteArray("A\tN\tX\tY\n\tK\t\t1\n") << ":1: X has no keys" << 2;
    QTest::newRow("unknown keys") << QByteArray("A\tN\tX\n\tK\tCTRL+WHEEL\n")
                                  << ":1: X has unknown keys CTRL+WHEEL" << 1;
    QTest::newRow("keys twice") << QByteArray("A\tN\tX\tY\n\tK\t1\t1\n")
                                << ":1: Y has the keys of another one, 1" << 2;
    QTest::newRow("no hot keys") << Sound + part + "A\tN\n\tK\n"
                                 << ":4: a group without hot keys" << 2;
    QTest::newRow("no group") << part << ": has no group" << 0;
    QTest::newRow("Latin 1") << QByteArray("A\tN\tX\xe4\n\tK\tX\n") << ":1: is not plain UTF-8"
                             << 1;
    QTest::newRow("NUL") << QByteArray("A\tN\tX\0\n\tK\tX\n", 12) << ":1: is cut at a NUL byte"
                         << 1;
}

void tst_CatalogCheck::rows()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, finding);
    QFETCH(int, hotKeys);
    write("APP/MENUS/FILE.txt", content);
    const CatalogCheck check(m_folder->path());
    QCOMPARE(check.findings(), QStringList{QStringLiteral("APP/MENUS/FILE.txt") + finding});
    QCOMPARE(check.hotKeys(), hotKeys);
}

void tst_CatalogCheck::places_data()
{
    QTest::addColumn<QString>("place");
    QTest::addColumn<QString>("finding");
    QTest::newRow("file at the top") << "A.txt"
                                     << "A.txt: only folders are read here";
    QTest::newRow("file in an application") << "APP/A.txt"
                                            << "APP/A.txt: only folders are read here";
    QTest::newRow("folder too deep") << "APP/MENUS/DEEP/A.txt"
                                     << "APP/MENUS/DEEP: only files are read here";
    QTest::newRow("hidden") << "APP/MENUS/.A.txt"
                            << "APP/MENUS/.A.txt: only files are read here";
    QTest::newRow("lower case application")
        << "App/MENUS/A.txt"
        << "App: stays empty, since its name is not in upper case";
    QTest::newRow("lower case area")
        << "APP/Menus/A.txt"
        << "APP/Menus: stays empty, since its name is not in upper case";
    QTest::newRow("title twice") << "APP/MENUS/file.v2.txt"
                                 << "APP/MENUS/file.v2.txt: a second file with the title FILE";
}

void tst_CatalogCheck::places()
{
    QFETCH(QString, place);
    QFETCH(QString, finding);
    write("APP/MENUS/FILE.txt", Sound);
    write(place, Sound);
    QCOMPARE(findings(), QStringList{finding});
}

void tst_CatalogCheck::links()
{
    write("APP/MENUS/FILE.txt", Sound);
    QVERIFY(QFile::link(m_folder->filePath("APP"), m_folder->filePath("LINK")));
    QVERIFY(QFile::link(m_folder->filePath("APP/MENUS/FILE.txt"),
                        m_folder->filePath("APP/MENUS/LINK.txt")));
    QCOMPARE(findings(), QStringList({"APP/MENUS/LINK.txt: only files are read here",
                                      "LINK: only folders are read here"}));
}

void tst_CatalogCheck::noFolder()
{
    const CatalogCheck check(m_folder->filePath("gone"));
    QCOMPARE(check.findings(), QStringList{".: there is no such folder"});
    QCOMPARE(check.hotKeys(), 0);
}

void tst_CatalogCheck::emptyFolders()
{
    QVERIFY(QDir().mkpath(m_folder->filePath("APP/MENUS")));
    QVERIFY(QDir().mkpath(m_folder->filePath("BARE")));
    QCOMPARE(findings(), QStringList({"APP/MENUS: is empty", "BARE: is empty"}));
}

void tst_CatalogCheck::exitCode_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("least");
    QTest::addColumn<int>("code");
    QTest::newRow("sound") << Sound << "2" << 0;
    QTest::newRow("too few") << Sound << "3" << 1;
    QTest::newRow("finding") << Sound + "A\n"
                             << "2" << 1;
}

void tst_CatalogCheck::exitCode()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, least);
    QFETCH(int, code);
    write("APP/MENUS/FILE.txt", content);
    QCOMPARE(QProcess::execute(CHECK_CATALOG, {"--at-least", least, m_folder->path()}), code);
}

VANTRIX_TEST_MAIN(tst_CatalogCheck)
#include "tst_CatalogCheck.moc"
