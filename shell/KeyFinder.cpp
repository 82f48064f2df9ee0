#include "shell/KeyFinder.h"

#include "host/KeyText.h"
#include "vocabulary/KeyCodes.h"

#include <algorithm>

namespace {

enum Rank { Whole, Start, Word, Inside, None };

Rank rankOf(const QString &name, const QString &query)
{
    if (name.compare(query, Qt::CaseInsensitive) == 0)
        return Whole;
    int at = name.indexOf(query, 0, Qt::CaseInsensitive);
    if (at < 0)
        return None;
    if (at == 0)
        return Start;
    for (int next = at; next > 0; next = name.indexOf(query, next + 1, Qt::CaseInsensitive)) {
        if (!name.at(next - 1).isLetterOrNumber())
            return Word;
    }
    return query.size() > 1 ? Inside : None;
}

} // namespace

void KeyFinder::read(const StoreState &state, int owner)
{
    m_entries.clear();
    int place = 0;
    for (const int profile : state.profileOrder(owner)) {
        const ProfileKeys keys = state.keys(owner, profile);
        for (int i = 0; i < KeyCount; ++i) {
            const KeyContent &key = keys[std::size_t(i)];
            Entry entry;
            entry.hit = {profile, i, KeyText::inputType(i, key), KeyText::functionName(i, key)};
            entry.isOwn = entry.hit.inputType == InputType::Unassigned;
            entry.legend = entry.hit.function;
            if (KeyText::isCleared(i, key)) {
                entry.legend = KeyText::codeName(defaultCodeOfKey(i));
                entry.hit.function = tr("%1 (unassigned)").arg(entry.legend);
            }
            entry.place = place;
            m_entries.push_back(entry);
        }
        ++place;
    }
}

std::vector<KeyHit> KeyFinder::find(const QString &text, int shownProfile) const
{
    const QString query = text.simplified();
    std::vector<KeyHit> hits;
    if (query.isEmpty())
        return hits;
    std::vector<std::pair<std::tuple<int, bool, bool, int, int>, const Entry *>> found;
    for (const Entry &entry : m_entries) {
        const Rank rank = std::min(rankOf(entry.legend, query), rankOf(entry.hit.function, query));
        if (rank != None)
            found.push_back({{rank, entry.isOwn, entry.hit.profile != shownProfile, entry.place,
                              entry.hit.keyIdx},
                             &entry});
    }
    std::sort(found.begin(), found.end());
    for (const auto &row : found)
        hits.push_back(row.second->hit);
    return hits;
}
