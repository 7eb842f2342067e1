#include "element/KsCrossSectionView.h"

KsCrossSectionView::KsCrossSectionView(std::wstring name, const KsLayer* layer)
    : KsFigure(L"CROSSSECTIONVIEW", layer)
    , m_name(std::move(name))
{}

void KsCrossSectionView::setLayerFlgs(kesto::element::LayerFlagMap flags)
{
    m_flags.setStored(std::move(flags));
}

char KsCrossSectionView::getLayerFlg(const std::wstring& layerName) const
{
    return m_flags.shownFlag(layerName);
}

bool KsCrossSectionView::previewLayerFlg(const std::wstring& layerName, char flag) const
{
    return m_flags.preview(layerName, flag);
}

bool KsCrossSectionView::endLayerFlgPreview() const
{
    return m_flags.endPreview();
}
