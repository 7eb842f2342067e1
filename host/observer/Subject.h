#pragma once

#include <vector>

namespace kesto {

class Subject;

// Receives notifications from a Subject; the event codes are the subject's own.
class IObserver {
public:
    virtual ~IObserver() = default;
    virtual void update(Subject* subject, int event, void* data) = 0;
};

class Subject {
public:
    virtual ~Subject() = default;

    void attach(IObserver* observer);
    void detach(IObserver* observer);
    bool isAttached(const IObserver* observer) const;

    // Observers attached or detached during a notification take effect on the next one.
    void notify(int event, void* data = nullptr);

private:
    std::vector<IObserver*> m_observers;
};

} // namespace kesto
