#include "config/DrawEntries.h"

#include "config/ModalProtocol.h"
#include "draw/DrawCommonDlg.h"

namespace kesto::ui::config {

bool doDrawCommonDlg(setting::CDrawCommonSetting& setting, SDrawCommonDlgData* data)
{
    const setting::CDrawCommonSetting* noReset = nullptr;
    return runSettingDialog<CDrawCommonDlg>(
        setting, noReset,
        SProtocol<CDrawCommonDlg>{CopyBack::Always, [data](CDrawCommonDlg& dlg) { dlg.setDlgData(data); }});
}

} // namespace kesto::ui::config
