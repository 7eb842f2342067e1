#include "setting/SettingBase.h"

#include "utility/Xml.h"

#include <QFile>

namespace kesto::ui::setting {

namespace {

bool fail(QString* error, const QString& text)
{
    if (error)
        *error = text;
    return false;
}

// The file's bytes under the same limits as the document loader: the size cap, and no entity
// declarations.
bool readCapped(const std::wstring& path, QByteArray& bytes, QString* error)
{
    QFile file(QString::fromStdWString(path));
    if (!file.open(QIODevice::ReadOnly))
        return fail(error, file.errorString());
    const qint64 cap = utility::xml::kMaxDocumentBytes;
    bytes = file.read(cap + 1);
    if (bytes.size() > cap)
        return fail(error, QStringLiteral("the file is larger than %1 bytes").arg(cap));
    if (bytes.contains("<!ENTITY"))
        return fail(error, QStringLiteral("entity declarations are not accepted"));
    return true;
}

QString parseError(const QXmlStreamReader& reader)
{
    return QStringLiteral("line %1, column %2: %3")
        .arg(reader.lineNumber())
        .arg(reader.columnNumber())
        .arg(reader.errorString());
}

} // namespace

bool CSettingBase::loadXMLStream(QXmlStreamReader&)
{
    return false;
}

bool CSettingBase::readToEnd(QXmlStreamReader& reader)
{
    while (!reader.atEnd())
        reader.readNext();
    return !reader.hasError();
}

bool CSettingBase::loadXMLStreamFile(const std::wstring& path, QString* error)
{
    QByteArray bytes;
    if (!readCapped(path, bytes, error))
        return false;
    QXmlStreamReader reader(bytes);
    if (!reader.readNextStartElement())
        return fail(error, parseError(reader));
    if (reader.name() != xmlRootName())
        return fail(error, QStringLiteral("the root element is <%1>, expected <%2>")
                               .arg(reader.name().toString(), xmlRootName()));
    const bool loaded = loadXMLStream(reader);
    if (reader.hasError())
        return fail(error, parseError(reader));
    if (!loaded)
        return fail(error, QStringLiteral("the contents of <%1> are malformed").arg(xmlRootName()));
    return true;
}

bool CSettingBase::loadXML(const std::wstring& path, QString* error)
{
    if (readsXMLAsStream())
        return loadXMLStreamFile(path, error);
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
