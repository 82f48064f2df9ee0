#include "panels/MapWid.h"

#include "ui_MapUi.h"

MapWid::MapWid(QWidget *parent) : QWidget(parent), m_ui(std::make_unique<Ui::MapUi>())
{
    m_ui->setupUi(this);
    m_ui->m_map->setCurrentIndex(m_input);
    m_ui->m_game_controller->setPadMode(false);
    connectSelection();
    connectAssignments();
    connectDualAction();
    connectMacros();
}

MapWid::~MapWid() = default;

void MapWid::connectSelection()
{
    const auto show = &MapWid::sigVantrixKeySelected;
    connect(this, show, m_ui->m_keyboard, &KeyboardWid::slotVantrixKeySelected);
    connect(this, show, m_ui->m_mouse, &MouseWid::slotVantrixKeySelected);
    connect(this, show, m_ui->m_media, &MediaWid::slotVantrixKeySelected);
    connect(this, show, m_ui->m_game_controller, &GameCtrlWid::slotVantrixKeySelected);
    connect(this, show, m_ui->m_presso_functions, &PressoFunWid::slotVantrixKeySelected);
    connect(this, show, m_ui->m_backlight, &BackLightWid::slotVantrixKeySelected);
    connect(this, show, m_ui->m_profile, &ProfileWid::slotVantrixKeySelected);
    connect(this, &MapWid::sigApplicationSelected, m_ui->m_application,
            &ApplicationWid::sigApplicationSelected);
    connect(this, &MapWid::sigDualActionSelected, m_ui->m_dual_action,
            &DualActionWid::slotDualActionSelected);
    connect(this, &MapWid::sigMacroSelected, m_ui->m_macro, &MacroWid::slotMacroSelected);
}

void MapWid::connectAssignments()
{
    const auto assign = &MapWid::sigVantrixKeyAssigned;
    connect(m_ui->m_keyboard, &KeyboardWid::sigKeyChanged, this, assign);
    connect(m_ui->m_mouse, &MouseWid::sigMouseChanged, this, assign);
    connect(m_ui->m_media, &MediaWid::sigMediaChanged, this, assign);
    connect(m_ui->m_game_controller, &GameCtrlWid::sigGameChanged, this, assign);
    connect(m_ui->m_presso_functions, &PressoFunWid::sigPressoFunChanged, this, assign);
    connect(m_ui->m_backlight, &BackLightWid::sigBackLightChanged, this, assign);
    connect(m_ui->m_profile, &ProfileWid::sigProfileChanged, this, assign);
    connect(m_ui->m_application, &ApplicationWid::sigApplicationAssigned, this,
            &MapWid::sigApplicationAssigned);
}

void MapWid::connectDualAction()
{
    DualActionWid *const panel = m_ui->m_dual_action;
    connect(panel, &DualActionWid::sigGetVantrixMask, this, &MapWid::sigGetVantrixMask);
    connect(panel, &DualActionWid::sigDualActionDepthChanged, this,
            &MapWid::sigDualActionDepthChanged);
    connect(panel, &DualActionWid::sigDualActionChanged, this, &MapWid::sigDualActionAssigned);
    connect(panel, &DualActionWid::sigDualActionBack, this, &MapWid::sigDualActionBack);
    connect(panel, &DualActionWid::sigDualActionApply, this, &MapWid::sigDualActionApply);
}

void MapWid::connectMacros()
{
    MacroWid *const panel = m_ui->m_macro;
    connect(panel, &MacroWid::sigCreateMacro, this, &MapWid::sigCreateMacro);
    connect(panel, &MacroWid::sigAssignedKey, this, &MapWid::sigAssignedKey);
    connect(panel, &MacroWid::sigMacroAssigned, this, &MapWid::sigMacroAssigned);
    connect(panel, &MacroWid::sigRenameMacro, this, &MapWid::sigRenameMacro);
}

void MapWid::updateUi(int iOwner, int iProfile)
{
    m_ui->m_macro->setOwnerProfile(iOwner, iProfile);
}

void MapWid::refreshAssigns()
{
    m_ui->m_macro->refreshAssigns();
}

void MapWid::slotAddKeyAssignMacro(std::string strMacroName)
{
    m_ui->m_macro->addMacro(std::move(strMacroName));
}

void MapWid::slotDelKeyAssignMacro(std::string strMacroName)
{
    m_ui->m_macro->delMacro(std::move(strMacroName));
}

void MapWid::slotRenameKeyAssignMacro(std::string strOldName, std::string strNewName)
{
    m_ui->m_macro->renameMacro(std::move(strOldName), std::move(strNewName));
}

void MapWid::setKeySelected(bool selected)
{
    m_keySelected = selected;
    updateCapture();
}

void MapWid::setCurrentInput(int input)
{
    if (input < 0 || input >= m_ui->m_map->count())
        return;
    m_input = input;
    m_ui->m_map->setCurrentIndex(input);
    updateCapture();
}

void MapWid::setCaptureEnabled(bool enabled)
{
    m_captureEnabled = enabled;
    m_ui->m_dual_action->setCaptureEnabled(enabled);
    updateCapture();
}

void MapWid::setCoveredCorners(const QSize &left, const QSize &right)
{
    m_ui->m_keyboard->setCoveredCorners(left, right);
    m_ui->m_application->setContentsMargins(left.width(), 0, right.width(), 0);
}

void MapWid::setOverlayMask(const QRegion &keyBoardRegion)
{
    m_ui->m_dual_action->setOverlayMask(keyBoardRegion);
}

void MapWid::slotResetCurrKey()
{
    m_ui->m_keyboard->clearChecked();
    m_ui->m_mouse->clearChecked();
    m_ui->m_media->clearChecked();
    m_ui->m_game_controller->clearChecked();
    m_ui->m_presso_functions->clearChecked();
    m_ui->m_application->resetPanel();
    m_ui->m_dual_action->resetPanel();
    m_ui->m_macro->clearSelection();
    m_ui->m_backlight->clearChecked();
    m_ui->m_profile->clearChecked();
}

void MapWid::updateCapture()
{
    m_ui->m_keyboard->setKeyCapture(m_captureEnabled && m_keySelected &&
                                    m_input == InputType::Keyboard);
}
