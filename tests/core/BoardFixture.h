#pragma once

#include "core/AssignWid.h"
#include "fakes/FakeProfileCfg.h"
#include "fakes/FakeServices.h"
#include "interfaces/Modal.h"
#include "support/DualKey.h"
#include "support/Gestures.h"

#include <QSignalSpy>

/// A board on fake services, scope 7 and 3, with what it asked and told.
struct BoardFixture
{
    BoardFixture()
    {
        Modal::setAnswerer([this](const ModalPrompt &prompt) {
            warnings << prompt.title + QLatin1Char('|') + prompt.text;
            return QVariant(0);
        });
        board.resize(300, 520);
        board.showProfile(7, 3);
        board.layoutForMode(Mode::Advanced);
        store.clearLog();
    }
    ~BoardFixture() { Modal::setAnswerer(nullptr); }

    VantrixKey *key(int index) const
    {
        return child<VantrixKey>(&board, QStringLiteral("key_%1").arg(index));
    }
    FakeProfileCfg::Profile &profile() { return store.profile(7, 3); }
    vantrix_key_mapping stored(int index) { return profile().keys.at(std::size_t(index)); }
    /// Selects a key as the user does, and forgets the calls that made.
    void select(int index)
    {
        key(index)->click();
        store.clearLog();
    }
    /// The calls without the scope, " 7 3" in each.
    QStringList calls() const { return store.calls().replaceInStrings(" 7 3", ""); }
    QStringList writes() const { return store.writes().replaceInStrings(" 7 3", ""); }

    FakeProfileCfg store;
    FakeEnvironment environment;
    FakeSystemHotKey hotKeys;
    FakeParse parse;
    QStringList warnings;
    AssignWid board;
};

/// The calls of clearing a key's extras, in order.
inline QStringList extrasCleared(int index)
{
    const QString key = QString::number(index);
    return {"delAppAssign " + key, "delHotKeyAssign " + key, "delNamedMacroKey " + key,
            "delShortcutAssign " + key, "delExtendedKey " + key};
}
