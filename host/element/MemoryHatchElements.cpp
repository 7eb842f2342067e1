#include "element/MemoryHatchElements.h"

namespace kesto::element {

const IBoundary* CHatchElementBase::getBoundary(int index) const
{
    if (index < 0 || static_cast<std::size_t>(index) >= m_boundaries.size())
        return nullptr;
    return &m_boundaries[static_cast<std::size_t>(index)];
}

CBoundary& CHatchElementBase::addBoundary(CBoundary boundary)
{
    m_boundaries.push_back(std::move(boundary));
    return m_boundaries.back();
}

CFigureHatchElement::CFigureHatchElement(std::wstring baseFigureName, const Placement& placement)
    : m_baseFigureName(std::move(baseFigureName))
    , m_placement(placement)
{}

const ISlantHatchLine* CSlantHatchElement::getLine(std::size_t index) const
{
    if (index >= m_lines.size() || !m_lines[index])
        return nullptr;
    return &*m_lines[index];
}

CSlantHatchLine& CSlantHatchElement::addLine(CSlantHatchLine line)
{
    m_lines.emplace_back(std::move(line));
    return *m_lines.back();
}

} // namespace kesto::element
