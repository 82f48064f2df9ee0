#pragma once

#include <QWidget>

#include <memory>

class ButtonGroupEx;

namespace Ui {
class ApplicationUi;
}

/// The panel of the creative applications: three folding sections in the order of AppType, of
/// which at most one is open.
class ApplicationWid : public QWidget
{
    Q_OBJECT

public:
    explicit ApplicationWid(QWidget *parent = nullptr);
    ~ApplicationWid() override;

    /// Closes all sections and shows no function as checked. Emits no assignment.
    void resetPanel();

signals:
    /// The user clicked a function: AppType and its id (0 to 18), or (-1, -1) to clear the key.
    void sigApplicationAssigned(int iAppType, int iFuncId);
    /// Emitted into the panel: the selected key carries this function. Shows it, assigns nothing.
    void sigApplicationSelected(int iAppType, int iFuncId);
    /// Emitted into the panel: the selected key carries no function. Closes all sections.
    void sigVantrixKeySelected();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void addSection(int appType);

    std::unique_ptr<Ui::ApplicationUi> m_ui;
    ButtonGroupEx *m_group;
};
