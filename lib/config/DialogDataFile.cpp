#include "config/DialogDataFile.h"

#include "core/Application.h"
#include "utility/Xml.h"

#include <QFileInfo>

namespace kesto::ui::config::dialogdata {

namespace xml = utility::xml;

// The folder string ends in a separator; none is added.
std::wstring path()
{
    const std::wstring folder = core::Application::getInstance()->getSettingFolder();
    return folder.empty() ? std::wstring() : folder + kFileName;
}

bool load(QDomDocument& doc, QDomElement& root)
{
    const std::wstring file = path();
    return !file.empty() && xml::load(doc, file, false, kMaxBytes)
           && xml::getRootElement(root, doc);
}

bool findRecord(QDomElement& out, const QDomDocument& doc, const QString& name)
{
    return xml::findByAttribute(out, doc.elementsByTagName(QString::fromLatin1(kRecordTag)),
                                QString::fromLatin1(kRecordNameAttribute), name);
}

bool saveRecord(const QString& name,
                const std::function<bool(QDomElement& root, QDomDocument& doc)>& write)
{
    const QString file = QString::fromStdWString(path());
    if (file.isEmpty() || !QFileInfo::exists(file))
        return false; // saving never creates the file
    return xml::rewrite(file, [&](QDomDocument& doc) {
        QDomElement root;
        if (!load(doc, root))
            return false;
        QDomElement previous;
        // Only an element directly under the root is replaced; anything else is not ours.
        if (findRecord(previous, doc, name) && !xml::removeIndented(root, previous))
            return false;
        if (!write(root, doc))
            return false;
        const QDomNode added = root.lastChild();
        xml::appendIndented(root, root.removeChild(added));
        return true;
    });
}

} // namespace kesto::ui::config::dialogdata
