#include "host/DeviceImage.h"

#include "host/KeyText.h"
#include "host/ProfileStore.h"
#include "vocabulary/KeyCodes.h"

#include <QDataStream>

#include <algorithm>

namespace {

constexpr auto StreamVersion = QDataStream::Qt_5_12;
constexpr quint16 EventDelay = 20;

// clang-format off
/// Spellings of hot keys that the table of key names has under the name of the shifted character,
/// or in full.
struct KeyAlias { const char *spelling; const char *name; };
constexpr std::array<KeyAlias, 18> KeyAliases = {{
    {"",        "PLUS"},
    {"=",       "PLUS"},
    {"-",       "MINUS"},
    {"[",       "{"},
    {"]",       "}"},
    {";",       ":"},
    {"`",       "~"},
    {",",       "<"},
    {".",       ">"},
    {"/",       "?"},
    {"CONTROL", "CTRL"},
    {"DEL",     "DELETE"},
    {"ESCAPE",  "ESC"},
    {"RETURN",  "ENTER"},
    {"PGUP",    "PAGE UP"},
    {"PGDN",    "PAGE DOWN"},
    {"INS",     "INSERT"},
    {"SPACEBAR", "SPACE"},
}};
// clang-format on

ushort hotKeyCode(const QString &part)
{
    QString name = part.trimmed().toUpper();
    for (const KeyAlias &alias : KeyAliases) {
        if (name == QLatin1String(alias.spelling))
            name = QLatin1String(alias.name);
    }
    const auto &names = KeyNameCodes();
    const auto found = names.find(name);
    return found == names.end() ? ushort(0) : found->second.first;
}

template <typename Map, typename Key>
std::vector<ushort> codesIn(const Map &map, const Key &key)
{
    const auto found = map.find(key);
    return found == map.end() ? std::vector<ushort>() : found->second;
}

vantrix_macro_record sequenceOf(const StoreState &state, int owner, int keyIdx,
                                const KeyContent &key)
{
    const ushort code = defaultCodeOfKey(keyIdx);
    if (key.app) {
        // a function that the device knows by itself is a plain code
        const bool isPlain = ushort(key.app->macro.code) == 0;
        return isPlain ? vantrix_macro_record() : vantrix_macro_record(key.app->macro);
    }
    if (key.hotKey)
        return chordRecord(hotKeyCodes(key.hotKey->hotKey), code);
    if (key.shortcut)
        return chordRecord(codesIn(WinShortcutKeys(), int(key.shortcut->id)), code);
    if (key.extended)
        return chordRecord(codesIn(SymbolKeySequences(), ushort(key.extended->code)), code);
    if (!key.macroName)
        return vantrix_macro_record();
    vantrix_macro_record record =
        state.macro(owner, *key.macroName).value_or(vantrix_macro_record());
    record.code = code;
    return record;
}

} // namespace

bool operator==(const DeviceKey &a, const DeviceKey &b)
{
    return a.content == b.content && a.sequence == b.sequence;
}

bool actAlike(int keyIdx, const DeviceKey &a, const DeviceKey &b)
{
    KeyContent content = actingKey(keyIdx, a.content);
    if (content.macroName && b.content.macroName)
        content.macroName = b.content.macroName;
    return content == actingKey(keyIdx, b.content) && a.sequence == b.sequence;
}

bool operator==(const DeviceImage &a, const DeviceImage &b)
{
    return a.owner == b.owner && a.profile == b.profile && a.keys == b.keys;
}

bool actAlike(const DeviceImage &a, const DeviceImage &b)
{
    int keyIdx = 0;
    return std::equal(a.keys.begin(), a.keys.end(), b.keys.begin(),
                      [&keyIdx](const DeviceKey &one, const DeviceKey &other) {
                          return actAlike(keyIdx++, one, other);
                      });
}

vantrix_macro_record chordRecord(const std::vector<ushort> &codes, ushort recordCode)
{
    vantrix_macro_record record;
    record.code = recordCode;
    std::vector<ushort> held;
    const auto add = [&record](ushort code, quint8 state) {
        if (record.count < vantrix_macro_record::MaxEvents)
            record.events[record.count++] = {code, state, EventDelay};
    };
    for (const ushort code : codes) {
        const auto again = std::find(held.begin(), held.end(), code);
        if (again != held.end()) {
            held.erase(again);
            add(code, 0);
        }
        held.push_back(code);
        add(code, 1);
    }
    for (auto code = held.rbegin(); code != held.rend(); ++code)
        add(*code, 0);
    return record;
}

std::vector<ushort> hotKeyCodes(const QString &hotKey)
{
    std::vector<ushort> codes;
    QString text = hotKey.trimmed();
    if (text.isEmpty())
        return codes;
    const bool endsInPlus = text.endsWith(QLatin1Char('+'));
    if (endsInPlus)
        text.chop(1);
    if (text.endsWith(QLatin1Char('+')))
        text.chop(1);
    QStringList parts = text.isEmpty() ? QStringList() : text.split(QLatin1Char('+'));
    if (endsInPlus)
        parts << QString();
    for (const QString &part : qAsConst(parts)) {
        const ushort code = hotKeyCode(part);
        if (code == 0)
            return {};
        codes.push_back(code);
    }
    return codes;
}

DeviceImage DeviceImage::of(const StoreState &state, int owner, int profile)
{
    DeviceImage image = factory(owner, profile);
    for (int i = 0; i < KeyCount; ++i) {
        DeviceKey &key = image.keys[std::size_t(i)];
        key.content = state.key(owner, profile, i);
        key.sequence = sequenceOf(state, owner, i, key.content);
    }
    return image;
}

DeviceImage DeviceImage::factory(int owner, int profile)
{
    DeviceImage image;
    image.owner = owner;
    image.profile = profile;
    for (int i = 0; i < KeyCount; ++i)
        image.keys[std::size_t(i)].content = freshKey(i);
    return image;
}

QString DeviceImage::putBack(int keyIdx, ProfileStore &store) const
{
    const DeviceKey &key = keys[std::size_t(keyIdx)];
    KeyContent content = key.content;
    QString fresh;
    if (content.macroName) {
        const auto [name, added] = store.macroPlaying(owner, *content.macroName, key.sequence);
        content.macroName = name;
        if (added)
            fresh = name;
    }
    store.setProfileKey(owner, profile, keyIdx, content);
    return fresh;
}

QByteArray DeviceImage::toBytes() const
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(StreamVersion);
    stream << owner << profile;
    for (int i = 0; i < KeyCount; ++i) {
        const DeviceKey &key = keys[std::size_t(i)];
        for (const auto &row : StoreCodec::keyRecords(owner, profile, i, key.content))
            stream << row.second;
        stream << StoreCodec::record(key.sequence);
    }
    return qCompress(bytes, 1);
}

std::optional<DeviceImage> DeviceImage::fromBytes(const QByteArray &bytes)
{
    if (bytes.isEmpty())
        return std::nullopt;
    QDataStream stream(qUncompress(bytes));
    stream.setVersion(StreamVersion);
    DeviceImage image;
    stream >> image.owner >> image.profile;
    for (int i = 0; i < KeyCount; ++i) {
        StoreState rows;
        for (const auto &row :
             StoreCodec::keyRecords(image.owner, image.profile, i, KeyContent())) {
            QByteArray value;
            stream >> value;
            rows.setRecord(row.first, value);
        }
        QByteArray sequence;
        stream >> sequence;
        DeviceKey &key = image.keys[std::size_t(i)];
        key.content = rows.key(image.owner, image.profile, i);
        key.sequence =
            StoreCodec::record<vantrix_macro_record>(sequence).value_or(vantrix_macro_record());
    }
    return stream.status() == QDataStream::Ok ? std::optional<DeviceImage>(image) : std::nullopt;
}

std::vector<DeviceDifference> differences(const DeviceImage &before, const DeviceImage &after)
{
    std::vector<DeviceDifference> list;
    for (int i = 0; i < KeyCount; ++i) {
        const DeviceKey &old = before.keys[std::size_t(i)];
        const DeviceKey &now = after.keys[std::size_t(i)];
        if (actAlike(i, old, now))
            continue;
        DeviceDifference difference{i, old, now, KeyText::functionName(i, old.content),
                                    KeyText::functionName(i, now.content)};
        if (difference.beforeText == difference.afterText)
            difference.afterText = KeyText::tr("%1 (changed)").arg(difference.afterText);
        list.push_back(difference);
    }
    return list;
}
