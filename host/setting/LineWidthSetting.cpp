#include "setting/LineWidthSetting.h"

#include "setting/SettingXml.h"
#include "types/KsColor.h"
#include "types/KsLineWidth.h"
#include "utility/NumberFormat.h"
#include "utility/Xml.h"

#include <cmath>

namespace kesto::ui::setting {

namespace {

constexpr double kSameWidth = 0.0005;

QString widthTag()
{
    return QStringLiteral("LineWidth");
}

// The choice elements, in the order thin, bold, extra bold.
const char* const kChoiceTags[] = {"Thin", "Bold", "ExtraBold"};

void writeEntry(QDomElement& e, const SLineWidth& width)
{
    e.setAttribute(QStringLiteral("width"), utility::formatDecimal(width.getWidth(), 6));
    xmlform::writeColor(e, KsColor(width.getColor(), width.getColorType(), width.getColorName()));
    if (width.isSystemDefault())
        e.setAttribute(QStringLiteral("default"), 1);
}

bool readEntry(const QDomElement& e, SLineWidth& out)
{
    double width = 0.0;
    KsColor color;
    bool systemDefault = false;
    if (!utility::xml::readDoubleAttribute(e, QStringLiteral("width"), width) || width < 0.0
        || !xmlform::readColor(e, color)
        || !xmlform::readFlag(e, QStringLiteral("default"), false, systemDefault))
        return false;
    out = SLineWidth(width, color.getRGB(), color.getColorType(), color.getName(), systemDefault);
    return true;
}

} // namespace

SLineWidth::SLineWidth(double width, std::uint32_t rgb, int colorType, std::wstring colorName,
                       bool systemDefault)
    : m_color(rgb & 0xFFFFFFu)
    , m_colorType(colorType)
    , m_colorName(std::move(colorName))
    , m_systemDefault(systemDefault)
{
    setWidth(width);
}

void SLineWidth::clear()
{
    setWidth(0.0);
    m_color = 0xFFFFFF;
    m_colorType = KsColor::System;
    m_colorName = L"白";
    m_systemDefault = false;
}

void SLineWidth::setWidth(double width)
{
    m_width = width;
    m_widthName = KsLineWidth::makeName(width);
}

bool SLineWidth::hasWidth(double width) const
{
    return std::fabs(m_width - width) < kSameWidth;
}

CLineWidthSetting CLineWidthSetting::makeDefault()
{
    struct Pen {
        double width;
        std::uint32_t rgb;
        const wchar_t* colorName;
    };
    static const Pen pens[] = {
        {0.13, 0x00FFFF, L"水色"}, {0.18, 0xFFFFFF, L"白"}, {0.25, 0x00A000, L"緑"},
        {0.35, 0xFFFF00, L"黄"},   {0.5, 0xFF8000, L"橙"},  {0.7, 0xFF0000, L"赤"},
        {1.0, 0xFF00FF, L"紫"},    {1.4, 0x0000FF, L"青"},
    };
    CLineWidthSetting setting;
    for (const Pen& pen : pens)
        setting.m_widths.emplace_back(pen.width, pen.rgb, KsColor::System, pen.colorName, true);
    // Pens of the older 0.3 / 0.6 series, kept as the office's own entries.
    setting.m_widths.emplace_back(0.3, 0x808080, KsColor::System, L"灰");
    setting.m_widths.emplace_back(0.6, 0xFF80C0, KsColor::System, L"桃");
    setting.m_thin = setting.m_widths[1];
    setting.m_bold = setting.m_widths[3];
    setting.m_extraBold = setting.m_widths[5];
    return setting;
}

const SLineWidth* CLineWidthSetting::findByWidth(double width) const
{
    for (const SLineWidth& entry : m_widths) {
        if (entry.hasWidth(width))
            return &entry;
    }
    return nullptr;
}

bool CLineWidthSetting::isSame(const CLineWidthSetting& other) const
{
    return m_widths == other.m_widths && m_thin == other.m_thin && m_bold == other.m_bold
           && m_extraBold == other.m_extraBold;
}

bool CLineWidthSetting::loadXMLNode(const QDomElement& element)
{
    std::vector<SLineWidth> widths;
    for (QDomElement e = element.firstChildElement(widthTag()); !e.isNull();
         e = e.nextSiblingElement(widthTag())) {
        SLineWidth entry;
        if (!readEntry(e, entry)) {
            if (utility::xml::skipEntry(e))
                continue;
            return false;
        }
        widths.push_back(std::move(entry));
    }
    SLineWidth choices[3] = {m_thin, m_bold, m_extraBold};
    for (int i = 0; i < 3; ++i) {
        const QDomElement e = element.firstChildElement(QString::fromLatin1(kChoiceTags[i]));
        if ((e.isNull() || !readEntry(e, choices[i])) && !utility::xml::skipEntry(e))
            return false;
    }
    m_widths = std::move(widths);
    m_thin = choices[0];
    m_bold = choices[1];
    m_extraBold = choices[2];
    return true;
}

void CLineWidthSetting::saveXMLNode(QDomDocument& doc, QDomElement& element) const
{
    for (const SLineWidth& width : m_widths) {
        QDomElement e = doc.createElement(widthTag());
        writeEntry(e, width);
        element.appendChild(e);
    }
    const SLineWidth* choices[] = {&m_thin, &m_bold, &m_extraBold};
    for (int i = 0; i < 3; ++i) {
        QDomElement e = doc.createElement(QString::fromLatin1(kChoiceTags[i]));
        writeEntry(e, *choices[i]);
        element.appendChild(e);
    }
}

} // namespace kesto::ui::setting
