#include "config/SystemEntries.h"

#include "config/ModalProtocol.h"
#include "db/IDataBase.h"
#include "system/LineWidthDlg.h"
#include "system/LineWidthRules.h"
#include "system/SystemPaperFrameDlg.h"
#include "system/SystemPaperSizeDlg.h"
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
    return runSettingDialog<CSystemScaleDlg>(
        setting, &resetValue,
        SProtocol<CSystemScaleDlg>{CopyBack::OnOk, [](CSystemScaleDlg& dlg) { dlg.setAddMode(true); }});
}

bool doLineWidthDlg(setting::CLineWidthSetting& setting, const setting::CLineWidthSetting& defaults,
                    IDataBase* db)
{
    SProtocol<CLineWidthDlg> protocol{CopyBack::OnOk,
                                      [db](CLineWidthDlg& dlg) { dlg.setDataBase(db); }, {}};
    if (db)
        protocol.afterOk = [db](CLineWidthDlg&) { db->recordChange(linewidthrules::kChangeLabel); };
    return runSettingDialog<CLineWidthDlg>(setting, &defaults, protocol);
}

bool doPaperSizeDlg(setting::CSystemPaperSizeSetting& setting,
                    const setting::CSystemPaperSizeSetting& defaults)
{
    return runSettingDialog<CSystemPaperSizeDlg>(setting, &defaults, CopyBack::OnChange);
}

bool doSystemPaperFrameDlg(setting::CSystemPaperFrameSetting& setting,
                           const setting::CSystemPaperFrameSetting& defaults)
{
    return runSettingDialog<CSystemPaperFrameDlg>(setting, &defaults, CopyBack::OnOk);
}

} // namespace kesto::ui::config
