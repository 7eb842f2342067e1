#pragma once

#include <QDomDocument>
#include <QString>

#include <functional>

// Writing the host's XML files. The text is the same for the same document in every process:
// attributes in name order, and a layout that never changes what a file already had. An element
// made in memory is indented two spaces a level; an element read from a file (readDocument) is
// written with the whitespace it had, compact or indented, so saving a file again changes only
// what changed. Writing loops instead of recursing, however deep the document.
namespace kesto::utility::xml {

QByteArray toBytes(const QDomDocument& doc);

// Writes atomically (QSaveFile): a failure leaves the previous file whole. A file marked
// read-only is not replaced.
bool saveFile(const QDomDocument& doc, const QString& path, QString* error = nullptr);

// Read-modify-write of one file that other processes may write too: under the file's lock
// file, change fills the new document (reading the file as it is now, if it needs to), and the
// file is replaced atomically. False, with the reason in error, when the lock, change or the
// write fails; the file is then as it was.
bool rewrite(const QString& path, const std::function<bool(QDomDocument&)>& change,
             QString* error = nullptr);

// Adds child as the last element of parent in the parent's own layout: indented like its other
// children when the parent has whitespace around them.
void appendIndented(QDomNode& parent, const QDomNode& child);
// Removes child from parent with the whitespace that indents it; false when it is not a child.
bool removeIndented(QDomNode& parent, const QDomNode& child);

} // namespace kesto::utility::xml
