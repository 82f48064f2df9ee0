#include "shell/DeviceView.h"

#include "host/KeyText.h"
#include "shell/DepthSlider.h"
#include "shell/KeyTitle.h"
#include "shell/MainWindow.h"
#include "shell/PadView.h"
#include "shell/ShellStyle.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTreeWidget>

namespace {

constexpr int WideEnough = 640; ///< for pad and log side by side
constexpr int LeastEventWidth = 120;
enum LogColumn { KeyColumn, DepthColumn, EventColumn, CodeColumn };

} // namespace

DeviceView::DeviceView(ShellContext &context, QWidget *parent) : QWidget(parent), m_context(context)
{
    setObjectName(QStringLiteral("m_deviceView"));
    setStyleSheet(ShellStyle::panelSheet());
    m_columns = new QBoxLayout(QBoxLayout::TopToBottom, this);
    m_columns->addWidget(makePad(), 3);
    m_columns->addWidget(makeLog(), 2);
    const ProfileStore &store = context.store();
    connect(&store, &ProfileStore::deviceChanged, this, &DeviceView::onChanged);
    connect(&store, &ProfileStore::profileListChanged, this, &DeviceView::onChanged);
    connect(&store, &ProfileStore::profileChanged, this, &DeviceView::onChanged);
    connect(&store, &ProfileStore::macrosChanged, this, &DeviceView::onChanged);
    connect(&store, &ProfileStore::pressoChanged, this, &DeviceView::onChanged);
    connect(&context, &ShellContext::profileShown, this, &DeviceView::onChanged);
    connect(&store, &ProfileStore::viewChanged, this, &DeviceView::followSelection);
    // after the environment has taken over another language
    connect(&store, &ProfileStore::settingChanged, this, &DeviceView::onChanged,
            Qt::QueuedConnection);
    refresh();
    chooseKey(0);
}

QWidget *DeviceView::makePad()
{
    auto *const box = new QWidget(this);
    auto *const layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *const head = new QHBoxLayout;
    auto *const title = new QLabel(tr("ACTS BY"), box);
    title->setStyleSheet(ShellStyle::headingSheet());
    m_profile = new QComboBox(box);
    m_profile->setObjectName(QStringLiteral("m_profile"));
    m_profile->setAccessibleName(tr("Profile that the device acts by"));
    m_profile->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_profile->setMinimumContentsLength(12);
    head->addWidget(title);
    head->addWidget(m_profile, 1);
    layout->addLayout(head);
    m_pending = new QLabel(box);
    m_pending->setTextFormat(Qt::PlainText);
    m_pending->setObjectName(QStringLiteral("m_pending"));
    m_pending->setWordWrap(true);
    layout->addWidget(m_pending);

    m_pad = new PadView(box);
    m_pad->setObjectName(QStringLiteral("m_pad"));
    m_pad->setPressable(true);
    m_depth = new DepthSlider(box);
    m_depth->setObjectName(QStringLiteral("m_depth"));
    m_depth->setAccessibleName(tr("Depth of the chosen key in percent"));
    m_depthText = new QLabel(box);
    m_depthText->setObjectName(QStringLiteral("m_depthText"));
    m_depthText->setAlignment(Qt::AlignCenter);
    m_depthText->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("100 %")));
    auto *const travel = new QVBoxLayout;
    travel->addWidget(m_depth, 1, Qt::AlignHCenter);
    travel->addWidget(m_depthText);
    auto *const row = new QHBoxLayout;
    row->addWidget(m_pad, 1);
    row->addLayout(travel);
    layout->addLayout(row, 1);
    m_keyText = new QLabel(box);
    m_keyText->setTextFormat(Qt::PlainText);
    m_keyText->setObjectName(QStringLiteral("m_keyText"));
    m_keyText->setWordWrap(true);
    layout->addWidget(m_keyText);

    connect(m_profile, QOverload<int>::of(&QComboBox::activated), this, &DeviceView::chooseProfile);
    connect(m_pad, &PadView::currentKeyChanged, this, &DeviceView::chooseKey);
    connect(m_pad, &PadView::depthRequested, this, &DeviceView::setDepth);
    connect(m_depth, &QSlider::valueChanged, this,
            [this](int percent) { setDepth(m_pad->currentKey(), percent); });
    return box;
}

QWidget *DeviceView::makeLog()
{
    auto *const box = new QWidget(this);
    auto *const layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *const head = new QHBoxLayout;
    auto *const title = new QLabel(tr("WHAT THE DEVICE SENDS"), box);
    title->setStyleSheet(ShellStyle::headingSheet());
    title->setWordWrap(true);
    head->addWidget(title, 1);
    auto *const release = new QPushButton(tr("LET GO"), box);
    release->setObjectName(QStringLiteral("m_releaseBtn"));
    release->setToolTip(tr("All keys come up"));
    auto *const clear = new QPushButton(tr("CLEAR"), box);
    clear->setObjectName(QStringLiteral("m_clearBtn"));
    head->addWidget(release);
    head->addWidget(clear);
    layout->addLayout(head);
    m_log = new QTreeWidget(box);
    m_log->setObjectName(QStringLiteral("m_log"));
    m_log->setAccessibleName(title->text());
    m_log->setHeaderLabels({tr("KEY"), tr("DEPTH"), tr("EVENT"), tr("CODE")});
    m_log->setRootIsDecorated(false);
    m_log->setUniformRowHeights(true);
    m_log->setMinimumHeight(100);
    m_log->header()->setStretchLastSection(false);
    // widths that follow a thousand rows would be measured anew with each event
    const QFontMetrics metrics = fontMetrics();
    m_log->header()->setSectionResizeMode(QHeaderView::Interactive);
    m_log->header()->resizeSection(KeyColumn, metrics.horizontalAdvance(KeyTitle::of(28)) + 22);
    m_log->header()->resizeSection(DepthColumn, metrics.horizontalAdvance(tr("DEPTH")) + 22);
    m_log->header()->resizeSection(CodeColumn, metrics.horizontalAdvance(tr("CODE")) + 22);
    m_log->header()->setSectionResizeMode(EventColumn, QHeaderView::Stretch);
    int width = LeastEventWidth;
    for (const int column : {KeyColumn, DepthColumn, CodeColumn})
        width += m_log->header()->sectionSize(column);
    m_log->setMinimumWidth(width);
    layout->addWidget(m_log, 1);
    connect(release, &QPushButton::clicked, this, &DeviceView::releaseAll);
    connect(clear, &QPushButton::clicked, m_log, &QTreeWidget::clear);
    return box;
}

void DeviceView::onChanged()
{
    if (isVisible())
        refresh();
}

/// The key that is selected on the mapping page is the one to try.
void DeviceView::followSelection()
{
    const int key = m_context.store().getCurrentKey(m_context.owner(), m_context.profile());
    if (isVisible() && isValidKey(key))
        chooseKey(key);
}

void DeviceView::showEvent(QShowEvent *event)
{
    refresh();
    followSelection();
    QWidget::showEvent(event);
}

void DeviceView::refresh()
{
    const QSignalBlocker blocker(m_profile);
    ProfileStore &store = m_context.store();
    const SimulatedDevice &device = m_context.device();
    const int owner = device.currentOwner();
    const int profile = device.currentProfile();
    m_profile->clear();
    for (const int number : store.state().profileOrder(owner))
        m_profile->addItem(store.state().profileName(owner, number), number);
    m_profile->setCurrentIndex(m_profile->findData(profile));

    const DeviceImage image = device.image(owner, profile);
    for (std::size_t i = 0; i < m_keys.size(); ++i)
        m_keys[i] = image.keys[i].content;
    m_pad->setKeys(padKeys(m_keys));
    const auto pending = int(device.pending(owner, profile).size());
    if (pending == 0)
        m_pending->setText(tr("It has what the profile holds."));
    else if (profile != m_context.profile()) // APPLY would send another one
        m_pending->setText(
            MainWindow::tr("Not on the device yet: %1.").arg(m_profile->currentText()));
    else if (pending == 1)
        m_pending->setText(tr("One key differs from the profile; APPLY sends it."));
    else
        m_pending->setText(tr("%1 keys differ from the profile; APPLY sends them.").arg(pending));
    const QColor colour = pending == 0 ? ShellStyle::dim() : ShellStyle::warning();
    const QString sheet = QStringLiteral("color:%1;").arg(colour.name());
    if (m_pending->styleSheet() != sheet)
        m_pending->setStyleSheet(sheet);
    chooseKey(m_pad->currentKey());
}

void DeviceView::chooseProfile(int row)
{
    releaseAll();
    m_context.device().setCurrentProfile(m_context.device().currentOwner(),
                                         m_profile->itemData(row).toInt());
    refresh();
}

void DeviceView::chooseKey(int keyIdx)
{
    const bool isKey = isValidKey(keyIdx);
    const QSignalBlocker blocker(m_depth);
    m_pad->setCurrentKey(keyIdx);
    m_depth->setEnabled(isKey);
    const int percent = m_context.device().keyDepth(keyIdx);
    m_depth->setValue(percent);
    m_depthText->setText(tr("%1 %").arg(percent));
    m_depth->setEdges(isKey ? m_context.device().edges(m_keys[std::size_t(keyIdx)])
                            : std::vector<int>{SimulatedDevice::PressDepth});
    m_keyText->setText(isKey ? m_pad->keys()[std::size_t(keyIdx)].description
                             : tr("Press a key of the pad."));
}

void DeviceView::setDepth(int keyIdx, int percent)
{
    const std::vector<DeviceEvent> events = m_context.device().setKeyDepth(keyIdx, percent);
    m_pad->setDepth(keyIdx, percent);
    log(keyIdx, percent, events);
    if (keyIdx == m_pad->currentKey())
        chooseKey(keyIdx);
}

QString DeviceView::eventText(const DeviceEvent &event) const
{
    switch (event.type) {
    case DeviceEvent::Press:
        return tr("\u25BC press %1").arg(KeyText::codeName(ushort(event.value)));
    case DeviceEvent::Release:
        return tr("\u25B2 release %1").arg(KeyText::codeName(ushort(event.value)));
    case DeviceEvent::Delay:
        return tr("wait %1 ms").arg(event.value);
    default:
        return tr("switch to %1")
            .arg(m_context.store().state().profileName(m_context.device().currentOwner(),
                                                       event.value));
    }
}

void DeviceView::log(int keyIdx, int percent, const std::vector<DeviceEvent> &events)
{
    if (events.empty())
        return;
    QList<QTreeWidgetItem *> rows;
    for (const DeviceEvent &event : events) {
        const bool isCode = event.type <= DeviceEvent::Release;
        auto *const row = new QTreeWidgetItem({rows.isEmpty() ? KeyTitle::of(keyIdx) : QString(),
                                               rows.isEmpty() ? tr("%1 %").arg(percent) : QString(),
                                               eventText(event),
                                               isCode ? QString::number(event.value) : QString()});
        if (event.type != DeviceEvent::Press)
            row->setForeground(EventColumn, ShellStyle::dim());
        row->setForeground(CodeColumn, ShellStyle::dim());
        row->setTextAlignment(DepthColumn, Qt::AlignRight);
        row->setTextAlignment(CodeColumn, Qt::AlignRight);
        rows << row;
    }
    m_log->addTopLevelItems(rows);
    while (m_log->topLevelItemCount() > LogLimit)
        delete m_log->takeTopLevelItem(0);
    m_log->scrollToBottom();
}

void DeviceView::releaseAll()
{
    for (int i = 0; i < KeyCount; ++i) {
        if (m_context.device().keyDepth(i) > 0)
            setDepth(i, 0);
    }
}

void DeviceView::resizeEvent(QResizeEvent *event)
{
    const bool isWide = width() >= WideEnough;
    m_columns->setDirection(isWide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    QWidget::resizeEvent(event);
}

void DeviceView::hideEvent(QHideEvent *event)
{
    releaseAll();
    QWidget::hideEvent(event);
}
