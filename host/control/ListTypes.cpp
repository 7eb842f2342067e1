#include "control/ListTypes.h"

namespace kesto::ui::control {

SListRow::SListRow(const QStringList& texts, std::uint64_t rowData)
    : data(rowData)
{
    cells.reserve(static_cast<std::size_t>(texts.size()));
    for (const QString& text : texts)
        cells.push_back({text});
}

const QString& SListRow::text(int column) const
{
    static const QString empty;
    return column >= 0 && static_cast<std::size_t>(column) < cells.size()
               ? cells[static_cast<std::size_t>(column)].text
               : empty;
}

} // namespace kesto::ui::control
