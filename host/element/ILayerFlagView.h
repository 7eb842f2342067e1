#pragma once

#include <map>
#include <string>

namespace kesto::element {

// Per-layer overrides of a view, by layer name.
using LayerFlagMap = std::map<std::wstring, char>;

enum ELayerFlag : char {
    LayerFlagNone = 0, // the layer's own state applies
    LayerFlagOn = 1,   // shown (referenced) in this view
    LayerFlagOff = 2,  // hidden (not referenced) in this view
    LayerFlagKeep = 3, // keep what the view has (only while several views are edited together)
};

// A view that overrides the layers' own states per layer. The stored flags are what the view
// keeps; a preview changes only how the view is drawn until it ends, so dialogs can show a
// change live through a const view.
class ILayerFlagView {
public:
    virtual ~ILayerFlagView() = default;

    virtual std::wstring getViewName() const = 0;

    virtual const LayerFlagMap& getLayerFlgs() const = 0;
    virtual void setLayerFlgs(LayerFlagMap flags) = 0;

    // The flag the view is drawn with: the previewed one, else the stored one, else 0.
    virtual char getLayerFlg(const std::wstring& layerName) const = 0;
    // Previews one layer's flag; LayerFlagKeep drops its preview so the stored flag applies.
    // True when the flag the view is drawn with changed.
    virtual bool previewLayerFlg(const std::wstring& layerName, char flag) const = 0;
    // Ends every preview; true when any layer's flag changed by it.
    virtual bool endLayerFlgPreview() const = 0;
};

} // namespace kesto::element
