#pragma once

#include "host/Device.h"
#include "host/DeviceImage.h"

#include <QPointer>

#include <array>
#include <vector>

class ProfileStore;

/// One thing that the device sends or does.
struct DeviceEvent
{
    enum Type {
        Press,        ///< `value`: device code that goes down
        Release,      ///< `value`: device code that comes up
        Delay,        ///< `value`: milliseconds until the next event
        SwitchProfile ///< `value`: profile, from 0, that the device acts by from now on
    };
    Type type = Press;
    int value = 0;
};
inline bool operator==(const DeviceEvent &a, const DeviceEvent &b)
{
    return a.type == b.type && a.value == b.value;
}
/// "+4", "-4", "20ms" or "profile 3", blanks between them.
QString deviceEventText(const std::vector<DeviceEvent> &events);

/// A pad that keeps what it is sent, in the store, and plays it.
///
/// *What a key sends.* A key goes down as its travel reaches `PressDepth` and comes up as it falls
/// back to `ReleaseDepth`. Between the two edges it stays what it was, so a finger that trembles
/// at one of them sends nothing. The second edge of a dual action lies at the record's depth d on
/// the way down and at d - `Hysteresis` on the way up, and between these, too, nothing changes.
/// What is sent depends on the edges that were passed alone, not on how fast: a jump passes all
/// edges that lie between, in order.
///
/// |record           |goes down     |past d            |back over d       |up              |
/// |-----------------|--------------|------------------|------------------|----------------|
/// |plain, controller|press         |-                 |-                 |release         |
/// |dual, normal     |press 1       |release 1, press 2|-                 |release 2 (or 1)|
/// |dual, toggle     |press 1       |release 1, press 2|release 2, press 1|release 1       |
/// |dual, combine    |press 1       |press 2           |release 2         |release 1       |
/// |sequence         |all its events|-                 |-                 |-               |
/// |profile code     |switch        |-                 |-                 |-               |
/// |disabled (0)     |-             |-                 |-                 |-               |
///
/// In "normal" the second action stays until the key is up: it took over for good. In "combine" a
/// code that both actions have goes down anew past d, and stays down on the way back, as part of
/// the first. Without a second action, or with pressure sensing off, the second edge does nothing.
/// Without a first action the record is played as a plain one. Code 255 sends the key's default
/// code. A key with a macro, hot key or shortcut that resolved to nothing sends nothing. A pseudo
/// code (as an action of a dual action) goes down as all of its codes and comes up in the opposite
/// order. A key that is held while its profile is replaced or switched comes up as it went down.
///
/// *Profile codes.* 1536 to 1559 go to profile 0 to 23; 1570 and 1571 to the next and the previous
/// one, around the ends; 1568 and 1569 as well, but stopping at the ends.
///
/// Interface thread.
class SimulatedDevice : public Device
{
public:
    static constexpr int PressDepth = 8;
    static constexpr int ReleaseDepth = 4;
    static constexpr int Hysteresis = 4;

    /// A device whose memory is in that store; it outlives the device or is told apart when gone.
    explicit SimulatedDevice(ProfileStore *store);

    /// Keeps the image and acts by its profile from now on.
    bool send(const DeviceImage &image) override;
    /// What it has of a profile; the factory's image when it was never sent one.
    DeviceImage image(int owner, int profile) const;
    /// What the store would send now, against what the device has. Empty: nothing to apply.
    std::vector<DeviceDifference> pending(int owner, int profile) const;
    bool differs(int owner, int profile) const;

    /// The profile it acts by; none was sent yet: owner 0, profile 0.
    int currentOwner() const;
    int currentProfile() const;
    void setCurrentProfile(int owner, int profile);
    /// Profile that a code leads to from `current`; -1 for a code that leads nowhere.
    static int profileOfCode(ushort code, int current);

    /// Pressure sensing, as switched by the page's command 23.
    bool isPressureEnabled() const;
    void setPressureEnabled(bool enabled);
    /// Back to the factory's state: the images of all profiles are gone.
    void reset();

    /// Moves a key to a depth in percent of its travel (clamped to 0..100) and gives what the
    /// device sends on the way. An index outside the pad sends nothing.
    std::vector<DeviceEvent> setKeyDepth(int keyIdx, int percent);
    int keyDepth(int keyIdx) const;
    /// Depths in percent where a key with that content acts on its way down, ascending.
    std::vector<int> edges(const KeyContent &key) const;
    /// Lets go of all keys.
    std::vector<DeviceEvent> releaseAll();

private:
    /// A key in motion.
    struct Motion
    {
        int depth = 0;
        bool isDown = false;
        bool isPastDepth = false;
        int keyIdx = 0;
        DeviceKey key;            ///< as it was when the key went down
        std::vector<ushort> held; ///< codes that are down, in order of pressing
    };
    using Events = std::vector<DeviceEvent>;

    void goDown(Motion &motion, Events &events);
    void pressPlain(Motion &motion, Events &events);
    void passDepth(Motion &motion, Events &events);
    void returnOverDepth(Motion &motion, Events &events);
    static void comeUp(Motion &motion, Events &events);
    static void press(Motion &motion, ushort code, Events &events);
    /// Lets the codes of a code go, but for those in `kept`.
    static void release(Motion &motion, ushort code, Events &events,
                        const std::vector<ushort> &kept = {});
    bool hasSecondEdge(const KeyContent &key) const;
    bool switchProfile(ushort code, Events &events);
    int number(const char *name, int defaultValue) const;
    void setNumber(const char *name, int value);

    QPointer<ProfileStore> m_store;
    std::array<Motion, KeyCount> m_motions;
};
