#pragma once

#include "setting/SettingBase.h"

#include <cstdint>
#include <string>
#include <vector>

namespace kesto::utility {
class CCommandTable;
}

namespace kesto::ui::setting {

// One key binding: a key (Win32 accelerator flags and virtual-key code) and its command.
struct SShortCut {
    int commandNumber = 0;
    std::uint16_t flags = 0;
    std::uint16_t key = 0;
    std::wstring id;
    std::wstring name;

    // The binding's key as the user reads it: "Ctrl+Shift+S", "F5", "Alt+Del".
    static std::wstring makeShortCutSz(std::uint16_t flags, std::uint16_t key);
    std::wstring makeShortCutSz() const { return makeShortCutSz(flags, key); }
    bool operator==(const SShortCut& other) const = default;
};

// The user's shortcut keys. A key belongs to one command at most; a command may have several.
class CShortCutSetting : public TSetting<CShortCutSetting> {
public:
    int getCount() const { return static_cast<int>(m_items.size()); }
    // Null outside 0..getCount()-1.
    const SShortCut* getItem(int index) const;
    const std::vector<SShortCut>& items() const { return m_items; }

    // The binding that owns the key, or null.
    const SShortCut* findByShortCut(std::uint16_t flags, std::uint16_t key) const;
    // All bindings of a command, in order; returns their count.
    int findItemsById(std::vector<SShortCut>& out, int commandNumber) const;

    // Appends a binding; a binding the key had before is removed. False (nothing changes) for
    // no key or a command number of 0 or less.
    bool addItem(std::uint16_t flags, std::uint16_t key, int commandNumber,
                 const wchar_t* identifier, const wchar_t* name);
    bool deleteItem(std::uint16_t flags, std::uint16_t key);
    // By the key's display text.
    bool deleteItem(const wchar_t* keyText);
    void clear() { m_items.clear(); }

    // The table's default keys, in table order; a key already taken is skipped.
    void setupByTable(const utility::CCommandTable* table);

    // The same bindings, in any order.
    bool isSame(const CShortCutSetting& other) const;

    QString xmlRootName() const override { return QStringLiteral("ShortCutSetting"); }
    // <ShortCut flags="9" key="83" command="57603" id="ID_FILE_SAVE" name="上書き保存"/>; a key
    // given twice or a flags word that is not an accelerator's makes the file malformed.
    bool loadXMLNode(const QDomElement& element) override;
    void saveXMLNode(QDomDocument& doc, QDomElement& element) const override;

private:
    std::vector<SShortCut> m_items;
};

} // namespace kesto::ui::setting
