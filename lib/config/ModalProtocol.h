#pragma once

#include "config/LibraryModule.h"
#include "framework/KsDialog.h"

#include <concepts>

namespace kesto::ui::config {

// When the working copy goes back to the caller's setting.
enum class CopyBack {
    OnOk,     // only after OK
    Always,   // after every result; the dialog stores into its copy only on OK or a reference
    OnChange, // after OK, and only when the copy differs (then the result is true)
};

// A dialog that edits a working copy of one setting and can reset it to a second copy.
template <class Setting>
class TSettingDialog : public framework::CKsDialog {
public:
    using framework::CKsDialog::CKsDialog;

    Setting& workingSetting() { return m_setting; }
    const Setting& workingSetting() const { return m_setting; }
    Setting& resetSetting() { return m_resetSetting; }

protected:
    Setting m_setting;
    Setting m_resetSetting;
};

template <class D, class S>
concept EditsSetting = requires(D& dialog)
{
    {
        dialog.workingSetting()
        } -> std::convertible_to<S&>;
};

// The one modal protocol of the entry functions: switch to the library's resources, build the
// dialog, hand it the caller's setting (and reset value), run it, restore the resources on
// every path, copy the working copy back by the rule, then destroy the dialog.
template <class Dialog, class Setting, class Prepare>
requires EditsSetting<Dialog, Setting>
bool runSettingDialog(Setting& setting, const Setting* resetValue, CopyBack rule, Prepare&& prepare)
{
    framework::ResourceSwitch resources(libraryResourceHandle());
    Dialog dialog;
    dialog.workingSetting() = setting;
    if (resetValue)
        dialog.resetSetting() = *resetValue;
    prepare(dialog);
    const int result = dialog.DoModal();
    resources.restore();

    const bool ok = result == framework::IDOK;
    switch (rule) {
    case CopyBack::OnOk:
        if (ok)
            setting = dialog.workingSetting();
        return ok;
    case CopyBack::Always:
        setting = dialog.workingSetting();
        return ok;
    case CopyBack::OnChange:
        if (!ok || dialog.workingSetting().isSame(setting))
            return false;
        setting = dialog.workingSetting();
        return true;
    }
    return false;
}

template <class Dialog, class Setting>
requires EditsSetting<Dialog, Setting>
bool runSettingDialog(Setting& setting, const Setting* resetValue, CopyBack rule)
{
    return runSettingDialog<Dialog>(setting, resetValue, rule, [](Dialog&) {});
}

} // namespace kesto::ui::config
