#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>

#include <vector>

namespace kesto::core {

// The dialogs that announced themselves to the host while they are open.
class DialogRegistry {
public:
    void announce(const QString& name, QWidget* dialog);
    void withdraw(const QString& name, const QWidget* dialog);
    QWidget* find(const QString& name) const;
    QStringList openNames() const;

private:
    struct Entry {
        QString name;
        QPointer<QWidget> dialog;
    };
    void prune();
    std::vector<Entry> m_entries;
};

} // namespace kesto::core
