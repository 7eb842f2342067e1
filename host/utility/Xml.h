#pragma once

#include "utility/XmlReader.h"
#include "utility/XmlWriter.h"

#include <QDomDocument>
#include <QString>

#include <string>

// DOM file access shared by every settings file, over the host's one reader (XmlReader.h) and
// writer (XmlWriter.h). These load all or nothing: a file that cannot be read fully is not
// loaded, and error says where and why.
namespace kesto::utility::xml {

bool parse(QDomDocument& doc, const QByteArray& bytes, QString* error = nullptr);
bool load(QDomDocument& doc, const std::wstring& path, QString* error = nullptr);

// Writes atomically: a failure leaves the previous file whole.
bool save(const QDomDocument& doc, const std::wstring& path, QString* error = nullptr);

bool getRootElement(QDomElement& out, const QDomDocument& doc);

// Loads with namespace processing switched by the flag, under a size cap.
bool load(QDomDocument& doc, const std::wstring& path, bool namespaceProcessing,
          qint64 maxBytes = kMaxDocumentBytes, QString* error = nullptr);

// The first element of the list whose attribute name has the value; false when none has.
bool findByAttribute(QDomElement& out, const QDomNodeList& list, const QString& name,
                     const QString& value);
// A new element of the document, not yet placed; false for a name XML does not allow.
bool createElement(QDomElement& out, QDomDocument& doc, const QString& name);
bool writeAttributeText(QDomElement& element, const QString& name, const QString& value);
// Appends <name>value</name> to parent; out is the new element.
bool writeIntElement(QDomElement& out, QDomNode& parent, QDomDocument& doc, const QString& name,
                     int value);
// The element's text as a decimal integer; out is untouched when it is not one.
bool readInt(int& out, const QDomElement& element);

// Attribute readers that leave out untouched when the attribute is missing or malformed.
bool readDoubleAttribute(const QDomElement& element, const QString& name, double& out);
bool readIntAttribute(const QDomElement& element, const QString& name, int& out);

} // namespace kesto::utility::xml
