/// What the page costs beside the bare minimum that plain Qt needs for the same number of widgets.

#include "Ratio.h"
#include "core/VantrixMapWid.h"
#include "fakes/FakeProfileCfg.h"
#include "fakes/FakeServices.h"
#include "support/Gestures.h"
#include "vocabulary/Common.h"

#include <QApplication>
#include <QGridLayout>
#include <QPushButton>
#include <QThreadPool>

#include <memory>

namespace {

constexpr QSize PageSize(1500, 900);

/// As many plain buttons as the page has, in one grid, each with a sheet of its own.
std::unique_ptr<QWidget> plainButtons(int count)
{
    auto window = std::make_unique<QWidget>();
    auto *const grid = new QGridLayout(window.get());
    QString sheet;
    Common::keyColorStyle(0, sheet);
    for (int i = 0; i < count; ++i) {
        auto *const button = new QPushButton(QString::number(i), window.get());
        button->setStyleSheet(sheet);
        grid->addWidget(button, i / 20, i % 20);
    }
    window->resize(PageSize);
    return window;
}

void showNow(QWidget *widget)
{
    widget->show();
    widget->repaint();
    QCoreApplication::processEvents();
}

/// Restyles and renames plain buttons, as a change of profile does with the keys.
void restyle(const QList<QPushButton *> &buttons, int first)
{
    for (int i = 0; i < buttons.size(); ++i) {
        QString sheet;
        Common::keyIconStyle((first + i) % 10, 5, QString(), sheet);
        buttons.at(i)->setStyleSheet(sheet);
        buttons.at(i)->setText(QString::number(first + i));
    }
    QCoreApplication::processEvents();
}

void fillProfiles(FakeProfileCfg *store)
{
    for (int index = 0; index < KeyCount; ++index) {
        store->profile(0, 0).keys[std::size_t(index)] = plainKey(ushort(4 + index));
        store->profile(0, 1).keys[std::size_t(index)] = gameKey(ushort(466 + index % 12));
    }
}

void measureShowing(VantrixMapWid *page, const QList<QPushButton *> &plainKeys)
{
    int turn = 0;
    printRatio(
        "show another profile, all keys differ", 41,
        [&] {
            page->updateUi(++turn % 2);
            QCoreApplication::processEvents();
        },
        [&] { restyle(plainKeys, turn); });
    printRatio(
        "show the same profile again", 41,
        [&] {
            page->updateUi(0);
            QCoreApplication::processEvents();
        },
        [&] { restyle(plainKeys, turn); });
}

void measureClick(VantrixMapWid *page, QPushButton *plainKey)
{
    page->updateUi(0);
    child<QPushButton>(page, "key_7")->click();
    auto *const first = child<QPushButton>(page, "btn_48");
    auto *const second = child<QPushButton>(page, "btn_30");
    int turn = 0;
    printRatio(
        "from a click to the painted key", 101,
        [&] {
            (++turn % 2 ? first : second)->click();
            QCoreApplication::processEvents();
        },
        [&] { restyle({plainKey}, ++turn); });
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    QApplication app(argc, argv);
    FakeProfileCfg store;
    FakeEnvironment environment;
    FakeSystemHotKey hotKeys;
    FakeParse parse;
    fillProfiles(&store);

    QWidget window;
    window.resize(PageSize);
    environment.mainWidget = &window;
    auto *const page = new VantrixMapWid(0, &window);
    page->resize(PageSize);
    showNow(&window);
    page->updateUi(0);
    const int buttonCount = page->findChildren<QPushButton *>().size();
    std::printf("%d buttons\n", buttonCount);
    printRatioHeader();

    printRatio(
        "build and show a page", 9,
        [] {
            VantrixMapWid fresh(0);
            fresh.resize(PageSize);
            showNow(&fresh);
            fresh.updateUi(0);
            QCoreApplication::processEvents();
        },
        [buttonCount] { showNow(plainButtons(buttonCount).get()); });

    const auto plain = plainButtons(KeyCount);
    showNow(plain.get());
    const auto plainKeys = plain->findChildren<QPushButton *>();
    measureShowing(page, plainKeys);
    measureClick(page, plainKeys.first());

    QThreadPool::globalInstance()->waitForDone();
    return 0;
}
