#pragma once

#include <QWidget>

class QLabel;

/// The strip that tells what the keys' colours mean. Where it is too narrow for its texts in one
/// line, they break at their blanks, and are set narrower until they fit.
class LegendWid : public QWidget
{
    Q_OBJECT

public:
    explicit LegendWid(QWidget *parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void fitTexts();
    int roomForTexts() const;
};
