#include "types/KsLayer.h"

#include "db/KsLayerManager.h"

KsLayer::KsLayer(std::wstring name)
    : m_name(std::move(name))
{}

bool KsLayer::isVisible(const KsLayerManager& manager) const
{
    return manager.isVisible(*this);
}

bool KsLayer::isReference(const KsLayerManager& manager) const
{
    return manager.isReference(*this);
}

bool KsLayer::isEditable(const KsLayerManager& manager) const
{
    return manager.isEditable(*this);
}
