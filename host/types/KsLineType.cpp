#include "types/KsLineType.h"

KsLineType::KsLineType(int id, std::wstring name, int kind, std::vector<double> dashes)
    : m_id(id)
    , m_name(std::move(name))
    , m_kind(kind)
    , m_dashes(std::move(dashes))
{}

KsLineType KsLineType::byLayer()
{
    return KsLineType(0, L"レイヤ依存", ByLayer);
}

bool KsLineType::operator==(const KsLineType& other) const
{
    return m_id == other.m_id && m_name == other.m_name && m_kind == other.m_kind
           && m_dashes == other.m_dashes;
}
