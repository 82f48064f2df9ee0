#pragma once

#include <QString>

#include <vector>

class QAbstractButton;
class QGridLayout;
class QWidget;

/// The searchable grid that all lists of key buttons share: buttons run down a fixed number of
/// rows and then on to the next column. A search leaves exactly those visible whose shown text
/// starts with the searched text, ignoring case, and closes the gaps; the empty text brings all of
/// them back. Hidden buttons keep their old cells, hidden.
///
/// A search touches only buttons whose visibility or cell changes, with `container` hidden
/// meanwhile, so that the layout runs once and not once a button. `container` is the widget that
/// holds the grid, or one above it; nothing in it may have the focus (the search field has it).
/// Whether it was hidden before is kept, so a search opens nothing.
///
/// Owns neither the layout, the container nor the buttons. Buttons must be forgotten (`clear`)
/// before they are destroyed, unless no search follows. Interface thread.
class SearchGrid
{
public:
    /// `rows` is the number of buttons in a column, at least 1.
    SearchGrid(QGridLayout *layout, int rows, QWidget *container);

    /// Adds a button behind all others, at the cell that its position has in the unfiltered list;
    /// a search that stands is not applied to it.
    void append(QAbstractButton *button);
    /// Forgets all buttons; they stay in the layout until they are destroyed.
    void clear();
    /// Filters the buttons; see above.
    void search(const QString &text);

    /// What stands on a button to be read: its text with doubled ampersands taken back.
    static QString shownText(const QAbstractButton *button);

private:
    struct Entry
    {
        QAbstractButton *button;
        int cell; ///< row + rows * column
    };

    void place(Entry &entry, int cell);

    QGridLayout *m_layout;
    int m_rows;
    QWidget *m_container;
    std::vector<Entry> m_entries;
};
