#include "setting/SystemLineTypeSetting.h"

#include "utility/NumberFormat.h"
#include "utility/Xml.h"

#include <QStringList>

#include <set>

namespace kesto::ui::setting {

namespace {

QString tag()
{
    return QStringLiteral("LineType");
}

QString dashesText(const std::vector<double>& dashes)
{
    QStringList parts;
    for (double d : dashes)
        parts << utility::formatDecimal(d, 6);
    return parts.join(u' ');
}

bool readDashes(const QString& text, std::vector<double>& out)
{
    out.clear();
    for (const QString& part : text.split(u' ', Qt::SkipEmptyParts)) {
        const auto value = utility::parseDecimal(part);
        if (!value)
            return false;
        out.push_back(*value);
    }
    return true;
}

} // namespace

CSystemLineTypeSetting CSystemLineTypeSetting::makeDefault()
{
    CSystemLineTypeSetting setting;
    // Ids start at 11: values up to 10 are the line-type modes of drawing settings (3: by layer).
    setting.setLineTypes({
        KsLineType(11, L"実線", KsLineType::Solid),
        KsLineType(12, L"破線", KsLineType::Pattern, {3.0, -1.0}),
        KsLineType(13, L"一点鎖線", KsLineType::Pattern, {10.0, -1.0, 0.5, -1.0}),
        KsLineType(14, L"二点鎖線", KsLineType::Pattern, {10.0, -1.0, 0.5, -1.0, 0.5, -1.0}),
        KsLineType(15, L"点線", KsLineType::Pattern, {0.5, -1.0}),
        KsLineType(16, L"長破線", KsLineType::Pattern, {6.0, -1.5}),
    });
    return setting;
}

const KsLineType* CSystemLineTypeSetting::findByName(const std::wstring& name) const
{
    for (const KsLineType& lineType : m_lineTypes) {
        if (lineType.getName() == name)
            return &lineType;
    }
    return nullptr;
}

const KsLineType* CSystemLineTypeSetting::findById(int id) const
{
    for (const KsLineType& lineType : m_lineTypes) {
        if (lineType.getId() == id)
            return &lineType;
    }
    return nullptr;
}

bool CSystemLineTypeSetting::setLineTypes(const std::vector<KsLineType>& lineTypes)
{
    std::set<int> ids;
    std::set<std::wstring> names;
    for (const KsLineType& lineType : lineTypes) {
        if (lineType.getId() <= 0 || lineType.getName().empty() || ids.count(lineType.getId())
            || names.count(lineType.getName()))
            return false;
        ids.insert(lineType.getId());
        names.insert(lineType.getName());
    }
    m_lineTypes = lineTypes;
    return true;
}

bool CSystemLineTypeSetting::loadXMLNode(const QDomElement& element)
{
    std::vector<KsLineType> lineTypes;
    std::set<int> ids;
    std::set<std::wstring> names;
    for (QDomElement e = element.firstChildElement(tag()); !e.isNull();
         e = e.nextSiblingElement(tag())) {
        int id = 0;
        int kind = KsLineType::Solid;
        std::vector<double> dashes;
        const std::wstring name = e.attribute(QStringLiteral("name")).toStdWString();
        if (!utility::xml::readIntAttribute(e, QStringLiteral("id"), id)
            || !readDashes(e.attribute(QStringLiteral("dashes")), dashes) || id <= 0 || name.empty()
            || !ids.insert(id).second || !names.insert(name).second) {
            if (utility::xml::skipEntry(e))
                continue;
            return false;
        }
        utility::xml::readIntAttribute(e, QStringLiteral("kind"), kind);
        lineTypes.emplace_back(id, name, kind, dashes);
    }
    return setLineTypes(lineTypes);
}

void CSystemLineTypeSetting::saveXMLNode(QDomDocument& doc, QDomElement& element) const
{
    for (const KsLineType& lineType : m_lineTypes) {
        QDomElement e = doc.createElement(tag());
        e.setAttribute(QStringLiteral("id"), lineType.getId());
        e.setAttribute(QStringLiteral("name"), QString::fromStdWString(lineType.getName()));
        e.setAttribute(QStringLiteral("kind"), lineType.getKind());
        e.setAttribute(QStringLiteral("dashes"), dashesText(lineType.getDashes()));
        element.appendChild(e);
    }
}

} // namespace kesto::ui::setting
