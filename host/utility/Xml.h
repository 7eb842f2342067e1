#pragma once

#include <QDomDocument>
#include <QString>

#include <string>

// DOM file access shared by every settings file. Files on disk are untrusted: loading caps the
// size, refuses entity declarations and reports parse errors instead of guessing.
namespace kesto::utility::xml {

constexpr qint64 kMaxDocumentBytes = 64LL * 1024 * 1024;

bool parse(QDomDocument& doc, const QByteArray& bytes, QString* error = nullptr);
bool load(QDomDocument& doc, const std::wstring& path, QString* error = nullptr);

// Writes atomically: a failure leaves the previous file whole.
bool save(const QDomDocument& doc, const std::wstring& path, QString* error = nullptr);

bool getRootElement(QDomElement& out, const QDomDocument& doc);

// Attribute readers that leave out untouched when the attribute is missing or malformed.
bool readDoubleAttribute(const QDomElement& element, const QString& name, double& out);
bool readIntAttribute(const QDomElement& element, const QString& name, int& out);

} // namespace kesto::utility::xml
