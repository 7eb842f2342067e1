// How "共通設定" stores its controls, tested without widgets: the boundaries of each rule.
#include "draw/DrawCommonRules.h"

#include "db/MemoryDataBase.h"
#include "types/KsCoordinateSystem.h"
#include "types/KsLayer.h"
#include "types/KsScale.h"

#include <QTest>

using namespace kesto;
using namespace kesto::ui::config::drawcommonrules;
using kesto::ui::config::SDrawCommonDlgData;
using kesto::ui::setting::CDrawCommonSetting;

namespace {

const KsColor kInvalid(0xFFFFFF, -1);

CDrawCommonSetting coloured()
{
    CDrawCommonSetting s;
    s.setColorMode(CDrawCommonSetting::ColorModeColor);
    s.setColor(KsColor(0x00FF00, KsColor::System, L"緑"));
    s.setLineTypeMode(12);
    s.setLineTypeName(L"破線");
    s.setWidth(0.5);
    s.setWidthKind(CDrawCommonSetting::WidthExplicit);
    return s;
}

} // namespace

class TestDrawCommonRules : public QObject {
    Q_OBJECT

private slots:
    void colourByIndex()
    {
        CDrawCommonSetting s = coloured();
        storeColor(s, -1, KsColor(0xFF0000, KsColor::System), kInvalid);
        storeColor(s, 5, kInvalid, kInvalid); // the picker entry
        QVERIFY(s.isSame(coloured()));
        storeColor(s, 0, KsColor::byLayer(), kInvalid);
        QCOMPARE(s.getColorMode(), int(CDrawCommonSetting::ColorModeByLayer));
        QVERIFY(s.getColor() == coloured().getColor());
        QVERIFY(colorToSelect(s).isByLayer());
        storeColor(s, 1, KsColor(0xFF0000, KsColor::System, L"赤"), kInvalid);
        QCOMPARE(s.getColorMode(), int(CDrawCommonSetting::ColorModeColor));
        QCOMPARE(s.getColor().getRGB(), 0xFF0000u);
        QVERIFY(colorToSelect(s) == s.getColor());
    }

    void lineTypeByIndex()
    {
        CDrawCommonSetting s = coloured();
        storeLineType(s, 4, nullptr); // the "other" entry has no line type of its own
        storeLineType(s, -1, nullptr);
        QVERIFY(s.isSame(coloured()));
        storeLineType(s, 0, nullptr);
        QCOMPARE(s.getLineTypeMode(), int(CDrawCommonSetting::LineTypeModeByLayer));
        QVERIFY(lineTypeToSelect(s).isByLayer());
        const KsLineType center(KsLineType::kFirstDrawingId + 2, L"CENTER");
        storeLineType(s, 7, &center);
        QCOMPARE(s.getLineTypeMode(), KsLineType::kFirstDrawingId + 2);
        QVERIFY(s.getLineTypeName() == L"CENTER");
        QVERIFY(lineTypeToSelect(s) == center);

        // The open drawing's line type of that name lends its dashes, the stored id stays.
        CMemoryDataBase db;
        db.add<KsLineType>(KsLineType::kFirstDrawingId + 7, L"CENTER", KsLineType::Pattern,
                           std::vector<double>{6.0, -1.0, 1.0, -1.0});
        const KsLineType shown = lineTypeToSelect(s, &db);
        QCOMPARE(shown.getId(), KsLineType::kFirstDrawingId + 2);
        QCOMPARE(shown.getDashes().size(), std::size_t(4));
        QCOMPARE(shown.getKind(), int(KsLineType::Pattern));
    }

    void widthKindFollowsTheIndexAndTheWidthIsAlwaysStored()
    {
        const std::pair<int, int> kinds[] = {{0, 1}, {1, 2}, {3, 4}, {4, 0}, {12, 0}, {-1, 0}};
        for (const auto& [index, kind] : kinds) {
            CDrawCommonSetting s = coloured();
            storeLineWidth(s, index, 0.7);
            QCOMPARE(std::pair(index, s.getWidthKind()), std::pair(index, kind));
            QCOMPARE(s.getWidth(), 0.7);
        }
        CDrawCommonSetting s = coloured();
        s.setWidthKind(9); // unknown kinds open as an explicit width
        QCOMPARE(lineWidthToSelect(s).getKind(), int(KsLineWidth::Explicit));
        QCOMPARE(lineWidthToSelect(s).getWidth(), 0.5);
        s.setWidthKind(CDrawCommonSetting::WidthExtraBold);
        QCOMPARE(lineWidthToSelect(s).getKind(), int(KsLineWidth::ExtraBold));
    }

    void namesOnlyWhereSomethingIsChosen()
    {
        SDrawCommonDlgData data;
        data.coordinateSystemName = L"旧座標";
        data.scaleName = L"1/100";
        storeName(data, ListCoordinateSystem, {-1, L"平面直角座標系 IX"});
        storeName(data, ListScale, {0, L"1/500"});
        storeName(data, ListLayer, {2, L"構造物"});
        storeName(data, ListCount, {0, L"外"});
        QCOMPARE(recordNames(data),
                 (std::array<std::wstring, ListCount>{L"旧座標", L"1/500", L"構造物"}));

        QVERIFY(!canReferToDrawing(nullptr));
        QVERIFY(!canReferToDrawing(&data));
        data.referenceEnabled = true;
        QVERIFY(canReferToDrawing(&data));
    }

    void listsComeFromTheDrawingInItsOrder()
    {
        QVERIFY(drawingLists(nullptr)[ListLayer].isEmpty());
        CMemoryDataBase db;
        db.add<KsLayer>(L"構造物");
        db.add<KsLayer>(L""); // a layer without a name cannot be chosen
        db.add<KsLayer>(L"寸法");
        db.add<KsScale>(L"横断 1/200", 1.0, 200.0);
        db.add<KsCoordinateSystem>(L"平面直角座標系 IX");
        const auto lists = drawingLists(&db);
        QCOMPARE(lists[ListLayer], QStringList({"構造物", "寸法"}));
        QCOMPARE(lists[ListScale], QStringList({"横断 1/200"}));
        QCOMPARE(lists[ListCoordinateSystem], QStringList({"平面直角座標系 IX"}));
    }
};

QTEST_MAIN(TestDrawCommonRules)
#include "tst_drawcommonrules.moc"
