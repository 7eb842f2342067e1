#pragma once

#include "KsSystemConfigDlgExport.h"
#include "config/DialogData.h"
#include "setting/DrawCommonSetting.h"

// Entry functions of the element drawing settings.
namespace kesto::ui::config {

// "共通設定". The dialog's values go back into setting whatever the result, since its
// "図面参照" ends the dialog with Cancel (request code 2 in data) for the host to let the user
// pick an element and call again; a plain Cancel hands setting back as it came. data may be
// null (no names, no "図面参照"). True when the user confirmed with OK.
KSCONFIGDLG_EXPORT bool doDrawCommonDlg(setting::CDrawCommonSetting& setting,
                                        SDrawCommonDlgData* data);

} // namespace kesto::ui::config
