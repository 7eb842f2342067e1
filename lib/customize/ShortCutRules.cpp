#include "customize/ShortCutRules.h"

#include "framework/Resources.h"
#include "res/CustomizeResource.h"

namespace kesto::ui::config::shortcutrules {

namespace keys = utility::keys;

ECapture captureAction(std::uint16_t key)
{
    switch (key) {
    case 0: // a key without a code of its own
    case keys::VK_SHIFT:
    case keys::VK_CONTROL:
    case keys::VK_MENU:
    case keys::VK_LEFT:
    case keys::VK_UP:
    case keys::VK_RIGHT:
    case keys::VK_DOWN:
    case keys::VK_LWIN:
    case keys::VK_RWIN:
    case keys::VK_APPS:
    case keys::VK_NUMLOCK:
        return ECapture::Keep;
    case keys::VK_TAB:
    case keys::VK_RETURN:
    case keys::VK_ESCAPE:
    case keys::VK_NONCONVERT:
    case keys::VK_F1:
    case keys::VK_PROCESSKEY:
    case keys::VK_OEM_ATTN:
        return ECapture::Clear;
    default:
        return ECapture::Show;
    }
}

SButtonStates buttonStates(int selectedCommand, const SKeyStroke& captured,
                           const setting::SShortCut* owner, bool rowSelected)
{
    SButtonStates states;
    states.assignEnabled = selectedCommand > 0 && captured.key != 0
                           && (!owner || owner->commandNumber != selectedCommand);
    states.deleteEnabled = rowSelected;
    return states;
}

QString ownerText(const QString& ownerName)
{
    if (ownerName.isEmpty())
        return {};
    return framework::formatString(res::IDS_SHORTCUT_OWNER, {ownerName});
}

} // namespace kesto::ui::config::shortcutrules
