#pragma once

#include "control/KsListModel.h"
#include "observer/Subject.h"

#include <QTableView>

namespace kesto::ui::control {

// The host's editable grid. Rows are held by a model, so large lists fill and scroll without
// creating a widget per cell: its own rows of texts (listModel), or a model of records set
// with setTableModel, whose cells are views of the records. Cell edits by the user are
// reported to observers as LIST_EVENT_CELL_CHANGED after they are stored; changes made
// through the API are not. Tab leaves the grid; arrows move, F2 or Enter edits.
class CKsListCtrl : public QTableView, public kesto::Subject {
    Q_OBJECT

public:
    explicit CKsListCtrl(QWidget* parent = nullptr);
    ~CKsListCtrl() override;

    // The list's own rows of texts.
    CKsListModel* listModel() const { return m_textModel; }
    // The model shown; a null model shows the list's own rows again.
    void setTableModel(CKsTableModel* model);
    CKsTableModel* tableModel() const { return m_model; }

    // Columns of the model shown
    int addColumn(const QString& title, int width, EColumnType type = EColumnType::Text,
                  Qt::Alignment alignment = Qt::AlignLeft, bool editable = true);
    void setColumnItems(int column, const QStringList& items);
    void setColumnBackground(int column, const QColor& color);
    int getColumnCount() const { return m_model->columnCount(); }
    // Widens (or narrows) a column to its header and the texts of up to 1,000 rows.
    void fitColumnToContents(int column);

    // Rows of the list's own model
    int addRow(SListRow row);
    int addRow(const QStringList& texts, std::uint64_t data = 0);
    void insertRow(int at, SListRow row);
    // Fast fill: one model update for all rows.
    void addRows(std::vector<SListRow> rows);
    void setRows(std::vector<SListRow> rows);
    bool removeRow(int row);
    // Removes a row and selects the one that takes its place (or the new last one).
    bool removeRowAndSelectNext(int row);
    void removeAllRows();
    bool moveRow(int from, int to);
    bool swapRows(int first, int second);
    int getRowCount() const { return m_model->rowCount(); }
    SListRow& getRow(int row) { return m_textModel->row(row); }
    const SListRow& getRow(int row) const { return m_textModel->row(row); }
    void updateRow(int row) { m_model->rowsChanged(row, row); }
    // Repaints rows first..last after their cells were changed through getRow().
    void updateRows(int first, int last) { m_model->rowsChanged(first, last); }

    // Cells of the model shown
    QString getCellText(int row, int column) const;
    // The texts of a row's cells, in column order.
    QStringList getRowTexts(int row) const;
    std::vector<QStringList> getAllRowTexts() const;
    void setCellText(int row, int column, const QString& text);
    QRgb getCellColor(int row, int column) const;
    void setCellColor(int row, int column, QRgb color);
    void setCellEditable(int row, int column, bool editable);
    bool isCellEditable(int row, int column) const;
    // Stores a value as if the user had typed or chosen it, and reports it to observers.
    bool commitCellText(int row, int column, const QString& text);
    bool commitCellColor(int row, int column, QRgb color);
    void setEditable(bool editable) { m_model->setEditable(editable); }
    int findRowByKey(std::uint64_t key) const { return m_model->findRowByKey(key); }

    // Selection
    void setMultiSelect(bool multi);
    int getSelectedRow() const;
    std::vector<int> getSelectedRows() const;
    void selectRow(int row);
    void setRowsSelected(const std::vector<int>& rows);
    void clearSelection();

    // Search
    int findRow(int column, const QString& text, int from = 0) const;
    int findRowByData(std::uint64_t data, int from = 0) const;

signals:
    void selectedRowChanged(int row);
    void cellEdited(int row, int column);

private:
    void applyColumnWidths(int first, int last);
    void onUserEdit(const SListCellEvent& event);
    void onSelectionChanged();
    void editColorCell(const QModelIndex& index);
    void keyPressEvent(QKeyEvent* event) override;

    CKsListModel* m_textModel;
    CKsTableModel* m_model;
    QMetaObject::Connection m_selectionConnection;
    QMetaObject::Connection m_columnsConnection;
};

} // namespace kesto::ui::control
