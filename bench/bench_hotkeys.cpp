/// What a catalog of 5,000 hot keys costs in the hot-key browser: while it arrives, and at each key
/// press in the search field with three branches open; and the longest turns of the event loop
/// while it arrives, and while one of 50,000 does.

#include "Ratio.h"
#include "application/ApplicationAdvWid.h"
#include "application/FuncLevWid.h"
#include "interfaces/ButtonGroupEx.h"
#include "tests/application/CatalogFolder.h"

#include <QApplication>
#include <QGridLayout>
#include <QPushButton>
#include <QThreadPool>

#include <ctime>
#include <memory>

namespace {

constexpr int Files = 100;
constexpr int ManyFiles = 1000;
constexpr int Groups = 5;
constexpr int Keys = 10;
constexpr int OpenFiles = 3;

void paintNow(QWidget *window)
{
    QCoreApplication::sendPostedEvents();
    window->repaint();
}

/// The longest turns of an event loop in milliseconds: by the clock, and what of the processor the
/// interface thread had, which a busy machine does not lengthen.
struct Turns
{
    double longest = 0;
    double busiest = 0;

    void turn()
    {
        const double before = processorMs();
        QElapsedTimer clock;
        clock.start();
        QCoreApplication::processEvents();
        longest = std::max(longest, double(clock.nsecsElapsed()) / 1e6);
        busiest = std::max(busiest, processorMs() - before);
    }
    void print(const char *while_) const
    {
        std::printf("longest turn of the event loop while %s: %.1f ms, %.1f ms of them working\n",
                    while_, longest, busiest);
    }

private:
    static double processorMs()
    {
#ifdef CLOCK_THREAD_CPUTIME_ID
        timespec time;
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
#else
        return 0;
#endif
    }
};

/// Goes on until the browser has read that many hot keys.
void readAll(ApplicationAdvWid &page, Turns &turns, int keys)
{
    const auto *const leaves = page.findChild<ButtonGroupEx *>();
    while (leaves->buttons().size() < keys)
        turns.turn();
}

/// The first branches, with all groups in them.
void openBranches(QWidget &page)
{
    int files = 0;
    for (QPushButton *title : page.findChildren<QPushButton *>(QStringLiteral("m_title"))) {
        auto *const file = qobject_cast<FuncLevWid *>(title->parentWidget());
        if (!file)
            continue;
        if (++files > OpenFiles)
            return;
        for (QWidget *above = file; above != &page; above = above->parentWidget()) {
            auto *const button = above->findChild<QPushButton *>(QStringLiteral("m_title"),
                                                                 Qt::FindDirectChildrenOnly);
            auto *const area = above->findChild<QWidget *>(QStringLiteral("scrollArea"),
                                                           Qt::FindDirectChildrenOnly);
            if (button && area->isHidden())
                button->click();
        }
        for (QPushButton *group : file->findChildren<QPushButton *>(QStringLiteral("m_title"))) {
            if (group->parentWidget() != file)
                group->click();
        }
    }
}

/// As many plain buttons as a catalog has, in one hidden grid.
std::unique_ptr<QWidget> plainButtons(int count)
{
    auto window = std::make_unique<QWidget>();
    auto *const grid = new QGridLayout(window.get());
    window->setStyleSheet(QStringLiteral("QPushButton{background:transparent;border:none;"
                                         "min-height:20px;font-size:10px;}"));
    for (int i = 0; i < count; ++i)
        grid->addWidget(new QPushButton(QStringLiteral("G%1 KEY").arg(i % Groups), window.get()),
                        i % 6, i / 6);
    return window;
}

/// The least that a search does to plain buttons in sight.
void searchPlainly(QWidget *window, const QString &text)
{
    window->hide();
    for (QPushButton *button : window->findChildren<QPushButton *>())
        button->setVisible(button->text().startsWith(text, Qt::CaseInsensitive));
    window->show();
    paintNow(window);
}

void addFiles(const CatalogFolder &catalog, int first, int behind)
{
    for (int i = first; i < behind; ++i)
        catalog.addFile(QStringLiteral("APP %1/AREA/FILE %2").arg(i % 4).arg(i),
                        CatalogFolder::rows(Groups, Keys));
}

/// With three branches open from the first hot keys on.
void readMany(const CatalogFolder &catalog)
{
    addFiles(catalog, Files, ManyFiles);
    ApplicationAdvWid page;
    page.resize(1280, 800);
    page.show();
    Turns first;
    readAll(page, first, Files * Groups * Keys);
    openBranches(page);
    QCoreApplication::processEvents();
    Turns turns;
    readAll(page, turns, ManyFiles * Groups * Keys);
    turns.print("50,000 arrive");
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    QApplication app(argc, argv);
    const CatalogFolder catalog;
    addFiles(catalog, 0, Files);
    Turns turns;
    printRatioHeader();
    printRatio(
        "read and build 5,000 hot keys", 5,
        [&] {
            ApplicationAdvWid page;
            page.show();
            readAll(page, turns, Files * Groups * Keys);
        },
        [] { plainButtons(Files * Groups * Keys); });

    ApplicationAdvWid page;
    page.resize(1280, 800);
    page.show();
    readAll(page, turns, Files * Groups * Keys);
    openBranches(page);
    const auto plain = plainButtons(OpenFiles * Groups * Keys);
    plain->resize(1280, 800);
    plain->show();
    const QString texts[] = {QStringLiteral("g"), QStringLiteral("g1"), QStringLiteral("g1 x"),
                             QString()};
    int turn = 0;
    printRatio(
        "one letter in the search, painted", 80,
        [&] {
            emit page.sigSearch(texts[++turn % 4]);
            paintNow(&page);
        },
        [&] { searchPlainly(plain.get(), texts[turn % 4]); });
    turns.print("5,000 hot keys arrive");
    readMany(catalog);
    QThreadPool::globalInstance()->waitForDone();
    return 0;
}
