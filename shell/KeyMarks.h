#pragma once

#include <QWidget>

#include <set>
#include <utility>

/// A clear sheet over the mapping page that frames keys. It lets every click through and finds the
/// keys by their names each time it paints, so it needs no news of their layout.
class KeyMarks : public QWidget
{
    Q_OBJECT

public:
    explicit KeyMarks(QWidget *page);

    /// Frames those of the keys that are of the profile.
    void setKeys(const std::set<std::pair<int, int>> &keys, int profile);

protected:
    void paintEvent(QPaintEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    std::set<int> m_keys;
};
