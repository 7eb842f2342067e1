#pragma once

#include "element/LayerFlagTable.h"
#include "types/KsFigure.h"

#include <string>

namespace kesto::element {

// A view element of the drawing (viewport, cross-section view) that keeps per-layer flags:
// its name, its stored flags, and a preview that changes only how it is drawn.
template <class ViewInterface>
class TLayerFlagFigure : public KsFigure, public ViewInterface {
public:
    TLayerFlagFigure(std::wstring_view kind, std::wstring name, const KsLayer* layer, bool inBlock)
        : KsFigure(kind, layer, inBlock)
        , m_name(std::move(name))
    {}

    std::wstring getViewName() const override { return m_name; }
    void setViewName(std::wstring name) { m_name = std::move(name); }

    const LayerFlagMap& getLayerFlgs() const override { return m_flags.stored(); }
    void setLayerFlgs(LayerFlagMap flags) override { m_flags.setStored(std::move(flags)); }
    char getLayerFlg(const std::wstring& layerName) const override
    {
        return m_flags.shownFlag(layerName);
    }
    bool previewLayerFlg(const std::wstring& layerName, char flag) const override
    {
        return m_flags.preview(layerName, flag);
    }
    bool endLayerFlgPreview() const override { return m_flags.endPreview(); }

private:
    std::wstring m_name;
    mutable CLayerFlagTable m_flags;
};

} // namespace kesto::element
