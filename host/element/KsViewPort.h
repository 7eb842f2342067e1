#pragma once

#include "element/IViewPort.h"
#include "element/LayerFlagTable.h"
#include "types/KsFigure.h"

// A viewport element of the drawing ("VIEWPORT"); its frame lies on a layer (or none), in a
// layout's block or on the sheet.
class KsViewPort : public KsFigure, public kesto::element::IViewPort {
public:
    explicit KsViewPort(std::wstring name, const KsLayer* layer = nullptr, bool inBlock = false);

    std::wstring getViewName() const override { return m_name; }
    void setViewName(std::wstring name) { m_name = std::move(name); }

    const kesto::element::LayerFlagMap& getLayerFlgs() const override { return m_flags.stored(); }
    void setLayerFlgs(kesto::element::LayerFlagMap flags) override;
    char getLayerFlg(const std::wstring& layerName) const override;
    bool previewLayerFlg(const std::wstring& layerName, char flag) const override;
    bool endLayerFlgPreview() const override;

private:
    std::wstring m_name;
    // How the viewport is drawn while a dialog previews it; the stored flags are not touched.
    mutable kesto::element::CLayerFlagTable m_flags;
};
