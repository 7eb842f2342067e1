#include "config/CustomizeEntries.h"

#include "command/CommandTable.h"
#include "config/ModalProtocol.h"
#include "customize/ShortCutDlg.h"

namespace kesto::ui::config {

bool doShortCutDlg(setting::CShortCutSetting& setting, const utility::CCommandTable* commands)
{
    if (!commands)
        return false;
    setting::CShortCutSetting defaults;
    defaults.setupByTable(commands);
    return runSettingDialog<CShortCutDlg>(
        setting, &defaults, CopyBack::OnChange,
        [&](CShortCutDlg& dlg) { dlg.setCommandTable(commands); });
}

} // namespace kesto::ui::config
