#pragma once

#include "host/KeyContent.h"

#include <QCoreApplication>

#include <vector>

class ProfileStore;

/// A key of a profile; a key of NoKey stands for the profile as a whole.
struct KeyPlace
{
    int profile = 0;
    int keyIdx = 0;
};
inline bool operator==(const KeyPlace &a, const KeyPlace &b)
{
    return a.profile == b.profile && a.keyIdx == b.keyIdx;
}

/// Something in a profile that its owner may not have meant.
struct CheckFinding
{
    enum Kind {
        MacroMissing,        ///< a key has a macro that there is none of
        MacroEmpty,          ///< a key has a macro without events
        ActionMissing,       ///< a dual action without its first or second action
        ApplicationNotFound, ///< functions of an application whose path is not known
        NoWayBack,           ///< a key leads to the profile and none leads back
        SharedFunction       ///< keys that do the same
    };
    Kind kind = MacroMissing;
    int profile = 0; ///< that it is about
    QString text;    ///< in words, without the profile's name
    std::vector<KeyPlace> places;
};
inline bool operator==(const CheckFinding &a, const CheckFinding &b)
{
    return a.kind == b.kind && a.profile == b.profile && a.text == b.text && a.places == b.places;
}

/// The rules by which profiles are checked. They find what is worth a look and forbid nothing.
/// Interface thread only.
///
/// A key counts with what it sends: one without an assignment with its own code. Keys share a
/// function only if at least one of them was assigned; disabled keys never do.
class ProfileCheck
{
    Q_DECLARE_TR_FUNCTIONS(ProfileCheck)

public:
    /// Reads where the keys of all profiles lead, so that it holds for the store as it is now.
    ProfileCheck(ProfileStore &store, int owner);

    /// What there is to say about a profile, worst first.
    std::vector<CheckFinding> check(int profile) const;
    /// All profiles, in the order of the list.
    std::vector<CheckFinding> checkAll() const;

private:
    using Findings = std::vector<CheckFinding>;

    void checkMacros(int profile, const ProfileKeys &keys, Findings &findings) const;
    static void checkActions(int profile, const ProfileKeys &keys, Findings &findings);
    void checkApplications(int profile, const ProfileKeys &keys, Findings &findings) const;
    void checkWayBack(int profile, Findings &findings) const;
    static void checkShared(int profile, const ProfileKeys &keys, Findings &findings);
    std::vector<KeyPlace> readSwitches(int profile) const;
    bool leadsTo(int from, int to) const;

    ProfileStore &m_store;
    int m_owner;
    /// For each profile its keys that make the device act by another one; their `profile` is that.
    std::vector<std::vector<KeyPlace>> m_switches;
};
