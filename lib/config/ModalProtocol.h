#pragma once

#include "config/LibraryModule.h"
#include "framework/DialogBinding.h"
#include "framework/KsDialog.h"

#include <concepts>

namespace kesto::ui::config {

// When the working copy goes back to the caller's setting.
enum class CopyBack {
    OnOk,     // only after OK
    Always,   // after every result; the dialog stores into its copy only on OK or a reference
    OnChange, // after OK, and only when the copy differs (then the result is true)
};

// A dialog that edits a working copy of one setting and can reset it to a second copy. Its
// controls are bound to the working copy once (m_binding, declared in OnInitDialog); OK
// checks the bound fields, stores them and closes, "初期化" shows the reset copy.
template <class Setting>
class TSettingDialog : public framework::CKsDialog {
public:
    using framework::CKsDialog::CKsDialog;

    Setting& workingSetting() { return m_setting; }
    const Setting& workingSetting() const { return m_setting; }
    Setting& resetSetting() { return m_resetSetting; }

    // Whether the controls show something other than the working copy.
    bool isModified() const { return m_binding.changed(m_setting); }

protected:
    void fillControls() { m_binding.fill(m_setting); }
    // The first invalid field is reported and keeps the dialog open; else the controls go
    // into the working copy.
    bool storeControls()
    {
        if (const auto invalid = m_binding.firstInvalid(m_setting)) {
            framework::reportInvalidField(this, *invalid);
            return false;
        }
        m_binding.store(m_setting);
        return true;
    }
    // "初期化": the working copy becomes the reset copy, and the controls show it.
    void resetToDefaults()
    {
        m_setting = m_resetSetting;
        fillControls();
    }
    // What OK does after the controls were stored; false keeps the dialog open.
    virtual bool afterStore() { return true; }

    void OnOK() override
    {
        guarded([&] {
            if (storeControls() && afterStore())
                EndDialog(framework::IDOK);
        });
    }

    Setting m_setting;
    Setting m_resetSetting;
    framework::TDialogBinding<Setting> m_binding;
};

template <class D, class S>
concept EditsSetting = requires(D& dialog)
{
    {
        dialog.workingSetting()
        } -> std::convertible_to<S&>;
};

// What an entry function adds to the protocol: its copy-back rule, what it hands the dialog
// before it runs, and what it does after OK before the copy back.
template <class Dialog>
struct SProtocol {
    CopyBack copyBack = CopyBack::OnOk;
    std::function<void(Dialog&)> prepare;
    std::function<void(Dialog&)> afterOk;
};

// The one modal protocol of the entry functions: switch to the library's resources, build the
// dialog, hand it the caller's setting (and reset value), run it, restore the resources on
// every path, copy the working copy back by the rule, then destroy the dialog.
template <class Dialog, class Setting>
requires EditsSetting<Dialog, Setting>
bool runSettingDialog(Setting& setting, const Setting* resetValue,
                      const SProtocol<Dialog>& protocol)
{
    framework::ResourceSwitch resources(libraryResourceHandle());
    Dialog dialog;
    dialog.workingSetting() = setting;
    if (resetValue)
        dialog.resetSetting() = *resetValue;
    if (protocol.prepare)
        protocol.prepare(dialog);
    const int result = dialog.DoModal();
    resources.restore();

    const bool ok = result == framework::IDOK;
    if (ok && protocol.afterOk)
        protocol.afterOk(dialog);
    switch (protocol.copyBack) {
    case CopyBack::OnOk:
        if (ok)
            setting = dialog.workingSetting();
        return ok;
    case CopyBack::Always:
        setting = dialog.workingSetting();
        return ok;
    case CopyBack::OnChange:
        if (!ok || framework::sameRecord(dialog.workingSetting(), setting))
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
    return runSettingDialog<Dialog>(setting, resetValue, SProtocol<Dialog>{rule, {}, {}});
}

} // namespace kesto::ui::config
