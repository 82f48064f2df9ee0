#include "dualaction/DualActionType.h"

#include "core/records.h"

#include <map>

namespace {

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
    lower();
}
