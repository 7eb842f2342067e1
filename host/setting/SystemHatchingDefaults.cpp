// The hatching a civil-engineering office starts with: masonry, concrete, gravel and turf
// tiles; section and steel slant lines; water, pavement and planting fills.
#include "setting/SystemHatchingSetting.h"

namespace kesto::ui::setting {

namespace {

using Segments = std::vector<SBaseFigure::Segment>;

// A closed polygon through the given points.
Segments polygon(std::initializer_list<std::pair<double, double>> points)
{
    Segments out;
    const std::vector<std::pair<double, double>> p(points);
    for (std::size_t i = 0; i < p.size(); ++i) {
        const auto& a = p[i];
        const auto& b = p[(i + 1) % p.size()];
        out.push_back({a.first, a.second, b.first, b.second});
    }
    return out;
}

Segments join(std::initializer_list<Segments> parts)
{
    Segments out;
    for (const Segments& part : parts)
        out.insert(out.end(), part.begin(), part.end());
    return out;
}

std::vector<SBaseFigure> baseFigures()
{
    return {
        // Two courses of a running bond.
        {L"レンガ", {{0, 0, 1, 0}, {0, 0.5, 1, 0.5}, {0, 0, 0, 0.5}, {0.5, 0.5, 0.5, 1}}},
        // Squared stones laid diagonally.
        {L"間知石", polygon({{0.5, 0}, {1, 0.5}, {0.5, 1}, {0, 0.5}})},
        // Aggregate and dots.
        {L"コンクリート",
         join({polygon({{0.1, 0.1}, {0.42, 0.18}, {0.22, 0.4}}),
               polygon({{0.6, 0.55}, {0.85, 0.6}, {0.7, 0.85}}),
               {{0.7, 0.2, 0.72, 0.2}, {0.3, 0.7, 0.32, 0.7}, {0.15, 0.85, 0.17, 0.85}}})},
        {L"砂利", join({polygon({{0.1, 0.2}, {0.3, 0.1}, {0.4, 0.3}, {0.2, 0.4}}),
                        polygon({{0.6, 0.6}, {0.8, 0.55}, {0.9, 0.75}, {0.7, 0.85}})})},
        // A tuft of grass.
        {L"芝", {{0.5, 0.2, 0.5, 0.6}, {0.5, 0.2, 0.3, 0.5}, {0.5, 0.2, 0.7, 0.5}}},
        // Short strokes below a ground line.
        {L"地盤", {{0, 1, 1, 1}, {0.2, 1, 0.5, 0.7}, {0.6, 1, 0.9, 0.7}}},
    };
}

SFigurePattern figurePattern(const wchar_t* name, const wchar_t* figure, double width,
                             double height)
{
    SFigurePattern p;
    p.name = name;
    p.baseFigureName = figure;
    p.placement = {0.0, 0.0, width, 90.0, height, width, height};
    return p;
}

SSlantPatternLine line(double angle, double spacing, double y = 0.0)
{
    SSlantPatternLine l;
    l.initByDefault();
    l.angle = angle;
    l.spacing = spacing;
    l.placementY = y;
    return l;
}

SSlantPattern slantPattern(const wchar_t* name, std::vector<SSlantPatternLine> lines)
{
    SSlantPattern p;
    p.name = name;
    p.lines = std::move(lines);
    return p;
}

SCoatingPattern coating(const wchar_t* name, const KsColor& color, int brush, int rate)
{
    SCoatingPattern p;
    p.name = name;
    p.color = color;
    p.brushKind = brush;
    p.transparent = rate > 0;
    if (rate > 0)
        p.transparencyRate = rate;
    return p;
}

} // namespace

CSystemHatchingSetting CSystemHatchingSetting::makeDefault()
{
    CSystemHatchingSetting s;
    s.setBaseFigures(baseFigures());
    s.setFigurePatterns({
        figurePattern(L"レンガ積み", L"レンガ", 20.0, 10.0),
        figurePattern(L"間知石積み", L"間知石", 10.0, 10.0),
        figurePattern(L"コンクリート", L"コンクリート", 10.0, 10.0),
        figurePattern(L"砂利", L"砂利", 5.0, 5.0),
        figurePattern(L"芝", L"芝", 8.0, 8.0),
        figurePattern(L"地盤", L"地盤", 4.0, 4.0),
    });
    s.setSlantPatterns({
        slantPattern(L"斜線 45°", {line(45.0, 2.0)}),
        slantPattern(L"斜線 135°", {line(135.0, 2.0)}),
        slantPattern(L"交差斜線", {line(45.0, 2.0), line(135.0, 2.0)}),
        slantPattern(L"鋼材", {line(45.0, 1.0)}),
        slantPattern(L"二重斜線", {line(45.0, 4.0), line(45.0, 4.0, 0.7)}),
    });
    const KsColor grey(0x808080, KsColor::System, L"灰");
    SCoatingPattern mask = coating(L"背景色で塗り潰し", grey, 0, 0);
    mask.sameAsBackground = true;
    s.setCoatingPatterns({
        coating(L"塗り（灰）", grey, 0, 0),
        coating(L"水面", KsColor(0x00FFFF, KsColor::System, L"水色"), 0, 60),
        coating(L"舗装", grey, 2, 0),
        coating(L"植生", KsColor(0x00A000, KsColor::System, L"緑"), 3, 0),
        mask,
    });
    return s;
}

} // namespace kesto::ui::setting
