#include "utility/XmlReader.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>

#include <vector>

namespace kesto::utility::xml {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("kesto::utility::xml", text);
}

QString describeError(const QXmlStreamReader& xml)
{
    if (xml.error() == QXmlStreamReader::PrematureEndOfDocumentError)
        return tr("ファイルが途中で終わっています");
    return tr("XML の書き方が正しくありません (%1)").arg(xml.errorString());
}

thread_local CReadReport* t_lenientReport = nullptr;

QDomElement startElement(QDomDocument& doc, const QXmlStreamReader& xml, bool namespaces)
{
    QDomElement e;
    if (namespaces) {
        e = doc.createElementNS(xml.namespaceUri().toString(), xml.qualifiedName().toString());
        for (const QXmlStreamNamespaceDeclaration& d : xml.namespaceDeclarations()) {
            const QString name = d.prefix().isEmpty()
                                     ? QStringLiteral("xmlns")
                                     : QStringLiteral("xmlns:") + d.prefix().toString();
            e.setAttributeNS(QStringLiteral("http://www.w3.org/2000/xmlns/"), name,
                             d.namespaceUri().toString());
        }
        for (const QXmlStreamAttribute& a : xml.attributes())
            e.setAttributeNS(a.namespaceUri().toString(), a.qualifiedName().toString(),
                             a.value().toString());
    } else {
        e = doc.createElement(xml.qualifiedName().toString());
        for (const QXmlStreamAttribute& a : xml.attributes())
            e.setAttribute(a.qualifiedName().toString(), a.value().toString());
    }
    e.setNodeValue(QString::number(xml.lineNumber()));
    return e;
}

QDomNode leafNode(QDomDocument& doc, const QXmlStreamReader& xml)
{
    switch (xml.tokenType()) {
    case QXmlStreamReader::Characters:
        return xml.isCDATA() ? QDomNode(doc.createCDATASection(xml.text().toString()))
                             : QDomNode(doc.createTextNode(xml.text().toString()));
    case QXmlStreamReader::Comment:
        return doc.createComment(xml.text().toString());
    case QXmlStreamReader::ProcessingInstruction:
        return doc.createProcessingInstruction(xml.processingInstructionTarget().toString(),
                                               xml.processingInstructionData().toString());
    default:
        return {};
    }
}

} // namespace

SLimits SLimits::forSize(qint64 maxBytes)
{
    SLimits limits;
    limits.maxBytes = maxBytes;
    return limits;
}

CReader::CReader(const SLimits& limits)
    : m_limits(limits)
{}

CReader::~CReader() = default;

bool CReader::open(const QString& path, CReadReport& report)
{
    m_report = &report;
    auto file = std::make_unique<QFile>(path);
    if (!file->open(QIODevice::ReadOnly)) {
        report.refuse(tr("ファイルを開けません (%1)").arg(file->errorString()));
        return false;
    }
    if (file->size() > m_limits.maxBytes) {
        report.refuse(tr("ファイルが大きすぎます (%1 バイト。上限は %2 バイト)")
                          .arg(file->size())
                          .arg(m_limits.maxBytes));
        return false;
    }
    m_device = std::move(file);
    m_xml.setDevice(m_device.get());
    m_xml.setNamespaceProcessing(m_limits.namespaceProcessing);
    return true;
}

bool CReader::open(const QByteArray& bytes, CReadReport& report)
{
    m_report = &report;
    if (bytes.size() > m_limits.maxBytes) {
        report.refuse(tr("ファイルが大きすぎます (%1 バイト。上限は %2 バイト)")
                          .arg(bytes.size())
                          .arg(m_limits.maxBytes));
        return false;
    }
    auto buffer = std::make_unique<QBuffer>();
    buffer->setData(bytes);
    buffer->open(QIODevice::ReadOnly);
    m_device = std::move(buffer);
    m_xml.setDevice(m_device.get());
    m_xml.setNamespaceProcessing(m_limits.namespaceProcessing);
    return true;
}

bool CReader::stop(const QString& reason)
{
    m_stopped = true;
    m_report->stop(m_xml.lineNumber(), reason);
    return false;
}

bool CReader::checkStart()
{
    if (m_depth > m_limits.maxDepth)
        return stop(tr("要素の入れ子が深すぎます (上限 %1 段)").arg(m_limits.maxDepth));
    if (m_device->pos() > m_limits.maxBytes)
        return stop(tr("ファイルが上限の %1 バイトを超えました").arg(m_limits.maxBytes));
    return true;
}

bool CReader::next()
{
    if (!m_device || m_stopped || m_complete)
        return false;
    if (m_xml.tokenType() == QXmlStreamReader::EndElement)
        --m_depth;
    for (;;) {
        const QXmlStreamReader::TokenType token = m_xml.readNext();
        switch (token) {
        case QXmlStreamReader::StartDocument:
            continue;
        case QXmlStreamReader::EndDocument:
            m_complete = true;
            return false;
        case QXmlStreamReader::Invalid:
            return stop(describeError(m_xml));
        case QXmlStreamReader::DTD:
            return stop(tr("DTD (<!DOCTYPE>) と実体宣言は受け付けません"));
        case QXmlStreamReader::EntityReference:
            return stop(tr("実体参照 &%1; は受け付けません").arg(m_xml.name()));
        case QXmlStreamReader::EndElement:
            return true;
        default:
            break;
        }
        m_nodes += 1 + (token == QXmlStreamReader::StartElement ? m_xml.attributes().size() : 0);
        if (m_nodes > m_limits.maxNodes)
            return stop(tr("要素と属性が多すぎます (上限 %1 個)").arg(m_limits.maxNodes));
        if (token != QXmlStreamReader::StartElement)
            return true;
        ++m_depth;
        return checkStart();
    }
}

void readDocument(QDomDocument& doc, CReader& reader)
{
    doc = QDomDocument(QString()); // a document of its own, not a null one
    QXmlStreamReader& xml = reader.xml();
    const bool namespaces = xml.namespaceProcessing();
    // Elements are placed in their parents when they end: a detached parent finds its
    // document at once, so deep nesting costs no more than flat.
    std::vector<QDomNode> open{doc};
    while (reader.next()) {
        switch (xml.tokenType()) {
        case QXmlStreamReader::StartElement:
            open.push_back(startElement(doc, xml, namespaces));
            break;
        case QXmlStreamReader::EndElement: {
            const QDomNode done = open.back();
            open.pop_back();
            open.back().appendChild(done);
            break;
        }
        case QXmlStreamReader::Characters:
            if (open.size() > 1)
                open.back().appendChild(leafNode(doc, xml));
            break;
        default:
            open.back().appendChild(leafNode(doc, xml));
            break;
        }
    }
    while (open.size() > 1) { // what was open when reading stopped
        const QDomNode done = open.back();
        open.pop_back();
        open.back().appendChild(done);
    }
}

CReadReport readDocument(QDomDocument& doc, const QString& path, const SLimits& limits)
{
    CReadReport report;
    CReader reader(limits);
    doc = QDomDocument();
    if (reader.open(path, report))
        readDocument(doc, reader);
    return report;
}

qint64 lineOf(const QDomNode& element)
{
    return element.isElement() ? element.nodeValue().toLongLong() : 0;
}

CSkipBadEntries::CSkipBadEntries(CReadReport& report)
    : m_previous(t_lenientReport)
{
    t_lenientReport = &report;
}

CSkipBadEntries::~CSkipBadEntries()
{
    t_lenientReport = m_previous;
}

bool skipEntry(const QDomElement& entry)
{
    if (!t_lenientReport || entry.isNull())
        return t_lenientReport != nullptr;
    t_lenientReport->skip(
        lineOf(entry),
        tr("<%1> を読み飛ばしました (値が正しくないか、重複しています)").arg(entry.tagName()));
    return true;
}

} // namespace kesto::utility::xml
