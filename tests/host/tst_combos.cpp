// The colour, line type, line width and line end combo boxes shared by the dialogs, and the
// drawing settings they offer: the common attributes and the line ends, with their files.
#include "support/TestSupport.h"

#include "control/ArrowComboBox.h"
#include "control/ComboSamples.h"
#include "control/SelectLineWidthComboBox.h"
#include "control/SystemColorComboBox.h"
#include "control/SystemLineTypeComboBox.h"
#include "db/MemoryDataBase.h"
#include "framework/ColorChooser.h"
#include "framework/MessageBox.h"
#include "setting/DrawCommonSetting.h"
#include "setting/LineEndSetting.h"
#include "setting/SystemColorSetting.h"
#include "utility/ComboUtility.h"

#include <QImage>
#include <QTest>

using namespace kesto;
using namespace kesto::ui::setting;
using ui::control::CSystemColorComboBox;
using ui::control::CSystemLineTypeComboBox;
using ui::control::LineTypeChooserHook;
using ui::control::SelectLineWidthComboBox;
using ui::framework::ColorChooserHook;

namespace {

struct CountingObserver : IObserver {
    int count = 0;
    void update(Subject*, int, void*) override { ++count; }
};

QColor centreOf(const QIcon& icon, const QSize& size)
{
    const QImage image = icon.pixmap(size).toImage();
    return image.pixelColor(image.width() / 2, image.height() / 2);
}

// Pixel rows of a width sample that are painted.
int paintedRows(const QIcon& icon)
{
    const QImage image = icon.pixmap(ui::control::samples::kLineSampleSize).toImage();
    int rows = 0;
    for (int y = 0; y < image.height(); ++y)
        rows += image.pixelColor(image.width() / 2, y).alpha() > 0 ? 1 : 0;
    return rows;
}

// The colour picker answers as told while in scope.
struct ChooserAnswer {
    std::optional<QColor> answer;
    int asked = 0;
    ColorChooserHook::Handler previous = ColorChooserHook::setHandler([this](const QColor&) {
        ++asked;
        return answer;
    });
    ~ChooserAnswer() { ColorChooserHook::setHandler(previous); }
};

std::vector<std::uint32_t> customColors(test::HostFixture& host)
{
    return host.config().getSetting<CColorSetting>()->getCustomColors();
}

CDrawCommonSetting redDashed()
{
    CDrawCommonSetting s;
    s.setColorMode(CDrawCommonSetting::ColorModeColor);
    s.setColor(KsColor(0xFF0000, KsColor::System, L"赤"));
    s.setLineTypeMode(12);
    s.setLineTypeName(L"破線");
    s.setWidth(0.35);
    s.setWidthKind(CDrawCommonSetting::WidthExplicit);
    s.setStartLineEndName(L"黒丸");
    s.setEndLineEndName(L"矢印");
    s.setVirtualElement(true);
    return s;
}

} // namespace

class TestCombos : public QObject {
    Q_OBJECT

private slots:
    void colourEntriesAreByLayerSystemColoursThenOther()
    {
        test::HostFixture host;
        host.putTables();
        CSystemColorComboBox combo;
        combo.setTextByLayer(QStringLiteral("レイヤ依存"));
        combo.setTextOtherColor(QStringLiteral("他の色"));
        QCOMPARE(combo.count(), 1 + 12 + 1);
        QCOMPARE(combo.itemText(0), QStringLiteral("レイヤ依存"));
        QCOMPARE(combo.itemText(2), QStringLiteral("赤"));
        QCOMPARE(combo.itemText(13), QStringLiteral("他の色"));
        QCOMPARE(combo.getOtherColorIndex(), 13);
        QCOMPARE(centreOf(combo.itemIcon(2), combo.iconSize()), QColor(0xFF0000));

        QCOMPARE(combo.selectColor(KsColor::byLayer()), 0);
        QVERIFY(combo.getCurColor().isByLayer());
        // By RGB, whatever the colour type says.
        QCOMPARE(combo.selectColor(KsColor(0xFF0000, KsColor::User)), 2);
        QVERIFY(combo.getCurColor() == KsColor(0xFF0000, KsColor::System, L"赤"));
        // Not offered yet: shown before the last entry, not kept as a custom colour.
        QCOMPARE(combo.selectColor(KsColor(0x123456, KsColor::User)), 13);
        QCOMPARE(combo.itemText(13), QStringLiteral("RGB(18,52,86)"));
        QCOMPARE(combo.getOtherColorIndex(), 14);
        QVERIFY(customColors(host).empty());

        const KsColor invalid = CSystemColorComboBox::getInvalidColor();
        QVERIFY(combo.getColor(14) == invalid && combo.getColor(-1) == invalid);
        QVERIFY(!(combo.getColor(1) == invalid));

        combo.setTextByLayer(QString());
        QCOMPARE(combo.itemText(0), QStringLiteral("黒"));
        QCOMPARE(combo.getCurColor().getRGB(), 0x123456u); // kept through the refill
        QCOMPARE(combo.selectColor(KsColor::byLayer()), -1);
    }

    // A mixed colour joins the configuration's custom colours, or the copy the dialog hands;
    // a cancelled picker goes back to the colour chosen before.
    void otherColourMixesANewColourAndKeepsIt()
    {
        test::HostFixture host;
        host.putTables();
        CSystemColorComboBox combo;
        combo.setTextOtherColor(QStringLiteral("他の色"));
        CountingObserver observer;
        combo.attach(&observer);
        combo.selectColor(KsColor(0x0000FF, KsColor::System));
        const int blue = combo.currentIndex();

        ChooserAnswer chooser{QColor(0x20, 0x40, 0x60)};
        QTest::keyClick(&combo, Qt::Key_End); // a user's choice of the last entry
        QCOMPARE(chooser.asked, 1);
        QCOMPARE(combo.getCurColor().getRGB(), 0x204060u);
        QCOMPARE(combo.getCurColor().getColorType(), int(KsColor::User));
        QCOMPARE(customColors(host), std::vector<std::uint32_t>{0x204060});
        QCOMPARE(observer.count, 1);

        CSystemColorComboBox other; // offers the mixed colour at once
        QVERIFY(other.findText(QStringLiteral("RGB(32,64,96)")) >= 0);

        chooser.answer.reset(); // the picker is cancelled
        combo.chooseEntry(blue);
        QCOMPARE(observer.count, 2);
        QTest::keyClick(&combo, Qt::Key_End);
        QCOMPARE(chooser.asked, 2);
        QCOMPARE(combo.currentIndex(), blue);
        QCOMPARE(observer.count, 2);
        combo.detach(&observer);

        CColorSetting copy;
        other.setColorSetting(&copy);
        other.setTextOtherColor(QStringLiteral("他の色"));
        chooser.answer = QColor(0xAB, 0xCD, 0xEF);
        other.chooseEntry(other.getOtherColorIndex());
        QCOMPARE(copy.getCustomColors(), std::vector<std::uint32_t>{0xABCDEF});
        QCOMPARE(customColors(host), std::vector<std::uint32_t>{0x204060});
    }

    void lineTypeEntriesAndTheDrawingsOtherLineTypes()
    {
        test::HostFixture host;
        host.putTables();
        CMemoryDataBase drawing;
        drawing.add<KsLineType>(0, L"実線");
        drawing.add<KsLineType>(0, L"CENTER2", KsLineType::Pattern,
                                std::vector<double>{12.0, -2.0, 2.0, -2.0});
        host.config().setCurrentDataBase(&drawing);

        CSystemLineTypeComboBox combo;
        combo.setTextByLayer(QStringLiteral("レイヤ依存"));
        combo.setTextOtherLineType(QStringLiteral("他の線種"));
        QCOMPARE(combo.count(), 1 + 6 + 1);
        QCOMPARE(combo.itemText(2), QStringLiteral("破線"));
        QCOMPARE(combo.selectLineType(KsLineType::byLayer()), 0);
        QVERIFY(combo.getCurLType()->isByLayer());
        QCOMPARE(combo.selectLineType(KsLineType(13, L"")), 3); // by id
        QVERIFY(combo.getCurLType()->getName() == L"一点鎖線");
        QVERIFY(!combo.getLineType(7) && combo.isOtherEntry(7));

        std::vector<KsLineType> offered;
        const auto previous = LineTypeChooserHook::setHandler(
            [&](QWidget*, const std::vector<KsLineType>& candidates) {
                offered = candidates;
                return std::optional<KsLineType>(candidates.front());
            });
        CountingObserver observer;
        combo.attach(&observer);
        QTest::keyClick(&combo, Qt::Key_End);
        QCOMPARE(offered.size(), std::size_t(1)); // "実線" is offered already
        QVERIFY(combo.getCurLType()->getName() == L"CENTER2");
        QCOMPARE(combo.currentIndex(), 7);
        QCOMPARE(observer.count, 1);
        QVERIFY(combo.isOtherEntry(8));

        LineTypeChooserHook::setHandler(
            [](QWidget*, const std::vector<KsLineType>&) { return std::optional<KsLineType>(); });
        combo.chooseEntry(8);
        QCOMPARE(combo.currentIndex(), 7); // cancelled: back to the last choice
        LineTypeChooserHook::setHandler(previous);
        combo.detach(&observer);
    }

    void withoutOtherLineTypesTheUserIsTold()
    {
        test::HostFixture host;
        host.putTables();
        ui::framework::MessageBoxRecorder boxes;
        CSystemLineTypeComboBox combo;
        combo.setTextOtherLineType(QStringLiteral("他の線種"));
        combo.selectLineType(KsLineType(1, L"実線"));
        combo.chooseEntry(combo.count() - 1);
        QCOMPARE(boxes.count(), std::size_t(1));
        QCOMPARE(boxes.last().text,
                 QStringLiteral("開いている図面には、一覧にない線種がありません。"));
        QCOMPARE(combo.currentIndex(), 0);
        // A stored name the table lacks is shown rather than lost.
        QCOMPARE(combo.selectLineType(KsLineType(0, L"旧線種")), 6);
        QCOMPARE(combo.itemText(6), QStringLiteral("旧線種"));
    }

    // Entries by kind: by layer, the three fixed widths (the open drawing's, else the
    // table's), then the table's widths.
    void lineWidthIndicesFollowTheKinds()
    {
        test::HostFixture host;
        host.putTables();
        SelectLineWidthComboBox combo;
        combo.setLWidthByLayer(QStringLiteral("レイヤ依存"));
        combo.init();
        QCOMPARE(combo.count(), 4 + 10);
        QCOMPARE(combo.itemText(1), QStringLiteral("細線 (0.18)"));
        QCOMPARE(combo.itemText(3), QStringLiteral("極太線 (0.7)"));
        QCOMPARE(combo.itemText(4), QStringLiteral("0.13"));
        for (int index = 0; index < 4; ++index)
            QCOMPARE(combo.getKind(index), index + 1);
        QCOMPARE(combo.getKind(4), int(KsLineWidth::Explicit));
        const double widths[] = {combo.getWidth(0), combo.getWidth(2), combo.getWidth(4),
                                 combo.getWidth(-1)};
        QCOMPARE(std::vector(std::begin(widths), std::end(widths)),
                 (std::vector{0.0, 0.35, 0.13, 0.0}));
        QVERIFY(paintedRows(combo.itemIcon(11)) > paintedRows(combo.itemIcon(4)));

        QCOMPARE(combo.selectLineWidth(KsLineWidth(0.0, KsLineWidth::ByLayer)), 0);
        QCOMPARE(combo.selectLineWidth(KsLineWidth::Bold, 0.0), 2);
        QCOMPARE(combo.selectLineWidth(KsLineWidth::Explicit, 0.35), 7);
        QCOMPARE(combo.selectLineWidth(KsLineWidth::Explicit, 0.45), 14);
        QCOMPARE(combo.itemText(14), QStringLiteral("0.45"));
        QCOMPARE(combo.getCurLineWidth().getWidth(), 0.45);

        CMemoryDataBase drawing;
        drawing.setLineWidthOfKind(KsLineWidth::Thin, KsLineWidth(0.25));
        host.config().setCurrentDataBase(&drawing);
        SelectLineWidthComboBox plain;
        plain.init();
        QCOMPARE(plain.itemText(0), QStringLiteral("細線 (0.25)"));
        QCOMPARE(plain.getWidth(0), 0.25);
        QCOMPARE(plain.getKind(0), int(KsLineWidth::Thin));
        QCOMPARE(plain.selectLineWidth(KsLineWidth::ByLayer, 0), -1);
    }

    void arrowComboSelectsByPrefixAndExactSelectionByWholeText()
    {
        ui::control::CArrowComboBox combo;
        combo.addArrow(L"ARROW_OPEN", L"矢印");
        combo.addArrow(L"ARROW_FILLED", L"矢印(塗)");
        combo.addArrow(L"DOT_FILLED", L"Dot");
        QVERIFY(combo.getArrowType(1) == L"ARROW_FILLED");
        QVERIFY(!combo.itemIcon(0).isNull());
        QCOMPARE(combo.SelectString(QStringLiteral("dot")), 2);
        QCOMPARE(combo.SelectString(0, QStringLiteral("矢印")), 1);
        QCOMPARE(combo.SelectString(QStringLiteral("白丸")), -1);
        QCOMPARE(combo.currentIndex(), 1);

        using ui::utility::ComboSelectStringExact;
        QCOMPARE(ComboSelectStringExact(combo, QStringLiteral("矢")), -1);
        QCOMPARE(combo.currentIndex(), 1);
        QCOMPARE(ComboSelectStringExact(combo, QStringLiteral("矢印")), 0);
        QCOMPARE(ComboSelectStringExact(combo, QStringLiteral("dot")), -1);
    }

    void commonSettingRoundTripsAndRefusesBrokenFiles()
    {
        test::HostFixture host;
        CDrawCommonSetting loaded;
        QVERIFY(test::roundTrips(host, redDashed(), loaded));
        QVERIFY(!loaded.isSame(CDrawCommonSetting()));
        for (const char* broken :
             {"<DrawCommonSetting><Color mode=\"1\" rgb=\"#ff0000\" type=\"1\"/><LineType "
              "mode=\"3\"/><LineWidth value=\"-1\" kind=\"0\"/><LineEnds/></DrawCommonSetting>",
              "<DrawCommonSetting><Color mode=\"1\"/></DrawCommonSetting>"})
            QVERIFY(!test::loadsText(host, loaded, broken));
        QVERIFY(loaded.isSame(redDashed()));
    }

    void lineEndsAreCopiedByCategory()
    {
        const CLineEndSetting setting = CLineEndSetting::makeDefault();
        std::vector<SLineEnd> element;
        std::vector<SLineEnd> dimension{{L"stale"}};
        setting.copyLineEnds(element, SLineEnd::CategoryElement);
        setting.copyLineEnds(dimension, SLineEnd::CategoryDimension);
        QVERIFY(!element.empty());
        QCOMPARE(dimension.size(), element.size());
        QVERIFY(element.front().getName() == L"なし");
        std::vector<SLineEnd> none;
        setting.copyLineEnds(none, 9);
        QVERIFY(none.empty());

        CLineEndSetting copy = setting;
        QVERIFY(!copy.setLineEnds({{L"矢印"}, {L"矢印"}}));
        QVERIFY(
            copy.setLineEnds({{L"矢印", L"ARROW_OPEN", 3, 1, 2, 1}, {L"矢印", L"", 0, 0, 1, 2}}));

        test::HostFixture host;
        QVERIFY(test::roundTrips(host, setting));
    }
};

QTEST_MAIN(TestCombos)
#include "tst_combos.moc"
