#pragma once

#include "element/ICrossSectionView.h"
#include "element/LayerFlagTable.h"
#include "types/KsFigure.h"

// A cross-section view element of the drawing ("CROSSSECTIONVIEW"); its frame lies on a layer
// (or none).
class KsCrossSectionView : public KsFigure, public kesto::element::ICrossSectionView {
public:
    explicit KsCrossSectionView(std::wstring name, const KsLayer* layer = nullptr);

    std::wstring getViewName() const override { return m_name; }
    void setViewName(std::wstring name) { m_name = std::move(name); }

    const kesto::element::LayerFlagMap& getLayerFlgs() const override { return m_flags.stored(); }
    void setLayerFlgs(kesto::element::LayerFlagMap flags) override;
    char getLayerFlg(const std::wstring& layerName) const override;
    bool previewLayerFlg(const std::wstring& layerName, char flag) const override;
    bool endLayerFlgPreview() const override;

private:
    std::wstring m_name;
    // How the view is drawn while a dialog previews it; the stored flags are not touched.
    mutable kesto::element::CLayerFlagTable m_flags;
};
