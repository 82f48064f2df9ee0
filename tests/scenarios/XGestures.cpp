#include "XGestures.h"

#include <QApplication>
#include <QProcess>
#include <QTest>
#include <QWidget>

namespace {

constexpr int PatienceMs = 20000;
constexpr int SettleMs = 120;

bool run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    // The program under test must go on meanwhile, to answer the server.
    const bool isDone =
        QTest::qWaitFor([&process] { return process.state() == QProcess::NotRunning; }, PatienceMs);
    QTest::qWait(SettleMs);
    return isDone && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

QStringList moveTo(const QWidget *widget, const QPoint &at)
{
    const QPoint place = widget->mapToGlobal(at) * widget->devicePixelRatioF();
    return {QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y())};
}

} // namespace

bool XGestures::xdotool(const QStringList &arguments)
{
    return run(QStringLiteral("xdotool"), arguments);
}

bool XGestures::setLayout(const QString &layout)
{
    return run(QStringLiteral("setxkbmap"), {layout});
}

void XGestures::focus(QWidget *window)
{
    xdotool({QStringLiteral("windowfocus"), QString::number(window->winId())});
    QVERIFY(QTest::qWaitFor([window] { return window->isActiveWindow(); }));
}

void XGestures::click(QWidget *widget)
{
    click(widget, widget->rect().center());
}

void XGestures::click(QWidget *widget, const QPoint &at)
{
    QVERIFY(xdotool(moveTo(widget, at) << QStringLiteral("click") << QStringLiteral("1")));
}

void XGestures::doubleClick(QWidget *widget, const QPoint &at)
{
    QVERIFY(xdotool(moveTo(widget, at) << QStringLiteral("click") << QStringLiteral("--repeat")
                                       << QStringLiteral("2") << QStringLiteral("1")));
}

void XGestures::key(const QString &name)
{
    QVERIFY(xdotool({QStringLiteral("key"), name}));
}

void XGestures::type(const QString &text)
{
    QVERIFY(xdotool({QStringLiteral("type"), text}));
}
