#include "shell/Language.h"
#include "support/TestMain.h"

#include <QCoreApplication>
#include <QTranslator>

class tst_Language : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { Language::install(2); }
    void parse_data();
    void parse();
    void titles();
    void installs();
    void replacesTheOneBefore();
    void plurals();

private:
    static QString settings() { return QCoreApplication::translate("SettingsDlg", "Settings"); }
    static QString keyboard() { return QCoreApplication::translate("KeyCodes", "KEYBOARD"); }
    static QString change(int count)
    {
        return QCoreApplication::translate("StepName", "Change %n key(s) in several profiles",
                                           nullptr, count);
    }
};

void tst_Language::parse_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("German") << 4;
    QTest::newRow("german") << 4;
    QTest::newRow("4") << 4;
    QTest::newRow("14") << 14;
    QTest::newRow("15") << -1;
    QTest::newRow("-1") << -1;
    QTest::newRow("Latin") << -1;
    QTest::newRow("") << -1;
}

void tst_Language::parse()
{
    QFETCH(int, number);
    QCOMPARE(Language::parse(QTest::currentDataTag()), number);
}

void tst_Language::titles()
{
    QCOMPARE(Language::title(2), QString("English"));
    QCOMPARE(Language::title(4), QString("German (Deutsch)"));
    QCOMPARE(Language::title(0), QString("Chinese Simplified (简体中文)"));
    QCOMPARE(Language::title(14), QString("Vietnamese (Tiếng Việt)"));
    QCOMPARE(Language::title(15), QString());
}

void tst_Language::installs()
{
    QCOMPARE(settings(), QString("Settings"));
    Language::install(4);
    QCOMPARE(settings(), QString("Einstellungen"));
    QCOMPARE(keyboard(), QString("TASTATUR"));
}

void tst_Language::replacesTheOneBefore()
{
    Language::install(4);
    Language::install(11);
    QCOMPARE(settings(), QString("Configuración"));
    QCOMPARE(keyboard(), QString("TECLADO"));
    Language::install(2);
    QCOMPARE(settings(), QString("Settings"));
    QCOMPARE(keyboard(), QString("KEYBOARD"));
}

void tst_Language::plurals()
{
    Language::install(2);
    QCOMPARE(change(1), QString("Change 1 key in several profiles"));
    QCOMPARE(change(5), QString("Change 5 keys in several profiles"));
    Language::install(10);
    QCOMPARE(change(1), QString("Изменить 1 клавишу в нескольких профилях"));
    QCOMPARE(change(3), QString("Изменить 3 клавиши в нескольких профилях"));
    QCOMPARE(change(5), QString("Изменить 5 клавиш в нескольких профилях"));
}

VANTRIX_TEST_MAIN(tst_Language)
#include "tst_Language.moc"
