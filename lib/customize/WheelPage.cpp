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
}

void CWheelPage::setCommands(const utility::CCommandTable* commands,
                             const setting::SMouseCommands* candidates)
{
    m_candidates = candidates ? mouse::resolveCandidates(candidates->actionCommands, commands)
                              : std::vector<mouse::SCandidate>();
    QStringList names{framework::loadString(IDS_MOUSE_NONE)};
    for (const mouse::SCandidate& candidate : m_candidates)
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
    const mouse::SWheelControls c = mouse::loadWheel(view, m_candidates);
    if (auto* check = dlgItem<QCheckBox>(IDC_WHEEL_COMMANDS))
        check->setChecked(c.wheelCommands);
    setComboIndex(IDC_WHEEL_ROTATE, c.rotate[0]);
    setComboIndex(IDC_CTRL_WHEEL_ROTATE, c.rotate[1]);
    setComboIndex(IDC_SHIFT_WHEEL_ROTATE, c.rotate[2]);
    setComboIndex(IDC_WHEEL_DRAG, c.drag[0]);
    setComboIndex(IDC_CTRL_WHEEL_DRAG, c.drag[1]);
    setComboIndex(IDC_WHEEL_CLICK, c.click[0]);
    setComboIndex(IDC_CTRL_WHEEL_CLICK, c.click[1]);
    if (auto* rate = dlgItem<QLineEdit>(IDC_ZOOM_RATE))
        rate->setText(c.zoomRate);
    setComboIndex(IDC_WHEEL_UP, c.upDirection);
    setComboIndex(IDC_WHEEL_DOWN, c.downDirection);
    refreshEnabled();
}

mouse::SWheelControls CWheelPage::controls() const
{
    mouse::SWheelControls c;
    const auto* check = dlgItem<QCheckBox>(IDC_WHEEL_COMMANDS);
    c.wheelCommands = check && check->isChecked();
    c.rotate = {comboIndex(IDC_WHEEL_ROTATE), comboIndex(IDC_CTRL_WHEEL_ROTATE),
                comboIndex(IDC_SHIFT_WHEEL_ROTATE)};
    c.drag = {comboIndex(IDC_WHEEL_DRAG), comboIndex(IDC_CTRL_WHEEL_DRAG)};
    c.click = {comboIndex(IDC_WHEEL_CLICK), comboIndex(IDC_CTRL_WHEEL_CLICK)};
    const auto* rate = dlgItem<QLineEdit>(IDC_ZOOM_RATE);
    c.zoomRate = rate ? rate->text() : QString();
    c.upDirection = comboIndex(IDC_WHEEL_UP);
    c.downDirection = comboIndex(IDC_WHEEL_DOWN);
    return c;
}

void CWheelPage::storeTo(setting::SMouseSetting& view) const
{
    mouse::storeWheel(controls(), m_candidates, view);
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
