#include "types/KsColor.h"

KsColor::KsColor(std::uint32_t rgb, int colorType, std::wstring name)
    : m_rgb(rgb & 0xFFFFFFu)
    , m_colorType(colorType)
    , m_name(std::move(name))
{}

KsColor KsColor::byLayer()
{
    return KsColor(0, ByLayer, L"レイヤ依存");
}

QColor KsColor::toQColor() const
{
    return QColor::fromRgb(static_cast<QRgb>(m_rgb));
}

bool KsColor::operator==(const KsColor& other) const
{
    return m_rgb == other.m_rgb && m_colorType == other.m_colorType && m_name == other.m_name;
}
