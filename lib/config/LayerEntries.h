#pragma once

#include "KsSystemConfigDlgExport.h"
#include "layer/EditCrossSectionLayersDlg.h"
#include "layer/EditViewPortLayersDlg.h"

#include <map>
#include <string>
#include <vector>

class IDataBase;
class IView;

// Factories of the layer show/hide and reference dialogs. Each returns null when the database
// or the view is null, or the drawing has no layer; the caller runs the dialog with DoModal,
// reads the result (modifyLayerFlgs, getLayerFlgArray) and deletes it.
namespace kesto {

KSCONFIGDLG_EXPORT ui::config::CEditViewPortLayersDlg*
createCEditViewPortLayersDlgForCreate(IDataBase* db, IView* view,
                                      const std::map<std::wstring, char>& flags);
KSCONFIGDLG_EXPORT ui::config::CEditViewPortLayersDlg*
createCEditViewPortLayersDlgForEdit(IDataBase* db, IView* view,
                                    const std::map<std::wstring, char>& flags,
                                    const std::vector<const element::IViewPort*>& viewports);

KSCONFIGDLG_EXPORT ui::config::CEditCrossSectionLayersDlg*
createCEditCrossSectionLayersDlgForCreate(IDataBase* db, IView* view,
                                          const std::map<std::wstring, char>& flags);
KSCONFIGDLG_EXPORT ui::config::CEditCrossSectionLayersDlg* createCEditCrossSectionLayersDlgForEdit(
    IDataBase* db, IView* view, const std::map<std::wstring, char>& flags,
    const std::vector<const element::ICrossSectionView*>& views);

} // namespace kesto
