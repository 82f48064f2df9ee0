#include <core/VantrixMapWid.h>
#include <core/records.h>
#include <host/HostServices.h>
#include <interfaces/SheetWarnings.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QButtonGroup>
#include <QImage>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>

/// Rides along with the example: gives it a home with one macro, uses its window as a person
/// would once it stands, and ends it. The exit code counts what is wrong.
namespace {

int faults = 0;

void expect(bool isRight, const char *what)
{
    if (isRight)
        return;
    ++faults;
    QTextStream(stderr) << "The example fails: " << what << '\n';
}

/// The sheets that are fixed, and what the platform without a screen lacks, is all that it says.
void onMessage(QtMsgType, const QMessageLogContext &, const QString &text)
{
    if (!isSheetWarning(text) && !text.startsWith(QLatin1String("This plugin does not support")))
        expect(false, qPrintable(text));
}

QWidget *named(const QWidget *root, const char *name)
{
    auto *const widget = root->findChild<QWidget *>(QLatin1String(name));
    if (!widget)
        qFatal("The example has no %s.", name);
    return widget;
}

void click(QWidget *button)
{
    static_cast<QAbstractButton *>(button)->click();
    QApplication::processEvents();
}

void choose(const QWidget *root, int id)
{
    click(root->findChild<QButtonGroup *>()->button(id));
}

/// Dark and light points of the texts' ground and of the texts.
bool isReadable(QWidget *widget)
{
    const QImage picture = widget->grab().toImage();
    bool hasDark = false;
    bool hasLight = false;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const int lightness = picture.pixelColor(x, y).lightness();
            hasDark |= lightness < 64;
            hasLight |= lightness > 192;
        }
    }
    return hasDark && hasLight;
}

void useMacros(const QWidget *page)
{
    choose(named(page, "m_inputWid"), InputType::Macro);
    const auto *const list = static_cast<QAbstractItemView *>(named(page, "m_macroList"));
    const QString macro = list->model()->index(0, 0).data().toString();
    expect(list->isVisible() && macro.endsWith(QLatin1String("Greeting")),
           "the macro is not on the page");
}

void useDualAction(const QWidget *page)
{
    choose(named(page, "m_inputWid"), InputType::DualAction);
    click(named(page, "key_8"));
    for (const auto *const action : page->findChildren<QWidget *>(QStringLiteral("m_action1"))) {
        if (!action->findChild<QButtonGroup *>())
            continue; // the label in the tip of a key
        click(named(action, "m_action"));
        choose(action, InputType::Keyboard);
    }
    const QWidget *const back = page->window()->findChild<QWidget *>(QStringLiteral("m_back"));
    expect(back && back->isVisible(), "no overlay opens for a dual action");
    if (back)
        click(named(page->window(), "m_back"));
}

void useDevice(const QWidget *page)
{
    choose(named(page, "m_inputWid"), InputType::Keyboard);
    click(named(page, "key_7"));
    click(named(page, "btn_48"));
    click(named(page, "m_apply"));
    auto *const store = static_cast<ProfileStore *>(IVantrixProfileCfg::Instance());
    const DeviceImage image = SimulatedDevice(store).image(0, 0);
    expect(ushort(image.keys[7].content.mapping.code) == 5, "APPLY does not reach the device");
}

void useWindow()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto window = std::find_if(windows.begin(), windows.end(), [](const QWidget *widget) {
        return widget->isVisible() && widget->findChild<VantrixMapWid *>();
    });
    if (window == windows.end())
        qFatal("The example shows no page.");
    auto *const page = (*window)->findChild<VantrixMapWid *>();
    for (const char *text : {"m_apply", "m_simple", "m_stateWid"})
        expect(isReadable(named(page, text)), "texts cannot be told from their ground");
    constexpr int english = 2;
    expect(IEnvironment::Instance()->getLanguage() == english, "the legends are not English");
    useMacros(page);
    useDualAction(page);
    useDevice(page);
    const QByteArray picture = qgetenv("EXAMPLE_PICTURE");
    if (!picture.isEmpty())
        (*window)->grab().save(QFile::decodeName(picture));
    QApplication::exit(faults);
}

void prepare()
{
    static const QTemporaryDir home;
    qputenv("HOME", QFile::encodeName(home.path()));
    qputenv("XDG_DATA_HOME", QFile::encodeName(home.path()));
    HostServices().store().addMacro(0, QStringLiteral("Greeting"), vantrix_macro_record());
    qInstallMessageHandler(onMessage);
    QMetaObject::invokeMethod(qApp, useWindow, Qt::QueuedConnection);
}
Q_COREAPP_STARTUP_FUNCTION(prepare)

} // namespace
