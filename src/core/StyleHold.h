#pragma once

#include "core/VantrixKey.h"
#include "interfaces/ButtonGroupEx.h"

/// Holds back the colours of a group of keys while it lives, so that a key that ends as it began is
/// not styled at all.
class StyleHold
{
public:
    explicit StyleHold(const ButtonGroupEx *keys) : m_keys(keys)
    {
        forEach(&VantrixKey::beginUpdate);
    }
    ~StyleHold() { forEach(&VantrixKey::endUpdate); }
    StyleHold(const StyleHold &) = delete;
    StyleHold &operator=(const StyleHold &) = delete;

private:
    void forEach(void (VantrixKey::*operation)())
    {
        const auto buttons = m_keys->buttons();
        for (QAbstractButton *const button : buttons)
            (static_cast<VantrixKey *>(button)->*operation)();
    }

    const ButtonGroupEx *m_keys;
};
