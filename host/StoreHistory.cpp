#include "host/StoreHistory.h"

#include <QDataStream>

#include <algorithm>

namespace {

constexpr auto StreamVersion = QDataStream::Qt_5_12;

void write(QDataStream &stream, const ChangeSet &changes)
{
    stream << quint32(changes.size());
    for (const auto &[id, change] : changes) {
        stream << QByteArray(tableName(id.table)) << id.owner << id.profile << id.index << id.name
               << change.before << change.after;
    }
}

void read(QDataStream &stream, ChangeSet *changes)
{
    quint32 count = 0;
    stream >> count;
    for (quint32 i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
        QByteArray table;
        RecordId id;
        RecordChange change;
        stream >> table >> id.owner >> id.profile >> id.index >> id.name >> change.before >>
            change.after;
        if (stream.status() == QDataStream::Ok &&
            tableOfName(QString::fromLatin1(table), &id.table))
            changes->emplace(id, change);
    }
}

QByteArray pack(const StoreHistory::Body &body)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(StreamVersion);
    write(stream, body.lead);
    write(stream, body.changes);
    return qCompress(bytes, 1);
}

ChangeSet reversed(const ChangeSet &changes)
{
    ChangeSet result;
    for (const auto &[id, change] : changes)
        result.emplace(id, RecordChange{change.after, change.before});
    return result;
}

void addChanges(ChangeSet &changes, const ChangeSet &more)
{
    for (const auto &[id, change] : more)
        addChange(changes, id, change);
}

bool hasContent(const ChangeSet &changes)
{
    return std::any_of(changes.begin(), changes.end(), [](const auto &row) {
        return kindOf(row.first.table) == StoreKind::Content;
    });
}

} // namespace

void StoreHistory::record(const RecordId &id, const RecordChange &change)
{
    const StoreKind kind = kindOf(id.table);
    if (kind == StoreKind::Outside)
        return;
    m_hasContent |= kind == StoreKind::Content;
    addChange(m_hasContent ? m_turn : m_drift, id, change);
}

void StoreHistory::closeStep(const QString &name, bool merge)
{
    m_hasContent = false;
    if (!hasContent(m_turn)) {
        addChanges(m_drift, m_turn);
        m_turn.clear();
        return;
    }
    dropRedo();
    Body body{m_drift, m_turn};
    if (merge && canUndo()) {
        body = takeLast();
        addChanges(body.changes, m_turn);
    }
    m_turn.clear();
    m_drift.clear();
    push(name, body);
}

StoreHistory::Body StoreHistory::takeLast()
{
    const StoreStep last = m_steps.back();
    m_steps.pop_back();
    --m_position;
    m_changed.insert(last.id);
    return unpack(last.body);
}

void StoreHistory::push(const QString &name, const Body &body)
{
    if (!hasContent(body.changes)) {
        // a step that a later one took back leaves nothing to undo
        m_drift = body.lead;
        addChanges(m_drift, body.changes);
        return;
    }
    const qint64 id = m_steps.empty() ? 1 : m_steps.back().id + 1;
    m_steps.push_back({id, name, pack(body)});
    m_changed.insert(id);
    m_position = int(m_steps.size());
    trim();
}

void StoreHistory::dropRedo()
{
    while (canRedo()) {
        m_changed.insert(m_steps.back().id);
        m_steps.pop_back();
    }
}

void StoreHistory::trim()
{
    while (int(m_steps.size()) > m_limit) {
        m_changed.insert(m_steps.front().id);
        m_steps.pop_front();
        --m_position;
    }
}

const StoreStep *StoreHistory::directPredecessor() const
{
    return m_drift.empty() && canUndo() && !canRedo() ? &m_steps.back() : nullptr;
}

std::vector<ChangeSet> StoreHistory::undo(ChangeSet *touched)
{
    const Body body = unpack(m_steps[std::size_t(m_position - 1)].body);
    std::vector<ChangeSet> writes = {reversed(m_drift), reversed(body.changes)};
    *touched = body.changes;
    // what stands before the step is still in force, so it is now what came after the step before
    m_drift = body.lead;
    --m_position;
    return writes;
}

std::vector<ChangeSet> StoreHistory::redo(ChangeSet *touched)
{
    const Body body = unpack(m_steps[std::size_t(m_position)].body);
    std::vector<ChangeSet> writes = {reversed(m_drift), body.lead, body.changes};
    *touched = body.changes;
    m_drift.clear();
    ++m_position;
    return writes;
}

StoreHistory::Body StoreHistory::unpack(const QByteArray &bytes)
{
    Body body;
    if (bytes.isEmpty())
        return body;
    QDataStream stream(qUncompress(bytes));
    stream.setVersion(StreamVersion);
    read(stream, &body.lead);
    read(stream, &body.changes);
    return body;
}

const StoreStep *StoreHistory::step(qint64 id) const
{
    const auto found =
        std::lower_bound(m_steps.begin(), m_steps.end(), id,
                         [](const StoreStep &step, qint64 wanted) { return step.id < wanted; });
    return found != m_steps.end() && found->id == id ? &*found : nullptr;
}

QByteArray StoreHistory::packedDrift() const
{
    return pack({m_drift, {}});
}

void StoreHistory::markAllChanged()
{
    for (const StoreStep &step : m_steps)
        m_changed.insert(step.id);
}

void StoreHistory::restore(std::deque<StoreStep> steps, int position, const QByteArray &drift)
{
    m_steps = std::move(steps);
    m_position = std::clamp(position, 0, int(m_steps.size()));
    m_drift = unpack(drift).lead;
    m_turn.clear();
    m_changed.clear();
    m_hasContent = false;
}
