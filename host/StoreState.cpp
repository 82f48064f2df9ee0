#include "host/StoreState.h"

#include <QCoreApplication>
#include <QDataStream>

#include <algorithm>

namespace {

constexpr auto StreamVersion = QDataStream::Qt_5_12;

int defaultNumber(StoreTable table)
{
    if (table == StoreTable::Presso)
        return 1;
    return table == StoreTable::CurrentKey ? NoKey : 0;
}

QByteArray defaultBytes(const RecordId &id)
{
    switch (id.table) {
    case StoreTable::Presso:
    case StoreTable::Mode:
    case StoreTable::Input:
    case StoreTable::CurrentKey:
    case StoreTable::Panel:
        return StoreCodec::number(defaultNumber(id.table));
    case StoreTable::Mapping:
        return StoreCodec::record(freshMapping(id.index));
    case StoreTable::ProfileOrder:
        return StoreCodec::order({});
    case StoreTable::MacroOrder:
        return StoreCodec::names({});
    default:
        return QByteArray();
    }
}

} // namespace

QByteArray StoreState::record(const RecordId &id) const
{
    const auto found = m_records.find(id);
    return found == m_records.end() ? QByteArray() : found->second;
}

QByteArray StoreState::canonical(const RecordId &id, const QByteArray &bytes)
{
    return bytes == defaultBytes(id) ? QByteArray() : bytes;
}

void StoreState::setRecord(const RecordId &id, const QByteArray &bytes)
{
    const QByteArray kept = canonical(id, bytes);
    if (kept.isEmpty())
        m_records.erase(id);
    else
        m_records[id] = kept;
}

int StoreState::number(const RecordId &id) const
{
    bool ok = false;
    const int value = record(id).toInt(&ok);
    return ok ? value : defaultNumber(id.table);
}

QString StoreState::text(const RecordId &id) const
{
    const QByteArray bytes = record(id);
    return QString::fromUtf8(bytes.constData(), bytes.size());
}

vantrix_key_mapping StoreState::mapping(int owner, int profile, int keyIdx) const
{
    const QByteArray bytes = record(profileRecord(StoreTable::Mapping, owner, profile, keyIdx));
    return StoreCodec::record<vantrix_key_mapping>(bytes).value_or(freshMapping(keyIdx));
}

std::optional<vantrix_app_assign> StoreState::appAssign(int owner, int profile, int keyIdx) const
{
    return StoreCodec::record<vantrix_app_assign>(
        record(profileRecord(StoreTable::AppAssign, owner, profile, keyIdx)));
}

std::optional<vantrix_hotkey_assign> StoreState::hotKeyAssign(int owner, int profile,
                                                              int keyIdx) const
{
    return StoreCodec::hotKey(
        record(profileRecord(StoreTable::HotKeyAssign, owner, profile, keyIdx)));
}

std::optional<vantrix_shortcut_assign> StoreState::shortcut(int owner, int profile,
                                                            int keyIdx) const
{
    return StoreCodec::record<vantrix_shortcut_assign>(
        record(profileRecord(StoreTable::Shortcut, owner, profile, keyIdx)));
}

std::optional<vantrix_extended_key> StoreState::extendedKey(int owner, int profile,
                                                            int keyIdx) const
{
    return StoreCodec::record<vantrix_extended_key>(
        record(profileRecord(StoreTable::ExtendedKey, owner, profile, keyIdx)));
}

std::optional<QString> StoreState::macroKey(int owner, int profile, int keyIdx) const
{
    const QString name = text(profileRecord(StoreTable::MacroKey, owner, profile, keyIdx));
    return name.isEmpty() ? std::nullopt : std::optional<QString>(name);
}

KeyContent StoreState::key(int owner, int profile, int keyIdx) const
{
    KeyContent key;
    key.mapping = mapping(owner, profile, keyIdx);
    key.app = appAssign(owner, profile, keyIdx);
    key.hotKey = hotKeyAssign(owner, profile, keyIdx);
    key.shortcut = shortcut(owner, profile, keyIdx);
    key.extended = extendedKey(owner, profile, keyIdx);
    key.macroName = macroKey(owner, profile, keyIdx);
    return key;
}

ProfileKeys StoreState::keys(int owner, int profile) const
{
    ProfileKeys keys;
    for (int i = 0; i < KeyCount; ++i)
        keys[std::size_t(i)] = key(owner, profile, i);
    return keys;
}

QString StoreState::profileName(int owner, int profile) const
{
    // a file can bring line breaks, which no list has room for
    const QString name = text(profileRecord(StoreTable::ProfileName, owner, profile)).simplified();
    if (!name.isEmpty())
        return name;
    return QCoreApplication::translate("ProfileStore", "PROFILE %1").arg(profile + 1);
}

std::vector<int> StoreState::profileOrder(int owner) const
{
    std::vector<int> order;
    const auto add = [&order](int profile) {
        if (profile < ProfileCount && std::count(order.begin(), order.end(), profile) == 0)
            order.push_back(profile);
    };
    const QByteArray bytes = record(profileRecord(StoreTable::ProfileOrder, owner));
    for (const char byte : bytes)
        add(uchar(byte));
    for (int profile = 0; profile < ProfileCount; ++profile)
        add(profile);
    return order;
}

QStringList StoreState::macroNames(int owner) const
{
    QStringList names;
    QDataStream stream(record(profileRecord(StoreTable::MacroOrder, owner)));
    stream.setVersion(StreamVersion);
    while (!stream.atEnd() && stream.status() == QDataStream::Ok) {
        QString name;
        stream >> name;
        if (stream.status() == QDataStream::Ok)
            names << name;
    }
    return names;
}

std::optional<vantrix_macro_record> StoreState::macro(int owner, const QString &name) const
{
    return StoreCodec::record<vantrix_macro_record>(
        record(namedRecord(StoreTable::Macro, name, owner)));
}

QByteArray StoreState::toBytes() const
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(StreamVersion);
    for (const auto &[id, value] : m_records) {
        // a null text and an empty one are equal names, but not equal bytes
        const QString name = id.name.isEmpty() ? QString() : id.name;
        stream << quint8(id.table) << id.owner << id.profile << id.index << name << value;
    }
    return bytes;
}

namespace StoreCodec {

QByteArray number(int value)
{
    return QByteArray::number(value);
}

QByteArray text(const QString &text)
{
    return text.toUtf8();
}

QByteArray names(const QStringList &names)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(StreamVersion);
    // no count in front: a broken one would make a reader reserve room for it
    for (const QString &name : names)
        stream << name;
    return bytes;
}

QByteArray order(const std::vector<int> &order)
{
    QByteArray bytes;
    for (const int profile : order)
        bytes += char(profile);
    return bytes;
}

QByteArray hotKey(const vantrix_hotkey_assign &assign)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(StreamVersion);
    // a null text and an empty one are the same here, so they must be the same bytes
    const auto write = [&stream](const QString &text) {
        stream << (text.isEmpty() ? QString() : text);
    };
    stream << assign.flag;
    write(assign.hotKey);
    write(assign.keyName);
    return bytes;
}

std::optional<vantrix_hotkey_assign> hotKey(const QByteArray &bytes)
{
    vantrix_hotkey_assign assign;
    QDataStream stream(bytes);
    stream.setVersion(StreamVersion);
    stream >> assign.flag >> assign.hotKey >> assign.keyName;
    if (stream.status() != QDataStream::Ok)
        return std::nullopt;
    return assign;
}

std::map<RecordId, QByteArray> keyRecords(int owner, int profile, int keyIdx, const KeyContent &key)
{
    const auto id = [&](StoreTable table) {
        return profileRecord(table, owner, profile, keyIdx);
    };
    return {
        {id(StoreTable::Mapping), record(key.mapping)},
        {id(StoreTable::AppAssign), key.app ? record(*key.app) : QByteArray()},
        {id(StoreTable::HotKeyAssign), key.hotKey ? hotKey(*key.hotKey) : QByteArray()},
        {id(StoreTable::Shortcut), key.shortcut ? record(*key.shortcut) : QByteArray()},
        {id(StoreTable::ExtendedKey), key.extended ? record(*key.extended) : QByteArray()},
        {id(StoreTable::MacroKey), key.macroName ? text(*key.macroName) : QByteArray()},
    };
}

} // namespace StoreCodec
