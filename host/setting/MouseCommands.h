#pragma once

#include <QString>

#include <string>
#include <vector>

class QDomElement;

namespace kesto::ui::setting {

// The commands that may be given to the mouse in one view, from the candidate-command file:
// <MouseCommands><Commands view="2DView"><Menu><Command id=".."/>..</Menu>
// <Action><Command id=".."/>..</Action></Commands>..</MouseCommands>
struct SMouseCommands {
    std::wstring viewName;
    std::vector<std::wstring> menuCommands;   // for the right-button shortcut menu
    std::vector<std::wstring> actionCommands; // for the corners of both buttons and wheel clicks

    static QString getXMLRootName() { return QStringLiteral("MouseCommands"); }
    static QString getXMLNodeName() { return QStringLiteral("Commands"); }

    // False (the record unchanged) without a view name or with a command without identifier.
    bool loadXMLNode(const QDomElement& element);
};

} // namespace kesto::ui::setting
