#pragma once

#include "setting/SystemPaperFrameSetting.h"
#include "setting/SystemPaperSizeSetting.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

// Rules of the paper size and paper frame tables, free of widgets. Rows are the texts the
// lists show, read back on OK.
namespace kesto::ui::config::papertable {

// A number typed into a cell, read as an integer the way the OK checks read it: blanks and
// full-width digits accepted, a sign, the digits up to the first other character; 0 when
// there are none. Values beyond the int range are clamped.
int readInteger(const QString& text);
// A typed dimension: a whole number above 0 and nothing else.
std::optional<int> readDimension(const QString& text);

// The first problem the OK checks find, with its row (from 0) and the name concerned.
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
QStringList rowTexts(const setting::SPaperSize& size);
setting::SPaperSize sizeOfRow(const QStringList& texts);

// Row by row: a name, a height of 1 or more, a width of 1 or more; then no name twice
// (reported on the later row).
SProblem check(const std::vector<QStringList>& rows);

} // namespace size

namespace frame {

constexpr int kDimensionColumns = setting::SPaperFrame::kDimensionCount;
enum EColumn {
    ColumnName = 0,
    ColumnFirstDimension = 1,
    ColumnDrawFrame = ColumnFirstDimension + kDimensionColumns,
    ColumnInnerFrame,
    ColumnCutLine,
    ColumnCount
};

// The frame "追加" and "挿入" make: every dimension 1, every line drawn.
setting::SPaperFrame newPaperFrame(const std::wstring& name);
// Dimensions as "%d", flags as yes or no.
QStringList rowTexts(const setting::SPaperFrame& frame, const QString& yes, const QString& no);
// A flag is set only when its cell reads yes.
setting::SPaperFrame frameOfRow(const QStringList& texts, const QString& yes);

// At least one row; every row named; no name twice (reported on the later row).
SProblem check(const std::vector<QStringList>& rows);

// "A" to "H".
QString dimensionLetter(int index);

} // namespace frame

} // namespace kesto::ui::config::papertable
