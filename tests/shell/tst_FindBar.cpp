#include "shell/FindBar.h"

#include "ShellFixture.h"
#include "shell/PadView.h"
#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

#include <memory>

class tst_FindBar : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void function();
    void macroName();
    void legendOfAnUnassignedKey();
    void partsOfADualAction();
    void applicationFunction();
    void order_data();
    void order();
    void oneLetterOnlyAtTheStartOfWords();
    void shownProfileFirst();
    void hitsLightUp();
    void arrowsChoose();
    void enterGoesThere();
    void clickGoesThere();
    void escapeEnds();
    void nothingFound();
    void changesAreFoundAtOnce();
    void marksFollowAClosedList();
    void anotherPageClosesTheList();
    void longListsAreCut();
    void staysInsideTheWindow();

private:
    using Marks = std::set<std::pair<int, int>>;

    ProfileStore &store() { return m_shell->store(); }
    QLineEdit *field() { return child<QLineEdit>(m_window.get(), "m_findField"); }
    QListWidget *list() { return child<QListWidget>(m_window.get(), "m_findList"); }
    QStringList find(const QString &text)
    {
        field()->setText(text);
        QStringList rows;
        for (int i = 0; i < list()->count(); ++i)
            rows << list()->item(i)->text();
        return rows;
    }

    std::unique_ptr<ShellFixture> m_shell;
    std::unique_ptr<QWidget> m_window;
    Marks m_marks;
};

void tst_FindBar::init()
{
    m_shell = std::make_unique<ShellFixture>();
    m_shell->services.environment().setLanguage(2);
    m_window = std::make_unique<QWidget>();
    auto *const layout = new QVBoxLayout(m_window.get());
    layout->addWidget(new FindBar(m_shell->context, m_window.get()), 0,
                      Qt::AlignTop | Qt::AlignRight);
    m_window->resize(800, 500);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    field()->setFocus();
    m_marks.clear();
    connect(&m_shell->context, &ShellContext::keysMarked, this,
            [this](const Marks &marks) { m_marks = marks; });
}

void tst_FindBar::cleanup()
{
    m_window.reset();
    m_shell.reset();
}

void tst_FindBar::function()
{
    m_shell->assign(7, 241, 3); // STOP
    QCOMPARE(find(QStringLiteral("stop")),
             QStringList(QStringLiteral("STOP  \u00B7  Key 7, PROFILE 4")));
}

void tst_FindBar::macroName()
{
    store().addMacro(0, QStringLiteral("Greeting"), vantrix_macro_record());
    store().setNamedMacroKey(0, 2, "Greeting", 24);
    store().setProfileName(0, 2, QStringLiteral("Mail"));
    store().flush();
    QCOMPARE(find(QStringLiteral("gree")),
             QStringList(QStringLiteral("Greeting  \u00B7  Key 24, Mail")));
}

void tst_FindBar::legendOfAnUnassignedKey()
{
    const QStringList rows = find(QStringLiteral("w"));
    QCOMPARE(rows.size(), 24);
    QCOMPARE(rows[0], QStringLiteral("W (unassigned)  \u00B7  Key 7, PROFILE 1"));
    QCOMPARE(rows[23], QStringLiteral("W (unassigned)  \u00B7  Key 7, PROFILE 24"));
}

void tst_FindBar::partsOfADualAction()
{
    vantrix_key_mapping key = clearedKey();
    key.type = 3;
    key.digital = {17, 16, 0, 45}; // N, M
    store().setKeyMapping(0, 0, 3, &key);
    store().flush();
    QCOMPARE(find(QStringLiteral("m")),
             QStringList(QStringLiteral("N > M at 45%  \u00B7  Key 3, PROFILE 1")));
}

void tst_FindBar::applicationFunction()
{
    vantrix_app_assign app;
    app.appType = 0;
    app.funcId = 3;
    store().setAppAssign(0, 0, 3, &app);
    store().flush();
    QCOMPARE(find(QStringLiteral("blur")),
             QStringList(QStringLiteral("PHOTOSHOP: BLUR  \u00B7  Key 3, PROFILE 1")));
}

void tst_FindBar::order_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<int>>("keys");
    QTest::newRow("whole, start, word, inside") << "note" << QList<int>({4, 3, 2, 1});
    QTest::newRow("case does not count") << "NOTE" << QList<int>({4, 3, 2, 1});
    QTest::newRow("blanks at the ends") << "  note " << QList<int>({4, 3, 2, 1});
    QTest::newRow("two words") << "my note" << QList<int>({2});
}

void tst_FindBar::order()
{
    QFETCH(QString, text);
    QFETCH(QList<int>, keys);
    const char *const names[] = {"Keynotes", "My note", "Notebook", "Note"};
    for (int i = 0; i < 4; ++i)
        store().setNamedMacroKey(0, 0, names[i], i + 1);
    store().flush();
    find(text);
    KeyFinder finder;
    finder.read(store().state(), 0);
    QList<int> found;
    for (const KeyHit &hit : finder.find(text, 0))
        found << hit.keyIdx;
    QCOMPARE(found, keys);
}

void tst_FindBar::oneLetterOnlyAtTheStartOfWords()
{
    store().setNamedMacroKey(0, 0, "Keynotes", 1);
    store().setNamedMacroKey(0, 0, "My note", 2);
    store().flush();
    QCOMPARE(find(QStringLiteral("n")),
             QStringList(QStringLiteral("My note  \u00B7  Key 2, PROFILE 1")));
}

void tst_FindBar::shownProfileFirst()
{
    m_shell->assign(7, 241, 3);
    m_shell->assign(8, 241, 5);
    m_shell->context.setProfile(5);
    QCOMPARE(find(QStringLiteral("stop")),
             QStringList({QStringLiteral("STOP  \u00B7  Key 8, PROFILE 6"),
                          QStringLiteral("STOP  \u00B7  Key 7, PROFILE 4")}));
}

void tst_FindBar::hitsLightUp()
{
    m_shell->assign(7, 241, 3);
    m_shell->assign(9, 241, 3);
    m_shell->assign(8, 241, 5);
    find(QStringLiteral("stop"));
    QVERIFY(m_marks == Marks({{3, 7}, {3, 9}, {5, 8}}));
    auto *const pad = child<PadView>(m_window.get(), "m_findPad");
    QVERIFY(pad->lit() == std::set<int>({7, 9}));
    QCOMPARE(pad->currentKey(), 7);
    QCOMPARE(child<QLabel>(m_window.get(), "m_findProfile")->text(), QStringLiteral("PROFILE 4"));
    QCOMPARE(child<QLabel>(m_window.get(), "m_findCount")->text(),
             QStringLiteral("Keys: 3, profiles: 2."));
}

void tst_FindBar::arrowsChoose()
{
    for (const int key : {7, 8, 9})
        m_shell->assign(key, 241);
    find(QStringLiteral("stop"));
    QCOMPARE(list()->currentRow(), 0);
    pressKey(field(), Qt::Key_Down);
    QCOMPARE(list()->currentRow(), 1);
    QCOMPARE(child<PadView>(m_window.get(), "m_findPad")->currentKey(), 8);
    pressKey(field(), Qt::Key_PageDown);
    QCOMPARE(list()->currentRow(), 2);
    pressKey(field(), Qt::Key_Down);
    QCOMPARE(list()->currentRow(), 2);
    pressKey(field(), Qt::Key_PageUp);
    QCOMPARE(list()->currentRow(), 0);
}

void tst_FindBar::enterGoesThere()
{
    m_shell->assign(7, 241, 3);
    m_shell->assign(8, 241, 5);
    QSignalSpy asked(&m_shell->context, &ShellContext::goTo);
    find(QStringLiteral("stop"));
    pressKey(field(), Qt::Key_Down);
    pressKey(field(), Qt::Key_Return);
    QCOMPARE(asked.count(), 1);
    QCOMPARE(asked[0], QVariantList({5, 8}));
    QVERIFY(!child<QWidget>(m_window.get(), "m_findResults")->isVisible());
}

void tst_FindBar::clickGoesThere()
{
    m_shell->assign(7, 241, 3);
    QSignalSpy asked(&m_shell->context, &ShellContext::goTo);
    find(QStringLiteral("stop"));
    clickOn(list()->viewport(), list()->visualItemRect(list()->item(0)).center());
    QCOMPARE(asked.count(), 1);
    QCOMPARE(asked[0], QVariantList({3, 7}));
}

void tst_FindBar::escapeEnds()
{
    m_shell->assign(7, 241, 3);
    find(QStringLiteral("stop"));
    QVERIFY(!m_marks.empty());
    pressKey(field(), Qt::Key_Escape);
    QCOMPARE(field()->text(), QString());
    QVERIFY(m_marks.empty());
    QVERIFY(!child<QWidget>(m_window.get(), "m_findResults")->isVisible());
}

void tst_FindBar::nothingFound()
{
    QSignalSpy asked(&m_shell->context, &ShellContext::goTo);
    QCOMPARE(find(QStringLiteral("xyzzy")), QStringList());
    QCOMPARE(child<QLabel>(m_window.get(), "m_findCount")->text(),
             QStringLiteral("No key has that."));
    QVERIFY(!child<QListWidget>(m_window.get(), "m_findList")->isVisible());
    QVERIFY(child<QWidget>(m_window.get(), "m_findResults")->height() < 100);
    pressKey(field(), Qt::Key_Return);
    QCOMPARE(asked.count(), 0);
}

void tst_FindBar::changesAreFoundAtOnce()
{
    find(QStringLiteral("stop"));
    QCOMPARE(list()->count(), 0);
    m_shell->assign(7, 241, 3);
    QCOMPARE(list()->count(), 1);
    store().undo();
    QCOMPARE(list()->count(), 0);
}

void tst_FindBar::marksFollowAClosedList()
{
    m_shell->assign(7, 241, 3);
    find(QStringLiteral("stop"));
    auto *const results = child<QWidget>(m_window.get(), "m_findResults");
    pressKey(field(), Qt::Key_Return);
    QVERIFY(!results->isVisible());
    QVERIFY(m_marks == Marks({{3, 7}}));
    m_shell->assign(9, 241, 3);
    QVERIFY(m_marks == Marks({{3, 7}, {3, 9}}));
    m_shell->assign(7, 5, 3);
    QVERIFY(m_marks == Marks({{3, 9}}));
    QVERIFY(!results->isVisible());
}

void tst_FindBar::anotherPageClosesTheList()
{
    m_shell->assign(7, 241, 3);
    find(QStringLiteral("stop"));
    auto *const results = child<QWidget>(m_window.get(), "m_findResults");
    QVERIFY(results->isVisible());
    emit m_shell->context.pageShown(ShellPage::History);
    QVERIFY(!results->isVisible());
    QVERIFY(m_marks == Marks({{3, 7}}));
}

void tst_FindBar::longListsAreCut()
{
    find(QStringLiteral("unassigned"));
    QCOMPARE(list()->count(), 200);
    QCOMPARE(child<QLabel>(m_window.get(), "m_findCount")->text(),
             QStringLiteral("Keys: 672, profiles: 24. The first 200 are listed."));
}

void tst_FindBar::staysInsideTheWindow()
{
    for (const QSize size : {QSize(800, 500), QSize(400, 300), QSize(1600, 900)}) {
        m_window->resize(size);
        QCoreApplication::processEvents();
        field()->clear();
        find(QStringLiteral("w"));
        const QRect results = child<QWidget>(m_window.get(), "m_findResults")->geometry();
        QVERIFY2(m_window->rect().contains(results),
                 qPrintable(QStringLiteral("%1 wide").arg(size.width())));
    }
}

VANTRIX_TEST_MAIN(tst_FindBar)
#include "tst_FindBar.moc"
