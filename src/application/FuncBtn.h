#pragma once

#include <QPushButton>

/// A checkable entry of a list of application functions.
class FuncBtn : public QPushButton
{
    Q_OBJECT

public:
    explicit FuncBtn(QWidget *parent = nullptr);
};
