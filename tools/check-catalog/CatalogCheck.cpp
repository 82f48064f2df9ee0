#include "CatalogCheck.h"

#include "application/HotKeyFile.h"
#include "host/DeviceImage.h"

#include <QDir>
#include <QFile>

namespace {

constexpr int FirstNameColumn = 2;

QFileInfoList entriesOf(const QDir &folder)
{
    return folder.entryInfoList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

bool isHiddenOrLink(const QFileInfo &entry)
{
    return entry.isSymLink() || entry.isHidden();
}

bool isSeparator(const QString &line)
{
    return line.startsWith(QLatin1String("\t\t\t\t"));
}

int countOf(const HotKeyMap &hotKeys)
{
    std::size_t count = 0;
    for (const auto &group : hotKeys)
        count += group.second.size();
    return int(count);
}

} // namespace

CatalogCheck::CatalogCheck(const QString &folder) : m_root(folder), m_place(QStringLiteral("."))
{
    const QDir root(folder);
    if (!root.exists())
        find(QStringLiteral("there is no such folder"));
    for (const QFileInfo &entry : entriesOf(root)) {
        m_place = entry.fileName();
        if (isLevel(entry))
            checkApplication(QDir(entry.filePath()));
    }
}

void CatalogCheck::find(const QString &what)
{
    m_findings << QStringLiteral("%1: %2").arg(m_place, what);
}

void CatalogCheck::find(int line, const QString &what)
{
    m_findings << QStringLiteral("%1:%2: %3").arg(m_place).arg(line).arg(what);
}

bool CatalogCheck::isLevel(const QFileInfo &entry)
{
    const bool isRead = entry.isDir() && !isHiddenOrLink(entry);
    if (!isRead)
        find(QStringLiteral("only folders are read here"));
    else if (entry.fileName() != entry.fileName().toUpper())
        find(QStringLiteral("stays empty, since its name is not in upper case"));
    return isRead;
}

void CatalogCheck::checkApplication(const QDir &folder)
{
    const QFileInfoList entries = entriesOf(folder);
    if (entries.isEmpty())
        find(QStringLiteral("is empty"));
    for (const QFileInfo &entry : entries) {
        m_place = QDir(m_root).relativeFilePath(entry.filePath());
        if (isLevel(entry))
            checkArea(QDir(entry.filePath()));
    }
}

void CatalogCheck::checkArea(const QDir &folder)
{
    const QFileInfoList entries = entriesOf(folder);
    if (entries.isEmpty())
        find(QStringLiteral("is empty"));
    QSet<QString> titles;
    for (const QFileInfo &entry : entries) {
        m_place = QDir(m_root).relativeFilePath(entry.filePath());
        const QString title = entry.fileName().section(QLatin1Char('.'), 0, 0).toUpper();
        if (!entry.isFile() || isHiddenOrLink(entry)) {
            find(QStringLiteral("only files are read here"));
            continue;
        }
        if (titles.contains(title))
            find(QStringLiteral("a second file with the title %1").arg(title));
        titles << title;
        checkFile(entry);
    }
}

void CatalogCheck::checkFile(const QFileInfo &file)
{
    ++m_files;
    HotKeyMap shown;
    QFile source(file.filePath());
    if (!source.open(QIODevice::ReadOnly | QIODevice::Text) ||
        !HotKeyFile::read(file.filePath(), shown, [] { return false; })) {
        find(QStringLiteral("cannot be read, or is too large"));
        return;
    }
    m_titles.clear();
    m_written = 0;
    const int findings = m_findings.size();
    checkRows(source.readAll());
    const int count = countOf(shown);
    if (count != m_written && m_findings.size() == findings)
        find(QStringLiteral("the page shows %1 hot keys of %2").arg(count).arg(m_written));
    m_hotKeys += count;
}

/// The page's reading of a line: UTF-8 up to the first NUL.
QString CatalogCheck::textOf(int line, const QByteArray &bytes)
{
    QString text = QString::fromUtf8(bytes.constData());
    if (bytes.contains('\0'))
        find(line, QStringLiteral("is cut at a NUL byte"));
    else if (text.toUtf8() != bytes)
        find(line, QStringLiteral("is not plain UTF-8"));
    return text;
}

void CatalogCheck::checkRows(const QByteArray &content)
{
    QList<QByteArray> lines = content.split('\n');
    if (lines.last().isEmpty())
        lines.removeLast();
    QList<Row> block;
    for (int i = 0; i < lines.size(); ++i) {
        const QString text = textOf(i + 1, lines.at(i));
        if (isSeparator(text)) {
            endBlock(block);
            block.clear();
        } else {
            block << Row{i + 1, text.split(QLatin1Char('\t'))};
        }
    }
    endBlock(block);
    if (m_titles.isEmpty())
        find(QStringLiteral("has no group"));
}

void CatalogCheck::endBlock(const QList<Row> &rows)
{
    for (int i = 0; i + 1 < rows.size(); i += 2)
        checkPair(rows.at(i), rows.at(i + 1));
    if (rows.size() % 2 != 0)
        find(rows.last().line, QStringLiteral("a row without a partner"));
}

void CatalogCheck::checkPair(const Row &names, const Row &keys)
{
    if (names.columns.size() != keys.columns.size()) {
        find(names.line, QStringLiteral("%1 columns over %2: the pair is dropped")
                             .arg(names.columns.size())
                             .arg(keys.columns.size()));
        return;
    }
    if (names.columns.first().isEmpty()) {
        find(names.line, QStringLiteral("no group title: the pair is dropped"));
        return;
    }
    checkTitle(names);
    checkHotKeys(names, keys);
}

void CatalogCheck::checkTitle(const Row &names)
{
    const QString title = names.columns.first().toUpper();
    if (title != title.trimmed())
        find(names.line, QStringLiteral("blanks around the title %1").arg(title));
    if (m_titles.contains(title))
        find(names.line, QStringLiteral("a second group %1 replaces the first").arg(title));
    m_titles << title;
}

void CatalogCheck::checkHotKeys(const Row &names, const Row &keys)
{
    m_names.clear();
    m_keys.clear();
    for (int i = FirstNameColumn; i < names.columns.size(); ++i) {
        const QString name = names.columns.at(i).toUpper();
        if (name.isEmpty()) {
            checkRest(names, keys, i);
            break;
        }
        checkHotKey(names.line, name, keys.columns.at(i).toUpper());
    }
    m_written += m_names.size();
    if (m_names.isEmpty())
        find(names.line, QStringLiteral("a group without hot keys"));
}

/// Spreadsheets pad rows with empty cells. Two or more are harmless; one alone at the end of a
/// row keeps the line end, and the page takes that for a name.
void CatalogCheck::checkRest(const Row &names, const Row &keys, int gap)
{
    const QStringList rest = names.columns.mid(gap) + keys.columns.mid(gap);
    if (gap == names.columns.size() - 1)
        find(names.line, QStringLiteral("the last column makes a hot key without a name"));
    else if (!rest.join(QString()).isEmpty())
        find(names.line, QStringLiteral("no name in column %1: the rest is dropped").arg(gap));
}

void CatalogCheck::checkHotKey(int line, const QString &name, const QString &key)
{
    if (name != name.trimmed())
        find(line, QStringLiteral("blanks around the name %1").arg(name));
    if (m_names.contains(name))
        find(line, QStringLiteral("a second %1 replaces the first").arg(name));
    if (key.isEmpty())
        find(line, QStringLiteral("%1 has no keys").arg(name));
    else if (hotKeyCodes(key).empty())
        find(line, QStringLiteral("%1 has unknown keys %2").arg(name, key));
    else if (m_keys.contains(key))
        find(line, QStringLiteral("%1 has the keys of another one, %2").arg(name, key));
    m_names << name;
    m_keys << key;
}
