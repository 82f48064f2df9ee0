#pragma once

#include "shell/ShellContext.h"

#include <QString>

#include <vector>

class QMenu;
class QWidget;

/// What the window puts together: the pages beside the mapping page, the find bar, and the
/// entries for files. One place that knows all of them.
class ShellPages
{
public:
    struct Entry
    {
        ShellPage page;
        QString title; ///< of its tab
        QWidget *widget;
    };

    ShellPages() = delete;

    /// All pages but the mapping page, in the order of the tabs; children of `parent`.
    static std::vector<Entry> make(ShellContext &context, QWidget *parent);
    /// The field to find keys with; null if there is none. Ctrl+F gives it the focus.
    static QWidget *makeFindBar(ShellContext &context, QWidget *parent);
    /// Adds import and export; `window` parents what they open.
    static void addFileActions(QMenu *menu, ShellContext &context, QWidget *window);
};
