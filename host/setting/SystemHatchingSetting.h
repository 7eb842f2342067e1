#pragma once

#include "setting/HatchPatterns.h"
#include "setting/SettingBase.h"

#include <string>
#include <vector>

namespace kesto::ui::setting {

// A figure that tile hatches repeat: line segments in the unit square (0 to 1 on both axes),
// stretched to the pattern's figure width and height.
struct SBaseFigure {
    struct Segment {
        double x1 = 0.0;
        double y1 = 0.0;
        double x2 = 0.0;
        double y2 = 0.0;
        bool operator==(const Segment& other) const = default;
    };

    std::wstring name;
    std::vector<Segment> segments;

    bool operator==(const SBaseFigure& other) const = default;
};

// The system's registry of hatching: base figures and named patterns of each kind. Names are
// unique and not empty within a kind. Stored line types are kept as they were written; they
// are settled against the line-type table when a pattern is taken into a drawing.
class CSystemHatchingSetting : public TSetting<CSystemHatchingSetting> {
public:
    // The figures and patterns a civil-engineering office starts with.
    static CSystemHatchingSetting makeDefault();

    const std::vector<SBaseFigure>& getBaseFigures() const { return m_baseFigures; }
    const std::vector<SFigurePattern>& getFigurePatterns() const { return m_figurePatterns; }
    const std::vector<SSlantPattern>& getSlantPatterns() const { return m_slantPatterns; }
    const std::vector<SCoatingPattern>& getCoatingPatterns() const { return m_coatingPatterns; }

    // Null when there is none of that name.
    const SBaseFigure* findBaseFigure(const std::wstring& name) const;
    const SFigurePattern* findFigurePattern(const std::wstring& name) const;
    const SSlantPattern* findSlantPattern(const std::wstring& name) const;
    const SCoatingPattern* findCoatingPattern(const std::wstring& name) const;
    bool isBaseFigureRegistered(const std::wstring& name) const
    {
        return findBaseFigure(name) != nullptr;
    }

    // False (and the list left as it was) for an empty or repeated name, or a base figure
    // segment outside the unit square.
    bool setBaseFigures(const std::vector<SBaseFigure>& figures);
    bool setFigurePatterns(const std::vector<SFigurePattern>& patterns);
    bool setSlantPatterns(const std::vector<SSlantPattern>& patterns);
    bool setCoatingPatterns(const std::vector<SCoatingPattern>& patterns);

    bool isSame(const CSystemHatchingSetting& other) const;

    QString xmlRootName() const override { return QStringLiteral("SystemHatchingSetting"); }
    bool loadXMLNode(const QDomElement& element) override;
    void saveXMLNode(QDomDocument& doc, QDomElement& element) const override;

private:
    std::vector<SBaseFigure> m_baseFigures;
    std::vector<SFigurePattern> m_figurePatterns;
    std::vector<SSlantPattern> m_slantPatterns;
    std::vector<SCoatingPattern> m_coatingPatterns;
};

} // namespace kesto::ui::setting
