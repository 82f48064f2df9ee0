#pragma once

#include "host/StoreState.h"

#include <QCoreApplication>

/// A key that has what was looked for.
struct KeyHit
{
    int profile = 0;
    int keyIdx = 0;
    int inputType = 0; ///< InputType, gives the colour
    QString function;  ///< what the key does, in words
};

/// Finds keys of all profiles by what they do: by the name of a function, the legend of a key or
/// the name of a macro. A key without an assignment is found by what it sends.
///
/// Better hits come first: the whole text, then its start, then the start of a word, then any
/// place of it, which counts for queries of two letters and more only. Among equals assigned keys
/// come before those that send their own code, the shown profile before the others, and these in
/// the order of the list. Case doesn't count. Interface thread only.
class KeyFinder
{
    Q_DECLARE_TR_FUNCTIONS(KeyFinder)

public:
    /// Reads the names of all keys of an owner.
    void read(const StoreState &state, int owner);
    std::vector<KeyHit> find(const QString &text, int shownProfile) const;

private:
    struct Entry
    {
        KeyHit hit;
        QString legend; ///< of a key that sends its own code; else as the function
        int place = 0;  ///< of the profile in the list
        bool isOwn = false;
    };
    std::vector<Entry> m_entries;
};
