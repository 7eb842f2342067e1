#include "system/SystemPaperSizeDlg.h"

#include "control/KsListCtrl.h"
#include "core/Application.h"
#include "framework/HandlerGuard.h"
#include "framework/MessageBox.h"
#include "res/SystemResource.h"
#include "system/PaperRules.h"
#include "system/RowNameCombo.h"

#include <QComboBox>

namespace kesto::ui::config {

using namespace res;
using framework::guardHandler;
using framework::loadString;
using papertable::SProblem;
namespace rules = papertable::size;

namespace {
const char* const kClass = "CSystemPaperSizeDlg";
const QString kPlacementKey = QStringLiteral("SystemPaperSizeDlg");

int messageOf(SProblem::EKind kind)
{
    switch (kind) {
    case SProblem::NoName:
        return IDS_PAPER_NO_NAME;
    case SProblem::HeightTooSmall:
        return IDS_PAPER_HEIGHT_TOO_SMALL;
    case SProblem::WidthTooSmall:
        return IDS_PAPER_WIDTH_TOO_SMALL;
    default:
        return IDS_PAPER_DUPLICATE_NAME;
    }
}
} // namespace

CSystemPaperSizeDlg::CSystemPaperSizeDlg()
    : TSettingDialog(IDD_SYSTEM_PAPER_SIZE)
{
    setPlacementKey(kPlacementKey);
    keepFirstSizeAsMinimum(true);
    m_list = dlgItem<control::CKsListCtrl>(IDC_LIST);
    m_initName = dlgItem<QComboBox>(IDC_PAPER_INIT_NAME);
}

CSystemPaperSizeDlg::~CSystemPaperSizeDlg()
{
    if (m_list)
        m_list->detach(this);
}

bool CSystemPaperSizeDlg::OnInitDialog()
{
    return guardHandler(kClass, "OnInitDialog", [&] {
        if (!m_list || !m_initName)
            return false;
        equalizeWidths({IDC_PAPER_ADD, IDC_PAPER_INSERT, IDC_PAPER_DELETE, IDC_PAPER_RESET});
        setupList();
        onClicked(IDC_PAPER_ADD, [this] { OnBnClickedAdd(); });
        onClicked(IDC_PAPER_INSERT, [this] { OnBnClickedInsert(); });
        onClicked(IDC_PAPER_DELETE, [this] { OnBnClickedDelete(); });
        onClicked(IDC_PAPER_RESET, [this] { OnBnClickedReset(); });
        onClicked(IDC_HELP, [this] { OnBnClickedHelp(); });
        fillList();
        return true;
    });
}

// Column widths as the user left them last time.
void CSystemPaperSizeDlg::setupList()
{
    using control::EColumnType;
    const core::PlacementStore& store = core::Application::getInstance()->placements();
    auto width = [&](int column) {
        return std::max(20,
                        store.readInt(kPlacementKey, QStringLiteral("head%1").arg(column), 100));
    };
    m_list->addColumn(loadString(IDS_COLUMN_NAME), width(0));
    m_list->addColumn(loadString(IDS_PAPER_COLUMN_HEIGHT), width(1), EColumnType::Text,
                      Qt::AlignRight);
    m_list->addColumn(loadString(IDS_PAPER_COLUMN_WIDTH), width(2), EColumnType::Text,
                      Qt::AlignRight);
    m_list->attach(this);
    connect(m_list, &control::CKsListCtrl::selectedRowChanged, this, [this] { refreshButtons(); });
}

control::SListRow CSystemPaperSizeDlg::newRow(const setting::SPaperSize& size)
{
    return control::SListRow(rules::rowTexts(size), m_nextRowKey++);
}

void CSystemPaperSizeDlg::fillList()
{
    std::vector<control::SListRow> rows;
    for (const setting::SPaperSize& size : m_setting.getPaperSizes())
        rows.push_back(newRow(size));
    m_list->setRows(std::move(rows));
    fillRowNameCombo(*m_initName, *m_list, rules::ColumnName);
    selectRowName(*m_initName, QString::fromStdWString(m_setting.getInitPaperName()));
    refreshButtons();
}

void CSystemPaperSizeDlg::refreshButtons()
{
    const bool selected = m_list->getSelectedRow() >= 0;
    for (int id : {IDC_PAPER_INSERT, IDC_PAPER_DELETE}) {
        if (QWidget* button = GetDlgItem(id))
            button->setEnabled(selected);
    }
}

void CSystemPaperSizeDlg::OnBnClickedAdd()
{
    guardHandler(kClass, "OnBnClickedAdd", [&] {
        insertNamedRow(*m_list, *m_initName, rules::ColumnName, m_list->getRowCount(),
                       newRow(rules::newPaperSize()));
    });
}

void CSystemPaperSizeDlg::OnBnClickedInsert()
{
    guardHandler(kClass, "OnBnClickedInsert", [&] {
        const int row = m_list->getSelectedRow();
        if (row >= 0)
            insertNamedRow(*m_list, *m_initName, rules::ColumnName, row,
                           newRow(rules::newPaperSize()));
    });
}

void CSystemPaperSizeDlg::OnBnClickedDelete()
{
    guardHandler(kClass, "OnBnClickedDelete", [&] {
        if (removeSelectedNamedRow(*m_list, *m_initName, rules::ColumnName))
            refreshButtons();
    });
}

void CSystemPaperSizeDlg::OnBnClickedReset()
{
    guardHandler(kClass, "OnBnClickedReset", [&] {
        m_setting = m_resetSetting;
        m_list->clearSelection();
        fillList();
    });
}

void CSystemPaperSizeDlg::OnBnClickedHelp()
{
    core::Application::getInstance()->OpenHtmlHelp(QStringLiteral("DLG_HLP_SYS_PAPER"));
}

void CSystemPaperSizeDlg::update(kesto::Subject* subject, int event, void* data)
{
    const auto* change = control::cellChangeOf(event, data);
    if (subject != m_list || !change)
        return;
    onCellChanged(change->row, change->column, change->text);
}

// Sizes are shown as the integers OK will read; names feed the initial paper's list.
void CSystemPaperSizeDlg::onCellChanged(int row, int column, const QString& text)
{
    guardHandler(kClass, "OnEndEditList", [&] {
        if (column == rules::ColumnName)
            fillRowNameCombo(*m_initName, *m_list, rules::ColumnName);
        else
            m_list->setCellText(row, column, QString::number(papertable::readInteger(text)));
    });
}

// The first failed check is shown on its row; true when there was one.
bool CSystemPaperSizeDlg::reportProblem()
{
    const SProblem problem = rules::check(m_list->getAllRowTexts());
    if (!problem)
        return false;
    m_list->selectRow(problem.row);
    m_list->setCurrentIndex(m_list->model()->index(problem.row, problem.column));
    m_list->setFocus();
    framework::MessageBox(this, framework::formatString(messageOf(problem.kind), {problem.row + 1}),
                          loadString(IDS_CAPTION_INPUT_ERROR),
                          framework::MB_OK | framework::MB_ICONWARNING);
    return true;
}

void CSystemPaperSizeDlg::saveColumnWidths()
{
    core::PlacementStore& store = core::Application::getInstance()->placements();
    for (int column = 0; column < m_list->getColumnCount(); ++column)
        store.writeInt(kPlacementKey, QStringLiteral("head%1").arg(column),
                       m_list->columnWidth(column));
}

void CSystemPaperSizeDlg::OnOK()
{
    guardHandler(kClass, "OnOK", [&] {
        if (reportProblem())
            return;
        std::vector<setting::SPaperSize> sizes;
        for (const QStringList& texts : m_list->getAllRowTexts())
            sizes.push_back(rules::sizeOfRow(texts));
        m_setting.setPaperSize(sizes);
        if (m_initName->currentIndex() >= 0)
            m_setting.setInitPaperName(m_initName->currentText().toStdWString());
        const std::wstring initName = m_setting.getInitPaperName();
        if (!initName.empty() && !m_setting.setup(initName, sizes)) {
            m_initName->setFocus();
            framework::MessageBox(this, loadString(IDS_PAPER_INIT_MISSING), QString(),
                                  framework::MB_OK | framework::MB_ICONWARNING);
            return;
        }
        saveColumnWidths();
        EndDialog(framework::IDOK);
    });
}

void CSystemPaperSizeDlg::OnCancel()
{
    guardHandler(kClass, "OnCancel", [&] {
        saveColumnWidths();
        EndDialog(framework::IDCANCEL);
    });
}

} // namespace kesto::ui::config
