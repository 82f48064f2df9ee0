#include "shell/MacroRecorder.h"

#include "vocabulary/Common.h"

#include <QElapsedTimer>
#include <QKeyEvent>

#include <algorithm>
#include <memory>

namespace {

constexpr ushort EscapeCode = 0x29;

MacroRecorder::Clock passingTime()
{
    const auto timer = std::make_shared<QElapsedTimer>();
    timer->start();
    return [timer] {
        return timer->elapsed();
    };
}

} // namespace

MacroRecorder::MacroRecorder(QObject *parent, Clock clock)
    : QObject(parent), m_clock(clock ? std::move(clock) : passingTime())
{
}

QString MacroRecorder::limitText()
{
    return tr("A macro holds at most %1 events.").arg(vantrix_macro_record::MaxEvents);
}

void MacroRecorder::start(int room)
{
    m_events.clear();
    m_held.clear();
    m_room = room;
    m_isRecording = true;
}

void MacroRecorder::stop()
{
    if (!m_isRecording)
        return;
    while (!m_held.empty())
        release(m_held.back());
    m_isRecording = false;
    emit stopped();
}

MacroRecorder::Events MacroRecorder::events(DelayMode mode, int fixedDelay) const
{
    Events events;
    for (std::size_t i = 0; i < m_events.size(); ++i) {
        qint64 delay = mode == Fixed ? fixedDelay : 0;
        if (mode == AsTheyWere && i + 1 < m_events.size())
            delay = m_events[i + 1].time - m_events[i].time;
        events.push_back({m_events[i].code, quint8(m_events[i].isPress ? 1 : 0),
                          quint16(std::clamp<qint64>(delay, 0, MaxDelay))});
    }
    return events;
}

bool MacroRecorder::take(QKeyEvent *event)
{
    const bool isPress = event->type() == QEvent::KeyPress;
    if (!m_isRecording || (!isPress && event->type() != QEvent::KeyRelease))
        return false;
    if (event->isAutoRepeat())
        return true;
    const ushort code = Common::ZKKeyCode(event);
    if (code == 0) {
        if (isPress)
            emit refused(tr("The pad has no code for this key."));
        return true;
    }
    if (isPress)
        press(code);
    else
        release(code);
    return true;
}

bool MacroRecorder::isSecondEscape(ushort code) const
{
    const std::size_t count = m_events.size();
    return code == EscapeCode && count >= 2 && m_events[count - 1].code == EscapeCode &&
           m_events[count - 2].code == EscapeCode &&
           m_clock() - m_events[count - 2].time <= EscapeTwice;
}

void MacroRecorder::press(ushort code)
{
    if (!m_isRecording || std::count(m_held.begin(), m_held.end(), code) > 0)
        return;
    if (isSecondEscape(code)) {
        m_events.resize(m_events.size() - 2);
        stop();
        return;
    }
    if (eventCount() + int(m_held.size()) + 2 > m_room) {
        emit refused(limitText());
        stop();
        return;
    }
    m_held.push_back(code);
    add(code, true);
}

void MacroRecorder::release(ushort code)
{
    const auto held = std::find(m_held.begin(), m_held.end(), code);
    if (!m_isRecording || held == m_held.end())
        return;
    m_held.erase(held);
    add(code, false);
}

void MacroRecorder::add(ushort code, bool isPress)
{
    m_events.push_back({code, isPress, m_clock()});
    emit recorded();
}
