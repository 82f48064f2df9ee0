#pragma once

#include "core/records.h"

#include <QPointer>
#include <QRegion>
#include <QWidget>

#include <memory>

class ActionAssignWid;
namespace Ui {
class DualActionUi;
}

/// The simple panel of a dual action: two actions, the activation distance between them, and the
/// overlay on which an action's function is picked.
///
/// It holds the working values of one key and reports each change as a whole record; the board
/// keeps changes pending until the overlay's BACK or APPLY. The simple panel always writes
/// `dualType` 0.
///
/// A second action needs a first. When the overlay is open for action 2 and a key without a dual
/// action is selected through its hole, what is picked becomes that key's first action.
///
/// The overlay is a child of the environment's main widget, held here and deleted with the panel;
/// it may also go first.
class DualActionWid : public QWidget
{
    Q_OBJECT

public:
    explicit DualActionWid(QWidget *parent = nullptr);
    ~DualActionWid() override;

    /// Back to a fresh panel: no codes, no menus, 50 percent, the second action disabled.
    void resetPanel();
    /// Cuts the pad's outline, in the coordinates of the overlay's parent, out of the overlay.
    void setOverlayMask(QRegion keyBoardRegion);

    /// The page's permission to capture keys, as it is when the overlay opens; true until told
    /// otherwise.
    void setCaptureEnabled(bool enabled);

    bool eventFilter(QObject *watched, QEvent *event) override;

public slots:
    /// Shows a dual action; `input1` and `input2` are the InputTypes of its two codes.
    void slotDualActionSelected(int input1, int input2, vantrix_presso_digital key);

signals:
    /// Asks for `setOverlayMask` with a region in coordinates of `mainWid`.
    void sigGetVantrixMask(QWidget *mainWid);
    void sigDualActionDepthChanged(int iDepth);
    /// A record with `digital` filled; a `firstAction` of 0 withdraws the pending change.
    void sigDualActionChanged(vantrix_key_mapping key);
    void sigDualActionBack();
    void sigDualActionApply();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private slots:
    void slotActionAssigned(int actionNo, int inputType, QString strAction);
    void slotDualActionChanged(int actionNo, vantrix_key_mapping key);

private:
    void createOverlay();
    void fitOverlay();
    void askMask();
    void aimOverlay();

    const std::unique_ptr<Ui::DualActionUi> m_ui;
    QPointer<ActionAssignWid> m_overlay;
    int m_openedFor = 1; ///< action that the overlay was last opened for
    bool m_captureEnabled = true;
};
