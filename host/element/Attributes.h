#pragma once

#include "types/KsObject.h"

#include <cstddef>
#include <memory>
#include <vector>

// Attributes of drawing elements (colour, line type, line width, ...) are objects of their own,
// told apart by their type: holders hand them out one by one, users test the type.
namespace kesto::element {

class IAttributeHolder {
public:
    virtual ~IAttributeHolder() = default;
    virtual std::size_t getAttributeCount() const = 0;
    // Null for an index past the end.
    virtual const KsObject* getAttribute(std::size_t index) const = 0;
};

// The holder's first attribute of type T (KsColor, KsLineType, KsLineWidth), or null.
template <class T>
const T* findAttribute(const IAttributeHolder& holder)
{
    for (std::size_t i = 0; i < holder.getAttributeCount(); ++i) {
        if (const auto* typed = dynamic_cast<const T*>(holder.getAttribute(i)))
            return typed;
    }
    return nullptr;
}

// Attribute storage for in-memory elements: at most one attribute per type.
class CAttributeSet {
public:
    std::size_t count() const { return m_attributes.size(); }
    const KsObject* at(std::size_t index) const
    {
        return index < m_attributes.size() ? m_attributes[index].get() : nullptr;
    }

    // Replaces the attribute of the same type.
    template <class T>
    void set(const T& attribute)
    {
        remove<T>();
        m_attributes.push_back(std::make_shared<const T>(attribute));
    }
    template <class T>
    void remove()
    {
        std::erase_if(m_attributes,
                      [](const auto& a) { return dynamic_cast<const T*>(a.get()) != nullptr; });
    }
    void clear() { m_attributes.clear(); }

private:
    std::vector<std::shared_ptr<const KsObject>> m_attributes;
};

} // namespace kesto::element
