#include "setting/ShortCutSetting.h"

#include "command/CommandTable.h"
#include "utility/VirtualKey.h"
#include "utility/Xml.h"

#include <QSet>

#include <algorithm>
#include <tuple>

namespace kesto::ui::setting {

namespace keys = utility::keys;

namespace {

QString itemTag()
{
    return QStringLiteral("ShortCut");
}

std::uint16_t normalFlags(std::uint16_t flags)
{
    return static_cast<std::uint16_t>((flags & keys::kAccelFlagMask) | keys::FVIRTKEY);
}

bool sameKey(const SShortCut& item, std::uint16_t flags, std::uint16_t key)
{
    return item.key == key && item.flags == normalFlags(flags);
}

auto sortKey(const SShortCut& s)
{
    return std::make_tuple(s.flags, s.key, s.commandNumber);
}

// One <ShortCut>; false when it is not a binding.
bool readItem(const QDomElement& e, SShortCut& item)
{
    using utility::xml::readIntAttribute;
    int flags = 0;
    int key = 0;
    if (!readIntAttribute(e, QStringLiteral("flags"), flags)
        || !readIntAttribute(e, QStringLiteral("key"), key)
        || !readIntAttribute(e, QStringLiteral("command"), item.commandNumber))
        return false;
    if ((flags & ~keys::kAccelFlagMask) || !(flags & keys::FVIRTKEY) || key <= 0 || key >= 0xFF
        || item.commandNumber <= 0)
        return false;
    item.flags = static_cast<std::uint16_t>(flags);
    item.key = static_cast<std::uint16_t>(key);
    item.id = e.attribute(QStringLiteral("id")).toStdWString();
    item.name = e.attribute(QStringLiteral("name")).toStdWString();
    return true;
}

} // namespace

std::wstring SShortCut::makeShortCutSz(std::uint16_t flags, std::uint16_t key)
{
    return keys::keyStrokeText(flags, key).toStdWString();
}

const SShortCut* CShortCutSetting::getItem(int index) const
{
    if (index < 0 || index >= getCount())
        return nullptr;
    return &m_items[static_cast<std::size_t>(index)];
}

const SShortCut* CShortCutSetting::findByShortCut(std::uint16_t flags, std::uint16_t key) const
{
    const auto it = std::find_if(m_items.begin(), m_items.end(),
                                 [&](const SShortCut& s) { return sameKey(s, flags, key); });
    return it == m_items.end() ? nullptr : &*it;
}

int CShortCutSetting::findItemsById(std::vector<SShortCut>& out, int commandNumber) const
{
    out.clear();
    std::copy_if(m_items.begin(), m_items.end(), std::back_inserter(out),
                 [&](const SShortCut& s) { return s.commandNumber == commandNumber; });
    return static_cast<int>(out.size());
}

bool CShortCutSetting::addItem(std::uint16_t flags, std::uint16_t key, int commandNumber,
                               const wchar_t* identifier, const wchar_t* name)
{
    if (key == 0 || commandNumber <= 0)
        return false;
    deleteItem(flags, key);
    m_items.push_back(
        {commandNumber, normalFlags(flags), key, identifier ? identifier : L"", name ? name : L""});
    return true;
}

bool CShortCutSetting::deleteItem(std::uint16_t flags, std::uint16_t key)
{
    return std::erase_if(m_items, [&](const SShortCut& s) { return sameKey(s, flags, key); }) > 0;
}

bool CShortCutSetting::deleteItem(const wchar_t* keyText)
{
    if (!keyText)
        return false;
    const std::wstring text(keyText);
    return std::erase_if(m_items, [&](const SShortCut& s) { return s.makeShortCutSz() == text; })
           > 0;
}

void CShortCutSetting::setupByTable(const utility::CCommandTable* table)
{
    m_items.clear();
    if (!table)
        return;
    for (const utility::SCommand& command : table->commands()) {
        for (const keys::SKeyStroke& stroke : command.defaultKeys) {
            if (!findByShortCut(stroke.flags, stroke.key))
                addItem(stroke.flags, stroke.key, command.number, command.id.c_str(),
                        command.name.c_str());
        }
    }
}

bool CShortCutSetting::isSame(const CShortCutSetting& other) const
{
    if (m_items.size() != other.m_items.size())
        return false;
    auto sorted = [](std::vector<SShortCut> items) {
        std::sort(items.begin(), items.end(),
                  [](const SShortCut& a, const SShortCut& b) { return sortKey(a) < sortKey(b); });
        return items;
    };
    const std::vector<SShortCut> mine = sorted(m_items);
    const std::vector<SShortCut> theirs = sorted(other.m_items);
    return std::equal(
        mine.begin(), mine.end(), theirs.begin(),
        [](const SShortCut& a, const SShortCut& b) { return sortKey(a) == sortKey(b); });
}

bool CShortCutSetting::loadXMLNode(const QDomElement& element)
{
    std::vector<SShortCut> items;
    QSet<int> taken;
    for (QDomElement e = element.firstChildElement(itemTag()); !e.isNull();
         e = e.nextSiblingElement(itemTag())) {
        SShortCut item;
        if (!readItem(e, item) || taken.contains(item.flags << 16 | item.key)) {
            if (utility::xml::skipEntry(e))
                continue;
            return false;
        }
        const int keyCode = item.flags << 16 | item.key;
        taken.insert(keyCode);
        items.push_back(std::move(item));
    }
    m_items = std::move(items);
    return true;
}

void CShortCutSetting::saveXMLNode(QDomDocument& doc, QDomElement& element) const
{
    for (const SShortCut& item : m_items) {
        QDomElement e = doc.createElement(itemTag());
        e.setAttribute(QStringLiteral("flags"), item.flags);
        e.setAttribute(QStringLiteral("key"), item.key);
        e.setAttribute(QStringLiteral("keyText"), QString::fromStdWString(item.makeShortCutSz()));
        e.setAttribute(QStringLiteral("command"), item.commandNumber);
        e.setAttribute(QStringLiteral("id"), QString::fromStdWString(item.id));
        e.setAttribute(QStringLiteral("name"), QString::fromStdWString(item.name));
        element.appendChild(e);
    }
}

} // namespace kesto::ui::setting
