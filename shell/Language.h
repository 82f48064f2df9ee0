#pragma once

#include <QString>

class ProfileStore;

/// The language of the keys' legends, by the numbers of `LanguageIndex`.
class Language
{
public:
    Language() = delete;

    /// Name of the setting that holds the number.
    static QString settingKey();
    /// The one that was chosen; without a choice the system's, or English if it has no legends.
    static int of(const ProfileStore &store);
    /// By number or by name, in any case; -1 for neither.
    static int parse(const QString &text);
    /// For a list, e.g. "Chinese Simplified".
    static QString title(int language);
};
