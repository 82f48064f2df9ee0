#include "core/LegendWid.h"

#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <memory>

class tst_LegendWid : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_window.reset(); }
    void wholeTextsWhereTheyFit();
    void brokenTextsWhereTheyDoNot();
    void twoLinesAtMost();
    void narrowLettersWhereLinesAreTooLong();
    void neverWiderThanItsParent();

private:
    std::unique_ptr<QWidget> m_window;
    LegendWid *m_legend = nullptr;
    QList<QLabel *> m_labels;
};

void tst_LegendWid::init()
{
    m_window = std::make_unique<QWidget>();
    m_legend = new LegendWid(m_window.get());
    auto *const outer = new QHBoxLayout(m_legend);
    outer->setContentsMargins(4, 4, 4, 4);
    auto *const row = new QHBoxLayout;
    row->setSpacing(2);
    outer->addLayout(row);
    m_labels.clear();
    for (const char *const text : {"KEYBOARD", "GAME CONTROLLER", "PRESSO FUNCTIONS"}) {
        auto *const button = new QPushButton(m_legend);
        button->setFixedSize(30, 30);
        row->addWidget(button);
        auto *const label = new QLabel(text, m_legend);
        label->setAccessibleName(text);
        label->setStyleSheet("font-size:12px;");
        row->addWidget(label);
        m_labels << label;
    }
    m_window->show();
}

void tst_LegendWid::wholeTextsWhereTheyFit()
{
    m_legend->resize(600, 38);
    QCOMPARE(m_labels.at(1)->text(), QString("GAME CONTROLLER"));
    m_legend->resize(260, 38);
    m_legend->resize(600, 38);
    QCOMPARE(m_labels.at(1)->text(), QString("GAME CONTROLLER"));
}

void tst_LegendWid::brokenTextsWhereTheyDoNot()
{
    m_legend->resize(260, 38);
    QCOMPARE(m_labels.at(0)->text(), QString("KEYBOARD"));
    QCOMPARE(m_labels.at(1)->text(), QString("GAME\nCONTROLLER"));
    QCOMPARE(m_labels.at(2)->text(), QString("PRESSO\nFUNCTIONS"));
    int width = 8 + 5 * 2;
    for (const QLabel *const label : m_labels)
        width += 30 + label->width();
    QVERIFY2(width <= 260, qPrintable(QString::number(width)));
}

void tst_LegendWid::twoLinesAtMost()
{
    m_labels.at(1)->setAccessibleName("MANETTE DE JEU");
    m_labels.at(2)->setAccessibleName("A VERY LONG NAME");
    m_legend->resize(200, 38);
    QCOMPARE(m_labels.at(1)->text(), QString("MANETTE\nDE JEU"));
    QCOMPARE(m_labels.at(2)->text(), QString("A VERY\nLONG NAME"));
}

void tst_LegendWid::narrowLettersWhereLinesAreTooLong()
{
    QVERIFY(m_legend->testAttribute(Qt::WA_StyledBackground));
    m_legend->resize(600, 38);
    QCOMPARE(m_labels.at(1)->font().stretch(), int(QFont::Unstretched));
    m_legend->resize(210, 38);
    for (const QLabel *const label : m_labels) {
        QVERIFY(label->font().stretch() < int(QFont::Unstretched));
        QCOMPARE(label->minimumWidth(), label->maximumWidth());
    }
    m_legend->resize(600, 38);
    QCOMPARE(m_labels.at(1)->font().stretch(), int(QFont::Unstretched));
}

void tst_LegendWid::neverWiderThanItsParent()
{
    QCOMPARE(m_legend->minimumSizeHint().width(), 1);
    m_legend->resize(1, 1);
    m_legend->resize(5000, 38);
    QCOMPARE(m_labels.at(2)->text(), QString("PRESSO FUNCTIONS"));
}

VANTRIX_TEST_MAIN(tst_LegendWid)
#include "tst_LegendWid.moc"
