#include "application/HotKeyFile.h"

#include <QFile>
#include <QStringView>

namespace {

/// The line that begins at `from`, with its line end; `from` moves behind it.
QString nextRow(const QByteArray &bytes, int &from)
{
    const char *const begin = bytes.constData() + from;
    const int lineEnd = bytes.indexOf('\n', from);
    const int length = (lineEnd < 0 ? bytes.size() : lineEnd + 1) - from;
    from += length;
    return QString::fromUtf8(begin, int(qstrnlen(begin, uint(length))));
}

/// Cuts a row at its tabs, column by column.
class Columns
{
public:
    explicit Columns(const QString &row) : m_rest(row) {}

    bool atEnd() const { return m_atEnd; }
    QString next()
    {
        const auto tab = m_rest.indexOf(QLatin1Char('\t'));
        const QStringView column = tab < 0 ? m_rest : m_rest.left(tab);
        m_atEnd = tab < 0;
        m_rest = m_atEnd ? QStringView() : m_rest.mid(tab + 1);
        return column.toString().toUpper();
    }

private:
    QStringView m_rest;
    bool m_atEnd = false;
};

constexpr int RowsBetweenQuestions = 256;

} // namespace

bool HotKeyFile::read(const QString &path, HotKeyMap &hotKeys, const std::function<bool()> &stopped)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray bytes = file.read(MostBytes + 1);
    if (bytes.size() > MostBytes)
        return false;
    hotKeys = parse(bytes, stopped);
    return !stopped();
}

HotKeyMap HotKeyFile::parse(QByteArray bytes, const std::function<bool()> &stopped)
{
    bytes.replace("\r\n", "\n");
    HotKeyMap hotKeys;
    QString nameRow;
    bool waiting = false;
    int rows = 0;
    for (int from = 0; from < bytes.size();) {
        if (++rows % RowsBetweenQuestions == 0 && stopped && stopped())
            break;
        const QString row = nextRow(bytes, from);
        const bool separator = row.startsWith(QLatin1String("\t\t\t\t"));
        if (separator || !waiting) {
            waiting = !separator;
            nameRow = row;
            continue;
        }
        waiting = false;
        QString group;
        std::map<QString, QString> keys;
        parseHotKeyRows(nameRow, row, group, keys);
        if (!group.isEmpty())
            hotKeys[group] = std::move(keys);
    }
    return hotKeys;
}

void HotKeyFile::parseHotKeyRows(const QString &nameRow, const QString &keyRow, QString &strGroup,
                                 std::map<QString, QString> &mKeys)
{
    if (nameRow.count(QLatin1Char('\t')) != keyRow.count(QLatin1Char('\t')))
        return;
    Columns names(nameRow);
    Columns texts(keyRow);
    strGroup = names.next();
    texts.next();
    for (int column = 1; !names.atEnd(); ++column) {
        QString name = names.next();
        QString text = texts.next();
        if (column == 1)
            continue;
        if (name.isEmpty())
            return;
        name.remove(QLatin1Char('\n'));
        mKeys[name] = text.remove(QLatin1Char('\n'));
    }
}
