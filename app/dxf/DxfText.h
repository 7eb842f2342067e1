#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace kesto::workbench::dxf {

// Turns the bytes of a DXF string into text. Drawings of AutoCAD 2007 (AC1021) and later are
// UTF-8; older ones use the code page in $DWGCODEPAGE (ANSI_932 is Shift-JIS). Without a code
// page, UTF-8 is tried, then Shift-JIS, then Windows-1252. "\U+XXXX" and "\M+NXXXX" escapes
// are decoded in every case.
class CTextDecoder {
public:
    void setVersion(std::string_view acadVersion);
    void setCodePage(std::string_view dwgCodePage);

    bool isUnicodeDrawing() const { return m_unicode; }
    // The iconv name of the declared code page; empty when none or unknown.
    const std::string& codePage() const { return m_codePage; }

    QString decode(std::string_view bytes) const;

private:
    QString decodeBytes(std::string_view bytes) const;

    bool m_unicode = false;
    std::string m_codePage;
};

// Bytes in an iconv code page to text; false when they are not valid there.
bool convertFrom(const char* codePage, std::string_view bytes, QString& out);
// The iconv name of a $DWGCODEPAGE value ("ANSI_932" -> "CP932"); empty when unknown.
std::string codePageOf(std::string_view dwgCodePage);
// Replaces "\U+XXXX" and "\M+NXXXX" escapes by the characters they stand for.
QString decodeEscapes(const QString& text);

} // namespace kesto::workbench::dxf
