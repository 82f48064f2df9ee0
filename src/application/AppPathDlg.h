#pragma once

#include "interfaces/OstraDlg.h"

#include <memory>

namespace Ui {
class AppPathDlg;
}

/// Shows where the executable of an application lies and lets the user point to another one.
/// Only APPLY stores the path, and only if it changed. The result code means nothing.
class AppPathDlg : public OstraDlg
{
    Q_OBJECT

public:
    /// `appType` is an AppType; an unknown one shows no picture.
    explicit AppPathDlg(int appType, QWidget *parent);
    ~AppPathDlg() override;

private slots:
    void slotPathChanged();
    void slotApply();

private:
    std::unique_ptr<Ui::AppPathDlg> m_ui;
    const int m_appType;
};
