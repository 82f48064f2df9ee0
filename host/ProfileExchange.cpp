#include "host/ProfileExchange.h"

#include "host/ExchangeReader.h"
#include "host/ProfileStore.h"
#include "vocabulary/AppTables.h"

#include <QJsonDocument>

#include <algorithm>

namespace {

/// Sets a member unless it says what its absence says.
void set(QJsonObject &object, const char *name, int value)
{
    if (value != 0)
        object.insert(QLatin1String(name), value);
}

QJsonObject jsonOf(const vantrix_macro_record &record)
{
    vantrix_macro_record plain;
    plain.type = record.type;
    plain.code = record.code;
    QJsonArray events;
    const int count = std::min<int>(record.count, vantrix_macro_record::MaxEvents);
    for (int i = 0; i < count; ++i) {
        vantrix_macro_event event = record.events[std::size_t(i)];
        QJsonObject object{{QStringLiteral("code"), event.code},
                           {QStringLiteral("press"), event.state != 0}};
        set(object, "delay", event.delay);
        events << object;
        event.state = event.state != 0 ? 1 : 0;
        plain.events[plain.count++] = event;
    }
    // a record with more in it than these members can say goes as it is
    if (plain != record)
        return {
            {QStringLiteral("bytes"), QString::fromLatin1(StoreCodec::record(record).toBase64())}};
    QJsonObject object{{QStringLiteral("events"), events}};
    set(object, "type", record.type);
    set(object, "code", record.code);
    return object;
}

QJsonObject jsonOf(const vantrix_key_mapping &mapping)
{
    QJsonObject object;
    set(object, "type", mapping.type);
    set(object, "code", mapping.code);
    set(object, "altCode", mapping.altCode);
    set(object, "firstAction", mapping.digital.firstAction);
    set(object, "secondAction", mapping.digital.secondAction);
    set(object, "dualType", mapping.digital.dualType);
    set(object, "depth", mapping.digital.depth);
    return object;
}

QJsonObject jsonOf(int keyIdx, const KeyContent &key)
{
    QJsonObject object{{QStringLiteral("key"), keyIdx},
                       {QStringLiteral("mapping"), jsonOf(key.mapping)}};
    if (key.app) {
        const QJsonObject app{{QStringLiteral("application"), int(key.app->appType)},
                              {QStringLiteral("function"), int(key.app->funcId)},
                              {QStringLiteral("record"), jsonOf(key.app->macro)}};
        object.insert(QStringLiteral("app"), app);
    }
    if (key.hotKey) {
        const QJsonObject hotKey{{QStringLiteral("keys"), key.hotKey->hotKey},
                                 {QStringLiteral("name"), key.hotKey->keyName}};
        object.insert(QStringLiteral("hotKey"), hotKey);
    }
    if (key.shortcut)
        object.insert(QStringLiteral("shortcut"), int(key.shortcut->id));
    if (key.extended)
        object.insert(QStringLiteral("extended"), int(key.extended->code));
    if (key.macroName)
        object.insert(QStringLiteral("macro"), *key.macroName);
    return object;
}

QJsonObject jsonOf(const ExchangeContent::Profile &profile)
{
    QJsonArray keys;
    for (int i = 0; i < KeyCount; ++i) {
        const KeyContent &key = profile.keys[std::size_t(i)];
        if (key != freshKey(i))
            keys << jsonOf(i, key);
    }
    QJsonObject object{{QStringLiteral("profile"), profile.profile + 1},
                       {QStringLiteral("keys"), keys}};
    if (!profile.name.isEmpty())
        object.insert(QStringLiteral("name"), profile.name);
    return object;
}

/// Names of the macros that keys of these profiles hold.
std::set<QString> macrosOn(const std::vector<ExchangeContent::Profile> &profiles)
{
    std::set<QString> names;
    for (const ExchangeContent::Profile &profile : profiles) {
        for (const KeyContent &key : profile.keys) {
            if (key.macroName)
                names.insert(*key.macroName);
        }
    }
    return names;
}

} // namespace

ExchangeContent ProfileExchange::take(const StoreState &state, int owner,
                                      const std::vector<int> &profiles)
{
    ExchangeContent content;
    for (const int profile : profiles) {
        content.profiles.push_back(
            {profile, state.text(profileRecord(StoreTable::ProfileName, owner, profile)),
             state.keys(owner, profile)});
    }
    const bool all = int(profiles.size()) == ProfileCount;
    const std::set<QString> used = macrosOn(content.profiles);
    const QStringList names = state.macroNames(owner);
    for (const QString &name : names) {
        const auto record = state.macro(owner, name);
        if (record && (all || used.count(name) > 0))
            content.macros.push_back({name, *record});
    }
    if (all)
        content.order = state.profileOrder(owner);
    return content;
}

QByteArray ProfileExchange::toJson(const ExchangeContent &content)
{
    QJsonArray macros;
    for (const ExchangeContent::Macro &macro : content.macros)
        macros << QJsonObject{{QStringLiteral("name"), macro.name},
                              {QStringLiteral("record"), jsonOf(macro.record)}};
    QJsonArray profiles;
    for (const ExchangeContent::Profile &profile : content.profiles)
        profiles << jsonOf(profile);
    QJsonObject file{{QStringLiteral("format"), QStringLiteral("vantrixmap-profiles")},
                     {QStringLiteral("version"), Version},
                     {QStringLiteral("macros"), macros},
                     {QStringLiteral("profiles"), profiles}};
    QJsonArray order;
    for (const int profile : content.order)
        order << profile + 1;
    if (!order.isEmpty())
        file.insert(QStringLiteral("order"), order);
    return QJsonDocument(file).toJson();
}

std::optional<ExchangeContent> ProfileExchange::fromJson(const QByteArray &json,
                                                         const QString &fileName, QString *error)
{
    ExchangeReader reader(fileName);
    ExchangeContent content = reader.read(json);
    *error = reader.error();
    if (reader.failed())
        return std::nullopt;
    return content;
}

ExchangeReport ProfileExchange::put(const ExchangeContent &content, ProfileStore &store, int owner)
{
    const int count = int(content.profiles.size());
    const StoreStepScope step(
        store, count == 0   ? tr("Import macros")
               : count == 1 ? tr("Import profile %1").arg(content.profiles[0].profile + 1)
                            : tr("Import %1 profiles").arg(count));
    ExchangeReport report;
    std::map<QString, QString> newNames;
    for (const ExchangeContent::Macro &macro : content.macros) {
        // what an earlier import of the same macro was named is taken again
        const QString name = store.freeMacroName(owner, macro.name, macro.record);
        store.addMacro(owner, name, macro.record); // unless it is there
        if (name != macro.name) {
            newNames[macro.name] = name;
            report.renamedMacros.emplace_back(macro.name, name);
        }
    }
    std::set<int> applications;
    for (const ExchangeContent::Profile &profile : content.profiles) {
        ProfileKeys keys = profile.keys;
        for (KeyContent &key : keys) {
            if (key.macroName && newNames.count(*key.macroName) > 0)
                key.macroName = newNames.at(*key.macroName);
            if (key.app)
                applications.insert(int(key.app->appType));
        }
        store.setProfileKeys(owner, profile.profile, keys);
        store.setProfileName(owner, profile.profile, profile.name);
    }
    if (!content.order.empty()) {
        store.setProfileOrder(owner, content.order);
        int place = 0;
        for (const ExchangeContent::Macro &macro : content.macros) {
            const auto renamed = newNames.find(macro.name);
            const QString name = renamed == newNames.end() ? macro.name : renamed->second;
            store.moveMacro(owner, store.state().macroNames(owner).indexOf(name), place++);
        }
    }
    for (const int appType : applications) {
        if (!store.hasAppPath(appType))
            report.missingApplications << appTypeText(appType);
    }
    return report;
}
