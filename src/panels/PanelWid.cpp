#include "panels/PanelWid.h"

#include "interfaces/ButtonGroupEx.h"
#include "panels/PanelBtn.h"
#include "vocabulary/Presets.h"

#include "ui_PanelUi.h"

PanelWid::PanelWid(int mainNumber, ButtonGroupEx *mains, ButtonGroupEx *presets, QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::PanelUi>())
{
    m_ui->setupUi(this);
    const PresetPanelRow &group = PresetGroups().at(mainNumber);
    m_main = new PanelBtn(QLatin1String(group.tag), tr(group.name), PanelBtn::Offset::Group, this);
    m_main->setObjectName(QStringLiteral("m_main"));
    m_ui->m_mainLayout->addWidget(m_main);
    mains->addButton(m_main);
    connect(m_main, &PanelBtn::toggled, this, &PanelWid::slotMainPanelClicked);

    int count = 0;
    for (const auto &[number, preset] : PresetPanels()) {
        if (preset.inputType != mainNumber)
            continue;
        auto *const button = new PanelBtn(QLatin1String(preset.tag), tr(preset.name),
                                          PanelBtn::Offset::Preset, m_ui->m_panel);
        m_ui->m_panelLayout->addWidget(button);
        presets->addButton(button, number);
        ++count;
    }
    m_ui->m_panel->setFixedHeight((m_main->height() + 1) * count);
    m_ui->m_panel->hide();
    setFixedHeight(m_main->height());
}

PanelWid::~PanelWid() = default;

void PanelWid::slotMainPanelClicked()
{
    m_ui->m_panel->setVisible(m_main->isChecked());
    const int folded = m_main->height();
    setFixedHeight(m_main->isChecked() ? folded + m_ui->m_panel->height() : folded);
}
