/// Draws the pictures of docs/screenshots from a store with an example of everything:
/// vantrix-screenshots FOLDER [LANGUAGE]

#include "core/VantrixMapWid.h"
#include "interfaces/Modal.h"
#include "shell/ExportDlg.h"
#include "shell/Language.h"
#include "shell/MainWindow.h"
#include "shell/MappingView.h"
#include "shell/PadView.h"
#include "shell/SettingsDlg.h"
#include "shell/ShellStyle.h"
#include "vocabulary/AppTables.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QSlider>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

constexpr QSize WideWindow(1860, 840);
constexpr QSize Window(1384, 800);
constexpr QSize SmallWindow(1024, 700);

/// A key and what it is given.
struct Row
{
    int keyIdx;
    ushort code;
};

// clang-format off
const Row plainRows[] = {
    { 0,   41}, { 6,   25}, { 8,    8}, { 9,    5}, {10,  496}, {14,    9}, {15,  225}, {16,  497},
    {20,  224}, {24,  245}, {25,  246}, {19,    0}, {22, 1570}, {23,   44},
};
/// Functions of the first application.
const Row appRows[] = {{1, 0}, {2, 1}, {3, 11}, {11, 2}, {12, 5}, {17, 12}};
// clang-format on

void type(std::vector<vantrix_macro_event> &events, ushort code, ushort delay)
{
    events.push_back({code, 1, delay});
    events.push_back({code, 0, delay});
}

vantrix_macro_record macroOf(const std::vector<vantrix_macro_event> &events)
{
    vantrix_macro_record record;
    record.count = quint8(events.size());
    std::copy(events.begin(), events.end(), record.events.begin());
    return record;
}

/// The example.
class Example
{
public:
    explicit Example(ProfileStore &store) : m_store(store) {}

    void fill()
    {
        static const char *const names[] = {"Photo editing", "Video cut",    "Space shooter",
                                            "Writing code",  "Spreadsheets", "Streaming"};
        int profile = 0;
        for (const char *name : names)
            m_store.setProfileName(Owner, profile++, QLatin1String(name));
        addMacros();
        for (const Row &row : plainRows)
            setPlain(0, row.keyIdx, row.code);
        addExtras();
        for (int key = 0; key < MainKeyCount; ++key)
            setPlain(3, key, ushort(4 + key));
        setPlain(2, 4, 1536);
        m_store.flush();
    }

    /// What is changed after the profile was sent.
    void edit()
    {
        setPlain(0, 7, 26);
        m_store.flush();
        setDual(13, 25, 224, 60);
        m_store.flush();
        setPlain(0, 18, 6);
        m_store.flush();
        setPlain(0, 24, 242);
        m_store.flush();
    }

private:
    static constexpr int Owner = ShellContext::Owner;

    void set(int keyIdx, const KeyContent &content, int profile = 0)
    {
        m_store.setProfileKey(Owner, profile, keyIdx, content);
    }

    void setPlain(int profile, int keyIdx, ushort code)
    {
        KeyContent content;
        content.mapping = plainKey(code);
        set(keyIdx, content, profile);
    }

    void setDual(int keyIdx, ushort first, ushort second, int depth)
    {
        KeyContent content;
        content.mapping.type = KeyType::DualAction;
        content.mapping.digital = {first, second, 0, quint8(depth)};
        set(keyIdx, content);
    }

    void setApp(int keyIdx, int funcId)
    {
        KeyContent content;
        content.app.emplace();
        content.app->appType = AppType::Photoshop;
        content.app->funcId = funcId;
        vantrix_macro_record record;
        buildAppMacro(AppType::Photoshop, funcId, &record);
        content.app->macro = record;
        set(keyIdx, content);
    }

    void setMacro(int keyIdx, const char *name)
    {
        KeyContent content;
        content.macroName = QLatin1String(name);
        set(keyIdx, content);
    }

    void addMacros()
    {
        std::vector<vantrix_macro_event> save = {{224, 1, 20}};
        type(save, 22, 35);
        save.push_back({224, 0, 120});
        type(save, 40, 20);
        m_store.addMacro(Owner, QStringLiteral("Save and close"), macroOf(save));
        std::vector<vantrix_macro_event> hello;
        for (const ushort code : {11, 8, 15, 15, 18})
            type(hello, code, 20);
        m_store.addMacro(Owner, QStringLiteral("Hello"), macroOf(hello));
        m_store.addMacro(Owner, QStringLiteral("Rotate layer"), macroOf(save));
    }

    void addExtras()
    {
        for (const Row &row : appRows)
            setApp(row.keyIdx, row.code);
        setDual(7, 26, 225, 50);
        setMacro(4, "Save and close");
        setMacro(18, "Hello");
        KeyContent shortcut;
        shortcut.shortcut = vantrix_shortcut_assign{3, 0};
        set(13, shortcut);
        KeyContent controller;
        controller.mapping = gameKey(731);
        set(21, controller);
    }

    ProfileStore &m_store;
};

/// Draws one picture after the other.
class Artist
{
public:
    Artist(ShellContext &context, QString folder)
        : m_context(context), m_folder(std::move(folder)), m_window(context)
    {
        m_window.show();
    }

    void drawAll()
    {
        drawMapping();
        drawPages();
        drawFind();
        // Not the folder of the machine that draws.
        m_context.store().setSetting(HostLocations::hotKeysFolderKey(),
                                     QStringLiteral("/home/alex/Hot keys"));
        SettingsDlg settings(m_context, &m_window);
        drawDialog("settings", settings);
        ExportDlg files(m_context, &m_window);
        drawDialog("export", files);
    }

private:
    void settle(const QSize &size)
    {
        m_window.resize(size);
        for (int i = 0; i < 3; ++i)
            QApplication::processEvents();
    }

    void save(const char *name, QWidget &widget)
    {
        const QString file = QStringLiteral("%1/%2.png").arg(m_folder, QLatin1String(name));
        QTextStream(stdout) << file << (widget.grab().save(file) ? "\n" : ": not written\n");
    }

    void draw(const char *name, ShellPage page, const QSize &size)
    {
        m_window.showPage(page);
        settle(size);
        save(name, m_window);
    }

    void drawDialog(const char *name, QDialog &dialog)
    {
        dialog.show();
        QApplication::processEvents();
        save(name, dialog);
        dialog.hide();
    }

    template <typename T>
    T *get(const char *name)
    {
        T *const found = m_window.findChild<T *>(QLatin1String(name));
        if (!found)
            qFatal("there is no %s", name);
        return found;
    }

    void drawMapping()
    {
        m_context.goTo(0, 7);
        draw("mapping", ShellPage::Mapping, Window);
        draw("mapping-small", ShellPage::Mapping, SmallWindow);
        get<QAbstractButton>("m_advanced")->click();
        m_context.goTo(0, 12);
        draw("mapping-advanced", ShellPage::Mapping, Window);
        get<QAbstractButton>("m_simple")->click();
        m_context.goTo(0, NoKey);
    }

    void drawPages()
    {
        draw("changes", ShellPage::Changes, WideWindow);
        draw("history", ShellPage::History, Window);
        draw("check", ShellPage::Check, Window);
        m_window.showPage(ShellPage::Macros);
        draw("macros", ShellPage::Macros, Window);
        m_window.showPage(ShellPage::Device);
        settle(Window);
        for (const int key : {0, 4, 7}) {
            auto *const pad = get<PadView>("m_pad");
            pad->setCurrentKey(key);
            emit pad->currentKeyChanged(key);
            for (const int depth : {30, 70, 30, 0})
                get<QSlider>("m_depth")->setValue(depth);
        }
        get<QSlider>("m_depth")->setValue(70);
        draw("device", ShellPage::Device, Window);
    }

    void drawFind()
    {
        m_window.showPage(ShellPage::Mapping);
        settle(Window);
        auto *const field = get<QLineEdit>("m_findField");
        field->setFocus();
        field->setText(QStringLiteral("save"));
        settle(Window); // turning to a page would close the list
        save("find", m_window);
        field->clear();
    }

    ShellContext &m_context;
    QString m_folder;
    MainWindow m_window;
};

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    QApplication app(argc, argv);
    const int language = Language::parse(QLatin1String(argc == 3 ? argv[2] : "English"));
    if (argc < 2 || language < 0 || !QDir().mkpath(QString::fromLocal8Bit(argv[1]))) {
        QTextStream(stderr) << "usage: vantrix-screenshots FOLDER [LANGUAGE]\n";
        return 2;
    }
    ShellStyle::install();
    Modal::setAnswerer([](const ModalPrompt &) { return QVariant(0); });
    const QTemporaryDir folder;
    HostServices services(folder.path());
    services.environment().setLanguage(language);
    Language::install(language);
    Example example(services.store());
    example.fill();
    ShellContext context(services);
    for (const int profile : {3, 0})
        services.device().send(DeviceImage::of(services.store().state(), context.owner(), profile));
    example.edit();
    Artist(context, QString::fromLocal8Bit(argv[1])).drawAll();
    return 0;
}
