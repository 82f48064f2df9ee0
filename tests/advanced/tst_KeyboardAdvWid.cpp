#include "advanced/KeyboardAdvWid.h"

#include "advanced/AdvAssignWid.h"
#include "fakes/FakeServices.h"
#include "interfaces/ButtonGroupEx.h"
#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QBoxLayout>
#include <QFrame>
#include <QPushButton>
#include <QScrollArea>

class tst_KeyboardAdvWid : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void categories_data();
    void categories();
    void orderAndSeparators();
    void startsFolded();
    void clickLeavesFromHere();
    void oneListShowsAKey();
    void otherKindsOfKeys();
    void search();
    void categoriesStandAtTheTop();
    void staysInsideAtAnySize();

private:
    QList<AdvAssignWid *> lists() const { return m_keyboard->findChildren<AdvAssignWid *>(); }
    QVector<int> checkedCodes() const;
    void openAll();

    std::unique_ptr<FakeEnvironment> m_environment;
    std::unique_ptr<KeyboardAdvWid> m_keyboard;
};

void tst_KeyboardAdvWid::init()
{
    m_environment = std::make_unique<FakeEnvironment>();
    m_keyboard = std::make_unique<KeyboardAdvWid>();
}

void tst_KeyboardAdvWid::cleanup()
{
    m_keyboard.reset();
    m_environment.reset();
}

QVector<int> tst_KeyboardAdvWid::checkedCodes() const
{
    QVector<int> codes;
    const auto groups = m_keyboard->findChildren<ButtonGroupEx *>();
    for (const ButtonGroupEx *group : groups) {
        const auto buttons = group->buttons();
        for (QAbstractButton *button : buttons) {
            if (button->isChecked())
                codes << group->id(button);
        }
    }
    return codes;
}

void tst_KeyboardAdvWid::openAll()
{
    m_keyboard->show();
    for (const AdvAssignWid *list : lists())
        child<QPushButton>(list, "m_title")->click();
}

void tst_KeyboardAdvWid::categories_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QVector<int>>("codes");
    QTest::addColumn<QStringList>("texts");

    const auto run = [](int first, int last) {
        QVector<int> codes;
        for (int code = first; code <= last; ++code)
            codes << code;
        return codes;
    };
    QTest::newRow("alphanumeric") << 0 << "ALPHANUMERIC" << run(4, 29) + run(2817, 2826)
                                  << QStringLiteral("A B C D E F G H I J K L M N O P Q R S T U V W "
                                                    "X Y Z 1 2 3 4 5 6 7 8 9 0")
                                         .split(QLatin1Char(' '));
    QTest::newRow("symbols")
        << 1 << "SYMBOLS && PUNCTUATION"
        << QVector<int>{2816, 3072, 3073, 3074, 3075, 3076, 3077, 3078, 3079, 3080, 3081,
                        3082, 2827, 3083, 2828, 3084, 2829, 2830, 3085, 3086, 2831, 3087,
                        2832, 3088, 2833, 3089, 2834, 3090, 2835, 3091, 2836, 3092}
        << QStringLiteral("` ~ ! @ # $ % ^ && * ( ) - _ = + [ ] { } \\ | ; : ' \" , < . > / ?")
               .split(QLatin1Char(' '));
    QTest::newRow("navigation") << 2 << "NAVIGATION KEYS"
                                << QVector<int>{82, 81, 80, 79, 73, 76, 74,
                                                77, 75, 78, 44, 40, 42, 41}
                                << QStringList();
    QTest::newRow("modifier") << 3 << "MODIFIER" << QVector<int>{225, 229, 224, 228, 226, 230, 57}
                              << QStringList({"SHIFT LEFT", "SHIFT RIGHT", "CTRL LEFT",
                                              "CTRL RIGHT", "ALT LEFT", "ALT RIGHT", "CAPSLK"});
    QTest::newRow("function") << 4 << "FUNCTION KEYS"
                              << run(58, 69) + run(104, 115) + QVector<int>{70, 71, 72, 227}
                              << QStringList();
    QTest::newRow("numberpad") << 5 << "NUMBERPAD KEYS"
                               << QVector<int>{83} + run(89, 98) + run(84, 88) << QStringList();
}

void tst_KeyboardAdvWid::categories()
{
    QFETCH(int, number);
    QFETCH(QVector<int>, codes);
    QFETCH(QStringList, texts);
    const AdvAssignWid *const list = lists().at(number);
    QTEST(child<QPushButton>(list, "m_title")->text(), "title");
    auto *const group = list->findChild<ButtonGroupEx *>();
    QCOMPARE(group->buttons().size(), codes.size());
    auto *const layout = child<QGridLayout>(list, "m_layout");
    for (int i = 0; i < codes.size(); ++i) {
        QAbstractButton *const button = group->button(codes[i]);
        QVERIFY2(button, qPrintable(QString::number(codes[i])));
        QCOMPARE(layout->itemAtPosition(i % 6, i / 6)->widget(), static_cast<QWidget *>(button));
        QVERIFY(!button->text().isEmpty());
        if (!texts.isEmpty())
            QCOMPARE(button->text(), texts[i]);
    }
}

void tst_KeyboardAdvWid::orderAndSeparators()
{
    auto *const layout = child<QBoxLayout>(m_keyboard.get(), "m_layout");
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->count(), 11);
    for (int i = 0; i < 11; ++i) {
        QWidget *const widget = layout->itemAt(i)->widget();
        if (i % 2 == 0) {
            QVERIFY(qobject_cast<AdvAssignWid *>(widget));
            continue;
        }
        auto *const line = qobject_cast<QFrame *>(widget);
        QVERIFY(line);
        QCOMPARE(line->frameShape(), QFrame::HLine);
        QCOMPARE(line->frameShadow(), QFrame::Sunken);
        QCOMPARE(line->minimumHeight(), 1);
        QCOMPARE(line->maximumHeight(), 1);
        QCOMPARE(line->styleSheet(), QStringLiteral("background:rgb(127,128,132);"));
    }
    QCOMPARE(child<QScrollArea>(m_keyboard.get(), "scrollArea")->styleSheet(),
             QStringLiteral("background:transparent;border:none;"));
}

void tst_KeyboardAdvWid::startsFolded()
{
    m_keyboard->show();
    QCOMPARE(lists().size(), 6);
    for (const AdvAssignWid *list : lists()) {
        QVERIFY(child<QPushButton>(list, "m_title")->isVisible());
        QVERIFY(!child<QWidget>(list, "m_assignWid")->isVisible());
    }
    clickOn(child<QPushButton>(lists().at(2), "m_title"));
    for (int i = 0; i < 6; ++i)
        QCOMPARE(child<QWidget>(lists().at(i), "m_assignWid")->isVisible(), i == 2);
}

void tst_KeyboardAdvWid::clickLeavesFromHere()
{
    openAll();
    QSignalSpy spy(m_keyboard.get(), &KeyboardAdvWid::sigKeyChanged);
    const auto groups = m_keyboard->findChildren<ButtonGroupEx *>();
    for (const ButtonGroupEx *group : groups) {
        const auto buttons = group->buttons();
        for (QAbstractButton *button : buttons) {
            button->click();
            QCOMPARE(spy.count(), 1);
            QCOMPARE(spy.takeFirst().at(0).value<vantrix_key_mapping>(),
                     plainKey(ushort(group->id(button))));
        }
    }
    groups.first()->button(4)->click();
    groups.first()->button(4)->click();
    QCOMPARE(spy.last().at(0).value<vantrix_key_mapping>(), plainKey(255));
}

void tst_KeyboardAdvWid::oneListShowsAKey()
{
    QSignalSpy spy(m_keyboard.get(), &KeyboardAdvWid::sigKeyChanged);
    for (const int code : {4, 2817, 2816, 82, 225, 58, 227, 83}) {
        m_keyboard->sigVantrixKeySelected(plainKey(ushort(code)));
        QCOMPARE(checkedCodes(), QVector<int>{code});
    }
    QCOMPARE(spy.count(), 0);
}

void tst_KeyboardAdvWid::otherKindsOfKeys()
{
    vantrix_key_mapping label = plainKey(4);
    label.type = KeyType::Label;
    vantrix_key_mapping dual = plainKey(4);
    dual.type = KeyType::DualAction;
    dual.digital.firstAction = 4;
    for (const vantrix_key_mapping &key :
         {plainKey(0), clearedKey(), plainKey(496), gameKey(4), label, dual}) {
        m_keyboard->sigVantrixKeySelected(plainKey(4));
        m_keyboard->sigVantrixKeySelected(key);
        QCOMPARE(checkedCodes(), QVector<int>());
    }
}

void tst_KeyboardAdvWid::search()
{
    openAll();
    const auto visibleTexts = [this] {
        QStringList found;
        const auto groups = m_keyboard->findChildren<ButtonGroupEx *>();
        for (const ButtonGroupEx *group : groups) {
            const auto buttons = group->buttons();
            for (const QAbstractButton *button : buttons) {
                if (button->isVisible())
                    found << button->text();
            }
        }
        return found;
    };
    QCOMPARE(visibleTexts().size(), 36 + 32 + 14 + 7 + 28 + 16);
    m_keyboard->sigSearch(QStringLiteral("f1"));
    QCOMPARE(visibleTexts(), QStringList({"F1", "F10", "F11", "F12", "F13", "F14", "F15", "F16",
                                          "F17", "F18", "F19"}));
    m_keyboard->sigSearch(QStringLiteral("zzz"));
    QCOMPARE(visibleTexts(), QStringList());
    for (const AdvAssignWid *list : lists())
        QVERIFY(child<QPushButton>(list, "m_title")->isVisible());
    m_keyboard->sigSearch(QString());
    QCOMPARE(visibleTexts().size(), 36 + 32 + 14 + 7 + 28 + 16);
}

void tst_KeyboardAdvWid::categoriesStandAtTheTop()
{
    m_keyboard->resize(700, 600);
    m_keyboard->show();
    auto *const content = child<QWidget>(m_keyboard.get(), "scrollAreaWidgetContents");
    int bottom = 0;
    for (const AdvAssignWid *list : lists())
        bottom = std::max(bottom, list->geometry().bottom());
    QVERIFY2(bottom < 300, qPrintable(QString::number(bottom)));
    QVERIFY(content->height() >= 500);
}

void tst_KeyboardAdvWid::staysInsideAtAnySize()
{
    openAll();
    for (const QSize size : {QSize(120, 120), QSize(400, 300), QSize(1200, 900)}) {
        m_keyboard->resize(size);
        QCoreApplication::processEvents();
        QVERIFY(m_keyboard->minimumSizeHint().width() <= 120);
        QVERIFY(m_keyboard->rect().contains(
            child<QScrollArea>(m_keyboard.get(), "scrollArea")->geometry()));
    }
}

VANTRIX_TEST_MAIN(tst_KeyboardAdvWid)
#include "tst_KeyboardAdvWid.moc"
