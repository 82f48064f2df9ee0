#include "shell/MacroRecorder.h"

#include "support/Gestures.h"
#include "support/TestMain.h"

class tst_MacroRecorder : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void delays();
    void delayIsAtMost65535();
    void nothingOutsideARecording();
    void repetitionsArePassedOver();
    void releaseOfAnotherKey();
    void heldKeysAreReleasedAtTheEnd();
    void escapeTwice();
    void escapeTwiceSlowly();
    void escapeOnceIsAKey();
    void limit();
    void limitCountsReleasesOfHeldKeys();
    void startBeginsAnew();
    void keyWithoutACode();

private:
    using Events = MacroRecorder::Events;

    void tap(ushort code)
    {
        m_recorder->press(code);
        m_now += 10;
        m_recorder->release(code);
        m_now += 10;
    }
    Events plain() const { return m_recorder->events(MacroRecorder::None, 0); }

    qint64 m_now = 0;
    std::unique_ptr<MacroRecorder> m_recorder;
};

void tst_MacroRecorder::init()
{
    m_now = 1000;
    m_recorder = std::make_unique<MacroRecorder>(nullptr, [this] { return m_now; });
    m_recorder->start(127);
}

void tst_MacroRecorder::delays()
{
    m_recorder->press(4);
    m_now += 35;
    m_recorder->press(5);
    m_now += 120;
    m_recorder->release(4);
    m_now += 7;
    m_recorder->release(5);
    m_now += 900;
    m_recorder->stop();
    QVERIFY(m_recorder->events(MacroRecorder::AsTheyWere, 20) ==
            Events({{4, 1, 35}, {5, 1, 120}, {4, 0, 7}, {5, 0, 0}}));
    QVERIFY(m_recorder->events(MacroRecorder::None, 20) ==
            Events({{4, 1, 0}, {5, 1, 0}, {4, 0, 0}, {5, 0, 0}}));
    QVERIFY(m_recorder->events(MacroRecorder::Fixed, 20) ==
            Events({{4, 1, 20}, {5, 1, 20}, {4, 0, 20}, {5, 0, 20}}));
}

void tst_MacroRecorder::delayIsAtMost65535()
{
    m_recorder->press(4);
    m_now += 100000;
    m_recorder->release(4);
    QCOMPARE(int(m_recorder->events(MacroRecorder::AsTheyWere, 0)[0].delay), 65535);
}

void tst_MacroRecorder::nothingOutsideARecording()
{
    m_recorder->stop();
    tap(4);
    QCOMPARE(m_recorder->eventCount(), 0);
    QVERIFY(!m_recorder->isRecording());
}

void tst_MacroRecorder::repetitionsArePassedOver()
{
    QWidget widget;
    m_recorder->press(4);
    m_recorder->press(4);
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_B, Qt::NoModifier, 0x30, 0x42, 0, QString(), true);
    QVERIFY(m_recorder->take(&repeat));
    QVERIFY(plain() == Events({{4, 1, 0}}));
}

void tst_MacroRecorder::releaseOfAnotherKey()
{
    m_recorder->release(40); // the Return that pressed RECORD
    tap(4);
    QVERIFY(plain() == Events({{4, 1, 0}, {4, 0, 0}}));
}

void tst_MacroRecorder::heldKeysAreReleasedAtTheEnd()
{
    QSignalSpy stopped(m_recorder.get(), &MacroRecorder::stopped);
    m_recorder->press(0xE0);
    m_recorder->press(0xE1);
    m_recorder->stop();
    QVERIFY(plain() == Events({{0xE0, 1, 0}, {0xE1, 1, 0}, {0xE1, 0, 0}, {0xE0, 0, 0}}));
    QCOMPARE(stopped.count(), 1);
    m_recorder->stop();
    QCOMPARE(stopped.count(), 1);
}

void tst_MacroRecorder::escapeTwice()
{
    QSignalSpy stopped(m_recorder.get(), &MacroRecorder::stopped);
    tap(4);
    tap(0x29);
    m_recorder->press(0x29);
    QCOMPARE(stopped.count(), 1);
    QVERIFY(plain() == Events({{4, 1, 0}, {4, 0, 0}}));
}

void tst_MacroRecorder::escapeTwiceSlowly()
{
    tap(0x29);
    m_now += 600;
    tap(0x29);
    QVERIFY(m_recorder->isRecording());
    QCOMPARE(m_recorder->eventCount(), 4);
}

void tst_MacroRecorder::escapeOnceIsAKey()
{
    tap(0x29);
    tap(4);
    tap(0x29);
    QVERIFY(m_recorder->isRecording());
    QCOMPARE(m_recorder->eventCount(), 6);
}

void tst_MacroRecorder::limit()
{
    QSignalSpy refused(m_recorder.get(), &MacroRecorder::refused);
    for (int i = 0; i < 63; ++i)
        tap(4);
    QVERIFY(m_recorder->isRecording());
    QCOMPARE(m_recorder->eventCount(), 126);
    m_recorder->press(5); // its release would be the 128th
    QVERIFY(!m_recorder->isRecording());
    QCOMPARE(m_recorder->eventCount(), 126);
    QCOMPARE(refused.count(), 1);
    QCOMPARE(refused[0][0].toString(), QStringLiteral("A macro holds at most 127 events."));
}

void tst_MacroRecorder::limitCountsReleasesOfHeldKeys()
{
    m_recorder->start(6);
    m_recorder->press(4);
    m_recorder->press(5);
    m_recorder->press(6);
    QVERIFY(m_recorder->isRecording());
    m_recorder->press(7);
    QVERIFY(!m_recorder->isRecording());
    QVERIFY(plain() == Events({{4, 1, 0}, {5, 1, 0}, {6, 1, 0}, {6, 0, 0}, {5, 0, 0}, {4, 0, 0}}));
}

void tst_MacroRecorder::startBeginsAnew()
{
    m_recorder->press(4);
    m_recorder->stop();
    m_recorder->start(127);
    QCOMPARE(m_recorder->eventCount(), 0);
    tap(5);
    QCOMPARE(m_recorder->eventCount(), 2);
}

void tst_MacroRecorder::keyWithoutACode()
{
    QSignalSpy refused(m_recorder.get(), &MacroRecorder::refused);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, 0x7F, 0xFE, 0);
    QVERIFY(m_recorder->take(&press));
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_unknown, Qt::NoModifier, 0x7F, 0xFE, 0);
    QVERIFY(m_recorder->take(&release));
    QCOMPARE(refused.count(), 1);
    QCOMPARE(refused[0][0].toString(), QStringLiteral("The pad has no code for this key."));
    QCOMPARE(m_recorder->eventCount(), 0);
}

VANTRIX_TEST_MAIN(tst_MacroRecorder)
#include "tst_MacroRecorder.moc"
