#include "panels/InputWid.h"

#include "fakes/FakeProfileCfg.h"
#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QButtonGroup>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QSignalSpy>

namespace {

QAbstractButton *buttonOf(const InputWid &selector, int input)
{
    return selector.findChild<QButtonGroup *>()->button(input);
}

} // namespace

class tst_InputWid : public QObject
{
    Q_OBJECT

private slots:
    void form();
    void buttons();
    void clickStoresThenEmits();
    void clickOnTheStoredInputDoesNothing();
    void setInputEmitsThenStores();
    void setInputOfTheStoredInput();
    void setInputWithoutAButton();
    void updateUiShowsTheStoredInput();
    void updateUiWithAnInputWithoutAButton();
    void spaceSelects();
    void margins();
    void fitsThePage();
};

void tst_InputWid::form()
{
    const InputWid selector;
    QCOMPARE(selector.size(), QSize(205, 262));
    QCOMPARE(selector.focusPolicy(), Qt::NoFocus);
    QCOMPARE(child<QWidget>(&selector, "widget")->styleSheet(),
             QStringLiteral("background:rgb(51,51,51);"));
    QCOMPARE(child<QLayout>(&selector, "verticalLayout_4")->spacing(), 4);
    QCOMPARE(child<QLayout>(&selector, "m_inputLayout")->spacing(), 1);
    QCOMPARE(selector.findChild<QLabel *>()->text(), QStringLiteral("MAPPING INPUT"));
}

void tst_InputWid::buttons()
{
    const InputWid selector;
    const QStringList names = {"KEYBOARD",        "MOUSE",       "MEDIA",       "MACRO",
                               "GAME CONTROLLER", "APPLICATION", "DUAL ACTION", "PRESSO FUNCTIONS",
                               "BACKLIGHT",       "PROFILE",     "PRESET MODE"};
    const auto *const layout = child<QLayout>(&selector, "m_inputLayout");
    QCOMPARE(layout->count(), 11);
    for (int input = 0; input < 11; ++input) {
        const QAbstractButton *const button = buttonOf(selector, input);
        QCOMPARE(button->text(), names[input]);
        QCOMPARE(layout->itemAt(input)->widget(), button);
        QVERIFY(button->isCheckable());
        QCOMPARE(button->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
        QCOMPARE(button->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
        QCOMPARE(button->styleSheet(),
                 QStringLiteral("QPushButton{background:rgb(25,25,25);border:none;"
                                "min-height:25px;font-size:12px;}"
                                ":hover{background:rgb(81,81,81);}"
                                ":checked{background:rgb(132,49,155)}"));
    }
    QVERIFY(!buttonOf(selector, 11));
    QVERIFY(!buttonOf(selector, 12));
}

void tst_InputWid::clickStoresThenEmits()
{
    FakeProfileCfg store;
    InputWid selector;
    selector.updateUi(3, 7);
    selector.show();
    store.clearLog();
    QStringList callsAtSignal;
    QList<int> inputs;
    connect(&selector, &InputWid::sigInputChanged, &selector, [&](int input) {
        inputs << input;
        callsAtSignal = store.calls();
    });
    clickOn(buttonOf(selector, 4));
    QCOMPARE(inputs, QList<int>{4});
    QCOMPARE(callsAtSignal, (QStringList{"getInput 3 7", "setInput 3 7 4"}));
    QCOMPARE(store.calls(), callsAtSignal);
    QVERIFY(buttonOf(selector, 4)->isChecked());
    QVERIFY(!buttonOf(selector, 0)->isChecked());
}

void tst_InputWid::clickOnTheStoredInputDoesNothing()
{
    FakeProfileCfg store;
    store.profile(3, 7).input = 2;
    InputWid selector;
    selector.updateUi(3, 7);
    selector.show();
    store.clearLog();
    QSignalSpy spy(&selector, &InputWid::sigInputChanged);
    clickOn(buttonOf(selector, 2));
    clickOn(buttonOf(selector, 2));
    QCOMPARE(spy.count(), 0);
    QCOMPARE(store.writes(), QStringList());
    QVERIFY(buttonOf(selector, 2)->isChecked());
}

void tst_InputWid::setInputEmitsThenStores()
{
    FakeProfileCfg store;
    InputWid selector;
    selector.updateUi(3, 7);
    store.clearLog();
    QStringList callsAtSignal{QStringLiteral("no signal")};
    connect(&selector, &InputWid::sigInputChanged, &selector,
            [&](int) { callsAtSignal = store.calls(); });
    selector.setInput(5);
    QCOMPARE(callsAtSignal, QStringList());
    QCOMPARE(store.calls(), QStringList{"setInput 3 7 5"});
    QVERIFY(buttonOf(selector, 5)->isChecked());
}

void tst_InputWid::setInputOfTheStoredInput()
{
    FakeProfileCfg store;
    InputWid selector;
    selector.updateUi(3, 7);
    store.clearLog();
    QSignalSpy spy(&selector, &InputWid::sigInputChanged);
    selector.setInput(0);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(store.calls(), QStringList{"setInput 3 7 0"});
}

void tst_InputWid::setInputWithoutAButton()
{
    FakeProfileCfg store;
    InputWid selector;
    selector.updateUi(3, 7);
    store.clearLog();
    QSignalSpy spy(&selector, &InputWid::sigInputChanged);
    for (const int input : {11, 12, 13, -1, 65536})
        selector.setInput(input);
    QCOMPARE(spy.count(), 0);
    QCOMPARE(store.calls(), QStringList());
    QVERIFY(buttonOf(selector, 0)->isChecked());
}

void tst_InputWid::updateUiShowsTheStoredInput()
{
    FakeProfileCfg store;
    store.profile(3, 7).input = 9;
    InputWid selector;
    QSignalSpy spy(&selector, &InputWid::sigInputChanged);
    selector.updateUi(3, 7);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toInt(), 9);
    QCOMPARE(store.calls(), (QStringList{"getInput 3 7", "setInput 3 7 9"}));
    QVERIFY(buttonOf(selector, 9)->isChecked());
}

void tst_InputWid::updateUiWithAnInputWithoutAButton()
{
    FakeProfileCfg store;
    InputWid selector;
    selector.updateUi(3, 7);
    store.profile(3, 8).input = 11;
    store.clearLog();
    QSignalSpy spy(&selector, &InputWid::sigInputChanged);
    selector.updateUi(3, 8);
    QCOMPARE(spy.count(), 0);
    QCOMPARE(store.writes(), QStringList());
    QVERIFY(buttonOf(selector, 0)->isChecked());
}

void tst_InputWid::spaceSelects()
{
    FakeProfileCfg store;
    InputWid selector;
    selector.updateUi(3, 7);
    selector.show();
    QSignalSpy spy(&selector, &InputWid::sigInputChanged);
    pressKey(buttonOf(selector, 1), Qt::Key_Space);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(store.profile(3, 7).input, 1);
}

void tst_InputWid::margins()
{
    const InputWid selector;
    QCOMPARE(selector.innerMargins(), QMargins(15, 15, 15, 15));
}

void tst_InputWid::fitsThePage()
{
    FakeProfileCfg store;
    InputWid selector;
    selector.resize(156, 444);
    selector.show();
    QCoreApplication::processEvents();
    for (int input = 0; input < 11; ++input) {
        const QAbstractButton *const button = buttonOf(selector, input);
        const QRect rect(button->mapTo(&selector, QPoint()), button->size());
        QVERIFY(selector.rect().contains(rect));
        QCOMPARE(rect.left(), 15);
        QCOMPARE(rect.width(), 126);
        QVERIFY(button->fontMetrics().horizontalAdvance(button->text()) <= 126);
    }
    const auto *const title = selector.findChild<QLabel *>();
    QCOMPARE(title->width(), 126);
    QVERIFY(title->fontMetrics().horizontalAdvance(title->text()) <= 126);
}

VANTRIX_TEST_MAIN(tst_InputWid)
#include "tst_InputWid.moc"
