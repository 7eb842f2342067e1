#pragma once

#include <QDomDocument>

#include <string>
#include <vector>

namespace kesto::utility {
struct SCommand;
}

namespace kesto::ui::control {

struct SContextMenuDataItem {
    enum EType { Command = 0, Separator = 1 };

    EType type = Command;
    int commandNumber = 0;
    std::wstring id;
    std::wstring name;
    int style = 0;
    // Stored form: a separator stands before this command.
    bool breakBefore = false;

    bool operator==(const SContextMenuDataItem& other) const = default;
};

// The items of a shortcut menu. Stored, a separator is a mark on the command after it; for
// editing, separateBreaks turns the marks into separator items and mergeBreaks turns them back.
// The menu may also offer the recently used commands.
class CContextMenuData {
public:
    int getCount() const { return static_cast<int>(m_items.size()); }
    const SContextMenuDataItem* getItem(int pos) const;
    const std::vector<SContextMenuDataItem>& items() const { return m_items; }

    void separateBreaks();
    // Separators at the start or the end, and repeated ones, vanish as a menu would show them.
    void mergeBreaks();

    void addButton(const utility::SCommand& command, int style);
    // Before pos (pos == getCount() appends); false for a position outside the menu.
    bool insertButton(int pos, const utility::SCommand& command, int style);
    bool insertBreak(int pos);
    bool deleteItem(int pos);
    bool moveItemPrev(int pos);
    bool moveItemNext(int pos);
    // A command known by identifier only (the display name comes from the command table).
    void addCommandId(const std::wstring& id, bool breakBefore = false);
    void clear() { m_items.clear(); }

    // Walks the items from the first; false after the last.
    bool GetNextItem(SContextMenuDataItem& out);
    void ResetItemPos() { m_cursor = 0; }

    bool isRecentCommand() const { return m_recentCommand; }
    void setRecentCommand(bool on) { m_recentCommand = on; }

    bool operator==(const CContextMenuData& other) const;

    // <Item id=".." number=".." name=".." break="1"/> and <Separator/>; false for an item
    // without identifier (the menu is then unchanged).
    bool loadXMLNode(const QDomElement& element);
    void saveXMLNode(QDomDocument& doc, QDomElement& element) const;

private:
    static SContextMenuDataItem itemOf(const utility::SCommand& command, int style);
    bool validInsertPos(int pos) const { return pos >= 0 && pos <= getCount(); }

    std::vector<SContextMenuDataItem> m_items;
    bool m_recentCommand = false;
    std::size_t m_cursor = 0;
};

} // namespace kesto::ui::control
