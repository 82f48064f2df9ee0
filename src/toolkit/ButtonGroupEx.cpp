#include "interfaces/ButtonGroupEx.h"

#include <QAbstractButton>

ButtonGroupEx::ButtonGroupEx(QObject *parent) : QButtonGroup(parent)
{
    // An exclusive QButtonGroup refuses to uncheck its checked button.
    setExclusive(false);
    connect(this, qOverload<QAbstractButton *, bool>(&QButtonGroup::buttonToggled), this,
            [this](QAbstractButton *toggled, bool checked) {
                if (!checked)
                    return;
                const auto all = buttons();
                for (QAbstractButton *button : all) {
                    if (button != toggled)
                        button->setChecked(false);
                }
            });
    connect(this, qOverload<QAbstractButton *>(&QButtonGroup::buttonClicked), this,
            &ButtonGroupEx::sigButtonClicked);
}

void ButtonGroupEx::setNoneButtonChecked()
{
    const auto all = buttons();
    for (QAbstractButton *button : all)
        button->setChecked(false);
}

void ButtonGroupEx::setButtonChecked(int id, bool bChecked)
{
    if (QAbstractButton *const found = button(id))
        found->setChecked(bChecked);
}
