#include "types/KsFigure.h"

#include <mutex>
#include <set>

namespace {

// Kind names live for the process; a set keeps each name at a stable address.
const std::wstring* internKind(std::wstring_view kind)
{
    static std::mutex guard;
    static std::set<std::wstring, std::less<>> kinds;
    const std::lock_guard<std::mutex> lock(guard);
    auto found = kinds.find(kind);
    if (found == kinds.end())
        found = kinds.emplace(kind).first;
    return &*found;
}

} // namespace

KsFigure::KsFigure(std::wstring_view kind, const KsLayer* layer, bool inBlock)
    : m_kind(internKind(kind))
    , m_layer(layer)
    , m_inBlock(inBlock)
{}
