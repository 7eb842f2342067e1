#include "dxf/DxfStream.h"

#include <QCoreApplication>
#include <QIODevice>

#include <dl_creationinterface.h>

#include <algorithm>
#include <charconv>
#include <cstring>
#include <optional>
#include <string_view>

namespace kesto::workbench::dxf {

namespace {

constexpr std::size_t kChunk = 1 << 20;

QString tr(const char* text)
{
    return QCoreApplication::translate("kesto::workbench::dxf", text);
}

std::string_view trimmed(std::string_view s)
{
    while (!s.empty() && (s.front() == ' ' || s.front() == '\t'))
        s.remove_prefix(1);
    while (!s.empty() && (s.back() == ' ' || s.back() == '\t'))
        s.remove_suffix(1);
    return s;
}

std::optional<long long> toInteger(std::string_view s)
{
    s = trimmed(s);
    long long value = 0;
    const auto [end, ec] = std::from_chars(s.data(), s.data() + s.size(), value);
    if (ec != std::errc() || end != s.data() + s.size())
        return std::nullopt;
    return value;
}

QString quoted(std::string_view s)
{
    QString text = QString::fromLatin1(s.data(), qsizetype(std::min<std::size_t>(s.size(), 24)));
    for (QChar& c : text) {
        if (!c.isPrint())
            c = u'?';
    }
    return u'"' + text + (s.size() > 24 ? QStringLiteral("...\"") : QStringLiteral("\""));
}

// Group codes that size what the parser allocates, per entity.
bool isCountCode(std::string_view entity, int code)
{
    if (entity == "LWPOLYLINE")
        return code == 90;
    if (entity == "LEADER")
        return code == 76;
    if (entity == "SPLINE")
        return code >= 72 && code <= 74;
    if (entity == "HATCH")
        return code == 91 || code == 93 || (code >= 95 && code <= 98);
    return false;
}

} // namespace

CDxfStreamBuf::CDxfStreamBuf(QIODevice& source, DL_CreationInterface& pairs,
                             const SDxfLimits& limits)
    : m_source(source)
    , m_pairs(pairs)
    , m_limits(limits)
{}

bool CDxfStreamBuf::fillBuffer()
{
    if (m_sourceDone)
        return false;
    m_buffer.resize(kChunk);
    const qint64 read = m_source.read(m_buffer.data(), qint64(kChunk));
    m_at = 0;
    m_end = read > 0 ? std::size_t(read) : 0;
    m_sourceDone = read <= 0;
    return read > 0;
}

// The next line without its end; a line longer than the limit is cut, the rest skipped.
bool CDxfStreamBuf::readLine(std::string& line)
{
    line.clear();
    bool any = false;
    for (;;) {
        if (m_at == m_end && !fillBuffer())
            break;
        any = true;
        const char* begin = m_buffer.data() + m_at;
        const auto* newline = static_cast<const char*>(std::memchr(begin, '\n', m_end - m_at));
        const std::size_t length = newline ? std::size_t(newline - begin) : m_end - m_at;
        const std::size_t room = std::size_t(m_limits.maxLineLength) - line.size();
        line.append(begin, std::min(length, room));
        m_at += length;
        if (newline) {
            ++m_at;
            break;
        }
    }
    if (!any)
        return false;
    while (!line.empty() && line.back() == '\r')
        line.pop_back();
    ++m_line;
    return true;
}

bool CDxfStreamBuf::stop(std::int64_t line, const QString& reason)
{
    m_stopLine = line;
    m_stopReason = reason;
    return false;
}

// False at the end of the text, or where a pair breaks a rule (stop set).
bool CDxfStreamBuf::readPair(int& code, std::string& value, std::int64_t& codeLine)
{
    std::string codeText;
    do { // blank lines where a group code belongs are passed over
        if (!readLine(codeText))
            return false;
    } while (trimmed(codeText).empty());
    codeLine = m_line;
    const std::optional<long long> number = toInteger(codeText);
    if (!number || *number < -5 || *number > 1071)
        return stop(
            m_line,
            tr("グループコード %1 が -5 から 1071 の数ではありません").arg(quoted(codeText)));
    code = int(*number);
    if (!readLine(value))
        return stop(
            codeLine,
            tr("グループコード %1 に値がありません (ファイルが途中で切れています)").arg(code));
    return true;
}

bool CDxfStreamBuf::onRecordKind(const std::string& kind)
{
    if (++m_records > m_limits.maxRecords)
        return stop(m_kindLine,
                    tr("図形や表の項目が多すぎます (上限 %1)").arg(m_limits.maxRecords));
    if (kind == "SECTION") {
        if (m_inSection)
            return stop(m_kindLine, tr("セクション %1 が閉じないまま次のセクションが始まります")
                                        .arg(QString::fromStdString(m_section)));
        m_inSection = m_expectSectionName = true;
    } else if (kind == "ENDSEC") {
        m_inSection = false;
        m_blockDepth = 0;
    } else if (kind == "BLOCK" && ++m_blockDepth > m_limits.maxBlockDepth) {
        return stop(m_kindLine,
                    tr("ブロックの入れ子が深すぎます (上限 %1 段)").arg(m_limits.maxBlockDepth));
    } else if (kind == "ENDBLK") {
        m_blockDepth = std::max(0, m_blockDepth - 1);
    }
    return true;
}

bool CDxfStreamBuf::appendPair(int code, const std::string& value, std::int64_t codeLine)
{
    if (code == 0) {
        m_kind = trimmed(value);
        m_kindLine = codeLine;
        if (!onRecordKind(m_kind))
            return false;
    } else {
        if (++m_values > m_limits.maxPairsPerRecord)
            return stop(codeLine, tr("%1 (%2 行目から) の値が多すぎます (上限 %3)")
                                      .arg(QString::fromStdString(m_kind))
                                      .arg(m_kindLine)
                                      .arg(m_limits.maxPairsPerRecord));
        if (m_expectSectionName && code == 2) {
            m_section = trimmed(value);
            m_expectSectionName = false;
        }
        if (isCountCode(m_kind, code))
            m_counts.push_back({codeLine, code, toInteger(value).value_or(-1)});
    }
    m_text += std::to_string(code);
    m_text += '\n';
    m_lineEnds.push_back(m_text.size());
    m_text += value;
    m_text += '\n';
    m_lineEnds.push_back(m_text.size());
    m_codes.push_back(code);
    return true;
}

bool CDxfStreamBuf::checkRecord()
{
    for (const SCount& count : m_counts) {
        if (count.value < 0 || count.value > m_values)
            return stop(count.line, tr("%1 (%2 行目から) のグループコード %3 の個数 %4 が、"
                                       "その図形の値の数 %5 を超えています")
                                        .arg(QString::fromStdString(m_kind))
                                        .arg(m_kindLine)
                                        .arg(count.code)
                                        .arg(count.value)
                                        .arg(m_values));
    }
    return true;
}

bool CDxfStreamBuf::giveClosingEof()
{
    m_text = "0\nEOF\n";
    m_lineEnds = {2, 6};
    m_codes = {0};
    m_nextLine = 0;
    m_ended = true;
    return true;
}

// The next record, whole and checked, into m_text; at the end, or where the text breaks a rule,
// the closing EOF pair instead.
bool CDxfStreamBuf::readRecord()
{
    m_text.clear();
    m_lineEnds.clear();
    m_codes.clear();
    m_nextLine = 0;
    m_kind.clear();
    m_values = 0;
    m_counts.clear();
    int code = 0;
    std::string value;
    std::int64_t codeLine = 0;
    if (m_havePending && !appendPair(m_pendingCode, m_pendingValue, m_pendingLine))
        return giveClosingEof();
    m_havePending = false;
    while (m_kind != "EOF") { // nothing after EOF is read
        if (!readPair(code, value, codeLine)) {
            const bool empty = m_recordsGiven == 0 && m_codes.empty();
            if (m_stopReason.isEmpty())
                stop(empty ? 0 : m_line,
                     empty ? tr("ファイルが空です")
                           : tr("ファイルが EOF で終わっていません (途中で切れています)"));
            return giveClosingEof();
        }
        if (code == 0 && !m_codes.empty()) {
            m_havePending = true;
            m_pendingCode = code;
            m_pendingValue = value;
            m_pendingLine = codeLine;
            break;
        }
        if (!appendPair(code, value, codeLine))
            return giveClosingEof();
    }
    if (!checkRecord())
        return giveClosingEof();
    ++m_recordsGiven;
    m_ended = m_kind == "EOF";
    return true;
}

CDxfStreamBuf::int_type CDxfStreamBuf::underflow()
{
    if (gptr() < egptr())
        return traits_type::to_int_type(*gptr());
    if (m_nextLine >= m_lineEnds.size() && (m_ended || !readRecord()))
        return traits_type::eof();
    const std::size_t begin = m_nextLine == 0 ? 0 : m_lineEnds[m_nextLine - 1];
    const std::size_t end = m_lineEnds[m_nextLine];
    if (m_nextLine % 2 == 1) { // the parser reads this pair next; dxflib's value stops at a NUL
        const char* value = m_text.data() + begin;
        m_pairs.processCodeValuePair(unsigned(m_codes[m_nextLine / 2]),
                                     std::string(value, strnlen(value, end - begin - 1)));
    }
    ++m_nextLine;
    char* text = m_text.data();
    setg(text + begin, text + begin, text + end);
    return traits_type::to_int_type(*gptr());
}

} // namespace kesto::workbench::dxf
