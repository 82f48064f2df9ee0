#pragma once

#include <QWidget>

#include <memory>

class ButtonGroupEx;
class PanelBtn;
namespace Ui {
class PanelUi;
}

/// One folding group of the preset list: a main button, and the group's presets below it, which
/// are hidden until the main button is checked. Its height is fixed to what it shows.
class PanelWid : public QWidget
{
    Q_OBJECT

public:
    /// `mainNumber` is a row of PresetGroups, and the input of the presets in it. The main button
    /// joins `mains` under an automatic id, the presets join `presets` under their numbers; both
    /// groups stay the caller's.
    PanelWid(int mainNumber, ButtonGroupEx *mains, ButtonGroupEx *presets, QWidget *parent);
    ~PanelWid() override;

private slots:
    void slotMainPanelClicked();

private:
    std::unique_ptr<Ui::PanelUi> m_ui;
    PanelBtn *m_main;
};
