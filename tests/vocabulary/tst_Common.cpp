#include "vocabulary/Common.h"

#include "support/TestMain.h"

#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

/// The small operations on texts and keys.
class tst_Common : public QObject
{
    Q_OBJECT

private slots:
    void filePath_data();
    void filePath();
    void formatChar_data();
    void formatChar();
    void specialCharHandle_data();
    void specialCharHandle();
    void textWrap();
    void plainTip_data();
    void plainTip();
    void setTextOfAButton();
    void setTextOfALabel();
    void setTextElidesLineByLine();
    void setTextFollowsTheFont();
    void waitReturnsAtOnce_data();
    void waitReturnsAtOnce();
    void waitLetsEventsRun();
    void keyCode_data();
    void keyCode();
    void functionNames();
    void colorStyle_data();
    void colorStyle();
    void iconStyle_data();
    void iconStyle();
    void largeIcons();
    void iconStyleIsUnderstood_data();
    void iconStyleIsUnderstood();
};

void tst_Common::filePath_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("quoted");
    QTest::newRow("no blank") << "C:/Tools/a.exe"
                              << "C:/Tools/a.exe";
    QTest::newRow("a blank") << "C:/Program Files/a.exe"
                             << "\"C:/Program Files/a.exe\"";
    QTest::newRow("a blank and a place marker") << "C:/a b/%1.exe"
                                                << "\"C:/a b/%1.exe\"";
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("only a blank") << " "
                                  << "\" \"";
}

void tst_Common::filePath()
{
    QFETCH(QString, path);
    QFETCH(QString, quoted);
    QString out = QStringLiteral("before");
    Common::FilePath(path, out);
    QCOMPARE(out, quoted);
}

void tst_Common::formatChar_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("two lines") << "PRT\nSC"
                               << "PRTSC";
    QTest::newRow("ampersand") << "&&\n7"
                               << "&7";
    QTest::newRow("single ampersand") << "&\n7"
                                      << "&7";
    QTest::newRow("blanks") << "LEFT CLICK"
                            << "LEFTCLICK";
    QTest::newRow("four blanks") << "2\n@    /"
                                 << "2@/";
    QTest::newRow("empty") << ""
                           << "";
}

void tst_Common::formatChar()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    Common::FormatChar(text);
    QCOMPARE(text, expected);
}

void tst_Common::specialCharHandle_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("less than") << "<\n,"
                               << "&lt;\n,";
    QTest::newRow("ampersand") << "&&\n7"
                               << "&\n7";
    QTest::newRow("both") << "<&&<"
                          << "&lt;&&lt;";
    QTest::newRow("greater than stays") << ">"
                                        << ">";
    QTest::newRow("nothing to do") << "A"
                                   << "A";
}

void tst_Common::specialCharHandle()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QString out = QStringLiteral("before");
    Common::SpecialCharHandle(text, out);
    QCOMPARE(out, expected);
}

void tst_Common::textWrap()
{
    QString text = QStringLiteral("LEFT CLICK");
    Common::TextWrap(text);
    QCOMPARE(text, QStringLiteral("LEFT\nCLICK"));
    text = QStringLiteral("STOP");
    Common::TextWrap(text);
    QCOMPARE(text, QStringLiteral("STOP"));
    text = QStringLiteral("A  B");
    Common::TextWrap(text);
    QCOMPARE(text, QStringLiteral("A\n\nB"));
}

void tst_Common::plainTip_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("tip");
    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("plain") << "Build all"
                           << "Build all";
    QTest::newRow("signs") << "a & b > \"c\" < d"
                           << "a & b > \"c\" < d";
    QTest::newRow("legend") << "<\n,    Б"
                            << "<\n,    Б";
    QTest::newRow("tag") << "a<b>c & \"d\""
                         << "<span>a&lt;b&gt;c &amp; &quot;d&quot;</span>";
    QTest::newRow("entity") << "&lt;"
                            << "<span>&amp;lt;</span>";
}

void tst_Common::plainTip()
{
    QFETCH(QString, text);
    QFETCH(QString, tip);
    QCOMPARE(Common::PlainTip(text), tip);
}

namespace {

template <typename Widget>
void compareElision()
{
    Widget widget;
    widget.resize(60, 30);
    const QString shortText = QStringLiteral("UP");
    const QString longText = QStringLiteral("A TEXT THAT IS TOO LONG FOR SIXTY PIXELS");

    Common::SetText(&widget, longText);
    QCOMPARE(widget.toolTip(), longText);
    QVERIFY(widget.text().endsWith(QChar(0x2026)));
    QVERIFY(widget.text().size() < longText.size());
    QVERIFY(longText.startsWith(widget.text().chopped(1).trimmed()));
    QVERIFY(widget.fontMetrics().horizontalAdvance(widget.text()) <= 60);

    const QString tagged = QStringLiteral("<i> A TEXT TOO LONG FOR SIXTY PIXELS");
    Common::SetText(&widget, tagged);
    QCOMPARE(widget.toolTip(),
             QStringLiteral("<span>&lt;i&gt; A TEXT TOO LONG FOR SIXTY PIXELS</span>"));

    Common::SetText(&widget, shortText);
    QCOMPARE(widget.text(), shortText);
    QCOMPARE(widget.toolTip(), QString());

    widget.resize(1000, 30);
    Common::SetText(&widget, longText);
    QCOMPARE(widget.text(), longText);
    QCOMPARE(widget.toolTip(), QString());
}

} // namespace

void tst_Common::setTextOfAButton()
{
    compareElision<QPushButton>();
}

void tst_Common::setTextOfALabel()
{
    compareElision<QLabel>();
}

void tst_Common::setTextElidesLineByLine()
{
    QPushButton button;
    button.resize(60, 40);
    const QString text = QStringLiteral("UP\nA LINE THAT IS MUCH TOO LONG");
    Common::SetText(&button, text);
    const QStringList lines = button.text().split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 2);
    QCOMPARE(lines.at(0), QStringLiteral("UP"));
    QVERIFY(lines.at(1).endsWith(QChar(0x2026)));
    QCOMPARE(button.toolTip(), text);
}

/// The font that a style sheet gives counts, also before the button was ever shown.
void tst_Common::setTextFollowsTheFont()
{
    const QString text = QStringLiteral("BACKSPACE");
    QPushButton small;
    small.setStyleSheet(QStringLiteral("font-size:8px;"));
    small.resize(90, 30);
    Common::SetText(&small, text);
    QCOMPARE(small.text(), text);
    QPushButton large;
    large.setStyleSheet(QStringLiteral("font-size:40px;"));
    large.resize(90, 30);
    Common::SetText(&large, text);
    QVERIFY(large.text() != text);
    QCOMPARE(large.toolTip(), text);
}

void tst_Common::waitReturnsAtOnce_data()
{
    QTest::addColumn<int>("ms");
    QTest::newRow("zero") << 0;
    QTest::newRow("negative") << -1;
    QTest::newRow("very negative") << -2147483647;
}

void tst_Common::waitReturnsAtOnce()
{
    QFETCH(int, ms);
    bool ran = false;
    QTimer::singleShot(0, this, [&ran] { ran = true; });
    Common::Wait(ms);
    QVERIFY(!ran);
    QCoreApplication::processEvents();
    QVERIFY(ran);
}

void tst_Common::waitLetsEventsRun()
{
    bool ran = false;
    QTimer::singleShot(0, this, [&ran] { ran = true; });
    Common::Wait(1);
    QVERIFY(ran);
}

void tst_Common::keyCode_data()
{
    QTest::addColumn<int>("virtualKey");
    QTest::addColumn<int>("scan");
    QTest::addColumn<int>("code");
    QTest::newRow("no virtual key") << 0 << 0 << 0;
    QTest::newRow("no virtual key, a preceding scan") << 0 << 28 << 0;
    QTest::newRow("left Shift") << 16 << 42 << 225;
    QTest::newRow("right Shift") << 16 << 54 << 229;
    QTest::newRow("left Ctrl") << 17 << 29 << 224;
    QTest::newRow("right Ctrl") << 17 << 285 << 228;
    QTest::newRow("left Alt") << 18 << 56 << 226;
    QTest::newRow("right Alt") << 18 << 312 << 230;
    QTest::newRow("Enter") << 13 << 28 << 40;
    QTest::newRow("keypad Enter") << 13 << 284 << 88;
    QTest::newRow("Shift of an unlisted scan code") << 16 << 99 << 0;
    QTest::newRow("A") << 65 << 30 << 4;
    QTest::newRow("Z of another layout's place") << 90 << 21 << 29;
    QTest::newRow("0") << 48 << 11 << 39;
    QTest::newRow("F13") << 124 << 100 << 104;
    QTest::newRow("left Windows key") << 91 << 347 << 227;
    QTest::newRow("right Windows key") << 92 << 348 << 231;
    QTest::newRow("mute") << 173 << 288 << 244;
    QTest::newRow("below the list") << 7 << 1 << 0;
    QTest::newRow("above the list") << 223 << 1 << 0;
}

void tst_Common::keyCode()
{
    QFETCH(int, virtualKey);
    QFETCH(int, scan);
    QFETCH(int, code);
    QKeyEvent event(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, quint32(scan), quint32(virtualKey),
                    0);
    QCOMPARE(int(Common::ZKKeyCode(&event)), code);
}

void tst_Common::functionNames()
{
    QCOMPARE(Common::PhotoshopFuncName(13), QStringLiteral("RECTANGULAR MARQUEE"));
    QCOMPARE(Common::PremiereProFuncName(18), QStringLiteral("TRACK SELECT FORWARD"));
    QCOMPARE(Common::IllustratorFuncName(5), QStringLiteral("BRUSH OPACITY"));
    for (const int id : {-1, 19}) {
        QCOMPARE(Common::PhotoshopFuncName(id), QStringLiteral("UNKNOWN"));
        QCOMPARE(Common::PremiereProFuncName(id), QStringLiteral("UNKNOWN"));
        QCOMPARE(Common::IllustratorFuncName(id), QStringLiteral("UNKNOWN"));
    }
}

namespace {

const QString styleTail = QStringLiteral(
    ";min-height:1px;}:hover{background:rgba(255,255,255,125)}:checked{background:rgb(255,255,255,"
    "50);border:2px solid white;}");

QString baseStyle(const char *rgb)
{
    return QStringLiteral("QPushButton{background:#32%1;border-radius:5px;border:2px solid #ff%1")
               .arg(QLatin1String(rgb)) +
           styleTail;
}

} // namespace

void tst_Common::colorStyle_data()
{
    QTest::addColumn<int>("input");
    QTest::addColumn<QString>("style");
    QTest::newRow("keyboard") << 0 << baseStyle("fd00fd");
    QTest::newRow("mouse") << 1 << baseStyle("f6941d");
    QTest::newRow("media") << 2 << baseStyle("0054a6");
    QTest::newRow("macro") << 3 << baseStyle("d50681");
    QTest::newRow("controller") << 4 << baseStyle("00aeee");
    QTest::newRow("application") << 5 << baseStyle("ffff00");
    QTest::newRow("dual action") << 6 << baseStyle("3cb878");
    QTest::newRow("presso functions") << 7 << baseStyle("0000ff");
    QTest::newRow("backlight") << 8 << baseStyle("a67c52");
    QTest::newRow("profile") << 9 << baseStyle("fff799");
    QTest::newRow("preset mode") << 10 << baseStyle("ffffff");
    QTest::newRow("disabled") << 11 << baseStyle("ff0000");
    QTest::newRow("unassigned") << 12 << baseStyle("00ff00");
    QTest::newRow("unknown") << 13 << baseStyle("ffffff");
    QTest::newRow("negative") << -1 << baseStyle("ffffff");
}

void tst_Common::colorStyle()
{
    QFETCH(int, input);
    QFETCH(QString, style);
    QString out = QStringLiteral("before");
    Common::keyColorStyle(input, out);
    QCOMPARE(out, style);
}

void tst_Common::iconStyle_data()
{
    QTest::addColumn<int>("input");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("style");
    const auto rule = [](const char *icon, int size) {
        return QStringLiteral("QPushButton{qproperty-icon:url(%1);qproperty-iconSize:%2px;"
                              "text-align:top;font-size:11px;}")
            .arg(QLatin1String(icon))
            .arg(size);
    };
    QTest::newRow("media has the picture of its code")
        << 2 << 240 << "ignored" << baseStyle("0054a6") + rule(":/VantrixMap/Media/play_pause", 30);
    QTest::newRow("controller button")
        << 4 << 462 << "ignored"
        << baseStyle("00aeee") + rule(":/VantrixMap/GameCtrl/assign/a", 30);
    QTest::newRow("controller direction")
        << 4 << 2521 << "ignored"
        << baseStyle("00aeee") + rule(":/VantrixMap/GameCtrl/assign/d_up_right", 40);
    QTest::newRow("stick press is no direction")
        << 4 << 471 << "" << baseStyle("00aeee") + rule(":/VantrixMap/GameCtrl/assign/ls", 30);
    QTest::newRow("application has the path")
        << 5 << 0 << ":/VantrixMap/Application/PS/pen"
        << baseStyle("ffff00") + rule(":/VantrixMap/Application/PS/pen", 30);
    QTest::newRow("a direction's code of another kind is small")
        << 5 << 458 << ":/VantrixMap/Application/PS/pen"
        << baseStyle("ffff00") + rule(":/VantrixMap/Application/PS/pen", 30);
    QTest::newRow("keyboard without a path") << 0 << 4 << "" << baseStyle("fd00fd") + rule("", 30);
    QTest::newRow("controller without a picture")
        << 4 << 5 << "ignored" << baseStyle("00aeee") + rule("", 30);
}

void tst_Common::iconStyle()
{
    QFETCH(int, input);
    QFETCH(int, code);
    QFETCH(QString, path);
    QFETCH(QString, style);
    QString out = QStringLiteral("before");
    Common::keyIconStyle(input, ushort(code), path, out);
    QCOMPARE(out, style);
}

void tst_Common::largeIcons()
{
    const std::vector<int> large = {454, 455, 456,  457,  458,  459,  460,  461,
                                    473, 729, 1241, 1497, 1753, 2265, 2521, 2777,
                                    731, 475, 474,  730,  733,  477,  476,  732};
    QString style;
    for (int code = 0; code < 3100; ++code) {
        Common::keyIconStyle(4, ushort(code), QString(), style);
        const bool isLarge = std::count(large.begin(), large.end(), code) != 0;
        QVERIFY2(style.contains(isLarge ? QStringLiteral("qproperty-iconSize:40px;")
                                        : QStringLiteral("qproperty-iconSize:30px;")),
                 qPrintable(QString::number(code)));
    }
}

void tst_Common::iconStyleIsUnderstood_data()
{
    QTest::addColumn<int>("input");
    QTest::addColumn<int>("code");
    QTest::addColumn<bool>("hasIcon");
    QTest::addColumn<int>("size");
    QTest::newRow("media") << 2 << 244 << true << 30;
    QTest::newRow("controller") << 4 << 458 << true << 40;
    QTest::newRow("no picture") << 0 << 4 << false << 30;
}

/// A button takes its icon from the sheet, silently also when there is none.
void tst_Common::iconStyleIsUnderstood()
{
    QFETCH(int, input);
    QFETCH(int, code);
    QFETCH(bool, hasIcon);
    QFETCH(int, size);
    QString style;
    Common::keyIconStyle(input, ushort(code), QString(), style);
    QPushButton button;
    button.setStyleSheet(style);
    button.ensurePolished();
    QCOMPARE(!button.icon().pixmap(30, 30).isNull(), hasIcon);
    QCOMPARE(button.iconSize(), QSize(size, size));
    QVERIFY(!button.grab().isNull());
}

VANTRIX_TEST_MAIN(tst_Common)
#include "tst_Common.moc"
