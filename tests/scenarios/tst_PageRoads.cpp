#include "ShellRoad.h"
#include "XGestures.h"
#include "shell/CheckPage.h"
#include "shell/DeviceView.h"
#include "shell/ExportDlg.h"
#include "shell/ImportDlg.h"
#include "shell/MacroPage.h"
#include "shell/PadView.h"
#include "support/TestMain.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollArea>
#include <QTableView>
#include <QTimer>
#include <QTreeWidget>

#include <functional>
#include <memory>

namespace {

constexpr int English = 2; // in LanguageIndex

} // namespace

/// Stories on the pages beside the mapping page, with real mouse and keyboard.
class tst_PageRoads : public QObject, ShellRoad
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { quit(); }
    void macroForAKeyAndBack();
    void macroFromTheDialogAndBack();
    void macroFromRecordingToDeletion();
    void exportAndImport();
    void deviceIsPressed();
    void findByKeyboard();
    void checkLeadsToTheKey();

private:
    /// The button that a person would find by these words.
    QAbstractButton *shown(const QString &text, const QWidget *within = nullptr)
    {
        const QWidget *const root = within ? within : m_window.get();
        for (QAbstractButton *const button : root->findChildren<QAbstractButton *>()) {
            if (button->isVisible() && button->text() == text)
                return button;
        }
        qFatal("no button \"%s\" is shown", qPrintable(text));
        return nullptr;
    }
    void show(ShellPage page)
    {
        XGestures::click(get<QPushButton>(qPrintable(QStringLiteral("m_tab%1").arg(int(page)))));
        QTRY_COMPARE(m_window->shownPage(), page);
    }
    /// Takes these steps once a dialog of that type is open; its exec() runs around them.
    template <typename Dialog>
    void once(const std::function<void(Dialog *)> &steps)
    {
        auto *const timer = new QTimer(this);
        connect(timer, &QTimer::timeout, this, [timer, steps] {
            auto *const dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isVisible())
                return;
            timer->stop();
            timer->deleteLater();
            XGestures::focus(dialog);
            steps(dialog);
        });
        timer->start(50);
    }
    /// Types a name into the file dialog that comes next.
    void answerFileDialog(const QString &name)
    {
        once<QFileDialog>([name](QFileDialog *) {
            XGestures::key(QStringLiteral("ctrl+a"));
            XGestures::type(name);
            XGestures::key(QStringLiteral("Return"));
        });
    }
};

void tst_PageRoads::init()
{
    forget();
    start(English, QSize(1280, 900));
}

void tst_PageRoads::macroForAKeyAndBack()
{
    XGestures::click(key(7));
    XGestures::click(shown(QStringLiteral("MACRO")));
    XGestures::click(shown(QStringLiteral("+ CREATE NEW MACRO")));
    QTRY_COMPARE(m_window->shownPage(), ShellPage::Macros);
    XGestures::click(get<QPushButton>("m_recordBtn"));
    XGestures::key(QStringLiteral("ctrl+s"));
    XGestures::xdotool({QStringLiteral("key"), QStringLiteral("Escape"), QStringLiteral("Escape")});
    QTRY_VERIFY(!get<QLabel>("m_recordPad")->isVisible());
    const auto macro = state().macro(0, QStringLiteral("Macro"));
    QVERIFY(macro);
    QList<QPair<int, int>> events;
    for (int i = 0; i < macro->count; ++i)
        events << qMakePair(int(macro->events[std::size_t(i)].code),
                            int(macro->events[std::size_t(i)].state));
    QCOMPARE(events, (QList<QPair<int, int>>({{0xE0, 1}, {0x16, 1}, {0xE0, 0}, {0x16, 0}})));
    XGestures::click(get<QPushButton>("m_backBtn"));
    QTRY_COMPARE(m_window->shownPage(), ShellPage::Mapping);
    auto *const list = get<QListWidget>("m_macroList");
    QCOMPARE(list->count(), 1);
    XGestures::click(list->viewport(), list->visualItemRect(list->item(0)).center());
    QCOMPARE(key(7)->text(), QStringLiteral("M1"));
    QCOMPARE(*state().macroKey(0, 0, 7), QStringLiteral("Macro"));
}

/// In advanced mode the wish for a new macro comes out of the modal dialog.
void tst_PageRoads::macroFromTheDialogAndBack()
{
    XGestures::click(shown(QStringLiteral("ADVANCED")));
    XGestures::click(key(7));
    once<QDialog>([this](QDialog *dialog) {
        XGestures::click(shown(QStringLiteral("MACRO"), dialog));
        XGestures::click(shown(QStringLiteral("CREATE NEW MACRO"), dialog));
    });
    XGestures::click(shown(QStringLiteral("REASSIGN KEY")));
    QTRY_VERIFY(!QApplication::activeModalWidget());
    QTRY_COMPARE(m_window->shownPage(), ShellPage::Macros);
    XGestures::focus(m_window.get());
    QTRY_VERIFY(get<QPushButton>("m_recordBtn")->hasFocus());
    XGestures::key(QStringLiteral("space"));
    XGestures::type(QStringLiteral("hi"));
    XGestures::xdotool({QStringLiteral("key"), QStringLiteral("Escape"), QStringLiteral("Escape")});
    QTRY_COMPARE(int(state().macro(0, QStringLiteral("Macro"))->count), 4);
    XGestures::click(get<QPushButton>("m_backBtn"));
    QTRY_COMPARE(m_window->shownPage(), ShellPage::Mapping);
    QVERIFY(key(7)->isChecked());
    once<QDialog>([this](QDialog *dialog) {
        XGestures::click(shown(QStringLiteral("MACRO"), dialog));
        XGestures::click(shown(QStringLiteral("Macro"), dialog));
        XGestures::click(shown(QStringLiteral("APPLY"), dialog));
    });
    XGestures::click(shown(QStringLiteral("REASSIGN KEY")));
    QTRY_COMPARE(key(7)->text(), QStringLiteral("M1"));
    QCOMPARE(*state().macroKey(0, 0, 7), QStringLiteral("Macro"));
}

void tst_PageRoads::macroFromRecordingToDeletion()
{
    show(ShellPage::Macros);
    XGestures::click(get<QPushButton>("m_newBtn"));
    XGestures::key(QStringLiteral("F2"));
    XGestures::key(QStringLiteral("ctrl+a"));
    XGestures::type(QStringLiteral("Greeting"));
    XGestures::key(QStringLiteral("Return"));
    QTRY_COMPARE(state().macroNames(0), QStringList(QStringLiteral("Greeting")));
    XGestures::click(get<QPushButton>("m_recordBtn"));
    XGestures::type(QStringLiteral("hi"));
    XGestures::click(get<QPushButton>("m_recordBtn"));
    QCOMPARE(int(state().macro(0, QStringLiteral("Greeting"))->count), 4);
    auto *const table = get<QTableView>("m_eventTable");
    const QModelIndex delay = table->model()->index(0, 2);
    XGestures::doubleClick(table->viewport(), table->visualRect(delay).center());
    XGestures::key(QStringLiteral("ctrl+a"));
    XGestures::type(QStringLiteral("250"));
    XGestures::key(QStringLiteral("Return"));
    QTRY_COMPARE(int(state().macro(0, QStringLiteral("Greeting"))->events[0].delay), 250);
    store().setNamedMacroKey(0, 0, "Greeting", 3);
    store().flush();
    m_context->goTo(0, 28);
    QTRY_COMPARE(key(3)->text(), QStringLiteral("M1"));
    show(ShellPage::Macros);
    XGestures::click(get<QPushButton>("m_deleteBtn"));
    QTRY_COMPARE(key(3)->text(), QStringLiteral("3\n#"));
    QVERIFY(state().macroNames(0).isEmpty());
    XGestures::key(QStringLiteral("ctrl+z"));
    QTRY_COMPARE(key(3)->text(), QStringLiteral("M1"));
    QCOMPARE(get<QListWidget>("m_macroList")->count(), 1);
}

void tst_PageRoads::exportAndImport()
{
    XGestures::click(key(7));
    XGestures::click(get<QPushButton>("btn_48"));
    XGestures::click(key(7));
    const QString file = m_folder->filePath(QStringLiteral("mine.json"));
    once<ExportDlg>([&](ExportDlg *dialog) {
        answerFileDialog(file);
        XGestures::click(child<QPushButton>(dialog, "m_exportBtn"));
    });
    get<QAction>("m_exportAction")->trigger();
    QVERIFY(QFile::exists(file));
    store().clearProfile(0, 0);
    QTRY_COMPARE(key(7)->text(), QStringLiteral("W"));
    once<ImportDlg>([&](ImportDlg *dialog) {
        answerFileDialog(file);
        XGestures::click(child<QPushButton>(dialog, "m_importOpenBtn"));
        XGestures::click(child<QPushButton>(dialog, "m_importBtn"));
    });
    get<QAction>("m_importAction")->trigger();
    QTRY_COMPARE(key(7)->text(), QStringLiteral("B"));
    XGestures::focus(m_window.get());
    XGestures::key(QStringLiteral("ctrl+z"));
    QTRY_COMPARE(key(7)->text(), QStringLiteral("W"));
}

void tst_PageRoads::deviceIsPressed()
{
    vantrix_key_mapping dual = clearedKey();
    dual.type = KeyType::DualAction;
    dual.digital = {4, 5, DualType::Toggle, 60};
    store().setKeyMapping(0, 0, 12, &dual);
    store().flush();
    XGestures::key(QStringLiteral("ctrl+Return"));
    show(ShellPage::Device);
    auto *const pad = get<PadView>("m_pad");
    auto *const log = get<QTreeWidget>("m_log");
    const auto sent = [log] {
        QStringList texts;
        for (int i = 0; i < log->topLevelItemCount(); ++i)
            texts << log->topLevelItem(i)->text(2).section(QLatin1Char(' '), 1);
        return texts;
    };
    const QPoint place = pad->mapToGlobal(pad->keyRect(12).center().toPoint());
    XGestures::xdotool({QStringLiteral("mousemove"), QString::number(place.x()),
                        QString::number(place.y()), QStringLiteral("mousedown"),
                        QStringLiteral("1")});
    QTRY_COMPARE(sent(), QStringList(QStringLiteral("press A")));
    XGestures::xdotool(
        {QStringLiteral("mousemove_relative"), QStringLiteral("0"), QStringLiteral("35")});
    QTRY_COMPARE(m_services->device().keyDepth(12), 65);
    XGestures::xdotool({QStringLiteral("mouseup"), QStringLiteral("1")});
    QTRY_COMPARE(sent(), QStringList({QStringLiteral("press A"), QStringLiteral("release A"),
                                      QStringLiteral("press B"), QStringLiteral("release B"),
                                      QStringLiteral("press A"), QStringLiteral("release A")}));
    XGestures::click(get<QPushButton>("m_clearBtn"));
    pad->setFocus();
    XGestures::key(QStringLiteral("Right"));
    XGestures::key(QStringLiteral("space"));
    QTRY_COMPARE(sent(), QStringList({QStringLiteral("press D"), QStringLiteral("release D")}));
}

void tst_PageRoads::findByKeyboard()
{
    const vantrix_key_mapping stop = plainKey(241);
    store().setKeyMapping(0, 5, 9, &stop);
    store().flush();
    XGestures::key(QStringLiteral("ctrl+f"));
    XGestures::type(QStringLiteral("stop"));
    QTRY_COMPARE(get<QListWidget>("m_findList")->count(), 1);
    QVERIFY(get<PadView>("m_findPad")->lit() == std::set<int>({9}));
    XGestures::key(QStringLiteral("Return"));
    QTRY_COMPARE(m_context->profile(), 5);
    QCOMPARE(m_window->shownPage(), ShellPage::Mapping);
    QTRY_VERIFY(key(9)->isChecked());
}

void tst_PageRoads::checkLeadsToTheKey()
{
    for (const int pad : {3, 9}) {
        const vantrix_key_mapping b = plainKey(5);
        store().setKeyMapping(0, 0, pad, &b);
    }
    store().flush();
    show(ShellPage::Check);
    QTRY_COMPARE(get<QLabel>("m_summary")->text(), QStringLiteral("One thing to look at."));
    XGestures::click(shown(QStringLiteral("Key 9")));
    QTRY_COMPARE(m_window->shownPage(), ShellPage::Mapping);
    QTRY_VERIFY(key(9)->isChecked());
    XGestures::click(get<QPushButton>("btn_50")); // M
    QCOMPARE(ushort(state().mapping(0, 0, 9).code), ushort(16));
    show(ShellPage::Check);
    QTRY_COMPARE(get<QLabel>("m_summary")->text(), QStringLiteral("Nothing to look at."));
}

VANTRIX_TEST_MAIN(tst_PageRoads)
#include "tst_PageRoads.moc"
