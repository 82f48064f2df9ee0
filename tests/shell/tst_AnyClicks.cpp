#include "ShellFixture.h"
#include "interfaces/Modal.h"
#include "shell/MainWindow.h"
#include "support/TestMain.h"

#include <QAbstractButton>
#include <QApplication>
#include <QToolButton>

#include <algorithm>
#include <memory>
#include <random>
#include <tuple>

/// Presses whatever button can be pressed, without a plan, and takes everything back.
class tst_AnyClicks : public QObject
{
    Q_OBJECT

private slots:
    void clickAndUndo_data();
    void clickAndUndo();

private:
    static QVector<QAbstractButton *> buttons();
    static QByteArray contents(const StoreState &state);
};

/// All that a mouse could reach, whatever window it is in. A menu would wait for the mouse.
QVector<QAbstractButton *> tst_AnyClicks::buttons()
{
    QVector<QAbstractButton *> found;
    const auto widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        auto *const button = qobject_cast<QAbstractButton *>(widget);
        const auto *const tool = qobject_cast<QToolButton *>(widget);
        if (button && button->isVisible() && button->isEnabled() && !(tool && tool->menu()))
            found << button;
    }
    std::sort(found.begin(), found.end(), [](const QAbstractButton *a, const QAbstractButton *b) {
        return std::make_tuple(a->objectName(), a->text(), a->mapToGlobal(QPoint()).y(),
                               a->mapToGlobal(QPoint()).x()) <
               std::make_tuple(b->objectName(), b->text(), b->mapToGlobal(QPoint()).y(),
                               b->mapToGlobal(QPoint()).x());
    });
    return found;
}

QByteArray tst_AnyClicks::contents(const StoreState &state)
{
    QByteArray bytes;
    for (const auto &[id, value] : state.records()) {
        if (kindOf(id.table) == StoreKind::Content)
            bytes += QByteArray::number(int(id.table)) + ' ' + QByteArray::number(id.profile) +
                     ' ' + QByteArray::number(id.index) + ' ' + id.name.toUtf8() + ' ' +
                     value.toHex() + '\n';
    }
    return bytes;
}

void tst_AnyClicks::clickAndUndo_data()
{
    QTest::addColumn<int>("seed");
    for (int seed = 1; seed <= 4; ++seed)
        QTest::newRow(qPrintable(QString::number(seed))) << seed;
}

void tst_AnyClicks::clickAndUndo()
{
    QFETCH(int, seed);
    std::mt19937 random(static_cast<quint32>(seed));
    Modal::setAnswerer([&random](const ModalPrompt &) { return QVariant(int(random() % 2)); });
    ShellFixture shell;
    auto window = std::make_unique<MainWindow>(shell.context);
    window->resize(1400, 860);
    window->show();
    const QByteArray start = contents(shell.store().state());
    for (int i = 0; i < 250; ++i) {
        const auto all = buttons();
        QVERIFY(!all.isEmpty());
        all[int(random() % quint32(all.size()))]->click();
        QCoreApplication::processEvents();
    }
    shell.store().flush();
    const int steps = shell.store().stepPosition();
    const QByteArray end = contents(shell.store().state());
    emit shell.context.historyRequested(0);
    QCOMPARE(contents(shell.store().state()), start);
    emit shell.context.historyRequested(steps);
    QCOMPARE(contents(shell.store().state()), end);
    window.reset();
    Modal::setAnswerer(nullptr);
}

VANTRIX_TEST_MAIN(tst_AnyClicks)
#include "tst_AnyClicks.moc"
