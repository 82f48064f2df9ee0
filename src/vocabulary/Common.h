#pragma once

#include "interfaces/VantrixExport.h"

#include <QString>

class QAbstractButton;
class QKeyEvent;
class QLabel;

/// Small operations on texts and keys that all panels share. Interface thread only.
class VANTRIX_EXPORT Common
{
public:
    Common() = delete;

    /// `out` is `in`, in double quotes when it holds a blank, fit for a command line.
    static void FilePath(const QString &in, QString &out);
    /// Prepares a key name for a label: "&&" becomes "&", line breaks and blanks go.
    static void FormatChar(QString &text);
    /// For rich text: "<" becomes "&lt;", "&&" becomes "&".
    static void SpecialCharHandle(const QString &in, QString &out);
    /// Every blank becomes a line break.
    static void TextWrap(QString &text);
    /// The text to give a button or an action so that `text` is what is read: ampersands doubled.
    static QString ButtonText(QString text);
    /// A tool tip that shows a text as it is: the text itself, unless Qt would take it for markup.
    static QString PlainTip(const QString &text);
    /// Sets the text, elided on the right to the widget's width; the tool tip shows the whole text
    /// when it was elided, else none.
    static void SetText(QAbstractButton *button, const QString &text);
    static void SetText(QLabel *label, const QString &text);
    /// Lets events run for at least `ms` milliseconds; 0 and less return at once. Slots may
    /// be re-entered.
    static void Wait(int ms);
    /// Device code of a captured key event; 0 for a key without one.
    static ushort ZKKeyCode(QKeyEvent *event);

    /// Translated names of the functions of the creative applications; "UNKNOWN" for an id
    /// outside 0 to 18.
    static QString PhotoshopFuncName(int funcId);
    static QString PremiereProFuncName(int funcId);
    static QString IllustratorFuncName(int funcId);

    /// Sheet of a key in the colour of an InputType; white for a type without a colour.
    static void keyColorStyle(int inputType, QString &style);
    /// The same with an icon: the picture of `code` for media and controller, else `imagePath`.
    /// Without a picture the icon is empty.
    static void keyIconStyle(int inputType, ushort code, const QString &imagePath, QString &style);
};
