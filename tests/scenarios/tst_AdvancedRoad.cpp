#include "ShellRoad.h"
#include "XGestures.h"
#include "advanced/ReassignDlg.h"
#include "interfaces/Modal.h"
#include "shell/MappingView.h"
#include "support/TestMain.h"

#include <QLabel>
#include <QLineEdit>
#include <QStackedWidget>

#include <memory>

/// Advanced mode by keyboard alone, from selecting a key to APPLY on the page.
class tst_AdvancedRoad : public QObject, ShellRoad
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { quit(); }

    void record();
    void hotKey();
    void everyPageHasItsWay();

private:
    void openAdvanced();
    void selectKey(int keyIdx);
    /// Opens the dialog from the menu; `user` goes on in it and closes it.
    void reassign(const std::function<void(ReassignDlg *dialog)> &user);
    /// Goes on with Tab until that widget has the focus, or one whose name starts so.
    void tabTo(const QString &name);
    /// Goes on with Tab until the button with that text has the focus.
    void tabToText(const QString &text);
    /// Goes on with arrows, from one button of a group to another.
    void arrowTo(const QPushButton *button);
    static QString focusName();
};

void tst_AdvancedRoad::init()
{
    forget();
    start();
    QVERIFY(XGestures::setLayout(QStringLiteral("us")));
    openAdvanced();
}

QString tst_AdvancedRoad::focusName()
{
    const QWidget *const focused = QApplication::focusWidget();
    return focused ? focused->objectName() : QString();
}

void tst_AdvancedRoad::tabTo(const QString &name)
{
    constexpr int patience = 40;
    for (int i = 0; i < patience && !focusName().startsWith(name); ++i)
        XGestures::key(QStringLiteral("Tab"));
    QVERIFY2(focusName().startsWith(name), qPrintable(focusName()));
}

void tst_AdvancedRoad::tabToText(const QString &text)
{
    const auto isThere = [&text] {
        const auto *const button = qobject_cast<QPushButton *>(QApplication::focusWidget());
        return button && button->text() == text;
    };
    constexpr int patience = 40;
    for (int i = 0; i < patience && !isThere(); ++i)
        XGestures::key(QStringLiteral("Tab"));
    QVERIFY2(isThere(), qPrintable(text));
}

void tst_AdvancedRoad::arrowTo(const QPushButton *button)
{
    constexpr int patience = 20;
    for (int i = 0; i < patience && !button->hasFocus(); ++i) {
        const QWidget *const focused = QApplication::focusWidget();
        const QPoint way = button->mapToGlobal(button->rect().center()) -
                           focused->mapToGlobal(focused->rect().center());
        if (qAbs(way.y()) > button->height() / 2)
            XGestures::key(way.y() > 0 ? QStringLiteral("Down") : QStringLiteral("Up"));
        else
            XGestures::key(way.x() > 0 ? QStringLiteral("Right") : QStringLiteral("Left"));
    }
    QVERIFY(button->hasFocus());
}

void tst_AdvancedRoad::openAdvanced()
{
    child<QPushButton>(m_window.get(), "m_advanced")->click();
    QVERIFY(child<QPushButton>(m_window.get(), "m_advanced")->isChecked());
}

void tst_AdvancedRoad::selectKey(int keyIdx)
{
    const auto *const key =
        child<QPushButton>(m_window.get(), QStringLiteral("key_%1").arg(keyIdx));
    tabTo(QStringLiteral("key_"));
    arrowTo(key);
    XGestures::key(QStringLiteral("space"));
    QVERIFY(key->isChecked());
}

void tst_AdvancedRoad::reassign(const std::function<void(ReassignDlg *)> &user)
{
    bool wasOpen = false;
    QObject scope;
    connect(Modal::instance(), &Modal::opening, &scope, [&] {
        QTimer::singleShot(0, &scope, [&] {
            wasOpen = true;
            auto *const dialog = qobject_cast<ReassignDlg *>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            QVERIFY(QTest::qWaitForWindowExposed(dialog));
            XGestures::focus(dialog);
            QCOMPARE(dialog->geometry(), m_window->geometry());
            user(dialog);
            dialog->reject();
        });
    });
    tabTo(QStringLiteral("m_reassignKey"));
    XGestures::key(QStringLiteral("space"));
    QTRY_VERIFY(wasOpen && !QApplication::activeModalWidget());
    XGestures::focus(m_window.get());
}

void tst_AdvancedRoad::record()
{
    selectKey(7);
    reassign([this](ReassignDlg *dialog) {
        QCOMPARE(focusName(), QStringLiteral("input_0"));
        XGestures::key(QStringLiteral("Down"));
        QCOMPARE(child<QStackedWidget>(dialog, "m_stacked")->currentIndex(), 1);
        tabTo(QStringLiteral("m_search"));
        XGestures::type(QStringLiteral("scroll"));
        XGestures::key(QStringLiteral("Return"));
        QVERIFY(dialog->isVisible());
        tabTo(QStringLiteral("m_title"));
        XGestures::key(QStringLiteral("Tab"));
        const auto *const picked = qobject_cast<QPushButton *>(QApplication::focusWidget());
        QVERIFY(picked);
        QCOMPARE(picked->text(), QStringLiteral("SCROLL UP"));
        XGestures::key(QStringLiteral("Return"));
        QVERIFY(picked->isChecked());
        QCOMPARE(ushort(stored(7).code), ushort(255));
        tabTo(QStringLiteral("m_apply"));
        XGestures::key(QStringLiteral("Return"));
        QVERIFY(!dialog->isVisible());
    });
    QCOMPARE(ushort(stored(7).code), ushort(488));
    QCOMPARE(child<QPushButton>(m_window.get(), "key_7")->text().simplified(),
             QStringLiteral("SCROLL UP"));

    tabTo(QStringLiteral("m_apply"));
    XGestures::key(QStringLiteral("space"));
    const vantrix_key_mapping sent = m_services->device().image(0, 0).keys[7].content.mapping;
    QCOMPARE(ushort(sent.code), ushort(488));
}

/// Four titles down the shipped catalog, with a search on the way.
void tst_AdvancedRoad::hotKey()
{
    selectKey(5);
    reassign([this](ReassignDlg *dialog) {
        for (int page = 1; page <= 5; ++page)
            XGestures::key(QStringLiteral("Down"));
        QCOMPARE(child<QStackedWidget>(dialog, "m_stacked")->currentIndex(), 5);
        tabTo(QStringLiteral("m_search"));
        XGestures::type(QStringLiteral("save a"));
        for (const char *title : {"PHOTOSHOP", "MENUS", "FILE", "SAVE AND EXPORT"}) {
            tabToText(QLatin1String(title));
            XGestures::key(QStringLiteral("space"));
        }
        XGestures::key(QStringLiteral("Tab"));
        const auto *const picked = qobject_cast<QPushButton *>(QApplication::focusWidget());
        QVERIFY(picked);
        QVERIFY2(picked->text().startsWith(QLatin1String("SAVE A")), qPrintable(picked->text()));
        tabToText(QStringLiteral("SAVE AS"));
        XGestures::key(QStringLiteral("space"));
        tabTo(QStringLiteral("m_apply"));
        XGestures::key(QStringLiteral("Return"));
        QVERIFY(!dialog->isVisible());
    });
    vantrix_hotkey_assign assigned;
    QVERIFY(m_services->store().getHotKeyAssign(0, 0, 5, &assigned));
    QCOMPARE(assigned.keyName, QStringLiteral("SAVE AS"));
    QCOMPARE(assigned.hotKey, QStringLiteral("CTRL+SHIFT+S"));
}

void tst_AdvancedRoad::everyPageHasItsWay()
{
    selectKey(0);
    reassign([](ReassignDlg *dialog) {
        for (int page = 0; page < 10; ++page) {
            QCOMPARE(child<QStackedWidget>(dialog, "m_stacked")->currentIndex(), page);
            XGestures::key(QStringLiteral("Down"));
        }
        XGestures::key(QStringLiteral("Escape"));
        QVERIFY(!dialog->isVisible());
    });
    QCOMPARE(ushort(stored(0).code), ushort(255));
}

VANTRIX_TEST_MAIN(tst_AdvancedRoad)
#include "tst_AdvancedRoad.moc"
