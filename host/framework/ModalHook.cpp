#include "framework/ModalHook.h"

#include "framework/KsDialog.h"

namespace kesto::ui::framework {

std::deque<ModalHook::Driver>& ModalHook::drivers()
{
    static std::deque<Driver> queued;
    return queued;
}

ModalHook::Driver& ModalHook::standing()
{
    static Driver driver;
    return driver;
}

int ModalHook::run(CKsDialog& dialog)
{
    if (!drivers().empty()) {
        Driver driver = std::move(drivers().front());
        drivers().pop_front();
        return runDriven(dialog, driver);
    }
    if (standing())
        return runDriven(dialog, standing());
    return dialog.exec();
}

// The dialog is shown (offscreen when there is no display), handed to the driver, and closed
// as if by Escape when the driver did not end it.
int ModalHook::runDriven(CKsDialog& dialog, const Driver& driver)
{
    dialog.setResult(0);
    dialog.show();
    driver(dialog);
    if (!dialog.isEnded())
        dialog.reject();
    if (!dialog.isEnded())
        dialog.EndDialog(IDCANCEL);
    dialog.hide();
    return dialog.result();
}

void ModalHook::queue(Driver driver)
{
    drivers().push_back(std::move(driver));
}

void ModalHook::setStandingDriver(Driver driver)
{
    standing() = std::move(driver);
}

std::size_t ModalHook::queuedCount()
{
    return drivers().size();
}

void ModalHook::clearQueue()
{
    drivers().clear();
}

} // namespace kesto::ui::framework
