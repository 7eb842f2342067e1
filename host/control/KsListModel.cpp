#include "control/KsListModel.h"

#include <algorithm>

namespace kesto::ui::control {

CKsListModel::CKsListModel(QObject* parent)
    : QAbstractTableModel(parent)
{}

int CKsListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int CKsListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant CKsListModel::data(const QModelIndex& index, int role) const
{
    const SListCell* cell = cellAt(index.row(), index.column());
    if (!cell)
        return {};
    const SListColumn& col = column(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return col.type == EColumnType::Color ? QVariant() : QVariant(cell->text);
    case Qt::EditRole:
    case Qt::ToolTipRole:
        return cell->text;
    case Qt::DecorationRole:
        return col.type == EColumnType::Color ? QVariant(QColor::fromRgb(cell->color)) : QVariant();
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(col.alignment);
    case Qt::BackgroundRole:
        return col.background.isValid() ? QVariant(col.background) : QVariant();
    default:
        return {};
    }
}

QVariant CKsListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    if (role == Qt::DisplayRole)
        return column(section).title;
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(column(section).alignment);
    return {};
}

Qt::ItemFlags CKsListModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    Qt::ItemFlags result = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (isCellEditable(index.row(), index.column())
        && column(index.column()).type != EColumnType::Color)
        result |= Qt::ItemIsEditable;
    return result;
}

bool CKsListModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!isCellEditable(index.row(), index.column()))
        return false;
    SListCell* cell = cellAt(index.row(), index.column());
    SListCellEvent event{index.row(), index.column(), cell->text, cell->color};
    if (role == Qt::DecorationRole && value.canConvert<QColor>()) {
        const QRgb rgb = value.value<QColor>().rgb() & 0xFFFFFFu;
        if (rgb == cell->color)
            return false;
        cell->color = event.color = rgb;
    } else if (role == Qt::EditRole) {
        const QString text = value.toString();
        if (text == cell->text)
            return false;
        cell->text = event.text = text;
    } else {
        return false;
    }
    emit dataChanged(index, index);
    if (m_onEdit)
        m_onEdit(event);
    return true;
}

int CKsListModel::addColumn(const SListColumn& col)
{
    const int at = columnCount();
    beginInsertColumns({}, at, at);
    m_columns.push_back(col);
    for (SListRow& r : m_rows)
        normalize(r);
    endInsertColumns();
    return at;
}

const SListColumn& CKsListModel::column(int index) const
{
    return m_columns[static_cast<std::size_t>(index)];
}

SListColumn& CKsListModel::column(int index)
{
    return m_columns[static_cast<std::size_t>(index)];
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
    beginResetModel();
    m_rows.clear();
    endResetModel();
}

bool CKsListModel::moveRowTo(int from, int to)
{
    if (!isValidRow(from) || !isValidRow(to) || from == to)
        return false;
    // Qt's destination is the row before which the moved row lands.
    const int destination = to > from ? to + 1 : to;
    beginMoveRows({}, from, from, {}, destination);
    SListRow moved = std::move(m_rows[static_cast<std::size_t>(from)]);
    m_rows.erase(m_rows.begin() + from);
    m_rows.insert(m_rows.begin() + to, std::move(moved));
    endMoveRows();
    return true;
}

void CKsListModel::rowChanged(int r)
{
    if (!isValidRow(r))
        return;
    normalize(row(r));
    emit dataChanged(index(r, 0), index(r, columnCount() - 1));
}

void CKsListModel::rowsChanged(int first, int last)
{
    first = std::max(first, 0);
    last = std::min(last, rowCount() - 1);
    if (first > last)
        return;
    for (int r = first; r <= last; ++r)
        normalize(row(r));
    emit dataChanged(index(first, 0), index(last, columnCount() - 1));
}

void CKsListModel::setCellText(int r, int c, const QString& text)
{
    if (SListCell* cell = cellAt(r, c)) {
        cell->text = text;
        emit dataChanged(index(r, c), index(r, c));
    }
}

void CKsListModel::setCellColor(int r, int c, QRgb color)
{
    if (SListCell* cell = cellAt(r, c)) {
        cell->color = color & 0xFFFFFFu;
        emit dataChanged(index(r, c), index(r, c));
    }
}

void CKsListModel::setCellEditable(int r, int c, bool editable)
{
    if (SListCell* cell = cellAt(r, c))
        cell->editable = editable;
}

bool CKsListModel::isCellEditable(int r, int c) const
{
    const SListCell* cell = cellAt(r, c);
    return m_editable && cell && cell->editable && column(c).editable;
}

int CKsListModel::findRow(int c, const QString& text, int from) const
{
    if (c < 0 || c >= columnCount())
        return -1;
    for (int r = std::max(from, 0); r < rowCount(); ++r) {
        if (row(r).cells[static_cast<std::size_t>(c)].text == text)
            return r;
    }
    return -1;
}

int CKsListModel::findRowByData(std::uint64_t value, int from) const
{
    for (int r = std::max(from, 0); r < rowCount(); ++r) {
        if (row(r).data == value)
            return r;
    }
    return -1;
}

void CKsListModel::normalize(SListRow& r) const
{
    if (r.cells.size() < m_columns.size())
        r.cells.resize(m_columns.size());
}

SListCell* CKsListModel::cellAt(int r, int c)
{
    if (!isValidRow(r) || c < 0 || c >= columnCount())
        return nullptr;
    return &row(r).cells[static_cast<std::size_t>(c)];
}

const SListCell* CKsListModel::cellAt(int r, int c) const
{
    if (!isValidRow(r) || c < 0 || c >= columnCount())
        return nullptr;
    return &row(r).cells[static_cast<std::size_t>(c)];
}

} // namespace kesto::ui::control
