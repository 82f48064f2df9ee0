#pragma once

#include <QString>

class ProfileStore;

/// The folder in which files of profiles were looked for last.
namespace ExchangeFolder {

/// The user's home before the first time, and when that folder is gone.
QString of(const ProfileStore &store);
/// Keeps the folder of a file.
void remember(ProfileStore &store, const QString &fileName);

} // namespace ExchangeFolder
