#pragma once

#include "core/records.h"

#include <QAbstractTableModel>

#include <vector>

/// The events of one macro as a table: what happens, which key, and how long until the next event.
/// All three can be edited. Every change by the user is told by `edited`; `setEvents` is silent.
class MacroEventModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { ActionColumn, KeyColumn, DelayColumn, ColumnCount };
    using Events = std::vector<vantrix_macro_event>;

    using QAbstractTableModel::QAbstractTableModel;

    static Events eventsOf(const vantrix_macro_record &record);
    /// The record with these events in place of its own; at most 127 of them.
    static vantrix_macro_record withEvents(vantrix_macro_record record, const Events &events);
    /// Device codes that an event may have, in the order of a list to choose from.
    static const std::vector<ushort> &codes();
    /// Name of a code that no other of `codes` has.
    static QString keyName(ushort code);

    void setEvents(const Events &events);
    const Events &events() const { return m_events; }

    /// @name Changes by the user
    /// Rows that do not exist are passed over.
    /// Puts events before a row. False if they do not find room; nothing is changed then.
    bool insertEvents(int row, const Events &events);
    void removeEvents(std::vector<int> rows);
    /// Moves one event by `by` rows; false at the ends.
    bool moveEvent(int row, int by);
    void setAllDelays(int delay);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;

signals:
    /// The user changed events; `what` says it as the name of a step, with "%1" for the macro.
    void edited(const QString &what);

private:
    QVariant display(const vantrix_macro_event &event, int column) const;
    static bool change(vantrix_macro_event &event, int column, int value);

    Events m_events;
};
