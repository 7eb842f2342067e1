#pragma once

#include <deque>
#include <functional>

namespace kesto::ui::framework {

class CKsDialog;

// The one place where modal dialogs run. Normally a dialog runs its own event loop; a driver
// installed here instead gets the shown dialog, operates it and ends it, synchronously, so
// tests and the workbench's screenshots need neither a display nor timers.
class ModalHook {
public:
    using Driver = std::function<void(CKsDialog& dialog)>;

    // Runs the dialog: with the next queued driver, else the standing driver, else exec().
    static int run(CKsDialog& dialog);

    // Queues a driver for the next DoModal (drivers are taken in order, one per dialog).
    static void queue(Driver driver);
    // A driver for every dialog with no queued driver (empty: run for real).
    static void setStandingDriver(Driver driver);
    static std::size_t queuedCount();
    static void clearQueue();

private:
    static int runDriven(CKsDialog& dialog, const Driver& driver);
    static std::deque<Driver>& drivers();
    static Driver& standing();
};

// Queues drivers for a scope and drops the unused ones when it ends.
class ScopedModalDrivers {
public:
    ScopedModalDrivers() = default;
    explicit ScopedModalDrivers(ModalHook::Driver driver) { add(std::move(driver)); }
    ~ScopedModalDrivers() { ModalHook::clearQueue(); }
    ScopedModalDrivers(const ScopedModalDrivers&) = delete;
    ScopedModalDrivers& operator=(const ScopedModalDrivers&) = delete;

    ScopedModalDrivers& add(ModalHook::Driver driver)
    {
        ModalHook::queue(std::move(driver));
        return *this;
    }
    std::size_t pending() const { return ModalHook::queuedCount(); }
};

} // namespace kesto::ui::framework
