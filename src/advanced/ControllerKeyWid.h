#pragma once

#include "core/records.h"

#include <QWidget>

#include <memory>
#include <vector>

namespace Ui {
class ControllerKeyUi;
}

/// One row of the controller page: a controller function, and on a button the pad keys that drive
/// it, the key being edited first. A click on the button gives the function to that key or takes
/// it away again. Interface thread only.
class ControllerKeyWid : public QWidget
{
    Q_OBJECT

public:
    /// `iKeyId` is the row's controller code.
    ControllerKeyWid(int iKeyId, QWidget *parent);
    ~ControllerKeyWid() override;

    /// The key being edited, and the indexes (0 to 27) of all keys that hold the function, in the
    /// order in which they are shown. Emits nothing.
    void setKeys(int iCurrKey, const std::vector<int> &lsKeys);
    const std::vector<int> &keys() const { return m_lsKeys; }
    /// Takes the key being edited off the row, if it is there. Emits nothing.
    void delCurrKey();
    /// Makes the function's name stand out if it starts with `strText`, ignoring case. The empty
    /// text ends that.
    void search(QString strText);

    /// High enough for all keys.
    QSize minimumSizeHint() const override;

signals:
    /// The key being edited has just got the function `iKeyId`.
    void sigAddCurrKeyToGamepad(ushort iKeyId);
    /// What the click makes of the key: a record of type 2, or the one that clears it. Follows the
    /// signal above.
    void sigGameControllerChanged(vantrix_key_mapping key);

private slots:
    void slotKeyAssigned();

private:
    /// Neither the keys on the row nor a search change the widths.
    void reserveWidths();
    bool takeCurrKey();
    void updateKeyText();

    const std::unique_ptr<Ui::ControllerKeyUi> m_ui;
    const int m_iKeyId;
    int m_iCurrKey = 0;
    std::vector<int> m_lsKeys;
};
