#include "panels/SidePanelWid.h"

#include "core/records.h"
#include "interfaces/ButtonGroupEx.h"
#include "panels/PanelWid.h"

#include "ui_SidePanelUi.h"

#include <QAbstractButton>
#include <QPointer>

#include <algorithm>

namespace {

constexpr int FoldedHeight = 90;

int inputOfPreset(int keyboardType)
{
    if (keyboardType <= 2)
        return InputType::Keyboard;
    return keyboardType <= 5 ? InputType::GameController : InputType::Application;
}

} // namespace

SidePanelWid::SidePanelWid(QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::SidePanelUi>()), m_mains(new ButtonGroupEx(this)),
      m_presets(new ButtonGroupEx(this))
{
    m_ui->setupUi(this);
    for (const int mainNumber : {0, 4, 5})
        m_ui->m_layout->addWidget(new PanelWid(mainNumber, m_mains, m_presets, this));
    connect(m_mains, qOverload<QAbstractButton *, bool>(&QButtonGroup::buttonToggled), this,
            &SidePanelWid::makeRoom);
    makeRoom();
    connect(m_presets, &QButtonGroup::idClicked, this, &SidePanelWid::slotPanelBtnClicked);
}

SidePanelWid::~SidePanelWid() = default;

void SidePanelWid::setCurrentPanel(int keyboardType)
{
    m_presets->setButtonChecked(keyboardType, true);
}

/// What is open needs its room, however low the list was; what is below the groups belongs to
/// those whom the list floats over.
void SidePanelWid::makeRoom()
{
    layout()->activate();
    const int height = layout()->totalMinimumSize().height();
    setMinimumHeight(std::max(FoldedHeight, height));
    setMask(QRegion(0, 0, QWIDGETSIZE_MAX, height));
}

void SidePanelWid::focusOutEvent(QFocusEvent *) {}

void SidePanelWid::slotPanelBtnClicked(int keyboardType)
{
    // A second click has unchecked the entry; it applies the preset anew.
    m_presets->setButtonChecked(keyboardType, true);
    // The preset may warn of something, and the page may be gone when the user has read it.
    const QPointer<SidePanelWid> alive(this);
    emit sigPanelChanged(inputOfPreset(keyboardType), keyboardType);
    if (alive)
        hide();
}
