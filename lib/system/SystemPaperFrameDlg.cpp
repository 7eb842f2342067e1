#include "system/SystemPaperFrameDlg.h"

#include "control/KsListCtrl.h"
#include "control/SelectLineWidthComboBox.h"
#include "control/SystemColorComboBox.h"
#include "control/SystemLineTypeComboBox.h"
#include "core/Application.h"
#include "framework/HandlerGuard.h"
#include "framework/MessageBox.h"
#include "res/SystemResource.h"
#include "system/PaperFrameDiagram.h"
#include "system/PaperRules.h"
#include "system/RowNameCombo.h"

#include <QComboBox>
#include <QHeaderView>

namespace kesto::ui::config {

using namespace res;
using framework::guardHandler;
using framework::loadString;
using papertable::SProblem;
using setting::CSystemPaperFrameSetting;
namespace rules = papertable::frame;

namespace {

const char* const kClass = "CSystemPaperFrameDlg";

// Colour, line type and line width combo boxes of the drawing frame, inner frame line and
// cut line.
const int kLookIds[CSystemPaperFrameSetting::FrameLineCount][3] = {
    {IDC_DRAW_FRAME_COLOR, IDC_DRAW_FRAME_LINETYPE, IDC_DRAW_FRAME_WIDTH},
    {IDC_INNER_FRAME_COLOR, IDC_INNER_FRAME_LINETYPE, IDC_INNER_FRAME_WIDTH},
    {IDC_CUT_FRAME_COLOR, IDC_CUT_FRAME_LINETYPE, IDC_CUT_FRAME_WIDTH},
};

} // namespace

CSystemPaperFrameDlg::CSystemPaperFrameDlg()
    : TSettingDialog(IDD_SYSTEM_PAPER_FRAME)
{
    setPlacementKey(QStringLiteral("SystemPaperFrameDlg"));
    keepFirstSizeAsMinimum(true);
    findControls();
}

CSystemPaperFrameDlg::~CSystemPaperFrameDlg()
{
    if (m_list)
        m_list->detach(this);
}

bool CSystemPaperFrameDlg::findControls()
{
    m_list = dlgItem<control::CKsListCtrl>(IDC_LIST);
    m_initName = dlgItem<QComboBox>(IDC_FRAME_INIT_NAME);
    m_picture = dlgItem<CPaperFrameDiagram>(IDC_FRAME_PICTURE);
    bool all = m_list && m_initName && m_picture;
    for (int line = 0; line < CSystemPaperFrameSetting::FrameLineCount; ++line) {
        SLookControls& look = m_looks[static_cast<std::size_t>(line)];
        look.color = dlgItem<control::CSystemColorComboBox>(kLookIds[line][0]);
        look.lineType = dlgItem<control::CSystemLineTypeComboBox>(kLookIds[line][1]);
        look.lineWidth = dlgItem<control::SelectLineWidthComboBox>(kLookIds[line][2]);
        all = all && look.color && look.lineType && look.lineWidth;
    }
    return all;
}

bool CSystemPaperFrameDlg::OnInitDialog()
{
    return guardHandler(kClass, "OnInitDialog", [&] {
        if (!findControls())
            return false;
        m_yes = loadString(IDS_FRAME_YES);
        m_no = loadString(IDS_FRAME_NO);
        equalizeWidths({IDC_ADD, IDC_INSERT, IDC_DELETE, IDC_FRAME_RESET});
        setupList();
        setupLookControls();
        m_picture->setLineNames(loadString(IDS_FRAME_COLUMN_DRAW),
                                loadString(IDS_FRAME_COLUMN_INNER),
                                loadString(IDS_FRAME_COLUMN_CUT));
        onClicked(IDC_ADD, [this] { OnBnClickedAdd(); });
        onClicked(IDC_INSERT, [this] { OnBnClickedInsert(); });
        onClicked(IDC_DELETE, [this] { OnBnClickedDelete(); });
        onClicked(IDC_FRAME_RESET, [this] { OnBnClickedReset(); });
        onClicked(IDC_HELP, [this] { OnBnClickedHelp(); });
        fillList();
        return true;
    });
}

void CSystemPaperFrameDlg::setupList()
{
    using control::EColumnType;
    m_list->horizontalHeader()->setMinimumSectionSize(30);
    m_list->addColumn(loadString(IDS_COLUMN_NAME), 160);
    for (int i = 0; i < rules::kDimensionColumns; ++i)
        m_list->addColumn(rules::dimensionLetter(i), 30, EColumnType::Text, Qt::AlignRight);
    for (int id : {IDS_FRAME_COLUMN_DRAW, IDS_FRAME_COLUMN_INNER, IDS_FRAME_COLUMN_CUT}) {
        const int column =
            m_list->addColumn(loadString(id), 70, EColumnType::Combo, Qt::AlignCenter);
        m_list->setColumnItems(column, {m_yes, m_no});
    }
    m_list->attach(this);
    connect(m_list, &control::CKsListCtrl::selectedRowChanged, this, [this] {
        refreshButtons();
        refreshPicture();
    });
}

void CSystemPaperFrameDlg::setupLookControls()
{
    for (SLookControls& look : m_looks) {
        look.color->setTextByLayer(loadString(IDS_BY_LAYER));
        look.color->setTextOtherColor(loadString(IDS_OTHER_COLOR));
        look.lineType->setTextOtherLineType(loadString(IDS_OTHER_LINETYPE));
        look.lineWidth->init();
    }
}

control::SListRow CSystemPaperFrameDlg::newRow(const setting::SPaperFrame& frame)
{
    m_dimensions[m_nextRowKey] = frame.dimensions;
    return control::SListRow(rules::rowTexts(frame, m_yes, m_no), m_nextRowKey++);
}

void CSystemPaperFrameDlg::fillList()
{
    std::vector<control::SListRow> rows;
    for (const setting::SPaperFrame& frame : m_setting.getPaperFrames())
        rows.push_back(newRow(frame));
    m_list->setRows(std::move(rows));
    fillRowNameCombo(*m_initName, *m_list, rules::ColumnName);
    selectRowName(*m_initName, QString::fromStdWString(m_setting.getInitFrameName()));
    fillLookControls();
    refreshButtons();
    refreshPicture();
}

void CSystemPaperFrameDlg::fillLookControls()
{
    for (int line = 0; line < CSystemPaperFrameSetting::FrameLineCount; ++line) {
        const auto& look =
            m_setting.getLineLook(static_cast<CSystemPaperFrameSetting::EFrameLine>(line));
        SLookControls& controls = m_looks[static_cast<std::size_t>(line)];
        controls.color->selectColor(look.color);
        controls.lineType->selectLineType(look.lineType);
        controls.lineWidth->selectLineWidth(look.lineWidth);
    }
}

// Each line keeps what it had where its combo box has no choice.
void CSystemPaperFrameDlg::storeLookControls()
{
    for (int line = 0; line < CSystemPaperFrameSetting::FrameLineCount; ++line) {
        const auto which = static_cast<CSystemPaperFrameSetting::EFrameLine>(line);
        setting::SFrameLineLook look = m_setting.getLineLook(which);
        const SLookControls& controls = m_looks[static_cast<std::size_t>(line)];
        const KsColor color = controls.color->getCurColor();
        if (!(color == control::CSystemColorComboBox::getInvalidColor()))
            look.color = color;
        if (const KsLineType* lineType = controls.lineType->getCurLType())
            look.lineType = *lineType;
        if (controls.lineWidth->currentIndex() >= 0)
            look.lineWidth = controls.lineWidth->getCurLineWidth();
        m_setting.setLineLook(which, look);
    }
}

void CSystemPaperFrameDlg::refreshButtons()
{
    const bool selected = m_list->getSelectedRow() >= 0;
    for (int id : {IDC_INSERT, IDC_DELETE}) {
        if (QWidget* button = GetDlgItem(id))
            button->setEnabled(selected);
    }
}

// The picture shows the values of the selected frame.
void CSystemPaperFrameDlg::refreshPicture()
{
    const int row = m_list->getSelectedRow();
    if (row < 0) {
        m_picture->setFrame(std::nullopt);
        return;
    }
    m_picture->setFrame(rules::frameOfRow(m_list->getRowTexts(row), m_yes));
}

void CSystemPaperFrameDlg::addNewFrame(int at)
{
    insertNamedRow(*m_list, *m_initName, rules::ColumnName, at,
                   newRow(rules::newPaperFrame(loadString(IDS_FRAME_NEW_NAME).toStdWString())));
    refreshPicture();
}

void CSystemPaperFrameDlg::OnBnClickedAdd()
{
    guardHandler(kClass, "OnBnClickedAdd", [&] { addNewFrame(m_list->getRowCount()); });
}

void CSystemPaperFrameDlg::OnBnClickedInsert()
{
    guardHandler(kClass, "OnBnClickedInsert", [&] {
        const int row = m_list->getSelectedRow();
        if (row >= 0)
            addNewFrame(row);
    });
}

void CSystemPaperFrameDlg::OnBnClickedDelete()
{
    guardHandler(kClass, "OnBnClickedDelete", [&] {
        if (!removeSelectedNamedRow(*m_list, *m_initName, rules::ColumnName))
            return;
        refreshButtons();
        refreshPicture();
    });
}

void CSystemPaperFrameDlg::OnBnClickedReset()
{
    guardHandler(kClass, "OnBnClickedReset", [&] {
        m_setting = m_resetSetting;
        m_list->clearSelection();
        fillList();
    });
}

void CSystemPaperFrameDlg::OnBnClickedHelp()
{
    core::Application::getInstance()->OpenHtmlHelp(QStringLiteral("DLG_HLP_SYS_FRAME"));
}

void CSystemPaperFrameDlg::update(kesto::Subject* subject, int event, void* data)
{
    const auto* change = control::cellChangeOf(event, data);
    if (subject != m_list || !change)
        return;
    onCellChanged(change->row, change->column, change->text);
}

// A dimension must be a whole number above 0; anything else is refused and the cell shows
// its value again.
void CSystemPaperFrameDlg::onCellChanged(int row, int column, const QString& text)
{
    guardHandler(kClass, "OnEndEditList", [&] {
        const int dimension = column - rules::ColumnFirstDimension;
        if (column == rules::ColumnName)
            fillRowNameCombo(*m_initName, *m_list, rules::ColumnName);
        else if (dimension >= 0 && dimension < rules::kDimensionColumns)
            onDimensionChanged(row, dimension, text);
        refreshPicture();
    });
}

void CSystemPaperFrameDlg::onDimensionChanged(int row, int dimension, const QString& text)
{
    int& kept = m_dimensions[m_list->getRow(row).data][static_cast<std::size_t>(dimension)];
    const std::optional<int> value = papertable::readDimension(text);
    if (value)
        kept = *value;
    m_list->setCellText(row, rules::ColumnFirstDimension + dimension, QString::number(kept));
    if (value)
        return;
    framework::MessageBox(this,
                          framework::formatString(IDS_VALUE_NOT_POSITIVE,
                                                  {row + 1, rules::dimensionLetter(dimension)}),
                          loadString(IDS_CAPTION_INPUT_ERROR),
                          framework::MB_OK | framework::MB_ICONWARNING);
}

bool CSystemPaperFrameDlg::reportProblem()
{
    const SProblem problem = rules::check(m_list->getAllRowTexts());
    if (!problem)
        return false;
    QString text;
    switch (problem.kind) {
    case SProblem::NoRows:
        text = loadString(IDS_FRAME_NO_DATA);
        break;
    case SProblem::NoName:
        text = framework::formatString(IDS_FRAME_NO_NAME, {problem.row + 1});
        break;
    default:
        text = framework::formatString(IDS_FRAME_DUPLICATE_NAME, {problem.row + 1, problem.name});
        break;
    }
    if (problem.row >= 0) {
        m_list->selectRow(problem.row);
        m_list->setCurrentIndex(m_list->model()->index(problem.row, problem.column));
    }
    m_list->setFocus();
    framework::MessageBox(this, text, loadString(IDS_CAPTION_INPUT_ERROR),
                          framework::MB_OK | framework::MB_ICONWARNING);
    return true;
}

void CSystemPaperFrameDlg::OnOK()
{
    guardHandler(kClass, "OnOK", [&] {
        if (reportProblem())
            return;
        std::vector<setting::SPaperFrame> frames;
        for (const QStringList& texts : m_list->getAllRowTexts())
            frames.push_back(rules::frameOfRow(texts, m_yes));
        m_setting.setPaperFrames(frames);
        storeLookControls();
        if (m_initName->currentIndex() >= 0)
            m_setting.setInitFrameName(m_initName->currentText().toStdWString());
        EndDialog(framework::IDOK);
    });
}

} // namespace kesto::ui::config
