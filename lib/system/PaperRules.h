#pragma once

#include "setting/SystemPaperFrameSetting.h"
#include "setting/SystemPaperSizeSetting.h"

#include <QString>

#include <vector>

// Rules of the paper size and paper frame tables, free of widgets.
namespace kesto::ui::config::paperrules {

// The first problem the OK checks find, with its row and column (from 0) and the name
// concerned.
struct SProblem {
    enum EKind {
        None,
        NoRows,
        NoName,
        HeightTooSmall,
        WidthTooSmall,
        DuplicateName,
    };
    EKind kind = None;
    int row = -1;
    int column = 0;
    QString name;

    explicit operator bool() const { return kind != None; }
};

namespace size {

enum EColumn { ColumnName = 0, ColumnHeight = 1, ColumnWidth = 2 };

// The size "追加" and "挿入" make.
setting::SPaperSize newPaperSize();
// Row by row: a name, a height of 1 or more, a width of 1 or more; then no name twice
// (reported on the later row).
SProblem check(const std::vector<setting::SPaperSize>& sizes);

} // namespace size

namespace frame {

constexpr int kDimensionColumns = setting::SPaperFrame::kDimensionCount;
enum EColumn { ColumnName = 0, ColumnFirstDimension = 1 };

// The frame "追加" and "挿入" make: every dimension 1, every line drawn.
setting::SPaperFrame newPaperFrame(const std::wstring& name);
// At least one row; every row named; no name twice (reported on the later row).
SProblem check(const std::vector<setting::SPaperFrame>& frames);
// "A" to "H".
QString dimensionLetter(int index);

} // namespace frame

} // namespace kesto::ui::config::paperrules
