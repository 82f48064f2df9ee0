#pragma once

#include <QWidget>

#include <memory>

class ButtonGroupEx;
namespace Ui {
class SidePanelUi;
}

/// The floating list of the nine presets, in three folding groups of which at most one is open. It
/// gets no lower than what is open needs, and clicks below that pass through.
class SidePanelWid : public QWidget
{
    Q_OBJECT

public:
    explicit SidePanelWid(QWidget *parent = nullptr);
    ~SidePanelWid() override;

    /// Checks the entry of a preset, 0 to 8; any other number changes nothing. Emits nothing.
    void setCurrentPanel(int keyboardType);

signals:
    /// The user chose a preset, be it the one that was checked already: the input it belongs to,
    /// and its number. The list hides itself afterwards.
    void sigPanelChanged(int inputType, int keyboardType);

protected:
    /// Does nothing: the list stays open when the focus goes elsewhere.
    void focusOutEvent(QFocusEvent *event) override;

private slots:
    void slotPanelBtnClicked(int keyboardType);

private:
    void makeRoom();

    std::unique_ptr<Ui::SidePanelUi> m_ui;
    ButtonGroupEx *m_mains;
    ButtonGroupEx *m_presets;
};
