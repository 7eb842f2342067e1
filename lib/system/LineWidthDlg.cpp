#include "system/LineWidthDlg.h"

#include "control/ComboSamples.h"
#include "control/KsListCtrl.h"
#include "core/Application.h"
#include "db/IDataBase.h"
#include "framework/HandlerGuard.h"
#include "framework/MessageBox.h"
#include "res/SystemResource.h"
#include "setting/SystemColorSetting.h"
#include "system/LineWidthRules.h"
#include "system/TableTabs.h"

#include <QComboBox>
#include <QHeaderView>
#include <QSignalBlocker>
#include <QStandardItemModel>
#include <QTabBar>

namespace kesto::ui::config {

using namespace res;
using framework::guardHandler;
using framework::loadString;
using setting::SLineWidth;
namespace rules = linewidthtable;

namespace {

const char* const kClass = "CLineWidthDlg";
const int kChoiceIds[] = {IDC_THIN_WIDTH, IDC_BOLD_WIDTH, IDC_EXTRA_BOLD_WIDTH};
const int kChoiceKinds[] = {KsLineWidth::Thin, KsLineWidth::Bold, KsLineWidth::ExtraBold};

control::SListRow rowOf(const QString& mark, const std::wstring& name, std::uint32_t rgb,
                        bool widthEditable)
{
    control::SListRow row(QStringList{mark, QString::fromStdWString(name), QString()});
    row.cells[rules::ColumnColor].color = rgb;
    row.cells[rules::ColumnWidth].editable = widthEditable;
    return row;
}

const setting::ISystemColorSetting* systemColors()
{
    const core::CSystemConfig* config = core::Application::getInstance()->getSystemConfig();
    return config ? config->getSetting<setting::CSystemColorSetting>() : nullptr;
}

} // namespace

CLineWidthDlg::CLineWidthDlg()
    : TSettingDialog(IDD_LINE_WIDTH)
{
    setPlacementKey(QStringLiteral("LineWidthDlg"));
    keepFirstSizeAsMinimum(true);
    m_tab = dlgItem<QTabBar>(IDC_TAB);
    m_list = dlgItem<control::CKsListCtrl>(IDC_LIST);
    for (int i = 0; i < 3; ++i)
        m_choiceCombos[i] = dlgItem<QComboBox>(kChoiceIds[i]);
}

CLineWidthDlg::~CLineWidthDlg()
{
    if (m_list)
        m_list->detach(this);
}

bool CLineWidthDlg::OnInitDialog()
{
    return guardHandler(kClass, "OnInitDialog", [&] {
        if (!m_tab || !m_list || !m_choiceCombos[0] || !m_choiceCombos[1] || !m_choiceCombos[2])
            return false;
        m_setting.copyLineWidths(m_widths);
        m_choices = {m_setting.getThinLineWidth(), m_setting.getBoldLineWidth(),
                     m_setting.getExtraBoldLineWidth()};
        loadDrawingWidths();
        equalizeWidths({IDC_ADD, IDC_INSERT, IDC_DELETE, IDC_MOVE_UP, IDC_MOVE_DOWN, IDC_RESET,
                        IDC_REGISTER_SYSTEM});
        setupTableTabs(*m_tab, m_db != nullptr);
        setupList();
        connect(m_tab, &QTabBar::currentChanged, this, [this] { OnTcnSelchangeTab(); });
        onClicked(IDC_ADD, [this] { OnBnClickedAdd(); });
        onClicked(IDC_INSERT, [this] { OnBnClickedInsert(); });
        onClicked(IDC_DELETE, [this] { OnBnClickedDelete(); });
        onClicked(IDC_MOVE_UP, [this] { OnBnClickedMoveUp(); });
        onClicked(IDC_MOVE_DOWN, [this] { OnBnClickedMoveDown(); });
        onClicked(IDC_RESET, [this] { OnBnClickedReset(); });
        onClicked(IDC_REGISTER_SYSTEM, [this] { OnBnClickedRegister(); });
        onClicked(IDC_HELP, [this] { OnBnClickedHelp(); });
        m_choiceModel = new QStandardItemModel(this);
        for (int i = 0; i < 3; ++i) {
            m_choiceCombos[i]->setModel(m_choiceModel);
            m_choiceCombos[i]->setIconSize(control::samples::kLineSampleSize);
            connect(m_choiceCombos[i], &QComboBox::activated, this,
                    [this, i](int index) { OnCbnSelchangeChoice(i, index); });
        }
        fillList();
        return true;
    });
}

void CLineWidthDlg::loadDrawingWidths()
{
    m_drawingWidths.clear();
    if (!m_db)
        return;
    for (KsLineWidth* element : m_db->elementsOf<KsLineWidth>(L"LWIDTH"))
        m_drawingWidths.push_back({element, *element, false});
}

void CLineWidthDlg::setupList()
{
    using control::EColumnType;
    m_list->horizontalHeader()->setMinimumSectionSize(15);
    m_list->addColumn(QStringLiteral(" "), 15, EColumnType::Text, Qt::AlignCenter, false);
    m_list->addColumn(loadString(IDS_LINEWIDTH_COLUMN_WIDTH), 100, EColumnType::Text,
                      Qt::AlignRight);
    m_list->addColumn(loadString(IDS_LINEWIDTH_COLUMN_COLOR), 60, EColumnType::Color);
    m_list->attach(this);
    connect(m_list, &control::CKsListCtrl::selectedRowChanged, this, [this] { refreshButtons(); });
}

bool CLineWidthDlg::onDrawingTab() const
{
    return m_tab->currentIndex() == TabDrawing;
}

int CLineWidthDlg::selectedSystemRow() const
{
    const int row = m_list->getSelectedRow();
    return onDrawingTab() || row >= static_cast<int>(m_widths.size()) ? -1 : row;
}

void CLineWidthDlg::fillList()
{
    std::vector<control::SListRow> rows;
    if (onDrawingTab()) {
        rows.reserve(m_drawingWidths.size());
        for (const SDrawingWidth& w : m_drawingWidths)
            rows.push_back(rowOf(QString(), w.value.getName(), w.value.getColor(), true));
    } else {
        rows.reserve(m_widths.size());
        for (const SLineWidth& w : m_widths)
            rows.push_back(
                rowOf(rules::markText(w), w.getWidthName(), w.getColor(), !w.isSystemDefault()));
    }
    m_list->setRows(std::move(rows));
    if (QWidget* note = GetDlgItem(IDC_LINEWIDTH_NOTE))
        note->setVisible(!onDrawingTab());
    refreshChoiceCombos();
    refreshButtons();
    m_list->viewport()->update();
}

void CLineWidthDlg::refreshButtons()
{
    const auto s = rules::buttonStates(onDrawingTab(), m_widths, m_list->getSelectedRow());
    auto apply = [this](int id, bool visible, bool enabled) {
        if (QWidget* button = GetDlgItem(id)) {
            button->setVisible(visible);
            button->setEnabled(enabled);
        }
    };
    apply(IDC_ADD, true, s.addEnabled);
    apply(IDC_INSERT, true, s.insertEnabled);
    apply(IDC_DELETE, true, s.deleteEnabled);
    apply(IDC_MOVE_UP, true, s.upEnabled);
    apply(IDC_MOVE_DOWN, true, s.downEnabled);
    apply(IDC_RESET, true, s.resetEnabled);
    apply(IDC_REGISTER_SYSTEM, s.registerVisible, s.registerEnabled);
}

// The combos share one list of the current tab's widths; each shows its choice when the list
// has its name.
void CLineWidthDlg::refreshChoiceCombos()
{
    const QColor background =
        QColor::fromRgb(core::Application::getInstance()->getBackgroundColor());
    QStringList names;
    QList<QStandardItem*> items;
    auto add = [&](const std::wstring& name, double width, std::uint32_t rgb) {
        names << QString::fromStdWString(name);
        items << new QStandardItem(
            control::samples::lineWidthSample(width, QColor::fromRgb(rgb), background),
            names.last());
    };
    if (onDrawingTab()) {
        for (const SDrawingWidth& w : m_drawingWidths)
            add(w.value.getName(), w.value.getWidth(), w.value.getColor());
    } else {
        for (const SLineWidth& w : m_widths)
            add(w.getWidthName(), w.getWidth(), w.getColor());
    }
    std::array<QSignalBlocker, 3> blockers{QSignalBlocker(m_choiceCombos[0]),
                                           QSignalBlocker(m_choiceCombos[1]),
                                           QSignalBlocker(m_choiceCombos[2])};
    m_choiceModel->clear();
    m_choiceModel->appendColumn(items);
    for (int i = 0; i < 3; ++i)
        m_choiceCombos[i]->setCurrentIndex(rules::indexOfWidthName(names, m_choices[i].getWidth()));
}

void CLineWidthDlg::OnTcnSelchangeTab()
{
    guardHandler(kClass, "OnTcnSelchangeTab", [&] { fillList(); });
}

void CLineWidthDlg::addNewEntry(int at)
{
    const SLineWidth entry =
        rules::newEntry(core::Application::getInstance()->getBackgroundColor());
    m_widths.insert(m_widths.begin() + at, entry);
    m_list->insertRow(at,
                      rowOf(rules::markText(entry), entry.getWidthName(), entry.getColor(), true));
    m_list->selectRow(at);
    refreshChoiceCombos();
    refreshButtons();
}

void CLineWidthDlg::OnBnClickedAdd()
{
    guardHandler(kClass, "OnBnClickedAdd", [&] {
        if (!onDrawingTab())
            addNewEntry(static_cast<int>(m_widths.size()));
    });
}

void CLineWidthDlg::OnBnClickedInsert()
{
    guardHandler(kClass, "OnBnClickedInsert", [&] {
        const int row = selectedSystemRow();
        if (rules::buttonStates(false, m_widths, row).insertEnabled)
            addNewEntry(row);
    });
}

void CLineWidthDlg::OnBnClickedDelete()
{
    guardHandler(kClass, "OnBnClickedDelete", [&] {
        const int row = selectedSystemRow();
        if (!rules::buttonStates(false, m_widths, row).deleteEnabled)
            return;
        m_widths.erase(m_widths.begin() + row);
        m_list->removeRowAndSelectNext(row);
        refreshChoiceCombos();
        refreshButtons();
    });
}

void CLineWidthDlg::moveSelected(int offset)
{
    const int row = selectedSystemRow();
    const auto states = rules::buttonStates(false, m_widths, row);
    if (!(offset < 0 ? states.upEnabled : states.downEnabled))
        return;
    std::swap(m_widths[static_cast<std::size_t>(row)],
              m_widths[static_cast<std::size_t>(row + offset)]);
    m_list->swapRows(row, row + offset);
    m_list->selectRow(row + offset);
    refreshChoiceCombos();
    refreshButtons();
}

void CLineWidthDlg::OnBnClickedMoveUp()
{
    guardHandler(kClass, "OnBnClickedMoveUp", [&] { moveSelected(-1); });
}

void CLineWidthDlg::OnBnClickedMoveDown()
{
    guardHandler(kClass, "OnBnClickedMoveDown", [&] { moveSelected(+1); });
}

void CLineWidthDlg::OnBnClickedReset()
{
    guardHandler(kClass, "OnBnClickedReset", [&] {
        if (onDrawingTab())
            return;
        m_setting = m_resetSetting;
        m_setting.copyLineWidths(m_widths);
        m_choices = {m_setting.getThinLineWidth(), m_setting.getBoldLineWidth(),
                     m_setting.getExtraBoldLineWidth()};
        m_list->clearSelection();
        fillList();
    });
}

void CLineWidthDlg::OnBnClickedRegister()
{
    guardHandler(kClass, "OnBnClickedRegister", [&] {
        const int row = m_list->getSelectedRow();
        if (!onDrawingTab() || row < 0 || row >= static_cast<int>(m_drawingWidths.size()))
            return;
        const KsLineWidth& picked = m_drawingWidths[static_cast<std::size_t>(row)].value;
        if (rules::containsWidth(m_widths, picked.getWidth())) {
            framework::MessageBox(this, loadString(IDS_SAME_LINEWIDTH_EXISTS),
                                  loadString(IDS_CAPTION_INPUT_ERROR),
                                  framework::MB_OK | framework::MB_ICONWARNING);
            return;
        }
        m_widths.push_back(rules::fromDrawingWidth(picked));
    });
}

void CLineWidthDlg::OnBnClickedHelp()
{
    core::Application::getInstance()->OpenHtmlHelp(QStringLiteral("DLG_HLP_SYS_LINEWIDTH"));
}

void CLineWidthDlg::OnCbnSelchangeChoice(int choice, int index)
{
    guardHandler(kClass, "OnCbnSelchangeChoice", [&] {
        if (index < 0)
            return;
        const auto at = static_cast<std::size_t>(index);
        if (onDrawingTab() && at < m_drawingWidths.size())
            m_choices[choice] = rules::fromDrawingWidth(m_drawingWidths[at].value);
        else if (!onDrawingTab() && at < m_widths.size())
            m_choices[choice] = m_widths[at];
    });
}

void CLineWidthDlg::update(kesto::Subject* subject, int event, void* data)
{
    const auto* change = control::cellChangeOf(event, data);
    if (subject != m_list || !change)
        return;
    onCellChanged(change->row, change->column, change->text, change->color);
}

void CLineWidthDlg::onCellChanged(int row, int column, const QString& text, QRgb color)
{
    guardHandler(kClass, "OnEndEditList", [&] {
        if (onDrawingTab())
            onDrawingCellChanged(row, column, text, color);
        else
            onSystemCellChanged(row, column, text, color);
        refreshChoiceCombos();
    });
}

// A width another entry has already is dropped silently; text that is no width is refused.
void CLineWidthDlg::onSystemCellChanged(int row, int column, const QString& text, QRgb color)
{
    if (row < 0 || row >= static_cast<int>(m_widths.size()))
        return;
    SLineWidth& entry = m_widths[static_cast<std::size_t>(row)];
    if (column == rules::ColumnColor) {
        const KsColor chosen = rules::colorOfRgb(color, systemColors());
        entry.setColor(chosen.getRGB());
        entry.setColorType(chosen.getColorType());
        entry.setColorName(chosen.getName());
        return;
    }
    if (column != rules::ColumnWidth || entry.isSystemDefault())
        return;
    const std::optional<double> width = rules::readWidth(text);
    if (width && !rules::widthTakenByOther(m_widths, row, *width))
        entry.setWidth(*width);
    m_list->setCellText(row, column, QString::fromStdWString(entry.getWidthName()));
    if (!width)
        refuseWidth(row);
}

void CLineWidthDlg::onDrawingCellChanged(int row, int column, const QString& text, QRgb color)
{
    if (row < 0 || row >= static_cast<int>(m_drawingWidths.size()))
        return;
    SDrawingWidth& drawing = m_drawingWidths[static_cast<std::size_t>(row)];
    if (column == rules::ColumnColor) {
        if ((color & 0xFFFFFFu) == drawing.value.getColor())
            return;
        const KsColor chosen = rules::colorOfRgb(color, systemColors());
        drawing.value.setColor(chosen.getRGB());
        drawing.value.setColorType(chosen.getColorType());
        drawing.value.setColorName(chosen.getName());
        drawing.edited = true;
        return;
    }
    if (column != rules::ColumnWidth)
        return;
    const std::optional<double> width = rules::readWidth(text);
    if (width) {
        drawing.value.setWidth(*width);
        drawing.edited = true;
    }
    m_list->setCellText(row, column, QString::fromStdWString(drawing.value.getName()));
    if (!width)
        refuseWidth(row);
}

void CLineWidthDlg::refuseWidth(int row)
{
    framework::MessageBox(
        this,
        framework::formatString(IDS_VALUE_NOT_POSITIVE,
                                {row + 1, loadString(IDS_LINEWIDTH_COLUMN_WIDTH)}),
        loadString(IDS_CAPTION_INPUT_ERROR), framework::MB_OK | framework::MB_ICONWARNING);
}

void CLineWidthDlg::writeDrawing()
{
    for (const SDrawingWidth& w : m_drawingWidths) {
        if (w.edited)
            m_db->updateLineWidth(w.element, w.value);
    }
    for (int i = 0; i < 3; ++i)
        m_db->setLineWidthOfKind(kChoiceKinds[i],
                                 rules::toDrawingWidth(m_choices[i], kChoiceKinds[i]));
    m_db->recordChange(rules::kChangeLabel);
}

void CLineWidthDlg::OnOK()
{
    guardHandler(kClass, "OnOK", [&] {
        m_setting.setUserLineWidths(m_widths);
        m_setting.setThinLineWidth(m_choices[0]);
        m_setting.setBoldLineWidth(m_choices[1]);
        m_setting.setExtraBoldLineWidth(m_choices[2]);
        if (m_db)
            writeDrawing();
        EndDialog(framework::IDOK);
    });
}

} // namespace kesto::ui::config
