#include "setting/SystemColorSetting.h"

#include "utility/Xml.h"

#include <set>

#include <algorithm>

namespace kesto::ui::setting {

CSystemColorSetting CSystemColorSetting::makeDefault()
{
    const std::pair<std::uint32_t, const wchar_t*> colors[] = {
        {0x000000, L"黒"}, {0xFF0000, L"赤"},   {0x00A000, L"緑"}, {0x0000FF, L"青"},
        {0xFFFF00, L"黄"}, {0x00FFFF, L"水色"}, {0xFF00FF, L"紫"}, {0xFFFFFF, L"白"},
        {0x808080, L"灰"}, {0x804000, L"茶"},   {0xFF8000, L"橙"}, {0xFF80C0, L"桃"},
    };
    std::vector<KsColor> list;
    for (const auto& [rgb, name] : colors)
        list.emplace_back(rgb, KsColor::System, name);
    CSystemColorSetting setting;
    setting.setColors(list);
    return setting;
}

const KsColor* CSystemColorSetting::findByRGB(std::uint32_t rgb) const
{
    const auto it = std::find_if(m_colors.begin(), m_colors.end(),
                                 [&](const KsColor& c) { return c.getRGB() == (rgb & 0xFFFFFFu); });
    return it == m_colors.end() ? nullptr : &*it;
}

const KsColor* CSystemColorSetting::findByName(const std::wstring& name) const
{
    const auto it = std::find_if(m_colors.begin(), m_colors.end(),
                                 [&](const KsColor& c) { return c.getName() == name; });
    return it == m_colors.end() ? nullptr : &*it;
}

bool CSystemColorSetting::setColors(const std::vector<KsColor>& colors)
{
    std::set<std::wstring> names;
    for (const KsColor& color : colors) {
        if (color.getName().empty() || names.count(color.getName()))
            return false;
        names.insert(color.getName());
    }
    m_colors = colors;
    return true;
}

bool CSystemColorSetting::loadXMLNode(const QDomElement& element)
{
    std::vector<KsColor> colors;
    std::set<std::wstring> names;
    for (QDomElement e = element.firstChildElement(QStringLiteral("Color")); !e.isNull();
         e = e.nextSiblingElement(QStringLiteral("Color"))) {
        std::uint32_t rgb = 0;
        const std::wstring name = e.attribute(QStringLiteral("name")).toStdWString();
        if (!KsColor::readRgbText(e.attribute(QStringLiteral("rgb")), rgb) || name.empty()
            || !names.insert(name).second) {
            if (utility::xml::skipEntry(e))
                continue;
            return false;
        }
        colors.emplace_back(rgb, KsColor::System, name);
    }
    return setColors(colors);
}

void CSystemColorSetting::saveXMLNode(QDomDocument& doc, QDomElement& element) const
{
    for (const KsColor& color : m_colors) {
        QDomElement e = doc.createElement(QStringLiteral("Color"));
        e.setAttribute(QStringLiteral("name"), QString::fromStdWString(color.getName()));
        e.setAttribute(QStringLiteral("rgb"), KsColor::rgbText(color.getRGB()));
        element.appendChild(e);
    }
}

void CColorSetting::addCustomColor(std::uint32_t rgb)
{
    rgb &= 0xFFFFFFu;
    std::erase(m_customColors, rgb);
    m_customColors.insert(m_customColors.begin(), rgb);
    if (m_customColors.size() > kMaxCustomColors)
        m_customColors.resize(kMaxCustomColors);
}

void CColorSetting::setCustomColors(const std::vector<std::uint32_t>& colors)
{
    m_customColors.clear();
    for (auto it = colors.rbegin(); it != colors.rend(); ++it)
        addCustomColor(*it);
}

bool CColorSetting::loadXMLNode(const QDomElement& element)
{
    std::vector<std::uint32_t> colors;
    for (QDomElement e = element.firstChildElement(QStringLiteral("CustomColor")); !e.isNull();
         e = e.nextSiblingElement(QStringLiteral("CustomColor"))) {
        std::uint32_t rgb = 0;
        if (!KsColor::readRgbText(e.attribute(QStringLiteral("rgb")), rgb)) {
            if (utility::xml::skipEntry(e))
                continue;
            return false;
        }
        colors.push_back(rgb);
    }
    setCustomColors(colors);
    return true;
}

void CColorSetting::saveXMLNode(QDomDocument& doc, QDomElement& element) const
{
    for (std::uint32_t rgb : m_customColors) {
        QDomElement e = doc.createElement(QStringLiteral("CustomColor"));
        e.setAttribute(QStringLiteral("rgb"), KsColor::rgbText(rgb));
        element.appendChild(e);
    }
}

} // namespace kesto::ui::setting
