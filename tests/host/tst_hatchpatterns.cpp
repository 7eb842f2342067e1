// The hatch pattern records and the system's hatching registry: defaults, copies without
// attributes, their XML with its defences and line-type rule, and the DOM helpers they use.
#include "support/TestSupport.h"

#include "setting/HatchPatterns.h"
#include "setting/SystemHatchingSetting.h"
#include "setting/SystemLineTypeSetting.h"
#include "utility/Xml.h"

#include <QTest>

#include <set>

using namespace kesto;
using namespace kesto::ui::setting;

namespace {

const KsColor kRed(0xFF0000, KsColor::System, L"赤");
const KsColor kGreen(0x00A000, KsColor::System, L"緑");

SHatchFrame frame(const KsColor& color, const wchar_t* lineType, bool keepColor = false)
{
    SHatchFrame f;
    f.initByDefault();
    f.color = color;
    f.lineTypeName = lineType;
    f.lineWidthKind = KsLineWidth::ExtraBold;
    f.lineWidth = 1.0 / 3.0;
    f.keepColor = keepColor;
    return f;
}

SSlantPatternLine line(double angle, double spacing, const KsColor& color)
{
    SSlantPatternLine l;
    l.initByDefault();
    l.angle = angle;
    l.spacing = spacing;
    l.color = color;
    l.placementX = -12.5;
    l.placementY = 1e-7;
    return l;
}

void giveFrames(CHatchPatternBase& p)
{
    p.outerFrame = frame(kRed, L"破線");
    p.innerFrame = frame(kGreen, L"点線", true);
    p.innerFrames = {frame(kRed, L"実線"), frame(kGreen, L"一点鎖線", true)};
    p.innerFrames[1].drawFrame = false;
}

SSlantPattern twoLines()
{
    SSlantPattern p;
    p.name = L"交差斜線（細）";
    p.lines = {line(45.0, 1.5, kRed), line(135.0, 1.5, kGreen)};
    giveFrames(p);
    return p;
}

SFigurePattern tiles()
{
    SFigurePattern p;
    p.name = L"ブロック積み";
    p.baseFigureName = L"レンガ";
    p.placement = {30.0, 15.0, 20.0, 105.0, 10.0, 19.5, 9.5};
    giveFrames(p);
    return p;
}

SCoatingPattern fill()
{
    SCoatingPattern p;
    p.name = L"水面";
    p.sameAsBackground = true;
    p.color = kGreen;
    p.drawOrder = SCoatingPattern::Opaque;
    p.brushKind = 11;
    p.transparent = true;
    p.transparencyRate = 100;
    p.drawAtBack = true;
    giveFrames(p);
    return p;
}

// The pattern's element, written into a fresh document.
template <class Pattern>
QDomElement written(const Pattern& p, QDomDocument& doc)
{
    QDomElement root = doc.createElement(QStringLiteral("root"));
    doc.appendChild(root);
    [&] { QVERIFY(p.saveXMLNode(root, doc)); }();
    return root.firstChildElement();
}

// Loaded from its element into a pattern that differs, it is the same again.
template <class Pattern>
bool roundTrips(const Pattern& p, QDomDocument& doc)
{
    Pattern loaded;
    return loaded.loadXMLNode(written(p, doc), nullptr) && loaded == p;
}

QDomElement parsed(const QString& text)
{
    QDomDocument doc;
    doc.setContent(text);
    return doc.documentElement();
}

CSystemLineTypeSetting twoLineTypes()
{
    CSystemLineTypeSetting table;
    table.setLineTypes({KsLineType(1, L"実線"), KsLineType(2, L"破線", KsLineType::Pattern)});
    return table;
}

} // namespace

class TestHatchPatterns : public QObject {
    Q_OBJECT

private slots:
    // Resetting a pattern drops its extra lines and inner frames: it is as built.
    void resettingAPatternMakesItAsBuilt()
    {
        SSlantPattern slant = twoLines();
        SFigurePattern figure = tiles();
        SCoatingPattern coating = fill();
        SHoldPattern hold;
        giveFrames(hold);
        slant.initByDefault();
        figure.initByDefault();
        coating.initByDefault();
        hold.initByDefault();
        QVERIFY(slant == SSlantPattern() && slant.lines.size() == 1 && slant.innerFrames.empty());
        QVERIFY(figure == SFigurePattern() && coating == SCoatingPattern());
        QVERIFY(hold == SHoldPattern());
    }

    void copyingWithoutAttributesKeepsTheFramesAndColours()
    {
        SFigurePattern figure;
        figure.copyWithoutAttribute(tiles());
        QVERIFY(figure.name == L"ブロック積み" && figure.baseFigureName == L"レンガ");
        QVERIFY(figure.placement == tiles().placement && figure.innerFrames.empty());
        QVERIFY(figure.outerFrame == SFigurePattern().outerFrame);

        // Three source lines onto two: the third takes the last line's attributes.
        SSlantPattern slant = twoLines();
        SSlantPattern source;
        source.name = L"三方向";
        source.lines = {line(0.0, 3.0, kGreen), line(60.0, 4.0, kGreen), line(120.0, 5.0, kGreen)};
        slant.copyWithoutAttribute(source);
        QVERIFY(slant.name == L"三方向");
        QVERIFY(slant.lines
                == std::vector(
                    {line(0.0, 3.0, kRed), line(60.0, 4.0, kGreen), line(120.0, 5.0, kGreen)}));
        QVERIFY(slant.outerFrame == twoLines().outerFrame && slant.innerFrames.size() == 2);

        SSlantPattern empty;
        empty.lines.clear();
        empty.copyWithoutAttribute(source);
        QVERIFY(empty.lines[0].color.isByLayer() && empty.lines[0].spacing == 3.0);

        SCoatingPattern coating;
        coating.copyWithoutAttribute(fill());
        SCoatingPattern expected = fill(); // with the colour and frames it had
        expected.color = coating.color;
        expected.sameAsBackground = false;
        expected.outerFrame = expected.innerFrame = SCoatingPattern().innerFrame;
        expected.innerFrames.clear();
        QVERIFY(coating == expected && coating.color == SCoatingPattern().color);

        SHoldPattern hold;
        SHoldPattern other;
        giveFrames(other);
        hold.copyWithoutAttribute(other);
        QVERIFY(hold == SHoldPattern());
    }

    void everyPatternRoundTripsThroughItsElement()
    {
        QDomDocument doc;
        SHoldPattern hold;
        giveFrames(hold);
        SSlantPattern noLines = twoLines(); // an emptied list comes back empty
        noLines.lines.clear();
        noLines.innerFrames.clear();
        QVERIFY(roundTrips(tiles(), doc) && roundTrips(twoLines(), doc));
        QVERIFY(roundTrips(fill(), doc) && roundTrips(hold, doc) && roundTrips(noLines, doc));

        // Each pattern answers to its own element only.
        SFigurePattern figure;
        SSlantPattern slant;
        QVERIFY(!figure.loadXMLNode(written(twoLines(), doc), nullptr));
        QVERIFY(!slant.loadXMLNode(written(fill(), doc), nullptr));
        QVERIFY(!SCoatingPattern().loadXMLNode(QDomNode(), nullptr));
    }

    void missingAttributesKeepTheirFields()
    {
        SCoatingPattern coating = fill();
        QVERIFY(coating.loadXMLNode(parsed(QStringLiteral("<CoatingPattern brushKind=\"4\">"
                                                          "<InnerFrame draw=\"0\"/>"
                                                          "</CoatingPattern>")),
                                    nullptr));
        SCoatingPattern expected = fill();
        expected.brushKind = 4;
        expected.innerFrame.drawFrame = false;
        QVERIFY(coating == expected);

        // A slant pattern reads at most four lines; each starts from the default line.
        SSlantPattern slant = twoLines();
        QVERIFY(slant.loadXMLNode(
            parsed(QStringLiteral("<SlantPattern><Lines><Line angle=\"10\"/><Line/><Line/><Line/>"
                                  "<Line/><Line/></Lines></SlantPattern>")),
            nullptr));
        QCOMPARE(slant.lines.size(), SSlantPattern::kMaxLines);
        QCOMPARE(slant.lines[0].angle, 10.0);
        QCOMPARE(slant.lines[1].spacing, 2.0);
        QVERIFY(slant.name == twoLines().name);
        QVERIFY(slant.outerFrame == twoLines().outerFrame);
    }

    void aMalformedValueRefusesTheWholeElement_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::newRow("spacing 0") << "<SlantPattern><Lines><Line spacing=\"0\"/></Lines>"
                                      "</SlantPattern>";
        QTest::newRow("spacing text") << "<SlantPattern><Lines><Line/><Line spacing=\"2mm\"/>"
                                         "</Lines></SlantPattern>";
        QTest::newRow("angle nan") << "<SlantPattern><Lines><Line angle=\"nan\"/></Lines>"
                                      "</SlantPattern>";
        QTest::newRow("x inf") << "<SlantPattern><Lines><Line x=\"inf\"/></Lines></SlantPattern>";
        QTest::newRow("width kind") << "<SlantPattern><OuterFrame widthKind=\"5\"/></SlantPattern>";
        QTest::newRow("negative width") << "<SlantPattern><InnerFrame width=\"-0.1\"/>"
                                           "</SlantPattern>";
        QTest::newRow("colour name") << "<SlantPattern><OuterFrame color=\"red\"/></SlantPattern>";
        QTest::newRow("colour type") << "<SlantPattern><OuterFrame colorType=\"x\"/>"
                                        "</SlantPattern>";
        QTest::newRow("flag") << "<SlantPattern><InnerFrames><Frame keepColor=\"yes\"/>"
                                 "</InnerFrames></SlantPattern>";
        QTest::newRow("brush") << "<CoatingPattern brushKind=\"12\"/>";
        QTest::newRow("rate") << "<CoatingPattern transparencyRate=\"101\"/>";
        QTest::newRow("order") << "<CoatingPattern drawOrder=\"-1\"/>";
        QTest::newRow("length") << "<FigurePattern length1=\"0\"/>";
        QTest::newRow("height") << "<FigurePattern height=\"-3\"/>";
        QTest::newRow("huge angle") << "<FigurePattern baseAngle=\"1e300\"/>";
    }

    void aMalformedValueRefusesTheWholeElement()
    {
        QFETCH(QString, xml);
        const QDomElement e = parsed(xml);
        QVERIFY(!e.isNull());
        SSlantPattern slant = twoLines();
        SCoatingPattern coating = fill();
        SFigurePattern figure = tiles();
        QVERIFY(!slant.loadXMLNode(e, nullptr));
        QVERIFY(!coating.loadXMLNode(e, nullptr));
        QVERIFY(!figure.loadXMLNode(e, nullptr));
        QVERIFY(slant == twoLines());
        QVERIFY(coating == fill());
        QVERIFY(figure == tiles());
    }

    void unknownStoredLineTypesFallBackToTheSystemsFirst()
    {
        SSlantPattern stored = twoLines();
        stored.lines[0].lineTypeName = L"破線";
        stored.lines[1].lineTypeName = L"長破線";
        stored.outerFrame.lineTypeName = L"長破線";
        stored.outerFrame.lineTypeFlag = true;
        stored.innerFrame.lineTypeName = L"波線";
        QDomDocument doc;
        const QDomElement e = written(stored, doc);

        const CSystemLineTypeSetting table = twoLineTypes();
        SSlantPattern loaded;
        QVERIFY(loaded.loadXMLNode(e, &table));
        QVERIFY(loaded.lines[0].lineTypeName == L"破線");
        QVERIFY(loaded.lines[1].lineTypeName == L"実線");
        QVERIFY(loaded.outerFrame.lineTypeName == L"長破線"); // by layer: kept
        QVERIFY(loaded.innerFrame.lineTypeName == L"実線");

        const CSystemLineTypeSetting empty;
        QVERIFY(loaded.loadXMLNode(e, &empty));
        QVERIFY(loaded.lines[1].lineTypeName == L"長破線");
        QVERIFY(loaded.loadXMLNode(e, nullptr));
        QVERIFY(loaded == stored);
    }

    void theDefaultRegistryIsConsistent()
    {
        const CSystemHatchingSetting s = CSystemHatchingSetting::makeDefault();
        QVERIFY(s.getBaseFigures().size() >= 4 && !s.getFigurePatterns().empty()
                && !s.getSlantPatterns().empty() && !s.getCoatingPatterns().empty());
        for (const SFigurePattern& p : s.getFigurePatterns())
            QVERIFY2(s.isBaseFigureRegistered(p.baseFigureName),
                     qPrintable(QString::fromStdWString(p.name)));
        for (const SSlantPattern& p : s.getSlantPatterns()) {
            QVERIFY(!p.lines.empty() && p.lines.size() <= SSlantPattern::kMaxLines);
            for (const SSlantPatternLine& l : p.lines)
                QVERIFY(l.spacing > 0.0 && !l.lineTypeName.empty());
        }
        for (const SBaseFigure& f : s.getBaseFigures())
            QVERIFY(!f.segments.empty());
        QVERIFY(s.findSlantPattern(L"交差斜線")->lines.size() == 2);
        QVERIFY(s.findCoatingPattern(L"水面")->transparent);
        QVERIFY(!s.findFigurePattern(L"存在しない"));
        QVERIFY(!s.isBaseFigureRegistered(L""));
    }

    void theRegistryRoundTripsAndRefusesBadFiles()
    {
        test::HostFixture host;
        const std::wstring path = host.path(QStringLiteral("hatching.xml")).toStdWString();
        CSystemHatchingSetting s = CSystemHatchingSetting::makeDefault();
        QVERIFY(s.setSlantPatterns({twoLines()}));
        QVERIFY(s.saveXML(path));
        CSystemHatchingSetting loaded;
        QVERIFY(loaded.loadXML(path));
        QVERIFY(loaded.isSame(s));
        QVERIFY(!loaded.isSame(CSystemHatchingSetting::makeDefault()));

        const QString bad[] = {
            // The same name twice in one kind.
            "<SystemHatchingSetting><CoatingPatterns><CoatingPattern name=\"a\"/>"
            "<CoatingPattern name=\"a\"/></CoatingPatterns></SystemHatchingSetting>",
            // A pattern without a name.
            "<SystemHatchingSetting><SlantPatterns><SlantPattern/></SlantPatterns>"
            "</SystemHatchingSetting>",
            // A segment outside the figure's square.
            "<SystemHatchingSetting><BaseFigures><BaseFigure name=\"a\">"
            "<Segment x1=\"0\" y1=\"0\" x2=\"1.5\" y2=\"1\"/></BaseFigure></BaseFigures>"
            "</SystemHatchingSetting>",
            "<SystemHatchingSetting><FigurePatterns><FigurePattern name=\"a\" length2=\"x\"/>"
            "</FigurePatterns></SystemHatchingSetting>",
        };
        for (const QString& text : bad) { // from a document and from a file
            CSystemHatchingSetting target = s;
            QVERIFY2(!target.loadXMLNode(parsed(text)), qPrintable(text));
            QString error;
            QVERIFY(!test::loadsText(host, target, text.toUtf8(), &error));
            QCOMPARE(error, QStringLiteral("<SystemHatchingSetting> の内容を読めません"));
            QVERIFY(target.isSame(s));
        }
        // Cut short, or more after the root: nothing is taken from what was read.
        for (const char* text : {"<SystemHatchingSetting><SlantPatterns><SlantPattern name=\"a\"/>",
                                 "<SystemHatchingSetting/><more/>"}) {
            CSystemHatchingSetting target = s;
            QString error;
            QVERIFY(!test::loadsText(host, target, text, &error));
            QVERIFY2(error.startsWith(QStringLiteral("1 行目: ")), qPrintable(error));
            QVERIFY(target.isSame(s));
        }
        // The same name in different kinds is fine.
        QVERIFY(loaded.loadXMLNode(parsed(QStringLiteral(
            "<SystemHatchingSetting><SlantPatterns><SlantPattern name=\"a\"/></SlantPatterns>"
            "<CoatingPatterns><CoatingPattern name=\"a\"/></CoatingPatterns>"
            "</SystemHatchingSetting>"))));
        QVERIFY(loaded.getBaseFigures().empty() && loaded.getSlantPatterns().size() == 1);
    }

    void settersRefuseEmptyAndRepeatedNames()
    {
        CSystemHatchingSetting s = CSystemHatchingSetting::makeDefault();
        const CSystemHatchingSetting before = s;
        SFigurePattern unnamed = tiles();
        unnamed.name.clear();
        QVERIFY(!s.setFigurePatterns({tiles(), unnamed}));
        QVERIFY(!s.setFigurePatterns({tiles(), tiles()}));
        QVERIFY(!s.setCoatingPatterns({fill(), fill()}));
        QVERIFY(!s.setBaseFigures({{L"a", {{0, 0, 1, 1}}}, {L"a", {}}}));
        QVERIFY(!s.setBaseFigures({{L"b", {{-0.1, 0, 1, 1}}}}));
        QVERIFY(s.isSame(before));
        QVERIFY(s.setFigurePatterns({tiles()}));
        QVERIFY(s.findFigurePattern(L"ブロック積み"));
    }

    void domHelpersFindCreateWriteAndRead()
    {
        namespace xml = utility::xml;
        QDomDocument doc;
        QVERIFY(
            xml::parse(doc, "<r><d name=\"A\"/><d/><d name=\"B\">1</d><d name=\"B\">2</d></r>"));
        QDomElement found;
        QVERIFY(xml::findByAttribute(found, doc.elementsByTagName(QStringLiteral("d")),
                                     QStringLiteral("name"), QStringLiteral("B")));
        QCOMPARE(found.text(), QStringLiteral("1"));
        QVERIFY(!xml::findByAttribute(found, doc.elementsByTagName(QStringLiteral("d")),
                                      QStringLiteral("name"), QString()));

        QDomElement e;
        QVERIFY(!xml::createElement(e, doc, QStringLiteral("1abc"))
                && !xml::createElement(e, doc, QStringLiteral("a b")));
        QVERIFY(xml::createElement(e, doc, QStringLiteral("図形_1")));
        QVERIFY(!xml::writeAttributeText(e, QStringLiteral("x=y"), QStringLiteral("1")));
        QVERIFY(xml::writeAttributeText(e, QStringLiteral("name"), QStringLiteral("\"<&>")));
        QDomNode root = doc.documentElement();
        QDomElement number;
        QVERIFY(xml::writeIntElement(number, root, doc, QStringLiteral("HatchType"), -42));
        QCOMPARE(root.lastChild().toElement().text(), QStringLiteral("-42"));
        int value = 7;
        QVERIFY(xml::readInt(value, number) && value == -42);
        number.firstChild().setNodeValue(QStringLiteral(" 12 "));
        QVERIFY(xml::readInt(value, number) && value == 12);
        for (const char* text : {"12a", "", "0x10", "99999999999"}) {
            number.firstChild().setNodeValue(QString::fromLatin1(text));
            QVERIFY(!xml::readInt(value, number));
            QCOMPARE(value, 12);
        }
        QDomNode nowhere;
        QVERIFY(!xml::writeIntElement(number, nowhere, doc, QStringLiteral("x"), 1));
    }

    void loadingHonoursItsNamespaceFlagAndSizeCap()
    {
        test::HostFixture host;
        const QString path = host.path(QStringLiteral("ns.xml"));
        QVERIFY(test::writeFile(path, "<k:root xmlns:k=\"urn:kesto\"><k:item/></k:root>"));
        QDomDocument doc;
        QVERIFY(utility::xml::load(doc, path.toStdWString(), true));
        QCOMPARE(doc.documentElement().namespaceURI(), QStringLiteral("urn:kesto"));
        QVERIFY(utility::xml::load(doc, path.toStdWString(), false));
        QVERIFY(doc.documentElement().namespaceURI().isEmpty());
        QVERIFY(!utility::xml::load(doc, path.toStdWString(), false, 16));
    }
};

QTEST_MAIN(TestHatchPatterns)
#include "tst_hatchpatterns.moc"
