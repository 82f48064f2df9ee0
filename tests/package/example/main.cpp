#include <core/VantrixMapWid.h>
#include <host/HostServices.h>
#include <vocabulary/KeyLegends.h>

#include <QApplication>
#include <QMainWindow>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QApplication::setStyle("Fusion");
    QApplication::setPalette({QColor("#313137"), QColor("#1a1a1d")}); // dark, with light texts
    HostServices services; // or your own, see interfaces/
    services.environment().setLanguage(LanguageIndex().at("English"));
    QMainWindow window;
    services.environment().setMainWidget(&window); // before the page
    auto *const page = new VantrixMapWid(0);
    window.setCentralWidget(page);
    window.resize(page->sizeHint());
    page->updateUi(0);
    for (const QString &macro : services.store().state().macroNames(0)) // after each updateUi
        page->slotAddKeyAssignMacro(macro.toStdString());
    QObject::connect(page, &VantrixMapWid::sigUpdateKeyMapping, [&services] {
        services.device().send(DeviceImage::of(services.store().state(), 0, 0));
    });
    window.show();
    return app.exec();
}
