#pragma once

#include "element/Boundary.h"
#include "element/HatchElement.h"

#include <optional>
#include <vector>

// Hatch elements held in memory, as the workbench's drawing and the tests keep them. They are
// KsObjects of type "HATCH", so CMemoryDataBase can hold them.
namespace kesto::element {

class CHatchElementBase : public KsObject, public IHatchElement, public IBoundaryHolder {
public:
    std::wstring getType() const override { return L"HATCH"; }

    bool isFigureHatch() const override { return false; }
    bool isSlantHatch() const override { return false; }
    bool isCoating() const override { return false; }

    const IBoundary* getBoundary(int index) const override;
    // Appends a boundary: the first is the outer one, the second the inner one.
    CBoundary& addBoundary(CBoundary boundary);
    std::size_t getBoundaryCount() const { return m_boundaries.size(); }

private:
    std::vector<CBoundary> m_boundaries;
};

class CFigureHatchElement : public CHatchElementBase, public IFigureHatchElement {
public:
    CFigureHatchElement(std::wstring baseFigureName, const Placement& placement);

    bool isFigureHatch() const override { return true; }
    std::wstring getBaseFigureName() const override { return m_baseFigureName; }
    Placement getPlacement() const override { return m_placement; }

private:
    std::wstring m_baseFigureName;
    Placement m_placement;
};

class CSlantHatchLine : public ISlantHatchLine {
public:
    explicit CSlantHatchLine(const Geometry& geometry)
        : m_geometry(geometry)
    {}

    Geometry getGeometry() const override { return m_geometry; }
    std::size_t getAttributeCount() const override { return m_attributes.count(); }
    const KsObject* getAttribute(std::size_t index) const override
    {
        return m_attributes.at(index);
    }
    CAttributeSet& attributes() { return m_attributes; }

private:
    Geometry m_geometry;
    CAttributeSet m_attributes;
};

class CSlantHatchElement : public CHatchElementBase, public ISlantHatchElement {
public:
    bool isSlantHatch() const override { return true; }
    std::size_t getLineCount() const override { return m_lines.size(); }
    const ISlantHatchLine* getLine(std::size_t index) const override;

    CSlantHatchLine& addLine(CSlantHatchLine line);
    // A line whose data is damaged: it counts, but the element cannot produce it.
    void addUnreadableLine() { m_lines.emplace_back(std::nullopt); }

private:
    std::vector<std::optional<CSlantHatchLine>> m_lines;
};

class CCoatingElement : public CHatchElementBase, public ICoatingElement {
public:
    struct Fill {
        bool sameAsBackground = false;
        int brushKind = 0;
        bool transparent = false;
        int transparencyRate = 0;
        int drawOrder = 2;
        bool drawAtBack = false;
    };

    explicit CCoatingElement(const Fill& fill)
        : m_fill(fill)
    {}

    bool isCoating() const override { return true; }
    bool isSameAsBackground() const override { return m_fill.sameAsBackground; }
    int getBrushKind() const override { return m_fill.brushKind; }
    bool isTransparent() const override { return m_fill.transparent; }
    int getTransparencyRate() const override { return m_fill.transparencyRate; }
    int getDrawOrder() const override { return m_fill.drawOrder; }
    bool isDrawAtBack() const override { return m_fill.drawAtBack; }

    std::size_t getAttributeCount() const override { return m_attributes.count(); }
    const KsObject* getAttribute(std::size_t index) const override
    {
        return m_attributes.at(index);
    }
    CAttributeSet& attributes() { return m_attributes; }

private:
    Fill m_fill;
    CAttributeSet m_attributes;
};

} // namespace kesto::element
