#pragma once

#include "config/DialogData.h"
#include "setting/DrawCommonSetting.h"
#include "types/KsLineType.h"
#include "types/KsLineWidth.h"

#include <QStringList>

#include <array>
#include <optional>
#include <string>

class IDataBase;

// How "共通設定" maps its controls to the setting and the record, without widgets. Indices are
// those of the combo boxes, whose first entry is the by-layer one; -1 is no selection.
namespace kesto::ui::config::drawcommonrules {

// The combo boxes' by-layer entry.
inline constexpr int kByLayerIndex = 0;
// Index 1 to 3 of the line width combo box are thin, bold and extra bold; from 4 explicit.
inline constexpr int kFirstExplicitWidthIndex = 4;

// What the colour, line type and line width combo boxes show when the dialog opens.
KsColor colorToSelect(const setting::CDrawCommonSetting& setting);
// A line type of the open drawing's table lends its dash pattern to the sample.
KsLineType lineTypeToSelect(const setting::CDrawCommonSetting& setting,
                            const IDataBase* drawing = nullptr);
KsLineWidth lineWidthToSelect(const setting::CDrawCommonSetting& setting);

// By layer: colour mode 2. Another entry: its colour (and mode 1), unless it is the invalid
// colour. No selection changes nothing.
void storeColor(setting::CDrawCommonSetting& setting, int index, const KsColor& entry,
                const KsColor& invalidColor);
// By layer: mode 3. Another entry with a line type: its id as the mode value, and its name.
void storeLineType(setting::CDrawCommonSetting& setting, int index, const KsLineType* entry);
// The entry's width always (0 for none); the kind by index: 1 to 4 for the by-layer and the
// three fixed entries, 0 from index 4 on; no selection keeps the kind.
void storeLineWidth(setting::CDrawCommonSetting& setting, int index, double entryWidth);

// The selection of one of the lists "座標系", "スケール" and "レイヤ".
struct SListChoice {
    int index = -1;
    std::wstring text;
};
enum EList { ListCoordinateSystem = 0, ListScale = 1, ListLayer = 2, ListCount = 3 };

// The record's names, in list order.
std::array<std::wstring, ListCount> recordNames(const SDrawCommonDlgData& record);
// A list with a selection writes its text into the record's name; else the name is kept.
void storeName(SDrawCommonDlgData& record, int list, const SListChoice& choice);

// "図面参照" acts only for a record whose reference flag is set.
bool canReferToDrawing(const SDrawCommonDlgData* record);

// The entries of the three lists: the drawing's coordinate systems, scales and layers, by name
// in drawing order (all empty without a drawing).
std::array<QStringList, ListCount> drawingLists(const IDataBase* db);

} // namespace kesto::ui::config::drawcommonrules
