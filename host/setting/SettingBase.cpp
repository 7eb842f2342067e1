#include "setting/SettingBase.h"

#include "utility/Xml.h"

#include <QCoreApplication>

#include <optional>

namespace kesto::ui::setting {

bool CSettingBase::readXML(const std::wstring& path, utility::CReadReport& report)
{
    return read(path, report, true);
}

bool CSettingBase::read(const std::wstring& path, utility::CReadReport& report, bool skipBadEntries)
{
    QDomDocument doc;
    report = utility::xml::readDocument(doc, QString::fromStdWString(path));
    if (report.isRefused())
        return false;
    const QDomElement root = doc.documentElement();
    if (root.isNull() && !report.isComplete()) {
        report.refuse({}); // reading stopped before the root
        return false;
    }
    if (root.tagName() != xmlRootName()) {
        report.refuse(QCoreApplication::translate("kesto::ui::setting::CSettingBase",
                                                  "ルート要素が <%1> ではありません")
                          .arg(xmlRootName()));
        return false;
    }
    std::optional<utility::xml::CSkipBadEntries> lenient;
    if (skipBadEntries)
        lenient.emplace(report);
    if (!loadXMLNode(root)) {
        report.refuse(QCoreApplication::translate("kesto::ui::setting::CSettingBase",
                                                  "<%1> の内容を読めません")
                          .arg(xmlRootName()));
        return false;
    }
    return true;
}

bool CSettingBase::loadXML(const std::wstring& path, QString* error)
{
    const std::unique_ptr<CSettingBase> loaded = clone();
    utility::CReadReport report;
    if (!loaded->read(path, report, false) || !report.isComplete()) {
        if (error)
            *error = report.details();
        return false;
    }
    return assign(*loaded);
}

QDomDocument CSettingBase::toXML() const
{
    QDomDocument doc;
    QDomElement root = doc.createElement(xmlRootName());
    doc.appendChild(root);
    saveXMLNode(doc, root);
    return doc;
}

bool CSettingBase::saveXML(const std::wstring& path, QString* error) const
{
    return utility::xml::rewrite(
        QString::fromStdWString(path),
        [this](QDomDocument& doc) {
            doc = toXML();
            return true;
        },
        error);
}

} // namespace kesto::ui::setting
