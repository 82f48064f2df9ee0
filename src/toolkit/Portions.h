#pragma once

#include <QBasicTimer>
#include <QObject>

#include <deque>
#include <functional>

/// Does long work on the interface thread in portions, so that the event loop keeps turning: after
/// each portion of a few milliseconds it waits for the next turn. Steps run in the order in which
/// they were added. Work that is left when this object goes is dropped.
class Portions : public QObject
{
    Q_OBJECT

public:
    /// A piece of work that takes a millisecond or two: true when it is done, false to be called
    /// again.
    using Step = std::function<bool()>;

    using QObject::QObject;

    /// Adds a step behind all others. It runs at once if nothing waits and the present turn of the
    /// event loop has time left; it may add steps, and must not destroy this object.
    void add(Step step);

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    void work();

    std::deque<Step> m_steps;
    QBasicTimer m_timer;
    qint64 m_usedNs = 0;
    bool m_working = false;
};
