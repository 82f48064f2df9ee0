#include "shell/ProfileList.h"

#include "ShellFixture.h"
#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QToolButton>

#include <memory>
#include <set>

class tst_ProfileList : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void listsAll();
    void rowsGoByTheWidth();
    void tellsStates();
    void clickShows();
    void renames();
    void emptyNameIsNone();
    void duplicates();
    void duplicateNeedsRoom();
    void copiesOver();
    void clears();
    void keysOfTheList();
    void moves();
    void nextGoesAround();
    void marks();
    void menuHasEverything();

private:
    QListWidget *list() { return child<QListWidget>(m_list.get(), "m_profiles"); }
    QString name(int row) { return list()->item(row)->text(); }
    QString state(int row) { return list()->item(row)->toolTip(); }
    const StoreState &stored() { return m_shell->store().state(); }

    std::unique_ptr<ShellFixture> m_shell;
    std::unique_ptr<ProfileList> m_list;
};

void tst_ProfileList::init()
{
    m_shell = std::make_unique<ShellFixture>();
    m_list = std::make_unique<ProfileList>(m_shell->context);
    // In place of the window.
    connect(&m_shell->context, &ShellContext::goTo, m_list.get(),
            [this](int profile, int) { m_shell->context.setProfile(profile); });
    m_list->resize(216, 800);
    m_list->show();
}

void tst_ProfileList::cleanup()
{
    m_list.reset();
    m_shell.reset();
}

void tst_ProfileList::listsAll()
{
    QCOMPARE(list()->count(), 24);
    QCOMPARE(name(0), QStringLiteral("PROFILE 1"));
    QCOMPARE(name(23), QStringLiteral("PROFILE 24"));
    QCOMPARE(list()->currentRow(), 0);
}

void tst_ProfileList::rowsGoByTheWidth()
{
    const auto distances = [this] {
        const auto top = [this](int row) {
            return list()->visualItemRect(list()->item(row)).top();
        };
        std::set<int> all;
        for (int row = 1; row < list()->count(); ++row)
            all.insert(top(row) - top(row - 1));
        return all;
    };
    QFont small = m_list->font();
    small.setPixelSize(9);
    list()->setFont(small);
    QTRY_COMPARE(distances(), std::set<int>({28}));
    m_list->setFixedWidth(100);
    QTRY_COMPARE(distances(), std::set<int>({26}));
    m_list->setFixedWidth(240);
    QTRY_COMPARE(distances(), std::set<int>({28}));
    m_list->setCompact(true);
    QTRY_COMPARE(distances(), std::set<int>({26}));
    m_list->setCompact(false);
    QTRY_COMPARE(distances(), std::set<int>({28}));
}

void tst_ProfileList::tellsStates()
{
    QCOMPARE(state(0), QStringLiteral("PROFILE 1, shown, the device acts by it"));
    m_shell->assign(7, 0x05, 2);
    QCOMPARE(state(2), QStringLiteral("PROFILE 3, differs from what the device has"));
    m_shell->apply(2);
    QCOMPARE(state(2), QStringLiteral("PROFILE 3, the device acts by it"));
    QCOMPARE(state(0), QStringLiteral("PROFILE 1, shown"));
}

void tst_ProfileList::clickShows()
{
    QSignalSpy asked(&m_shell->context, &ShellContext::goTo);
    clickOn(list()->viewport(), list()->visualItemRect(list()->item(4)).center());
    QCOMPARE(asked.count(), 1);
    QCOMPARE(asked.first(), QVariantList({4, 28}));
    QCOMPARE(list()->currentRow(), 4);
}

void tst_ProfileList::renames()
{
    m_list->rename();
    auto *const edit = child<QLineEdit>(list(), "m_nameEdit");
    edit->selectAll();
    typeInto(edit, QStringLiteral("Games"));
    pressKey(edit, Qt::Key_Return);
    QTRY_COMPARE(stored().profileName(0, 0), QStringLiteral("Games"));
    m_shell->store().flush();
    QCOMPARE(name(0), QStringLiteral("Games"));
    m_shell->store().undo();
    QCOMPARE(name(0), QStringLiteral("PROFILE 1"));
}

void tst_ProfileList::emptyNameIsNone()
{
    m_shell->store().setProfileName(0, 0, QStringLiteral("Games"));
    m_shell->store().flush();
    list()->item(0)->setText(QStringLiteral("  "));
    QCOMPARE(name(0), QStringLiteral("PROFILE 1"));
}

void tst_ProfileList::duplicates()
{
    m_shell->assign(7, 0x05);
    m_shell->assign(3, 0x06, 1); // in use
    m_list->duplicate();
    m_shell->store().flush();
    QCOMPARE(m_shell->context.profile(), 2);
    QCOMPARE(name(2), QStringLiteral("PROFILE 1 COPY"));
    QVERIFY(stored().keys(0, 2) == stored().keys(0, 0));
    QCOMPARE(m_shell->store().undoName(), QStringLiteral("Duplicate PROFILE 1"));
}

void tst_ProfileList::duplicateNeedsRoom()
{
    for (int profile = 0; profile < 24; ++profile)
        m_shell->assign(7, 0x05, profile);
    const QByteArray before = stored().toBytes();
    QSignalSpy said(&m_shell->context, &ShellContext::status);
    m_list->duplicate();
    QCOMPARE(said.count(), 1);
    QVERIFY(stored().toBytes() == before);
}

void tst_ProfileList::copiesOver()
{
    m_shell->assign(7, 0x05);
    QMenu menu;
    m_list->fillMenu(&menu);
    QMenu *const targets = menu.actions().at(2)->menu();
    emit targets->aboutToShow();
    QCOMPARE(targets->actions().size(), 24);
    QVERIFY(!targets->actions().at(0)->isEnabled());
    QCOMPARE(targets->actions().at(5)->text(), QStringLiteral("6  PROFILE 6  (unused)"));
    targets->actions().at(5)->trigger();
    QVERIFY(stored().keys(0, 5) == stored().keys(0, 0));
}

void tst_ProfileList::clears()
{
    m_shell->store().setProfileName(0, 0, QStringLiteral("Games"));
    m_shell->assign(7, 0x05);
    clickOn(child<QToolButton>(m_list.get(), "m_clearBtn"));
    QVERIFY(stored().keys(0, 0) == freshKeys());
    QCOMPARE(name(0), QStringLiteral("Games"));
    QCOMPARE(m_shell->store().undoName(), QStringLiteral("Clear Games"));
    QSignalSpy said(&m_shell->context, &ShellContext::status);
    clickOn(child<QToolButton>(m_list.get(), "m_clearBtn"));
    QCOMPARE(said.count(), 1);
    QCOMPARE(said[0][0].toString(), QStringLiteral("Games has nothing on its keys."));
    QCOMPARE(m_shell->store().stepNames().size(), 2);
}

void tst_ProfileList::keysOfTheList()
{
    list()->setFocus();
    QTest::keyClick(list(), Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(name(1), QStringLiteral("PROFILE 1"));
    QTest::keyClick(list(), Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(name(0), QStringLiteral("PROFILE 1"));
    QTest::keyClick(list(), Qt::Key_F2);
    QVERIFY(list()->findChild<QLineEdit *>());
}

void tst_ProfileList::moves()
{
    m_list->moveUp();
    QCOMPARE(list()->currentRow(), 0);
    m_list->moveDown();
    QCOMPARE(name(0), QStringLiteral("PROFILE 2"));
    QCOMPARE(name(1), QStringLiteral("PROFILE 1"));
    QCOMPARE(list()->currentRow(), 1);
    QCOMPARE(m_shell->context.profile(), 0);
    m_shell->store().undo();
    QCOMPARE(name(0), QStringLiteral("PROFILE 1"));
    QCOMPARE(list()->currentRow(), 0);
}

void tst_ProfileList::nextGoesAround()
{
    m_list->showNext(-1);
    QCOMPARE(m_shell->context.profile(), 23);
    m_list->showNext(1);
    QCOMPARE(m_shell->context.profile(), 0);
}

void tst_ProfileList::marks()
{
    const QImage before = list()->grab().toImage();
    emit m_shell->context.keysMarked({{3, 7}});
    QVERIFY(list()->grab().toImage() != before);
    emit m_shell->context.keysMarked({});
    QVERIFY(list()->grab().toImage() == before);
}

void tst_ProfileList::menuHasEverything()
{
    QMenu menu;
    m_list->fillMenu(&menu);
    QStringList texts;
    for (const QAction *action : menu.actions())
        texts << action->text().remove(QLatin1Char('&'));
    QCOMPARE(texts,
             QStringList({"Rename...\tF2", "Duplicate", "Copy Over", "Clear", "", "Move Up\tAlt+Up",
                          "Move Down\tAlt+Down", "", "Next Profile", "Previous Profile"}));
}

VANTRIX_TEST_MAIN(tst_ProfileList)
#include "tst_ProfileList.moc"
