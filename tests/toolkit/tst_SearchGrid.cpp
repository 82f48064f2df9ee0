#include "toolkit/SearchGrid.h"

#include "support/TestMain.h"
#include "vocabulary/Common.h"

#include <QGridLayout>
#include <QPushButton>

#include <memory>

namespace {

/// Counts what a widget's layout does.
class LayoutCounter : public QObject
{
public:
    int requests = 0;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::LayoutRequest)
            ++requests;
        return QObject::eventFilter(watched, event);
    }
};

/// Counts the passes of a layout.
class CountingLayout : public QGridLayout
{
public:
    using QGridLayout::QGridLayout;
    int passes = 0;

    void setGeometry(const QRect &rect) override
    {
        ++passes;
        QGridLayout::setGeometry(rect);
    }
};

/// Counts how often a button appeared.
class ShowCounter : public QPushButton
{
public:
    using QPushButton::QPushButton;
    int shows = 0;

protected:
    void showEvent(QShowEvent *event) override
    {
        ++shows;
        QPushButton::showEvent(event);
    }
};

} // namespace

class tst_SearchGrid : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_window.reset(); }
    void columns();
    void search_data();
    void search();
    void hiddenKeepTheirCells();
    void shownTextIsTested();
    void hiddenContainerStaysHidden();
    void nothingChangesNothing();
    void manyInOnePass();
    void cleared();

private:
    void fill(const QStringList &names);
    QString cells() const;

    std::unique_ptr<QWidget> m_window;
    QWidget *m_container = nullptr;
    CountingLayout *m_layout = nullptr;
    std::unique_ptr<SearchGrid> m_grid;
    QList<QPushButton *> m_buttons;
};

void tst_SearchGrid::init()
{
    m_window = std::make_unique<QWidget>();
    auto *const outer = new QVBoxLayout(m_window.get());
    m_container = new QWidget(m_window.get());
    outer->addWidget(m_container);
    m_layout = new CountingLayout(m_container);
    m_grid = std::make_unique<SearchGrid>(m_layout, 3, m_container);
    m_buttons.clear();
}

void tst_SearchGrid::fill(const QStringList &names)
{
    for (const QString &name : names) {
        m_buttons << new QPushButton(Common::ButtonText(name), m_container);
        m_grid->append(m_buttons.last());
    }
    m_window->show();
}

/// The visible buttons, each with its row and column.
QString tst_SearchGrid::cells() const
{
    QStringList list;
    for (QPushButton *button : m_buttons) {
        if (button->isHidden())
            continue;
        int row = -1;
        int column = -1;
        int rows = 0;
        int columns = 0;
        m_layout->getItemPosition(m_layout->indexOf(button), &row, &column, &rows, &columns);
        list << QStringLiteral("%1:%2,%3").arg(button->text()).arg(row).arg(column);
    }
    return list.join(QLatin1Char(' '));
}

void tst_SearchGrid::columns()
{
    fill({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C"), QStringLiteral("D")});
    QCOMPARE(cells(), QStringLiteral("A:0,0 B:1,0 C:2,0 D:0,1"));
}

void tst_SearchGrid::search_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("nothing") << QString()
                             << QStringLiteral("F1:0,0 CUT:1,0 F10:2,0 F11:0,1 COPY:1,1 F2:2,1");
    QTest::newRow("letter") << QStringLiteral("f")
                            << QStringLiteral("F1:0,0 F10:1,0 F11:2,0 F2:0,1");
    QTest::newRow("other case") << QStringLiteral("F1") << QStringLiteral("F1:0,0 F10:1,0 F11:2,0");
    QTest::newRow("not inside") << QStringLiteral("u") << QString();
    QTest::newRow("none") << QStringLiteral("f12") << QString();
    QTest::newRow("whole") << QStringLiteral("copy") << QStringLiteral("COPY:0,0");
}

void tst_SearchGrid::search()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    fill({QStringLiteral("F1"), QStringLiteral("CUT"), QStringLiteral("F10"), QStringLiteral("F11"),
          QStringLiteral("COPY"), QStringLiteral("F2")});
    const QString before = cells();
    m_grid->search(text);
    QCOMPARE(cells(), expected);
    QVERIFY(m_container->isVisible());
    m_grid->search(QStringLiteral("c"));
    QCOMPARE(cells(), QStringLiteral("CUT:0,0 COPY:1,0"));
    m_grid->search(QString());
    QCOMPARE(cells(), before);
}

void tst_SearchGrid::hiddenKeepTheirCells()
{
    fill({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")});
    m_grid->search(QStringLiteral("c"));
    int row = -1;
    int column = -1;
    int rows = 0;
    int columns = 0;
    m_layout->getItemPosition(m_layout->indexOf(m_buttons.at(1)), &row, &column, &rows, &columns);
    QCOMPARE(row, 1);
    QCOMPARE(column, 0);
}

void tst_SearchGrid::shownTextIsTested()
{
    fill({QStringLiteral("&"), QStringLiteral("CUT & PASTE"), QStringLiteral("A")});
    QCOMPARE(m_buttons.at(0)->text(), QStringLiteral("&&"));
    QCOMPARE(SearchGrid::shownText(m_buttons.at(1)), QStringLiteral("CUT & PASTE"));
    m_grid->search(QStringLiteral("&"));
    QCOMPARE(cells(), QStringLiteral("&&:0,0"));
    m_grid->search(QStringLiteral("cut & p"));
    QCOMPARE(cells(), QStringLiteral("CUT && PASTE:0,0"));
    m_buttons.at(1)->setText(QStringLiteral("CUT\u2026"));
    m_grid->search(QStringLiteral("cut &"));
    QCOMPARE(cells(), QString());
}

void tst_SearchGrid::hiddenContainerStaysHidden()
{
    fill({QStringLiteral("A"), QStringLiteral("B")});
    m_container->hide();
    m_grid->search(QStringLiteral("b"));
    QVERIFY(m_container->isHidden());
    QCOMPARE(cells(), QStringLiteral("B:0,0"));
}

void tst_SearchGrid::nothingChangesNothing()
{
    fill({QStringLiteral("AB"), QStringLiteral("AC"), QStringLiteral("D")});
    m_grid->search(QStringLiteral("a"));
    for (int turn = 0; turn < 5; ++turn)
        QCoreApplication::processEvents();
    LayoutCounter counter;
    m_container->installEventFilter(&counter);
    m_window->installEventFilter(&counter);
    m_grid->search(QStringLiteral("A"));
    QCoreApplication::processEvents();
    QCOMPARE(counter.requests, 0);
}

void tst_SearchGrid::manyInOnePass()
{
    for (int i = 0; i < 300; ++i) {
        m_buttons << new ShowCounter(QStringLiteral("KEY %1").arg(i), m_container);
        m_grid->append(m_buttons.last());
    }
    m_window->show();
    m_grid->search(QStringLiteral("key 1"));
    QCoreApplication::processEvents();
    m_layout->passes = 0;
    m_grid->search(QStringLiteral("key"));
    QCoreApplication::processEvents();
    QVERIFY2(m_layout->passes < 10, qPrintable(QString::number(m_layout->passes)));
    // Shown with its container, not by itself.
    QCOMPARE(static_cast<ShowCounter *>(m_buttons.at(5))->shows, 2);
}

void tst_SearchGrid::cleared()
{
    fill({QStringLiteral("A"), QStringLiteral("B")});
    m_grid->clear();
    qDeleteAll(m_buttons);
    m_buttons.clear();
    m_grid->search(QStringLiteral("x"));
    fill({QStringLiteral("C")});
    QTRY_VERIFY(m_buttons.at(0)->isVisible());
    QCOMPARE(cells(), QStringLiteral("C:0,0"));
}

VANTRIX_TEST_MAIN(tst_SearchGrid)

#include "tst_SearchGrid.moc"
