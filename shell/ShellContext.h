#pragma once

#include "host/HostServices.h"

#include <QObject>

#include <set>
#include <utility>

/// The pages of the window. The mapping page is always there; the others stand beside it, or in
/// its place where the window is narrow.
enum class ShellPage { Mapping, Changes, History, Macros, Device, Check };

/// What every page of the shell knows: the services, what is shown, and how to ask for more. Made
/// by whoever runs the shell, outlives all pages. Interface thread.
class ShellContext : public QObject
{
    Q_OBJECT

public:
    /// Owner of everything the shell keeps.
    static constexpr int Owner = 0;

    explicit ShellContext(HostServices &services, QObject *parent = nullptr)
        : QObject(parent), m_services(services)
    {
    }

    HostServices &services() { return m_services; }
    ProfileStore &store() { return m_services.store(); }
    SimulatedDevice &device() { return m_services.device(); }
    int owner() const { return Owner; }
    /// Profile that is shown, from 0.
    int profile() const { return m_profile; }
    /// Told by the mapping view after it has shown a profile; emits `profileShown`.
    void setProfile(int profile)
    {
        m_profile = profile;
        emit profileShown(profile);
    }

signals:
    /// The profile is shown, also when it is the one that was shown before.
    void profileShown(int profile);

    /// @name Requests
    /// Show that profile and select that key; `key` 28 or more selects none.
    void goTo(int profile, int key);
    void pageRequested(ShellPage page);
    /// Bring the keys into view, in place of another page where there is no room for both.
    void keysWanted();
    /// Make a new macro: the macro page opens and begins one.
    void newMacroRequested();
    /// Send the shown profile to the device.
    void applyRequested();
    /// Take steps back or forth until that many are done.
    void historyRequested(int position);
    /// Say something in the status line.
    void status(const QString &text);

    /// @name What the mapping page must be told about macros
    /// After the store has added it.
    void macroAdded(const QString &name);
    /// Before the store removes it.
    void macroAboutToBeRemoved(const QString &name);
    /// After the store has renamed it.
    void macroRenamed(const QString &oldName, const QString &newName);

    /// The window has turned to that page.
    void pageShown(ShellPage page);
    /// The window is about to be closed, or to be made anew.
    void leaving();

    /// The device has taken the shown profile.
    void applied();

    /// Profile and key of all that light up; empty for none.
    void keysMarked(const std::set<std::pair<int, int>> &keys);

private:
    HostServices &m_services;
    int m_profile = 0;
};
