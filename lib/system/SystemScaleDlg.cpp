#include "system/SystemScaleDlg.h"

#include "control/KsListCtrl.h"
#include "core/Application.h"
#include "db/IDataBase.h"
#include "framework/HandlerGuard.h"
#include "framework/MessageBox.h"
#include "res/SystemResource.h"
#include "system/SystemScaleRules.h"
#include "system/TableTabs.h"
#include "types/KsScale.h"

#include <QPushButton>
#include <QTabBar>

namespace kesto::ui::config {

using namespace res;
using framework::guardHandler;
using framework::loadString;
using setting::SSystemScale;

namespace {
const char* const kClass = "CSystemScaleDlg";

std::vector<SSystemScale> scalesOfCurrentDrawing(bool& hasDrawing)
{
    std::vector<SSystemScale> scales;
    const core::CSystemConfig* config = core::Application::getInstance()->getSystemConfig();
    const IDataBase* db = config ? config->getCurrentDataBase() : nullptr;
    hasDrawing = db != nullptr;
    if (!db)
        return scales;
    for (const KsScale* scale : db->elementsOf<KsScale>(L"SCALE"))
        scales.push_back({scale->getName(), scale->getNumerator(), scale->getDenominator()});
    return scales;
}

std::vector<control::SListRow> rowsOf(const std::vector<SSystemScale>& scales)
{
    std::vector<control::SListRow> rows;
    rows.reserve(scales.size());
    for (const SSystemScale& scale : scales)
        rows.emplace_back(scaletable::rowTexts(scale));
    return rows;
}
} // namespace

CSystemScaleDlg::CSystemScaleDlg()
    : TSettingDialog(IDD_SYSTEM_SCALE)
{
    setPlacementKey(QStringLiteral("SystemScaleDlg"));
    keepFirstSizeAsMinimum(true);
    m_tab = dlgItem<QTabBar>(IDC_TAB);
    m_list = dlgItem<control::CKsListCtrl>(IDC_LIST);
}

CSystemScaleDlg::~CSystemScaleDlg()
{
    if (m_list)
        m_list->detach(this);
}

bool CSystemScaleDlg::OnInitDialog()
{
    return guardHandler(kClass, "OnInitDialog", [&] {
        if (!m_tab || !m_list)
            return false;
        m_scales = m_setting.getSystemScales();
        m_drawingScales = scalesOfCurrentDrawing(m_hasDrawing);
        equalizeWidths({IDC_ADD, IDC_INSERT, IDC_DELETE, IDC_RESET, IDC_REGISTER_SYSTEM});
        setupTableTabs(*m_tab, m_hasDrawing);
        setupList();
        connect(m_tab, &QTabBar::currentChanged, this, [this] { OnTcnSelchangeTab(); });
        onClicked(IDC_ADD, [this] { OnBnClickedAdd(); });
        onClicked(IDC_INSERT, [this] { OnBnClickedInsert(); });
        onClicked(IDC_DELETE, [this] { OnBnClickedDelete(); });
        onClicked(IDC_RESET, [this] { OnBnClickedReset(); });
        onClicked(IDC_REGISTER_SYSTEM, [this] { OnBnClickedRegister(); });
        onClicked(IDC_HELP, [this] { OnBnClickedHelp(); });
        fillList();
        return true;
    });
}

void CSystemScaleDlg::setupList()
{
    using control::EColumnType;
    const Qt::Alignment right = Qt::AlignRight;
    m_list->addColumn(loadString(IDS_SCALE_COLUMN_NAME), 100, EColumnType::Text, Qt::AlignLeft,
                      false);
    m_list->addColumn(loadString(IDS_SCALE_COLUMN_NUMERATOR), 100, EColumnType::Text, right);
    m_list->addColumn(loadString(IDS_SCALE_COLUMN_DENOMINATOR), 100, EColumnType::Text, right);
    m_list->attach(this);
    connect(m_list, &control::CKsListCtrl::selectedRowChanged, this, [this] { refreshButtons(); });
}

bool CSystemScaleDlg::onDrawingTab() const
{
    return m_tab->currentIndex() == TabDrawing;
}

void CSystemScaleDlg::fillList()
{
    const bool drawing = onDrawingTab();
    m_list->setRows(rowsOf(drawing ? m_drawingScales : m_scales));
    m_list->setEditable(!drawing);
    for (int column = 0; column < m_list->getColumnCount(); ++column) {
        m_list->fitColumnToContents(column);
        m_list->setColumnWidth(column, std::max(m_list->columnWidth(column), 100));
    }
    refreshButtons();
}

void CSystemScaleDlg::refreshButtons()
{
    const auto states =
        scaletable::buttonStates(onDrawingTab(), m_addMode, m_list->getSelectedRow() >= 0);
    auto apply = [this](int id, bool visible, bool enabled) {
        if (QWidget* button = GetDlgItem(id)) {
            button->setVisible(visible);
            button->setEnabled(enabled);
        }
    };
    apply(IDC_ADD, true, states.addEnabled);
    apply(IDC_INSERT, states.insertVisible, states.insertEnabled);
    apply(IDC_DELETE, states.deleteVisible, states.deleteEnabled);
    apply(IDC_REGISTER_SYSTEM, states.registerVisible, states.registerEnabled);
    apply(IDC_RESET, states.resetVisible, true);
}

void CSystemScaleDlg::OnTcnSelchangeTab()
{
    guardHandler(kClass, "OnTcnSelchangeTab", [&] { fillList(); });
}

void CSystemScaleDlg::OnBnClickedAdd()
{
    guardHandler(kClass, "OnBnClickedAdd", [&] {
        if (onDrawingTab())
            return;
        m_scales.push_back(scaletable::newScale());
        const int row = m_list->addRow(scaletable::rowTexts(m_scales.back()));
        m_list->selectRow(row);
        m_added = true;
        refreshButtons();
    });
}

void CSystemScaleDlg::OnBnClickedInsert()
{
    guardHandler(kClass, "OnBnClickedInsert", [&] {
        const int row = m_list->getSelectedRow();
        if (onDrawingTab() || row < 0)
            return;
        m_scales.insert(m_scales.begin() + row, scaletable::newScale());
        m_list->insertRow(row, control::SListRow(scaletable::rowTexts(m_scales[row])));
        m_list->selectRow(row);
        refreshButtons();
    });
}

void CSystemScaleDlg::OnBnClickedDelete()
{
    guardHandler(kClass, "OnBnClickedDelete", [&] {
        const int row = m_list->getSelectedRow();
        if (onDrawingTab() || row < 0)
            return;
        m_scales.erase(m_scales.begin() + row);
        m_list->removeRowAndSelectNext(row);
        refreshButtons();
    });
}

void CSystemScaleDlg::OnBnClickedReset()
{
    guardHandler(kClass, "OnBnClickedReset", [&] {
        m_setting = m_resetSetting;
        m_scales = m_setting.getSystemScales();
        m_list->clearSelection();
        fillList();
    });
}

void CSystemScaleDlg::OnBnClickedRegister()
{
    guardHandler(kClass, "OnBnClickedRegister", [&] {
        const int row = m_list->getSelectedRow();
        if (m_addMode || !onDrawingTab() || row < 0
            || row >= static_cast<int>(m_drawingScales.size()))
            return;
        const SSystemScale& picked = m_drawingScales[static_cast<std::size_t>(row)];
        if (scaletable::containsSame(m_scales, picked.numerator, picked.denominator)) {
            framework::MessageBox(this, loadString(IDS_SAME_SCALE_EXISTS),
                                  loadString(IDS_CAPTION_INPUT_ERROR),
                                  framework::MB_OK | framework::MB_ICONWARNING);
            return;
        }
        m_scales.push_back(picked);
    });
}

void CSystemScaleDlg::OnBnClickedHelp()
{
    core::Application::getInstance()->OpenHtmlHelp(QStringLiteral("DLG_HLP_SYS_SCALE"));
}

void CSystemScaleDlg::update(kesto::Subject* subject, int event, void* data)
{
    const auto* change = control::cellChangeOf(event, data);
    if (subject != m_list || !change)
        return;
    onCellChanged(change->row, change->column, change->text);
}

// A typed value is stored with six decimals and shown again as stored; anything that is not
// a number above zero is refused and the cell gets its stored value back.
void CSystemScaleDlg::onCellChanged(int row, int column, const QString& text)
{
    guardHandler(kClass, "OnEndEditList", [&] {
        if (onDrawingTab() || row < 0 || row >= static_cast<int>(m_scales.size())
            || (column != scaletable::ColumnNumerator && column != scaletable::ColumnDenominator))
            return;
        SSystemScale& scale = m_scales[static_cast<std::size_t>(row)];
        double& field = column == scaletable::ColumnNumerator ? scale.numerator : scale.denominator;
        const std::optional<double> value = scaletable::readCellValue(text);
        if (value) {
            field = *value;
            scale.name = KsScale::makeName(scale.numerator, scale.denominator);
        }
        m_list->setCellText(row, column, scaletable::formatCellValue(field));
        m_list->setCellText(row, scaletable::ColumnName, QString::fromStdWString(scale.name));
        if (!value) {
            const QString what = m_list->model()->headerData(column, Qt::Horizontal).toString();
            framework::MessageBox(
                this, framework::formatString(IDS_SCALE_VALUE_NOT_POSITIVE, {row + 1, what}),
                loadString(IDS_CAPTION_INPUT_ERROR), framework::MB_OK | framework::MB_ICONWARNING);
        }
    });
}

void CSystemScaleDlg::OnOK()
{
    guardHandler(kClass, "OnOK", [&] {
        if (m_addMode && !m_added) {
            EndDialog(framework::IDCANCEL);
            return;
        }
        scaletable::alignNames(m_scales);
        m_setting.setSystemScales(m_scales);
        EndDialog(framework::IDOK);
    });
}

} // namespace kesto::ui::config
