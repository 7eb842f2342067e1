#pragma once

#include "KsSystemConfigDlgExport.h"
#include "hatch/DrawingHatch.h"
#include "refdlg/RefDlgData.h"

#include <cstdint>

class KsColor;

namespace kesto::element {
class IBoundary;
}

namespace kesto::ui::config {

// What the hatch dialogs ask the host to fetch from the drawing, and what the host fetched.
// A dialog sets the mode (and the hatch kind it is for) and closes; the host lets the user pick
// an element, calls setDrawHatchFromHandle for the whole-hatch modes and opens the dialog
// again with this record.
struct KSCONFIGDLG_EXPORT SHatchSettingDlgData : public refDlg::SRefDlgData {
    enum EMode : std::int32_t {
        ModeNone = 0,
        ModeFigure = 1,          // the whole figure hatch
        ModeFigureBaseAngle = 2, // single figure values, served by the dialog itself
        ModeFigureAngle1 = 3,
        ModeFigureLength1 = 4,
        ModeFigureAngle2 = 5,
        ModeFigureLength2 = 6,
        ModeFigureWidth = 7,
        ModeFigureHeight = 8,
        ModeFigureBaseType = 9, // a base figure to register
        ModeSlant = 10,         // the whole slant hatch
        ModeSlantPoint = 11,    // placement point of the line at slantLineIndex
        ModeSlantSpacing = 12,
        ModeSlantAngle = 13,
        ModeCoating = 14, // the whole coating
        ModeSxf = 15,     // type edit: the hatch for "SXF"
        ModeAsItIs = 16,  // type edit: the hatch for "そのまま"
        ModeLast = ModeAsItIs,
    };

    EMode mode = ModeNone;
    SDrawingHatch drawingHatch;
    // Row of the slant line list a single-value reference is for; read as signed 32-bit.
    std::int64_t slantLineIndex = 0;
    // System hatching dialog: the list button that started the reference (1005 add, 1006
    // insert, 1007 change).
    std::int64_t listCommand = 0;

    SHatchSettingDlgData();
    SHatchSettingDlgData(const SHatchSettingDlgData& other);
    SHatchSettingDlgData& operator=(const SHatchSettingDlgData& other);
    ~SHatchSettingDlgData() override;

    // Clears the base, resets the hatch (figure kind) and the request; the reference is
    // available when the host has a current drawing.
    void clear() override;

    // Checks of the inner frame settings; they accept everything for now.
    bool innerCheck() const;

    // The slant line a single-value slant reference is for, or null.
    setting::SSlantPatternLine* getSlashLine();

    // Copies the picked hatch element into the drawing hatch for the whole-hatch modes.
    // False, with the patterns left as they were, for anything else.
    bool setDrawHatchFromHandle();

private:
    bool innerCheckColor(const KsColor& color) const;
    // Takes the boundary's frame attributes whose keep-flag is clear; nothing without one.
    void setFrame(setting::SHatchFrame& frame, const element::IBoundary* boundary) const;
};

} // namespace kesto::ui::config
