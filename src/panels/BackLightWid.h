#pragma once

#include "panels/FunctionWid.h"

#include <memory>

namespace Ui {
class BackLightUi;
}

/// The panel of the backlight: effects, speed and brightness, the pairs of plus and minus side by
/// side. Where the panel is lower than they like to be, the entries, and what is around them, get
/// smaller.
class BackLightWid : public FunctionWid
{
    Q_OBJECT

public:
    explicit BackLightWid(QWidget *parent = nullptr);
    ~BackLightWid() override;

    QSize minimumSizeHint() const override;

signals:
    /// The user clicked an entry: `type` 0, `code` its device code, 255 when it was unchecked.
    void sigBackLightChanged(vantrix_key_mapping key);

protected:
    void resizeEvent(QResizeEvent *event) override;

private slots:
    void slotKeyClicked(QAbstractButton *button);

private:
    std::unique_ptr<Ui::BackLightUi> m_ui;
    QSize m_minimumSizeHint;
};
