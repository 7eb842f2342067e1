#pragma once

#include "types/KsObject.h"

#include <QMetaType>

#include <cstdint>
#include <string>

// A line width in millimetres. As an attribute its kind says how it was chosen (0 explicit,
// 1 by layer, 2 thin, 3 bold, 4 extra bold); as a drawing table entry ("LWIDTH") it also
// carries the colour with which the width is shown.
class KsLineWidth : public KsObject {
public:
    enum EKind { Explicit = 0, ByLayer = 1, Thin = 2, Bold = 3, ExtraBold = 4 };

    KsLineWidth() = default;
    explicit KsLineWidth(double width, int kind = Explicit);

    std::wstring getType() const override { return L"LWIDTH"; }

    double getWidth() const { return m_width; }
    int getKind() const { return m_kind; }
    const std::wstring& getName() const { return m_name; }
    std::uint32_t getColor() const { return m_color; }
    int getColorType() const { return m_colorType; }
    const std::wstring& getColorName() const { return m_colorName; }

    // Sets the width and names the entry after it.
    void setWidth(double width);
    void setKind(int kind) { m_kind = kind; }
    void setName(std::wstring name) { m_name = std::move(name); }
    void setColor(std::uint32_t rgb) { m_color = rgb & 0xFFFFFFu; }
    void setColorType(int type) { m_colorType = type; }
    void setColorName(std::wstring name) { m_colorName = std::move(name); }

    // The display name of a width: "0.35" for 0.35 mm, at most three decimals.
    static std::wstring makeName(double width);
    void makeName() { m_name = makeName(m_width); }

    bool operator==(const KsLineWidth& other) const;

private:
    double m_width = 0.0;
    int m_kind = Explicit;
    std::wstring m_name = L"0";
    std::uint32_t m_color = 0;
    int m_colorType = 1;
    std::wstring m_colorName;
};

Q_DECLARE_METATYPE(KsLineWidth)
