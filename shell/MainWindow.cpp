#include "shell/MainWindow.h"

#include "shell/KeyTitle.h"
#include "shell/Language.h"
#include "shell/MappingView.h"
#include "shell/MessageBar.h"
#include "shell/ProfileCheck.h"
#include "shell/ProfileList.h"
#include "shell/SettingsDlg.h"
#include "shell/ShellStyle.h"

#include "interfaces/Modal.h"
#include "vocabulary/Common.h"

#include <QAction>
#include <QApplication>
#include <QButtonGroup>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QResizeEvent>
#include <QScreen>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

/// Width of the room right of the profiles from which both pages fit.
constexpr int RoomForBoth = 1180;
constexpr int SideWidth = 430;
/// Width of the window below which the profiles are a strip of numbers.
constexpr int RoomForNames = 1180;
/// Room for the name of a profile outside the list.
constexpr int NameRoom = 120;
constexpr QSize InitialSize(1384, 800);
constexpr QSize RoomForFrame(16, 48); ///< of the window manager, which it tells too late
constexpr QSize MinimumSize(900, 600);

QString geometryKey()
{
    return QStringLiteral("windowGeometry");
}

QString profileKey()
{
    return QStringLiteral("shownProfile");
}

QString captureKey()
{
    return QStringLiteral("assignByPressing");
}

} // namespace

MainWindow::MainWindow(ShellContext &context)
    : m_context(context), m_messages(new MessageBar(this)),
      m_profiles(new ProfileList(context, this)), m_mapping(new MappingView(context, this)),
      m_side(new QStackedWidget(this)), m_tabs(new QButtonGroup(this)), m_undo(new QAction(this)),
      m_redo(new QAction(this)), m_shown(new QLabel(this))
{
    setObjectName(QStringLiteral("MainWindow"));
    setMinimumSize(MinimumSize);
    makeBody();
    makeStatusBar();
    makeMenus();
    connectContext();
    qApp->installEventFilter(this);
    context.services().environment().setMainWidget(this);
    restore();
}

MainWindow::~MainWindow()
{
    qApp->removeEventFilter(this);
    // what the pages let go of while they go, the keyboard for one, is told to nobody here
    m_context.disconnect(this);
    m_context.store().disconnect(this);
    m_context.services().keyCapture().disconnect(this);
}

// ---- putting together ----

void MainWindow::makeBody()
{
    auto *body = new QWidget(this);
    m_side->setObjectName(QStringLiteral("m_sidePages"));
    m_pages = ShellPages::make(m_context, m_side);
    for (const ShellPages::Entry &entry : m_pages)
        m_side->addWidget(entry.widget);

    auto *pages = new QHBoxLayout;
    pages->setSpacing(0);
    pages->addWidget(m_mapping, 1);
    pages->addWidget(m_side, 1);
    auto *right = new QVBoxLayout;
    right->setSpacing(0);
    right->addWidget(makeBar());
    right->addLayout(pages, 1);
    auto *rows = new QHBoxLayout;
    rows->setSpacing(0);
    rows->addWidget(m_profiles);
    rows->addLayout(right, 1);
    auto *layout = new QVBoxLayout(body);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_messages);
    layout->addLayout(rows, 1);
    setCentralWidget(body);
}

QWidget *MainWindow::makeBar()
{
    auto *bar = new QWidget(this);
    bar->setObjectName(QStringLiteral("m_pageBar"));
    auto *layout = new QHBoxLayout(bar);
    layout->setContentsMargins(8, 6, 8, 4);
    layout->setSpacing(2);
    auto *tabs = new QWidget(bar);
    tabs->setStyleSheet(ShellStyle::tabSheet());
    auto *tabLayout = new QHBoxLayout(tabs);
    tabLayout->setContentsMargins(0, 0, 0, 0);
    tabLayout->setSpacing(2);
    m_shown->setObjectName(QStringLiteral("m_shownLab"));
    m_shown->setContentsMargins(4, 0, 10, 0);
    m_shown->setTextFormat(Qt::PlainText);
    m_shown->setMinimumWidth(0);
    m_shown->setMaximumWidth(NameRoom + m_shown->contentsMargins().right());
    m_shown->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_tabs->setExclusive(true);
    addTab(ShellPage::Mapping, tr("MAPPING"), tabLayout);
    for (const ShellPages::Entry &entry : m_pages)
        addTab(entry.page, entry.title, tabLayout);
    layout->addWidget(m_shown, 2);
    layout->addWidget(tabs);
    layout->addStretch(1);
    m_findBar = ShellPages::makeFindBar(m_context, bar);
    if (m_findBar)
        layout->addWidget(m_findBar, 3);
    for (QAction *action : {m_undo, m_redo}) {
        auto *button = new QToolButton(bar);
        button->setDefaultAction(action);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::TabFocus);
        layout->addWidget(button);
    }
    connect(m_tabs, &QButtonGroup::idClicked, this, [this](int id) { showPage(ShellPage(id)); });
    return bar;
}

void MainWindow::addTab(ShellPage page, const QString &title, QHBoxLayout *layout)
{
    auto *tab = new QPushButton(title);
    tab->setObjectName(QStringLiteral("m_tab%1").arg(int(page)));
    tab->setCheckable(true);
    m_tabs->addButton(tab, int(page));
    layout->addWidget(tab);
}

void MainWindow::makeStatusBar()
{
    m_status = new QLabel(this);
    m_applied = new QLabel(this);
    m_saved = new QLabel(this);
    m_status->setObjectName(QStringLiteral("m_statusLab"));
    m_applied->setTextFormat(Qt::PlainText);
    m_status->setTextFormat(Qt::PlainText);
    m_applied->setObjectName(QStringLiteral("m_appliedLab"));
    m_saved->setObjectName(QStringLiteral("m_savedLab"));
    m_status->setContentsMargins(8, 0, 0, 0);
    m_status->setMinimumWidth(1);
    statusBar()->addWidget(m_status, 1);
    statusBar()->addPermanentWidget(m_applied);
    statusBar()->addPermanentWidget(m_saved);
}

void MainWindow::makeMenus()
{
    QMenu *const file = menuBar()->addMenu(tr("&File"));
    ShellPages::addFileActions(file, m_context, this);
    file->addAction(tr("&Settings..."), this, &MainWindow::openSettings,
                    QKeySequence(Qt::CTRL | Qt::Key_Comma));
    file->addSeparator();
    file->addAction(tr("&Quit"), this, &QWidget::close, QKeySequence(Qt::CTRL | Qt::Key_Q));
    makeEditMenu();
    m_profiles->fillMenu(menuBar()->addMenu(tr("&Profile")));
    makeViewMenu();
}

void MainWindow::makeEditMenu()
{
    QMenu *const edit = menuBar()->addMenu(tr("&Edit"));
    m_undo->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Z));
    m_redo->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)});
    m_undo->setIconText(QStringLiteral("↶"));
    m_redo->setIconText(QStringLiteral("↷"));
    connect(m_undo, &QAction::triggered, this, &MainWindow::undo);
    connect(m_redo, &QAction::triggered, this, &MainWindow::redo);
    edit->addAction(m_undo);
    edit->addAction(m_redo);
    edit->addSeparator();
    if (m_findBar)
        edit->addAction(
            tr("&Find Keys..."), this, [this] { m_findBar->setFocus(Qt::ShortcutFocusReason); },
            QKeySequence(Qt::CTRL | Qt::Key_F));
    m_capture = edit->addAction(tr("Assign by &Pressing Keys"));
    m_capture->setCheckable(true);
    m_capture->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_K));
    m_capture->setStatusTip(tr("While a key of the pad is selected, the next key that is pressed "
                               "is put on it. Off, the keyboard works the window."));
    connect(m_capture, &QAction::toggled, this, [this](bool on) {
        m_mapping->setCaptureAllowed(on);
        m_context.store().setSetting(captureKey(), on ? QString() : QStringLiteral("0"));
    });
    edit->addSeparator();
    edit->addAction(tr("&Apply to Device"), &m_context, &ShellContext::applyRequested,
                    QKeySequence(Qt::CTRL | Qt::Key_Return));
}

void MainWindow::makeViewMenu()
{
    QMenu *const view = menuBar()->addMenu(tr("&View"));
    m_names = view->addAction(tr("Profile &Names"), this, &MainWindow::arrange,
                              QKeySequence(Qt::CTRL | Qt::Key_B));
    m_names->setCheckable(true);
    m_names->setChecked(true);
    connect(m_profiles, &ProfileList::namesNeeded, m_names, [this] {
        m_names->setChecked(true);
        arrange();
    });
    view->addSeparator();
    int number = 0;
    for (QAbstractButton *tab : m_tabs->buttons()) {
        const ShellPage page = ShellPage(m_tabs->id(tab));
        view->addAction(
            tab->text(), this, [this, page] { showPage(page); },
            QKeySequence(Qt::CTRL | Qt::Key(Qt::Key_1 + number++)));
    }
}

void MainWindow::connectContext()
{
    ProfileStore &store = m_context.store();
    connect(&m_context, &ShellContext::goTo, this, [this](int profile, int key) {
        m_mapping->goTo(profile, key);
        if (key < KeyCount)
            emit m_context.keysWanted();
    });
    connect(&m_context, &ShellContext::profileShown, this, [this](int profile) {
        // what was said was said of another one
        if (profile != std::exchange(m_profileOfStatus, profile) && !m_isNews)
            say(QString());
        m_context.store().setSetting(profileKey(), QString::number(profile));
    });
    connect(&m_context, &ShellContext::keysWanted, this, [this] {
        if (!m_mapping->isVisible())
            showPage(ShellPage::Mapping);
    });
    connect(&m_context, &ShellContext::pageRequested, this, &MainWindow::showPage);
    connect(&m_context, &ShellContext::newMacroRequested, this,
            [this] { showPage(ShellPage::Macros); });
    connect(&m_context, &ShellContext::historyRequested, this, &MainWindow::travelTo);
    connect(&m_context, &ShellContext::status, this, [this](const QString &text) {
        say(text);
        m_isNews = true;
    });
    connect(&m_context, &ShellContext::profileShown, this, &MainWindow::updateState);
    connect(&store, &ProfileStore::profileChanged, this, &MainWindow::updateState);
    connect(&store, &ProfileStore::macrosChanged, this, &MainWindow::updateState);
    connect(&store, &ProfileStore::profileListChanged, this, &MainWindow::updateState);
    connect(&store, &ProfileStore::deviceChanged, this, &MainWindow::updateState);
    connect(&store, &ProfileStore::savedChanged, this, &MainWindow::updateState);
    connect(&store, &ProfileStore::stepsChanged, this, &MainWindow::updateSteps);
    connect(&store, &ProfileStore::profileChanged, this, &MainWindow::updateSteps);
    connect(&store, &ProfileStore::settingChanged, this, &MainWindow::onSettingChanged);
    connect(&store, &ProfileStore::viewChanged, this, &MainWindow::sayWhoHasTheKeyboard);
    connect(&m_context, &ShellContext::profileShown, this, &MainWindow::sayWhoHasTheKeyboard);
    connect(&m_context.services().keyCapture(), &HostKeyCapture::capturingChanged, this, [this] {
        sayWhoHasTheKeyboard();
        updateSteps();
    });
    for (const QString &text : store.messages())
        m_messages->add(text);
    connect(&store, &ProfileStore::message, m_messages, &MessageBar::add);
}

void MainWindow::restore()
{
    ProfileStore &store = m_context.store();
    const QByteArray geometry = QByteArray::fromBase64(store.setting(geometryKey()).toLatin1());
    if (geometry.isEmpty() || !restoreGeometry(geometry))
        resize(InitialSize.boundedTo(screen()->availableSize() - RoomForFrame));
    m_capture->setChecked(store.setting(captureKey()) != QLatin1String("0"));
    m_mapping->setCaptureAllowed(m_capture->isChecked());
    const int profile = qBound(0, store.setting(profileKey()).toInt(), ProfileCount - 1);
    const int key = store.getCurrentKey(m_context.owner(), profile);
    showPage(ShellPage::Mapping);
    m_mapping->showProfile(profile, key);
    updateSteps();
    sayWhatIsPending();
}

void MainWindow::sayWhatIsPending()
{
    const StoreState &state = m_context.store().state();
    QStringList names;
    for (const int profile : state.profileOrder(m_context.owner())) {
        if (m_context.device().differs(m_context.owner(), profile))
            names << state.profileName(m_context.owner(), profile);
    }
    if (!names.isEmpty())
        say(tr("Not on the device yet: %1.").arg(names.join(tr(", "))));
    else if (m_context.store().stepNames().isEmpty())
        say(tr("Click a key of the pad, then choose what it does."));
    else
        say(tr("Everything is on the device."));
}

void MainWindow::say(const QString &text)
{
    m_status->setText(text);
    m_stepOfStatus = lastStep();
}

/// Tells the last step from all others.
std::pair<int, QString> MainWindow::lastStep() const
{
    return {m_context.store().stepPosition(), m_context.store().undoName()};
}

void MainWindow::sayWhoHasTheKeyboard()
{
    const bool wasSaid = isHintSaid();
    const int key = m_context.store().getCurrentKey(m_context.owner(), m_context.profile());
    m_captureHint.clear();
    if (key < KeyCount && m_context.services().keyCapture().capturing() && !isRecording())
        m_captureHint = tr("%1 takes the next key you press. Ctrl+K, with no key selected, "
                           "switches that off.")
                            .arg(KeyTitle::withLegend(key));
    if (!m_captureHint.isEmpty() && !m_isNews)
        m_status->setText(m_captureHint);
    else if (wasSaid)
        say(lastStep() == m_stepOfStatus ? QString() : m_context.store().undoName());
}

/// The other pages take keys for macros.
bool MainWindow::isRecording() const
{
    const QWidget *const capturing = m_context.services().keyCapture().capturing();
    return capturing && !m_mapping->isAncestorOf(capturing);
}

bool MainWindow::isHintSaid() const
{
    return !m_captureHint.isEmpty() && m_status->text() == m_captureHint;
}

// ---- pages ----

void MainWindow::showPage(ShellPage page)
{
    QAbstractButton *const tab = m_tabs->button(int(page));
    if (!tab)
        return;
    tab->setChecked(true);
    m_page = page;
    for (const ShellPages::Entry &entry : m_pages) {
        if (entry.page == page)
            m_side->setCurrentWidget(entry.widget);
    }
    arrange();
    emit m_context.pageShown(page);
}

void MainWindow::arrange()
{
    m_profiles->setCompact(!m_names->isChecked());
    m_shown->setVisible(m_profiles->isCompact());
    const int room = width() - m_profiles->maximumWidth();
    const bool hasRoom = room >= RoomForBoth;
    const bool isSide = m_page != ShellPage::Mapping;
    m_side->setVisible(isSide);
    m_mapping->setVisible(hasRoom || !isSide);
    m_side->setMinimumWidth(hasRoom ? qMax(SideWidth, room / 3) : 0);
    m_side->setMaximumWidth(hasRoom ? m_side->minimumWidth() : QWIDGETSIZE_MAX);
}

void MainWindow::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    const bool hasRoom = width() >= RoomForNames;
    if (m_hasRoomForNames != hasRoom)
        m_names->setChecked(hasRoom);
    m_hasRoomForNames = hasRoom;
    arrange();
}

// ---- steps ----

void MainWindow::undo()
{
    const int shown = m_mapping->showCount();
    follow(m_context.store().undo(), tr("Undone: %1"), shown);
}

void MainWindow::redo()
{
    const int shown = m_mapping->showCount();
    follow(m_context.store().redo(), tr("Done again: %1"), shown);
}

void MainWindow::travelTo(int position)
{
    ProfileStore &store = m_context.store();
    const int before = store.stepPosition();
    const int shown = m_mapping->showCount();
    follow(store.travelTo(position), position < before ? tr("Undone: %1") : tr("Done again: %1"),
           shown);
    const int steps = store.stepPosition() - before;
    if (qAbs(steps) > 1)
        emit m_context.status(
            (steps < 0 ? tr("Steps undone: %1") : tr("Steps done again: %1")).arg(qAbs(steps)));
}

/// `shown` is the number of showings before the step: one that changed keys has been shown
/// already, as the store told, and one that did not has brought another selection or mode.
void MainWindow::follow(const std::optional<StepOutcome> &outcome, const QString &text, int shown)
{
    if (!outcome)
        return;
    if (outcome->pressoChanged)
        m_context.device().setPressureEnabled(m_context.store().getPressoEnabled());
    if (outcome->profile >= 0 && outcome->profile != m_context.profile())
        m_mapping->showProfile(outcome->profile, outcome->currentKey);
    else if (m_mapping->showCount() == shown)
        m_mapping->refresh();
    emit m_context.status(text.arg(outcome->name));
}

void MainWindow::updateSteps()
{
    const ProfileStore &store = m_context.store();
    // a step back would take away what a macro is being recorded into
    m_undo->setEnabled(store.canUndo() && !isRecording());
    m_redo->setEnabled(store.canRedo() && !isRecording());
    m_undo->setText(store.canUndo() ? tr("&Undo %1").arg(Common::ButtonText(store.undoName()))
                                    : tr("&Undo"));
    m_redo->setText(store.canRedo() ? tr("&Redo %1").arg(Common::ButtonText(store.redoName()))
                                    : tr("&Redo"));
    m_undo->setIconText(QStringLiteral("↶"));
    m_redo->setIconText(QStringLiteral("↷"));
    m_undo->setToolTip(Common::PlainTip(
        store.canUndo() ? tr("Undo %1 (Ctrl+Z)").arg(store.undoName()) : tr("Nothing to undo")));
    // What was said before another step does not hold any more.
    if (store.canUndo() && lastStep() != m_stepOfStatus && !isHintSaid())
        say(store.undoName());
    m_redo->setToolTip(Common::PlainTip(store.canRedo()
                                            ? tr("Redo %1 (Ctrl+Shift+Z)").arg(store.redoName())
                                            : tr("Nothing to redo")));
}

// ---- state ----

/// A name must not make the window wider.
QString MainWindow::narrowed(const QString &name) const
{
    return fontMetrics().elidedText(name, Qt::ElideRight, NameRoom);
}

QString MainWindow::statusText() const
{
    return m_status->text();
}

void MainWindow::updateState()
{
    const ProfileStore &store = m_context.store();
    const int owner = m_context.owner();
    const QString name = store.state().profileName(owner, m_context.profile());
    const int count = int(m_context.device().pending(owner, m_context.profile()).size());
    const QString device = store.state().profileName(m_context.device().currentOwner(),
                                                     m_context.device().currentProfile());
    const QString pending = count == 0   ? tr("nothing to apply")
                            : count == 1 ? tr("1 key to apply")
                                         : tr("%1 keys to apply").arg(count);
    m_applied->setText(tr("Device: %1   |   %2   |").arg(narrowed(device), pending));
    m_applied->setToolTip(Common::PlainTip(device));
    m_shown->setToolTip(Common::PlainTip(name));
    showName();
    m_saved->setText(store.isReadOnly() ? tr("READ ONLY")
                     : store.isSaved()  ? tr("Saved")
                                        : tr("NOT SAVED"));
    if (QAbstractButton *const tab = m_tabs->button(int(ShellPage::Changes)))
        tab->setText(count ? tr("CHANGES %1").arg(count) : tr("CHANGES"));
    const ProfileCheck check(m_context.store(), owner);
    const int findings = int(check.check(m_context.profile()).size());
    if (QAbstractButton *const tab = m_tabs->button(int(ShellPage::Check)))
        tab->setText(findings ? tr("CHECK %1").arg(findings) : tr("CHECK"));
    setWindowTitle(
        tr("%1%2 - VANTRIX").arg(name, store.isReadOnly() ? tr(" (read only)") : QString()));
}

void MainWindow::openSettings()
{
    SettingsDlg dialog(m_context, this);
    Modal::exec(&dialog);
}

void MainWindow::onSettingChanged(const QString &name)
{
    if (name == Language::settingKey()) {
        const int language = Language::of(m_context.store());
        m_context.services().environment().setLanguage(language);
        Language::install(language);
        m_mapping->rebuild();
        emit languageChanged();
    } else if (name == HostLocations::hotKeysFolderKey()) {
        m_mapping->rebuild();
    }
    updateState(); // an application may have been found
}

void MainWindow::remember()
{
    emit m_context.leaving();
    ProfileStore &store = m_context.store();
    store.setSetting(geometryKey(), QString::fromLatin1(saveGeometry().toBase64()));
    store.flush();
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    remember();
    if (m_context.store().hasUnsavedWork() &&
        !Modal::question(this, windowTitle(),
                         tr("The changes cannot be saved and are lost with the window. Close "
                            "it?"),
                         Modal::No)) {
        event->ignore();
        return;
    }
    QMainWindow::closeEvent(event);
}

/// The name beside the tabs, as far as they leave room.
void MainWindow::showName()
{
    const int room = m_shown->contentsRect().width();
    const QString name =
        m_context.store().state().profileName(m_context.owner(), m_context.profile());
    m_shown->setText(fontMetrics().elidedText(name, Qt::ElideRight, room));
}

bool MainWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_shown && event->type() == QEvent::Resize)
        showName();
    // What was said may be read until something else is done.
    const bool isDeed =
        event->type() == QEvent::MouseButtonPress || event->type() == QEvent::KeyPress;
    if (isDeed && std::exchange(m_isNews, false))
        sayWhoHasTheKeyboard();
    // While the page captures, every key is meant for it, the window's shortcuts included.
    if (event->type() == QEvent::ShortcutOverride &&
        m_context.services().keyCapture().capturing()) {
        event->accept();
        return true;
    }
    return QMainWindow::eventFilter(watched, event);
}
