#include "shell/ShellPages.h"

#include "shell/ChangesPage.h"
#include "shell/HistoryPage.h"

#include <QCoreApplication>
#include <QMenu>

std::vector<ShellPages::Entry> ShellPages::make(ShellContext &context, QWidget *parent)
{
    const auto title = [](const char *text) {
        return QCoreApplication::translate("ShellPages", text);
    };
    return {
        {ShellPage::Changes, title(QT_TRANSLATE_NOOP("ShellPages", "CHANGES")),
         new ChangesPage(context, parent)},
        {ShellPage::History, title(QT_TRANSLATE_NOOP("ShellPages", "HISTORY")),
         new HistoryPage(context, parent)},
    };
}

QWidget *ShellPages::makeFindBar(ShellContext &, QWidget *)
{
    return nullptr;
}

void ShellPages::addFileActions(QMenu *, ShellContext &, QWidget *) {}
