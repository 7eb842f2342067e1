#pragma once

#include "types/KsColor.h"
#include "types/KsLineWidth.h"

#include <QDomDocument>
#include <QString>

#include <array>
#include <string>
#include <vector>

// Hatch patterns as the settings model keeps them: one record per hatch kind, each with the
// frame lines drawn along the hatched region's boundaries.
//
// XML: every pattern writes one element (its node name) with its values as attributes and its
// frames as child elements. Loading is all or nothing per pattern: attributes that are missing
// leave their fields as they were, a malformed value refuses the whole element.
//
// Stored line types: a line type is stored by name. When a pattern is loaded against the
// system line-type table, a name the table does not hold is replaced by the table's first line
// type (the system's solid line), so that nothing is drawn with a line type the system cannot
// draw; by-layer line types keep their stored name. Without a table (or with an empty one) the
// name is kept as stored.
namespace kesto::ui::setting {

class ISystemLineTypeSetting;

// Frame line along one boundary of the hatched region. Each attribute has a keep-flag: when it
// is set, taking a hatch from the drawing leaves that attribute as it is.
struct SHatchFrame {
    bool drawFrame = false;
    KsColor color;
    // Set: the line type follows the layer (line-type kind 3); the name is then not used.
    bool lineTypeFlag = false;
    std::wstring lineTypeName;
    // KsLineWidth kinds: 0 the value, 1 by layer, 2 thin, 3 bold, 4 extra bold.
    int lineWidthKind = KsLineWidth::Explicit;
    double lineWidth = 0.0;
    bool keepDrawFrame = false;
    bool keepColor = false;
    bool keepLineType = false;
    bool keepLineWidth = false;

    // A constructed frame is cleared (nothing drawn, empty names, zeros); patterns start their
    // frames from initByDefault.
    SHatchFrame() = default;
    // Drawn, by-layer colour, solid line, thin width, nothing kept.
    void initByDefault();

    bool operator==(const SHatchFrame& other) const = default;

    bool saveXMLNode(QDomNode& parent, QDomDocument& doc, const QString& nodeName) const;
    bool loadXMLNode(const QDomElement& element, const ISystemLineTypeSetting* lineTypes);
};

// What every pattern carries: the frames of the outer boundary, of the inner boundary and of
// each further inner boundary.
class CHatchPatternBase {
public:
    SHatchFrame outerFrame;
    SHatchFrame innerFrame;
    std::vector<SHatchFrame> innerFrames;

    virtual ~CHatchPatternBase() = default;

    bool operator==(const CHatchPatternBase& other) const = default;

    // Name of the pattern's element in XML.
    virtual QString getNodeName() const = 0;
    // Appends the pattern's element to parent.
    virtual bool saveXMLNode(QDomNode& parent, QDomDocument& doc) const = 0;
    // Fills the pattern from its element; on false the pattern is unchanged.
    virtual bool loadXMLNode(const QDomNode& node, const ISystemLineTypeSetting* lineTypes) = 0;

protected:
    CHatchPatternBase() = default;
    CHatchPatternBase(const CHatchPatternBase&) = default;
    CHatchPatternBase& operator=(const CHatchPatternBase&) = default;
    CHatchPatternBase(CHatchPatternBase&&) noexcept = default;
    CHatchPatternBase& operator=(CHatchPatternBase&&) noexcept = default;

    void resetFrames();
    bool saveFrames(QDomElement& element, QDomDocument& doc) const;
    bool loadFrames(const QDomElement& element, const ISystemLineTypeSetting* lineTypes);
};

// Tile hatch: a base figure repeated along two directions.
struct SFigurePattern : CHatchPatternBase {
    // Order of the seven placement values as hatch elements hand them over.
    enum EPlacement {
        BaseAngle,    // degrees, turns the whole tiling
        Angle1,       // degrees, first direction of repetition
        Length1,      // mm, pitch along the first direction
        Angle2,       // degrees, second direction
        Length2,      // mm, pitch along the second direction
        FigureWidth,  // mm, size of the figure as placed
        FigureHeight, // mm
        PlacementCount
    };
    using Placement = std::array<double, PlacementCount>;

    std::wstring name;
    std::wstring baseFigureName;
    Placement placement{};

    SFigurePattern() { initByDefault(); }
    void initByDefault();
    // Takes the pattern but keeps this pattern's frames.
    void copyWithoutAttribute(const SFigurePattern& other);
    bool isSame(const SFigurePattern& other) const { return *this == other; }
    bool operator==(const SFigurePattern& other) const = default;

    static QString getXMLNodeName() { return QStringLiteral("FigurePattern"); }
    QString getNodeName() const override { return getXMLNodeName(); }
    bool saveXMLNode(QDomNode& parent, QDomDocument& doc) const override;
    bool loadXMLNode(const QDomNode& node, const ISystemLineTypeSetting* lineTypes) override;
};

// One family of parallel lines of a slant hatch.
struct SSlantPatternLine {
    KsColor color;
    bool lineTypeFlag = false; // set: by-layer line type, name not used
    std::wstring lineTypeName;
    int lineWidthKind = KsLineWidth::Explicit;
    double lineWidth = 0.0;
    double placementX = 0.0; // mm, a point the first line passes through
    double placementY = 0.0;
    double spacing = 0.0; // mm between neighbouring lines; above 0 in a usable line
    double angle = 0.0;   // degrees

    // A constructed line is cleared (zeros, empty name).
    SSlantPatternLine() = default;
    // By-layer colour, solid, thin, through the origin, 45 degrees every 2 mm.
    void initByDefault();
    bool operator==(const SSlantPatternLine& other) const = default;

    bool saveXMLNode(QDomNode& parent, QDomDocument& doc) const;
    bool loadXMLNode(const QDomElement& element, const ISystemLineTypeSetting* lineTypes);
};

struct SSlantPattern : CHatchPatternBase {
    // The hatch dialog edits at most this many lines; loading reads no more.
    static constexpr std::size_t kMaxLines = 4;

    std::wstring name;
    std::vector<SSlantPatternLine> lines;

    SSlantPattern() { initByDefault(); }
    // One default line.
    void initByDefault();
    // Takes the name and the lines' geometry; colours, line types and widths stay those of
    // this pattern's line at the same place (or its last line, or the default line).
    void copyWithoutAttribute(const SSlantPattern& other);
    bool isSame(const SSlantPattern& other) const { return *this == other; }
    bool operator==(const SSlantPattern& other) const = default;

    QString getNodeName() const override { return QStringLiteral("SlantPattern"); }
    bool saveXMLNode(QDomNode& parent, QDomDocument& doc) const override;
    bool loadXMLNode(const QDomNode& node, const ISystemLineTypeSetting* lineTypes) override;
};

// Solid or patterned fill.
struct SCoatingPattern : CHatchPatternBase {
    enum EDrawOrder { Transparent = 0, Opaque = 1, Normal = 2, OrderAsItIs = 3 };
    // 0 "100%", 1 "75%", 2 "50%", 3 "25%", 4 horizontal, 5 vertical, 6 rising, 7 falling,
    // 8 cross, 9 diagonal cross, 10 no pattern, 11 as it is.
    static constexpr int kBrushKindCount = 12;

    std::wstring name;
    bool sameAsBackground = false;
    KsColor color;
    int drawOrder = Normal;
    int brushKind = 0;
    bool transparent = false;
    int transparencyRate = 0; // percent, 0 to 100
    bool drawAtBack = false;

    SCoatingPattern() { initByDefault(); }
    // Grey solid fill, normal order, not transparent (rate 50 when switched on).
    void initByDefault();
    // Takes the name and the fill; the frames, the colour and the same-as-background flag
    // stay.
    void copyWithoutAttribute(const SCoatingPattern& other);
    bool isSame(const SCoatingPattern& other) const { return *this == other; }
    bool operator==(const SCoatingPattern& other) const = default;

    QString getNodeName() const override { return QStringLiteral("CoatingPattern"); }
    bool saveXMLNode(QDomNode& parent, QDomDocument& doc) const override;
    bool loadXMLNode(const QDomNode& node, const ISystemLineTypeSetting* lineTypes) override;
};

// Frames for the hatch kinds that keep the hatch itself ("SXF", "そのまま"); no name.
struct SHoldPattern : CHatchPatternBase {
    SHoldPattern() { initByDefault(); }
    void initByDefault();
    // A hold pattern holds only attributes: nothing is taken.
    void copyWithoutAttribute(const SHoldPattern& other);
    bool isSame(const SHoldPattern& other) const { return *this == other; }
    bool operator==(const SHoldPattern& other) const = default;

    QString getNodeName() const override { return QStringLiteral("HoldPattern"); }
    bool saveXMLNode(QDomNode& parent, QDomDocument& doc) const override;
    bool loadXMLNode(const QDomNode& node, const ISystemLineTypeSetting* lineTypes) override;
};

} // namespace kesto::ui::setting
