#pragma once

#include "core/records.h"
#include "panels/PanelPicture.h"

#include <QWidget>

#include <memory>

class ButtonGroupEx;
class CtrlPart;
class QAbstractButton;

namespace Ui {
class GameCtrlUi;
}

/// The panel of the game controller: a picture of one with a button on each of its controls. The
/// ids of the buttons are controller codes. All places follow from the scaled picture's size.
class GameCtrlWid : public QWidget
{
    Q_OBJECT

public:
    explicit GameCtrlWid(QWidget *parent = nullptr);
    ~GameCtrlWid() override;

    /// Unchecks all controls; emits nothing.
    void clearChecked();
    /// Builds the controls; without this call there are none. False: a controller with triggers,
    /// stick directions and the directional pad in its second form (codes 473, 729, 1241, 2265).
    /// True: a pad with neither triggers nor stick directions and the first form (458 to 461).
    void setPadMode(bool flag);

    QSize minimumSizeHint() const override;

public slots:
    /// Shows what a pad key does: its control is checked, none when it has none here. A record of
    /// another `type` than 2 changes nothing. Emits nothing.
    void slotVantrixKeySelected(vantrix_key_mapping key);

signals:
    /// The user clicked a control. Checked: `type` 2, `code` 255, `altCode` its code. Unchecked:
    /// `type` 0, `code` and `altCode` 255.
    void sigGameChanged(vantrix_key_mapping key);

protected:
    void resizeEvent(QResizeEvent *event) override;

private slots:
    void slotGameKeyClicked(QAbstractButton *button);

private:
    void buildControls();
    void add(CtrlPart *control, ushort code);
    template <typename Part, typename Codes>
    void addAll(const Codes &codes);

    int x(int parts) const;
    int y(int parts) const;
    void place(ushort code, int left, int top, const QSize &size);
    void placeControls();
    void placePad();
    void placeShoulders();
    void placeSticks();
    void placeStick(int left, int top, const std::array<ushort, 5> &codes);
    void placeFaceButtons();
    void placeSystemButtons();

    std::unique_ptr<Ui::GameCtrlUi> m_ui;
    ButtonGroupEx *m_group;
    PanelPicture m_picture;
    QSize m_pictureSize;
    QPoint m_topLeft; ///< of the picture
    QPoint m_center;  ///< of the panel
    bool m_padMode = false;
};
