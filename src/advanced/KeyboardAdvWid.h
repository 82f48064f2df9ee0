#pragma once

#include "core/records.h"

#include <QWidget>

/// All functions of a keyboard as six lists, one for each of KeyCategories, folded behind their
/// titles. To the outside it is one list: what it is told goes to all six, what one of them
/// reports leaves from here. Interface thread only.
class KeyboardAdvWid : public QWidget
{
    Q_OBJECT

public:
    explicit KeyboardAdvWid(QWidget *parent = nullptr);

signals:
    /// In: what to search for; see AdvAssignWid::slotSearch.
    void sigSearch(QString strText);
    /// In: the key to show; see AdvAssignWid::slotVantrixKeySelected.
    void sigVantrixKeySelected(vantrix_key_mapping key);
    /// Out: a click; see AdvAssignWid::sigKeyChanged.
    void sigKeyChanged(vantrix_key_mapping key);
};
