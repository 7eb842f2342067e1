#pragma once

#include "KsSystemConfigDlgExport.h"
#include "setting/MouseSetting.h"
#include "setting/ShortCutSetting.h"

namespace kesto::utility {
class CCommandTable;
}

// Entry functions of the user-interface customisation.
namespace kesto::ui::config {

// "ショートカットキーの設定"; "初期化" restores the table's default keys. True only when the user
// confirmed a real change, and only then is setting replaced. False without a command table.
KSCONFIGDLG_EXPORT bool doShortCutDlg(setting::CShortCutSetting& setting,
                                      const utility::CCommandTable* commands);

// "マウスの設定"; commandFile names the candidate-command file (a missing or unreadable file
// leaves the candidates empty). True when the user confirmed, and only then is setting changed.
// False without a command table.
KSCONFIGDLG_EXPORT bool doMouseDlg(setting::CMouseSetting& setting,
                                   const setting::CMouseSetting& defaults,
                                   const wchar_t* commandFile,
                                   const utility::CCommandTable* commands);

} // namespace kesto::ui::config
