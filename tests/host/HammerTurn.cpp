#include "HammerTurn.h"

namespace {
constexpr int Owner = 1;
}

void hammerTurn(ProfileStore &store, int turn)
{
    if (turn % 7 == 3) {
        store.undo();
        return;
    }
    const int profile = turn % ProfileCount;
    store.setCurrentKey(Owner, profile, turn % KeyCount);
    store.clearAssignsForPreset(Owner, profile);
    store.clearNamedMacros(Owner, profile);
    vantrix_macro_record macro;
    macro.count = 100;
    macro.events[0] = {quint16(turn), 1, 20};
    const QString name = QStringLiteral("Macro %1").arg(turn % 5);
    if (!store.addMacro(Owner, name, macro))
        store.setMacro(Owner, name, macro);
    for (int i = 0; i < KeyCount; ++i) {
        const vantrix_key_mapping key = plainKey(ushort(turn * KeyCount + i));
        store.setKeyMapping(Owner, profile, i, &key);
        if (i % 3 == 0)
            store.setNamedMacroKey(Owner, profile, name.toStdString(), i);
    }
    store.setPanel(Owner, profile, turn % 9);
}
