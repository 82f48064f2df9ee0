#pragma once

#include "interfaces/VantrixExport.h"

#include <QtGlobal>

class QKeyEvent;

/// A key in Windows numbering.
struct NativeKey
{
    quint32 scanCode = 0;   ///< Windows scan code, 256 added for extended keys
    quint32 virtualKey = 0; ///< Windows virtual key
};

/// The key of an event in Windows numbering. On the platforms named xcb and wayland a spontaneous
/// event carries an X11 or evdev key code, which is translated; every other event carries
/// Windows numbers already.
VANTRIX_EXPORT NativeKey nativeKeyOf(const QKeyEvent *event);
