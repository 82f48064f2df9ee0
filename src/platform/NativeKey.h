#pragma once

#include "interfaces/VantrixExport.h"

#include <QtGlobal>

class QKeyEvent;
class QString;

/// A key in Windows numbering.
struct NativeKey
{
    quint32 scanCode = 0;   ///< Windows scan code, 256 added for extended keys
    quint32 virtualKey = 0; ///< Windows virtual key
};

/// The key of an event in Windows numbering. On the platforms named xcb and wayland a spontaneous
/// event carries the key code of X11, which is translated by its place on a US keyboard; a key
/// without a place there is 0 in both numbers. Every other event, one that the program made
/// itself included, carries Windows numbers already.
VANTRIX_EXPORT NativeKey nativeKeyOf(const QKeyEvent *event);

/// The rule behind nativeKeyOf, with everything it looks at as an argument.
VANTRIX_EXPORT NativeKey translateNativeKey(const QString &platformName, bool spontaneous,
                                            quint32 nativeScanCode, quint32 nativeVirtualKey);
