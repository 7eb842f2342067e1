#pragma once

#include "core/IMainFrame.h"
#include "utility/VirtualKey.h"

#include <QHash>
#include <QString>

#include <string>
#include <vector>

class QDomElement;

namespace kesto::utility {

// One command of the application.
struct SCommand {
    int number = 0;    // above 0; what settings store
    std::wstring id;   // "ID_FILE_SAVE"
    std::wstring name; // display name, "上書き保存"
    int group = -1;    // index into the table's groups
    std::vector<keys::SKeyStroke> defaultKeys;
    unsigned frames = kAllFrames; // bits of IMainFrame::EFrameMode in which the command exists
    bool keyBindable = true;      // offered for shortcut keys

    static constexpr unsigned kAllFrames = 0b111;
    static constexpr unsigned frameBit(core::IMainFrame::EFrameMode mode) { return 1u << mode; }
    bool existsIn(core::IMainFrame::EFrameMode mode) const { return frames & frameBit(mode); }
};

// The application's commands in their groups, read from the command table file:
// <CommandTable><Group name="..."><Command number=".." id=".." name=".." keys="Ctrl+S | F2"
// frames="2d red 3d" keyBindable="0"/>...
class CCommandTable {
public:
    // Reads the whole table; on false the table is unchanged and error says why.
    bool loadXML(const std::wstring& path, QString* error = nullptr);
    bool loadXMLNode(const QDomElement& root, QString* error = nullptr);

    int addGroup(const std::wstring& name);
    // False for a number of 0 or less, an empty identifier or name, an unknown group, or a
    // number or identifier the table already has.
    bool addCommand(SCommand command);
    void clear();

    bool GetCommand(const wchar_t* id, SCommand& out) const;
    bool GetCommand(int number, SCommand& out) const;
    const SCommand* findCommand(const std::wstring& id) const;
    const SCommand* findCommand(int number) const;
    void GetCommandArray(std::vector<SCommand>& out) const { out = m_commands; }
    const std::vector<SCommand>& commands() const { return m_commands; }
    const std::vector<std::wstring>& groups() const { return m_groups; }
    std::size_t size() const { return m_commands.size(); }

    // Whether a name fits the six-character button style (at most 16 characters).
    static bool isProperFor6Name(const std::wstring& name);

private:
    std::vector<std::wstring> m_groups;
    std::vector<SCommand> m_commands;
    QHash<int, std::size_t> m_byNumber;
    QHash<QString, std::size_t> m_byId;
};

} // namespace kesto::utility
