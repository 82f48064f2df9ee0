#include "shell/ExchangeFolder.h"
#include "shell/ExportDlg.h"
#include "shell/ImportDlg.h"

#include "ShellFixture.h"
#include "interfaces/Modal.h"
#include "support/Gestures.h"
#include "support/TestMain.h"
#include "vocabulary/AppTables.h"

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>

#include <memory>

class tst_ExchangeDlg : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_shell = std::make_unique<ShellFixture>(); }
    void cleanup();
    void shownProfileIsChecked();
    void allAndNone();
    void macrosAreNamed();
    void exportByTheUser();
    void suffixIsAdded();
    void folderIsRemembered();
    void exportThatCannotBeWritten();
    void oneProfileGoesInPlaceOfTheShownOne();
    void fileIsNamedAsItIs();
    void severalGoWhereTheyCameFrom();
    void allComeBackByteForByte();
    void uncheckedStayOut();
    void twoInOnePlace();
    void brokenFile();
    void missingFile();
    void aGoodFileAfterABrokenOne();
    void oneStep();
    void saysWhatWasLeftOut();
    void openByTheUser();
    void openAndImportByEnter();
    void tabGoesFromTopToBottom();
    void cancelChangesNothing();

private:
    ProfileStore &store() { return m_shell->store(); }
    QString file(const char *name) { return m_shell->folder.filePath(QLatin1String(name)); }
    QString write(const char *name, const QByteArray &text)
    {
        QFile made(file(name));
        if (!made.open(QIODevice::WriteOnly) || made.write(text) != text.size())
            qFatal("%s cannot be written", name);
        return made.fileName();
    }
    QByteArray json(const std::vector<int> &profiles)
    {
        return ProfileExchange::toJson(ProfileExchange::take(store().state(), 0, profiles));
    }
    static QString message(const QDialog &dialog, const char *name)
    {
        auto *const label = child<QLabel>(&dialog, QLatin1String(name));
        return label->isHidden() ? QString() : label->text();
    }
    static void setTarget(const ImportDlg &dialog, int row, int profile)
    {
        auto *const list = child<QTreeWidget>(&dialog, "m_importList");
        auto *const target =
            qobject_cast<QComboBox *>(list->itemWidget(list->topLevelItem(row), 2));
        target->setCurrentIndex(target->findData(profile));
    }

    std::unique_ptr<ShellFixture> m_shell;
};

void tst_ExchangeDlg::cleanup()
{
    Modal::setAnswerer(nullptr);
    m_shell.reset();
}

// ---- export ----

void tst_ExchangeDlg::shownProfileIsChecked()
{
    m_shell->context.setProfile(4);
    const ExportDlg dialog(m_shell->context);
    QVERIFY(dialog.profiles() == std::vector<int>({4}));
}

void tst_ExchangeDlg::allAndNone()
{
    ExportDlg dialog(m_shell->context);
    auto *const button = child<QPushButton>(&dialog, "m_exportBtn");
    clickOn(child<QPushButton>(&dialog, "m_exportNoneBtn"));
    QVERIFY(dialog.profiles().empty());
    QVERIFY(!button->isEnabled());
    clickOn(child<QPushButton>(&dialog, "m_exportAllBtn"));
    QCOMPARE(int(dialog.profiles().size()), 24);
    QVERIFY(button->isEnabled());
}

void tst_ExchangeDlg::macrosAreNamed()
{
    store().addMacro(0, QStringLiteral("On a key"), vantrix_macro_record());
    store().addMacro(0, QStringLiteral("On none"), vantrix_macro_record());
    store().setNamedMacroKey(0, 0, "On a key", 3);
    ExportDlg dialog(m_shell->context);
    QCOMPARE(message(dialog, "m_exportMacros"),
             QStringLiteral("Macros that go with them: On a key."));
    clickOn(child<QPushButton>(&dialog, "m_exportAllBtn"));
    QCOMPARE(message(dialog, "m_exportMacros"),
             QStringLiteral("Macros that go with them: On a key, On none."));
    clickOn(child<QPushButton>(&dialog, "m_exportNoneBtn"));
    QCOMPARE(message(dialog, "m_exportMacros"), QStringLiteral("No macros go with them."));
}

void tst_ExchangeDlg::exportByTheUser()
{
    m_shell->assign(7, 5, 2);
    m_shell->context.setProfile(2);
    QString title;
    Modal::setAnswerer([&](const ModalPrompt &prompt) {
        title = prompt.title;
        return QVariant(prompt.kind == ModalPrompt::SaveFile ? file("out.json") : QString());
    });
    QSignalSpy said(&m_shell->context, &ShellContext::status);
    ExportDlg dialog(m_shell->context);
    clickOn(child<QPushButton>(&dialog, "m_exportBtn"));
    QCOMPARE(title, QStringLiteral("Export profiles"));
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QFile written(file("out.json"));
    QVERIFY(written.open(QIODevice::ReadOnly));
    QCOMPARE(written.readAll(), json({2}));
    QCOMPARE(said[0][0].toString(), QStringLiteral("One profile was exported to out.json."));
}

void tst_ExchangeDlg::suffixIsAdded()
{
    QString answer = file("mine");
    Modal::setAnswerer([&](const ModalPrompt &) { return QVariant(answer); });
    const auto exportAgain = [this] {
        ExportDlg dialog(m_shell->context);
        clickOn(child<QPushButton>(&dialog, "m_exportBtn"));
        return dialog.result();
    };
    QCOMPARE(exportAgain(), int(QDialog::Accepted));
    QVERIFY(QFile::exists(file("mine.json")));
    QVERIFY(!QFile::exists(file("mine")));
    // the user agreed to replace "mine", not "mine.json"
    QFile other(file("mine.json"));
    QVERIFY(other.open(QIODevice::WriteOnly | QIODevice::Truncate));
    other.close();
    QCOMPARE(exportAgain(), int(QDialog::Accepted));
    QCOMPARE(QFileInfo(file("mine.json")).size(), qint64(0));
    QVERIFY(QFile::exists(file("mine")));
    answer = file("gaming 1.2");
    QCOMPARE(exportAgain(), int(QDialog::Accepted));
    QVERIFY(QFile::exists(file("gaming 1.2.json")));
    answer = file("LOUD.JSON");
    QCOMPARE(exportAgain(), int(QDialog::Accepted));
    QVERIFY(QFile::exists(file("LOUD.JSON")));
    answer.clear();
    QCOMPARE(exportAgain(), int(QDialog::Rejected));
}

void tst_ExchangeDlg::folderIsRemembered()
{
    QVERIFY(QDir(m_shell->folder.path()).mkdir(QStringLiteral("sub")));
    QCOMPARE(ExchangeFolder::of(store()), QDir::homePath());
    Modal::setAnswerer([&](const ModalPrompt &) { return QVariant(file("sub/mine.json")); });
    ExportDlg dialog(m_shell->context);
    clickOn(child<QPushButton>(&dialog, "m_exportBtn"));
    QCOMPARE(ExchangeFolder::of(store()), file("sub"));
    QVERIFY(QDir(file("sub")).removeRecursively());
    QCOMPARE(ExchangeFolder::of(store()), QDir::homePath());
}

void tst_ExchangeDlg::exportThatCannotBeWritten()
{
    ExportDlg dialog(m_shell->context);
    QVERIFY(!dialog.exportTo(file("no/such/folder/out.json")));
    QVERIFY2(
        message(dialog, "m_exportMessage").startsWith(QStringLiteral("out.json was not written: ")),
        qPrintable(message(dialog, "m_exportMessage")));
}

// ---- import ----

void tst_ExchangeDlg::oneProfileGoesInPlaceOfTheShownOne()
{
    m_shell->assign(7, 5, 2);
    const QString name = write("one.json", json({2}));
    m_shell->context.setProfile(9);
    ImportDlg dialog(m_shell->context);
    QVERIFY(dialog.openFile(name));
    clickOn(child<QPushButton>(&dialog, "m_importBtn"));
    QCOMPARE(store().state().mapping(0, 9, 7), plainKey(5));
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void tst_ExchangeDlg::fileIsNamedAsItIs()
{
    ImportDlg dialog(m_shell->context);
    QVERIFY(dialog.openFile(write("a<b>c.json", json({2}))));
    const auto *const label = child<QLabel>(&dialog, "m_importFile");
    QCOMPARE(label->text(), QStringLiteral("a<b>c.json"));
    QVERIFY(label->toolTip().endsWith(QLatin1String("a&lt;b&gt;c.json</span>")));
}

void tst_ExchangeDlg::severalGoWhereTheyCameFrom()
{
    m_shell->assign(7, 5, 2);
    m_shell->assign(8, 6, 3);
    const QString name = write("two.json", json({2, 3}));
    store().clearProfile(0, 2);
    store().clearProfile(0, 3);
    ImportDlg dialog(m_shell->context);
    QVERIFY(dialog.openFile(name));
    setTarget(dialog, 1, 20);
    dialog.importChecked();
    QCOMPARE(store().state().mapping(0, 2, 7), plainKey(5));
    QCOMPARE(store().state().mapping(0, 20, 8), plainKey(6));
    QCOMPARE(store().state().mapping(0, 3, 8), clearedKey());
}

void tst_ExchangeDlg::allComeBackByteForByte()
{
    m_shell->assign(7, 5, 2);
    store().addMacro(0, QStringLiteral("On none"), vantrix_macro_record());
    store().setProfileName(0, 5, QStringLiteral("Mail"));
    store().setProfileOrder(0, {5, 2});
    ExportDlg exported(m_shell->context);
    clickOn(child<QPushButton>(&exported, "m_exportAllBtn"));
    QVERIFY(exported.exportTo(file("all.json")));
    store().flush();
    const QByteArray before = store().state().toBytes();
    store().clearProfile(0, 2);
    store().setProfileName(0, 5, QString());
    store().setProfileOrder(0, {});
    store().removeMacro(0, QStringLiteral("On none"));
    ImportDlg dialog(m_shell->context);
    QVERIFY(dialog.openFile(file("all.json")));
    QCOMPARE(child<QTreeWidget>(&dialog, "m_importList")->topLevelItemCount(), 24);
    dialog.importChecked();
    store().flush();
    QVERIFY(store().state().toBytes() == before);
}

void tst_ExchangeDlg::uncheckedStayOut()
{
    store().addMacro(0, QStringLiteral("A"), vantrix_macro_record());
    store().addMacro(0, QStringLiteral("B"), vantrix_macro_record());
    store().setNamedMacroKey(0, 2, "A", 3);
    store().setNamedMacroKey(0, 3, "B", 4);
    const QString name = write("two.json", json({2, 3}));
    store().removeMacro(0, QStringLiteral("A"));
    store().removeMacro(0, QStringLiteral("B"));
    ImportDlg dialog(m_shell->context);
    QVERIFY(dialog.openFile(name));
    QCOMPARE(message(dialog, "m_importMacros"),
             QStringLiteral("Macros that come with them: A, B."));
    auto *const list = child<QTreeWidget>(&dialog, "m_importList");
    list->topLevelItem(0)->setCheckState(0, Qt::Unchecked);
    QCOMPARE(message(dialog, "m_importMacros"), QStringLiteral("Macros that come with them: B."));
    dialog.importChecked();
    QCOMPARE(store().state().macroNames(0), QStringList(QStringLiteral("B")));
    QVERIFY(!store().state().macroKey(0, 2, 3));
    QCOMPARE(*store().state().macroKey(0, 3, 4), QStringLiteral("B"));
}

void tst_ExchangeDlg::twoInOnePlace()
{
    m_shell->assign(7, 5, 2);
    m_shell->assign(8, 6, 3);
    store().setProfileName(0, 5, QStringLiteral("Mail"));
    ImportDlg dialog(m_shell->context);
    QVERIFY(dialog.openFile(write("two.json", json({2, 3}))));
    auto *const button = child<QPushButton>(&dialog, "m_importBtn");
    setTarget(dialog, 0, 5);
    QVERIFY(button->isEnabled());
    setTarget(dialog, 1, 5);
    QVERIFY(!button->isEnabled());
    QCOMPARE(message(dialog, "m_importMessage"),
             QStringLiteral("Two profiles would take the place of Mail."));
    dialog.importChecked();
    QCOMPARE(store().state().mapping(0, 5, 7), clearedKey());
    setTarget(dialog, 1, 6);
    QVERIFY(button->isEnabled());
    QCOMPARE(message(dialog, "m_importMessage"), QString());
}

void tst_ExchangeDlg::brokenFile()
{
    ImportDlg dialog(m_shell->context);
    QVERIFY(!dialog.openFile(write("my.json", "{\"format\": \"vantrixmap-profiles\", \"version\": "
                                              "1, \"profiles\": [{\"profile\": 25}]}")));
    QCOMPARE(message(dialog, "m_importMessage"),
             QStringLiteral("my.json, profiles[0].profile: 25 is not a whole number from 1 to 24"));
    QVERIFY(!child<QPushButton>(&dialog, "m_importBtn")->isEnabled());
}

void tst_ExchangeDlg::missingFile()
{
    ImportDlg dialog(m_shell->context);
    QVERIFY(!dialog.openFile(file("none.json")));
    QCOMPARE(message(dialog, "m_importMessage"),
             QStringLiteral("none.json cannot be read: No such file or directory"));
}

void tst_ExchangeDlg::aGoodFileAfterABrokenOne()
{
    m_shell->assign(7, 5);
    ImportDlg dialog(m_shell->context);
    QVERIFY(!dialog.openFile(write("my.json", "oops")));
    QVERIFY(dialog.openFile(write("good.json", json({0}))));
    QCOMPARE(message(dialog, "m_importMessage"), QString());
    QVERIFY(child<QPushButton>(&dialog, "m_importBtn")->isEnabled());
    QVERIFY(!dialog.openFile(write("my.json", "oops")));
    QCOMPARE(child<QTreeWidget>(&dialog, "m_importList")->topLevelItemCount(), 0);
    QVERIFY(!child<QPushButton>(&dialog, "m_importBtn")->isEnabled());
}

void tst_ExchangeDlg::oneStep()
{
    m_shell->assign(7, 5, 2);
    m_shell->assign(8, 6, 3);
    const QString name = write("two.json", json({2, 3}));
    store().clearProfile(0, 2);
    store().clearProfile(0, 3);
    store().flush();
    const int steps = store().stepPosition();
    const QByteArray before = store().state().toBytes();
    ImportDlg dialog(m_shell->context);
    dialog.openFile(name);
    dialog.importChecked();
    store().flush();
    QCOMPARE(store().stepPosition(), steps + 1);
    QCOMPARE(store().undoName(), QStringLiteral("Import 2 profiles"));
    store().undo();
    QVERIFY(store().state().toBytes() == before);
}

void tst_ExchangeDlg::saysWhatWasLeftOut()
{
    store().addMacro(0, QStringLiteral("A"), vantrix_macro_record());
    store().setNamedMacroKey(0, 0, "A", 3);
    vantrix_app_assign app;
    app.appType = 1;
    app.funcId = 5;
    store().setAppAssign(0, 0, 4, &app);
    store().flush();
    const QString name = write("one.json", json({0}));
    vantrix_macro_record other;
    other.count = 1;
    store().setMacro(0, QStringLiteral("A"), other);
    ImportDlg dialog(m_shell->context);
    dialog.openFile(name);
    dialog.importChecked();
    QCOMPARE(message(dialog, "m_importMessage"),
             QStringLiteral("One profile was imported.\n"
                            "The macro \"A\" is named \"A 2\" here, because there was another of "
                            "its name.\n"
                            "PREMIERE PRO was not found on this computer; its functions do nothing "
                            "until it is."));
    QCOMPARE(child<QPushButton>(&dialog, "m_importCancelBtn")->text(), QStringLiteral("CLOSE"));
    QVERIFY(!child<QPushButton>(&dialog, "m_importBtn")->isEnabled());
    const QByteArray after = store().state().toBytes();
    dialog.importChecked();
    QVERIFY(store().state().toBytes() == after);
    // another file, or the same once more
    QVERIFY(!child<QTreeWidget>(&dialog, "m_importList")->isEnabled());
    QVERIFY(dialog.openFile(name));
    QVERIFY(child<QTreeWidget>(&dialog, "m_importList")->isEnabled());
    QCOMPARE(child<QPushButton>(&dialog, "m_importCancelBtn")->text(), QStringLiteral("CANCEL"));
    dialog.importChecked();
    QVERIFY(store().state().toBytes() == after);
}

void tst_ExchangeDlg::openByTheUser()
{
    m_shell->assign(7, 5);
    const QString name = write("one.json", json({0}));
    Modal::setAnswerer([&](const ModalPrompt &prompt) {
        return QVariant(prompt.kind == ModalPrompt::OpenFile ? name : QString());
    });
    ImportDlg dialog(m_shell->context);
    QVERIFY(!child<QPushButton>(&dialog, "m_importBtn")->isEnabled());
    QCOMPARE(dialog.focusWidget(), child<QPushButton>(&dialog, "m_importOpenBtn"));
    clickOn(child<QPushButton>(&dialog, "m_importOpenBtn"));
    QCOMPARE(child<QLabel>(&dialog, "m_importFile")->text(), QStringLiteral("one.json"));
    QCOMPARE(child<QTreeWidget>(&dialog, "m_importList")->topLevelItem(0)->text(0),
             QStringLiteral("PROFILE 1"));
    QCOMPARE(child<QTreeWidget>(&dialog, "m_importList")->topLevelItem(0)->text(1),
             QStringLiteral("1"));
}

void tst_ExchangeDlg::openAndImportByEnter()
{
    m_shell->assign(7, 5);
    const QString name = write("one.json", json({0}));
    store().clearProfile(0, 0);
    Modal::setAnswerer([&](const ModalPrompt &prompt) {
        return QVariant(prompt.kind == ModalPrompt::OpenFile ? name : QString());
    });
    ImportDlg dialog(m_shell->context);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    QCOMPARE(child<QLabel>(&dialog, "m_importFile")->text(), QStringLiteral("one.json"));
    QCOMPARE(store().state().mapping(0, 0, 7), clearedKey());
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    QCOMPARE(store().state().mapping(0, 0, 7), plainKey(5));
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void tst_ExchangeDlg::tabGoesFromTopToBottom()
{
    const auto stops = [](QDialog &dialog, int count) {
        QStringList names;
        for (int i = 0; i < count; ++i) {
            const QWidget *const stop = dialog.focusWidget();
            names << (qobject_cast<const QComboBox *>(stop) ? QStringLiteral("target")
                                                            : stop->objectName());
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
        }
        return names.join(' ');
    };
    ExportDlg exported(m_shell->context);
    exported.show();
    QVERIFY(QTest::qWaitForWindowActive(&exported));
    QCOMPARE(stops(exported, 5), QStringLiteral("m_exportList m_exportCancelBtn m_exportBtn "
                                                "m_exportAllBtn m_exportNoneBtn"));
    ImportDlg imported(m_shell->context);
    imported.show();
    QVERIFY(QTest::qWaitForWindowActive(&imported));
    QVERIFY(imported.openFile(write("two.json", json({2, 3}))));
    QCOMPARE(stops(imported, 6), QStringLiteral("m_importList target target m_importCancelBtn "
                                                "m_importBtn m_importOpenBtn"));
}

void tst_ExchangeDlg::cancelChangesNothing()
{
    m_shell->assign(7, 5);
    const QString name = write("one.json", json({0}));
    store().clearProfile(0, 0);
    store().flush();
    const QByteArray before = store().state().toBytes();
    ImportDlg dialog(m_shell->context);
    dialog.openFile(name);
    clickOn(child<QPushButton>(&dialog, "m_importCancelBtn"));
    store().flush();
    QVERIFY(store().state().toBytes() == before);
}

VANTRIX_TEST_MAIN(tst_ExchangeDlg)
#include "tst_ExchangeDlg.moc"
