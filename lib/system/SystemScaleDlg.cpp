#include "system/SystemScaleDlg.h"

#include "core/Application.h"
#include "db/IDataBase.h"
#include "framework/MessageBox.h"
#include "res/SystemResource.h"
#include "system/ScaleRules.h"
#include "system/TableTabs.h"
#include "types/KsScale.h"

#include <QTabBar>

namespace kesto::ui::config {

using namespace res;
using framework::loadString;
using setting::CSystemScaleSetting;
using setting::SSystemScale;
namespace rules = scalerules;

namespace {

const IDataBase* currentDrawing()
{
    const core::CSystemConfig* config = core::Application::getInstance()->getSystemConfig();
    return config ? config->getCurrentDataBase() : nullptr;
}

std::vector<SSystemScale> scalesOf(const IDataBase& db)
{
    std::vector<SSystemScale> scales;
    for (const KsScale* scale : db.elementsOf<KsScale>(L"SCALE"))
        scales.push_back({scale->getName(), scale->getNumerator(), scale->getDenominator()});
    return scales;
}

// A typed value is stored with six decimals, and the scale is named after its values.
std::optional<double> keepTyped(SSystemScale& scale, double SSystemScale::*field, double typed)
{
    const double stored = rules::storedValue(typed);
    SSystemScale renamed = scale;
    renamed.*field = stored;
    scale.name = rules::nameOf(renamed.numerator, renamed.denominator);
    return stored;
}

} // namespace

CSystemScaleDlg::CSystemScaleDlg()
    : TSettingDialog(IDD_SYSTEM_SCALE)
{
    setPlacementKey(QStringLiteral("SystemScaleDlg"));
    keepFirstSizeAsMinimum(true);
}

CSystemScaleDlg::~CSystemScaleDlg() = default;

bool CSystemScaleDlg::OnInitDialog()
{
    return guarded([&] {
        m_tab = dlgItem<QTabBar>(IDC_TAB);
        m_list = dlgItem<control::CKsListCtrl>(IDC_LIST);
        if (!m_tab || !m_list)
            return false;
        equalizeWidths({IDC_ADD, IDC_INSERT, IDC_DELETE, IDC_RESET, IDC_REGISTER_SYSTEM});
        m_table = std::make_unique<TTableEditor<SSystemScale>>(
            *this, *m_list, STableButtonIds{IDC_ADD, IDC_INSERT, IDC_DELETE},
            TTableEditor<SSystemScale>::SRules{&rules::newScale, {}});
        m_drawingScales = new control::TRecordTableModel<SSystemScale>(this);
        addColumns(m_table->model(), true);
        addColumns(*m_drawingScales, false);
        const IDataBase* drawing = currentDrawing();
        if (drawing)
            m_drawingScales->setRows(scalesOf(*drawing));
        setupTableTabs(*m_tab, drawing != nullptr);
        m_table->show();
        m_binding.field(
            m_list,
            [this](auto&, const CSystemScaleSetting& s) { m_table->setRows(s.getSystemScales()); },
            [this](auto&, CSystemScaleSetting& s) {
                std::vector<SSystemScale> scales = m_table->model().rows();
                rules::alignNames(scales);
                s.setSystemScales(scales);
            });
        connect(m_tab, &QTabBar::currentChanged, this, [this] { OnTcnSelchangeTab(); });
        connect(m_list, &control::CKsListCtrl::selectedRowChanged, this,
                [this] { refreshButtons(); });
        onClicked(IDC_RESET, [this] { OnBnClickedReset(); });
        onClicked(IDC_REGISTER_SYSTEM, [this] { OnBnClickedRegister(); });
        onClicked(IDC_HELP, [this] { OnBnClickedHelp(); });
        fillControls();
        refreshButtons();
        return true;
    });
}

// Columns of 100 at least, fitted to their texts when the tab is shown.
void CSystemScaleDlg::addColumns(control::TRecordTableModel<SSystemScale>& model, bool editable)
{
    namespace columns = control::columns;
    model.addColumn(columns::text<SSystemScale>(loadString(IDS_SCALE_COLUMN_NAME), 100,
                                                &SSystemScale::name, false));
    const std::pair<int, double SSystemScale::*> values[] = {
        {IDS_SCALE_COLUMN_NUMERATOR, &SSystemScale::numerator},
        {IDS_SCALE_COLUMN_DENOMINATOR, &SSystemScale::denominator}};
    for (const auto& [title, field] : values) {
        auto column = columns::real<SSystemScale>(
            loadString(title), 100, field, &rules::shownValue,
            [field = field](SSystemScale& scale, double typed) { return keepTyped(scale, field, typed); });
        if (!editable)
            column.read = nullptr;
        model.addColumn(std::move(column));
    }
}

bool CSystemScaleDlg::onDrawingTab() const
{
    return m_tab->currentIndex() == TabDrawing;
}

void CSystemScaleDlg::refreshButtons()
{
    const auto states =
        rules::buttonStates(onDrawingTab(), m_addMode, m_list->getSelectedRow() >= 0);
    auto show = [this](int id, bool visible) {
        if (QWidget* button = GetDlgItem(id))
            button->setVisible(visible);
    };
    show(IDC_INSERT, states.insertVisible);
    show(IDC_DELETE, states.deleteVisible);
    show(IDC_RESET, states.resetVisible);
    show(IDC_REGISTER_SYSTEM, states.registerVisible);
    if (QWidget* button = GetDlgItem(IDC_REGISTER_SYSTEM))
        button->setEnabled(states.registerEnabled);
    m_table->setEditable(!onDrawingTab());
}

void CSystemScaleDlg::OnTcnSelchangeTab()
{
    guarded([&] {
        if (onDrawingTab())
            m_list->setTableModel(m_drawingScales);
        else
            m_table->show();
        for (int column = 0; column < m_list->getColumnCount(); ++column) {
            m_list->fitColumnToContents(column);
            m_list->setColumnWidth(column, std::max(m_list->columnWidth(column), 100));
        }
        refreshButtons();
    });
}

void CSystemScaleDlg::OnBnClickedReset()
{
    guarded([&] { resetToDefaults(); });
}

void CSystemScaleDlg::OnBnClickedRegister()
{
    guarded([&] {
        const int row = m_list->getSelectedRow();
        if (m_addMode || !onDrawingTab() || !m_drawingScales->isValidRow(row))
            return;
        const SSystemScale& picked = m_drawingScales->row(row);
        auto& scales = m_table->model();
        if (rules::containsSame(scales.rows(), picked.numerator, picked.denominator)) {
            framework::MessageBox(this, loadString(IDS_SAME_SCALE_EXISTS),
                                  loadString(IDS_CAPTION_INPUT_ERROR),
                                  framework::MB_OK | framework::MB_ICONWARNING);
            return;
        }
        scales.insertRecord(scales.rowCount(), picked);
    });
}

void CSystemScaleDlg::OnBnClickedHelp()
{
    core::Application::getInstance()->OpenHtmlHelp(QStringLiteral("DLG_HLP_SYS_SCALE"));
}

// In add mode, an OK without a new scale is a cancel; the names follow the values.
void CSystemScaleDlg::OnOK()
{
    guarded([&] {
        if (m_addMode && !m_table->hasAdded()) {
            EndDialog(framework::IDCANCEL);
            return;
        }
        if (storeControls())
            EndDialog(framework::IDOK);
    });
}

} // namespace kesto::ui::config
