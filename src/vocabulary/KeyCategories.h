#pragma once

/// The keyboard's functions as categories, for lists to pick from.

#include <QtGlobal>

#include <array>
#include <vector>

struct KeyCategory
{
    enum Value : int {
        Alphanumeric = 0,
        Symbols = 1,
        Navigation = 2,
        Modifier = 3,
        Function = 4,
        Numberpad = 5,
        Count = 6
    };

    const char *title;         ///< untranslated, with a doubled ampersand as buttons want it
    std::vector<ushort> codes; ///< device codes in display order
};

/// The six categories, by KeyCategory::Value.
const std::array<KeyCategory, KeyCategory::Count> &KeyCategories();
