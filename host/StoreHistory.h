#pragma once

#include "host/StoreRecord.h"

#include <deque>
#include <set>
#include <vector>

/// A step that the user can take back.
struct StoreStep
{
    qint64 id = 0;   ///< grows from step to step; row in the store file
    QString name;    ///< for the user, e.g. "Assign B to key 7"
    QByteArray body; ///< its changes, packed
};

/// The steps of a store and the place where it stands among them.
///
/// Changes of one turn are gathered with `record` and become a step with `closeStep`. A change of
/// view (mode, input, selected key, preset) makes no step: what changed since the last step is
/// kept as the drift, and travels in front of the next step. So undoing a step leads exactly to
/// the store as it was right before the step's first change, selection included, and redoing it
/// to the store as it was right after.
///
/// It only says what to write; the store writes.
class StoreHistory
{
public:
    /// What a step holds.
    struct Body
    {
        ChangeSet lead;    ///< changes of view between the step before and this one
        ChangeSet changes; ///< the step proper
    };

    /// Steps kept at most; older ones are dropped.
    static constexpr int DefaultLimit = 5000;
    void setLimit(int limit) { m_limit = limit; }

    /// A change that was made. Rows outside the history are passed over.
    void record(const RecordId &id, const RecordChange &change);
    /// True when the turn in progress has changes that make a step.
    bool hasOpenChanges() const { return m_hasContent; }
    const ChangeSet &openChanges() const { return m_turn; }
    /// Ends the turn in progress. Its changes become a step of that name, or join the step before
    /// when `merge` is set; nothing happens without changes.
    void closeStep(const QString &name, bool merge = false);

    bool canUndo() const { return m_position > 0; }
    bool canRedo() const { return m_position < int(m_steps.size()); }
    /// What to write for a step back or forth, in order. `touched` gets the step's own changes.
    /// The turn in progress must be closed.
    std::vector<ChangeSet> undo(ChangeSet *touched);
    std::vector<ChangeSet> redo(ChangeSet *touched);

    /// All steps, oldest first; those from `position` on are undone.
    const std::deque<StoreStep> &steps() const { return m_steps; }
    int position() const { return m_position; }
    /// The step that the turn in progress follows directly, so that it may join it; null when a
    /// change of view or an undone step lies between.
    const StoreStep *directPredecessor() const;
    static Body unpack(const QByteArray &body);

    /// For saving: steps that came or went since the last `markSaved`, and the two other parts.
    const std::set<qint64> &changedSteps() const { return m_changed; }
    const StoreStep *step(qint64 id) const;
    QByteArray packedDrift() const;
    void markSaved() { m_changed.clear(); }
    void markAllChanged();
    void restore(std::deque<StoreStep> steps, int position, const QByteArray &drift);

private:
    Body takeLast();
    void push(const QString &name, const Body &body);
    void dropRedo();
    void trim();

    std::deque<StoreStep> m_steps;
    std::set<qint64> m_changed;
    ChangeSet m_turn;
    ChangeSet m_drift;
    int m_position = 0;
    int m_limit = DefaultLimit;
    bool m_hasContent = false;
};
