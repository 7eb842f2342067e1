#pragma once

#include <QByteArray>
#include <QList>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <optional>
#include <unordered_map>
#include <vector>

class QDialog;
class QTranslator;

namespace kesto::ui::framework {

// Builds a dialog's controls from its layout (a uic-generated setupUi, or code).
using LayoutBuilder = void (*)(QDialog* dialog);

struct StringEntry {
    int id;
    const char* text; // UTF-8; marked QT_TRANSLATE_NOOP(context, text) in translated tables
};

// The language of the source texts: no translations are installed for it.
inline constexpr char kSourceLanguage[] = "ja";

// One module's resources: its string table and dialog layouts, by number.
class ResourceModule {
public:
    explicit ResourceModule(QString name)
        : m_name(std::move(name))
    {}
    ResourceModule(const ResourceModule&) = delete;
    ResourceModule& operator=(const ResourceModule&) = delete;

    const QString& name() const { return m_name; }

    // False when an id is already taken (the module is left as it was). With a context, each
    // look-up translates the text (QCoreApplication::translate(context, text)).
    bool addStrings(const StringEntry* entries, std::size_t count, const char* context = nullptr);
    bool addLayout(int templateId, LayoutBuilder builder);

    // The text in the installed language; nullopt when the module has no such id.
    std::optional<QString> findString(int id) const;
    std::vector<int> stringIds() const; // ascending
    LayoutBuilder findLayout(int templateId) const;

    // The module's translations, Qt message files "<base>_<language>.qm" (":/i18n/Name").
    void setTranslations(QString base) { m_translations = std::move(base); }
    const QString& translations() const { return m_translations; }

private:
    struct Text {
        QByteArray context; // empty: not translated
        QByteArray source;
        QString text;
    };
    QString m_name;
    QString m_translations;
    std::unordered_map<int, Text> m_strings;
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

    std::optional<QString> findString(int id) const;
    LayoutBuilder findLayout(int templateId) const;

    // The language texts and layouts are shown in ("ja", "en"), chosen by the host: installs
    // the translations of every module for it (and of modules added later) with the host's
    // own. The source language needs none. Returns the modules whose translations could not
    // be installed (no application object, no such file): their texts stay in the source
    // language.
    QStringList setLanguage(const QString& language);
    const QString& language() const { return m_language; }

private:
    ResourceChain() = default;
    bool installTranslations(const void* owner, const QString& base);
    void removeTranslations(const void* owner);

    std::vector<const ResourceModule*> m_modules;
    ResourceHandle m_current = nullptr;
    QString m_language = QString::fromLatin1(kSourceLanguage);
    std::unordered_map<const void*, QPointer<QTranslator>> m_translators; // by module, or host
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
