#include "JsonSchema.h"

#include <QJsonArray>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <cmath>

namespace {

bool isOfType(const QString &type, const QJsonValue &value)
{
    if (type == QLatin1String("integer"))
        return value.isDouble() && std::floor(value.toDouble()) == value.toDouble();
    if (type == QLatin1String("object"))
        return value.isObject();
    if (type == QLatin1String("array"))
        return value.isArray();
    if (type == QLatin1String("string"))
        return value.isString();
    if (type == QLatin1String("boolean"))
        return value.isBool();
    qFatal("unknown type %s", qPrintable(type));
    return false;
}

bool hasAll(const QJsonArray &names, const QJsonValue &value)
{
    return !value.isObject() ||
           std::all_of(names.begin(), names.end(), [&value](const QJsonValue &name) {
               return value.toObject().contains(name.toString());
           });
}

bool isUnique(const QJsonArray &elements)
{
    for (int i = 0; i < elements.size(); ++i) {
        for (int other = 0; other < i; ++other) {
            if (elements[i] == elements[other])
                return false;
        }
    }
    return true;
}

/// Patterns of schemas are those of ECMAScript, which writes code points its own way.
bool matches(QString pattern, const QString &text)
{
    pattern.replace(QLatin1String("\\u0000"), QLatin1String("\\x{0}"));
    const QRegularExpression expression(pattern);
    if (!expression.isValid())
        qFatal("no pattern: %s", qPrintable(pattern));
    return expression.match(text).hasMatch();
}

} // namespace

bool JsonSchema::accepts(const QString &definition, const QJsonValue &value) const
{
    const QJsonValue rule = m_schema[QLatin1String("definitions")].toObject()[definition];
    if (!rule.isObject())
        qFatal("no definition of %s", qPrintable(definition));
    return accepts(rule.toObject(), value);
}

bool JsonSchema::accepts(const QJsonObject &rule, const QJsonValue &value) const
{
    const QStringList keywords = rule.keys();
    return std::all_of(keywords.begin(), keywords.end(),
                       [&](const QString &keyword) { return holds(keyword, rule, value); });
}

bool JsonSchema::holds(const QString &keyword, const QJsonObject &rule,
                       const QJsonValue &value) const
{
    static const QSet<QString> silent = {
        QStringLiteral("$schema"),     QStringLiteral("title"),
        QStringLiteral("description"), QStringLiteral("definitions"),
        QStringLiteral("then"),        QStringLiteral("additionalProperties")};
    const QJsonValue said = rule[keyword];
    if (silent.contains(keyword))
        return true;
    if (keyword == QLatin1String("$ref"))
        return accepts(said.toString().section(QLatin1Char('/'), -1), value);
    if (keyword == QLatin1String("type"))
        return isOfType(said.toString(), value);
    if (keyword == QLatin1String("const"))
        return value == said;
    if (keyword == QLatin1String("enum"))
        return said.toArray().contains(value);
    if (keyword == QLatin1String("required"))
        return hasAll(said.toArray(), value);
    if (keyword == QLatin1String("properties"))
        return !value.isObject() || membersHold(rule, value.toObject());
    if (keyword == QLatin1String("minimum"))
        return !value.isDouble() || value.toDouble() >= said.toDouble();
    if (keyword == QLatin1String("maximum"))
        return !value.isDouble() || value.toDouble() <= said.toDouble();
    if (keyword == QLatin1String("pattern"))
        return !value.isString() || matches(said.toString(), value.toString());
    if (keyword == QLatin1String("not"))
        return !accepts(said.toObject(), value);
    if (keyword == QLatin1String("if"))
        return !accepts(said.toObject(), value) ||
               accepts(rule[QLatin1String("then")].toObject(), value);
    if (keyword == QLatin1String("anyOf")) {
        const QJsonArray rules = said.toArray();
        return std::any_of(rules.begin(), rules.end(),
                           [&](const QJsonValue &one) { return accepts(one.toObject(), value); });
    }
    if (keyword == QLatin1String("items") || keyword == QLatin1String("maxItems") ||
        keyword == QLatin1String("uniqueItems"))
        return !value.isArray() || elementsHold(rule, value);
    qFatal("unknown keyword %s", qPrintable(keyword));
    return false;
}

bool JsonSchema::membersHold(const QJsonObject &rule, const QJsonObject &object) const
{
    const QJsonObject known = rule[QLatin1String("properties")].toObject();
    const bool isClosed = rule[QLatin1String("additionalProperties")] == QJsonValue(false);
    const QStringList names = object.keys();
    return std::all_of(names.begin(), names.end(), [&](const QString &name) {
        return known.contains(name) ? accepts(known[name].toObject(), object[name]) : !isClosed;
    });
}

bool JsonSchema::elementsHold(const QJsonObject &rule, const QJsonValue &value) const
{
    const QJsonArray elements = value.toArray();
    const QJsonObject item = rule[QLatin1String("items")].toObject();
    if (elements.size() > rule[QLatin1String("maxItems")].toInt(elements.size()))
        return false;
    if (rule[QLatin1String("uniqueItems")].toBool() && !isUnique(elements))
        return false;
    return std::all_of(elements.begin(), elements.end(),
                       [&](const QJsonValue &element) { return accepts(item, element); });
}
