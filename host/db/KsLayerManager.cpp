#include "db/KsLayerManager.h"

#include "types/KsLayer.h"

bool KsLayerManager::isVisible(const KsLayer& layer) const
{
    return layer.isVisible() || isCurrent(layer);
}

bool KsLayerManager::isReference(const KsLayer& layer) const
{
    return layer.isReference() || isCurrent(layer);
}

bool KsLayerManager::isEditable(const KsLayer& layer) const
{
    return layer.isEditable() || isCurrent(layer);
}
