#include "shell/MacroEventModel.h"

#include "host/KeyText.h"
#include "shell/MacroRecorder.h"
#include "shell/ShellStyle.h"
#include "vocabulary/KeyCodes.h"

#include <algorithm>
#include <functional>
#include <map>
#include <set>

namespace {

std::vector<ushort> collectCodes()
{
    std::vector<ushort> codes;
    std::set<ushort> seen;
    const auto add = [&](ushort code) {
        if (code != DisabledCode && code != UnassignedCode && seen.insert(code).second)
            codes.push_back(code);
    };
    for (const auto &row : ScanToKeyCode())
        add(row.second);
    std::sort(codes.begin(), codes.end());
    for (const int input : {InputType::Mouse, InputType::Media}) {
        const auto list = InputKeyLists().find(input);
        if (list == InputKeyLists().end())
            continue;
        for (const ushort code : list->second)
            add(code);
    }
    return codes;
}

} // namespace

const std::vector<ushort> &MacroEventModel::codes()
{
    static const std::vector<ushort> all = collectCodes();
    return all;
}

QString MacroEventModel::keyName(ushort code)
{
    const QString name = KeyText::codeName(code);
    for (const ushort other : codes()) {
        if (other == code)
            break;
        if (KeyText::codeName(other) == name)
            return tr("%1 (code %2)").arg(name).arg(code);
    }
    return name;
}

MacroEventModel::Events MacroEventModel::eventsOf(const vantrix_macro_record &record)
{
    const int count = std::min<int>(record.count, vantrix_macro_record::MaxEvents);
    return Events(record.events.begin(), record.events.begin() + count);
}

vantrix_macro_record MacroEventModel::withEvents(vantrix_macro_record record, const Events &events)
{
    const auto count = std::min(events.size(), record.events.size());
    record.events.fill(vantrix_macro_event());
    std::copy_n(events.begin(), count, record.events.begin());
    record.count = quint8(count);
    return record;
}

void MacroEventModel::setEvents(const Events &events)
{
    if (m_events == events)
        return;
    beginResetModel();
    m_events = events;
    endResetModel();
}

// ---- changes by the user ----

bool MacroEventModel::insertEvents(int row, const Events &events)
{
    if (events.empty() || row < 0 || row > rowCount() ||
        m_events.size() + events.size() > std::size_t(vantrix_macro_record::MaxEvents))
        return false;
    beginInsertRows({}, row, row + int(events.size()) - 1);
    m_events.insert(m_events.begin() + row, events.begin(), events.end());
    endInsertRows();
    emit edited(tr("Add events to macro %1"));
    return true;
}

void MacroEventModel::removeEvents(std::vector<int> rows)
{
    std::sort(rows.begin(), rows.end(), std::greater<int>());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    bool isChanged = false;
    for (const int row : rows) {
        if (row < 0 || row >= rowCount())
            continue;
        beginRemoveRows({}, row, row);
        m_events.erase(m_events.begin() + row);
        endRemoveRows();
        isChanged = true;
    }
    if (isChanged)
        emit edited(tr("Delete events of macro %1"));
}

bool MacroEventModel::moveEvent(int row, int by)
{
    const int to = row + by;
    if (row < 0 || row >= rowCount() || to < 0 || to >= rowCount() || by == 0)
        return false;
    beginMoveRows({}, row, row, {}, by > 0 ? to + 1 : to);
    const vantrix_macro_event event = m_events[std::size_t(row)];
    m_events.erase(m_events.begin() + row);
    m_events.insert(m_events.begin() + to, event);
    endMoveRows();
    emit edited(tr("Move an event of macro %1"));
    return true;
}

void MacroEventModel::setAllDelays(int delay)
{
    Events events = m_events;
    for (vantrix_macro_event &event : events)
        event.delay = quint16(std::clamp(delay, 0, MacroRecorder::MaxDelay));
    if (events == m_events)
        return;
    m_events = events;
    emit dataChanged(index(0, DelayColumn), index(rowCount() - 1, DelayColumn));
    emit edited(tr("Change delays of macro %1"));
}

// ---- the table ----

int MacroEventModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_events.size());
}

int MacroEventModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant MacroEventModel::display(const vantrix_macro_event &event, int column) const
{
    switch (column) {
    case ActionColumn:
        return event.state ? tr("\u25BC press") : tr("\u25B2 release");
    case KeyColumn:
        return keyName(event.code);
    default:
        return tr("%1 ms").arg(ushort(event.delay));
    }
}

QVariant MacroEventModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const vantrix_macro_event event = m_events[std::size_t(index.row())];
    if (role == Qt::DisplayRole)
        return display(event, index.column());
    if (role == Qt::EditRole) {
        const int values[] = {event.state, event.code, event.delay};
        return values[index.column()];
    }
    if (role == Qt::ForegroundRole && index.column() == ActionColumn)
        return event.state ? ShellStyle::text() : ShellStyle::dim();
    if (role == Qt::TextAlignmentRole && index.column() == DelayColumn)
        return int(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

QVariant MacroEventModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return {};
    if (orientation == Qt::Vertical)
        return section + 1;
    const QString titles[] = {tr("EVENT"), tr("KEY"), tr("THEN WAIT")};
    return titles[section];
}

Qt::ItemFlags MacroEventModel::flags(const QModelIndex &index) const
{
    return QAbstractTableModel::flags(index) | Qt::ItemIsEditable;
}

bool MacroEventModel::change(vantrix_macro_event &event, int column, int value)
{
    const vantrix_macro_event before = event;
    if (column == ActionColumn)
        event.state = value ? 1 : 0;
    else if (column == KeyColumn)
        event.code = quint16(value);
    else
        event.delay = quint16(std::clamp(value, 0, MacroRecorder::MaxDelay));
    return !(event == before);
}

bool MacroEventModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    bool ok = false;
    const int number = value.toInt(&ok);
    if (role != Qt::EditRole || !index.isValid() || !ok)
        return false;
    if (!change(m_events[std::size_t(index.row())], index.column(), number))
        return true;
    emit dataChanged(index, index);
    emit edited(index.column() == DelayColumn ? tr("Change a delay of macro %1")
                                              : tr("Change an event of macro %1"));
    return true;
}
