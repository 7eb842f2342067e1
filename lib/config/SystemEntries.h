#pragma once

#include "KsSystemConfigDlgExport.h"
#include "setting/LineWidthSetting.h"
#include "setting/SystemPaperFrameSetting.h"
#include "setting/SystemPaperSizeSetting.h"
#include "setting/SystemScaleSetting.h"

class IDataBase;

// Entry functions of the system tables.
namespace kesto::ui::config {

// "スケールの設定"; true when the user confirmed, and only then is setting changed.
KSCONFIGDLG_EXPORT bool doSystemScaleDlg(setting::CSystemScaleSetting& setting,
                                         const setting::CSystemScaleSetting& defaults);
// The same dialog for adding scales: an OK without "追加" counts as a cancel.
KSCONFIGDLG_EXPORT bool doSystemScaleDlgAddMode(setting::CSystemScaleSetting& setting);

// "線幅の設定"; db is the drawing whose own line widths the dialog also edits (may be null).
// After OK the drawing records the change as "線幅設定" before the setting is changed.
KSCONFIGDLG_EXPORT bool doLineWidthDlg(setting::CLineWidthSetting& setting,
                                       const setting::CLineWidthSetting& defaults, IDataBase* db);

// "用紙サイズの設定"; true only when the user confirmed a change.
KSCONFIGDLG_EXPORT bool doPaperSizeDlg(setting::CSystemPaperSizeSetting& setting,
                                       const setting::CSystemPaperSizeSetting& defaults);

// "図面枠の設定"; true when the user confirmed, and only then is setting changed.
KSCONFIGDLG_EXPORT bool doSystemPaperFrameDlg(setting::CSystemPaperFrameSetting& setting,
                                              const setting::CSystemPaperFrameSetting& defaults);

} // namespace kesto::ui::config
