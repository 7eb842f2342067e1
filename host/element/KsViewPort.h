#pragma once

#include "element/IViewPort.h"
#include "element/LayerFlagFigure.h"

// A viewport element of the drawing ("VIEWPORT"); its frame lies on a layer (or none), in a
// layout's block or on the sheet.
class KsViewPort : public kesto::element::TLayerFlagFigure<kesto::element::IViewPort> {
public:
    explicit KsViewPort(std::wstring name, const KsLayer* layer = nullptr, bool inBlock = false)
        : TLayerFlagFigure(L"VIEWPORT", std::move(name), layer, inBlock)
    {}
};
