#pragma once

#include <QString>

class ProfileStore;

/// The language of the interface, by the numbers of `LanguageIndex`: of the texts and of the
/// keys' legends.
class Language
{
public:
    Language() = delete;

    /// Name of the setting that holds the number.
    static QString settingKey();
    /// The system's, or English if that is none of the list.
    static int ofSystem();
    /// The one that was chosen; without a choice the system's.
    static int of(const ProfileStore &store);
    /// By number or by name, in any case; -1 for neither.
    static int parse(const QString &text);
    /// For a list, with the name it has for itself, e.g. "German (Deutsch)".
    static QString title(int language);
    /// Loads the texts of the page, of the shell and of Qt, in place of the ones loaded before.
    /// What is on the screen already stays as it is until it is made anew.
    static void install(int language);
};
