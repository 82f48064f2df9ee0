#pragma once

#include "core/records.h"

#include <QWidget>

class ButtonGroupEx;
class QAbstractButton;

/// What the panels of plain device codes share: checkable buttons, one for each code that
/// InputKeyLists holds for the panel's input, with the device codes as ids.
class FunctionWid : public QWidget
{
    Q_OBJECT

public:
    /// Unchecks all entries; emits nothing.
    void clearChecked();

public slots:
    /// Shows what a pad key does: its entry is checked, none when it has none here. A record of
    /// another `type` than 0 changes nothing. Emits nothing.
    void slotVantrixKeySelected(vantrix_key_mapping key);

protected:
    explicit FunctionWid(QWidget *parent);

    /// Adds an entry for a device code.
    void addFunction(QAbstractButton *button, ushort code);
    ButtonGroupEx *group() const;

private:
    ButtonGroupEx *m_group;
};

/// Sheet of an entry that is filled, half transparent, with the colour of an input when checked.
QString functionSheet(int inputType);
