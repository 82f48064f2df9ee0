#pragma once

#include <QListWidget>

/// The list of macros: a multi-selection, so that a click toggles an entry, that only a click or
/// Space changes. Drags, searches by typing and "select all" would assign macros by the way.
///
/// The list works on after it has told of a change in the middle of a click, so it tells its panel
/// when it is done: what the panel sets off may take the list away.
class MacroList : public QListWidget
{
    Q_OBJECT

public:
    explicit MacroList(QWidget *parent = nullptr);

    void selectAll() override {}

signals:
    /// What is selected has changed.
    void sigSelectionSettled();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event) const override;

private:
    void settle();

    bool m_isBusy = false;  ///< an event is being worked on
    bool m_isMoved = false; ///< the selection has changed meanwhile
};
