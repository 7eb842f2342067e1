#pragma once

#include "utility/ReadReport.h"

#include <QDomDocument>
#include <QXmlStreamReader>

#include <memory>

class QIODevice;

// The one way the host reads an XML file. Files on disk are untrusted: the reader refuses a
// file over its size cap, any DTD (so no entity is ever declared or expanded, whatever the
// encoding: the check is made on the decoded text), nesting deeper than its depth cap and more
// nodes than its node cap. What was read before reading stopped stays usable, and the report
// names the line and the reason.
namespace kesto::utility::xml {

// Settings and data files; a larger file is not one of them.
inline constexpr qint64 kMaxDocumentBytes = 4LL * 1024 * 1024;
inline constexpr int kMaxDepth = 256;
// A document of this many nodes takes about 200 MB in a DOM.
inline constexpr qint64 kMaxNodes = 400'000;

struct SLimits {
    qint64 maxBytes = kMaxDocumentBytes;
    int maxDepth = kMaxDepth;
    qint64 maxNodes = kMaxNodes; // elements, attributes, texts, comments
    bool namespaceProcessing = false;

    static SLimits forSize(qint64 maxBytes);
};

class CReader {
public:
    explicit CReader(const SLimits& limits = {});
    ~CReader();
    CReader(const CReader&) = delete;
    CReader& operator=(const CReader&) = delete;

    // Opens the file or the bytes; false (refused in the report) when the file cannot be opened
    // or is larger than the cap.
    bool open(const QString& path, CReadReport& report);
    bool open(const QByteArray& bytes, CReadReport& report);

    // Moves to the next token a loader sees: StartElement, EndElement, Characters, Comment or
    // ProcessingInstruction. False at the end of the document, and where reading stops for a
    // broken rule or a malformed text (reported with its line).
    bool next();

    QXmlStreamReader& xml() { return m_xml; }
    // Elements open at the current token, the current start element included.
    int depth() const { return m_depth; }
    qint64 line() const { return m_xml.lineNumber(); }
    // True once the document has been read to its end without a problem.
    bool isComplete() const { return m_complete; }

private:
    bool stop(const QString& reason);
    bool checkStart();

    SLimits m_limits;
    std::unique_ptr<QIODevice> m_device;
    QXmlStreamReader m_xml;
    CReadReport* m_report = nullptr;
    int m_depth = 0;
    qint64 m_nodes = 0;
    bool m_complete = false;
    bool m_stopped = false;
};

// Reads a whole document with the reader, keeping its layout (the whitespace between elements,
// so a file saved again keeps its indentation) and each element's line (lineOf). A document
// that could not be read fully keeps what came before the problem; it may have no root.
void readDocument(QDomDocument& doc, CReader& reader);
CReadReport readDocument(QDomDocument& doc, const QString& path, const SLimits& limits = {});

// The line of an element read by readDocument; 0 for an element made in memory. (An element's
// node value, which DOM leaves unused, carries it.)
qint64 lineOf(const QDomNode& element);

// Reading a settings file leniently: while one lives on this thread, loaders skip the entries
// they cannot read and name them in the report, instead of failing the whole element.
class CSkipBadEntries {
public:
    explicit CSkipBadEntries(CReadReport& report);
    ~CSkipBadEntries();
    CSkipBadEntries(const CSkipBadEntries&) = delete;
    CSkipBadEntries& operator=(const CSkipBadEntries&) = delete;

private:
    CReadReport* m_previous;
};

// For a loader that meets an entry it cannot read: true when the entry is skipped (and named
// in the report of the CSkipBadEntries on this thread), false when the loader must fail. A
// missing entry (null) is skipped without a word: what it would have set stays as it was.
bool skipEntry(const QDomElement& entry);

} // namespace kesto::utility::xml
