#pragma once

#include "config/DialogData.h"
#include "setting/DrawCommonSetting.h"

#include <QString>

#include <functional>

class IDataBase;
class KsFigure;

namespace kesto::ui::setting {
class ISystemColorSetting;
class ISystemLineTypeSetting;
} // namespace kesto::ui::setting

// The workbench as host of "共通設定" and its "図面参照": the dialog closes, the user picks an
// element of the open drawing, the dialog opens again with what was picked.
namespace kesto::workbench {

// Lets the user pick a figure of the drawing; null when the user cancels.
using FigurePicker = std::function<const KsFigure*(const IDataBase& drawing)>;

// The record as a drawing command hands it over: reference only with a drawing, and each name
// the drawing does not have replaced by its current layer or first entry.
void prepareCommonRecord(ui::config::SDrawCommonDlgData& record, const IDataBase* drawing);

// What a picked figure tells: its colour, line type and width (by layer where it has none of
// its own) into the setting, its layer into the record. Colours and line types the system
// tables know take their names and ids from there.
void applyPickedFigure(const KsFigure& figure, ui::setting::CDrawCommonSetting& setting,
                       ui::config::SDrawCommonDlgData& record,
                       const ui::setting::ISystemColorSetting* systemColors,
                       const ui::setting::ISystemLineTypeSetting* systemLineTypes);

// Runs doDrawCommonDlg until the user confirms or cancels, picking in between as often as the
// user asks. OK: setting and record take the result, true. Cancel (in the dialog): both stay
// as they were, false. Cancel in the picker opens the dialog again unchanged.
bool editCommonSettings(ui::setting::CDrawCommonSetting& setting,
                        ui::config::SDrawCommonDlgData& record, const IDataBase* drawing,
                        const FigurePicker& pick);

// A line for the log and the status bar about a picked figure.
QString describePick(const KsFigure& figure);

} // namespace kesto::workbench
