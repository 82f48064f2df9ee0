#include "shell/MacroPage.h"

#include "shell/FlowLayout.h"
#include "shell/KeyTitle.h"
#include "shell/MacroEditor.h"
#include "shell/NamedButton.h"
#include "shell/ShellStyle.h"
#include "shell/WidgetKeys.h"
#include "vocabulary/Common.h"

#include <QBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QRegularExpression>
#include <QSignalBlocker>
#include <QTreeWidget>

#include <algorithm>
#include <utility>

namespace {

constexpr int WideEnough = 700; ///< for list and events side by side
constexpr int RowHeight = 26;
enum ListColumn { NumberColumn, NameColumn, EventsColumn, KeysColumn };
constexpr int NameRole = Qt::UserRole;

} // namespace

MacroPage::MacroPage(ShellContext &context, QWidget *parent) : QWidget(parent), m_context(context)
{
    setObjectName(QStringLiteral("m_macroPage"));
    setStyleSheet(ShellStyle::panelSheet());
    auto *const outer = new QVBoxLayout(this);
    m_backBtn = namedButton(this, "m_backBtn", tr("BACK TO THE KEYS"), this, &MacroPage::goBack);
    m_backBtn->hide();
    outer->addWidget(m_backBtn, 0, Qt::AlignLeft);
    m_columns = new QBoxLayout(QBoxLayout::TopToBottom);
    m_columns->addWidget(makeList(), 5);
    m_editor = new MacroEditor(context, this);
    m_columns->addWidget(m_editor, 7);
    outer->addLayout(m_columns, 1);

    connect(m_editor, &MacroEditor::macroNeeded, this, &MacroPage::addMacro);
    connect(m_editor, &MacroEditor::edited, this, &MacroPage::refreshList);
    connect(m_editor, &MacroEditor::recordingChanged, this, &MacroPage::showState);
    connect(&context.store(), &ProfileStore::macrosChanged, this, &MacroPage::refresh);
    connect(&context.store(), &ProfileStore::profileChanged, this, &MacroPage::onKeysChanged);
    connect(&context.store(), &ProfileStore::profileListChanged, this, &MacroPage::onKeysChanged);
    connect(&context, &ShellContext::newMacroRequested, this, &MacroPage::beginForKey);
    connect(&context, &ShellContext::leaving, this, &MacroPage::endForKey);
    connect(&context, &ShellContext::pageShown, this, [this](ShellPage page) {
        if (page != ShellPage::Macros)
            endForKey();
    });
    refresh();
}

MacroPage::~MacroPage()
{
    // a name that is being edited would still be taken over while the widgets go
    m_macroList->disconnect(this);
    m_editor->disconnect(this);
}

void MacroPage::setClock(MacroRecorder::Clock clock)
{
    m_editor->setClock(std::move(clock));
}

// ---- building ----

QWidget *MacroPage::makeList()
{
    auto *const box = new QWidget(this);
    auto *const layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *const buttons = new QWidget(box);
    auto *const row = new FlowLayout(buttons);
    row->addWidget(namedButton(buttons, "m_newBtn", tr("NEW"), this, &MacroPage::newMacro));
    m_duplicateBtn =
        namedButton(buttons, "m_duplicateBtn", tr("COPY"), this, &MacroPage::duplicateMacro);
    m_duplicateBtn->setToolTip(tr("Make another macro with the same events"));
    m_renameBtn = namedButton(buttons, "m_renameBtn", tr("RENAME"), this, &MacroPage::renameMacro);
    m_deleteBtn = namedButton(buttons, "m_deleteBtn", tr("DELETE"), this, &MacroPage::deleteMacro);
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
    auto *const keys = new WidgetKeys(m_macroList);
    keys->on(Qt::Key_F2, [this] { renameMacro(); });
    keys->on(Qt::Key_Delete, [this] { deleteMacro(); });
    keys->on(Qt::ALT | Qt::Key_Up, [this] { moveMacro(-1); });
    keys->on(Qt::ALT | Qt::Key_Down, [this] { moveMacro(1); });
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

// ---- showing ----

void MacroPage::refresh()
{
    const QStringList names = m_context.store().state().macroNames(m_context.owner());
    chooseAmong(names);
    refreshList();
    m_editor->showMacro(m_current);
    refreshUses();
    showState();
}

/// What came is chosen; in place of what went, what stands there now.
void MacroPage::chooseAmong(const QStringList &names)
{
    QStringList fresh = names;
    for (const QString &name : qAsConst(m_names))
        fresh.removeOne(name);
    m_names = names;
    if (fresh.size() == 1 && isVisible() && !m_editor->isRecording())
        m_current = fresh.first();
    const int row = m_macroList->currentIndex().row();
    if (!names.contains(m_current))
        m_current = names.value(std::clamp(row, 0, std::max(0, int(names.size()) - 1)));
}

void MacroPage::onKeysChanged()
{
    if (!isVisible())
        return; // they are looked at when the page is shown
    refreshList();
    refreshUses();
}

void MacroPage::showEvent(QShowEvent *event)
{
    refresh();
    QWidget::showEvent(event);
}

/// How many keys have each macro.
std::map<QString, int> MacroPage::countKeys() const
{
    std::map<QString, int> counts;
    for (int profile = 0; profile < ProfileCount; ++profile) {
        for (int key = 0; key < KeyCount; ++key) {
            if (const auto name =
                    m_context.store().state().macroKey(m_context.owner(), profile, key))
                ++counts[*name];
        }
    }
    return counts;
}

void MacroPage::refreshList()
{
    const QSignalBlocker blocker(m_macroList);
    const ProfileStore &store = m_context.store();
    std::map<QString, int> keyCounts = countKeys();
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
        item->setText(KeysColumn, QString::number(keyCounts[names[i]]));
        if (names[i] == m_current)
            m_macroList->setCurrentItem(item);
    }
}

void MacroPage::showState()
{
    const bool canChange = !m_editor->isRecording();
    for (QPushButton *const some : {m_duplicateBtn, m_renameBtn, m_deleteBtn})
        some->setEnabled(canChange && !m_current.isEmpty());
    m_macroList->setEnabled(canChange);
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
        auto *const chip = new QPushButton(Common::ButtonText(text), m_uses);
        chip->setToolTip(tr("Go to this key"));
        connect(chip, &QPushButton::clicked, this, [this, profile = profile, keyIdx = keyIdx] {
            emit m_context.goTo(profile, keyIdx);
        });
        m_usesLayout->addWidget(chip);
        chip->show();
    }
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
    m_editor->stopRecording();
    m_current = name;
    refresh();
}

void MacroPage::onCurrentChanged(const QTreeWidgetItem *item)
{
    m_current = item ? item->data(NameColumn, NameRole).toString() : QString();
    m_editor->say({});
    m_editor->showMacro(m_current);
    refreshUses();
    showState();
}

QString MacroPage::make(const QString &wanted, const vantrix_macro_record &record)
{
    m_editor->stopRecording();
    ProfileStore &store = m_context.store();
    const QString name = store.freeMacroName(m_context.owner(), wanted);
    const StoreStepScope step(store, tr("Add macro %1").arg(name));
    if (!store.addMacro(m_context.owner(), name, record))
        return {};
    emit m_context.macroAdded(name);
    m_editor->say({});
    m_current = name;
    refresh();
    return name;
}

void MacroPage::addMacro()
{
    make(tr("Macro"), vantrix_macro_record());
}

void MacroPage::newMacro()
{
    addMacro();
    m_macroList->setFocus();
}

void MacroPage::duplicateMacro()
{
    const StoreState &state = m_context.store().state();
    const auto macro = state.macro(m_context.owner(), m_current);
    if (!macro)
        return;
    // a copy of a copy goes on counting
    static const QRegularExpression number(QStringLiteral(" \\d+$"));
    const QString original = QString(m_current).remove(number);
    const bool isCopy = state.macroNames(m_context.owner()).contains(original);
    make(isCopy ? original : m_current, *macro);
}

void MacroPage::renameMacro()
{
    m_macroList->setFocus(); // takes over a name that is being edited
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
        m_editor->say(tr("A macro needs a name."));
        return false;
    }
    const StoreStepScope step(store, tr("Rename macro %1 to %2").arg(name, wanted));
    if (!store.renameMacro(m_context.owner(), name, wanted)) {
        m_editor->say(tr("There is another macro named \"%1\".").arg(wanted));
        return false;
    }
    emit m_context.macroRenamed(name, wanted);
    if (m_begun == name)
        m_begun.clear();
    m_editor->say({});
    m_current = wanted;
    refresh();
    return true;
}

void MacroPage::moveMacro(int by)
{
    ProfileStore &store = m_context.store();
    const int from = store.state().macroNames(m_context.owner()).indexOf(m_current);
    const StoreStepScope step(store, tr("Move macro %1").arg(m_current));
    if (store.moveMacro(m_context.owner(), from, from + by))
        refresh();
}

void MacroPage::deleteMacro()
{
    ProfileStore &store = m_context.store();
    const QString name = m_current;
    const QStringList names = store.state().macroNames(m_context.owner());
    const int place = names.indexOf(name);
    if (place < 0)
        return;
    m_editor->stopRecording();
    const int keys = int(store.keysOfMacro(m_context.owner(), name).size());
    {
        const StoreStepScope step(store, tr("Delete macro %1").arg(name));
        emit m_context.macroAboutToBeRemoved(name);
        store.removeMacro(m_context.owner(), name);
    }
    if (m_begun == name)
        m_begun.clear();
    m_current = names.value(place + 1 < names.size() ? place + 1 : place - 1);
    m_editor->say({});
    refresh();
    emit m_context.status(
        keys == 0 ? tr("Macro %1 was deleted.").arg(name)
        : keys == 1
            ? tr("Macro %1 was deleted and taken off one key.").arg(name)
            : tr("Macro %1 was deleted and taken off %2 keys.").arg(name, QString::number(keys)));
}

// ---- for a key ----

void MacroPage::beginForKey()
{
    m_editor->stopRecording();
    if (isBegunEmpty())
        selectMacro(m_begun);
    else
        m_begun = make(tr("Macro"), vantrix_macro_record());
    m_backBtn->show();
    m_editor->beginHere();
    emit m_context.status(tr("Record the macro, then go back and choose it for the key."));
}

/// True while the macro that was begun for a key has no event and no key.
bool MacroPage::isBegunEmpty() const
{
    const ProfileStore &store = m_context.store();
    const auto macro = store.state().macro(m_context.owner(), m_begun);
    return macro && macro->count == 0 && store.keysOfMacro(m_context.owner(), m_begun).empty();
}

/// However the page is left, nothing of the way to it stays.
void MacroPage::endForKey()
{
    m_editor->stopRecording();
    m_backBtn->hide();
    if (isBegunEmpty()) {
        const QString chosen = std::exchange(m_current, m_begun);
        deleteMacro();
        selectMacro(chosen);
        emit m_context.status(tr("The new macro was empty and was not kept."));
    }
    m_begun.clear();
}

void MacroPage::goBack()
{
    endForKey();
    emit m_context.pageRequested(ShellPage::Mapping);
}
