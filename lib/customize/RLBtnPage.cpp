#include "customize/RLBtnPage.h"

#include "framework/Resources.h"
#include "res/CustomizeResource.h"

#include <QComboBox>
#include <QRadioButton>

namespace kesto::ui::config {

using namespace res;

namespace {
// In the order of SBothButtonsControls::corners.
const int kCornerIds[] = {IDC_LEFT_UP, IDC_LEFT_DOWN, IDC_SAME_POINT, IDC_RIGHT_UP, IDC_RIGHT_DOWN};
const int kRadioIds[] = {IDC_RADIO_FIRST, IDC_RADIO_SECOND, IDC_RADIO_BOTH_DISABLED};
} // namespace

CRLBtnPage::CRLBtnPage(QWidget* parent)
    : CMousePage(IDD_MOUSE_BOTH_BUTTONS, parent)
{
    m_toolTips.init(QStringLiteral("Dia_setting"), QStringLiteral("Iddia_set_user_mause_randl"));
    addToolTip(IDC_RADIO_FIRST, QStringLiteral("randl_cmd"));
    addToolTip(IDC_LEFT_UP, QStringLiteral("left_up_corner"));
    addToolTip(IDC_RIGHT_UP, QStringLiteral("right_up_corner"));
    addToolTip(IDC_LEFT_DOWN, QStringLiteral("left_dn_corner"));
    addToolTip(IDC_RIGHT_DOWN, QStringLiteral("right_dn_corner"));
    addToolTip(IDC_SAME_POINT, QStringLiteral("same_point"));
    addToolTip(IDC_RADIO_SECOND, QStringLiteral("smooth_scrl"));
    for (int id : kRadioIds) {
        if (auto* radio = dlgItem<QRadioButton>(id))
            connect(radio, &QRadioButton::toggled, this, [this] { refreshEnabled(); });
    }
}

QComboBox* CRLBtnPage::corner(std::size_t index) const
{
    return dlgItem<QComboBox>(kCornerIds[index]);
}

void CRLBtnPage::setCommands(const utility::CCommandTable* commands,
                             const setting::SMouseCommands* candidates)
{
    m_candidates = candidates ? mouse::resolveCandidates(candidates->actionCommands, commands)
                              : std::vector<mouse::SCandidate>();
    QStringList names{framework::loadString(IDS_MOUSE_NONE)};
    for (const mouse::SCandidate& candidate : m_candidates)
        names << candidate.name;
    for (std::size_t i = 0; i < std::size(kCornerIds); ++i) {
        if (QComboBox* combo = corner(i)) {
            combo->clear();
            combo->addItems(names);
        }
    }
}

void CRLBtnPage::loadFrom(const setting::SMouseSetting& view)
{
    const mouse::SBothButtonsControls c = mouse::loadBothButtons(view, m_candidates);
    if (auto* radio = dlgItem<QRadioButton>(kRadioIds[c.radio]))
        radio->setChecked(true);
    for (std::size_t i = 0; i < c.corners.size(); ++i) {
        if (QComboBox* combo = corner(i))
            combo->setCurrentIndex(c.corners[i]);
    }
    refreshEnabled();
}

mouse::SBothButtonsControls CRLBtnPage::controls() const
{
    mouse::SBothButtonsControls c;
    for (int i = 0; i < 3; ++i) {
        const auto* radio = dlgItem<QRadioButton>(kRadioIds[i]);
        if (radio && radio->isChecked())
            c.radio = i;
    }
    for (std::size_t i = 0; i < c.corners.size(); ++i) {
        const QComboBox* combo = corner(i);
        c.corners[i] = combo ? combo->currentIndex() : 0;
    }
    return c;
}

void CRLBtnPage::storeTo(setting::SMouseSetting& view) const
{
    mouse::storeBothButtons(controls(), m_candidates, view);
}

// The corners are chosen only while both buttons run commands.
void CRLBtnPage::refreshEnabled()
{
    const auto* commands = dlgItem<QRadioButton>(IDC_RADIO_FIRST);
    const bool enabled = commands && commands->isChecked();
    for (int id : kCornerIds)
        setControlEnabled(id, enabled);
}

} // namespace kesto::ui::config
