#pragma once

class QColor;

/// Black or white, whichever has more contrast on `ground`.
QColor readableOn(const QColor &ground);
