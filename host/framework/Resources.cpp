#include "framework/Resources.h"

#include <algorithm>

namespace kesto::ui::framework {

bool ResourceModule::addStrings(const StringEntry* entries, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        if (m_strings.contains(entries[i].id))
            return false;
    }
    for (std::size_t i = 0; i < count; ++i)
        m_strings.emplace(entries[i].id, QString::fromUtf8(entries[i].text));
    return true;
}

bool ResourceModule::addLayout(int templateId, LayoutBuilder builder)
{
    if (!builder)
        return false;
    return m_layouts.emplace(templateId, builder).second;
}

const QString* ResourceModule::findString(int id) const
{
    const auto it = m_strings.find(id);
    return it == m_strings.end() ? nullptr : &it->second;
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
    return true;
}

void ResourceChain::remove(const ResourceModule* module)
{
    std::erase(m_modules, module);
    if (m_current == module)
        m_current = nullptr;
}

bool ResourceChain::contains(const ResourceModule* module) const
{
    return std::find(m_modules.begin(), m_modules.end(), module) != m_modules.end();
}

const QString* ResourceChain::findString(int id) const
{
    if (m_current) {
        if (const QString* text = m_current->findString(id))
            return text;
    }
    for (const ResourceModule* module : m_modules) {
        if (const QString* text = module->findString(id))
            return text;
    }
    return nullptr;
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
    const QString* text = ResourceChain::instance().findString(id);
    return text ? *text : missingResourceText(id);
}

bool hasString(int id)
{
    return ResourceChain::instance().findString(id) != nullptr;
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
