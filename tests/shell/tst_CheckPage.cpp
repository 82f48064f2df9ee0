#include "shell/CheckPage.h"

#include "ShellFixture.h"
#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

#include <memory>

class tst_CheckPage : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void nothing();
    void findingsHaveWaysToGo();
    void goingThereKeepsThePlace();
    void followsChanges();
    void followsTheShownProfile();
    void allProfiles();
    void otherProfilesAreNamed();
    void applySaysTheCount();
    void applySaysNothingWhenAllIsRight();
    void longListsAreCut();

private:
    ProfileStore &store() { return m_shell->store(); }
    QString summary() { return child<QLabel>(m_page.get(), "m_summary")->text(); }
    QWidget *content() { return child<QScrollArea>(m_page.get(), "m_findings")->widget(); }
    QStringList chips()
    {
        QStringList texts;
        for (const QPushButton *const chip : content()->findChildren<QPushButton *>())
            texts << chip->text();
        return texts;
    }

    std::unique_ptr<ShellFixture> m_shell;
    std::unique_ptr<CheckPage> m_page;
};

void tst_CheckPage::init()
{
    m_shell = std::make_unique<ShellFixture>();
    m_page = std::make_unique<CheckPage>(m_shell->context);
    m_page->resize(400, 600);
    m_page->show();
}

void tst_CheckPage::cleanup()
{
    m_page.reset();
    m_shell.reset();
}

void tst_CheckPage::nothing()
{
    QCOMPARE(summary(), QStringLiteral("Nothing to look at."));
    QVERIFY(chips().isEmpty());
}

void tst_CheckPage::findingsHaveWaysToGo()
{
    m_shell->assign(3, 5);
    m_shell->assign(9, 5);
    QTRY_COMPARE(summary(), QStringLiteral("One thing to look at."));
    QCOMPARE(chips(), QStringList({QStringLiteral("Key 3"), QStringLiteral("Key 9")}));
    QSignalSpy asked(&m_shell->context, &ShellContext::goTo);
    clickOn(content()->findChildren<QPushButton *>()[1]);
    QCOMPARE(asked.count(), 1);
    QCOMPARE(asked[0], QVariantList({0, 9}));
}

void tst_CheckPage::goingThereKeepsThePlace()
{
    for (int profile = 0; profile < 20; ++profile) {
        m_shell->assign(3, 5, profile);
        m_shell->assign(9, 5, profile);
    }
    m_page->setScope(CheckPage::AllProfiles);
    QCoreApplication::processEvents();
    auto *const bar = child<QScrollArea>(m_page.get(), "m_findings")->verticalScrollBar();
    QVERIFY(bar->maximum() > 300);
    bar->setValue(300);
    QWidget *const chip = content()->findChildren<QPushButton *>().last();
    chip->setFocus();
    m_shell->context.setProfile(19);
    QCoreApplication::processEvents();
    QVERIFY(chip->hasFocus());
    const int place = bar->value();
    m_shell->assign(3, 69, 19); // one finding goes
    QTRY_COMPARE(summary(), QStringLiteral("19 things to look at."));
    QTRY_COMPARE(bar->value(), std::min(place, bar->maximum()));
    QVERIFY(bar->value() > 200);
}

void tst_CheckPage::followsChanges()
{
    m_shell->assign(3, 5);
    m_shell->assign(9, 5);
    store().setNamedMacroKey(0, 0, "Lost", 1);
    store().flush();
    QTRY_COMPARE(summary(), QStringLiteral("2 things to look at."));
    store().addMacro(0, QStringLiteral("Lost"), vantrix_macro_record());
    store().flush();
    QTRY_VERIFY(content()->findChild<QLabel *>()->text().contains(QStringLiteral("empty")));
    store().undo();
    store().undo();
    store().undo();
    QTRY_COMPARE(summary(), QStringLiteral("Nothing to look at."));
}

void tst_CheckPage::followsTheShownProfile()
{
    m_shell->assign(3, 5, 4);
    m_shell->assign(9, 5, 4);
    QCoreApplication::processEvents(); // what these two brought about is over
    QCOMPARE(summary(), QStringLiteral("Nothing to look at."));
    m_shell->context.setProfile(4);
    QTRY_COMPARE(summary(), QStringLiteral("One thing to look at."));
}

void tst_CheckPage::allProfiles()
{
    for (const int profile : {4, 6}) {
        m_shell->assign(3, 5, profile);
        m_shell->assign(9, 5, profile);
    }
    clickOn(child<QPushButton>(m_page.get(), "m_allProfilesBtn"));
    QCOMPARE(summary(), QStringLiteral("2 things to look at."));
    QStringList labels;
    for (const QLabel *const label : content()->findChildren<QLabel *>())
        labels << label->text();
    QCOMPARE(
        labels,
        QStringList({QStringLiteral("PROFILE 5"), QStringLiteral("Keys 3 and 9 do the same: B."),
                     QStringLiteral("PROFILE 7"), QStringLiteral("Keys 3 and 9 do the same: B.")}));
}

void tst_CheckPage::otherProfilesAreNamed()
{
    m_shell->assign(5, 1538);
    m_shell->context.setProfile(2);
    QTRY_COMPARE(chips(), QStringList({QStringLiteral("PROFILE 3"),
                                       QStringLiteral("PROFILE 1 \u00B7 Key 5")}));
    QSignalSpy asked(&m_shell->context, &ShellContext::goTo);
    clickOn(content()->findChildren<QPushButton *>()[1]);
    QCOMPARE(asked[0], QVariantList({0, 5}));
    clickOn(content()->findChildren<QPushButton *>()[0]);
    QCOMPARE(asked[1], QVariantList({2, 28}));
}

void tst_CheckPage::applySaysTheCount()
{
    m_shell->assign(3, 5);
    m_shell->assign(9, 5);
    QSignalSpy said(&m_shell->context, &ShellContext::status);
    emit m_shell->context.applied();
    QCOMPARE(said.count(), 1);
    QCOMPARE(said[0][0].toString(),
             QStringLiteral("PROFILE 1 is on the device. One thing to look at. See CHECK."));
}

void tst_CheckPage::applySaysNothingWhenAllIsRight()
{
    QSignalSpy said(&m_shell->context, &ShellContext::status);
    emit m_shell->context.applied();
    QCOMPARE(said.count(), 0);
}

void tst_CheckPage::longListsAreCut()
{
    for (int profile = 0; profile < 24; ++profile) {
        for (int key = 0; key < 5; ++key)
            store().setNamedMacroKey(0, profile, "Lost " + std::to_string(key), key);
    }
    store().flush();
    clickOn(child<QPushButton>(m_page.get(), "m_allProfilesBtn"));
    QCOMPARE(summary(), QStringLiteral("120 things to look at. The first 100 are listed."));
    QCOMPARE(chips().size(), 100);
}

VANTRIX_TEST_MAIN(tst_CheckPage)
#include "tst_CheckPage.moc"
