#include "JsonSchema.h"
#include "StoreEdits.h"
#include "host/ProfileExchange.h"
#include "support/TestMain.h"
#include "vocabulary/KeyCodes.h"

#include <QJsonArray>
#include <QJsonDocument>

class tst_ProfileExchange : public QObject
{
    Q_OBJECT

private slots:
    void everythingComesBack_data();
    void everythingComesBack();
    void oneProfileBringsItsMacros();
    void oneStep();
    void sameMacroIsShared();
    void otherMacroOfThatNameIsToldApart();
    void missingApplications();
    void recordThatNeedsItsBytes();
    void fileIsReadable();
    void smallestFile();
    void exampleOfTheDocumentation();
    void brokenFiles_data();
    void brokenFiles();
    void extendedCodesOfTheSchema();
    void anyByteChanged();
};

namespace {

constexpr int Owner = StoreEdits::Owner;

/// The published schema.
const JsonSchema &schema()
{
    static const JsonSchema published = [] {
        QFile file(QStringLiteral(DOCS_DIR "/profile-files.schema.json"));
        if (!file.open(QIODevice::ReadOnly))
            qFatal("the schema is missing");
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
        if (document.isNull())
            qFatal("the schema is no JSON: %s", qPrintable(error.errorString()));
        return JsonSchema(document.object());
    }();
    return published;
}

/// What is wrong with these files is more than a schema can say.
bool isBeyondSchemas(const char *row)
{
    static const QStringList rows{QStringLiteral("profile twice"), QStringLiteral("key twice"),
                                  QStringLiteral("macro twice"), QStringLiteral("bytes count 255")};
    return rows.contains(QLatin1String(row));
}

std::vector<int> allProfiles()
{
    std::vector<int> all;
    for (int i = 0; i < ProfileCount; ++i)
        all.push_back(i);
    return all;
}

QString head()
{
    return QStringLiteral("{\"format\": \"vantrixmap-profiles\", \"version\": 1, ");
}
/// A file whose one profile has that key.
QString withKey(const QString &key)
{
    return head() + QStringLiteral("\"profiles\": [{\"profile\": 1, \"keys\": [%1]}]}").arg(key);
}
QString withMapping(const QString &mapping)
{
    return withKey(QStringLiteral("{\"key\": 7, \"mapping\": {%1}}").arg(mapping));
}
QString withProfiles(const QString &profiles)
{
    return head() + QStringLiteral("\"profiles\": %1}").arg(profiles);
}
QString withMacros(const QString &macros)
{
    return head() + QStringLiteral("\"profiles\": [], \"macros\": %1}").arg(macros);
}
QString withRecord(const QString &record)
{
    return withMacros(QStringLiteral("[{\"name\": \"A\", \"record\": %1}]").arg(record));
}
QString withEvent(const QString &event)
{
    return withRecord(QStringLiteral("{\"events\": [%1]}").arg(event));
}

} // namespace

void tst_ProfileExchange::everythingComesBack_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 5; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void tst_ProfileExchange::everythingComesBack()
{
    QFETCH(quint32, seed);
    ProfileStore store{QString()};
    StoreEdits edits(store, seed);
    for (int i = 0; i < 300; ++i) {
        edits.look();
        edits.edit();
    }
    store.flush();
    const QByteArray before = store.state().toBytes();
    const QByteArray json =
        ProfileExchange::toJson(ProfileExchange::take(store.state(), Owner, allProfiles()));
    for (int i = 0; i < ProfileCount; ++i) {
        store.clearProfile(Owner, i);
        store.setProfileName(Owner, i, QStringLiteral("other"));
    }
    store.setProfileOrder(Owner, {});
    // some macros stay, so what comes back finds its place among them
    bool stays = false;
    for (const QString &name : store.state().macroNames(Owner)) {
        stays = !stays;
        if (!stays)
            store.removeMacro(Owner, name);
    }
    store.moveMacro(Owner, 0, int(store.state().macroNames(Owner).size()) - 1);
    QVERIFY(store.state().toBytes() != before);
    QVERIFY(schema().accepts(QJsonDocument::fromJson(json).object()));
    QString error;
    const auto content = ProfileExchange::fromJson(json, QStringLiteral("file"), &error);
    QVERIFY2(content, qPrintable(error));
    const ExchangeReport report = ProfileExchange::put(*content, store, Owner);
    QVERIFY(report.renamedMacros.empty());
    QVERIFY(store.state().toBytes() == before);
    QCOMPARE(ProfileExchange::toJson(ProfileExchange::take(store.state(), Owner, allProfiles())),
             json);
}

void tst_ProfileExchange::oneProfileBringsItsMacros()
{
    ProfileStore store{QString()};
    store.addMacro(Owner, QStringLiteral("used"), vantrix_macro_record());
    store.addMacro(Owner, QStringLiteral("unused"), vantrix_macro_record());
    store.setNamedMacroKey(Owner, 4, "used", 1);
    ExchangeContent content = ProfileExchange::take(store.state(), Owner, {4});
    QCOMPARE(int(content.macros.size()), 1);
    QCOMPARE(content.macros[0].name, QStringLiteral("used"));
    QVERIFY(content.order.empty());
    content.profiles[0].profile = 9;
    ProfileStore other{QString()};
    ProfileExchange::put(content, other, Owner);
    QCOMPARE(*other.state().macroKey(Owner, 9, 1), QStringLiteral("used"));
    QCOMPARE(other.state().macroNames(Owner), QStringList(QStringLiteral("used")));
}

void tst_ProfileExchange::oneStep()
{
    ProfileStore store{QString()};
    StoreEdits edits(store, 8);
    for (int i = 0; i < 50; ++i) {
        edits.look();
        edits.edit();
    }
    const ExchangeContent content = ProfileExchange::take(store.state(), Owner, allProfiles());
    ProfileStore other{QString()};
    ProfileExchange::put(content, other, Owner);
    QCOMPARE(other.stepNames(), QStringList(QStringLiteral("Import 24 profiles")));
    QVERIFY(other.undo());
    QVERIFY(other.state().records().empty());
    ProfileExchange::put(ProfileExchange::take(store.state(), Owner, {2}), other, Owner);
    QCOMPARE(other.stepNames(), QStringList(QStringLiteral("Import profile 3")));
}

void tst_ProfileExchange::sameMacroIsShared()
{
    ProfileStore store{QString()};
    store.addMacro(Owner, QStringLiteral("A"), vantrix_macro_record());
    store.setNamedMacroKey(Owner, 0, "A", 1);
    const ExchangeContent content = ProfileExchange::take(store.state(), Owner, {0});
    const ExchangeReport report = ProfileExchange::put(content, store, Owner);
    QVERIFY(report.renamedMacros.empty());
    QCOMPARE(store.state().macroNames(Owner), QStringList(QStringLiteral("A")));
}

void tst_ProfileExchange::otherMacroOfThatNameIsToldApart()
{
    ProfileStore store{QString()};
    store.addMacro(Owner, QStringLiteral("A"), vantrix_macro_record());
    store.setNamedMacroKey(Owner, 0, "A", 1);
    const ExchangeContent content = ProfileExchange::take(store.state(), Owner, {0});
    vantrix_macro_record other;
    other.count = 1;
    store.setMacro(Owner, QStringLiteral("A"), other);
    const ExchangeReport report = ProfileExchange::put(content, store, Owner);
    QCOMPARE(int(report.renamedMacros.size()), 1);
    QCOMPARE(report.renamedMacros[0].first, QStringLiteral("A"));
    QCOMPARE(report.renamedMacros[0].second, QStringLiteral("A 2"));
    QCOMPARE(*store.state().macroKey(Owner, 0, 1), QStringLiteral("A 2"));
    QCOMPARE(*store.state().macro(Owner, QStringLiteral("A")), other);
}

void tst_ProfileExchange::missingApplications()
{
    ProfileStore store{QString()};
    vantrix_app_assign app;
    app.funcId = 6;
    app.appType = 1;
    store.setAppAssign(Owner, 0, 1, &app);
    app.appType = 2;
    store.setAppAssign(Owner, 0, 2, &app);
    store.setAppPath(2, QStringLiteral("/ai.exe"));
    const ExchangeReport report =
        ProfileExchange::put(ProfileExchange::take(store.state(), Owner, {0}), store, Owner);
    QCOMPARE(report.missingApplications, QStringList(QStringLiteral("PREMIERE PRO")));
}

void tst_ProfileExchange::recordThatNeedsItsBytes()
{
    ProfileStore store{QString()};
    vantrix_macro_record record;
    record.count = 2;
    record.reserved[3] = 9;
    record.events[1].state = 7;
    record.events[100] = {1, 2, 3};
    store.addMacro(Owner, QStringLiteral("A"), record);
    const QByteArray json =
        ProfileExchange::toJson(ProfileExchange::take(store.state(), Owner, allProfiles()));
    QString error;
    const auto content = ProfileExchange::fromJson(json, QStringLiteral("file"), &error);
    QVERIFY2(content, qPrintable(error));
    QVERIFY(schema().accepts(QJsonDocument::fromJson(json).object()));
    QCOMPARE(content->macros.at(0).record, record);
}

void tst_ProfileExchange::fileIsReadable()
{
    ProfileStore store{QString()};
    const vantrix_key_mapping key = plainKey(5);
    store.setKeyMapping(Owner, 2, 7, &key);
    store.setProfileName(Owner, 2, QStringLiteral("Work"));
    QCOMPARE(ProfileExchange::toJson(ProfileExchange::take(store.state(), Owner, {2})),
             QByteArray("{\n"
                        "    \"format\": \"vantrixmap-profiles\",\n"
                        "    \"macros\": [\n"
                        "    ],\n"
                        "    \"profiles\": [\n"
                        "        {\n"
                        "            \"keys\": [\n"
                        "                {\n"
                        "                    \"key\": 7,\n"
                        "                    \"mapping\": {\n"
                        "                        \"code\": 5\n"
                        "                    }\n"
                        "                }\n"
                        "            ],\n"
                        "            \"name\": \"Work\",\n"
                        "            \"profile\": 3\n"
                        "        }\n"
                        "    ],\n"
                        "    \"version\": 1\n"
                        "}\n"));
}

void tst_ProfileExchange::smallestFile()
{
    QString error;
    const auto content = ProfileExchange::fromJson(withProfiles(QStringLiteral("[]")).toUtf8(),
                                                   QStringLiteral("file"), &error);
    QVERIFY(content);
    QCOMPARE(error, QString());
    ProfileStore store{QString()};
    ProfileExchange::put(*content, store, Owner);
    QVERIFY(!store.canUndo());
}

void tst_ProfileExchange::exampleOfTheDocumentation()
{
    QFile page(QStringLiteral(DOCS_DIR "/profile-files.md"));
    QVERIFY(page.open(QIODevice::ReadOnly));
    const QByteArray text = page.readAll();
    const int start = text.indexOf("```json") + 7;
    QString error;
    const auto content = ProfileExchange::fromJson(
        text.mid(start, text.indexOf("```", start) - start), page.fileName(), &error);
    QVERIFY2(content, qPrintable(error));
    const ProfileKeys &keys = content->profiles.at(0).keys;
    QCOMPARE(content->profiles.at(0).profile, 2);
    QCOMPARE(keys[7].mapping, plainKey(5));
    QCOMPARE(*keys[8].macroName, QStringLiteral("Hello"));
    QCOMPARE(int(keys[9].mapping.digital.depth), 50);
}

void tst_ProfileExchange::brokenFiles_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<QString>("message");
    const QString macro = QStringLiteral("{\"name\": \"A\", \"record\": {\"events\": []}}");
    const QString key = QStringLiteral("{\"key\": 7}");
    const QString app = QStringLiteral("{\"key\": 7, \"app\": %1}");
    QStringList events;
    for (int i = 0; i < 128; ++i)
        events << QStringLiteral("{\"code\": 4, \"press\": true}");
    QStringList profiles;
    for (int i = 0; i < 25; ++i)
        profiles << QStringLiteral("{\"profile\": 1, \"keys\": []}");
    QStringList keys;
    for (int i = 0; i < 29; ++i)
        keys << key;

    // clang-format off
    QTest::newRow("nothing")             << "" << "my.json, line 1, column 1: illegal value";
    QTest::newRow("a letter")            << "Dear friend" << "my.json, line 1, column 1: illegal value";
    QTest::newRow("cut off")             << withProfiles("[{") << "my.json, line 1, column 63: unterminated array";
    QTest::newRow("third line")          << "{\n\"format\": 1,\n oops}" << "my.json, line 3, column 2: unterminated object";
    QTest::newRow("a list")              << "[]" << "my.json, top: this is not a file of profiles";
    QTest::newRow("empty object")        << "{}" << "my.json, top: this is not a file of profiles";
    QTest::newRow("another format")      << "{\"format\": \"letters\"}" << "my.json, top: this is not a file of profiles";
    QTest::newRow("format a number")     << "{\"format\": 7}" << "my.json, top: this is not a file of profiles";
    QTest::newRow("no version")          << "{\"format\": \"vantrixmap-profiles\"}" << "my.json, version: nothing is not a whole number from 1 to 65535";
    QTest::newRow("version 2")           << "{\"format\": \"vantrixmap-profiles\", \"version\": 2}" << "my.json, version: the file is of version 2; this program reads up to 1";
    QTest::newRow("version a text")      << "{\"format\": \"vantrixmap-profiles\", \"version\": \"1\"}" << "my.json, version: \"1\" is not a whole number from 1 to 65535";
    QTest::newRow("unknown member")      << head() + "\"profils\": []}" << "my.json, top: there is no member \"profils\" here";
    QTest::newRow("no profiles")         << "{\"format\": \"vantrixmap-profiles\", \"version\": 1}" << "my.json, profiles: nothing is not a list";
    QTest::newRow("profiles an object")  << withProfiles("{}") << "my.json, profiles: an object is not a list";
    QTest::newRow("profile a number")    << withProfiles("[3]") << "my.json, profiles[0]: 3 is not an object";
    QTest::newRow("profile member")      << withProfiles("[{\"profile\": 1, \"colour\": 1, \"keys\": []}]") << "my.json, profiles[0]: there is no member \"colour\" here";
    QTest::newRow("profile 0")           << withProfiles("[{\"profile\": 0, \"keys\": []}]") << "my.json, profiles[0].profile: 0 is not a whole number from 1 to 24";
    QTest::newRow("profile 25")          << withProfiles("[{\"profile\": 25, \"keys\": []}]") << "my.json, profiles[0].profile: 25 is not a whole number from 1 to 24";
    QTest::newRow("profile missing")     << withProfiles("[{\"keys\": []}]") << "my.json, profiles[0].profile: nothing is not a whole number from 1 to 24";
    QTest::newRow("profile twice")       << withProfiles("[{\"profile\": 2, \"keys\": []}, {\"profile\": 2, \"keys\": []}]") << "my.json, profiles[1].profile: profile 2 is here twice";
    QTest::newRow("25 profiles")         << withProfiles("[" + profiles.join(",") + "]") << "my.json, profiles: 25 elements are more than 24";
    QTest::newRow("name a number")       << withProfiles("[{\"profile\": 1, \"name\": 5, \"keys\": []}]") << "my.json, profiles[0].name: 5 is not a text";
    QTest::newRow("name half a character") << withProfiles("[{\"profile\": 1, \"name\": \"\\ud800\", \"keys\": []}]") << "my.json, profiles[0].name: the text holds a character that cannot be stored";
    QTest::newRow("name with a NUL")     << withProfiles("[{\"profile\": 1, \"name\": \"a\\u0000b\", \"keys\": []}]") << "my.json, profiles[0].name: the text holds a character that cannot be stored";
    QTest::newRow("no keys")             << withProfiles("[{\"profile\": 1}]") << "my.json, profiles[0].keys: nothing is not a list";
    QTest::newRow("29 keys")             << withKey(keys.join(",")) << "my.json, profiles[0].keys: 29 elements are more than 28";
    QTest::newRow("key a text")          << withKey("\"B\"") << "my.json, profiles[0].keys[0]: \"B\" is not an object";
    QTest::newRow("key 28")              << withKey("{\"key\": 28}") << "my.json, profiles[0].keys[0].key: 28 is not a whole number from 0 to 27";
    QTest::newRow("key -1")              << withKey("{\"key\": -1}") << "my.json, profiles[0].keys[0].key: -1 is not a whole number from 0 to 27";
    QTest::newRow("key 1.5")             << withKey("{\"key\": 1.5}") << "my.json, profiles[0].keys[0].key: 1.5 is not a whole number from 0 to 27";
    QTest::newRow("key huge")            << withKey("{\"key\": 1e300}") << "my.json, profiles[0].keys[0].key: 1e+300 is not a whole number from 0 to 27";
    QTest::newRow("key twice")           << withKey(key + "," + key) << "my.json, profiles[0].keys[1].key: key 7 is here twice";
    QTest::newRow("key member")          << withKey("{\"key\": 7, \"code\": 5}") << "my.json, profiles[0].keys[0]: there is no member \"code\" here";
    QTest::newRow("two extras")          << withKey("{\"key\": 7, \"shortcut\": 1, \"macro\": \"A\"}") << "my.json, profiles[0].keys[0]: a key holds only one of app, hotKey, shortcut, extended and macro";
    QTest::newRow("mapping a list")      << withKey("{\"key\": 7, \"mapping\": []}") << "my.json, profiles[0].keys[0].mapping: a list is not an object";
    QTest::newRow("type 1")              << withMapping("\"type\": 1") << "my.json, profiles[0].keys[0].mapping.type: 1 is not 0, 2 or 3";
    QTest::newRow("type 4")              << withMapping("\"type\": 4") << "my.json, profiles[0].keys[0].mapping.type: 4 is not a whole number from 0 to 3";
    QTest::newRow("code 65536")          << withMapping("\"code\": 65536") << "my.json, profiles[0].keys[0].mapping.code: 65536 is not a whole number from 0 to 65535";
    QTest::newRow("code null")           << withMapping("\"code\": null") << "my.json, profiles[0].keys[0].mapping.code: null is not a whole number from 0 to 65535";
    QTest::newRow("altCode true")        << withMapping("\"altCode\": true") << "my.json, profiles[0].keys[0].mapping.altCode: true is not a whole number from 0 to 65535";
    QTest::newRow("dual type 3")         << withMapping("\"type\": 3, \"dualType\": 3, \"depth\": 50") << "my.json, profiles[0].keys[0].mapping.dualType: 3 is not a whole number from 0 to 2";
    QTest::newRow("depth 9")             << withMapping("\"type\": 3, \"firstAction\": 4, \"depth\": 9") << "my.json, profiles[0].keys[0].mapping.depth: 9 is not a whole number from 10 to 90";
    QTest::newRow("depth 91")            << withMapping("\"type\": 3, \"firstAction\": 4, \"depth\": 91") << "my.json, profiles[0].keys[0].mapping.depth: 91 is not a whole number from 10 to 90";
    QTest::newRow("no depth")            << withMapping("\"type\": 3, \"firstAction\": 4") << "my.json, profiles[0].keys[0].mapping.depth: nothing is not a whole number from 10 to 90";
    QTest::newRow("application 3")       << withKey(app.arg("{\"application\": 3, \"function\": 1, \"record\": {\"events\": []}}")) << "my.json, profiles[0].keys[0].app.application: 3 is not a whole number from 0 to 2";
    QTest::newRow("function 19")         << withKey(app.arg("{\"application\": 0, \"function\": 19, \"record\": {\"events\": []}}")) << "my.json, profiles[0].keys[0].app.function: 19 is not a whole number from 0 to 18";
    QTest::newRow("app without record")  << withKey(app.arg("{\"application\": 0, \"function\": 1}")) << "my.json, profiles[0].keys[0].app.record: nothing is not an object";
    QTest::newRow("hot key without name") << withKey("{\"key\": 7, \"hotKey\": {\"keys\": \"CTRL+S\"}}") << "my.json, profiles[0].keys[0].hotKey.name: nothing is not a text";
    QTest::newRow("hot key a text")      << withKey("{\"key\": 7, \"hotKey\": \"CTRL+S\"}") << "my.json, profiles[0].keys[0].hotKey: \"CTRL+S\" is not an object";
    QTest::newRow("shortcut 17")         << withKey("{\"key\": 7, \"shortcut\": 17}") << "my.json, profiles[0].keys[0].shortcut: 17 is not a whole number from 0 to 16";
    QTest::newRow("extended 5")          << withKey("{\"key\": 7, \"extended\": 5}") << "my.json, profiles[0].keys[0].extended: 5 is not an extended code";
    QTest::newRow("extended a text")     << withKey("{\"key\": 7, \"extended\": \"~\"}") << "my.json, profiles[0].keys[0].extended: \"~\" is not a whole number from 0 to 65535";
    QTest::newRow("macro without name")  << withKey("{\"key\": 7, \"macro\": \"\"}") << "my.json, profiles[0].keys[0].macro: a macro needs a name";
    QTest::newRow("macro a number")      << withKey("{\"key\": 7, \"macro\": 3}") << "my.json, profiles[0].keys[0].macro: 3 is not a text";
    QTest::newRow("macros a text")       << withMacros("\"A\"") << "my.json, macros: \"A\" is not a list";
    QTest::newRow("macro a list")        << withMacros("[[]]") << "my.json, macros[0]: a list is not an object";
    QTest::newRow("macro no name")       << withMacros("[{\"record\": {\"events\": []}}]") << "my.json, macros[0].name: nothing is not a text";
    QTest::newRow("macro empty name")    << withMacros("[{\"name\": \"\", \"record\": {\"events\": []}}]") << "my.json, macros[0].name: a macro needs a name";
    QTest::newRow("macro twice")         << withMacros("[" + macro + "," + macro + "]") << "my.json, macros[1].name: two macros are named \"A\"";
    QTest::newRow("no events")           << withRecord("{}") << "my.json, macros[0].record.events: nothing is not a list";
    QTest::newRow("128 events")          << withRecord("{\"events\": [" + events.join(",") + "]}") << "my.json, macros[0].record.events: 128 elements are more than 127";
    QTest::newRow("record type 256")     << withRecord("{\"type\": 256, \"events\": []}") << "my.json, macros[0].record.type: 256 is not a whole number from 0 to 255";
    QTest::newRow("event a number")      << withEvent("4") << "my.json, macros[0].record.events[0]: 4 is not an object";
    QTest::newRow("event without code")  << withEvent("{\"press\": true}") << "my.json, macros[0].record.events[0].code: nothing is not a whole number from 0 to 65535";
    QTest::newRow("press a number")      << withEvent("{\"code\": 4, \"press\": 1}") << "my.json, macros[0].record.events[0].press: 1 is neither true nor false";
    QTest::newRow("delay too long")      << withEvent("{\"code\": 4, \"press\": true, \"delay\": 70000}") << "my.json, macros[0].record.events[0].delay: 70000 is not a whole number from 0 to 65535";
    QTest::newRow("event member")        << withEvent("{\"code\": 4, \"press\": true, \"state\": 1}") << "my.json, macros[0].record.events[0]: there is no member \"state\" here";
    QTest::newRow("too few bytes")       << withRecord("{\"bytes\": \"AAAA\"}") << "my.json, macros[0].record.bytes: these are 3 bytes and not 656";
    QTest::newRow("bytes count 255")     << withRecord("{\"bytes\": \"" + QString::fromLatin1(QByteArray(656, '\xff').toBase64()) + "\"}") << "my.json, macros[0].record.bytes: 255 elements are more than 127";
    QTest::newRow("order twice")         << head() + "\"profiles\": [], \"order\": [1, 1]}" << "my.json, order[1]: profile 1 is here twice";
    QTest::newRow("order 25")            << head() + "\"profiles\": [], \"order\": [25]}" << "my.json, order[0]: 25 is not a whole number from 1 to 24";
    QTest::newRow("order an object")     << head() + "\"profiles\": [], \"order\": {}}" << "my.json, order: an object is not a list";
    // clang-format on
}

void tst_ProfileExchange::brokenFiles()
{
    QFETCH(QString, json);
    QFETCH(QString, message);
    QString error;
    QVERIFY(!ProfileExchange::fromJson(json.toUtf8(), QStringLiteral("my.json"), &error));
    QCOMPARE(error, message);
    const QJsonDocument document = QJsonDocument::fromJson(json.toUtf8());
    const QJsonValue value =
        document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
    QCOMPARE(schema().accepts(value), isBeyondSchemas(QTest::currentDataTag()));
}

void tst_ProfileExchange::extendedCodesOfTheSchema()
{
    for (int code = 0; code <= 65535; ++code)
        QCOMPARE(schema().accepts(QStringLiteral("extended"), code), isExtendedCode(ushort(code)));
}

void tst_ProfileExchange::anyByteChanged()
{
    ProfileStore store{QString()};
    StoreEdits edits(store, 4);
    for (int i = 0; i < 40; ++i) {
        edits.look();
        edits.edit();
    }
    const QByteArray json =
        ProfileExchange::toJson(ProfileExchange::take(store.state(), Owner, {0, 1, 2}));
    std::mt19937 random(1);
    for (int i = 0; i < 2000; ++i) {
        QByteArray changed = json;
        changed[int(random() % quint32(changed.size()))] = char(random());
        QString error;
        const auto content = ProfileExchange::fromJson(changed, QStringLiteral("f"), &error);
        QCOMPARE(content.has_value(), error.isEmpty());
    }
}

VANTRIX_TEST_MAIN(tst_ProfileExchange)
#include "tst_ProfileExchange.moc"
