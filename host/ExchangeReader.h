#pragma once

#include "host/ProfileExchange.h"

#include <QJsonArray>
#include <QJsonObject>

#include <set>

/// Checks and reads the members of a file of profiles, one after another, until the first that is
/// wrong. After that every read gives a default and `error` keeps the first reason.
class ExchangeReader
{
    Q_DECLARE_TR_FUNCTIONS(ProfileExchange)

public:
    explicit ExchangeReader(const QString &fileName) : m_fileName(fileName) {}

    ExchangeContent read(const QByteArray &json);
    bool failed() const { return !m_error.isEmpty(); }
    const QString &error() const { return m_error; }

private:
    /// A member or element of the file and where it is.
    struct Place
    {
        QJsonValue value;
        QString path;
    };

    void fail(const QString &path, const QString &reason);
    Place member(const Place &object, const char *name) const;
    bool has(const Place &object, const char *name) const;
    bool checkObject(const Place &place, std::initializer_list<const char *> names);
    QJsonArray array(const Place &place, int most);
    int integer(const Place &place, int least, int most);
    int integerOr(const Place &object, const char *name, int least, int most, int otherwise);
    QString text(const Place &place);

    void readHead(const Place &file);
    ExchangeContent::Macro readMacro(const Place &place);
    vantrix_macro_record readRecord(const Place &place);
    vantrix_macro_record readRecordBytes(const Place &place);
    vantrix_macro_event readEvent(const Place &place);
    ExchangeContent::Profile readProfile(const Place &place);
    void readKey(const Place &place, ProfileKeys *keys, std::set<int> *seen);
    vantrix_key_mapping readMapping(const Place &place);
    void readExtra(const Place &place, KeyContent *key);
    vantrix_app_assign readApp(const Place &place);
    vantrix_hotkey_assign readHotKey(const Place &place);
    vantrix_extended_key readExtended(const Place &place);
    std::vector<int> readOrder(const Place &place);

    QString m_fileName;
    QString m_error;
};
