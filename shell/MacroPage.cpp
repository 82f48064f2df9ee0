#include "shell/MacroPage.h"

#include "shell/FlowLayout.h"
#include "shell/KeyCombo.h"
#include "shell/KeyTitle.h"
#include "shell/MacroEventDelegate.h"
#include "shell/MacroEventModel.h"
#include "shell/ShellStyle.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTableView>
#include <QTreeWidget>

namespace {

constexpr int WideEnough = 700; ///< for list and events side by side
constexpr int StandardDelay = 20;
constexpr int RowHeight = 26;
enum ListColumn { NumberColumn, NameColumn, EventsColumn, KeysColumn };
enum NewEvent { PressAndRelease, Press, Release };
constexpr int NameRole = Qt::UserRole;

} // namespace

MacroPage::MacroPage(ShellContext &context, QWidget *parent)
    : QWidget(parent), m_context(context), m_recorder(new MacroRecorder(this)),
      m_model(new MacroEventModel(this))
{
    setObjectName(QStringLiteral("m_macroPage"));
    setStyleSheet(ShellStyle::panelSheet());
    auto *const outer = new QVBoxLayout(this);
    m_backBtn = button(this, "m_backBtn", tr("BACK TO THE KEYS"), &MacroPage::goBack);
    m_backBtn->hide();
    outer->addWidget(m_backBtn, 0, Qt::AlignLeft);
    m_columns = new QBoxLayout(QBoxLayout::TopToBottom);
    m_columns->addWidget(makeList(), 2);
    m_columns->addWidget(makeEditor(), 3);
    outer->addLayout(m_columns, 1);

    connectRecorder();
    connect(m_model, &MacroEventModel::edited, this, &MacroPage::storeEvents);
    connect(&context.store(), &ProfileStore::macrosChanged, this, &MacroPage::refresh);
    connect(&context.store(), &ProfileStore::profileChanged, this, [this] {
        refreshList();
        refreshUses();
    });
    connect(&context.store(), &ProfileStore::profileListChanged, this, &MacroPage::refreshUses);
    // after the environment has taken over another language
    connect(&context.store(), &ProfileStore::settingChanged, this, &MacroPage::renameKeys,
            Qt::QueuedConnection);
    connect(&context, &ShellContext::newMacroRequested, this, &MacroPage::beginForKey);
    refresh();
}

MacroPage::~MacroPage()
{
    // a name that is being edited would still be taken over while the widgets go
    m_macroList->disconnect(this);
    m_recorder->disconnect(this);
}

void MacroPage::connectRecorder()
{
    connect(m_recorder, &MacroRecorder::recorded, this, &MacroPage::onRecorded);
    connect(m_recorder, &MacroRecorder::stopped, this, &MacroPage::onRecordingStopped);
    connect(m_recorder, &MacroRecorder::refused, this, &MacroPage::say);
}

void MacroPage::setClock(MacroRecorder::Clock clock)
{
    delete m_recorder;
    m_recorder = new MacroRecorder(this, std::move(clock));
    connectRecorder();
}

// ---- building ----

QPushButton *MacroPage::button(QWidget *parent, const char *name, const QString &text, Command slot)
{
    auto *const made = new QPushButton(text, parent);
    made->setObjectName(QLatin1String(name));
    connect(made, &QPushButton::clicked, this, slot);
    return made;
}

QWidget *MacroPage::makeList()
{
    auto *const box = new QWidget(this);
    auto *const layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *const buttons = new QWidget(box);
    auto *const row = new FlowLayout(buttons);
    row->addWidget(button(buttons, "m_newBtn", tr("NEW"), &MacroPage::addMacro));
    m_duplicateBtn = button(buttons, "m_duplicateBtn", tr("COPY"), &MacroPage::duplicateMacro);
    m_duplicateBtn->setToolTip(tr("Make another macro with the same events"));
    m_renameBtn = button(buttons, "m_renameBtn", tr("RENAME"), &MacroPage::renameMacro);
    m_deleteBtn = button(buttons, "m_deleteBtn", tr("DELETE"), &MacroPage::deleteMacro);
    for (QPushButton *const made : {m_duplicateBtn, m_renameBtn, m_deleteBtn})
        row->addWidget(made);
    layout->addWidget(buttons);

    m_macroList = new QTreeWidget(box);
    m_macroList->setObjectName(QStringLiteral("m_macroList"));
    m_macroList->setAccessibleName(tr("Macros"));
    m_macroList->setHeaderLabels({tr("NO."), tr("NAME"), tr("EVENTS"), tr("KEYS")});
    m_macroList->setRootIsDecorated(false);
    m_macroList->setUniformRowHeights(true);
    m_macroList->setMinimumHeight(90);
    m_macroList->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    m_macroList->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_macroList->header()->setStretchLastSection(false);
    m_macroList->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_macroList->header()->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    connect(m_macroList, &QTreeWidget::currentItemChanged, this, &MacroPage::onCurrentChanged);
    connect(m_macroList, &QTreeWidget::itemChanged, this, &MacroPage::onItemChanged);
    connect(m_macroList, &QTreeWidget::itemActivated, this, &MacroPage::renameMacro);
    m_macroList->installEventFilter(this);
    layout->addWidget(m_macroList, 1);

    m_usesTitle = new QLabel(box);
    m_usesTitle->setObjectName(QStringLiteral("m_usesTitle"));
    m_usesTitle->setStyleSheet(ShellStyle::headingSheet());
    layout->addWidget(m_usesTitle);
    m_uses = new QWidget(box);
    m_uses->setObjectName(QStringLiteral("m_uses"));
    m_usesLayout = new FlowLayout(m_uses);
    layout->addWidget(m_uses);
    return box;
}

QWidget *MacroPage::makeEditor()
{
    m_editor = new QWidget(this);
    m_editor->setObjectName(QStringLiteral("m_editor"));
    auto *const layout = new QVBoxLayout(m_editor);
    layout->setContentsMargins(0, 0, 0, 0);
    m_title = new QLabel(m_editor);
    m_title->setObjectName(QStringLiteral("m_title"));
    m_title->setStyleSheet(ShellStyle::headingSheet());
    layout->addWidget(m_title);
    layout->addWidget(makeRecordRow(m_editor));
    m_recordPad = new QLabel(tr("RECORDING\nPress keys. To finish, press Esc twice or click STOP."),
                             m_editor);
    m_recordPad->setObjectName(QStringLiteral("m_recordPad"));
    m_recordPad->setAlignment(Qt::AlignCenter);
    m_recordPad->setWordWrap(true);
    m_recordPad->setFocusPolicy(Qt::StrongFocus);
    m_recordPad->setStyleSheet(QStringLiteral("background:#5a1420;border:1px solid #ff4d6a;"
                                              "border-radius:4px;color:white;padding:8px;"));
    m_recordPad->installEventFilter(this);
    m_recordPad->hide();
    layout->addWidget(m_recordPad);
    m_message = new QLabel(m_editor);
    m_message->setObjectName(QStringLiteral("m_message"));
    m_message->setWordWrap(true);
    m_message->setStyleSheet(QStringLiteral("color:%1;").arg(ShellStyle::warning().name()));
    m_message->hide();
    layout->addWidget(m_message);

    m_eventTable = new QTableView(m_editor);
    m_eventTable->setObjectName(QStringLiteral("m_eventTable"));
    m_eventTable->setAccessibleName(tr("Events of the macro"));
    m_eventTable->setModel(m_model);
    m_eventTable->setItemDelegate(new MacroEventDelegate(m_eventTable));
    m_eventTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_eventTable->setShowGrid(false);
    m_eventTable->setCornerButtonEnabled(false);
    m_eventTable->setStyleSheet(
        QStringLiteral("QHeaderView,QTableCornerButton::section{background:%1;border:none;}"
                       "QHeaderView::section:vertical{background:%1;}")
            .arg(ShellStyle::panel().name()));
    m_eventTable->setTabKeyNavigation(false);
    m_eventTable->setMinimumHeight(110);
    m_eventTable->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    m_eventTable->verticalHeader()->setDefaultSectionSize(RowHeight);
    m_eventTable->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_eventTable->horizontalHeader()->setHighlightSections(false);
    m_eventTable->installEventFilter(this);
    connect(m_eventTable->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &MacroPage::showState);
    layout->addWidget(m_eventTable, 1);
    layout->addWidget(makeEventRow(m_editor));
    return m_editor;
}

QWidget *MacroPage::makeRecordRow(QWidget *parent)
{
    auto *const box = new QWidget(parent);
    auto *const row = new FlowLayout(box);
    m_recordBtn = button(box, "m_recordBtn", tr("RECORD"), &MacroPage::toggleRecording);
    m_recordBtn->setToolTip(tr("Record keys at the end of the macro"));
    // a click on STOP must not take the focus first, which would stop the recording already
    m_recordBtn->setFocusPolicy(Qt::TabFocus);
    m_delayMode = new QComboBox(box);
    m_delayMode->setObjectName(QStringLiteral("m_delayMode"));
    m_delayMode->setAccessibleName(tr("Delays of recorded keys"));
    m_delayMode->addItem(tr("delays as they were"), MacroRecorder::AsTheyWere);
    m_delayMode->addItem(tr("no delays"), MacroRecorder::None);
    m_delayMode->addItem(tr("fixed delays"), MacroRecorder::Fixed);
    m_fixedDelay = new QSpinBox(box);
    m_fixedDelay->setObjectName(QStringLiteral("m_fixedDelay"));
    m_fixedDelay->setAccessibleName(tr("Fixed delay in milliseconds"));
    m_fixedDelay->setRange(0, MacroRecorder::MaxDelay);
    m_fixedDelay->setValue(StandardDelay);
    m_fixedDelay->setSuffix(tr(" ms"));
    m_setDelaysBtn = button(box, "m_setDelaysBtn", tr("SET ALL"), &MacroPage::setDelays);
    m_setDelaysBtn->setToolTip(tr("Give all events of the macro this delay"));
    for (QWidget *const made :
         std::initializer_list<QWidget *>{m_recordBtn, m_delayMode, m_fixedDelay, m_setDelaysBtn})
        row->addWidget(made);
    return box;
}

QWidget *MacroPage::makeEventRow(QWidget *parent)
{
    auto *const box = new QWidget(parent);
    m_addRow = box;
    auto *const rows = new QVBoxLayout(box);
    rows->setContentsMargins(0, 0, 0, 0);
    auto *const row = new QHBoxLayout;
    rows->addLayout(row);
    m_newEvent = new QComboBox(box);
    m_newEvent->setObjectName(QStringLiteral("m_newEvent"));
    m_newEvent->setAccessibleName(tr("Event to add"));
    m_newEvent->addItem(tr("press and release"), PressAndRelease);
    m_newEvent->addItem(tr("press"), Press);
    m_newEvent->addItem(tr("release"), Release);
    m_newKey = new KeyCombo(box);
    m_newKey->setObjectName(QStringLiteral("m_newKey"));
    m_newKey->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_newKey->setMinimumContentsLength(5);
    row->addWidget(m_newEvent);
    row->addWidget(m_newKey, 1);
    row->addWidget(button(box, "m_addEventBtn", tr("ADD"), &MacroPage::addEvent));
    m_upBtn = button(box, "m_upBtn", QStringLiteral("\u25B2"), &MacroPage::moveUp);
    m_downBtn = button(box, "m_downBtn", QStringLiteral("\u25BC"), &MacroPage::moveDown);
    m_upBtn->setToolTip(tr("Move the event up (Alt+Up)"));
    m_upBtn->setAccessibleName(m_upBtn->toolTip());
    m_downBtn->setToolTip(tr("Move the event down (Alt+Down)"));
    m_downBtn->setAccessibleName(m_downBtn->toolTip());
    m_deleteEventBtn = button(box, "m_deleteEventBtn", tr("DELETE"), &MacroPage::deleteEvents);
    auto *const chosen = new QHBoxLayout;
    rows->addLayout(chosen);
    chosen->addWidget(new QLabel(tr("Chosen events:"), box), 1);
    for (QPushButton *const made : {m_upBtn, m_downBtn, m_deleteEventBtn})
        chosen->addWidget(made);
    return box;
}

// ---- showing ----

void MacroPage::refresh()
{
    const QStringList names = m_context.store().state().macroNames(m_context.owner());
    if (!names.contains(m_current))
        m_current = names.isEmpty() ? QString() : names.last();
    refreshList();
    refreshEvents();
    refreshUses();
    showState();
}

void MacroPage::refreshList()
{
    const QSignalBlocker blocker(m_macroList);
    const ProfileStore &store = m_context.store();
    const int owner = m_context.owner();
    const QStringList names = store.state().macroNames(owner);
    while (m_macroList->topLevelItemCount() > names.size())
        delete m_macroList->takeTopLevelItem(names.size());
    for (int i = 0; i < names.size(); ++i) {
        QTreeWidgetItem *item = m_macroList->topLevelItem(i);
        if (!item) {
            item = new QTreeWidgetItem(m_macroList);
            item->setFlags(item->flags() | Qt::ItemIsEditable);
            item->setSizeHint(NameColumn, QSize(0, RowHeight));
        }
        const auto macro = store.state().macro(owner, names[i]);
        item->setText(NumberColumn, QStringLiteral("M%1").arg(i + 1));
        item->setText(NameColumn, names[i]);
        item->setData(NameColumn, NameRole, names[i]);
        item->setText(EventsColumn, QString::number(macro ? macro->count : 0));
        item->setText(KeysColumn, QString::number(store.keysOfMacro(owner, names[i]).size()));
        if (names[i] == m_current)
            m_macroList->setCurrentItem(item);
    }
}

void MacroPage::refreshEvents()
{
    if (m_recorder->isRecording())
        return;
    const auto macro = m_context.store().state().macro(m_context.owner(), m_current);
    m_model->setEvents(MacroEventModel::eventsOf(macro.value_or(vantrix_macro_record())));
    showState();
}

void MacroPage::refreshUses()
{
    while (QLayoutItem *const item = m_usesLayout->takeAt(0)) {
        // it may be the chip whose click led here
        item->widget()->hide();
        item->widget()->deleteLater();
        delete item;
    }
    const ProfileStore &store = m_context.store();
    const auto places = store.keysOfMacro(m_context.owner(), m_current);
    m_usesTitle->setText(places.empty() ? tr("NO KEY HAS IT") : tr("KEYS THAT HAVE IT"));
    m_usesTitle->setVisible(!m_current.isEmpty());
    for (const auto &[profile, keyIdx] : places) {
        const QString text =
            QStringLiteral("%1 \u00B7 %2")
                .arg(store.state().profileName(m_context.owner(), profile), KeyTitle::of(keyIdx));
        auto *const chip = new QPushButton(text, m_uses);
        chip->setToolTip(tr("Go to this key"));
        connect(chip, &QPushButton::clicked, this, [this, profile = profile, keyIdx = keyIdx] {
            emit m_context.goTo(profile, keyIdx);
        });
        m_usesLayout->addWidget(chip);
        chip->show();
    }
}

/// Gives the keys the names they have in the environment's language.
void MacroPage::renameKeys()
{
    m_newKey->fill();
    m_eventTable->viewport()->update();
}

void MacroPage::showState()
{
    const bool hasMacro = !m_current.isEmpty();
    const bool isRecording = m_recorder->isRecording();
    m_title->setText(hasMacro ? tr("%1: %2 of %3 events")
                                    .arg(m_current)
                                    .arg(m_model->rowCount())
                                    .arg(vantrix_macro_record::MaxEvents)
                              : tr("Make a new macro, then record keys."));
    for (QPushButton *const some : {m_duplicateBtn, m_renameBtn, m_deleteBtn, m_setDelaysBtn})
        some->setEnabled(hasMacro && !isRecording);
    const int row = currentRow();
    const bool hasRow = m_eventTable->selectionModel()->hasSelection();
    m_deleteEventBtn->setEnabled(hasRow && !isRecording);
    m_upBtn->setEnabled(hasRow && row > 0 && !isRecording);
    m_downBtn->setEnabled(hasRow && row >= 0 && row + 1 < m_model->rowCount() && !isRecording);
    m_recordBtn->setText(isRecording ? tr("STOP") : tr("RECORD"));
    m_recordPad->setVisible(isRecording);
    m_addRow->setVisible(!isRecording);
    m_macroList->setEnabled(!isRecording);
    m_eventTable->setEnabled(!isRecording);
}

void MacroPage::say(const QString &text)
{
    m_message->setText(text);
    m_message->setVisible(!text.isEmpty());
    if (!text.isEmpty())
        emit m_context.status(text);
}

void MacroPage::resizeEvent(QResizeEvent *event)
{
    const bool isWide = width() >= WideEnough;
    m_columns->setDirection(isWide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    QWidget::resizeEvent(event);
}

// ---- the list of macros ----

void MacroPage::selectMacro(const QString &name)
{
    m_recorder->stop();
    m_current = name;
    refresh();
}

void MacroPage::onCurrentChanged(const QTreeWidgetItem *item)
{
    m_current = item ? item->data(NameColumn, NameRole).toString() : QString();
    say({});
    refreshEvents();
    refreshUses();
    showState();
}

QString MacroPage::make(const QString &wanted, const vantrix_macro_record &record)
{
    m_recorder->stop();
    ProfileStore &store = m_context.store();
    const QString name = store.freeMacroName(m_context.owner(), wanted);
    const StoreStepScope step(store, tr("Add macro %1").arg(name));
    if (!store.addMacro(m_context.owner(), name, record))
        return {};
    emit m_context.macroAdded(name);
    say({});
    m_current = name;
    refresh();
    return name;
}

void MacroPage::addMacro()
{
    make(tr("Macro"), vantrix_macro_record());
    m_macroList->setFocus();
}

void MacroPage::duplicateMacro()
{
    if (const auto macro = m_context.store().state().macro(m_context.owner(), m_current))
        make(m_current, *macro);
}

void MacroPage::renameMacro()
{
    if (QTreeWidgetItem *const item = m_macroList->currentItem())
        m_macroList->editItem(item, NameColumn);
}

void MacroPage::onItemChanged(QTreeWidgetItem *item, int column)
{
    if (column != NameColumn)
        return;
    const QString name = item->data(NameColumn, NameRole).toString();
    const QString wanted = item->text(NameColumn).trimmed();
    if (wanted != name && !rename(name, wanted)) {
        const QSignalBlocker blocker(m_macroList);
        item->setText(NameColumn, name);
    }
}

bool MacroPage::rename(const QString &name, const QString &wanted)
{
    ProfileStore &store = m_context.store();
    if (wanted.isEmpty()) {
        say(tr("A macro needs a name."));
        return false;
    }
    const StoreStepScope step(store, tr("Rename macro %1 to %2").arg(name, wanted));
    if (!store.renameMacro(m_context.owner(), name, wanted)) {
        say(tr("There is another macro named \"%1\".").arg(wanted));
        return false;
    }
    emit m_context.macroRenamed(name, wanted);
    if (m_begun == name)
        m_begun.clear();
    say({});
    m_current = wanted;
    refresh();
    return true;
}

void MacroPage::deleteMacro()
{
    ProfileStore &store = m_context.store();
    const QString name = m_current;
    const QStringList names = store.state().macroNames(m_context.owner());
    const int place = names.indexOf(name);
    if (place < 0)
        return;
    m_recorder->stop();
    const int keys = int(store.keysOfMacro(m_context.owner(), name).size());
    {
        const StoreStepScope step(store, tr("Delete macro %1").arg(name));
        emit m_context.macroAboutToBeRemoved(name);
        store.removeMacro(m_context.owner(), name);
    }
    m_current = names.value(place + 1 < names.size() ? place + 1 : place - 1);
    say({});
    refresh();
    emit m_context.status(
        keys == 0 ? tr("Macro %1 was deleted.").arg(name)
                  : tr("Macro %1 was deleted and taken off %2 keys.").arg(name).arg(keys));
}

// ---- for a key ----

void MacroPage::beginForKey()
{
    m_begun = make(tr("Macro"), vantrix_macro_record());
    m_backBtn->show();
    m_recordBtn->setFocus();
    emit m_context.status(tr("Record the macro, then go back and choose it for the key."));
}

void MacroPage::goBack()
{
    m_recorder->stop();
    m_backBtn->hide();
    const auto macro = m_context.store().state().macro(m_context.owner(), m_begun);
    if (macro && macro->count == 0 &&
        m_context.store().keysOfMacro(m_context.owner(), m_begun).empty()) {
        m_current = m_begun;
        deleteMacro();
        emit m_context.status(tr("The new macro was empty and was not kept."));
    }
    m_begun.clear();
    emit m_context.pageRequested(ShellPage::Mapping);
}

// ---- events ----

int MacroPage::currentRow() const
{
    const QModelIndex index = m_eventTable->currentIndex();
    return index.isValid() ? index.row() : -1;
}

void MacroPage::storeEvents(const QString &what)
{
    ProfileStore &store = m_context.store();
    const auto macro = store.state().macro(m_context.owner(), m_current);
    if (!macro)
        return;
    const StoreStepScope step(store, what.arg(m_current));
    store.setMacro(m_context.owner(), m_current,
                   MacroEventModel::withEvents(*macro, m_model->events()));
    say({});
    refreshList();
    showState();
}

void MacroPage::addEvent()
{
    const auto code = quint16(m_newKey->code());
    if (code == 0) {
        say(tr("\"%1\" is not a key that a macro can have.").arg(m_newKey->currentText()));
        return;
    }
    if (m_current.isEmpty() && make(tr("Macro"), vantrix_macro_record()).isEmpty())
        return;
    const auto delay =
        quint16(m_delayMode->currentData() == MacroRecorder::None ? 0 : m_fixedDelay->value());
    MacroEventModel::Events events;
    const int kind = m_newEvent->currentData().toInt();
    if (kind != Release)
        events.push_back({code, 1, delay});
    if (kind != Press)
        events.push_back({code, 0, delay});
    const bool hasRow = m_eventTable->selectionModel()->hasSelection();
    const int row = hasRow ? currentRow() + 1 : m_model->rowCount();
    if (!m_model->insertEvents(row, events)) {
        say(MacroRecorder::limitText());
        return;
    }
    if (hasRow)
        m_eventTable->selectRow(row + int(events.size()) - 1);
    m_eventTable->scrollTo(m_model->index(row, 0));
}

void MacroPage::deleteEvents()
{
    std::vector<int> rows;
    for (const QModelIndex &index : m_eventTable->selectionModel()->selectedRows())
        rows.push_back(index.row());
    m_model->removeEvents(rows);
}

void MacroPage::moveRow(int by)
{
    const int row = currentRow();
    if (m_model->moveEvent(row, by))
        m_eventTable->selectRow(row + by);
}

void MacroPage::setDelays()
{
    m_model->setAllDelays(
        m_delayMode->currentData() == MacroRecorder::None ? 0 : m_fixedDelay->value());
}

// ---- recording ----

void MacroPage::toggleRecording()
{
    if (m_recorder->isRecording())
        m_recorder->stop();
    else
        startRecording();
}

void MacroPage::startRecording()
{
    if (m_current.isEmpty() && make(tr("Macro"), vantrix_macro_record()).isEmpty())
        return;
    const int room = vantrix_macro_record::MaxEvents - m_model->rowCount();
    if (room < 2) {
        say(MacroRecorder::limitText());
        return;
    }
    say({});
    m_recorder->start(room);
    showState();
    m_recordPad->setFocus();
    m_recordPad->grabKeyboard();
    m_context.services().keyCapture().startKeyCapture(m_recordPad);
}

void MacroPage::onRecorded()
{
    m_recordPad->setText(tr("RECORDING: %1 events\nPress keys. To finish, press Esc twice or "
                            "click STOP.")
                             .arg(m_recorder->eventCount()));
}

void MacroPage::onRecordingStopped()
{
    m_recordPad->releaseKeyboard();
    m_context.services().keyCapture().stopKeyCapture();
    const auto mode = MacroRecorder::DelayMode(m_delayMode->currentData().toInt());
    const MacroRecorder::Events events = m_recorder->events(mode, m_fixedDelay->value());
    const QString refusal = m_message->isHidden() ? QString() : m_message->text();
    m_model->insertEvents(m_model->rowCount(), events);
    showState();
    say(refusal);
    m_recordPad->setText(tr("RECORDING\nPress keys. To finish, press Esc twice or click STOP."));
    m_eventTable->scrollToBottom();
    m_recordBtn->setFocus();
}

/// Events of the field that records; true for those that go no further.
bool MacroPage::recordEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        event->accept();
        return true;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        return m_recorder->take(static_cast<QKeyEvent *>(event));
    case QEvent::FocusOut:
        m_recorder->stop();
        return false;
    default:
        return false;
    }
}

/// What a key does in one of the two lists; null for a key of no meaning there.
MacroPage::Command MacroPage::commandOf(const QObject *list, const QKeyEvent *event) const
{
    const bool isMacros = list == m_macroList;
    if (event->key() == Qt::Key_Delete && event->modifiers() == Qt::NoModifier)
        return isMacros ? &MacroPage::deleteMacro : &MacroPage::deleteEvents;
    if (event->key() == Qt::Key_F2 && isMacros)
        return &MacroPage::renameMacro;
    if (event->modifiers() != Qt::AltModifier || isMacros)
        return nullptr;
    if (event->key() == Qt::Key_Up)
        return &MacroPage::moveUp;
    return event->key() == Qt::Key_Down ? &MacroPage::moveDown : nullptr;
}

bool MacroPage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_recordPad)
        return m_recorder->isRecording() && recordEvent(event);
    const bool isPress = event->type() == QEvent::KeyPress;
    // where the window has a shortcut of the same key, the list comes first
    if (isPress || event->type() == QEvent::ShortcutOverride) {
        if (const Command command = commandOf(watched, static_cast<QKeyEvent *>(event))) {
            event->accept();
            if (isPress)
                (this->*command)();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void MacroPage::hideEvent(QHideEvent *event)
{
    m_recorder->stop();
    QWidget::hideEvent(event);
}
