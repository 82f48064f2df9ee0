#include "shell/MappingView.h"

#include "core/VantrixMapWid.h"
#include "shell/KeyMarks.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

namespace {

/// Commands of the page's device requests.
enum Command { ResetCommand = 5, PressureCommand = 23 };

} // namespace

MappingView::MappingView(ShellContext &context, QWidget *parent)
    : QWidget(parent), m_context(context)
{
    setObjectName(QStringLiteral("m_mappingView"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    rebuild();
    connectStore();
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) {
        if (now)
            setFocusInside(isAncestorOf(now));
    });
    qApp->installEventFilter(this);
}

MappingView::~MappingView()
{
    qApp->removeEventFilter(this);
    // The page says good-bye as it is hidden, and there must still be somebody to hear it.
    delete m_page;
}

void MappingView::rebuild()
{
    const int key =
        m_page ? m_context.store().getCurrentKey(m_context.owner(), m_context.profile()) : NoKey;
    const bool isAgain = m_page;
    delete m_page;
    m_page = new VantrixMapWid(m_context.owner(), this);
    layout()->addWidget(m_page);
    m_marks = new KeyMarks(m_page);
    connectPage();
    if (!isAgain)
        return;
    m_page->show();
    showProfile(m_context.profile(), key);
}

void MappingView::connectPage()
{
    connect(m_page, &VantrixMapWid::sigUpdateKeyMapping, this, &MappingView::apply);
    // The image that was sent holds the macros; what comes second only has to be equal.
    connect(m_page, &VantrixMapWid::sigUpdateMacroAssign, this, [this] {
        if (m_context.device().differs(m_context.owner(), m_context.profile()))
            apply();
    });
    connect(m_page, &VantrixMapWid::sigSdkRequest, this, &MappingView::onRequest);
    connect(m_page, &VantrixMapWid::sigSwitchToMacro, &m_context, &ShellContext::newMacroRequested);
    connect(m_page, &VantrixMapWid::sigHide, this, &MappingView::updateCapture);
    // There is no companion behind this shell; the key says at least what it is.
    connect(
        m_page, &VantrixMapWid::sigMeridianKeyInfo, this,
        [](QString &info, int) { info = tr("COMPANION"); }, Qt::DirectConnection);
}

void MappingView::connectStore()
{
    ProfileStore &store = m_context.store();
    connect(&store, &ProfileStore::profileReplaced, this, [this](int owner, int profile) {
        if (owner == m_context.owner() && profile == m_context.profile())
            refresh();
    });
    connect(&store, &ProfileStore::macrosChanged, this, &MappingView::onMacrosChanged);
    connect(&m_context, &ShellContext::macroAdded, this, [this](const QString &name) {
        m_toldMacros << name;
        m_page->slotAddKeyAssignMacro(name.toStdString());
    });
    connect(&m_context, &ShellContext::macroAboutToBeRemoved, this, &MappingView::onMacroRemoved);
    connect(&m_context, &ShellContext::macroRenamed, this,
            [this](const QString &oldName, const QString &newName) {
                std::replace(m_toldMacros.begin(), m_toldMacros.end(), oldName, newName);
                m_page->slotRenameKeyAssignMacro(oldName.toStdString(), newName.toStdString());
            });
    connect(&m_context, &ShellContext::applyRequested, this, &MappingView::apply);
    connect(&m_context, &ShellContext::keysMarked, this,
            [this](const std::set<std::pair<int, int>> &keys) {
                m_marked = keys;
                m_marks->setKeys(keys, m_context.profile());
            });
}

void MappingView::showProfile(int profile, int keyIdx)
{
    ++m_showCount;
    m_page->showMapping(false);
    m_page->updateUi(profile);
    tellMacros();
    m_context.setProfile(profile);
    m_marks->setKeys(m_marked, profile);
    // A selection that the user did not make does not take the keyboard: the key that asked for it
    // (of an undo, say) is still down.
    m_isFocusInside = false;
    selectKey(keyIdx);
    updateCapture();
}

void MappingView::goTo(int profile, int keyIdx)
{
    if (profile != m_context.profile() || keyIdx >= KeyCount) {
        showProfile(profile, keyIdx);
        return;
    }
    m_isFocusInside = false;
    updateCapture();
    selectKey(keyIdx);
}

void MappingView::refresh()
{
    const int key = m_context.store().getCurrentKey(m_context.owner(), m_context.profile());
    showProfile(m_context.profile(), key);
}

void MappingView::tellMacros()
{
    m_toldMacros = m_context.store().state().macroNames(m_context.owner());
    for (const QString &name : qAsConst(m_toldMacros))
        m_page->slotAddKeyAssignMacro(name.toStdString());
}

void MappingView::selectKey(int keyIdx)
{
    auto *const key = m_page->findChild<QAbstractButton *>(QStringLiteral("key_%1").arg(keyIdx));
    if (key && !key->isChecked())
        key->click();
}

void MappingView::apply()
{
    const int profile = m_context.profile();
    const StoreState &state = m_context.store().state();
    const QString name = state.profileName(m_context.owner(), profile);
    const bool isSent = m_context.device().send(DeviceImage::of(state, m_context.owner(), profile));
    emit m_context.status(isSent ? tr("%1 is on the device.").arg(name)
                                 : tr("%1 did not reach the device.").arg(name));
    if (isSent)
        emit m_context.applied();
}

void MappingView::onRequest(int command, void *request)
{
    if (command == PressureCommand) {
        m_context.device().setPressureEnabled(m_context.store().getPressoEnabled());
        return;
    }
    const DeviceRequest *const asked = m_context.services().parse().request(request);
    if (command == ResetCommand && asked && asked->id == DeviceRequest::Reset)
        resetDevice();
}

void MappingView::resetDevice()
{
    ProfileStore &store = m_context.store();
    const int profile = m_context.profile();
    const QString name = store.state().profileName(m_context.owner(), profile);
    m_context.device().reset();
    if (store.state().keys(m_context.owner(), profile) == freshKeys()) {
        emit m_context.status(tr("The device was reset. The profiles are kept here and can be "
                                 "applied again."));
        return;
    }
    {
        const StoreStepScope step(store, tr("Reset %1").arg(name));
        store.clearProfile(m_context.owner(), profile);
    }
    refresh();
    emit m_context.status(tr("The device was reset, and %1 with it. Undo brings its keys back; "
                             "the other profiles are kept here and can be applied again.")
                              .arg(name));
}

void MappingView::onMacroRemoved(const QString &name)
{
    {
        // The page would ask for its profile to be sent, and nobody has pressed APPLY.
        const QSignalBlocker blocker(m_page);
        m_page->slotDelKeyAssignMacro(name.toStdString());
    }
    m_toldMacros.removeOne(name);
}

void MappingView::onMacrosChanged(int owner)
{
    if (owner != m_context.owner())
        return;
    if (m_toldMacros != m_context.store().state().macroNames(owner))
        refresh();
    else
        m_page->slotUpdateWinShortcutKeys();
}

// ---- who has the keyboard ----

void MappingView::setCaptureAllowed(bool allowed)
{
    m_isCaptureAllowed = allowed;
    updateCapture();
}

void MappingView::setFocusInside(bool inside)
{
    if (m_isFocusInside == inside)
        return;
    m_isFocusInside = inside;
    updateCapture();
}

void MappingView::updateCapture()
{
    m_page->showMapping(m_isCaptureAllowed && m_isFocusInside && m_page->isVisible());
}

void MappingView::showEvent(QShowEvent *)
{
    updateCapture();
}

bool MappingView::eventFilter(QObject *watched, QEvent *event)
{
    // A press on the page, also where nothing takes the focus, says that the user works there.
    if (event->type() == QEvent::MouseButtonPress && watched->isWidgetType())
        setFocusInside(isAncestorOf(static_cast<QWidget *>(watched)));
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    return isKey && watched == m_context.services().keyCapture().capturing() &&
           isStrayRelease(static_cast<QKeyEvent *>(event));
}

/// A key that went down in a dialog or a menu and comes up over the page was not meant for it, and
/// neither was one for the key of the pad that has been selected meanwhile.
bool MappingView::isStrayRelease(const QKeyEvent *event)
{
    if (event->isAutoRepeat()) // the page takes none
        return false;
    const quint32 scanCode = event->nativeScanCode();
    const int selected = m_context.store().getCurrentKey(m_context.owner(), m_context.profile());
    if (event->type() == QEvent::KeyPress) {
        m_pressed[scanCode] = selected;
        return false;
    }
    const auto pressed = m_pressed.find(scanCode);
    const bool isMeant = pressed != m_pressed.end() && pressed->second == selected;
    m_pressed.erase(scanCode);
    // Some systems tell no press of it.
    const bool isReleaseOnly = scanCode == 0 || event->key() == Qt::Key_Print;
    return !isMeant && !isReleaseOnly;
}
