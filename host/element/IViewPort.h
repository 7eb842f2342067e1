#pragma once

#include "element/ILayerFlagView.h"

class KsLayer;
class KsLayerManager;

namespace kesto::element {

// A viewport: a window onto the drawing that shows or hides layers of its own.
class IViewPort : public ILayerFlagView {
public:
    // Whether the viewport shows the layer: its flag, else the layer's own state.
    bool showsLayer(const KsLayer& layer, const KsLayerManager& manager) const;
};

} // namespace kesto::element
