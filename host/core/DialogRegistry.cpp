#include "core/DialogRegistry.h"

#include <algorithm>

namespace kesto::core {

void DialogRegistry::announce(const QString& name, QWidget* dialog)
{
    prune();
    m_entries.push_back({name, dialog});
}

void DialogRegistry::withdraw(const QString& name, const QWidget* dialog)
{
    std::erase_if(m_entries, [&](const Entry& e) {
        return e.name == name && (e.dialog == dialog || e.dialog.isNull());
    });
}

QWidget* DialogRegistry::find(const QString& name) const
{
    for (auto it = m_entries.rbegin(); it != m_entries.rend(); ++it) {
        if (it->name == name && !it->dialog.isNull())
            return it->dialog;
    }
    return nullptr;
}

QStringList DialogRegistry::openNames() const
{
    QStringList names;
    for (const Entry& e : m_entries) {
        if (!e.dialog.isNull())
            names << e.name;
    }
    return names;
}

void DialogRegistry::prune()
{
    std::erase_if(m_entries, [](const Entry& e) { return e.dialog.isNull(); });
}

} // namespace kesto::core
