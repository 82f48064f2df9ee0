#include "interfaces/CfgFile.h"
#include "interfaces/Modal.h"
#include "interfaces/MsgBox.h"
#include "support/TestMain.h"

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

class tst_Modal : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void warningIsAsked();
    void questionIsAnswered();
    void fileIsAnswered();
    void dialogIsAnswered();
    void openingAndClosedFrameThePrompt();
    void realBoxesWork();
    void dialogDestroyedWhileOpen();
};

void tst_Modal::cleanup()
{
    Modal::setAnswerer(nullptr);
}

void tst_Modal::warningIsAsked()
{
    QWidget parent;
    ModalPrompt seen;
    Modal::setAnswerer([&](const ModalPrompt &prompt) {
        seen = prompt;
        return QVariant();
    });
    MsgBox::warning(&parent, "warning", "text of it");
    QCOMPARE(seen.kind, ModalPrompt::Warning);
    QCOMPARE(seen.parent.data(), &parent);
    QCOMPARE(seen.title, QString("warning"));
    QCOMPARE(seen.text, QString("text of it"));
}

void tst_Modal::questionIsAnswered()
{
    QVariant answer = 1;
    Modal::setAnswerer([&](const ModalPrompt &) { return answer; });
    QVERIFY(MsgBox::question(nullptr, "Reset", "Sure?") != 0);
    answer = 0;
    QCOMPARE(MsgBox::question(nullptr, "Reset", "Sure?"), 0);
}

void tst_Modal::fileIsAnswered()
{
    QWidget window;
    window.show();
    ModalPrompt seen;
    Modal::setAnswerer([&](const ModalPrompt &prompt) {
        seen = prompt;
        return QVariant("/a b/ü.exe");
    });
    const HWND handle = reinterpret_cast<HWND>(window.winId());
    QCOMPARE(CfgFile::getOpenFileName(handle, "Open File", "", L"execute(*.exe)"),
             QString("/a b/ü.exe"));
    QCOMPARE(seen.kind, ModalPrompt::OpenFile);
    QCOMPARE(seen.title, QString("Open File"));
    QCOMPARE(seen.text, QString("execute(*.exe)"));
    QCOMPARE(seen.parent.data(), &window);
}

void tst_Modal::dialogIsAnswered()
{
    QDialog dialog;
    Modal::setAnswerer([&](const ModalPrompt &prompt) {
        Q_ASSERT(prompt.dialog == &dialog);
        return QVariant(1);
    });
    QCOMPARE(Modal::exec(&dialog), 1);
    QVERIFY(!dialog.isVisible());
}

void tst_Modal::openingAndClosedFrameThePrompt()
{
    QStringList order;
    QObject context;
    connect(Modal::instance(), &Modal::opening, &context, [&] { order << "opening"; });
    connect(Modal::instance(), &Modal::closed, &context, [&] { order << "closed"; });
    Modal::setAnswerer([&](const ModalPrompt &) {
        order << "asked";
        return QVariant();
    });
    MsgBox::warning(nullptr, "a", "b");
    QCOMPARE(order, QStringList({"opening", "asked", "closed"}));
}

void tst_Modal::realBoxesWork()
{
    QString text;
    QTimer::singleShot(0, this, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        QVERIFY(box);
        text = box->text();
        box->button(QMessageBox::Yes)->click();
    });
    QVERIFY(MsgBox::question(nullptr, "Reset", "Really?") != 0);
    QCOMPARE(text, QString("Really?"));

    QTimer::singleShot(0, this, [] { QApplication::activeModalWidget()->close(); });
    MsgBox::warning(nullptr, "warning", "text");
}

void tst_Modal::dialogDestroyedWhileOpen()
{
    auto *parent = new QWidget;
    auto *dialog = new QDialog(parent);
    QTimer::singleShot(0, this, [&] { delete parent; });
    QCOMPARE(Modal::exec(dialog), int(QDialog::Rejected));
}

VANTRIX_TEST_MAIN(tst_Modal)
#include "tst_Modal.moc"
