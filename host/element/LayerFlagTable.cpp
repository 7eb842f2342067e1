#include "element/LayerFlagTable.h"

#include "db/KsLayerManager.h"
#include "element/ICrossSectionView.h"
#include "element/IViewPort.h"
#include "types/KsLayer.h"

namespace kesto::element {

char CLayerFlagTable::find(const LayerFlagMap& flags, const std::wstring& layerName)
{
    const auto it = flags.find(layerName);
    return it == flags.end() ? char(LayerFlagNone) : it->second;
}

char CLayerFlagTable::shownFlag(const std::wstring& layerName) const
{
    const auto it = m_preview.find(layerName);
    return it != m_preview.end() ? it->second : find(m_stored, layerName);
}

bool CLayerFlagTable::preview(const std::wstring& layerName, char flag)
{
    const char before = shownFlag(layerName);
    if (flag == LayerFlagKeep)
        m_preview.erase(layerName);
    else
        m_preview.insert_or_assign(layerName, flag);
    return shownFlag(layerName) != before;
}

bool CLayerFlagTable::endPreview()
{
    bool changed = false;
    for (const auto& [name, flag] : m_preview)
        changed = changed || flag != find(m_stored, name);
    m_preview.clear();
    return changed;
}

namespace {
// Flag 1 and 2 decide; anything else leaves the layer's own state.
bool applyFlag(char flag, bool ownState)
{
    if (flag == LayerFlagOn)
        return true;
    if (flag == LayerFlagOff)
        return false;
    return ownState;
}
} // namespace

bool IViewPort::showsLayer(const KsLayer& layer, const KsLayerManager& manager) const
{
    return applyFlag(getLayerFlg(layer.getName()), layer.isVisible(manager));
}

bool ICrossSectionView::referencesLayer(const KsLayer& layer, const KsLayerManager& manager) const
{
    return applyFlag(getLayerFlg(layer.getName()), layer.isReference(manager));
}

} // namespace kesto::element
