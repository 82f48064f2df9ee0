#pragma once

#include <QPushButton>

/// A push button whose fixed size survives style sheets: polishing a sheet with a `min-height`
/// replaces the minimum of a widget, and with it a size that was fixed before.
class FixedBtn : public QPushButton
{
    Q_OBJECT

public:
    explicit FixedBtn(QWidget *parent = nullptr);

    /// Fixes the size in pixels, borders included, now and after each polish. A negative number
    /// leaves that direction as it is.
    void fixSize(int width, int height);

protected:
    void changeEvent(QEvent *event) override;

private:
    void applySize();

    int m_fixedWidth = -1;
    int m_fixedHeight = -1;
};
