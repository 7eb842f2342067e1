#include "system/PaperRules.h"

#include <QCoreApplication>
#include <QSet>

namespace kesto::ui::config::paperrules {

namespace {

// The first row whose name an earlier row has.
template <class Row>
SProblem duplicateName(const std::vector<Row>& rows)
{
    QSet<QString> seen;
    for (std::size_t r = 0; r < rows.size(); ++r) {
        const QString name = QString::fromStdWString(rows[r].name);
        if (seen.contains(name))
            return {SProblem::DuplicateName, static_cast<int>(r), 0, name};
        seen.insert(name);
    }
    return {};
}

} // namespace

namespace size {

setting::SPaperSize newPaperSize()
{
    return {QCoreApplication::translate("PaperRules", "新サイズ").toStdWString(), 1, 1};
}

SProblem check(const std::vector<setting::SPaperSize>& sizes)
{
    for (std::size_t r = 0; r < sizes.size(); ++r) {
        const int row = static_cast<int>(r);
        if (sizes[r].name.empty())
            return {SProblem::NoName, row, ColumnName, {}};
        if (sizes[r].height < 1)
            return {SProblem::HeightTooSmall, row, ColumnHeight, {}};
        if (sizes[r].width < 1)
            return {SProblem::WidthTooSmall, row, ColumnWidth, {}};
    }
    return duplicateName(sizes);
}

} // namespace size

namespace frame {

setting::SPaperFrame newPaperFrame(const std::wstring& name)
{
    setting::SPaperFrame frame;
    frame.name = name;
    frame.dimensions.fill(1);
    frame.drawFrame = frame.innerFrame = frame.cutLine = true;
    return frame;
}

SProblem check(const std::vector<setting::SPaperFrame>& frames)
{
    if (frames.empty())
        return {SProblem::NoRows, -1, ColumnName, {}};
    for (std::size_t r = 0; r < frames.size(); ++r) {
        if (frames[r].name.empty())
            return {SProblem::NoName, static_cast<int>(r), ColumnName, {}};
    }
    return duplicateName(frames);
}

QString dimensionLetter(int index)
{
    return QString(QChar(u'A' + index));
}

} // namespace frame

} // namespace kesto::ui::config::paperrules
