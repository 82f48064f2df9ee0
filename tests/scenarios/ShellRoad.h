#pragma once

#include "shell/MainWindow.h"
#include "support/Gestures.h"

#include <QPushButton>
#include <QTemporaryDir>

#include <memory>

/// The shell's window on an X server, on a data folder that stays until `forget`: what a session
/// of a person begins and ends with.
class ShellRoad
{
protected:
    /// Starts the program in a language of `LanguageIndex`; its window has the keyboard.
    void start(int language = 0, const QSize &size = QSize());
    /// Ends the program; the data stay.
    void quit();
    /// The next program starts afresh.
    void forget() { m_folder = std::make_unique<QTemporaryDir>(); }

    template <typename T>
    T *get(const char *name) const
    {
        return child<T>(m_window.get(), QString::fromLatin1(name));
    }
    QPushButton *key(int keyIdx) const
    {
        return get<QPushButton>(qPrintable(QStringLiteral("key_%1").arg(keyIdx)));
    }
    ProfileStore &store() const { return m_services->store(); }
    const StoreState &state() const { return store().state(); }
    vantrix_key_mapping stored(int keyIdx) const { return state().mapping(0, 0, keyIdx); }

    std::unique_ptr<QTemporaryDir> m_folder = std::make_unique<QTemporaryDir>();
    std::unique_ptr<HostServices> m_services;
    std::unique_ptr<ShellContext> m_context;
    std::unique_ptr<MainWindow> m_window;
};
