#include "core/records.h"

#include <QDebug>

#include <algorithm>
#include <cstring>
#include <map>
#include <string>

namespace {

template <typename T>
bool sameBytes(const T &a, const T &b)
{
    return std::memcmp(&a, &b, sizeof(T)) == 0;
}

QDebug field(QDebug debug, const char *name, int value)
{
    return debug.nospace() << name << ' ' << value;
}

template <typename T>
char *debugText(const T &record)
{
    QString text;
    QDebug(&text).nospace() << record;
    return qstrdup(text.toUtf8().constData());
}

} // namespace

bool operator==(const vantrix_presso_digital &a, const vantrix_presso_digital &b)
{
    return sameBytes(a, b);
}

bool operator==(const vantrix_key_mapping &a, const vantrix_key_mapping &b)
{
    return sameBytes(a, b);
}

bool operator==(const vantrix_macro_event &a, const vantrix_macro_event &b)
{
    return sameBytes(a, b);
}

bool operator==(const vantrix_macro_record &a, const vantrix_macro_record &b)
{
    return sameBytes(a, b);
}

bool operator==(const vantrix_shortcut_assign &a, const vantrix_shortcut_assign &b)
{
    return sameBytes(a, b);
}

bool operator==(const vantrix_extended_key &a, const vantrix_extended_key &b)
{
    return sameBytes(a, b);
}

bool operator==(const vantrix_app_assign &a, const vantrix_app_assign &b)
{
    return sameBytes(a, b);
}

bool operator==(const vantrix_hotkey_assign &a, const vantrix_hotkey_assign &b)
{
    return a.flag == b.flag && a.hotKey == b.hotKey && a.keyName == b.keyName;
}

QDebug operator<<(QDebug debug, const vantrix_presso_digital &record)
{
    QDebugStateSaver saver(debug);
    field(debug, "{first", record.firstAction);
    field(debug, " second", record.secondAction);
    field(debug, " dualType", record.dualType);
    field(debug, " depth", record.depth) << '}';
    return debug;
}

QDebug operator<<(QDebug debug, const vantrix_key_mapping &record)
{
    QDebugStateSaver saver(debug);
    field(debug, "{type", record.type);
    field(debug, " code", record.code);
    field(debug, " altCode", record.altCode) << ' ' << record.digital << '}';
    return debug;
}

QDebug operator<<(QDebug debug, const vantrix_macro_event &record)
{
    QDebugStateSaver saver(debug);
    field(debug, record.state ? "+" : "-", record.code);
    field(debug, "/", record.delay);
    return debug;
}

QDebug operator<<(QDebug debug, const vantrix_macro_record &record)
{
    QDebugStateSaver saver(debug);
    field(debug, "{type", record.type);
    field(debug, " code", record.code);
    field(debug, " count", record.count) << " [";
    const int shown = std::min<int>(record.count, vantrix_macro_record::MaxEvents);
    for (int i = 0; i < shown; ++i)
        debug.nospace() << (i ? ", " : "") << record.events[std::size_t(i)];
    debug.nospace() << "]}";
    return debug;
}

QDebug operator<<(QDebug debug, const vantrix_shortcut_assign &record)
{
    QDebugStateSaver saver(debug);
    field(debug, "{shortcut", record.id) << '}';
    return debug;
}

QDebug operator<<(QDebug debug, const vantrix_extended_key &record)
{
    QDebugStateSaver saver(debug);
    field(debug, "{extended", record.code) << '}';
    return debug;
}

QDebug operator<<(QDebug debug, const vantrix_app_assign &record)
{
    QDebugStateSaver saver(debug);
    field(debug, "{appType", record.appType);
    field(debug, " funcId", record.funcId) << ' ' << record.macro << '}';
    return debug;
}

QDebug operator<<(QDebug debug, const vantrix_hotkey_assign &record)
{
    QDebugStateSaver saver(debug);
    debug.nospace() << "{hotKey " << record.hotKey << " keyName " << record.keyName << '}';
    return debug;
}

char *toString(const vantrix_presso_digital &record)
{
    return debugText(record);
}

char *toString(const vantrix_key_mapping &record)
{
    return debugText(record);
}

char *toString(const vantrix_macro_record &record)
{
    return debugText(record);
}

char *toString(const vantrix_shortcut_assign &record)
{
    return debugText(record);
}

char *toString(const vantrix_extended_key &record)
{
    return debugText(record);
}

char *toString(const vantrix_app_assign &record)
{
    return debugText(record);
}

char *toString(const vantrix_hotkey_assign &record)
{
    return debugText(record);
}

void registerRecordTypes()
{
    qRegisterMetaType<vantrix_presso_digital>("vantrix_presso_digital");
    qRegisterMetaType<vantrix_key_mapping>("vantrix_key_mapping");
    qRegisterMetaType<vantrix_macro_record>("vantrix_macro_record");
    qRegisterMetaType<vantrix_shortcut_assign>("vantrix_shortcut_assign");
    qRegisterMetaType<vantrix_extended_key>("vantrix_extended_key");
    qRegisterMetaType<vantrix_app_assign>("vantrix_app_assign");
    qRegisterMetaType<vantrix_hotkey_assign>("vantrix_hotkey_assign");
    qRegisterMetaType<std::map<uchar, uchar>>("std::map<uchar,uchar>");
    qRegisterMetaType<std::string>("std::string");
}
