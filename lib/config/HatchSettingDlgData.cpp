#include "config/HatchSettingDlgData.h"

#include "config/LibraryModule.h"
#include "core/Application.h"
#include "element/Boundary.h"
#include "element/HatchElement.h"
#include "framework/MessageBox.h"
#include "framework/Resources.h"
#include "res/HatchResource.h"
#include "setting/SystemHatchingSetting.h"
#include "types/KsLineType.h"

#include <functional>

namespace kesto::ui::config {

namespace {

using element::findAttribute;

// Width kinds 1 to 4 (by layer, thin, bold, extra bold) are kept; anything else is a value.
int widthKindOf(const KsLineWidth& width)
{
    const int kind = width.getKind();
    return kind >= KsLineWidth::ByLayer && kind <= KsLineWidth::ExtraBold ? kind
                                                                          : KsLineWidth::Explicit;
}

bool isBaseFigureRegistered(const std::wstring& name)
{
    const core::CSystemConfig* config = core::Application::getInstance()->getSystemConfig();
    const auto* hatching = config ? config->getSetting<setting::CSystemHatchingSetting>() : nullptr;
    return hatching && hatching->isBaseFigureRegistered(name);
}

void showBaseFigureUnregistered(const std::wstring& name)
{
    framework::ResourceSwitch useLibrary(libraryResourceHandle());
    framework::MessageBox(nullptr,
                          framework::formatString(res::IDS_HATCH_BASE_FIGURE_UNREGISTERED,
                                                  {QString::fromStdWString(name)}),
                          framework::loadString(res::IDS_HATCH_CAPTION),
                          framework::MB_OK | framework::MB_ICONWARNING);
}

// A cleared line with what the element's line carries.
setting::SSlantPatternLine slantLineOf(const element::ISlantHatchLine& from)
{
    setting::SSlantPatternLine line;
    if (const auto* color = findAttribute<KsColor>(from))
        line.color = *color;
    if (const auto* lineType = findAttribute<KsLineType>(from)) {
        if (lineType->getKind() == KsLineType::ByLayer) {
            line.lineTypeFlag = true;
        } else {
            line.lineTypeFlag = false;
            line.lineTypeName = lineType->getName();
        }
    }
    if (const auto* width = findAttribute<KsLineWidth>(from)) {
        line.lineWidthKind = widthKindOf(*width);
        line.lineWidth = width->getWidth();
    }
    const element::ISlantHatchLine::Geometry g = from.getGeometry();
    line.placementX = g[0];
    line.placementY = g[1];
    line.spacing = g[4];
    line.angle = g[3];
    return line;
}

void takeSlantLines(setting::SSlantPattern& pattern, const element::ISlantHatchElement& slant)
{
    pattern.lines.clear();
    for (std::size_t i = 0; i < slant.getLineCount(); ++i) {
        if (const element::ISlantHatchLine* line = slant.getLine(i))
            pattern.lines.push_back(slantLineOf(*line));
    }
}

using FrameSetter = std::function<void(setting::CHatchPatternBase&)>;

bool takeFigure(SDrawingHatch& hatch, const element::IFigureHatchElement* figure,
                const FrameSetter& setFrames)
{
    if (!figure)
        return false;
    const std::wstring baseFigure = figure->getBaseFigureName();
    if (!isBaseFigureRegistered(baseFigure)) {
        showBaseFigureUnregistered(baseFigure);
        return false;
    }
    setFrames(hatch.figurePattern);
    hatch.figurePattern.baseFigureName = baseFigure;
    hatch.figurePattern.placement = figure->getPlacement();
    hatch.hatchType = SDrawingHatch::HatchFigure;
    return true;
}

bool takeSlant(SDrawingHatch& hatch, const element::ISlantHatchElement* slant,
               const FrameSetter& setFrames)
{
    if (!slant)
        return false;
    setFrames(hatch.slantPattern);
    takeSlantLines(hatch.slantPattern, *slant);
    hatch.hatchType = SDrawingHatch::HatchSlant;
    return true;
}

// The drawing order and the draw-at-the-back flag are the drawing's business, not taken.
bool takeCoating(SDrawingHatch& hatch, const element::ICoatingElement* coating,
                 const FrameSetter& setFrames)
{
    if (!coating)
        return false;
    setFrames(hatch.coatingPattern);
    setting::SCoatingPattern& pattern = hatch.coatingPattern;
    pattern.sameAsBackground = coating->isSameAsBackground();
    if (const auto* color = findAttribute<KsColor>(*coating))
        pattern.color = *color;
    pattern.brushKind = coating->getBrushKind();
    pattern.transparent = coating->isTransparent();
    pattern.transparencyRate = coating->getTransparencyRate();
    hatch.hatchType = SDrawingHatch::HatchCoating;
    return true;
}

bool isWholeHatchMode(SHatchSettingDlgData::EMode mode)
{
    using D = SHatchSettingDlgData;
    return mode == D::ModeFigure || mode == D::ModeSlant || mode == D::ModeCoating
           || mode == D::ModeSxf || mode == D::ModeAsItIs;
}

} // namespace

SHatchSettingDlgData::SHatchSettingDlgData()
{
    clear();
}

SHatchSettingDlgData::SHatchSettingDlgData(const SHatchSettingDlgData& other)
    : refDlg::SRefDlgData()
{
    *this = other;
}

SHatchSettingDlgData& SHatchSettingDlgData::operator=(const SHatchSettingDlgData& other)
{
    if (this == &other)
        return *this;
    refDlg::SRefDlgData::operator=(other);
    mode = other.mode;
    drawingHatch = other.drawingHatch;
    slantLineIndex = other.slantLineIndex;
    listCommand = other.listCommand;
    return *this;
}

SHatchSettingDlgData::~SHatchSettingDlgData() = default;

void SHatchSettingDlgData::clear()
{
    refDlg::SRefDlgData::clear();
    drawingHatch.hatchType = SDrawingHatch::HatchFigure;
    mode = ModeNone;
    drawingHatch.figurePattern.initByDefault();
    drawingHatch.slantPattern.initByDefault();
    drawingHatch.coatingPattern.initByDefault();
    drawingHatch.holdPattern.initByDefault();
    drawingHatch.innerFrameAvailable = 0;
    drawingHatch.referenceElement = nullptr;
    slantLineIndex = 0;
    listCommand = 0;
    if (const core::CSystemConfig* config = core::Application::getInstance()->getSystemConfig())
        referenceEnabled = config->hasCurrentDrawing();
}

bool SHatchSettingDlgData::innerCheck() const
{
    return true;
}

bool SHatchSettingDlgData::innerCheckColor(const KsColor&) const
{
    return true;
}

setting::SSlantPatternLine* SHatchSettingDlgData::getSlashLine()
{
    if (mode != ModeSlantPoint && mode != ModeSlantSpacing && mode != ModeSlantAngle)
        return nullptr;
    const auto index = static_cast<std::int32_t>(slantLineIndex);
    std::vector<setting::SSlantPatternLine>& lines = drawingHatch.slantPattern.lines;
    if (index < 0 || static_cast<std::size_t>(index) >= lines.size())
        return nullptr;
    return &lines[static_cast<std::size_t>(index)];
}

bool SHatchSettingDlgData::setDrawHatchFromHandle()
{
    const auto* hatch = dynamic_cast<const element::IHatchElement*>(pickedElement.get());
    const auto* holder = dynamic_cast<const element::IBoundaryHolder*>(pickedElement.get());
    if (!hatch || !holder || !holder->getBoundary(0) || !isWholeHatchMode(mode))
        return false;
    const FrameSetter setFrames = [&](setting::CHatchPatternBase& pattern) {
        setFrame(pattern.outerFrame, holder->getBoundary(0));
        setFrame(pattern.innerFrame, holder->getBoundary(1));
    };
    if (hatch->isFigureHatch())
        return takeFigure(drawingHatch, dynamic_cast<const element::IFigureHatchElement*>(hatch),
                          setFrames);
    if (hatch->isSlantHatch())
        return takeSlant(drawingHatch, dynamic_cast<const element::ISlantHatchElement*>(hatch),
                         setFrames);
    if (hatch->isCoating())
        return takeCoating(drawingHatch, dynamic_cast<const element::ICoatingElement*>(hatch),
                           setFrames);
    return false;
}

void SHatchSettingDlgData::setFrame(setting::SHatchFrame& frame,
                                    const element::IBoundary* boundary) const
{
    if (!boundary)
        return;
    if (!frame.keepDrawFrame)
        frame.drawFrame = boundary->isDrawFrameLine();
    const auto* color = findAttribute<KsColor>(*boundary);
    if (!frame.keepColor && color)
        frame.color = *color;
    const auto* lineType = findAttribute<KsLineType>(*boundary);
    if (!frame.keepLineType && lineType) {
        frame.lineTypeFlag = lineType->getKind() == KsLineType::ByLayer;
        if (!frame.lineTypeFlag)
            frame.lineTypeName = lineType->getName();
    }
    const auto* width = findAttribute<KsLineWidth>(*boundary);
    if (!frame.keepLineWidth && width) {
        frame.lineWidthKind = widthKindOf(*width);
        frame.lineWidth = width->getWidth();
    }
}

} // namespace kesto::ui::config
