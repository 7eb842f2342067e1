#include "dxf/DxfText.h"

#include <QStringDecoder>

#include <iconv.h>

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <vector>

namespace kesto::workbench::dxf {

namespace {

bool isAscii(std::string_view bytes)
{
    return std::all_of(bytes.begin(), bytes.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

bool convertUtf8(std::string_view bytes, QString& out)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringConverter::Flag::Stateless);
    QString text = decoder(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
    if (decoder.hasError())
        return false;
    out = std::move(text);
    return true;
}

int hexValue(QChar c)
{
    const char16_t u = c.unicode();
    if (u >= u'0' && u <= u'9')
        return u - u'0';
    if (u >= u'a' && u <= u'f')
        return u - u'a' + 10;
    if (u >= u'A' && u <= u'F')
        return u - u'A' + 10;
    return -1;
}

// The value of count hex digits at from, or -1.
int hexAt(const QString& text, qsizetype from, int count)
{
    if (from + count > text.size())
        return -1;
    int value = 0;
    for (int i = 0; i < count; ++i) {
        const int digit = hexValue(text[from + i]);
        if (digit < 0)
            return -1;
        value = value * 16 + digit;
    }
    return value;
}

// The code pages of "\M+N": 1 Japanese, 2 Traditional Chinese, 3 Korean, 4 Johab, 5 Simplified.
const char* multiByteCodePage(QChar n)
{
    switch (n.unicode()) {
    case u'1':
        return "CP932";
    case u'2':
        return "CP950";
    case u'3':
        return "CP949";
    case u'4':
        return "CP1361";
    case u'5':
        return "CP936";
    default:
        return nullptr;
    }
}

// One escape at i ("\U+XXXX" or "\M+NXXXX"); the text it stands for and its length, or 0.
qsizetype decodeEscapeAt(const QString& text, qsizetype i, QString& out)
{
    if (text.mid(i, 3).compare(QStringLiteral("\\U+"), Qt::CaseInsensitive) == 0) {
        const int code = hexAt(text, i + 3, 4);
        if (code < 0)
            return 0;
        out = QChar(static_cast<char16_t>(code));
        return 7;
    }
    if (text.mid(i, 3).compare(QStringLiteral("\\M+"), Qt::CaseInsensitive) == 0
        && i + 3 < text.size()) {
        const char* codePage = multiByteCodePage(text[i + 3]);
        const int code = hexAt(text, i + 4, 4);
        if (!codePage || code < 0)
            return 0;
        const char bytes[2] = {static_cast<char>(code >> 8), static_cast<char>(code & 0xFF)};
        if (!convertFrom(codePage, std::string_view(bytes, 2), out))
            return 0;
        return 8;
    }
    return 0;
}

} // namespace

bool convertFrom(const char* codePage, std::string_view bytes, QString& out)
{
    iconv_t cd = iconv_open("UTF-8", codePage);
    if (cd == reinterpret_cast<iconv_t>(-1))
        return false;
    std::vector<char> buffer(bytes.size() * 4 + 4);
    char* in = const_cast<char*>(bytes.data());
    std::size_t inLeft = bytes.size();
    char* outPtr = buffer.data();
    std::size_t outLeft = buffer.size();
    const std::size_t done = iconv(cd, &in, &inLeft, &outPtr, &outLeft);
    iconv_close(cd);
    if (done == static_cast<std::size_t>(-1) || inLeft != 0)
        return false;
    return convertUtf8(std::string_view(buffer.data(), buffer.size() - outLeft), out);
}

std::string codePageOf(std::string_view dwgCodePage)
{
    std::string page(dwgCodePage);
    std::transform(page.begin(), page.end(), page.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    static const char* const known[] = {"874",  "932",  "936",  "949",  "950",
                                        "1250", "1251", "1252", "1253", "1254",
                                        "1255", "1256", "1257", "1258", "1361"};
    for (const char* number : known) {
        if (page == std::string("ANSI_") + number || page == std::string("DOS") + number)
            return std::string("CP") + number;
    }
    return {};
}

QString decodeEscapes(const QString& text)
{
    if (!text.contains(u'\\'))
        return text;
    QString out;
    out.reserve(text.size());
    for (qsizetype i = 0; i < text.size();) {
        QString decoded;
        const qsizetype length = text[i] == u'\\' ? decodeEscapeAt(text, i, decoded) : 0;
        if (length > 0) {
            out += decoded;
            i += length;
        } else {
            out += text[i++];
        }
    }
    return out;
}

void CTextDecoder::setVersion(std::string_view acadVersion)
{
    // AC1021 (AutoCAD 2007) and later versions compare greater as text.
    m_unicode = acadVersion.size() == 6 && acadVersion.substr(0, 2) == "AC"
                && acadVersion >= std::string_view("AC1021");
}

void CTextDecoder::setCodePage(std::string_view dwgCodePage)
{
    m_codePage = codePageOf(dwgCodePage);
}

QString CTextDecoder::decodeBytes(std::string_view bytes) const
{
    QString text;
    if (isAscii(bytes))
        return QString::fromLatin1(bytes.data(), static_cast<qsizetype>(bytes.size()));
    if (m_unicode && convertUtf8(bytes, text))
        return text;
    if (!m_unicode && !m_codePage.empty() && convertFrom(m_codePage.c_str(), bytes, text))
        return text;
    // No (usable) code page: what the bytes are valid as.
    if (convertUtf8(bytes, text) || convertFrom("CP932", bytes, text)
        || convertFrom("CP1252", bytes, text))
        return text;
    return QString::fromLatin1(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

QString CTextDecoder::decode(std::string_view bytes) const
{
    return decodeEscapes(decodeBytes(bytes));
}

} // namespace kesto::workbench::dxf
