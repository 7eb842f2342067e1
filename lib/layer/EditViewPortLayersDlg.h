#pragma once

#include "element/IViewPort.h"
#include "layer/EditLayersDlgBase.h"

namespace kesto::ui::config {

// "表示・非表示レイヤの設定": which layers a viewport shows, for a new viewport or for
// existing ones edited together.
class KSCONFIGDLG_EXPORT CEditViewPortLayersDlg : public CEditLayersDlgBase {
    Q_OBJECT

public:
    CEditViewPortLayersDlg();

    // For existing viewports; each is previewed while the dialog is open.
    bool setupEdit(IDataBase* db, IView* view, const std::map<std::wstring, char>& flags,
                   const std::vector<const element::IViewPort*>& viewports);
};

} // namespace kesto::ui::config
