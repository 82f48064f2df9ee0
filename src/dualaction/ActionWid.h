#pragma once

#include <QPushButton>
#include <QWidget>

#include <memory>

class QButtonGroup;
namespace Ui {
class ActionUi;
}

/// A button of the menu under an action.
class MenuBtn : public QPushButton
{
    Q_OBJECT

public:
    explicit MenuBtn(const QString &text, QWidget *parent = nullptr);
};

/// One of the two actions of the simple dual action panel: a button that folds a menu of the three
/// kinds of input (InputType keyboard, mouse, media) in and out, and the device code chosen.
class ActionWid : public QWidget
{
    Q_OBJECT

public:
    explicit ActionWid(QWidget *parent = nullptr);
    ~ActionWid() override;

    /// Number of the action, 1 or 2; it stands in the title.
    void setActionNo(int actionNo);
    QString title() const;
    /// Shows the menu with a kind of input checked; any other kind changes nothing.
    void setInput(int inputType);
    /// Device code of the action, 0 for none.
    void setKeyCode(ushort code) { m_code = code; }
    ushort keyCode() const { return m_code; }
    /// A disabled action hides its menu.
    void setActionEnabled(bool enabled);
    /// No code and no menu; the checked kind and the title stay.
    void resetAction();

signals:
    /// The user chose a kind of input; `strAction` is the title.
    void sigActionAssigned(int actionNo, int inputType, QString strAction);

private slots:
    void slotActionClicked();
    void slotActionAssigned(int inputType);

private:
    void buildMenu();

    const std::unique_ptr<Ui::ActionUi> m_ui;
    int m_actionNo = 0;
    ushort m_code = 0;
    QButtonGroup *m_group;
};
