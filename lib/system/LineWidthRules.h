#pragma once

#include "setting/LineWidthSetting.h"
#include "types/KsColor.h"
#include "types/KsLineWidth.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace kesto::ui::setting {
class ISystemColorSetting;
}

// Rules of the line width table dialog, free of widgets.
namespace kesto::ui::config::linewidthrules {

enum EColumn { ColumnMark = 0, ColumnWidth = 1, ColumnColor = 2 };

// The label under which a confirmed edit is recorded in the drawing.
inline constexpr const wchar_t* kChangeLabel = L"線幅設定";

// A line width of the drawing ("LWIDTH"): the element, the value edited, and whether it was.
struct SDrawingWidth {
    KsLineWidth* element = nullptr;
    KsLineWidth value;
    bool edited = false;
};

// The entry "追加" and "挿入" make: cleared, shown in white, or in black on a white background.
setting::SLineWidth newEntry(std::uint32_t backgroundRgb);

// "*" for a fixed entry.
QString markText(const setting::SLineWidth& width);

// Whether an entry other than except has that width, compared as typed.
bool widthTaken(const std::vector<setting::SLineWidth>& widths, double width,
                const setting::SLineWidth* except = nullptr);

// A colour chosen for an entry: the system colour of that RGB, else a user colour.
KsColor colorOfRgb(std::uint32_t rgb, const setting::ISystemColorSetting* system);
// The chosen colour into a system entry; false when nothing changed.
bool takeColor(setting::SLineWidth& width, std::uint32_t rgb,
               const setting::ISystemColorSetting* system);
// Into a drawing's width, only when the RGB differs; marks it edited.
bool takeColor(SDrawingWidth& width, std::uint32_t rgb, const setting::ISystemColorSetting* system);

// A drawing's line width as a system entry, and back (kind as given).
setting::SLineWidth fromDrawingWidth(const KsLineWidth& width);
KsLineWidth toDrawingWidth(const setting::SLineWidth& width, int kind);

// Row of the combo box whose name is the width's name, -1 when none.
int indexOfWidthName(const QStringList& names, double width);

} // namespace kesto::ui::config::linewidthrules
