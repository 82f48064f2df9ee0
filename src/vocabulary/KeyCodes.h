#pragma once

/// The number space of device key codes, and the constant tables that give the numbers names,
/// colours and sources. All tables are built once and never change; any thread may read them.

#include "core/records.h"

#include <QColor>

#include <map>
#include <utility>
#include <vector>

/// A key of `type` 0 with one of these makes the shell's power modes known to the key.
constexpr ushort FirstPowerModeCode = 0xC1;
constexpr ushort LastPowerModeCode = 0xC4;
/// The companion feature's key; its face shows a text of the shell.
constexpr ushort MeridianCode = 0xC5;
/// Number of Windows shortcuts; ids run from 0.
constexpr int WinShortcutCount = 17;

// clang-format off
/// Device code that each pad key emits when nothing is assigned to it, by key index.
constexpr std::array<ushort, KeyCount> KeyDefaultCodes = {{
    0x35, 0x1E, 0x1F, 0x20, 0x21,
    0x2B, 0x14, 0x1A, 0x08, 0x15,
    0x39, 0x04, 0x16, 0x07, 0x09,
    0xE1, 0x1D, 0x1B, 0x06, 0x19,
    0xE0, 0xC0, 0xE2, 0x2C,
    0xF6, 0xF5, 0xC6, 0xC7,
}};
// clang-format on

/// Entry of KeyDefaultCodes; 0 for an index outside the table.
ushort defaultCodeOfKey(int keyIdx);

/// Key name to device code and a flag that is 1 for a mouse key; 95 rows.
const std::map<QString, std::pair<ushort, uchar>> &KeyNameCodes();

/// Native Windows scan code (256 added for extended keys) to device code; 110 rows.
const std::map<int, ushort> &ScanToKeyCode();
/// First scan code, in ascending order, whose device code is `code`; 0 when there is none.
int scanOfKeyCode(ushort code);

/// Windows virtual key to device code; 0 for one that is not listed.
ushort codeOfVirtualKey(quint32 virtualKey);
/// Device code of the scan codes that take precedence over the virtual key; 0 for all others.
ushort codeOfPrecedingScan(quint32 scanCode);

/// InputType to the ordered list of codes that its panel offers.
const std::map<int, std::vector<ushort>> &InputKeyLists();

/// InputType to the highlight colour of its buttons. No row for PresetMode.
const std::map<int, QColor> &InputColors();
/// Row of InputColors; white when there is none.
QColor inputColor(int inputType);

/// Untranslated name of an InputType ("KEYBOARD"...); "UNKNOWN" for any other number.
const char *inputTypeName(int inputType);
/// The same in the language of the interface.
QString inputTypeText(int inputType);

/// Windows shortcut id (0 to 16) to the device codes it plays, in order of pressing.
const std::map<int, std::vector<ushort>> &WinShortcutKeys();
/// Untranslated name of a Windows shortcut; empty for an unknown id.
const char *winShortcutName(int shortcutId);
/// The same in the language of the interface.
QString winShortcutText(int shortcutId);

/// Pseudo code to the device codes that produce it. Its keys are the extended codes, which are
/// never kept in a key's mapping.
const std::map<ushort, std::vector<ushort>> &SymbolKeySequences();
bool isExtendedCode(ushort code);

bool isPowerModeCode(ushort code);

/// Untranslated name of a device function; "UNKNOWN KEY" for a code it does not know, which
/// includes the keys whose names are legends (1 to 103, 224 to 231).
const char *keyFunctionName(ushort code);
/// The same in the language of the interface.
QString keyFunctionText(ushort code);

/// InputType of a mapping: what the key shows as its state. `code` is the effective code.
/// An index outside the pad compares with default code 0.
int inputTypeOfCode(int keyIndex, char type, ushort code);
