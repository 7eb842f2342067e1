// DXF drawings in the workbench: the five real drawings of tests/data/dxf with their layers,
// line types and figures; Japanese layer names in every form files use; and broken or hostile
// files, read up to the first record that breaks a rule and reported with its line.
#include "support/TestSupport.h"

#include "drawing/DrawingFile.h"
#include "dxf/DxfReader.h"
#include "dxf/DxfStream.h"
#include "dxf/DxfText.h"
#include "picking/FigureListModel.h"
#include "view/LayerViews.h"

#include "db/KsLayerManager.h"
#include "element/KsViewPort.h"
#include "setting/SystemColorSetting.h"
#include "types/KsFigure.h"
#include "types/KsLayer.h"
#include "types/KsLineType.h"

#include <QBuffer>
#include <QDir>
#include <QTest>

#include <dl_creationadapter.h>
#include <dl_dxf.h>

#include <istream>
#include <set>

using namespace kesto;
using namespace kesto::workbench;

namespace {

QString drawing(const QString& name)
{
    return test::dataFile(QStringLiteral("dxf/") + name);
}

const KsLayer* layerNamed(const CMemoryDataBase& db, const QString& name)
{
    for (const KsLayer* layer : db.elementsOf<KsLayer>(L"LAYER")) {
        if (QString::fromStdWString(layer->getName()) == name)
            return layer;
    }
    return nullptr;
}

QStringList layerNames(const CMemoryDataBase& db)
{
    QStringList out;
    for (const KsLayer* layer : db.elementsOf<KsLayer>(L"LAYER"))
        out << QString::fromStdWString(layer->getName());
    return out;
}

struct SFigureCount {
    int figures = 0;
    int inBlocks = 0;
    QStringList emptyLayers;
};

SFigureCount countFigures(const CMemoryDataBase& db)
{
    SFigureCount count;
    std::set<const KsLayer*> used;
    db.forEachElement([&](KsObject& element) {
        if (const auto* figure = dynamic_cast<const KsFigure*>(&element)) {
            ++count.figures;
            count.inBlocks += figure->isInBlock() ? 1 : 0;
            used.insert(figure->getLayer());
        }
    });
    for (const KsLayer* layer : db.elementsOf<KsLayer>(L"LAYER")) {
        if (!used.count(layer))
            count.emptyLayers << QString::fromStdWString(layer->getName());
    }
    return count;
}

QByteArray pairs(std::initializer_list<std::pair<int, QByteArray>> list)
{
    QByteArray out;
    for (const auto& [code, value] : list)
        out += QByteArray::number(code) + '\n' + value + '\n';
    return out;
}

// Group codes and values written as "code=value code=value ..." (values without blanks).
QByteArray groups(const QByteArray& text)
{
    QByteArray out;
    for (const QByteArray& group : text.simplified().split(' ')) {
        const int equals = group.indexOf('=');
        out += group.left(equals) + '\n' + group.mid(equals + 1) + '\n';
    }
    return out;
}

// A drawing as an R12 export writes it: an optional header, a LAYER table, entities on layers.
QByteArray r12Drawing(const QByteArray& codePage, const QList<QByteArray>& layers,
                      const QList<QByteArray>& entityLayers)
{
    QByteArray out = pairs({{0, "SECTION"}, {2, "HEADER"}, {9, "$ACADVER"}, {1, "AC1009"}});
    if (!codePage.isEmpty())
        out += pairs({{9, "$DWGCODEPAGE"}, {3, codePage}});
    out += pairs({{0, "ENDSEC"}, {0, "SECTION"}, {2, "TABLES"}, {0, "TABLE"}, {2, "LAYER"}});
    for (const QByteArray& name : layers)
        out += pairs({{0, "LAYER"}, {2, name}, {70, "0"}, {62, "3"}, {6, "CONTINUOUS"}});
    out += pairs({{0, "ENDTAB"}, {0, "ENDSEC"}, {0, "SECTION"}, {2, "ENTITIES"}});
    for (const QByteArray& layer : entityLayers)
        out += pairs({{0, "LINE"}, {8, layer}, {10, "0"}, {20, "0"}, {11, "1"}, {21, "1"}});
    return out + pairs({{0, "ENDSEC"}, {0, "EOF"}});
}

// The drawing, and in problems what could not be read (empty when all of it was).
std::unique_ptr<CMemoryDataBase> readText(const QByteArray& text, QString* problems = nullptr)
{
    utility::CReadReport report;
    auto db = dxf::readDxfText(text, QStringLiteral("test.dxf"), report);
    if (problems)
        *problems = report.details();
    return db;
}

// Pairs as the parser is given them, in order.
struct PairLog : DL_CreationAdapter {
    void processCodeValuePair(unsigned code, const std::string& value) override
    {
        log << QString::number(code) + u'=' + QString::fromStdString(value);
    }
    QStringList log;
};

} // namespace

class TestDxf : public QObject {
    Q_OBJECT

private slots:
    void everyDrawingOpensWithItsTables_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("layers");
        QTest::addColumn<int>("lineTypes");
        QTest::addColumn<int>("figures");
        QTest::addColumn<int>("inBlocks");
        QTest::addColumn<QStringList>("empty");
        QTest::newRow("R12") << "libredwg_example_r12.dxf" << 5 << 1 << 1627 << 1560
                             << QStringList{"ADSK_SYSTEM_LIGHTS"};
        QTest::newRow("R2000") << "qcad_dl3dl_din7200_r2000.dxf" << 23 << 42 << 3836 << 287
                               << QStringList{"_Hilfe", "0"};
        QTest::newRow("R2007") << "bjnortier_texts_in_block_r2007.dxf" << 16 << 53 << 715 << 713
                               << QStringList{"TABLE_AL MAJD", "SERVICE PLAN 1782"};
        QTest::newRow("R2013 CJK")
            << "libredwg_gh109_r2013_cjk.dxf" << 27 << 5 << 360 << 309
            << QStringList{"ASHADE",   "PUB_HATCH", "WINDOW_TEXT", "_TCH_KEY",
                           "SURFACE",  "AXIS_TEXT", "SPACE_HATCH", "DIM_SYMB",
                           "HANDRAIL", "RAIL",      "_TCH_MASK",   "PUB_WALL"};
        QTest::newRow("R2013") << "qcad_flange_r2013.dxf" << 13 << 59 << 423 << 198
                               << QStringList{"defpoints"};
    }

    void everyDrawingOpensWithItsTables()
    {
        QFETCH(QString, file);
        QFETCH(int, layers);
        QFETCH(int, lineTypes);
        QFETCH(int, figures);
        QFETCH(int, inBlocks);
        QFETCH(QStringList, empty);
        QString error;
        const auto db = openDrawing(drawing(file), &error);
        QVERIFY2(db && error.isEmpty(), qPrintable(error));
        QCOMPARE(QString::fromStdWString(db->getTitle()), file);
        QCOMPARE(int(db->countElements(L"LAYER")), layers);
        QCOMPARE(int(db->countElements(L"LTYPE")), lineTypes);
        const SFigureCount count = countFigures(*db);
        QCOMPARE(count.figures, figures);
        QCOMPARE(count.inBlocks, inBlocks);
        QCOMPARE(count.emptyLayers, empty);
    }

    void r12LayersKeepTheirStatesColoursAndLineTypes()
    {
        QString error;
        const auto db = openDrawing(drawing(QStringLiteral("libredwg_example_r12.dxf")), &error);
        QVERIFY2(db, qPrintable(error));
        QCOMPARE(layerNames(*db),
                 QStringList({"0", "TAVOLO_2", "TAVOLO_3", "DEFPOINTS", "ADSK_SYSTEM_LIGHTS"}));
        const KsLayer* lights = layerNamed(*db, QStringLiteral("ADSK_SYSTEM_LIGHTS"));
        QVERIFY(!lights->isVisible() && !lights->isReference() && !lights->isEditable());
        const KsLayer* tavolo = layerNamed(*db, QStringLiteral("TAVOLO_2"));
        QVERIFY(tavolo->isVisible() && tavolo->isReference() && tavolo->isEditable());
        QCOMPARE(tavolo->getColor().getRGB(), 0xFFFF00u);
        QCOMPARE(layerNamed(*db, QStringLiteral("0"))->getColor().getRGB(), 0x000000u);
        QVERIFY(tavolo->getLineType().getName() == L"CONTINUOUS");
        QVERIFY(tavolo->getLineWidth().getName() == L"既定"); // R12 has no line weights
        QCOMPARE(db->getLayerManager()->getCurrentLayer(),
                 layerNamed(*db, QStringLiteral("TAVOLO_3")));
    }

    void r2000NamesWithEscapesWeightsAndTrueColours()
    {
        QString error;
        const auto db =
            openDrawing(drawing(QStringLiteral("qcad_dl3dl_din7200_r2000.dxf")), &error);
        QVERIFY2(db, qPrintable(error));
        QVERIFY(layerNamed(*db, QStringLiteral("Maße")));
        QVERIFY(layerNamed(*db, QStringLiteral("_PK_Text_ausgefüllt")));
        QVERIFY(layerNamed(*db, QStringLiteral("_Einfügepunkt")));
        const KsLayer* pen = layerNamed(*db, QStringLiteral("_PK_0.35mm"));
        QCOMPARE(pen->getLineWidth().getWidth(), 0.35);
        QVERIFY(pen->getLineWidth().getName() == L"0.35");
        QCOMPARE(layerNamed(*db, QStringLiteral("Logo_b"))->getColor().getRGB(), 0xFF7F00u);
        QVERIFY(layerNamed(*db, QStringLiteral("Logo"))->getLineWidth().getName() == L"既定");
        QStringList widths;
        for (const KsLineWidth* width : db->elementsOf<KsLineWidth>(L"LWIDTH"))
            widths << QString::fromStdWString(width->getName());
        QVERIFY(widths.contains(QStringLiteral("0.05")) && widths.contains(QStringLiteral("1")));
        QCOMPARE(widths.size(), 6); // 5, 18, 35, 50, 70, 100
    }

    void r2013StatesLineTypesAndChineseNames()
    {
        QString error;
        const auto flange = openDrawing(drawing(QStringLiteral("qcad_flange_r2013.dxf")), &error);
        QVERIFY2(flange, qPrintable(error));
        const KsLayer* aux = layerNamed(*flange, QStringLiteral("aux_iso"));
        QVERIFY(!aux->isVisible() && !aux->isReference() && aux->isEditable()); // off and frozen
        const KsLayer* center = layerNamed(*flange, QStringLiteral("center"));
        QVERIFY(center->getLineType().getName() == L"DASHDOT");
        QCOMPARE(center->getLineType().getKind(), int(KsLineType::Pattern));
        QCOMPARE(center->getLineType().getDashes().size(), std::size_t(4));
        QVERIFY(center->getLineWidth().getName() == L"0.09");
        QCOMPARE(layerNamed(*flange, QStringLiteral("dimensions"))->getColor().getRGB(), 0x486CC0u);
        QVERIFY(layerNamed(*flange, QStringLiteral("thin2"))->getLineWidth().getName() == L"0");

        const auto cjk =
            openDrawing(drawing(QStringLiteral("libredwg_gh109_r2013_cjk.dxf")), &error);
        QVERIFY2(cjk, qPrintable(error));
        const KsLayer* sanitary = layerNamed(*cjk, QStringLiteral("洁具"));
        QVERIFY(sanitary);
        QVERIFY(!countFigures(*cjk).emptyLayers.contains(QStringLiteral("洁具")));
        const KsLayer* shade = layerNamed(*cjk, QStringLiteral("ASHADE"));
        QVERIFY(shade->isVisible() && !shade->isEditable()); // locked
        QVERIFY(layerNamed(*cjk, QStringLiteral("DOTE"))->getLineType().getName() == L"DOTE");
    }

    void r2007IsReadAsUtf8WithItsColours()
    {
        QString error;
        const auto db =
            openDrawing(drawing(QStringLiteral("bjnortier_texts_in_block_r2007.dxf")), &error);
        QVERIFY2(db, qPrintable(error));
        const KsLayer* column = layerNamed(*db, QStringLiteral("New Column"));
        QCOMPARE(column->getColor().getRGB(), 0xFF0000u);
        QVERIFY(column->getLineWidth().getName() == L"既定");
        QCOMPARE(layerNamed(*db, QStringLiteral("0"))->getColor().getRGB(), 0x000000u); // white on
        QVERIFY(layerNamed(*db, QStringLiteral("FURNITURE_AL MAJD"))->getLineWidth().getName()
                == L"0.09");
    }

    void japaneseLayerNamesComeThroughInEveryForm_data()
    {
        QTest::addColumn<QByteArray>("text");
        const QList<QByteArray> sjis{QByteArray::fromHex("93b998489286905390fc"),
                                     QByteArray::fromHex("955c8ea6"),
                                     QByteArray::fromHex("8d5c91a295a8")};
        const QList<QByteArray> onLayers{sjis[1], sjis[2]};
        QTest::newRow("Shift-JIS, ANSI_932") << r12Drawing("ANSI_932", sjis, onLayers);
        QTest::newRow("Shift-JIS, no code page") << r12Drawing({}, sjis, onLayers);
        QTest::newRow("escapes") << r12Drawing("ANSI_1252",
                                               {"\\U+9053\\U+8DEF\\U+4E2D\\U+5FC3\\U+7DDA",
                                                "\\U+8868\\U+793a", "\\M+18D5C\\U+9020\\U+7269"},
                                               {"\\U+8868\\U+793A", "\\M+18d5c\\U+9020\\U+7269"});
        QTest::newRow("UTF-8, no code page")
            << r12Drawing({}, {"道路中心線", "表示", "構造物"}, {"表示", "構造物"});
    }

    void japaneseLayerNamesComeThroughInEveryForm()
    {
        QFETCH(QByteArray, text);
        QString error;
        const auto db = readText(text, &error);
        QVERIFY2(db, qPrintable(error));
        QCOMPARE(layerNames(*db), QStringList({"道路中心線", "表示", "構造物"}));
        QCOMPARE(countFigures(*db).emptyLayers, QStringList{"道路中心線"});
    }

    void textDecodingFollowsVersionAndCodePage()
    {
        dxf::CTextDecoder decoder;
        const QByteArray sjis = QByteArray::fromHex("955c8ea6");
        QCOMPARE(decoder.decode(sjis.toStdString()), QStringLiteral("表示"));
        decoder.setCodePage("ANSI_1252");
        QCOMPARE(decoder.decode("Ma\xDF"
                                "e"),
                 QStringLiteral("Maße"));
        decoder.setVersion("AC1021"); // UTF-8 whatever the header says
        QCOMPARE(decoder.decode("Ma\xC3\x9F"
                                "e"),
                 QStringLiteral("Maße"));
        QCOMPARE(dxf::codePageOf("ansi_932"), std::string("CP932"));
        QVERIFY(dxf::codePageOf("ANSI_9999").empty());
        QCOMPARE(dxf::decodeEscapes(QStringLiteral("A\\U+00DFB\\U+zz\\M+9ABCD\\")),
                 QStringLiteral("AßB\\U+zz\\M+9ABCD\\"));
    }

    void layerDescriptionsAndTheHeadersCurrentLayerAndDefaultWeight()
    {
        const QByteArray text =
            groups("0=SECTION 2=HEADER 9=$ACADVER 1=AC1021 9=$CLAYER 8=genkyou 9=$LWDEFAULT 370=35 "
                   "0=ENDSEC 0=SECTION 2=TABLES 0=TABLE 2=LAYER 0=LAYER 2=GENKYOU 70=0 62=-8 "
                   "6=Continuous 370=-3 1001=AcAecLayerStandard 1000= 1000=現況の地盤 0=LAYER 2=0 "
                   "70=0 62=7 6=Continuous 0=ENDTAB 0=ENDSEC 0=EOF");
        QString error;
        const auto db = readText(text, &error);
        QVERIFY2(db, qPrintable(error));
        const KsLayer* ground = layerNamed(*db, QStringLiteral("GENKYOU"));
        QVERIFY(ground->getComment() == L"現況の地盤");
        QVERIFY(layerNamed(*db, QStringLiteral("0"))->getComment().empty());
        QCOMPARE(ground->getLineWidth().getWidth(), 0.35);
        QVERIFY(ground->getLineWidth().getName() == L"既定");
        QVERIFY(!ground->isVisible()); // off...
        const KsLayerManager& manager = *db->getLayerManager();
        QCOMPARE(manager.getCurrentLayer(), ground); // ...but current, so shown
        QVERIFY(ground->isVisible(manager));
        QCOMPARE(ground->getColor().getRGB(), 0x808080u);
    }

    void viewportsComeWithTheLayersFrozenInThem()
    {
        QString error;
        const auto flange = openDrawing(drawing(QStringLiteral("qcad_flange_r2013.dxf")), &error);
        QVERIFY2(flange, qPrintable(error));
        QStringList names;
        for (const KsViewPort* viewport : viewPortsOf(*flange)) {
            names << QString::fromStdWString(viewport->getViewName());
            QVERIFY(viewport->getLayerFlgs().empty());
        }
        QCOMPARE(names, QStringList({"ビューポート 1E80", "ビューポート 21AF", "ビューポート 21B0",
                                     "ビューポート 38C9"}));
        QCOMPARE(viewPortsOf(*flange)[1]->getLayer(),
                 layerNamed(*flange, QStringLiteral("viewports")));

        const QByteArray layers = groups(
            "0=SECTION 2=TABLES 0=TABLE 2=LAYER 0=LAYER 5=1A 2=ROAD 70=0 62=1 6=CONTINUOUS 0=LAYER "
            "5=1b 2=\\U+65E7\\U+5730\\U+5F62 70=0 62=2 6=CONTINUOUS 0=ENDTAB 0=ENDSEC "
            "0=SECTION 2=ENTITIES");
        const QByteArray viewports =
            groups("0=VIEWPORT 5=40 8=ROAD 69=1 331=1A 0=VIEWPORT 5=41 8=ROAD 69=2 331=1B 331=FF "
                   "0=VIEWPORT 5=42 8=ROAD 69=3 1001=ACAD 1000=MVIEW 1003=ROAD 0=ENDSEC 0=EOF");
        const auto db = readText(layers + viewports, &error);
        QVERIFY2(db, qPrintable(error));
        const auto found = viewPortsOf(*db);
        QCOMPARE(found.size(), std::size_t(2)); // ID 1 is the sheet, not a view
        QVERIFY(found[0]->getViewName() == L"ビューポート 41");
        QVERIFY(found[0]->getLayerFlgs() == element::LayerFlagMap({{L"旧地形", 2}}));
        QVERIFY(found[1]->getLayerFlgs() == element::LayerFlagMap({{L"ROAD", 2}}));
        QCOMPARE(countFigures(*db).figures, 3);
    }

    // ACI 1 to 7 are the system palette's colours (as the user set them), others the standard
    // RGB; the number read stays with the layer's or figure's colour.
    void colourNumbersAreThePalettesAndKeptForWritingBack()
    {
        test::HostFixture host;
        auto palette = ui::setting::CSystemColorSetting::makeDefault();
        std::vector<KsColor> colors = palette.getColors();
        colors[2].setRGB(0x008000); // the user's own green
        palette.setColors(colors);
        host.config().putSetting(std::make_unique<ui::setting::CSystemColorSetting>(palette));
        const auto db = readText(groups(
            "0=SECTION 2=TABLES 0=TABLE 2=LAYER 0=LAYER 2=GREEN 70=0 62=3 0=LAYER 2=ORANGE 70=0 "
            "62=-30 0=LAYER 2=INK 70=0 62=7 0=ENDTAB 0=ENDSEC 0=SECTION 2=ENTITIES 0=LINE 8=INK "
            "62=5 0=LINE 8=INK 62=131 0=ENDSEC 0=EOF"));
        QVERIFY(db);
        const auto lines = db->elementsOf<KsFigure>(L"LINE");
        const std::vector<std::tuple<KsColor, std::uint32_t, QString, int>> expected{
            {layerNamed(*db, QStringLiteral("GREEN"))->getColor(), 0x008000u, "緑", 3},
            {layerNamed(*db, QStringLiteral("ORANGE"))->getColor(), 0xFF8000u, "30", 30},
            {layerNamed(*db, QStringLiteral("INK"))->getColor(), 0x000000u, "黒", 7},
            {lines[0]->getColor(), 0x0000FFu, "青", 5},
            {lines[1]->getColor(), 0x80FFFFu, "RGB(128,255,255)", 131},
        };
        for (std::size_t i = 0; i < expected.size(); ++i) {
            const auto& [color, rgb, name, number] = expected[i];
            QCOMPARE(color.getRGB(), rgb);
            QCOMPARE(color.getNumber(), number);
            QCOMPARE(color.getColorType(), int(KsColor::System));
            const QString shown = i < 3 ? QString::fromStdWString(color.getName())
                                        : CFigureListModel::colorText(*lines[i - 3], &palette);
            QCOMPARE(shown, name);
        }
    }

    void entitiesOnLayersTheTableLacksAddThoseLayers()
    {
        const auto db = readText(r12Drawing({}, {"0"}, {"UNLISTED", "unlisted", "0"}));
        QVERIFY(db);
        QCOMPARE(layerNames(*db), QStringList({"0", "UNLISTED"}));
        QVERIFY(countFigures(*db).emptyLayers.isEmpty());
    }

    // Reading stops before the first record that breaks a rule; what came before opens (a
    // record is given once the next one begins: a break inside the first leaves nothing).
    void brokenOrHostileFilesStopWhereTheyBreakARule_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("opens");
        QTest::addColumn<QString>("problem");
        const QByteArray section = pairs({{0, "SECTION"}, {2, "ENTITIES"}});
        const QByteArray end = pairs({{0, "ENDSEC"}, {0, "EOF"}});
        QTest::newRow("empty") << QByteArray("\n \n") << false << "ファイルが空です";
        QTest::newRow("binary") << QByteArray("AutoCAD Binary DXF\r\n\x1a") << false
                                << "バイナリ DXF は読めません。ASCII DXF で保存し直してください";
        QTest::newRow("code not a number")
            << section + "abc\nLINE\n" + end << false
            << "5 行目: グループコード \"abc\" が -5 から 1071 の数ではありません";
        QTest::newRow("code out of range")
            << section + "5000\nX\n" + end << false
            << "5 行目: グループコード \"5000\" が -5 から 1071 の数ではありません";
        QTest::newRow("missing value")
            << section + "0\n"
            << false << "5 行目: グループコード 0 に値がありません (ファイルが途中で切れています)";
        QTest::newRow("no EOF") << section + pairs({{0, "LINE"}, {8, "0"}}) << true
                                << "8 行目: ファイルが EOF で終わっていません (途中で切れています)";
        QTest::newRow("open section")
            << section + pairs({{0, "SECTION"}, {2, "X"}}) + end << true
            << "5 行目: セクション ENTITIES が閉じないまま次のセクションが始まります";
        QTest::newRow("vertex count")
            << section
                   + pairs({{0, "LWPOLYLINE"}, {8, "0"}, {90, "1073741825"}, {10, "1"}, {20, "2"}})
                   + end
            << true
            << "9 行目: LWPOLYLINE (5 行目から) のグループコード 90 の個数 1073741825 が、"
               "その図形の値の数 4 を超えています";
        QTest::newRow("knot count")
            << section + pairs({{0, "SPLINE"}, {8, "0"}, {72, "2000000000"}, {40, "0"}}) + end
            << true
            << "9 行目: SPLINE (5 行目から) のグループコード 72 の個数 2000000000 が、"
               "その図形の値の数 3 を超えています";
        QTest::newRow("negative edge count")
            << section + pairs({{0, "HATCH"}, {8, "0"}, {91, "1"}, {93, "-4"}}) + end << true
            << "11 行目: HATCH (5 行目から) のグループコード 93 の個数 -4 が、その図形の値の数 3 "
               "を超えています";
        QTest::newRow("blocks nested too deep")
            << pairs({{0, "SECTION"}, {2, "BLOCKS"}}) + QByteArray("0\nBLOCK\n").repeated(9) + end
            << true << "21 行目: ブロックの入れ子が深すぎます (上限 8 段)";
    }
    void brokenOrHostileFilesStopWhereTheyBreakARule()
    {
        QFETCH(QByteArray, text);
        QFETCH(bool, opens);
        QFETCH(QString, problem);
        QString problems;
        QCOMPARE(bool(readText(text, &problems)), opens);
        QCOMPARE(problems, problem);
    }

    // What follows EOF is never read: a 50-byte file that promised a billion vertices after its
    // EOF made the parser reserve gigabytes while a separate check had stopped at EOF.
    void nothingAfterEofIsRead()
    {
        const QByteArray text = test::readFile(drawing(QStringLiteral("hostile_after_eof.dxf")));
        QVERIFY(text.size() < 100 && text.contains("EOF\n0\nLWPOLYLINE"));
        QString problems;
        const auto db = readText(text, &problems);
        QVERIFY(db);
        QCOMPARE(problems, QString());
        QCOMPARE(countFigures(*db).figures, 1);
    }

    // The stream hands each pair to the collector just before the parser reads it, and holds
    // its limits on records and values.
    void theStreamHoldsItsLimitsAndReportsPairsInOrder()
    {
        const QByteArray text = pairs({{999, "note"},
                                       {0, "SECTION"},
                                       {2, "ENTITIES"},
                                       {0, "LINE"},
                                       {8, "A"},
                                       {10, "0"},
                                       {0, "ENDSEC"},
                                       {0, "EOF"},
                                       {0, "LINE"}});
        const auto run = [&text](dxf::SDxfLimits limits, PairLog& log) {
            QBuffer source;
            source.setData(text);
            source.open(QIODevice::ReadOnly);
            dxf::CDxfStreamBuf buffer(source, log, limits);
            std::istream stream(&buffer);
            DL_Dxf().in(stream, &log);
            return buffer.readToEnd() ? QString() : buffer.stopReason();
        };
        PairLog all;
        QCOMPARE(run({}, all), QString());
        QCOMPARE(all.log, QStringList({"999=note", "0=SECTION", "2=ENTITIES", "0=LINE", "8=A",
                                       "10=0", "0=ENDSEC", "0=EOF"}));
        PairLog fewRecords;
        QCOMPARE(run({2, 100, 1000, 8}, fewRecords),
                 QStringLiteral("図形や表の項目が多すぎます (上限 2)"));
        QCOMPARE(fewRecords.log.last(), QStringLiteral("0=EOF")); // closed where it stopped
        PairLog fewValues;
        QCOMPARE(run({100, 1, 1000, 8}, fewValues),
                 QStringLiteral("LINE (7 行目から) の値が多すぎます (上限 1)"));
    }

    void aTruncatedDrawingOpensUpToWhereItEnds()
    {
        const QByteArray whole = test::readFile(drawing(QStringLiteral("qcad_flange_r2013.dxf")));
        QVERIFY(whole.size() > 100000);
        int previous = 0;
        for (int part = 1; part < 40; ++part) {
            QString problems;
            const auto db = readText(whole.left(whole.size() * part / 40 + part), &problems);
            QVERIFY(problems.contains(QStringLiteral("行目: ")));
            const int figures = db ? countFigures(*db).figures : 0;
            QVERIFY(figures >= previous);
            previous = figures;
        }
        QVERIFY(previous > 400);
        QString problems;
        QCOMPARE(countFigures(*readText(whole, &problems)).figures, 423);
        QCOMPARE(problems, QString());
    }

    void damagedDrawingsOpenWithTheirProblemsOrAreRefusedButNeverCrash()
    {
        const QByteArray whole =
            test::readFile(drawing(QStringLiteral("libredwg_example_r12.dxf")));
        quint32 seed = 20240601;
        auto next = [&seed] { return seed = seed * 1664525u + 1013904223u; };
        static const char noise[] = "0123456789-\n \xff";
        const auto size = static_cast<quint32>(whole.size());
        int whole_ = 0;
        for (int variant = 0; variant < 30; ++variant) {
            QByteArray damaged = whole;
            for (int flip = 0; flip < 40; ++flip)
                damaged[next() % size] = noise[next() % (sizeof(noise) - 1)];
            QString problems;
            const auto db = readText(damaged, &problems);
            QVERIFY(db || !problems.isEmpty());
            whole_ += db && problems.isEmpty() ? 1 : 0;
        }
        QVERIFY(whole_ < 30);
    }

    void overlongLinesAreCutNotMisread()
    {
        const QByteArray text = r12Drawing({}, {"0", "TEXTS"}, {"TEXTS"}).replace("0\nEOF\n", "")
                                + pairs({{0, "SECTION"},
                                         {2, "ENTITIES"},
                                         {0, "TEXT"},
                                         {8, "TEXTS"},
                                         {1, QByteArray(5000, 'x')},
                                         {0, "LINE"},
                                         {8, "0"},
                                         {0, "ENDSEC"},
                                         {0, "EOF"}});
        QString error;
        const auto db = readText(text, &error);
        QVERIFY2(db, qPrintable(error));
        QCOMPARE(layerNames(*db), QStringList({"0", "TEXTS"}));
        QCOMPARE(countFigures(*db).figures, 3);
        QVERIFY(countFigures(*db).emptyLayers.isEmpty());
    }

    // Entities' own colour (62, 420), line type (6) and line weight (370); by layer and by
    // block, and names the table lacks, leave the layer's.
    void entitiesKeepTheirOwnLook()
    {
        QByteArray text = pairs(
            {{0, "SECTION"},    {2, "HEADER"}, {9, "$ACADVER"}, {1, "AC1015"},  {9, "$LWDEFAULT"},
             {370, "50"},       {0, "ENDSEC"}, {0, "SECTION"},  {2, "TABLES"},  {0, "TABLE"},
             {2, "LTYPE"},      {0, "LTYPE"},  {2, "ByLayer"},  {70, "0"},      {0, "LTYPE"},
             {2, "Continuous"}, {70, "0"},     {0, "LTYPE"},    {2, "DASHED"},  {70, "0"},
             {73, "2"},         {49, "6.35"},  {49, "-3.175"},  {0, "ENDTAB"},  {0, "TABLE"},
             {2, "LAYER"},      {0, "LAYER"},  {2, "ROAD"},     {70, "0"},      {62, "3"},
             {6, "Continuous"}, {0, "ENDTAB"}, {0, "ENDSEC"},   {0, "SECTION"}, {2, "ENTITIES"}});
        const QList<QList<std::pair<int, QByteArray>>> entities = {
            {{62, "1"}, {6, "dashed"}, {370, "35"}},
            {{62, "5"}, {420, "16744448"}, {370, "-3"}},
            {{62, "256"}, {6, "BYLAYER"}, {370, "-1"}},
            {{62, "0"}, {6, "ByBlock"}, {370, "-2"}},
            {{6, "NO_SUCH_TYPE"}},
        };
        for (const auto& look : entities) {
            text += pairs({{0, "LINE"}, {8, "ROAD"}});
            for (const auto& [code, value] : look)
                text += pairs({{code, value}});
            text += pairs({{10, "0"}, {20, "0"}, {11, "1"}, {21, "1"}});
        }
        text += pairs({{0, "ENDSEC"}, {0, "EOF"}});
        QString error;
        const auto db = readText(text, &error);
        QVERIFY2(db, qPrintable(error));
        const auto lines = db->elementsOf<KsFigure>(L"LINE");
        QCOMPARE(int(lines.size()), 5);
        const auto table = db->elementsOf<KsLineType>(L"LTYPE");
        QCOMPARE(table.front()->getId(), KsLineType::kFirstDrawingId);
        QCOMPARE(lines[0]->getColor().getRGB(), 0xFF0000u);
        QCOMPARE(lines[0]->getLineType(), table[2]); // the table's own, by pointer
        QCOMPARE(lines[0]->getLineType()->getDashes().size(), std::size_t(2));
        QCOMPARE(lines[0]->getLineWidth().getWidth(), 0.35);
        QCOMPARE(lines[0]->getLineWidth().getKind(), int(KsLineWidth::Explicit));
        QCOMPARE(lines[1]->getColor().getRGB(), 0xFF8000u); // true colour wins over ACI
        QCOMPARE(lines[1]->getLineWidth().getWidth(), 0.5); // "default" is $LWDEFAULT
        QVERIFY(lines[1]->isLineTypeByLayer());
        for (const KsFigure* byLayer : {lines[2], lines[3], lines[4]}) {
            QVERIFY(byLayer->isColorByLayer());
            QVERIFY(byLayer->isLineTypeByLayer());
            QVERIFY(byLayer->isLineWidthByLayer());
        }
        QCOMPARE(layerNamed(*db, QStringLiteral("ROAD"))->getLineType().getId(),
                 KsLineType::kFirstDrawingId + 1);
    }

    void openingNamesTheFileAndWhatWentWrong()
    {
        test::HostFixture host;
        const QString garbage = host.path(QStringLiteral("garbage.dxf"));
        QVERIFY(test::writeFile(garbage, "\x81\x82\n0\n"));
        const QString none = drawing(QStringLiteral("none.dxf"));
        const QString dwg = host.path(QStringLiteral("e.dwg"));
        QVERIFY(test::writeFile(dwg, "AC1027"));
        const std::pair<QString, QString> cases[] = {
            {none, QStringLiteral("図面 %1 を開けません。\nファイルがありません")},
            {garbage, QStringLiteral("図面 %1 を開けません。\n1 行目: グループコード \"??\" が "
                                     "-5 から 1071 の数ではありません")},
            {dwg, QStringLiteral("図面 %1 を開けません。\n形式がわかりません。DXF (.dxf) か"
                                 "ワークベンチの XML 図面 (.xml) を選んでください")},
        };
        for (const auto& [path, text] : cases) {
            QString message;
            QVERIFY(!openDrawing(path, &message));
            QCOMPARE(message, text.arg(QDir::toNativeSeparators(path)));
        }
    }
};

QTEST_GUILESS_MAIN(TestDxf)
#include "tst_dxf.moc"
