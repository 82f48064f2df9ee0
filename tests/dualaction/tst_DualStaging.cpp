#include "core/VantrixKey.h"
#include "core/VantrixMapWid.h"
#include "dualaction/ActionAssignWid.h"
#include "dualaction/ActionWid.h"
#include "fakes/FakeProfileCfg.h"
#include "fakes/FakeServices.h"
#include "interfaces/ButtonGroupEx.h"
#include "interfaces/Modal.h"
#include "panels/MouseWid.h"
#include "support/DualKey.h"
#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QStackedWidget>
#include <QThreadPool>
#include <QVBoxLayout>
#include <QWindow>

#include <memory>

namespace {

struct StagedKey
{
    const char *kind;
    int key;
    int pick;       ///< the function that is staged
    int second = 0; ///< of a dual action that is there already, as its depth
    int depth = 50;
};

} // namespace

/// Dual actions on the whole page: staged key after key through the hole of the overlay, taken back
/// or applied.
class tst_DualStaging : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void stagedKeysLookStaged();
    void nothingIsStoredBeforeApply();
    void backRestores();
    void applyStores();
    void applyClearsTheExtrasFirst();
    void stagedValuesAreShownAgain();
    void backAfterApplyChangesNothing();
    void bothActions();
    void secondActionAcrossKeys();
    void leavingTheInputGoesBack();
    void anotherProfileDropsWhatIsStaged();
    void hole_data();
    void hole();
    void holeFollowsTheWindow();
    void keysInTheHoleCanBeClicked();
    void theRestCannotBeClicked();

private:
    struct Face
    {
        QString text;
        QString toolTip;
        QString styleSheet;
        QString spokenName;
        QImage picture;
        vantrix_key_mapping mapping;
    };

    FakeProfileCfg::Profile &profile() { return m_store->profile(5, 0); }
    VantrixKey *key(int index) const
    {
        return child<VantrixKey>(m_page, QStringLiteral("key_%1").arg(index));
    }
    ActionWid *action(int number) const
    {
        return child<ActionWid>(m_page, number == 1 ? "m_action1" : "m_action2");
    }
    ActionAssignWid *overlay() const { return m_window->findChild<ActionAssignWid *>("m_overlay"); }
    QLabel *picture() const;
    Face faceOf(int index) const;
    void compareFaces(int index, const Face &expected) const;
    void compareApplied(const StagedKey &staged);
    void clickAt(const QWidget *target) const;
    void open(int number, int input);
    void pick(int mouseCode);
    void close(const char *button);
    void stageAll();
    void resizeWindow(const QSize &size);
    int holeError() const;

    std::unique_ptr<FakeEnvironment> m_environment;
    std::unique_ptr<FakeSystemHotKey> m_hotKeys;
    std::unique_ptr<FakeProfileCfg> m_store;
    std::unique_ptr<FakeParse> m_parse;
    std::unique_ptr<QWidget> m_window;
    VantrixMapWid *m_page = nullptr;
    std::map<int, Face> m_before;
};

namespace {

// clang-format off
const std::vector<StagedKey> Staged = {
    {"default", 0, 496},
    {"plain", 1, 497},
    {"media", 2, 498},
    {"controller", 3, 488},
    {"macro", 4, 489},
    {"application", 5, 500},
    {"hot key", 6, 499},
    {"shortcut", 7, 481},
    {"dual", 8, 483, 497, 35},
    {"dual, combine", 9, 485, 6, 80},
    {"disabled", 11, 487},
    {"extended", 12, 496},
    {"backlight", 21, 497},
};
// clang-format on

/// What is in the store once a pick was applied: the simple panel writes the normal type.
vantrix_key_mapping appliedKey(const StagedKey &staged)
{
    vantrix_key_mapping record = dualKey(staged.pick, staged.second, 0, staged.depth);
    record.code = ushort(staged.pick);
    return record;
}

QString depthText(const StagedKey &staged)
{
    return QString::number(staged.depth) + QLatin1Char('%');
}

void fill(FakeProfileCfg::Profile &profile)
{
    profile.input = 6;
    for (std::size_t index = 0; index < 28; ++index)
        profile.keys[index] = clearedKey();
    profile.keys[1] = plainKey(27);
    profile.keys[2] = plainKey(240);
    profile.keys[3] = gameKey(462);
    profile.macros[4] = "Greeting";
    vantrix_app_assign app;
    app.appType = 0;
    app.funcId = 15;
    profile.apps[5] = app;
    vantrix_hotkey_assign hotKey;
    hotKey.hotKey = QStringLiteral("CTRL+S");
    hotKey.keyName = QStringLiteral("Save As Something Long");
    profile.hotKeys[6] = hotKey;
    profile.shortcuts[7] = 3;
    profile.keys[8] = dualKey(4, 497, 0, 35);
    profile.keys[9] = dualKey(5, 6, 2, 80);
    profile.keys[11] = plainKey(0);
    vantrix_extended_key extended;
    extended.code = 3073;
    profile.extended[12] = extended;
    profile.keys[21] = plainKey(385);
}

/// A region and all that is no farther from it than `distance`, measured along the axes.
QRegion grown(const QRegion &region, int distance)
{
    QRegion out;
    for (const QRect &rect : region)
        out += rect.adjusted(-distance, -distance, distance, distance);
    return out;
}

/// How far one of two regions reaches beyond the other at most.
int distanceOf(const QRegion &a, const QRegion &b)
{
    int distance = 0;
    while (!(a - grown(b, distance)).isEmpty() || !(b - grown(a, distance)).isEmpty())
        ++distance;
    return distance;
}

/// What is opaque in a picture; a shadow is not.
QRegion opaqueRegion(const QImage &picture)
{
    QRegion region;
    for (int y = 0; y < picture.height(); ++y) {
        int start = -1;
        for (int x = 0; x <= picture.width(); ++x) {
            const bool isOpaque = x < picture.width() && qAlpha(picture.pixel(x, y)) >= 200;
            if (isOpaque && start < 0)
                start = x;
            if (!isOpaque && start >= 0) {
                region += QRect(start, y, x - start, 1);
                start = -1;
            }
        }
    }
    return region;
}

} // namespace

void tst_DualStaging::init()
{
    m_environment = std::make_unique<FakeEnvironment>();
    m_hotKeys = std::make_unique<FakeSystemHotKey>();
    m_store = std::make_unique<FakeProfileCfg>();
    m_parse = std::make_unique<FakeParse>();
    m_window = std::make_unique<QWidget>();
    m_window->resize(784, 808);
    m_environment->mainWidget = m_window.get();
    Modal::setAnswerer([](const ModalPrompt &) { return QVariant(0); });
    m_page = new VantrixMapWid(5, m_window.get());
    auto *layout = new QVBoxLayout(m_window.get());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_page);
    fill(profile());
    m_page->slotAddKeyAssignMacro("Greeting");
    m_page->updateUi(0);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_before.clear();
    for (int index = 0; index < 28; ++index)
        m_before[index] = faceOf(index);
    m_store->clearLog();
}

void tst_DualStaging::cleanup()
{
    m_window.reset();
    QThreadPool::globalInstance()->waitForDone();
    Modal::setAnswerer(nullptr);
    m_parse.reset();
    m_store.reset();
    m_hotKeys.reset();
    m_environment.reset();
}

QLabel *tst_DualStaging::picture() const
{
    const auto labels = key(0)->window()->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (label->isVisible() && label->pixmap(Qt::ReturnByValue).height() > 200)
            return label;
    }
    return nullptr;
}

tst_DualStaging::Face tst_DualStaging::faceOf(int index) const
{
    VantrixKey *const button = key(index);
    return {button->fullText(),       button->toolTip(),        button->styleSheet(),
            button->accessibleName(), button->grab().toImage(), button->mapping()};
}

void tst_DualStaging::compareFaces(int index, const Face &expected) const
{
    const bool wasChecked = key(index)->isChecked();
    key(index)->setChecked(false);
    const Face face = faceOf(index);
    key(index)->setChecked(wasChecked);
    QCOMPARE(face.text, expected.text);
    QCOMPARE(face.toolTip, expected.toolTip);
    QCOMPARE(face.styleSheet, expected.styleSheet);
    QCOMPARE(face.spokenName, expected.spokenName);
    QCOMPARE(face.mapping, expected.mapping);
    QCOMPARE(face.picture, expected.picture);
}

/// A click on the window, which finds its own way to what lies uppermost there.
void tst_DualStaging::clickAt(const QWidget *target) const
{
    const QPoint place = target->mapTo(m_window.get(), target->rect().center());
    QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
}

void tst_DualStaging::open(int number, int input)
{
    if (child<QWidget>(action(number), "m_assignMenu")->isHidden())
        clickAt(child<QWidget>(action(number), "m_action"));
    clickAt(action(number)->findChild<QButtonGroup *>()->button(input));
    QVERIFY(overlay()->isVisible());
}

void tst_DualStaging::pick(int mouseCode)
{
    auto *group = child<MouseWid>(overlay(), "m_mouse")->findChild<ButtonGroupEx *>();
    group->button(mouseCode)->click();
}

void tst_DualStaging::close(const char *button)
{
    clickAt(child<QPushButton>(overlay(), button));
    QVERIFY(!overlay()->isVisible());
}

/// Key after key through the hole, the overlay open all the time.
void tst_DualStaging::stageAll()
{
    clickAt(key(Staged.front().key));
    open(1, 1);
    pick(Staged.front().pick);
    for (std::size_t i = 1; i < Staged.size(); ++i) {
        clickAt(key(Staged[i].key));
        QCOMPARE(profile().currentKey, Staged[i].key);
        pick(Staged[i].pick);
    }
    QVERIFY(overlay()->isVisible());
}

void tst_DualStaging::resizeWindow(const QSize &size)
{
    m_window->resize(size);
    QTRY_COMPARE(overlay()->size(), size);
    QCoreApplication::processEvents();
}

/// Farthest distance between the hole and the pad's outline.
int tst_DualStaging::holeError() const
{
    const QRegion window(m_window->rect());
    const QRegion hole = window - overlay()->mask();
    const QPixmap pad = picture()->pixmap(Qt::ReturnByValue);
    const QImage flat = pad.toImage().scaled(picture()->size());
    const QRegion outline =
        opaqueRegion(flat).translated(picture()->mapTo(m_window.get(), QPoint(0, 0)));
    return distanceOf(hole, outline & window);
}

void tst_DualStaging::stagedKeysLookStaged()
{
    stageAll();
    for (const StagedKey &staged : Staged) {
        const Face face = faceOf(staged.key);
        QVERIFY2(face.styleSheet.contains(QStringLiteral("border:2px solid #ff3cb878")),
                 staged.kind);
        QCOMPARE(ushort(face.mapping.digital.firstAction), ushort(staged.pick));
        QCOMPARE(int(face.mapping.digital.depth), staged.depth);
    }
    QCOMPARE(key(1)->fullText(), QStringLiteral("RIGHT\nCLICK"));
}

void tst_DualStaging::nothingIsStoredBeforeApply()
{
    const FakeProfileCfg::Profile before = profile();
    m_store->clearLog();
    stageAll();
    for (const QString &write : m_store->writes()) {
        QVERIFY2(write.startsWith(QLatin1String("setCurrentKey 5 0 ")) ||
                     write == QLatin1String("setProfileDirty 5 0 1"),
                 qPrintable(write));
    }
    QVERIFY(profile().keys == before.keys);
    QVERIFY(profile().apps == before.apps);
    QVERIFY(profile().hotKeys == before.hotKeys);
    QVERIFY(profile().shortcuts == before.shortcuts);
    QVERIFY(profile().extended == before.extended);
    QVERIFY(profile().macros == before.macros);
    m_store->clearLog();
    close("m_back");
    QCOMPARE(m_store->writes(), QStringList());
    QVERIFY(profile().keys == before.keys);
}

void tst_DualStaging::backRestores()
{
    stageAll();
    close("m_back");
    for (int index = 0; index < 28; ++index) {
        compareFaces(index, m_before.at(index));
        QVERIFY2(!QTest::currentTestFailed(), qPrintable(key(index)->objectName()));
    }
    // Nor does a later selection bring anything staged back.
    for (const StagedKey &staged : Staged)
        clickAt(key(staged.key));
    clickAt(key(22));
    for (const StagedKey &staged : Staged) {
        compareFaces(staged.key, m_before.at(staged.key));
        QVERIFY2(!QTest::currentTestFailed(), staged.kind);
    }
}

void tst_DualStaging::applyStores()
{
    stageAll();
    close("m_apply");
    for (const StagedKey &staged : Staged) {
        compareApplied(staged);
        QVERIFY2(!QTest::currentTestFailed(), staged.kind);
    }
    QVERIFY(profile().dirty);
}

void tst_DualStaging::compareApplied(const StagedKey &staged)
{
    const vantrix_key_mapping stored = profile().keys.at(std::size_t(staged.key));
    QCOMPARE(stored, appliedKey(staged));
    const auto held = uchar(staged.key);
    QCOMPARE(profile().apps.count(held), std::size_t(0));
    QCOMPARE(profile().hotKeys.count(held), std::size_t(0));
    QCOMPARE(profile().shortcuts.count(held), std::size_t(0));
    QCOMPARE(profile().extended.count(held), std::size_t(0));
    QCOMPARE(profile().macros.count(held), std::size_t(0));
    QCOMPARE(key(staged.key)->fullText(), depthText(staged));
    QVERIFY(key(staged.key)->styleSheet().contains(QStringLiteral("border:2px solid #ff3cb878")));
    QVERIFY(key(staged.key)->icon().isNull());
}

void tst_DualStaging::applyClearsTheExtrasFirst()
{
    clickAt(key(5));
    open(1, 1);
    pick(500);
    clickAt(key(4));
    pick(489);
    m_store->clearLog();
    close("m_apply");
    QStringList names;
    for (const QString &write : m_store->writes())
        names << write.section(QLatin1Char(' '), 0, 0) + QLatin1Char(' ') +
                     write.section(QLatin1Char(' '), 3, 3);
    QStringList expected;
    for (const char *index : {"4", "5"}) {
        for (const char *call : {"delAppAssign", "delHotKeyAssign", "delNamedMacroKey",
                                 "delShortcutAssign", "delExtendedKey", "setKeyMapping"})
            expected << QLatin1String(call) + QLatin1Char(' ') + QLatin1String(index);
    }
    QCOMPARE(names, expected);
}

void tst_DualStaging::stagedValuesAreShownAgain()
{
    clickAt(key(1));
    open(1, 1);
    pick(497);
    clickAt(key(8));
    QCOMPARE(action(1)->keyCode(), ushort(4));
    QCOMPARE(action(2)->keyCode(), ushort(497));
    QCOMPARE(child<QSlider>(m_page, "m_distanceSlider")->value(), 35);
    pick(483);
    clickAt(key(2));
    QCOMPARE(action(1)->keyCode(), ushort(0));
    QCOMPARE(child<QSlider>(m_page, "m_distanceSlider")->value(), 50);

    clickAt(key(1));
    QCOMPARE(action(1)->keyCode(), ushort(497));
    QCOMPARE(action(1)->findChild<QButtonGroup *>()->checkedId(), 1);
    QVERIFY(child<QPushButton>(action(2), "m_action")->isEnabled());
    clickAt(key(8));
    QCOMPARE(action(1)->keyCode(), ushort(483));
    QCOMPARE(action(2)->keyCode(), ushort(497));
    QCOMPARE(child<QSlider>(m_page, "m_distanceSlider")->value(), 35);

    close("m_back");
    clickAt(key(1));
    QCOMPARE(action(1)->keyCode(), ushort(0));
    clickAt(key(8));
    QCOMPARE(action(1)->keyCode(), ushort(4));
}

void tst_DualStaging::backAfterApplyChangesNothing()
{
    stageAll();
    close("m_apply");
    const auto keys = profile().keys;
    open(1, 1);
    close("m_back");
    QVERIFY(profile().keys == keys);
    for (const StagedKey &staged : Staged)
        QCOMPARE(key(staged.key)->fullText(), depthText(staged));
}

void tst_DualStaging::bothActions()
{
    clickAt(key(1));
    open(1, 1);
    pick(497);
    close("m_apply");
    child<QSlider>(m_page, "m_distanceSlider")->setValue(65);
    open(2, 1);
    pick(488);
    QCOMPARE(key(1)->fullText(), QStringLiteral("SCROLL\nUP"));
    close("m_apply");
    vantrix_key_mapping expected = dualKey(497, 488, 0, 65);
    expected.code = 488;
    const vantrix_key_mapping stored = profile().keys.at(1);
    QCOMPARE(stored, expected);
    QCOMPARE(key(1)->fullText(), QStringLiteral("65%"));
}

/// The overlay open for action 2, and a key without a first action selected through the hole.
void tst_DualStaging::secondActionAcrossKeys()
{
    const auto keys = profile().keys;
    clickAt(key(8));
    open(2, 1);
    pick(488);
    clickAt(key(1));
    pick(497);
    QVERIFY(profile().keys == keys);
    clickAt(key(9));
    pick(489);
    close("m_apply");
    QCOMPARE(ushort(profile().keys[1].digital.firstAction), ushort(497));
    QCOMPARE(ushort(profile().keys[8].digital.firstAction), ushort(4));
    QCOMPARE(ushort(profile().keys[8].digital.secondAction), ushort(488));
    QCOMPARE(ushort(profile().keys[9].digital.firstAction), ushort(5));
    QCOMPARE(ushort(profile().keys[9].digital.secondAction), ushort(489));
}

void tst_DualStaging::leavingTheInputGoesBack()
{
    clickAt(key(2));
    open(1, 0);
    QVERIFY(m_hotKeys->capturing);
    m_page->slotPanelChanged(0, 0);
    QVERIFY(!overlay()->isVisible());
    QVERIFY(!m_hotKeys->capturing || !overlay()->isAncestorOf(m_hotKeys->capturing));
    m_window->hide();
    QVERIFY(!m_hotKeys->capturing);
    QVERIFY(!QWidget::keyboardGrabber());
}

void tst_DualStaging::anotherProfileDropsWhatIsStaged()
{
    stageAll();
    const auto keys = profile().keys;
    m_page->updateUi(1);
    m_page->updateUi(0);
    QVERIFY(profile().keys == keys);
    clickAt(key(22)); // the pointer leaves the last key
    for (const StagedKey &staged : Staged) {
        compareFaces(staged.key, m_before.at(staged.key));
        QVERIFY2(!QTest::currentTestFailed(), staged.kind);
    }
    clickAt(key(1));
    open(1, 1);
    close("m_apply");
    QVERIFY(profile().keys == keys);
}

void tst_DualStaging::hole_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("784 by 808") << QSize(784, 808);
    QTest::newRow("1024 by 768") << QSize(1024, 768);
    QTest::newRow("1280 by 900") << QSize(1280, 900);
    QTest::newRow("1920 by 1080") << QSize(1920, 1080);
}

void tst_DualStaging::hole()
{
    QFETCH(QSize, size);
    resizeWindow(size);
    clickAt(key(1));
    open(1, 1);
    QVERIFY(picture());
    QVERIFY2(holeError() <= 2, qPrintable(QString::number(holeError())));
}

void tst_DualStaging::holeFollowsTheWindow()
{
    clickAt(key(1));
    open(1, 1);
    for (const QSize size : {QSize(1280, 900), QSize(784, 808), QSize(900, 800)}) {
        resizeWindow(size);
        QTRY_VERIFY(holeError() <= 2);
    }
}

void tst_DualStaging::keysInTheHoleCanBeClicked()
{
    clickAt(key(23));
    open(1, 1);
    for (int index = 0; index < 24; ++index) {
        const QPoint center = key(index)->mapTo(m_window.get(), key(index)->rect().center());
        QCOMPARE(m_window->childAt(center), key(index));
        if (index == 23)
            continue;
        clickAt(key(index));
        QCOMPARE(profile().currentKey, index);
        QVERIFY(key(index)->isChecked());
    }
    QVERIFY(overlay()->isVisible());
}

void tst_DualStaging::theRestCannotBeClicked()
{
    clickAt(key(1));
    open(1, 1);
    int covered = 0;
    for (QPushButton *button : m_page->findChildren<QPushButton *>()) {
        if (!button->isVisible() || qobject_cast<VantrixKey *>(button))
            continue;
        const QPoint center = button->mapTo(m_window.get(), button->rect().center());
        const QWidget *const uppermost = m_window->childAt(center);
        QVERIFY2(uppermost == overlay() || overlay()->isAncestorOf(uppermost),
                 qPrintable(button->text()));
        ++covered;
    }
    QVERIFY(covered >= 11);
}

VANTRIX_TEST_MAIN(tst_DualStaging)
#include "tst_DualStaging.moc"
