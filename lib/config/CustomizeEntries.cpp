#include "config/CustomizeEntries.h"

#include "command/CommandTable.h"
#include "config/ModalProtocol.h"
#include "customize/MouseDlg.h"
#include "customize/ShortCutDlg.h"

namespace kesto::ui::config {

bool doShortCutDlg(setting::CShortCutSetting& setting, const utility::CCommandTable* commands)
{
    if (!commands)
        return false;
    setting::CShortCutSetting defaults;
    defaults.setupByTable(commands);
    return runSettingDialog<CShortCutDlg>(
        setting, &defaults,
        SProtocol<CShortCutDlg>{CopyBack::OnChange,
                                [&](CShortCutDlg& dlg) { dlg.setCommandTable(commands); }});
}

bool doMouseDlg(setting::CMouseSetting& setting, const setting::CMouseSetting& defaults,
                const wchar_t* commandFile, const utility::CCommandTable* commands)
{
    if (!commands)
        return false;
    const auto prepare = [&](CMouseDlg& dlg) {
        dlg.setCommandTable(commands);
        dlg.loadMouseCommands(commandFile ? std::wstring(commandFile) : std::wstring());
    };
    return runSettingDialog<CMouseDlg>(setting, &defaults,
                                       SProtocol<CMouseDlg>{CopyBack::OnOk, prepare});
}

} // namespace kesto::ui::config
