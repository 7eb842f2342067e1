#include "config/SystemEntries.h"

#include "config/ModalProtocol.h"
#include "system/SystemScaleDlg.h"

namespace kesto::ui::config {

bool doSystemScaleDlg(setting::CSystemScaleSetting& setting,
                      const setting::CSystemScaleSetting& defaults)
{
    return runSettingDialog<CSystemScaleDlg>(setting, &defaults, CopyBack::OnOk);
}

bool doSystemScaleDlgAddMode(setting::CSystemScaleSetting& setting)
{
    // The setting is its own reset value.
    const setting::CSystemScaleSetting resetValue = setting;
    return runSettingDialog<CSystemScaleDlg>(setting, &resetValue, CopyBack::OnOk,
                                             [](CSystemScaleDlg& dlg) { dlg.setAddMode(true); });
}

} // namespace kesto::ui::config
