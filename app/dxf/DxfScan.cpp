#include "dxf/DxfScan.h"

#include <QByteArrayView>

#include <array>
#include <charconv>
#include <optional>
#include <string_view>
#include <vector>

namespace kesto::workbench::dxf {

namespace {

std::string_view trimmed(std::string_view s)
{
    while (!s.empty() && (s.front() == ' ' || s.front() == '\t'))
        s.remove_prefix(1);
    while (!s.empty() && (s.back() == ' ' || s.back() == '\t' || s.back() == '\r'))
        s.remove_suffix(1);
    return s;
}

std::optional<long long> toInteger(std::string_view s)
{
    long long value = 0;
    const auto [end, ec] = std::from_chars(s.data(), s.data() + s.size(), value);
    if (ec != std::errc() || end != s.data() + s.size())
        return std::nullopt;
    return value;
}

QString quoted(std::string_view s)
{
    QString text =
        QString::fromLatin1(s.data(), static_cast<qsizetype>(std::min<std::size_t>(s.size(), 24)));
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

struct SCount {
    int line;
    int code;
    long long value;
};

// Reads the text pair by pair.
class CScanner {
public:
    explicit CScanner(const QByteArray& text)
        : m_text(text.constData(), static_cast<std::size_t>(text.size()))
    {}

    bool run(QString* error);
    bool hasLongLines() const { return m_longLines; }

private:
    bool nextLine(std::string_view& line);
    bool fail(QString* error, const QString& text);
    bool onRecordStart(std::string_view kind, QString* error);
    bool onPair(int code, std::string_view value, QString* error);
    bool closeRecord(QString* error);

    std::string_view m_text;
    std::size_t m_at = 0;
    int m_line = 0;
    bool m_longLines = false;
    bool m_inSection = false;
    bool m_expectSectionName = false;
    bool m_ended = false;
    std::string m_section;
    std::string m_entity;
    int m_entityLine = 0;
    long long m_entityPairs = 0;
    std::vector<SCount> m_counts;
};

bool CScanner::fail(QString* error, const QString& text)
{
    if (error)
        *error = text;
    return false;
}

bool CScanner::nextLine(std::string_view& line)
{
    if (m_at >= m_text.size())
        return false;
    const std::size_t end = m_text.find('\n', m_at);
    const std::size_t stop = end == std::string_view::npos ? m_text.size() : end;
    line = trimmed(m_text.substr(m_at, stop - m_at));
    m_longLines = m_longLines || stop - m_at > kMaxLineLength;
    m_at = stop + 1;
    ++m_line;
    return true;
}

bool CScanner::closeRecord(QString* error)
{
    for (const SCount& count : m_counts) {
        if (count.value < 0 || count.value > m_entityPairs)
            return fail(error, QStringLiteral("line %1: %2 (from line %3) gives the count %4 in "
                                              "group code %5, but it holds %6 values")
                                   .arg(count.line)
                                   .arg(QString::fromStdString(m_entity))
                                   .arg(m_entityLine)
                                   .arg(count.value)
                                   .arg(count.code)
                                   .arg(m_entityPairs));
    }
    m_counts.clear();
    return true;
}

bool CScanner::onRecordStart(std::string_view kind, QString* error)
{
    if (!closeRecord(error))
        return false;
    m_entity = kind;
    m_entityLine = m_line - 1;
    m_entityPairs = 0;
    if (kind == "SECTION") {
        if (m_inSection)
            return fail(error, QStringLiteral("line %1: section %2 is not closed before the next "
                                              "one")
                                   .arg(m_line - 1)
                                   .arg(QString::fromStdString(m_section)));
        m_inSection = m_expectSectionName = true;
    } else if (kind == "ENDSEC") {
        m_inSection = false;
    } else if (kind == "EOF") {
        m_ended = true;
    }
    return true;
}

bool CScanner::onPair(int code, std::string_view value, QString* error)
{
    if (code == 0)
        return onRecordStart(value, error);
    ++m_entityPairs;
    if (m_expectSectionName && code == 2) {
        m_section = value;
        m_expectSectionName = false;
    }
    if (isCountCode(m_entity, code)) {
        const std::optional<long long> count = toInteger(value);
        m_counts.push_back({m_line, code, count ? *count : -1});
    }
    return true;
}

bool CScanner::run(QString* error)
{
    std::string_view codeLine;
    std::string_view value;
    while (!m_ended && nextLine(codeLine)) {
        const std::optional<long long> code = toInteger(codeLine);
        if (!code || *code < -5 || *code > 1071)
            return fail(error, QStringLiteral("line %1: group code %2 is not a number from -5 to "
                                              "1071")
                                   .arg(m_line)
                                   .arg(quoted(codeLine)));
        if (!nextLine(value))
            return fail(error, QStringLiteral("line %1: group code %2 has no value (the file is "
                                              "truncated)")
                                   .arg(m_line)
                                   .arg(*code));
        if (!onPair(static_cast<int>(*code), value, error))
            return false;
    }
    if (m_inSection)
        return fail(error, QStringLiteral("the file ends inside section %1 (it is truncated)")
                               .arg(QString::fromStdString(m_section)));
    if (!m_ended)
        return fail(error, QStringLiteral("the file does not end with EOF (it is truncated)"));
    return closeRecord(error);
}

// The same text with every line longer than the parser takes cut to its limit.
QByteArray cutLongLines(const QByteArray& text)
{
    QByteArray out;
    out.reserve(text.size());
    qsizetype at = 0;
    while (at < text.size()) {
        qsizetype end = text.indexOf('\n', at);
        if (end < 0)
            end = text.size();
        const QByteArrayView line(text.constData() + at, end - at);
        out += line.first(std::min<qsizetype>(line.size(), kMaxLineLength));
        out += '\n';
        at = end + 1;
    }
    return out;
}

} // namespace

bool checkDxfText(QByteArray& text, QString* error)
{
    auto fail = [error](const QString& reason) {
        if (error)
            *error = reason;
        return false;
    };
    if (text.trimmed().isEmpty())
        return fail(QStringLiteral("the file is empty"));
    if (text.startsWith("AutoCAD Binary DXF"))
        return fail(QStringLiteral("binary DXF is not supported; save the drawing as ASCII DXF"));
    CScanner scanner(text);
    if (!scanner.run(error))
        return false;
    if (scanner.hasLongLines())
        text = cutLongLines(text);
    return true;
}

} // namespace kesto::workbench::dxf
