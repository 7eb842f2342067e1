#pragma once

#include "element/ILayerFlagView.h"

namespace kesto::element {

// The stored and previewed layer flags of one view.
class CLayerFlagTable {
public:
    const LayerFlagMap& stored() const { return m_stored; }
    void setStored(LayerFlagMap flags) { m_stored = std::move(flags); }

    char shownFlag(const std::wstring& layerName) const;
    bool preview(const std::wstring& layerName, char flag);
    bool endPreview();
    bool isPreviewing() const { return !m_preview.empty(); }

private:
    static char find(const LayerFlagMap& flags, const std::wstring& layerName);

    LayerFlagMap m_stored;
    LayerFlagMap m_preview;
};

} // namespace kesto::element
