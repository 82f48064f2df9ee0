#pragma once

#include "interfaces/TopWid.h"

#include <memory>

namespace Ui {
class DualActionTipUi;
}

/// The tip beside a dual action key: the names of its two actions, each in its colour.
class DualActionTipWid : public TopWid
{
    Q_OBJECT

public:
    explicit DualActionTipWid(QWidget *parent = nullptr);
    ~DualActionTipWid() override;

    /// Takes key names as buttons show them, with doubled ampersands.
    void setTips(QString action1Name, QString action2Name);

private:
    const std::unique_ptr<Ui::DualActionTipUi> m_ui;
};
