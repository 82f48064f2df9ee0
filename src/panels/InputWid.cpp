#include "panels/InputWid.h"

InputWid::InputWid(QWidget *parent) : QWidget(parent) {}

void InputWid::setInput(int) {}

void InputWid::updateUi(int, int) {}

QMargins InputWid::innerMargins() const
{
    return {};
}
