/// Draws each panel at five sizes, as the shell shows it, to judge its looks by:
/// draw_panels FOLDER [PANEL...]
///
/// The files are PANEL-SIZE.png, the size being the one that the panel was designed at, half and
/// double that, three times as wide, and three times as tall.

#include "application/ApplicationWid.h"
#include "dualaction/DualActionAdvWid.h"
#include "dualaction/DualActionWid.h"
#include "host/HostServices.h"
#include "macro/MacroWid.h"
#include "panels/BackLightWid.h"
#include "panels/GameCtrlWid.h"
#include "panels/KeyboardWid.h"
#include "panels/MediaWid.h"
#include "panels/MouseWid.h"
#include "panels/PressoFunWid.h"
#include "panels/PressoWid.h"
#include "panels/ProfileWid.h"
#include "panels/SidePanelWid.h"
#include "shell/ShellStyle.h"
#include "vocabulary/AppTables.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTextStream>

#include <functional>
#include <map>
#include <memory>

namespace {

using PanelPtr = std::unique_ptr<QWidget>;

struct NamedSize
{
    const char *name;
    double width; ///< in widths of the design
    double height;
};

// clang-format off
const NamedSize Sizes[] = {
    {"design", 1,   1},
    {"half",   0.5, 0.5},
    {"double", 2,   2},
    {"wide",   3,   1},
    {"tall",   1,   3},
};
// clang-format on

/// A panel that shows a key with that function.
template <typename Panel>
PanelPtr withFunction(ushort code)
{
    auto panel = std::make_unique<Panel>();
    panel->slotVantrixKeySelected(plainKey(code));
    return panel;
}

PanelPtr gameController()
{
    auto panel = std::make_unique<GameCtrlWid>();
    panel->setPadMode(false);
    panel->slotVantrixKeySelected(gameKey(462));
    return panel;
}

PanelPtr macros()
{
    auto panel = std::make_unique<MacroWid>();
    for (const char *name : {"Save and close", "Hello", "Rotate layer"})
        panel->addMacro(name);
    panel->slotMacroSelected(QStringLiteral("M2"));
    return panel;
}

PanelPtr applications()
{
    auto panel = std::make_unique<ApplicationWid>();
    emit panel->sigApplicationSelected(AppType::Photoshop, 2);
    return panel;
}

constexpr ushort FirstAction = 26;
constexpr ushort SecondAction = 497;

PanelPtr dualAction()
{
    auto panel = std::make_unique<DualActionWid>();
    panel->slotDualActionSelected(InputType::Keyboard, InputType::Mouse,
                                  {FirstAction, SecondAction, DualType::Normal, 60});
    // Its menus do not get lower, and the page sees to their room.
    panel->setMinimumHeight(panel->minimumSizeHint().height());
    return panel;
}

PanelPtr dualActionAdvanced()
{
    vantrix_key_mapping key;
    key.type = KeyType::DualAction;
    key.digital = {FirstAction, SecondAction, DualType::Toggle, 60};
    auto panel = std::make_unique<DualActionAdvWid>();
    panel->slotVantrixKeySelected(key);
    return panel;
}

PanelPtr pressoSwitch()
{
    auto panel = std::make_unique<PressoWid>();
    panel->setPressoEnable(true);
    return panel;
}

PanelPtr presets()
{
    auto panel = std::make_unique<SidePanelWid>();
    panel->setCurrentPanel(4);
    // The second of the three groups stands open.
    for (QAbstractButton *const button : panel->findChildren<QAbstractButton *>()) {
        if (button->accessibleName() == QLatin1String("Gaming"))
            button->click();
    }
    return panel;
}

// clang-format off
const std::map<QString, std::function<PanelPtr()>> Panels = {
    {"application",          applications},
    {"backlight",            [] { return withFunction<BackLightWid>(403); }},
    {"dual-action",          dualAction},
    {"dual-action-advanced", dualActionAdvanced},
    {"game-controller",      gameController},
    {"keyboard",             [] { return withFunction<KeyboardWid>(26); }},
    {"macro",                macros},
    {"media",                [] { return withFunction<MediaWid>(246); }},
    {"mouse",                [] { return withFunction<MouseWid>(483); }},
    {"preset-list",          presets},
    {"presso-functions",     [] { return withFunction<PressoFunWid>(312); }},
    {"presso-switch",        pressoSwitch},
    {"profile",              [] { return withFunction<ProfileWid>(1537); }},
};
// clang-format on

/// Draws one panel at all sizes; false when a file cannot be written.
bool draw(const QDir &folder, const QString &name)
{
    for (const NamedSize &size : Sizes) {
        // Made anew for each, so that no picture shows what an earlier size left behind; on a
        // ground of its own, since a window would not get smaller than its contents like to be.
        QWidget ground;
        QWidget *const panel = Panels.at(name)().release();
        panel->setParent(&ground);
        panel->resize(int(panel->width() * size.width), int(panel->height() * size.height));
        ground.resize(panel->size());
        ground.show();
        QApplication::processEvents();
        const QString file = folder.filePath(name + QLatin1Char('-') + size.name + ".png");
        if (!ground.grab().save(file, "PNG", 0))
            return false;
    }
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    QApplication app(argc, argv);
    QStringList names = QApplication::arguments().mid(1);
    if (names.isEmpty() || !QDir().mkpath(names.constFirst())) {
        QTextStream(stderr) << "usage: draw_panels FOLDER [PANEL...]\n";
        return 2;
    }
    const QDir folder(names.takeFirst());
    if (names.isEmpty()) {
        for (const auto &panel : Panels)
            names << panel.first;
    }
    ShellStyle::install();
    const QTemporaryDir data;
    const HostServices services(data.path());
    for (const QString &name : names) {
        if (!Panels.count(name) || !draw(folder, name)) {
            QTextStream(stderr) << name << ": not drawn\n";
            return 1;
        }
    }
    return 0;
}
