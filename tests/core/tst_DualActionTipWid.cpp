#include "core/DualActionTipWid.h"

#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QLabel>
#include <QLayout>

class tst_DualActionTipWid : public QObject
{
    Q_OBJECT

private slots:
    void form();
    void tips_data();
    void tips();
    void secondTipsReplaceTheFirst();
    void liesOverItsSiblings();
};

void tst_DualActionTipWid::form()
{
    const DualActionTipWid tip;
    QCOMPARE(tip.size(), QSize(137, 51));
    QCOMPARE(tip.layout()->contentsMargins(), QMargins(6, 0, 0, 0));
    const auto *const first = child<QLabel>(&tip, "m_action1");
    const auto *const second = child<QLabel>(&tip, "m_action2");
    QCOMPARE(tip.layout()->itemAt(0)->widget(), first);
    QCOMPARE(tip.layout()->itemAt(1)->widget(), second);
    QCOMPARE(first->styleSheet(),
             QString("background:rgb(204,0,255);border-radius:10px;border:none;color:white;"
                     "font-size:10px;image:none;"));
    QCOMPARE(second->styleSheet(),
             QString("background:rgb(255,153,51);border-radius:10px;border:none;color:white;"
                     "font-size:10px;image:none;"));
    QCOMPARE(first->textFormat(), Qt::PlainText);
    QCOMPARE(second->textFormat(), Qt::PlainText);
}

void tst_DualActionTipWid::tips_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::addColumn<QString>("shownFirst");
    QTest::addColumn<QString>("shownSecond");
    QTest::newRow("plain") << "A"
                           << "B"
                           << "  ACTION1 - A"
                           << "  ACTION2 - B";
    QTest::newRow("doubled ampersand") << "7\n&&"
                                       << "&&"
                                       << "  ACTION1 - 7\n&"
                                       << "  ACTION2 - &";
    QTest::newRow("angle bracket") << "<\n,"
                                   << "<b>"
                                   << "  ACTION1 - &lt;\n,"
                                   << "  ACTION2 - &lt;b>";
    QTest::newRow("nothing") << ""
                             << ""
                             << "  ACTION1 - "
                             << "  ACTION2 - ";
}

void tst_DualActionTipWid::tips()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    QFETCH(QString, shownFirst);
    QFETCH(QString, shownSecond);
    DualActionTipWid tip;
    tip.setTips(first, second);
    QCOMPARE(child<QLabel>(&tip, "m_action1")->text(), shownFirst);
    QCOMPARE(child<QLabel>(&tip, "m_action2")->text(), shownSecond);
}

void tst_DualActionTipWid::secondTipsReplaceTheFirst()
{
    DualActionTipWid tip;
    tip.setTips("A", "B");
    tip.setTips("C", "D");
    QCOMPARE(child<QLabel>(&tip, "m_action1")->text(), QString("  ACTION1 - C"));
    QCOMPARE(child<QLabel>(&tip, "m_action2")->text(), QString("  ACTION2 - D"));
}

void tst_DualActionTipWid::liesOverItsSiblings()
{
    QWidget page;
    page.resize(300, 200);
    DualActionTipWid tip(&page);
    tip.hide();
    QWidget later(&page);
    later.resize(300, 200);
    page.show();
    QCOMPARE(page.childAt(10, 10), &later);
    tip.show();
    QCOMPARE(page.children().last(), static_cast<QObject *>(&tip));
    // The pointer goes through to the key below.
    QVERIFY(tip.testAttribute(Qt::WA_TransparentForMouseEvents));
    QCOMPARE(page.childAt(10, 10), &later);
}

VANTRIX_TEST_MAIN(tst_DualActionTipWid)
#include "tst_DualActionTipWid.moc"
