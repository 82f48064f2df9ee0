#pragma once

class QColor;
class QPalette;

/// The colours of texts, fields and native controls on the dark grounds that the sheets of the
/// page draw, so that they are legible whatever palette the host has.
QPalette darkPalette();

/// Black or white, whichever has more contrast on `ground`.
QColor readableOn(const QColor &ground);
