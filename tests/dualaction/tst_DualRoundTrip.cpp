#include "core/VantrixKey.h"
#include "core/VantrixMapWid.h"
#include "dualaction/DualActionAdvWid.h"
#include "host/HostServices.h"
#include "interfaces/Modal.h"
#include "interfaces/OstraAction.h"
#include "interfaces/OstraMenu.h"
#include "support/DualKey.h"
#include "support/Gestures.h"
#include "support/TestMain.h"

#include <QButtonGroup>
#include <QDialog>
#include <QPushButton>
#include <QSlider>
#include <QTemporaryDir>

#include <cstring>
#include <memory>

/// Every type at every depth, from the dialog's form through page and store and back, also after
/// the store was opened anew.
class tst_DualRoundTrip : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void everyDepth_data();
    void everyDepth();

private:
    struct Shown
    {
        int type = -1;
        int depth = -1;
        QString first;
        QString second;
    };

    void open();
    void close();
    VantrixKey *key(int index) const
    {
        return child<VantrixKey>(m_page, QStringLiteral("key_%1").arg(index));
    }
    void inDialog(int keyIdx, const std::function<void(QDialog *)> &doing);
    void setUp(int keyIdx, int type, int depth);
    Shown shownFor(int keyIdx);
    void compareStored(int keyIdx, const vantrix_key_mapping &expected) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<HostServices> m_services;
    std::unique_ptr<QWidget> m_window;
    VantrixMapWid *m_page = nullptr;
};

namespace {

/// The entry of a code in the menus of the first or the second action.
OstraAction *entryOf(const QWidget *form, int action, int code)
{
    int found = 0;
    const auto entries = form->findChildren<OstraAction *>();
    for (OstraAction *entry : entries) {
        if (entry->id() == code && ++found == action)
            return entry;
    }
    return nullptr;
}

} // namespace

void tst_DualRoundTrip::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    open();
}

void tst_DualRoundTrip::cleanup()
{
    Modal::setAnswerer(nullptr);
    close();
    m_folder.reset();
}

void tst_DualRoundTrip::open()
{
    m_services = std::make_unique<HostServices>(m_folder->path());
    m_window = std::make_unique<QWidget>();
    m_window->resize(1280, 900);
    m_services->environment().setMainWidget(m_window.get());
    m_services->store().setMode(0, 0, Mode::Advanced);
    m_page = new VantrixMapWid(0, m_window.get());
    m_page->resize(1280, 900);
    m_page->updateUi(0);
    m_window->show();
}

void tst_DualRoundTrip::close()
{
    m_window.reset();
    m_services.reset();
}

/// Selects a key and opens the dialog on its dual action page.
void tst_DualRoundTrip::inDialog(int keyIdx, const std::function<void(QDialog *)> &doing)
{
    if (!key(keyIdx)->isChecked())
        key(keyIdx)->click();
    int asked = 0;
    Modal::setAnswerer([&](const ModalPrompt &prompt) {
        ++asked;
        doing(prompt.dialog);
        return QVariant(0);
    });
    child<QPushButton>(m_page, "m_dualActionMode")->click();
    Modal::setAnswerer(nullptr);
    QCOMPARE(asked, 1);
}

void tst_DualRoundTrip::setUp(int keyIdx, int type, int depth)
{
    inDialog(keyIdx, [&](const QDialog *dialog) {
        auto *form = dialog->findChild<DualActionAdvWid *>();
        entryOf(form, 1, 4)->click();
        QVERIFY(child<QPushButton>(form, "m_action2")->isEnabled());
        entryOf(form, 2, 497)->click();
        child<QSlider>(form, "m_distanceSlider")->setValue(depth);
        form->findChild<QButtonGroup *>()->button(type)->click();
        child<QPushButton>(dialog, "m_apply")->click();
    });
}

tst_DualRoundTrip::Shown tst_DualRoundTrip::shownFor(int keyIdx)
{
    Shown shown;
    inDialog(keyIdx, [&shown](const QDialog *dialog) {
        auto *form = dialog->findChild<DualActionAdvWid *>();
        shown.type = form->findChild<QButtonGroup *>()->checkedId();
        shown.depth = child<QSlider>(form, "m_distanceSlider")->value();
        shown.first = child<QPushButton>(form, "m_action1")->text();
        shown.second = child<QPushButton>(form, "m_action2")->text();
        child<QPushButton>(dialog, "m_cancel")->click();
    });
    return shown;
}

void tst_DualRoundTrip::compareStored(int keyIdx, const vantrix_key_mapping &expected) const
{
    const vantrix_key_mapping stored = m_services->store().state().mapping(0, 0, keyIdx);
    QCOMPARE(stored, expected);
    QCOMPARE(std::memcmp(&stored, &expected, 11), 0);
}

void tst_DualRoundTrip::everyDepth_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("normal") << 0;
    QTest::newRow("toggle") << 1;
    QTest::newRow("combine") << 2;
}

void tst_DualRoundTrip::everyDepth()
{
    QFETCH(int, type);
    constexpr int keys = 24; // those that can have a dual action
    for (int first = 10; first <= 90; first += keys) {
        const int last = qMin(first + keys - 1, 90);
        for (int depth = first; depth <= last; ++depth)
            setUp(depth - first, type, depth);
        close();
        open();
        for (int depth = first; depth <= last; ++depth) {
            const int keyIdx = depth - first;
            compareStored(keyIdx, dualKey(4, 497, type, depth));
            QCOMPARE(key(keyIdx)->fullText(), QString::number(depth) + QLatin1Char('%'));
            const Shown shown = shownFor(keyIdx);
            QCOMPARE(shown.type, type);
            QCOMPARE(shown.depth, depth);
            QCOMPARE(shown.first, QStringLiteral("A"));
            QCOMPARE(shown.second, QStringLiteral("RIGHT CLICK"));
            compareStored(keyIdx, dualKey(4, 497, type, depth));
        }
    }
}

VANTRIX_TEST_MAIN(tst_DualRoundTrip)
#include "tst_DualRoundTrip.moc"
