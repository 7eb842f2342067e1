#pragma once

#include <QtGlobal>

// dialogdata.xml: the remembered data of several dialogs in the host's settings folder, one
// "dlgdata" element per dialog under a root element that the host creates.
namespace kesto::ui::config::dialogdata {

inline constexpr wchar_t kFileName[] = L"dialogdata.xml";
inline constexpr char kRecordTag[] = "dlgdata";
inline constexpr char kRecordNameAttribute[] = "name";
// A larger file is not dialog data: it is refused unread.
inline constexpr qint64 kMaxBytes = 2LL * 1024 * 1024;

} // namespace kesto::ui::config::dialogdata
