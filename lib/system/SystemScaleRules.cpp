#include "system/SystemScaleRules.h"

#include "types/KsScale.h"
#include "utility/NumberFormat.h"

#include <algorithm>

namespace kesto::ui::config::scaletable {

using setting::SSystemScale;

SButtonStates buttonStates(bool drawingTab, bool addMode, bool rowSelected)
{
    SButtonStates s;
    s.addEnabled = !drawingTab;
    s.insertVisible = s.deleteVisible = !addMode;
    s.insertEnabled = s.deleteEnabled = !drawingTab && rowSelected;
    s.registerVisible = !addMode && drawingTab;
    s.registerEnabled = s.registerVisible && rowSelected;
    s.resetVisible = !addMode;
    return s;
}

SSystemScale newScale()
{
    return SSystemScale{L"1/1", 1.0, 1.0};
}

std::optional<double> readCellValue(const QString& text)
{
    const std::optional<double> typed = utility::parseDecimal(text);
    if (!typed)
        return std::nullopt;
    const double stored = utility::roundToDecimals(*typed, 6);
    if (!(stored > 0.0))
        return std::nullopt;
    return stored;
}

QString formatCellValue(double value)
{
    return utility::formatDecimal(value, 10);
}

QStringList rowTexts(const SSystemScale& scale)
{
    return {QString::fromStdWString(scale.name), formatCellValue(scale.numerator),
            formatCellValue(scale.denominator)};
}

bool containsSame(const std::vector<SSystemScale>& scales, double numerator, double denominator)
{
    return std::any_of(scales.begin(), scales.end(),
                       [&](const SSystemScale& s) { return s.isSame(numerator, denominator); });
}

void alignNames(std::vector<SSystemScale>& scales)
{
    for (SSystemScale& scale : scales) {
        KsScale named;
        named.setScale(scale.numerator, scale.denominator);
        scale.name = named.getName();
    }
}

} // namespace kesto::ui::config::scaletable
