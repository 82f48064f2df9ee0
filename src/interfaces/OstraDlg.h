#pragma once

#include "interfaces/VantrixExport.h"

#include <QDialog>
#include <QPoint>

/// A modal dialog without a frame, which the user drags by its upper edge. Run it with
/// `Modal::exec`.
class VANTRIX_EXPORT OstraDlg : public QDialog
{
    Q_OBJECT

public:
    explicit OstraDlg(QWidget *parent = nullptr);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    bool m_dragging = false;
    QPoint m_dragOffset;
};
