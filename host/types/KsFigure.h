#pragma once

#include "types/KsColor.h"
#include "types/KsLineWidth.h"
#include "types/KsObject.h"

#include <cstdint>
#include <string>
#include <string_view>

class KsLayer;
class KsLineType;

// A figure of the drawing (line, arc, text, hatch, insert, ...), lying on a layer, with its own
// colour, line type and line width, each by layer unless set. Kept small, since drawings hold
// millions: the kind name is shared between figures, the line type points into the drawing's
// table, the colour is RGB and type in one word and the width is whole micrometres.
class KsFigure : public KsObject {
public:
    // Widths are kept up to this many millimetres.
    static constexpr double kMaxWidth = 65.535;

    KsFigure(std::wstring_view kind, const KsLayer* layer, bool inBlock = false);

    std::wstring getType() const override { return *m_kind; }
    const std::wstring& getKind() const { return *m_kind; }

    // The layer the figure lies on; null for none.
    const KsLayer* getLayer() const { return m_layer; }
    void setLayer(const KsLayer* layer) { m_layer = layer; }

    // Part of a block definition: shown wherever the block is placed.
    bool isInBlock() const { return m_inBlock != 0; }

    // The figure's own colour (KsColor::byLayer() unless set) with its number; the name is not
    // kept.
    KsColor getColor() const;
    void setColor(const KsColor& color);
    bool isColorByLayer() const { return colorType() == KsColor::ByLayer; }

    // A line type of the drawing's table ("LTYPE"), which must outlive the figure; null (or a
    // by-layer line type) for by layer.
    const KsLineType* getLineType() const { return m_lineType; }
    void setLineType(const KsLineType* lineType);
    bool isLineTypeByLayer() const { return m_lineType == nullptr; }

    // The figure's width with its kind (KsLineWidth::ByLayer unless set). An explicit width is
    // kept to the micrometre, from 0 to kMaxWidth; thin, bold and extra bold keep the width
    // they had when set.
    KsLineWidth getLineWidth() const;
    void setLineWidth(double width, int kind = KsLineWidth::Explicit);
    bool isLineWidthByLayer() const { return m_widthKind == KsLineWidth::ByLayer; }

private:
    int colorType() const { return static_cast<int>(m_color >> 24); }

    const std::wstring* m_kind;
    const KsLayer* m_layer;
    const KsLineType* m_lineType = nullptr;
    std::uint32_t m_color = 0; // type << 24 | RGB
    std::uint16_t m_widthMicrometres = 0;
    std::uint8_t m_widthKind : 7 = KsLineWidth::ByLayer;
    std::uint8_t m_inBlock : 1;
    std::uint8_t m_colorNumber = 0;
};
