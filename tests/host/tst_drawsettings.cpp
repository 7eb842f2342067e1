// Drawing settings of the host: the common attributes and the line ends, their files, and the
// combo boxes that offer them.
#include "support/TestSupport.h"

#include "control/ArrowComboBox.h"
#include "setting/DrawCommonSetting.h"
#include "setting/LineEndSetting.h"
#include "utility/ComboUtility.h"

#include <QTest>

using namespace kesto;
using ui::setting::CDrawCommonSetting;
using ui::setting::CLineEndSetting;
using ui::setting::SLineEnd;

namespace {

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

class TestDrawSettings : public QObject {
    Q_OBJECT

private slots:
    void commonSettingRoundTripsAndRefusesBrokenFiles()
    {
        test::HostFixture host;
        CDrawCommonSetting loaded;
        QVERIFY(test::roundTrips(host, redDashed(), loaded));
        QVERIFY(!loaded.isSame(CDrawCommonSetting()));
        QVERIFY(!test::loadsText(host, loaded,
                                 "<DrawCommonSetting><Color mode=\"1\" rgb=\"#ff0000\" type=\"1\"/>"
                                 "<LineType mode=\"3\"/><LineWidth value=\"-1\" kind=\"0\"/>"
                                 "<LineEnds/></DrawCommonSetting>"));
        QVERIFY(!test::loadsText(host, loaded,
                                 "<DrawCommonSetting><Color mode=\"1\"/></DrawCommonSetting>"));
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

        QCOMPARE(ui::utility::ComboSelectStringExact(combo, QStringLiteral("矢")), -1);
        QCOMPARE(combo.currentIndex(), 1);
        QCOMPARE(ui::utility::ComboSelectStringExact(combo, QStringLiteral("矢印")), 0);
        QCOMPARE(ui::utility::ComboSelectStringExact(combo, QStringLiteral("dot")), -1);
    }
};

QTEST_MAIN(TestDrawSettings)
#include "tst_drawsettings.moc"
