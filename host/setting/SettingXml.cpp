#include "setting/SettingXml.h"

#include "utility/NumberFormat.h"
#include "utility/Xml.h"


#include <cmath>

namespace kesto::ui::setting::xmlform {

void writeColor(QDomElement& element, const KsColor& color)
{
    element.setAttribute(QStringLiteral("rgb"), KsColor::rgbText(color.getRGB()));
    element.setAttribute(QStringLiteral("colorType"), color.getColorType());
    element.setAttribute(QStringLiteral("colorName"), QString::fromStdWString(color.getName()));
}

bool readColor(const QDomElement& element, KsColor& out)
{
    std::uint32_t rgb = 0;
    int type = KsColor::System;
    if (!KsColor::readRgbText(element.attribute(QStringLiteral("rgb")), rgb)
        || !utility::xml::readIntAttribute(element, QStringLiteral("colorType"), type)
        || type < KsColor::ByLayer || type > KsColor::User)
        return false;
    out = KsColor(rgb, type, element.attribute(QStringLiteral("colorName")).toStdWString());
    return true;
}

void writeLineType(QDomElement& element, const KsLineType& lineType)
{
    element.setAttribute(QStringLiteral("lineTypeId"), lineType.getId());
    element.setAttribute(QStringLiteral("lineType"), QString::fromStdWString(lineType.getName()));
    element.setAttribute(QStringLiteral("lineTypeKind"), lineType.getKind());
}

bool readLineType(const QDomElement& element, KsLineType& out)
{
    int id = 0;
    int kind = KsLineType::Solid;
    if (!utility::xml::readIntAttribute(element, QStringLiteral("lineTypeId"), id)
        || !utility::xml::readIntAttribute(element, QStringLiteral("lineTypeKind"), kind)
        || kind < KsLineType::Solid || kind > KsLineType::ByLayer)
        return false;
    out = KsLineType(id, element.attribute(QStringLiteral("lineType")).toStdWString(), kind);
    return true;
}

void writeLineWidth(QDomElement& element, const KsLineWidth& lineWidth)
{
    element.setAttribute(QStringLiteral("width"), utility::formatDecimal(lineWidth.getWidth(), 3));
    element.setAttribute(QStringLiteral("widthKind"), lineWidth.getKind());
}

bool readLineWidth(const QDomElement& element, KsLineWidth& out)
{
    double width = 0.0;
    int kind = KsLineWidth::Explicit;
    if (!utility::xml::readDoubleAttribute(element, QStringLiteral("width"), width) || width < 0.0
        || !utility::xml::readIntAttribute(element, QStringLiteral("widthKind"), kind)
        || kind < KsLineWidth::Explicit || kind > KsLineWidth::ExtraBold)
        return false;
    out = KsLineWidth(width, kind);
    return true;
}

bool readFlag(const QDomElement& element, const QString& name, bool fallback, bool& out)
{
    if (!element.hasAttribute(name)) {
        out = fallback;
        return true;
    }
    const QString text = element.attribute(name);
    if (text != u"0" && text != u"1")
        return false;
    out = text == u"1";
    return true;
}

} // namespace kesto::ui::setting::xmlform
