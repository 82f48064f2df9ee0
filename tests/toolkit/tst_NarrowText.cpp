#include "toolkit/NarrowText.h"

#include "support/TestMain.h"

#include <QLabel>
#include <QPushButton>

namespace {

/// A stretch of 100 may differ from none by this.
constexpr int Hinting = 10;
const QString Text = QStringLiteral("WIDE ENOUGH TEXT");

int widthOf(const QWidget &widget)
{
    return widget.fontMetrics().horizontalAdvance(Text);
}

} // namespace

class tst_NarrowText : public QObject
{
    Q_OBJECT

private slots:
    void textWithRoomIsLeftAlone();
    void textWithoutRoomIsNarrowed();
    void half();
    void severalLines();
    void followsTheSize();
};

void tst_NarrowText::textWithRoomIsLeftAlone()
{
    QLabel label(Text);
    const QFont font = label.font();
    narrowText(&label, Text, widthOf(label) + Hinting);
    QCOMPARE(label.font(), font);
}

void tst_NarrowText::textWithoutRoomIsNarrowed()
{
    QLabel label(Text);
    const int full = widthOf(label);
    const int room = full * 8 / 10;
    narrowText(&label, Text, room);
    QVERIFY(widthOf(label) <= room);
    QVERIFY(widthOf(label) > full * 7 / 10);
    QVERIFY(label.font().stretch() < 100);
    narrowText(&label, Text, full + Hinting);
    QCOMPARE(label.font().stretch(), 100);
}

void tst_NarrowText::half()
{
    QLabel label(Text);
    for (const int room : {10, 0, -5}) {
        narrowText(&label, Text, room);
        QCOMPARE(label.font().stretch(), 50);
    }
    narrowText(&label, QString(), 0);
    QCOMPARE(label.font().stretch(), 50);
}

void tst_NarrowText::severalLines()
{
    QLabel label;
    narrowText(&label, QStringLiteral("WIDE\nENOUGH"),
               label.fontMetrics().horizontalAdvance(QStringLiteral("ENOUGH")) + Hinting);
    QVERIFY(label.font().stretch() == 100 || label.font().stretch() == QFont::AnyStretch);
}

void tst_NarrowText::followsTheSize()
{
    QWidget page;
    QPushButton button(Text, &page);
    keepTextNarrow(&button, 10);
    page.show();
    const int full = widthOf(button);
    button.resize(full + 10 + Hinting, 30);
    QVERIFY(button.font().stretch() == 100 || button.font().stretch() == QFont::AnyStretch);
    button.resize(full, 30);
    QVERIFY(widthOf(button) <= full - 10);
    button.resize(full + 200, 30);
    QCOMPARE(button.font().stretch(), 100);
}

VANTRIX_TEST_MAIN(tst_NarrowText)
#include "tst_NarrowText.moc"
