#pragma once

#include "setting/LineWidthSetting.h"
#include "types/KsColor.h"
#include "types/KsLineWidth.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace kesto::ui::setting {
class ISystemColorSetting;
}

// Rules of the line width table dialog, free of widgets.
namespace kesto::ui::config::linewidthtable {

enum EColumn { ColumnMark = 0, ColumnWidth = 1, ColumnColor = 2 };

// The label under which a confirmed edit is recorded in the drawing.
inline constexpr const wchar_t* kChangeLabel = L"線幅設定";

struct SButtonStates {
    bool addEnabled = false;
    bool insertEnabled = false;
    bool deleteEnabled = false;
    bool upEnabled = false;
    bool downEnabled = false;
    bool resetEnabled = false;
    bool registerVisible = false;
    bool registerEnabled = false;
};

// System entries are inserted, removed and moved only away from the fixed entries.
SButtonStates buttonStates(bool drawingTab, const std::vector<setting::SLineWidth>& widths,
                           int selectedRow);

// The entry "追加" and "挿入" make: cleared, shown in white, or in black on a white background.
setting::SLineWidth newEntry(std::uint32_t backgroundRgb);

// "*" for a fixed entry.
QString markText(const setting::SLineWidth& width);

// A typed width: a number above 0, kept to the three decimals its name shows.
std::optional<double> readWidth(const QString& text);

// Whether an entry other than the one at row has that width.
bool widthTakenByOther(const std::vector<setting::SLineWidth>& widths, int row, double width);
bool containsWidth(const std::vector<setting::SLineWidth>& widths, double width);

// A colour chosen for an entry: the system colour of that RGB, else a user colour.
KsColor colorOfRgb(std::uint32_t rgb, const setting::ISystemColorSetting* system);

// A drawing's line width as a system entry, and back (kind as given).
setting::SLineWidth fromDrawingWidth(const KsLineWidth& width);
KsLineWidth toDrawingWidth(const setting::SLineWidth& width, int kind);

// Row of the combo box whose name is the width's name, -1 when none.
int indexOfWidthName(const QStringList& names, double width);

} // namespace kesto::ui::config::linewidthtable
