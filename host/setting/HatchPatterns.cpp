#include "setting/HatchPatterns.h"

#include "setting/HatchXml.h"

#include <limits>
#include <utility>

namespace kesto::ui::setting {

using namespace hatchxml;

namespace {

constexpr double kDefaultThinWidth = 0.13; // mm

SHatchFrame defaultFrame()
{
    SHatchFrame frame;
    frame.initByDefault();
    return frame;
}

SSlantPatternLine defaultLine()
{
    SSlantPatternLine line;
    line.initByDefault();
    return line;
}

const QString& innerFramesTag()
{
    static const QString tag = QStringLiteral("InnerFrames");
    return tag;
}

// An element appended to parent, or a null element when parent or doc cannot take one.
QDomElement appendElement(QDomNode& parent, QDomDocument& doc, const QString& name)
{
    if (parent.isNull() || doc.isNull())
        return {};
    QDomElement element = doc.createElement(name);
    if (parent.appendChild(element).isNull())
        return {};
    return element;
}

void writeLineAttributes(QDomElement& e, bool byLayer, const std::wstring& lineType, int widthKind,
                         double width)
{
    writeBool(e, QStringLiteral("lineTypeByLayer"), byLayer);
    writeText(e, QStringLiteral("lineType"), lineType);
    e.setAttribute(QStringLiteral("widthKind"), widthKind);
    writeDouble(e, QStringLiteral("width"), width);
}

bool readLineAttributes(const QDomElement& e, const ISystemLineTypeSetting* lineTypes,
                        bool& byLayer, std::wstring& lineType, int& widthKind, double& width)
{
    if (!readBool(e, QStringLiteral("lineTypeByLayer"), byLayer)
        || !readInt(e, QStringLiteral("widthKind"), widthKind, KsLineWidth::Explicit,
                    KsLineWidth::ExtraBold)
        || !readDouble(e, QStringLiteral("width"), width, 0.0, kMaxMagnitude))
        return false;
    if (e.hasAttribute(QStringLiteral("lineType"))) {
        readText(e, QStringLiteral("lineType"), lineType);
        resolveLineType(lineType, byLayer, lineTypes);
    }
    return true;
}

} // namespace

// --- SHatchFrame ---

void SHatchFrame::initByDefault()
{
    drawFrame = true;
    color = KsColor::byLayer();
    lineTypeFlag = false;
    lineTypeName = L"実線";
    lineWidthKind = KsLineWidth::Thin;
    lineWidth = kDefaultThinWidth;
    keepDrawFrame = false;
    keepColor = false;
    keepLineType = false;
    keepLineWidth = false;
}

bool SHatchFrame::saveXMLNode(QDomNode& parent, QDomDocument& doc, const QString& nodeName) const
{
    QDomElement e = appendElement(parent, doc, nodeName);
    if (e.isNull())
        return false;
    writeBool(e, QStringLiteral("draw"), drawFrame);
    writeColor(e, color);
    writeLineAttributes(e, lineTypeFlag, lineTypeName, lineWidthKind, lineWidth);
    writeBool(e, QStringLiteral("keepDraw"), keepDrawFrame);
    writeBool(e, QStringLiteral("keepColor"), keepColor);
    writeBool(e, QStringLiteral("keepLineType"), keepLineType);
    writeBool(e, QStringLiteral("keepWidth"), keepLineWidth);
    return true;
}

bool SHatchFrame::loadXMLNode(const QDomElement& e, const ISystemLineTypeSetting* lineTypes)
{
    if (e.isNull())
        return false;
    SHatchFrame read = *this;
    if (!readBool(e, QStringLiteral("draw"), read.drawFrame) || !readColor(e, read.color)
        || !readLineAttributes(e, lineTypes, read.lineTypeFlag, read.lineTypeName,
                               read.lineWidthKind, read.lineWidth)
        || !readBool(e, QStringLiteral("keepDraw"), read.keepDrawFrame)
        || !readBool(e, QStringLiteral("keepColor"), read.keepColor)
        || !readBool(e, QStringLiteral("keepLineType"), read.keepLineType)
        || !readBool(e, QStringLiteral("keepWidth"), read.keepLineWidth))
        return false;
    *this = std::move(read);
    return true;
}

// --- frames of every pattern ---

void CHatchPatternBase::resetFrames()
{
    outerFrame.initByDefault();
    innerFrame.initByDefault();
    innerFrames.clear();
}

bool CHatchPatternBase::saveFrames(QDomElement& element, QDomDocument& doc) const
{
    if (!outerFrame.saveXMLNode(element, doc, QStringLiteral("OuterFrame"))
        || !innerFrame.saveXMLNode(element, doc, QStringLiteral("InnerFrame")))
        return false;
    QDomElement list = appendElement(element, doc, innerFramesTag());
    if (list.isNull())
        return false;
    for (const SHatchFrame& frame : innerFrames) {
        if (!frame.saveXMLNode(list, doc, QStringLiteral("Frame")))
            return false;
    }
    return true;
}

bool CHatchPatternBase::loadFrames(const QDomElement& element,
                                   const ISystemLineTypeSetting* lineTypes)
{
    const QDomElement outer = element.firstChildElement(QStringLiteral("OuterFrame"));
    const QDomElement inner = element.firstChildElement(QStringLiteral("InnerFrame"));
    if ((!outer.isNull() && !outerFrame.loadXMLNode(outer, lineTypes))
        || (!inner.isNull() && !innerFrame.loadXMLNode(inner, lineTypes)))
        return false;
    const QDomElement list = element.firstChildElement(innerFramesTag());
    if (list.isNull())
        return true;
    std::vector<SHatchFrame> frames;
    for (QDomElement e = list.firstChildElement(QStringLiteral("Frame")); !e.isNull();
         e = e.nextSiblingElement(QStringLiteral("Frame"))) {
        SHatchFrame& frame = frames.emplace_back(defaultFrame());
        if (!frame.loadXMLNode(e, lineTypes))
            return false;
    }
    innerFrames = std::move(frames);
    return true;
}

// --- SFigurePattern ---

namespace {

const QString& placementName(int index)
{
    static const QString names[SFigurePattern::PlacementCount] = {
        QStringLiteral("baseAngle"), QStringLiteral("angle1"),  QStringLiteral("length1"),
        QStringLiteral("angle2"),    QStringLiteral("length2"), QStringLiteral("width"),
        QStringLiteral("height"),
    };
    return names[index];
}

bool isLength(int index)
{
    return index == SFigurePattern::Length1 || index == SFigurePattern::Length2
           || index == SFigurePattern::FigureWidth || index == SFigurePattern::FigureHeight;
}

} // namespace

void SFigurePattern::initByDefault()
{
    name.clear();
    baseFigureName.clear();
    placement = {0.0, 0.0, 10.0, 90.0, 10.0, 10.0, 10.0};
    resetFrames();
}

void SFigurePattern::copyWithoutAttribute(const SFigurePattern& other)
{
    name = other.name;
    baseFigureName = other.baseFigureName;
    placement = other.placement;
}

bool SFigurePattern::saveXMLNode(QDomNode& parent, QDomDocument& doc) const
{
    QDomElement e = appendElement(parent, doc, getXMLNodeName());
    if (e.isNull())
        return false;
    writeText(e, QStringLiteral("name"), name);
    writeText(e, QStringLiteral("baseFigure"), baseFigureName);
    for (int i = 0; i < PlacementCount; ++i)
        writeDouble(e, placementName(i), placement[static_cast<std::size_t>(i)]);
    return saveFrames(e, doc);
}

bool SFigurePattern::loadXMLNode(const QDomNode& node, const ISystemLineTypeSetting* lineTypes)
{
    const QDomElement e = node.toElement();
    if (e.isNull() || e.tagName() != getXMLNodeName())
        return false;
    SFigurePattern read = *this;
    readText(e, QStringLiteral("name"), read.name);
    readText(e, QStringLiteral("baseFigure"), read.baseFigureName);
    for (int i = 0; i < PlacementCount; ++i) {
        // Lengths must be positive: a zero pitch would tile without end.
        const double min = isLength(i) ? std::numeric_limits<double>::min() : -kMaxMagnitude;
        if (!readDouble(e, placementName(i), read.placement[static_cast<std::size_t>(i)], min,
                        kMaxMagnitude))
            return false;
    }
    if (!read.loadFrames(e, lineTypes))
        return false;
    *this = std::move(read);
    return true;
}

// --- SSlantPatternLine, SSlantPattern ---

void SSlantPatternLine::initByDefault()
{
    color = KsColor::byLayer();
    lineTypeFlag = false;
    lineTypeName = L"実線";
    lineWidthKind = KsLineWidth::Thin;
    lineWidth = kDefaultThinWidth;
    placementX = 0.0;
    placementY = 0.0;
    spacing = 2.0;
    angle = 45.0;
}

bool SSlantPatternLine::saveXMLNode(QDomNode& parent, QDomDocument& doc) const
{
    QDomElement e = appendElement(parent, doc, QStringLiteral("Line"));
    if (e.isNull())
        return false;
    writeColor(e, color);
    writeLineAttributes(e, lineTypeFlag, lineTypeName, lineWidthKind, lineWidth);
    writeDouble(e, QStringLiteral("x"), placementX);
    writeDouble(e, QStringLiteral("y"), placementY);
    writeDouble(e, QStringLiteral("spacing"), spacing);
    writeDouble(e, QStringLiteral("angle"), angle);
    return true;
}

bool SSlantPatternLine::loadXMLNode(const QDomElement& e, const ISystemLineTypeSetting* lineTypes)
{
    if (e.isNull())
        return false;
    SSlantPatternLine read = *this;
    // A spacing of zero would draw lines without end.
    if (!readColor(e, read.color)
        || !readLineAttributes(e, lineTypes, read.lineTypeFlag, read.lineTypeName,
                               read.lineWidthKind, read.lineWidth)
        || !readDouble(e, QStringLiteral("x"), read.placementX, -kMaxMagnitude, kMaxMagnitude)
        || !readDouble(e, QStringLiteral("y"), read.placementY, -kMaxMagnitude, kMaxMagnitude)
        || !readDouble(e, QStringLiteral("spacing"), read.spacing,
                       std::numeric_limits<double>::min(), kMaxMagnitude)
        || !readDouble(e, QStringLiteral("angle"), read.angle, -kMaxMagnitude, kMaxMagnitude))
        return false;
    *this = std::move(read);
    return true;
}

void SSlantPattern::initByDefault()
{
    name.clear();
    lines.assign(1, defaultLine());
    resetFrames();
}

void SSlantPattern::copyWithoutAttribute(const SSlantPattern& other)
{
    std::vector<SSlantPatternLine> result;
    result.reserve(other.lines.size());
    for (std::size_t i = 0; i < other.lines.size(); ++i) {
        SSlantPatternLine line = i < lines.size() ? lines[i]
                                 : lines.empty()  ? defaultLine()
                                                  : lines.back();
        const SSlantPatternLine& from = other.lines[i];
        line.placementX = from.placementX;
        line.placementY = from.placementY;
        line.spacing = from.spacing;
        line.angle = from.angle;
        result.push_back(line);
    }
    name = other.name;
    lines = std::move(result);
}

bool SSlantPattern::saveXMLNode(QDomNode& parent, QDomDocument& doc) const
{
    QDomElement e = appendElement(parent, doc, getNodeName());
    if (e.isNull())
        return false;
    writeText(e, QStringLiteral("name"), name);
    QDomElement list = appendElement(e, doc, QStringLiteral("Lines"));
    if (list.isNull())
        return false;
    for (const SSlantPatternLine& line : lines) {
        if (!line.saveXMLNode(list, doc))
            return false;
    }
    return saveFrames(e, doc);
}

bool SSlantPattern::loadXMLNode(const QDomNode& node, const ISystemLineTypeSetting* lineTypes)
{
    const QDomElement e = node.toElement();
    if (e.isNull() || e.tagName() != getNodeName())
        return false;
    SSlantPattern read = *this;
    readText(e, QStringLiteral("name"), read.name);
    const QDomElement list = e.firstChildElement(QStringLiteral("Lines"));
    if (!list.isNull()) {
        read.lines.clear();
        for (QDomElement le = list.firstChildElement(QStringLiteral("Line"));
             !le.isNull() && read.lines.size() < kMaxLines;
             le = le.nextSiblingElement(QStringLiteral("Line"))) {
            if (!read.lines.emplace_back(defaultLine()).loadXMLNode(le, lineTypes))
                return false;
        }
    }
    if (!read.loadFrames(e, lineTypes))
        return false;
    *this = std::move(read);
    return true;
}

// --- SCoatingPattern ---

void SCoatingPattern::initByDefault()
{
    name.clear();
    sameAsBackground = false;
    color = KsColor(0x808080, KsColor::System, L"灰");
    drawOrder = Normal;
    brushKind = 0;
    transparent = false;
    transparencyRate = 50;
    drawAtBack = false;
    resetFrames();
}

void SCoatingPattern::copyWithoutAttribute(const SCoatingPattern& other)
{
    name = other.name;
    drawOrder = other.drawOrder;
    brushKind = other.brushKind;
    transparent = other.transparent;
    transparencyRate = other.transparencyRate;
    drawAtBack = other.drawAtBack;
}

bool SCoatingPattern::saveXMLNode(QDomNode& parent, QDomDocument& doc) const
{
    QDomElement e = appendElement(parent, doc, getNodeName());
    if (e.isNull())
        return false;
    writeText(e, QStringLiteral("name"), name);
    writeBool(e, QStringLiteral("sameAsBackground"), sameAsBackground);
    writeColor(e, color);
    e.setAttribute(QStringLiteral("drawOrder"), drawOrder);
    e.setAttribute(QStringLiteral("brushKind"), brushKind);
    writeBool(e, QStringLiteral("transparent"), transparent);
    e.setAttribute(QStringLiteral("transparencyRate"), transparencyRate);
    writeBool(e, QStringLiteral("drawAtBack"), drawAtBack);
    return saveFrames(e, doc);
}

bool SCoatingPattern::loadXMLNode(const QDomNode& node, const ISystemLineTypeSetting* lineTypes)
{
    const QDomElement e = node.toElement();
    if (e.isNull() || e.tagName() != getNodeName())
        return false;
    SCoatingPattern read = *this;
    readText(e, QStringLiteral("name"), read.name);
    if (!readBool(e, QStringLiteral("sameAsBackground"), read.sameAsBackground)
        || !readColor(e, read.color)
        || !readInt(e, QStringLiteral("drawOrder"), read.drawOrder, Transparent, OrderAsItIs)
        || !readInt(e, QStringLiteral("brushKind"), read.brushKind, 0, kBrushKindCount - 1)
        || !readBool(e, QStringLiteral("transparent"), read.transparent)
        || !readInt(e, QStringLiteral("transparencyRate"), read.transparencyRate, 0, 100)
        || !readBool(e, QStringLiteral("drawAtBack"), read.drawAtBack)
        || !read.loadFrames(e, lineTypes))
        return false;
    *this = std::move(read);
    return true;
}

// --- SHoldPattern ---

void SHoldPattern::initByDefault()
{
    resetFrames();
}

void SHoldPattern::copyWithoutAttribute(const SHoldPattern&) {}

bool SHoldPattern::saveXMLNode(QDomNode& parent, QDomDocument& doc) const
{
    QDomElement e = appendElement(parent, doc, getNodeName());
    return !e.isNull() && saveFrames(e, doc);
}

bool SHoldPattern::loadXMLNode(const QDomNode& node, const ISystemLineTypeSetting* lineTypes)
{
    const QDomElement e = node.toElement();
    if (e.isNull() || e.tagName() != getNodeName())
        return false;
    SHoldPattern read = *this;
    if (!read.loadFrames(e, lineTypes))
        return false;
    *this = std::move(read);
    return true;
}

} // namespace kesto::ui::setting
