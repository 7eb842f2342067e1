// The system tables of line widths, paper sizes and paper frames: defaults, files, and the
// drawing's line widths.
#include "support/TestSupport.h"

#include "db/MemoryDataBase.h"
#include "setting/LineWidthSetting.h"
#include "setting/SystemPaperFrameSetting.h"
#include "setting/SystemPaperSizeSetting.h"

#include <QTest>

using namespace kesto;
using namespace kesto::ui::setting;

namespace {

QStringList widthNames(const CLineWidthSetting& setting)
{
    QStringList out;
    for (const SLineWidth& w : setting.getLineWidths())
        out << QString::fromStdWString(w.getWidthName()) + (w.isSystemDefault() ? "*" : "");
    return out;
}

// Loads a file with the given body under the setting's root; true when it was accepted.
bool loadBody(test::HostFixture& host, ui::setting::CSettingBase& setting, const QByteArray& body)
{
    const QByteArray root = setting.xmlRootName().toUtf8();
    return test::loadsText(host, setting, "<" + root + ">" + body + "</" + root + ">");
}

} // namespace

class TestSystemTables : public QObject {
    Q_OBJECT

private slots:
    void lineWidthDefaultsAreTheJisPensWithTheFixedOnesMarked()
    {
        const CLineWidthSetting setting = CLineWidthSetting::makeDefault();
        QCOMPARE(widthNames(setting), QStringList({"0.13*", "0.18*", "0.25*", "0.35*", "0.5*",
                                                   "0.7*", "1*", "1.4*", "0.3", "0.6"}));
        QCOMPARE(setting.findByWidth(0.3500001)->getColorName(), std::wstring(L"黄"));
        QVERIFY(!setting.findByWidth(0.36));

        SLineWidth cleared(2.5, 0x123456, KsColor::User, L"x", true);
        cleared.clear();
        QCOMPARE(cleared.getWidth(), 0.0);
        QCOMPARE(cleared.getWidthName(), std::wstring(L"0"));
        QCOMPARE(cleared.getColor(), 0xFFFFFFu);
        QCOMPARE(cleared.getColorType(), 1);
        QCOMPARE(cleared.getColorName(), std::wstring(L"白"));
        QVERIFY(!cleared.isSystemDefault());
        cleared.setWidth(0.12345);
        QCOMPARE(cleared.getWidthName(), std::wstring(L"0.123"));
    }

    void lineWidthsRoundTripThroughTheirFile()
    {
        test::HostFixture host;
        CLineWidthSetting saved = CLineWidthSetting::makeDefault();
        std::vector<SLineWidth> widths = saved.getLineWidths();
        widths.emplace_back(0.125, 0x123456, KsColor::User, L"");
        saved.setUserLineWidths(widths);
        saved.setBoldLineWidth(widths.back());
        QVERIFY(test::roundTrips(host, saved));
        QVERIFY(!saved.isSame(CLineWidthSetting::makeDefault()));
    }

    void malformedLineWidthFilesChangeNothing_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<bool>("valid");
        const QByteArray choices = "<Thin width=\"0.18\" rgb=\"#FFFFFF\" colorType=\"1\"/>"
                                   "<Bold width=\"0.35\" rgb=\"#FFFFFF\" colorType=\"1\"/>"
                                   "<ExtraBold width=\"0.7\" rgb=\"#FFFFFF\" colorType=\"1\"/>";
        QTest::newRow("valid: only the choices") << choices << true;
        QTest::newRow("negative width")
            << "<LineWidth width=\"-1\" rgb=\"#FFFFFF\" colorType=\"1\"/>" + choices << false;
        QTest::newRow("width not a number")
            << "<LineWidth width=\"thin\" rgb=\"#FFFFFF\" colorType=\"1\"/>" + choices << false;
        QTest::newRow("bad colour")
            << "<LineWidth width=\"1\" rgb=\"white\" colorType=\"1\"/>" + choices << false;
        QTest::newRow("colour type out of range")
            << "<LineWidth width=\"1\" rgb=\"#FFFFFF\" colorType=\"7\"/>" + choices << false;
        QTest::newRow("default flag not 0 or 1")
            << "<LineWidth width=\"1\" rgb=\"#FFFFFF\" colorType=\"1\" default=\"yes\"/>" + choices
            << false;
        QTest::newRow("no extra bold choice")
            << choices.left(choices.indexOf("<ExtraBold")) << false;
    }
    void malformedLineWidthFilesChangeNothing()
    {
        QFETCH(QByteArray, body);
        QFETCH(bool, valid);
        test::HostFixture host;
        CLineWidthSetting setting = CLineWidthSetting::makeDefault();
        QCOMPARE(loadBody(host, setting, body), valid);
        QCOMPARE(setting.isSame(CLineWidthSetting::makeDefault()), !valid);
    }

    void paperSizesStartOnA1AndSetupNeedsAKnownName()
    {
        CSystemPaperSizeSetting setting = CSystemPaperSizeSetting::makeDefault();
        QCOMPARE(setting.getInitPaperName(), std::wstring(L"A1"));
        QCOMPARE(setting.findByName(L"A3")->width, 420);

        const CSystemPaperSizeSetting before = setting;
        QVERIFY(!setting.setup(L"A5", {{L"B5", 182, 257}}));
        QVERIFY(setting.isSame(before));
        QVERIFY(setting.setup(L"B5", {{L"B5", 182, 257}}));
        QCOMPARE(setting.getPaperSizes().size(), std::size_t(1));
        QCOMPARE(setting.getInitPaperName(), std::wstring(L"B5"));

        CSystemPaperSizeSetting other = before;
        QVERIFY(other.isSame(before));
        other.setInitPaperName(L"A0");
        QVERIFY(!other.isSame(before));
    }

    void paperSizesRoundTripAndRefuseBadFiles()
    {
        test::HostFixture host;
        const CSystemPaperSizeSetting saved = CSystemPaperSizeSetting::makeDefault();
        CSystemPaperSizeSetting loaded;
        QVERIFY(test::roundTrips(host, saved, loaded));

        for (const QByteArray& body :
             {QByteArray("<PaperSize name=\"A\" height=\"0\" width=\"5\"/>"),
              QByteArray("<PaperSize name=\"\" height=\"5\" width=\"5\"/>"),
              QByteArray("<PaperSize name=\"A\" height=\"5\" width=\"five\"/>")}) {
            QVERIFY2(!loadBody(host, loaded, body), body.constData());
            QVERIFY(loaded.isSame(saved));
        }
    }

    void paperFramesRoundTripWithTheirLineLooks()
    {
        test::HostFixture host;
        CSystemPaperFrameSetting saved = CSystemPaperFrameSetting::makeDefault();
        QCOMPARE(saved.getPaperFrames().size(), std::size_t(7));
        QCOMPARE(saved.getInitFrameName(), std::wstring(L"A1"));
        std::vector<SPaperFrame> frames = saved.getPaperFrames();
        frames.push_back({L"特殊", {1, 2, 3, 4, 5, 6, 7, 8}, false, true, false});
        saved.setPaperFrames(frames);
        saved.setInnerFrameColor(KsColor::byLayer());
        saved.setCutFrameLineType(KsLineType(2, L"破線", KsLineType::Pattern));
        saved.setDrawFrameLineWidth(KsLineWidth(0.7, KsLineWidth::Explicit));
        CSystemPaperFrameSetting loaded;
        QVERIFY(test::roundTrips(host, saved, loaded));
        QCOMPARE(loaded.getPaperFrames().back().dimensions[7], 8);
        QVERIFY(!loaded.getPaperFrames().back().cutLine);
        QVERIFY(loaded.getInnerFrameColor().isByLayer());
        QCOMPARE(loaded.getCutFrameLineType().getName(), std::wstring(L"破線"));
        QCOMPARE(loaded.getDrawFrameLineWidth().getWidth(), 0.7);
    }

    void malformedPaperFramesChangeNothing_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<bool>("valid");
        const QByteArray dims = "a=\"1\" b=\"1\" c=\"1\" d=\"1\" e=\"1\" f=\"1\" g=\"1\" ";
        QTest::newRow("valid frame and line")
            << "<PaperFrame name=\"x\" " + dims
                   + "h=\"1\" cutLine=\"0\"/><FrameLine kind=\"cut\" rgb=\"#000000\" "
                     "colorType=\"1\" lineTypeId=\"1\" lineTypeKind=\"0\" width=\"1\" "
                     "widthKind=\"0\"/>"
            << true;
        QTest::newRow("no name") << "<PaperFrame " + dims + "h=\"1\"/>" << false;
        QTest::newRow("dimension missing") << "<PaperFrame name=\"x\" " + dims + "/>" << false;
        QTest::newRow("dimension not a number")
            << "<PaperFrame name=\"x\" " + dims + "h=\"1mm\"/>" << false;
        QTest::newRow("flag not 0 or 1")
            << "<PaperFrame name=\"x\" " + dims + "h=\"1\" cutLine=\"○\"/>" << false;
        QTest::newRow("line width kind out of range")
            << QByteArray("<FrameLine kind=\"cut\" rgb=\"#000000\" colorType=\"1\" "
                          "lineTypeId=\"1\" lineTypeKind=\"0\" width=\"1\" widthKind=\"9\"/>")
            << false;
    }
    void malformedPaperFramesChangeNothing()
    {
        QFETCH(QByteArray, body);
        QFETCH(bool, valid);
        test::HostFixture host;
        CSystemPaperFrameSetting setting = CSystemPaperFrameSetting::makeDefault();
        QCOMPARE(loadBody(host, setting, body), valid);
        QCOMPARE(setting.isSame(CSystemPaperFrameSetting::makeDefault()), !valid);
    }

    void aFrameWithoutFlagsDrawsEveryLine()
    {
        test::HostFixture host;
        CSystemPaperFrameSetting setting;
        QVERIFY(loadBody(host, setting,
                         "<PaperFrame name=\"x\" a=\"1\" b=\"2\" c=\"3\" d=\"4\" e=\"5\" f=\"6\" "
                         "g=\"7\" h=\"8\"/>"));
        const SPaperFrame& frame = setting.getPaperFrames().at(0);
        QVERIFY(frame.drawFrame && frame.innerFrame && frame.cutLine);
        QCOMPARE(frame.dimensions[2], 3);
    }

    void theDrawingUpdatesOnlyItsOwnLineWidthsAndKinds()
    {
        CMemoryDataBase db;
        KsLineWidth* own = db.add<KsLineWidth>(0.25);
        KsLineWidth stranger(0.5);
        KsLineWidth value(0.3);
        value.setColor(0x00FF00);
        value.setColorType(KsColor::User);
        value.setColorName(L"若草");
        QVERIFY(!db.updateLineWidth(&stranger, value));
        QVERIFY(!db.updateLineWidth(nullptr, value));
        QVERIFY(db.updateLineWidth(own, value));
        QCOMPARE(own->getWidth(), 0.3);
        QCOMPARE(own->getName(), std::wstring(L"0.3"));
        QCOMPARE(own->getColor(), 0x00FF00u);
        QCOMPARE(own->getColorName(), std::wstring(L"若草"));

        KsLineWidth bold;
        QVERIFY(db.getLineWidthOfKind(KsLineWidth::Bold, bold));
        QCOMPARE(bold.getWidth(), 0.35);
        QVERIFY(db.setLineWidthOfKind(KsLineWidth::Bold, KsLineWidth(0.5)));
        QVERIFY(db.getLineWidthOfKind(KsLineWidth::Bold, bold));
        QCOMPARE(bold.getWidth(), 0.5);
        QCOMPARE(bold.getKind(), int(KsLineWidth::Bold));
        QVERIFY(!db.setLineWidthOfKind(KsLineWidth::ByLayer, KsLineWidth(1)));
        QVERIFY(!db.getLineWidthOfKind(KsLineWidth::Explicit, bold));
    }
};

QTEST_MAIN(TestSystemTables)
#include "tst_systemtables.moc"
