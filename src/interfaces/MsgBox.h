#pragma once

#include "interfaces/VantrixExport.h"

#include <QString>

class QWidget;

/// Message boxes of the toolkit. Interface thread only; both block until answered.
class VANTRIX_EXPORT MsgBox
{
public:
    MsgBox() = delete;

    /// A warning with one button.
    static void warning(QWidget *parent, const QString &title, const QString &text);
    /// A question; nonzero for yes.
    static int question(QWidget *parent, const QString &title, const QString &text);
};
