#include "draw/DrawCommonDlg.h"

#include "control/ArrowComboBox.h"
#include "control/ComboValues.h"
#include "control/SelectLineWidthComboBox.h"
#include "control/SystemColorComboBox.h"
#include "control/SystemLineTypeComboBox.h"
#include "core/Application.h"
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
using framework::loadString;
namespace rules = drawcommonrules;

namespace {

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
    return guarded([&] {
        if (!findControls())
            return false;
        if (const auto* colors = configSetting<setting::CColorSetting>())
            m_colorSetting = *colors;
        setupNameLists();
        setupLookControls();
        setupLineEnds();
        bindControls();
        fillControls();
        if (m_data)
            m_dataBinding.fill(*m_data);
        else
            for (QComboBox* list : m_lists)
                list->setCurrentIndex(-1);
        m_reference->setEnabled(rules::canReferToDrawing(m_data));
        onClicked(IDC_DRAW_REFERENCE, [this] { OnBnClickedReference(); });
        onClicked(IDC_HELP, [this] { OnBnClickedHelp(); });
        registerToolTips();
        return true;
    });
}

// The open drawing's lists; a list with nothing to choose from stays disabled.
void CDrawCommonDlg::setupNameLists()
{
    const core::CSystemConfig* config = systemConfig();
    const auto entries = rules::drawingLists(config ? config->getCurrentDataBase() : nullptr);
    for (int list = 0; list < rules::ListCount; ++list) {
        QComboBox& combo = *m_lists[list];
        combo.clear();
        combo.addItems(entries[list]);
        combo.setEnabled(combo.count() > 0);
    }
}

void CDrawCommonDlg::setupLookControls()
{
    const QString byLayer = loadString(IDS_BY_LAYER);
    m_color->setColorSetting(&m_colorSetting);
    m_color->setTextByLayer(byLayer);
    m_color->setTextOtherColor(loadString(IDS_OTHER_COLOR));
    m_lineType->setTextByLayer(byLayer);
    m_lineType->setTextOtherLineType(loadString(IDS_OTHER_LINETYPE));
    m_lineWidth->setLWidthByLayer(byLayer);
    m_lineWidth->init();
}

// A name the list lacks shows nothing and is kept.
void CDrawCommonDlg::setupLineEnds()
{
    std::vector<setting::SLineEnd> ends;
    if (const auto* lineEnds = configSetting<setting::CLineEndSetting>())
        lineEnds->copyLineEnds(ends, setting::SLineEnd::CategoryElement);
    for (control::CArrowComboBox* combo : {m_startLineEnd, m_endLineEnd}) {
        combo->clear();
        for (const setting::SLineEnd& end : ends)
            combo->addArrow(end.getType(), end.getName());
        combo->setCurrentIndex(-1);
    }
}

// The three lists show the record's names and write back those chosen; the rest is the
// setting's.
void CDrawCommonDlg::bindControls()
{
    using setting::CDrawCommonSetting;
    for (int list = 0; list < rules::ListCount; ++list) {
        m_dataBinding.field(
            m_lists[list],
            [list](QComboBox& combo, const SDrawCommonDlgData& data) {
                const std::wstring name = rules::recordNames(data)[list];
                combo.setCurrentIndex(-1);
                if (!name.empty())
                    utility::ComboSelectStringExact(combo, QString::fromStdWString(name));
            },
            [list](const QComboBox& combo, SDrawCommonDlgData& data) {
                rules::storeName(data, list,
                                 {combo.currentIndex(), combo.currentText().toStdWString()});
            });
    }
    bindLooks();
    m_binding
        .value(m_startLineEnd, &CDrawCommonSetting::getStartLineEndName,
               &CDrawCommonSetting::setStartLineEndName)
        .value(m_endLineEnd, &CDrawCommonSetting::getEndLineEndName,
               &CDrawCommonSetting::setEndLineEndName)
        .value(m_virtual, &CDrawCommonSetting::isVirtualElement,
               &CDrawCommonSetting::setVirtualElement);
}

// The combo boxes' entries map to the setting's modes by index (see the rules).
void CDrawCommonDlg::bindLooks()
{
    using setting::CDrawCommonSetting;
    m_binding
        .field(
            m_color,
            [](control::CSystemColorComboBox& c, const CDrawCommonSetting& s) {
                c.selectColor(rules::colorToSelect(s));
            },
            [](const control::CSystemColorComboBox& c, CDrawCommonSetting& s) {
                rules::storeColor(s, c.currentIndex(), c.getColor(c.currentIndex()),
                                  control::CColorComboBox::getInvalidColor());
            })
        .field(
            m_lineType,
            [](control::CSystemLineTypeComboBox& c, const CDrawCommonSetting& s) {
                const core::CSystemConfig* config = systemConfig();
                c.selectLineType(
                    rules::lineTypeToSelect(s, config ? config->getCurrentDataBase() : nullptr));
            },
            [](const control::CSystemLineTypeComboBox& c, CDrawCommonSetting& s) {
                rules::storeLineType(s, c.currentIndex(), c.getCurLType());
            })
        .field(
            m_lineWidth,
            [](control::SelectLineWidthComboBox& c, const CDrawCommonSetting& s) {
                c.selectLineWidth(rules::lineWidthToSelect(s));
            },
            [](const control::SelectLineWidthComboBox& c, CDrawCommonSetting& s) {
                rules::storeLineWidth(s, c.currentIndex(), c.getWidth(c.currentIndex()));
            });
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

// The colours mixed meanwhile go to the host's configuration on OK only.
bool CDrawCommonDlg::afterStore()
{
    if (m_data)
        m_dataBinding.store(*m_data);
    if (auto* colors = configSetting<setting::CColorSetting>())
        *colors = m_colorSetting;
    return true;
}

// The working copy is left as it came, so the caller gets its own values back.
void CDrawCommonDlg::OnCancel()
{
    guarded([&] {
        if (m_data)
            m_data->requestCode = refDlg::SRefDlgData::RequestNone;
        EndDialog(framework::IDCANCEL);
    });
}

void CDrawCommonDlg::OnBnClickedReference()
{
    guarded([&] {
        if (!rules::canReferToDrawing(m_data))
            return;
        m_data->requestCode = refDlg::SRefDlgData::RequestReference;
        if (storeControls()) {
            m_dataBinding.store(*m_data);
            EndDialog(framework::IDCANCEL);
        }
    });
}

void CDrawCommonDlg::OnBnClickedHelp()
{
    guarded([&] {
        core::Application::getInstance()->OpenHtmlHelp(QStringLiteral("DLG_HLP_SET_COMMON"));
    });
}

} // namespace kesto::ui::config
