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

// Appends the next line to m_text with a '\n' of its own, cut to the limit (the rest skipped)
// and without a '\r' at its end; false at the end of the text.
bool CDxfStreamBuf::appendLine()
{
    const std::size_t start = m_text.size();
    bool any = false;
    for (;;) {
        if (m_at == m_end && !fillBuffer())
            break;
        any = true;
        const char* begin = m_buffer.data() + m_at;
        const auto* newline = static_cast<const char*>(std::memchr(begin, '\n', m_end - m_at));
        const std::size_t length = newline ? std::size_t(newline - begin) : m_end - m_at;
        const std::size_t room = std::size_t(m_limits.maxLineLength) - (m_text.size() - start);
        m_text.append(begin, std::min(length, room));
        m_at += length;
        if (newline) {
            ++m_at;
            break;
        }
    }
    if (!any)
        return false;
    while (m_text.size() > start && m_text.back() == '\r')
        m_text.pop_back();
    m_text += '\n';
    ++m_line;
    return true;
}

std::string_view CDxfStreamBuf::textOf(std::size_t begin, std::size_t end) const
{
    return std::string_view(m_text).substr(begin, end - begin);
}

bool CDxfStreamBuf::stop(std::int64_t line, const QString& reason)
{
    m_stopLine = line;
    m_stopReason = reason;
    return false;
}

// Appends the next pair to m_text. False at the end of the text, or where the pair breaks a rule
// (stop set).
bool CDxfStreamBuf::readPair(SPair& pair)
{
    std::string_view codeText;
    do { // blank lines where a group code belongs are passed over
        pair.begin = m_text.size();
        if (!appendLine())
            return false;
        codeText = trimmed(textOf(pair.begin, m_text.size() - 1));
        if (codeText.empty())
            m_text.resize(pair.begin);
    } while (codeText.empty());
    pair.line = m_line;
    const std::optional<long long> number = toInteger(codeText);
    if (!number || *number < -5 || *number > 1071)
        return stop(
            m_line,
            tr("グループコード %1 が -5 から 1071 の数ではありません").arg(quoted(codeText)));
    pair.code = int(*number);
    pair.valueBegin = m_text.size();
    if (!appendLine())
        return stop(
            pair.line,
            tr("グループコード %1 に値がありません (ファイルが途中で切れています)").arg(pair.code));
    pair.valueEnd = m_text.size() - 1;
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

// Takes the pair read last into the record.
bool CDxfStreamBuf::takePair(const SPair& pair)
{
    const std::string_view value = textOf(pair.valueBegin, pair.valueEnd);
    if (pair.code == 0) {
        m_kind = trimmed(value);
        m_kindLine = pair.line;
        if (!onRecordKind(m_kind))
            return false;
    } else {
        if (++m_values > m_limits.maxPairsPerRecord)
            return stop(pair.line, tr("%1 (%2 行目から) の値が多すぎます (上限 %3)")
                                       .arg(QString::fromStdString(m_kind))
                                       .arg(m_kindLine)
                                       .arg(m_limits.maxPairsPerRecord));
        if (m_expectSectionName && pair.code == 2) {
            m_section = trimmed(value);
            m_expectSectionName = false;
        }
        if (isCountCode(m_kind, pair.code))
            m_counts.push_back({pair.line, pair.code, toInteger(value).value_or(-1)});
    }
    m_valueBounds.push_back(pair.valueBegin);
    m_valueBounds.push_back(pair.valueEnd);
    m_codes.push_back(pair.code);
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

void CDxfStreamBuf::giveClosingEof()
{
    m_text = "0\nEOF\n";
    m_valueBounds = {2, 5};
    m_codes = {0};
    m_ended = true;
}

// The next record, whole and checked, into m_text; at the end, or where the text breaks a rule,
// the closing EOF pair instead.
void CDxfStreamBuf::readRecord()
{
    m_text = m_pending; // the 0 pair that began this record, read with the last one
    m_pending.clear();
    m_valueBounds.clear();
    m_codes.clear();
    m_kind.clear();
    m_values = 0;
    m_counts.clear();
    if (!m_text.empty() && !takePair(m_pendingPair))
        return giveClosingEof();
    SPair pair;
    while (m_kind != "EOF") { // nothing after EOF is read
        if (!readPair(pair)) {
            const bool empty = m_recordsGiven == 0 && m_codes.empty();
            if (m_stopReason.isEmpty())
                stop(empty ? 0 : m_line,
                     empty ? tr("ファイルが空です")
                           : tr("ファイルが EOF で終わっていません (途中で切れています)"));
            return giveClosingEof();
        }
        if (pair.code == 0 && !m_codes.empty()) { // the next record begins
            m_pending = m_text.substr(pair.begin);
            m_pendingPair = {0, pair.line, 0, pair.valueBegin - pair.begin,
                             pair.valueEnd - pair.begin};
            m_text.resize(pair.begin);
            break;
        }
        if (!takePair(pair))
            return giveClosingEof();
    }
    if (!checkRecord())
        return giveClosingEof();
    ++m_recordsGiven;
    m_ended = m_kind == "EOF";
}

// The record's pairs, before the parser reads any of them: a pair only changes what the creation
// interface keeps of its own record, and the parser reports a record once the next one begins,
// so this is what dxflib's file reader, which reports each pair just before parsing it, gives.
void CDxfStreamBuf::reportPairs()
{
    for (std::size_t pair = 0; pair < m_codes.size(); ++pair) {
        const std::size_t begin = m_valueBounds[2 * pair];
        const std::size_t end = m_valueBounds[2 * pair + 1];
        const char* value = m_text.data() + begin;
        m_value.assign(value, strnlen(value, end - begin)); // dxflib's value stops at a NUL
        m_pairs.processCodeValuePair(unsigned(m_codes[pair]), m_value);
    }
}

CDxfStreamBuf::int_type CDxfStreamBuf::underflow()
{
    if (gptr() < egptr())
        return traits_type::to_int_type(*gptr());
    if (m_ended)
        return traits_type::eof();
    readRecord();
    reportPairs();
    char* text = m_text.data();
    setg(text, text, text + m_text.size());
    return traits_type::to_int_type(*gptr());
}

} // namespace kesto::workbench::dxf
