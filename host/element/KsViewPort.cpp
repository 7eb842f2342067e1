#include "element/KsViewPort.h"

KsViewPort::KsViewPort(std::wstring name, const KsLayer* layer, bool inBlock)
    : KsFigure(L"VIEWPORT", layer, inBlock)
    , m_name(std::move(name))
{}

void KsViewPort::setLayerFlgs(kesto::element::LayerFlagMap flags)
{
    m_flags.setStored(std::move(flags));
}

char KsViewPort::getLayerFlg(const std::wstring& layerName) const
{
    return m_flags.shownFlag(layerName);
}

bool KsViewPort::previewLayerFlg(const std::wstring& layerName, char flag) const
{
    return m_flags.preview(layerName, flag);
}

bool KsViewPort::endLayerFlgPreview() const
{
    return m_flags.endPreview();
}
