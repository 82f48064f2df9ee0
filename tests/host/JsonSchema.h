#pragma once

#include <QJsonObject>
#include <QJsonValue>

/// Checks values against a JSON schema, as far as the one of this repository goes: `$ref` to its
/// own definitions, `type`, `const`, `enum`, `required`, `properties`, `additionalProperties` of
/// false, `items`, `maxItems`, `uniqueItems`, `minimum`, `maximum`, `pattern`, `anyOf`, `not`,
/// `if` with `then`. A keyword that it does not know ends the test program.
class JsonSchema
{
public:
    explicit JsonSchema(const QJsonObject &schema) : m_schema(schema) {}

    bool accepts(const QJsonValue &value) const { return accepts(m_schema, value); }
    /// The same for one of the schema's definitions.
    bool accepts(const QString &definition, const QJsonValue &value) const;

private:
    bool accepts(const QJsonObject &rule, const QJsonValue &value) const;
    bool holds(const QString &keyword, const QJsonObject &rule, const QJsonValue &value) const;
    bool membersHold(const QJsonObject &rule, const QJsonObject &object) const;
    bool elementsHold(const QJsonObject &rule, const QJsonValue &value) const;

    QJsonObject m_schema;
};
