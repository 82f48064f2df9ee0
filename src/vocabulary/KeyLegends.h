#pragma once

/// The legends that a language prints on its keycaps, and the physical layouts that hold them.

#include <QString>

#include <array>
#include <map>
#include <vector>

constexpr int LanguageCount = 15;

/// Language name to the index that IEnvironment::getLanguage returns, 0 to 14.
const std::map<QString, int> &LanguageIndex();
/// Name of a language in LanguageIndex; empty for a number outside 0 to 14.
QString languageName(int language);

/// Scan code (as in ScanToKeyCode, 110 rows) to one UTF-8 legend per language; null: none.
/// A legend may hold a line break and runs of four blanks; a double ampersand is one ampersand.
const std::map<int, std::array<const char *, LanguageCount>> &KeyLegends();

/// Legend of a scan code in a language: "UNKNOWN" without a row, empty for a null entry or a
/// language outside 0 to 14.
QString keyLegend(int scanCode, int language);

/// Physical layouts of a keyboard.
struct KeyboardLayout
{
    enum Value : int { Ansi = 0, Iso = 1, Br = 2, Jp = 3, Count = 4 };
};

/// Layout whose keys the language's keyboards have.
int layoutOfLanguage(int language);

/// Rows of the main block of a layout (KeyboardLayout), top to bottom, scan codes left to right;
/// 0 stands for the filler with the logo.
const std::vector<std::vector<int>> &mainBlockRows(int layout);
