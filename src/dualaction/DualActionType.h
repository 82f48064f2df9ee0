#pragma once

#include <QPushButton>

/// A button for one type of dual action (DualType), with the sequence that it stands for. Where
/// there is less room than its sheet wants, it narrows its text.
class DualActionType : public QPushButton
{
    Q_OBJECT

public:
    explicit DualActionType(int type, QWidget *parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
};
