#include "application/FuncBtn.h"

FuncBtn::FuncBtn(QWidget *parent) : QPushButton(parent)
{
    setCheckable(true);
}
