#include "dualaction/ActionBtn.h"

#include "fakes/FakeServices.h"
#include "interfaces/OstraAction.h"
#include "interfaces/OstraMenu.h"
#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QGridLayout>
#include <QSignalSpy>

#include <memory>

class tst_ActionBtn : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void look();
    void topMenu();
    void keyboardMenuLeavesSymbolsOut();
    void entries_data();
    void entries();
    void columnsOfTwelve();
    void entryNames_data();
    void entryNames();
    void clickOpensAndCloses();
    void menuHangsBelowTheButton_data();
    void menuHangsBelowTheButton();
    void choosing();
    void choosingByKeyboard();
    void escapeGivesTheFocusBack();
    void clickElsewhereCloses();
    void hidingTheWindowCloses();
    void resetAction();
    void setKeyCode_data();
    void setKeyCode();
    void longNamesAreElided();
    void anyOrderOfDestruction();

private:
    OstraMenu *topMenu(ActionBtn *button) const;
    OstraMenu *subMenu(ActionBtn *button, const QString &path) const;

    std::unique_ptr<FakeEnvironment> m_environment;
    std::unique_ptr<QWidget> m_window;
    ActionBtn *m_first = nullptr;
    ActionBtn *m_second = nullptr;
    QPushButton *m_other = nullptr;
};

namespace {

/// Entries of a menu in order.
QList<OstraAction *> entriesOf(const OstraMenu *menu)
{
    QList<OstraAction *> entries;
    for (int i = 0; i < menu->layout()->count(); ++i)
        entries << qobject_cast<OstraAction *>(menu->layout()->itemAt(i)->widget());
    return entries;
}

QStringList textsOf(const OstraMenu *menu)
{
    QStringList texts;
    for (const OstraAction *entry : entriesOf(menu))
        texts << entry->text();
    return texts;
}

QList<int> idsOf(const OstraMenu *menu)
{
    QList<int> ids;
    for (const OstraAction *entry : entriesOf(menu))
        ids << entry->id();
    return ids;
}

OstraAction *entryNamed(const OstraMenu *menu, const QString &text)
{
    for (OstraAction *entry : entriesOf(menu)) {
        if (entry->text() == text)
            return entry;
    }
    return nullptr;
}

OstraAction *entryOf(const OstraMenu *menu, int id)
{
    for (OstraAction *entry : entriesOf(menu)) {
        if (entry->id() == id)
            return entry;
    }
    return nullptr;
}

} // namespace

void tst_ActionBtn::init()
{
    m_environment = std::make_unique<FakeEnvironment>();
    m_window = std::make_unique<QWidget>();
    m_window->resize(1280, 900);
    m_first = new ActionBtn(m_window.get());
    m_first->setObjectName(QStringLiteral("first"));
    m_first->setActionNo(1);
    m_first->resetAction();
    m_first->setGeometry(100, 100, 100, 32);
    m_second = new ActionBtn(m_window.get());
    m_second->setObjectName(QStringLiteral("second"));
    m_second->setActionNo(2);
    m_second->resetAction();
    m_second->setEnabled(true);
    m_second->setGeometry(1000, 100, 100, 32);
    m_other = new QPushButton(m_window.get());
    m_other->setGeometry(500, 700, 100, 32);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void tst_ActionBtn::cleanup()
{
    m_window.reset();
    m_environment.reset();
}

/// Opened once, so that it is known by its place.
OstraMenu *tst_ActionBtn::topMenu(ActionBtn *button) const
{
    const auto menus = m_window->findChildren<OstraMenu *>();
    for (OstraMenu *menu : menus) {
        if (menu->isVisible())
            return menu;
    }
    clickOn(button);
    for (OstraMenu *menu : menus) {
        if (menu->isVisible())
            return menu;
    }
    return nullptr;
}

/// The menu behind "KEYBOARD/ALPHANUMERIC" and the like.
OstraMenu *tst_ActionBtn::subMenu(ActionBtn *button, const QString &path) const
{
    OstraMenu *menu = topMenu(button);
    const QStringList steps = path.split(QLatin1Char('/'));
    for (const QString &step : steps)
        menu = entryNamed(menu, step)->ostraMenu();
    return menu;
}

void tst_ActionBtn::look()
{
    QCOMPARE(m_first->width(), 100);
    QCOMPARE(m_first->minimumWidth(), 100);
    QCOMPARE(m_first->maximumWidth(), 100);
    QCOMPARE(m_first->styleSheet(),
             QStringLiteral("QPushButton{background:transparent;color:white;border:1px solid "
                            "white;min-height:30px;}QPushButton::hover{background:rgba(255,255,"
                            "255,50)}QPushButton::disabled{background:rgb(121,121,121);color:rgb("
                            "168,168,168);border:none;}"));
    for (const OstraMenu *menu : m_window->findChildren<OstraMenu *>())
        QVERIFY(menu->isHidden());
}

void tst_ActionBtn::topMenu()
{
    const OstraMenu *menu = topMenu(m_first);
    QCOMPARE(textsOf(menu), (QStringList{"KEYBOARD", "MOUSE", "MEDIA"}));
    QCOMPARE(idsOf(menu), (QList<int>{0, 0, 0}));
    for (const OstraAction *entry : entriesOf(menu))
        QVERIFY(entry->ostraMenu());
}

void tst_ActionBtn::keyboardMenuLeavesSymbolsOut()
{
    const OstraMenu *menu = subMenu(m_first, QStringLiteral("KEYBOARD"));
    QCOMPARE(textsOf(menu), (QStringList{"ALPHANUMERIC", "NAVIGATION KEYS", "MODIFIER",
                                         "FUNCTION KEYS", "NUMBERPAD KEYS"}));
    QCOMPARE(idsOf(menu), (QList<int>{0, 0, 0, 0, 0}));
}

void tst_ActionBtn::entries_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QList<int>>("ids");
    using Ids = QList<int>;
    // clang-format off
    QTest::newRow("letters and digits") << "KEYBOARD/ALPHANUMERIC"
        << Ids{4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29,
               30, 31, 32, 33, 34, 35, 36, 37, 38, 39};
    QTest::newRow("navigation") << "KEYBOARD/NAVIGATION KEYS"
        << Ids{82, 81, 80, 79, 73, 76, 74, 77, 75, 78, 44, 40, 42, 41};
    QTest::newRow("modifiers") << "KEYBOARD/MODIFIER" << Ids{225, 229, 224, 228, 226, 230, 57};
    QTest::newRow("function keys") << "KEYBOARD/FUNCTION KEYS"
        << Ids{58, 59, 60, 61, 62, 63, 64, 65, 66, 67, 68, 69,
               104, 105, 106, 107, 108, 109, 110, 111, 112, 113, 114, 115, 70, 71, 72, 227};
    QTest::newRow("keypad") << "KEYBOARD/NUMBERPAD KEYS"
        << Ids{83, 89, 90, 91, 92, 93, 94, 95, 96, 97, 98, 84, 85, 86, 87, 88};
    QTest::newRow("mouse") << "MOUSE"
        << Ids{496, 497, 498, 488, 489, 1282, 1283, 500, 499, 481, 483, 485, 487};
    QTest::newRow("media") << "MEDIA" << Ids{240, 241, 242, 243, 246, 245, 244};
    // clang-format on
}

void tst_ActionBtn::entries()
{
    QFETCH(QString, path);
    QFETCH(QList<int>, ids);
    const OstraMenu *menu = subMenu(m_first, path);
    QCOMPARE(idsOf(menu), ids);
    for (const OstraAction *entry : entriesOf(menu)) {
        QVERIFY(!entry->ostraMenu());
        QVERIFY2(!entry->text().isEmpty() && entry->text() != QLatin1String("UNKNOWN KEY"),
                 qPrintable(QString::number(entry->id())));
    }
}

void tst_ActionBtn::columnsOfTwelve()
{
    const OstraMenu *menu = subMenu(m_first, QStringLiteral("KEYBOARD/NAVIGATION KEYS"));
    const auto *grid = qobject_cast<QGridLayout *>(menu->layout());
    QVERIFY(grid);
    QCOMPARE(grid->itemAtPosition(11, 0)->widget(), entryOf(menu, 40));
    QCOMPARE(grid->itemAtPosition(0, 1)->widget(), entryOf(menu, 42));
    QVERIFY(!grid->itemAtPosition(12, 0));
}

void tst_ActionBtn::entryNames_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("name");
    QTest::newRow("letter") << "KEYBOARD/ALPHANUMERIC" << 4 << "A";
    QTest::newRow("digit on one line") << "KEYBOARD/ALPHANUMERIC" << 30 << "1 !";
    QTest::newRow("zero") << "KEYBOARD/ALPHANUMERIC" << 39 << "0 )";
    QTest::newRow("two lines on one") << "KEYBOARD/FUNCTION KEYS" << 70 << "PRT SC";
    QTest::newRow("F13") << "KEYBOARD/FUNCTION KEYS" << 104 << "F13";
    QTest::newRow("modifier") << "KEYBOARD/MODIFIER" << 224 << "L_CTRL";
    QTest::newRow("mouse") << "MOUSE" << 496 << "LEFT CLICK";
    QTest::newRow("media") << "MEDIA" << 244 << "VOLUME MUTE/UNMUTE";
}

void tst_ActionBtn::entryNames()
{
    QFETCH(QString, path);
    QFETCH(int, id);
    QFETCH(QString, name);
    QCOMPARE(entryOf(subMenu(m_first, path), id)->text(), name);
}

void tst_ActionBtn::clickOpensAndCloses()
{
    QSignalSpy spy(m_first, &ActionBtn::sigUpdateActions);
    OstraMenu *menu = topMenu(m_first);
    QVERIFY(menu->isVisible());
    clickOn(m_first);
    QVERIFY(menu->isHidden());
    clickOn(m_first);
    QVERIFY(menu->isVisible());
    m_first->slotHideMenu();
    QVERIFY(menu->isHidden());
    QCOMPARE(spy.count(), 0);
}

void tst_ActionBtn::menuHangsBelowTheButton_data()
{
    QTest::addColumn<bool>("isFirst");
    QTest::newRow("action 1, left edges meet") << true;
    QTest::newRow("action 2, right edges meet") << false;
}

void tst_ActionBtn::menuHangsBelowTheButton()
{
    QFETCH(bool, isFirst);
    ActionBtn *button = isFirst ? m_first : m_second;
    const OstraMenu *menu = topMenu(button);
    QCOMPARE(menu->y(), button->y() + button->height());
    if (isFirst)
        QCOMPARE(menu->x(), button->x());
    else
        QCOMPARE(menu->geometry().right(), button->geometry().right());

    OstraAction *keyboard = entriesOf(menu).constFirst();
    keyboard->openMenu();
    const QRect sub = keyboard->ostraMenu()->geometry();
    QVERIFY(isFirst ? sub.left() > menu->x() : sub.right() < menu->geometry().right());
    QVERIFY(m_window->rect().contains(sub));
}

void tst_ActionBtn::choosing()
{
    QSignalSpy spy(m_first, &ActionBtn::sigUpdateActions);
    OstraMenu *top = topMenu(m_first);
    OstraMenu *media = entryNamed(top, QStringLiteral("MEDIA"))->ostraMenu();
    ushort codeWhenTold = 0;
    connect(m_first, &ActionBtn::sigUpdateActions, this,
            [&] { codeWhenTold = m_first->keyCode(); });
    clickOn(entryNamed(top, QStringLiteral("MEDIA")));
    QVERIFY(media->isVisible());
    clickOn(entryOf(media, 241));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(codeWhenTold, ushort(241));
    QCOMPARE(m_first->keyCode(), ushort(241));
    QCOMPARE(m_first->text(), QStringLiteral("STOP"));
    QVERIFY(top->isHidden());
    QVERIFY(media->isHidden());
}

void tst_ActionBtn::choosingByKeyboard()
{
    QSignalSpy spy(m_first, &ActionBtn::sigUpdateActions);
    m_first->setFocus();
    pressKey(m_first, Qt::Key_Space);
    const auto focus = [] {
        return QApplication::focusWidget();
    };
    QVERIFY(qobject_cast<OstraAction *>(focus()));
    pressKey(focus(), Qt::Key_Down);
    pressKey(focus(), Qt::Key_Right);
    auto *entry = qobject_cast<OstraAction *>(focus());
    QVERIFY(entry);
    QCOMPARE(entry->id(), ushort(496));
    pressKey(focus(), Qt::Key_Down);
    pressKey(focus(), Qt::Key_Space);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(m_first->keyCode(), ushort(497));
    QCOMPARE(focus(), m_first);
}

void tst_ActionBtn::escapeGivesTheFocusBack()
{
    const OstraMenu *top = topMenu(m_first);
    pressKey(QApplication::focusWidget(), Qt::Key_Escape);
    QVERIFY(top->isHidden());
    QCOMPARE(QApplication::focusWidget(), m_first);
    QCOMPARE(m_first->keyCode(), ushort(0));
}

void tst_ActionBtn::clickElsewhereCloses()
{
    const OstraMenu *top = topMenu(m_first);
    clickOn(m_other);
    QVERIFY(top->isHidden());
}

/// A menu does not come back with its window.
void tst_ActionBtn::hidingTheWindowCloses()
{
    const OstraMenu *top = topMenu(m_first);
    m_window->hide();
    m_window->show();
    QVERIFY(top->isHidden());
    QVERIFY(!top->isVisible());
}

void tst_ActionBtn::resetAction()
{
    for (ActionBtn *button : {m_first, m_second}) {
        button->setEnabled(button == m_second);
        button->setKeyCode(4);
        QCOMPARE(button->keyCode(), ushort(4));
        button->resetAction();
        QCOMPARE(button->keyCode(), ushort(0));
    }
    QCOMPARE(m_first->text(), QStringLiteral("ACTION 1"));
    QCOMPARE(m_second->text(), QStringLiteral("ACTION 2"));
    QVERIFY(m_first->isEnabled());
    QVERIFY(!m_second->isEnabled());
}

void tst_ActionBtn::setKeyCode_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << 0 << "ACTION 1";
    QTest::newRow("letter") << 4 << "A";
    QTest::newRow("media") << 241 << "STOP";
    QTest::newRow("a symbol set elsewhere") << 3073 << "!";
}

void tst_ActionBtn::setKeyCode()
{
    QFETCH(int, code);
    QFETCH(QString, text);
    QSignalSpy spy(m_first, &ActionBtn::sigUpdateActions);
    m_first->setKeyCode(5);
    m_first->setKeyCode(ushort(code));
    QCOMPARE(m_first->keyCode(), ushort(code));
    QCOMPARE(m_first->text(), text);
    QCOMPARE(spy.count(), 0);
}

void tst_ActionBtn::longNamesAreElided()
{
    m_first->setKeyCode(244);
    QVERIFY(m_first->text().endsWith(QChar(0x2026)));
    QCOMPARE(m_first->toolTip(), QStringLiteral("VOLUME MUTE/UNMUTE"));
    m_first->setKeyCode(4);
    QCOMPARE(m_first->toolTip(), QString());
}

void tst_ActionBtn::anyOrderOfDestruction()
{
    const QPointer<OstraMenu> open = topMenu(m_first);
    delete m_first;
    QVERIFY(!open);
    const QPointer<OstraMenu> other = topMenu(m_second);
    QVERIFY(other);
    delete other.data();
    clickOn(m_second);
    m_second->slotHideMenu();
    m_second->setKeyCode(4);
    QCOMPARE(m_second->text(), QStringLiteral("A"));
}

VANTRIX_TEST_MAIN(tst_ActionBtn)
#include "tst_ActionBtn.moc"
