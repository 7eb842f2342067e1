#include "tooltip/DlgToolTipManager.h"

#include "utility/Xml.h"

#include <QWidget>

namespace kesto::ui::tooltip {

ToolTipCatalog& ToolTipCatalog::instance()
{
    static ToolTipCatalog catalog;
    return catalog;
}

QString ToolTipCatalog::keyOf(const QString& section, const QString& group, const QString& key)
{
    return section + u'\x1f' + group + u'\x1f' + key;
}

void ToolTipCatalog::setText(const QString& section, const QString& group, const QString& key,
                             const QString& text)
{
    m_texts.insert(keyOf(section, group, key), text);
}

QString ToolTipCatalog::text(const QString& section, const QString& group, const QString& key) const
{
    return m_texts.value(keyOf(section, group, key));
}

bool ToolTipCatalog::loadXML(const QString& path, QString* error)
{
    QDomDocument doc;
    if (!utility::xml::load(doc, path.toStdWString(), error))
        return false;
    const QDomElement root = doc.documentElement();
    if (root.tagName() != u"tooltips") {
        if (error)
            *error = QStringLiteral("the root element must be <tooltips>");
        return false;
    }
    const QString name = QStringLiteral("name");
    for (QDomElement s = root.firstChildElement(QStringLiteral("section")); !s.isNull();
         s = s.nextSiblingElement(QStringLiteral("section"))) {
        for (QDomElement g = s.firstChildElement(QStringLiteral("group")); !g.isNull();
             g = g.nextSiblingElement(QStringLiteral("group"))) {
            for (QDomElement t = g.firstChildElement(QStringLiteral("tip")); !t.isNull();
                 t = t.nextSiblingElement(QStringLiteral("tip")))
                setText(s.attribute(name), g.attribute(name), t.attribute(QStringLiteral("key")),
                        t.text().trimmed());
        }
    }
    return true;
}

void DlgToolTipManager::init(const QString& section, const QString& group)
{
    m_section = section;
    m_group = group;
}

bool DlgToolTipManager::addTool(QWidget* control, const QString& key)
{
    if (!control)
        return false;
    const QString text = ToolTipCatalog::instance().text(m_section, m_group, key);
    if (text.isEmpty())
        return false;
    control->setToolTip(text);
    m_controls.emplace_back(control);
    return true;
}

} // namespace kesto::ui::tooltip
