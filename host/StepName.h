#pragma once

#include "host/StoreState.h"

#include <QCoreApplication>

/// Names for steps, made from what they changed.
class StepName
{
    Q_DECLARE_TR_FUNCTIONS(StepName)

public:
    StepName() = delete;

    /// Name of a step. `state` is the store after it, `preset` the number of the preset that was
    /// applied, or -1.
    static QString of(const ChangeSet &changes, const StoreState &state, int preset);
    /// True when both change nothing but the depth of the same key, so that the second belongs to
    /// the first.
    static bool isSameDepth(const ChangeSet &first, const ChangeSet &second);

private:
    static QString ofKeys(const ChangeSet &changes, const StoreState &state);
    static QString ofKey(const RecordId &key, const ChangeSet &changes, const StoreState &state);
    static QString ofMacros(const ChangeSet &changes);
};
