#pragma once

#include "setting/SystemScaleSetting.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

// Rules of the scale table dialog, free of widgets.
namespace kesto::ui::config::scaletable {

enum EColumn { ColumnName = 0, ColumnNumerator = 1, ColumnDenominator = 2 };

struct SButtonStates {
    bool addEnabled = false;
    bool insertVisible = false;
    bool insertEnabled = false;
    bool deleteVisible = false;
    bool deleteEnabled = false;
    bool registerVisible = false;
    bool registerEnabled = false;
    bool resetVisible = false;
};

SButtonStates buttonStates(bool drawingTab, bool addMode, bool rowSelected);

// The scale "追加" and "挿入" make.
setting::SSystemScale newScale();

// A typed numerator or denominator: read, written out with six decimals and read back.
// Nothing for text that is not a number greater than zero.
std::optional<double> readCellValue(const QString& text);
// A stored value as a cell shows it: ten decimals, trailing zeros suppressed.
QString formatCellValue(double value);

QStringList rowTexts(const setting::SSystemScale& scale);

bool containsSame(const std::vector<setting::SSystemScale>& scales, double numerator,
                  double denominator);

// Renames every scale after its values.
void alignNames(std::vector<setting::SSystemScale>& scales);

} // namespace kesto::ui::config::scaletable
