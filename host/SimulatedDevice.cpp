#include "host/SimulatedDevice.h"

#include "host/ProfileStore.h"
#include "vocabulary/KeyCodes.h"

#include <QStringList>

#include <algorithm>

namespace {

enum ProfileCode : ushort {
    FirstProfile = 1536,
    LastProfile = 1559,
    ProfileUp = 1568,
    ProfileDown = 1569,
    CycleUp = 1570,
    CycleDown = 1571
};

constexpr int MinDepth = 10;
constexpr int MaxDepth = 90;

RecordId imageId(int owner, int profile)
{
    return profileRecord(StoreTable::DeviceImage, owner, profile);
}

/// The codes that go down for a code: those of a pseudo code, else itself.
std::vector<ushort> expand(ushort code)
{
    const auto found = SymbolKeySequences().find(code);
    return found == SymbolKeySequences().end() ? std::vector<ushort>{code} : found->second;
}

bool playsSequence(const KeyContent &key)
{
    const bool plainFunction = key.app && ushort(key.app->macro.code) == 0;
    return (key.app && !plainFunction) || key.hotKey || key.shortcut || key.extended ||
           key.macroName;
}

int depthOf(const KeyContent &key)
{
    return std::clamp<int>(key.mapping.digital.depth, MinDepth, MaxDepth);
}

void play(const vantrix_macro_record &sequence, std::vector<DeviceEvent> &events)
{
    const int count = std::min<int>(sequence.count, vantrix_macro_record::MaxEvents);
    for (int i = 0; i < count; ++i) {
        const vantrix_macro_event event = sequence.events[std::size_t(i)];
        events.push_back({event.state ? DeviceEvent::Press : DeviceEvent::Release, event.code});
        if (ushort(event.delay) > 0)
            events.push_back({DeviceEvent::Delay, event.delay});
    }
}

} // namespace

QString deviceEventText(const std::vector<DeviceEvent> &events)
{
    static const char *const forms[] = {"+%1", "-%1", "%1ms", "profile %1"};
    QStringList texts;
    for (const DeviceEvent &event : events) {
        const int shown = event.type == DeviceEvent::SwitchProfile ? event.value + 1 : event.value;
        texts << QString::fromLatin1(forms[event.type]).arg(shown);
    }
    return texts.join(QLatin1Char(' '));
}

SimulatedDevice::SimulatedDevice(ProfileStore *store) : m_store(store)
{
    for (int i = 0; i < KeyCount; ++i)
        m_motions[std::size_t(i)].keyIdx = i;
}

bool SimulatedDevice::send(const DeviceImage &image)
{
    if (!m_store)
        return false;
    const bool fresh = image == DeviceImage::factory(image.owner, image.profile);
    m_store->setDeviceRecord(imageId(image.owner, image.profile),
                             fresh ? QByteArray() : image.toBytes());
    setCurrentProfile(image.owner, image.profile);
    return true;
}

DeviceImage SimulatedDevice::image(int owner, int profile) const
{
    const auto image =
        m_store ? DeviceImage::fromBytes(m_store->state().record(imageId(owner, profile)))
                : std::nullopt;
    return image.value_or(DeviceImage::factory(owner, profile));
}

std::vector<DeviceDifference> SimulatedDevice::pending(int owner, int profile) const
{
    if (!m_store)
        return {};
    return differences(image(owner, profile), DeviceImage::of(m_store->state(), owner, profile));
}

bool SimulatedDevice::differs(int owner, int profile) const
{
    return m_store &&
           !actAlike(image(owner, profile), DeviceImage::of(m_store->state(), owner, profile));
}

int SimulatedDevice::number(const char *name, int defaultValue) const
{
    bool ok = false;
    const QString key = QString::fromLatin1(name);
    const int value =
        m_store ? m_store->state().text(namedRecord(StoreTable::DeviceSetting, key)).toInt(&ok) : 0;
    return ok ? value : defaultValue;
}

void SimulatedDevice::setNumber(const char *name, int value)
{
    if (m_store)
        m_store->setDeviceRecord(namedRecord(StoreTable::DeviceSetting, QString::fromLatin1(name)),
                                 StoreCodec::number(value));
}

int SimulatedDevice::currentOwner() const
{
    return number("owner", 0);
}

int SimulatedDevice::currentProfile() const
{
    return number("profile", 0);
}

void SimulatedDevice::setCurrentProfile(int owner, int profile)
{
    setNumber("owner", owner);
    setNumber("profile", profile);
}

int SimulatedDevice::profileOfCode(ushort code, int current)
{
    if (code >= FirstProfile && code <= LastProfile)
        return code - FirstProfile;
    switch (code) {
    case ProfileUp:
        return std::min(current + 1, ProfileCount - 1);
    case ProfileDown:
        return std::max(current - 1, 0);
    case CycleUp:
        return (current + 1) % ProfileCount;
    case CycleDown:
        return (current + ProfileCount - 1) % ProfileCount;
    default:
        return -1;
    }
}

bool SimulatedDevice::isPressureEnabled() const
{
    return number("pressure", 1) != 0;
}

void SimulatedDevice::setPressureEnabled(bool enabled)
{
    setNumber("pressure", enabled ? 1 : 0);
}

void SimulatedDevice::reset()
{
    if (!m_store)
        return;
    std::vector<RecordId> ids;
    for (const auto &row : m_store->state().records()) {
        if (row.first.table == StoreTable::DeviceImage ||
            row.first.table == StoreTable::DeviceSetting)
            ids.push_back(row.first);
    }
    for (const RecordId &id : ids)
        m_store->setDeviceRecord(id, QByteArray());
}

// ---- playing ----

std::vector<DeviceEvent> SimulatedDevice::setKeyDepth(int keyIdx, int percent)
{
    Events events;
    if (!isValidKey(keyIdx))
        return events;
    Motion &motion = m_motions[std::size_t(keyIdx)];
    motion.depth = std::clamp(percent, 0, 100);
    if (!motion.isDown && motion.depth >= PressDepth)
        goDown(motion, events);
    if (!motion.isDown)
        return events;
    if (!motion.isPastDepth && hasSecondEdge(motion.key.content) &&
        motion.depth >= depthOf(motion.key.content))
        passDepth(motion, events);
    if (motion.isPastDepth && motion.depth <= depthOf(motion.key.content) - Hysteresis)
        returnOverDepth(motion, events);
    if (motion.depth <= ReleaseDepth)
        comeUp(motion, events);
    return events;
}

int SimulatedDevice::keyDepth(int keyIdx) const
{
    return isValidKey(keyIdx) ? m_motions[std::size_t(keyIdx)].depth : 0;
}

std::vector<DeviceEvent> SimulatedDevice::releaseAll()
{
    Events events;
    for (int i = 0; i < KeyCount; ++i) {
        const Events some = setKeyDepth(i, 0);
        events.insert(events.end(), some.begin(), some.end());
    }
    return events;
}

bool SimulatedDevice::hasSecondEdge(const KeyContent &key) const
{
    return !playsSequence(key) && isDualAction(key.mapping) &&
           ushort(key.mapping.digital.secondAction) != 0 && isPressureEnabled();
}

std::vector<int> SimulatedDevice::edges(const KeyContent &key) const
{
    if (hasSecondEdge(key))
        return {PressDepth, depthOf(key)};
    return {PressDepth};
}

void SimulatedDevice::goDown(Motion &motion, Events &events)
{
    const DeviceImage current = image(currentOwner(), currentProfile());
    motion.key = current.keys[std::size_t(motion.keyIdx)];
    motion.isDown = true;
    motion.isPastDepth = false;
    const vantrix_key_mapping &mapping = motion.key.content.mapping;
    if (playsSequence(motion.key.content))
        play(motion.key.sequence, events);
    else if (isDualAction(mapping))
        press(motion, mapping.digital.firstAction, events);
    else
        pressPlain(motion, events);
}

void SimulatedDevice::pressPlain(Motion &motion, Events &events)
{
    const vantrix_key_mapping &mapping = motion.key.content.mapping;
    ushort code = effectiveCode(mapping);
    if (code == UnassignedCode)
        code = defaultCodeOfKey(motion.keyIdx);
    if (code != DisabledCode && !switchProfile(code, events))
        press(motion, code, events);
}

bool SimulatedDevice::switchProfile(ushort code, Events &events)
{
    const int profile = profileOfCode(code, currentProfile());
    if (profile < 0)
        return false;
    setCurrentProfile(currentOwner(), profile);
    events.push_back({DeviceEvent::SwitchProfile, profile});
    return true;
}

void SimulatedDevice::passDepth(Motion &motion, Events &events)
{
    const vantrix_presso_digital digital = motion.key.content.mapping.digital;
    motion.isPastDepth = true;
    if (digital.dualType != DualType::Combine)
        release(motion, digital.firstAction, events);
    press(motion, digital.secondAction, events);
}

void SimulatedDevice::returnOverDepth(Motion &motion, Events &events)
{
    const vantrix_presso_digital digital = motion.key.content.mapping.digital;
    if (digital.dualType == DualType::Normal)
        return;
    motion.isPastDepth = false;
    const bool isFirstDown = digital.dualType == DualType::Combine;
    release(motion, digital.secondAction, events,
            isFirstDown ? expand(digital.firstAction) : std::vector<ushort>());
    if (digital.dualType == DualType::Toggle)
        press(motion, digital.firstAction, events);
}

void SimulatedDevice::comeUp(Motion &motion, Events &events)
{
    for (auto code = motion.held.rbegin(); code != motion.held.rend(); ++code)
        events.push_back({DeviceEvent::Release, *code});
    motion.held.clear();
    motion.isDown = false;
    motion.isPastDepth = false;
}

void SimulatedDevice::press(Motion &motion, ushort code, Events &events)
{
    for (const ushort part : expand(code)) {
        // "00" is the same key twice: it must come up to go down again
        const auto again = std::find(motion.held.begin(), motion.held.end(), part);
        if (again != motion.held.end()) {
            motion.held.erase(again);
            events.push_back({DeviceEvent::Release, part});
        }
        motion.held.push_back(part);
        events.push_back({DeviceEvent::Press, part});
    }
}

void SimulatedDevice::release(Motion &motion, ushort code, Events &events,
                              const std::vector<ushort> &kept)
{
    const std::vector<ushort> parts = expand(code);
    for (auto part = parts.rbegin(); part != parts.rend(); ++part) {
        const auto found = std::find(motion.held.begin(), motion.held.end(), *part);
        if (found == motion.held.end() || std::count(kept.begin(), kept.end(), *part) > 0)
            continue;
        motion.held.erase(found);
        events.push_back({DeviceEvent::Release, *part});
    }
}
