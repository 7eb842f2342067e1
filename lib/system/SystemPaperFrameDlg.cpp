#include "system/SystemPaperFrameDlg.h"

#include "control/ComboValues.h"
#include "core/Application.h"
#include "framework/Resources.h"
#include "res/SystemResource.h"
#include "system/PaperFrameDiagram.h"
#include "system/PaperRules.h"
#include "system/RowNameCombo.h"

#include <QComboBox>
#include <QHeaderView>

namespace kesto::ui::config {

using namespace res;
using framework::loadString;
using paperrules::SProblem;
using setting::CSystemPaperFrameSetting;
using setting::SFrameLineLook;
using setting::SPaperFrame;
namespace rules = paperrules::frame;

namespace {

// Colour, line type and line width combo boxes of the drawing frame, inner frame line and
// cut line.
const int kLookIds[CSystemPaperFrameSetting::FrameLineCount][3] = {
    {IDC_DRAW_FRAME_COLOR, IDC_DRAW_FRAME_LINETYPE, IDC_DRAW_FRAME_WIDTH},
    {IDC_INNER_FRAME_COLOR, IDC_INNER_FRAME_LINETYPE, IDC_INNER_FRAME_WIDTH},
    {IDC_CUT_FRAME_COLOR, IDC_CUT_FRAME_LINETYPE, IDC_CUT_FRAME_WIDTH},
};

std::optional<framework::SFieldProblem> problemOf(const SProblem& problem)
{
    QString text;
    switch (problem.kind) {
    case SProblem::None:
        return std::nullopt;
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
    return framework::SFieldProblem{text, loadString(IDS_CAPTION_INPUT_ERROR), problem.row,
                                    problem.column};
}

// One part of a line's look, read and written through the whole look.
template <class T>
auto lookPart(CSystemPaperFrameSetting::EFrameLine line, T SFrameLineLook::*part)
{
    return std::make_pair(
        [line, part](const CSystemPaperFrameSetting& s) { return s.getLineLook(line).*part; },
        [line, part](CSystemPaperFrameSetting& s, const T& value) {
            SFrameLineLook look = s.getLineLook(line);
            look.*part = value;
            s.setLineLook(line, look);
        });
}

} // namespace

CSystemPaperFrameDlg::CSystemPaperFrameDlg()
    : TSettingDialog(IDD_SYSTEM_PAPER_FRAME)
{
    setPlacementKey(QStringLiteral("SystemPaperFrameDlg"));
    keepFirstSizeAsMinimum(true);
}

CSystemPaperFrameDlg::~CSystemPaperFrameDlg() = default;

bool CSystemPaperFrameDlg::OnInitDialog()
{
    return guarded([&] {
        m_list = dlgItem<control::CKsListCtrl>(IDC_LIST);
        m_initName = dlgItem<QComboBox>(IDC_FRAME_INIT_NAME);
        m_picture = dlgItem<CPaperFrameDiagram>(IDC_FRAME_PICTURE);
        if (!m_list || !m_initName || !m_picture)
            return false;
        equalizeWidths({IDC_ADD, IDC_INSERT, IDC_DELETE, IDC_FRAME_RESET});
        const std::wstring newName = loadString(IDS_FRAME_NEW_NAME).toStdWString();
        m_table = std::make_unique<TTableEditor<SPaperFrame>>(
            *this, *m_list, STableButtonIds{IDC_ADD, IDC_INSERT, IDC_DELETE},
            TTableEditor<SPaperFrame>::SRules{[newName] { return rules::newPaperFrame(newName); },
                                              {}});
        addColumns();
        setupLookControls();
        m_table->setChangedHandler([this] {
            fillRowNameCombo(*m_initName, m_table->model(), rules::ColumnName);
            refreshPicture();
        });
        connect(m_list, &control::CKsListCtrl::selectedRowChanged, this,
                [this] { refreshPicture(); });
        bindControls();
        if (!m_binding.complete())
            return false;
        onClicked(IDC_FRAME_RESET, [this] { OnBnClickedReset(); });
        onClicked(IDC_HELP, [this] { OnBnClickedHelp(); });
        fillControls();
        return true;
    });
}

void CSystemPaperFrameDlg::addColumns()
{
    namespace columns = control::columns;
    auto& model = m_table->model();
    m_list->horizontalHeader()->setMinimumSectionSize(30);
    model.addColumn(columns::text<SPaperFrame>(loadString(IDS_COLUMN_NAME), 160, &SPaperFrame::name));
    for (int i = 0; i < rules::kDimensionColumns; ++i) {
        const auto dimension = [i](auto& frame) -> auto& {
            return frame.dimensions[static_cast<std::size_t>(i)];
        };
        model.addColumn(columns::integer<SPaperFrame>(rules::dimensionLetter(i), 30, dimension));
    }
    const QString yes = loadString(IDS_FRAME_YES);
    const QString no = loadString(IDS_FRAME_NO);
    model.addColumn(columns::choice<SPaperFrame>(loadString(IDS_FRAME_COLUMN_DRAW), 70,
                                                 &SPaperFrame::drawFrame, yes, no));
    model.addColumn(columns::choice<SPaperFrame>(loadString(IDS_FRAME_COLUMN_INNER), 70,
                                                 &SPaperFrame::innerFrame, yes, no));
    model.addColumn(columns::choice<SPaperFrame>(loadString(IDS_FRAME_COLUMN_CUT), 70,
                                                 &SPaperFrame::cutLine, yes, no));
    m_table->show();
}

void CSystemPaperFrameDlg::setupLookControls()
{
    for (const auto& ids : kLookIds) {
        if (auto* color = dlgItem<control::CSystemColorComboBox>(ids[0])) {
            color->setTextByLayer(loadString(IDS_BY_LAYER));
            color->setTextOtherColor(loadString(IDS_OTHER_COLOR));
        }
        if (auto* lineType = dlgItem<control::CSystemLineTypeComboBox>(ids[1]))
            lineType->setTextOtherLineType(loadString(IDS_OTHER_LINETYPE));
        if (auto* lineWidth = dlgItem<control::SelectLineWidthComboBox>(ids[2]))
            lineWidth->init();
    }
    m_picture->setLineNames(loadString(IDS_FRAME_COLUMN_DRAW), loadString(IDS_FRAME_COLUMN_INNER),
                            loadString(IDS_FRAME_COLUMN_CUT));
}

void CSystemPaperFrameDlg::bindControls()
{
    m_binding
        .field(
            m_list,
            [this](auto&, const CSystemPaperFrameSetting& s) { m_table->setRows(s.getPaperFrames()); },
            [this](auto&, CSystemPaperFrameSetting& s) { s.setPaperFrames(m_table->model().rows()); })
        .check([](const CSystemPaperFrameSetting& s) {
            return problemOf(rules::check(s.getPaperFrames()));
        });
    for (int line = 0; line < CSystemPaperFrameSetting::FrameLineCount; ++line)
        bindLineLook(static_cast<CSystemPaperFrameSetting::EFrameLine>(line), kLookIds[line]);
    m_binding.field(
        m_initName,
        [](QComboBox& combo, const CSystemPaperFrameSetting& s) {
            selectRowName(combo, QString::fromStdWString(s.getInitFrameName()));
        },
        [](const QComboBox& combo, CSystemPaperFrameSetting& s) {
            if (combo.currentIndex() >= 0)
                s.setInitFrameName(combo.currentText().toStdWString());
        });
}

// Each line keeps what it had where its combo box has no choice.
void CSystemPaperFrameDlg::bindLineLook(CSystemPaperFrameSetting::EFrameLine line,
                                        const int ids[3])
{
    const auto color = lookPart(line, &SFrameLineLook::color);
    const auto lineType = lookPart(line, &SFrameLineLook::lineType);
    const auto lineWidth = lookPart(line, &SFrameLineLook::lineWidth);
    m_binding.value(dlgItem<control::CSystemColorComboBox>(ids[0]), color.first, color.second)
        .value(dlgItem<control::CSystemLineTypeComboBox>(ids[1]), lineType.first, lineType.second)
        .value(dlgItem<control::SelectLineWidthComboBox>(ids[2]), lineWidth.first,
               lineWidth.second);
}

// The picture shows the values of the selected frame.
void CSystemPaperFrameDlg::refreshPicture()
{
    const int row = m_list->getSelectedRow();
    const auto& model = m_table->model();
    m_picture->setFrame(model.isValidRow(row) ? std::optional(model.row(row)) : std::nullopt);
}

void CSystemPaperFrameDlg::OnBnClickedReset()
{
    guarded([&] { resetToDefaults(); });
}

void CSystemPaperFrameDlg::OnBnClickedHelp()
{
    core::Application::getInstance()->OpenHtmlHelp(QStringLiteral("DLG_HLP_SYS_FRAME"));
}

} // namespace kesto::ui::config
