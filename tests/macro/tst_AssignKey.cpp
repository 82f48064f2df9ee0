#include "macro/AssignKey.h"

#include "support/TestMain.h"

#include <QDialog>
#include <QLineEdit>
#include <QVBoxLayout>

class tst_AssignKey : public QObject
{
    Q_OBJECT

private slots:
    void entry();
    void head();
    void enterInAFieldClicksNone();
    void textHasAir();
};

void tst_AssignKey::entry()
{
    const AssignKey key(QStringLiteral("PG\nUP\nX"), nullptr);
    QCOMPARE(key.text(), QStringLiteral("PG UP X"));
    QVERIFY(key.isCheckable());
    QVERIFY(!key.isChecked());
    QCOMPARE(key.sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(key.sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(key.styleSheet(),
             QStringLiteral("QPushButton{ background:transparent;border:none;min-height:30px;"
                            "min-width:80px;font-size:11px;}:hover{background:rgba(255,255,255,"
                            "125);}:checked{background:rgb(132,50,155);}"));
}

void tst_AssignKey::head()
{
    const AssignKey key;
    QVERIFY(key.text().isEmpty());
    QVERIFY(!key.isCheckable());
    QCOMPARE(key.sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(key.sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(key.styleSheet(),
             QStringLiteral("QPushButton{ background:transparent;border:none;min-height:30px;"
                            "min-width:80px;text-align:left;font-size:13px;}:hover{background:"
                            "rgba(255,255,255,125);}:pressed{background:rgb(132,50,155);}"));
}

void tst_AssignKey::enterInAFieldClicksNone()
{
    QDialog dialog;
    auto *const layout = new QVBoxLayout(&dialog);
    auto *const field = new QLineEdit(&dialog);
    auto *const head = new AssignKey(&dialog);
    auto *const entry = new AssignKey(QStringLiteral("A"), &dialog);
    for (QWidget *widget : {static_cast<QWidget *>(field), static_cast<QWidget *>(head),
                            static_cast<QWidget *>(entry)})
        layout->addWidget(widget);
    const QSignalSpy heads(head, &AssignKey::clicked);
    const QSignalSpy entries(entry, &AssignKey::clicked);
    dialog.show();
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Return);
    QTest::keyClick(field, Qt::Key_Enter);
    QCOMPARE(heads.count(), 0);
    QCOMPARE(entries.count(), 0);
}

void tst_AssignKey::textHasAir()
{
    AssignKey key(QStringLiteral("DELETE THE SELECTED ITEM"), nullptr);
    key.ensurePolished();
    const int text = key.fontMetrics().horizontalAdvance(key.text());
    QVERIFY(text > 80);
    QVERIFY2(key.sizeHint().width() >= text + 12, qPrintable(QString::number(text)));
    QVERIFY(key.sizeHint().height() >= 30);
}

VANTRIX_TEST_MAIN(tst_AssignKey)
#include "tst_AssignKey.moc"
