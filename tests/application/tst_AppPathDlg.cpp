#include "application/AppPathDlg.h"

#include "fakes/FakeProfileCfg.h"
#include "interfaces/Modal.h"
#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>

namespace {

const QString oldPath = QStringLiteral("C:/Old Folder/Photoshop.exe");
const QString newPath = QString::fromUtf8("C:/Мои программы/新しい フォルダ/Photoshop.exe");

} // namespace

class tst_AppPathDlg : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_store = std::make_unique<FakeProfileCfg>(); }
    void cleanup()
    {
        Modal::setAnswerer(nullptr);
        m_store.reset();
    }
    void form();
    void buttonsOfTheForm();
    void showsTheApplication_data();
    void showsTheApplication();
    void showsTheStoredPath();
    void pathHasTheRoomOfItsRow();
    void tipShowsTheWholePath();
    void asksForAFile();
    void emptyAnswerKeepsThePath();
    void applyStores();
    void onlyApplyStores_data();
    void onlyApplyStores();
    void unchangedWritesNothing();
    void pathStoredMeanwhile();
    void enterApplies();
    void mayGoWhileAFileIsChosen();

private:
    /// A dialog for type 0 in which another path was chosen.
    std::unique_ptr<AppPathDlg> dialogWithNewPath();
    QString stored(int appType)
    {
        QString path;
        m_store->getAppPath(appType, path);
        return path;
    }

    std::unique_ptr<FakeProfileCfg> m_store;
};

std::unique_ptr<AppPathDlg> tst_AppPathDlg::dialogWithNewPath()
{
    m_store->setAppPath(0, oldPath);
    m_store->setAppPathCount = 0;
    auto dialog = std::make_unique<AppPathDlg>(0, nullptr);
    dialog->show();
    Modal::setAnswerer([](const ModalPrompt &) { return newPath; });
    clickOn(child<QToolButton>(dialog.get(), QStringLiteral("m_dir")));
    return dialog;
}

void tst_AppPathDlg::form()
{
    const AppPathDlg dialog(0, nullptr);
    QCOMPARE(dialog.size(), QSize(435, 176));
    QCOMPARE(dialog.styleSheet(), QStringLiteral("background:rgb(110,112,118);"));
    QCOMPARE(child<QWidget>(&dialog, "widget")->styleSheet(),
             QStringLiteral("background:rgb(134,51,154);"));
    QCOMPARE(child<QLabel>(&dialog, "label_3")->text(), QStringLiteral("APPLICATION"));
    QCOMPARE(child<QLabel>(&dialog, "label_2")->text(), QString());
    QCOMPARE(int(child<QLabel>(&dialog, "m_typeDesc")->alignment()),
             int(Qt::AlignRight | Qt::AlignVCenter));
    QVERIFY(child<QLineEdit>(&dialog, "m_path")->isReadOnly());
    const auto *const rows = child<QVBoxLayout>(&dialog, "verticalLayout_2");
    QCOMPARE(rows->count(), 5);
    for (int row = 0; row < 5; ++row)
        QCOMPARE(rows->stretch(row), row % 2 == 0 ? 1 : 0);
}

void tst_AppPathDlg::buttonsOfTheForm()
{
    const AppPathDlg dialog(0, nullptr);
    const QString sheet = QStringLiteral(
        "background:qlineargradient(spread:pad, x1:0.494, y1:0.000318182, x2:0.494, y2:1, "
        "stop:0 rgba(135, 135, 135, 255), stop:0.505618 rgba(121, 121, 121, 255), "
        "stop:1 rgba(104, 104, 104, 255))");
    const auto *const close = child<QToolButton>(&dialog, "m_close");
    QCOMPARE(close->text(), QStringLiteral("X"));
    QCOMPARE(close->styleSheet(), QStringLiteral("background:transparent;border:none;"));
    QCOMPARE(close->font().family(), QStringLiteral("Arial Rounded MT Bold"));
    QCOMPARE(close->font().pointSize(), 12);
    const auto *const dir = child<QToolButton>(&dialog, "m_dir");
    QCOMPARE(dir->text(), QStringLiteral("..."));
    QCOMPARE(dir->minimumWidth(), 40);
    QCOMPARE(dir->styleSheet(), sheet);
    const auto *const cancel = child<QPushButton>(&dialog, "m_cancel");
    QCOMPARE(cancel->text(), QStringLiteral("CANCEL"));
    QCOMPARE(cancel->minimumWidth(), 100);
    QCOMPARE(cancel->styleSheet(), sheet);
    const auto *const apply = child<QPushButton>(&dialog, "m_apply");
    QCOMPARE(apply->text(), QStringLiteral("APPLY"));
    QCOMPARE(apply->minimumWidth(), 100);
    QCOMPARE(apply->styleSheet(), sheet);
}

void tst_AppPathDlg::showsTheApplication_data()
{
    QTest::addColumn<int>("appType");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("picture");
    QTest::newRow("0") << 0 << "PHOTOSHOP"
                       << ":/VantrixMap/Application/PS/ps.png";
    QTest::newRow("1") << 1 << "PREMIERE PRO"
                       << ":/VantrixMap/Application/PR/pr.png";
    QTest::newRow("2") << 2 << "ILLUSTRATOR"
                       << ":/VantrixMap/Application/AI/ai.png";
    QTest::newRow("3") << 3 << "UNKNOWN"
                       << "";
    QTest::newRow("-1") << -1 << "UNKNOWN"
                        << "";
}

void tst_AppPathDlg::showsTheApplication()
{
    QFETCH(int, appType);
    QFETCH(QString, name);
    QFETCH(QString, picture);
    const AppPathDlg dialog(appType, nullptr);
    QCOMPARE(child<QLabel>(&dialog, "m_typeDesc")->text(), name);
    const QPixmap shown = child<QLabel>(&dialog, "m_typeIcon")->pixmap(Qt::ReturnByValue);
    QCOMPARE(shown.isNull(), picture.isEmpty());
    QCOMPARE(shown.toImage(), picture.isEmpty() ? QImage() : QPixmap(picture).toImage());
}

void tst_AppPathDlg::showsTheStoredPath()
{
    m_store->setAppPath(2, newPath);
    const AppPathDlg dialog(2, nullptr);
    QCOMPARE(child<QLineEdit>(&dialog, "m_path")->text(), newPath);
    QCOMPARE(m_store->setAppPathCount, 1);
}

void tst_AppPathDlg::pathHasTheRoomOfItsRow()
{
    for (const int width : {435, 900}) {
        AppPathDlg dialog(0, nullptr);
        dialog.resize(width, 176);
        dialog.show();
        const auto *const row = child<QHBoxLayout>(&dialog, "horizontalLayout");
        QCOMPARE(row->count(), 5);
        QCOMPARE(row->itemAt(0)->geometry().width(), 15);
        QCOMPARE(row->itemAt(4)->geometry().width(), 20);
        const auto *const icon = child<QLabel>(&dialog, "m_typeIcon");
        QCOMPARE(icon->width(), icon->sizeHint().width());
        QCOMPARE(child<QToolButton>(&dialog, "m_dir")->width(), 40);
    }
}

void tst_AppPathDlg::tipShowsTheWholePath()
{
    m_store->setAppPath(0, oldPath);
    AppPathDlg dialog(0, nullptr);
    dialog.show();
    const auto *const path = child<QLineEdit>(&dialog, "m_path");
    QCOMPARE(path->toolTip(), oldPath);
    Modal::setAnswerer([](const ModalPrompt &) { return QStringLiteral("C:/a<b>/c & d.exe"); });
    clickOn(child<QToolButton>(&dialog, "m_dir"));
    QCOMPARE(path->toolTip(), QStringLiteral("<span>C:/a&lt;b&gt;/c &amp; d.exe</span>"));
}

void tst_AppPathDlg::asksForAFile()
{
    AppPathDlg dialog(0, nullptr);
    dialog.show();
    ModalPrompt asked;
    Modal::setAnswerer([&asked](const ModalPrompt &prompt) {
        asked = prompt;
        return newPath;
    });
    clickOn(child<QToolButton>(&dialog, "m_dir"));
    QCOMPARE(int(asked.kind), int(ModalPrompt::OpenFile));
    QCOMPARE(asked.parent.data(), &dialog);
    QCOMPARE(asked.title, QStringLiteral("Open File"));
    QCOMPARE(asked.text, QStringLiteral("execute(*.exe)"));
    QCOMPARE(child<QLineEdit>(&dialog, "m_path")->text(), newPath);
    QVERIFY(dialog.isVisible());
}

void tst_AppPathDlg::emptyAnswerKeepsThePath()
{
    m_store->setAppPath(0, oldPath);
    AppPathDlg dialog(0, nullptr);
    dialog.show();
    Modal::setAnswerer([](const ModalPrompt &) { return QString(); });
    clickOn(child<QToolButton>(&dialog, "m_dir"));
    QCOMPARE(child<QLineEdit>(&dialog, "m_path")->text(), oldPath);
}

void tst_AppPathDlg::applyStores()
{
    const auto dialog = dialogWithNewPath();
    QCOMPARE(m_store->setAppPathCount, 0);
    clickOn(child<QPushButton>(dialog.get(), "m_apply"));
    QCOMPARE(m_store->setAppPathCount, 1);
    QCOMPARE(stored(0), newPath);
    QVERIFY(!dialog->isVisible());
    QCOMPARE(dialog->result(), int(QDialog::Accepted));
}

void tst_AppPathDlg::onlyApplyStores_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<int>("result");
    QTest::newRow("CANCEL") << "m_cancel" << int(QDialog::Rejected);
    QTest::newRow("X") << "m_close" << int(QDialog::Accepted);
    QTest::newRow("Escape") << "Escape" << int(QDialog::Rejected);
    QTest::newRow("closed by the window system") << "close" << int(QDialog::Rejected);
}

void tst_AppPathDlg::onlyApplyStores()
{
    QFETCH(QString, way);
    QFETCH(int, result);
    const auto dialog = dialogWithNewPath();
    if (way == QLatin1String("Escape"))
        pressKey(dialog.get(), Qt::Key_Escape);
    else if (way == QLatin1String("close"))
        dialog->close();
    else
        clickOn(child<QWidget>(dialog.get(), way));
    QVERIFY(!dialog->isVisible());
    QCOMPARE(dialog->result(), result);
    QCOMPARE(m_store->setAppPathCount, 0);
    QCOMPARE(stored(0), oldPath);
}

void tst_AppPathDlg::unchangedWritesNothing()
{
    m_store->setAppPath(0, oldPath);
    AppPathDlg dialog(0, nullptr);
    dialog.show();
    clickOn(child<QPushButton>(&dialog, "m_apply"));
    QVERIFY(!dialog.isVisible());
    QCOMPARE(m_store->setAppPathCount, 1);
    QCOMPARE(stored(0), oldPath);
}

void tst_AppPathDlg::pathStoredMeanwhile()
{
    // The detection ends while the dialog is open: what is stored then counts, not what was shown.
    m_store->setAppPath(0, oldPath);
    AppPathDlg dialog(0, nullptr);
    dialog.show();
    m_store->setAppPath(0, newPath);
    clickOn(child<QPushButton>(&dialog, "m_apply"));
    QCOMPARE(m_store->setAppPathCount, 3);
    QCOMPARE(stored(0), oldPath);
}

void tst_AppPathDlg::enterApplies()
{
    const auto dialog = dialogWithNewPath();
    pressKey(child<QLineEdit>(dialog.get(), "m_path"), Qt::Key_Return);
    QVERIFY(!dialog->isVisible());
    QCOMPARE(stored(0), newPath);
}

void tst_AppPathDlg::mayGoWhileAFileIsChosen()
{
    auto *dialog = new AppPathDlg(0, nullptr);
    dialog->show();
    Modal::setAnswerer([&dialog](const ModalPrompt &) {
        delete dialog;
        dialog = nullptr;
        return newPath;
    });
    clickOn(child<QToolButton>(dialog, QStringLiteral("m_dir")));
    QVERIFY(!dialog);
    QCOMPARE(stored(0), QString());
}

VANTRIX_TEST_MAIN(tst_AppPathDlg)
#include "tst_AppPathDlg.moc"
