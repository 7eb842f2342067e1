#include "customize/WheelPage.h"

#include "framework/Resources.h"
#include "res/CustomizeResource.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

namespace kesto::ui::config {

using namespace res;

namespace {
const int kActionIds[] = {IDC_WHEEL_ROTATE,      IDC_WHEEL_DRAG,      IDC_WHEEL_CLICK,
                          IDC_CTRL_WHEEL_ROTATE, IDC_CTRL_WHEEL_DRAG, IDC_CTRL_WHEEL_CLICK,
                          IDC_SHIFT_WHEEL_ROTATE};
} // namespace

CWheelPage::CWheelPage(QWidget* parent)
    : CMousePage(IDD_MOUSE_WHEEL, parent)
{
    m_toolTips.init(QStringLiteral("Dia_setting"), QStringLiteral("Iddia_set_user_mause_wheel"));
    addToolTip(IDC_WHEEL_COMMANDS, QStringLiteral("wheel_cmd"));
    addToolTip(IDC_WHEEL_ROTATE, QStringLiteral("turn"));
    addToolTip(IDC_CTRL_WHEEL_ROTATE, QStringLiteral("ctrl_turn"));
    addToolTip(IDC_SHIFT_WHEEL_ROTATE, QStringLiteral("shift_turn"));
    addToolTip(IDC_WHEEL_DRAG, QStringLiteral("drag"));
    addToolTip(IDC_CTRL_WHEEL_DRAG, QStringLiteral("ctrl_drag"));
    addToolTip(IDC_WHEEL_CLICK, QStringLiteral("click"));
    addToolTip(IDC_CTRL_WHEEL_CLICK, QStringLiteral("ctrl_click"));
    addToolTip(IDC_STEP_ZOOM_GROUP, QStringLiteral("step_zoom"));
    if (auto* check = dlgItem<QCheckBox>(IDC_WHEEL_COMMANDS))
        connect(check, &QCheckBox::toggled, this, [this] { refreshEnabled(); });
    // "↑" and "↓" always name opposite actions.
    if (auto* up = dlgItem<QComboBox>(IDC_WHEEL_UP))
        connect(up, &QComboBox::currentIndexChanged, this,
                [this] { followDirection(IDC_WHEEL_UP, IDC_WHEEL_DOWN); });
    if (auto* down = dlgItem<QComboBox>(IDC_WHEEL_DOWN))
        connect(down, &QComboBox::currentIndexChanged, this,
                [this] { followDirection(IDC_WHEEL_DOWN, IDC_WHEEL_UP); });
    bindControls();
}

void CWheelPage::bindControls()
{
    using mouserules::SWheelControls;
    using W = SWheelControls;
    auto combo = [this](int id) { return dlgItem<QComboBox>(id); };
    m_binding.value(dlgItem<QCheckBox>(IDC_WHEEL_COMMANDS), &W::wheelCommands)
        .element(combo(IDC_WHEEL_ROTATE), &W::rotate, 0)
        .element(combo(IDC_CTRL_WHEEL_ROTATE), &W::rotate, 1)
        .element(combo(IDC_SHIFT_WHEEL_ROTATE), &W::rotate, 2)
        .element(combo(IDC_WHEEL_DRAG), &W::drag, 0)
        .element(combo(IDC_CTRL_WHEEL_DRAG), &W::drag, 1)
        .element(combo(IDC_WHEEL_CLICK), &W::click, 0)
        .element(combo(IDC_CTRL_WHEEL_CLICK), &W::click, 1)
        .value(dlgItem<QLineEdit>(IDC_ZOOM_RATE), &W::zoomRate)
        .value(combo(IDC_WHEEL_UP), &W::upDirection)
        .value(combo(IDC_WHEEL_DOWN), &W::downDirection);
}

void CWheelPage::setCommands(const utility::CCommandTable* commands,
                             const setting::SMouseCommands* candidates)
{
    m_candidates = candidates ? mouserules::resolveCandidates(candidates->actionCommands, commands)
                              : std::vector<mouserules::SCandidate>();
    QStringList names{framework::loadString(IDS_MOUSE_NONE)};
    for (const mouserules::SCandidate& candidate : m_candidates)
        names << candidate.name;
    for (int id : {IDC_WHEEL_CLICK, IDC_CTRL_WHEEL_CLICK}) {
        if (auto* combo = dlgItem<QComboBox>(id)) {
            combo->clear();
            combo->addItems(names);
        }
    }
}

int CWheelPage::comboIndex(int id) const
{
    const auto* combo = dlgItem<QComboBox>(id);
    return combo ? combo->currentIndex() : 0;
}

void CWheelPage::setComboIndex(int id, int index)
{
    if (auto* combo = dlgItem<QComboBox>(id))
        combo->setCurrentIndex(index);
}

void CWheelPage::loadFrom(const setting::SMouseSetting& view)
{
    m_binding.fill(mouserules::loadWheel(view, m_candidates));
    refreshEnabled();
}

void CWheelPage::storeTo(setting::SMouseSetting& view) const
{
    mouserules::storeWheel(m_binding.stored({}), m_candidates, view);
}

// The actions are chosen only while the wheel runs commands; the step zoom always.
void CWheelPage::refreshEnabled()
{
    const auto* check = dlgItem<QCheckBox>(IDC_WHEEL_COMMANDS);
    const bool enabled = check && check->isChecked();
    for (int id : kActionIds)
        setControlEnabled(id, enabled);
}

void CWheelPage::followDirection(int changedId, int otherId)
{
    setComboIndex(otherId, comboIndex(changedId));
}

} // namespace kesto::ui::config
