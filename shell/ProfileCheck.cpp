#include "shell/ProfileCheck.h"

#include "host/KeyText.h"
#include "host/ProfileStore.h"
#include "host/SimulatedDevice.h"
#include "shell/KeyTitle.h"
#include "vocabulary/AppTables.h"
#include "vocabulary/KeyCodes.h"

#include <algorithm>

namespace {

std::vector<KeyPlace> placesOf(int profile, const std::vector<int> &keys)
{
    std::vector<KeyPlace> places;
    for (const int key : keys)
        places.push_back({profile, key});
    return places;
}

/// What a key does, such that equal functions are equal values; nothing for a disabled key.
std::optional<KeyContent> functionOf(int keyIdx, const KeyContent &content)
{
    if (KeyText::inputType(keyIdx, content) == InputType::Disabled)
        return std::nullopt;
    KeyContent key = actingKey(keyIdx, content);
    if (hasExtra(key))
        key.mapping = clearedKey();
    if (key.app)
        key.app->macro = vantrix_macro_record();
    return key;
}

} // namespace

ProfileCheck::ProfileCheck(ProfileStore &store, int owner) : m_store(store), m_owner(owner)
{
    for (int profile = 0; profile < ProfileCount; ++profile)
        m_switches.push_back(readSwitches(profile));
}

std::vector<CheckFinding> ProfileCheck::check(int profile) const
{
    Findings findings;
    const ProfileKeys keys = m_store.state().keys(m_owner, profile);
    checkMacros(profile, keys, findings);
    checkActions(profile, keys, findings);
    checkApplications(profile, keys, findings);
    checkWayBack(profile, findings);
    checkShared(profile, keys, findings);
    return findings;
}

std::vector<CheckFinding> ProfileCheck::checkAll() const
{
    Findings all;
    for (const int profile : m_store.state().profileOrder(m_owner)) {
        const Findings findings = check(profile);
        all.insert(all.end(), findings.begin(), findings.end());
    }
    return all;
}

void ProfileCheck::checkMacros(int profile, const ProfileKeys &keys, Findings &findings) const
{
    Findings empty;
    for (int i = 0; i < KeyCount; ++i) {
        const auto &name = keys[std::size_t(i)].macroName;
        if (!name)
            continue;
        const auto macro = m_store.state().macro(m_owner, *name);
        if (!macro)
            findings.push_back({CheckFinding::MacroMissing, profile,
                                tr("%1 has the macro \"%2\", which is not there any more.")
                                    .arg(KeyTitle::of(i), *name),
                                placesOf(profile, {i})});
        else if (macro->count == 0)
            empty.push_back(
                {CheckFinding::MacroEmpty, profile,
                 tr("%1 has the macro \"%2\", which is empty.").arg(KeyTitle::of(i), *name),
                 placesOf(profile, {i})});
    }
    findings.insert(findings.end(), empty.begin(), empty.end());
}

void ProfileCheck::checkActions(int profile, const ProfileKeys &keys, Findings &findings)
{
    for (int i = 0; i < KeyCount; ++i) {
        const KeyContent &key = keys[std::size_t(i)];
        if (key.mapping.type != KeyType::DualAction || !functionOf(i, key))
            continue;
        const bool hasFirst = ushort(key.mapping.digital.firstAction) != 0;
        const bool hasSecond = ushort(key.mapping.digital.secondAction) != 0;
        if (hasFirst && hasSecond)
            continue;
        const QString text = hasFirst ? tr("%1 has a dual action without a second action.")
                                      : tr("%1 has a dual action without a first action.");
        findings.push_back({CheckFinding::ActionMissing, profile, text.arg(KeyTitle::of(i)),
                            placesOf(profile, {i})});
    }
}

void ProfileCheck::checkApplications(int profile, const ProfileKeys &keys, Findings &findings) const
{
    std::map<int, std::vector<int>> keysOfApp;
    for (int i = 0; i < KeyCount; ++i) {
        if (keys[std::size_t(i)].app)
            keysOfApp[int(keys[std::size_t(i)].app->appType)].push_back(i);
    }
    for (const auto &[appType, list] : keysOfApp) {
        if (m_store.hasAppPath(appType))
            continue;
        const QString text =
            list.size() == 1 ? tr("%1 has a function of %2, which was not found on this computer.")
                             : tr("%1 have functions of %2, which was not found on this computer.");
        findings.push_back({CheckFinding::ApplicationNotFound, profile,
                            text.arg(KeyTitle::of(list), appTypeText(appType)),
                            placesOf(profile, list)});
    }
}

std::vector<KeyPlace> ProfileCheck::readSwitches(int profile) const
{
    std::vector<KeyPlace> places;
    for (int i = 0; i < KeyCount; ++i) {
        const vantrix_key_mapping mapping = m_store.state().mapping(m_owner, profile, i);
        const int target = SimulatedDevice::profileOfCode(effectiveCode(mapping), profile);
        if (target < 0 || target == profile)
            continue;
        const KeyContent key = m_store.state().key(m_owner, profile, i);
        const int type = KeyText::inputType(i, key);
        // the two codes that stop at the ends are classed with the keyboard
        if ((type == InputType::Profile || type == InputType::Keyboard) && !key.extended)
            places.push_back({target, i});
    }
    return places;
}

bool ProfileCheck::leadsTo(int from, int to) const
{
    std::array<bool, ProfileCount> seen{};
    std::vector<int> open{from};
    while (!open.empty()) {
        const int profile = open.back();
        open.pop_back();
        if (profile == to)
            return true;
        if (seen[std::size_t(profile)])
            continue;
        seen[std::size_t(profile)] = true;
        for (const KeyPlace &way : m_switches[std::size_t(profile)])
            open.push_back(way.profile);
    }
    return false;
}

void ProfileCheck::checkWayBack(int profile, Findings &findings) const
{
    for (const int other : m_store.state().profileOrder(m_owner)) {
        if (other == profile)
            continue;
        for (const KeyPlace &way : m_switches[std::size_t(other)]) {
            if (way.profile != profile || leadsTo(profile, other))
                continue;
            findings.push_back(
                {CheckFinding::NoWayBack,
                 profile,
                 tr("%1 of %2 leads to this profile, and no key leads back.")
                     .arg(KeyTitle::of(way.keyIdx), m_store.state().profileName(m_owner, other)),
                 {{profile, NoKey}, {other, way.keyIdx}}});
            return; // one way in is enough to see the point
        }
    }
}

void ProfileCheck::checkShared(int profile, const ProfileKeys &keys, Findings &findings)
{
    std::array<bool, KeyCount> done{};
    for (int i = 0; i < KeyCount; ++i) {
        const auto function = functionOf(i, keys[std::size_t(i)]);
        if (!function || done[std::size_t(i)])
            continue;
        std::vector<int> same;
        int assigned = -1;
        for (int other = i; other < KeyCount; ++other) {
            const KeyContent &key = keys[std::size_t(other)];
            if (functionOf(other, key) != function)
                continue;
            same.push_back(other);
            done[std::size_t(other)] = true;
            if (KeyText::inputType(other, key) != InputType::Unassigned)
                assigned = other;
        }
        if (same.size() < 2 || assigned < 0)
            continue;
        const QString name = KeyText::functionName(assigned, keys[std::size_t(assigned)]);
        findings.push_back({CheckFinding::SharedFunction, profile,
                            tr("%1 do the same: %2.").arg(KeyTitle::of(same), name),
                            placesOf(profile, same)});
    }
}
