#include "vocabulary/Presets.h"

#include <QObject>

const std::map<int, PresetPanelRow> &PresetGroups()
{
    static const std::map<int, PresetPanelRow> groups = {
        // group, {tag, name, input}
        {0, {"K", QT_TRANSLATE_NOOP("PanelWid", "Keyboard"), -1}},
        {4, {"G", QT_TRANSLATE_NOOP("PanelWid", "Gaming"), -1}},
        {5, {"A", QT_TRANSLATE_NOOP("PanelWid", "Creative Application"), -1}},
    };
    return groups;
}

const std::map<int, PresetPanelRow> &PresetPanels()
{
    static const std::map<int, PresetPanelRow> presets = {
        // preset, {tag, name, input}
        {0, {"W", QT_TRANSLATE_NOOP("PanelWid", "Standard WASD"), InputType::Keyboard}},
        {1, {"E", QT_TRANSLATE_NOOP("PanelWid", "Standard ESDF"), InputType::Keyboard}},
        {2, {"N", QT_TRANSLATE_NOOP("PanelWid", "Numpad Mode"), InputType::Keyboard}},
        {3, {"F", QT_TRANSLATE_NOOP("PanelWid", "FPS Mode"), InputType::GameController}},
        {4, {"E", QT_TRANSLATE_NOOP("PanelWid", "Driving Mode"), InputType::GameController}},
        {5, {"A", QT_TRANSLATE_NOOP("PanelWid", "Adv. Flight Mode"), InputType::GameController}},
        {6, {"P", QT_TRANSLATE_NOOP("PanelWid", "Photoshop"), InputType::Application}},
        {7, {"I", QT_TRANSLATE_NOOP("PanelWid", "Illustrator"), InputType::Application}},
        {8, {"PP", QT_TRANSLATE_NOOP("PanelWid", "Premiere Pro"), InputType::Application}},
    };
    return presets;
}

const std::map<int, std::array<ushort, KeyCount>> &KeyboardPresets()
{
    // clang-format off
    static const std::map<int, std::array<ushort, KeyCount>> presets = {
        {0, {{
            0x35, 0x1E, 0x1F, 0x20, 0x21,
            0x2B, 0x14, 0x1A, 0x08, 0x15,
            0x39, 0x04, 0x16, 0x07, 0x09,
            0xE1, 0x1D, 0x1B, 0x06, 0x19,
            0xE0, 0xE3, 0xE2, 0x2C, 0xF6, 0xF5, 0xC6, 0xC7,
        }}},
        {1, {{
            0x1E, 0x1F, 0x20, 0x21, 0x22,
            0x14, 0x1A, 0x08, 0x15, 0x17,
            0x04, 0x16, 0x07, 0x09, 0x0A,
            0x1D, 0x1B, 0x06, 0x19, 0x05,
            0xE0, 0xE3, 0xE2, 0x2C, 0xF6, 0xF5, 0xC6, 0xC7,
        }}},
        {2, {{
            0x4B, 0x74, 0x53, 0x75, 0x54,
            0x4E, 0x5F, 0x60, 0x61, 0x55,
            0x52, 0x5C, 0x5D, 0x5E, 0x56,
            0x51, 0x59, 0x5A, 0x5B, 0x57,
            0x4C, 0x62, 0x63, 0x58, 0xF6, 0xF5, 0xC6, 0xC7,
        }}},
    };
    // clang-format on
    return presets;
}

const std::map<int, std::map<int, ushort>> &GamePresets()
{
    // clang-format off
    static const std::map<int, std::map<int, ushort>> presets = {
        // preset, {{key, controller code}...}
        {3, {
            { 7,  731}, {11,  474}, {12,  475}, {13,  730},
        }},
        {4, {
            { 7,  223}, {11,  474}, {12,  222}, {13,  730},
        }},
        {5, {
            { 0,  470}, { 1, 1241}, { 2,  473}, { 3, 2265}, { 4,  729}, { 5,  469},
            { 6,  222}, { 7,  731}, { 8,  223}, { 9,  733}, {10,  468}, {11,  474},
            {12,  475}, {13,  730}, {14,  477}, {15,  471}, {16,  466}, {18,  467},
            {20,  463}, {22,  472}, {23,  462},
        }},
    };
    // clang-format on
    return presets;
}

const std::map<int, std::array<ushort, KeyCount>> &AppPresetKeys()
{
    // clang-format off
    static const std::map<int, std::array<ushort, KeyCount>> presets = {
        {6, {{
            41, 0, 1, 2, 11,
            15, 12, 13, 7, 5,
            18, 10, 9, 6, 4,
            17, 3, 8, 14, 16,
            225, 224, 226, 44, 246, 245, 198, 199,
        }}},
        {7, {{
            41, 0, 1, 2, 10,
            12, 6, 17, 9, 5,
            18, 11, 8, 3, 4,
            15, 16, 7, 13, 14,
            225, 224, 226, 44, 246, 245, 198, 199,
        }}},
        {8, {{
            41, 16, 18, 12, 6,
            11, 13, 9, 14, 15,
            5, 17, 1, 7, 8,
            3, 0, 10, 2, 4,
            225, 224, 226, 44, 246, 245, 198, 199,
        }}},
    };
    // clang-format on
    return presets;
}

const std::map<int, int> &AppPresetType()
{
    static const std::map<int, int> types = {
        {6, AppType::Photoshop},
        {7, AppType::Illustrator},
        {8, AppType::PremierePro},
    };
    return types;
}
