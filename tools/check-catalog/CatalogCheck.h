#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

class QDir;
class QFileInfo;

/// Reads a whole hot-key catalog as strictly as the page reads it leniently, and says in words
/// what the page would drop, hide or be unable to play. The page's own reader reads each file,
/// too: its hot keys are those that are counted.
///
/// The page takes `APPLICATION/AREA/FILE` and in each file pairs of rows of equal length, parted
/// by a row of four tabs: group title, anything, names; anything, anything, keys. It reports
/// nothing and skips what it cannot use. A finding here is a text "place: what is wrong", with
/// the place seen from the catalog's folder and lines counted from 1.
class CatalogCheck
{
public:
    explicit CatalogCheck(const QString &folder);

    const QStringList &findings() const { return m_findings; }
    int files() const { return m_files; }
    /// Hot keys that the page would show.
    int hotKeys() const { return m_hotKeys; }

private:
    struct Row
    {
        int line;
        QStringList columns;
    };

    void find(const QString &what);
    void find(int line, const QString &what);
    bool isLevel(const QFileInfo &entry);
    void checkApplication(const QDir &folder);
    void checkArea(const QDir &folder);
    void checkFile(const QFileInfo &file);
    QString textOf(int line, const QByteArray &bytes);
    void checkRows(const QByteArray &content);
    void endBlock(const QList<Row> &rows);
    void checkPair(const Row &names, const Row &keys);
    void checkTitle(const Row &names);
    void checkHotKeys(const Row &names, const Row &keys);
    void checkRest(const Row &names, const Row &keys, int gap);
    void checkHotKey(int line, const QString &name, const QString &key);

    QString m_root;
    QString m_place;
    QSet<QString> m_titles;
    QSet<QString> m_names;
    QSet<QString> m_keys;
    QStringList m_findings;
    int m_files = 0;
    int m_written = 0; ///< hot keys in the file, as the check counts them
    int m_hotKeys = 0;
};
