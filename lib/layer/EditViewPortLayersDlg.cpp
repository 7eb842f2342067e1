#include "layer/EditViewPortLayersDlg.h"

#include "res/LayerResource.h"

namespace kesto::ui::config {

namespace {
const SLayerFlagsDlgProfile kProfile{res::IDD_EDIT_VIEWPORT_LAYERS, "CEditViewPortLayersDlg",
                                     res::IDS_LAYER_COLUMN_VIEWPORT, res::IDS_LAYER_VISIBLE,
                                     res::IDS_LAYER_HIDDEN};
}

CEditViewPortLayersDlg::CEditViewPortLayersDlg()
    : CEditLayersDlgBase(kProfile)
{}

bool CEditViewPortLayersDlg::setupEdit(IDataBase* db, IView* view,
                                       const std::map<std::wstring, char>& flags,
                                       const std::vector<const element::IViewPort*>& viewports)
{
    return setupViews(db, view, flags, {viewports.begin(), viewports.end()});
}

} // namespace kesto::ui::config
