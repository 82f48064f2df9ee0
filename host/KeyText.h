#pragma once

#include "host/KeyContent.h"

#include <QCoreApplication>

/// What a key does, in words and as a state. Interface thread only; the legends are those of the
/// installed IEnvironment's language, of the first language without one.
class KeyText
{
    Q_DECLARE_TR_FUNCTIONS(KeyText)

public:
    KeyText() = delete;

    /// Name of a device code on one line, e.g. "B", "PAGE UP", "VOLUME UP".
    static QString codeName(ushort code);
    /// What the key does, e.g. "B", "UNASSIGNED", "PHOTOSHOP: CROP", "A > B at 50%", or the name
    /// of its macro.
    static QString functionName(int keyIdx, const KeyContent &key);
    /// InputType that the key shows, which gives its colour.
    static int inputType(int keyIdx, const KeyContent &key);
    /// True for a key that does what it does by default because nothing was assigned to it.
    static bool isCleared(int keyIdx, const KeyContent &key);

private:
    static QString extraName(const KeyContent &key);
    static QString dualName(const vantrix_presso_digital &digital);
};
