#pragma once

#include "control/KsTableModel.h"

namespace kesto::ui::control {

// Rows of texts: the model a CKsListCtrl starts with. Rows keep as many cells as there are
// columns; each row's data is its key.
class CKsListModel : public CKsTableModel {
    Q_OBJECT

public:
    explicit CKsListModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    QString cellText(int row, int column) const override;
    QRgb cellColor(int row, int column) const override;
    std::uint64_t rowKey(int row) const override { return this->row(row).data; }
    int findRow(int column, const QString& text, int from = 0) const override;

    int addRow(SListRow row);
    void insertRow(int at, SListRow row);
    void appendRows(std::vector<SListRow> rows);
    void setRows(std::vector<SListRow> rows);
    bool removeRowAt(int row);
    void removeAllRows();
    bool moveRowTo(int from, int to);

    const SListRow& row(int index) const { return m_rows[static_cast<std::size_t>(index)]; }
    SListRow& row(int index) { return m_rows[static_cast<std::size_t>(index)]; }
    // Repaints a row after its cells were changed through row().
    void rowChanged(int row) { rowsChanged(row, row); }

    void setCellEditable(int row, int column, bool editable);

protected:
    bool rowCellEditable(int row, int column) const override;
    bool storeText(int row, int column, const QString& text) override;
    bool storeColor(int row, int column, QRgb color) override;
    void columnsAdded() override;

private:
    void normalize(SListRow& row) const;
    SListCell* cellAt(int row, int column);
    const SListCell* cellAt(int row, int column) const;

    std::vector<SListRow> m_rows;
};

} // namespace kesto::ui::control
