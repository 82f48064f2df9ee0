#pragma once

#include <QWidget>

#include <memory>

namespace Ui {
class DualActionDistUi;
}

/// The slider of the activation distance: how deep a key is pressed before its second action acts,
/// in percent of the key's travel, 10 to 90, initially 50.
class DualActionDistWid : public QWidget
{
    Q_OBJECT

public:
    explicit DualActionDistWid(QWidget *parent = nullptr);
    ~DualActionDistWid() override;

    /// Shows a distance without a signal. For one out of range the slider stands at the nearer end,
    /// and the number beside it tells what the key holds.
    void setDistance(int percent);
    /// Where the slider stands.
    int distance() const;

signals:
    /// The user moved the slider.
    void sigDualActionDepthChanged(int iDepth);

private slots:
    void slotDistanceChanged(int iVal);

private:
    void showDistance(int percent);

    const std::unique_ptr<Ui::DualActionDistUi> m_ui;
};
