#pragma once

#include "core/records.h"

#include <QWidget>

#include <memory>
#include <vector>

class ButtonGroupEx;
class QAbstractButton;
class SearchGrid;
namespace Ui {
class AdvAssignUi;
}

/// One list of functions to pick from, under a title that folds it: a button for each device code,
/// six rows to a column, at most one of them checked.
///
/// The list says which function is picked and stores nothing. Showing a key never emits. Interface
/// thread only.
class AdvAssignWid : public QWidget
{
    Q_OBJECT

public:
    /// An empty, open list, to be filled with `setKeys`.
    explicit AdvAssignWid(QWidget *parent = nullptr);
    /// A filled list that starts folded.
    AdvAssignWid(QString strTitle, const std::vector<ushort> &lsKeys, QWidget *parent);
    ~AdvAssignWid() override;

    /// Fills the list, once. The title stands on a button, so an ampersand in it is doubled;
    /// `lsKeys` are device codes in the order of display.
    void setKeys(QString strTitle, const std::vector<ushort> &lsKeys);

public slots:
    /// Leaves the buttons visible whose text starts with `strText`. Opens and folds nothing.
    void slotSearch(QString strText);
    /// Checks the function of a key of type 0 if this list has it; nothing for any other key.
    void slotVantrixKeySelected(vantrix_key_mapping key);

signals:
    /// A click: type 0 and the picked code, or 255 when the click unchecked it.
    void sigKeyChanged(vantrix_key_mapping key);

private slots:
    void slotTitleClicked();
    void slotKeyClicked(QAbstractButton *button);

private:
    static QString keyText(ushort code);

    const std::unique_ptr<Ui::AdvAssignUi> m_ui;
    std::unique_ptr<SearchGrid> m_grid;
    ButtonGroupEx *const m_group; ///< ids are device codes
};
