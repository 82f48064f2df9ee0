#pragma once

#include <QCoreApplication>
#include <QStringList>

#include <vector>

/// How the shell calls the keys of the pad.
class KeyTitle
{
    Q_DECLARE_TR_FUNCTIONS(KeyTitle)

public:
    KeyTitle() = delete;

    /// "Key 7".
    static QString of(int keyIdx);
    /// "Key 7 (W)", with what the key sends when nothing is assigned to it.
    static QString withLegend(int keyIdx);
    /// "Key 7" or "Keys 3, 7 and 11".
    static QString of(const std::vector<int> &keys);
};
