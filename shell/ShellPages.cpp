#include "shell/ShellPages.h"

#include "interfaces/Modal.h"
#include "shell/ChangesPage.h"
#include "shell/CheckPage.h"
#include "shell/DeviceView.h"
#include "shell/ExportDlg.h"
#include "shell/FindBar.h"
#include "shell/HistoryPage.h"
#include "shell/ImportDlg.h"
#include "shell/MacroPage.h"

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
        {ShellPage::Macros, title(QT_TRANSLATE_NOOP("ShellPages", "MACROS")),
         new MacroPage(context, parent)},
        {ShellPage::Device, title(QT_TRANSLATE_NOOP("ShellPages", "DEVICE")),
         new DeviceView(context, parent)},
        {ShellPage::Check, title(QT_TRANSLATE_NOOP("ShellPages", "CHECK")),
         new CheckPage(context, parent)},
    };
}

QWidget *ShellPages::makeFindBar(ShellContext &context, QWidget *parent)
{
    return new FindBar(context, parent);
}

void ShellPages::addFileActions(QMenu *menu, ShellContext &context, QWidget *window)
{
    const auto add = [&](const char *name, const char *text, Qt::Key shortcut, auto open) {
        QAction *const action = menu->addAction(QCoreApplication::translate("ShellPages", text),
                                                window, open, QKeySequence(Qt::CTRL | shortcut));
        action->setObjectName(QLatin1String(name));
    };
    add("m_importAction", QT_TRANSLATE_NOOP("ShellPages", "Import profiles..."), Qt::Key_I,
        [&context, window] {
            ImportDlg dialog(context, window);
            Modal::exec(&dialog);
        });
    add("m_exportAction", QT_TRANSLATE_NOOP("ShellPages", "Export profiles..."), Qt::Key_E,
        [&context, window] {
            ExportDlg dialog(context, window);
            Modal::exec(&dialog);
        });
}
