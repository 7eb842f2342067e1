#include "setting/LineEndSetting.h"

#include "utility/NumberFormat.h"
#include "utility/Xml.h"

#include <set>

namespace kesto::ui::setting {

CLineEndSetting CLineEndSetting::makeDefault()
{
    using namespace lineendtype;
    std::vector<SLineEnd> ends = {
        {L"なし", None, 0.0, 0.0, 1},          {L"矢印", OpenArrow, 3.0, 1.0, 2},
        {L"塗矢印", FilledArrow, 3.0, 1.0, 2}, {L"黒丸", FilledDot, 0.75, 0.75, 4},
        {L"白丸", OpenDot, 0.75, 0.75, 4},     {L"斜線", Slash, 1.5, 1.5, 3},
        {L"止め線", Tick, 0.0, 1.5, 2},
    };
    const std::size_t elementEnds = ends.size();
    for (std::size_t i = 0; i < elementEnds; ++i) {
        SLineEnd dimension = ends[i];
        dimension.category = SLineEnd::CategoryDimension;
        ends.push_back(dimension);
    }
    CLineEndSetting setting;
    setting.setLineEnds(ends);
    return setting;
}

bool CLineEndSetting::setLineEnds(const std::vector<SLineEnd>& lineEnds)
{
    std::set<std::pair<int, std::wstring>> names;
    for (const SLineEnd& end : lineEnds) {
        if (end.name.empty() || !names.insert({end.category, end.name}).second)
            return false;
    }
    m_lineEnds = lineEnds;
    return true;
}

void CLineEndSetting::copyLineEnds(std::vector<SLineEnd>& out, int category) const
{
    out.clear();
    for (const SLineEnd& end : m_lineEnds) {
        if (end.category == category)
            out.push_back(end);
    }
}

bool CLineEndSetting::loadXMLNode(const QDomElement& element)
{
    using namespace utility::xml;
    std::vector<SLineEnd> ends;
    std::set<std::pair<int, std::wstring>> names;
    for (QDomElement e = element.firstChildElement(QStringLiteral("LineEnd")); !e.isNull();
         e = e.nextSiblingElement(QStringLiteral("LineEnd"))) {
        SLineEnd end;
        end.name = e.attribute(QStringLiteral("name")).toStdWString();
        end.type = e.attribute(QStringLiteral("type")).toStdWString();
        if (!readDoubleAttribute(e, QStringLiteral("size1"), end.size1)
            || !readDoubleAttribute(e, QStringLiteral("size2"), end.size2)
            || !readIntAttribute(e, QStringLiteral("scaling"), end.scalingKind)
            || !readIntAttribute(e, QStringLiteral("category"), end.category) || end.size1 < 0
            || end.size2 < 0 || end.name.empty()
            || !names.insert({end.category, end.name}).second) {
            if (skipEntry(e))
                continue;
            return false;
        }
        ends.push_back(end);
    }
    return setLineEnds(ends);
}

void CLineEndSetting::saveXMLNode(QDomDocument& doc, QDomElement& element) const
{
    for (const SLineEnd& end : m_lineEnds) {
        QDomElement e = doc.createElement(QStringLiteral("LineEnd"));
        e.setAttribute(QStringLiteral("name"), QString::fromStdWString(end.name));
        e.setAttribute(QStringLiteral("type"), QString::fromStdWString(end.type));
        e.setAttribute(QStringLiteral("size1"), utility::formatDecimal(end.size1, 6));
        e.setAttribute(QStringLiteral("size2"), utility::formatDecimal(end.size2, 6));
        e.setAttribute(QStringLiteral("scaling"), end.scalingKind);
        e.setAttribute(QStringLiteral("category"), end.category);
        element.appendChild(e);
    }
}

} // namespace kesto::ui::setting
