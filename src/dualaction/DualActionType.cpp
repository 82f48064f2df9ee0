#include "dualaction/DualActionType.h"

#include "core/records.h"
#include "toolkit/NarrowText.h"

#include <QEvent>

#include <map>

namespace {

/// Leaves the two lines of text some air.
constexpr int TwoLinesHeight = 42;

const std::map<int, const char *> &typeTexts()
{
    // clang-format off
    static const std::map<int, const char *> texts = {
        // type             text
        {DualType::Normal,  QT_TRANSLATE_NOOP("DualActionType", "NORMAL\n(ACTION1 > ACTION2)")},
        {DualType::Toggle,  QT_TRANSLATE_NOOP("DualActionType", "TOGGLE\n(ACTION1 > ACTION2 > ACTION1)")},
        {DualType::Combine, QT_TRANSLATE_NOOP("DualActionType", "COMBINE\n(ACTION1 > ACTION1 + ACTION2)")},
    };
    // clang-format on
    return texts;
}

} // namespace

DualActionType::DualActionType(int type, QWidget *parent) : QPushButton(parent)
{
    setCheckable(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setStyleSheet(QStringLiteral(
        "QPushButton{background:transparent;border:1px solid white;border-radius:5px;"
        "min-width:250px;}:hover{background:rgba(255,255,255,50);}:checked{background:rgb(132,50,"
        "155);border:none;}"));
    const auto row = typeTexts().find(type);
    if (row != typeTexts().end())
        setText(tr(row->second));
    setMinimumHeight(TwoLinesHeight);
    lower();
}

QSize DualActionType::minimumSizeHint() const
{
    return QSize(1, QPushButton::minimumSizeHint().height());
}

bool DualActionType::event(QEvent *event)
{
    const bool isHandled = QPushButton::event(event);
    // The sheet's width is what the button would like; as a minimum it would push its neighbours
    // off a small dialog.
    if (event->type() == QEvent::Polish || event->type() == QEvent::StyleChange)
        setMinimumWidth(0);
    return isHandled;
}

void DualActionType::resizeEvent(QResizeEvent *event)
{
    QPushButton::resizeEvent(event);
    constexpr int borders = 8;
    narrowText(this, text(), width() - borders);
}
