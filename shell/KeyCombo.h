#pragma once

#include <QComboBox>

/// A list of all keys that an event of a macro may have. One may type: what holds the letters is
/// offered. The data of an item is its device code.
class KeyCombo : public QComboBox
{
    Q_OBJECT

public:
    explicit KeyCombo(QWidget *parent = nullptr);

    /// Names the keys anew, in the environment's language; the chosen one stays.
    void fill();

    /// Device code of what stands in the field; 0 for a text that is no key.
    int code() const;
};
