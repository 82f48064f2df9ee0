#pragma once

#include "interfaces/VantrixExport.h"

#include <QByteArray>
#include <QMetaType>
#include <QString>

#include <functional>
#include <map>

/// Group title -> hot-key name -> hot-key text, all in upper case.
using HotKeyMap = std::map<QString, std::map<QString, QString>>;
Q_DECLARE_METATYPE(HotKeyMap)

/// One file of the hot-key catalog.
///
/// Text in UTF-8 (a line ends at its first NUL byte), one row a line, CR LF or LF. Rows go in
/// pairs, a name row and a key row; a line that begins with four tabs separates and takes a name
/// row that waits for its key row with it; a blank line is a row. Columns are parted by tabs:
/// column 0 of the name row is the group's title, column 1 means nothing, and from column 2 on
/// stand hot-key names, with their texts in the same columns of the key row. A pair whose rows
/// differ in their number of columns is dropped, one without a title too; an empty name ends a
/// pair; a title that comes again replaces the earlier group.
///
/// Statics that hold nothing: any thread.
class VANTRIX_EXPORT HotKeyFile
{
public:
    HotKeyFile() = delete;

    /// Larger files are not read: nobody's shortcuts fill 16 MiB.
    static constexpr int MostBytes = 16 * 1024 * 1024;

    /// What stands in the file at `path`; false if it cannot be opened, is too large, or when
    /// `stopped` turned true on the way. `stopped` is asked every few hundred rows.
    static bool read(const QString &path, HotKeyMap &hotKeys, const std::function<bool()> &stopped);

    /// What stands in the bytes of a file.
    static HotKeyMap parse(QByteArray bytes,
                           const std::function<bool()> &stopped = std::function<bool()>());

private:
    static void parseHotKeyRows(const QString &nameRow, const QString &keyRow, QString &strGroup,
                                std::map<QString, QString> &mKeys);
};
