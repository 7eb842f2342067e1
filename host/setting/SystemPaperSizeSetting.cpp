#include "setting/SystemPaperSizeSetting.h"

#include "utility/Xml.h"

#include <algorithm>

namespace kesto::ui::setting {

namespace {
QString sizeTag()
{
    return QStringLiteral("PaperSize");
}
} // namespace

CSystemPaperSizeSetting CSystemPaperSizeSetting::makeDefault()
{
    CSystemPaperSizeSetting setting;
    setting.setup(L"A1", {
                             {L"A0", 841, 1189},
                             {L"A1", 594, 841},
                             {L"A2", 420, 594},
                             {L"A3", 297, 420},
                             {L"A4", 210, 297},
                             {L"A4縦", 297, 210},
                             {L"B4", 257, 364},
                         });
    return setting;
}

const SPaperSize* CSystemPaperSizeSetting::findByName(const std::wstring& name) const
{
    const auto it = std::find_if(m_sizes.begin(), m_sizes.end(),
                                 [&](const SPaperSize& size) { return size.name == name; });
    return it == m_sizes.end() ? nullptr : &*it;
}

bool CSystemPaperSizeSetting::setup(const std::wstring& initPaperName,
                                    const std::vector<SPaperSize>& sizes)
{
    const bool known = std::any_of(sizes.begin(), sizes.end(), [&](const SPaperSize& size) {
        return size.name == initPaperName;
    });
    if (!known)
        return false;
    m_sizes = sizes;
    m_initPaperName = initPaperName;
    return true;
}

bool CSystemPaperSizeSetting::isSame(const CSystemPaperSizeSetting& other) const
{
    return m_sizes == other.m_sizes && m_initPaperName == other.m_initPaperName;
}

bool CSystemPaperSizeSetting::loadXMLNode(const QDomElement& element)
{
    std::vector<SPaperSize> sizes;
    for (QDomElement e = element.firstChildElement(sizeTag()); !e.isNull();
         e = e.nextSiblingElement(sizeTag())) {
        SPaperSize size;
        size.name = e.attribute(QStringLiteral("name")).toStdWString();
        if (size.name.empty()
            || !utility::xml::readIntAttribute(e, QStringLiteral("height"), size.height)
            || !utility::xml::readIntAttribute(e, QStringLiteral("width"), size.width)
            || size.height < 1 || size.width < 1) {
            if (utility::xml::skipEntry(e))
                continue;
            return false;
        }
        sizes.push_back(std::move(size));
    }
    m_sizes = std::move(sizes);
    m_initPaperName = element.attribute(QStringLiteral("initial")).toStdWString();
    return true;
}

void CSystemPaperSizeSetting::saveXMLNode(QDomDocument& doc, QDomElement& element) const
{
    element.setAttribute(QStringLiteral("initial"), QString::fromStdWString(m_initPaperName));
    for (const SPaperSize& size : m_sizes) {
        QDomElement e = doc.createElement(sizeTag());
        e.setAttribute(QStringLiteral("name"), QString::fromStdWString(size.name));
        e.setAttribute(QStringLiteral("height"), size.height);
        e.setAttribute(QStringLiteral("width"), size.width);
        element.appendChild(e);
    }
}

} // namespace kesto::ui::setting
