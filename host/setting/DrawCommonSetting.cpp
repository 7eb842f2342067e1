#include "setting/DrawCommonSetting.h"

#include "utility/NumberFormat.h"
#include "utility/Xml.h"

#include <QColor>

namespace kesto::ui::setting {

namespace {

QString text(const std::wstring& value)
{
    return QString::fromStdWString(value);
}

bool readColor(const QDomElement& e, KsColor& out)
{
    int type = KsColor::System;
    const QColor rgb(e.attribute(QStringLiteral("rgb")));
    if (!rgb.isValid() || !utility::xml::readIntAttribute(e, QStringLiteral("type"), type))
        return false;
    out = KsColor(rgb.rgb() & 0xFFFFFFu, type, e.attribute(QStringLiteral("name")).toStdWString());
    return true;
}

} // namespace

bool CDrawCommonSetting::isSame(const CDrawCommonSetting& o) const
{
    return m_colorMode == o.m_colorMode && m_color == o.m_color
           && m_lineTypeMode == o.m_lineTypeMode && m_lineTypeName == o.m_lineTypeName
           && m_width == o.m_width && m_widthKind == o.m_widthKind
           && m_startLineEnd == o.m_startLineEnd && m_endLineEnd == o.m_endLineEnd
           && m_virtualElement == o.m_virtualElement;
}

bool CDrawCommonSetting::loadXMLNode(const QDomElement& element)
{
    using namespace utility::xml;
    CDrawCommonSetting read;
    const QDomElement color = element.firstChildElement(QStringLiteral("Color"));
    const QDomElement lineType = element.firstChildElement(QStringLiteral("LineType"));
    const QDomElement width = element.firstChildElement(QStringLiteral("LineWidth"));
    const QDomElement ends = element.firstChildElement(QStringLiteral("LineEnds"));
    if (color.isNull() || lineType.isNull() || width.isNull() || ends.isNull()
        || !readIntAttribute(color, QStringLiteral("mode"), read.m_colorMode)
        || !readColor(color, read.m_color)
        || !readIntAttribute(lineType, QStringLiteral("mode"), read.m_lineTypeMode)
        || !readDoubleAttribute(width, QStringLiteral("value"), read.m_width)
        || !readIntAttribute(width, QStringLiteral("kind"), read.m_widthKind) || read.m_width < 0)
        return false;
    read.m_lineTypeName = lineType.attribute(QStringLiteral("name")).toStdWString();
    read.m_startLineEnd = ends.attribute(QStringLiteral("start")).toStdWString();
    read.m_endLineEnd = ends.attribute(QStringLiteral("end")).toStdWString();
    read.m_virtualElement =
        element.firstChildElement(QStringLiteral("VirtualElement")).attribute(QStringLiteral("on"))
        == u"1";
    *this = read;
    return true;
}

void CDrawCommonSetting::saveXMLNode(QDomDocument& doc, QDomElement& element) const
{
    QDomElement color = doc.createElement(QStringLiteral("Color"));
    color.setAttribute(QStringLiteral("mode"), m_colorMode);
    color.setAttribute(QStringLiteral("rgb"), QColor::fromRgb(m_color.getRGB()).name());
    color.setAttribute(QStringLiteral("type"), m_color.getColorType());
    color.setAttribute(QStringLiteral("name"), text(m_color.getName()));
    QDomElement lineType = doc.createElement(QStringLiteral("LineType"));
    lineType.setAttribute(QStringLiteral("mode"), m_lineTypeMode);
    lineType.setAttribute(QStringLiteral("name"), text(m_lineTypeName));
    QDomElement width = doc.createElement(QStringLiteral("LineWidth"));
    width.setAttribute(QStringLiteral("value"), utility::formatDecimal(m_width, 6));
    width.setAttribute(QStringLiteral("kind"), m_widthKind);
    QDomElement ends = doc.createElement(QStringLiteral("LineEnds"));
    ends.setAttribute(QStringLiteral("start"), text(m_startLineEnd));
    ends.setAttribute(QStringLiteral("end"), text(m_endLineEnd));
    QDomElement virtualElement = doc.createElement(QStringLiteral("VirtualElement"));
    virtualElement.setAttribute(QStringLiteral("on"), m_virtualElement ? 1 : 0);
    for (const QDomElement& child : {color, lineType, width, ends, virtualElement})
        element.appendChild(child);
}

} // namespace kesto::ui::setting
