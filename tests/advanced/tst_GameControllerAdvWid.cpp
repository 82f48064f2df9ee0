#include "advanced/GameControllerAdvWid.h"

#include "advanced/ControllerKeyWid.h"
#include "fakes/FakeProfileCfg.h"
#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace {

const QVector<int> LeftCodes = {466, 222, 731, 475, 474, 730, 471, 473, 729, 1241, 2265};
const QVector<int> CentreCodes = {470, 468, 469};
const QVector<int> RightCodes = {467, 223, 464, 465, 462, 463, 733, 477, 476, 732, 472};

} // namespace

class tst_GameControllerAdvWid : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void form();
    void columns();
    void mapOfAllKeys();
    void mapIsReadAnew();
    void currentKeyIsInTheLowBits();
    void unknownCodesShowNowhere();
    void failedRead();
    void otherScope();
    void clickAssigns();
    void oneFunctionForTheCurrentKey();
    void twiceLeavesTheMap();
    void storeIsOnlyRead();
    void search_data();
    void search();
    void centreRows_data();
    void centreRows();
    void centreRowsFollowTheBumper();
    void everythingInsideAtAnySize();
    void tabOrder();

private:
    ControllerKeyWid *row(int code) const
    {
        return child<ControllerKeyWid>(m_page.get(), QStringLiteral("controllerKey_%1").arg(code));
    }
    QPushButton *button(int code) const { return child<QPushButton>(row(code), "m_keyNo"); }
    QString shown() const;

    std::unique_ptr<FakeProfileCfg> m_store;
    std::unique_ptr<GameControllerAdvWid> m_page;
};

void tst_GameControllerAdvWid::init()
{
    m_store = std::make_unique<FakeProfileCfg>();
    FakeProfileCfg::Profile &profile = m_store->profile(1, 2);
    profile.currentKey = 7;
    profile.keys[1] = gameKey(466);
    profile.keys[3] = gameKey(466);
    profile.keys[7] = gameKey(466);
    profile.keys[9] = gameKey(462);
    profile.keys[11] = plainKey(463);
    m_page = std::make_unique<GameControllerAdvWid>();
}

void tst_GameControllerAdvWid::cleanup()
{
    m_page.reset();
    m_store.reset();
}

/// The rows that show keys, as "code:keys", in the order of the codes.
QString tst_GameControllerAdvWid::shown() const
{
    QStringList rows;
    for (const int code : LeftCodes + CentreCodes + RightCodes) {
        QStringList keys;
        for (const int keyIdx : row(code)->keys())
            keys << QString::number(keyIdx);
        if (!keys.isEmpty())
            rows << QStringLiteral("%1:%2").arg(code).arg(keys.join(QLatin1Char(',')));
    }
    return rows.join(QLatin1Char(' '));
}

void tst_GameControllerAdvWid::form()
{
    QCOMPARE(m_page->size(), QSize(1076, 676));
    auto *const grid = child<QGridLayout>(m_page.get(), "gridLayout");
    QCOMPARE(grid->rowStretch(0), 3);
    QCOMPARE(grid->rowStretch(1), 2);
    QCOMPARE(grid->columnStretch(0), 1);
    QCOMPARE(grid->columnStretch(1), 2);
    QCOMPARE(grid->columnStretch(2), 1);
    QCOMPARE(m_page->findChildren<ControllerKeyWid *>().size(), 25);
    QVERIFY(child<QLabel>(m_page.get(), "m_backgroundLab")
                ->styleSheet()
                .startsWith(QStringLiteral("image: url(:/VantrixMap/GameCtrl/game_adv.png);")));
}

void tst_GameControllerAdvWid::columns()
{
    const auto codes = [this](const char *name) {
        QStringList found;
        auto *const column = child<QBoxLayout>(m_page.get(), name);
        for (int i = 0; i < column->count(); ++i) {
            QWidget *const widget = column->itemAt(i)->widget();
            found << (widget ? widget->objectName().section(QLatin1Char('_'), 1)
                             : QStringLiteral("-"));
        }
        return found.join(QLatin1Char(' '));
    };
    QCOMPARE(codes("m_leftLayout"),
             QStringLiteral("466 222 - 731 475 474 730 471 - 473 729 1241 2265"));
    QCOMPARE(codes("m_rightLayout"),
             QStringLiteral("467 223 - 464 465 462 463 - 733 477 476 732 472"));
    QCOMPARE(child<QBoxLayout>(m_page.get(), "m_leftLayout")->spacing(), 1);
    QCOMPARE(child<QBoxLayout>(m_page.get(), "m_rightLayout")->spacing(), 1);
    for (const int code : CentreCodes)
        QCOMPARE(row(code)->parentWidget(), static_cast<QWidget *>(m_page.get()));
}

void tst_GameControllerAdvWid::mapOfAllKeys()
{
    m_page->setProfile(1, 2);
    QCOMPARE(shown(), QStringLiteral("466:7,1,3 462:9"));
    QCOMPARE(button(466)->text(), QStringLiteral("VANTRIX 08,\nVANTRIX 02,\nVANTRIX 04"));
    QCOMPARE(button(462)->text(), QStringLiteral("VANTRIX 10"));
}

void tst_GameControllerAdvWid::mapIsReadAnew()
{
    m_page->setProfile(1, 2);
    button(470)->click();
    QCOMPARE(shown(), QStringLiteral("466:1,3 470:7 462:9"));
    m_page->setProfile(1, 2);
    QCOMPARE(shown(), QStringLiteral("466:7,1,3 462:9"));
    m_store->profile(1, 2).currentKey = 3;
    m_store->profile(1, 2).keys[9] = clearedKey();
    m_page->setProfile(1, 2);
    QCOMPARE(shown(), QStringLiteral("466:3,1,7"));
}

void tst_GameControllerAdvWid::currentKeyIsInTheLowBits()
{
    m_store->profile(1, 2).currentKey = 0x20000 + 3;
    m_page->setProfile(1, 2);
    QCOMPARE(shown(), QStringLiteral("466:3,1,7 462:9"));
    m_store->profile(1, 2).currentKey = 0xFFFF;
    m_page->setProfile(1, 2);
    QCOMPARE(shown(), QStringLiteral("466:1,3,7 462:9"));
}

void tst_GameControllerAdvWid::unknownCodesShowNowhere()
{
    m_store->profile(1, 2).keys[4] = gameKey(458);
    m_store->profile(1, 2).keys[5] = gameKey(0);
    m_page->setProfile(1, 2);
    QCOMPARE(shown(), QStringLiteral("466:7,1,3 462:9"));
}

void tst_GameControllerAdvWid::failedRead()
{
    m_page->setProfile(1, 2);
    m_store->readsFail = true;
    m_store->profile(1, 2).currentKey = 3;
    m_page->setProfile(1, 2);
    QCOMPARE(shown(), QStringLiteral("466:7,1,3 462:9"));
}

void tst_GameControllerAdvWid::otherScope()
{
    m_page->setProfile(1, 2);
    m_page->setProfile(1, 3);
    QCOMPARE(shown(), QString());
}

void tst_GameControllerAdvWid::clickAssigns()
{
    m_page->setProfile(1, 2);
    m_page->show();
    QSignalSpy spy(m_page.get(), &GameControllerAdvWid::sigGameControllerChanged);
    for (const int code : LeftCodes.mid(1) + CentreCodes + RightCodes) {
        clickOn(button(code));
        QCOMPARE(spy.count(), 1);
        const auto key = spy.takeFirst().at(0).value<vantrix_key_mapping>();
        QCOMPARE(int(key.type), 2);
        QCOMPARE(int(ushort(key.altCode)), code);
    }
}

void tst_GameControllerAdvWid::oneFunctionForTheCurrentKey()
{
    m_page->setProfile(1, 2);
    QSignalSpy spy(m_page.get(), &GameControllerAdvWid::sigGameControllerChanged);
    button(464)->click();
    QCOMPARE(shown(), QStringLiteral("466:1,3 464:7 462:9"));
    button(462)->click();
    QCOMPARE(shown(), QStringLiteral("466:1,3 462:7,9"));
    QCOMPARE(button(464)->text(), QString());
    QCOMPARE(button(462)->text(), QStringLiteral("VANTRIX 08,\nVANTRIX 10"));
    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.at(1).at(0).value<vantrix_key_mapping>(), gameKey(462));
}

void tst_GameControllerAdvWid::twiceLeavesTheMap()
{
    m_page->setProfile(1, 2);
    QSignalSpy spy(m_page.get(), &GameControllerAdvWid::sigGameControllerChanged);
    button(462)->click();
    button(462)->click();
    QCOMPARE(row(462)->keys(), std::vector<int>({9}));
    QCOMPARE(spy.at(0).at(0).value<vantrix_key_mapping>(), gameKey(462));
    QCOMPARE(spy.at(1).at(0).value<vantrix_key_mapping>(), clearedKey());
}

void tst_GameControllerAdvWid::storeIsOnlyRead()
{
    m_page->setProfile(1, 2);
    button(462)->click();
    m_page->slotSearch(QStringLiteral("a"));
    QCOMPARE(m_store->calls(), QStringList({"getCurrentKey 1 2", "getKeyMappings 1 2"}));
}

void tst_GameControllerAdvWid::search_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVector<int>>("bold");

    QTest::newRow("nothing") << "" << QVector<int>();
    QTest::newRow("none") << "zzz" << QVector<int>();
    QTest::newRow("r") << "r" << QVector<int>{467, 223, 733, 477, 476, 732, 472};
    QTest::newRow("l stick") << "L stick" << QVector<int>{731, 475, 474, 730, 471};
    QTest::newRow("centre") << "home" << QVector<int>{470};
    QTest::newRow("inside") << "button" << QVector<int>();
}

void tst_GameControllerAdvWid::search()
{
    QFETCH(QString, text);
    const auto bold = [this] {
        QVector<int> codes;
        for (const int code : LeftCodes + CentreCodes + RightCodes) {
            if (child<QLabel>(row(code), "m_gamepad")->styleSheet().contains("bold"))
                codes << code;
        }
        return codes;
    };
    m_page->show();
    m_page->slotSearch(text);
    QTEST(bold(), "bold");
    for (const int code : LeftCodes + CentreCodes + RightCodes)
        QVERIFY(row(code)->isVisible());
    m_page->slotSearch(QString());
    QCOMPARE(bold(), QVector<int>());
}

void tst_GameControllerAdvWid::centreRows_data()
{
    QTest::addColumn<QSize>("size");

    QTest::newRow("small") << QSize(1, 1);
    QTest::newRow("dialog") << QSize(780, 480);
    QTest::newRow("form") << QSize(1076, 676);
    QTest::newRow("large") << QSize(1900, 1000);
}

void tst_GameControllerAdvWid::centreRows()
{
    QFETCH(QSize, size);
    m_page->setProfile(1, 3);
    m_page->resize(size);
    m_page->show();
    QCoreApplication::processEvents();
    auto *const picture = child<QLabel>(m_page.get(), "m_backgroundLab");
    const QRect bumper = row(466)->geometry();
    const int x = int(bumper.x() + bumper.width() + 0.28 * picture->width());
    QCOMPARE(row(470)->geometry(), QRect(QPoint(x, bumper.y()), bumper.size()));
    QCOMPARE(row(468)->geometry(),
             QRect(QPoint(x, bumper.y() + bumper.height() + 1), bumper.size()));
    QCOMPARE(row(469)->geometry(),
             QRect(QPoint(x, bumper.y() + 2 * (bumper.height() + 1)), bumper.size()));
    for (const int code : CentreCodes)
        QVERIFY(picture->geometry().contains(row(code)->geometry()));
}

void tst_GameControllerAdvWid::centreRowsFollowTheBumper()
{
    m_page->resize(780, 480);
    m_page->show();
    m_store->profile(1, 2).keys[12] = gameKey(466);
    m_page->setProfile(1, 2);
    QTRY_VERIFY(row(466)->height() >= 4 * row(466)->fontMetrics().lineSpacing());
    QTRY_COMPARE(row(468)->y(), row(466)->geometry().bottom() + 2);
    QCOMPARE(row(469)->height(), row(466)->height());
}

void tst_GameControllerAdvWid::everythingInsideAtAnySize()
{
    m_page->setProfile(1, 2);
    for (const QSize size :
         {QSize(1, 1), QSize(588, 600), QSize(700, 400), QSize(1300, 500), QSize(1076, 676)}) {
        m_page->show();
        m_page->resize(size);
        QCoreApplication::processEvents();
        QVector<QRect> rects;
        for (const int code : LeftCodes + CentreCodes + RightCodes) {
            const QRect rect = row(code)->geometry();
            QVERIFY2(m_page->rect().contains(rect), qPrintable(row(code)->objectName()));
            for (const QRect &other : qAsConst(rects))
                QVERIFY2(!rect.intersects(other), qPrintable(row(code)->objectName()));
            rects << rect;
            auto *const name = child<QLabel>(row(code), "m_gamepad");
            if (size.width() > 1)
                QVERIFY2(name->width() >= name->sizeHint().width(), qPrintable(name->text()));
            QVERIFY(button(code)->toolTip().isEmpty());
        }
    }
}

void tst_GameControllerAdvWid::tabOrder()
{
    m_page->show();
    QStringList order;
    QStringList expected;
    for (const int code : LeftCodes + CentreCodes + RightCodes)
        expected << QString::number(code);
    QWidget *const first = button(466);
    QWidget *widget = first;
    do {
        if (qobject_cast<QPushButton *>(widget))
            order << widget->parentWidget()->objectName().section(QLatin1Char('_'), 1);
        widget = widget->nextInFocusChain();
    } while (widget != first);
    QCOMPARE(order, expected);
}

VANTRIX_TEST_MAIN(tst_GameControllerAdvWid)
#include "tst_GameControllerAdvWid.moc"
