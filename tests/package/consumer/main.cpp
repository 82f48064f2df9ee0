#include <core/VantrixMapWid.h>
#include <host/HostServices.h>
#include <interfaces/CfgFile.h>

#include <QApplication>
#include <QTemporaryDir>

/// Shows the page, and takes the catalog that was installed with the programs in the folder named.
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
    const QString share = HostLocations::shareFolderOf(programs);
    services.locations().setShareFolder(share);
    services.locations().install(services.store());
    QString catalog;
    CfgFile::ReadAppHotKeysFolder(catalog);
    const bool hasCatalog = !share.isEmpty() && catalog == share + CfgFile::hotkeysFolder();
    return page.isVisible() && hasCatalog ? 0 : 1;
}
