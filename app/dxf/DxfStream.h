#pragma once

#include <QString>

#include <cstdint>
#include <streambuf>
#include <string>
#include <string_view>
#include <vector>

class DL_CreationInterface;
class QIODevice;

namespace kesto::workbench::dxf {

// What one DXF drawing may hold. dxflib reserves memory from the counts a file gives (vertices,
// knots, control points), so every limit is checked before the parser sees a record.
struct SDxfLimits {
    std::int64_t maxRecords = 20'000'000;       // entities, table entries, header variables
    std::int64_t maxPairsPerRecord = 4'000'000; // the vertices of one polyline and the like
    int maxLineLength = 1000; // longer lines are cut: the parser splits lines of 1,023 bytes
    int maxBlockDepth = 8;    // BLOCK inside BLOCK without ENDBLK
};

// The text of a DXF file as the parser reads it (DL_Dxf::in(std::istream&)), streamed from the
// device. It is read record by record (a 0 pair and the pairs up to the next 0 pair); a record
// reaches the parser only once it is known to keep every rule: group codes that are numbers
// from -5 to 1071, each with a value, counts no larger than the values their record holds,
// sections closed before the next begins, and the limits. The stream ends after the EOF pair,
// whatever follows it, or, when a record breaks a rule or the text ends without EOF, before that
// record (with a closing EOF pair so the parser finishes what it has). The pairs of a record go
// to the creation interface's processCodeValuePair as the parser is given the record, as
// dxflib's own file reader reports them. Memory is the largest record, whatever the file's size.
class CDxfStreamBuf : public std::streambuf {
public:
    CDxfStreamBuf(QIODevice& source, DL_CreationInterface& pairs, const SDxfLimits& limits = {});

    // True when the text was read to its EOF; otherwise the line and reason where it stopped.
    bool readToEnd() const { return m_stopReason.isEmpty(); }
    std::int64_t stopLine() const { return m_stopLine; }
    const QString& stopReason() const { return m_stopReason; }
    // Records the parser has been given, the closing EOF pair not counted.
    std::int64_t recordsGiven() const { return m_recordsGiven; }

protected:
    int_type underflow() override;

private:
    struct SCount {
        std::int64_t line;
        int code;
        long long value;
    };

    // A pair in m_text: where it begins, its code and line, where its value lies.
    struct SPair {
        int code = 0;
        std::int64_t line = 0;
        std::size_t begin = 0;
        std::size_t valueBegin = 0;
        std::size_t valueEnd = 0; // before the value's '\n'
    };

    bool fillBuffer();
    bool appendLine();
    std::string_view textOf(std::size_t begin, std::size_t end) const;
    bool readPair(SPair& pair);
    void readRecord();
    void reportPairs();
    bool takePair(const SPair& pair);
    bool checkRecord();
    bool onRecordKind(const std::string& kind);
    bool stop(std::int64_t line, const QString& reason);
    void giveClosingEof();

    QIODevice& m_source;
    DL_CreationInterface& m_pairs;
    SDxfLimits m_limits;

    // Reading the device.
    std::vector<char> m_buffer;
    std::size_t m_at = 0;
    std::size_t m_end = 0;
    bool m_sourceDone = false;
    std::int64_t m_line = 0;

    // The record being given: its lines, each ended by '\n'; where each pair's value begins and
    // ends; the pairs' codes.
    std::string m_text;
    std::vector<std::size_t> m_valueBounds;
    std::vector<int> m_codes;
    std::string m_value;

    // The record read so far and the checks on it.
    std::string m_kind;
    std::int64_t m_kindLine = 0;
    std::int64_t m_values = 0;
    std::vector<SCount> m_counts;
    std::string m_pending; // the 0 pair that begins the next record, once read
    SPair m_pendingPair;

    std::string m_section;
    bool m_inSection = false;
    bool m_expectSectionName = false;
    int m_blockDepth = 0;
    bool m_ended = false; // EOF given, or the stream stopped
    std::int64_t m_records = 0;
    std::int64_t m_recordsGiven = 0;
    std::int64_t m_stopLine = 0;
    QString m_stopReason;
};

} // namespace kesto::workbench::dxf
