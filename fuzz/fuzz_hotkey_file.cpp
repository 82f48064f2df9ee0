// Any bytes as a file of the hot-key catalog: read, written again and read again to the same.

#include "application/HotKeyFile.h"

#include <cstdlib>

namespace {

void check(bool holds)
{
    if (!holds)
        std::abort();
}

/// Whether a text comes back from a file: a carriage return at the end of a row does not.
bool comesBack(const QString &text)
{
    return !text.contains(QLatin1Char('\r')) && !text.startsWith(QChar(0xFEFF));
}

/// A pair of rows for a group. The empty name is only read as the last one of its row.
QString rows(const QString &title, std::map<QString, QString> keys)
{
    if (title.endsWith(QLatin1Char('\n')))
        return title + QLatin1Char('\n');
    QString names = title + QLatin1Char('\t');
    // Something in front: four tabs would make a separator of it.
    QString texts = QStringLiteral("KEYS\t");
    const auto empty = keys.extract(QString());
    for (const auto &key : keys) {
        names += QLatin1Char('\t') + key.first;
        texts += QLatin1Char('\t') + key.second;
    }
    if (empty) {
        names += QLatin1Char('\t');
        texts += QLatin1Char('\t') + empty.mapped();
    }
    return names + QLatin1Char('\n') + texts + QLatin1Char('\n');
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const HotKeyMap read =
        HotKeyFile::parse(QByteArray(reinterpret_cast<const char *>(data), int(size)));
    HotKeyMap kept;
    QString text;
    for (const auto &group : read) {
        check(!group.first.isEmpty());
        check(!group.first.contains(QLatin1Char('\t')));
        bool back = comesBack(group.first);
        for (const auto &key : group.second) {
            check(!key.first.contains(QLatin1Char('\n')) &&
                  !key.second.contains(QLatin1Char('\n')));
            check(!key.first.contains(QLatin1Char('\t')) &&
                  !key.second.contains(QLatin1Char('\t')));
            back = back && comesBack(key.first) && comesBack(key.second);
        }
        if (back) {
            kept.insert(group);
            text += rows(group.first, group.second);
        }
    }
    check(HotKeyFile::parse(text.toUtf8()) == kept);
    return 0;
}
