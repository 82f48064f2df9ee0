#include "application/AppPicture.h"

#include "vocabulary/AppTables.h"

QString appPicture(int appType, int funcId)
{
    const auto &images = AppImages(appType);
    const auto image = images.find(funcId);
    return image == images.end() ? QString() : image->second + QStringLiteral(".png");
}
