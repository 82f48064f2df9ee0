#include <core/VantrixMapWid.h>
#include <host/HostServices.h>

#include <QApplication>
#include <QTemporaryDir>

/// Shows the page, and looks for the catalog as a program in the folder that is named would.
int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const QTemporaryDir data;
    HostServices services(data.path());
    VantrixMapWid page(0);
    page.updateUi(0);
    page.show();
    app.processEvents();
    const QString programs = app.arguments().value(1);
    const bool hasCatalog = !HostLocations::shareFolderOf(programs).isEmpty();
    return page.isVisible() && hasCatalog ? 0 : 1;
}
