#include "host/ExchangeReader.h"

#include "host/StoreState.h"
#include "vocabulary/AppTables.h"
#include "vocabulary/KeyCodes.h"

#include <QJsonDocument>

#include <algorithm>
#include <cmath>

namespace {

constexpr int MostMacros = 10000;
constexpr int MostByte = 255;
constexpr int MostWord = 65535;
constexpr int LeastDepth = 10;
constexpr int MostDepth = 90;

/// The members of a key that are extras, of which a key holds one.
constexpr const char *ExtraNames[] = {"app", "hotKey", "shortcut", "extended", "macro"};

QString kindOf(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Null:
        return QStringLiteral("null");
    case QJsonValue::Bool:
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QJsonValue::Double:
        return QString::number(value.toDouble(), 'g', 15);
    case QJsonValue::String:
        return QLatin1Char('"') + value.toString().left(40) + QLatin1Char('"');
    case QJsonValue::Array:
        return ExchangeReader::tr("a list");
    case QJsonValue::Object:
        return ExchangeReader::tr("an object");
    default:
        return ExchangeReader::tr("nothing");
    }
}

QString lineAndColumn(const QByteArray &json, int offset)
{
    const QByteArray before = json.left(offset);
    const int line = before.count('\n') + 1;
    const int column = offset - before.lastIndexOf('\n');
    return ExchangeReader::tr("line %1, column %2").arg(line).arg(column);
}

} // namespace

void ExchangeReader::fail(const QString &path, const QString &reason)
{
    if (m_error.isEmpty())
        m_error = QStringLiteral("%1, %2: %3").arg(m_fileName, path, reason);
}

ExchangeReader::Place ExchangeReader::member(const Place &object, const char *name) const
{
    const QString key = QLatin1String(name);
    return {object.value.toObject().value(key),
            object.path.isEmpty() ? key : object.path + QLatin1Char('.') + key};
}

bool ExchangeReader::has(const Place &object, const char *name) const
{
    return object.value.toObject().contains(QLatin1String(name));
}

bool ExchangeReader::checkObject(const Place &place, std::initializer_list<const char *> names)
{
    const QString path = place.path.isEmpty() ? tr("top") : place.path;
    if (!place.value.isObject()) {
        fail(path, tr("%1 is not an object").arg(kindOf(place.value)));
        return false;
    }
    const QStringList members = place.value.toObject().keys();
    for (const QString &name : members) {
        const bool known = std::any_of(names.begin(), names.end(), [&name](const char *one) {
            return name == QLatin1String(one);
        });
        if (!known)
            fail(path, tr("there is no member \"%1\" here").arg(name.left(40)));
    }
    return !failed();
}

QJsonArray ExchangeReader::array(const Place &place, int most)
{
    if (!place.value.isArray()) {
        fail(place.path, tr("%1 is not a list").arg(kindOf(place.value)));
        return {};
    }
    const QJsonArray elements = place.value.toArray();
    if (elements.size() > most)
        fail(place.path, tr("%1 elements are more than %2").arg(elements.size()).arg(most));
    return failed() ? QJsonArray() : elements;
}

int ExchangeReader::integer(const Place &place, int least, int most)
{
    const double number = place.value.toDouble();
    if (!place.value.isDouble() || std::floor(number) != number || number < least ||
        number > most) {
        fail(place.path, tr("%1 is not a whole number from %2 to %3")
                             .arg(kindOf(place.value))
                             .arg(least)
                             .arg(most));
        return least;
    }
    return int(number);
}

int ExchangeReader::integerOr(const Place &object, const char *name, int least, int most,
                              int otherwise)
{
    return has(object, name) ? integer(member(object, name), least, most) : otherwise;
}

QString ExchangeReader::text(const Place &place)
{
    if (!place.value.isString())
        fail(place.path, tr("%1 is not a text").arg(kindOf(place.value)));
    const QString text = place.value.toString();
    const QByteArray stored = text.toUtf8();
    // half of a surrogate pair is no character, and a NUL ends a text for too many readers
    if (stored.contains('\0') || QString::fromUtf8(stored) != text)
        fail(place.path, tr("the text holds a character that cannot be stored"));
    return text;
}

ExchangeContent ExchangeReader::read(const QByteArray &json)
{
    ExchangeContent content;
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError) {
        // the parser tells how far it had read, the wrong character included
        fail(lineAndColumn(json, std::max(0, error.offset - 1)), error.errorString());
        return content;
    }
    const Place file{document.isArray() ? QJsonValue(document.array())
                                        : QJsonValue(document.object()),
                     QString()};
    readHead(file);
    if (failed())
        return content;
    std::set<QString> names;
    const Place macros = member(file, "macros");
    int index = 0;
    for (const QJsonValue &value : has(file, "macros") ? array(macros, MostMacros) : QJsonArray()) {
        const Place place{value, QStringLiteral("%1[%2]").arg(macros.path).arg(index++)};
        content.macros.push_back(readMacro(place));
        if (!names.insert(content.macros.back().name).second)
            fail(place.path + QStringLiteral(".name"),
                 tr("two macros are named \"%1\"").arg(content.macros.back().name.left(40)));
    }
    std::set<int> numbers;
    const Place profiles = member(file, "profiles");
    index = 0;
    for (const QJsonValue &value : array(profiles, ProfileCount)) {
        const Place place{value, QStringLiteral("%1[%2]").arg(profiles.path).arg(index++)};
        content.profiles.push_back(readProfile(place));
        if (!numbers.insert(content.profiles.back().profile).second)
            fail(place.path + QStringLiteral(".profile"),
                 tr("profile %1 is here twice").arg(content.profiles.back().profile + 1));
    }
    if (has(file, "order"))
        content.order = readOrder(member(file, "order"));
    return content;
}

void ExchangeReader::readHead(const Place &file)
{
    const QString format = QStringLiteral("vantrixmap-profiles");
    if (!file.value.isObject() || member(file, "format").value.toString() != format) {
        fail(tr("top"), tr("this is not a file of profiles"));
        return;
    }
    const int version = integer(member(file, "version"), 1, MostWord);
    if (version > ProfileExchange::Version) {
        fail(QStringLiteral("version"), tr("the file is of version %1; this program reads up to %2")
                                            .arg(version)
                                            .arg(ProfileExchange::Version));
        return;
    }
    checkObject(file, {"format", "version", "macros", "profiles", "order"});
}

ExchangeContent::Macro ExchangeReader::readMacro(const Place &place)
{
    ExchangeContent::Macro macro;
    if (!checkObject(place, {"name", "record"}))
        return macro;
    macro.name = text(member(place, "name"));
    if (macro.name.isEmpty())
        fail(place.path + QStringLiteral(".name"), tr("a macro needs a name"));
    macro.record = readRecord(member(place, "record"));
    return macro;
}

vantrix_macro_record ExchangeReader::readRecord(const Place &place)
{
    vantrix_macro_record record;
    if (!checkObject(place, {"type", "code", "events", "bytes"}))
        return record;
    if (has(place, "bytes"))
        return readRecordBytes(member(place, "bytes"));
    record.type = quint8(integerOr(place, "type", 0, MostByte, 0));
    record.code = quint16(integerOr(place, "code", 0, MostWord, 0));
    const Place events = member(place, "events");
    for (const QJsonValue &value : array(events, vantrix_macro_record::MaxEvents)) {
        const QString path = QStringLiteral("%1[%2]").arg(events.path).arg(int(record.count));
        record.events[record.count++] = readEvent({value, path});
    }
    return record;
}

vantrix_macro_record ExchangeReader::readRecordBytes(const Place &place)
{
    const QByteArray bytes = QByteArray::fromBase64(text(place).toLatin1());
    const auto record = StoreCodec::record<vantrix_macro_record>(bytes);
    if (!record)
        fail(place.path, tr("these are %1 bytes and not %2")
                             .arg(bytes.size())
                             .arg(int(sizeof(vantrix_macro_record))));
    else if (record->count > vantrix_macro_record::MaxEvents)
        fail(place.path, tr("%1 elements are more than %2")
                             .arg(int(record->count))
                             .arg(vantrix_macro_record::MaxEvents));
    return record.value_or(vantrix_macro_record());
}

vantrix_macro_event ExchangeReader::readEvent(const Place &place)
{
    vantrix_macro_event event;
    if (!checkObject(place, {"code", "press", "delay"}))
        return event;
    event.code = quint16(integer(member(place, "code"), 0, MostWord));
    const Place press = member(place, "press");
    if (!press.value.isBool())
        fail(press.path, tr("%1 is neither true nor false").arg(kindOf(press.value)));
    event.state = press.value.toBool() ? 1 : 0;
    event.delay = quint16(integerOr(place, "delay", 0, MostWord, 0));
    return event;
}

ExchangeContent::Profile ExchangeReader::readProfile(const Place &place)
{
    ExchangeContent::Profile profile;
    if (!checkObject(place, {"profile", "name", "keys"}))
        return profile;
    profile.profile = integer(member(place, "profile"), 1, ProfileCount) - 1;
    if (has(place, "name"))
        profile.name = text(member(place, "name")).trimmed();
    std::set<int> seen;
    const Place keys = member(place, "keys");
    int index = 0;
    for (const QJsonValue &value : array(keys, KeyCount))
        readKey({value, QStringLiteral("%1[%2]").arg(keys.path).arg(index++)}, &profile.keys,
                &seen);
    return profile;
}

void ExchangeReader::readKey(const Place &place, ProfileKeys *keys, std::set<int> *seen)
{
    if (!checkObject(place, {"key", "mapping", "app", "hotKey", "shortcut", "extended", "macro"}))
        return;
    const int keyIdx = integer(member(place, "key"), 0, KeyCount - 1);
    if (!seen->insert(keyIdx).second)
        fail(place.path + QStringLiteral(".key"), tr("key %1 is here twice").arg(keyIdx));
    KeyContent &key = (*keys)[std::size_t(keyIdx)];
    if (has(place, "mapping"))
        key.mapping = readMapping(member(place, "mapping"));
    readExtra(place, &key);
}

vantrix_key_mapping ExchangeReader::readMapping(const Place &place)
{
    vantrix_key_mapping key;
    if (!checkObject(
            place, {"type", "code", "altCode", "firstAction", "secondAction", "dualType", "depth"}))
        return key;
    key.type = quint8(integerOr(place, "type", 0, KeyType::DualAction, 0));
    if (key.type == KeyType::Label)
        fail(place.path + QStringLiteral(".type"), tr("1 is not 0, 2 or 3"));
    const bool isDual = key.type == KeyType::DualAction;
    key.code = quint16(integerOr(place, "code", 0, MostWord, 0));
    key.altCode = quint16(integerOr(place, "altCode", 0, MostWord, 0));
    key.digital.firstAction = quint16(integerOr(place, "firstAction", 0, MostWord, 0));
    key.digital.secondAction = quint16(integerOr(place, "secondAction", 0, MostWord, 0));
    key.digital.dualType = quint8(integerOr(place, "dualType", 0, DualType::Combine, 0));
    key.digital.depth = quint8(isDual ? integer(member(place, "depth"), LeastDepth, MostDepth)
                                      : integerOr(place, "depth", 0, MostByte, 0));
    return key;
}

void ExchangeReader::readExtra(const Place &place, KeyContent *key)
{
    const auto count = std::count_if(std::begin(ExtraNames), std::end(ExtraNames),
                                     [&](const char *name) { return has(place, name); });
    if (count > 1)
        fail(place.path, tr("a key holds only one of app, hotKey, shortcut, extended and macro"));
    if (has(place, "app"))
        key->app = readApp(member(place, "app"));
    if (has(place, "hotKey"))
        key->hotKey = readHotKey(member(place, "hotKey"));
    if (has(place, "shortcut"))
        key->shortcut = vantrix_shortcut_assign{
            quint8(integer(member(place, "shortcut"), 0, WinShortcutCount - 1)), 0};
    if (has(place, "extended"))
        key->extended = readExtended(member(place, "extended"));
    if (!has(place, "macro"))
        return;
    key->macroName = text(member(place, "macro"));
    if (key->macroName->isEmpty())
        fail(place.path + QStringLiteral(".macro"), tr("a macro needs a name"));
}

vantrix_app_assign ExchangeReader::readApp(const Place &place)
{
    vantrix_app_assign app;
    if (!checkObject(place, {"application", "function", "record"}))
        return app;
    app.appType = integer(member(place, "application"), 0, AppType::Count - 1);
    app.funcId = integer(member(place, "function"), 0, AppFuncCount - 1);
    app.macro = readRecord(member(place, "record"));
    return app;
}

vantrix_hotkey_assign ExchangeReader::readHotKey(const Place &place)
{
    vantrix_hotkey_assign assign;
    if (!checkObject(place, {"keys", "name"}))
        return assign;
    assign.hotKey = text(member(place, "keys"));
    assign.keyName = text(member(place, "name"));
    return assign;
}

vantrix_extended_key ExchangeReader::readExtended(const Place &place)
{
    const int code = integer(place, 0, MostWord);
    if (!failed() && !isExtendedCode(ushort(code)))
        fail(place.path, tr("%1 is not an extended code").arg(code));
    return {0, quint16(code)};
}

std::vector<int> ExchangeReader::readOrder(const Place &place)
{
    std::vector<int> order;
    int index = 0;
    for (const QJsonValue &value : array(place, ProfileCount)) {
        const Place element{value, QStringLiteral("%1[%2]").arg(place.path).arg(index++)};
        const int profile = integer(element, 1, ProfileCount) - 1;
        if (std::count(order.begin(), order.end(), profile) > 0)
            fail(element.path, tr("profile %1 is here twice").arg(profile + 1));
        order.push_back(profile);
    }
    return order;
}
