// The host's one XML reader and writer: what it refuses and where, what it keeps of a file that
// stops early, a stable text without recursion, and settings that skip and name a bad entry.
#include "support/TestSupport.h"

#include "setting/LineEndSetting.h"
#include "setting/ShortCutSetting.h"
#include "setting/SystemColorSetting.h"
#include "setting/SystemLineTypeSetting.h"
#include "setting/SystemPaperFrameSetting.h"
#include "setting/SystemPaperSizeSetting.h"
#include "utility/Xml.h"

#include <QTest>

#include <functional>

using namespace kesto;
namespace xml = utility::xml;

Q_DECLARE_METATYPE(std::function<ui::setting::CSettingBase*()>)

namespace {

// The problems of reading the text, and the names of the elements kept under the root.
std::pair<QString, QStringList> readText(const QByteArray& text, const xml::SLimits& limits)
{
    utility::CReadReport report;
    xml::CReader reader(limits);
    QDomDocument doc;
    if (reader.open(text, report))
        xml::readDocument(doc, reader);
    QStringList kept;
    for (QDomElement e = doc.documentElement().firstChildElement(); !e.isNull();
         e = e.nextSiblingElement())
        kept << e.tagName() + u':' + QString::number(xml::lineOf(e));
    return {report.details(), kept};
}

xml::SLimits limits(qint64 bytes, int depth, qint64 nodes)
{
    xml::SLimits l;
    l.maxBytes = bytes;
    l.maxDepth = depth;
    l.maxNodes = nodes;
    return l;
}

} // namespace

class TestXmlFiles : public QObject {
    Q_OBJECT

private slots:
    void theReaderStopsWhereARuleIsBrokenAndKeepsWhatCameBefore_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("depth");
        QTest::addColumn<int>("nodes");
        QTest::addColumn<QString>("problems");
        QTest::addColumn<QStringList>("kept");
        const QByteArray two = "<r>\n<a/>\n<b/>\n";
        QTest::newRow("whole") << two + "</r>" << 256 << 100 << "" << QStringList{"a:2", "b:3"};
        QTest::newRow("truncated")
            << two + "<c x=\"1" << 256 << 100 << "4 行目: ファイルが途中で終わっています"
            << QStringList{"a:2", "b:3"};
        QTest::newRow("as deep as allowed")
            << two + "<c><d/></c></r>" << 3 << 100 << "" << QStringList{"a:2", "b:3", "c:4"};
        QTest::newRow("too deep") << two + "<c><d><e/></d></c></r>" << 3 << 100
                                  << "4 行目: 要素の入れ子が深すぎます (上限 3 段)"
                                  << QStringList{"a:2", "b:3", "c:4"};
        QTest::newRow("DTD") << "<!DOCTYPE r [<!ENTITY e \"x\">]>\n" + two + "</r>" << 256 << 100
                             << "1 行目: DTD (<!DOCTYPE>) と実体宣言は受け付けません"
                             << QStringList{};
        QTest::newRow("too many nodes")
            << two + "<c p=\"1\" q=\"2\"/></r>" << 256 << 6
            << "4 行目: 要素と属性が多すぎます (上限 6 個)" << QStringList{"a:2", "b:3"};
        QTest::newRow("too large")
            << QByteArray(65, ' ') + "<r/>" << 256 << 100
            << "ファイルが大きすぎます (69 バイト。上限は 64 バイト)" << QStringList{};
    }
    void theReaderStopsWhereARuleIsBrokenAndKeepsWhatCameBefore()
    {
        QFETCH(QByteArray, text);
        QFETCH(int, depth);
        QFETCH(int, nodes);
        QFETCH(QString, problems);
        QFETCH(QStringList, kept);
        const auto [read, elements] = readText(text, limits(64, depth, nodes));
        QCOMPARE(read, problems);
        QCOMPARE(elements, kept);
    }

    // The 100,000-level file stops at the depth cap; a file over the cap is refused unread.
    void largeAndDeepFilesAreRefusedAtTheirCaps()
    {
        const QByteArray deep = "<r>" + QByteArray("<a>").repeated(100000) + "</r>";
        QCOMPARE(readText(deep, {}).first,
                 QStringLiteral("1 行目: 要素の入れ子が深すぎます (上限 256 段)"));
        test::HostFixture host;
        const QString huge = host.path(QStringLiteral("huge.xml"));
        QFile file(huge);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(60LL * 1024 * 1024)); // sparse
        QDomDocument doc;
        QString error;
        QVERIFY(!xml::load(doc, huge.toStdWString(), &error));
        QCOMPARE(error,
                 QStringLiteral("ファイルが大きすぎます (62914560 バイト。上限は 4194304 バイト)"));
    }

    // Attributes in name order, the layout of what was read kept, what XML cannot carry
    // replaced; 5,000 levels made in memory are written without recursion.
    void writingIsStableAndNeverRecurses()
    {
        const QByteArray text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                "<r><!--c--><a z=\"1\" b=\"&quot;&#10;\">t &amp; u</a>\n"
                                "\t<m>x<i/>y</m><![CDATA[<raw>]]><?p d?></r>\n";
        QDomDocument doc;
        QVERIFY(xml::parse(doc, text));
        QByteArray sorted = text;
        QCOMPARE(xml::toBytes(doc),
                 sorted.replace("z=\"1\" b=\"&quot;&#10;\"", "b=\"&quot;&#10;\" z=\"1\""));
        QDomElement made = doc.createElement(QStringLiteral("n"));
        made.setAttribute(QStringLiteral("v"), QStringLiteral("a\u0001b"));
        made.appendChild(doc.createElement(QStringLiteral("k")));
        doc.documentElement().appendChild(made);
        QVERIFY2(xml::toBytes(doc).endsWith("<n v=\"a\xEF\xBF\xBD"
                                            "b\">\n    <k/>\n  </n></r>\n"),
                 xml::toBytes(doc).constData());

        QDomDocument deep;
        QDomElement at = deep.createElement(QStringLiteral("d"));
        deep.appendChild(at);
        for (int i = 0; i < 5000; ++i)
            at = at.appendChild(deep.createElement(QStringLiteral("d"))).toElement();
        const QByteArray written = xml::toBytes(deep);
        QCOMPARE(written.count("<d>"), 5000);
        QVERIFY(written.endsWith("\n  </d>\n</d>\n"));
    }

    // Read leniently, a bad entry is skipped and named and the others are kept; read all or
    // nothing, the same file is refused.
    void settingsSkipABadEntryAndNameIt_data()
    {
        using Make = std::function<ui::setting::CSettingBase*()>;
        QTest::addColumn<Make>("make");
        QTest::addColumn<QByteArray>("entries"); // the second entry is bad
        QTest::addColumn<QByteArray>("kept");
        using namespace ui::setting;
        QTest::newRow("colour name twice") << Make([] {
            return new CSystemColorSetting;
        }) << QByteArray("<Color name=\"赤\" rgb=\"#FF0000\"/><Color name=\"赤\" rgb=\"#00FF00\"/>")
                                           << QByteArray("#FF0000");
        QTest::newRow("line type id twice")
            << Make([] { return new CSystemLineTypeSetting; })
            << QByteArray("<LineType id=\"11\" name=\"実線\"/><LineType id=\"11\" name=\"破線\"/>")
            << QByteArray("実線");
        QTest::newRow("line end size below 0")
            << Make([] { return new CLineEndSetting; })
            << QByteArray(
                   "<LineEnd category=\"1\" name=\"矢印\" scaling=\"2\" size1=\"3\" size2=\"1\"/>"
                   "<LineEnd category=\"1\" name=\"点\" scaling=\"2\" size1=\"-3\" size2=\"1\"/>")
            << QByteArray("矢印");
        QTest::newRow("key taken twice")
            << Make([] { return new CShortCutSetting; })
            << QByteArray("<ShortCut flags=\"9\" key=\"83\" command=\"10\"/>"
                          "<ShortCut flags=\"9\" key=\"83\" command=\"11\"/>")
            << QByteArray("command=\"10\"");
        QTest::newRow("paper of height 0")
            << Make([] { return new CSystemPaperSizeSetting; })
            << QByteArray("<PaperSize height=\"841\" name=\"A0\" width=\"1189\"/>"
                          "<PaperSize height=\"0\" name=\"A9\" width=\"10\"/>")
            << QByteArray("A0");
        QTest::newRow("frame without a name")
            << Make([] { return new CSystemPaperFrameSetting; })
            << QByteArray("<PaperFrame a=\"1\" b=\"1\" c=\"1\" d=\"1\" e=\"1\" f=\"1\" g=\"1\" "
                          "h=\"1\" name=\"F\"/>"
                          "<PaperFrame a=\"1\"/>")
            << QByteArray("name=\"F\"");
    }
    void settingsSkipABadEntryAndNameIt()
    {
        QFETCH(std::function<ui::setting::CSettingBase*()>, make);
        QFETCH(QByteArray, entries);
        QFETCH(QByteArray, kept);
        test::HostFixture host;
        const std::unique_ptr<ui::setting::CSettingBase> setting(make());
        const QString path = host.path(QStringLiteral("s.xml"));
        const QString root = setting->xmlRootName();
        const int split = entries.indexOf("/><") + 2;
        QVERIFY(test::writeFile(path, "<" + root.toUtf8() + ">\n" + entries.left(split) + "\n"
                                          + entries.mid(split) + "\n</" + root.toUtf8() + ">"));
        QVERIFY(!setting->loadXML(path.toStdWString()));
        utility::CReadReport report;
        QVERIFY(setting->readXML(path.toStdWString(), report));
        const QString tag =
            QString::fromUtf8(entries.mid(split + 1, entries.indexOf(' ', split) - split - 1));
        QCOMPARE(
            report.details(),
            QStringLiteral("3 行目: <%1> を読み飛ばしました (値が正しくないか、重複しています)")
                .arg(tag));
        const QByteArray saved = xml::toBytes(setting->toXML());
        QVERIFY2(saved.contains(kept) && saved.count(("<" + tag + u' ').toUtf8()) == 1,
                 saved.constData());
    }
};

QTEST_MAIN(TestXmlFiles)
#include "tst_xmlfiles.moc"
