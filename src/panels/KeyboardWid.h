#pragma once

#include "core/records.h"

#include <QSize>
#include <QWidget>

#include <memory>

class Keyboard;
namespace Ui {
class KeyboardUi;
}

/// The keyboard panel: a keyboard in the layout and with the legends of the environment's
/// language, as they are when the panel is made. Clicks on its keys, and keys of the real
/// keyboard while they are captured, say what the selected pad key shall do.
class KeyboardWid : public QWidget
{
    Q_OBJECT

public:
    explicit KeyboardWid(QWidget *parent = nullptr);
    ~KeyboardWid() override;

    /// Unchecks all keys; emits nothing.
    void clearChecked();
    /// Takes every key of the real keyboard, or lets go.
    void setKeyCapture(bool on);
    /// Sizes of the lower corners that something else covers; the keyboard keeps clear of both.
    void setCoveredCorners(const QSize &left, const QSize &right);

    QSize minimumSizeHint() const override;

public slots:
    /// Shows what a pad key does; only a record of `type` 0 changes anything. Emits nothing.
    void slotVantrixKeySelected(vantrix_key_mapping key);

signals:
    /// The user toggled a key: `type` 0, `code` the device code, 255 when it was unchecked.
    void sigKeyChanged(vantrix_key_mapping key);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void fitKeyboard();

    std::unique_ptr<Ui::KeyboardUi> m_ui;
    Keyboard *m_keyboard;
    QSize m_coveredCorner{0, 0}; ///< the larger of both in each direction
};
