#pragma once

#include "host/KeyContent.h"

#include <QCoreApplication>
#include <QStringList>

#include <optional>
#include <utility>
#include <vector>

class ProfileStore;
class StoreState;

/// What a file of profiles holds. docs/profile-files.md describes the file.
struct ExchangeContent
{
    struct Profile
    {
        int profile = 0; ///< number from 0; the file counts from 1
        QString name;    ///< empty: it has no name of its own
        ProfileKeys keys = freshKeys();
    };
    struct Macro
    {
        QString name;
        vantrix_macro_record record;
    };

    std::vector<Profile> profiles;
    std::vector<Macro> macros;
    std::vector<int> order; ///< order of the list, only in a file of all profiles
};

/// What an import did beside what was asked for.
struct ExchangeReport
{
    /// Macros that got another name because the store has another macro of theirs: old and new.
    std::vector<std::pair<QString, QString>> renamedMacros;
    /// Names of applications that keys of the import need and whose path is not known.
    QStringList missingApplications;
};

/// Import and export of profiles as JSON: every field is checked before anything is changed, then
/// everything is changed in one step. Interface thread.
class ProfileExchange
{
    Q_DECLARE_TR_FUNCTIONS(ProfileExchange)

public:
    static constexpr int Version = 1;

    ProfileExchange() = delete;

    /// Profiles of a store, with the macros that their keys hold; all of them, with all macros and
    /// the order of the list, when `profiles` names all.
    static ExchangeContent take(const StoreState &state, int owner,
                                const std::vector<int> &profiles);
    static QByteArray toJson(const ExchangeContent &content);

    /// Reads a file's text. On failure `error` is "file, place: reason" in plain words, the place
    /// a line and column where the text is no JSON, and the path of a member otherwise.
    static std::optional<ExchangeContent> fromJson(const QByteArray &json, const QString &fileName,
                                                   QString *error);
    /// Puts everything into the store as one step; profiles and macros get the order of a file of
    /// all profiles. To import a profile as another one, change its
    /// number before.
    static ExchangeReport put(const ExchangeContent &content, ProfileStore &store, int owner);
};
