#include "dualaction/DualActionType.h"

#include "support/Gestures.h"
#include "support/TestMain.h"

class tst_DualActionType : public QObject
{
    Q_OBJECT

private slots:
    void text_data();
    void text();
    void look();
    void liesBelowItsSiblings();
};

void tst_DualActionType::text_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("text");
    QTest::newRow("normal") << 0 << "NORMAL\n(ACTION1 > ACTION2)";
    QTest::newRow("toggle") << 1 << "TOGGLE\n(ACTION1 > ACTION2 > ACTION1)";
    QTest::newRow("combine") << 2 << "COMBINE\n(ACTION1 > ACTION1 + ACTION2)";
    QTest::newRow("no type") << 3 << "";
}

void tst_DualActionType::text()
{
    QFETCH(int, type);
    QFETCH(QString, text);
    const DualActionType button(type, nullptr);
    QCOMPARE(button.text(), text);
}

void tst_DualActionType::look()
{
    const DualActionType button(0, nullptr);
    QVERIFY(button.isCheckable());
    QVERIFY(!button.isChecked());
    QCOMPARE(button.sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(button.styleSheet(),
             QStringLiteral("QPushButton{background:transparent;border:1px solid white;border-"
                            "radius:5px;min-width:250px;}:hover{background:rgba(255,255,255,50);}:"
                            "checked{background:rgb(132,50,155);border:none;}"));
}

void tst_DualActionType::liesBelowItsSiblings()
{
    QWidget parent;
    const QWidget older(&parent);
    const DualActionType button(0, &parent);
    QCOMPARE(parent.children().indexOf(const_cast<DualActionType *>(&button)), 0);
}

VANTRIX_TEST_MAIN(tst_DualActionType)
#include "tst_DualActionType.moc"
