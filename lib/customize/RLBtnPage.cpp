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
    std::vector<QAbstractButton*> radios;
    for (int id : kRadioIds) {
        radios.push_back(dlgItem<QRadioButton>(id));
        if (radios.back())
            connect(radios.back(), &QRadioButton::toggled, this, [this] { refreshEnabled(); });
    }
    using mouserules::SBothButtonsControls;
    m_binding.radios(radios, &SBothButtonsControls::radio, [](SBothButtonsControls& c, int radio) {
        if (radio >= 0)
            c.radio = radio;
    });
    for (std::size_t i = 0; i < std::size(kCornerIds); ++i)
        m_binding.element(corner(i), &SBothButtonsControls::corners, i);
}

QComboBox* CRLBtnPage::corner(std::size_t index) const
{
    return dlgItem<QComboBox>(kCornerIds[index]);
}

void CRLBtnPage::setCommands(const utility::CCommandTable* commands,
                             const setting::SMouseCommands* candidates)
{
    m_candidates = candidates ? mouserules::resolveCandidates(candidates->actionCommands, commands)
                              : std::vector<mouserules::SCandidate>();
    QStringList names{framework::loadString(IDS_MOUSE_NONE)};
    for (const mouserules::SCandidate& candidate : m_candidates)
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
    m_binding.fill(mouserules::loadBothButtons(view, m_candidates));
    refreshEnabled();
}

void CRLBtnPage::storeTo(setting::SMouseSetting& view) const
{
    mouserules::storeBothButtons(m_binding.stored({}), m_candidates, view);
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
