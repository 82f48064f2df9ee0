#include "ShellRoad.h"
#include "XGestures.h"
#include "core/VantrixMapWid.h"
#include "shell/MappingView.h"
#include "support/TestMain.h"

#include <QProcess>
#include <QRegularExpression>

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

constexpr int German = 4; // in LanguageIndex

} // namespace

/// A person puts real keys on keys of the pad, applies, closes the program and opens it again.
class tst_FirstRoad : public QObject, ShellRoad
{
    Q_OBJECT

private slots:
    void road();

private:
    void pressAll();
    void compareStore(const StoreState &state);
    QString printed() const;
};

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
                {QStringLiteral("--data"), m_folder->path(), QStringLiteral("--print-profile")});
    shell.waitForFinished();
    return QString::fromUtf8(shell.readAllStandardOutput());
}

void tst_FirstRoad::road()
{
    QVERIFY(XGestures::setLayout(QStringLiteral("de")));
    start(German);
    pressAll();
    for (const Press &press : presses)
        QCOMPARE(key(press.keyIdx)->text().simplified(), QString::fromUtf8(press.legend));
    XGestures::click(get<QPushButton>("m_apply"));
    compareStore(state());
    quit();

    const QString text = printed();
    for (const Press &press : presses) {
        const QRegularExpression row(
            QStringLiteral("^ *%1 .* %2  ").arg(press.keyIdx).arg(press.code),
            QRegularExpression::MultilineOption);
        QCOMPARE(text.count(row), 2); // store and device
    }

    start(German);
    compareStore(state());
    for (const Press &press : presses)
        QCOMPARE(key(press.keyIdx)->text().simplified(), QString::fromUtf8(press.legend));
    quit();
}

VANTRIX_TEST_MAIN(tst_FirstRoad)
#include "tst_FirstRoad.moc"
