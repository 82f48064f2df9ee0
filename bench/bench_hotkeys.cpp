/// What a catalog of 5,000 hot keys costs in the hot-key browser: while it arrives, and at each key
/// press in the search field with three branches open.

#include "Ratio.h"
#include "application/ApplicationAdvWid.h"
#include "application/FuncLevWid.h"
#include "interfaces/ButtonGroupEx.h"
#include "tests/application/CatalogFolder.h"

#include <QApplication>
#include <QGridLayout>
#include <QPushButton>
#include <QThreadPool>

#include <memory>

namespace {

constexpr int Files = 100;
constexpr int Groups = 5;
constexpr int Keys = 10;
constexpr int OpenFiles = 3;

void paintNow(QWidget *window)
{
    QCoreApplication::sendPostedEvents();
    window->repaint();
}

/// Reads the whole catalog; the longest turn of the event loop in milliseconds.
double readAll(ApplicationAdvWid &page)
{
    double longest = 0;
    const auto *const leaves = page.findChild<ButtonGroupEx *>();
    while (leaves->buttons().size() < Files * Groups * Keys) {
        QElapsedTimer turn;
        turn.start();
        QCoreApplication::processEvents();
        longest = std::max(longest, double(turn.nsecsElapsed()) / 1e6);
    }
    return longest;
}

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

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    QApplication app(argc, argv);
    const CatalogFolder catalog;
    for (int i = 0; i < Files; ++i)
        catalog.addFile(QStringLiteral("APP %1/AREA/FILE %2").arg(i % 4).arg(i),
                        CatalogFolder::rows(Groups, Keys));

    double longest = 0;
    printRatioHeader();
    printRatio(
        "read and build 5,000 hot keys", 5,
        [&] {
            ApplicationAdvWid page;
            page.show();
            longest = std::max(longest, readAll(page));
        },
        [] { plainButtons(Files * Groups * Keys); });

    ApplicationAdvWid page;
    page.resize(1280, 800);
    page.show();
    readAll(page);
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
    std::printf("longest turn of the event loop while 5,000 hot keys arrive: %.1f ms\n", longest);
    QThreadPool::globalInstance()->waitForDone();
    return 0;
}
