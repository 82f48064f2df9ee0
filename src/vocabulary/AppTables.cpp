#include "vocabulary/AppTables.h"

#include "core/records.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

/// The empty text is the key of a translation file's own header.
QString translated(const char *name)
{
    return *name ? QCoreApplication::translate("Common", name) : QString();
}

struct FunctionRow
{
    const char *name;
    std::vector<ushort> sequence;
    const char *picture; ///< stem in the application's folder, null for none
};

using FunctionRows = std::array<FunctionRow, AppFuncCount>;

// clang-format off
const FunctionRows &photoshopRows()
{
    static const FunctionRows rows = {{
        // name, device codes, picture
        {QT_TRANSLATE_NOOP("Common", "A1"), {59}, nullptr}, // 0
        {QT_TRANSLATE_NOOP("Common", "A2"), {60}, nullptr}, // 1
        {QT_TRANSLATE_NOOP("Common", "A3"), {61}, nullptr}, // 2
        {QT_TRANSLATE_NOOP("Common", "BLUR"), {716}, "blur"}, // 3
        {QT_TRANSLATE_NOOP("Common", "BRUSH SIZE"), {719}, "brush_size"}, // 4
        {QT_TRANSLATE_NOOP("Common", "BRUSH HARDNESS"), {718}, "brush_hardness"}, // 5
        {QT_TRANSLATE_NOOP("Common", "CROP"), {6}, "crop"}, // 6
        {QT_TRANSLATE_NOOP("Common", "CLONE STAMP"), {22}, "clone_stamp"}, // 7
        {QT_TRANSLATE_NOOP("Common", "DODGE"), {714}, "dodge"}, // 8
        {QT_TRANSLATE_NOOP("Common", "EYEDROP"), {12}, "eyedrop"}, // 9
        {QT_TRANSLATE_NOOP("Common", "LASSO"), {15}, "lasso"}, // 10
        {QT_TRANSLATE_NOOP("Common", "LAUNCH PS"), {764}, "ps"}, // 11
        {QT_TRANSLATE_NOOP("Common", "MOVE"), {25}, "move"}, // 12
        {QT_TRANSLATE_NOOP("Common", "RECTANGULAR MARQUEE"), {16}, "marquee"}, // 13
        {QT_TRANSLATE_NOOP("Common", "MAGNIFYING"), {717}, "magnifying"}, // 14
        {QT_TRANSLATE_NOOP("Common", "PEN"), {19}, "pen"}, // 15
        {QT_TRANSLATE_NOOP("Common", "POINTER"), {4}, "pointer"}, // 16
        {QT_TRANSLATE_NOOP("Common", "QUICK SELECTION"), {26}, "quick_selection"}, // 17
        {QT_TRANSLATE_NOOP("Common", "TEXT"), {23}, "text"}, // 18
    }};
    return rows;
}

const FunctionRows &premiereProRows()
{
    static const FunctionRows rows = {{
        // name, device codes, picture
        {QT_TRANSLATE_NOOP("Common", "BACKWARD"), {699}, "backward"}, // 0
        {QT_TRANSLATE_NOOP("Common", "COMPARISON"), {59}, "comparison"}, // 1
        {QT_TRANSLATE_NOOP("Common", "FORWARD"), {698}, "forward"}, // 2
        {QT_TRANSLATE_NOOP("Common", "GO TO IN"), {225, 12}, "go_to_in"}, // 3
        {QT_TRANSLATE_NOOP("Common", "GO TO OUT"), {225, 18}, "go_to_out"}, // 4
        {QT_TRANSLATE_NOOP("Common", "HAND"), {11}, "hand"}, // 5
        {QT_TRANSLATE_NOOP("Common", "LAUNCH PR"), {765}, "pr"}, // 6
        {QT_TRANSLATE_NOOP("Common", "MARK IN"), {12}, "mark_in"}, // 7
        {QT_TRANSLATE_NOOP("Common", "MARK OUT"), {18}, "mark_out"}, // 8
        {QT_TRANSLATE_NOOP("Common", "PEN"), {19}, "pen"}, // 9
        {QT_TRANSLATE_NOOP("Common", "PLAY-STOP TOGGLE"), {44}, "play_stop_toggle"}, // 10
        {QT_TRANSLATE_NOOP("Common", "RAZOR"), {6}, "razor"}, // 11
        {QT_TRANSLATE_NOOP("Common", "RIPPLE EDIT"), {5}, "ripple"}, // 12
        {QT_TRANSLATE_NOOP("Common", "SLIP"), {28}, "slip"}, // 13
        {QT_TRANSLATE_NOOP("Common", "STEP BACK 1 FRAME"), {80}, "step_back"}, // 14
        {QT_TRANSLATE_NOOP("Common", "STEP FORWARD 1 FRAME"), {79}, "step_forward"}, // 15
        {QT_TRANSLATE_NOOP("Common", "SELECTION"), {25}, "selection"}, // 16
        {QT_TRANSLATE_NOOP("Common", "TEXT"), {23}, "text"}, // 17
        {QT_TRANSLATE_NOOP("Common", "TRACK SELECT FORWARD"), {4}, "track_select"}, // 18
    }};
    return rows;
}

const FunctionRows &illustratorRows()
{
    static const FunctionRows rows = {{
        // name, device codes, picture
        {QT_TRANSLATE_NOOP("Common", "A1"), {59}, nullptr}, // 0
        {QT_TRANSLATE_NOOP("Common", "A2"), {60}, nullptr}, // 1
        {QT_TRANSLATE_NOOP("Common", "A3"), {61}, nullptr}, // 2
        {QT_TRANSLATE_NOOP("Common", "ARTBOARD"), {225, 18}, "artboard"}, // 3
        {QT_TRANSLATE_NOOP("Common", "BRUSH SIZE"), {700}, "brush_size"}, // 4
        {QT_TRANSLATE_NOOP("Common", "BRUSH OPACITY"), {703}, "brush_hardness"}, // 5
        {QT_TRANSLATE_NOOP("Common", "DIRECT SELECTION"), {4}, "direct_selection"}, // 6
        {QT_TRANSLATE_NOOP("Common", "ELLIPSE"), {15}, "ellipse"}, // 7
        {QT_TRANSLATE_NOOP("Common", "EYEDROP"), {12}, "eyedrop"}, // 8
        {QT_TRANSLATE_NOOP("Common", "LASSO"), {20}, "lasso"}, // 9
        {QT_TRANSLATE_NOOP("Common", "LAUNCH AI"), {766}, "ai"}, // 10
        {QT_TRANSLATE_NOOP("Common", "MAGNIFYING"), {702}, "magnifying"}, // 11
        {QT_TRANSLATE_NOOP("Common", "PEN"), {19}, "pen"}, // 12
        {QT_TRANSLATE_NOOP("Common", "POLYGON"), {31}, "polygon"}, // 13
        {QT_TRANSLATE_NOOP("Common", "ROTATE"), {21}, "rotate"}, // 14
        {QT_TRANSLATE_NOOP("Common", "RECTANGLE"), {16}, "rectangle"}, // 15
        {QT_TRANSLATE_NOOP("Common", "ROUNDED RECTANGLE"), {30}, "rounded_rect"}, // 16
        {QT_TRANSLATE_NOOP("Common", "SELECTION"), {25}, "selection"}, // 17
        {QT_TRANSLATE_NOOP("Common", "TEXT"), {23}, "text"}, // 18
    }};
    return rows;
}

// clang-format on

const FunctionRows *rowsOf(int appType)
{
    switch (appType) {
    case AppType::Photoshop:
        return &photoshopRows();
    case AppType::PremierePro:
        return &premiereProRows();
    case AppType::Illustrator:
        return &illustratorRows();
    default:
        return nullptr;
    }
}

using ShortcutMap = std::map<int, std::vector<ushort>>;
using ImageMap = std::map<int, QString>;

ShortcutMap shortcutsOf(int appType)
{
    ShortcutMap shortcuts;
    for (int id = 0; id < AppFuncCount; ++id)
        shortcuts[id] = (*rowsOf(appType))[std::size_t(id)].sequence;
    return shortcuts;
}

ImageMap imagesOf(int appType)
{
    static const std::array<const char *, AppType::Count> folders = {"PS", "PR", "AI"};
    ImageMap images;
    for (int id = 0; id < AppFuncCount; ++id) {
        if (const char *const picture = (*rowsOf(appType))[std::size_t(id)].picture)
            images[id] =
                QStringLiteral(":/VantrixMap/Application/%1/%2")
                    .arg(QLatin1String(folders[std::size_t(appType)]), QLatin1String(picture));
    }
    return images;
}

/// One map per application from what makes one.
template <typename Make>
auto perApplication(Make make)
{
    using Map = decltype(make(0));
    return std::array<Map, AppType::Count>{make(AppType::Photoshop), make(AppType::PremierePro),
                                           make(AppType::Illustrator)};
}

template <typename Maps>
const auto &mapOf(const Maps &maps, int appType)
{
    static const typename Maps::value_type none;
    return rowsOf(appType) ? maps[std::size_t(appType)] : none;
}

vantrix_macro_event eventOf(ushort code, bool isPress)
{
    vantrix_macro_event event;
    event.code = code;
    event.state = isPress ? 1 : 0;
    event.delay = 20;
    return event;
}

} // namespace

const std::map<int, AppId> &AppIds()
{
    static const std::map<int, AppId> ids = {
        {AppType::Photoshop, {"PHSP", "Photoshop"}},
        {AppType::PremierePro, {"PPRO", "Adobe Premiere Pro"}},
        {AppType::Illustrator, {"ILST", "Illustrator"}},
    };
    return ids;
}

const std::map<int, int> &AppLaunchFuncs()
{
    static const std::map<int, int> functions = {
        {AppType::Photoshop, 11},
        {AppType::PremierePro, 6},
        {AppType::Illustrator, 10},
    };
    return functions;
}

const std::map<int, std::vector<int>> &AppDirectFuncs()
{
    static const std::map<int, std::vector<int>> functions = {
        {AppType::Photoshop, {3, 4, 5, 8, 14, 11}},
        {AppType::PremierePro, {0, 2, 6}},
        {AppType::Illustrator, {4, 5, 11, 10}},
    };
    return functions;
}

bool isDirectFunc(int appType, int funcId)
{
    const auto row = AppDirectFuncs().find(appType);
    return row != AppDirectFuncs().end() &&
           std::count(row->second.begin(), row->second.end(), funcId) != 0;
}

const std::map<int, std::vector<ushort>> &AppShortcuts(int appType)
{
    static const auto shortcuts = perApplication(shortcutsOf);
    return mapOf(shortcuts, appType);
}

const std::map<int, QString> &AppImages(int appType)
{
    static const auto images = perApplication(imagesOf);
    return mapOf(images, appType);
}

const std::map<int, const char *> &AppHints(int appType)
{
    // clang-format off
    static const std::array<std::map<int, const char *>, AppType::Count> hints = {{
        { // Photoshop
            { 0, QT_TRANSLATE_NOOP("Common", "Play Action 1. Please assign F2 to an Action in Photoshop")},
            { 1, QT_TRANSLATE_NOOP("Common", "Play Action 2. Please assign F3 to an Action in Photoshop")},
            { 2, QT_TRANSLATE_NOOP("Common", "Play Action 3. Please assign F4 to an Action in Photoshop")},
            { 3, QT_TRANSLATE_NOOP("Common", "To use Presso(Pressure Sensitive) Blur,\nplease assign N to Blur Tool in Photoshop(Alt+Shift+Ctrl+K)")},
            { 8, ""},
        },
        { // Premiere Pro
            { 1, QT_TRANSLATE_NOOP("Common", "COMPARISON\nPlease assign F2 to Comparison Tool in Premiere Pro(Ctrl+Alt+K)")},
        },
        { // Illustrator
            { 0, QT_TRANSLATE_NOOP("Common", "Play Action 1. Please assign F2 to an Action in Illustrator")},
            { 1, QT_TRANSLATE_NOOP("Common", "Play Action 2. Please assign F3 to an Action in Illustrator")},
            { 2, QT_TRANSLATE_NOOP("Common", "Play Action 3. Please assign F4 to an Action in Illustrator")},
            {13, QT_TRANSLATE_NOOP("Common", "POLYGON\nPlease assign 2 to Polygon Tool in Illustrator(Alt+Shift+Ctrl+K)")},
            {16, QT_TRANSLATE_NOOP("Common", "ROUNDED RECTANGLE\nPlease assign 1 to Rounded Rectangle Tool in Illustrator(Alt+Shift+Ctrl+K)")},
        },
    }};
    // clang-format on
    return mapOf(hints, appType);
}

const char *appFunctionName(int appType, int funcId)
{
    const FunctionRows *const rows = rowsOf(appType);
    if (!rows)
        return "";
    const bool isKnown = funcId >= 0 && funcId < AppFuncCount;
    return isKnown ? (*rows)[std::size_t(funcId)].name : QT_TRANSLATE_NOOP("Common", "UNKNOWN");
}

QString appFunctionText(int appType, int funcId)
{
    return translated(appFunctionName(appType, funcId));
}

QString appHintText(int appType, int funcId)
{
    const std::map<int, const char *> &hints = AppHints(appType);
    const auto hint = hints.find(funcId);
    return hint == hints.end() ? QString() : translated(hint->second);
}

const char *appTypeName(int appType)
{
    switch (appType) {
    case AppType::Photoshop:
        return QT_TRANSLATE_NOOP("Common", "PHOTOSHOP");
    case AppType::PremierePro:
        return QT_TRANSLATE_NOOP("Common", "PREMIERE PRO");
    case AppType::Illustrator:
        return QT_TRANSLATE_NOOP("Common", "ILLUSTRATOR");
    default:
        return QT_TRANSLATE_NOOP("Common", "UNKNOWN");
    }
}

QString appTypeText(int appType)
{
    return translated(appTypeName(appType));
}

void buildAppMacro(int appType, int funcId, vantrix_macro_record *record)
{
    *record = {};
    const auto &shortcuts = AppShortcuts(appType);
    const auto row = shortcuts.find(funcId);
    if (row == shortcuts.end())
        return;
    const std::vector<ushort> &codes = row->second;
    const std::size_t count = 2 * codes.size();
    record->count = quint8(count);
    for (std::size_t i = 0; i < codes.size(); ++i) {
        record->events[i] = eventOf(codes[i], true);
        record->events[count - 1 - i] = eventOf(codes[i], false);
    }
}
