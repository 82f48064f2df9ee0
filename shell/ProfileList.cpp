#include "shell/ProfileList.h"

#include "shell/ProfileDelegate.h"
#include "shell/ShellStyle.h"
#include "shell/WidgetKeys.h"
#include "vocabulary/Common.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

using Role = ProfileDelegate::Role;

constexpr int FullWidth = 240;
constexpr int CompactWidth = 60;

/// Text of a menu entry with a key that the list alone answers to: in other lists and in fields
/// it has a meaning of its own.
QString withKey(const QString &text, int key)
{
    return text + QLatin1Char('\t') + QKeySequence(key).toString(QKeySequence::NativeText);
}

} // namespace

ProfileList::ProfileList(ShellContext &context, QWidget *parent)
    : QWidget(parent), m_context(context), m_heading(new QLabel(tr("PROFILES"), this)),
      m_list(new QListWidget(this)), m_buttons(makeButtons())
{
    setObjectName(QStringLiteral("m_profileList"));
    setStyleSheet(ShellStyle::panelSheet());
    m_list->setObjectName(QStringLiteral("m_profiles"));
    m_list->setAccessibleName(tr("Profiles"));
    m_list->setItemDelegate(new ProfileDelegate(m_list));
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    connect(m_list, &QListWidget::itemDoubleClicked, this, &ProfileList::rename);
    auto *const keys = new WidgetKeys(m_list);
    keys->on(Qt::Key_F2, [this] { rename(); });
    keys->on(Qt::ALT | Qt::Key_Up, [this] { moveUp(); });
    keys->on(Qt::ALT | Qt::Key_Down, [this] { moveDown(); });
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setMouseTracking(true);
    m_list->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_list, &QWidget::customContextMenuRequested, this, [this](const QPoint &place) {
        auto *menu = new QMenu(m_list);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        fillMenu(menu);
        menu->popup(m_list->viewport()->mapToGlobal(place));
    });
    m_heading->setStyleSheet(ShellStyle::headingSheet());
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_heading);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_buttons);
    setCompact(false);
    connectAll();
    refresh();
}

QWidget *ProfileList::makeButtons()
{
    auto *buttons = new QWidget(this);
    auto *layout = new QHBoxLayout(buttons);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    QToolButton *const copy =
        addButton(tr("COPY"), tr("Copy this profile over another one"), "m_duplicateBtn");
    auto *targets = new QMenu(copy);
    connect(targets, &QMenu::aboutToShow, this, [this, targets] { fillTargets(targets); });
    copy->setMenu(targets);
    copy->setPopupMode(QToolButton::InstantPopup);
    QToolButton *const empty =
        addButton(tr("CLEAR"), tr("Take everything off the keys of this profile"), "m_clearBtn");
    QToolButton *const up = addButton(QStringLiteral("▲"), tr("Move up (Alt+Up)"), "m_upBtn");
    QToolButton *const down =
        addButton(QStringLiteral("▼"), tr("Move down (Alt+Down)"), "m_downBtn");
    for (QToolButton *button : {copy, empty, up, down})
        layout->addWidget(button);
    layout->insertStretch(2);
    connect(empty, &QToolButton::clicked, this, &ProfileList::clear);
    connect(up, &QToolButton::clicked, this, &ProfileList::moveUp);
    connect(down, &QToolButton::clicked, this, &ProfileList::moveDown);
    return buttons;
}

void ProfileList::connectAll()
{
    ProfileStore &store = m_context.store();
    connect(m_list, &QListWidget::currentRowChanged, this, &ProfileList::onRowChanged);
    connect(m_list, &QListWidget::itemChanged, this, &ProfileList::onEdited);
    connect(&store, &ProfileStore::profileListChanged, this, &ProfileList::refresh);
    connect(&store, &ProfileStore::profileChanged, this, &ProfileList::refreshProfile);
    connect(&store, &ProfileStore::macrosChanged, this, &ProfileList::refresh);
    connect(&store, &ProfileStore::deviceChanged, this, &ProfileList::refresh);
    connect(&m_context, &ShellContext::profileShown, this, &ProfileList::refresh);
    connect(&m_context, &ShellContext::keysMarked, this,
            [this](const std::set<std::pair<int, int>> &keys) {
                std::set<int> profiles;
                for (const auto &key : keys)
                    profiles.insert(key.first);
                setMarked(profiles);
            });
}

void ProfileList::setCompact(bool compact)
{
    m_isCompact = compact;
    m_heading->setHidden(compact);
    m_buttons->setHidden(compact);
    m_list->setVerticalScrollBarPolicy(compact ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
    layout()->setContentsMargins(compact ? 4 : 10, 10, compact ? 2 : 6, 10);
    // A desktop with a large font needs more for the buttons.
    m_buttons->ensurePolished();
    const int full = qMax(FullWidth, m_buttons->sizeHint().width() + 16);
    setFixedWidth(compact ? CompactWidth : full);
}

// The height of a row goes by its width.
void ProfileList::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_list->doItemsLayout();
    m_list->scrollToItem(m_list->currentItem());
}

QToolButton *ProfileList::addButton(const QString &text, const QString &tip, const char *name)
{
    auto *button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setText(text);
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

void ProfileList::fillMenu(QMenu *menu)
{
    menu->addAction(withKey(tr("&Rename..."), Qt::Key_F2), this, &ProfileList::rename);
    menu->addAction(tr("&Duplicate"), this, &ProfileList::duplicate,
                    QKeySequence(Qt::CTRL | Qt::Key_D));
    QMenu *const targets = menu->addMenu(tr("Copy &Over"));
    connect(targets, &QMenu::aboutToShow, this, [this, targets] { fillTargets(targets); });
    menu->addAction(tr("&Clear"), this, &ProfileList::clear);
    menu->addSeparator();
    menu->addAction(withKey(tr("Move &Up"), Qt::ALT | Qt::Key_Up), this, &ProfileList::moveUp);
    menu->addAction(withKey(tr("Move Do&wn"), Qt::ALT | Qt::Key_Down), this,
                    &ProfileList::moveDown);
    menu->addSeparator();
    menu->addAction(
        tr("&Next Profile"), this, [this] { showNext(1); },
        QKeySequence(Qt::CTRL | Qt::Key_PageDown));
    menu->addAction(
        tr("&Previous Profile"), this, [this] { showNext(-1); },
        QKeySequence(Qt::CTRL | Qt::Key_PageUp));
}

void ProfileList::setMarked(const std::set<int> &profiles)
{
    m_marked = profiles;
    refresh();
}

void ProfileList::refresh()
{
    const std::vector<int> order = m_context.store().state().profileOrder(m_context.owner());
    m_isFilling = true;
    for (int row = 0; row < int(order.size()); ++row) {
        if (row >= m_list->count()) {
            auto *item = new QListWidgetItem(m_list);
            item->setFlags(item->flags() | Qt::ItemIsEditable);
        }
        m_list->item(row)->setData(Role::ProfileRole, order[std::size_t(row)]);
        refreshRow(m_list->item(row));
    }
    m_list->setCurrentRow(rowOf(m_context.profile()));
    m_isFilling = false;
}

void ProfileList::refreshRow(QListWidgetItem *item)
{
    const int owner = m_context.owner();
    const int profile = item->data(Role::ProfileRole).toInt();
    const SimulatedDevice &device = m_context.device();
    const bool isDirty = device.differs(owner, profile);
    const bool isOnDevice = device.currentOwner() == owner && device.currentProfile() == profile;
    const QString name = m_context.store().state().profileName(owner, profile);
    item->setText(name);
    item->setData(Role::DirtyRole, isDirty);
    item->setData(Role::OnDeviceRole, isOnDevice);
    item->setData(Role::MarkedRole, m_marked.count(profile) > 0);
    QStringList words = {name};
    if (profile == m_context.profile())
        words << tr("shown");
    if (isOnDevice)
        words << tr("the device acts by it");
    if (isDirty)
        words << tr("differs from what the device has");
    const QString state = words.join(QStringLiteral(", "));
    item->setToolTip(Common::PlainTip(state));
    item->setData(Qt::AccessibleTextRole, state);
}

void ProfileList::refreshProfile(int owner, int profile)
{
    const int row = rowOf(profile);
    if (owner != m_context.owner() || row < 0)
        return;
    m_isFilling = true;
    refreshRow(m_list->item(row));
    m_isFilling = false;
}

int ProfileList::rowOf(int profile) const
{
    for (int row = 0; row < m_list->count(); ++row) {
        if (m_list->item(row)->data(Role::ProfileRole).toInt() == profile)
            return row;
    }
    return -1;
}

void ProfileList::onRowChanged(int row)
{
    if (!m_isFilling && row >= 0)
        emit m_context.goTo(m_list->item(row)->data(Role::ProfileRole).toInt(), NoKey);
}

void ProfileList::onEdited(QListWidgetItem *item)
{
    if (m_isFilling)
        return;
    const int profile = item->data(Role::ProfileRole).toInt();
    m_context.store().setProfileName(m_context.owner(), profile, item->text());
    refresh();
}

void ProfileList::rename()
{
    const bool isWidening = m_isCompact;
    if (isWidening)
        emit namesNeeded();
    m_list->setFocus();
    if (isWidening) // there is room for the name once the window is laid out anew
        QTimer::singleShot(0, this, &ProfileList::editName);
    else
        editName();
}

void ProfileList::editName()
{
    m_list->scrollToItem(m_list->currentItem());
    m_list->editItem(m_list->currentItem());
}

bool ProfileList::isUnused(int profile) const
{
    const StoreState &state = m_context.store().state();
    return state.keys(m_context.owner(), profile) == freshKeys() &&
           state.record(profileRecord(StoreTable::ProfileName, m_context.owner(), profile))
               .isEmpty();
}

void ProfileList::duplicate()
{
    std::vector<int> order = m_context.store().state().profileOrder(m_context.owner());
    const int from = m_context.profile();
    std::rotate(order.begin(), std::find(order.begin(), order.end(), from), order.end());
    const auto free = std::find_if(order.begin() + 1, order.end(),
                                   [this](int profile) { return isUnused(profile); });
    if (free == order.end())
        emit m_context.status(tr("All profiles are in use: choose one to copy over."));
    else
        duplicateTo(*free);
}

void ProfileList::duplicateTo(int profile)
{
    ProfileStore &store = m_context.store();
    const int from = m_context.profile();
    const QString name = store.state().profileName(m_context.owner(), from);
    {
        const StoreStepScope step(store, tr("Duplicate %1").arg(name));
        store.duplicateProfile(m_context.owner(), from, profile);
    }
    emit m_context.status(
        tr("%1 was copied to profile %2.").arg(name, QString::number(profile + 1)));
    emit m_context.goTo(profile, NoKey);
}

void ProfileList::fillTargets(QMenu *menu)
{
    menu->clear();
    const StoreState &state = m_context.store().state();
    for (const int profile : state.profileOrder(m_context.owner())) {
        QString text = QStringLiteral("%1  %2")
                           .arg(profile + 1)
                           .arg(state.profileName(m_context.owner(), profile));
        if (isUnused(profile))
            text = tr("%1  (unused)").arg(text);
        QAction *const action = menu->addAction(Common::ButtonText(text), this,
                                                [this, profile] { duplicateTo(profile); });
        action->setEnabled(profile != m_context.profile());
    }
}

void ProfileList::clear()
{
    ProfileStore &store = m_context.store();
    const QString name = store.state().profileName(m_context.owner(), m_context.profile());
    if (store.state().keys(m_context.owner(), m_context.profile()) == freshKeys()) {
        emit m_context.status(tr("%1 has nothing on its keys.").arg(name));
        return;
    }
    {
        const StoreStepScope step(store, tr("Clear %1").arg(name));
        store.clearProfile(m_context.owner(), m_context.profile());
    }
    emit m_context.status(tr("%1 was cleared. Undo brings it back.").arg(name));
}

void ProfileList::move(int step)
{
    const int row = rowOf(m_context.profile());
    if (row + step < 0 || row + step >= m_list->count())
        return;
    ProfileStore &store = m_context.store();
    const QString name = store.state().profileName(m_context.owner(), m_context.profile());
    {
        const StoreStepScope scope(store, tr("Move %1").arg(name));
        store.moveProfile(m_context.owner(), row, row + step);
    }
    refresh();
}

void ProfileList::moveUp()
{
    move(-1);
}

void ProfileList::moveDown()
{
    move(1);
}

void ProfileList::showNext(int step)
{
    const int count = m_list->count();
    m_list->setCurrentRow((rowOf(m_context.profile()) + step + count) % count);
}
