#pragma once

#include <QLabel>
#include <QRegion>

/// The picture of the pad below its keys: all of it, or what is left in simple mode without its
/// head. Its alpha tells where the pad is, for whoever leaves it uncovered.
class PadPicture : public QLabel
{
    Q_OBJECT

public:
    explicit PadPicture(QWidget *parent = nullptr);

    /// Shows the part that a mode shows, as large as `room` allows, and returns its size.
    QSize showPart(int mode, const QSize &room);
    /// The pad's outline in the coordinates of `mainWid`, anywhere on the screen; empty without a
    /// widget or before the picture shows. Trimmed by some pixels, which the drawing allows for.
    QRegion outlineIn(const QWidget *mainWid) const;
};
