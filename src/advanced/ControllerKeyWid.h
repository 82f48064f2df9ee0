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

    /// High enough for all keys, and as wide with keys or a search as without. On a row that is
    /// narrower than the hint, down to half of it, texts are drawn narrower.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// The key being edited has just got the function `iKeyId`.
    void sigAddCurrKeyToGamepad(ushort iKeyId);
    /// What the click makes of the key: a record of type 2, or the one that clears it. Follows the
    /// signal above.
    void sigGameControllerChanged(vantrix_key_mapping key);

protected:
    void resizeEvent(QResizeEvent *event) override;

private slots:
    void slotKeyAssigned();

private:
    void measure();
    void fit();
    void fitName();
    bool takeCurrKey();
    void updateKeyText();

    const std::unique_ptr<Ui::ControllerKeyUi> m_ui;
    const int m_iKeyId;
    int m_nameWidth = 0; ///< of the name when it stands out, pixels
    int m_keysWidth = 0; ///< of the button with any keys
    int m_iCurrKey = 0;
    std::vector<int> m_lsKeys;
};
