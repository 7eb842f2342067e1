#include "control/KsTableModel.h"

#include <QColor>

#include <algorithm>

namespace kesto::ui::control {

CKsTableModel::CKsTableModel(QObject* parent)
    : QAbstractTableModel(parent)
{}

int CKsTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

bool CKsTableModel::isValidCell(int row, int col) const
{
    return isValidRow(row) && col >= 0 && col < columnCount();
}

QVariant CKsTableModel::data(const QModelIndex& index, int role) const
{
    if (!isValidCell(index.row(), index.column()))
        return {};
    const SListColumn& col = column(index.column());
    const bool swatch = col.type == EColumnType::Color;
    switch (role) {
    case Qt::DisplayRole:
        return swatch ? QVariant() : QVariant(cellText(index.row(), index.column()));
    case Qt::EditRole:
        return cellValue(index.row(), index.column());
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
        return cellText(index.row(), index.column());
    case Qt::DecorationRole:
        return swatch ? QVariant(QColor::fromRgb(cellColor(index.row(), index.column())))
                      : QVariant();
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(col.alignment);
    case Qt::BackgroundRole:
        return col.background.isValid() ? QVariant(col.background) : QVariant();
    default:
        return {};
    }
}

QVariant CKsTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    if (role == Qt::DisplayRole)
        return column(section).title;
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(column(section).alignment);
    return {};
}

Qt::ItemFlags CKsTableModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    Qt::ItemFlags result = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (isCellEditable(index.row(), index.column())
        && column(index.column()).type != EColumnType::Color)
        result |= Qt::ItemIsEditable;
    return result;
}

bool CKsTableModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    const int row = index.row();
    const int col = index.column();
    if (!isCellEditable(row, col) || !store(row, col, value, role))
        return false;
    if (m_onEdit)
        m_onEdit({row, col, cellText(row, col), cellColor(row, col)});
    return true;
}

bool CKsTableModel::store(int row, int col, const QVariant& value, int role)
{
    bool stored = false;
    if (role == Qt::DecorationRole && value.canConvert<QColor>())
        stored = storeColor(row, col, value.value<QColor>().rgb() & 0xFFFFFFu);
    else if (role == Qt::EditRole && value.userType() == QMetaType::QString)
        stored = storeText(row, col, value.toString());
    else if (role == Qt::EditRole)
        stored = storeValue(row, col, value);
    if (stored)
        rowsChanged(row, row); // a conversion may show in other cells of the row
    return stored;
}

int CKsTableModel::addColumn(const SListColumn& col)
{
    const int at = columnCount();
    beginInsertColumns({}, at, at);
    m_columns.push_back(col);
    columnsAdded();
    endInsertColumns();
    return at;
}

const SListColumn& CKsTableModel::column(int index) const
{
    return m_columns[static_cast<std::size_t>(index)];
}

SListColumn& CKsTableModel::column(int index)
{
    return m_columns[static_cast<std::size_t>(index)];
}

QRgb CKsTableModel::cellColor(int, int) const
{
    return 0;
}

QVariant CKsTableModel::cellValue(int row, int col) const
{
    return cellText(row, col);
}

bool CKsTableModel::isCellEditable(int row, int col) const
{
    return m_editable && isValidCell(row, col) && column(col).editable && rowCellEditable(row, col);
}

bool CKsTableModel::rowCellEditable(int, int) const
{
    return true;
}

bool CKsTableModel::setCellText(int row, int col, const QString& text)
{
    return isValidCell(row, col) && store(row, col, text, Qt::EditRole);
}

bool CKsTableModel::setCellColor(int row, int col, QRgb color)
{
    return isValidCell(row, col) && store(row, col, QColor::fromRgb(color), Qt::DecorationRole);
}

bool CKsTableModel::setCellValue(int row, int col, const QVariant& value)
{
    return isValidCell(row, col) && store(row, col, value, Qt::EditRole);
}

bool CKsTableModel::storeColor(int, int, QRgb)
{
    return false;
}

bool CKsTableModel::storeValue(int row, int col, const QVariant& value)
{
    return storeText(row, col, value.toString());
}

int CKsTableModel::findRowByKey(std::uint64_t key) const
{
    for (int r = 0; r < rowCount(); ++r) {
        if (rowKey(r) == key)
            return r;
    }
    return -1;
}

int CKsTableModel::findRow(int col, const QString& text, int from) const
{
    if (col < 0 || col >= columnCount())
        return -1;
    for (int r = std::max(from, 0); r < rowCount(); ++r) {
        if (cellText(r, col) == text)
            return r;
    }
    return -1;
}

void CKsTableModel::rowsChanged(int first, int last)
{
    first = std::max(first, 0);
    last = std::min(last, rowCount() - 1);
    if (first <= last && columnCount() > 0)
        emit dataChanged(index(first, 0), index(last, columnCount() - 1));
}

} // namespace kesto::ui::control
