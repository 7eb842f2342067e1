#include "setting/MouseCommands.h"

#include <QDomElement>

namespace kesto::ui::setting {

namespace {

bool readIds(const QDomElement& list, std::vector<std::wstring>& out)
{
    out.clear();
    for (QDomElement c = list.firstChildElement(QStringLiteral("Command")); !c.isNull();
         c = c.nextSiblingElement(QStringLiteral("Command"))) {
        const QString id = c.attribute(QStringLiteral("id")).trimmed();
        if (id.isEmpty())
            return false;
        out.push_back(id.toStdWString());
    }
    return true;
}

} // namespace

bool SMouseCommands::loadXMLNode(const QDomElement& element)
{
    SMouseCommands record;
    record.viewName = element.attribute(QStringLiteral("view")).toStdWString();
    if (record.viewName.empty()
        || !readIds(element.firstChildElement(QStringLiteral("Menu")), record.menuCommands)
        || !readIds(element.firstChildElement(QStringLiteral("Action")), record.actionCommands))
        return false;
    *this = std::move(record);
    return true;
}

} // namespace kesto::ui::setting
