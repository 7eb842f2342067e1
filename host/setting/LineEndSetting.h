#pragma once

#include "setting/SettingBase.h"

#include <string>
#include <vector>

namespace kesto::ui::setting {

// A line end (arrow, dot, tick, ...): its name, the shape type drawn for it, its two sizes in
// mm and how the sizes scale the shape (1 to 4).
struct SLineEnd {
    enum ECategory { CategoryElement = 1, CategoryDimension = 2 };

    std::wstring name;
    std::wstring type;
    double size1 = 0.0;
    double size2 = 0.0;
    int scalingKind = 1;
    int category = CategoryElement;

    const std::wstring& getName() const { return name; }
    const std::wstring& getType() const { return type; }
    bool operator==(const SLineEnd& other) const = default;
};

// Shape types the host can draw.
namespace lineendtype {
inline constexpr const wchar_t* None = L"NONE";
inline constexpr const wchar_t* OpenArrow = L"ARROW_OPEN";
inline constexpr const wchar_t* FilledArrow = L"ARROW_FILLED";
inline constexpr const wchar_t* FilledDot = L"DOT_FILLED";
inline constexpr const wchar_t* OpenDot = L"DOT_OPEN";
inline constexpr const wchar_t* Slash = L"SLASH";
inline constexpr const wchar_t* Tick = L"TICK";
} // namespace lineendtype

class CLineEndSetting : public TSetting<CLineEndSetting> {
public:
    static CLineEndSetting makeDefault();

    const std::vector<SLineEnd>& getLineEnds() const { return m_lineEnds; }
    // Names must be unique within a category and not empty; false leaves the list.
    bool setLineEnds(const std::vector<SLineEnd>& lineEnds);
    // The line ends of one category, in order.
    void copyLineEnds(std::vector<SLineEnd>& out, int category) const;

    bool isSame(const CLineEndSetting& other) const { return m_lineEnds == other.m_lineEnds; }

    QString xmlRootName() const override { return QStringLiteral("LineEndSetting"); }
    bool loadXMLNode(const QDomElement& element) override;
    void saveXMLNode(QDomDocument& doc, QDomElement& element) const override;

private:
    std::vector<SLineEnd> m_lineEnds;
};

} // namespace kesto::ui::setting
