#include "toolkit/Portions.h"

#include <QElapsedTimer>

namespace {

/// What one turn of the event loop gives: half a frame, the other half is for layout and painting.
constexpr qint64 TurnNs = 8'000'000;

} // namespace

void Portions::add(Step step)
{
    m_steps.push_back(std::move(step));
    work();
}

void Portions::timerEvent(QTimerEvent *)
{
    m_usedNs = 0;
    if (m_steps.empty())
        m_timer.stop();
    work();
}

void Portions::work()
{
    if (m_working || m_steps.empty())
        return;
    m_working = true;
    QElapsedTimer time;
    time.start();
    const qint64 left = TurnNs - m_usedNs;
    while (!m_steps.empty() && time.nsecsElapsed() < left) {
        // A deque keeps its front where it is when a step adds another.
        if (m_steps.front()())
            m_steps.pop_front();
    }
    m_usedNs += time.nsecsElapsed();
    m_working = false;
    if (!m_timer.isActive())
        m_timer.start(0, this);
}
