#include "core/PageFixture.h"
#include "support/TestMain.h"
#include "translations/PageTranslation.h"
#include "vocabulary/AppTables.h"
#include "vocabulary/KeyCodes.h"
#include "vocabulary/KeyLegends.h"

#include <QLabel>
#include <QTranslator>

/// The page in the languages of the interface.
class tst_Translations : public QObject, PageFixture
{
    Q_OBJECT

private slots:
    void cleanup();
    void files_data();
    void files();
    void englishHasNoFile();
    void pageSpeaks_data();
    void pageSpeaks();
    void everyLanguageDiffers_data();
    void everyLanguageDiffers();
    void namesOfTables_data();
    void namesOfTables();

private:
    void openIn(int language);
    QStringList shownTexts() const;

    QTranslator m_translator;
};

void tst_Translations::openIn(int language)
{
    const QString file = pageTranslation(language);
    if (!file.isEmpty()) {
        QVERIFY(m_translator.load(file));
        QCoreApplication::installTranslator(&m_translator);
    }
    open();
}

void tst_Translations::cleanup()
{
    close();
    QCoreApplication::removeTranslator(&m_translator);
}

/// Title and first row of the input selector, the legend's first text, a tool tip, two buttons.
QStringList tst_Translations::shownTexts() const
{
    const auto *const selector = find<QWidget>("m_inputWid");
    const auto *const legend = find<QWidget>("m_stateWid");
    return {selector->findChild<QLabel *>()->text(), selector->findChild<QPushButton *>()->text(),
            legend->findChild<QLabel *>()->text(),   find<QWidget>("m_folderBtn")->toolTip(),
            find<QPushButton>("m_apply")->text(),    find<QPushButton>("m_simple")->text()};
}

void tst_Translations::files_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("0") << ":/VantrixMap/translations/ChineseSimplified.qm";
    QTest::newRow("1") << ":/VantrixMap/translations/ChineseTraditional.qm";
    QTest::newRow("3") << ":/VantrixMap/translations/French.qm";
    QTest::newRow("4") << ":/VantrixMap/translations/German.qm";
    QTest::newRow("5") << ":/VantrixMap/translations/Italian.qm";
    QTest::newRow("6") << ":/VantrixMap/translations/Japanese.qm";
    QTest::newRow("7") << ":/VantrixMap/translations/Korean.qm";
    QTest::newRow("8") << ":/VantrixMap/translations/Malay.qm";
    QTest::newRow("9") << ":/VantrixMap/translations/Portuguese.qm";
    QTest::newRow("10") << ":/VantrixMap/translations/Russian.qm";
    QTest::newRow("11") << ":/VantrixMap/translations/Spanish.qm";
    QTest::newRow("12") << ":/VantrixMap/translations/Thai.qm";
    QTest::newRow("13") << ":/VantrixMap/translations/Turkish.qm";
    QTest::newRow("14") << ":/VantrixMap/translations/Vietnamese.qm";
}

void tst_Translations::files()
{
    QFETCH(QString, file);
    QCOMPARE(pageTranslation(QByteArray(QTest::currentDataTag()).toInt()), file);
    QTranslator translator;
    QVERIFY(translator.load(file));
    QVERIFY(!translator.isEmpty());
}

void tst_Translations::englishHasNoFile()
{
    QCOMPARE(pageTranslation(2), QString());
    QCOMPARE(pageTranslation(15), QString());
    QCOMPARE(pageTranslation(-1), QString());
}

void tst_Translations::pageSpeaks_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("English") << 2 << QStringList{"MAPPING INPUT", "KEYBOARD", "KEYBOARD",
                                                 "Open File",     "APPLY",    "SIMPLE"};
    QTest::newRow("German") << 4 << QStringList{"EINGABEART",   "TASTATUR",   "TASTATUR",
                                                "Datei öffnen", "ÜBERNEHMEN", "EINFACH"};
    QTest::newRow("French") << 3 << QStringList{"TYPE D’ENTRÉE",     "CLAVIER",   "CLAVIER",
                                                "Ouvrir un fichier", "APPLIQUER", "SIMPLE"};
    QTest::newRow("Japanese") << 6 << QStringList{"入力の種類",     "キーボード", "キーボード",
                                                  "ファイルを開く", "適用",       "シンプル"};
}

void tst_Translations::pageSpeaks()
{
    QFETCH(int, language);
    QFETCH(QStringList, texts);
    openIn(language);
    QCOMPARE(shownTexts(), texts);
}

void tst_Translations::everyLanguageDiffers_data()
{
    QTest::addColumn<int>("language");
    for (const auto &[name, language] : LanguageIndex()) {
        if (language != 2)
            QTest::newRow(qPrintable(name)) << language;
    }
}

void tst_Translations::everyLanguageDiffers()
{
    QFETCH(int, language);
    openIn(language);
    const QStringList english{"MAPPING INPUT", "KEYBOARD", "KEYBOARD", "Open File", "APPLY"};
    const QStringList texts = shownTexts();
    for (int i = 0; i < english.size(); ++i)
        QVERIFY2(texts[i] != english[i], qPrintable(english[i]));
}

void tst_Translations::namesOfTables_data()
{
    everyLanguageDiffers_data();
}

/// Names of tables stand in the tables' context, whoever shows them; each text once per table.
void tst_Translations::namesOfTables()
{
    QFETCH(int, language);
    openIn(language);
    QVERIFY(inputTypeText(0) != "KEYBOARD");
    QVERIFY(inputTypeText(12) != "UNASSIGNED");
    QVERIFY(inputTypeText(99) != "UNKNOWN");
    QVERIFY(keyFunctionText(0) != "DISABLE");
    QVERIFY(keyFunctionText(496) != "LEFT CLICK");
    QCOMPARE(keyFunctionText(104), QString("F13"));
    QVERIFY(winShortcutText(0) != "OPEN TASK MANAGER");
    QCOMPARE(winShortcutText(17), QString());
    QVERIFY(appFunctionText(0, 6) != "CROP");
    QVERIFY(appHintText(0, 0) != "Play Action 1. Please assign F2 to an Action in Photoshop");
    QCOMPARE(appHintText(0, 8), QString());
    QCOMPARE(appTypeText(0), QString("PHOTOSHOP"));
}

VANTRIX_TEST_MAIN(tst_Translations)
#include "tst_Translations.moc"
