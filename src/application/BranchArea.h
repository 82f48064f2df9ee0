#pragma once

#include <QScrollArea>

/// The foldable part of a title in the hot-key browser: as high as what is in it, so that only the
/// page scrolls up and down. It takes any width; what is wider scrolls sideways.
/// The keyboard goes to what is in it, never to the area itself.
class BranchArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit BranchArea(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
};
