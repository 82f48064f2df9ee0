#include "application/ApplicationAdvWid.h"

#include "CatalogFolder.h"
#include "application/HotKey.h"
#include "support/QtUnderTsan.h"
#include "support/TestMain.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QThreadPool>

#include <memory>

/// Browsers that come and go while their catalog is being read. Most telling under the thread and
/// the address sanitizer.
class tst_BrowserChurn : public QObject
{
    Q_OBJECT

private slots:
    void comeAndGo();
    void together();

private:
    void initCatalog();

    std::unique_ptr<CatalogFolder> m_catalog;
};

void tst_BrowserChurn::initCatalog()
{
    if (m_catalog)
        return;
    m_catalog = std::make_unique<CatalogFolder>();
    for (int i = 0; i < 600; ++i)
        m_catalog->addFile(QStringLiteral("APP %1/AREA %2/FILE %3").arg(i % 4).arg(i % 12).arg(i),
                           CatalogFolder::rows(2, 4));
}

void tst_BrowserChurn::comeAndGo()
{
    initCatalog();
    QRandomGenerator random(20);
    for (int i = 0; i < 200; ++i) {
        auto browser = std::make_unique<ApplicationAdvWid>();
        if (random.bounded(2))
            browser->show();
        // Without the event loop the results queue up.
        QThread::usleep(random.bounded(8000u));
        QElapsedTimer time;
        const int turnsFor = int(random.bounded(25));
        for (time.start(); time.elapsed() < turnsFor;)
            QCoreApplication::processEvents();
        if (random.bounded(3) == 0)
            emit browser->sigSearch(QStringLiteral("g1"));
        QThread::usleep(random.bounded(2000u));
    }
    ApplicationAdvWid last;
    QTRY_COMPARE_WITH_TIMEOUT(last.findChildren<HotKey *>().size(), 600 * 8, 120'000);
    QThreadPool::globalInstance()->waitForDone();
}

void tst_BrowserChurn::together()
{
    initCatalog();
    QRandomGenerator random(21);
    std::vector<std::unique_ptr<ApplicationAdvWid>> browsers;
    for (int i = 0; i < 40; ++i) {
        browsers.push_back(std::make_unique<ApplicationAdvWid>());
        QThread::usleep(random.bounded(3000u));
        QCoreApplication::processEvents();
        if (browsers.size() > 4)
            browsers.erase(browsers.begin() + int(random.bounded(4)));
    }
    browsers.clear();
    QThreadPool::globalInstance()->waitForDone();
}

VANTRIX_TEST_MAIN(tst_BrowserChurn)

#include "tst_BrowserChurn.moc"
