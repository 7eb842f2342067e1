#pragma once

#include "types/KsObject.h"

#include <QColor>

#include <cstdint>
#include <string>

// A colour as the host stores it: an RGB value (0xRRGGBB), how it was chosen and its name.
// The by-layer colour stands for "whatever the element's layer says".
class KsColor : public KsObject {
public:
    enum EColorType { ByLayer = 0, System = 1, User = 2 };

    KsColor() = default;
    KsColor(std::uint32_t rgb, int colorType, std::wstring name = {});
    static KsColor byLayer();

    std::wstring getType() const override { return L"COLOR"; }

    bool isByLayer() const { return m_colorType == ByLayer; }
    std::uint32_t getRGB() const { return m_rgb; }
    int getColorType() const { return m_colorType; }
    const std::wstring& getName() const { return m_name; }
    QColor toQColor() const;

    void setRGB(std::uint32_t rgb) { m_rgb = rgb & 0xFFFFFFu; }
    void setColorType(int type) { m_colorType = type; }
    void setName(std::wstring name) { m_name = std::move(name); }

    // The colour's number in the drawing it was read from (a DXF colour number, 1 to 255), so
    // that the drawing is written back with the number it had; 0 for none. Not part of what
    // makes two colours the same.
    int getNumber() const { return m_number; }
    void setNumber(int number) { m_number = number >= 0 && number <= 255 ? number : 0; }

    bool operator==(const KsColor& other) const;

    // The one text form of an RGB value, "#RRGGBB" (upper case), and its reading: exactly
    // '#' and six hex digits, else false with out left alone.
    static QString rgbText(std::uint32_t rgb);
    static bool readRgbText(const QString& text, std::uint32_t& out);

private:
    std::uint32_t m_rgb = 0;
    int m_colorType = System;
    int m_number = 0;
    std::wstring m_name;
};
