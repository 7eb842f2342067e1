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
    CDrawCommonSetting read = *this;
    // Each part on its own: one that cannot be read is skipped when entries may be.
    const auto part = [&element](const char* tag, const auto& readPart) {
        const QDomElement e = element.firstChildElement(QLatin1String(tag));
        return (!e.isNull() && readPart(e)) || skipEntry(e);
    };
    const bool ok =
        part("Color",
             [&](const QDomElement& e) {
                 int mode = 0;
                 KsColor color;
                 if (!readIntAttribute(e, QStringLiteral("mode"), mode) || !readColor(e, color))
                     return false;
                 read.m_colorMode = mode;
                 read.m_color = color;
                 return true;
             })
        && part("LineType",
                [&](const QDomElement& e) {
                    read.m_lineTypeName = e.attribute(QStringLiteral("name")).toStdWString();
                    return readIntAttribute(e, QStringLiteral("mode"), read.m_lineTypeMode);
                })
        && part("LineWidth",
                [&](const QDomElement& e) {
                    double width = 0;
                    int kind = 0;
                    if (!readDoubleAttribute(e, QStringLiteral("value"), width) || width < 0
                        || !readIntAttribute(e, QStringLiteral("kind"), kind))
                        return false;
                    read.m_width = width;
                    read.m_widthKind = kind;
                    return true;
                })
        && part("LineEnds", [&](const QDomElement& e) {
               read.m_startLineEnd = e.attribute(QStringLiteral("start")).toStdWString();
               read.m_endLineEnd = e.attribute(QStringLiteral("end")).toStdWString();
               return true;
           });
    if (!ok)
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
