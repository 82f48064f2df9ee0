#pragma once

#include <QColor>
#include <QPalette>
#include <QString>

class QWidget;

/// Colours and sheets of the shell's own widgets: dark, of one family with the page. The page
/// takes the palette and styles itself.
class ShellStyle
{
public:
    ShellStyle() = delete;

    /// Style and palette of the application; once, before the first widget.
    static void install();

    static QColor window();  ///< ground of the window
    static QColor panel();   ///< ground of panels on it
    static QColor raised();  ///< fields, rows under the pointer
    static QColor line();    ///< separators and borders
    static QColor text();    ///< what is read
    static QColor dim();     ///< what is read second
    static QColor accent();  ///< selection and focus
    static QColor warning(); ///< what waits for the user

    /// Sheet of a panel with lists, buttons and fields: set it on the panel once, before it is
    /// shown.
    static QString panelSheet();
    /// Sheet of the bar with the names of the pages.
    static QString tabSheet();
    /// Sheet of the button that a panel is about.
    static QString primarySheet();
    /// Colour of a function kind that can be told from the dark ground: the legend's colours, the
    /// dark ones lightened.
    static QColor kind(int inputType);
    /// The heading of a panel.
    static QString headingSheet();
};
