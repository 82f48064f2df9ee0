#include "toolkit/Portions.h"

#include "support/TestMain.h"

#include <QThread>

#include <memory>

class tst_Portions : public QObject
{
    Q_OBJECT

private slots:
    void littleWorkIsDoneAtOnce();
    void muchWorkLeavesTheLoopRoom();
    void stepThatComesAgain();
    void stepThatAddsSteps();
    void leftWorkIsDropped();
};

void tst_Portions::littleWorkIsDoneAtOnce()
{
    Portions portions;
    int done = 0;
    portions.add([&] { return ++done; });
    QCOMPARE(done, 1);
    QTest::qWait(5);
    QCOMPARE(done, 1);
}

void tst_Portions::muchWorkLeavesTheLoopRoom()
{
    Portions portions;
    QString order;
    int longest = 0;
    int before = 0;
    for (int i = 0; i < 10; ++i) {
        portions.add([&order, i] {
            QThread::msleep(6);
            order += QString::number(i);
            return true;
        });
    }
    QVERIFY2(order.size() <= 2, qPrintable(order));
    while (order.size() < 10) {
        QCoreApplication::processEvents();
        longest = std::max(longest, int(order.size()) - before);
        before = order.size();
    }
    QCOMPARE(order, QStringLiteral("0123456789"));
    // Some event loops call a timer twice in a turn.
    QVERIFY2(longest <= 4, qPrintable(QString::number(longest)));
}

void tst_Portions::stepThatComesAgain()
{
    Portions portions;
    QString order;
    int left = 5;
    portions.add([&] {
        QThread::msleep(6);
        order += QLatin1Char('a');
        return --left == 0;
    });
    portions.add([&] {
        order += QLatin1Char('b');
        return true;
    });
    QVERIFY(left >= 3);
    QTRY_COMPARE(order, QStringLiteral("aaaaab"));
}

void tst_Portions::stepThatAddsSteps()
{
    Portions portions;
    QString order;
    portions.add([&] {
        portions.add([&] {
            order += QLatin1Char('c');
            return true;
        });
        order += QLatin1Char('a');
        return true;
    });
    portions.add([&] {
        order += QLatin1Char('d');
        return true;
    });
    QTRY_COMPARE(order, QStringLiteral("acd"));
}

void tst_Portions::leftWorkIsDropped()
{
    auto portions = std::make_unique<Portions>();
    int done = 0;
    portions->add([&] {
        QThread::msleep(20);
        return ++done == 2;
    });
    QCOMPARE(done, 1);
    portions.reset();
    QTest::qWait(5);
    QCOMPARE(done, 1);
}

VANTRIX_TEST_MAIN(tst_Portions)

#include "tst_Portions.moc"
