#pragma once

#include <QWidget>

#include <memory>

class ApplicationWid;
class ButtonGroupEx;
class QAbstractButton;
class QPushButton;

namespace Ui {
class ApplicationBtn;
}

/// One folding section of the application panel: a header, the folder button over it, and the list
/// of the application's 19 functions (none for a type outside 0 to 2). Starts closed.
class ApplicationBtn : public QWidget
{
    Q_OBJECT

public:
    /// `appType` is an AppType.
    explicit ApplicationBtn(int appType, ApplicationWid *parent);
    ~ApplicationBtn() override;

    /// The header; checked means open. The panel puts it into its group.
    QPushButton *typeButton() const;

public slots:
    /// Opens the section of the application of a selected key and shows its function; closes the
    /// sections of all others. Emits nothing.
    void slotApplicationSelected(int iAppType, int iFuncId);
    /// Closes the section and shows no function as checked. Emits nothing.
    void slotVantrixKeySelected();
    /// A function was clicked in the panel: shows none as checked if it is another application's.
    /// Emits nothing.
    void slotApplicationAssigned(int iAppType);

signals:
    /// The user clicked a function (id 0 to 18), or clicked the checked one again: (-1, -1) then.
    void sigApplicationAssigned(int iAppType, int iFuncId);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private slots:
    void slotChangeAppPath();
    void slotFuncBtnClicked(QAbstractButton *button);

private:
    void addFunctions();
    void addFolderButton();
    void showCheckedFunction();

    std::unique_ptr<Ui::ApplicationBtn> m_ui;
    const int m_appType;
    ButtonGroupEx *m_group;
    QPushButton *m_folderBtn;
};
