#pragma once

#include "interfaces/VantrixExport.h"

#include <QList>
#include <QWidget>

class OstraAction;

/// A popup menu of entries in columns, some of which open menus of their own.
class VANTRIX_EXPORT OstraMenu : public QWidget
{
    Q_OBJECT

public:
    explicit OstraMenu(QWidget *parent = nullptr);

    /// Adds entries, at most `maxRows` to a column. The menu takes them over.
    void addOstraActions(QList<OstraAction *> actions, int maxRows);
    /// Hides this menu and every menu that its entries have open.
    void hideMenu();

signals:
    /// An entry without a menu of its own was chosen, here or in a menu below.
    void sigActionChanged(ushort id, QString strText);
};
