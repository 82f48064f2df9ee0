#pragma once

#include <QSlider>

#include <vector>

/// A vertical slider for the depth of a key in percent, 0 at the top, with marks at the depths
/// where the key does something.
class DepthSlider : public QSlider
{
    Q_OBJECT

public:
    explicit DepthSlider(QWidget *parent = nullptr);

    void setEdges(const std::vector<int> &percents);
    const std::vector<int> &edges() const { return m_edges; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    std::vector<int> m_edges;
};
