#include "vocabulary/KeyNames.h"

#include "fakes/FakeServices.h"
#include "support/TestMain.h"

// clang-format off
namespace {

struct LegendOfCode { int code; const char *legend; };
/// Every code of a keyboard key and its legend in English.
const std::vector<LegendOfCode> EnglishLegends = {
    {4, "A"},
    {5, "B"},
    {6, "C"},
    {7, "D"},
    {8, "E"},
    {9, "F"},
    {10, "G"},
    {11, "H"},
    {12, "I"},
    {13, "J"},
    {14, "K"},
    {15, "L"},
    {16, "M"},
    {17, "N"},
    {18, "O"},
    {19, "P"},
    {20, "Q"},
    {21, "R"},
    {22, "S"},
    {23, "T"},
    {24, "U"},
    {25, "V"},
    {26, "W"},
    {27, "X"},
    {28, "Y"},
    {29, "Z"},
    {30, "1\n!"},
    {31, "2\n@"},
    {32, "3\n#"},
    {33, "4\n$"},
    {34, "5\n%"},
    {35, "6\n^"},
    {36, "7\n&&"},
    {37, "8\n*"},
    {38, "9\n("},
    {39, "0\n)"},
    {40, "ENTER"},
    {41, "ESC"},
    {42, "BACKSPACE"},
    {43, "TAB"},
    {44, "SPACE"},
    {45, "-\n_"},
    {46, "=\n+"},
    {47, "{\n["},
    {48, "}\n]"},
    {49, "|\n\\"},
    {51, ":\n;"},
    {52, "\"\n'"},
    {53, "`\n~"},
    {54, "<\n,"},
    {55, ">\n."},
    {56, "?\n/"},
    {57, "CAPSLK"},
    {58, "F1"},
    {59, "F2"},
    {60, "F3"},
    {61, "F4"},
    {62, "F5"},
    {63, "F6"},
    {64, "F7"},
    {65, "F8"},
    {66, "F9"},
    {67, "F10"},
    {68, "F11"},
    {69, "F12"},
    {70, "PRT\nSC"},
    {71, "SCR\nLK"},
    {72, "PAUSE"},
    {73, "INS"},
    {74, "HOME"},
    {75, "PGUP"},
    {76, "DEL"},
    {77, "END"},
    {78, "PGDN"},
    {79, ">"},
    {80, "<"},
    {81, "v"},
    {82, "^"},
    {83, "NUMLK"},
    {84, "/"},
    {85, "*"},
    {86, "-"},
    {87, "\n+"},
    {88, "\nENTER"},
    {89, "1"},
    {90, "2"},
    {91, "3"},
    {92, "4"},
    {93, "5"},
    {94, "6"},
    {95, "7"},
    {96, "8"},
    {97, "9"},
    {98, "0"},
    {99, "."},
    {100, "NULL"},
    {133, "NULL"},
    {135, "NULL"},
    {224, "L_CTRL"},
    {225, "L_SHIFT"},
    {226, "L_ALT"},
    {227, "WIN"},
    {228, "R_CTRL"},
    {229, "R_SHIFT"},
    {230, "R_ALT"},
    {231, "WIN"},
};

} // namespace
// clang-format on

/// The names of codes as a key button shows them.
class tst_KeyNames : public QObject
{
    Q_OBJECT

private slots:
    void english_data();
    void english();
    void language_data();
    void language();
    void functions_data();
    void functions();
    void allOthersAreUnknown();
};

void tst_KeyNames::english_data()
{
    QTest::addColumn<int>("row");
    for (std::size_t row = 0; row < EnglishLegends.size(); ++row)
        QTest::addRow("code %d", EnglishLegends[row].code) << int(row);
}

void tst_KeyNames::english()
{
    QFETCH(int, row);
    const LegendOfCode &expected = EnglishLegends[std::size_t(row)];
    const FakeEnvironment environment;
    QCOMPARE(keyLegendOfCode(ushort(expected.code)), QString::fromUtf8(expected.legend));
}

void tst_KeyNames::language_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("legend");
    QTest::newRow("Japanese grave") << 6 << 53 << QStringLiteral("E/J\n漢字");
    QTest::newRow("Japanese keypad point") << 6 << 99 << QString();
    QTest::newRow("French backspace") << 3 << 42 << QStringLiteral("SUPPR\nARRIÈRE");
    QTest::newRow("French enter") << 3 << 40 << QStringLiteral("\nENTRÉE");
    QTest::newRow("German Y") << 4 << 29 << QStringLiteral("Y");
    QTest::newRow("German Z") << 4 << 28 << QStringLiteral("Z");
    QTest::newRow("German ISO key") << 4 << 100 << QStringLiteral(">\n<    |");
    QTest::newRow("Korean Q") << 7 << 20 << QStringLiteral("Q\nㅃ    ㅂ");
    QTest::newRow("Russian A") << 10 << 4 << QStringLiteral("A\nФ");
    QTest::newRow("Thai 1") << 12 << 30 << QStringLiteral("!    ๅ\n1    +");
    QTest::newRow("a language out of range") << 15 << 4 << QString();
    QTest::newRow("a negative language") << -1 << 4 << QString();
    QTest::newRow("functions have no language") << 6 << 246 << QStringLiteral("VOLUME UP");
}

void tst_KeyNames::language()
{
    QFETCH(int, language);
    QFETCH(int, code);
    QFETCH(QString, legend);
    FakeEnvironment environment;
    environment.language = language;
    QCOMPARE(keyLegendOfCode(ushort(code)), legend);
}

void tst_KeyNames::functions_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("name");
    QTest::newRow("disabled") << 0 << "DISABLE";
    QTest::newRow("two zeros") << 116 << "00";
    QTest::newRow("factory function of key 21") << 192 << "EFFECT CYCLE+";
    QTest::newRow("factory function of key 27") << 199 << "LED BRIGHTER+";
    QTest::newRow("power mode") << 193 << "Power Mode:Disable";
    QTest::newRow("companion") << 197 << "UNKNOWN KEY";
    QTest::newRow("media") << 240 << "PLAY/PAUSE";
    QTest::newRow("no assignment") << 255 << "UNKNOWN KEY";
    QTest::newRow("calibrate") << 312 << "CALIBRATE";
    QTest::newRow("pad up, first form") << 458 << "D PAD UP";
    QTest::newRow("pad up, second form") << 473 << "D PAD UP";
    QTest::newRow("pad down, first form") << 459 << "D PAD DOWN";
    QTest::newRow("pad down, second form") << 729 << "D PAD DOWN";
    QTest::newRow("mouse") << 496 << "LEFT CLICK";
    QTest::newRow("ampersand for buttons") << 3079 << "&&";
    QTest::newRow("double quote") << 3089 << "\"";
    QTest::newRow("profile") << 1559 << "PROFILE 24";
    QTest::newRow("F13") << 104 << "F13";
    QTest::newRow("F24") << 115 << "F24";
}

void tst_KeyNames::functions()
{
    QFETCH(int, code);
    QFETCH(QString, name);
    const FakeEnvironment environment;
    QCOMPARE(keyLegendOfCode(ushort(code)), name);
}

void tst_KeyNames::allOthersAreUnknown()
{
    const FakeEnvironment environment;
    int unknown = 0;
    for (int code = 0; code < 65536; ++code)
        unknown += keyLegendOfCode(ushort(code)) == QLatin1String("UNKNOWN KEY") ? 1 : 0;
    // All but the 106 legends and the 163 names of functions.
    QCOMPARE(unknown, 65536 - 106 - 163);
}

VANTRIX_TEST_MAIN(tst_KeyNames)
#include "tst_KeyNames.moc"
