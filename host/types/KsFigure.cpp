#include "types/KsFigure.h"

#include "types/KsLineType.h"

#include <algorithm>
#include <cmath>
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

// Drawings hold millions of figures: 40 bytes take the same heap block as the bare figure did.
static_assert(sizeof(KsFigure) <= 40, "a figure must stay small");

KsFigure::KsFigure(std::wstring_view kind, const KsLayer* layer, bool inBlock)
    : m_kind(internKind(kind))
    , m_layer(layer)
    , m_inBlock(inBlock ? 1 : 0)
{}

KsColor KsFigure::getColor() const
{
    if (isColorByLayer())
        return KsColor::byLayer();
    KsColor color(m_color & 0xFFFFFFu, colorType());
    color.setNumber(m_colorNumber);
    return color;
}

void KsFigure::setColor(const KsColor& color)
{
    const auto type = static_cast<std::uint32_t>(color.getColorType()) & 0xFFu;
    m_color = color.isByLayer() ? 0u : (type << 24) | (color.getRGB() & 0xFFFFFFu);
    m_colorNumber = color.isByLayer() ? 0 : static_cast<std::uint8_t>(color.getNumber());
}

void KsFigure::setLineType(const KsLineType* lineType)
{
    m_lineType = lineType && !lineType->isByLayer() ? lineType : nullptr;
}

KsLineWidth KsFigure::getLineWidth() const
{
    if (isLineWidthByLayer())
        return KsLineWidth(0.0, KsLineWidth::ByLayer);
    return KsLineWidth(m_widthMicrometres / 1000.0, m_widthKind);
}

void KsFigure::setLineWidth(double width, int kind)
{
    if (kind < KsLineWidth::Explicit || kind > KsLineWidth::ExtraBold)
        kind = KsLineWidth::Explicit;
    m_widthKind = static_cast<std::uint8_t>(kind);
    const double clamped = std::isfinite(width) ? std::clamp(width, 0.0, kMaxWidth) : 0.0;
    m_widthMicrometres = static_cast<std::uint16_t>(std::lround(clamped * 1000.0));
}
