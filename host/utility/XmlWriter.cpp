#include "utility/XmlWriter.h"

#include "utility/FileLock.h"
#include "utility/XmlReader.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <vector>

namespace kesto::utility::xml {

namespace {

using namespace std::chrono_literals;
constexpr auto kLockWait = 30s;

QString tr(const char* text)
{
    return QCoreApplication::translate("kesto::utility::xml", text);
}

bool isXmlChar(char16_t c)
{
    return c == 0x9 || c == 0xA || c == 0xD || (c >= 0x20 && c <= 0xD7FF)
           || (c >= 0xE000 && c <= 0xFFFD);
}

// Text as element content, or as an attribute value (quotes and whitespace kept as references);
// characters XML cannot carry become U+FFFD, so what is written can always be read.
void appendEscaped(QString& out, QStringView text, bool attribute)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            out += c;
            out += text[++i];
            continue;
        }
        switch (c.unicode()) {
        case u'&':
            out += u"&amp;";
            break;
        case u'<':
            out += u"&lt;";
            break;
        case u'>':
            out += u"&gt;";
            break;
        case u'\r':
            out += u"&#13;";
            break;
        case u'"':
            out += attribute ? QStringView(u"&quot;") : QStringView(u"\"");
            break;
        case u'\n':
            out += attribute ? QStringView(u"&#10;") : QStringView(u"\n");
            break;
        case u'\t':
            out += attribute ? QStringView(u"&#9;") : QStringView(u"\t");
            break;
        default:
            out += isXmlChar(c.unicode()) ? c : QChar(0xFFFD);
            break;
        }
    }
}

bool isSpace(const QDomNode& node)
{
    return node.isText() && !node.isCDATASection() && !node.nodeValue().isEmpty()
           && node.nodeValue().trimmed().isEmpty();
}

bool hasText(const QDomNode& element)
{
    for (QDomNode n = element.firstChild(); !n.isNull(); n = n.nextSibling()) {
        if (n.isText())
            return true;
    }
    return false;
}

void writeStartTag(QString& out, const QDomElement& e)
{
    out += u'<';
    out += e.nodeName();
    const QDomNamedNodeMap map = e.attributes();
    std::vector<std::pair<QString, QString>> attributes;
    attributes.reserve(static_cast<std::size_t>(map.count()));
    for (int i = 0; i < map.count(); ++i) {
        const QDomAttr a = map.item(i).toAttr();
        attributes.emplace_back(a.nodeName(), a.value());
    }
    std::sort(attributes.begin(), attributes.end());
    for (const auto& [name, value] : attributes) {
        out += u' ';
        out += name;
        out += u"=\"";
        appendEscaped(out, value, true);
        out += u'"';
    }
}

void writeLeaf(QString& out, const QDomNode& node)
{
    if (node.isCDATASection()) {
        out += u"<![CDATA[";
        out += node.nodeValue().replace(QStringLiteral("]]>"), QStringLiteral("]]]]><![CDATA[>"));
        out += u"]]>";
    } else if (node.isText()) {
        appendEscaped(out, node.nodeValue(), false);
    } else if (node.isComment()) {
        out += QStringLiteral("<!--") + node.nodeValue() + QStringLiteral("-->");
    } else if (node.isProcessingInstruction()) {
        const QDomProcessingInstruction pi = node.toProcessingInstruction();
        out += QStringLiteral("<?") + pi.target() + u' ' + pi.data() + QStringLiteral("?>");
    }
}

void newLine(QString& out, int depth)
{
    out += u'\n';
    out += QString(depth * 2, u' ');
}

struct SOpen {
    QDomElement element;
    QDomNode next; // the child to write next
    int depth;
    bool indented; // children on lines of their own
};

// Writes the node and everything below it, without recursion.
void writeTree(QString& out, const QDomNode& top)
{
    std::vector<SOpen> open;
    const auto enter = [&](const QDomNode& node, int depth) {
        if (!node.isElement()) {
            writeLeaf(out, node);
            return;
        }
        const QDomElement e = node.toElement();
        writeStartTag(out, e);
        if (!e.hasChildNodes()) {
            out += u"/>";
            return;
        }
        out += u'>';
        // Made in memory and holding no text: indented. Read from a file: as it was.
        open.push_back({e, e.firstChild(), depth, lineOf(e) == 0 && !hasText(e)});
    };
    enter(top, 0);
    while (!open.empty()) {
        SOpen& current = open.back();
        if (current.next.isNull()) {
            if (current.indented)
                newLine(out, current.depth);
            out += QStringLiteral("</") + current.element.nodeName() + u'>';
            open.pop_back();
            continue;
        }
        const QDomNode child = current.next;
        current.next = child.nextSibling();
        const int depth = current.depth + 1;
        if (current.indented)
            newLine(out, depth);
        enter(child, depth); // may reallocate open: current is not used after this
    }
}

} // namespace

QByteArray toBytes(const QDomDocument& doc)
{
    QString out = QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n");
    for (QDomNode n = doc.firstChild(); !n.isNull(); n = n.nextSibling()) {
        const bool declaration =
            n.isProcessingInstruction() && n.toProcessingInstruction().target() == u"xml";
        if (declaration || !(n.isElement() || n.isComment() || n.isProcessingInstruction()))
            continue;
        writeTree(out, n);
        out += u'\n';
    }
    return out.toUtf8();
}

bool saveFile(const QDomDocument& doc, const QString& path, QString* error)
{
    const QFileInfo info(path);
    const QString shown = QDir::toNativeSeparators(path);
    if (info.exists() && !info.isWritable()) {
        if (error)
            *error = tr("%1 は書き込み禁止です。").arg(shown);
        return false;
    }
    const QByteArray bytes = toBytes(doc);
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        if (error)
            *error = tr("%1 に書き込めません (%2)。").arg(shown, file.errorString());
        return false;
    }
    return true;
}

bool rewrite(const QString& path, const std::function<bool(QDomDocument&)>& change, QString* error)
{
    CFileLock lock(path);
    if (!lock.lock(kLockWait, error))
        return false;
    QDomDocument doc;
    return change(doc) && saveFile(doc, path, error);
}

void appendIndented(QDomNode& parent, const QDomNode& child)
{
    const QDomNode last = parent.lastChild();
    if (!isSpace(last)) {
        parent.appendChild(child);
        return;
    }
    QString indent = last.nodeValue() + QStringLiteral("  ");
    const QDomNode first = parent.firstChildElement().previousSibling();
    if (isSpace(first))
        indent = first.nodeValue();
    parent.insertBefore(parent.ownerDocument().createTextNode(indent), last);
    parent.insertBefore(child, last);
}

bool removeIndented(QDomNode& parent, const QDomNode& child)
{
    if (child.parentNode() != parent)
        return false;
    const QDomNode before = child.previousSibling();
    if (parent.removeChild(child).isNull())
        return false;
    if (isSpace(before))
        parent.removeChild(before);
    return true;
}

} // namespace kesto::utility::xml
