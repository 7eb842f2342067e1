#pragma once

#include "KsSystemConfigDlgExport.h"
#include "setting/SystemScaleSetting.h"

// Entry functions of the system tables.
namespace kesto::ui::config {

// "スケールの設定"; true when the user confirmed, and only then is setting changed.
KSCONFIGDLG_EXPORT bool doSystemScaleDlg(setting::CSystemScaleSetting& setting,
                                         const setting::CSystemScaleSetting& defaults);
// The same dialog for adding scales: an OK without "追加" counts as a cancel.
KSCONFIGDLG_EXPORT bool doSystemScaleDlgAddMode(setting::CSystemScaleSetting& setting);

} // namespace kesto::ui::config
