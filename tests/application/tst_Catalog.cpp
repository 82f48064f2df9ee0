#include "application/ReadHotKeysThr.h"
#include "host/DeviceImage.h"
#include "interfaces/CfgFile.h"
#include "support/TestMain.h"

#include <QDirIterator>
#include <QFile>

/// The shipped catalog, as the page's own reader reads it.
class tst_Catalog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void applications();
    void nothingIsDropped();
    void everyKeyCanBePlayed();
    void entries_data();
    void entries();

private:
    void keep(const QString &application, const QString &area, const QString &file,
              const HotKeyMap &groups);

    QMap<QString, QStringList> m_areas;
    /// "application/area/file/group/name" to keys
    QMap<QString, QString> m_hotKeys;
    int m_files = 0;
};

namespace {

QStringList filesOfTheCatalog()
{
    QStringList files;
    QDirIterator entries(QStringLiteral(CATALOG), QDir::Files, QDirIterator::Subdirectories);
    while (entries.hasNext())
        files << entries.next();
    return files;
}

/// Cells of all rows that are not separators, behind the two columns in front; half of them are
/// names, the other half keys.
int cellsOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    int cells = 0;
    for (const QByteArray &line : file.readAll().split('\n')) {
        if (!line.isEmpty() && !line.startsWith("\t\t\t\t"))
            cells += line.count('\t') - 1;
    }
    return cells;
}

} // namespace

void tst_Catalog::keep(const QString &application, const QString &area, const QString &file,
                       const HotKeyMap &groups)
{
    ++m_files;
    for (const auto &group : groups) {
        for (const auto &hotKey : group.second) {
            const QStringList place = {application, area, file, group.first, hotKey.first};
            m_hotKeys.insert(place.join(QLatin1Char('|')), hotKey.second);
        }
    }
}

void tst_Catalog::initTestCase()
{
    CfgFile::setLocations({QStringLiteral(CATALOG), {}});
    ReadHotKeysThr reader;
    connect(&reader, &ReadHotKeysThr::sigAddSecondLev, this,
            [this](const QString &application, const QStringList &areas) {
                m_areas[application] = areas;
            });
    connect(&reader, &ReadHotKeysThr::sigAddHotKeys, this, &tst_Catalog::keep);
    reader.startRead();
    QTRY_COMPARE(m_files, filesOfTheCatalog().size());
    reader.stopRead();
}

void tst_Catalog::applications()
{
    const QMap<QString, QStringList> expected = {
        {"ILLUSTRATOR", {"MENUS", "TEXT", "TOOLS"}},
        {"PHOTOSHOP", {"MENUS", "PANELS", "TEXT", "TOOLS"}},
        {"PREMIERE PRO", {"MENUS", "MONITORS", "PANELS", "TIMELINE", "TOOLS"}},
        {"WINDOWS", {"APPLICATIONS", "DESKTOP", "FILE EXPLORER", "SYSTEM"}},
    };
    QCOMPARE(m_areas, expected);
}

void tst_Catalog::nothingIsDropped()
{
    int cells = 0;
    for (const QString &file : filesOfTheCatalog())
        cells += cellsOf(file);
    QCOMPARE(m_hotKeys.size() * 2, cells);
    QVERIFY(m_hotKeys.size() >= 400);
}

void tst_Catalog::everyKeyCanBePlayed()
{
    QStringList silent;
    for (auto hotKey = m_hotKeys.cbegin(); hotKey != m_hotKeys.cend(); ++hotKey) {
        if (hotKeyCodes(hotKey.value()).empty())
            silent << hotKey.key();
    }
    QCOMPARE(silent, QStringList());
}

void tst_Catalog::entries_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QVector<int>>("codes");
    const auto row = [](const char *place, const char *keys, const QVector<int> &codes) {
        QTest::newRow(place) << QString::fromLatin1(keys) << codes;
    };
    row("PHOTOSHOP|MENUS|FILE|SAVE AND EXPORT|SAVE AS", "CTRL+SHIFT+S", {224, 225, 22});
    row("PHOTOSHOP|MENUS|EDIT|FILL|FILL WITH FOREGROUND", "ALT+BACKSPACE", {226, 42});
    row("PHOTOSHOP|TOOLS|BRUSH|SIZE AND HARDNESS|LARGER BRUSH", "]", {48});
    row("PHOTOSHOP|PANELS|BLENDING MODES|DARKEN|MULTIPLY", "ALT+SHIFT+M", {226, 225, 16});
    row("PHOTOSHOP|TOOLS|TOOLBAR|SELECT AND CROP|CROP", "C", {6});
    row("PREMIERE PRO|TOOLS|TOOLBAR|EDIT|RAZOR", "C", {6});
    row("PREMIERE PRO|MENUS|MARKERS|IN AND OUT|GO TO IN", "SHIFT+I", {225, 12});
    row("PREMIERE PRO|MONITORS|PLAYBACK|PLAY|PLAY OR STOP", "SPACE", {44});
    row("PREMIERE PRO|MENUS|SEQUENCE|ZOOM|ZOOM IN", "=", {46});
    row("ILLUSTRATOR|TOOLS|TOOLBAR|SELECT|ARTBOARD", "SHIFT+O", {225, 18});
    row("ILLUSTRATOR|MENUS|VIEW|ZOOM|ZOOM IN", "CTRL++", {224, 46});
    row("ILLUSTRATOR|MENUS|OBJECT|MASK AND COMPOUND|MAKE CLIPPING MASK", "CTRL+7", {224, 36});
    row("WINDOWS|DESKTOP|START AND TASKBAR|START|START MENU", "WIN", {227});
    row("WINDOWS|SYSTEM|SESSION|SESSION|TASK MANAGER", "CTRL+SHIFT+ESC", {224, 225, 41});
    row("WINDOWS|SYSTEM|CAPTURE|SCREENSHOTS|SAVE SCREEN", "WIN+PRTSC", {227, 70});
    row("WINDOWS|APPLICATIONS|TEXT|MOVE|NEXT WORD", "CTRL+RIGHT", {224, 79});
}

void tst_Catalog::entries()
{
    QFETCH(QString, keys);
    QFETCH(QVector<int>, codes);
    const QString found = m_hotKeys.value(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(found, keys);
    const std::vector<ushort> played = hotKeyCodes(found);
    QCOMPARE(QVector<int>(played.begin(), played.end()), codes);
}

VANTRIX_TEST_MAIN(tst_Catalog)
#include "tst_Catalog.moc"
