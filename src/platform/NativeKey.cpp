#include "platform/NativeKey.h"

#include <QGuiApplication>
#include <QKeyEvent>

#include <algorithm>
#include <array>

namespace {

/// X11 counts from 8 what the kernel counts from 0; the Wayland plugin of Qt adds the same 8.
constexpr quint32 X11Offset = 8;

struct EvdevRow
{
    quint32 evdev;
    NativeKey key;
};

// clang-format off
// Print Screen, Pause and Num Lock have the scan codes of their buttons on the drawn keyboard.
constexpr std::array<EvdevRow, 142> EvdevKeys = {{
    // evdev, {scan code, virtual key}
    {  1, {  1,  27}}, // Escape
    {  2, {  2,  49}}, // 1
    {  3, {  3,  50}}, // 2
    {  4, {  4,  51}}, // 3
    {  5, {  5,  52}}, // 4
    {  6, {  6,  53}}, // 5
    {  7, {  7,  54}}, // 6
    {  8, {  8,  55}}, // 7
    {  9, {  9,  56}}, // 8
    { 10, { 10,  57}}, // 9
    { 11, { 11,  48}}, // 0
    { 12, { 12, 189}}, // minus
    { 13, { 13, 187}}, // equal
    { 14, { 14,   8}}, // Backspace
    { 15, { 15,   9}}, // Tab
    { 16, { 16,  81}}, // Q
    { 17, { 17,  87}}, // W
    { 18, { 18,  69}}, // E
    { 19, { 19,  82}}, // R
    { 20, { 20,  84}}, // T
    { 21, { 21,  89}}, // Y
    { 22, { 22,  85}}, // U
    { 23, { 23,  73}}, // I
    { 24, { 24,  79}}, // O
    { 25, { 25,  80}}, // P
    { 26, { 26, 219}}, // left bracket
    { 27, { 27, 221}}, // right bracket
    { 28, { 28,  13}}, // Enter
    { 29, { 29,  17}}, // left Ctrl
    { 30, { 30,  65}}, // A
    { 31, { 31,  83}}, // S
    { 32, { 32,  68}}, // D
    { 33, { 33,  70}}, // F
    { 34, { 34,  71}}, // G
    { 35, { 35,  72}}, // H
    { 36, { 36,  74}}, // J
    { 37, { 37,  75}}, // K
    { 38, { 38,  76}}, // L
    { 39, { 39, 186}}, // semicolon
    { 40, { 40, 222}}, // apostrophe
    { 41, { 41, 192}}, // grave
    { 42, { 42,  16}}, // left Shift
    { 43, { 43, 220}}, // backslash
    { 44, { 44,  90}}, // Z
    { 45, { 45,  88}}, // X
    { 46, { 46,  67}}, // C
    { 47, { 47,  86}}, // V
    { 48, { 48,  66}}, // B
    { 49, { 49,  78}}, // N
    { 50, { 50,  77}}, // M
    { 51, { 51, 188}}, // comma
    { 52, { 52, 190}}, // dot
    { 53, { 53, 191}}, // slash
    { 54, { 54,  16}}, // right Shift
    { 55, { 55, 106}}, // keypad times
    { 56, { 56,  18}}, // left Alt
    { 57, { 57,  32}}, // Space
    { 58, { 58,  20}}, // Caps Lock
    { 59, { 59, 112}}, // F1
    { 60, { 60, 113}}, // F2
    { 61, { 61, 114}}, // F3
    { 62, { 62, 115}}, // F4
    { 63, { 63, 116}}, // F5
    { 64, { 64, 117}}, // F6
    { 65, { 65, 118}}, // F7
    { 66, { 66, 119}}, // F8
    { 67, { 67, 120}}, // F9
    { 68, { 68, 121}}, // F10
    { 69, {325, 144}}, // Num Lock
    { 70, { 70, 145}}, // Scroll Lock
    { 71, { 71, 103}}, // keypad 7
    { 72, { 72, 104}}, // keypad 8
    { 73, { 73, 105}}, // keypad 9
    { 74, { 74, 109}}, // keypad minus
    { 75, { 75, 100}}, // keypad 4
    { 76, { 76, 101}}, // keypad 5
    { 77, { 77, 102}}, // keypad 6
    { 78, { 78, 107}}, // keypad plus
    { 79, { 79,  97}}, // keypad 1
    { 80, { 80,  98}}, // keypad 2
    { 81, { 81,  99}}, // keypad 3
    { 82, { 82,  96}}, // keypad 0
    { 83, { 83, 110}}, // keypad dot
    { 85, { 41, 192}}, // Hankaku/Zenkaku
    { 86, { 86, 226}}, // the key beside left Shift
    { 87, { 87, 122}}, // F11
    { 88, { 88, 123}}, // F12
    { 89, {115, 193}}, // Ro, also beside right Shift
    { 92, {121,  28}}, // Henkan
    { 93, {112,  21}}, // Katakana/Hiragana
    { 94, {123,  29}}, // Muhenkan
    { 96, {284,  13}}, // keypad Enter
    { 97, {285,  17}}, // right Ctrl
    { 98, {309, 111}}, // keypad slash
    { 99, { 84,  44}}, // Print Screen
    {100, {312,  18}}, // right Alt
    {102, {327,  36}}, // Home
    {103, {328,  38}}, // Up
    {104, {329,  33}}, // Page Up
    {105, {331,  37}}, // Left
    {106, {333,  39}}, // Right
    {107, {335,  35}}, // End
    {108, {336,  40}}, // Down
    {109, {337,  34}}, // Page Down
    {110, {338,  45}}, // Insert
    {111, {339,  46}}, // Delete
    {113, {288, 173}}, // mute
    {114, {302, 174}}, // volume down
    {115, {304, 175}}, // volume up
    {119, { 69,  19}}, // Pause
    {121, {126, 194}}, // keypad comma
    {124, {125, 220}}, // Yen
    {125, {347,  91}}, // left Windows
    {126, {348,  92}}, // right Windows
    {127, {349,  93}}, // Menu
    {128, {360, 169}}, // browser stop
    {140, {289, 183}}, // calculator
    {155, {364, 180}}, // e-mail
    {156, {358, 171}}, // browser favourites
    {157, {363, 182}}, // computer
    {158, {362, 166}}, // browser back
    {159, {361, 167}}, // browser forward
    {163, {281, 176}}, // next track
    {164, {290, 179}}, // play/pause
    {165, {272, 177}}, // previous track
    {166, {292, 178}}, // stop
    {172, {306, 172}}, // browser home
    {173, {359, 168}}, // browser refresh
    {183, {100, 124}}, // F13
    {184, {101, 125}}, // F14
    {185, {102, 126}}, // F15
    {186, {103, 127}}, // F16
    {187, {104, 128}}, // F17
    {188, {105, 129}}, // F18
    {189, {106, 130}}, // F19
    {190, {107, 131}}, // F20
    {191, {108, 132}}, // F21
    {192, {109, 133}}, // F22
    {193, {110, 134}}, // F23
    {194, {118, 135}}, // F24
    {217, {357, 170}}, // browser search
    {226, {365, 181}}, // media player
}};
// clang-format on

constexpr bool isAscending(const std::array<EvdevRow, EvdevKeys.size()> &rows)
{
    for (std::size_t i = 1; i < rows.size(); ++i) {
        if (rows[i - 1].evdev >= rows[i].evdev)
            return false;
    }
    return true;
}
static_assert(isAscending(EvdevKeys), "the rows are searched by halves");

NativeKey keyOfEvdev(quint32 evdev)
{
    const auto row =
        std::lower_bound(EvdevKeys.begin(), EvdevKeys.end(), evdev,
                         [](const EvdevRow &a, quint32 code) { return a.evdev < code; });
    return row != EvdevKeys.end() && row->evdev == evdev ? row->key : NativeKey{};
}

bool hasX11KeyCodes(const QString &platformName)
{
    // Variants of the Wayland plugin bear longer names, such as wayland-egl.
    return platformName == QLatin1String("xcb") ||
           platformName.startsWith(QLatin1String("wayland"));
}

} // namespace

NativeKey nativeKeyOf(const QKeyEvent *event)
{
    return translateNativeKey(QGuiApplication::platformName(), event->spontaneous(),
                              event->nativeScanCode(), event->nativeVirtualKey());
}

NativeKey translateNativeKey(const QString &platformName, bool spontaneous, quint32 nativeScanCode,
                             quint32 nativeVirtualKey)
{
    if (!spontaneous || !hasX11KeyCodes(platformName))
        return {nativeScanCode, nativeVirtualKey};
    return nativeScanCode < X11Offset ? NativeKey{} : keyOfEvdev(nativeScanCode - X11Offset);
}
