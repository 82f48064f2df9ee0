#include "ShellRoad.h"
#include "XGestures.h"
#include "core/VantrixMapWid.h"
#include "shell/Language.h"
#include "shell/MappingView.h"
#include "shell/PadView.h"
#include "support/TestMain.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QScreen>
#include <QTimer>
#include <QTreeWidget>

#include <functional>
#include <memory>

namespace {

constexpr int PatienceMs = 20000;
constexpr int PollMs = 50;
/// Until a dialog that has come up takes keys.
constexpr int SettleMs = 300;

} // namespace

/// Stories of a session in the shell's window, with real mouse and keyboard.
class tst_ShellRoads : public QObject, ShellRoad
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void profiles();
    void undoAcrossRestart();
    void whatApplyWillChange();
    void macroIsRecordedAndAssigned();
    void createMacroLeadsThereAndBack();
    void exportAndImport();
    void devicePlays();
    void findGoesThere();
    void foundKeysLeaveNoTraces();
    void checkLeadsToTheKey();
    void settingsChangeTheLegends();
    void keyboardAlone();

private:
    /// Works a dialog that `shortcut` or a click opens: `work` runs while it is open.
    void inDialog(const std::function<void()> &opener, const std::function<void()> &work);
    /// A button of the page by its text.
    void click(const char *text)
    {
        const auto buttons = m_window->mappingView()->findChildren<QPushButton *>();
        for (QPushButton *button : buttons) {
            if (button->isVisible() && button->text() == QLatin1String(text))
                return XGestures::click(button);
        }
        QFAIL(text);
    }
};

void tst_ShellRoads::init()
{
    forget();
    start();
}

void tst_ShellRoads::cleanup()
{
    quit();
    Language::install(Language::parse(QStringLiteral("English")));
}

void tst_ShellRoads::profiles()
{
    auto *const list = get<QListWidget>("m_profiles");
    const auto row = [list](int number) {
        return list->visualItemRect(list->item(number)).center();
    };
    XGestures::click(list->viewport(), row(2));
    QCOMPARE(m_context->profile(), 2);
    XGestures::key(QStringLiteral("F2"));
    XGestures::key(QStringLiteral("ctrl+a"));
    XGestures::type(QStringLiteral("Games"));
    XGestures::key(QStringLiteral("Return"));
    QTRY_COMPARE(state().profileName(0, 2), QStringLiteral("Games"));
    XGestures::key(QStringLiteral("alt+Up"));
    QCOMPARE(list->item(1)->text(), QStringLiteral("Games"));
    XGestures::click(key(3));
    XGestures::click(get<QPushButton>("btn_48"));
    XGestures::click(key(3)); // gives the keyboard back
    XGestures::key(QStringLiteral("ctrl+d"));
    QCOMPARE(m_context->profile(), 1); // the first that nothing was put on is next in the list
    QVERIFY(state().keys(0, m_context->profile()) == state().keys(0, 2));
}

void tst_ShellRoads::undoAcrossRestart()
{
    XGestures::click(key(7));
    XGestures::key(QStringLiteral("b"));
    QCOMPARE(key(7)->text(), QStringLiteral("B"));
    quit();
    start();
    QVERIFY(key(7)->isChecked());
    XGestures::click(key(7)); // gives the keyboard back
    XGestures::key(QStringLiteral("ctrl+z"));
    QCOMPARE(key(7)->text(), QStringLiteral("W"));
    QVERIFY(key(7)->isChecked());
    QCOMPARE(m_window->statusText(), QStringLiteral("Undone: Assign B to key 7"));
}

void tst_ShellRoads::whatApplyWillChange()
{
    for (const int pad : {7, 8}) {
        XGestures::click(key(pad));
        XGestures::click(get<QPushButton>("btn_48"));
    }
    XGestures::click(get<QPushButton>("m_tab1"));
    auto *const pending = get<QTreeWidget>("m_pendingTree");
    QTRY_COMPARE(pending->topLevelItemCount(), 2);
    XGestures::click(pending->viewport(),
                     pending->visualItemRect(pending->topLevelItem(1)).center());
    XGestures::click(get<QPushButton>("m_putBackBtn"));
    QTRY_COMPARE(pending->topLevelItemCount(), 1);
    XGestures::click(get<QPushButton>("m_applyChangesBtn"));
    QTRY_VERIFY(!m_services->device().differs(0, 0));
    const auto image = m_services->device().image(0, 0);
    QCOMPARE(ushort(image.keys[7].content.mapping.code), ushort(5));
    QCOMPARE(ushort(image.keys[8].content.mapping.code), ushort(255));
}

void tst_ShellRoads::inDialog(const std::function<void()> &opener,
                              const std::function<void()> &work)
{
    bool isDone = false;
    const QWidget *const before = QApplication::activeModalWidget();
    // A timer goes on in the dialog's own event loop, which no waiting here would leave.
    QTimer poll;
    connect(&poll, &QTimer::timeout, &poll, [&] {
        const QWidget *const now = QApplication::activeModalWidget();
        if (!now || now == before || !now->isVisible())
            return;
        poll.stop();
        QTest::qWait(SettleMs);
        work();
        isDone = true;
    });
    poll.start(PollMs);
    opener();
    QTRY_VERIFY_WITH_TIMEOUT(isDone, PatienceMs);
}

void tst_ShellRoads::macroIsRecordedAndAssigned()
{
    XGestures::key(QStringLiteral("ctrl+4"));
    XGestures::click(get<QPushButton>("m_newBtn"));
    const QString name = state().macroNames(0).value(0);
    QVERIFY(!name.isEmpty());
    XGestures::click(get<QPushButton>("m_recordBtn"));
    XGestures::key(QStringLiteral("h"));
    XGestures::key(QStringLiteral("i"));
    XGestures::click(get<QPushButton>("m_recordBtn"));
    store().flush();
    const auto macro = state().macro(0, name);
    QVERIFY(macro);
    QCOMPARE(int(macro->count), 4);
    QCOMPARE(ushort(macro->events[0].code), ushort(11));
    QCOMPARE(ushort(macro->events[2].code), ushort(12));

    XGestures::click(get<QPushButton>("m_tab0"));
    XGestures::click(key(7));
    click("MACRO");
    auto *const list = m_window->mappingView()->findChild<QListWidget *>("m_macroList");
    XGestures::click(list->viewport(), list->visualItemRect(list->item(0)).center());
    QCOMPARE(key(7)->text(), QStringLiteral("M1"));
    QCOMPARE(state().macroKey(0, 0, 7).value_or(QString()), name);
}

void tst_ShellRoads::createMacroLeadsThereAndBack()
{
    XGestures::click(key(7));
    click("MACRO");
    auto *const create = m_window->mappingView()->findChild<QPushButton *>("m_createBtn");
    XGestures::click(create);
    QCOMPARE(m_window->shownPage(), ShellPage::Macros);
    QCOMPARE(state().macroNames(0).size(), 1);
    XGestures::click(get<QPushButton>("m_tab0"));
    QVERIFY(key(7)->isChecked());
}

void tst_ShellRoads::exportAndImport()
{
    XGestures::click(key(7));
    XGestures::click(get<QPushButton>("btn_48"));
    XGestures::click(key(7));
    store().flush();
    const QString file = m_folder->filePath(QStringLiteral("kept.json"));
    const ProfileKeys before = state().keys(0, 0);
    inDialog([this] { get<QAction>("m_exportAction")->trigger(); },
             [&] {
                 inDialog([] { XGestures::key(QStringLiteral("Return")); },
                          [&] {
                              XGestures::key(QStringLiteral("ctrl+a"));
                              XGestures::type(file);
                              XGestures::key(QStringLiteral("Return"));
                          });
             });
    QTRY_VERIFY(QFile::exists(file));
    store().clearProfile(0, 0);
    store().flush();
    QCOMPARE(key(7)->text(), QStringLiteral("W"));
    inDialog([this] { get<QAction>("m_importAction")->trigger(); },
             [&] {
                 auto *const open = get<QPushButton>("m_importOpenBtn");
                 inDialog([open] { XGestures::click(open); },
                          [&] {
                              XGestures::type(file);
                              XGestures::key(QStringLiteral("Return"));
                          });
                 XGestures::click(get<QPushButton>("m_importBtn"));
                 if (auto *const rest = m_window->findChild<QPushButton *>("m_importCancelBtn"))
                     rest->click();
             });
    QVERIFY(state().keys(0, 0) == before);
    QCOMPARE(key(7)->text(), QStringLiteral("B"));
}

void tst_ShellRoads::devicePlays()
{
    XGestures::click(key(7));
    XGestures::click(get<QPushButton>("btn_48"));
    XGestures::click(get<QPushButton>("m_apply"));
    XGestures::key(QStringLiteral("ctrl+5"));
    auto *const view = get<QWidget>("m_deviceView");
    auto *const pad = child<PadView>(view, QStringLiteral("m_pad"));
    auto *const log = child<QTreeWidget>(view, QStringLiteral("m_log"));
    XGestures::click(pad, pad->keyRect(7).center().toPoint());
    QTRY_COMPARE(log->topLevelItemCount(), 2);
    QVERIFY(log->topLevelItem(0)->text(2).endsWith(QStringLiteral("press B")));
    QVERIFY(log->topLevelItem(1)->text(2).endsWith(QStringLiteral("release B")));
}

void tst_ShellRoads::findGoesThere()
{
    const vantrix_key_mapping mapping = plainKey(69);
    store().setKeyMapping(0, 4, 12, &mapping);
    store().flush();
    XGestures::key(QStringLiteral("ctrl+f"));
    XGestures::type(QStringLiteral("f12"));
    XGestures::key(QStringLiteral("Return"));
    QCOMPARE(m_context->profile(), 4);
    QVERIFY(key(12)->isChecked());
    QCOMPARE(store().getCurrentKey(0, 4), 12);
}

void tst_ShellRoads::foundKeysLeaveNoTraces()
{
    XGestures::key(QStringLiteral("ctrl+f"));
    XGestures::type(QStringLiteral("unassigned"));
    XGestures::key(QStringLiteral("Return"));
    for (const QSize &size : {QSize(1700, 1100), QSize(1384, 800)}) {
        XGestures::xdotool({QStringLiteral("windowsize"), QString::number(m_window->winId()),
                            QString::number(size.width()), QString::number(size.height())});
        QTRY_COMPARE(m_window->size(), size);
        QTest::qWait(200);
    }
    const QWidget *const page = m_window->mappingView();
    const QRect place(page->mapTo(m_window.get(), QPoint()), page->size());
    const auto onScreen = [&] {
        return m_window->screen()
            ->grabWindow(m_window->winId(), place.x(), place.y(), place.width(), place.height())
            .toImage()
            .convertToFormat(QImage::Format_RGB32);
    };
    const auto asDrawn = [&] {
        return m_window->grab(place).toImage().convertToFormat(QImage::Format_RGB32);
    };
    QTRY_VERIFY(onScreen() == asDrawn());
}

void tst_ShellRoads::checkLeadsToTheKey()
{
    store().setNamedMacroKey(0, 0, "Lost", 9);
    store().flush();
    XGestures::key(QStringLiteral("ctrl+6"));
    QPushButton *chip = nullptr;
    const auto buttons = get<QWidget>("m_checkPage")->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->text() == QStringLiteral("Key 9"))
            chip = button;
    }
    QVERIFY(chip);
    XGestures::click(chip);
    QCOMPARE(m_window->shownPage(), ShellPage::Mapping);
    QVERIFY(key(9)->isChecked());
}

void tst_ShellRoads::settingsChangeTheLegends()
{
    m_services->environment().setLanguage(2);
    store().setSetting(QStringLiteral("language"), QStringLiteral("2"));
    store().flush();
    XGestures::click(key(16));
    XGestures::click(get<QPushButton>("m_tab1")); // the page lets go of the keyboard
    inDialog([] { XGestures::key(QStringLiteral("ctrl+comma")); },
             [this] {
                 get<QComboBox>("m_language")->setFocus();
                 XGestures::type(QStringLiteral("german"));
                 XGestures::key(QStringLiteral("Return"));
             });
    QTRY_COMPARE(m_services->environment().getLanguage(), 4);
    XGestures::key(QStringLiteral("ctrl+1"));
    QVERIFY(key(16)->isChecked());
    QCOMPARE(get<QPushButton>("btn_21")->text(), QStringLiteral("Z"));
}

/// A key is chosen and given a function without the mouse and without capture.
void tst_ShellRoads::keyboardAlone()
{
    XGestures::key(QStringLiteral("ctrl+k"));
    QVERIFY(!m_window->mappingView()->isCaptureAllowed());
    key(7)->setFocus();
    XGestures::key(QStringLiteral("space"));
    QVERIFY(key(7)->isChecked());
    auto *const entry = get<QPushButton>("btn_48");
    entry->setFocus();
    XGestures::key(QStringLiteral("space"));
    QCOMPARE(key(7)->text(), QStringLiteral("B"));
    XGestures::key(QStringLiteral("ctrl+Return"));
    QVERIFY(!m_services->device().differs(0, 0));
    XGestures::key(QStringLiteral("ctrl+Next"));
    QCOMPARE(m_context->profile(), 1);
}

VANTRIX_TEST_MAIN(tst_ShellRoads)
#include "tst_ShellRoads.moc"
