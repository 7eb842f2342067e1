// The drawing hatch record: defaults, copies, and its element in dialogdata.xml, which it
// shares with other dialogs' data and must never damage.
#include "support/TestSupport.h"

#include "hatch/DrawingHatch.h"
#include "setting/SystemLineTypeSetting.h"
#include "types/KsLayer.h"
#include "utility/Xml.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>

#include <memory>

using namespace kesto;
using ui::config::SDrawingHatch;
using ui::setting::SHatchFrame;
using ui::setting::SSlantPatternLine;

namespace {

QString dialogData(const test::HostFixture& host)
{
    return host.path(QStringLiteral("dialogdata.xml"));
}

QByteArray file(const QByteArray& records)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<DialogData>" + records + "</DialogData>\n";
}

QByteArray record(const QByteArray& name, int hatchType)
{
    return "<dlgdata name=\"" + name + "\"><HatchType>" + QByteArray::number(hatchType)
           + "</HatchType></dlgdata>";
}

const QByteArray kOther = "<dlgdata name=\"LayerFilter\"><Filter mode=\"2\">道路*</Filter>"
                          "<Keep>1</Keep></dlgdata>";

// (name, HatchType or -1) of every dlgdata element under the root, in order.
QStringList recordsIn(const QString& path)
{
    QDomDocument doc;
    if (!doc.setContent(test::readFile(path)))
        return {QStringLiteral("unreadable")};
    QStringList out;
    const QDomElement root = doc.documentElement();
    for (QDomElement e = root.firstChildElement(QStringLiteral("dlgdata")); !e.isNull();
         e = e.nextSiblingElement(QStringLiteral("dlgdata"))) {
        const QDomElement type = e.firstChildElement(QStringLiteral("HatchType"));
        out << e.attribute(QStringLiteral("name")) + u':'
                   + (type.isNull() ? QStringLiteral("-") : type.text());
    }
    return out;
}

// A record whose every stored field differs from the defaults.
SDrawingHatch customHatch()
{
    SDrawingHatch h;
    h.initByDefault();
    h.hatchType = SDrawingHatch::HatchSlant;
    h.figurePattern.name = L"護岸ブロック";
    h.figurePattern.baseFigureName = L"間知石";
    h.figurePattern.placement = {15.0, 30.0, 12.5, 120.0, 7.25, 11.0, 6.5};
    h.figurePattern.outerFrame.color = KsColor(0xFF0000, KsColor::System, L"赤");
    h.slantPattern.name = L"盛土";
    SSlantPatternLine second = h.slantPattern.lines.front();
    second.angle = 135.0;
    second.spacing = 3.5;
    second.placementX = 1.25;
    second.lineTypeName = L"一点鎖線";
    second.lineWidthKind = KsLineWidth::Bold;
    h.slantPattern.lines.push_back(second);
    h.slantPattern.innerFrames.assign(2, h.slantPattern.innerFrame);
    h.slantPattern.innerFrames[1].keepColor = true;
    h.coatingPattern.name = L"水面";
    h.coatingPattern.brushKind = 6;
    h.coatingPattern.transparent = true;
    h.coatingPattern.transparencyRate = 35;
    h.coatingPattern.drawOrder = 0;
    h.coatingPattern.innerFrame.drawFrame = false;
    return h;
}

bool sameStoredFields(const SDrawingHatch& a, const SDrawingHatch& b)
{
    return a.hatchType == b.hatchType && a.figurePattern == b.figurePattern
           && a.slantPattern == b.slantPattern && a.coatingPattern == b.coatingPattern;
}

bool sameRecord(const SDrawingHatch& a, const SDrawingHatch& b)
{
    return sameStoredFields(a, b) && a.holdPattern == b.holdPattern
           && a.innerFrameAvailable == b.innerFrameAvailable
           && a.referenceElement == b.referenceElement;
}

// Gives tests the element operations the dialogs use.
struct ExposedHatch : SDrawingHatch {
    using SDrawingHatch::loadXMLNode;
    using SDrawingHatch::saveXMLNode;
};

} // namespace

class TestDrawingHatch : public QObject {
    Q_OBJECT

private slots:
    void constructionAndResetDiffer()
    {
        const SDrawingHatch fresh;
        QCOMPARE(fresh.hatchType, 0);
        QCOMPARE(fresh.innerFrameAvailable, std::int64_t(0));
        QVERIFY(!fresh.referenceElement);

        SDrawingHatch h = customHatch();
        const KsLayer element(L"外周");
        h.innerFrameAvailable = 3;
        h.referenceElement = &element;
        h.holdPattern.outerFrame.drawFrame = false;
        h.initByDefault();
        QCOMPARE(h.hatchType, 1);
        QVERIFY(h.figurePattern == ui::setting::SFigurePattern());
        QVERIFY(h.slantPattern == ui::setting::SSlantPattern());
        QVERIFY(h.coatingPattern == ui::setting::SCoatingPattern());
        QVERIFY(h.holdPattern == ui::setting::SHoldPattern());
        QCOMPARE(h.innerFrameAvailable, std::int64_t(0));
        QVERIFY(!h.referenceElement);
    }

    void copiesDuplicateThePatternsAndShareTheReferenceElement()
    {
        const KsLayer element(L"外周");
        SDrawingHatch source = customHatch();
        source.holdPattern.innerFrames.resize(3);
        source.innerFrameAvailable = 1;
        source.referenceElement = &element;

        SDrawingHatch copy(source);
        QVERIFY(sameRecord(copy, source));
        QCOMPARE(copy.referenceElement, &element);

        SDrawingHatch assigned;
        assigned = source;
        QVERIFY(sameRecord(assigned, source));
        assigned.slantPattern.lines.clear();
        QCOMPARE(source.slantPattern.lines.size(), std::size_t(2));

        assigned = assigned; // self-assignment keeps everything
        QVERIFY(assigned.slantPattern.lines.empty());
        QCOMPARE(assigned.referenceElement, &element);
    }

    void saveReplacesOnlyTheFirstRecordAndKeepsEveryOtherDialog()
    {
        test::HostFixture host;
        QVERIFY(test::writeFile(dialogData(host),
                                file(kOther + record("DrawingHatch", 5) + record("DrawingHatch", 4)
                                     + "<dlgdata name=\"Last\"><x>1</x></dlgdata>")));
        SDrawingHatch h = customHatch();
        h.hatchType = 3;
        QVERIFY(h.saveDialogData());
        QCOMPARE(recordsIn(dialogData(host)),
                 QStringList({"LayerFilter:-", "DrawingHatch:4", "Last:-", "DrawingHatch:3"}));

        // Loading reads the first record found: the older one left standing.
        SDrawingHatch loaded;
        QVERIFY(loaded.loadDialogData());
        QCOMPARE(loaded.hatchType, 4);
    }

    void aFileWithoutTheRecordLoadsNothingAndGainsItOnSave()
    {
        test::HostFixture host;
        QVERIFY(test::writeFile(dialogData(host), file(kOther)));
        SDrawingHatch h = customHatch();
        const SDrawingHatch before = h;
        QVERIFY(!h.loadDialogData());
        QVERIFY(sameRecord(h, before));
        QVERIFY(h.saveDialogData());
        QCOMPARE(recordsIn(dialogData(host)), QStringList({"LayerFilter:-", "DrawingHatch:2"}));
    }

    void missingElementsLeaveTheirFieldsAsTheyWere()
    {
        test::HostFixture host;
        QVERIFY(test::writeFile(dialogData(host), file(record("DrawingHatch", 3))));
        SDrawingHatch h = customHatch();
        QVERIFY(h.loadDialogData());
        SDrawingHatch expected = customHatch();
        expected.hatchType = 3;
        QVERIFY(sameRecord(h, expected));

        // A malformed pattern is skipped; the rest of the record is still read.
        QVERIFY(test::writeFile(
            dialogData(host), file("<dlgdata name=\"DrawingHatch\"><SlantPattern name=\"x\"><Lines>"
                                   "<Line spacing=\"0\"/></Lines></SlantPattern>"
                                   "<CoatingPattern name=\"舗装\" brushKind=\"2\"/>"
                                   "<HatchType>2</HatchType></dlgdata>")));
        h = customHatch();
        QVERIFY(h.loadDialogData());
        QCOMPARE(h.hatchType, 2);
        QVERIFY(h.slantPattern == customHatch().slantPattern);
        QVERIFY(h.coatingPattern.name == L"舗装");
        QCOMPARE(h.coatingPattern.brushKind, 2);
        QCOMPARE(h.coatingPattern.transparencyRate, 35); // not in the element: kept
    }

    void theRegionFieldsAreNeverStored()
    {
        test::HostFixture host;
        QVERIFY(test::writeFile(dialogData(host), file("")));
        const KsLayer savedElement(L"保存時");
        const KsLayer loadElement(L"読込時");
        SDrawingHatch saved = customHatch();
        saved.holdPattern.outerFrame.lineTypeName = L"破線";
        saved.innerFrameAvailable = 5;
        saved.referenceElement = &savedElement;
        QVERIFY(saved.saveDialogData());
        QVERIFY(!test::readFile(dialogData(host)).contains("HoldPattern"));

        SDrawingHatch loaded;
        loaded.holdPattern.outerFrame.drawFrame = false;
        loaded.innerFrameAvailable = 9;
        loaded.referenceElement = &loadElement;
        const ui::setting::SHoldPattern holdBefore = loaded.holdPattern;
        QVERIFY(loaded.loadDialogData());
        QVERIFY(sameStoredFields(loaded, saved));
        QVERIFY(loaded.holdPattern == holdBefore);
        QCOMPARE(loaded.innerFrameAvailable, std::int64_t(9));
        QCOMPARE(loaded.referenceElement, &loadElement);
    }

    void storedLineTypesAreSettledAgainstTheSystemTable()
    {
        test::HostFixture host;
        QVERIFY(test::writeFile(dialogData(host), file("")));
        SDrawingHatch saved = customHatch();
        saved.slantPattern.lines[0].lineTypeName = L"長破線";
        QVERIFY(saved.saveDialogData());
        // The host's table is the one loading settles against (its branches: the patterns' tests).
        ui::setting::CSystemLineTypeSetting table;
        QVERIFY(table.setLineTypes({KsLineType(1, L"実線"), KsLineType(3, L"一点鎖線")}));
        host.config().putSetting(std::make_unique<ui::setting::CSystemLineTypeSetting>(table));
        SDrawingHatch loaded;
        QVERIFY(loaded.loadDialogData());
        QVERIFY(loaded.slantPattern.lines[0].lineTypeName == L"実線");     // unknown
        QVERIFY(loaded.slantPattern.lines[1].lineTypeName == L"一点鎖線"); // known
    }

    void badFilesGiveFalseAndAreLeftUntouched_data()
    {
        QTest::addColumn<QByteArray>("content");
        const QByteArray good = file(kOther + record("DrawingHatch", 2));
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("truncated") << good.left(good.size() / 2);
        QTest::newRow("malformed") << QByteArray("<DialogData><dlgdata name=\"DrawingHatch\">"
                                                 "<HatchType>2</dlgdata></DialogData>");
        QTest::newRow("declaration only") << QByteArray("<?xml version=\"1.0\"?>\n");
        QTest::newRow("binary") << QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16);
        QTest::newRow("entities") << QByteArray(
            "<!DOCTYPE d [<!ENTITY a \"aaaaaaaaaa\">]><DialogData><dlgdata name=\"DrawingHatch\">"
            "<HatchType>2</HatchType></dlgdata><x>&a;&a;</x></DialogData>");
        QByteArray huge = "<DialogData>" + record("DrawingHatch", 2) + "<dlgdata name=\"Big\">";
        const QByteArray filler(1024, 'x');
        while (huge.size() < 10 * 1024 * 1024)
            huge += "<v>" + filler + "</v>";
        QTest::newRow("10 MB") << huge + "</dlgdata></DialogData>";
        QTest::newRow("5,000 levels of foreign content")
            << file(kOther + QByteArray("<x>").repeated(5000) + QByteArray("</x>").repeated(5000));
    }

    void badFilesGiveFalseAndAreLeftUntouched()
    {
        QFETCH(QByteArray, content);
        test::HostFixture host;
        QVERIFY(test::writeFile(dialogData(host), content));
        SDrawingHatch h = customHatch();
        QVERIFY(!h.saveDialogData());
        QVERIFY(!h.loadDialogData());
        QVERIFY(sameRecord(h, customHatch()));
        QVERIFY(test::readFile(dialogData(host)) == content);
        // Nothing else appeared either (no temporary files left behind).
        QCOMPARE(QDir(host.folder()).entryList(QDir::Files | QDir::Hidden),
                 QStringList{QStringLiteral("dialogdata.xml")});
    }

    void withoutAFileOrAFolderNothingIsCreated()
    {
        {
            test::HostFixture host;
            SDrawingHatch h = customHatch();
            QVERIFY(!h.saveDialogData());
            QVERIFY(!h.loadDialogData());
            QVERIFY(!QFile::exists(dialogData(host)));
            QVERIFY(sameRecord(h, customHatch()));

            host.config().setSettingFolder(std::wstring());
            QVERIFY(!h.saveDialogData());
        }
        // No settings holder at all.
        SDrawingHatch h;
        QVERIFY(!h.saveDialogData());
        QVERIFY(!h.loadDialogData());
    }

    void aRecordNestedBelowTheRootIsNotReplaced()
    {
        test::HostFixture host;
        const QByteArray content = file("<group>" + record("DrawingHatch", 4) + "</group>");
        QVERIFY(test::writeFile(dialogData(host), content));
        SDrawingHatch h = customHatch();
        QVERIFY(!h.saveDialogData());
        QVERIFY(test::readFile(dialogData(host)) == content);
        QVERIFY(h.loadDialogData()); // it is still the first record found
        QCOMPARE(h.hatchType, 4);
    }

    void theElementIsWrittenInItsOrderAndReadWhateverTheOrder()
    {
        QDomDocument doc;
        QDomElement root = doc.createElement(QStringLiteral("DialogData"));
        doc.appendChild(root);
        const ExposedHatch saved{customHatch()};
        QVERIFY(saved.saveXMLNode(root, doc));
        const QDomElement e = root.firstChildElement();
        QCOMPARE(e.tagName(), QStringLiteral("dlgdata"));
        QCOMPARE(e.attribute(QStringLiteral("name")), QStringLiteral("DrawingHatch"));
        QStringList children;
        for (QDomElement c = e.firstChildElement(); !c.isNull(); c = c.nextSiblingElement())
            children << c.tagName();
        QCOMPARE(children,
                 QStringList({"HatchType", "FigurePattern", "SlantPattern", "CoatingPattern"}));

        // Reversed, with unknown elements, comments and text in between.
        QDomElement reversed = doc.createElement(QStringLiteral("dlgdata"));
        reversed.appendChild(doc.createComment(QStringLiteral("x")));
        reversed.appendChild(doc.createElement(QStringLiteral("Unknown")));
        for (int i = children.size() - 1; i >= 0; --i) {
            reversed.appendChild(e.elementsByTagName(children[i]).at(0).cloneNode());
            reversed.appendChild(doc.createTextNode(QStringLiteral("noise")));
        }
        ExposedHatch loaded;
        QVERIFY(loaded.loadXMLNode(reversed, nullptr));
        QVERIFY(sameStoredFields(loaded, saved));
        QVERIFY(!loaded.loadXMLNode(QDomNode(), nullptr));
    }

    // A file saved again without a change is the same, byte for byte, in this process and in
    // others (whatever order their hashes give attributes); the rest of a file keeps its layout.
    void savingIsStableAndKeepsTheLayoutOfTheRest_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("kept"); // the text around the record, as it was
        QTest::newRow("compact") << file(kOther) << "<DialogData>" + kOther;
        const QByteArray tabs =
            "<DialogData>\n\t<dlgdata name=\"LayerFilter\">\n\t\t<Keep>1</Keep>\n\t</dlgdata>\n";
        QTest::newRow("tabs") << tabs + "</DialogData>\n"
                              << tabs + "\t<dlgdata name=\"DrawingHatch\">";
    }
    void savingIsStableAndKeepsTheLayoutOfTheRest()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, kept);
        test::HostFixture host;
        QVERIFY(test::writeFile(dialogData(host), before));
        const SDrawingHatch hatch = customHatch();
        QVERIFY(hatch.saveDialogData());
        const QByteArray once = test::readFile(dialogData(host));
        QVERIFY2(once.contains(kept), once.constData());
        QVERIFY(hatch.saveDialogData());
        QVERIFY(test::readFile(dialogData(host)) == once);
        SDrawingHatch loaded;
        QVERIFY(loaded.loadDialogData() && sameStoredFields(loaded, hatch));
    }

    void otherProcessesWriteTheSameBytes()
    {
        test::HostFixture host;
        const QByteArray empty = file({});
        QStringList folders;
        for (const char* seed : {"1", "2"}) {
            folders << host.path(QString::fromLatin1(seed));
            QVERIFY(QDir().mkpath(folders.last()));
            QVERIFY(test::writeFile(folders.last() + QStringLiteral("/dialogdata.xml"), empty));
            QProcess writer;
            QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
            env.insert(QStringLiteral("QT_HASH_SEED"), QString::fromLatin1(seed));
            writer.setProcessEnvironment(env);
            writer.start(QStringLiteral(KS_DIALOGDATA_WRITER),
                         {folders.last(), QStringLiteral("DrawingHatch"), QStringLiteral("1")});
            QVERIFY(writer.waitForFinished(60000) && writer.exitCode() == 0);
        }
        QVERIFY(test::writeFile(dialogData(host), empty));
        SDrawingHatch hatch;
        hatch.initByDefault();
        QVERIFY(hatch.saveDialogData());
        const QByteArray here = test::readFile(dialogData(host));
        QVERIFY(here.contains("<FigurePattern"));
        for (const QString& folder : folders)
            QVERIFY(test::readFile(folder + QStringLiteral("/dialogdata.xml")) == here);
    }

    // Eight processes saving their own records at once: every record ends with its last value.
    void concurrentSavesLoseNothing()
    {
        test::HostFixture host;
        QVERIFY(test::writeFile(dialogData(host), file(kOther)));
        std::vector<std::unique_ptr<QProcess>> writers;
        for (int i = 0; i < 8; ++i) {
            writers.push_back(std::make_unique<QProcess>());
            writers.back()->start(
                QStringLiteral(KS_DIALOGDATA_WRITER),
                {host.folder(), QStringLiteral("Writer%1").arg(i), QStringLiteral("50")});
        }
        for (const auto& writer : writers)
            QVERIFY(writer->waitForFinished(240000) && writer->exitCode() == 0);
        QDomDocument doc;
        QVERIFY(doc.setContent(test::readFile(dialogData(host))));
        const QDomElement root = doc.documentElement();
        QCOMPARE(root.elementsByTagName(QStringLiteral("dlgdata")).size(), 9);
        for (int i = 0; i < 8; ++i) {
            QDomElement record;
            QVERIFY(utility::xml::findByAttribute(
                record, root.elementsByTagName(QStringLiteral("dlgdata")), QStringLiteral("name"),
                QStringLiteral("Writer%1").arg(i)));
            QCOMPARE(record.text(), QStringLiteral("50"));
        }
    }
};

QTEST_MAIN(TestDrawingHatch)
#include "tst_drawinghatch.moc"
