#pragma once

#include "panels/FunctionWid.h"
#include "panels/PanelPicture.h"

#include <memory>

class QLabel;

namespace Ui {
class MouseUi;
}

/// The panel of the mouse: a picture of a mouse with a hot spot for each of its functions, and
/// beside it a cursor in a ring of four segments. No horizontal scrolling, which stands in the
/// mouse list of InputKeyLists for other pickers.
///
/// All geometry follows from the size of the scaled picture. Where the panel is too narrow for its
/// height the ring moves towards the mouse, and then the picture gets smaller, so that every
/// control stays inside the panel.
class MouseWid : public FunctionWid
{
    Q_OBJECT

public:
    explicit MouseWid(QWidget *parent = nullptr);
    ~MouseWid() override;

    QSize minimumSizeHint() const override;

signals:
    /// The user clicked an entry: `type` 0, `code` its device code, 255 when it was unchecked.
    void sigMouseChanged(vantrix_key_mapping key);

protected:
    void resizeEvent(QResizeEvent *event) override;

private slots:
    void slotMouseKeyClicked(QAbstractButton *button);

private:
    QSize fittedPicture() const;
    void placeHotSpots();
    void placeCursor();

    std::unique_ptr<Ui::MouseUi> m_ui;
    PanelPicture m_mouse;
    PanelPicture m_cursor;
    QLabel *m_cursorLab;
    QSize m_pictureSize;
};
