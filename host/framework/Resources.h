#pragma once

#include <QList>
#include <QString>
#include <QVariant>

#include <unordered_map>
#include <vector>

class QDialog;

namespace kesto::ui::framework {

// Builds a dialog's controls from its layout (a uic-generated setupUi, or code).
using LayoutBuilder = void (*)(QDialog* dialog);

struct StringEntry {
    int id;
    const char* text; // UTF-8
};

// One module's resources: its string table and dialog layouts, by number.
class ResourceModule {
public:
    explicit ResourceModule(QString name)
        : m_name(std::move(name))
    {}
    ResourceModule(const ResourceModule&) = delete;
    ResourceModule& operator=(const ResourceModule&) = delete;

    const QString& name() const { return m_name; }

    // False when an id is already taken (the module is left as it was).
    bool addStrings(const StringEntry* entries, std::size_t count);
    bool addLayout(int templateId, LayoutBuilder builder);

    const QString* findString(int id) const;
    LayoutBuilder findLayout(int templateId) const;

private:
    QString m_name;
    std::unordered_map<int, QString> m_strings;
    std::unordered_map<int, LayoutBuilder> m_layouts;
};

using ResourceHandle = const ResourceModule*;

// The process-wide resource chain. Look-ups try the current module first, then every module
// in the order they were added.
class ResourceChain {
public:
    static ResourceChain& instance();

    bool add(const ResourceModule* module);
    void remove(const ResourceModule* module);
    bool contains(const ResourceModule* module) const;

    ResourceHandle current() const { return m_current; }
    void setCurrent(ResourceHandle handle) { m_current = handle; }

    const QString* findString(int id) const;
    LayoutBuilder findLayout(int templateId) const;

private:
    ResourceChain() = default;
    std::vector<const ResourceModule*> m_modules;
    ResourceHandle m_current = nullptr;
};

// Makes a module current for a scope and restores the previous one on every path.
class ResourceSwitch {
public:
    explicit ResourceSwitch(ResourceHandle to);
    ~ResourceSwitch();
    ResourceSwitch(const ResourceSwitch&) = delete;
    ResourceSwitch& operator=(const ResourceSwitch&) = delete;

    // Restores early (idempotent).
    void restore();

private:
    ResourceHandle m_previous;
    bool m_restored = false;
};

// A string from the chain, or "Couldn't find Resource(id = N)." when no module has it.
QString loadString(int id);
bool hasString(int id);
QString missingResourceText(int id);

// Fills the printf-style conversions of a resource text (%d, %s, %f, %%) in order; the
// arguments are inserted as text, never interpreted as a format.
QString formatText(const QString& pattern, const QList<QVariant>& args);
// loadString(id) filled with args.
QString formatString(int id, const QList<QVariant>& args);

} // namespace kesto::ui::framework
