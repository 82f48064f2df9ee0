#include "interfaces/SheetWarnings.h"

#include "support/TestMain.h"

/// The page's own warnings are known, in a message and in a line of a log; those of others are not.
class tst_SheetWarnings : public QObject
{
    Q_OBJECT

private slots:
    void warnings_data();
    void warnings();
};

void tst_SheetWarnings::warnings_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isOfPage");
    const QString color = QStringLiteral("QCssParser::parseColorValue: Specified color without "
                                         "alpha value but alpha given: '%1'");
    QTest::newRow("overlay") << color.arg("rgb 0,0,0,200") << true;
    QTest::newRow("key") << color.arg("rgb 255,255,255,50") << true;
    QTest::newRow("line of a log")
        << "12:00 warning: " + color.arg("rgb 255,255,255,50") + " (qcssparser.cpp)" << true;
    QTest::newRow("keyboard") << "Could not parse stylesheet of object Keyboard(0x1f, name = \"k\")"
                              << true;
    QTest::newRow("colour of another") << color.arg("rgb 1,2,3,4") << false;
    QTest::newRow("sheet of another")
        << "Could not parse stylesheet of object QLabel(0x1f)" << false;
    QTest::newRow("nothing") << QString() << false;
}

void tst_SheetWarnings::warnings()
{
    QFETCH(QString, text);
    QFETCH(bool, isOfPage);
    QCOMPARE(isSheetWarning(text), isOfPage);
}

VANTRIX_TEST_MAIN(tst_SheetWarnings)
#include "tst_SheetWarnings.moc"
