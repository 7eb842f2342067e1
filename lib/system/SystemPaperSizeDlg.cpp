#include "system/SystemPaperSizeDlg.h"

#include "core/Application.h"
#include "framework/Resources.h"
#include "res/SystemResource.h"
#include "system/PaperRules.h"
#include "system/RowNameCombo.h"

#include <QComboBox>

namespace kesto::ui::config {

using namespace res;
using framework::loadString;
using paperrules::SProblem;
using setting::CSystemPaperSizeSetting;
using setting::SPaperSize;
namespace rules = paperrules::size;

namespace {

const QString kPlacementKey = QStringLiteral("SystemPaperSizeDlg");

QString columnKey(int column)
{
    return QStringLiteral("head%1").arg(column);
}

std::optional<framework::SFieldProblem> problemOf(const SProblem& problem)
{
    if (!problem)
        return std::nullopt;
    int text = IDS_PAPER_DUPLICATE_NAME;
    if (problem.kind == SProblem::NoName)
        text = IDS_PAPER_NO_NAME;
    else if (problem.kind == SProblem::HeightTooSmall)
        text = IDS_PAPER_HEIGHT_TOO_SMALL;
    else if (problem.kind == SProblem::WidthTooSmall)
        text = IDS_PAPER_WIDTH_TOO_SMALL;
    return framework::SFieldProblem{framework::formatString(text, {problem.row + 1}),
                                    loadString(IDS_CAPTION_INPUT_ERROR), problem.row,
                                    problem.column};
}

// The initial paper must be one of the sizes; its message has no caption.
std::optional<framework::SFieldProblem> initialPaperProblem(const CSystemPaperSizeSetting& s)
{
    const std::wstring& name = s.getInitPaperName();
    if (name.empty() || s.findByName(name))
        return std::nullopt;
    return framework::SFieldProblem{loadString(IDS_PAPER_INIT_MISSING), QString()};
}

} // namespace

CSystemPaperSizeDlg::CSystemPaperSizeDlg()
    : TSettingDialog(IDD_SYSTEM_PAPER_SIZE)
{
    setPlacementKey(kPlacementKey);
    keepFirstSizeAsMinimum(true);
}

CSystemPaperSizeDlg::~CSystemPaperSizeDlg() = default;

bool CSystemPaperSizeDlg::OnInitDialog()
{
    return guarded([&] {
        m_list = dlgItem<control::CKsListCtrl>(IDC_LIST);
        m_initName = dlgItem<QComboBox>(IDC_PAPER_INIT_NAME);
        if (!m_list || !m_initName)
            return false;
        equalizeWidths({IDC_PAPER_ADD, IDC_PAPER_INSERT, IDC_PAPER_DELETE, IDC_PAPER_RESET});
        m_table = std::make_unique<TTableEditor<SPaperSize>>(
            *this, *m_list, STableButtonIds{IDC_PAPER_ADD, IDC_PAPER_INSERT, IDC_PAPER_DELETE},
            TTableEditor<SPaperSize>::SRules{&rules::newPaperSize, {}});
        addColumns();
        m_table->setChangedHandler(
            [this] { fillRowNameCombo(*m_initName, m_table->model(), rules::ColumnName); });
        bindControls();
        onClicked(IDC_PAPER_RESET, [this] { OnBnClickedReset(); });
        onClicked(IDC_HELP, [this] { OnBnClickedHelp(); });
        fillControls();
        return true;
    });
}

// Column widths as the user left them last time.
void CSystemPaperSizeDlg::addColumns()
{
    namespace columns = control::columns;
    const core::PlacementStore& store = core::Application::getInstance()->placements();
    auto width = [&](int column) {
        return std::max(20, store.readInt(kPlacementKey, columnKey(column), 100));
    };
    auto& model = m_table->model();
    model.addColumn(columns::text<SPaperSize>(loadString(IDS_COLUMN_NAME), width(0), &SPaperSize::name));
    model.addColumn(columns::integer<SPaperSize>(loadString(IDS_PAPER_COLUMN_HEIGHT), width(1),
                                                 &SPaperSize::height));
    model.addColumn(columns::integer<SPaperSize>(loadString(IDS_PAPER_COLUMN_WIDTH), width(2),
                                                 &SPaperSize::width));
    m_table->show();
}

void CSystemPaperSizeDlg::bindControls()
{
    m_binding
        .field(
            m_list,
            [this](auto&, const CSystemPaperSizeSetting& s) { m_table->setRows(s.getPaperSizes()); },
            [this](auto&, CSystemPaperSizeSetting& s) { s.setPaperSize(m_table->model().rows()); })
        .check([](const CSystemPaperSizeSetting& s) {
            return problemOf(rules::check(s.getPaperSizes()));
        })
        .field(
            m_initName,
            [](QComboBox& combo, const CSystemPaperSizeSetting& s) {
                selectRowName(combo, QString::fromStdWString(s.getInitPaperName()));
            },
            [](const QComboBox& combo, CSystemPaperSizeSetting& s) {
                if (combo.currentIndex() >= 0)
                    s.setInitPaperName(combo.currentText().toStdWString());
            })
        .check(&initialPaperProblem);
}

bool CSystemPaperSizeDlg::afterStore()
{
    const std::wstring initName = m_setting.getInitPaperName();
    if (!initName.empty())
        m_setting.setup(initName, m_setting.getPaperSizes());
    saveColumnWidths();
    return true;
}

void CSystemPaperSizeDlg::OnBnClickedReset()
{
    guarded([&] { resetToDefaults(); });
}

void CSystemPaperSizeDlg::OnBnClickedHelp()
{
    core::Application::getInstance()->OpenHtmlHelp(QStringLiteral("DLG_HLP_SYS_PAPER"));
}

void CSystemPaperSizeDlg::saveColumnWidths()
{
    core::PlacementStore& store = core::Application::getInstance()->placements();
    for (int column = 0; column < m_list->getColumnCount(); ++column)
        store.writeInt(kPlacementKey, columnKey(column), m_list->columnWidth(column));
}

void CSystemPaperSizeDlg::OnCancel()
{
    guarded([&] {
        saveColumnWidths();
        EndDialog(framework::IDCANCEL);
    });
}

} // namespace kesto::ui::config
