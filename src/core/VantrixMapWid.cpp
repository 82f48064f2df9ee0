#include "core/VantrixMapWid.h"

#include "advanced/AssignMenuWid.h"
#include "application/AppDetection.h"
#include "core/records.h"
#include "interfaces/IParseVantrix.h"
#include "interfaces/IVantrixProfileCfg.h"
#include "interfaces/MsgBox.h"
#include "panels/InputWid.h"
#include "panels/PressoWid.h"
#include "panels/SidePanelWid.h"
#include "toolkit/FocusRing.h"
#include "vocabulary/Common.h"
#include "vocabulary/KeyCodes.h"

#include "ui_VantrixMapUi.h"

#include <QButtonGroup>
#include <QLabel>
#include <QPointer>
#include <QPushButton>

#include <algorithm>

/// A static library's resources are there only when asked for, and not from within a namespace.
static void initPictures()
{
    Q_INIT_RESOURCE(VantrixMap);
}

namespace {

constexpr QSize DesignSize(784, 808);
constexpr QSize SmallestSize(320, 240);
constexpr int ResetCommand = 5;
constexpr int PressoCommand = 23;
constexpr int ResetRequest = 2;

IVantrixProfileCfg *store()
{
    return IVantrixProfileCfg::Instance();
}

class ModeBtn : public QPushButton
{
public:
    ModeBtn(const QString &text, QWidget *parent) : QPushButton(text, parent)
    {
        setCheckable(true);
        setStyleSheet(QStringLiteral(
            "QPushButton{background:transparent;border-radius:5px;border:1px solid #333333;"
            "min-height:30px;}                            "
            ":checked{background:rgb(132,49,155);border:none;}"));
    }
};

} // namespace

struct VantrixMapWid::Private : Ui::VantrixMapUi
{
    int iOwner = 0;
    int iProfile = 0;
    ModeBtn *simple = nullptr;
    ModeBtn *advanced = nullptr;
    QPushButton *apply = nullptr;
    QPushButton *reset = nullptr;
    InputWid *input = nullptr;
    PressoWid *presso = nullptr;
    SidePanelWid *sidePanel = nullptr;
    AssignMenuWid *menu = nullptr;
    QButtonGroup *modes = nullptr;
    bool isShown = true; ///< what the shell said last with showMapping
};

VantrixMapWid::VantrixMapWid(int iOwner, QWidget *parent) : QWidget(parent), m_data(new Private)
{
    registerRecordTypes();
    initPictures();
    m_data->setupUi(this);
    m_data->verticalLayout_2->setSizeConstraint(QLayout::SetNoConstraint);
    m_data->iOwner = iOwner;
    AppDetection::start();
    createStateLab();
    createButtons();
    m_data->input = new InputWid(this);
    m_data->presso = new PressoWid(this);
    m_data->sidePanel = new SidePanelWid(this);
    m_data->menu = new AssignMenuWid(this);
    m_data->input->setObjectName(QStringLiteral("m_inputWid"));
    m_data->presso->setObjectName(QStringLiteral("m_pressoWid"));
    m_data->sidePanel->setObjectName(QStringLiteral("m_sidePanelWid"));
    m_data->menu->setObjectName(QStringLiteral("m_assignMenuWid"));
    m_data->sidePanel->hide();
    m_data->menu->hide();
    m_data->m_assignWid->setScope(iOwner, 0);
    connectButtons();
    connectAssignMenu();
    connectPanels();
    connectShell();
    connectCapture();
    new FocusRing(this);
}

VantrixMapWid::~VantrixMapWid()
{
    delete m_data;
}

void VantrixMapWid::createStateLab()
{
    constexpr int side = 30;
    for (int state = InputType::Keyboard; state <= InputType::Unassigned; ++state) {
        if (state == InputType::PresetMode)
            continue;
        const QString text = inputTypeText(state);
        QString sheet;
        Common::keyColorStyle(state, sheet);
        auto *const button = new QPushButton(m_data->m_stateWid);
        button->setFixedSize(side, side);
        button->setStyleSheet(sheet);
        button->ensurePolished();
        button->setFixedSize(side, side);
        button->setFocusPolicy(Qt::NoFocus);
        button->setAccessibleName(text);
        m_data->m_stateLayout->addWidget(button);

        auto *const label = new QLabel(text, m_data->m_stateWid);
        label->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        label->setStyleSheet(QStringLiteral("font-size:12px;"));
        label->setAccessibleName(text);
        m_data->m_stateLayout->addWidget(label);
        if (state != InputType::Unassigned)
            m_data->m_stateLayout->addStretch();
    }
    // A page without enough height would squeeze the strip, and everything is placed by it.
    m_data->m_stateWid->setFixedHeight(m_data->m_stateWid->sizeHint().height());
}

void VantrixMapWid::createButtons()
{
    m_data->simple = new ModeBtn(tr("SIMPLE"), this);
    m_data->advanced = new ModeBtn(tr("ADVANCED"), this);
    m_data->simple->setObjectName(QStringLiteral("m_simple"));
    m_data->advanced->setObjectName(QStringLiteral("m_advanced"));
    m_data->modes = new QButtonGroup(this);
    m_data->modes->addButton(m_data->simple, Mode::Simple);
    m_data->modes->addButton(m_data->advanced, Mode::Advanced);

    m_data->apply = new QPushButton(tr("APPLY"), this);
    m_data->reset = new QPushButton(tr("RESET"), this);
    m_data->apply->setObjectName(QStringLiteral("m_apply"));
    m_data->reset->setObjectName(QStringLiteral("m_reset"));
    for (QPushButton *const button : {m_data->apply, m_data->reset})
        button->setStyleSheet(QStringLiteral("min-height:30px;"));
}

// Connections

void VantrixMapWid::connectButtons()
{
    connect(m_data->modes, &QButtonGroup::idClicked, this, &VantrixMapWid::slotModeChanged);
    connect(m_data->apply, &QPushButton::clicked, this, &VantrixMapWid::slotApply);
    connect(m_data->reset, &QPushButton::clicked, this, &VantrixMapWid::slotReset);
    connect(m_data->input, &InputWid::sigInputChanged, this, &VantrixMapWid::slotInputChanged);
    connect(m_data->presso, &PressoWid::sigPressoEnableChanged, this,
            &VantrixMapWid::slotPressoEnableChanged);
    connect(m_data->sidePanel, &SidePanelWid::sigPanelChanged, this,
            &VantrixMapWid::slotPanelChanged);
}

void VantrixMapWid::connectAssignMenu()
{
    AssignWid *const board = m_data->m_assignWid;
    AssignMenuWid *const menu = m_data->menu;
    connect(board, &AssignWid::sigVantrixKeySelected, menu, &AssignMenuWid::slotVantrixKeySelected);
    connect(board, &AssignWid::sigUpdateVantrixKey, menu, &AssignMenuWid::slotUpdateVantrixKey);
    connect(board, &AssignWid::sigApplicationSelected, menu,
            &AssignMenuWid::slotApplicationSelected);
    connect(board, &AssignWid::sigApplicationAdvSelected, menu,
            &AssignMenuWid::slotApplicationAdvSelected);
    connect(board, &AssignWid::sigDualActionSelectedToAdv, menu,
            &AssignMenuWid::slotDualActionSelected);
    connect(board, &AssignWid::sigMacroSelected, menu, &AssignMenuWid::slotMacroSelected);
    connect(board, &AssignWid::sigCancelKeySelection, menu, &AssignMenuWid::hide);
    connect(board, &AssignWid::sigKeySelectionChanged, menu,
            &AssignMenuWid::slotKeySelectionChanged);
    connect(menu, &AssignMenuWid::sigVantrixKeyAssigned, board, &AssignWid::slotVantrixKeyAssigned);
    connect(menu, &AssignMenuWid::sigMacroAssigned, board, &AssignWid::slotMacroAssigned);
    connect(menu, &AssignMenuWid::sigApplicationAdvAssigned, board,
            &AssignWid::slotApplicationAdvAssigned);
}

void VantrixMapWid::connectPanels()
{
    AssignWid *const board = m_data->m_assignWid;
    MapWid *const panels = m_data->m_mapWid;
    connect(board, &AssignWid::sigVantrixKeySelected, panels, &MapWid::sigVantrixKeySelected);
    connect(board, &AssignWid::sigApplicationSelected, panels, &MapWid::sigApplicationSelected);
    connect(board, &AssignWid::sigDualActionSelected, panels, &MapWid::sigDualActionSelected);
    connect(board, &AssignWid::sigMacroSelected, panels, &MapWid::sigMacroSelected);
    connect(board, &AssignWid::sigResetCurrKey, panels, &MapWid::slotResetCurrKey);
    connect(panels, &MapWid::sigVantrixKeyAssigned, board, &AssignWid::slotVantrixKeyAssigned);
    connect(panels, &MapWid::sigApplicationAssigned, board, &AssignWid::slotApplicationAssigned);
    connect(panels, &MapWid::sigDualActionDepthChanged, board,
            &AssignWid::slotDualActionDepthChanged);
    connect(panels, &MapWid::sigDualActionAssigned, board, &AssignWid::slotDualActionAssigned);
    connect(panels, &MapWid::sigDualActionBack, board, &AssignWid::slotDualActionBack);
    connect(panels, &MapWid::sigDualActionApply, board, &AssignWid::slotDualActionApply);
    connect(panels, &MapWid::sigAssignedKey, board, &AssignWid::slotAssignedKey);
    connect(panels, &MapWid::sigMacroAssigned, board, &AssignWid::slotMacroAssigned);
    connect(panels, &MapWid::sigRenameMacro, board, &AssignWid::slotRenameMacro);
    connect(panels, &MapWid::sigGetVantrixMask, this, &VantrixMapWid::slotGetVantrixMask);
}

void VantrixMapWid::connectShell()
{
    AssignWid *const board = m_data->m_assignWid;
    connect(m_data->m_mapWid, &MapWid::sigCreateMacro, this, &VantrixMapWid::sigSwitchToMacro);
    connect(m_data->menu, &AssignMenuWid::sigCreateMacro, this, &VantrixMapWid::sigSwitchToMacro);
    connect(board, &AssignWid::sigApply, this, &VantrixMapWid::slotApply);
    connect(board, &AssignWid::sigMeridianKeyInfo, this, &VantrixMapWid::sigMeridianKeyInfo);
    connect(board, &AssignWid::deleteMeridianKey, this, &VantrixMapWid::deleteMeridianKey);
    connect(board, &AssignWid::deletePowerModeKey, this, &VantrixMapWid::deletePowerModeKey);
}

void VantrixMapWid::connectCapture()
{
    const AssignWid *const board = m_data->m_assignWid;
    connect(board, &AssignWid::sigKeySelectionChanged, this, &VantrixMapWid::updateCapture);
    connect(board, &AssignWid::sigCancelKeySelection, this, &VantrixMapWid::updateCapture);
}

// Operations of the shell

void VantrixMapWid::updateUi(int iProfile)
{
    m_data->iProfile = iProfile;
    const int stored = mode();
    // The selector speaks up as soon as it is shown, and the board answers out of its scope.
    m_data->m_assignWid->setScope(m_data->iOwner, iProfile);
    if (QAbstractButton *const button = m_data->modes->button(stored))
        button->setChecked(true);
    updateMode(stored);

    const QPointer<VantrixMapWid> alive(this);
    m_data->menu->setProfile(m_data->iOwner, iProfile);
    showStored();
    if (!alive)
        return;
    m_data->m_mapWid->updateUi(m_data->iOwner, iProfile);
    m_data->presso->setPressoEnable(store()->getPressoEnabled());
    updateMenuVisible(stored);
    // The selector says nothing of an input that it has no button for.
    updateSidePanelVisible(stored);
    updateCapture();
}

void VantrixMapWid::updateKeyMapping()
{
    const QPointer<VantrixMapWid> alive(this);
    showStored();
    if (!alive)
        return;
    checkLabels();
    updateMenuVisible(mode());
    updateCapture();
}

void VantrixMapWid::checkLabels()
{
    const bool isSelectedCleared = m_data->m_assignWid->checkLabels();
    m_data->m_mapWid->refreshAssigns();
    if (isSelectedCleared)
        m_data->m_assignWid->announceSelection();
}

/// The board may have to warn of something, and the page may be gone when the user has read it.
void VantrixMapWid::showStored()
{
    m_data->input->updateUi(m_data->iOwner, m_data->iProfile);
    m_data->m_assignWid->showProfile(m_data->iOwner, m_data->iProfile);
}

void VantrixMapWid::showMapping(bool show)
{
    m_data->isShown = show;
    updateCapture();
}

void VantrixMapWid::slotPanelChanged(int inputType, int keyboardType)
{
    store()->clearAssignsForPreset(m_data->iOwner, m_data->iProfile);
    store()->clearNamedMacros(m_data->iOwner, m_data->iProfile);
    m_data->input->setInput(inputType);
    const QPointer<VantrixMapWid> alive(this);
    m_data->m_assignWid->applyPreset(inputType, keyboardType);
    if (!alive)
        return;
    store()->setPanel(m_data->iOwner, m_data->iProfile, keyboardType);
    m_data->m_assignWid->announceSelection();
}

void VantrixMapWid::slotAddKeyAssignMacro(std::string strMacroName)
{
    m_data->m_mapWid->slotAddKeyAssignMacro(strMacroName);
    m_data->menu->addKeyAssignMacro(strMacroName);
}

void VantrixMapWid::slotDelKeyAssignMacro(std::string strMacroName)
{
    const bool isSelectedCleared = m_data->m_assignWid->removeMacro(strMacroName);
    m_data->m_mapWid->slotDelKeyAssignMacro(strMacroName);
    m_data->menu->delKeyAssignMacro(strMacroName);
    if (isSelectedCleared)
        m_data->m_assignWid->announceSelection();
    if (store()->delNamedMacro(m_data->iOwner, m_data->iProfile, strMacroName))
        emit sigUpdateKeyMapping();
}

void VantrixMapWid::slotRenameKeyAssignMacro(std::string strOldName, std::string strNewName)
{
    m_data->m_mapWid->slotRenameKeyAssignMacro(strOldName, strNewName);
    m_data->menu->renameKeyAssignMacro(strOldName, strNewName);
}

void VantrixMapWid::slotUpdateMacroAssign()
{
    checkLabels();
    emit sigUpdateKeyMapping();
}

void VantrixMapWid::slotUpdateWinShortcutKeys()
{
    m_data->m_assignWid->slotUpdateWinShortcutKeys();
}

// Geometry

QSize VantrixMapWid::sizeHint() const
{
    return DesignSize;
}

QSize VantrixMapWid::minimumSizeHint() const
{
    return SmallestSize;
}

void VantrixMapWid::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_data->verticalLayout_2->activate();
    placeButtons();
    placeSidePanels();
    updateMode(mode());
}

void VantrixMapWid::placeButtons()
{
    constexpr int buttonWidth = 150;
    constexpr int buttonHeight = 40;
    const QRect legend = m_data->m_stateWid->geometry();
    m_data->advanced->setGeometry(width() - 160, 6, buttonWidth, buttonHeight);
    m_data->simple->setGeometry(width() - 316, 6, buttonWidth, buttonHeight);
    const QRect reset(legend.x() + legend.width() - buttonWidth, height() - 46 - legend.height(),
                      buttonWidth, buttonHeight);
    m_data->reset->setGeometry(reset);
    m_data->apply->setGeometry(reset.translated(0, -41));
}

void VantrixMapWid::placeSidePanels()
{
    const QRect legend = m_data->m_stateWid->geometry();
    m_data->input->setGeometry(6, 6, int(width() / 3 * 0.6), int(height() * 0.55));
    const QRect selector = m_data->input->geometry();
    const QMargins margins = m_data->input->innerMargins();
    m_data->sidePanel->setGeometry(
        selector.x() + margins.left(), selector.y() + selector.height() - margins.bottom(),
        selector.width() - margins.left() - margins.right(), m_data->sidePanel->height());
    const int pressoHeight = int(legend.height() * 1.2);
    m_data->presso->setGeometry(legend.x(), height() - 6 - pressoHeight - legend.height(),
                                int(selector.width() * 0.78), pressoHeight);
}

void VantrixMapWid::updateMode(int mode)
{
    const int legendHeight = m_data->m_stateWid->height();
    const int boardHeight = mode == Mode::Simple ? int(height() * 0.6) : height() - legendHeight;
    m_data->m_assignWid->setFixedSize(std::max(0, width() / 3), std::max(0, boardHeight));

    int panelHeight = height() - m_data->m_assignWid->height() - legendHeight;
    if (panelHeight >= height() / 2)
        panelHeight -= panelHeight / 3;
    m_data->m_mapWid->setFixedHeight(std::max(0, panelHeight));

    m_data->input->setVisible(mode == Mode::Simple);
    m_data->m_mapWid->setVisible(mode == Mode::Simple);
    m_data->m_assignWid->layoutForMode(mode);
    updateMenuVisible(mode);
    m_data->menu->setMode(mode);
    if (mode == Mode::Advanced)
        resizeAssignMenu();
    m_data->verticalLayout_2->activate();
    tellCoveredCorners();
}

/// The pressure switch and APPLY stand over the panels' lower corners.
void VantrixMapWid::tellCoveredCorners()
{
    const QRect panels = m_data->m_mapWid->geometry();
    const QRect left = m_data->presso->geometry() & panels;
    const QRect right = (m_data->apply->geometry() | m_data->reset->geometry()) & panels;
    const auto corner = [&panels](const QRect &covered, int width) {
        return covered.isEmpty() ? QSize(0, 0) : QSize(width, panels.bottom() + 1 - covered.top());
    };
    m_data->m_mapWid->setCoveredCorners(corner(left, left.right() + 1 - panels.left()),
                                        corner(right, panels.right() + 1 - right.left()));
}

void VantrixMapWid::resizeAssignMenu()
{
    const int boardWidth = m_data->m_assignWid->width();
    const int boardHeight = m_data->m_assignWid->height();
    const int menuHeight = int(boardHeight * 0.35);
    m_data->menu->setGeometry(int(width() * 0.65), int(boardHeight * 0.95 - menuHeight),
                              int(boardWidth * 0.5), menuHeight);
}

// State

int VantrixMapWid::mode() const
{
    return store()->getMode(m_data->iOwner, m_data->iProfile);
}

void VantrixMapWid::updateMenuVisible(int mode)
{
    m_data->menu->setVisible(mode == Mode::Advanced &&
                             isValidKey(m_data->m_assignWid->currentKey()));
}

void VantrixMapWid::updateSidePanelVisible(int mode)
{
    m_data->sidePanel->setVisible(mode == Mode::Simple &&
                                  store()->getInput(m_data->iOwner, m_data->iProfile) ==
                                      InputType::PresetMode);
}

/// The real keyboard belongs to the keyboard panel while a key is selected in simple mode on a
/// page that shows.
void VantrixMapWid::updateCapture()
{
    updateCaptureFor(mode());
}

void VantrixMapWid::updateCaptureFor(int mode)
{
    m_data->m_mapWid->setKeySelected(isValidKey(m_data->m_assignWid->currentKey()));
    m_data->m_mapWid->setCaptureEnabled(m_data->isShown && m_data->simple->isChecked() &&
                                        mode == Mode::Simple);
}

void VantrixMapWid::slotModeChanged(int iMode)
{
    if (iMode == mode())
        return;
    updateMode(iMode);
    updateCaptureFor(iMode);
    updateSidePanelVisible(iMode);
    m_data->m_assignWid->announceSelection();
    store()->setMode(m_data->iOwner, m_data->iProfile, iMode);
}

void VantrixMapWid::slotInputChanged(int input)
{
    m_data->m_assignWid->applyInput(input);
    m_data->m_mapWid->setCurrentInput(input);
    if (input == InputType::PresetMode)
        m_data->sidePanel->setCurrentPanel(store()->getPanel(m_data->iOwner, m_data->iProfile));
    m_data->sidePanel->setVisible(input == InputType::PresetMode && mode() == Mode::Simple);
}

void VantrixMapWid::slotGetVantrixMask(QWidget *mainWid)
{
    m_data->m_mapWid->setOverlayMask(m_data->m_assignWid->keyBoardRegion(mainWid));
}

void VantrixMapWid::slotPressoEnableChanged(int enable)
{
    if ((enable != 0) == store()->getPressoEnabled())
        return;
    store()->setPressoEnabled(enable);
    emit sigSdkRequest(PressoCommand, nullptr);
}

void VantrixMapWid::slotApply()
{
    // The shell may replace the page in its answer.
    const QPointer<VantrixMapWid> alive(this);
    emit sigUpdateKeyMapping();
    if (alive)
        emit sigUpdateMacroAssign();
    if (!alive)
        return;
    m_data->m_assignWid->dropSelection();
    m_data->menu->hide();
    updateCapture();
}

void VantrixMapWid::slotReset()
{
    const QPointer<VantrixMapWid> alive(this);
    if (MsgBox::question(this, tr("Reset"), tr("Are you sure you want to reset?")) == 0 || !alive)
        return;
    void *request = nullptr;
    IParseVantrix::Instance()->makeSdkRequest(ResetRequest, &request);
    emit sigSdkRequest(ResetCommand, request);
}

void VantrixMapWid::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    emit sigHide();
}
