#include "application/ApplicationWid.h"

#include "application/AppPathDlg.h"
#include "application/ApplicationBtn.h"
#include "application/FuncBtn.h"
#include "fakes/FakeProfileCfg.h"
#include "interfaces/ButtonGroupEx.h"
#include "interfaces/Modal.h"
#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QSignalSpy>

namespace {

struct Function
{
    const char *name;
    const char *picture;
    const char *hint;
};

// clang-format off
const Function functions[3][19] = {
    {
        {"A1", "", "Play Action 1. Please assign F2 to an Action in Photoshop"},
        {"A2", "", "Play Action 2. Please assign F3 to an Action in Photoshop"},
        {"A3", "", "Play Action 3. Please assign F4 to an Action in Photoshop"},
        {"BLUR", "blur", "To use Presso(Pressure Sensitive) Blur,\nplease assign N to Blur Tool in Photoshop(Alt+Shift+Ctrl+K)"},
        {"BRUSH SIZE", "brush_size", ""},
        {"BRUSH HARDNESS", "brush_hardness", ""},
        {"CROP", "crop", ""},
        {"CLONE STAMP", "clone_stamp", ""},
        {"DODGE", "dodge", ""},
        {"EYEDROP", "eyedrop", ""},
        {"LASSO", "lasso", ""},
        {"LAUNCH PS", "ps", ""},
        {"MOVE", "move", ""},
        {"RECTANGULAR MARQUEE", "marquee", ""},
        {"MAGNIFYING", "magnifying", ""},
        {"PEN", "pen", ""},
        {"POINTER", "pointer", ""},
        {"QUICK SELECTION", "quick_selection", ""},
        {"TEXT", "text", ""},
    },
    {
        {"BACKWARD", "backward", ""},
        {"COMPARISON", "comparison", "COMPARISON\nPlease assign F2 to Comparison Tool in Premiere Pro(Ctrl+Alt+K)"},
        {"FORWARD", "forward", ""},
        {"GO TO IN", "go_to_in", ""},
        {"GO TO OUT", "go_to_out", ""},
        {"HAND", "hand", ""},
        {"LAUNCH PR", "pr", ""},
        {"MARK IN", "mark_in", ""},
        {"MARK OUT", "mark_out", ""},
        {"PEN", "pen", ""},
        {"PLAY-STOP TOGGLE", "play_stop_toggle", ""},
        {"RAZOR", "razor", ""},
        {"RIPPLE EDIT", "ripple", ""},
        {"SLIP", "slip", ""},
        {"STEP BACK 1 FRAME", "step_back", ""},
        {"STEP FORWARD 1 FRAME", "step_forward", ""},
        {"SELECTION", "selection", ""},
        {"TEXT", "text", ""},
        {"TRACK SELECT FORWARD", "track_select", ""},
    },
    {
        {"A1", "", "Play Action 1. Please assign F2 to an Action in Illustrator"},
        {"A2", "", "Play Action 2. Please assign F3 to an Action in Illustrator"},
        {"A3", "", "Play Action 3. Please assign F4 to an Action in Illustrator"},
        {"ARTBOARD", "artboard", ""},
        {"BRUSH SIZE", "brush_size", ""},
        {"BRUSH OPACITY", "brush_hardness", ""},
        {"DIRECT SELECTION", "direct_selection", ""},
        {"ELLIPSE", "ellipse", ""},
        {"EYEDROP", "eyedrop", ""},
        {"LASSO", "lasso", ""},
        {"LAUNCH AI", "ai", ""},
        {"MAGNIFYING", "magnifying", ""},
        {"PEN", "pen", ""},
        {"POLYGON", "polygon", "POLYGON\nPlease assign 2 to Polygon Tool in Illustrator(Alt+Shift+Ctrl+K)"},
        {"ROTATE", "rotate", ""},
        {"RECTANGLE", "rectangle", ""},
        {"ROUNDED RECTANGLE", "rounded_rect", "ROUNDED RECTANGLE\nPlease assign 1 to Rounded Rectangle Tool in Illustrator(Alt+Shift+Ctrl+K)"},
        {"SELECTION", "selection", ""},
        {"TEXT", "text", ""},
    },
};
// clang-format on

const char *const titles[] = {"PHOTOSHOP", "PREMIERE PRO", "ILLUSTRATOR"};
const char *const folders[] = {"PS", "PR", "AI"};

using Assigned = QPair<int, int>;

} // namespace

class tst_ApplicationWid : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void forms();
    void sections();
    void functionsInOrder_data() { applications(); }
    void functionsInOrder();
    void unknownApplication();
    void sheets();
    void clickSecondClickSpace_data() { applications(); }
    void clickSecondClickSpace();
    void headersOpenOneSection();
    void headersAssignNothing();
    void selectionOpensItsSection_data() { applications(); }
    void selectionOpensItsSection();
    void selectionIsInViewLater();
    void selectionOfAnotherKeepsTheCheck();
    void selectionMovesTheCheck();
    void aClickTakesTheCheckOfOthers();
    void unknownSelections_data();
    void unknownSelections();
    void resetClosesEverything();
    void folderButtonGeometry_data();
    void folderButtonGeometry();
    void folderButtonOfAClosedSection_data() { applications(); }
    void folderButtonOfAClosedSection();
    void folderButtonLeavesTheHeaderAlone();
    void windowGoesDuringTheDialog();
    void headerShowsWhereItIsLow();
    void staysInside_data();
    void staysInside();

private:
    void applications();
    ApplicationBtn *section(int appType)
    {
        return qobject_cast<ApplicationBtn *>(m_sections->itemAt(appType)->widget());
    }
    QPushButton *header(int appType) { return child<QPushButton>(section(appType), "m_typeBtn"); }
    QScrollArea *list(int appType) { return child<QScrollArea>(section(appType), "m_funcList"); }
    QPushButton *folder(int appType) { return child<QPushButton>(section(appType), "m_folderBtn"); }
    FuncBtn *function(int appType, int id)
    {
        auto *const group = section(appType)->findChild<ButtonGroupEx *>();
        return qobject_cast<FuncBtn *>(group->button(id));
    }
    int checkedFunction(int appType)
    {
        return section(appType)->findChild<ButtonGroupEx *>()->checkedId();
    }
    QVector<bool> open()
    {
        return {list(0)->isVisible(), list(1)->isVisible(), list(2)->isVisible()};
    }

    std::unique_ptr<FakeProfileCfg> m_store;
    std::unique_ptr<QWidget> m_window;
    ApplicationWid *m_panel = nullptr;
    QBoxLayout *m_sections = nullptr;
    QVector<Assigned> m_assigned;
};

void tst_ApplicationWid::init()
{
    m_store = std::make_unique<FakeProfileCfg>();
    m_window = std::make_unique<QWidget>();
    m_window->resize(700, 500);
    m_panel = new ApplicationWid(m_window.get());
    m_panel->resize(600, 400);
    auto *const content = child<QScrollArea>(m_panel, "scrollArea")->widget();
    m_sections = child<QBoxLayout>(content, "m_layout");
    connect(m_panel, &ApplicationWid::sigApplicationAssigned, this,
            [this](int appType, int id) { m_assigned << Assigned(appType, id); });
    m_window->show();
    m_assigned.clear();
}

void tst_ApplicationWid::cleanup()
{
    Modal::setAnswerer(nullptr);
    m_window.reset();
    m_store.reset();
}

void tst_ApplicationWid::applications()
{
    QTest::addColumn<int>("appType");
    for (int appType = 0; appType < 3; ++appType)
        QTest::newRow(titles[appType]) << appType;
}

void tst_ApplicationWid::forms()
{
    const ApplicationWid panel;
    QCOMPARE(panel.size(), QSize(261, 98));
    QCOMPARE(child<QWidget>(&panel, "widget")->styleSheet(),
             QStringLiteral("background:rgb(51,51,51);"));
    const auto *const area = child<QScrollArea>(&panel, "scrollArea");
    QCOMPARE(area->styleSheet(), QStringLiteral("QScrollArea{border:none;}"));
    QVERIFY(area->widgetResizable());
    const auto *const margins = child<QWidget>(&panel, "widget")->layout();
    QCOMPARE(margins->contentsMargins(), QMargins(15, 15, 15, 15));

    const ApplicationBtn sectionWid(0, nullptr);
    QCOMPARE(sectionWid.size(), QSize(372, 181));
    QCOMPARE(sectionWid.layout()->spacing(), 1);
    const auto *const functionList = child<QScrollArea>(&sectionWid, "m_funcList");
    QVERIFY(functionList->widgetResizable());
    QCOMPARE(functionList->verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
}

void tst_ApplicationWid::sections()
{
    QCOMPARE(m_sections->count(), 3);
    QCOMPARE(m_sections->spacing(), 1);
    for (int appType = 0; appType < 3; ++appType) {
        QCOMPARE(header(appType)->text(), QLatin1String(titles[appType]));
        QCOMPARE(section(appType)->typeButton(), header(appType));
        QVERIFY(header(appType)->isCheckable());
        QVERIFY(!header(appType)->isChecked());
    }
    QCOMPARE(open(), QVector<bool>({false, false, false}));
}

void tst_ApplicationWid::functionsInOrder()
{
    QFETCH(int, appType);
    auto *const layout = child<QBoxLayout>(list(appType)->widget(), "m_layout");
    QCOMPARE(layout->count(), 19);
    QCOMPARE(layout->spacing(), 1);
    for (int id = 0; id < 19; ++id) {
        const Function &expected = functions[appType][id];
        FuncBtn *const button = function(appType, id);
        QCOMPARE(layout->itemAt(id)->widget(), button);
        QVERIFY(button->isCheckable() && !button->isChecked());
        QCOMPARE(button->text(), QLatin1String(expected.name));
        QCOMPARE(button->toolTip(), QLatin1String(expected.hint));
        const QString stem = QLatin1String(expected.picture);
        QCOMPARE(button->icon().isNull(), stem.isEmpty());
        if (stem.isEmpty())
            continue;
        const QString path = QStringLiteral(":/VantrixMap/Application/%1/%2.png")
                                 .arg(QLatin1String(folders[appType]), stem);
        QCOMPARE(button->icon().pixmap(16, 16).toImage(), QIcon(path).pixmap(16, 16).toImage());
        QVERIFY(!button->icon().pixmap(16, 16).isNull());
    }
}

void tst_ApplicationWid::unknownApplication()
{
    const ApplicationBtn unknown(3, nullptr);
    QCOMPARE(unknown.typeButton()->text(), QStringLiteral("UNKNOWN"));
    QVERIFY(unknown.findChildren<FuncBtn *>().isEmpty());
}

void tst_ApplicationWid::sheets()
{
    QCOMPARE(header(0)->styleSheet(),
             QStringLiteral("QPushButton{background:rgb(25,25,25);border:none;color:white;"
                            "min-height:30px;font-size:11px;}\n"
                            ":hover{background:rgba(255,255,255,50)}\n"
                            ":checked{background:rgb(246,235,20);color:black;}"));
    QCOMPARE(function(0, 0)->styleSheet(),
             QStringLiteral("QPushButton{background:rgb(36,36,36);border:none;color:white;"
                            "font-size:10px;min-height:30px;}"
                            ":hover{background:rgba(255,255,255,50);}"
                            ":checked{background:rgb(141,136,28)}"
                            "QToolTip{ background:rgb(204,0,255);border:none;color:white;"
                            "font-size:11px;opacity: 200; }"));
    QCOMPARE(folder(0)->styleSheet(),
             QStringLiteral("QPushButton{background:transparent;border:none;"
                            "image:url(:/VantrixMap/Application/dir.png);min-height:1px;}"));
}

void tst_ApplicationWid::clickSecondClickSpace()
{
    QFETCH(int, appType);
    clickOn(header(appType));
    QVector<Assigned> expected;
    for (int id = 0; id < 19; ++id) {
        FuncBtn *const button = function(appType, id);
        list(appType)->ensureWidgetVisible(button);
        clickOn(button);
        expected << Assigned(appType, id);
        QCOMPARE(checkedFunction(appType), id);
        clickOn(button);
        expected << Assigned(-1, -1);
        QCOMPARE(checkedFunction(appType), -1);
        QVERIFY(list(appType)->isVisible());
        pressKey(button, Qt::Key_Space);
        expected << Assigned(appType, id);
    }
    QCOMPARE(m_assigned, expected);
}

void tst_ApplicationWid::headersOpenOneSection()
{
    clickOn(header(0));
    QCOMPARE(open(), QVector<bool>({true, false, false}));
    clickOn(header(2));
    QCOMPARE(open(), QVector<bool>({false, false, true}));
    clickOn(header(2));
    QCOMPARE(open(), QVector<bool>({false, false, false}));
}

void tst_ApplicationWid::headersAssignNothing()
{
    for (int appType = 0; appType < 3; ++appType) {
        clickOn(header(appType));
        clickOn(header(appType));
        clickOn(header(appType));
    }
    QVERIFY(m_assigned.isEmpty());
    QCOMPARE(m_store->writes(), QStringList());
}

void tst_ApplicationWid::selectionOpensItsSection()
{
    QFETCH(int, appType);
    for (int id = 0; id < 19; ++id) {
        emit m_panel->sigApplicationSelected(appType, id);
        for (int other = 0; other < 3; ++other)
            QCOMPARE(list(other)->isVisible(), other == appType);
        QCOMPARE(checkedFunction(appType), id);
        QVERIFY(!function(appType, id)->visibleRegion().isEmpty());
    }
    QVERIFY(m_assigned.isEmpty());
    QCOMPARE(m_store->writes(), QStringList());
}

void tst_ApplicationWid::selectionIsInViewLater()
{
    // The panel gets to know the key's function before the page turns to it.
    m_window->hide();
    emit m_panel->sigApplicationSelected(1, 18);
    m_window->show();
    const auto isInView = [this] {
        const FuncBtn *const button = function(1, 18);
        return button->visibleRegion().boundingRect() == button->rect();
    };
    QVERIFY(isInView());
    for (const QSize &size : {QSize(522, 196), QSize(900, 600), QSize(300, 170)}) {
        m_window->resize(size);
        m_panel->resize(size);
        QCoreApplication::processEvents();
        QVERIFY2(isInView(), qPrintable(QString::number(size.height())));
    }
}

void tst_ApplicationWid::selectionOfAnotherKeepsTheCheck()
{
    emit m_panel->sigApplicationSelected(0, 5);
    emit m_panel->sigApplicationSelected(1, 7);
    QCOMPARE(open(), QVector<bool>({false, true, false}));
    QCOMPARE(checkedFunction(0), 5);
    QCOMPARE(checkedFunction(1), 7);
}

void tst_ApplicationWid::selectionMovesTheCheck()
{
    clickOn(header(1));
    clickOn(function(1, 0));
    m_assigned.clear();
    emit m_panel->sigApplicationSelected(1, 18);
    QVERIFY(!function(1, 0)->isChecked());
    QVERIFY(function(1, 18)->isChecked());
    QVERIFY(m_assigned.isEmpty());
}

void tst_ApplicationWid::aClickTakesTheCheckOfOthers()
{
    const auto pick = [this](int appType, int id) {
        if (!header(appType)->isChecked())
            clickOn(header(appType));
        list(appType)->ensureWidgetVisible(function(appType, id));
        clickOn(function(appType, id));
    };
    const auto checked = [this] {
        return QVector<int>{checkedFunction(0), checkedFunction(1), checkedFunction(2)};
    };
    pick(0, 1);
    pick(2, 2);
    QCOMPARE(checked(), QVector<int>({-1, -1, 2}));
    pick(0, 1);
    QCOMPARE(checked(), QVector<int>({1, -1, -1}));
    pick(1, 17);
    QCOMPARE(checked(), QVector<int>({-1, 17, -1}));
    QCOMPARE(open(), QVector<bool>({false, true, false}));
    QCOMPARE(m_assigned,
             QVector<Assigned>({Assigned(0, 1), Assigned(2, 2), Assigned(0, 1), Assigned(1, 17)}));
}

void tst_ApplicationWid::unknownSelections_data()
{
    QTest::addColumn<int>("appType");
    QTest::addColumn<int>("id");
    QTest::addColumn<QVector<bool>>("opened");
    QTest::newRow("type 3") << 3 << 0 << QVector<bool>{false, false, false};
    QTest::newRow("type -1") << -1 << -1 << QVector<bool>{false, false, false};
    QTest::newRow("function 19") << 1 << 19 << QVector<bool>{false, true, false};
    QTest::newRow("function 255") << 1 << 255 << QVector<bool>{false, true, false};
}

void tst_ApplicationWid::unknownSelections()
{
    QFETCH(int, appType);
    QFETCH(int, id);
    QFETCH(QVector<bool>, opened);
    emit m_panel->sigApplicationSelected(appType, id);
    QCOMPARE(open(), opened);
    for (int other = 0; other < 3; ++other)
        QCOMPARE(checkedFunction(other), -1);
    QVERIFY(m_assigned.isEmpty());
}

void tst_ApplicationWid::resetClosesEverything()
{
    emit m_panel->sigApplicationSelected(0, 5);
    emit m_panel->sigApplicationSelected(1, 7);
    const QSignalSpy reset(m_panel, &ApplicationWid::sigVantrixKeySelected);
    m_panel->resetPanel();
    QCOMPARE(reset.count(), 1);
    QCOMPARE(open(), QVector<bool>({false, false, false}));
    for (int appType = 0; appType < 3; ++appType) {
        QVERIFY(!header(appType)->isChecked());
        QCOMPARE(checkedFunction(appType), -1);
    }
    QVERIFY(m_assigned.isEmpty());
}

void tst_ApplicationWid::folderButtonGeometry_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("folder");
    // The header is as wide as the section and 30 high: 1/12 of the width, half the height,
    // 5 from the right.
    QTest::newRow("design") << QSize(372, 181) << QRect(336, 7, 31, 15);
    QTest::newRow("half") << QSize(186, 90) << QRect(166, 7, 15, 15);
    QTest::newRow("double") << QSize(744, 362) << QRect(677, 7, 62, 15);
    QTest::newRow("very wide") << QSize(2400, 181) << QRect(2195, 7, 200, 15);
    QTest::newRow("very tall") << QSize(300, 1200) << QRect(270, 7, 25, 15);
}

void tst_ApplicationWid::folderButtonGeometry()
{
    QFETCH(QSize, size);
    QFETCH(QRect, folder);
    QWidget window;
    auto *const panel = new ApplicationWid(&window);
    ApplicationBtn sectionWid(0, panel);
    sectionWid.typeButton()->setChecked(true);
    sectionWid.resize(size);
    window.show();
    QCOMPARE(sectionWid.size(), size);
    QCOMPARE(sectionWid.typeButton()->geometry(), QRect(0, 0, size.width(), 30));
    QCOMPARE(child<QPushButton>(&sectionWid, "m_folderBtn")->geometry(), folder);
}

void tst_ApplicationWid::folderButtonOfAClosedSection()
{
    QFETCH(int, appType);
    m_store->setAppPath(appType, QStringLiteral("/a b/c.exe"));
    QStringList seen;
    QPointer<QWidget> parent;
    Modal::setAnswerer([&](const ModalPrompt &prompt) {
        parent = prompt.parent;
        seen << child<QLabel>(prompt.dialog, "m_typeDesc")->text()
             << child<QLineEdit>(prompt.dialog, "m_path")->text();
        return 0;
    });
    clickOn(folder(appType));
    QCOMPARE(seen, QStringList({QLatin1String(titles[appType]), QStringLiteral("/a b/c.exe")}));
    QCOMPARE(parent.data(), m_window.get());
    QVERIFY(m_window->findChildren<AppPathDlg *>().isEmpty());
}

void tst_ApplicationWid::folderButtonLeavesTheHeaderAlone()
{
    Modal::setAnswerer([](const ModalPrompt &) { return 0; });
    clickOn(folder(0));
    QCOMPARE(open(), QVector<bool>({false, false, false}));
    clickOn(header(0), QPoint(20, 15));
    QCOMPARE(open(), QVector<bool>({true, false, false}));
    clickOn(folder(0));
    QCOMPARE(open(), QVector<bool>({true, false, false}));
    QVERIFY(m_assigned.isEmpty());
}

void tst_ApplicationWid::windowGoesDuringTheDialog()
{
    QPointer<QWidget> dialog;
    Modal::setAnswerer([&](const ModalPrompt &prompt) {
        dialog = prompt.dialog.data();
        delete prompt.dialog.data();
        return 0;
    });
    clickOn(folder(1));
    QVERIFY(dialog.isNull());
}

void tst_ApplicationWid::headerShowsWhereItIsLow()
{
    emit m_panel->sigApplicationSelected(0, 5);
    m_panel->resize(130, 49);
    QCoreApplication::processEvents();
    QCOMPARE(header(0)->visibleRegion().boundingRect().height(), 30);
    m_panel->resize(261, 98);
    QCoreApplication::processEvents();
    const auto *const layout = child<QLayout>(m_panel, "verticalLayout_2");
    QCOMPARE(layout->contentsMargins(), QMargins(15, 15, 15, 15));
}

void tst_ApplicationWid::staysInside_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("design") << QSize(261, 98);
    QTest::newRow("half") << QSize(130, 49);
    QTest::newRow("double") << QSize(522, 196);
    QTest::newRow("very wide") << QSize(2400, 120);
    QTest::newRow("very tall") << QSize(300, 1200);
}

void tst_ApplicationWid::staysInside()
{
    QFETCH(QSize, size);
    m_panel->resize(size);
    for (int opened = -1; opened < 3; ++opened) {
        emit m_panel->sigApplicationSelected(opened, 0);
        QCoreApplication::processEvents();
        QCOMPARE(m_panel->size(), size);
        const auto *const area = child<QScrollArea>(m_panel, "scrollArea");
        QVERIFY(m_panel->rect().contains(QRect(area->mapTo(m_panel, QPoint()), area->size())));
        for (int appType = 0; appType < 3; ++appType) {
            QVERIFY(header(appType)->geometry().contains(folder(appType)->geometry()));
            QCOMPARE(header(appType)->geometry().top(), 0);
            if (appType > 0)
                QVERIFY(section(appType)->geometry().top() >
                        section(appType - 1)->geometry().bottom());
        }
    }
}

VANTRIX_TEST_MAIN(tst_ApplicationWid)
#include "tst_ApplicationWid.moc"
