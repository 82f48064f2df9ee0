#pragma once

class QString;
class QWidget;

/// Gives a widget's font as narrow a stretch as it takes for a text to find room in `room`
/// pixels, down to half the usual width; wider text is cut.
void narrowText(QWidget *widget, const QString &text, int room);
/// Does so with the present text of a label or a button whenever its size changes, leaving
/// `margins` pixels of its width free.
void keepTextNarrow(QWidget *widget, int margins = 0);
