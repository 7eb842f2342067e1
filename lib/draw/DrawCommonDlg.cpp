#include "draw/DrawCommonDlg.h"

#include "control/ArrowComboBox.h"
#include "control/SelectLineWidthComboBox.h"
#include "control/SystemColorComboBox.h"
#include "control/SystemLineTypeComboBox.h"
#include "core/Application.h"
#include "framework/HandlerGuard.h"
#include "framework/Resources.h"
#include "res/DrawResource.h"
#include "setting/LineEndSetting.h"
#include "utility/ComboUtility.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace kesto::ui::config {

using namespace res;
using framework::guardHandler;
using framework::loadString;

namespace {

const char* const kClass = "CDrawCommonDlg";

core::CSystemConfig* systemConfig()
{
    return core::Application::getInstance()->getSystemConfig();
}

template <class T>
T* configSetting()
{
    core::CSystemConfig* config = systemConfig();
    return config ? config->getSetting<T>() : nullptr;
}

// The whole name if the list has it, else the first entry that begins with it.
void selectLineEnd(control::CArrowComboBox& combo, const std::wstring& name)
{
    const QString text = QString::fromStdWString(name);
    if (utility::ComboSelectStringExact(combo, text) < 0)
        combo.SelectString(text);
}

std::optional<std::wstring> selectedText(const QComboBox& combo)
{
    if (combo.currentIndex() < 0)
        return std::nullopt;
    return combo.currentText().toStdWString();
}

} // namespace

CDrawCommonDlg::CDrawCommonDlg()
    : TSettingDialog(IDD_DRAW_COMMON)
{
    setPlacementKey(QStringLiteral("DrawCommonDlg"));
    keepFirstSizeAsMinimum(true);
}

bool CDrawCommonDlg::findControls()
{
    m_lists = {dlgItem<QComboBox>(IDC_DRAW_COORDSYS), dlgItem<QComboBox>(IDC_DRAW_SCALE),
               dlgItem<QComboBox>(IDC_DRAW_LAYER)};
    m_color = dlgItem<control::CSystemColorComboBox>(IDC_DRAW_COLOR);
    m_lineType = dlgItem<control::CSystemLineTypeComboBox>(IDC_DRAW_LINETYPE);
    m_lineWidth = dlgItem<control::SelectLineWidthComboBox>(IDC_DRAW_LINEWIDTH);
    m_startLineEnd = dlgItem<control::CArrowComboBox>(IDC_DRAW_START_LINEEND);
    m_endLineEnd = dlgItem<control::CArrowComboBox>(IDC_DRAW_END_LINEEND);
    m_virtual = dlgItem<QCheckBox>(IDC_DRAW_VIRTUAL);
    m_reference = dlgItem<QPushButton>(IDC_DRAW_REFERENCE);
    return std::all_of(m_lists.begin(), m_lists.end(), [](QComboBox* c) { return c; }) && m_color
           && m_lineType && m_lineWidth && m_startLineEnd && m_endLineEnd && m_virtual
           && m_reference;
}

bool CDrawCommonDlg::OnInitDialog()
{
    return guardHandler(kClass, "OnInitDialog", [&] {
        if (!findControls())
            return false;
        if (const auto* colors = configSetting<setting::CColorSetting>())
            m_colorSetting = *colors;
        fillNameLists();
        fillLookControls();
        fillLineEnds();
        m_virtual->setChecked(m_setting.isVirtualElement());
        m_reference->setEnabled(drawcommon::canReferToDrawing(m_data));
        onClicked(IDC_DRAW_REFERENCE, [this] { OnBnClickedReference(); });
        onClicked(IDC_HELP, [this] { OnBnClickedHelp(); });
        registerToolTips();
        return true;
    });
}

// The open drawing's lists; a list with nothing to choose from stays disabled.
void CDrawCommonDlg::fillNameLists()
{
    const core::CSystemConfig* config = systemConfig();
    const auto entries = drawcommon::drawingLists(config ? config->getCurrentDataBase() : nullptr);
    const auto names = m_data ? drawcommon::recordNames(*m_data)
                              : std::array<std::wstring, drawcommon::ListCount>{};
    for (int list = 0; list < drawcommon::ListCount; ++list) {
        QComboBox& combo = *m_lists[list];
        combo.clear();
        combo.addItems(entries[list]);
        combo.setCurrentIndex(-1);
        if (m_data && !names[list].empty())
            utility::ComboSelectStringExact(combo, QString::fromStdWString(names[list]));
        combo.setVisible(true);
        combo.setEnabled(combo.count() > 0);
    }
}

void CDrawCommonDlg::fillLookControls()
{
    const QString byLayer = loadString(IDS_BY_LAYER);
    m_color->setColorSetting(&m_colorSetting);
    m_color->setTextByLayer(byLayer);
    m_color->setTextOtherColor(loadString(IDS_OTHER_COLOR));
    m_lineType->setTextByLayer(byLayer);
    m_lineType->setTextOtherLineType(loadString(IDS_OTHER_LINETYPE));
    m_lineWidth->setLWidthByLayer(byLayer);
    m_lineWidth->init();
    m_color->selectColor(drawcommon::colorToSelect(m_setting));
    const core::CSystemConfig* config = systemConfig();
    m_lineType->selectLineType(
        drawcommon::lineTypeToSelect(m_setting, config ? config->getCurrentDataBase() : nullptr));
    m_lineWidth->selectLineWidth(drawcommon::lineWidthToSelect(m_setting));
}

void CDrawCommonDlg::fillLineEnds()
{
    std::vector<setting::SLineEnd> ends;
    if (const auto* lineEnds = configSetting<setting::CLineEndSetting>())
        lineEnds->copyLineEnds(ends, setting::SLineEnd::CategoryElement);
    for (control::CArrowComboBox* combo : {m_startLineEnd, m_endLineEnd}) {
        combo->clear();
        for (const setting::SLineEnd& end : ends)
            combo->addArrow(end.getType(), end.getName());
        combo->setCurrentIndex(-1); // a name the list lacks shows nothing and is kept
    }
    selectLineEnd(*m_startLineEnd, m_setting.getStartLineEndName());
    selectLineEnd(*m_endLineEnd, m_setting.getEndLineEndName());
}

void CDrawCommonDlg::registerToolTips()
{
    m_toolTips.init(QStringLiteral("Dia_setting"), QStringLiteral("Iddia_set_common"));
    const std::pair<int, const char*> tips[] = {
        {IDC_DRAW_COORDSYS, "coordsys"},    {IDC_DRAW_SCALE, "scale"},
        {IDC_DRAW_LAYER, "layer"},          {IDC_DRAW_COLOR, "color"},
        {IDC_DRAW_LINETYPE, "linetype"},    {IDC_DRAW_LINEWIDTH, "linewidth"},
        {IDC_DRAW_REFERENCE, "reference"},  {IDC_DRAW_START_LINEEND, "start_edge"},
        {IDC_DRAW_END_LINEEND, "end_edge"}, {IDC_DRAW_VIRTUAL, "virtual_element"},
    };
    const auto labels = findChildren<QLabel*>();
    for (const auto& [id, key] : tips) {
        QWidget* control = GetDlgItem(id);
        m_toolTips.addTool(control, QString::fromLatin1(key));
        for (QLabel* label : labels) {
            if (control && label->buddy() == control)
                m_toolTips.addTool(label, QString::fromLatin1(key));
        }
    }
}

void CDrawCommonDlg::storeControls()
{
    std::array<drawcommon::SListChoice, drawcommon::ListCount> choices;
    for (int list = 0; list < drawcommon::ListCount; ++list)
        choices[list] = {m_lists[list]->currentIndex(),
                         m_lists[list]->currentText().toStdWString()};
    drawcommon::storeNames(m_data, choices);
    const int color = m_color->currentIndex();
    drawcommon::storeColor(m_setting, color, m_color->getColor(color),
                           control::CColorComboBox::getInvalidColor());
    drawcommon::storeLineType(m_setting, m_lineType->currentIndex(), m_lineType->getCurLType());
    const int width = m_lineWidth->currentIndex();
    drawcommon::storeLineWidth(m_setting, width, m_lineWidth->getWidth(width));
    drawcommon::storeLineEnds(m_setting, selectedText(*m_startLineEnd),
                              selectedText(*m_endLineEnd));
    m_setting.setVirtualElement(m_virtual->isChecked());
}

void CDrawCommonDlg::OnOK()
{
    guardHandler(kClass, "OnOK", [&] {
        storeControls();
        if (auto* colors = configSetting<setting::CColorSetting>())
            *colors = m_colorSetting;
        EndDialog(framework::IDOK);
    });
}

// The working copy is left as it came, so the caller gets its own values back.
void CDrawCommonDlg::OnCancel()
{
    guardHandler(kClass, "OnCancel", [&] {
        if (m_data)
            m_data->requestCode = refDlg::SRefDlgData::RequestNone;
        EndDialog(framework::IDCANCEL);
    });
}

void CDrawCommonDlg::OnBnClickedReference()
{
    guardHandler(kClass, "OnBnClickedReference", [&] {
        if (!drawcommon::canReferToDrawing(m_data))
            return;
        m_data->requestCode = refDlg::SRefDlgData::RequestReference;
        storeControls();
        EndDialog(framework::IDCANCEL);
    });
}

void CDrawCommonDlg::OnBnClickedHelp()
{
    guardHandler(kClass, "OnBnClickedHelp", [&] {
        core::Application::getInstance()->OpenHtmlHelp(QStringLiteral("DLG_HLP_SET_COMMON"));
    });
}

} // namespace kesto::ui::config
