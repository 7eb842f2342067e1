#include "control/KsListModel.h"

#include <algorithm>

namespace kesto::ui::control {

CKsListModel::CKsListModel(QObject* parent)
    : CKsTableModel(parent)
{}

int CKsListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QString CKsListModel::cellText(int r, int c) const
{
    const SListCell* cell = cellAt(r, c);
    return cell ? cell->text : QString();
}

QRgb CKsListModel::cellColor(int r, int c) const
{
    const SListCell* cell = cellAt(r, c);
    return cell ? cell->color : 0;
}

bool CKsListModel::storeText(int r, int c, const QString& text)
{
    SListCell* cell = cellAt(r, c);
    if (!cell || cell->text == text)
        return false;
    cell->text = text;
    return true;
}

bool CKsListModel::storeColor(int r, int c, QRgb color)
{
    SListCell* cell = cellAt(r, c);
    if (!cell || cell->color == (color & 0xFFFFFFu))
        return false;
    cell->color = color & 0xFFFFFFu;
    return true;
}

int CKsListModel::findRow(int c, const QString& text, int from) const
{
    if (c < 0 || c >= columnCount())
        return -1;
    const auto at = static_cast<std::size_t>(c);
    for (std::size_t r = static_cast<std::size_t>(std::max(from, 0)); r < m_rows.size(); ++r) {
        if (at < m_rows[r].cells.size() && m_rows[r].cells[at].text == text)
            return static_cast<int>(r);
    }
    return -1;
}

void CKsListModel::columnsAdded()
{
    for (SListRow& r : m_rows)
        normalize(r);
}

int CKsListModel::addRow(SListRow r)
{
    const int at = rowCount();
    insertRow(at, std::move(r));
    return at;
}

void CKsListModel::insertRow(int at, SListRow r)
{
    at = std::clamp(at, 0, rowCount());
    normalize(r);
    beginInsertRows({}, at, at);
    m_rows.insert(m_rows.begin() + at, std::move(r));
    endInsertRows();
}

void CKsListModel::appendRows(std::vector<SListRow> rows)
{
    if (rows.empty())
        return;
    for (SListRow& r : rows)
        normalize(r);
    const int first = rowCount();
    beginInsertRows({}, first, first + static_cast<int>(rows.size()) - 1);
    m_rows.insert(m_rows.end(), std::make_move_iterator(rows.begin()),
                  std::make_move_iterator(rows.end()));
    endInsertRows();
}

void CKsListModel::setRows(std::vector<SListRow> rows)
{
    for (SListRow& r : rows)
        normalize(r);
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

bool CKsListModel::removeRowAt(int r)
{
    if (!isValidRow(r))
        return false;
    beginRemoveRows({}, r, r);
    m_rows.erase(m_rows.begin() + r);
    endRemoveRows();
    return true;
}

void CKsListModel::removeAllRows()
{
    setRows({});
}

bool CKsListModel::moveRowTo(int from, int to)
{
    if (!isValidRow(from) || !isValidRow(to) || from == to)
        return false;
    // Qt's destination is the row before which the moved row lands.
    beginMoveRows({}, from, from, {}, to > from ? to + 1 : to);
    SListRow moved = std::move(m_rows[static_cast<std::size_t>(from)]);
    m_rows.erase(m_rows.begin() + from);
    m_rows.insert(m_rows.begin() + to, std::move(moved));
    endMoveRows();
    return true;
}

void CKsListModel::setCellEditable(int r, int c, bool editable)
{
    if (SListCell* cell = cellAt(r, c))
        cell->editable = editable;
}

bool CKsListModel::rowCellEditable(int r, int c) const
{
    const SListCell* cell = cellAt(r, c);
    return cell && cell->editable;
}

void CKsListModel::normalize(SListRow& r) const
{
    if (r.cells.size() < static_cast<std::size_t>(columnCount()))
        r.cells.resize(static_cast<std::size_t>(columnCount()));
}

SListCell* CKsListModel::cellAt(int r, int c)
{
    if (!isValidCell(r, c))
        return nullptr;
    SListRow& line = row(r);
    if (line.cells.size() <= static_cast<std::size_t>(c))
        normalize(line);
    return &line.cells[static_cast<std::size_t>(c)];
}

const SListCell* CKsListModel::cellAt(int r, int c) const
{
    if (!isValidCell(r, c) || row(r).cells.size() <= static_cast<std::size_t>(c))
        return nullptr;
    return &row(r).cells[static_cast<std::size_t>(c)];
}

} // namespace kesto::ui::control
