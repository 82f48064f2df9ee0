#include <core/VantrixMapWid.h>
#include <host/HostServices.h>

#include <QApplication>
#include <QTemporaryDir>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const QTemporaryDir data;
    HostServices services(data.path());
    VantrixMapWid page(0);
    page.updateUi(0);
    page.show();
    app.processEvents();
    return page.isVisible() ? 0 : 1;
}
