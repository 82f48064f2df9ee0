#include "advanced/AdvAssignWid.h"

#include "fakes/FakeServices.h"
#include "interfaces/ButtonGroupEx.h"
#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QGridLayout>
#include <QPushButton>

namespace {

struct Key
{
    ushort code;
    const char *text;
};
using Keys = std::vector<Key>;

std::vector<ushort> codesOf(const Keys &keys)
{
    std::vector<ushort> codes;
    for (const Key &key : keys)
        codes.push_back(key.code);
    return codes;
}

const Keys Mouse = {
    {496, "LEFT CLICK"},  {497, "RIGHT CLICK"},  {498, "WHEEL CLICK"},   {488, "SCROLL UP"},
    {489, "SCROLL DOWN"}, {1282, "SCROLL LEFT"}, {1283, "SCROLL RIGHT"}, {500, "FORWARD"},
    {499, "BACKWARD"},    {481, "CURSOR UP"},    {483, "CURSOR RIGHT"},  {485, "CURSOR DOWN"},
    {487, "CURSOR LEFT"},
};

const Keys Media = {
    {240, "PLAY/PAUSE"}, {241, "STOP"},        {242, "PREVIOUS TRACK"},     {243, "NEXT TRACK"},
    {246, "VOLUME UP"},  {245, "VOLUME DOWN"}, {244, "VOLUME MUTE/UNMUTE"},
};

const Keys Backlight = {
    {385, "EFFECT CYCLE+"}, {386, "EFFECT CYCLE-"},        {403, "LED BRIGHTER+"},
    {402, "LED DARKER-"},   {401, "SPEED UP LED EFFECT+"}, {400, "SPEED DOWN LED EFFECT-"},
};

Keys profiles()
{
    static std::vector<QByteArray> names;
    Keys keys;
    for (int i = 1; i <= 24; ++i)
        names.push_back("PROFILE " + QByteArray::number(i));
    for (int i = 0; i < 24; ++i)
        keys.push_back({ushort(1536 + i), names[std::size_t(i)].constData()});
    keys.push_back({1570, "PROFILE CYCLE+"});
    keys.push_back({1571, "PROFILE CYCLE-"});
    return keys;
}

} // namespace

Q_DECLARE_METATYPE(Keys)

class tst_AdvAssignWid : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_environment = std::make_unique<FakeEnvironment>(); }
    void cleanup() { m_environment.reset(); }
    void lists_data();
    void lists();
    void form();
    void sidesOfModifiers();
    void legendsInOneLine();
    void noCodes();
    void clicks();
    void secondClickClears();
    void selectedKeys();
    void selectedKeyOfEveryCode();
    void search_data();
    void search();
    void searchOfSymbols();
    void searchBeforeShowing();
    void searchTouchesOnlyWhatChanges();
    void title();
    void foldedFromTheStart();
    void listStandsAtTheTop();
    void accessibleNames();

private:
    static ButtonGroupEx *group(const AdvAssignWid &list)
    {
        return list.findChild<ButtonGroupEx *>();
    }
    static QStringList visible(const AdvAssignWid &list, const std::vector<ushort> &codes);

    std::unique_ptr<FakeEnvironment> m_environment;
};

/// The visible buttons as "text:row column", in the order of the codes.
QStringList tst_AdvAssignWid::visible(const AdvAssignWid &list, const std::vector<ushort> &codes)
{
    auto *const layout = child<QGridLayout>(&list, "m_layout");
    QStringList found;
    for (const ushort code : codes) {
        QAbstractButton *const button = group(list)->button(code);
        if (button->isHidden())
            continue;
        int row = -1, column = -1, rows = 0, columns = 0;
        layout->getItemPosition(layout->indexOf(button), &row, &column, &rows, &columns);
        found << QStringLiteral("%1:%2 %3").arg(button->text()).arg(row).arg(column);
    }
    return found;
}

void tst_AdvAssignWid::lists_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<Keys>("keys");

    QTest::newRow("mouse") << "MOUSE BUTTONS" << Mouse;
    QTest::newRow("media") << "MEDIA COMMANDS" << Media;
    QTest::newRow("presso") << "PRESSO FUNCTIONS" << Keys{{312, "CALIBRATE"}};
    QTest::newRow("backlight") << "BACKLIGHT" << Backlight;
    QTest::newRow("profile") << "PROFILE" << profiles();
}

void tst_AdvAssignWid::lists()
{
    QFETCH(QString, title);
    QFETCH(Keys, keys);
    AdvAssignWid list;
    list.setKeys(title, codesOf(keys));
    QCOMPARE(child<QPushButton>(&list, "m_title")->text(), title);
    QCOMPARE(group(list)->buttons().size(), int(keys.size()));
    QStringList expected;
    for (const Key &key : keys) {
        const int i = expected.size();
        expected << QStringLiteral("%1:%2 %3").arg(QLatin1String(key.text)).arg(i % 6).arg(i / 6);
        QVERIFY(group(list)->button(key.code)->isCheckable());
    }
    QCOMPARE(visible(list, codesOf(keys)), expected);
}

void tst_AdvAssignWid::form()
{
    const AdvAssignWid list;
    QCOMPARE(list.size(), QSize(269, 230));
    auto *const title = child<QPushButton>(&list, "m_title");
    QCOMPARE(title->styleSheet(),
             QStringLiteral("QPushButton{ background:transparent;border:none;min-height:30px;"
                            "min-width:80px;text-align:left;font-size:13px;}:hover{background:"
                            "rgba(255,255,255,125);}:pressed{background:rgb(132,50,155);}"));
    QCOMPARE(child<QGridLayout>(&list, "m_layout")->alignment(), Qt::AlignLeft | Qt::AlignTop);
    QCOMPARE(child<QGridLayout>(&list, "gridLayout_2")->contentsMargins(), QMargins());
}

void tst_AdvAssignWid::sidesOfModifiers()
{
    const std::vector<ushort> codes = {225, 229, 224, 228, 226, 230, 57};
    AdvAssignWid list;
    list.setKeys(QStringLiteral("MODIFIER"), codes);
    QCOMPARE(visible(list, codes),
             QStringList({"SHIFT LEFT:0 0", "SHIFT RIGHT:1 0", "CTRL LEFT:2 0", "CTRL RIGHT:3 0",
                          "ALT LEFT:4 0", "ALT RIGHT:5 0", "CAPSLK:0 1"}));
}

void tst_AdvAssignWid::legendsInOneLine()
{
    m_environment->language = 3;
    AdvAssignWid list;
    list.setKeys(QStringLiteral("x"), {75, 30});
    QCOMPARE(group(list)->button(75)->text(), QStringLiteral("PG Haut"));
    QVERIFY(!group(list)->button(30)->text().contains(QLatin1Char('\n')));
}

void tst_AdvAssignWid::noCodes()
{
    AdvAssignWid list;
    list.setKeys(QStringLiteral("EMPTY"), {});
    list.show();
    QCOMPARE(child<QPushButton>(&list, "m_title")->text(), QStringLiteral("EMPTY"));
    QCOMPARE(child<QGridLayout>(&list, "m_layout")->count(), 0);
    list.slotSearch(QStringLiteral("a"));
    list.slotVantrixKeySelected(plainKey(4));
    QVERIFY(!group(list)->checkedButton());
}

void tst_AdvAssignWid::clicks()
{
    AdvAssignWid list;
    list.setKeys(QStringLiteral("MOUSE BUTTONS"), codesOf(Mouse));
    list.show();
    QSignalSpy spy(&list, &AdvAssignWid::sigKeyChanged);
    for (const Key &key : Mouse) {
        clickOn(group(list)->button(key.code));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.takeFirst().at(0).value<vantrix_key_mapping>(), plainKey(key.code));
        QCOMPARE(group(list)->checkedId(), int(key.code));
    }
    QAbstractButton *const last = group(list)->button(488);
    last->setFocus();
    pressKey(last, Qt::Key_Space);
    QCOMPARE(spy.takeFirst().at(0).value<vantrix_key_mapping>(), plainKey(488));
}

void tst_AdvAssignWid::secondClickClears()
{
    AdvAssignWid list;
    list.setKeys(QStringLiteral("PRESSO FUNCTIONS"), {312});
    list.show();
    list.slotVantrixKeySelected(plainKey(312));
    QSignalSpy spy(&list, &AdvAssignWid::sigKeyChanged);
    clickOn(group(list)->button(312));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).value<vantrix_key_mapping>(), plainKey(255));
    QVERIFY(!group(list)->checkedButton());
}

void tst_AdvAssignWid::selectedKeys()
{
    AdvAssignWid list;
    list.setKeys(QStringLiteral("MOUSE BUTTONS"), codesOf(Mouse));
    QSignalSpy spy(&list, &AdvAssignWid::sigKeyChanged);
    const auto select = [&list](const vantrix_key_mapping &key) {
        list.slotVantrixKeySelected(plainKey(496));
        list.slotVantrixKeySelected(key);
        return group(list)->checkedId();
    };
    vantrix_key_mapping label = plainKey(497);
    label.type = KeyType::Label;
    vantrix_key_mapping dual = plainKey(497);
    dual.type = KeyType::DualAction;
    dual.digital.firstAction = 497;
    QCOMPARE(select(plainKey(497)), 497);
    QCOMPARE(select(plainKey(4)), -1);
    QCOMPARE(select(plainKey(0)), -1);
    QCOMPARE(select(clearedKey()), -1);
    QCOMPARE(select(gameKey(497)), -1);
    QCOMPARE(select(label), -1);
    QCOMPARE(select(dual), -1);
    QCOMPARE(spy.count(), 0);
}

void tst_AdvAssignWid::selectedKeyOfEveryCode()
{
    AdvAssignWid list;
    list.setKeys(QStringLiteral("BACKLIGHT"), codesOf(Backlight));
    for (int code = 0; code <= 3100; ++code) {
        const bool listed = code == 385 || code == 386 || (code >= 400 && code <= 403);
        list.slotVantrixKeySelected(plainKey(ushort(code)));
        QCOMPARE(group(list)->checkedId(), listed ? code : -1);
    }
}

void tst_AdvAssignWid::search_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("found");

    QTest::newRow("digit") << "f1"
                           << QStringList({"F1:0 0", "F10:1 0", "F11:2 0", "F12:3 0", "F13:4 0",
                                           "F14:5 0", "F15:0 1", "F16:1 1", "F17:2 1", "F18:3 1",
                                           "F19:4 1"});
    QTest::newRow("other case") << "F2"
                                << QStringList({"F2:0 0", "F20:1 0", "F21:2 0", "F22:3 0",
                                                "F23:4 0", "F24:5 0"});
    QTest::newRow("whole") << "f24" << QStringList({"F24:0 0"});
    QTest::newRow("inside") << "10" << QStringList();
    QTest::newRow("none") << "zzz" << QStringList();
}

void tst_AdvAssignWid::search()
{
    QFETCH(QString, text);
    std::vector<ushort> codes;
    for (ushort code = 58; code <= 69; ++code)
        codes.push_back(code);
    for (ushort code = 104; code <= 115; ++code)
        codes.push_back(code);
    AdvAssignWid list;
    list.setKeys(QStringLiteral("FUNCTION KEYS"), codes);
    list.show();
    const QStringList all = visible(list, codes);
    QCOMPARE(all.size(), 24);

    list.slotSearch(QString());
    QCOMPARE(visible(list, codes), all);
    list.slotSearch(QStringLiteral("f"));
    QCOMPARE(visible(list, codes), all);
    list.slotSearch(text);
    QTEST(visible(list, codes), "found");
    QVERIFY(child<QPushButton>(&list, "m_title")->isVisible());
    QVERIFY(child<QWidget>(&list, "m_assignWid")->isVisible());
    list.slotSearch(QString());
    QCOMPARE(visible(list, codes), all);
}

void tst_AdvAssignWid::searchOfSymbols()
{
    const std::vector<ushort> codes = {2816, 3079, 3089, 3090};
    AdvAssignWid list;
    list.setKeys(QStringLiteral("x"), codes);
    list.slotSearch(QStringLiteral("&"));
    QCOMPARE(visible(list, codes), QStringList({"&&:0 0"}));
    list.slotSearch(QStringLiteral("<"));
    QCOMPARE(visible(list, codes), QStringList({"<:0 0"}));
    list.slotSearch(QStringLiteral("\""));
    QCOMPARE(visible(list, codes), QStringList({"\":0 0"}));
}

void tst_AdvAssignWid::searchBeforeShowing()
{
    AdvAssignWid list;
    list.setKeys(QStringLiteral("MEDIA COMMANDS"), codesOf(Media));
    list.slotSearch(QStringLiteral("volume"));
    list.show();
    QVERIFY(child<QWidget>(&list, "m_assignWid")->isVisible());
    QVERIFY(group(list)->button(246)->isVisible());
    QVERIFY(!group(list)->button(240)->isVisible());
}

void tst_AdvAssignWid::searchTouchesOnlyWhatChanges()
{
    class Counter : public QObject
    {
    public:
        int shown = 0, restyled = 0;

    protected:
        bool eventFilter(QObject *, QEvent *event) override
        {
            shown += event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent;
            restyled += event->type() == QEvent::StyleChange;
            return false;
        }
    } counter;
    AdvAssignWid list;
    list.setKeys(QStringLiteral("MEDIA COMMANDS"), codesOf(Media));
    list.show();
    for (const Key &key : Media)
        group(list)->button(key.code)->installEventFilter(&counter);
    list.slotSearch(QString());
    QCOMPARE(counter.shown, 0);
    list.slotSearch(QStringLiteral("v"));
    QCOMPARE(counter.shown, 4);
    list.slotSearch(QStringLiteral("vol"));
    QCOMPARE(counter.shown, 4);
    list.slotSearch(QStringLiteral("volume u"));
    QCOMPARE(counter.shown, 6);
    QCOMPARE(counter.restyled, 0);
}

void tst_AdvAssignWid::title()
{
    AdvAssignWid list;
    list.setKeys(QStringLiteral("MEDIA COMMANDS"), codesOf(Media));
    list.show();
    auto *const keys = child<QWidget>(&list, "m_assignWid");
    auto *const title = child<QPushButton>(&list, "m_title");
    QVERIFY(keys->isVisible());
    clickOn(title);
    QVERIFY(!keys->isVisible());
    list.slotSearch(QStringLiteral("v"));
    QVERIFY(!keys->isVisible());
    list.slotSearch(QString());
    QVERIFY(!keys->isVisible());
    clickOn(title);
    QVERIFY(keys->isVisible());
    list.slotSearch(QStringLiteral("zzz"));
    QVERIFY(keys->isVisible());
}

void tst_AdvAssignWid::foldedFromTheStart()
{
    QWidget page;
    AdvAssignWid list(QStringLiteral("MEDIA COMMANDS"), codesOf(Media), &page);
    page.show();
    QVERIFY(!child<QWidget>(&list, "m_assignWid")->isVisible());
    QCOMPARE(group(list)->buttons().size(), 7);
    clickOn(child<QPushButton>(&list, "m_title"));
    QVERIFY(child<QWidget>(&list, "m_assignWid")->isVisible());
}

void tst_AdvAssignWid::listStandsAtTheTop()
{
    AdvAssignWid list;
    list.setKeys(QStringLiteral("MEDIA COMMANDS"), codesOf(Media));
    list.resize(600, 500);
    list.show();
    auto *const title = child<QPushButton>(&list, "m_title");
    QCOMPARE(title->mapTo(&list, QPoint()).y(), 0);
    clickOn(title);
    QCoreApplication::processEvents();
    QCOMPARE(title->mapTo(&list, QPoint()).y(), 0);
    QVERIFY(title->height() <= 40);
}

void tst_AdvAssignWid::accessibleNames()
{
    AdvAssignWid list;
    list.setKeys(QStringLiteral("MEDIA COMMANDS"), codesOf(Media));
    const auto buttons = list.findChildren<QPushButton *>();
    for (const QPushButton *button : buttons)
        QVERIFY(!button->text().isEmpty());
}

VANTRIX_TEST_MAIN(tst_AdvAssignWid)
#include "tst_AdvAssignWid.moc"
