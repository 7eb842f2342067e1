#pragma once

#include "element/Attributes.h"

#include <array>
#include <cstddef>
#include <string>

// Hatch elements of a drawing as the hatch dialogs take them over. An element answers which
// kind of hatch it is; the data of that kind is reached through the kind's own interface.
namespace kesto::element {

class IHatchElement {
public:
    virtual ~IHatchElement() = default;
    virtual bool isFigureHatch() const = 0;
    virtual bool isSlantHatch() const = 0;
    virtual bool isCoating() const = 0;
};

// Tile hatch. The seven placement values, in order: base angle (degrees), angle 1 (degrees),
// length 1 (mm), angle 2, length 2, figure width (mm), figure height (mm).
class IFigureHatchElement {
public:
    using Placement = std::array<double, 7>;
    virtual ~IFigureHatchElement() = default;
    virtual std::wstring getBaseFigureName() const = 0;
    virtual Placement getPlacement() const = 0;
};

// One family of parallel lines with its colour, line type and line width attributes. The
// geometry, in order: point X, point Y (mm), shift along the lines (mm), angle (degrees),
// spacing (mm).
class ISlantHatchLine : public IAttributeHolder {
public:
    using Geometry = std::array<double, 5>;
    virtual Geometry getGeometry() const = 0;
};

class ISlantHatchElement {
public:
    virtual ~ISlantHatchElement() = default;
    virtual std::size_t getLineCount() const = 0;
    // Null when the element cannot produce that line.
    virtual const ISlantHatchLine* getLine(std::size_t index) const = 0;
};

// Fill; its colour is an attribute.
class ICoatingElement : public IAttributeHolder {
public:
    virtual bool isSameAsBackground() const = 0;
    virtual int getBrushKind() const = 0;
    virtual bool isTransparent() const = 0;
    virtual int getTransparencyRate() const = 0;
    virtual int getDrawOrder() const = 0;
    virtual bool isDrawAtBack() const = 0;
};

} // namespace kesto::element
