#pragma once

#include "toolkit/Portions.h"

class ButtonGroupEx;

/// What all titles of one hot-key browser share: the group of all leaves, the portions in which
/// the tree grows, and how far it may grow. Belongs to the browser and goes before its titles.
struct HotKeyTree
{
    /// A catalog beyond these is cut off: the page would no longer find room in memory.
    static constexpr int MostKeys = 100'000;
    static constexpr int MostTitles = 12'000;
    /// A group beyond this is cut off: to unfold it would stop the page for a while.
    static constexpr int MostKeysOfAGroup = 10'000;

    ButtonGroupEx *group = nullptr; ///< not owned
    Portions portions;
    int keys = 0;
    int titles = 0;

    /// Counts one more title; false if there is no room for it.
    bool addTitle() { return titles < MostTitles && ++titles; }
    /// Counts one more leaf; false if there is no room for it.
    bool addKey() { return keys < MostKeys && ++keys; }
};
