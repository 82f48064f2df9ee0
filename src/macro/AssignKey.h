#pragma once

#include <QPushButton>

/// A flat button of the pickers: an entry that can be checked, or the head of a list.
class AssignKey : public QPushButton
{
    Q_OBJECT

public:
    /// A checkable entry. Line feeds of the text become blanks; ampersands are doubled by the
    /// caller where they are to be read.
    AssignKey(QString text, QWidget *parent);
    /// A head, left-aligned and not checkable; its text is set later.
    explicit AssignKey(QWidget *parent = nullptr);

    /// Leaves some air between the texts of neighbours.
    QSize sizeHint() const override;

private:
    void setUp(const QString &ofKind, const QString &stateRule);
};
