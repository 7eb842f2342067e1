#include "command/CommandTable.h"

#include "utility/Xml.h"

#include <QDomElement>

namespace kesto::utility {

namespace {

void setError(QString* error, const QString& text)
{
    if (error)
        *error = text;
}

bool readFrames(const QString& text, unsigned& frames)
{
    if (text.isEmpty())
        return true;
    frames = 0;
    for (const QString& word : text.split(u' ', Qt::SkipEmptyParts)) {
        if (word == u"2d")
            frames |= SCommand::frameBit(core::IMainFrame::FrameMode2D);
        else if (word == u"red")
            frames |= SCommand::frameBit(core::IMainFrame::FrameModeRed);
        else if (word == u"3d")
            frames |= SCommand::frameBit(core::IMainFrame::FrameMode3D);
        else
            return false;
    }
    return frames != 0;
}

bool readKeys(const QString& text, std::vector<keys::SKeyStroke>& out)
{
    for (const QString& part : text.split(u'|', Qt::SkipEmptyParts)) {
        const std::optional<keys::SKeyStroke> stroke = keys::parseKeyStroke(part);
        if (!stroke)
            return false;
        out.push_back(*stroke);
    }
    return true;
}

// One <Command>; a message naming the element when it is malformed.
QString readCommand(const QDomElement& e, int group, SCommand& command)
{
    command.group = group;
    command.id = e.attribute(QStringLiteral("id")).toStdWString();
    command.name = e.attribute(QStringLiteral("name")).toStdWString();
    const QString where = QStringLiteral("command %1 (line %2)")
                              .arg(QString::fromStdWString(command.id))
                              .arg(xml::lineOf(e));
    if (!xml::readIntAttribute(e, QStringLiteral("number"), command.number))
        return where + QStringLiteral(": no number");
    if (!readKeys(e.attribute(QStringLiteral("keys")), command.defaultKeys))
        return where
               + QStringLiteral(": unknown key in \"%1\"").arg(e.attribute(QStringLiteral("keys")));
    if (!readFrames(e.attribute(QStringLiteral("frames")), command.frames))
        return where
               + QStringLiteral(": unknown frames \"%1\"")
                     .arg(e.attribute(QStringLiteral("frames")));
    command.keyBindable = e.attribute(QStringLiteral("keyBindable")) != u"0";
    return {};
}

} // namespace

bool CCommandTable::loadXML(const std::wstring& path, QString* error)
{
    QDomDocument doc;
    if (!xml::load(doc, path, error))
        return false;
    return loadXMLNode(doc.documentElement(), error);
}

bool CCommandTable::loadXMLNode(const QDomElement& root, QString* error)
{
    if (root.tagName() != u"CommandTable") {
        setError(error, QStringLiteral("the root element must be <CommandTable>"));
        return false;
    }
    CCommandTable table;
    for (QDomElement g = root.firstChildElement(QStringLiteral("Group")); !g.isNull();
         g = g.nextSiblingElement(QStringLiteral("Group"))) {
        const int group = table.addGroup(g.attribute(QStringLiteral("name")).toStdWString());
        for (QDomElement c = g.firstChildElement(QStringLiteral("Command")); !c.isNull();
             c = c.nextSiblingElement(QStringLiteral("Command"))) {
            SCommand command;
            QString problem = readCommand(c, group, command);
            if (problem.isEmpty() && !table.addCommand(command))
                problem = QStringLiteral("command %1 (line %2): empty, or number or id repeated")
                              .arg(QString::fromStdWString(command.id))
                              .arg(xml::lineOf(c));
            if (!problem.isEmpty()) {
                setError(error, problem);
                return false;
            }
        }
    }
    *this = std::move(table);
    return true;
}

int CCommandTable::addGroup(const std::wstring& name)
{
    m_groups.push_back(name);
    return static_cast<int>(m_groups.size()) - 1;
}

bool CCommandTable::addCommand(SCommand command)
{
    const QString id = QString::fromStdWString(command.id);
    if (command.number <= 0 || id.isEmpty() || command.name.empty() || command.group < 0
        || command.group >= static_cast<int>(m_groups.size()) || m_byNumber.contains(command.number)
        || m_byId.contains(id))
        return false;
    m_byNumber.insert(command.number, m_commands.size());
    m_byId.insert(id, m_commands.size());
    m_commands.push_back(std::move(command));
    return true;
}

void CCommandTable::clear()
{
    m_groups.clear();
    m_commands.clear();
    m_byNumber.clear();
    m_byId.clear();
}

const SCommand* CCommandTable::findCommand(const std::wstring& id) const
{
    const auto it = m_byId.constFind(QString::fromStdWString(id));
    return it == m_byId.constEnd() ? nullptr : &m_commands[it.value()];
}

const SCommand* CCommandTable::findCommand(int number) const
{
    const auto it = m_byNumber.constFind(number);
    return it == m_byNumber.constEnd() ? nullptr : &m_commands[it.value()];
}

bool CCommandTable::GetCommand(const wchar_t* id, SCommand& out) const
{
    const SCommand* found = id ? findCommand(std::wstring(id)) : nullptr;
    if (found)
        out = *found;
    return found != nullptr;
}

bool CCommandTable::GetCommand(int number, SCommand& out) const
{
    const SCommand* found = findCommand(number);
    if (found)
        out = *found;
    return found != nullptr;
}

bool CCommandTable::isProperFor6Name(const std::wstring& name)
{
    return QString::fromStdWString(name).toUcs4().size() <= 16;
}

} // namespace kesto::utility
