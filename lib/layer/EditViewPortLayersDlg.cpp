#include "layer/EditViewPortLayersDlg.h"

namespace kesto::ui::config {

CEditViewPortLayersDlg::CEditViewPortLayersDlg()
    : CEditLayersDlgBase(ViewPorts)
{}

bool CEditViewPortLayersDlg::setupEdit(IDataBase* db, IView* view,
                                       const std::map<std::wstring, char>& flags,
                                       const std::vector<const element::IViewPort*>& viewports)
{
    return setupViews(db, view, flags, {viewports.begin(), viewports.end()});
}

} // namespace kesto::ui::config
