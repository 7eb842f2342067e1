#include "utility/Xml.h"

#include <QFile>
#include <QSaveFile>

#include <cmath>

namespace kesto::utility::xml {

static void setError(QString* error, const QString& text)
{
    if (error)
        *error = text;
}

bool parse(QDomDocument& doc, const QByteArray& bytes, QString* error)
{
    if (bytes.size() > kMaxDocumentBytes) {
        setError(error, QStringLiteral("the file is larger than %1 bytes").arg(kMaxDocumentBytes));
        return false;
    }
    if (bytes.contains("<!ENTITY")) {
        setError(error, QStringLiteral("entity declarations are not accepted"));
        return false;
    }
    QString message;
    int line = 0;
    int column = 0;
    QDomDocument parsed;
    if (!parsed.setContent(bytes, false, &message, &line, &column)) {
        setError(error,
                 QStringLiteral("line %1, column %2: %3").arg(line).arg(column).arg(message));
        return false;
    }
    doc = parsed;
    return true;
}

bool load(QDomDocument& doc, const std::wstring& path, QString* error)
{
    QFile file(QString::fromStdWString(path));
    if (!file.open(QIODevice::ReadOnly)) {
        setError(error, file.errorString());
        return false;
    }
    if (file.size() > kMaxDocumentBytes) {
        setError(error, QStringLiteral("the file is larger than %1 bytes").arg(kMaxDocumentBytes));
        return false;
    }
    return parse(doc, file.read(kMaxDocumentBytes + 1), error);
}

bool save(const QDomDocument& doc, const std::wstring& path, QString* error)
{
    QByteArray bytes = doc.toByteArray(2);
    if (!bytes.startsWith("<?xml"))
        bytes.prepend("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n");
    QSaveFile file(QString::fromStdWString(path));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        setError(error, file.errorString());
        return false;
    }
    return true;
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

} // namespace kesto::utility::xml
