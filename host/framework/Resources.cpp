#include "framework/Resources.h"

#include <QCoreApplication>
#include <QTranslator>

#include <algorithm>
#include <memory>

namespace kesto::ui::framework {

namespace {
// The host's own texts (message box buttons and the like), a catalog of the host's library.
const QString kHostName = QStringLiteral("KsHost");
const int kHostOwner = 0;
} // namespace

bool ResourceModule::addStrings(const StringEntry* entries, std::size_t count, const char* context)
{
    for (std::size_t i = 0; i < count; ++i) {
        if (m_strings.contains(entries[i].id))
            return false;
    }
    const QByteArray tableContext(context);
    for (std::size_t i = 0; i < count; ++i) {
        const QByteArray source(entries[i].text);
        m_strings.emplace(entries[i].id, Text{tableContext, source, QString::fromUtf8(source)});
    }
    return true;
}

bool ResourceModule::addLayout(int templateId, LayoutBuilder builder)
{
    if (!builder)
        return false;
    return m_layouts.emplace(templateId, builder).second;
}

std::optional<QString> ResourceModule::findString(int id) const
{
    const auto it = m_strings.find(id);
    if (it == m_strings.end())
        return std::nullopt;
    const Text& text = it->second;
    if (text.context.isEmpty())
        return text.text;
    return QCoreApplication::translate(text.context.constData(), text.source.constData());
}

std::vector<int> ResourceModule::stringIds() const
{
    std::vector<int> ids;
    ids.reserve(m_strings.size());
    for (const auto& entry : m_strings)
        ids.push_back(entry.first);
    std::sort(ids.begin(), ids.end());
    return ids;
}

LayoutBuilder ResourceModule::findLayout(int templateId) const
{
    const auto it = m_layouts.find(templateId);
    return it == m_layouts.end() ? nullptr : it->second;
}

ResourceChain& ResourceChain::instance()
{
    static ResourceChain chain;
    return chain;
}

bool ResourceChain::add(const ResourceModule* module)
{
    if (!module || contains(module))
        return false;
    m_modules.push_back(module);
    if (m_language != QLatin1String(kSourceLanguage))
        installTranslations(module, module->translations());
    return true;
}

void ResourceChain::remove(const ResourceModule* module)
{
    std::erase(m_modules, module);
    removeTranslations(module);
    if (m_current == module)
        m_current = nullptr;
}

bool ResourceChain::contains(const ResourceModule* module) const
{
    return std::find(m_modules.begin(), m_modules.end(), module) != m_modules.end();
}

std::optional<QString> ResourceChain::findString(int id) const
{
    if (m_current) {
        if (auto text = m_current->findString(id))
            return text;
    }
    for (const ResourceModule* module : m_modules) {
        if (auto text = module->findString(id))
            return text;
    }
    return std::nullopt;
}

LayoutBuilder ResourceChain::findLayout(int templateId) const
{
    if (m_current) {
        if (LayoutBuilder builder = m_current->findLayout(templateId))
            return builder;
    }
    for (const ResourceModule* module : m_modules) {
        if (LayoutBuilder builder = module->findLayout(templateId))
            return builder;
    }
    return nullptr;
}

QStringList ResourceChain::setLanguage(const QString& language)
{
    for (const auto& entry : m_translators)
        delete entry.second.data();
    m_translators.clear();
    m_language = language;
    QStringList missing;
    if (language == QLatin1String(kSourceLanguage))
        return missing;
    if (!installTranslations(&kHostOwner, QStringLiteral(":/i18n/") + kHostName))
        missing << kHostName;
    for (const ResourceModule* module : m_modules) {
        if (!installTranslations(module, module->translations()))
            missing << module->name();
    }
    return missing;
}

bool ResourceChain::installTranslations(const void* owner, const QString& base)
{
    if (base.isEmpty() || !QCoreApplication::instance())
        return false;
    auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
    if (!translator->load(QStringLiteral("%1_%2.qm").arg(base, m_language))
        || !QCoreApplication::installTranslator(translator.get()))
        return false;
    m_translators[owner] = translator.release();
    return true;
}

void ResourceChain::removeTranslations(const void* owner)
{
    const auto it = m_translators.find(owner);
    if (it == m_translators.end())
        return;
    delete it->second.data(); // takes itself off the application
    m_translators.erase(it);
}

ResourceSwitch::ResourceSwitch(ResourceHandle to)
    : m_previous(ResourceChain::instance().current())
{
    ResourceChain::instance().setCurrent(to);
}

ResourceSwitch::~ResourceSwitch()
{
    restore();
}

void ResourceSwitch::restore()
{
    if (m_restored)
        return;
    ResourceChain::instance().setCurrent(m_previous);
    m_restored = true;
}

QString loadString(int id)
{
    if (auto text = ResourceChain::instance().findString(id))
        return *std::move(text);
    return missingResourceText(id);
}

bool hasString(int id)
{
    return ResourceChain::instance().findString(id).has_value();
}

QString missingResourceText(int id)
{
    return QStringLiteral("Couldn't find Resource(id = %1).").arg(id);
}

QString formatText(const QString& pattern, const QList<QVariant>& args)
{
    QString out;
    out.reserve(pattern.size() + 16);
    qsizetype next = 0;
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const QChar c = pattern[i];
        if (c != u'%' || i + 1 >= pattern.size()) {
            out += c;
            continue;
        }
        const QChar conversion = pattern[i + 1];
        if (conversion == u'%') {
            out += u'%';
            ++i;
        } else if (conversion == u'd' || conversion == u's' || conversion == u'f') {
            if (next < args.size())
                out += args[next++].toString();
            ++i;
        } else {
            out += c;
        }
    }
    return out;
}

QString formatString(int id, const QList<QVariant>& args)
{
    return formatText(loadString(id), args);
}

} // namespace kesto::ui::framework
