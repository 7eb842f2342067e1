#pragma once

#include "element/ILayerFlagView.h"

class KsLayer;
class KsLayerManager;

namespace kesto::element {

// A cross-section view: a section through the model that takes in the figures of the layers
// it references.
class ICrossSectionView : public ILayerFlagView {
public:
    // Whether the view references the layer: its flag, else the layer's own state.
    bool referencesLayer(const KsLayer& layer, const KsLayerManager& manager) const;
};

} // namespace kesto::element
