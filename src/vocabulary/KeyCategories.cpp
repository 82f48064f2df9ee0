#include "vocabulary/KeyCategories.h"

#include <QtGlobal>

const std::array<KeyCategory, KeyCategory::Count> &KeyCategories()
{
    // clang-format off
    static const std::array<KeyCategory, KeyCategory::Count> categories = {{
        // title                                                 codes
        {QT_TRANSLATE_NOOP("KeyboardAdvWid", "ALPHANUMERIC"),
         {4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29,
          2817, 2818, 2819, 2820, 2821, 2822, 2823, 2824, 2825, 2826}},
        {QT_TRANSLATE_NOOP("KeyboardAdvWid", "SYMBOLS && PUNCTUATION"),
         {2816, 3072, 3073, 3074, 3075, 3076, 3077, 3078, 3079, 3080, 3081, 3082, 2827, 3083, 2828, 3084, 2829,
          2830, 3085, 3086, 2831, 3087, 2832, 3088, 2833, 3089, 2834, 3090, 2835, 3091, 2836, 3092}},
        {QT_TRANSLATE_NOOP("KeyboardAdvWid", "NAVIGATION KEYS"),
         {82, 81, 80, 79, 73, 76, 74, 77, 75, 78, 44, 40, 42, 41}},
        {QT_TRANSLATE_NOOP("KeyboardAdvWid", "MODIFIER"),
         {225, 229, 224, 228, 226, 230, 57}},
        {QT_TRANSLATE_NOOP("KeyboardAdvWid", "FUNCTION KEYS"),
         {58, 59, 60, 61, 62, 63, 64, 65, 66, 67, 68, 69, 104, 105, 106, 107, 108, 109, 110, 111, 112, 113, 114, 115,
          70, 71, 72, 227}},
        {QT_TRANSLATE_NOOP("KeyboardAdvWid", "NUMBERPAD KEYS"),
         {83, 89, 90, 91, 92, 93, 94, 95, 96, 97, 98, 84, 85, 86, 87, 88}},
    }};
    // clang-format on
    return categories;
}
