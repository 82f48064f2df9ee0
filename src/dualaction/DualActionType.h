#pragma once

#include <QPushButton>

/// A button for one type of dual action (DualType), with the sequence that it stands for.
class DualActionType : public QPushButton
{
    Q_OBJECT

public:
    explicit DualActionType(int type, QWidget *parent = nullptr);
};
