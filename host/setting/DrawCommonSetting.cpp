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

bool CDrawCommonSetting::readColorPart(const QDomElement& e, CDrawCommonSetting& out)
{
    int mode = 0;
    KsColor color;
    if (!utility::xml::readIntAttribute(e, QStringLiteral("mode"), mode) || !readColor(e, color))
        return false;
    out.m_colorMode = mode;
    out.m_color = color;
    return true;
}

bool CDrawCommonSetting::readLineTypePart(const QDomElement& e, CDrawCommonSetting& out)
{
    int mode = 0;
    if (!utility::xml::readIntAttribute(e, QStringLiteral("mode"), mode))
        return false;
    out.m_lineTypeMode = mode;
    out.m_lineTypeName = e.attribute(QStringLiteral("name")).toStdWString();
    return true;
}

bool CDrawCommonSetting::readWidthPart(const QDomElement& e, CDrawCommonSetting& out)
{
    double width = 0;
    int kind = 0;
    if (!utility::xml::readDoubleAttribute(e, QStringLiteral("value"), width) || width < 0
        || !utility::xml::readIntAttribute(e, QStringLiteral("kind"), kind))
        return false;
    out.m_width = width;
    out.m_widthKind = kind;
    return true;
}

bool CDrawCommonSetting::readEndsPart(const QDomElement& e, CDrawCommonSetting& out)
{
    out.m_startLineEnd = e.attribute(QStringLiteral("start")).toStdWString();
    out.m_endLineEnd = e.attribute(QStringLiteral("end")).toStdWString();
    return true;
}

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
    CDrawCommonSetting read = *this;
    // Each part on its own: one that cannot be read is skipped when entries may be.
    const auto part = [&](const char* tag,
                          bool (*readPart)(const QDomElement&, CDrawCommonSetting&)) {
        const QDomElement e = element.firstChildElement(QLatin1String(tag));
        return (!e.isNull() && readPart(e, read)) || utility::xml::skipEntry(e);
    };
    if (!part("Color", &readColorPart) || !part("LineType", &readLineTypePart)
        || !part("LineWidth", &readWidthPart) || !part("LineEnds", &readEndsPart))
        return false;
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
