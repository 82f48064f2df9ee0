#include "shell/HistoryPage.h"

#include "ShellFixture.h"
#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QListWidget>

#include <memory>

class tst_HistoryPage : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void empty();
    void newestOnTop();
    void undoneStepsStay();
    void enterAsksForAPosition();
    void longHistoryIsCut();

private:
    QListWidget *list() { return child<QListWidget>(m_page.get(), "m_historyList"); }

    std::unique_ptr<ShellFixture> m_shell;
    std::unique_ptr<HistoryPage> m_page;
};

void tst_HistoryPage::init()
{
    m_shell = std::make_unique<ShellFixture>();
    m_page = std::make_unique<HistoryPage>(m_shell->context);
    m_page->show();
}

void tst_HistoryPage::cleanup()
{
    m_page.reset();
    m_shell.reset();
}

void tst_HistoryPage::empty()
{
    QCOMPARE(list()->count(), 1);
    QCOMPARE(list()->item(0)->text(), QStringLiteral("As it was at the start   (now)"));
}

void tst_HistoryPage::newestOnTop()
{
    m_shell->assign(7, 0x05);
    m_shell->assign(8, 0x06);
    QCOMPARE(list()->count(), 3);
    QCOMPARE(list()->item(0)->text(), QStringLiteral("Assign C to key 8   (now)"));
    QCOMPARE(list()->item(1)->text(), QStringLiteral("Assign B to key 7"));
    QCOMPARE(list()->currentRow(), 0);
}

void tst_HistoryPage::undoneStepsStay()
{
    m_shell->assign(7, 0x05);
    m_shell->assign(8, 0x06);
    m_shell->store().undo();
    QCOMPARE(list()->count(), 3);
    QCOMPARE(list()->item(0)->text(), QStringLiteral("Assign C to key 8"));
    QVERIFY(list()->item(0)->foreground() != list()->item(1)->foreground());
    QCOMPARE(list()->item(1)->text(), QStringLiteral("Assign B to key 7   (now)"));
}

void tst_HistoryPage::enterAsksForAPosition()
{
    m_shell->assign(7, 0x05);
    m_shell->assign(8, 0x06);
    QSignalSpy asked(&m_shell->context, &ShellContext::historyRequested);
    list()->setFocus();
    list()->setCurrentRow(2);
    pressKey(list(), Qt::Key_Return);
    QCOMPARE(asked.count(), 1);
    QCOMPARE(asked.first(), QVariantList({0}));
}

void tst_HistoryPage::longHistoryIsCut()
{
    m_page->hide();
    for (int i = 0; i < 520; ++i) {
        m_shell->store().setProfileName(0, 0, QStringLiteral("N%1").arg(i));
        m_shell->store().flush();
    }
    m_page->show();
    QCOMPARE(list()->count(), 502);
    const QListWidgetItem *const last = list()->item(501);
    QCOMPARE(last->text(),
             QStringLiteral("Earlier steps are listed when you go back to the oldest one here."));
    QCOMPARE(last->flags(), Qt::ItemFlags(Qt::NoItemFlags));
}

VANTRIX_TEST_MAIN(tst_HistoryPage)
#include "tst_HistoryPage.moc"
