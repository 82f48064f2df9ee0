#pragma once

#include <QMargins>
#include <QWidget>

#include <memory>

class QButtonGroup;
namespace Ui {
class InputUi;
}

/// The column of inputs of simple mode: one button for each InputType from 0 to 10. It keeps the
/// profile's selected input in the store.
class InputWid : public QWidget
{
    Q_OBJECT

public:
    explicit InputWid(QWidget *parent = nullptr);
    ~InputWid() override;

    /// Checks the button of an input, emits `sigInputChanged` and then stores the input, also
    /// when it is the stored one. An input without a button changes nothing.
    void setInput(int input);
    /// Takes the scope of the store's calls and shows the input stored there, as `setInput` does.
    void updateUi(int iOwner, int iProfile);
    /// Distance of the buttons from the edges; the preset list is placed by it.
    QMargins innerMargins() const;

signals:
    /// An input was selected: by the user, after it was stored and only when it is another one;
    /// by `setInput` and `updateUi`, before it is stored and always.
    void sigInputChanged(int input);

private slots:
    void slotInputChanged(int input);

private:
    std::unique_ptr<Ui::InputUi> m_ui;
    QButtonGroup *m_group;
    int m_iOwner = 0;
    int m_iProfile = 0;
};
