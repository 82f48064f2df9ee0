#pragma once

#include "core/records.h"
#include "toolkit/FixedBtn.h"

#include <QPointer>

class DualActionTipWid;

/// One key on the picture of the pad. It shows what its key does by text, icon and colours, and
/// beside a dual action key a tip with both actions while the pointer rests on it.
///
/// The button keeps a copy of the key's record, which the board reads back. The copy's `type` is
/// KeyType::Label while a label shows (macro, shortcut, application function, hot key); that value
/// stands on the button only, never in the store.
///
/// A label's tool tip stays on the key until another label replaces it. A key without one has a
/// tool tip only where its text had to be cut.
class VantrixKey : public FixedBtn
{
    Q_OBJECT

public:
    /// What a key looks like beyond its record; a dual action in edit gives it back.
    struct Label
    {
        int state = -1; ///< InputType whose colours the label has
        QString text;
        QString toolTip;
    };

    explicit VantrixKey(QWidget *parent);
    ~VantrixKey() override;

    const vantrix_key_mapping &mapping() const { return m_mapping; }
    /// The text as it was given; the face may show it cut.
    const QString &fullText() const { return m_text; }
    /// The label that shows; its state is -1 while none does.
    Label label() const;

    /// Text of the companion feature's key; takes effect with the next mapping.
    void setInfo(const QString &info) { m_info = info; }
    /// Shows a record: a dual action by its depth, all else by name or icon of its code.
    void setMapping(ushort keyIdx, const vantrix_key_mapping &mapping);
    /// Shows a dual action that is not stored yet: the record as it is, in the dual colours.
    void showStagedDualAction(ushort keyIdx, const vantrix_key_mapping &mapping);
    void showDualAction(const vantrix_key_mapping &mapping);
    /// Takes a dual action's depth in percent.
    void setDepth(int depth);
    void showMacro(const QString &text, const QString &toolTip);
    void showHotKey(const QString &hotKey, const QString &keyName);
    /// An unknown application type shows an empty label.
    void showAppFunction(int appType, int funcId);
    void showLabel(const Label &label);
    /// Replaces the tool tip of the label that shows.
    void setLabelToolTip(const QString &toolTip);

    /// Between these two the colours wait: a key that ends as it began is not styled at all.
    void beginUpdate() { m_isUpdating = true; }
    void endUpdate();
    /// How often this key has been styled, for tests and benchmarks.
    int styleCount() const { return m_styleCount; }

protected:
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void render();
    void setFace(const QString &sheet, const QString &text, const QString &spokenName = {});
    /// Shows the tip with the actions of now, or hides it.
    void updateTip();
    void applySheet();
    void setFullText(const QString &text);

    ushort m_keyIdx = 0;
    vantrix_key_mapping m_mapping;
    QPointer<DualActionTipWid> m_tip;
    QString m_info;
    QString m_text;
    QString m_labelToolTip;
    QString m_sheet;
    int m_labelState = -1;
    bool m_isUpdating = false;
    bool m_sheetWaits = false;
    int m_styleCount = 0;
};
