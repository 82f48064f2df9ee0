#include "interfaces/CfgFile.h"
#include "interfaces/Modal.h"
#include "interfaces/MsgBox.h"
#include "support/TestMain.h"

#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
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
    void realFileDialogsWork();
    void realFolderDialogWorks();
    void dialogDestroyedWhileOpen();
    void boxesDestroyedWhileOpen_data();
    void boxesDestroyedWhileOpen();
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

void tst_Modal::realFileDialogsWork()
{
    QTemporaryDir folder;
    const QString there = folder.filePath("there.exe");
    QFile file(there);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    const auto answer = [this](const QString &name, bool isSave) {
        QTimer::singleShot(0, this, [name, isSave] {
            auto *const dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            QCOMPARE(dialog->acceptMode() == QFileDialog::AcceptSave, isSave);
            QCOMPARE(dialog->nameFilters(), QStringList({"execute(*.exe)"}));
            if (name.isEmpty()) {
                dialog->reject();
                return;
            }
            dialog->selectFile(name);
            QTest::keyClick(dialog->findChild<QLineEdit *>(), Qt::Key_Return);
        });
    };
    answer(there, false);
    QCOMPARE(Modal::openFileName(nullptr, "Open File", folder.path(), "execute(*.exe)"), there);
    answer(QString(), false);
    QCOMPARE(Modal::openFileName(nullptr, "Open File", folder.path(), "execute(*.exe)"), QString());
    const QString fresh = folder.filePath("fresh.exe");
    answer(fresh, true);
    QCOMPARE(Modal::saveFileName(nullptr, "Save", fresh, "execute(*.exe)"), fresh);
    answer(QString(), true);
    QCOMPARE(Modal::saveFileName(nullptr, "Save", fresh, "execute(*.exe)"), QString());
}

void tst_Modal::realFolderDialogWorks()
{
    QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir("inner"));
    const auto answer = [this](bool isAccepted) {
        QTimer::singleShot(0, this, [isAccepted] {
            auto *const dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            QCOMPARE(dialog->windowTitle(), QString("Folder"));
            QVERIFY(dialog->testOption(QFileDialog::ShowDirsOnly));
            dialog->findChild<QLineEdit *>()->setText("inner");
            QTest::keyClick(dialog, isAccepted ? Qt::Key_Return : Qt::Key_Escape);
        });
    };
    answer(true);
    QCOMPARE(Modal::openFolder(nullptr, "Folder", folder.path()), folder.filePath("inner"));
    answer(false);
    QCOMPARE(Modal::openFolder(nullptr, "Folder", folder.path()), QString());
}

void tst_Modal::boxesDestroyedWhileOpen_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("warning") << 0;
    QTest::newRow("question") << 1;
    QTest::newRow("open file") << 2;
    QTest::newRow("save file") << 3;
    QTest::newRow("folder") << 4;
}

void tst_Modal::boxesDestroyedWhileOpen()
{
    QFETCH(int, kind);
    auto *const parent = new QWidget;
    QTimer::singleShot(0, this, [parent] { delete parent; });
    QObject context;
    int closed = 0;
    connect(Modal::instance(), &Modal::closed, &context, [&closed] { ++closed; });
    switch (kind) {
    case 0:
        Modal::warning(parent, "warning", "text");
        break;
    case 1:
        QCOMPARE(Modal::question(parent, "Reset", "Really?"), 0);
        break;
    case 2:
        QCOMPARE(Modal::openFileName(parent, "Open File", QString(), "execute(*.exe)"), QString());
        break;
    case 3:
        QCOMPARE(Modal::saveFileName(parent, "Save", "a.exe", "execute(*.exe)"), QString());
        break;
    default:
        QCOMPARE(Modal::openFolder(parent, "Folder", QString()), QString());
        break;
    }
    QCOMPARE(closed, 1);
}

VANTRIX_TEST_MAIN(tst_Modal)
#include "tst_Modal.moc"
