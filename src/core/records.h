#pragma once

/// The records that describe what one key of the pad does, and the numberings that everything
/// shares. The packed records are exchanged with the profile store byte for byte: little-endian,
/// no padding. Every field starts at zero, so a fresh record is all zero.
///
/// Never bind a reference to a field of a packed record: copy the field first.

#include <QMetaType>
#include <QString>
#include <QtEndian>

#include <array>
#include <cstddef>

class QDebug;

static_assert(Q_BYTE_ORDER == Q_LITTLE_ENDIAN, "the records are stored as they lie in memory");

/// Number of addressable keys; a valid key index is 0 to KeyCount-1, anything else is "no key".
constexpr int KeyCount = 28;
/// Keys 0 to MainKeyCount-1 are the main block, the rest are the four upper keys.
constexpr int MainKeyCount = 24;
/// Code that means "nothing assigned".
constexpr ushort UnassignedCode = 255;
/// Code that means "key disabled".
constexpr ushort DisabledCode = 0;

/// What the user selects in the input selector, and the state that a key shows.
/// It also numbers the legend entries, the colours and the pages of panel stack and dialog.
struct InputType
{
    enum Value : int {
        Keyboard = 0,
        Mouse = 1,
        Media = 2,
        Macro = 3,
        GameController = 4,
        Application = 5,
        DualAction = 6,
        PressoFunctions = 7,
        Backlight = 8,
        Profile = 9,
        PresetMode = 10, ///< an input only, never the state of a key
        Disabled = 11,
        Unassigned = 12
    };
};

/// vantrix_key_mapping::type.
struct KeyType
{
    enum Value : quint8 {
        Plain = 0,          ///< `code` is the function
        Label = 1,          ///< only on a button: macro, application function or hot key
        GameController = 2, ///< `altCode` is the function, `code` is 255
        DualAction = 3      ///< `digital` is the function
    };
};

/// The page's mode, also the ids of the two mode buttons.
struct Mode
{
    enum Value : int { Simple = 0, Advanced = 1 };
};

/// The creative applications.
struct AppType
{
    enum Value : int { Photoshop = 0, PremierePro = 1, Illustrator = 2, Count = 3 };
};

/// vantrix_presso_digital::dualType.
struct DualType
{
    enum Value : quint8 {
        Normal = 0, ///< past the depth the second action takes over from the first
        Toggle = 1, ///< the first action comes back when the press returns
        Combine = 2 ///< past the depth both actions are active
    };
};

#pragma pack(push, 1)

/// The dual action part of a key's record, 6 bytes.
struct vantrix_presso_digital
{
    quint16 firstAction = 0;  ///< code that acts at the first press depth; 0: no dual action
    quint16 secondAction = 0; ///< code that acts at the second press depth; 0: none
    quint8 dualType = 0;      ///< DualType
    quint8 depth = 0;         ///< percent of the key's travel, 10 to 90
};

/// What one key does, 11 bytes.
struct vantrix_key_mapping
{
    quint8 type = 0;     ///< KeyType
    quint16 code = 0;    ///< device key code for type 0; 255 unassigned, 0 disabled
    quint16 altCode = 0; ///< the code when `type` is not 0, above all the controller code of type 2
    vantrix_presso_digital digital;
};

/// One event of a key sequence, 5 bytes.
struct vantrix_macro_event
{
    quint16 code = 0;  ///< device key code
    quint8 state = 0;  ///< 1 press, 0 release
    quint16 delay = 0; ///< milliseconds
};

/// A key sequence, 656 bytes.
struct vantrix_macro_record
{
    static constexpr int MaxEvents = 127;

    quint8 type = 0;
    quint16 code = 0; ///< default code of the key, or 0 for a function kept as a plain code
    std::array<quint8, 17> reserved{};
    quint8 count = 0; ///< number of events in use
    std::array<vantrix_macro_event, MaxEvents> events{};
};

/// A Windows shortcut on a key, 2 bytes.
struct vantrix_shortcut_assign
{
    quint8 id = 0; ///< 0 to 16
    quint8 reserved = 0;
};

/// An extended code on a key, 3 bytes; the key's mapping then holds code 255.
struct vantrix_extended_key
{
    quint8 reserved = 0;
    quint16 code = 0;
};

/// An application function on a key.
struct vantrix_app_assign
{
    qint32 appType = -1; ///< AppType, -1 none
    qint32 funcId = -1;  ///< 0 to 18, -1 none
    vantrix_macro_record macro;
};

#pragma pack(pop)

/// A hot key of the catalog on a key.
struct vantrix_hotkey_assign
{
    quint8 flag = 0;
    QString hotKey;  ///< text of the shortcut, e.g. "CTRL+S"
    QString keyName; ///< what it does, shown on the key
};

static_assert(sizeof(vantrix_presso_digital) == 6);
static_assert(offsetof(vantrix_presso_digital, secondAction) == 2);
static_assert(offsetof(vantrix_presso_digital, dualType) == 4);
static_assert(offsetof(vantrix_presso_digital, depth) == 5);
static_assert(sizeof(vantrix_key_mapping) == 11);
static_assert(offsetof(vantrix_key_mapping, code) == 1);
static_assert(offsetof(vantrix_key_mapping, altCode) == 3);
static_assert(offsetof(vantrix_key_mapping, digital) == 5);
static_assert(sizeof(vantrix_macro_event) == 5);
static_assert(sizeof(vantrix_macro_record) == 656);
static_assert(offsetof(vantrix_macro_record, code) == 1);
static_assert(offsetof(vantrix_macro_record, count) == 20);
static_assert(offsetof(vantrix_macro_record, events) == 21);
static_assert(sizeof(vantrix_shortcut_assign) == 2);
static_assert(sizeof(vantrix_extended_key) == 3);
static_assert(offsetof(vantrix_extended_key, code) == 1);
static_assert(sizeof(vantrix_app_assign) == 8 + 656);

/// A record of type 0 with the given code, all else zero.
inline vantrix_key_mapping plainKey(ushort code)
{
    vantrix_key_mapping key;
    key.code = code;
    return key;
}

/// The record that clears a key: type 0, code 255, all else zero.
inline vantrix_key_mapping clearedKey()
{
    return plainKey(UnassignedCode);
}

/// A record of type 2: code 255, altCode the controller code.
inline vantrix_key_mapping gameKey(ushort code)
{
    vantrix_key_mapping key = clearedKey();
    key.type = KeyType::GameController;
    key.altCode = code;
    return key;
}

/// The code a record is classed and named by: altCode for type 2, else code.
inline ushort effectiveCode(const vantrix_key_mapping &key)
{
    return key.type == KeyType::GameController ? key.altCode : key.code;
}

inline bool isValidKey(int keyIdx)
{
    return keyIdx >= 0 && keyIdx < KeyCount;
}

/// A dual action proper: type 3 with a first action. A type 3 without one is no dual action.
inline bool isDualAction(const vantrix_key_mapping &key)
{
    return key.type == KeyType::DualAction && key.digital.firstAction != 0;
}

bool operator==(const vantrix_presso_digital &a, const vantrix_presso_digital &b);
bool operator==(const vantrix_key_mapping &a, const vantrix_key_mapping &b);
bool operator==(const vantrix_macro_event &a, const vantrix_macro_event &b);
bool operator==(const vantrix_macro_record &a, const vantrix_macro_record &b);
bool operator==(const vantrix_shortcut_assign &a, const vantrix_shortcut_assign &b);
bool operator==(const vantrix_extended_key &a, const vantrix_extended_key &b);
bool operator==(const vantrix_app_assign &a, const vantrix_app_assign &b);
bool operator==(const vantrix_hotkey_assign &a, const vantrix_hotkey_assign &b);

inline bool operator!=(const vantrix_presso_digital &a, const vantrix_presso_digital &b)
{
    return !(a == b);
}
inline bool operator!=(const vantrix_key_mapping &a, const vantrix_key_mapping &b)
{
    return !(a == b);
}
inline bool operator!=(const vantrix_macro_event &a, const vantrix_macro_event &b)
{
    return !(a == b);
}
inline bool operator!=(const vantrix_macro_record &a, const vantrix_macro_record &b)
{
    return !(a == b);
}
inline bool operator!=(const vantrix_shortcut_assign &a, const vantrix_shortcut_assign &b)
{
    return !(a == b);
}
inline bool operator!=(const vantrix_extended_key &a, const vantrix_extended_key &b)
{
    return !(a == b);
}
inline bool operator!=(const vantrix_app_assign &a, const vantrix_app_assign &b)
{
    return !(a == b);
}
inline bool operator!=(const vantrix_hotkey_assign &a, const vantrix_hotkey_assign &b)
{
    return !(a == b);
}

QDebug operator<<(QDebug debug, const vantrix_presso_digital &record);
QDebug operator<<(QDebug debug, const vantrix_key_mapping &record);
QDebug operator<<(QDebug debug, const vantrix_macro_event &record);
QDebug operator<<(QDebug debug, const vantrix_macro_record &record);
QDebug operator<<(QDebug debug, const vantrix_shortcut_assign &record);
QDebug operator<<(QDebug debug, const vantrix_extended_key &record);
QDebug operator<<(QDebug debug, const vantrix_app_assign &record);
QDebug operator<<(QDebug debug, const vantrix_hotkey_assign &record);

/// Text of a record for the messages of tests; the caller frees it with delete[].
char *toString(const vantrix_presso_digital &record);
char *toString(const vantrix_key_mapping &record);
char *toString(const vantrix_macro_record &record);
char *toString(const vantrix_shortcut_assign &record);
char *toString(const vantrix_extended_key &record);
char *toString(const vantrix_app_assign &record);
char *toString(const vantrix_hotkey_assign &record);

/// Registers every record, and the maps of them that signals carry, as meta types. A page does so
/// when it is made; only who uses the records without a page has to. More than once does no harm.
void registerRecordTypes();

Q_DECLARE_METATYPE(vantrix_presso_digital)
Q_DECLARE_METATYPE(vantrix_key_mapping)
Q_DECLARE_METATYPE(vantrix_macro_record)
Q_DECLARE_METATYPE(vantrix_shortcut_assign)
Q_DECLARE_METATYPE(vantrix_extended_key)
Q_DECLARE_METATYPE(vantrix_app_assign)
Q_DECLARE_METATYPE(vantrix_hotkey_assign)
