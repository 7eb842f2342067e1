#pragma once

#include "element/ICrossSectionView.h"
#include "layer/EditLayersDlgBase.h"

namespace kesto::ui::config {

// "参照・非参照レイヤの設定": which layers a cross-section view references, for a new view
// or for existing ones edited together.
class KSCONFIGDLG_EXPORT CEditCrossSectionLayersDlg : public CEditLayersDlgBase {
    Q_OBJECT

public:
    CEditCrossSectionLayersDlg();

    // For existing cross-section views; each is previewed while the dialog is open.
    bool setupEdit(IDataBase* db, IView* view, const std::map<std::wstring, char>& flags,
                   const std::vector<const element::ICrossSectionView*>& views);
};

} // namespace kesto::ui::config
