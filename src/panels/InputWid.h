#pragma once

#include <QMargins>
#include <QWidget>

class InputWid : public QWidget
{
    Q_OBJECT

public:
    explicit InputWid(QWidget *parent = nullptr);

    void setInput(int input);
    void updateUi(int iOwner, int iProfile);
    QMargins innerMargins() const;

signals:
    void sigInputChanged(int input);
};
