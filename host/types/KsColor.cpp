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

QString KsColor::rgbText(std::uint32_t rgb)
{
    return QStringLiteral("#%1").arg(rgb & 0xFFFFFFu, 6, 16, QLatin1Char('0')).toUpper();
}

bool KsColor::readRgbText(const QString& text, std::uint32_t& out)
{
    if (text.size() != 7 || !text.startsWith(u'#'))
        return false;
    bool ok = false;
    const uint value = QStringView(text).mid(1).toUInt(&ok, 16);
    if (!ok || text[1] == u'+' || text[1] == u'-')
        return false;
    out = value & 0xFFFFFFu;
    return true;
}
