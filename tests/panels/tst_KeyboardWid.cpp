#include "panels/KeyboardWid.h"

#include "fakes/FakeServices.h"
#include "interfaces/ButtonGroupEx.h"
#include "panels/KeyBtn.h"
#include "panels/Keyboard.h"
#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QLayout>
#include <QPushButton>
#include <QSignalSpy>

class tst_KeyboardWid : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { registerRecordTypes(); }
    void form();
    void layoutOfTheLanguage_data();
    void layoutOfTheLanguage();
    void showsPlainRecordsOnly();
    void relaysTheKeyboard();
    void relaysTheCapture();
    void keysKeepInsideThePanel_data();
    void keysKeepInsideThePanel();
    void tallPanelUsesItsWidth();
};

void tst_KeyboardWid::form()
{
    FakeEnvironment environment;
    const KeyboardWid panel;
    QCOMPARE(panel.size(), QSize(856, 234));
    QCOMPARE(panel.focusPolicy(), Qt::NoFocus);
    QCOMPARE(child<QWidget>(&panel, "widget")->styleSheet(),
             QStringLiteral("background:rgb(101,103,108);"));
    QCOMPARE(child<QLayout>(&panel, "m_layout")->spacing(), 0);
    QCOMPARE(child<QLayout>(&panel, "m_layout")->itemAt(0)->widget(),
             panel.findChild<Keyboard *>());
    QVERIFY(panel.findChild<QLayout *>(QStringLiteral("gridLayout")));
    QVERIFY(panel.findChild<QLayout *>(QStringLiteral("horizontalLayout")));
}

void tst_KeyboardWid::layoutOfTheLanguage_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<bool>("hasIsoKey");
    QTest::addColumn<bool>("hasYenKey");
    QTest::addColumn<QString>("letterY");
    QTest::newRow("ChineseSimplified") << 0 << false << false << "Y";
    QTest::newRow("ChineseTraditional") << 1 << false << false << "Y";
    QTest::newRow("English") << 2 << false << false << "Y";
    QTest::newRow("French") << 3 << true << false << "Y";
    QTest::newRow("German") << 4 << true << false << "Z";
    QTest::newRow("Italian") << 5 << true << false << "Y";
    QTest::newRow("Japanese") << 6 << false << true << "Y";
    QTest::newRow("Korean") << 7 << false << false << "Y\nㅛ";
    QTest::newRow("Malay") << 8 << false << false << "Y";
    QTest::newRow("Portuguese") << 9 << true << false << "Y";
    QTest::newRow("Russian") << 10 << false << false << "Y\nН";
    QTest::newRow("Spanish") << 11 << true << false << "Y";
    QTest::newRow("Thai") << 12 << false << false << "Y    ํ\nั";
    QTest::newRow("Turkish") << 13 << true << false << "Y";
    QTest::newRow("Vietnamese") << 14 << false << false << "Y";
    QTest::newRow("no such language") << 15 << false << false << "";
    QTest::newRow("negative") << -1 << false << false << "";
}

void tst_KeyboardWid::layoutOfTheLanguage()
{
    QFETCH(int, language);
    QFETCH(bool, hasIsoKey);
    QFETCH(bool, hasYenKey);
    QFETCH(QString, letterY);
    FakeEnvironment environment;
    environment.language = language;
    const KeyboardWid panel;
    QCOMPARE(panel.findChild<QPushButton *>(QStringLiteral("btn_86")) != nullptr, hasIsoKey);
    QCOMPARE(panel.findChild<QPushButton *>(QStringLiteral("btn_125")) != nullptr, hasYenKey);
    QVERIFY(!panel.findChild<QPushButton *>(QStringLiteral("btn_126")));
    QCOMPARE(child<QPushButton>(&panel, "btn_21")->text(), letterY);
}

void tst_KeyboardWid::showsPlainRecordsOnly()
{
    FakeEnvironment environment;
    KeyboardWid panel;
    QSignalSpy spy(&panel, &KeyboardWid::sigKeyChanged);
    const auto checked = [&panel] {
        const QAbstractButton *const button = panel.findChild<ButtonGroupEx *>()->checkedButton();
        return button ? button->objectName() : QString();
    };
    panel.slotVantrixKeySelected(plainKey(5));
    QCOMPARE(checked(), QStringLiteral("btn_48"));
    panel.slotVantrixKeySelected(gameKey(4));
    QCOMPARE(checked(), QStringLiteral("btn_48"));
    vantrix_key_mapping label = plainKey(4);
    label.type = 1;
    panel.slotVantrixKeySelected(label);
    QCOMPARE(checked(), QStringLiteral("btn_48"));
    vantrix_key_mapping dual = plainKey(4);
    dual.type = 3;
    panel.slotVantrixKeySelected(dual);
    QCOMPARE(checked(), QStringLiteral("btn_48"));
    panel.slotVantrixKeySelected(plainKey(496));
    QCOMPARE(checked(), QString());
    panel.slotVantrixKeySelected(plainKey(4));
    QCOMPARE(checked(), QStringLiteral("btn_30"));
    panel.clearChecked();
    QCOMPARE(checked(), QString());
    QCOMPARE(spy.count(), 0);
}

void tst_KeyboardWid::relaysTheKeyboard()
{
    FakeEnvironment environment;
    KeyboardWid panel;
    panel.show();
    QSignalSpy spy(&panel, &KeyboardWid::sigKeyChanged);
    clickOn(child<QPushButton>(&panel, "btn_48"));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.last().at(0).value<vantrix_key_mapping>(), plainKey(5));
    sendNativeKey(panel.findChild<Keyboard *>(), QEvent::KeyRelease, 48, 66);
    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.last().at(0).value<vantrix_key_mapping>(), clearedKey());
}

void tst_KeyboardWid::relaysTheCapture()
{
    FakeEnvironment environment;
    FakeSystemHotKey service;
    KeyboardWid panel;
    panel.setKeyCapture(true);
    QCOMPARE(QWidget::keyboardGrabber(), panel.findChild<Keyboard *>());
    QCOMPARE(service.capturing, panel.findChild<Keyboard *>());
    panel.setKeyCapture(false);
    QVERIFY(!QWidget::keyboardGrabber());
}

void tst_KeyboardWid::keysKeepInsideThePanel_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<QSize>("size");
    for (const int language : {2, 4, 6}) {
        for (const QSize &size : {QSize(856, 234), QSize(766, 288), QSize(428, 150),
                                  QSize(1712, 468), QSize(2400, 234), QSize(500, 900)}) {
            QTest::addRow("language %d, %d by %d", language, size.width(), size.height())
                << language << size;
        }
    }
}

void tst_KeyboardWid::keysKeepInsideThePanel()
{
    QFETCH(int, language);
    QFETCH(QSize, size);
    FakeEnvironment environment;
    environment.language = language;
    QWidget page;
    page.resize(size);
    KeyboardWid panel(&page);
    panel.resize(size);
    page.show();
    QCOMPARE(panel.size(), size);
    const auto keys = panel.findChildren<KeyBtn *>();
    QVERIFY(keys.size() > 100);
    std::vector<QRect> rects;
    for (const KeyBtn *key : keys) {
        const QRect rect(key->mapTo(&panel, QPoint()), key->size());
        QVERIFY2(panel.rect().contains(rect), qPrintable(key->objectName()));
        for (const QRect &other : rects)
            QVERIFY2(!rect.intersects(other), qPrintable(key->objectName()));
        rects.push_back(rect);
    }
}

void tst_KeyboardWid::tallPanelUsesItsWidth()
{
    FakeEnvironment environment;
    QWidget page;
    page.resize(3000, 700);
    KeyboardWid panel(&page);
    panel.resize(766, 700);
    page.show();
    const auto *const keyboard = child<Keyboard>(&panel, "m_keyboard");
    const int room = 766 - 2 * 9;
    QVERIFY(keyboard->width() > room - 23);
    QVERIFY(keyboard->width() <= room);
    // A panel that grows wider gives the height back.
    panel.resize(3000, 700);
    QCOMPARE(keyboard->height(), 700 - 2 * 9);
    panel.resize(0, 0);
    QCOMPARE(panel.size(), QSize(0, 0));
}

VANTRIX_TEST_MAIN(tst_KeyboardWid)
#include "tst_KeyboardWid.moc"
