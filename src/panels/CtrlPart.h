#pragma once

#include <QToolButton>

/// A control of the drawn game controller: a checkable button whose sheet follows its size.
class CtrlPart : public QToolButton
{
    Q_OBJECT

public:
    /// Sets the place, in pixels of the parent, and the sheet that goes with the size.
    void place(const QRect &rect);

protected:
    explicit CtrlPart(QWidget *parent);

    virtual QString sheetAt(const QSize &size) const = 0;

private:
    void setLetterHeight(int pixels);
};

/// A bumper or a trigger, its outer corner round.
class CtrlBtn : public CtrlPart
{
    Q_OBJECT

public:
    CtrlBtn(ushort code, QWidget *parent);

protected:
    QString sheetAt(const QSize &size) const override;

private:
    ushort m_code;
};

/// A round control: the press of a stick, with its letter, a face button or a system button.
class GameBtn : public CtrlPart
{
    Q_OBJECT

public:
    GameBtn(ushort code, QWidget *parent, const QString &text = QString());

protected:
    QString sheetAt(const QSize &size) const override;

private:
    ushort m_code;
};

/// A direction of the directional pad or of a stick: an arrow in a white disc.
class DirectBtn : public CtrlPart
{
    Q_OBJECT

public:
    DirectBtn(ushort code, QWidget *parent);

protected:
    QString sheetAt(const QSize &size) const override;

private:
    int m_rotation; ///< of the arrow, clockwise from upwards, in degrees
};

/// The button in the middle.
class LogoBtn : public CtrlPart
{
    Q_OBJECT

public:
    LogoBtn(ushort code, QWidget *parent);

protected:
    QString sheetAt(const QSize &size) const override;

private:
    ushort m_code;
};
