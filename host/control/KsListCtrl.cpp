#include "control/KsListCtrl.h"

#include "control/KsListDelegate.h"
#include "framework/ColorChooser.h"

#include <QHeaderView>
#include <QKeyEvent>

#include <algorithm>

namespace kesto::ui::control {

CKsListCtrl::CKsListCtrl(QWidget* parent)
    : QTableView(parent)
    , m_textModel(new CKsListModel(this))
    , m_model(nullptr)
{
    setItemDelegate(new CKsListDelegate(this));
    setTabKeyNavigation(false);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked
                    | QAbstractItemView::EditKeyPressed);
    setWordWrap(false);
    setShowGrid(true);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    // Fixed row heights keep filling and scrolling independent of the number of rows.
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(false);

    setTableModel(nullptr);
    connect(this, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex& index) {
        if (m_model->column(index.column()).type == EColumnType::Color)
            editColorCell(index);
        SListCellEvent event{index.row(), index.column(), getCellText(index.row(), index.column()),
                             getCellColor(index.row(), index.column())};
        notify(LIST_EVENT_ROW_ACTIVATED, &event);
    });
}

CKsListCtrl::~CKsListCtrl() = default;

void CKsListCtrl::setTableModel(CKsTableModel* model)
{
    if (!model)
        model = m_textModel;
    if (model == m_model)
        return;
    if (m_model)
        m_model->setEditCallback({});
    disconnect(m_selectionConnection);
    disconnect(m_columnsConnection);
    m_model = model;
    setModel(model);
    applyColumnWidths(0, model->columnCount() - 1);
    m_columnsConnection = connect(
        model, &QAbstractItemModel::columnsInserted, this,
        [this](const QModelIndex&, int first, int last) { applyColumnWidths(first, last); });
    model->setEditCallback([this](const SListCellEvent& e) { onUserEdit(e); });
    m_selectionConnection = connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
                                    &CKsListCtrl::onSelectionChanged);
    onSelectionChanged();
}

void CKsListCtrl::applyColumnWidths(int first, int last)
{
    for (int column = first; column <= last; ++column)
        setColumnWidth(column, m_model->column(column).width);
}

int CKsListCtrl::addColumn(const QString& title, int width, EColumnType type,
                           Qt::Alignment alignment, bool editable)
{
    SListColumn column;
    column.title = title;
    column.width = width;
    column.type = type;
    column.alignment = alignment | Qt::AlignVCenter;
    column.editable = editable;
    const int index = m_model->addColumn(column);
    setColumnWidth(index, width);
    return index;
}

void CKsListCtrl::setColumnItems(int column, const QStringList& items)
{
    if (column >= 0 && column < getColumnCount())
        m_model->column(column).items = items;
}

void CKsListCtrl::setColumnBackground(int column, const QColor& color)
{
    if (column >= 0 && column < getColumnCount())
        m_model->column(column).background = color;
}

void CKsListCtrl::fitColumnToContents(int column)
{
    horizontalHeader()->setResizeContentsPrecision(1000);
    resizeColumnToContents(column);
}

int CKsListCtrl::addRow(SListRow row)
{
    return m_textModel->addRow(std::move(row));
}

int CKsListCtrl::addRow(const QStringList& texts, std::uint64_t data)
{
    return m_textModel->addRow(SListRow(texts, data));
}

void CKsListCtrl::insertRow(int at, SListRow row)
{
    m_textModel->insertRow(at, std::move(row));
}

void CKsListCtrl::addRows(std::vector<SListRow> rows)
{
    m_textModel->appendRows(std::move(rows));
}

void CKsListCtrl::setRows(std::vector<SListRow> rows)
{
    m_textModel->setRows(std::move(rows));
}

bool CKsListCtrl::removeRow(int row)
{
    return m_textModel->removeRowAt(row);
}

bool CKsListCtrl::removeRowAndSelectNext(int row)
{
    if (!m_textModel->removeRowAt(row))
        return false;
    if (getRowCount() > 0)
        selectRow(std::min(row, getRowCount() - 1));
    return true;
}

void CKsListCtrl::removeAllRows()
{
    m_textModel->removeAllRows();
}

bool CKsListCtrl::moveRow(int from, int to)
{
    return m_textModel->moveRowTo(from, to);
}

bool CKsListCtrl::swapRows(int first, int second)
{
    if (!m_textModel->isValidRow(first) || !m_textModel->isValidRow(second) || first == second)
        return false;
    const int low = std::min(first, second);
    const int high = std::max(first, second);
    m_textModel->moveRowTo(high, low);
    if (high - low > 1)
        m_textModel->moveRowTo(low + 1, high);
    return true;
}

QString CKsListCtrl::getCellText(int row, int column) const
{
    return m_model->cellText(row, column);
}

QStringList CKsListCtrl::getRowTexts(int row) const
{
    QStringList texts;
    for (int column = 0; column < getColumnCount(); ++column)
        texts << getCellText(row, column);
    return texts;
}

std::vector<QStringList> CKsListCtrl::getAllRowTexts() const
{
    std::vector<QStringList> rows;
    rows.reserve(static_cast<std::size_t>(getRowCount()));
    for (int row = 0; row < getRowCount(); ++row)
        rows.push_back(getRowTexts(row));
    return rows;
}

void CKsListCtrl::setCellText(int row, int column, const QString& text)
{
    m_model->setCellText(row, column, text);
}

QRgb CKsListCtrl::getCellColor(int row, int column) const
{
    return m_model->cellColor(row, column);
}

void CKsListCtrl::setCellColor(int row, int column, QRgb color)
{
    m_model->setCellColor(row, column, color);
}

void CKsListCtrl::setCellEditable(int row, int column, bool editable)
{
    m_textModel->setCellEditable(row, column, editable);
}

bool CKsListCtrl::isCellEditable(int row, int column) const
{
    return m_model->isCellEditable(row, column);
}

bool CKsListCtrl::commitCellText(int row, int column, const QString& text)
{
    return m_model->setData(m_model->index(row, column), text, Qt::EditRole);
}

bool CKsListCtrl::commitCellColor(int row, int column, QRgb color)
{
    return m_model->setData(m_model->index(row, column), QColor::fromRgb(color),
                            Qt::DecorationRole);
}

void CKsListCtrl::setMultiSelect(bool multi)
{
    setSelectionMode(multi ? QAbstractItemView::ExtendedSelection
                           : QAbstractItemView::SingleSelection);
}

int CKsListCtrl::getSelectedRow() const
{
    const std::vector<int> rows = getSelectedRows();
    return rows.empty() ? -1 : rows.front();
}

std::vector<int> CKsListCtrl::getSelectedRows() const
{
    std::vector<int> rows;
    const QItemSelection selection = selectionModel()->selection();
    for (const QItemSelectionRange& range : selection) {
        for (int r = range.top(); r <= range.bottom(); ++r)
            rows.push_back(r);
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

void CKsListCtrl::selectRow(int row)
{
    if (!m_model->isValidRow(row)) {
        clearSelection();
        return;
    }
    const QModelIndex index = m_model->index(row, 0);
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect
                                                 | QItemSelectionModel::Rows);
    scrollTo(index);
}

// Neighbouring rows make one range, so a large selection stays cheap to paint.
void CKsListCtrl::setRowsSelected(const std::vector<int>& rows)
{
    std::vector<int> sorted;
    std::copy_if(rows.begin(), rows.end(), std::back_inserter(sorted),
                 [this](int r) { return m_model->isValidRow(r); });
    std::sort(sorted.begin(), sorted.end());
    QItemSelection selection;
    const int last = getColumnCount() - 1;
    for (std::size_t i = 0; i < sorted.size();) {
        std::size_t end = i;
        while (end + 1 < sorted.size() && sorted[end + 1] <= sorted[end] + 1)
            ++end;
        selection.select(m_model->index(sorted[i], 0), m_model->index(sorted[end], last));
        i = end + 1;
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

void CKsListCtrl::clearSelection()
{
    selectionModel()->clearSelection();
    selectionModel()->setCurrentIndex({}, QItemSelectionModel::NoUpdate);
}

int CKsListCtrl::findRow(int column, const QString& text, int from) const
{
    return m_model->findRow(column, text, from);
}

int CKsListCtrl::findRowByData(std::uint64_t data, int from) const
{
    for (int r = std::max(from, 0); r < m_textModel->rowCount(); ++r) {
        if (m_textModel->row(r).data == data)
            return r;
    }
    return -1;
}

void CKsListCtrl::onUserEdit(const SListCellEvent& event)
{
    SListCellEvent copy = event;
    notify(LIST_EVENT_CELL_CHANGED, &copy);
    emit cellEdited(event.row, event.column);
}

void CKsListCtrl::onSelectionChanged()
{
    notify(LIST_EVENT_SELECTION_CHANGED, nullptr);
    emit selectedRowChanged(getSelectedRow());
}

void CKsListCtrl::editColorCell(const QModelIndex& index)
{
    if (!m_model->isCellEditable(index.row(), index.column()))
        return;
    const QColor initial = QColor::fromRgb(getCellColor(index.row(), index.column()));
    if (const auto chosen = framework::chooseColor(this, initial))
        commitCellColor(index.row(), index.column(), chosen->rgb());
}

// Enter or F2 on a colour cell opens the colour chooser; text and combo cells edit in place.
void CKsListCtrl::keyPressEvent(QKeyEvent* event)
{
    const QModelIndex index = currentIndex();
    const bool opens = event->key() == Qt::Key_F2 || event->key() == Qt::Key_Return
                       || event->key() == Qt::Key_Enter;
    if (opens && index.isValid() && state() != EditingState
        && m_model->column(index.column()).type == EColumnType::Color) {
        editColorCell(index);
        return;
    }
    QTableView::keyPressEvent(event);
}

} // namespace kesto::ui::control
