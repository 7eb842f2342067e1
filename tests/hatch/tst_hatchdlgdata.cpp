// The hatch dialog data: clearing against the host, copies, the slant line a reference is for,
// and taking a picked hatch element over, frame attribute by frame attribute.
#include "support/TestSupport.h"

#include "config/HatchSettingDlgData.h"
#include "db/MemoryDataBase.h"
#include "element/MemoryHatchElements.h"
#include "framework/MessageBox.h"
#include "setting/SystemHatchingSetting.h"
#include "types/KsLayer.h"
#include "types/KsLineType.h"

#include <QTest>

#include <optional>

using namespace kesto;
using element::CBoundary;
using element::CCoatingElement;
using element::CFigureHatchElement;
using element::CSlantHatchElement;
using element::CSlantHatchLine;
using ui::config::SDrawingHatch;
using ui::config::SHatchSettingDlgData;
using ui::framework::MessageBoxRecorder;
using ui::setting::SHatchFrame;

namespace {

using Mode = SHatchSettingDlgData::EMode;

const KsColor kRed(0xFF0000, KsColor::System, L"赤");
const KsColor kBlue(0x0000FF, KsColor::System, L"青");

struct Attributes {
    std::optional<KsColor> color;
    std::optional<KsLineType> lineType;
    std::optional<KsLineWidth> width;
};

template <class Holder>
void give(Holder& holder, const Attributes& a)
{
    if (a.color)
        holder.attributes().set(*a.color);
    if (a.lineType)
        holder.attributes().set(*a.lineType);
    if (a.width)
        holder.attributes().set(*a.width);
}

CBoundary boundary(bool draw, const Attributes& a = {})
{
    CBoundary b({{0, 0}, {100, 0}, {100, 50}, {0, 50}}, draw);
    give(b, a);
    return b;
}

const Attributes kOuterAttributes{kRed, KsLineType(2, L"破線", KsLineType::Pattern),
                                  KsLineWidth(0.5, KsLineWidth::Bold)};

template <class Element>
void addTwoBoundaries(Element& e)
{
    e.addBoundary(boundary(false, kOuterAttributes));
    e.addBoundary(boundary(true, {kBlue, KsLineType::byLayer(), KsLineWidth(0.7, -1)}));
}

std::shared_ptr<CFigureHatchElement> figureElement(const wchar_t* baseFigure)
{
    auto e = std::make_shared<CFigureHatchElement>(
        baseFigure, CFigureHatchElement::Placement{1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0});
    addTwoBoundaries(*e);
    return e;
}

// A figure hatch as the host sees it: the base figure "間知石" is registered by default.
struct Host {
    test::HostFixture fixture;
    Host()
    {
        fixture.config().putSetting(std::make_unique<ui::setting::CSystemHatchingSetting>(
            ui::setting::CSystemHatchingSetting::makeDefault()));
    }
};

SHatchSettingDlgData picking(std::shared_ptr<KsObject> element, Mode mode)
{
    SHatchSettingDlgData data;
    data.pickedElement = std::move(element);
    data.mode = mode;
    return data;
}

bool sameHatch(const SDrawingHatch& a, const SDrawingHatch& b)
{
    return a.hatchType == b.hatchType && a.figurePattern == b.figurePattern
           && a.slantPattern == b.slantPattern && a.coatingPattern == b.coatingPattern
           && a.holdPattern == b.holdPattern;
}

// The request fields: request, mode, picked or not, line index, list command, reference
// enabled; then the hatch's kind, available inner frames and reference element or not.
QString state(const SHatchSettingDlgData& d)
{
    return QStringLiteral("%1 %2 %3 %4 %5 %6 | %7 %8 %9")
        .arg(d.requestCode)
        .arg(int(d.mode))
        .arg(d.pickedElement ? "picked" : "-")
        .arg(d.slantLineIndex)
        .arg(d.listCommand)
        .arg(int(d.referenceEnabled))
        .arg(d.drawingHatch.hatchType)
        .arg(d.drawingHatch.innerFrameAvailable)
        .arg(d.drawingHatch.referenceElement ? "ref" : "-");
}

QString text(const KsColor& c)
{
    return KsColor::rgbText(c.getRGB()) + u'/' + QString::number(c.getColorType())
           + QString::fromStdWString(c.getName());
}

// "colour line-type kind:width", a by-layer line type marked with "*" before its name.
QString look(const KsColor& color, bool byLayer, const std::wstring& type, int kind, double width)
{
    return QStringLiteral("%1 %2%3 %4:%5")
        .arg(text(color), byLayer ? "*" : "", QString::fromStdWString(type))
        .arg(kind)
        .arg(width);
}

// The frame's look after its draw flag; its keep flags after "keep".
QString text(const SHatchFrame& f)
{
    return test::bits({f.drawFrame}) + u' '
           + look(f.color, f.lineTypeFlag, f.lineTypeName, f.lineWidthKind, f.lineWidth)
           + QStringLiteral(" keep ")
           + test::bits({f.keepDrawFrame, f.keepColor, f.keepLineType, f.keepLineWidth});
}

// The line's look, then "x,y every spacing at angle".
QString text(const ui::setting::SSlantPatternLine& l)
{
    return look(l.color, l.lineTypeFlag, l.lineTypeName, l.lineWidthKind, l.lineWidth)
           + QStringLiteral(" %1,%2 every %3 at %4")
                 .arg(l.placementX)
                 .arg(l.placementY)
                 .arg(l.spacing)
                 .arg(l.angle);
}

// Neither a figure nor a slant hatch nor a coating, or a kind without its data.
class OddHatch : public element::CHatchElementBase {
public:
    explicit OddHatch(bool claimsFigure)
        : m_claimsFigure(claimsFigure)
    {}
    bool isFigureHatch() const override { return m_claimsFigure; }

private:
    bool m_claimsFigure;
};

} // namespace

class TestHatchDlgData : public QObject {
    Q_OBJECT

private slots:
    void clearResetsTheRequestAndAsksTheHostForADrawing()
    {
        QCOMPARE(state(SHatchSettingDlgData()), QStringLiteral("0 0 - 0 0 0 | 1 0 -")); // no host

        test::HostFixture host;
        CMemoryDataBase drawing(L"平面図");
        SHatchSettingDlgData data;
        QVERIFY(!data.referenceEnabled);
        host.config().setCurrentDataBase(&drawing);
        const KsLayer element(L"外周");
        data.requestCode = 2;
        data.pickedElement = std::make_shared<KsLayer>(L"x");
        data.mode = SHatchSettingDlgData::ModeSlantSpacing;
        data.drawingHatch.hatchType = 5;
        data.drawingHatch.slantPattern.lines.clear();
        data.drawingHatch.holdPattern.innerFrames.resize(2);
        data.drawingHatch.innerFrameAvailable = 1;
        data.drawingHatch.referenceElement = &element;
        data.slantLineIndex = 3;
        data.listCommand = 1006;

        ui::refDlg::SRefDlgData& base = data;
        base.clear(); // the record's own clear
        QCOMPARE(state(data), QStringLiteral("0 0 - 0 0 1 | 1 0 -"));
        SDrawingHatch reset;
        reset.initByDefault();
        QVERIFY(sameHatch(data.drawingHatch, reset));

        host.config().setCurrentDataBase(nullptr);
        data.clear();
        QVERIFY(!data.referenceEnabled);
    }

    void copiesCarryTheBaseAndEveryField()
    {
        auto picked = std::make_shared<KsLayer>(L"x");
        SHatchSettingDlgData data;
        data.requestCode = 2;
        data.referenceEnabled = true;
        data.pickedElement = picked;
        data.mode = SHatchSettingDlgData::ModeSlantAngle;
        data.drawingHatch.hatchType = 2;
        data.drawingHatch.slantPattern.name = L"盛土";
        data.slantLineIndex = 1;
        data.listCommand = 1007;

        const SHatchSettingDlgData copy(data);
        SHatchSettingDlgData assigned;
        assigned = data;
        assigned = assigned;
        for (const SHatchSettingDlgData* c : {&copy, &std::as_const(assigned)}) {
            QCOMPARE(state(*c), QStringLiteral("2 13 picked 1 1007 1 | 2 0 -"));
            QCOMPARE(c->pickedElement, picked);
            QVERIFY(sameHatch(c->drawingHatch, data.drawingHatch));
        }
    }

    void theSlashLineIsTheIndexedLineOfASingleValueSlantReference()
    {
        SHatchSettingDlgData data;
        auto& lines = data.drawingHatch.slantPattern.lines;
        lines.resize(3);
        data.slantLineIndex = 2;
        for (Mode mode : {Mode::ModeSlantPoint, Mode::ModeSlantSpacing, Mode::ModeSlantAngle}) {
            data.mode = mode;
            QCOMPARE(data.getSlashLine(), &lines[2]);
        }
        data.slantLineIndex = 0x1'0000'0001; // only the low 32 bits count
        QCOMPARE(data.getSlashLine(), &lines[1]);
        for (std::int64_t index : {std::int64_t(-1), std::int64_t(3), std::int64_t(0xFFFF'FFFF)}) {
            data.slantLineIndex = index;
            QVERIFY(!data.getSlashLine());
        }
        data.slantLineIndex = 0;
        for (Mode mode : {Mode::ModeNone, Mode::ModeSlant, Mode::ModeCoating, Mode::ModeFigure}) {
            data.mode = mode;
            QVERIFY(!data.getSlashLine());
        }
    }

    void onlyAPickedHatchWithAnOuterBoundaryInAWholeHatchModeIsTaken()
    {
        Host host;
        MessageBoxRecorder boxes;
        auto noBoundary =
            std::make_shared<CFigureHatchElement>(L"間知石", CFigureHatchElement::Placement{});
        auto kindless = std::make_shared<OddHatch>(false);
        kindless->addBoundary(boundary(true));
        auto figureWithoutData = std::make_shared<OddHatch>(true);
        figureWithoutData->addBoundary(boundary(true));
        std::vector<std::pair<std::shared_ptr<KsObject>, int>> refused = {
            {nullptr, Mode::ModeFigure},
            {std::make_shared<KsLayer>(L"道路"), Mode::ModeFigure},
            {noBoundary, Mode::ModeFigure},
            {kindless, Mode::ModeFigure},
            {figureWithoutData, Mode::ModeFigure}};
        // The single-value modes are the dialog's own business.
        for (int mode : {0, 2, 3, 4, 5, 6, 7, 8, 9, 11, 12, 13, 17})
            refused.emplace_back(figureElement(L"間知石"), mode);
        for (const auto& [element, mode] : refused) {
            SHatchSettingDlgData data = picking(element, Mode(mode));
            data.drawingHatch.hatchType = 3;
            const SHatchSettingDlgData before = data;
            QVERIFY2(!data.setDrawHatchFromHandle(), qPrintable(QString::number(mode)));
            QVERIFY(sameHatch(data.drawingHatch, before.drawingHatch));
        }
        QCOMPARE(boxes.count(), std::size_t(0));
    }

    void aRegisteredFigureHatchIsTakenWithItsFramesAndPlacement()
    {
        Host host;
        for (Mode mode : {Mode::ModeFigure, Mode::ModeSxf, Mode::ModeAsItIs}) {
            SHatchSettingDlgData data = picking(figureElement(L"間知石"), mode);
            data.drawingHatch.hatchType = 3;
            data.drawingHatch.figurePattern.name = L"石積み";
            const SHatchSettingDlgData before = data;
            QVERIFY(data.setDrawHatchFromHandle());
            QCOMPARE(data.drawingHatch.hatchType, 1);
            const auto& figure = data.drawingHatch.figurePattern;
            QVERIFY(figure.baseFigureName == L"間知石");
            QVERIFY(figure.name == L"石積み"); // the display name is not the element's
            // In the element's order: base angle, angle 1, length 1, angle 2, length 2, size.
            QVERIFY(figure.placement
                    == (ui::setting::SFigurePattern::Placement{1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0}));
            QCOMPARE(text(figure.outerFrame), "0 #FF0000/1赤 破線 3:0.5 keep 0000");
            QCOMPARE(text(figure.innerFrame), "1 #0000FF/1青 *実線 0:0.7 keep 0000");
            QVERIFY(data.drawingHatch.slantPattern == before.drawingHatch.slantPattern);
            QVERIFY(data.drawingHatch.coatingPattern == before.drawingHatch.coatingPattern);
        }
    }

    void anUnregisteredBaseFigureIsRefusedWithItsMessage()
    {
        Host host;
        MessageBoxRecorder boxes;
        SHatchSettingDlgData data = picking(figureElement(L"六角ブロック"), Mode::ModeFigure);
        const SHatchSettingDlgData before = data;
        QVERIFY(!data.setDrawHatchFromHandle());
        QCOMPARE(test::lastBox(boxes),
                 QStringLiteral("ハッチングパターンの設定|基本図形[六角ブロック]がシステムに登録"
                                "されて\nいないパターンハッチングは参照できません。"));
        QCOMPARE(boxes.last().type & 0xFu, unsigned(ui::framework::MB_OK));
        QVERIFY(sameHatch(data.drawingHatch, before.drawingHatch));

        // Without the system's hatching registry no base figure is registered.
        test::HostFixture bare;
        SHatchSettingDlgData again = picking(figureElement(L"間知石"), Mode::ModeFigure);
        QVERIFY(!again.setDrawHatchFromHandle());
        QCOMPARE(boxes.count(), std::size_t(2));
        QVERIFY(boxes.last().text.startsWith(QStringLiteral("基本図形[間知石]")));
    }

    void aSlantHatchIsTakenLineByLine()
    {
        Host host;
        auto slant = std::make_shared<CSlantHatchElement>();
        addTwoBoundaries(*slant);
        CSlantHatchLine first({1.0, 2.0, 3.0, 4.0, 5.0});
        give(first, {kRed, KsLineType(3, L"一点鎖線", KsLineType::Pattern), KsLineWidth(0.35, 7)});
        slant->addLine(first);
        slant->addUnreadableLine();
        CSlantHatchLine second({10.0, 20.0, 30.0, 40.0, 50.0});
        give(second, {std::nullopt, KsLineType(9, L"レイヤ線種", KsLineType::ByLayer),
                      KsLineWidth(0.5, KsLineWidth::ByLayer)});
        slant->addLine(second);
        slant->addLine(CSlantHatchLine({-1.0, -2.0, 0.0, 90.0, 2.5}));

        SHatchSettingDlgData data = picking(slant, Mode::ModeSlant);
        data.drawingHatch.slantPattern.lines.resize(4);
        QVERIFY(data.setDrawHatchFromHandle());
        QCOMPARE(data.drawingHatch.hatchType, 2);
        QStringList lines;
        for (const auto& line : data.drawingHatch.slantPattern.lines)
            lines << text(line);
        // Width kind 7 is not a kind, by layer (the first) is; a missing attribute is as cleared.
        QCOMPARE(lines, QStringList({"#FF0000/1赤 一点鎖線 0:0.35 1,2 every 5 at 4",
                                     "#000000/1 * 1:0.5 10,20 every 50 at 40",
                                     "#000000/1  0:0 -1,-2 every 2.5 at 90"}));
        QCOMPARE(text(data.drawingHatch.slantPattern.outerFrame),
                 "0 #FF0000/1赤 破線 3:0.5 keep 0000");
    }

    void aCoatingIsTakenWithoutItsDrawingOrder()
    {
        Host host;
        CCoatingElement::Fill fill;
        fill.sameAsBackground = true;
        fill.brushKind = 8;
        fill.transparent = true;
        fill.transparencyRate = 40;
        fill.drawOrder = 0;
        fill.drawAtBack = true;
        auto coating = std::make_shared<CCoatingElement>(fill);
        addTwoBoundaries(*coating);
        coating->attributes().set(kBlue);

        SHatchSettingDlgData data = picking(coating, Mode::ModeCoating);
        auto& pattern = data.drawingHatch.coatingPattern;
        pattern.drawOrder = 3;
        QVERIFY(data.setDrawHatchFromHandle());
        QCOMPARE(data.drawingHatch.hatchType, 3);
        QCOMPARE(QStringLiteral("%1 %2 %3 %4 %5")
                     .arg(test::bits(
                              {pattern.sameAsBackground, pattern.transparent, pattern.drawAtBack}),
                          text(pattern.color))
                     .arg(pattern.brushKind)
                     .arg(pattern.transparencyRate)
                     .arg(pattern.drawOrder),
                 QStringLiteral("110 #0000FF/1青 8 40 3"));
        QVERIFY(pattern.innerFrame.color == kBlue);

        coating->attributes().clear();
        pattern.color = kRed;
        QVERIFY(data.setDrawHatchFromHandle());
        QVERIFY(pattern.color == kRed); // no colour attribute: kept
    }

    // Each row: the start frame's by-layer line type and keep flags, the boundary, the frame
    // taken. An inner boundary is never there, so the inner frame stays as it started.
    void framesTakeOnlyTheAttributesTheyDoNotKeep()
    {
        Host host;
        const Attributes byLayer{std::nullopt, KsLineType::byLayer(),
                                 KsLineWidth(0.25, KsLineWidth::ExtraBold)};
        const std::tuple<bool, const char*, CBoundary, const char*> cases[] = {
            {false, "0000", boundary(false, kOuterAttributes),
             "0 #FF0000/1赤 破線 3:0.5 keep 0000"},
            {false, "1111", boundary(false, kOuterAttributes),
             "1 #000000/0レイヤ依存 二点鎖線 2:0.13 keep 1111"},
            // Without attributes only the draw flag changes.
            {false, "0000", boundary(false), "0 #000000/0レイヤ依存 二点鎖線 2:0.13 keep 0000"},
            // Kind 3 sets the flag and leaves the name; extra bold, the last kind, is kept.
            {false, "0000", boundary(true, byLayer),
             "1 #000000/0レイヤ依存 *二点鎖線 4:0.25 keep 0000"},
            {true, "0010", boundary(true, kOuterAttributes),
             "1 #FF0000/1赤 *二点鎖線 3:0.5 keep 0010"},
        };
        for (const auto& [flag, keeps, from, taken] : cases) {
            SHatchFrame start;
            start.initByDefault();
            start.lineTypeName = L"二点鎖線";
            start.lineTypeFlag = flag;
            start.keepDrawFrame = keeps[0] == '1';
            start.keepColor = keeps[1] == '1';
            start.keepLineType = keeps[2] == '1';
            start.keepLineWidth = keeps[3] == '1';
            auto e = std::make_shared<CCoatingElement>(CCoatingElement::Fill{});
            e->addBoundary(from);
            SHatchSettingDlgData data = picking(e, Mode::ModeCoating);
            auto& pattern = data.drawingHatch.coatingPattern;
            pattern.outerFrame = pattern.innerFrame = start;
            QVERIFY(data.setDrawHatchFromHandle());
            QCOMPARE(text(pattern.outerFrame), QString::fromUtf8(taken));
            QVERIFY(pattern.innerFrame == start);
        }
    }
};

QTEST_MAIN(TestHatchDlgData)
#include "tst_hatchdlgdata.moc"
