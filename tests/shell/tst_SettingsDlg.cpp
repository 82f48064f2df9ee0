#include "shell/SettingsDlg.h"

#include "ShellFixture.h"
#include "interfaces/Modal.h"
#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

#include <algorithm>

class tst_SettingsDlg : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { Modal::setAnswerer(nullptr); }
    void showsWhatIsStored();
    void acceptStores();
    void cancelStoresNothing();
    void pathsAreFoundAgain();
    void clearedPathsStayCleared();
    void whatIsFoundMeanwhileStays();
    void storedLanguageIsTakenToo();
    void wrongPathsAreTold();
    void tabGoesFromTopToBottom();
    void browseFillsThePath_data();
    void browseFillsThePath();
};

void tst_SettingsDlg::showsWhatIsStored()
{
    ShellFixture shell;
    shell.store().setAppPath(1, QStringLiteral("/opt/pr"));
    shell.store().setMacroAssignLimit(12);
    shell.services.environment().setLanguage(4);
    SettingsDlg dialog(shell.context);
    auto *const language = child<QComboBox>(&dialog, "m_language");
    QCOMPARE(language->count(), 15);
    QCOMPARE(language->currentData().toInt(), 4);
    QCOMPARE(child<QLineEdit>(&dialog, "m_app0")->text(), QString());
    QCOMPARE(child<QLineEdit>(&dialog, "m_app1")->text(), QStringLiteral("/opt/pr"));
    QCOMPARE(child<QSpinBox>(&dialog, "m_macroAssigns")->value(), 12);
}

void tst_SettingsDlg::acceptStores()
{
    ShellFixture shell;
    const QString program = shell.folder.filePath(QStringLiteral("ai"));
    QVERIFY(QFile(program).open(QIODevice::WriteOnly));
    SettingsDlg dialog(shell.context);
    auto *const language = child<QComboBox>(&dialog, "m_language");
    language->setCurrentIndex(language->findData(7));
    child<QLineEdit>(&dialog, "m_hotKeys")->setText(shell.folder.path());
    child<QLineEdit>(&dialog, "m_app2")->setText(program);
    child<QSpinBox>(&dialog, "m_macroAssigns")->setValue(5);
    dialog.accept();
    shell.store().flush();
    QCOMPARE(shell.store().setting(QStringLiteral("language")), QStringLiteral("7"));
    QCOMPARE(shell.services.locations().hotKeysFolder(shell.store()), shell.folder.path());
    QString path;
    shell.store().getAppPath(2, path);
    QCOMPARE(path, program);
    QCOMPARE(shell.store().macroAssignLimit(), 5);
    QVERIFY(!shell.store().canUndo());
}

void tst_SettingsDlg::cancelStoresNothing()
{
    ShellFixture shell;
    const QByteArray before = shell.store().state().toBytes();
    SettingsDlg dialog(shell.context);
    child<QSpinBox>(&dialog, "m_macroAssigns")->setValue(5);
    child<QLineEdit>(&dialog, "m_app2")->setText(QStringLiteral("/opt/ai"));
    dialog.reject();
    shell.store().flush();
    QVERIFY(shell.store().state().toBytes() == before);
}

void tst_SettingsDlg::pathsAreFoundAgain()
{
    ShellFixture shell;
    const QString program = shell.folder.filePath(QStringLiteral("ps"));
    QVERIFY(QFile(program).open(QIODevice::WriteOnly));
    SettingsDlg dialog(shell.context);
    child<QLineEdit>(&dialog, "m_app0")->setText(program);
    dialog.accept();
    QCOMPARE(shell.services.locations().latestAppPaths(),
             QStringList({program, QString(), QString()}));
}

void tst_SettingsDlg::clearedPathsStayCleared()
{
    ShellFixture shell;
    shell.store().setAppPath(0, QStringLiteral("/opt/ps"));
    shell.services.locations().setLatestAppPath(0, QStringLiteral("/opt/ps"));
    SettingsDlg dialog(shell.context);
    child<QLineEdit>(&dialog, "m_app0")->clear();
    dialog.accept();
    QVERIFY(!shell.store().hasAppPath(0));
    QCOMPARE(shell.services.locations().latestAppPaths(),
             QStringList({QString(), QString(), QString()}));
}

void tst_SettingsDlg::whatIsFoundMeanwhileStays()
{
    ShellFixture shell;
    SettingsDlg dialog(shell.context);
    shell.store().setAppPath(0, QStringLiteral("/opt/ps"));
    dialog.accept();
    QString path;
    shell.store().getAppPath(0, path);
    QCOMPARE(path, QStringLiteral("/opt/ps"));
}

/// Started in another language than the one that is stored.
void tst_SettingsDlg::storedLanguageIsTakenToo()
{
    ShellFixture shell;
    shell.store().setSetting(QStringLiteral("language"), QStringLiteral("2"));
    shell.services.environment().setLanguage(4);
    shell.store().flush();
    QSignalSpy changed(&shell.store(), &ProfileStore::settingChanged);
    SettingsDlg dialog(shell.context);
    auto *const language = child<QComboBox>(&dialog, "m_language");
    language->setCurrentIndex(language->findData(2));
    dialog.accept();
    shell.store().flush();
    QVERIFY(changed.contains({QStringLiteral("language")}));
    QCOMPARE(shell.store().setting(QStringLiteral("language")), QStringLiteral("2"));
}

/// What is wrong keeps the dialog open; what was wrong before does not.
void tst_SettingsDlg::wrongPathsAreTold()
{
    ShellFixture shell;
    shell.store().setAppPath(1, QStringLiteral("/gone"));
    SettingsDlg dialog(shell.context);
    auto *const message = child<QLabel>(&dialog, "m_settingsMessage");
    QVERIFY(message->isHidden());
    child<QLineEdit>(&dialog, "m_hotKeys")->setText(QStringLiteral("/no/folder"));
    child<QLineEdit>(&dialog, "m_app2")->setText(QStringLiteral("/no/program"));
    dialog.accept();
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QCOMPARE(message->text(), QStringLiteral("There is no folder /no/folder."));
    child<QLineEdit>(&dialog, "m_hotKeys")->clear();
    dialog.accept();
    QCOMPARE(message->text(), QStringLiteral("There is no program /no/program."));
    QVERIFY(!shell.store().hasAppPath(2));
    child<QLineEdit>(&dialog, "m_app2")->setText(shell.folder.path()); // is none either
    dialog.accept();
    QVERIFY(!shell.store().hasAppPath(2));
    child<QLineEdit>(&dialog, "m_app2")->clear();
    dialog.accept();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QVERIFY(shell.store().hasAppPath(1));
}

void tst_SettingsDlg::tabGoesFromTopToBottom()
{
    ShellFixture shell;
    SettingsDlg dialog(shell.context);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    child<QComboBox>(&dialog, "m_language")->setFocus();
    std::vector<QWidget *> stops;
    int height = -1;
    while (std::find(stops.begin(), stops.end(), dialog.focusWidget()) == stops.end()) {
        stops.push_back(dialog.focusWidget());
        const int top = stops.back()->mapTo(&dialog, stops.back()->rect().center()).y();
        QVERIFY2(top + 4 >= height, qPrintable(stops.back()->objectName()));
        height = top;
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    }
    // language, four paths with their buttons, the number, OK and CANCEL
    QCOMPARE(int(stops.size()), 12);
}

void tst_SettingsDlg::browseFillsThePath_data()
{
    QTest::addColumn<QString>("edit");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("title");
    QTest::newRow("catalog") << "m_hotKeys" << int(ModalPrompt::OpenFolder) << "Hot-key catalog";
    QTest::newRow("program") << "m_app1" << int(ModalPrompt::OpenFile) << "Program";
}

/// What is thought better of leaves the path as it is.
void tst_SettingsDlg::browseFillsThePath()
{
    QFETCH(QString, edit);
    QFETCH(int, kind);
    QFETCH(QString, title);
    ShellFixture shell;
    SettingsDlg dialog(shell.context);
    auto *const line = child<QLineEdit>(&dialog, edit);
    auto *const browse = line->parentWidget()->findChild<QPushButton *>();
    QVERIFY(browse);
    ModalPrompt seen;
    QString answer = QStringLiteral("/a b/ü");
    Modal::setAnswerer([&](const ModalPrompt &prompt) {
        seen = prompt;
        return QVariant(answer);
    });
    browse->click();
    QCOMPARE(int(seen.kind), kind);
    QCOMPARE(seen.title, title);
    QCOMPARE(seen.parent.data(), &dialog);
    QCOMPARE(line->text(), QStringLiteral("/a b/ü"));
    answer.clear();
    browse->click();
    QCOMPARE(line->text(), QStringLiteral("/a b/ü"));
}

VANTRIX_TEST_MAIN(tst_SettingsDlg)
#include "tst_SettingsDlg.moc"
