#include "vocabulary/KeyLegends.h"

#include "support/TestMain.h"
#include "vocabulary/LegendRows.h"

class tst_KeyLegends : public QObject
{
    Q_OBJECT

private slots:
    void everyLegend_data();
    void everyLegend();
    void edges();
    void languages();
    void layouts();
    void rowsOfTheLayouts();
};

void tst_KeyLegends::everyLegend_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("language");
    QCOMPARE(legendRows().size(), std::size_t(110));
    QCOMPARE(KeyLegends().size(), std::size_t(110));
    for (int row = 0; row < 110; ++row) {
        for (int language = 0; language < 15; ++language)
            QTest::addRow("scan %d language %d", legendRows()[std::size_t(row)].scanCode, language)
                << row << language;
    }
}

void tst_KeyLegends::everyLegend()
{
    QFETCH(int, row);
    QFETCH(int, language);
    const LegendRow &expected = legendRows()[std::size_t(row)];
    QCOMPARE(keyLegend(expected.scanCode, language), expectedLegend(expected, language));
    QVERIFY(KeyLegends().count(expected.scanCode));
    QCOMPARE(QString::fromUtf8(KeyLegends().at(expected.scanCode)[std::size_t(language)]),
             expectedLegend(expected, language));
}

void tst_KeyLegends::edges()
{
    QCOMPARE(keyLegend(41, 6), QStringLiteral("E/J\n漢字"));
    QCOMPARE(keyLegend(28, 4), QStringLiteral("\nENTER"));
    QCOMPARE(keyLegend(28, 2), QStringLiteral("ENTER"));
    QCOMPARE(keyLegend(14, 3), QStringLiteral("SUPPR\nARRIÈRE"));
    QCOMPARE(keyLegend(83, 6), QString());
    QVERIFY(!keyLegend(83, 6).isNull());
    // Only a backslash before an n is a line break.
    QCOMPARE(keyLegend(41, 5), QStringLiteral("\\\n|"));
    QCOMPARE(keyLegend(9, 3), QStringLiteral("8\n_    \\"));
    QCOMPARE(keyLegend(350, 2), QStringLiteral("UNKNOWN"));
    QCOMPARE(keyLegend(0, 2), QStringLiteral("UNKNOWN"));
    QCOMPARE(keyLegend(1, 15), QString());
    QCOMPARE(keyLegend(1, -1), QString());
}

void tst_KeyLegends::languages()
{
    const QStringList names = {"ChineseSimplified",
                               "ChineseTraditional",
                               "English",
                               "French",
                               "German",
                               "Italian",
                               "Japanese",
                               "Korean",
                               "Malay",
                               "Portuguese",
                               "Russian",
                               "Spanish",
                               "Thai",
                               "Turkish",
                               "Vietnamese"};
    QCOMPARE(LanguageIndex().size(), std::size_t(15));
    for (int i = 0; i < 15; ++i) {
        QVERIFY2(LanguageIndex().count(names[i]), qPrintable(names[i]));
        QCOMPARE(LanguageIndex().at(names[i]), i);
    }
}

void tst_KeyLegends::layouts()
{
    const std::vector<int> expected = {0, 0, 0, 1, 1, 1, 3, 0, 0, 1, 0, 1, 0, 1, 0};
    for (int language = 0; language < 15; ++language)
        QCOMPARE(layoutOfLanguage(language), expected[std::size_t(language)]);
    QCOMPARE(layoutOfLanguage(15), 0);
    QCOMPARE(layoutOfLanguage(-1), 0);
}

void tst_KeyLegends::rowsOfTheLayouts()
{
    using Rows = std::vector<std::vector<int>>;
    const std::vector<int> functionRow = {1, 59, 60, 61, 62, 63, 64, 65, 66, 67, 68, 87, 88};
    const std::vector<int> digitRow = {41, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14};
    const std::vector<int> tabRow = {15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27};
    const std::vector<int> homeRow = {58, 30, 31, 32, 33, 34, 35, 36, 37, 38, 39, 40, 43, 28};
    const std::vector<int> bottomRow = {29, 347, 56, 57, 312, 348, 0, 285};
    const Rows ansi = {functionRow,
                       digitRow,
                       {15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 43},
                       {58, 30, 31, 32, 33, 34, 35, 36, 37, 38, 39, 40, 28},
                       {42, 44, 45, 46, 47, 48, 49, 50, 51, 52, 53, 54},
                       bottomRow};
    const Rows iso = {functionRow,
                      digitRow,
                      tabRow,
                      homeRow,
                      {42, 86, 44, 45, 46, 47, 48, 49, 50, 51, 52, 53, 54},
                      bottomRow};
    const Rows br = {functionRow,
                     digitRow,
                     tabRow,
                     homeRow,
                     {42, 86, 44, 45, 46, 47, 48, 49, 50, 51, 52, 53, 115, 54},
                     bottomRow};
    const Rows jp = {functionRow,
                     {41, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 125, 14},
                     tabRow,
                     homeRow,
                     {42, 44, 45, 46, 47, 48, 49, 50, 51, 52, 53, 115, 54},
                     {29, 347, 56, 123, 57, 121, 112, 312, 0, 285}};
    QVERIFY(mainBlockRows(0) == ansi);
    QVERIFY(mainBlockRows(1) == iso);
    QVERIFY(mainBlockRows(2) == br);
    QVERIFY(mainBlockRows(3) == jp);
    QVERIFY(mainBlockRows(4).empty());
    QVERIFY(mainBlockRows(-1).empty());
}

VANTRIX_TEST_MAIN(tst_KeyLegends)
#include "tst_KeyLegends.moc"
