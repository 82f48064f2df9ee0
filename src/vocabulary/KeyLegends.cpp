#include "vocabulary/KeyLegends.h"

const std::map<QString, int> &LanguageIndex()
{
    static const std::map<QString, int> indices = {
        {QStringLiteral("ChineseSimplified"), 0},
        {QStringLiteral("ChineseTraditional"), 1},
        {QStringLiteral("English"), 2},
        {QStringLiteral("French"), 3},
        {QStringLiteral("German"), 4},
        {QStringLiteral("Italian"), 5},
        {QStringLiteral("Japanese"), 6},
        {QStringLiteral("Korean"), 7},
        {QStringLiteral("Malay"), 8},
        {QStringLiteral("Portuguese"), 9},
        {QStringLiteral("Russian"), 10},
        {QStringLiteral("Spanish"), 11},
        {QStringLiteral("Thai"), 12},
        {QStringLiteral("Turkish"), 13},
        {QStringLiteral("Vietnamese"), 14},
    };
    return indices;
}

QString languageName(int language)
{
    for (const auto &[name, index] : LanguageIndex()) {
        if (index == language)
            return name;
    }
    return QString();
}

const std::map<int, std::array<const char *, LanguageCount>> &KeyLegends()
{
    // clang-format off
    static const std::map<int, std::array<const char *, LanguageCount>> legends = {
        // scan code, {ChineseSimplified, ChineseTraditional, English, French, German, Italian,
        //             Japanese, Korean, Malay, Portuguese, Russian, Spanish, Thai, Turkish, Vietnamese}
        {  1, {{"ESC", "ESC", "ESC", "ESC", "ESC", "ESC", "ESC", "ESC", "ESC", "ESC", "ESC", "ESC", "ESC", "ESC", "ESC"}}},
        {  2, {{"1\n!", "1\n!", "1\n!", "1\n&&", "1\n!", "1\n!", "!\n1", "1\n!", "1\n!", "1\n!", "!\n1", "1    |\n!", "!    ๅ\n1    +", "1\n!", "1\n!"}}},
        {  3, {{"2\n@", "2\n@", "2\n@", "2\né    ~", "2\n\"", "2\n\"", "\"\n2", "2\n@", "2\n@", "2    @\n\"", "@\n2    \"", "2    @\n\"", "@    ๑\n2    /", "2    £\n’", "2\n@"}}},
        {  4, {{"3\n#", "3\n#", "3\n#", "3\n\"    #", "3\n§", "3\n£", "#\n3", "3\n#", "3\n#", "3    £\n#", "#\n3    №", "3    #\n.", "#    ๒\n3    -", "3    #\n^", "3\n#"}}},
        {  5, {{"4\n$", "4\n$", "4\n$", "4\n'    {", "4\n$", "4\n$", "$\n4", "4\n$", "4\n$", "4    §\n$", "$\n4    ;", "4    ~\n$", "$    ๓\n4    ภ", "4    $\n+", "4\n$"}}},
        {  6, {{"5\n%", "5\n%", "5\n%", "5\n(    [", "5\n%", "5    €\n%", "%\n5", "5\n%", "5    €\n%", "5\n%", "%\n5", "5    €\n%", "%    ๔\n5    ถ", "5    ½\n%", "5\n%"}}},
        {  7, {{"6\n^", "6\n^", "6\n^", "6\n-    ¦", "6\n&&", "6\n&&", "&&\n6", "6\n^", "6\n^", "6\n&&", "^\n6    :", "6    ¬\n&&", "^    ู\n6    ุ", "6\n&&", "6\n^"}}},
        {  8, {{"7\n&&", "7\n&&", "7\n&&", "7\nè    `", "7    {\n/", "7\n/", "’\n7", "7\n&&", "7\n&&", "7    {\n/", "&&\n7", "7\n/", "&&    ฿\n7    ึ", "7    {\n/", "7\n&&"}}},
        {  9, {{"8\n*", "8\n*", "8\n*", "8\n_    \\", "8    [\n(", "8\n(", "(\n8", "8\n*", "8\n*", "8    [\n(", "*\n8", "8\n(", "*    ๕\n8    ค", "8    [\n(", "8\n*"}}},
        { 10, {{"9\n(", "9\n(", "9\n(", "9\nÇ    ^", "9    ]\n)", "9\n)", ")\n9", "9\n(", "9\n(", "9    ]\n)", "(\n9", "9\n)", "(    ๖\n9    ต", "9    ]\n)", "9\n("}}},
        { 11, {{"0\n)", "0\n)", "0\n)", "0\nà    @", "0    }\n=", "0\n=", "\n0", "0\n)", "0\n)", "0    }\n=", ")\n0", "0\n=", ")    ๗\n0    จ", "0    }\n=", "0\n)"}}},
        { 12, {{"-\n_", "-\n_", "-\n_", "°\n)    ]", "ß    \\\n?", "’\n?", "=\n-", "-\n_", "-\n_", "?\n'", "_\n-", "'\n?", "_    ๘\n-    ข", "*    \\\n?", "-\n_"}}},
        { 13, {{"=\n+", "=\n+", "=\n+", "+\n=    }", "`\n´", "ì\n^", "~\n^", "=\n+", "=\n+", "»\n«", "+\n=", "¿\n¡", "+    ๙\n=    ช", "-\n_", "=\n+"}}},
        { 14, {{"BACKSPACE", "BACKSPACE", "BACKSPACE", "SUPPR\nARRIÈRE", "BACKSPACE", "BACKSPACE", "BACK\nSPACE", "BACKSPACE", "BACKSPACE", "BACKSPACE", "BACKSPACE", "BACKSPACE", "BACKSPACE", "BACKSPACE", "BACKSPACE"}}},
        { 15, {{"TAB", "TAB", "TAB", "TAB", "TAB", "TAB", "TAB", "TAB", "TAB", "TAB", "TAB", "TAB", "TAB", "TAB", "TAB"}}},
        { 16, {{"Q", "Q", "Q", "A", "Q\n@", "Q", "Q", "Q\nㅃ    ㅂ", "Q", "Q", "Q\nЙ", "Q", "Q    ๐\nๆ", "Q\n@", "Q"}}},
        { 17, {{"W", "W", "W", "Z", "W", "W", "W", "W\nㅉ    ㅈ", "W", "W", "W\nЦ", "W", "W    \"\nไ", "W", "W"}}},
        { 18, {{"E", "E", "E", "E\n€", "E\n€", "E\n€", "E", "E\nㄸ    ㄷ", "E", "E\n€", "E\nУ", "E", "E    ฎ\nำ", "E\n€", "E"}}},
        { 19, {{"R", "R", "R", "R", "R", "R", "R", "R\nㄲ    ㄱ", "R", "R", "R\nК", "R", "R    ฑ\nพ", "R", "R"}}},
        { 20, {{"T", "T", "T", "T", "T", "T", "T", "T\nㅆ    ㅅ", "T", "T", "T\nЕ", "T", "T    ธ\nะ", "T", "T"}}},
        { 21, {{"Y", "Y", "Y", "Y", "Z", "Y", "Y", "Y\nㅛ", "Y", "Y", "Y\nН", "Y", "Y    ํ\nั", "Y", "Y"}}},
        { 22, {{"U", "U", "U", "U", "U", "U", "U", "U\nㅕ", "U", "U", "U\nГ", "U", "U    ๊\n  ี", "U", "U"}}},
        { 23, {{"I", "I", "I", "I", "I", "I", "I", "I\nㅑ", "I", "I", "I\nШ", "I", "I    ณ\nร", "I", "I"}}},
        { 24, {{"O", "O", "O", "O", "O", "O", "O", "O\nㅒ    ㅐ", "O", "O", "O\nЩ", "O", "O    ฯ\nน", "O", "O"}}},
        { 25, {{"P", "P", "P", "P", "P", "P", "P", "P\nㅖ    ㅔ", "P", "P", "P\nЗ", "P", "P    ญ\nย", "P", "P"}}},
        { 26, {{"{\n[", "{\n[", "{\n[", "¨\n^", "Ü", "é    {\nè    [", "`\n@", "{\n[", "{\n[", "*\n+    ¨", "{\n[    Х", "^\n`    [", "{    ฐ\n[    บ", "Ğ", "{\n["}}},
        { 27, {{"}\n]", "}\n]", "}\n]", "£\n$    ¤", "*\n+    ~", "*    }\n+    ]", "{\n[", "}\n]", "}\n]", "`\n´", "}\n]    Ъ", "*\n+    ]", "}    ,\n]    ล", "Ü\n~", "}\n]"}}},
        { 28, {{"ENTER", "ENTER", "ENTER", "\nENTRÉE", "\nENTER", "\nENTER", "\nENTER", "ENTER", "ENTER", "\nENTER", "ENTER", "\nENTER", "ENTER", "\nENTER", "ENTER"}}},
        { 29, {{"L_CTRL", "L_CTRL", "L_CTRL", "L_CTRL", "L_STRG", "L_CTRL", "L_CTRL", "L_CTRL", "L_CTRL", "L_CTRL", "L_CTRL", "L_CTRL", "L_CTRL", "L_CTRL", "L_CTRL"}}},
        { 30, {{"A", "A", "A", "Q", "A", "A", "A", "A\nㅁ", "A", "A", "A\nФ", "A", "A    ฤ\nฟ", "A", "A"}}},
        { 31, {{"S", "S", "S", "S", "S", "S", "S", "S\nㄴ", "S", "S", "S\nЫ", "S", "S    ฆ\nห", "S", "S"}}},
        { 32, {{"D", "D", "D", "D", "D", "D", "D", "D\nㅇ", "D", "D", "D\nВ", "D", "D    ฏ\nก", "D", "D"}}},
        { 33, {{"F", "F", "F", "F", "F", "F", "F", "F\nㄹ", "F", "F", "F\nА", "F", "F    โ\nด", "F", "F"}}},
        { 34, {{"G", "G", "G", "G", "G", "G", "G", "G\nㅎ", "G", "G", "G\nП", "G", "G    ฌ?", "G", "G"}}},
        { 35, {{"H", "H", "H", "H", "H", "H", "H", "H\nㅗ", "H", "H", "H\nР", "H", "H    ็\n ้", "H", "H"}}},
        { 36, {{"J", "J", "J", "J", "J", "J", "J", "J\nㅓ", "J", "J", "J\nО", "J", "J    ๋\n ่", "J", "J"}}},
        { 37, {{"K", "K", "K", "K", "K", "K", "K", "K\nㅏ", "K", "K", "K\nЛ", "K", "K    ษ\nา", "K", "K"}}},
        { 38, {{"L", "L", "L", "L", "L", "L", "L", "L\nㅣ", "L", "L", "L\nД", "L", "L    ศ\nส", "L", "L"}}},
        { 39, {{":\n;", ":\n;", ":\n;", "M", "Ö", "ç\nò    @", "+\n;", ":\n;", ":\n;", "Ç", ":\n;    Ж", "Ñ", ":    ซ\n;    ว", "Ş\n´", ":\n;"}}},
        { 40, {{"\"\n'", "\"\n'", "\"\n'", "%\nÙ", "Ä", "°\nà    #", "*\n:", "\"\n'", "\"\n'", "ª\nº", "\"\n’    Э", "¨\n´    {", "\"    .\"\n'    ง", "i", "\"\n'"}}},
        { 41, {{"`\n~", "`\n~", "`\n~", "\n²", "^\n°", "\\\n|", "E/J\n漢字", "`\n~", "`\n~", "\\\n¦", "~\n`    Ё", "ª\nº    \\", "`\n~", "\"\né", "`\n~"}}},
        { 42, {{"L_SHIFT", "L_SHIFT", "L_SHIFT", "L_MAJ", "L_SHIFT", "L_SHIFT", "L_SHIFT", "L_SHIFT", "L_SHIFT", "L_SHIFT", "L_SHIFT", "L_SHIFT", "L_SHIFT", "L_SHIFT", "L_SHIFT"}}},
        { 43, {{"|\n\\", "|\n\\", "|\n\\", "µ\n*", "'\n#", "§\nù", "}\n]", "|\n₩", "|\n\\", "^\n~", "|\n\\    /", "ç\n}", "|    ฅ\n\\    ฃ", "", "|\n\\"}}},
        { 44, {{"Z", "Z", "Z", "W", "Y", "Z", "Z", "Z\nㅋ", "Z", "Z", "Z\nЯ", "Z", "Z    (\nผ", "Z", "Z"}}},
        { 45, {{"X", "X", "X", "X", "X", "X", "X", "X\nㅌ", "X", "X", "X\nЧ", "X", "X    )\nป", "X", "X"}}},
        { 46, {{"C", "C", "C", "C", "C", "C", "C", "C\nㅊ", "C", "C", "C\nС", "C", "C    ฉ\nแ", "C", "C"}}},
        { 47, {{"V", "V", "V", "V", "V", "V", "V", "V\nㅍ", "V", "V", "V\nМ", "V", "V    ฮ\nอ", "V", "V"}}},
        { 48, {{"B", "B", "B", "B", "B", "B", "B", "B\nㅠ", "B", "B", "B\nИ", "B", "B    ฺ\n  ิ", "B", "B"}}},
        { 49, {{"N", "N", "N", "N", "N", "N", "N", "N\nㅜ", "N", "N", "N\nТ", "N", "\n", "N", "N"}}},
        { 50, {{"M", "M", "M", "?\n,", "M\nµ", "M", "M", "M\nㅡ", "M", "M", "M\nЬ", "M", "M    ?\nท", "M", "M"}}},
        { 51, {{"<\n,", "<\n,", "<\n,", ".\n;", ";\n,", ";\n,", "<\n,", "<\n,", "<\n,", ";\n,", "<\n,    Б", ";\n,", "<    ฒ\n,    ม", "Ö", "<\n,"}}},
        { 52, {{">\n.", ">\n.", ">\n.", "/:", ":\n.", ":\n.", ">\n.", ">\n.", ">\n.", ":\n.", ">\n.    Ю", ":\n.", ">    ฬ\n.    ใ", "Ç", ">\n."}}},
        { 53, {{"?\n/", "?\n/", "?\n/", "§\n!", "¯\n-", "_\n-", "?\n/", "?\n/", "?\n/", "¯\n_", "?    '\n/    .", "¯\n_", "?    ฦ\n/    ฝ", ":\n.", "?\n/"}}},
        { 54, {{"R_SHIFT", "R_SHIFT", "R_SHIFT", "R_MAJ", "R_SHIFT", "R_SHIFT", "R_SHIFT", "R_SHIFT", "R_SHIFT", "R_SHIFT", "R_SHIFT", "R_SHIFT", "R_SHIFT", "R_SHIFT", "R_SHIFT"}}},
        { 55, {{"*", "*", "*", "*", "*", "*", "*", "*", "*", "*", "*", "*", "*", "*", "*"}}},
        { 56, {{"L_ALT", "L_ALT", "L_ALT", "L_ALT", "L_ALT", "L_ALT", "L_ALT", "L_ALT", "L_ALT", "L_ALT", "L_ALT", "L_ALT", "L_ALT", "L_ALT", "L_ALT"}}},
        { 57, {{"SPACE", "SPACE", "SPACE", "SPACE", "SPACE", "SPACE", "SPACE", "SPACE", "SPACE", "SPACE", "SPACE", "SPACE", "SPACE", "SPACE", "SPACE"}}},
        { 58, {{"CAPSLK", "CAPSLK", "CAPSLK", "VERR\nMAJ", "CAPSLK", "MAIUSC", "CAPSLK\n英数", "CAPSLK", "CAPSLK", "CAPSLK", "CAPSLK", "CAPSLK", "CAPSLK", "CAPSLK", "CAPSLK"}}},
        { 59, {{"F1", "F1", "F1", "F1", "F1", "F1", "F1", "F1", "F1", "F1", "F1", "F1", "F1", "F1", "F1"}}},
        { 60, {{"F2", "F2", "F2", "F2", "F2", "F2", "F2", "F2", "F2", "F2", "F2", "F2", "F2", "F2", "F2"}}},
        { 61, {{"F3", "F3", "F3", "F3", "F3", "F3", "F3", "F3", "F3", "F3", "F3", "F3", "F3", "F3", "F3"}}},
        { 62, {{"F4", "F4", "F4", "F4", "F4", "F4", "F4", "F4", "F4", "F4", "F4", "F4", "F4", "F4", "F4"}}},
        { 63, {{"F5", "F5", "F5", "F5", "F5", "F5", "F5", "F5", "F5", "F5", "F5", "F5", "F5", "F5", "F5"}}},
        { 64, {{"F6", "F6", "F6", "F6", "F6", "F6", "F6", "F6", "F6", "F6", "F6", "F6", "F6", "F6", "F6"}}},
        { 65, {{"F7", "F7", "F7", "F7", "F7", "F7", "F7", "F7", "F7", "F7", "F7", "F7", "F7", "F7", "F7"}}},
        { 66, {{"F8", "F8", "F8", "F8", "F8", "F8", "F8", "F8", "F8", "F8", "F8", "F8", "F8", "F8", "F8"}}},
        { 67, {{"F9", "F9", "F9", "F9", "F9", "F9", "F9", "F9", "F9", "F9", "F9", "F9", "F9", "F9", "F9"}}},
        { 68, {{"F10", "F10", "F10", "F10", "F10", "F10", "F10", "F10", "F10", "F10", "F10", "F10", "F10", "F10", "F10"}}},
        { 69, {{"PAUSE", "PAUSE", "PAUSE", "PAUSE", "PAUSE\nUNTBR", "PAUSA", "PAUSE", "PAUSE", "PAUSE", "PAUSE", "PAUSE", "PAUSE", "PAUSE", "PAUSE", "PAUSE"}}},
        { 70, {{"SCR\nLK", "SCR\nLK", "SCR\nLK", "Arrêt\nDéfil", "ROLLEN", "BLOC\nSCORR", "SCR\nLK", "SCR\nLK", "SCR\nLK", "SCR\nLK", "SCR\nLK", "SCR\nLK", "SCR\nLK", "SCR\nLK", "SCR\nLK"}}},
        { 71, {{"7", "7", "7", "7", "7", "7", "7", "7", "7", "7", "7", "7", "7", "7", "7"}}},
        { 72, {{"8", "8", "8", "8", "8", "8", "8", "8", "8", "8", "8", "8", "8", "8", "8"}}},
        { 73, {{"9", "9", "9", "9", "9", "9", "9", "9", "9", "9", "9", "9", "9", "9", "9"}}},
        { 74, {{"-", "-", "-", "-", "-", "-", "-", "-", "-", "-", "-", "-", "-", "-", "-"}}},
        { 75, {{"4", "4", "4", "4", "4", "4", "4", "4", "4", "4", "4", "4", "4", "4", "4"}}},
        { 76, {{"5", "5", "5", "5", "5", "5", "5", "5", "5", "5", "5", "5", "5", "5", "5"}}},
        { 77, {{"6", "6", "6", "6", "6", "6", "6", "6", "6", "6", "6", "6", "6", "6", "6"}}},
        { 78, {{"\n+", "\n+", "\n+", "\n+", "\n+", "\n+", "\n+", "\n+", "\n+", "\n+", "\n+", "\n+", "\n+", "\n+", "\n+"}}},
        { 79, {{"1", "1", "1", "1", "1", "1", "1", "1", "1", "1", "1", "1", "1", "1", "1"}}},
        { 80, {{"2", "2", "2", "2", "2", "2", "2", "2", "2", "2", "2", "2", "2", "2", "2"}}},
        { 81, {{"3", "3", "3", "3", "3", "3", "3", "3", "3", "3", "3", "3", "3", "3", "3"}}},
        { 82, {{"0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0"}}},
        { 83, {{".", ".", ".", ".", ",", ".", "", ".", ".", ".", ".", ".", ".", ".", "."}}},
        { 84, {{"PRT\nSC", "PRT\nSC", "PRT\nSC", "Impr.\nEcran", "DRUCK\nS-ABF", "STAMP", "PRT\nSC", "PRT\nSC", "PRT\nSC", "PRT\nSC", "PRT\nSC", "PRT\nSC", "PRT\nSC", "PRT\nSC", "PRT\nSC"}}},
        { 86, {{"NULL", "NULL", "NULL", ">\n<", ">\n<    |", ">\n<", "NULL", "ESC", "ESC", ">\n<    \\", "ESC", ">\n<", "ESC", ">\n<    |", ""}}},
        { 87, {{"F11", "F11", "F11", "F11", "F11", "F11", "F11", "F11", "F11", "F11", "F11", "F11", "F11", "F11", "F11"}}},
        { 88, {{"F12", "F12", "F12", "F12", "F12", "F12", "F12", "F12", "F12", "F12", "F12", "F12", "F12", "F12", "F12"}}},
        {112, {{"NULL", "NULL", "NULL", "ESC", "ESC", "ESC", "カタカナ\nひらがな", "ESC", "ESC", "ESC", "ESC", "ESC", "ESC", "ESC", "ESC"}}},
        {115, {{"NULL", "NULL", "NULL", "ESC", "ESC", "ESC", "-\n\\", "ESC", "ESC", "ESC", "ESC", "ESC", "ESC", "ESC", "ESC"}}},
        {121, {{"NULL", "NULL", "NULL", "ESC", "ESC", "ESC", "変換", "ESC", "ESC", "ESC", "ESC", "ESC", "ESC", "ESC", "ESC"}}},
        {123, {{"NULL", "NULL", "NULL", "ESC", "ESC", "ESC", "無変換", "ESC", "ESC", "ESC", "ESC", "ESC", "ESC", "ESC", "ESC"}}},
        {125, {{"NULL", "NULL", "NULL", "ESC", "ESC", "ESC", "|\n￥", "ESC", "ESC", "ESC", "ESC", "ESC", "ESC", "ESC", "ESC"}}},
        {126, {{"NULL", "NULL", "NULL", "ESC", "ESC", "ESC", "ESC", "ESC", "ESC", "ESC", "ESC", "ESC", "ESC", "ESC", "ESC"}}},
        {284, {{"\nENTER", "\nENTER", "\nENTER", "\nENTRÉE", "\nENTER", "\nENTER", "\nENTER", "\nENTER", "\nENTER", "\nENTER", "\nENTER", "\nENTER", "\nENTER", "\nENTER", "\nENTER"}}},
        {285, {{"R_CTRL", "R_CTRL", "R_CTRL", "R_CTRL", "R_STRG", "R_CTRL", "R_CTRL", "R_CTRL", "R_CTRL", "R_CTRL", "R_CTRL", "R_CTRL", "R_CTRL", "R_CTRL", "R_CTRL"}}},
        {309, {{"/", "/", "/", "/", "/", "/", "/", "/", "/", "/", "/", "/", "/", "/", "/"}}},
        {312, {{"R_ALT", "R_ALT", "R_ALT", "R_ALT", "R_ALT", "R_ALT", "R_ALT", "R_ALT", "R_ALT", "R_ALT", "R_ALT", "R_ALT", "R_ALT", "R_ALT", "R_ALT"}}},
        {325, {{"NUMLK", "NUMLK", "NUMLK", "VERR\nNUM", "NUMLK", "NUMLK", "NUMLK", "NUMLK", "NUMLK", "NUMLK", "NUMLK", "NUMLK", "NUMLK", "NUMLK", "NUMLK"}}},
        {327, {{"HOME", "HOME", "HOME", "Début", "POS1", "INIZIO", "HOME", "HOME", "HOME", "HOME", "HOME", "HOME", "HOME", "HOME", "HOME"}}},
        {328, {{"^", "^", "^", "^", "^", "^", "^", "^", "^", "^", "^", "^", "^", "^", "^"}}},
        {329, {{"PGUP", "PGUP", "PGUP", "PG\nHaut", "BILD", "PGUP", "PGUP", "PGUP", "PGUP", "PGUP", "PGUP", "PGUP", "PGUP", "PGUP", "PGUP"}}},
        {331, {{"<", "<", "<", "<", "<", "<", "<", "<", "<", "<", "<", "<", "<", "<", "<"}}},
        {333, {{">", ">", ">", ">", ">", ">", ">", ">", ">", ">", ">", ">", ">", ">", ">"}}},
        {335, {{"END", "END", "END", "Fin", "ENDE", "FINE", "END", "END", "END", "END", "END", "END", "END", "END", "END"}}},
        {336, {{"v", "v", "v", "v", "v", "v", "v", "v", "v", "v", "v", "v", "v", "v", "v"}}},
        {337, {{"PGDN", "PGDN", "PGDN", "PG\nBas", "BILD", "PGDN", "PGDN", "PGDN", "PGDN", "PGDN", "PGDN", "PGDN", "PGDN", "PGDN", "PGDN"}}},
        {338, {{"INS", "INS", "INS", "INS", "EINFG", "INS", "INS", "INS", "INS", "INS", "INS", "INS", "INS", "INS", "INS"}}},
        {339, {{"DEL", "DEL", "DEL", "Supper", "ENTF", "CANC", "DEL", "DEL", "DEL", "DEL", "DEL", "DEL", "DEL", "DEL", "DEL"}}},
        {347, {{"WIN", "WIN", "WIN", "WIN", "WIN", "WIN", "WIN", "WIN", "WIN", "WIN", "WIN", "WIN", "WIN", "WIN", "WIN"}}},
        {348, {{"WIN", "WIN", "WIN", "WIN", "WIN", "WIN", "WIN", "WIN", "WIN", "WIN", "WIN", "WIN", "WIN", "WIN", "WIN"}}},
    };
    // clang-format on
    return legends;
}

QString keyLegend(int scanCode, int language)
{
    const auto row = KeyLegends().find(scanCode);
    if (row == KeyLegends().end())
        return QStringLiteral("UNKNOWN");
    if (language < 0 || language >= LanguageCount)
        return {};
    return QString::fromUtf8(row->second[std::size_t(language)]);
}

int layoutOfLanguage(int language)
{
    switch (language) {
    case 3:  // French
    case 4:  // German
    case 5:  // Italian
    case 9:  // Portuguese
    case 11: // Spanish
    case 13: // Turkish
        return KeyboardLayout::Iso;
    case 6: // Japanese
        return KeyboardLayout::Jp;
    default:
        return KeyboardLayout::Ansi;
    }
}

const std::vector<std::vector<int>> &mainBlockRows(int layout)
{
    // clang-format off
    static const std::array<std::vector<std::vector<int>>, KeyboardLayout::Count> rows = {{
        { // ANSI
            {1, 59, 60, 61, 62, 63, 64, 65, 66, 67, 68, 87, 88},
            {41, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14},
            {15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 43},
            {58, 30, 31, 32, 33, 34, 35, 36, 37, 38, 39, 40, 28},
            {42, 44, 45, 46, 47, 48, 49, 50, 51, 52, 53, 54},
            {29, 347, 56, 57, 312, 348, 0, 285},
        },
        { // ISO
            {1, 59, 60, 61, 62, 63, 64, 65, 66, 67, 68, 87, 88},
            {41, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14},
            {15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27},
            {58, 30, 31, 32, 33, 34, 35, 36, 37, 38, 39, 40, 43, 28},
            {42, 86, 44, 45, 46, 47, 48, 49, 50, 51, 52, 53, 54},
            {29, 347, 56, 57, 312, 348, 0, 285},
        },
        { // BR
            {1, 59, 60, 61, 62, 63, 64, 65, 66, 67, 68, 87, 88},
            {41, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14},
            {15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27},
            {58, 30, 31, 32, 33, 34, 35, 36, 37, 38, 39, 40, 43, 28},
            {42, 86, 44, 45, 46, 47, 48, 49, 50, 51, 52, 53, 115, 54},
            {29, 347, 56, 57, 312, 348, 0, 285},
        },
        { // JP
            {1, 59, 60, 61, 62, 63, 64, 65, 66, 67, 68, 87, 88},
            {41, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 125, 14},
            {15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27},
            {58, 30, 31, 32, 33, 34, 35, 36, 37, 38, 39, 40, 43, 28},
            {42, 44, 45, 46, 47, 48, 49, 50, 51, 52, 53, 115, 54},
            {29, 347, 56, 123, 57, 121, 112, 312, 0, 285},
        },
    }};
    // clang-format on
    static const std::vector<std::vector<int>> none;
    return layout >= 0 && layout < KeyboardLayout::Count ? rows[std::size_t(layout)] : none;
}
