#include "system/ScaleRules.h"

#include "types/KsScale.h"
#include "utility/NumberFormat.h"

#include <algorithm>

namespace kesto::ui::config::scalerules {

using setting::SSystemScale;

SButtonStates buttonStates(bool drawingTab, bool addMode, bool rowSelected)
{
    SButtonStates s;
    s.insertVisible = s.deleteVisible = !addMode;
    s.registerVisible = !addMode && drawingTab;
    s.registerEnabled = s.registerVisible && rowSelected;
    s.resetVisible = !addMode;
    return s;
}

SSystemScale newScale()
{
    return SSystemScale{L"1/1", 1.0, 1.0};
}

double storedValue(double typed)
{
    return utility::roundToDecimals(typed, 6);
}

QString shownValue(double value)
{
    return utility::formatDecimal(value, 10);
}

bool containsSame(const std::vector<SSystemScale>& scales, double numerator, double denominator)
{
    return std::any_of(scales.begin(), scales.end(),
                       [&](const SSystemScale& s) { return s.isSame(numerator, denominator); });
}

std::wstring nameOf(double numerator, double denominator)
{
    KsScale named;
    named.setScale(numerator, denominator);
    return named.getName();
}

void alignNames(std::vector<SSystemScale>& scales)
{
    for (SSystemScale& scale : scales)
        scale.name = nameOf(scale.numerator, scale.denominator);
}

} // namespace kesto::ui::config::scalerules
