#include "panels/SidePanelWid.h"

#include "interfaces/ButtonGroupEx.h"
#include "panels/PanelBtn.h"
#include "panels/PanelWid.h"
#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QLabel>
#include <QLayout>
#include <QSignalSpy>

namespace {

/// The group whose ids are the presets' numbers.
ButtonGroupEx *presetsOf(const SidePanelWid &panel)
{
    const auto groups = panel.findChildren<ButtonGroupEx *>();
    for (ButtonGroupEx *group : groups) {
        if (group->button(8))
            return group;
    }
    return nullptr;
}

QList<PanelWid *> foldersOf(const SidePanelWid &panel)
{
    return panel.findChildren<PanelWid *>();
}

PanelBtn *mainOf(const PanelWid *folder)
{
    return child<PanelBtn>(folder, "m_main");
}

QStringList textsOf(const PanelBtn *button)
{
    QStringList texts;
    const auto labels = button->findChildren<QLabel *>();
    for (const QLabel *label : labels)
        texts << label->text();
    texts.sort();
    return texts;
}

} // namespace

class tst_SidePanelWid : public QObject
{
    Q_OBJECT

private slots:
    void form();
    void groupsAndPresets();
    void sheetsAndSizes();
    void clickAppliesAndHides_data();
    void clickAppliesAndHides();
    void secondClickAppliesAgain();
    void spaceApplies();
    void setCurrentPanelIsSilent();
    void groupsFold();
    void groupsNeverApply();
    void oneGroupIsOpen();
    void openGroupHasItsRoom();
    void clicksBelowTheGroupsPass();
    void clicksOnTheNameReachTheButton();
    void losingTheFocusLeavesItOpen();
};

void tst_SidePanelWid::form()
{
    const SidePanelWid panel;
    QCOMPARE(panel.size(), QSize(216, 179));
    QCOMPARE(panel.minimumHeight(), 90);
    QCOMPARE(panel.focusPolicy(), Qt::StrongFocus);
    QCOMPARE(child<QLayout>(&panel, "m_layout")->spacing(), 1);
    QCOMPARE(child<QLayout>(&panel, "verticalLayout_2")->spacing(), 0);
}

void tst_SidePanelWid::groupsAndPresets()
{
    const SidePanelWid panel;
    const auto folders = foldersOf(panel);
    QCOMPARE(folders.size(), 3);
    const QList<QStringList> mains = {
        {"K", "Keyboard"}, {"G", "Gaming"}, {"A", "Creative Application"}};
    const QList<QStringList> presets = {
        {"Standard WASD", "W"}, {"E", "Standard ESDF"}, {"N", "Numpad Mode"},
        {"F", "FPS Mode"},      {"Driving Mode", "E"},  {"A", "Adv. Flight Mode"},
        {"P", "Photoshop"},     {"I", "Illustrator"},   {"PP", "Premiere Pro"}};
    for (int i = 0; i < 3; ++i) {
        QStringList expected = mains[i];
        expected.sort();
        QCOMPARE(textsOf(mainOf(folders[i])), expected);
        const auto *const list = child<QLayout>(folders[i], "m_panelLayout");
        QCOMPARE(list->count(), 3);
        for (int j = 0; j < 3; ++j)
            QCOMPARE(list->itemAt(j)->widget(), presetsOf(panel)->button(3 * i + j));
        QVERIFY(presetsOf(panel)->id(mainOf(folders[i])) < 0);
    }
    for (int number = 0; number < 9; ++number) {
        const auto *const button = qobject_cast<PanelBtn *>(presetsOf(panel)->button(number));
        QStringList expected = presets[number];
        expected.sort();
        QCOMPARE(textsOf(button), expected);
        QVERIFY(presets[number].contains(button->accessibleName()));
    }
    QVERIFY(!presetsOf(panel)->button(9));
}

void tst_SidePanelWid::sheetsAndSizes()
{
    QWidget page;
    SidePanelWid panel(&page);
    panel.resize(216, 179);
    page.show();
    const PanelWid *const folder = foldersOf(panel).first();
    mainOf(folder)->click();
    QCoreApplication::processEvents();
    const auto *const preset = qobject_cast<PanelBtn *>(presetsOf(panel)->button(0));
    const QString base = QStringLiteral("QPushButton{background:rgb(25,25,25);border:none;"
                                        "min-height:25px;font-size:12px;}"
                                        ":hover{background:rgb(81,81,81);}");
    QCOMPARE(mainOf(folder)->styleSheet(), base + QStringLiteral(":checked{}"));
    QCOMPARE(preset->styleSheet(), base + QStringLiteral(":checked{background:rgb(132,49,155)}"));
    for (const PanelBtn *button : {static_cast<const PanelBtn *>(mainOf(folder)), preset}) {
        QCOMPARE(button->height(), 25);
        QCOMPARE(button->minimumHeight(), 25);
        const auto labels = button->findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            if (label->text().size() > 2) {
                QCOMPARE(label->styleSheet(), QStringLiteral("QLabel{font-size:12px;}:hover{}"));
                continue;
            }
            QCOMPARE(label->size(), QSize(20, 20));
            QCOMPARE(label->alignment(), Qt::AlignCenter);
            QCOMPARE(label->styleSheet(),
                     QStringLiteral("background:black;color:white;border:none;min-height:20px;"));
            QCOMPARE(label->x(), button == preset ? 72 : 10);
        }
    }
}

void tst_SidePanelWid::clickAppliesAndHides_data()
{
    QTest::addColumn<int>("preset");
    QTest::addColumn<int>("input");
    const std::vector<int> inputs = {0, 0, 0, 4, 4, 4, 5, 5, 5};
    for (int preset = 0; preset < 9; ++preset)
        QTest::addRow("preset %d", preset) << preset << inputs[std::size_t(preset)];
}

void tst_SidePanelWid::clickAppliesAndHides()
{
    QFETCH(int, preset);
    QFETCH(int, input);
    SidePanelWid panel;
    panel.show();
    mainOf(foldersOf(panel)[preset / 3])->click();
    QSignalSpy spy(&panel, &SidePanelWid::sigPanelChanged);
    clickOn(presetsOf(panel)->button(preset));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0), (QList<QVariant>{input, preset}));
    QVERIFY(panel.isHidden());
    QVERIFY(presetsOf(panel)->button(preset)->isChecked());
}

void tst_SidePanelWid::secondClickAppliesAgain()
{
    SidePanelWid panel;
    panel.setCurrentPanel(3);
    QSignalSpy spy(&panel, &SidePanelWid::sigPanelChanged);
    for (int i = 1; i <= 3; ++i) {
        panel.show();
        presetsOf(panel)->button(3)->click();
        QCOMPARE(spy.count(), i);
        QCOMPARE(spy.last(), (QList<QVariant>{4, 3}));
        QVERIFY(presetsOf(panel)->button(3)->isChecked());
        QVERIFY(panel.isHidden());
    }
}

void tst_SidePanelWid::spaceApplies()
{
    SidePanelWid panel;
    panel.show();
    mainOf(foldersOf(panel)[2])->click();
    QSignalSpy spy(&panel, &SidePanelWid::sigPanelChanged);
    pressKey(presetsOf(panel)->button(7), Qt::Key_Space);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0), (QList<QVariant>{5, 7}));
}

void tst_SidePanelWid::setCurrentPanelIsSilent()
{
    SidePanelWid panel;
    QSignalSpy spy(&panel, &SidePanelWid::sigPanelChanged);
    for (int preset = 0; preset < 9; ++preset) {
        panel.setCurrentPanel(preset);
        QCOMPARE(presetsOf(panel)->id(presetsOf(panel)->checkedButton()), preset);
    }
    for (const int other : {9, -1, 28, -2})
        panel.setCurrentPanel(other);
    QCOMPARE(presetsOf(panel)->id(presetsOf(panel)->checkedButton()), 8);
    QCOMPARE(spy.count(), 0);
}

void tst_SidePanelWid::groupsFold()
{
    SidePanelWid panel;
    panel.show();
    const PanelWid *const gaming = foldersOf(panel)[1];
    const auto *const list = child<QWidget>(gaming, "m_panel");
    QVERIFY(list->isHidden());
    QCOMPARE(gaming->height(), 25);
    QCOMPARE(list->height(), 78);
    clickOn(mainOf(gaming));
    QVERIFY(list->isVisible());
    QCOMPARE(gaming->height(), 103);
    clickOn(mainOf(gaming));
    QVERIFY(list->isHidden());
    QCOMPARE(gaming->height(), 25);
}

void tst_SidePanelWid::groupsNeverApply()
{
    SidePanelWid panel;
    panel.setCurrentPanel(4);
    panel.show();
    QSignalSpy spy(&panel, &SidePanelWid::sigPanelChanged);
    const auto folders = foldersOf(panel);
    for (const PanelWid *folder : folders) {
        clickOn(mainOf(folder));
        clickOn(mainOf(folder));
    }
    QCOMPARE(spy.count(), 0);
    QVERIFY(panel.isVisible());
    QVERIFY(presetsOf(panel)->button(4)->isChecked());
}

void tst_SidePanelWid::oneGroupIsOpen()
{
    QWidget page;
    SidePanelWid panel(&page);
    panel.resize(126, 179);
    page.show();
    const auto folders = foldersOf(panel);
    for (const PanelWid *open : folders) {
        clickOn(mainOf(open));
        QCoreApplication::processEvents();
        int bottom = -1;
        for (const PanelWid *folder : folders) {
            QCOMPARE(folder->height(), folder == open ? 103 : 25);
            QVERIFY(folder->y() > bottom);
            bottom = folder->geometry().bottom();
        }
        QVERIFY(bottom < 179);
        QCOMPARE(open->width(), 126);
    }
    QCOMPARE(panel.size(), QSize(126, 179));
}

void tst_SidePanelWid::openGroupHasItsRoom()
{
    QWidget page;
    SidePanelWid panel(&page);
    panel.resize(108, 90);
    page.show();
    const auto folders = foldersOf(panel);
    clickOn(mainOf(folders[1]));
    QCoreApplication::processEvents();
    QVERIFY(panel.height() >= 155);
    int bottom = -1;
    for (const PanelWid *folder : folders) {
        QVERIFY(folder->y() > bottom);
        bottom = folder->geometry().bottom();
    }
    QVERIFY(bottom < panel.height());
    clickOn(mainOf(folders[1]));
    QCOMPARE(panel.minimumHeight(), 90);
}

void tst_SidePanelWid::clicksBelowTheGroupsPass()
{
    QWidget page;
    page.resize(300, 300);
    QWidget below(&page);
    below.resize(300, 300);
    SidePanelWid panel(&page);
    page.show();
    const auto bottomIsAt = [&](int height) {
        QVERIFY(panel.isAncestorOf(page.childAt(100, height - 1)));
        for (int y = height; y < 300; ++y)
            QCOMPARE(page.childAt(100, y), &below);
    };
    // Three heads of 25, and under an open one its three presets of 26.
    bottomIsAt(77);
    const auto folders = foldersOf(panel);
    clickOn(mainOf(folders[2]));
    QCoreApplication::processEvents();
    bottomIsAt(155);
    clickOn(mainOf(folders[2]));
    QCoreApplication::processEvents();
    bottomIsAt(77);
}

void tst_SidePanelWid::clicksOnTheNameReachTheButton()
{
    SidePanelWid panel;
    panel.show();
    PanelBtn *const main = mainOf(foldersOf(panel).first());
    const auto labels = main->findChildren<QLabel *>();
    QCOMPARE(labels.size(), 2);
    for (const QLabel *label : labels)
        QCOMPARE(main->childAt(label->geometry().center()), nullptr);
}

void tst_SidePanelWid::losingTheFocusLeavesItOpen()
{
    SidePanelWid panel;
    panel.show();
    QFocusEvent event(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QCoreApplication::sendEvent(&panel, &event);
    QVERIFY(panel.isVisible());
}

VANTRIX_TEST_MAIN(tst_SidePanelWid)
#include "tst_SidePanelWid.moc"
