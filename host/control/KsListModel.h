#pragma once

#include "control/ListTypes.h"

#include <QAbstractTableModel>

#include <functional>

namespace kesto::ui::control {

// Rows and columns of a CKsListCtrl. Rows keep as many cells as there are columns.
class CKsListModel : public QAbstractTableModel {
    Q_OBJECT

public:
    // Called after a user's edit was stored.
    using EditCallback = std::function<void(const SListCellEvent&)>;

    explicit CKsListModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    // A user's edit: stores the text (or colour) and reports it.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

    void setEditCallback(EditCallback callback) { m_onEdit = std::move(callback); }

    int addColumn(const SListColumn& column);
    const SListColumn& column(int index) const;
    SListColumn& column(int index);
    const std::vector<SListColumn>& columns() const { return m_columns; }

    int addRow(SListRow row);
    void insertRow(int at, SListRow row);
    void appendRows(std::vector<SListRow> rows);
    void setRows(std::vector<SListRow> rows);
    bool removeRowAt(int row);
    void removeAllRows();
    bool moveRowTo(int from, int to);

    bool isValidRow(int row) const { return row >= 0 && row < rowCount(); }
    const SListRow& row(int index) const { return m_rows[static_cast<std::size_t>(index)]; }
    SListRow& row(int index) { return m_rows[static_cast<std::size_t>(index)]; }
    // Repaints a row after its cells were changed through row().
    void rowChanged(int row);
    // The same for a range of rows, in one notification.
    void rowsChanged(int first, int last);

    void setCellText(int row, int column, const QString& text);
    void setCellColor(int row, int column, QRgb color);
    void setCellEditable(int row, int column, bool editable);
    bool isCellEditable(int row, int column) const;

    void setEditable(bool editable) { m_editable = editable; }
    bool isEditable() const { return m_editable; }

    int findRow(int column, const QString& text, int from = 0) const;
    int findRowByData(std::uint64_t data, int from = 0) const;

private:
    void normalize(SListRow& row) const;
    SListCell* cellAt(int row, int column);
    const SListCell* cellAt(int row, int column) const;

    std::vector<SListColumn> m_columns;
    std::vector<SListRow> m_rows;
    EditCallback m_onEdit;
    bool m_editable = true;
};

} // namespace kesto::ui::control
