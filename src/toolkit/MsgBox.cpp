#include "interfaces/MsgBox.h"

#include "interfaces/Modal.h"

void MsgBox::warning(QWidget *parent, const QString &title, const QString &text)
{
    Modal::warning(parent, title, text);
}

int MsgBox::question(QWidget *parent, const QString &title, const QString &text)
{
    return Modal::question(parent, title, text);
}
