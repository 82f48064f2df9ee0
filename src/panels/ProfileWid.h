#pragma once

#include "panels/FunctionWid.h"

#include <memory>

namespace Ui {
class ProfileUi;
}

/// The panel of the profiles: the 24 profiles of the device, and the next and the previous one.
class ProfileWid : public FunctionWid
{
    Q_OBJECT

public:
    explicit ProfileWid(QWidget *parent = nullptr);
    ~ProfileWid() override;

signals:
    /// The user clicked an entry: `type` 0, `code` its device code, 255 when it was unchecked.
    void sigProfileChanged(vantrix_key_mapping key);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private slots:
    void slotKeyClicked(QAbstractButton *button);

private:
    void scrollToChecked();

    std::unique_ptr<Ui::ProfileUi> m_ui;
};
