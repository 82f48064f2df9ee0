#pragma once

#include "core/records.h"

#include <QObject>

#include <functional>
#include <vector>

class QKeyEvent;

/// Records keys as the events of a macro. Interface thread; draws nothing and grabs nothing: who
/// owns it hands on the key events while it is recording.
///
/// Repetitions of a held key are passed over, and so are releases of keys that were not pressed
/// here. A press is refused when its release and those of all held keys would not find room.
/// Escape pressed twice within `EscapeTwice` ends the recording and is not part of it. Whatever is
/// still held at the end is released in the opposite order.
class MacroRecorder : public QObject
{
    Q_OBJECT

public:
    enum DelayMode {
        AsTheyWere, ///< the time to the next event; 0 for the last
        None,       ///< 0
        Fixed       ///< the same after each event, the last included
    };
    static constexpr int EscapeTwice = 500; ///< milliseconds
    static constexpr int MaxDelay = 65535;

    using Events = std::vector<vantrix_macro_event>;
    using Clock = std::function<qint64()>; ///< milliseconds, from any start

    /// A clock of null stands for the time that passes.
    explicit MacroRecorder(QObject *parent = nullptr, Clock clock = nullptr);

    /// Begins anew; `room` is the most events that may be recorded.
    void start(int room);
    void stop();
    bool isRecording() const { return m_isRecording; }
    int eventCount() const { return int(m_events.size()); }
    /// What was recorded so far.
    Events events(DelayMode mode, int fixedDelay) const;

    /// Records the key of an event; false if it is no press or release.
    bool take(QKeyEvent *event);
    void press(ushort code);
    void release(ushort code);

    /// "A macro holds at most 127 events."
    static QString limitText();

signals:
    /// An event was recorded.
    void recorded();
    /// The recording has ended, by whomever.
    void stopped();
    /// Something was not recorded, and why, in words.
    void refused(const QString &reason);

private:
    struct Moment
    {
        ushort code;
        bool isPress;
        qint64 time;
    };

    void add(ushort code, bool isPress);
    bool isSecondEscape(ushort code) const;

    Clock m_clock;
    std::vector<Moment> m_events;
    std::vector<ushort> m_held; ///< in order of pressing
    int m_room = 0;
    bool m_isRecording = false;
};
