#include "host/ProfileStore.h"

#include "host/StepName.h"
#include "host/StoreKeeper.h"

#include <QThread>

#include <algorithm>

/// Marks what is changed meanwhile as changed by the host, not by the page.
class ProfileStore::Replacing
{
public:
    explicit Replacing(ProfileStore *store) : m_store(store) { ++m_store->m_replacing; }
    ~Replacing() { --m_store->m_replacing; }
    Replacing(const Replacing &) = delete;
    Replacing &operator=(const Replacing &) = delete;

private:
    ProfileStore *m_store;
};

namespace {

constexpr int RetryMs = 2000;
constexpr int NestedTurnMs = 50;

QString macroAssignLimitKey()
{
    return QStringLiteral("macroAssignLimit");
}

} // namespace

ProfileStore::ProfileStore(const QString &fileName, QObject *parent)
    : QObject(parent), m_keeper(std::make_unique<StoreKeeper>(fileName))
{
    take(m_keeper->open());
    m_retry.setInterval(RetryMs);
    connect(&m_retry, &QTimer::timeout, this, [this] {
        if (m_stepDepth == 0 && !m_turnScheduled) // else the end of the step or turn saves
            save();
    });
    m_wasSaved = m_keeper->isSaved();
    if (!m_wasSaved)
        m_retry.start();
    tellMessages();
}

ProfileStore::~ProfileStore()
{
    m_stepDepth = 0;
    const QSignalBlocker silence(this);
    if (flush())
        m_keeper->close(m_state, m_history);
}

void ProfileStore::take(StoreContent content)
{
    m_state = std::move(content.state);
    m_history.restore(std::move(content.steps), content.position, content.drift);
    readPaths();
}

void ProfileStore::readPaths()
{
    const std::lock_guard lock(m_pathMutex);
    m_paths.clear();
    for (const auto &[id, bytes] : m_state.records()) {
        if (id.table == StoreTable::AppPath)
            m_paths[id.index] = QString::fromUtf8(bytes);
    }
}

/// Shows what is on disk in place of what there is in memory, but for settings that were made.
void ProfileStore::replaceAll(StoreContent content)
{
    const Replacing replacing(this);
    const StoreState before = m_state;
    const std::set<RecordId> unsaved = std::exchange(m_unsaved, {});
    take(std::move(content));
    for (const RecordId &id : unsaved) {
        if (id.table == StoreTable::Setting || id.table == StoreTable::AppPath)
            put(id, before.record(id));
    }
    readPaths();
    for (const StoreState &state : {before, m_state}) {
        for (const auto &row : state.records())
            note(row.first);
    }
    m_news.steps = true;
    scheduleTurnEnd();
}

// ---- the one place where something changes ----

void ProfileStore::change(const RecordId &id, const QByteArray &bytes)
{
    const QByteArray before = m_state.record(id);
    const QByteArray after = StoreState::canonical(id, bytes);
    if (before == after)
        return;
    put(id, after);
    m_history.record(id, {before, after});
}

void ProfileStore::put(const RecordId &id, const QByteArray &bytes)
{
    m_state.setRecord(id, bytes);
    m_unsaved.insert(id);
    note(id);
    scheduleTurnEnd();
}

void ProfileStore::note(const RecordId &id)
{
    const Scope scope(id.owner, id.profile);
    switch (id.table) {
    case StoreTable::AppPath:
        m_news.settings.insert(QStringLiteral("appPath"));
        return;
    case StoreTable::Setting:
        m_news.settings.insert(id.name);
        return;
    case StoreTable::Presso:
        m_news.presso = true;
        return;
    case StoreTable::ProfileName:
    case StoreTable::ProfileOrder:
        m_news.lists.insert(id.owner);
        return;
    case StoreTable::Macro:
    case StoreTable::MacroOrder:
        m_news.macros.insert(id.owner);
        return;
    case StoreTable::DeviceImage:
    case StoreTable::DeviceSetting:
        m_news.device = true;
        return;
    default:
        break;
    }
    if (kindOf(id.table) == StoreKind::View) {
        m_news.views.insert(scope);
        return;
    }
    m_news.profiles.insert(scope);
    if (m_replacing > 0)
        m_news.replaced.insert(scope);
}

// ---- turns and steps ----

void ProfileStore::scheduleTurnEnd()
{
    if (m_turnScheduled)
        return;
    m_turnScheduled = true;
    m_turnLevel = std::max(1, thread()->loopLevel());
    QMetaObject::invokeMethod(this, &ProfileStore::onTurnEnd, Qt::QueuedConnection);
}

void ProfileStore::onTurnEnd()
{
    if (!m_turnScheduled)
        return;
    // a dialog runs inside the turn: the slot that opened it may have more to write
    if (thread()->loopLevel() > m_turnLevel)
        QTimer::singleShot(NestedTurnMs, this, &ProfileStore::onTurnEnd);
    else
        flush();
}

bool ProfileStore::flush()
{
    takeOverPaths();
    m_turnScheduled = false;
    if (m_stepDepth > 0)
        return false;
    closeStep();
    const bool isUpToDate =
        m_unsaved.empty() && m_history.changedSteps().empty() && !m_keeper->isMissing();
    const bool saved = isUpToDate ? isSaved() : save();
    emitChanges();
    return saved;
}

void ProfileStore::closeStep()
{
    if (m_history.hasOpenChanges()) {
        const ChangeSet &changes = m_history.openChanges();
        const StoreStep *before = m_history.directPredecessor();
        const bool merge =
            m_stepName.isEmpty() && before &&
            StepName::isSameDepth(StoreHistory::unpack(before->body).changes, changes);
        const QString name =
            m_stepName.isEmpty() ? StepName::of(changes, m_state, m_preset) : m_stepName;
        m_history.closeStep(name, merge);
        m_news.steps = true;
    }
    m_preset = -1;
    m_presetTurn = false;
}

void ProfileStore::beginStep(const QString &name)
{
    if (m_stepDepth++ > 0)
        return;
    closeStep();
    m_stepName = name;
}

void ProfileStore::endStep()
{
    if (m_stepDepth == 0 || --m_stepDepth > 0)
        return;
    closeStep();
    m_stepName.clear();
    scheduleTurnEnd();
}

bool ProfileStore::canUndo() const
{
    return m_stepDepth == 0 && (m_history.canUndo() || m_history.hasOpenChanges());
}

bool ProfileStore::canRedo() const
{
    return m_stepDepth == 0 && m_history.canRedo() && !m_history.hasOpenChanges();
}

std::optional<StepOutcome> ProfileStore::undo()
{
    if (m_stepDepth == 0)
        closeStep();
    return travelTo(stepPosition() - 1);
}

std::optional<StepOutcome> ProfileStore::redo()
{
    if (m_stepDepth == 0)
        closeStep();
    return travelTo(stepPosition() + 1);
}

std::optional<StepOutcome> ProfileStore::travelTo(int position)
{
    if (m_stepDepth == 0)
        closeStep();
    const bool isForth = position > stepPosition();
    std::optional<StepOutcome> outcome;
    while (position != stepPosition() && (isForth ? canRedo() : canUndo())) {
        StepOutcome next = takeStep(isForth);
        if (outcome) {
            next.macrosChanged |= outcome->macrosChanged;
            next.pressoChanged |= outcome->pressoChanged;
        }
        outcome = std::move(next);
    }
    if (outcome)
        flush();
    return outcome;
}

StepOutcome ProfileStore::takeStep(bool isForth)
{
    const Replacing replacing(this);
    const int index = isForth ? m_history.position() : m_history.position() - 1;
    const QString name = m_history.steps()[std::size_t(index)].name;
    ChangeSet changes;
    const std::vector<ChangeSet> writes =
        isForth ? m_history.redo(&changes) : m_history.undo(&changes);
    for (const ChangeSet &set : writes) {
        for (const auto &[id, change] : set)
            put(id, change.after);
    }
    m_news.steps = true;
    return outcomeOf(name, changes);
}

StepOutcome ProfileStore::outcomeOf(const QString &name, const ChangeSet &changes) const
{
    StepOutcome outcome;
    outcome.name = name;
    for (const auto &row : changes) {
        const RecordId &id = row.first;
        outcome.macrosChanged |=
            id.table == StoreTable::Macro || id.table == StoreTable::MacroOrder;
        outcome.pressoChanged |= id.table == StoreTable::Presso;
        if (id.table < StoreTable::Mapping || id.table > StoreTable::MacroKey)
            continue;
        if (outcome.profile < 0) {
            outcome.owner = id.owner;
            outcome.profile = id.profile;
        }
        if (id.owner == outcome.owner && id.profile == outcome.profile)
            outcome.keys.insert(id.index);
    }
    if (outcome.profile >= 0)
        outcome.currentKey =
            m_state.number(profileRecord(StoreTable::CurrentKey, outcome.owner, outcome.profile));
    return outcome;
}

QStringList ProfileStore::stepNames() const
{
    QStringList names;
    for (const StoreStep &step : m_history.steps())
        names << step.name;
    return names;
}

int ProfileStore::stepPosition() const
{
    return m_history.position();
}

QString ProfileStore::undoName() const
{
    if (m_history.hasOpenChanges())
        return StepName::of(m_history.openChanges(), m_state, m_preset);
    return m_history.canUndo() ? m_history.steps()[std::size_t(m_history.position() - 1)].name
                               : QString();
}

QString ProfileStore::redoName() const
{
    return canRedo() ? m_history.steps()[std::size_t(m_history.position())].name : QString();
}

void ProfileStore::setStepLimit(int limit)
{
    m_history.setLimit(limit);
}

// ---- saving and telling ----

bool ProfileStore::save()
{
    bool saved = m_keeper->save(m_state, m_history, m_unsaved);
    if (auto found = m_keeper->takeFound()) {
        replaceAll(std::move(*found));
        m_history.markSaved();
        saved = m_unsaved.empty() || m_keeper->save(m_state, m_history, m_unsaved);
    }
    if (saved) {
        m_unsaved.clear();
        m_history.markSaved();
        m_retry.stop();
    } else if (!m_retry.isActive()) {
        m_retry.start();
    }
    if (m_wasSaved != isSaved()) {
        m_wasSaved = isSaved();
        emit savedChanged(m_wasSaved);
    }
    tellMessages();
    return saved;
}

void ProfileStore::tellMessages()
{
    const QStringList messages = m_keeper->takeMessages();
    m_messages += messages;
    for (const QString &text : messages)
        emit message(text);
}

void ProfileStore::emitChanges()
{
    const News news = std::exchange(m_news, News());
    for (const auto &[owner, profile] : news.profiles)
        emit profileChanged(owner, profile);
    for (const int owner : news.macros)
        emit macrosChanged(owner);
    for (const auto &[owner, profile] : news.replaced)
        emit profileReplaced(owner, profile);
    for (const auto &[owner, profile] : news.views)
        emit viewChanged(owner, profile);
    for (const int owner : news.lists)
        emit profileListChanged(owner);
    for (const QString &name : news.settings)
        emit settingChanged(name);
    if (news.presso)
        emit pressoChanged();
    if (news.device)
        emit deviceChanged();
    if (news.steps)
        emit stepsChanged();
}

int ProfileStore::transactionCount() const
{
    return m_keeper->transactionCount();
}

bool ProfileStore::isReadOnly() const
{
    return m_keeper->isSecondReader();
}

bool ProfileStore::isSaved() const
{
    return m_keeper->isSaved();
}

bool ProfileStore::hasUnsavedWork() const
{
    if (isSaved() || isReadOnly())
        return false;
    return m_keeper->isLost() || std::any_of(m_unsaved.begin(), m_unsaved.end(),
                                             [](const RecordId &id) { return isWork(id.table); });
}

void ProfileStore::setPageLimit(int pages)
{
    m_keeper->file().setPageLimit(pages);
}

int ProfileStore::pageCount() const
{
    return m_keeper->file().pageCount();
}

// ---- application paths, from any thread ----

void ProfileStore::getAppPath(int appType, QString &path)
{
    const std::lock_guard lock(m_pathMutex);
    const auto found = m_paths.find(appType);
    path = found == m_paths.end() ? QString() : found->second;
}

void ProfileStore::setAppPath(int appType, const QString &path)
{
    const std::lock_guard lock(m_pathMutex);
    QString &stored = m_paths[appType];
    if (stored == path)
        return;
    stored = path;
    QMetaObject::invokeMethod(this, &ProfileStore::takeOverPaths, Qt::QueuedConnection);
}

bool ProfileStore::hasAppPath(int appType)
{
    QString path;
    getAppPath(appType, path);
    return !path.isEmpty();
}

void ProfileStore::takeOverPaths()
{
    std::map<int, QString> paths;
    {
        const std::lock_guard lock(m_pathMutex);
        paths = m_paths;
    }
    for (const auto &[appType, path] : paths)
        change(storeRecord(StoreTable::AppPath, appType), StoreCodec::text(path));
}

// ---- settings ----

QString ProfileStore::setting(const QString &name, const QString &defaultText) const
{
    const QString text = m_state.text(namedRecord(StoreTable::Setting, name));
    return text.isEmpty() ? defaultText : text;
}

void ProfileStore::setSetting(const QString &name, const QString &text)
{
    change(namedRecord(StoreTable::Setting, name), StoreCodec::text(text));
}

int ProfileStore::macroAssignLimit() const
{
    bool ok = false;
    const int limit = setting(macroAssignLimitKey()).toInt(&ok);
    return ok ? limit : DefaultMacroAssignLimit;
}

void ProfileStore::setMacroAssignLimit(int limit)
{
    setSetting(macroAssignLimitKey(), QString::number(limit));
}

void ProfileStore::setDeviceRecord(const RecordId &id, const QByteArray &bytes)
{
    change(id, bytes);
}

// ---- profiles ----

void ProfileStore::setProfileName(int owner, int profile, const QString &name)
{
    if (isValid(profile))
        change(profileRecord(StoreTable::ProfileName, owner, profile),
               StoreCodec::text(name.trimmed()));
}

void ProfileStore::setProfileOrder(int owner, const std::vector<int> &order)
{
    StoreState whole;
    const RecordId id = profileRecord(StoreTable::ProfileOrder, owner);
    const std::vector<int> natural = whole.profileOrder(owner);
    whole.setRecord(id, StoreCodec::order(order));
    const std::vector<int> complete = whole.profileOrder(owner);
    change(id, complete == natural ? QByteArray() : StoreCodec::order(complete));
}

void ProfileStore::moveProfile(int owner, int from, int to)
{
    std::vector<int> order = m_state.profileOrder(owner);
    if (!isValid(from) || !isValid(to))
        return;
    const int profile = order[std::size_t(from)];
    order.erase(order.begin() + from);
    order.insert(order.begin() + to, profile);
    setProfileOrder(owner, order);
}

void ProfileStore::duplicateProfile(int owner, int from, int to)
{
    if (!isValid(from) || !isValid(to) || from == to)
        return;
    setProfileKeys(owner, to, m_state.keys(owner, from));
    setProfileName(owner, to, tr("%1 COPY").arg(m_state.profileName(owner, from)));
}

void ProfileStore::clearProfile(int owner, int profile)
{
    setProfileKeys(owner, profile, freshKeys());
}

void ProfileStore::setProfileKeys(int owner, int profile, const ProfileKeys &keys)
{
    for (int i = 0; i < KeyCount; ++i)
        setProfileKey(owner, profile, i, keys[std::size_t(i)]);
}

void ProfileStore::setProfileKey(int owner, int profile, int keyIdx, const KeyContent &key)
{
    const Replacing replacing(this);
    for (const auto &[id, bytes] : StoreCodec::keyRecords(owner, profile, keyIdx, key))
        changeKey(id.table, owner, profile, keyIdx, bytes);
}

// ---- macros ----

void ProfileStore::changeMacroNames(int owner, const QStringList &names)
{
    change(profileRecord(StoreTable::MacroOrder, owner), StoreCodec::names(names));
}

bool ProfileStore::addMacro(int owner, const QString &name, const vantrix_macro_record &record)
{
    QStringList names = m_state.macroNames(owner);
    if (name.isEmpty() || names.contains(name))
        return false;
    change(namedRecord(StoreTable::Macro, name, owner), StoreCodec::record(record));
    changeMacroNames(owner, names << name);
    return true;
}

bool ProfileStore::setMacro(int owner, const QString &name, const vantrix_macro_record &record)
{
    if (!m_state.macroNames(owner).contains(name))
        return false;
    change(namedRecord(StoreTable::Macro, name, owner), StoreCodec::record(record));
    return true;
}

bool ProfileStore::renameMacro(int owner, const QString &oldName, const QString &newName)
{
    QStringList names = m_state.macroNames(owner);
    const int place = names.indexOf(oldName);
    if (place < 0 || newName.isEmpty() || names.contains(newName))
        return false;
    for (const auto &[profile, keyIdx] : keysOfMacro(owner, oldName))
        changeKey(StoreTable::MacroKey, owner, profile, keyIdx, StoreCodec::text(newName));
    const RecordId id = namedRecord(StoreTable::Macro, oldName, owner);
    change(namedRecord(StoreTable::Macro, newName, owner), m_state.record(id));
    change(id, QByteArray());
    names[place] = newName;
    changeMacroNames(owner, names);
    return true;
}

bool ProfileStore::removeMacro(int owner, const QString &name)
{
    QStringList names = m_state.macroNames(owner);
    if (!names.removeOne(name))
        return false;
    const Replacing replacing(this);
    for (const auto &[profile, keyIdx] : keysOfMacro(owner, name))
        changeKey(StoreTable::MacroKey, owner, profile, keyIdx, QByteArray());
    change(namedRecord(StoreTable::Macro, name, owner), QByteArray());
    changeMacroNames(owner, names);
    return true;
}

bool ProfileStore::moveMacro(int owner, int from, int to)
{
    QStringList names = m_state.macroNames(owner);
    const int count = int(names.size());
    if (from < 0 || from >= count || to < 0 || to >= count)
        return false;
    names.move(from, to);
    changeMacroNames(owner, names);
    return true;
}

std::pair<QString, bool> ProfileStore::macroPlaying(int owner, const QString &wanted,
                                                    const vantrix_macro_record &record)
{
    vantrix_macro_record macro = record;
    macro.code = 0;
    const auto plays = [&](const QString &name) {
        vantrix_macro_record other = m_state.macro(owner, name).value_or(vantrix_macro_record());
        other.code = 0;
        return other == macro;
    };
    QStringList candidates = m_state.macroNames(owner);
    if (candidates.removeOne(wanted))
        candidates.prepend(wanted);
    const auto same = std::find_if(candidates.begin(), candidates.end(), plays);
    if (same != candidates.end())
        return {*same, false};
    const QString name = freeMacroName(owner, wanted);
    addMacro(owner, name, macro);
    return {name, true};
}

QString ProfileStore::freeMacroName(int owner, const QString &wanted,
                                    const std::optional<vantrix_macro_record> &same) const
{
    const QStringList names = m_state.macroNames(owner);
    const auto isTaken = [&](const QString &name) {
        return names.contains(name) && !(same && m_state.macro(owner, name) == same);
    };
    QString name = wanted;
    for (int number = 2; isTaken(name); ++number)
        name = QStringLiteral("%1 %2").arg(wanted).arg(number);
    return name;
}

std::vector<std::pair<int, int>> ProfileStore::keysOfMacro(int owner, const QString &name) const
{
    std::vector<std::pair<int, int>> keys;
    const QByteArray bytes = StoreCodec::text(name);
    for (const auto &[id, value] : m_state.records()) {
        if (id.table == StoreTable::MacroKey && id.owner == owner && value == bytes)
            keys.emplace_back(id.profile, id.index);
    }
    return keys;
}
