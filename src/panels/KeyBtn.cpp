#include "panels/KeyBtn.h"

#include "toolkit/NarrowText.h"
#include "vocabulary/KeyCodes.h"

#include <QKeyEvent>

namespace {

const QString &sheet()
{
    static const QString text =
        QStringLiteral("QPushButton{background:rgb(99,99,99);border:1px solid white;"
                       "border-radius:2px;min-height:1px;text-align:top;}"
                       ":hover{background:rgba(255,255,255,50);}:checked{background:") +
        inputColor(InputType::Keyboard).name(QColor::HexArgb) + QLatin1Char('}');
    return text;
}

constexpr int Borders = 2;

} // namespace

KeyBtn::KeyBtn(QWidget *parent) : FixedBtn(parent)
{
    setCheckable(true);
    setStyleSheet(sheet());
}

void KeyBtn::fitLegend()
{
    narrowText(this, text(), width() - Borders);
}

void KeyBtn::keyReleaseEvent(QKeyEvent *event)
{
    FixedBtn::keyReleaseEvent(event);
    event->accept();
}
