#include "shell/ExchangeFolder.h"

#include "host/ProfileStore.h"

#include <QDir>
#include <QFileInfo>

namespace {

QString settingName()
{
    return QStringLiteral("filesFolder");
}

} // namespace

QString ExchangeFolder::of(const ProfileStore &store)
{
    const QString folder = store.setting(settingName());
    return folder.isEmpty() || !QDir(folder).exists() ? QDir::homePath() : folder;
}

void ExchangeFolder::remember(ProfileStore &store, const QString &fileName)
{
    store.setSetting(settingName(), QFileInfo(fileName).absolutePath());
}
