#pragma once

#include "host/DeviceImage.h"
#include "host/ProfileStore.h"

#include <random>

/// Edits of every sort on a store, the same for the same seed.
class StoreEdits
{
public:
    static constexpr int Owner = 1;

    StoreEdits(ProfileStore &store, quint32 seed) : m_store(store), m_random(seed) {}

    /// Selects a key in some profile, changes of view that make no step.
    void look();
    /// One edit that changes contents, whatever stood there before.
    void edit();

private:
    int below(int limit) { return int(m_random() % quint32(limit)); }
    void editKey();
    void editDual();
    void editPreset();
    void editApp();
    void editHotKey();
    void editShortcut();
    void editExtended();
    void editMacroKey();
    void editMacros();
    void editProfiles();
    void editPresso();
    void importFile();
    void putBack();
    void clearKey();
    void clearExtras(int keyIdx);
    vantrix_macro_record randomMacro();
    QString anyMacro();

    ProfileStore &m_store;
    std::mt19937 m_random;
    int m_profile = 0;
    int m_key = 0;
    int m_count = 0;
    QByteArray m_file;
    DeviceImage m_sent = DeviceImage::factory(Owner, 0);
};
