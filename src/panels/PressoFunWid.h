#pragma once

#include "panels/FunctionWid.h"

#include <memory>

namespace Ui {
class PressoFunUi;
}

/// The panel of the pressure keys: the deadzone calibration, code 312.
class PressoFunWid : public FunctionWid
{
    Q_OBJECT

public:
    explicit PressoFunWid(QWidget *parent = nullptr);
    ~PressoFunWid() override;

signals:
    /// The user clicked an entry: `type` 0, `code` its device code, 255 when it was unchecked.
    void sigPressoFunChanged(vantrix_key_mapping key);

private slots:
    void slotPressoFunKeyClicked(QAbstractButton *button);

private:
    std::unique_ptr<Ui::PressoFunUi> m_ui;
};
