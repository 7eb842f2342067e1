#include "observer/Subject.h"

#include <algorithm>

namespace kesto {

void Subject::attach(IObserver* observer)
{
    if (observer && !isAttached(observer))
        m_observers.push_back(observer);
}

void Subject::detach(IObserver* observer)
{
    std::erase(m_observers, observer);
}

bool Subject::isAttached(const IObserver* observer) const
{
    return std::find(m_observers.begin(), m_observers.end(), observer) != m_observers.end();
}

void Subject::notify(int event, void* data)
{
    const std::vector<IObserver*> snapshot = m_observers;
    for (IObserver* observer : snapshot) {
        if (isAttached(observer))
            observer->update(this, event, data);
    }
}

} // namespace kesto
