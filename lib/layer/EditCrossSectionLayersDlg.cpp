#include "layer/EditCrossSectionLayersDlg.h"

#include "res/LayerResource.h"

namespace kesto::ui::config {

namespace {
const SLayerFlagsDlgProfile kProfile{res::IDD_EDIT_CROSSSECTION_LAYERS,
                                     "CEditCrossSectionLayersDlg", res::IDS_LAYER_COLUMN_SECTION,
                                     res::IDS_LAYER_REFERENCE, res::IDS_LAYER_NO_REFERENCE};
}

CEditCrossSectionLayersDlg::CEditCrossSectionLayersDlg()
    : CEditLayersDlgBase(kProfile)
{}

bool CEditCrossSectionLayersDlg::setupEdit(
    IDataBase* db, IView* view, const std::map<std::wstring, char>& flags,
    const std::vector<const element::ICrossSectionView*>& views)
{
    return setupViews(db, view, flags, {views.begin(), views.end()});
}

} // namespace kesto::ui::config
