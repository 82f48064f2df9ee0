#pragma once

#include "host/KeyContent.h"
#include "host/StoreState.h"

#include <vector>

class ProfileStore;

/// One key as the device gets it.
struct DeviceKey
{
    KeyContent content; ///< as stored; it says the function in words and colours
    /// What the key plays as it goes down: the macro record of an application function, the chord
    /// of a hot key, shortcut or extended code, or the named macro. A `count` of 0: nothing is
    /// played, and the mapping alone holds.
    vantrix_macro_record sequence;
};
bool operator==(const DeviceKey &a, const DeviceKey &b);
inline bool operator!=(const DeviceKey &a, const DeviceKey &b)
{
    return !(a == b);
}

/// Whether the device does the same for both: the name of a macro does not matter, its events do,
/// and a key that has its own code assigned is like one without an assignment.
bool actAlike(int keyIdx, const DeviceKey &a, const DeviceKey &b);

/// The complete image of a profile, all that a device needs to act by itself. A plain value.
struct DeviceImage
{
    int owner = 0;   ///< as the page was made with, any number
    int profile = 0; ///< 0 to 23
    std::array<DeviceKey, KeyCount> keys;

    /// Image of a profile of the store.
    static DeviceImage of(const StoreState &state, int owner, int profile);
    /// What a device acts by that was never sent that profile: nothing assigned.
    static DeviceImage factory(int owner, int profile);

    /// Gives a key of the store back what it has here. The device knows a macro by what it plays;
    /// where the store has none like it any more, one is added and its name returned.
    QString putBack(int keyIdx, ProfileStore &store) const;

    /// For keeping, not for sending: compressed, and only `fromBytes` reads it.
    QByteArray toBytes() const;
    /// Null for bytes that are empty, cut or no image.
    static std::optional<DeviceImage> fromBytes(const QByteArray &bytes);
};
bool operator==(const DeviceImage &a, const DeviceImage &b);
inline bool operator!=(const DeviceImage &a, const DeviceImage &b)
{
    return !(a == b);
}

bool actAlike(const DeviceImage &a, const DeviceImage &b);

/// One key that differs between two images, in words.
struct DeviceDifference
{
    int keyIdx = 0;
    DeviceKey before;
    DeviceKey after;
    QString beforeText; ///< as KeyText::functionName
    QString afterText;  ///< differs from `beforeText`, also when only a macro's events changed
};
/// All keys that do not act alike, in key order.
std::vector<DeviceDifference> differences(const DeviceImage &before, const DeviceImage &after);

/// A record that presses the codes in order and releases them in the opposite order, 20
/// milliseconds apart. A code that is to be pressed again is released first ("00").
vantrix_macro_record chordRecord(const std::vector<ushort> &codes, ushort recordCode);
/// Device codes of a hot key's text, e.g. "CTRL+SHIFT+S"; empty when a part is not known.
std::vector<ushort> hotKeyCodes(const QString &hotKey);
