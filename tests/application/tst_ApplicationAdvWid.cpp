#include "application/ApplicationAdvWid.h"

#include "CatalogFolder.h"
#include "application/AppHotKeysWid.h"
#include "application/BranchArea.h"
#include "application/FuncLevWid.h"
#include "application/HotKey.h"
#include "application/HotKeyTree.h"
#include "application/HotKeysWid.h"
#include "application/LevelWid.h"
#include "interfaces/ButtonGroupEx.h"
#include "support/Gestures.h"
#include "support/QtUnderTsan.h"
#include "support/TestMain.h"

#include <QBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalSpy>
#include <QThreadPool>

#include <memory>

namespace {

const QString titleSheet = QStringLiteral(
    "QPushButton{ background:transparent;border:none;min-height:%1px;min-width:80px;"
    "text-align:left;font-size:%2px;font-weight:bold;}\n "
    ":hover{background:rgba(255,255,255,125);}\n:pressed{background:rgb(132,50,155);}");

QPushButton *titleOf(QWidget *level)
{
    return level->findChild<QPushButton *>(QStringLiteral("m_title"), Qt::FindDirectChildrenOnly);
}

QScrollArea *areaOf(QWidget *level)
{
    return level->findChild<QScrollArea *>(QStringLiteral("scrollArea"),
                                           Qt::FindDirectChildrenOnly);
}

/// The title of that text, with all that belongs to it.
template <typename T>
T *level(QWidget *root, const QString &text)
{
    for (T *found : root->findChildren<T *>()) {
        if (titleOf(found)->text() == text)
            return found;
    }
    qFatal("no %s of the title \"%s\"", T::staticMetaObject.className(), qPrintable(text));
    return nullptr;
}

template <typename T>
QStringList titles(QWidget *root)
{
    QStringList texts;
    for (T *found : root->findChildren<T *>())
        texts << titleOf(found)->text();
    return texts;
}

HotKey *leaf(QWidget *root, const QString &name)
{
    for (HotKey *found : root->findChildren<HotKey *>()) {
        if (found->keyName() == name)
            return found;
    }
    qFatal("no hot key \"%s\"", qPrintable(name));
    return nullptr;
}

/// The visible leaves of a group, each with its row and column.
QString cells(HotKeysWid *group)
{
    QStringList list;
    auto *const grid = child<QGridLayout>(group, QStringLiteral("m_layout"));
    for (HotKey *key : group->findChildren<HotKey *>()) {
        if (key->isHidden())
            continue;
        int row = -1;
        int column = -1;
        int rows = 0;
        int columns = 0;
        grid->getItemPosition(grid->indexOf(key), &row, &column, &rows, &columns);
        list << QStringLiteral("%1:%2,%3").arg(key->text()).arg(row).arg(column);
    }
    return list.join(QLatin1Char(' '));
}

std::map<QString, QString> numbered(int count)
{
    std::map<QString, QString> keys;
    for (int i = 0; i < count; ++i)
        keys[QStringLiteral("KEY %1").arg(i, 2, 10, QLatin1Char('0'))] = QStringLiteral("CTRL+A");
    return keys;
}

} // namespace

class tst_ApplicationAdvWid : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void forms();
    void emptyCatalog();
    void tree();
    void titlesFold();
    void severalBranchesOpen();
    void lowerCaseFolderStaysEmpty();
    void unknownPlacesAreDropped();
    void topLevelTwice();
    void sameTitleTwice();
    void pick();
    void pickByKeyboard();
    void oneCheckInTheWholeTree();
    void selectedKeyChangesNothing();
    void columnsAndWidths_data();
    void columnsAndWidths();
    void manyKeysAtOnce();
    void elidedWithToolTip();
    void oddTexts();
    void longTitles();
    void search_data();
    void search();
    void searchFoldedThenOpened();
    void searchOpensNothing();
    void searchOfElidedText();
    void lateLeavesAreNotFiltered();
    void searchStylesNothing();
    void tabReachesEveryLeaf();
    void tabFollowsReading();
    void areasAreAsHighAsTheirContent();
    void areaGrowsWithItsContent();
    void portions();
    void mostKeys();
    void mostKeysOfAGroup();
    void mostTitles();
    void destroyedAtAnyTime_data();
    void destroyedAtAnyTime();

private:
    /// A page that has read all of the catalog.
    void makePage(int leaves);
    /// Opens the titles on the way to a group, and the group.
    HotKeysWid *openGroup(const QString &top, const QString &second, const QString &third,
                          const QString &group);

    std::unique_ptr<CatalogFolder> m_catalog;
    std::unique_ptr<ApplicationAdvWid> m_page;
};

void tst_ApplicationAdvWid::init()
{
    m_catalog = std::make_unique<CatalogFolder>();
}

void tst_ApplicationAdvWid::cleanup()
{
    m_page.reset();
    QThreadPool::globalInstance()->waitForDone();
    m_catalog.reset();
}

void tst_ApplicationAdvWid::makePage(int leaves)
{
    m_page = std::make_unique<ApplicationAdvWid>();
    m_page->resize(900, 700);
    m_page->show();
    QTRY_COMPARE(titles<AppHotKeysWid>(m_page.get()).size() + titles<LevelWid>(m_page.get()).size(),
                 m_catalog->folders());
    QTRY_COMPARE(m_page->findChildren<HotKey *>().size(), leaves);
    QThreadPool::globalInstance()->waitForDone();
    QTest::qWait(10);
    QCOMPARE(m_page->findChildren<HotKey *>().size(), leaves);
}

HotKeysWid *tst_ApplicationAdvWid::openGroup(const QString &top, const QString &second,
                                             const QString &third, const QString &group)
{
    auto *const topLevel = level<AppHotKeysWid>(m_page.get(), top);
    auto *const secondLevel = level<LevelWid>(topLevel, second);
    auto *const file = level<FuncLevWid>(secondLevel, third);
    auto *const keys = level<HotKeysWid>(file, group);
    for (QWidget *each : {static_cast<QWidget *>(topLevel), static_cast<QWidget *>(secondLevel),
                          static_cast<QWidget *>(file), static_cast<QWidget *>(keys)}) {
        if (areaOf(each)->isHidden())
            titleOf(each)->click();
    }
    QTest::qWait(5);
    return keys;
}

void tst_ApplicationAdvWid::forms()
{
    m_catalog->addFile(QStringLiteral("A/B/C"), "E\t\tX\n\t\t1\n");
    makePage(1);
    QCOMPARE(m_page->findChild<QScrollArea *>()->styleSheet(),
             QStringLiteral("background:transparent;border:none;"));
    const auto sheet = [&](QWidget *wid, int height, int size) {
        return titleOf(wid)->styleSheet() == titleSheet.arg(height).arg(size);
    };
    QVERIFY(sheet(level<AppHotKeysWid>(m_page.get(), QStringLiteral("A")), 28, 13));
    QVERIFY(sheet(level<LevelWid>(m_page.get(), QStringLiteral("B")), 25, 12));
    QVERIFY(sheet(level<FuncLevWid>(m_page.get(), QStringLiteral("C")), 25, 11));
    QVERIFY(sheet(level<HotKeysWid>(m_page.get(), QStringLiteral("E")), 25, 10));
    QVERIFY(leaf(m_page.get(), QStringLiteral("X"))->isCheckable());
    auto *const group = openGroup(QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C"),
                                  QStringLiteral("E"));
    HotKey *const key = leaf(group, QStringLiteral("X"));
    QCOMPARE(key->font().pixelSize(), 10);
    QCOMPARE(int(child<QLayout>(group, "m_layout")->alignment()),
             int(Qt::AlignTop | Qt::AlignLeft));
    key->click();
    QCOMPARE(key->grab().toImage().pixelColor(2, 2), QColor(132, 50, 155));
}

void tst_ApplicationAdvWid::emptyCatalog()
{
    makePage(0);
    QCOMPARE(titles<AppHotKeysWid>(m_page.get()), QStringList());
    emit m_page->sigSearch(QStringLiteral("x"));
    emit m_page->sigVantrixKeySelected();
}

void tst_ApplicationAdvWid::tree()
{
    m_catalog->addFile(QStringLiteral("B/TWO/file.txt"),
                       "Edit\t\tCopy\tPaste\n\t\tctrl+c\tctrl+v\n");
    m_catalog->addFile(QStringLiteral("A/ONE/other"), "View\t\tZoom\n\t\tz\nEdit\t\tCut\n\t\tx\n");
    m_catalog->addFolder(QStringLiteral("A/EMPTY"));
    makePage(4);
    QCOMPARE(titles<AppHotKeysWid>(m_page.get()),
             QStringList({QStringLiteral("A"), QStringLiteral("B")}));
    auto *const a = level<AppHotKeysWid>(m_page.get(), QStringLiteral("A"));
    QCOMPARE(titles<LevelWid>(a), QStringList({QStringLiteral("EMPTY"), QStringLiteral("ONE")}));
    QCOMPARE(titles<FuncLevWid>(a), QStringList(QStringLiteral("OTHER")));
    QCOMPARE(titles<HotKeysWid>(a), QStringList({QStringLiteral("EDIT"), QStringLiteral("VIEW")}));
    auto *const b = level<AppHotKeysWid>(m_page.get(), QStringLiteral("B"));
    QCOMPARE(titles<FuncLevWid>(b), QStringList(QStringLiteral("FILE")));
    QCOMPARE(cells(level<HotKeysWid>(b, QStringLiteral("EDIT"))),
             QStringLiteral("COPY:0,0 PASTE:1,0"));
    QCOMPARE(leaf(b, QStringLiteral("COPY"))->hotKey(), QStringLiteral("CTRL+C"));
    QCOMPARE(leaf(b, QStringLiteral("COPY"))->toolTip(), QStringLiteral("COPY (CTRL+C) "));
}

void tst_ApplicationAdvWid::titlesFold()
{
    m_catalog->addFile(QStringLiteral("A/B/C"), "E\t\tX\n\t\t1\n");
    makePage(1);
    HotKey *const key = leaf(m_page.get(), QStringLiteral("X"));
    const QList<QWidget *> levels = {
        level<AppHotKeysWid>(m_page.get(), QStringLiteral("A")),
        level<LevelWid>(m_page.get(), QStringLiteral("B")),
        level<FuncLevWid>(m_page.get(), QStringLiteral("C")),
        level<HotKeysWid>(m_page.get(), QStringLiteral("E")),
    };
    for (QWidget *each : levels) {
        QVERIFY(titleOf(each)->isVisible());
        QVERIFY(areaOf(each)->isHidden());
        QVERIFY(!key->isVisible());
        clickOn(titleOf(each));
        QVERIFY(areaOf(each)->isVisible());
    }
    QVERIFY(key->isVisible());
    clickOn(titleOf(levels.first()));
    QVERIFY(!key->isVisible());
    QVERIFY(!areaOf(levels.last())->isHidden());
    clickOn(titleOf(levels.first()));
    QVERIFY(key->isVisible());
}

void tst_ApplicationAdvWid::severalBranchesOpen()
{
    for (const char *file : {"A/B/C", "A/D/C", "F/B/C"})
        m_catalog->addFile(QLatin1String(file), "E\t\tX\n\t\t1\n");
    makePage(3);
    openGroup(QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C"), QStringLiteral("E"));
    openGroup(QStringLiteral("A"), QStringLiteral("D"), QStringLiteral("C"), QStringLiteral("E"));
    openGroup(QStringLiteral("F"), QStringLiteral("B"), QStringLiteral("C"), QStringLiteral("E"));
    for (HotKey *key : m_page->findChildren<HotKey *>())
        QVERIFY(key->isVisible());
}

void tst_ApplicationAdvWid::lowerCaseFolderStaysEmpty()
{
    m_catalog->addFile(QStringLiteral("Big/ONE/C"), "E\t\tX\n\t\t1\n");
    m_catalog->addFile(QStringLiteral("A/Two/C"), "E\t\tX\n\t\t1\n");
    m_catalog->addFile(QStringLiteral("A/THREE/C"), "E\t\tX\n\t\t1\n");
    makePage(1);
    QCOMPARE(titles<AppHotKeysWid>(m_page.get()),
             QStringList({QStringLiteral("A"), QStringLiteral("Big")}));
    QCOMPARE(titles<LevelWid>(m_page.get()),
             QStringList({QStringLiteral("THREE"), QStringLiteral("Two"), QStringLiteral("ONE")}));
    QCOMPARE(
        level<LevelWid>(m_page.get(), QStringLiteral("THREE"))->findChildren<HotKey *>().size(), 1);
}

void tst_ApplicationAdvWid::unknownPlacesAreDropped()
{
    m_catalog->addFolder(QStringLiteral("A/B"));
    makePage(0);
    const HotKeyMap map{{QStringLiteral("E"), numbered(1)}};
    const auto add = [&](const char *top, const char *second) {
        QMetaObject::invokeMethod(m_page.get(), "slotAddHotKeys",
                                  Q_ARG(QString, QLatin1String(top)),
                                  Q_ARG(QString, QLatin1String(second)),
                                  Q_ARG(QString, QStringLiteral("C")), Q_ARG(HotKeyMap, map));
        QTest::qWait(5);
    };
    add("X", "B");
    add("A", "X");
    add("a", "B");
    add("A", "b");
    QMetaObject::invokeMethod(m_page.get(), "slotAddSecondLev", Q_ARG(QString, QStringLiteral("X")),
                              Q_ARG(QStringList, QStringList(QStringLiteral("Y"))));
    QCOMPARE(m_page->findChildren<HotKey *>().size(), 0);
    QCOMPARE(titles<LevelWid>(m_page.get()), QStringList(QStringLiteral("B")));
    add("A", "B");
    QCOMPARE(m_page->findChildren<HotKey *>().size(), 1);
}

void tst_ApplicationAdvWid::topLevelTwice()
{
    makePage(0);
    for (int i = 0; i < 2; ++i)
        QMetaObject::invokeMethod(m_page.get(), "slotAddTopLevel",
                                  Q_ARG(QString, QStringLiteral("A")));
    QMetaObject::invokeMethod(m_page.get(), "slotAddSecondLev", Q_ARG(QString, QStringLiteral("A")),
                              Q_ARG(QStringList, QStringList(QStringLiteral("B"))));
    const auto both = m_page->findChildren<AppHotKeysWid *>();
    QCOMPARE(both.size(), 2);
    QCOMPARE(both.at(0)->findChildren<LevelWid *>().size(), 0);
    QCOMPARE(both.at(1)->findChildren<LevelWid *>().size(), 1);
}

void tst_ApplicationAdvWid::sameTitleTwice()
{
    m_catalog->addFile(QStringLiteral("A/B/C.one"), "E\t\tX\n\t\t1\n");
    m_catalog->addFile(QStringLiteral("A/B/C.two"), "E\t\tX\n\t\t1\n");
    makePage(2);
    QCOMPARE(titles<FuncLevWid>(m_page.get()),
             QStringList({QStringLiteral("C"), QStringLiteral("C")}));
}

void tst_ApplicationAdvWid::pick()
{
    m_catalog->addFile(QStringLiteral("A/B/C"), "E\t\tCopy\tCut\n\t\tctrl+c\tctrl+x\n");
    makePage(2);
    openGroup(QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C"), QStringLiteral("E"));
    QSignalSpy spy(m_page.get(), &ApplicationAdvWid::sigAppHotKeyChanged);
    clickOn(leaf(m_page.get(), QStringLiteral("COPY")));
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.at(0), QVariantList({QStringLiteral("CTRL+C"), QStringLiteral("COPY")}));
    clickOn(leaf(m_page.get(), QStringLiteral("CUT")));
    QCOMPARE(spy.at(1), QVariantList({QStringLiteral("CTRL+X"), QStringLiteral("CUT")}));
    clickOn(leaf(m_page.get(), QStringLiteral("CUT")));
    QCOMPARE(spy.size(), 3);
    QCOMPARE(spy.at(2), QVariantList({QString(), QString()}));
    QVERIFY(!leaf(m_page.get(), QStringLiteral("CUT"))->isChecked());
}

void tst_ApplicationAdvWid::pickByKeyboard()
{
    m_catalog->addFile(QStringLiteral("A/B/C"), "E\t\tCopy\n\t\tctrl+c\n");
    makePage(1);
    for (QWidget *each :
         {static_cast<QWidget *>(level<AppHotKeysWid>(m_page.get(), QStringLiteral("A"))),
          static_cast<QWidget *>(level<LevelWid>(m_page.get(), QStringLiteral("B"))),
          static_cast<QWidget *>(level<FuncLevWid>(m_page.get(), QStringLiteral("C"))),
          static_cast<QWidget *>(level<HotKeysWid>(m_page.get(), QStringLiteral("E")))})
        pressKey(titleOf(each), Qt::Key_Space);
    QSignalSpy spy(m_page.get(), &ApplicationAdvWid::sigAppHotKeyChanged);
    pressKey(leaf(m_page.get(), QStringLiteral("COPY")), Qt::Key_Space);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.at(0), QVariantList({QStringLiteral("CTRL+C"), QStringLiteral("COPY")}));
}

void tst_ApplicationAdvWid::oneCheckInTheWholeTree()
{
    m_catalog->addFile(QStringLiteral("A/B/C"), "E\t\tX\n\t\t1\n");
    m_catalog->addFile(QStringLiteral("D/E/F"), "G\t\tY\n\t\t2\n");
    makePage(2);
    leaf(m_page.get(), QStringLiteral("X"))->click();
    leaf(m_page.get(), QStringLiteral("Y"))->click();
    QVERIFY(!leaf(m_page.get(), QStringLiteral("X"))->isChecked());
    QVERIFY(leaf(m_page.get(), QStringLiteral("Y"))->isChecked());
}

void tst_ApplicationAdvWid::selectedKeyChangesNothing()
{
    m_catalog->addFile(QStringLiteral("A/B/C"), "E\t\tX\n\t\t1\n");
    makePage(1);
    leaf(m_page.get(), QStringLiteral("X"))->click();
    QSignalSpy spy(m_page.get(), &ApplicationAdvWid::sigAppHotKeyChanged);
    emit m_page->sigVantrixKeySelected();
    QVERIFY(leaf(m_page.get(), QStringLiteral("X"))->isChecked());
    QCOMPARE(spy.size(), 0);
}

void tst_ApplicationAdvWid::columnsAndWidths_data()
{
    QTest::addColumn<int>("keys");
    QTest::addColumn<int>("pageWidth");
    QTest::addColumn<int>("leafWidth");
    QTest::addColumn<int>("minimumHeight");
    QTest::addColumn<int>("columns");
    QTest::newRow("none") << 0 << 700 << 0 << 0 << 0;
    QTest::newRow("one") << 1 << 700 << 180 << 25 << 1;
    QTest::newRow("six") << 6 << 1000 << 180 << 150 << 1;
    QTest::newRow("seven") << 7 << 700 << 312 << 150 << 2;
    QTest::newRow("twelve") << 12 << 701 << 312 << 150 << 2;
    QTest::newRow("thirteen") << 13 << 1000 << 296 << 150 << 3;
    QTest::newRow("floor") << 13 << 500 << 180 << 150 << 3;
    QTest::newRow("many") << 60 << 1000 << 180 << 150 << 10;
}

void tst_ApplicationAdvWid::columnsAndWidths()
{
    QFETCH(int, keys);
    QFETCH(int, pageWidth);
    QFETCH(int, leafWidth);
    QFETCH(int, minimumHeight);
    QFETCH(int, columns);
    ButtonGroupEx group;
    HotKeyTree tree;
    tree.group = &group;
    HotKeysWid wid(tree, QStringLiteral("GROUP"), nullptr);
    auto map = numbered(keys);
    wid.addKeys(map, 100);
    wid.resize(pageWidth, 300);
    wid.show();
    titleOf(&wid)->click();
    QCOMPARE(areaOf(&wid)->minimumHeight(), minimumHeight);
    const auto leaves = wid.findChildren<HotKey *>();
    QCOMPARE(leaves.size(), keys);
    auto *const grid = child<QGridLayout>(&wid, QStringLiteral("m_layout"));
    for (int i = 0; i < keys; ++i) {
        QCOMPARE(leaves.at(i)->minimumWidth(), leafWidth);
        QCOMPARE(leaves.at(i)->maximumWidth(), leafWidth);
        QCOMPARE(grid->itemAtPosition(i % 6, i / 6)->widget(), leaves.at(i));
    }
    QCOMPARE(keys == 0 ? 0 : grid->columnCount(), columns);
}

void tst_ApplicationAdvWid::manyKeysAtOnce()
{
    ButtonGroupEx group;
    HotKeyTree tree;
    tree.group = &group;
    HotKeysWid wid(tree, QStringLiteral("GROUP"), nullptr);
    auto map = numbered(20);
    wid.addKeys(map, 8);
    QCOMPARE(map.size(), size_t(12));
    wid.addKeys(map, 100);
    QCOMPARE(map.size(), size_t(0));
    QCOMPARE(wid.findChildren<HotKey *>().at(19)->keyName(), QStringLiteral("KEY 19"));
    // As if the group had numbered them.
    QCOMPARE(group.id(wid.findChildren<HotKey *>().at(0)), -2);
    QCOMPARE(group.id(wid.findChildren<HotKey *>().at(19)), -21);
}

void tst_ApplicationAdvWid::elidedWithToolTip()
{
    const QString name = QStringLiteral("A VERY LONG NAME THAT DOES NOT FIND ROOM ON ITS BUTTON");
    ButtonGroupEx group;
    HotKeyTree tree;
    tree.group = &group;
    HotKeysWid wid(tree, QStringLiteral("GROUP"), nullptr);
    std::map<QString, QString> map{{name, QStringLiteral("CTRL+A")}, {QStringLiteral("B"), {}}};
    wid.addKeys(map, 100);
    QCOMPARE(wid.findChildren<HotKey *>().at(0)->text(), name);
    wid.resize(400, 300);
    wid.show();
    HotKey *const key = wid.findChildren<HotKey *>().at(0);
    QVERIFY(key->text().startsWith(QStringLiteral("A VERY LONG NAME")));
    QVERIFY(key->text().endsWith(QChar(0x2026)));
    QVERIFY(key->fontMetrics().horizontalAdvance(key->text()) <= 180);
    QCOMPARE(key->toolTip(), name + QStringLiteral(" (CTRL+A) "));
    QCOMPARE(key->accessibleName(), name);
    wid.resize(2000, 300);
    QCOMPARE(key->minimumWidth(), 180);
    QCOMPARE(wid.findChildren<HotKey *>().at(1)->toolTip(), QStringLiteral("B () "));
}

void tst_ApplicationAdvWid::oddTexts()
{
    m_catalog->addFile(QStringLiteral("A & B/C/D"), "Cut & go\t\tSave & close\t<b>bold</b>\t" +
                                                        QByteArray(100000, 'x') +
                                                        "\n\t\tctrl+&\tctrl+<\ty\n\n\n");
    makePage(3);
    QCOMPARE(titles<AppHotKeysWid>(m_page.get()), QStringList(QStringLiteral("A && B")));
    QCOMPARE(titles<HotKeysWid>(m_page.get()),
             QStringList({QStringLiteral("\n"), QStringLiteral("CUT && GO")}));
    HotKey *const save = leaf(m_page.get(), QStringLiteral("SAVE & CLOSE"));
    QCOMPARE(save->text(), QStringLiteral("SAVE && CLOSE"));
    QCOMPARE(save->toolTip(), QStringLiteral("SAVE & CLOSE (CTRL+&) "));
    QSignalSpy spy(m_page.get(), &ApplicationAdvWid::sigAppHotKeyChanged);
    save->click();
    QCOMPARE(spy.at(0), QVariantList({QStringLiteral("CTRL+&"), QStringLiteral("SAVE & CLOSE")}));
    QCOMPARE(leaf(m_page.get(), QStringLiteral("<B>BOLD</B>"))->toolTip(),
             QStringLiteral("<span>&lt;B&gt;BOLD&lt;/B&gt; (CTRL+&lt;) </span>"));
    HotKey *const longest = leaf(m_page.get(), QString(100000, QLatin1Char('X')));
    QVERIFY(longest->text().size() <= 400);
    longest->click();
    QCOMPARE(spy.at(1).at(1).toString().size(), 100000);
}

void tst_ApplicationAdvWid::longTitles()
{
    m_catalog->addFile(QString(200, QLatin1Char('A')) + QStringLiteral("/B/C"),
                       QByteArray(100000, 'e') + "\t\tX\n\t\t1\n");
    makePage(1);
    auto *const top = level<AppHotKeysWid>(m_page.get(), QString(200, QLatin1Char('A')));
    titleOf(top)->click();
    QCoreApplication::processEvents();
    const QString shown = titles<HotKeysWid>(m_page.get()).value(0);
    QCOMPARE(shown, QString(399, QLatin1Char('E')) + QChar(0x2026));
    auto *const area = m_page->findChild<QScrollArea *>();
    QVERIFY(area->widget()->width() <= area->viewport()->width());
}

void tst_ApplicationAdvWid::search_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("nothing") << QString()
                             << QStringLiteral(
                                    "COPY:0,0 CUT:1,0 F1:2,0 F10:3,0 F11:4,0 F2:5,0 G:0,1");
    QTest::newRow("one letter") << QStringLiteral("f")
                                << QStringLiteral("F1:0,0 F10:1,0 F11:2,0 F2:3,0");
    QTest::newRow("upper case") << QStringLiteral("C") << QStringLiteral("COPY:0,0 CUT:1,0");
    QTest::newRow("whole") << QStringLiteral("cut") << QStringLiteral("CUT:0,0");
    QTest::newRow("last column closes up") << QStringLiteral("g") << QStringLiteral("G:0,0");
    QTest::newRow("inside finds nothing") << QStringLiteral("ut") << QString();
    QTest::newRow("hot-key text is not searched") << QStringLiteral("ctrl") << QString();
    QTest::newRow("titles are not searched") << QStringLiteral("edit") << QString();
    QTest::newRow("no match") << QStringLiteral("zzz") << QString();
}

void tst_ApplicationAdvWid::search()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    m_catalog->addFile(QStringLiteral("A/B/C"), "Edit\t\tCopy\tCut\tF1\tF10\tF11\tF2\tG\n"
                                                "\t\tctrl\tctrl\tctrl\tctrl\tctrl\tctrl\tctrl\n");
    makePage(7);
    HotKeysWid *const group = openGroup(QStringLiteral("A"), QStringLiteral("B"),
                                        QStringLiteral("C"), QStringLiteral("EDIT"));
    const QString all = cells(group);
    emit m_page->sigSearch(text);
    QCOMPARE(cells(group), expected);
    QVERIFY(titleOf(group)->isVisible());
    QVERIFY(areaOf(group)->isVisible());
    emit m_page->sigSearch(QStringLiteral("f1"));
    QCOMPARE(cells(group), QStringLiteral("F1:0,0 F10:1,0 F11:2,0"));
    emit m_page->sigSearch(QString());
    QCOMPARE(cells(group), all);
}

void tst_ApplicationAdvWid::searchFoldedThenOpened()
{
    for (int i = 0; i < 40; ++i)
        m_catalog->addFile(QStringLiteral("A/B/C%1").arg(i), CatalogFolder::rows(5, 12));
    makePage(2400);
    HotKeysWid *const last = openGroup(QStringLiteral("A"), QStringLiteral("B"),
                                       QStringLiteral("C39"), QStringLiteral("GROUP 4"));
    titleOf(last)->click();
    emit m_page->sigSearch(QStringLiteral("g4 key 1"));
    // Whatever the portions have come to: what is opened is right.
    titleOf(last)->click();
    QCOMPARE(cells(last), QStringLiteral("G4 KEY 1:0,0 G4 KEY 10:1,0 G4 KEY 11:2,0"));
    const auto hidden = [&] {
        int count = 0;
        for (HotKey *key : m_page->findChildren<HotKey *>())
            count += key->isHidden();
        return count;
    };
    QTRY_COMPARE(hidden(), 2400 - 40 * 3);
    emit m_page->sigSearch(QStringLiteral("x"));
    emit m_page->sigSearch(QString());
    QTRY_COMPARE(hidden(), 0);
    emit m_page->sigSearch(QStringLiteral("g0"));
    // A folder that is opened again brings its groups into sight.
    QWidget *const top = level<AppHotKeysWid>(m_page.get(), QStringLiteral("A"));
    titleOf(top)->click();
    emit m_page->sigSearch(QStringLiteral("g4 key 2"));
    titleOf(top)->click();
    QCOMPARE(cells(last), QStringLiteral("G4 KEY 2:0,0"));
}

void tst_ApplicationAdvWid::searchOpensNothing()
{
    m_catalog->addFile(QStringLiteral("A/B/C"), "E\t\tX\tY\n\t\t1\t2\n");
    makePage(2);
    emit m_page->sigSearch(QStringLiteral("x"));
    for (QScrollArea *area : m_page->findChildren<QScrollArea *>()) {
        if (area->parentWidget() != m_page.get())
            QVERIFY(area->isHidden());
    }
    QVERIFY(titleOf(level<AppHotKeysWid>(m_page.get(), QStringLiteral("A")))->isVisible());
}

void tst_ApplicationAdvWid::searchOfElidedText()
{
    m_catalog->addFile(QStringLiteral("A/B/C"),
                       "E\t\ta very long name that does not find room on its button\n\t\t1\n");
    makePage(1);
    HotKeysWid *const group = openGroup(QStringLiteral("A"), QStringLiteral("B"),
                                        QStringLiteral("C"), QStringLiteral("E"));
    HotKey *const key = group->findChild<HotKey *>();
    QVERIFY(key->text().endsWith(QChar(0x2026)));
    emit m_page->sigSearch(QStringLiteral("a very long"));
    QVERIFY(key->isVisible());
    emit m_page->sigSearch(QStringLiteral("a very long name that does not find room on"));
    QVERIFY(!key->isVisible());
    emit m_page->sigSearch(key->text());
    QVERIFY(key->isVisible());
}

void tst_ApplicationAdvWid::lateLeavesAreNotFiltered()
{
    m_catalog->addFile(QStringLiteral("A/B/C"), "E\t\tX\n\t\t1\n");
    makePage(1);
    emit m_page->sigSearch(QStringLiteral("z"));
    QTRY_VERIFY(leaf(m_page.get(), QStringLiteral("X"))->isHidden());
    const HotKeyMap map{{QStringLiteral("E"), numbered(2)}};
    QMetaObject::invokeMethod(m_page.get(), "slotAddHotKeys", Q_ARG(QString, QStringLiteral("A")),
                              Q_ARG(QString, QStringLiteral("B")),
                              Q_ARG(QString, QStringLiteral("LATE")), Q_ARG(HotKeyMap, map));
    QTRY_COMPARE(m_page->findChildren<HotKey *>().size(), 3);
    HotKeysWid *const group = openGroup(QStringLiteral("A"), QStringLiteral("B"),
                                        QStringLiteral("LATE"), QStringLiteral("E"));
    QCOMPARE(cells(group), QStringLiteral("KEY 00:0,0 KEY 01:1,0"));
    emit m_page->sigSearch(QStringLiteral("key 01"));
    QCOMPARE(cells(group), QStringLiteral("KEY 01:0,0"));
}

void tst_ApplicationAdvWid::searchStylesNothing()
{
    class StyleCounter : public QObject
    {
    public:
        int changes = 0;

    protected:
        bool eventFilter(QObject *, QEvent *event) override
        {
            changes += event->type() == QEvent::StyleChange;
            return false;
        }
    };
    m_catalog->addFile(QStringLiteral("A/B/C"), CatalogFolder::rows(3, 12));
    makePage(36);
    for (int i = 0; i < 3; ++i)
        openGroup(QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C"),
                  QStringLiteral("GROUP %1").arg(i));
    StyleCounter counter;
    for (QWidget *each : m_page->findChildren<QWidget *>())
        each->installEventFilter(&counter);
    for (const char *text : {"g", "g1", "g1 key 1", "x", ""}) {
        emit m_page->sigSearch(QLatin1String(text));
        QCoreApplication::processEvents();
    }
    QCOMPARE(counter.changes, 0);
}

void tst_ApplicationAdvWid::tabReachesEveryLeaf()
{
    m_catalog->addFile(QStringLiteral("A/B/C"), CatalogFolder::rows(2, 2));
    makePage(4);
    for (int i = 0; i < 2; ++i)
        openGroup(QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C"),
                  QStringLiteral("GROUP %1").arg(i));
    QApplication::setActiveWindow(m_page.get());
    titleOf(level<AppHotKeysWid>(m_page.get(), QStringLiteral("A")))->setFocus();
    QStringList visited;
    for (int i = 0; i < 9; ++i) {
        visited << static_cast<QPushButton *>(QApplication::focusWidget())->text();
        pressKey(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(visited, QStringList({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C"),
                                   QStringLiteral("GROUP 0"), QStringLiteral("G0 KEY 0"),
                                   QStringLiteral("G0 KEY 1"), QStringLiteral("GROUP 1"),
                                   QStringLiteral("G1 KEY 0"), QStringLiteral("G1 KEY 1")}));
}

/// However the files arrive.
void tst_ApplicationAdvWid::tabFollowsReading()
{
    for (const char *folder : {"A/B", "A/C", "D/E"})
        m_catalog->addFolder(QLatin1String(folder));
    makePage(0);
    const auto add = [&](const char *top, const char *second, const char *third, int leaves) {
        const HotKeyMap map{{QStringLiteral("GROUP"), {{QLatin1String(third), {}}}}};
        QMetaObject::invokeMethod(m_page.get(), "slotAddHotKeys",
                                  Q_ARG(QString, QLatin1String(top)),
                                  Q_ARG(QString, QLatin1String(second)),
                                  Q_ARG(QString, QLatin1String(third)), Q_ARG(HotKeyMap, map));
        QTRY_COMPARE(m_page->findChildren<HotKey *>().size(), leaves);
    };
    add("D", "E", "1", 1);
    add("A", "C", "2", 2);
    add("A", "B", "3", 3);
    add("A", "C", "4", 4);
    for (QPushButton *title : m_page->findChildren<QPushButton *>(QStringLiteral("m_title")))
        title->click();
    QApplication::setActiveWindow(m_page.get());
    titleOf(level<AppHotKeysWid>(m_page.get(), QStringLiteral("A")))->setFocus();
    const auto walk = [](Qt::Key key) {
        QStringList visited;
        for (int i = 0; i < 17; ++i) {
            visited << static_cast<QPushButton *>(QApplication::focusWidget())->text();
            pressKey(QApplication::focusWidget(), key);
        }
        return visited.join(QLatin1Char(' '));
    };
    QCOMPARE(walk(Qt::Key_Tab),
             QStringLiteral("A B 3 GROUP 3 C 2 GROUP 2 4 GROUP 4 D E 1 GROUP 1"));
    QCOMPARE(walk(Qt::Key_Backtab),
             QStringLiteral("A 1 GROUP 1 E D 4 GROUP 4 2 GROUP 2 C 3 GROUP 3 B"));
}

void tst_ApplicationAdvWid::areasAreAsHighAsTheirContent()
{
    for (int i = 0; i < 4; ++i)
        m_catalog->addFile(QStringLiteral("A/B/C%1").arg(i), CatalogFolder::rows(3, 40));
    makePage(480);
    for (int i = 0; i < 12; ++i)
        openGroup(QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C%1").arg(i % 4),
                  QStringLiteral("GROUP %1").arg(i / 4));
    for (QScrollArea *area : m_page->findChildren<QScrollArea *>()) {
        if (area->parentWidget() == m_page.get())
            continue;
        QTRY_VERIFY(area->widget()->height() <= area->viewport()->height());
        QTRY_VERIFY(area->widget()->minimumSizeHint().height() <= area->viewport()->height());
    }
}

void tst_ApplicationAdvWid::areaGrowsWithItsContent()
{
    QWidget window;
    window.resize(400, 900);
    auto *const layout = new QVBoxLayout(&window);
    auto *const area = new BranchArea(&window);
    area->setWidgetResizable(true);
    layout->addWidget(area, 0, Qt::AlignTop);
    auto *const content = new QWidget;
    auto *const inner = new QVBoxLayout(content);
    inner->setContentsMargins(0, 0, 0, 0);
    auto *const leaf = new QWidget(content);
    leaf->setFixedHeight(50);
    inner->addWidget(leaf);
    area->setWidget(content);
    window.show();
    const int frames = 2 * area->frameWidth();
    QTRY_COMPARE(area->height(), 50 + frames);
    leaf->setFixedHeight(300);
    QTRY_COMPARE(area->height(), 300 + frames);
    leaf->setMinimumWidth(1000);
    QTRY_VERIFY(area->height() > 300 + frames);
    QTRY_COMPARE(area->viewport()->height(), 300);
    leaf->setMinimumWidth(0);
    leaf->setFixedHeight(20);
    QTRY_COMPARE(area->height(), 20 + frames);
}

void tst_ApplicationAdvWid::portions()
{
    for (int i = 0; i < 100; ++i)
        m_catalog->addFile(QStringLiteral("A/B/C%1").arg(i), CatalogFolder::rows(5, 10));
    m_page = std::make_unique<ApplicationAdvWid>();
    m_page->show();
    // Not one turn of the event loop brings all of it.
    int turns = 0;
    int before = 0;
    QElapsedTimer time;
    time.start();
    while (before < 5000 && time.elapsed() < 60000) {
        QCoreApplication::processEvents();
        const int now = m_page->findChildren<HotKey *>().size();
        turns += now > before;
        before = now;
    }
    QCOMPARE(before, 5000);
    QVERIFY2(turns > 10, qPrintable(QString::number(turns)));
}

void tst_ApplicationAdvWid::mostKeys()
{
    ButtonGroupEx group;
    HotKeyTree tree;
    tree.group = &group;
    tree.keys = 100'000 - 3;
    HotKeysWid wid(tree, QStringLiteral("GROUP"), nullptr);
    auto map = numbered(5);
    wid.addKeys(map, 100);
    QVERIFY(map.empty());
    QCOMPARE(wid.findChildren<HotKey *>().size(), 3);
    tree.titles = 12'000 - 1;
    QVERIFY(tree.addTitle());
    QVERIFY(!tree.addTitle());
}

void tst_ApplicationAdvWid::mostKeysOfAGroup()
{
    ButtonGroupEx group;
    HotKeyTree tree;
    tree.group = &group;
    HotKeysWid wid(tree, QStringLiteral("GROUP"), nullptr);
    auto map = numbered(10'003);
    while (!map.empty())
        wid.addKeys(map, 1000);
    QCOMPARE(wid.findChildren<HotKey *>().size(), 10'000);
    QCOMPARE(tree.keys, 10'000);
    // The next group has room of its own.
    HotKeysWid next(tree, QStringLiteral("NEXT"), nullptr);
    map = numbered(2);
    next.addKeys(map, 100);
    QCOMPARE(next.findChildren<HotKey *>().size(), 2);
}

void tst_ApplicationAdvWid::mostTitles()
{
    constexpr int most = 12'000;
    ButtonGroupEx group;
    HotKeyTree tree;
    tree.group = &group;
    tree.titles = most - 2;
    AppHotKeysWid top(tree, QStringLiteral("TOP"), nullptr);
    top.addSecondLevels({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")});
    QTRY_COMPARE(titles<LevelWid>(&top), QStringList({QStringLiteral("A"), QStringLiteral("B")}));
    const HotKeyMap file{{QStringLiteral("E"), numbered(1)}, {QStringLiteral("F"), numbered(1)}};
    top.addHotKeys(QStringLiteral("A"), QStringLiteral("NONE"), file);
    tree.portions.add([&tree] {
        tree.titles = most - 2;
        return true;
    });
    top.addHotKeys(QStringLiteral("A"), QStringLiteral("FILE"), file);
    QTRY_COMPARE(titles<FuncLevWid>(&top), QStringList(QStringLiteral("FILE")));
    QTest::qWait(5);
    QCOMPARE(titles<FuncLevWid>(&top), QStringList(QStringLiteral("FILE")));
    QCOMPARE(titles<HotKeysWid>(&top), QStringList(QStringLiteral("E")));
    QCOMPARE(tree.titles, most);
}

void tst_ApplicationAdvWid::destroyedAtAnyTime_data()
{
    QTest::addColumn<int>("moment");
    QTest::newRow("at once") << 0;
    QTest::newRow("while walking") << 1;
    QTest::newRow("tasks under way") << 2;
    QTest::newRow("results queued") << 3;
    QTest::newRow("half built") << 4;
    QTest::newRow("search waits") << 5;
}

void tst_ApplicationAdvWid::destroyedAtAnyTime()
{
    QFETCH(int, moment);
    for (int i = 0; i < 200; ++i)
        m_catalog->addFile(QStringLiteral("A/B%1/C%2").arg(i % 20).arg(i),
                           CatalogFolder::rows(5, 5));
    m_page = std::make_unique<ApplicationAdvWid>();
    if (moment == 1)
        QThread::usleep(300);
    if (moment == 2)
        QThread::msleep(5);
    if (moment > 2)
        QThread::msleep(50);
    if (moment > 3)
        QTRY_VERIFY(m_page->findChildren<HotKey *>().size() > 500);
    if (moment == 5)
        emit m_page->sigSearch(QStringLiteral("g1"));
    m_page.reset();
    QTest::qWait(5);
}

VANTRIX_TEST_MAIN(tst_ApplicationAdvWid)

#include "tst_ApplicationAdvWid.moc"
