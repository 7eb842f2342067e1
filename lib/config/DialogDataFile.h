#pragma once

#include <QDomDocument>
#include <QtGlobal>

#include <functional>
#include <string>

// dialogdata.xml: the remembered data of several dialogs in the host's settings folder, one
// "dlgdata" element per dialog under a root element that the host creates.
namespace kesto::ui::config::dialogdata {

inline constexpr wchar_t kFileName[] = L"dialogdata.xml";
inline constexpr char kRecordTag[] = "dlgdata";
inline constexpr char kRecordNameAttribute[] = "name";
// A larger file is not dialog data: it is refused unread.
inline constexpr qint64 kMaxBytes = 2LL * 1024 * 1024;

// The file in the host's settings folder; empty without a settings holder or folder.
std::wstring path();
// Loads the file and finds its root; never creates either.
bool load(QDomDocument& doc, QDomElement& root);
// The first dlgdata element of that name, wherever it is in the document.
bool findRecord(QDomElement& out, const QDomDocument& doc, const QString& name);
// Replaces the record of that name by the one write appends to the root, reading and writing
// the file under its lock, so that what other processes save meanwhile is kept. The rest of
// the file keeps its layout. False, with nothing written, when the file cannot be read, when
// the record found is not a child of the root, or when write fails.
bool saveRecord(const QString& name,
                const std::function<bool(QDomElement& root, QDomDocument& doc)>& write);

} // namespace kesto::ui::config::dialogdata
