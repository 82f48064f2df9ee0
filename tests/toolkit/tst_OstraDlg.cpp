#include "interfaces/OstraDlg.h"
#include "support/Gestures.h"
#include "support/TestMain.h"

class tst_OstraDlg : public QObject
{
    Q_OBJECT

private slots:
    void hasNoFrame();
    void isDraggedByItsUpperEdge();
    void escapeRejects();
};

namespace {
void drag(QWidget *widget, const QPoint &from, const QPoint &by)
{
    const QPoint start = widget->mapToGlobal(from);
    QMouseEvent press(QEvent::MouseButtonPress, from, start, Qt::LeftButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(widget, &press);
    QMouseEvent move(QEvent::MouseMove, from + by, start + by, Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(widget, &move);
    QMouseEvent release(QEvent::MouseButtonRelease, from, start + by, Qt::LeftButton, {}, {});
    QCoreApplication::sendEvent(widget, &release);
}
} // namespace

void tst_OstraDlg::hasNoFrame()
{
    OstraDlg dialog;
    QVERIFY(dialog.windowFlags() & Qt::FramelessWindowHint);
    QVERIFY(dialog.isWindow());
}

void tst_OstraDlg::isDraggedByItsUpperEdge()
{
    OstraDlg dialog;
    dialog.resize(300, 200);
    dialog.move(100, 100);
    dialog.show();
    drag(&dialog, QPoint(150, 10), QPoint(30, 40));
    QCOMPARE(dialog.pos(), QPoint(130, 140));
    drag(&dialog, QPoint(150, 150), QPoint(30, 40));
    QCOMPARE(dialog.pos(), QPoint(130, 140));
}

void tst_OstraDlg::escapeRejects()
{
    OstraDlg dialog;
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    dialog.show();
    pressKey(&dialog, Qt::Key_Escape);
    QCOMPARE(rejected.count(), 1);
}

VANTRIX_TEST_MAIN(tst_OstraDlg)
#include "tst_OstraDlg.moc"
