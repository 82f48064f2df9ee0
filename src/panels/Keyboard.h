#pragma once

#include "core/records.h"

#include <QWidget>

#include <map>

class ButtonGroupEx;
class FixedBtn;
class KeyBtn;
class QAbstractButton;
class QBoxLayout;
class QGridLayout;
class QKeyEvent;

/// A whole PC keyboard made of buttons, in one of the layouts of KeyboardLayout, with the legends
/// of one language. A button is named `btn_` and the Windows scan code of its key, with 256 added
/// for extended keys, which is also its id in the group.
///
/// All sizes follow from the height: a plain key is a square of 14/111 of it.
class Keyboard : public QWidget
{
    Q_OBJECT

public:
    /// `layout` is a KeyboardLayout, `language` an index of LanguageIndex. Begins in the size that
    /// the layout is drawn for.
    Keyboard(int layout, int language, QWidget *parent = nullptr);
    ~Keyboard() override;

    /// Checks the button of a device code; a code without a button leaves none checked. Emits
    /// nothing.
    void selectKeyCode(ushort code);
    void clearChecked();
    /// Grabs the real keyboard, so that each key released there toggles its button, or lets go.
    /// The grab pauses while something modal runs, while the keyboard is hidden and while another
    /// application is the active one.
    void setKeyCapture(bool on);
    /// The width that the keys take at a height, without any room to spare.
    int widthAtHeight(int height) const;
    /// The largest height at which the keys find room in `width`.
    int heightThatFits(int width) const;

    QSize minimumSizeHint() const override;

signals:
    /// The user toggled a key: a record of `type` 0 with the key's device code, or 255 when
    /// the key was unchecked.
    void sigKeyChanged(vantrix_key_mapping key);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private slots:
    void slotKeyClicked(QAbstractButton *pKey);

private:
    void buildMainBlock();
    void addRow(QBoxLayout *rows, const std::vector<int> &scanCodes);
    void buildNavigation();
    void buildKeypad();
    void addCell(QGridLayout *grid, int scanCode, int row, int column, int rowSpan = 1,
                 int columnSpan = 1);
    FixedBtn *makeFiller(const QString &name);
    KeyBtn *makeKey(int scanCode);
    void fillGroup(int language);
    void fitKeys(int unit);
    int widthOfUnit(int unit) const;
    void updateGrab();
    bool isRepeat(const QKeyEvent *release, quint32 scanCode);

    int m_layout;
    ButtonGroupEx *m_group;
    std::map<int, KeyBtn *> m_keys; ///< by scan code
    FixedBtn *m_navigationFiller;
    FixedBtn *m_keypadFiller;
    FixedBtn *m_logo;
    int m_unit = -1;

    bool m_capture = false; ///< a grab was asked for
    bool m_grabbed = false; ///< a grab is in force
    bool m_hidden = false;
    bool m_inactive = false; ///< another application is active
    int m_modalCount = 0;    ///< modal things that run

    quint32 m_releasedScan = 0;  ///< key of the last release
    ulong m_releasedAt = 0;      ///< its time stamp, 0 for none
    quint32 m_repeatingScan = 0; ///< key that is being held down
};
