#pragma once

#include "host/StoreFile.h"

/// Brings store files of earlier versions up to date.
///
/// | version | what it brought                                             |
/// |---------|-------------------------------------------------------------|
/// | 1       | rows without names: mappings, extras, application paths     |
/// | 2       | rows with names (macros, settings), and the history of steps |
namespace StoreMigration {

/// Makes `target` from `name`, a sound store of an earlier version, which stays as it is. The
/// target appears only when it is complete.
StoreError migrate(const QString &name, const QString &target);

/// Version of a store file; 0 if it can't be read.
int versionOf(const QString &name);

} // namespace StoreMigration
