#include "db/MemoryDataBase.h"

#include "types/KsLayer.h"

#include <algorithm>

CMemoryDataBase::CMemoryDataBase(std::wstring title)
    : m_title(std::move(title))
{}

void CMemoryDataBase::listElements(const std::wstring& type, std::vector<KsObject*>& out) const
{
    const auto it = m_byType.find(type);
    if (it == m_byType.end())
        return;
    out.reserve(out.size() + it->second.size());
    for (const auto& element : it->second)
        out.push_back(element.get());
}

std::size_t CMemoryDataBase::countElements(const std::wstring& type) const
{
    const auto it = m_byType.find(type);
    return it == m_byType.end() ? 0 : it->second.size();
}

void CMemoryDataBase::forEachElement(const std::function<void(KsObject&)>& visit) const
{
    for (const auto& [type, elements] : m_byType) {
        for (const auto& element : elements)
            visit(*element);
    }
}

KsObject* CMemoryDataBase::addElement(std::unique_ptr<KsObject> element)
{
    if (!element)
        return nullptr;
    auto& list = m_byType[element->getType()];
    list.push_back(std::move(element));
    return list.back().get();
}

bool CMemoryDataBase::removeElement(const KsObject* element)
{
    // The pointer may no longer be valid: compare addresses only.
    for (auto& [type, list] : m_byType) {
        const auto found = std::find_if(list.begin(), list.end(),
                                        [&](const auto& owned) { return owned.get() == element; });
        if (found != list.end()) {
            if (static_cast<const KsObject*>(m_layerManager.getCurrentLayer()) == element)
                m_layerManager.setCurrentLayer(nullptr);
            list.erase(found);
            return true;
        }
    }
    return false;
}

void CMemoryDataBase::clear()
{
    m_layerManager.setCurrentLayer(nullptr);
    m_byType.clear();
}

bool CMemoryDataBase::updateLineWidth(KsLineWidth* element, const KsLineWidth& value)
{
    const auto it = m_byType.find(L"LWIDTH");
    if (!element || it == m_byType.end())
        return false;
    const bool owned = std::any_of(it->second.begin(), it->second.end(),
                                   [&](const auto& e) { return e.get() == element; });
    if (!owned)
        return false;
    element->setWidth(value.getWidth());
    element->setName(value.getName());
    element->setColor(value.getColor());
    element->setColorType(value.getColorType());
    element->setColorName(value.getColorName());
    return true;
}

bool CMemoryDataBase::getLineWidthOfKind(int kind, KsLineWidth& out) const
{
    if (kind < KsLineWidth::Thin || kind > KsLineWidth::ExtraBold)
        return false;
    out = m_widthsOfKind[static_cast<std::size_t>(kind - KsLineWidth::Thin)];
    return true;
}

bool CMemoryDataBase::setLineWidthOfKind(int kind, const KsLineWidth& width)
{
    if (kind < KsLineWidth::Thin || kind > KsLineWidth::ExtraBold)
        return false;
    KsLineWidth& stored = m_widthsOfKind[static_cast<std::size_t>(kind - KsLineWidth::Thin)];
    stored = width;
    stored.setKind(kind);
    return true;
}
