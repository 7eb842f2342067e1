#include "types/KsLineWidth.h"

#include "utility/NumberFormat.h"

KsLineWidth::KsLineWidth(double width, int kind)
    : m_kind(kind)
{
    setWidth(width);
}

void KsLineWidth::setWidth(double width)
{
    m_width = width;
    makeName();
}

std::wstring KsLineWidth::makeName(double width)
{
    return kesto::utility::formatDecimal(width, 3).toStdWString();
}

bool KsLineWidth::operator==(const KsLineWidth& other) const
{
    return m_width == other.m_width && m_kind == other.m_kind && m_name == other.m_name
           && m_color == other.m_color && m_colorType == other.m_colorType
           && m_colorName == other.m_colorName;
}
