#include "HammerTurn.h"
#include "support/TestMain.h"

#include <QProcess>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>

#include <random>

/// Kills a program at random moments while it saves. `STORE_KILL_RUNS` says how often, 20 times
/// without it; tools/kill-store does it 500 times.
class tst_StoreKill : public QObject
{
    Q_OBJECT

private slots:
    void neverBetweenTwoTurns();
    void soundWithoutRepair();

private:
    /// Runs the program until some time after its first turn, kills it, and gives the last turn
    /// that it said was saved.
    static int runAndKill(const QString &file, int firstTurn, int delayUs);
    static int runs()
    {
        const int wanted = qEnvironmentVariableIntValue("STORE_KILL_RUNS");
        return wanted > 0 ? wanted : 20;
    }
};

int tst_StoreKill::runAndKill(const QString &file, int firstTurn, int delayUs)
{
    QProcess hammer;
    hammer.start(QStringLiteral(STORE_HAMMER), {file, QString::number(firstTurn)});
    if (!hammer.waitForStarted())
        return -1;
    // some are killed while they open the store, most in the middle of their work
    if (delayUs % 5 != 0)
        hammer.waitForReadyRead();
    QThread::usleep(quint32(delayUs));
    hammer.kill();
    hammer.waitForFinished();
    if (hammer.exitStatus() != QProcess::CrashExit)
        return -1;
    const QList<QByteArray> lines = hammer.readAllStandardOutput().split('\n');
    // the last one is empty, or cut off
    return lines.size() < 2 ? firstTurn - 1 : lines.at(lines.size() - 2).toInt();
}

void tst_StoreKill::neverBetweenTwoTurns()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("store"));
    ProfileStore expected{QString()};
    std::mt19937 random(20);
    int turn = 0;
    for (int run = 0; run < runs(); ++run) {
        const int saved = runAndKill(file, turn + 1, int(random() % 30000));
        QVERIFY2(saved >= turn, qPrintable(QStringLiteral("run %1").arg(run)));
        for (; turn < saved; ++turn) {
            hammerTurn(expected, turn + 1);
            expected.flush();
        }
        const ProfileStore store(file);
        QCOMPARE(store.messages().join(QLatin1Char(10)), QString());
        if (store.state() == expected.state() && store.stepNames() == expected.stepNames() &&
            store.stepPosition() == expected.stepPosition())
            continue;
        // the turn in progress may have been finished
        hammerTurn(expected, ++turn);
        expected.flush();
        QVERIFY2(store.state() == expected.state(),
                 qPrintable(QStringLiteral("run %1, turn %2").arg(run).arg(turn)));
        QCOMPARE(store.stepNames(), expected.stepNames());
        QCOMPARE(store.stepPosition(), expected.stepPosition());
    }
    qInfo("%d runs, %d turns", runs(), turn);
}

void tst_StoreKill::soundWithoutRepair()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("store"));
    QVERIFY(runAndKill(file, 1, 10001) >= 1);
    {
        QSqlDatabase db =
            QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("sound"));
        db.setDatabaseName(file);
        QVERIFY(db.open());
        QSqlQuery query(db);
        QVERIFY(query.exec(QStringLiteral("PRAGMA integrity_check")) && query.next());
        QCOMPARE(query.value(0).toString(), QStringLiteral("ok"));
    }
    QSqlDatabase::removeDatabase(QStringLiteral("sound"));
    ProfileStore store(file);
    QCOMPARE(store.messages(), QStringList());
    QVERIFY(!store.isReadOnly());
    while (store.undo()) {
    }
    QVERIFY(store.state().macroNames(1).isEmpty());
}

VANTRIX_TEST_MAIN(tst_StoreKill)
#include "tst_StoreKill.moc"
