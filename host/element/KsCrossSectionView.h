#pragma once

#include "element/ICrossSectionView.h"
#include "element/LayerFlagFigure.h"

// A cross-section view element of the drawing ("CROSSSECTIONVIEW"); its frame lies on a layer
// (or none).
class KsCrossSectionView
    : public kesto::element::TLayerFlagFigure<kesto::element::ICrossSectionView> {
public:
    explicit KsCrossSectionView(std::wstring name, const KsLayer* layer = nullptr)
        : TLayerFlagFigure(L"CROSSSECTIONVIEW", std::move(name), layer, false)
    {}
};
