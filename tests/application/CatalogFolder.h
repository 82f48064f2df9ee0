#pragma once

#include "interfaces/CfgFile.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

/// A hot-key catalog in a folder of its own, installed as the host's for as long as it lives.
class CatalogFolder
{
public:
    CatalogFolder()
    {
        CfgFile::Locations locations;
        locations.hotKeysFolder = root();
        CfgFile::setLocations(locations);
    }
    ~CatalogFolder() { CfgFile::setLocations({}); }

    QString root() const { return m_folder.filePath(QStringLiteral("hotkeys")); }
    void addFolder(const QString &path) const { QDir().mkpath(root() + QLatin1Char('/') + path); }
    /// Number of folders in it, of both levels.
    int folders() const
    {
        int count = 0;
        QDirIterator each(root(), QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
        for (; each.hasNext(); ++count)
            each.next();
        return count;
    }
    void addFile(const QString &path, const QByteArray &bytes) const
    {
        const QString full = root() + QLatin1Char('/') + path;
        QDir().mkpath(full.left(full.lastIndexOf(QLatin1Char('/'))));
        QFile file(full);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(full));
    }

    /// A file of `groups` groups with `keys` hot keys each: "GROUP 0", "G0 KEY 0", "CTRL+0" ...
    static QByteArray rows(int groups, int keys)
    {
        QByteArray bytes;
        for (int group = 0; group < groups; ++group) {
            QByteArray names = "GROUP " + QByteArray::number(group) + '\t';
            QByteArray texts = "\t";
            for (int key = 0; key < keys; ++key) {
                names += "\tG" + QByteArray::number(group) + " KEY " + QByteArray::number(key);
                texts += "\tCTRL+" + QByteArray::number(key);
            }
            bytes += names + '\n' + texts + "\n\t\t\t\t\n";
        }
        return bytes;
    }

private:
    QTemporaryDir m_folder;
};
