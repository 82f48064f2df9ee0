#pragma once

#include <QWidget>

#include <memory>

class QButtonGroup;
namespace Ui {
class PressoUi;
}

/// The switch of pressure sensing that stands beside the board.
class PressoWid : public QWidget
{
    Q_OBJECT

public:
    explicit PressoWid(QWidget *parent = nullptr);
    ~PressoWid() override;

    /// Shows whether pressure sensing is on; emits nothing.
    void setPressoEnable(bool bEnable);

signals:
    /// The user clicked ON (1) or OFF (0), be it the one that was checked already.
    void sigPressoEnableChanged(int enable);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    std::unique_ptr<Ui::PressoUi> m_ui;
    QButtonGroup *m_group;
};
