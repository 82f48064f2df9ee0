#pragma once

#include "toolkit/FixedBtn.h"

class QHBoxLayout;
class QLabel;

/// An entry of the preset list: a tag of one or two letters on black, and a name.
class PanelBtn : public FixedBtn
{
    Q_OBJECT

public:
    /// Where the tag stands.
    enum class Offset {
        Group, ///< 10 pixels from the left
        Preset ///< a third of the width from the left
    };

    PanelBtn(const QString &tag, const QString &name, Offset offset, QWidget *parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    QHBoxLayout *m_row;
    QLabel *m_name;
    Offset m_offset;
};
