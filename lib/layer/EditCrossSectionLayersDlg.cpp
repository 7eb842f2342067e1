#include "layer/EditCrossSectionLayersDlg.h"

namespace kesto::ui::config {

CEditCrossSectionLayersDlg::CEditCrossSectionLayersDlg()
    : CEditLayersDlgBase(CrossSectionViews)
{}

bool CEditCrossSectionLayersDlg::setupEdit(
    IDataBase* db, IView* view, const std::map<std::wstring, char>& flags,
    const std::vector<const element::ICrossSectionView*>& views)
{
    return setupViews(db, view, flags, {views.begin(), views.end()});
}

} // namespace kesto::ui::config
