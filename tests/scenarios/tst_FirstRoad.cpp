#include "XGestures.h"
#include "core/VantrixMapWid.h"
#include "shell/MainWindow.h"
#include "shell/MappingView.h"
#include "support/Gestures.h"
#include "support/TestMain.h"
#include "vocabulary/KeyLegends.h"

#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <memory>

namespace {

/// A real key and what it puts on a key of the pad.
struct Press
{
    int keyIdx;
    const char *xCode;
    ushort code;
    const char *legend;
};

// clang-format off
const Press presses[] = {
    // pad key, X code, device code, legend of the German keyboard
    {  7,       "56",       5,       "B"          },
    {  0,       "62",     229,       "R_SHIFT"    },
    { 12,      "104",      88,       "ENTER"      },
    { 19,      "191",     255,       "V"          }, // F13 is not on the drawn keyboard
    { 23,       "94",     100,       "> < |"  },
};
// clang-format on

} // namespace

/// A person puts real keys on keys of the pad, applies, closes the program and opens it again.
class tst_FirstRoad : public QObject
{
    Q_OBJECT

private slots:
    void road();

private:
    void open();
    void close();
    void pressAll();
    void compareStore(const StoreState &state);
    QString printed() const;
    QPushButton *key(int keyIdx)
    {
        return child<QPushButton>(m_window.get(), QStringLiteral("key_%1").arg(keyIdx));
    }

    QTemporaryDir m_folder;
    std::unique_ptr<HostServices> m_services;
    std::unique_ptr<ShellContext> m_context;
    std::unique_ptr<MainWindow> m_window;
};

void tst_FirstRoad::open()
{
    m_services = std::make_unique<HostServices>(m_folder.path());
    m_services->environment().setLanguage(LanguageIndex().at(QStringLiteral("German")));
    m_context = std::make_unique<ShellContext>(*m_services);
    m_window = std::make_unique<MainWindow>(*m_context);
    m_window->move(0, 0);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    XGestures::focus(m_window.get());
}

void tst_FirstRoad::close()
{
    m_window->close();
    m_window.reset();
    m_context.reset();
    m_services.reset();
}

void tst_FirstRoad::pressAll()
{
    for (const Press &press : presses) {
        XGestures::click(key(press.keyIdx));
        QVERIFY(key(press.keyIdx)->isChecked());
        XGestures::key(QString::fromLatin1(press.xCode));
    }
}

void tst_FirstRoad::compareStore(const StoreState &state)
{
    for (const Press &press : presses) {
        QCOMPARE(ushort(state.mapping(0, 0, press.keyIdx).code), press.code);
        const auto image = m_services->device().image(0, 0);
        const auto &sent = image.keys[std::size_t(press.keyIdx)].content.mapping;
        QCOMPARE(ushort(sent.code), press.code);
    }
}

/// What another process reads from the store.
QString tst_FirstRoad::printed() const
{
    QProcess shell;
    shell.start(QStringLiteral(SHELL_PROGRAM),
                {QStringLiteral("--data"), m_folder.path(), QStringLiteral("--print-profile")});
    shell.waitForFinished();
    return QString::fromUtf8(shell.readAllStandardOutput());
}

void tst_FirstRoad::road()
{
    QVERIFY(XGestures::setLayout(QStringLiteral("de")));
    open();
    pressAll();
    for (const Press &press : presses)
        QCOMPARE(key(press.keyIdx)->text().simplified(), QString::fromUtf8(press.legend));
    XGestures::click(child<QPushButton>(m_window.get(), "m_apply"));
    compareStore(m_services->store().state());
    close();

    const QString text = printed();
    for (const Press &press : presses) {
        const QRegularExpression row(
            QStringLiteral("^ *%1 .* %2  ").arg(press.keyIdx).arg(press.code),
            QRegularExpression::MultilineOption);
        QCOMPARE(text.count(row), 2); // store and device
    }

    open();
    compareStore(m_services->store().state());
    for (const Press &press : presses)
        QCOMPARE(key(press.keyIdx)->text().simplified(), QString::fromUtf8(press.legend));
    close();
}

VANTRIX_TEST_MAIN(tst_FirstRoad)
#include "tst_FirstRoad.moc"
