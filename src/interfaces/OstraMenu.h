#pragma once

#include "interfaces/VantrixExport.h"

#include <QList>
#include <QPointer>
#include <QWidget>

class OstraAction;

/// A popup menu of entries in columns, some of which open menus of their own. Interface thread
/// only.
///
/// The menu lies over the window that it is shown in, never leaves it, and belongs to that window
/// from its first showing on: whoever made it holds it by QPointer and deletes it. It closes on
/// Escape, on a click elsewhere, and when its window is resized or hidden. Arrow keys move among
/// the entries and open and close their menus; Return and Space choose.
class VANTRIX_EXPORT OstraMenu : public QWidget
{
    Q_OBJECT

public:
    explicit OstraMenu(QWidget *parent = nullptr);

    /// Adds entries in column order; `maxRows` is the most rows of a column, 1 and up. The menu
    /// takes the entries over.
    void addOstraActions(QList<OstraAction *> actions, int maxRows);

    /// Shows the menu over `anchor`'s window with its upper left corner at `globalPos`, pushed
    /// inside the window. A click on `anchor` does not close it, and the focus goes back there.
    void popup(QWidget *anchor, const QPoint &globalPos);
    /// Hides this menu and every menu that its entries have open.
    void hideMenu();
    /// Gives the first entry the focus.
    void focusFirst();

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// An entry of this menu without a menu of its own was chosen.
    void sigActionChanged(ushort id, QString strText);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    friend class OstraAction;

    void moveFocus(int rows, int columns);
    bool isWayBack(int columns) const;
    void closeToAnchor();
    bool holds(const QWidget *widget) const;
    void closeMenusBut(const OstraAction *kept);

    QList<OstraAction *> m_actions;
    QPointer<QWidget> m_anchor;
    int m_maxRows = 1;
};
