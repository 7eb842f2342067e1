#include "picking/FigurePickDlg.h"

#include "picking/FigureListModel.h"
#include "window/WorkbenchResources.h"

#include "framework/HandlerGuard.h"
#include "framework/Resources.h"
#include "types/KsLayer.h"

#include <QComboBox>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTableView>

namespace kesto::workbench {

CFigurePickDlg::CFigurePickDlg(const IDataBase& drawing)
    : CKsDialog(IDD_PICK_FIGURE)
    , m_drawing(drawing)
{
    setPlacementKey(QStringLiteral("FigurePickDlg"));
}

CFigurePickDlg::~CFigurePickDlg() = default;

const KsFigure* CFigurePickDlg::pick(const IDataBase& drawing)
{
    ui::framework::ResourceSwitch resources(workbenchResourceHandle());
    CFigurePickDlg dialog(drawing);
    const bool ok = dialog.DoModal() == ui::framework::IDOK;
    return ok ? dialog.pickedFigure() : nullptr;
}

bool CFigurePickDlg::OnInitDialog()
{
    return guarded([&] {
        m_layer = dlgItem<QComboBox>(IDC_PICK_LAYER);
        m_list = dlgItem<QTableView>(IDC_PICK_LIST);
        m_count = dlgItem<QLabel>(IDC_PICK_COUNT);
        if (!m_layer || !m_list || !m_count)
            return false;
        // Row heights before the model: a million rows are sized once, not twice.
        m_list->verticalHeader()->setDefaultSectionSize(m_list->fontMetrics().height() + 6);
        m_model = new CFigureListModel(m_drawing, this);
        m_list->setModel(m_model);
        const int widths[] = {64, 120, 150, 120, 120};
        for (int column = 0; column < static_cast<int>(std::size(widths)); ++column)
            m_list->setColumnWidth(column, widths[column]);
        fillLayers();
        connect(m_layer, &QComboBox::currentIndexChanged, this, [this] {
            m_model->showLayer(m_layer->currentData().value<const KsLayer*>());
            showCount();
            chooseFirstRow();
        });
        connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
                [this] { refreshOk(); });
        connect(m_list, &QAbstractItemView::doubleClicked, this, [this] { OnOK(); });
        showCount();
        chooseFirstRow();
        m_list->setFocus();
        return true;
    });
}

// A row is always chosen when there is one, so OK (or Enter) picks at once.
void CFigurePickDlg::chooseFirstRow()
{
    if (m_model->rowCount() > 0)
        m_list->selectRow(0);
    refreshOk();
}

void CFigurePickDlg::fillLayers()
{
    m_layer->addItem(tr("すべてのレイヤ"), QVariant::fromValue<const KsLayer*>(nullptr));
    for (const KsLayer* layer : m_model->layers()) {
        if (layer)
            m_layer->addItem(QString::fromStdWString(layer->getName()), QVariant::fromValue(layer));
    }
}

void CFigurePickDlg::showCount()
{
    m_count->setText(tr("%1 個の要素").arg(QLocale().toString(m_model->rowCount())));
}

const KsFigure* CFigurePickDlg::selectedFigure() const
{
    const QModelIndexList rows = m_list->selectionModel()->selectedRows();
    return rows.isEmpty() ? nullptr : m_model->figureAt(rows.front().row());
}

void CFigurePickDlg::refreshOk()
{
    if (QWidget* ok = GetDlgItem(ui::framework::IDOK))
        ok->setEnabled(selectedFigure() != nullptr);
}

void CFigurePickDlg::OnOK()
{
    guarded([&] {
        m_picked = selectedFigure();
        if (m_picked)
            EndDialog(ui::framework::IDOK);
    });
}

} // namespace kesto::workbench
