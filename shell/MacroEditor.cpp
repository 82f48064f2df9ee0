#include "shell/MacroEditor.h"

#include "shell/FlowLayout.h"
#include "shell/KeyCombo.h"
#include "shell/MacroEventDelegate.h"
#include "shell/MacroEventModel.h"
#include "shell/NamedButton.h"
#include "shell/ShellStyle.h"
#include "shell/WidgetKeys.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QSpinBox>
#include <QTableView>

namespace {

constexpr int StandardDelay = 20;
constexpr int RowHeight = 26;
enum NewEvent { PressAndRelease, Press, Release };

} // namespace

MacroEditor::MacroEditor(ShellContext &context, QWidget *parent)
    : QWidget(parent), m_context(context), m_recorder(new MacroRecorder(this)),
      m_model(new MacroEventModel(this))
{
    setObjectName(QStringLiteral("m_editor"));
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    makeHead(layout);
    makeTable();
    layout->addWidget(m_eventTable, 1);
    layout->addWidget(makeEventRow());
    connectRecorder();
    connect(m_model, &MacroEventModel::edited, this, &MacroEditor::storeEvents);
    // after the environment has taken over another language
    connect(&context.store(), &ProfileStore::settingChanged, this, &MacroEditor::renameKeys,
            Qt::QueuedConnection);
    showState();
}

MacroEditor::~MacroEditor()
{
    m_recorder->disconnect(this);
}

void MacroEditor::connectRecorder()
{
    connect(m_recorder, &MacroRecorder::recorded, this, &MacroEditor::onRecorded);
    connect(m_recorder, &MacroRecorder::stopped, this, &MacroEditor::onRecordingStopped);
    connect(m_recorder, &MacroRecorder::refused, this, &MacroEditor::say);
}

void MacroEditor::setClock(MacroRecorder::Clock clock)
{
    delete m_recorder;
    m_recorder = new MacroRecorder(this, std::move(clock));
    connectRecorder();
}

// ---- building ----

void MacroEditor::makeHead(QVBoxLayout *layout)
{
    m_title = new QLabel(this);
    m_title->setTextFormat(Qt::PlainText);
    m_title->setObjectName(QStringLiteral("m_title"));
    m_title->setStyleSheet(ShellStyle::headingSheet());
    layout->addWidget(m_title);
    layout->addWidget(makeRecordRow());
    m_recordPad =
        new QLabel(tr("RECORDING\nPress keys. To finish, press Esc twice or click STOP."), this);
    m_recordPad->setObjectName(QStringLiteral("m_recordPad"));
    m_recordPad->setAlignment(Qt::AlignCenter);
    m_recordPad->setWordWrap(true);
    m_recordPad->setFocusPolicy(Qt::StrongFocus);
    m_recordPad->setStyleSheet(QStringLiteral("background:#5a1420;border:1px solid #ff4d6a;"
                                              "border-radius:4px;color:white;padding:8px;"));
    m_recordPad->installEventFilter(this);
    m_recordPad->hide();
    layout->addWidget(m_recordPad);
    m_message = new QLabel(this);
    m_message->setTextFormat(Qt::PlainText);
    m_message->setObjectName(QStringLiteral("m_message"));
    m_message->setWordWrap(true);
    m_message->setStyleSheet(QStringLiteral("color:%1;").arg(ShellStyle::warning().name()));
    m_message->hide();
    layout->addWidget(m_message);
}

void MacroEditor::makeTable()
{
    m_eventTable = new QTableView(this);
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
    auto *const keys = new WidgetKeys(m_eventTable);
    keys->on(Qt::Key_Delete, [this] { deleteEvents(); });
    keys->on(Qt::Key_F2, [this] {
        if (m_eventTable->currentIndex().isValid())
            m_eventTable->edit(m_eventTable->currentIndex());
    });
    keys->on(Qt::ALT | Qt::Key_Up, [this] { moveRow(-1); });
    keys->on(Qt::ALT | Qt::Key_Down, [this] { moveRow(1); });
    connect(m_eventTable->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &MacroEditor::showState);
}

QWidget *MacroEditor::makeRecordRow()
{
    auto *const box = new QWidget(this);
    auto *const row = new FlowLayout(box);
    m_recordBtn =
        namedButton(box, "m_recordBtn", tr("RECORD"), this, &MacroEditor::toggleRecording);
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
    m_setDelaysBtn =
        namedButton(box, "m_setDelaysBtn", tr("SET ALL"), this, &MacroEditor::setDelays);
    m_setDelaysBtn->setToolTip(tr("Give all events of the macro this delay"));
    for (QWidget *const made :
         std::initializer_list<QWidget *>{m_recordBtn, m_delayMode, m_fixedDelay, m_setDelaysBtn})
        row->addWidget(made);
    return box;
}

QWidget *MacroEditor::makeEventRow()
{
    auto *const box = new QWidget(this);
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
    row->addWidget(namedButton(box, "m_addEventBtn", tr("ADD"), this, &MacroEditor::addEvent));
    m_upBtn = namedButton(box, "m_upBtn", QStringLiteral("\u25B2"), this, &MacroEditor::moveUp);
    m_downBtn =
        namedButton(box, "m_downBtn", QStringLiteral("\u25BC"), this, &MacroEditor::moveDown);
    m_upBtn->setToolTip(tr("Move the event up (Alt+Up)"));
    m_upBtn->setAccessibleName(m_upBtn->toolTip());
    m_downBtn->setToolTip(tr("Move the event down (Alt+Down)"));
    m_downBtn->setAccessibleName(m_downBtn->toolTip());
    m_deleteEventBtn =
        namedButton(box, "m_deleteEventBtn", tr("DELETE"), this, &MacroEditor::deleteEvents);
    auto *const chosen = new QHBoxLayout;
    rows->addLayout(chosen);
    chosen->addWidget(new QLabel(tr("Chosen events:"), box), 1);
    for (QPushButton *const made : {m_upBtn, m_downBtn, m_deleteEventBtn})
        chosen->addWidget(made);
    return box;
}

// ---- showing ----

void MacroEditor::showMacro(const QString &name)
{
    if (name != m_macro && m_recorder->isRecording())
        m_recorder->stop();
    m_macro = name;
    const auto macro = m_context.store().state().macro(m_context.owner(), name);
    const auto events = MacroEventModel::eventsOf(macro.value_or(vantrix_macro_record()));
    if (events != m_model->events())
        say({}); // it was about the events that were shown
    m_model->setEvents(events);
    showState();
}

/// Gives the keys the names they have in the environment's language.
void MacroEditor::renameKeys()
{
    m_newKey->fill();
    m_eventTable->viewport()->update();
}

void MacroEditor::showState()
{
    const bool hasMacro = !m_macro.isEmpty();
    const bool isRecording = m_recorder->isRecording();
    m_title->setText(hasMacro ? tr("%1: %2 of %3 events")
                                    .arg(m_macro, QString::number(m_model->rowCount()),
                                         QString::number(vantrix_macro_record::MaxEvents))
                              : tr("Make a new macro, then record keys."));
    m_setDelaysBtn->setEnabled(hasMacro && !isRecording);
    const int row = currentRow();
    const bool hasRow = m_eventTable->selectionModel()->hasSelection();
    m_deleteEventBtn->setEnabled(hasRow && !isRecording);
    m_upBtn->setEnabled(hasRow && row > 0 && !isRecording);
    m_downBtn->setEnabled(hasRow && row >= 0 && row + 1 < m_model->rowCount() && !isRecording);
    m_recordBtn->setText(isRecording ? tr("STOP") : tr("RECORD"));
    m_recordPad->setVisible(isRecording);
    m_addRow->setVisible(!isRecording);
    m_eventTable->setEnabled(!isRecording);
}

void MacroEditor::say(const QString &text)
{
    m_message->setText(text);
    m_message->setVisible(!text.isEmpty());
    if (!text.isEmpty())
        emit m_context.status(text);
}

void MacroEditor::beginHere()
{
    m_recordBtn->setFocus();
}

/// Something is to go into a macro: asks for one if there is none.
bool MacroEditor::needMacro()
{
    if (m_macro.isEmpty())
        emit macroNeeded();
    return !m_macro.isEmpty();
}

// ---- events ----

int MacroEditor::currentRow() const
{
    const QModelIndex index = m_eventTable->currentIndex();
    return index.isValid() ? index.row() : -1;
}

void MacroEditor::storeEvents(const QString &what)
{
    ProfileStore &store = m_context.store();
    const auto macro = store.state().macro(m_context.owner(), m_macro);
    if (!macro)
        return;
    const StoreStepScope step(store, what.arg(m_macro));
    store.setMacro(m_context.owner(), m_macro,
                   MacroEventModel::withEvents(*macro, m_model->events()));
    say({});
    showState();
    emit edited();
}

void MacroEditor::addEvent()
{
    const auto code = quint16(m_newKey->code());
    if (code == 0) {
        say(tr("\"%1\" is not a key that a macro can have.").arg(m_newKey->currentText()));
        return;
    }
    if (!needMacro())
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

void MacroEditor::deleteEvents()
{
    std::vector<int> rows;
    for (const QModelIndex &index : m_eventTable->selectionModel()->selectedRows())
        rows.push_back(index.row());
    m_model->removeEvents(rows);
}

void MacroEditor::moveRow(int by)
{
    const int row = currentRow();
    if (m_model->moveEvent(row, by))
        m_eventTable->selectRow(row + by);
}

void MacroEditor::setDelays()
{
    m_model->setAllDelays(
        m_delayMode->currentData() == MacroRecorder::None ? 0 : m_fixedDelay->value());
}

// ---- recording ----

void MacroEditor::toggleRecording()
{
    if (m_recorder->isRecording())
        m_recorder->stop();
    else
        startRecording();
}

void MacroEditor::startRecording()
{
    if (!needMacro())
        return;
    const int room = vantrix_macro_record::MaxEvents - m_model->rowCount();
    if (room < 2) {
        say(MacroRecorder::limitText());
        return;
    }
    say({});
    m_recorder->start(room);
    showState();
    emit recordingChanged(true);
    m_recordPad->setFocus();
    m_recordPad->grabKeyboard();
    m_context.services().keyCapture().startKeyCapture(m_recordPad);
}

void MacroEditor::onRecorded()
{
    m_recordPad->setText(tr("RECORDING: %1 of %2 events\nPress keys. To finish, press Esc twice or "
                            "click STOP.")
                             .arg(m_model->rowCount() + m_recorder->eventCount())
                             .arg(int(vantrix_macro_record::MaxEvents)));
}

void MacroEditor::onRecordingStopped()
{
    m_recordPad->releaseKeyboard();
    m_context.services().keyCapture().stopKeyCapture();
    const auto mode = MacroRecorder::DelayMode(m_delayMode->currentData().toInt());
    const MacroRecorder::Events events = m_recorder->events(mode, m_fixedDelay->value());
    const QString refusal = m_message->isHidden() ? QString() : m_message->text();
    m_model->insertEvents(m_model->rowCount(), events);
    showState();
    emit recordingChanged(false);
    say(refusal);
    m_recordPad->setText(tr("RECORDING\nPress keys. To finish, press Esc twice or click STOP."));
    m_eventTable->scrollToBottom();
    m_recordBtn->setFocus();
}

/// Events of the field that records; true for those that go no further.
bool MacroEditor::recordEvent(QEvent *event)
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

bool MacroEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_recordPad && m_recorder->isRecording())
        return recordEvent(event);
    return QWidget::eventFilter(watched, event);
}

void MacroEditor::hideEvent(QHideEvent *event)
{
    m_recorder->stop();
    QWidget::hideEvent(event);
}
