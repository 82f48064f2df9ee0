#pragma once

#include <QString>
#include <QStringList>

class QPoint;
class QWidget;

/// Gestures as a person makes them: through the X server, so that every event is a native one.
/// Each returns after the events have been worked off.
namespace XGestures {

/// Runs xdotool with these arguments; false if that failed.
bool xdotool(const QStringList &arguments);
/// Lays the server's keyboard out for a country, e.g. "de".
bool setLayout(const QString &layout);
/// Gives a window the keyboard, as a window manager would.
void focus(QWidget *window);
/// A left click in the middle of a widget, or at a point of it.
void click(QWidget *widget);
void click(QWidget *widget, const QPoint &at);
void doubleClick(QWidget *widget, const QPoint &at);
/// A key or chord by its X name, e.g. "ctrl+z"; or a key by its X code, e.g. "94".
void key(const QString &name);
/// A text, letter by letter.
void type(const QString &text);

} // namespace XGestures
