#pragma once

#include <QPixmap>

class QLabel;

/// A picture that a panel shows as large as its own size allows. Sizes are logical pixels; the
/// double-resolution file is what gets scaled, so that enlargements stay sharp.
class PanelPicture
{
public:
    /// A PNG of the resource tree, the path without suffix.
    explicit PanelPicture(const QString &path);

    /// The largest size of the picture's proportions in a box.
    QSize fittedInto(const QSize &box) const;
    /// Shows the picture at a size and fixes the label to that size.
    void showIn(QLabel *label, const QSize &size) const;
    /// The unscaled picture.
    const QPixmap &source() const { return m_source; }

private:
    QPixmap m_source;
};
