#include "setting/SettingBase.h"

#include "utility/Xml.h"

namespace kesto::ui::setting {

bool CSettingBase::loadXML(const std::wstring& path, QString* error)
{
    QDomDocument doc;
    if (!utility::xml::load(doc, path, error))
        return false;
    const QDomElement root = doc.documentElement();
    if (root.tagName() != xmlRootName()) {
        if (error)
            *error = QStringLiteral("the root element is <%1>, expected <%2>")
                         .arg(root.tagName(), xmlRootName());
        return false;
    }
    if (!loadXMLNode(root)) {
        if (error)
            *error = QStringLiteral("the contents of <%1> are malformed").arg(xmlRootName());
        return false;
    }
    return true;
}

bool CSettingBase::saveXML(const std::wstring& path, QString* error) const
{
    QDomDocument doc;
    doc.appendChild(doc.createProcessingInstruction(
        QStringLiteral("xml"), QStringLiteral("version=\"1.0\" encoding=\"UTF-8\"")));
    QDomElement root = doc.createElement(xmlRootName());
    doc.appendChild(root);
    saveXMLNode(doc, root);
    return utility::xml::save(doc, path, error);
}

} // namespace kesto::ui::setting
