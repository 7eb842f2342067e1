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
    e.addBoundary(boundary(true, {kBlue, KsLineType::byLayer(), KsLineWidth(0.7, 9)}));
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
        const SHatchSettingDlgData bare; // no host at all
        QCOMPARE(bare.mode, SHatchSettingDlgData::ModeNone);
        QCOMPARE(bare.drawingHatch.hatchType, 1);
        QVERIFY(!bare.referenceEnabled);

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
        QCOMPARE(data.requestCode, 0);
        QVERIFY(!data.pickedElement);
        QCOMPARE(data.mode, SHatchSettingDlgData::ModeNone);
        SDrawingHatch reset;
        reset.initByDefault();
        QVERIFY(sameHatch(data.drawingHatch, reset));
        QCOMPARE(data.drawingHatch.innerFrameAvailable, std::int64_t(0));
        QVERIFY(!data.drawingHatch.referenceElement);
        QCOMPARE(data.slantLineIndex, std::int64_t(0));
        QCOMPARE(data.listCommand, std::int64_t(0));
        QVERIFY(data.referenceEnabled);

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
        for (const SHatchSettingDlgData* c :
             {&copy, static_cast<const SHatchSettingDlgData*>(&assigned)}) {
            QCOMPARE(c->requestCode, 2);
            QVERIFY(c->referenceEnabled);
            QCOMPARE(c->pickedElement.get(), picked.get());
            QCOMPARE(c->mode, SHatchSettingDlgData::ModeSlantAngle);
            QVERIFY(sameHatch(c->drawingHatch, data.drawingHatch));
            QCOMPARE(c->slantLineIndex, std::int64_t(1));
            QCOMPARE(c->listCommand, std::int64_t(1007));
        }
        assigned = assigned;
        QCOMPARE(assigned.listCommand, std::int64_t(1007));
        QVERIFY(assigned.drawingHatch.slantPattern.name == L"盛土");
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
        auto onlyInner = std::make_shared<CSlantHatchElement>();
        auto kindless = std::make_shared<OddHatch>(false);
        kindless->addBoundary(boundary(true));
        auto figureWithoutData = std::make_shared<OddHatch>(true);
        figureWithoutData->addBoundary(boundary(true));
        const std::vector<std::shared_ptr<KsObject>> refused = {
            nullptr, std::make_shared<KsLayer>(L"道路"), noBoundary, kindless, figureWithoutData};
        for (const auto& element : refused) {
            SHatchSettingDlgData data = picking(element, Mode::ModeFigure);
            const SHatchSettingDlgData before = data;
            QVERIFY(!data.setDrawHatchFromHandle());
            QVERIFY(sameHatch(data.drawingHatch, before.drawingHatch));
        }
        // The single-value modes are the dialog's own business.
        for (int mode : {0, 2, 3, 4, 5, 6, 7, 8, 9, 11, 12, 13, 17}) {
            SHatchSettingDlgData data = picking(figureElement(L"間知石"), Mode(mode));
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
            QVERIFY(!figure.outerFrame.drawFrame);
            QVERIFY(figure.outerFrame.color == kRed);
            QVERIFY(figure.innerFrame.color == kBlue);
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
        QCOMPARE(boxes.count(), std::size_t(1));
        QCOMPARE(boxes.last().text, QStringLiteral("基本図形[六角ブロック]がシステムに登録されて\n"
                                                   "いないパターンハッチングは参照できません。"));
        QCOMPARE(boxes.last().caption, QStringLiteral("ハッチングパターンの設定"));
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
                      KsLineWidth(0.5, KsLineWidth::Bold)});
        slant->addLine(second);
        slant->addLine(CSlantHatchLine({-1.0, -2.0, 0.0, 90.0, 2.5}));

        SHatchSettingDlgData data = picking(slant, Mode::ModeSlant);
        data.drawingHatch.slantPattern.lines.resize(4);
        QVERIFY(data.setDrawHatchFromHandle());
        QCOMPARE(data.drawingHatch.hatchType, 2);
        const auto& lines = data.drawingHatch.slantPattern.lines;
        QCOMPARE(lines.size(), std::size_t(3));

        QVERIFY(lines[0].color == kRed);
        QVERIFY(!lines[0].lineTypeFlag);
        QVERIFY(lines[0].lineTypeName == L"一点鎖線");
        QCOMPARE(lines[0].lineWidthKind, 0); // kind 7 is not a kind
        QCOMPARE(lines[0].lineWidth, 0.35);
        QCOMPARE(lines[0].placementX, 1.0);
        QCOMPARE(lines[0].placementY, 2.0);
        QCOMPARE(lines[0].spacing, 5.0);
        QCOMPARE(lines[0].angle, 4.0);

        QVERIFY(lines[1].lineTypeFlag);
        QVERIFY(lines[1].lineTypeName.empty());
        QVERIFY(lines[1].color == KsColor()); // no colour attribute: as cleared
        QCOMPARE(lines[1].lineWidthKind, int(KsLineWidth::Bold));
        QCOMPARE(lines[1].spacing, 50.0);

        const ui::setting::SSlantPatternLine cleared;
        QVERIFY(lines[2].color == cleared.color && lines[2].lineTypeName.empty());
        QCOMPARE(lines[2].lineWidthKind, cleared.lineWidthKind);
        QCOMPARE(lines[2].angle, 90.0);
        QVERIFY(data.drawingHatch.slantPattern.outerFrame.color == kRed);
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
        QVERIFY(pattern.sameAsBackground);
        QVERIFY(pattern.color == kBlue);
        QCOMPARE(pattern.brushKind, 8);
        QVERIFY(pattern.transparent);
        QCOMPARE(pattern.transparencyRate, 40);
        QCOMPARE(pattern.drawOrder, 3);
        QVERIFY(!pattern.drawAtBack);
        QVERIFY(pattern.innerFrame.color == kBlue);

        coating->attributes().clear();
        pattern.color = kRed;
        QVERIFY(data.setDrawHatchFromHandle());
        QVERIFY(pattern.color == kRed); // no colour attribute: kept
    }

    void framesTakeOnlyTheAttributesTheyDoNotKeep()
    {
        Host host;
        const auto take = [](const SHatchFrame& start, CBoundary b) {
            auto e = std::make_shared<CCoatingElement>(CCoatingElement::Fill{});
            e->addBoundary(std::move(b));
            SHatchSettingDlgData data = picking(e, Mode::ModeCoating);
            data.drawingHatch.coatingPattern.outerFrame = start;
            data.drawingHatch.coatingPattern.innerFrame = start;
            [&] { QVERIFY(data.setDrawHatchFromHandle()); }();
            // No inner boundary: the inner frame stays.
            [&] { QVERIFY(data.drawingHatch.coatingPattern.innerFrame == start); }();
            return data.drawingHatch.coatingPattern.outerFrame;
        };
        SHatchFrame start;
        start.initByDefault();
        start.lineTypeName = L"二点鎖線";

        SHatchFrame taken = take(start, boundary(false, kOuterAttributes));
        QVERIFY(!taken.drawFrame);
        QVERIFY(taken.color == kRed);
        QVERIFY(!taken.lineTypeFlag && taken.lineTypeName == L"破線");
        QCOMPARE(taken.lineWidthKind, int(KsLineWidth::Bold));
        QCOMPARE(taken.lineWidth, 0.5);

        SHatchFrame keepAll = start;
        keepAll.keepDrawFrame = keepAll.keepColor = keepAll.keepLineType = keepAll.keepLineWidth =
            true;
        QVERIFY(take(keepAll, boundary(false, kOuterAttributes)) == keepAll);

        // A boundary without attributes changes the draw flag only.
        SHatchFrame expected = start;
        expected.drawFrame = false;
        QVERIFY(take(start, boundary(false)) == expected);

        // Kind 3 sets the flag and leaves the name; unknown width kinds become values.
        SHatchFrame flagged = start;
        flagged.lineTypeFlag = false;
        taken = take(flagged,
                     boundary(true, {std::nullopt, KsLineType::byLayer(), KsLineWidth(0.25, -1)}));
        QVERIFY(taken.lineTypeFlag);
        QVERIFY(taken.lineTypeName == L"二点鎖線");
        QCOMPARE(taken.lineWidthKind, 0);
        QCOMPARE(taken.lineWidth, 0.25);
        QVERIFY(taken.color == start.color);

        SHatchFrame keepType = start;
        keepType.lineTypeFlag = true;
        keepType.keepLineType = true;
        taken = take(keepType, boundary(true, kOuterAttributes));
        QVERIFY(taken.lineTypeFlag && taken.lineTypeName == L"二点鎖線");
        QVERIFY(taken.color == kRed);
    }
};

QTEST_MAIN(TestHatchDlgData)
#include "tst_hatchdlgdata.moc"
