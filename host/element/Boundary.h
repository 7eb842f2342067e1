#pragma once

#include "element/Attributes.h"

#include <QPointF>

#include <vector>

namespace kesto::element {

// One boundary of a hatched region, with the attributes of its frame line.
class IBoundary : public IAttributeHolder {
public:
    // Whether the frame line along the boundary is drawn.
    virtual bool isDrawFrameLine() const = 0;
};

// Elements that bound a region: boundary 0 is the outer boundary, boundary 1 the inner one.
class IBoundaryHolder {
public:
    virtual ~IBoundaryHolder() = default;
    // Null when the element has no boundary of that index.
    virtual const IBoundary* getBoundary(int index) const = 0;
};

class CBoundary : public IBoundary {
public:
    CBoundary() = default;
    explicit CBoundary(std::vector<QPointF> points, bool drawFrameLine = true)
        : m_points(std::move(points))
        , m_drawFrameLine(drawFrameLine)
    {}

    bool isDrawFrameLine() const override { return m_drawFrameLine; }
    void setDrawFrameLine(bool draw) { m_drawFrameLine = draw; }

    std::size_t getAttributeCount() const override { return m_attributes.count(); }
    const KsObject* getAttribute(std::size_t index) const override
    {
        return m_attributes.at(index);
    }
    CAttributeSet& attributes() { return m_attributes; }

    // The closed polygon, in drawing coordinates (mm).
    const std::vector<QPointF>& getPoints() const { return m_points; }

private:
    std::vector<QPointF> m_points;
    bool m_drawFrameLine = true;
    CAttributeSet m_attributes;
};

} // namespace kesto::element
