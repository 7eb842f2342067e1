#pragma once

#include "setting/SystemScaleSetting.h"

#include <QString>

#include <vector>

// Rules of the scale table dialog, free of widgets.
namespace kesto::ui::config::scalerules {

enum EColumn { ColumnName = 0, ColumnNumerator = 1, ColumnDenominator = 2 };

// What the dialog shows beyond the table's own buttons.
struct SButtonStates {
    bool insertVisible = false;
    bool deleteVisible = false;
    bool registerVisible = false;
    bool registerEnabled = false;
    bool resetVisible = false;
};
SButtonStates buttonStates(bool drawingTab, bool addMode, bool rowSelected);

// The scale "追加" and "挿入" make.
setting::SSystemScale newScale();

// A numerator or denominator as stored: written out with six decimals and read back.
double storedValue(double typed);
// A stored value as a cell shows it: ten decimals, trailing zeros suppressed.
QString shownValue(double value);

bool containsSame(const std::vector<setting::SSystemScale>& scales, double numerator,
                  double denominator);

// A scale named after its values, and every scale renamed so.
std::wstring nameOf(double numerator, double denominator);
void alignNames(std::vector<setting::SSystemScale>& scales);

} // namespace kesto::ui::config::scalerules
