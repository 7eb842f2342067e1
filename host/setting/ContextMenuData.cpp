#include "setting/ContextMenuData.h"

#include "command/CommandTable.h"
#include "utility/Xml.h"

#include <utility>

namespace kesto::ui::control {

namespace {
const QString kItemTag = QStringLiteral("Item");
const QString kSeparatorTag = QStringLiteral("Separator");
} // namespace

const SContextMenuDataItem* CContextMenuData::getItem(int pos) const
{
    if (pos < 0 || pos >= getCount())
        return nullptr;
    return &m_items[static_cast<std::size_t>(pos)];
}

void CContextMenuData::separateBreaks()
{
    std::vector<SContextMenuDataItem> items;
    items.reserve(m_items.size() * 2);
    for (SContextMenuDataItem item : m_items) {
        if (item.type == SContextMenuDataItem::Command && item.breakBefore) {
            items.push_back({SContextMenuDataItem::Separator});
            item.breakBefore = false;
        }
        items.push_back(std::move(item));
    }
    m_items = std::move(items);
    m_cursor = 0;
}

void CContextMenuData::mergeBreaks()
{
    std::vector<SContextMenuDataItem> items;
    items.reserve(m_items.size());
    bool pending = false;
    for (SContextMenuDataItem& item : m_items) {
        if (item.type == SContextMenuDataItem::Separator) {
            pending = !items.empty();
            continue;
        }
        item.breakBefore = !items.empty() && (item.breakBefore || pending);
        pending = false;
        items.push_back(std::move(item));
    }
    m_items = std::move(items);
    m_cursor = 0;
}

SContextMenuDataItem CContextMenuData::itemOf(const utility::SCommand& command, int style)
{
    SContextMenuDataItem item;
    item.commandNumber = command.number;
    item.id = command.id;
    item.name = command.name;
    item.style = style;
    return item;
}

void CContextMenuData::addButton(const utility::SCommand& command, int style)
{
    m_items.push_back(itemOf(command, style));
}

bool CContextMenuData::insertButton(int pos, const utility::SCommand& command, int style)
{
    if (!validInsertPos(pos))
        return false;
    m_items.insert(m_items.begin() + pos, itemOf(command, style));
    return true;
}

bool CContextMenuData::insertBreak(int pos)
{
    if (!validInsertPos(pos))
        return false;
    m_items.insert(m_items.begin() + pos, SContextMenuDataItem{SContextMenuDataItem::Separator});
    return true;
}

bool CContextMenuData::deleteItem(int pos)
{
    if (!getItem(pos))
        return false;
    m_items.erase(m_items.begin() + pos);
    return true;
}

bool CContextMenuData::moveItemPrev(int pos)
{
    if (pos <= 0 || pos >= getCount())
        return false;
    std::swap(m_items[static_cast<std::size_t>(pos) - 1], m_items[static_cast<std::size_t>(pos)]);
    return true;
}

bool CContextMenuData::moveItemNext(int pos)
{
    return moveItemPrev(pos + 1);
}

void CContextMenuData::addCommandId(const std::wstring& id, bool breakBefore)
{
    SContextMenuDataItem item;
    item.id = id;
    item.breakBefore = breakBefore;
    m_items.push_back(std::move(item));
}

bool CContextMenuData::GetNextItem(SContextMenuDataItem& out)
{
    if (m_cursor >= m_items.size())
        return false;
    out = m_items[m_cursor++];
    return true;
}

bool CContextMenuData::operator==(const CContextMenuData& other) const
{
    return m_items == other.m_items && m_recentCommand == other.m_recentCommand;
}

bool CContextMenuData::loadXMLNode(const QDomElement& element)
{
    std::vector<SContextMenuDataItem> items;
    for (QDomElement e = element.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
        SContextMenuDataItem item;
        if (e.tagName() == kSeparatorTag) {
            item.type = SContextMenuDataItem::Separator;
        } else if (e.tagName() == kItemTag) {
            item.id = e.attribute(QStringLiteral("id")).toStdWString();
            item.name = e.attribute(QStringLiteral("name")).toStdWString();
            item.breakBefore = e.attribute(QStringLiteral("break")) == u"1";
            utility::xml::readIntAttribute(e, QStringLiteral("number"), item.commandNumber);
            utility::xml::readIntAttribute(e, QStringLiteral("style"), item.style);
            if (item.id.empty()) {
                if (utility::xml::skipEntry(e))
                    continue;
                return false;
            }
        } else {
            continue;
        }
        items.push_back(std::move(item));
    }
    m_items = std::move(items);
    m_recentCommand = element.attribute(QStringLiteral("recentCommand")) == u"1";
    m_cursor = 0;
    return true;
}

void CContextMenuData::saveXMLNode(QDomDocument& doc, QDomElement& element) const
{
    element.setAttribute(QStringLiteral("recentCommand"), m_recentCommand ? 1 : 0);
    for (const SContextMenuDataItem& item : m_items) {
        if (item.type == SContextMenuDataItem::Separator) {
            element.appendChild(doc.createElement(kSeparatorTag));
            continue;
        }
        QDomElement e = doc.createElement(kItemTag);
        e.setAttribute(QStringLiteral("id"), QString::fromStdWString(item.id));
        if (!item.name.empty())
            e.setAttribute(QStringLiteral("name"), QString::fromStdWString(item.name));
        if (item.commandNumber > 0)
            e.setAttribute(QStringLiteral("number"), item.commandNumber);
        if (item.style != 0)
            e.setAttribute(QStringLiteral("style"), item.style);
        if (item.breakBefore)
            e.setAttribute(QStringLiteral("break"), 1);
        element.appendChild(e);
    }
}

} // namespace kesto::ui::control
