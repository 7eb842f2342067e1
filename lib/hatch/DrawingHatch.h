#pragma once

#include "KsSystemConfigDlgExport.h"

#include "setting/HatchPatterns.h"

#include <QDomDocument>

#include <cstdint>

class KsObject;

namespace kesto::ui::config {

// The hatch that the hatch settings dialog hands back when a hatch is drawn or its type is
// changed: one pattern of each kind, and the kind that is chosen. It remembers its preference
// (kind, figure, slant and coating patterns) in dialogdata.xml of the settings folder.
struct KSCONFIGDLG_EXPORT SDrawingHatch {
    enum EHatchType : std::int32_t {
        HatchNone = 0,
        HatchFigure = 1,
        HatchSlant = 2,
        HatchCoating = 3,
        HatchSxf = 4,
        HatchAsItIs = 5,
    };

    std::int32_t hatchType = HatchNone;
    setting::SFigurePattern figurePattern;
    setting::SSlantPattern slantPattern;
    setting::SCoatingPattern coatingPattern;
    // Frames for "SXF" and "そのまま".
    setting::SHoldPattern holdPattern;
    // Non-zero when the region being hatched has inner boundaries.
    std::int64_t innerFrameAvailable = 0;
    // The element behind the by-element colour and line type; shared, not owned.
    const KsObject* referenceElement = nullptr;

    SDrawingHatch();
    SDrawingHatch(const SDrawingHatch& other);
    SDrawingHatch& operator=(const SDrawingHatch& other);
    ~SDrawingHatch();

    // Figure hatch, every pattern reset, no inner frames, no reference element.
    void initByDefault();

    // Replace this record's element of dialogdata.xml; every other element stays. False,
    // silently, when the file is missing, unreadable or cannot be written.
    bool saveDialogData() const;
    // Fill the record from its element of dialogdata.xml. What the element does not hold
    // stays as it was; false, silently, when there is no such element or no readable file.
    bool loadDialogData();

protected:
    // Appends the record's "dlgdata" element under parent.
    bool saveXMLNode(QDomNode& parent, QDomDocument& doc) const;
    // Fills the record from its element; false only for a null node.
    bool loadXMLNode(const QDomNode& node, const setting::ISystemLineTypeSetting* lineTypes);
};

} // namespace kesto::ui::config
