#pragma once

#include "shell/ShellContext.h"

#include <QTemporaryDir>

/// Services on a folder that lives as long as the test, and the context on them.
struct ShellFixture
{
    ShellFixture() : services(folder.filePath(QStringLiteral("data"))), context(services)
    {
        services.locations().setShareFolder(QString());
    }

    ProfileStore &store() { return services.store(); }
    SimulatedDevice &device() { return services.device(); }
    void assign(int keyIdx, ushort code, int profile = 0)
    {
        const vantrix_key_mapping mapping = plainKey(code);
        store().setKeyMapping(ShellContext::Owner, profile, keyIdx, &mapping);
        store().flush();
    }
    void apply(int profile = 0)
    {
        device().send(DeviceImage::of(store().state(), ShellContext::Owner, profile));
        store().flush();
    }

    QTemporaryDir folder;
    HostServices services;
    ShellContext context;
};
