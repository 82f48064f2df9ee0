#include "toolkit/SearchGrid.h"

#include <QAbstractButton>
#include <QGridLayout>

SearchGrid::SearchGrid(QGridLayout *layout, int rows, QWidget *container)
    : m_layout(layout), m_rows(rows), m_container(container)
{
}

void SearchGrid::append(QAbstractButton *button)
{
    m_entries.push_back({button, -1});
    place(m_entries.back(), int(m_entries.size()) - 1);
}

void SearchGrid::clear()
{
    m_entries.clear();
}

void SearchGrid::search(const QString &text)
{
    struct Change
    {
        Entry *entry;
        int cell;
        bool visible;
    };
    std::vector<Change> changes;
    int next = 0;
    for (Entry &entry : m_entries) {
        const bool visible = shownText(entry.button).startsWith(text, Qt::CaseInsensitive);
        const int cell = visible ? next++ : entry.cell;
        if (cell != entry.cell || visible == entry.button->isHidden())
            changes.push_back({&entry, cell, visible});
    }
    if (changes.empty())
        return;

    const bool wasHidden = m_container->isHidden();
    m_container->hide();
    for (const Change &change : changes) {
        if (change.cell != change.entry->cell)
            place(*change.entry, change.cell);
        change.entry->button->setVisible(change.visible);
    }
    m_container->setVisible(!wasHidden);
}

QString SearchGrid::shownText(const QAbstractButton *button)
{
    return button->text().replace(QLatin1String("&&"), QLatin1String("&"));
}

void SearchGrid::place(Entry &entry, int cell)
{
    entry.cell = cell;
    m_layout->addWidget(entry.button, cell % m_rows, cell / m_rows);
}
