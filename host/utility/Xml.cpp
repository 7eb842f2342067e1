#include "utility/Xml.h"

#include <cmath>

namespace kesto::utility::xml {

static bool finish(QDomDocument& doc, QDomDocument& read, const CReadReport& report, QString* error)
{
    if (!report.isComplete()) {
        if (error)
            *error = report.details();
        return false;
    }
    doc = read;
    return true;
}

bool parse(QDomDocument& doc, const QByteArray& bytes, QString* error)
{
    CReadReport report;
    CReader reader;
    QDomDocument read;
    if (reader.open(bytes, report))
        readDocument(read, reader);
    return finish(doc, read, report, error);
}

bool load(QDomDocument& doc, const std::wstring& path, QString* error)
{
    return load(doc, path, false, kMaxDocumentBytes, error);
}

bool load(QDomDocument& doc, const std::wstring& path, bool namespaceProcessing, qint64 maxBytes,
          QString* error)
{
    SLimits limits = SLimits::forSize(maxBytes);
    limits.namespaceProcessing = namespaceProcessing;
    QDomDocument read;
    const CReadReport report = readDocument(read, QString::fromStdWString(path), limits);
    return finish(doc, read, report, error);
}

bool save(const QDomDocument& doc, const std::wstring& path, QString* error)
{
    return saveFile(doc, QString::fromStdWString(path), error);
}

bool getRootElement(QDomElement& out, const QDomDocument& doc)
{
    out = doc.documentElement();
    return !out.isNull();
}

bool readDoubleAttribute(const QDomElement& element, const QString& name, double& out)
{
    bool ok = false;
    const double value = element.attribute(name).toDouble(&ok);
    if (!ok || !std::isfinite(value))
        return false;
    out = value;
    return true;
}

bool readIntAttribute(const QDomElement& element, const QString& name, int& out)
{
    bool ok = false;
    const int value = element.attribute(name).toInt(&ok);
    if (!ok)
        return false;
    out = value;
    return true;
}

static bool isXmlName(const QString& name)
{
    if (name.isEmpty() || !(name.front().isLetter() || name.front() == u'_'))
        return false;
    for (const QChar c : name) {
        if (!c.isLetterOrNumber() && c != u'_' && c != u'-' && c != u'.')
            return false;
    }
    return true;
}

bool findByAttribute(QDomElement& out, const QDomNodeList& list, const QString& name,
                     const QString& value)
{
    for (int i = 0; i < list.size(); ++i) {
        const QDomElement element = list.at(i).toElement();
        if (!element.isNull() && element.hasAttribute(name) && element.attribute(name) == value) {
            out = element;
            return true;
        }
    }
    return false;
}

bool createElement(QDomElement& out, QDomDocument& doc, const QString& name)
{
    if (doc.isNull() || !isXmlName(name))
        return false;
    out = doc.createElement(name);
    return !out.isNull();
}

bool writeAttributeText(QDomElement& element, const QString& name, const QString& value)
{
    if (element.isNull() || !isXmlName(name))
        return false;
    element.setAttribute(name, value);
    return true;
}

bool writeIntElement(QDomElement& out, QDomNode& parent, QDomDocument& doc, const QString& name,
                     int value)
{
    QDomElement element;
    if (parent.isNull() || !createElement(element, doc, name))
        return false;
    element.appendChild(doc.createTextNode(QString::number(value)));
    if (parent.appendChild(element).isNull())
        return false;
    out = element;
    return true;
}

bool readInt(int& out, const QDomElement& element)
{
    if (element.isNull())
        return false;
    bool ok = false;
    const int value = element.text().trimmed().toInt(&ok, 10);
    if (!ok)
        return false;
    out = value;
    return true;
}

} // namespace kesto::utility::xml
