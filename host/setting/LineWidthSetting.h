#pragma once

#include "setting/SettingBase.h"

#include <cstdint>
#include <string>
#include <vector>

namespace kesto::ui::setting {

// One pen of the system's line width table: the width in millimetres, its name, the colour
// with which lines of that width are shown, and whether it is one of the system's fixed widths.
class SLineWidth {
public:
    SLineWidth() { clear(); }
    SLineWidth(double width, std::uint32_t rgb, int colorType, std::wstring colorName,
               bool systemDefault = false);

    // Width 0, shown in white ("白", a system colour), not a system default.
    void clear();

    double getWidth() const { return m_width; }
    // Sets the width and names the entry after it ("0.35").
    void setWidth(double width);
    const std::wstring& getWidthName() const { return m_widthName; }
    // Widths are told apart to the three decimals their names show.
    bool hasWidth(double width) const;

    std::uint32_t getColor() const { return m_color; }
    void setColor(std::uint32_t rgb) { m_color = rgb & 0xFFFFFFu; }
    int getColorType() const { return m_colorType; }
    void setColorType(int type) { m_colorType = type; }
    const std::wstring& getColorName() const { return m_colorName; }
    void setColorName(std::wstring name) { m_colorName = std::move(name); }

    bool isSystemDefault() const { return m_systemDefault; }
    void setSystemDefault(bool on) { m_systemDefault = on; }

    bool operator==(const SLineWidth& other) const = default;

private:
    double m_width = 0.0;
    std::wstring m_widthName;
    std::uint32_t m_color = 0xFFFFFF;
    int m_colorType = 1;
    std::wstring m_colorName;
    bool m_systemDefault = false;
};

// The system's line width table and which widths count as thin, bold and extra bold.
class CLineWidthSetting : public TSetting<CLineWidthSetting> {
public:
    // The JIS pen series 0.13 to 1.4 mm as fixed entries, thin 0.18, bold 0.35, extra bold 0.7.
    static CLineWidthSetting makeDefault();

    const std::vector<SLineWidth>& getLineWidths() const { return m_widths; }
    void copyLineWidths(std::vector<SLineWidth>& out) const { out = m_widths; }
    void setUserLineWidths(const std::vector<SLineWidth>& widths) { m_widths = widths; }
    // The first entry of that width, or null.
    const SLineWidth* findByWidth(double width) const;

    const SLineWidth& getThinLineWidth() const { return m_thin; }
    const SLineWidth& getBoldLineWidth() const { return m_bold; }
    const SLineWidth& getExtraBoldLineWidth() const { return m_extraBold; }
    void setThinLineWidth(const SLineWidth& width) { m_thin = width; }
    void setBoldLineWidth(const SLineWidth& width) { m_bold = width; }
    void setExtraBoldLineWidth(const SLineWidth& width) { m_extraBold = width; }

    bool isSame(const CLineWidthSetting& other) const;

    QString xmlRootName() const override { return QStringLiteral("LineWidthSetting"); }
    bool loadXMLNode(const QDomElement& element) override;
    void saveXMLNode(QDomDocument& doc, QDomElement& element) const override;

private:
    std::vector<SLineWidth> m_widths;
    SLineWidth m_thin;
    SLineWidth m_bold;
    SLineWidth m_extraBold;
};

} // namespace kesto::ui::setting
