#include "shell/ChangesPage.h"

#include "host/KeyText.h"
#include "shell/FunctionDelegate.h"
#include "shell/KeyTitle.h"
#include "shell/ShellStyle.h"
#include "vocabulary/Common.h"
#include "vocabulary/KeyCodes.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

constexpr int KeyRole = Qt::UserRole;

void setFunction(QTreeWidgetItem *item, int column, const QString &text, int kind)
{
    item->setText(column, text);
    item->setToolTip(column,
                     Common::PlainTip(QStringLiteral("%1 (%2)").arg(text, inputTypeText(kind))));
    item->setData(column, FunctionDelegate::KindRole, kind);
}

QTreeWidgetItem *newItem(int keyIdx)
{
    auto *item = new QTreeWidgetItem;
    item->setText(0, KeyTitle::withLegend(keyIdx));
    item->setData(0, KeyRole, keyIdx);
    return item;
}

int keyOf(const QTreeWidgetItem *item)
{
    return item->data(0, KeyRole).toInt();
}

} // namespace

ChangesPage::ChangesPage(ShellContext &context, QWidget *parent)
    : QWidget(parent), m_context(context), m_summary(new QLabel(this)),
      m_changes(new QWidget(this)), m_putBack(new QPushButton(tr("PUT BACK"), this)),
      m_putBackAll(new QPushButton(tr("PUT ALL BACK"), this)),
      m_apply(new QPushButton(tr("APPLY"), this)), m_deviceLab(new QLabel(this))
{
    setObjectName(QStringLiteral("m_changesPage"));
    setStyleSheet(ShellStyle::panelSheet());
    m_summary->setObjectName(QStringLiteral("m_changesLab"));
    m_summary->setWordWrap(true);
    m_summary->setTextFormat(Qt::PlainText);
    m_deviceLab->setTextFormat(Qt::PlainText);
    m_putBack->setObjectName(QStringLiteral("m_putBackBtn"));
    m_putBackAll->setObjectName(QStringLiteral("m_putBackAllBtn"));
    m_apply->setObjectName(QStringLiteral("m_applyChangesBtn"));
    m_apply->setStyleSheet(ShellStyle::primarySheet());
    m_deviceLab->setStyleSheet(ShellStyle::headingSheet());
    m_pending = addTree("m_pendingTree", {tr("KEY"), tr("THE DEVICE HAS"), tr("APPLY MAKES IT")});
    m_pending->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_device = addTree("m_deviceTree", {tr("KEY"), tr("FUNCTION")});

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_putBack);
    buttons->addWidget(m_putBackAll);
    buttons->addStretch();
    buttons->addWidget(m_apply);
    auto *changesLayout = new QVBoxLayout(m_changes);
    changesLayout->setContentsMargins(0, 0, 0, 6);
    changesLayout->addWidget(m_pending, 1);
    changesLayout->addLayout(buttons);
    auto *bottom = new QWidget(this);
    auto *bottomLayout = new QVBoxLayout(bottom);
    bottomLayout->setContentsMargins(0, 6, 0, 0);
    bottomLayout->addWidget(m_deviceLab);
    bottomLayout->addWidget(m_device, 1);
    auto *splitter = new QSplitter(Qt::Vertical, this);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(m_changes);
    splitter->addWidget(bottom);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_summary);
    layout->addWidget(splitter, 1);

    connect(m_pending, &QTreeWidget::itemSelectionChanged, this, &ChangesPage::enableButtons);
    connect(m_putBack, &QPushButton::clicked, this, &ChangesPage::putBackSelected);
    connect(m_putBackAll, &QPushButton::clicked, this, &ChangesPage::putBackAll);
    connect(m_apply, &QPushButton::clicked, &context, &ShellContext::applyRequested);
    ProfileStore &store = context.store();
    connect(&store, &ProfileStore::profileChanged, this, &ChangesPage::scheduleRefresh);
    connect(&store, &ProfileStore::macrosChanged, this, &ChangesPage::scheduleRefresh);
    connect(&store, &ProfileStore::deviceChanged, this, &ChangesPage::scheduleRefresh);
    connect(&store, &ProfileStore::profileListChanged, this, &ChangesPage::scheduleRefresh);
    connect(&context, &ShellContext::profileShown, this, &ChangesPage::scheduleRefresh);
}

QTreeWidget *ChangesPage::addTree(const char *name, const QStringList &columns)
{
    auto *tree = new QTreeWidget(this);
    tree->setObjectName(QLatin1String(name));
    tree->setHeaderLabels(columns);
    tree->setAccessibleName(columns.last());
    tree->setRootIsDecorated(false);
    tree->setUniformRowHeights(true);
    tree->setAllColumnsShowFocus(true);
    tree->setItemDelegate(new FunctionDelegate(tree));
    tree->setMinimumHeight(90);
    tree->header()->setStretchLastSection(false);
    tree->header()->setSectionResizeMode(QHeaderView::Stretch);
    tree->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    connect(tree, &QTreeWidget::itemActivated, this, &ChangesPage::onActivated);
    return tree;
}

void ChangesPage::showEvent(QShowEvent *)
{
    refresh();
}

void ChangesPage::scheduleRefresh()
{
    if (m_isScheduled || !isVisible())
        return;
    m_isScheduled = true;
    QTimer::singleShot(0, this, [this] {
        m_isScheduled = false;
        refresh();
    });
}

void ChangesPage::refresh()
{
    const QString name =
        m_context.store().state().profileName(m_context.owner(), m_context.profile());
    fillPending();
    fillDevice();
    const int count = m_pending->topLevelItemCount();
    m_summary->setText(count == 0   ? tr("The device has %1 as it is shown.").arg(name)
                       : count == 1 ? tr("APPLY changes one key of %1:").arg(name)
                                    : tr("APPLY changes %1 keys of %2:").arg(count).arg(name));
    m_deviceLab->setText(tr("ON THE DEVICE: %1").arg(name));
    m_changes->setVisible(count > 0);
    enableButtons();
}

void ChangesPage::fillPending()
{
    std::set<int> selected;
    for (const QTreeWidgetItem *item : m_pending->selectedItems())
        selected.insert(keyOf(item));
    const QSignalBlocker blocker(m_pending);
    m_pending->clear();
    const auto pending = m_context.device().pending(m_context.owner(), m_context.profile());
    for (const DeviceDifference &change : pending) {
        const int key = change.keyIdx;
        QTreeWidgetItem *const item = newItem(key);
        setFunction(item, 1, change.beforeText, KeyText::inputType(key, change.before.content));
        setFunction(item, 2, change.afterText, KeyText::inputType(key, change.after.content));
        m_pending->addTopLevelItem(item);
        item->setSelected(selected.count(key) > 0);
    }
}

void ChangesPage::fillDevice()
{
    const DeviceImage image = m_context.device().image(m_context.owner(), m_context.profile());
    m_device->clear();
    for (int key = 0; key < KeyCount; ++key) {
        const KeyContent &content = image.keys[std::size_t(key)].content;
        QTreeWidgetItem *const item = newItem(key);
        setFunction(item, 1, KeyText::functionName(key, content), KeyText::inputType(key, content));
        m_device->addTopLevelItem(item);
    }
}

void ChangesPage::enableButtons()
{
    const bool hasChanges = m_pending->topLevelItemCount() > 0;
    m_putBack->setEnabled(!m_pending->selectedItems().isEmpty());
    m_putBackAll->setEnabled(hasChanges);
    m_apply->setEnabled(hasChanges);
}

void ChangesPage::putBackSelected()
{
    putBack(m_pending->selectedItems());
}

void ChangesPage::putBackAll()
{
    QList<QTreeWidgetItem *> items;
    for (int row = 0; row < m_pending->topLevelItemCount(); ++row)
        items << m_pending->topLevelItem(row);
    putBack(items);
}

void ChangesPage::putBack(const QList<QTreeWidgetItem *> &items)
{
    if (items.isEmpty())
        return;
    ProfileStore &store = m_context.store();
    const DeviceImage image = m_context.device().image(m_context.owner(), m_context.profile());
    const QString name = items.size() == 1 ? tr("Put back key %1").arg(keyOf(items.first()))
                                           : tr("Put back %1 keys").arg(items.size());
    QStringList macros;
    {
        const StoreStepScope step(store, name);
        for (const QTreeWidgetItem *item : items)
            macros << image.putBack(keyOf(item), store);
        macros.removeAll(QString());
        for (const QString &macro : qAsConst(macros))
            emit m_context.macroAdded(macro);
    }
    store.flush(); // what it says of the step is not the last word
    if (!macros.isEmpty())
        emit m_context.status(
            tr("Back from the device, as a macro: %1").arg(macros.join(tr(", "))));
}

void ChangesPage::onActivated(const QTreeWidgetItem *item)
{
    emit m_context.goTo(m_context.profile(), keyOf(item));
}
