#pragma once

#include "control/ListTypes.h"

#include <QAbstractTableModel>

#include <cstdint>
#include <functional>

namespace kesto::ui::control {

// What every model of a CKsListCtrl offers: columns, and cells as text, colour and value.
// Models differ in what a row is (texts, or a record); a cell's text is always a view of it,
// and an edit goes through the model, which reads typed text the way its column does.
class CKsTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    // Called after a user's edit was stored.
    using EditCallback = std::function<void(const SListCellEvent&)>;

    explicit CKsTableModel(QObject* parent = nullptr);

    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    // A user's edit: stores it through the model and reports it.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

    void setEditCallback(EditCallback callback) { m_onEdit = std::move(callback); }

    int addColumn(const SListColumn& column);
    const SListColumn& column(int index) const;
    SListColumn& column(int index);
    const std::vector<SListColumn>& columns() const { return m_columns; }

    bool isValidRow(int row) const { return row >= 0 && row < rowCount(); }
    bool isValidCell(int row, int column) const;

    // Cells, as views of the rows.
    virtual QString cellText(int row, int column) const = 0;
    virtual QRgb cellColor(int row, int column) const;
    // The value a line type or line width cell holds (its text for other cells).
    virtual QVariant cellValue(int row, int column) const;
    bool isCellEditable(int row, int column) const;

    // Stores a cell as if typed or chosen, without reporting it; false when nothing changed
    // or the cell cannot take it.
    bool setCellText(int row, int column, const QString& text);
    bool setCellColor(int row, int column, QRgb color);
    bool setCellValue(int row, int column, const QVariant& value);

    // A key per row that stays with the row while rows are added, removed and moved.
    virtual std::uint64_t rowKey(int row) const = 0;
    int findRowByKey(std::uint64_t key) const;
    virtual int findRow(int column, const QString& text, int from = 0) const;

    void setEditable(bool editable) { m_editable = editable; }
    bool isEditable() const { return m_editable; }

    // Repaints rows first..last after they were changed in place.
    void rowsChanged(int first, int last);

protected:
    virtual bool rowCellEditable(int row, int column) const;
    virtual bool storeText(int row, int column, const QString& text) = 0;
    virtual bool storeColor(int row, int column, QRgb color);
    virtual bool storeValue(int row, int column, const QVariant& value);
    // Called when columns are added, so text rows can grow their cells.
    virtual void columnsAdded() {}

private:
    bool store(int row, int column, const QVariant& value, int role);

    std::vector<SListColumn> m_columns;
    EditCallback m_onEdit;
    bool m_editable = true;
};

} // namespace kesto::ui::control
