#pragma once

#include "host/KeyContent.h"
#include "host/StoreRecord.h"

#include <QStringList>

#include <algorithm>
#include <vector>

/// Number of profiles of an owner, as many as there are codes that switch to one. Their numbers,
/// the `iProfile` of the page, run from 0; the device's "PROFILE 1" is number 0.
constexpr int ProfileCount = 24;
/// "No key is selected".
constexpr int NoKey = KeyCount;

/// Everything a store holds, as a value: copy it, compare it, write it down. It knows what the
/// rows mean and what holds where there is none, and nothing of files, signals or steps.
///
/// A row whose bytes are the default's is never kept, so two stores that say the same are equal
/// byte for byte.
class StoreState
{
public:
    /// Bytes of a row; empty if the default holds.
    QByteArray record(const RecordId &id) const;
    /// Replaces a row. Bytes that say the default remove it.
    void setRecord(const RecordId &id, const QByteArray &bytes);
    /// The bytes as setRecord would keep them.
    static QByteArray canonical(const RecordId &id, const QByteArray &bytes);
    const std::map<RecordId, QByteArray> &records() const { return m_records; }

    /// A number (presso, mode, input, current key, panel) with its default.
    int number(const RecordId &id) const;
    /// A text (paths, settings, names); empty by default.
    QString text(const RecordId &id) const;

    vantrix_key_mapping mapping(int owner, int profile, int keyIdx) const;
    std::optional<vantrix_app_assign> appAssign(int owner, int profile, int keyIdx) const;
    std::optional<vantrix_hotkey_assign> hotKeyAssign(int owner, int profile, int keyIdx) const;
    std::optional<vantrix_shortcut_assign> shortcut(int owner, int profile, int keyIdx) const;
    std::optional<vantrix_extended_key> extendedKey(int owner, int profile, int keyIdx) const;
    std::optional<QString> macroKey(int owner, int profile, int keyIdx) const;
    KeyContent key(int owner, int profile, int keyIdx) const;
    ProfileKeys keys(int owner, int profile) const;

    /// Name as the user gave it; "PROFILE n" without one.
    QString profileName(int owner, int profile) const;
    /// All profiles, each once, in the order of the list.
    std::vector<int> profileOrder(int owner) const;
    /// Names of all macros, in the order of the list.
    QStringList macroNames(int owner) const;
    std::optional<vantrix_macro_record> macro(int owner, const QString &name) const;

    /// All rows in order; equal bytes mean equal stores.
    QByteArray toBytes() const;

    friend bool operator==(const StoreState &a, const StoreState &b)
    {
        return a.m_records == b.m_records;
    }

private:
    std::map<RecordId, QByteArray> m_records;
};

/// Codec of the rows that are not plain numbers, texts or records.
namespace StoreCodec {
QByteArray number(int value);
QByteArray text(const QString &text);
QByteArray names(const QStringList &names);
QByteArray order(const std::vector<int> &order);
QByteArray hotKey(const vantrix_hotkey_assign &assign);
std::optional<vantrix_hotkey_assign> hotKey(const QByteArray &bytes);

/// Bytes of a packed record.
template <typename T>
QByteArray record(const T &record)
{
    return QByteArray(reinterpret_cast<const char *>(&record), int(sizeof(T)));
}
/// The packed record of exactly these bytes.
template <typename T>
std::optional<T> record(const QByteArray &bytes)
{
    if (bytes.size() != int(sizeof(T)))
        return std::nullopt;
    T record;
    std::copy_n(bytes.constData(), sizeof(T), reinterpret_cast<char *>(&record));
    return record;
}

/// The bytes of a key's extras; the rows that a key with this content has, absent ones empty.
std::map<RecordId, QByteArray> keyRecords(int owner, int profile, int keyIdx,
                                          const KeyContent &key);
} // namespace StoreCodec
