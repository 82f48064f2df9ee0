#include "XGestures.h"
#include "core/VantrixMapWid.h"
#include "shell/MainWindow.h"
#include "shell/MappingView.h"
#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeWidget>

#include <memory>

/// Stories of a session in the shell's window, with real mouse and keyboard.
class tst_ShellRoads : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void profiles();
    void undoAcrossRestart();
    void whatApplyWillChange();
    void keyboardAlone();

private:
    void open();
    void close();
    template <typename T>
    T *get(const char *name)
    {
        return child<T>(m_window.get(), QString::fromLatin1(name));
    }
    QPushButton *key(int keyIdx)
    {
        return get<QPushButton>(qPrintable(QStringLiteral("key_%1").arg(keyIdx)));
    }
    const StoreState &state() { return m_services->store().state(); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<HostServices> m_services;
    std::unique_ptr<ShellContext> m_context;
    std::unique_ptr<MainWindow> m_window;
};

void tst_ShellRoads::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    open();
}

void tst_ShellRoads::cleanup()
{
    close();
}

void tst_ShellRoads::open()
{
    m_services = std::make_unique<HostServices>(m_folder->path());
    m_context = std::make_unique<ShellContext>(*m_services);
    m_window = std::make_unique<MainWindow>(*m_context);
    m_window->move(0, 0);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    XGestures::focus(m_window.get());
}

void tst_ShellRoads::close()
{
    m_window->close();
    m_window.reset();
    m_context.reset();
    m_services.reset();
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
    close();
    open();
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
