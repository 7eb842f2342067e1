// "共通設定": its rules without widgets at their boundaries, then end to end through
// doDrawCommonDlg: what it opens with, how each control is stored, the copy back after every
// result, the reference request and the null record.
#include "support/TestSupport.h"

#include "config/DrawEntries.h"
#include "control/SystemColorComboBox.h"
#include "db/MemoryDataBase.h"
#include "draw/DrawCommonRules.h"
#include "framework/ColorChooser.h"
#include "framework/ModalHook.h"
#include "setting/SystemColorSetting.h"
#include "tooltip/DlgToolTipManager.h"
#include "types/KsCoordinateSystem.h"
#include "types/KsLayer.h"
#include "types/KsScale.h"

#include <QCheckBox>
#include <QLabel>
#include <QTest>

using namespace kesto;
using namespace kesto::ui::framework;
using kesto::test::click;
using kesto::test::isEnabled;
using namespace kesto::ui::config::drawcommonrules;
using ui::config::SDrawCommonDlgData;
using ui::setting::CDrawCommonSetting;

namespace {

constexpr int Reference = 7491, Color = 7495, CoordSys = 7781, Scale = 7782, Layer = 7783,
              LineType = 7784, LineWidth = 7785, StartEnd = 7786, EndEnd = 7787, Virtual = 7788,
              Help = 7500;

// The host's tables, and a drawing with coordinate systems, scales and layers open in it.
struct Host : test::HostFixture {
    CMemoryDataBase db{L"道路改良平面図"};

    Host()
    {
        putTables();
        db.add<KsCoordinateSystem>(L"平面直角座標系 IX");
        db.add<KsCoordinateSystem>(L"ローカル座標");
        db.add<KsScale>(L"1/500", 1.0, 500.0);
        db.add<KsScale>(L"横断 1/200", 1.0, 200.0);
        db.add<KsLayer>(L"道路中心線");
        db.add<KsLayer>(L"構造物");
        db.add<KsLayer>(L""); // a layer without a name cannot be chosen
        db.add<KsLayer>(L"構造物 (旧)");
        config().setCurrentDataBase(&db);
    }
};

// Red, dash-dotted, bold, from a black dot to an arrow, made virtual.
CDrawCommonSetting styled()
{
    CDrawCommonSetting s;
    s.setColorMode(CDrawCommonSetting::ColorModeColor);
    s.setColor(KsColor(0xFF0000, KsColor::System, L"赤"));
    s.setLineTypeMode(13);
    s.setLineTypeName(L"一点鎖線");
    s.setWidth(0.35);
    s.setWidthKind(CDrawCommonSetting::WidthBold);
    s.setStartLineEndName(L"黒丸");
    s.setEndLineEndName(L"矢印");
    s.setVirtualElement(true);
    return s;
}

SDrawCommonDlgData record(bool referenceEnabled)
{
    SDrawCommonDlgData data;
    data.referenceEnabled = referenceEnabled;
    data.coordinateSystemName = L"ローカル座標";
    data.scaleName = L"横断 1/200";
    data.layerName = L"構造物";
    return data;
}

QComboBox& combo(CKsDialog& d, int id)
{
    return test::ctrl<QComboBox>(d, id);
}
QString shown(CKsDialog& d, int id)
{
    return combo(d, id).currentText();
}
// The user picks an entry, by its text or its index, as from the drop-down list.
void choose(CKsDialog& d, int id, const QString& text)
{
    const int index = combo(d, id).findText(text);
    QVERIFY2(index >= 0, qPrintable(text));
    test::choose(combo(d, id), index);
}
void choose(CKsDialog& d, int id, int index)
{
    test::choose(combo(d, id), index);
}

QString names(const SDrawCommonDlgData& a)
{
    return QString::fromStdWString(a.coordinateSystemName + L"|" + a.scaleName + L"|"
                                   + a.layerName);
}

// Runs the dialog once with a driver; returns the entry function's result.
bool runOnce(CDrawCommonSetting& setting, SDrawCommonDlgData* data, ModalHook::Driver driver)
{
    ScopedModalDrivers drivers(std::move(driver));
    const bool ok = ui::config::doDrawCommonDlg(setting, data);
    return ok && drivers.pending() == 0;
}

} // namespace

class TestDrawCommonDlg : public QObject {
    Q_OBJECT

private slots:
    // Entries beyond the table (the picker, "other", no selection) change nothing; by-layer
    // entries set their modes and keep the values for a later choice.
    void colourAndLineTypeAreStoredByIndex()
    {
        const KsColor invalid(0xFFFFFF, -1);
        CDrawCommonSetting s = styled();
        storeColor(s, -1, KsColor(0x00FF00, KsColor::System), invalid);
        storeColor(s, 5, invalid, invalid);
        storeLineType(s, 4, nullptr);
        storeLineType(s, -1, nullptr);
        QVERIFY(s.isSame(styled()));
        storeColor(s, 0, KsColor::byLayer(), invalid);
        storeLineType(s, 0, nullptr);
        QVERIFY(s.getColor() == styled().getColor() && colorToSelect(s).isByLayer());
        QVERIFY(lineTypeToSelect(s).isByLayer());
        storeColor(s, 1, KsColor(0x00FF00, KsColor::System, L"緑"), invalid);
        QVERIFY(colorToSelect(s) == KsColor(0x00FF00, KsColor::System, L"緑"));
        const KsLineType center(KsLineType::kFirstDrawingId + 2, L"CENTER");
        storeLineType(s, 7, &center);
        QVERIFY(lineTypeToSelect(s) == center);
        // The open drawing's line type of that name lends its dashes, the stored id stays.
        CMemoryDataBase db;
        const std::vector<double> dashes{6.0, -1.0, 1.0, -1.0};
        db.add<KsLineType>(KsLineType::kFirstDrawingId + 7, L"CENTER", KsLineType::Pattern, dashes);
        const KsLineType shown = lineTypeToSelect(s, &db);
        QVERIFY(shown.getId() == center.getId() && shown.getDashes() == dashes);
        QCOMPARE(shown.getKind(), int(KsLineType::Pattern));
        // Names only where something is chosen in a list the record has.
        SDrawCommonDlgData data = record(false);
        storeName(data, ListCoordinateSystem, {-1, L"平面直角座標系 IX"});
        storeName(data, ListScale, {0, L"1/500"});
        storeName(data, ListCount, {0, L"外"});
        QCOMPARE(names(data), QStringLiteral("ローカル座標|1/500|構造物"));
    }

    void widthKindFollowsTheIndexAndTheWidthIsAlwaysStored()
    {
        const std::pair<int, int> kinds[] = {{0, 1}, {1, 2},  {3, 4},
                                             {4, 0}, {12, 0}, {-1, CDrawCommonSetting::WidthBold}};
        for (const auto& [index, kind] : kinds) {
            CDrawCommonSetting s = styled();
            storeLineWidth(s, index, 0.7);
            QCOMPARE(std::pair(index, s.getWidthKind()), std::pair(index, kind));
            QCOMPARE(s.getWidth(), 0.7);
        }
        CDrawCommonSetting s = styled();
        s.setWidthKind(9); // unknown kinds open as an explicit width
        QVERIFY(lineWidthToSelect(s) == KsLineWidth(0.35, KsLineWidth::Explicit));
        s.setWidthKind(CDrawCommonSetting::WidthExtraBold);
        QCOMPARE(lineWidthToSelect(s).getKind(), int(KsLineWidth::ExtraBold));
    }

    void initTestCase()
    {
        QVERIFY(ui::tooltip::ToolTipCatalog::instance().loadXML(
            QStringLiteral(KS_SOURCE_DIR "/app/resources/tooltips.xml")));
    }

    void opensOnTheSettingAndTheRecord()
    {
        Host host;
        CDrawCommonSetting setting = styled();
        SDrawCommonDlgData data = record(true);
        QVERIFY(runOnce(setting, &data, [](CKsDialog& d) {
            QCOMPARE(d.windowTitle(), QStringLiteral("共通設定"));
            QCOMPARE(test::itemTexts(combo(d, Layer)),
                     QStringList({"道路中心線", "構造物", "構造物 (旧)"}));
            QCOMPARE(shown(d, CoordSys), QStringLiteral("ローカル座標"));
            QCOMPARE(shown(d, Scale), QStringLiteral("横断 1/200"));
            QCOMPARE(shown(d, Layer), QStringLiteral("構造物"));
            for (int id : {Color, LineType, LineWidth})
                QCOMPARE(combo(d, id).itemText(0), QStringLiteral("レイヤ依存"));
            QCOMPARE(combo(d, Color).itemText(combo(d, Color).count() - 1),
                     QStringLiteral("他の色"));
            QCOMPARE(shown(d, Color), QStringLiteral("赤"));
            QCOMPARE(shown(d, LineType), QStringLiteral("一点鎖線"));
            QCOMPARE(combo(d, LineWidth).currentIndex(), 2); // bold
            QCOMPARE(test::itemTexts(combo(d, StartEnd)),
                     QStringList({"なし", "矢印", "塗矢印", "黒丸", "白丸", "斜線", "止め線"}));
            QCOMPARE(shown(d, StartEnd), QStringLiteral("黒丸"));
            QCOMPARE(shown(d, EndEnd), QStringLiteral("矢印"));
            QVERIFY(d.dlgItem<QCheckBox>(Virtual)->isChecked());
            QVERIFY(isEnabled(d, Reference));
            QVERIFY(isEnabled(d, CoordSys) && isEnabled(d, Scale) && isEnabled(d, Layer));
            for (int id : {CoordSys, Scale, Layer, Color, LineType, LineWidth, Reference, StartEnd,
                           EndEnd, Virtual})
                QVERIFY2(!d.GetDlgItem(id)->toolTip().isEmpty(), qPrintable(QString::number(id)));
            for (const QLabel* label : d.findChildren<QLabel*>()) {
                if (label->buddy())
                    QCOMPARE(label->toolTip(), label->buddy()->toolTip());
            }
            QVERIFY(click(d, Help));
            QVERIFY(click(d, IDOK));
        }));
        QVERIFY(setting.isSame(styled())); // nothing changed, nothing lost
        QCOMPARE(names(data), names(record(true)));
        QCOMPARE(host.helpTopics(), QStringList{"DLG_HLP_SET_COMMON"});
    }

    // By-layer entries store their modes (the colour stays for a later choice) and open
    // again; the others store their values, widths with their kind.
    void choicesAreStored()
    {
        Host host;
        CDrawCommonSetting setting = styled();
        QVERIFY(runOnce(setting, nullptr, [](CKsDialog& d) {
            for (int id : {Color, LineType, LineWidth})
                choose(d, id, 0);
            QVERIFY(click(d, IDOK));
        }));
        QCOMPARE(setting.getColorMode(), int(CDrawCommonSetting::ColorModeByLayer));
        QVERIFY(setting.getColor() == styled().getColor());
        QCOMPARE(setting.getLineTypeMode(), int(CDrawCommonSetting::LineTypeModeByLayer));
        QCOMPARE(setting.getWidthKind(), int(CDrawCommonSetting::WidthByLayer));

        QVERIFY(runOnce(setting, nullptr, [](CKsDialog& d) {
            for (int id : {Color, LineType, LineWidth})
                QCOMPARE(combo(d, id).currentIndex(), 0);
            choose(d, Color, QStringLiteral("緑"));
            choose(d, LineType, QStringLiteral("破線"));
            choose(d, LineWidth, 3);
            choose(d, StartEnd, QStringLiteral("塗矢印"));
            choose(d, EndEnd, QStringLiteral("止め線"));
            d.dlgItem<QCheckBox>(Virtual)->setChecked(false);
            QVERIFY(click(d, IDOK));
        }));
        QCOMPARE(setting.getColorMode(), int(CDrawCommonSetting::ColorModeColor));
        QVERIFY(setting.getColor().getName() == L"緑");
        QCOMPARE(setting.getLineTypeMode(), 12);
        QVERIFY(setting.getLineTypeName() == L"破線");
        QCOMPARE(setting.getWidthKind(), int(CDrawCommonSetting::WidthExtraBold));
        QCOMPARE(setting.getWidth(), 0.7); // the system's extra bold width
        QVERIFY(setting.getStartLineEndName() == L"塗矢印");
        QVERIFY(setting.getEndLineEndName() == L"止め線");
        QVERIFY(!setting.isVirtualElement());

        QVERIFY(runOnce(setting, nullptr, [](CKsDialog& d) {
            choose(d, LineWidth, 4);
            QVERIFY(click(d, IDOK));
        }));
        QCOMPARE(setting.getWidthKind(), int(CDrawCommonSetting::WidthExplicit));
        QCOMPARE(setting.getWidth(), 0.13);
    }

    // Values the tables no longer offer are shown and kept, or left alone when unknown.
    void valuesOutsideTheTablesSurviveAnOk()
    {
        Host host;
        CDrawCommonSetting setting = styled();
        setting.setColor(KsColor(0x123456, KsColor::User));
        setting.setLineTypeMode(KsLineType::kFirstDrawingId);
        setting.setLineTypeName(L"CENTER2");
        setting.setWidth(0.4);
        setting.setWidthKind(CDrawCommonSetting::WidthExplicit);
        setting.setStartLineEndName(L"旧矢印");
        const CDrawCommonSetting before = setting;
        QVERIFY(runOnce(setting, nullptr, [](CKsDialog& d) {
            QCOMPARE(shown(d, Color), QStringLiteral("RGB(18,52,86)"));
            QCOMPARE(shown(d, LineType), QStringLiteral("CENTER2"));
            QCOMPARE(shown(d, LineWidth), QStringLiteral("0.4"));
            QCOMPARE(combo(d, StartEnd).currentIndex(), -1);
            QVERIFY(click(d, IDOK));
        }));
        QVERIFY(setting.isSame(before));
    }

    void cancelHandsTheCallersValuesBack()
    {
        Host host;
        CDrawCommonSetting setting = styled();
        SDrawCommonDlgData data = record(true);
        data.requestCode = SDrawCommonDlgData::RequestReference; // left from the last call
        ScopedModalDrivers drivers([](CKsDialog& d) {
            choose(d, Color, 0);
            choose(d, LineType, QStringLiteral("点線"));
            choose(d, LineWidth, 5);
            choose(d, Layer, QStringLiteral("道路中心線"));
            d.dlgItem<QCheckBox>(Virtual)->setChecked(false);
            QVERIFY(click(d, IDCANCEL));
        });
        drivers.add([](CKsDialog& d) {
            choose(d, Color, 0);
            QTest::keyClick(&d, Qt::Key_Escape);
        });
        for (int run = 0; run < 2; ++run) {
            QVERIFY(!ui::config::doDrawCommonDlg(setting, &data));
            QVERIFY(setting.isSame(styled()));
            QCOMPARE(names(data), names(record(true)));
            QCOMPARE(data.requestCode, int(SDrawCommonDlgData::RequestNone));
        }
    }

    // "図面参照" closes with Cancel, yet the caller gets what the user had set; the host picks,
    // changes the layer, and the dialog opens on all of it.
    void referenceRequestHandsTheStoredControlsBack()
    {
        Host host;
        CDrawCommonSetting setting = styled();
        SDrawCommonDlgData data = record(true);
        ScopedModalDrivers drivers([](CKsDialog& d) {
            choose(d, LineType, QStringLiteral("二点鎖線"));
            choose(d, Scale, QStringLiteral("1/500"));
            QVERIFY(click(d, Reference));
            QVERIFY(d.isEnded());
        });
        QVERIFY(!ui::config::doDrawCommonDlg(setting, &data));
        QCOMPARE(data.requestCode, int(SDrawCommonDlgData::RequestReference));
        QVERIFY(setting.getLineTypeName() == L"二点鎖線");
        QVERIFY(data.scaleName == L"1/500");

        // What the host takes from the picked element.
        data.requestCode = SDrawCommonDlgData::RequestNone;
        data.layerName = L"道路中心線";
        setting.setColor(KsColor(0x0000FF, KsColor::System, L"青"));
        drivers.add([](CKsDialog& d) {
            QCOMPARE(shown(d, Layer), QStringLiteral("道路中心線"));
            QCOMPARE(shown(d, Scale), QStringLiteral("1/500"));
            QCOMPARE(shown(d, LineType), QStringLiteral("二点鎖線"));
            QCOMPARE(shown(d, Color), QStringLiteral("青"));
            QVERIFY(click(d, IDOK));
        });
        QVERIFY(ui::config::doDrawCommonDlg(setting, &data));
        QCOMPARE(setting.getColor().getRGB(), 0x0000FFu);
        QCOMPARE(setting.getLineTypeMode(), 14);
        QVERIFY(data.layerName == L"道路中心線");
    }

    // Without a record, or with reference off, nothing is referred to.
    void withoutARecordNothingIsReferredTo()
    {
        Host host;
        CDrawCommonSetting setting = styled();
        QVERIFY(!runOnce(setting, nullptr, [](CKsDialog& d) {
            for (int id : {CoordSys, Scale, Layer})
                QCOMPARE(combo(d, id).currentIndex(), -1);
            QVERIFY(!isEnabled(d, Reference));
            choose(d, Layer, QStringLiteral("構造物"));
            QVERIFY(click(d, IDCANCEL));
        }));
        QVERIFY(setting.isSame(styled()));

        SDrawCommonDlgData refused = record(false);
        refused.layerName.clear();
        QVERIFY(runOnce(setting, &refused, [](CKsDialog& d) {
            QVERIFY(!isEnabled(d, Reference));
            QCOMPARE(combo(d, Layer).currentIndex(), -1);
            QVERIFY(click(d, IDOK)); // a list without a selection keeps its name
        }));
        QCOMPARE(names(refused), QStringLiteral("ローカル座標|横断 1/200|"));

        // Without a drawing the lists are empty and disabled.
        host.config().setCurrentDataBase(nullptr);
        SDrawCommonDlgData data = record(false);
        QVERIFY(runOnce(setting, &data, [](CKsDialog& d) {
            for (int id : {CoordSys, Scale, Layer})
                QVERIFY(combo(d, id).count() == 0 && !isEnabled(d, id));
            QVERIFY(click(d, IDOK));
        }));
        QCOMPARE(names(data), names(record(false)));
    }

    // A colour mixed in the dialog joins the host's custom colours on OK only.
    void mixedColoursReachTheHostOnOk()
    {
        Host host;
        const auto previous = ColorChooserHook::setHandler(
            [](const QColor&) { return std::optional<QColor>(QColor(0x40, 0x80, 0xC0)); });
        auto mix = [](int closeWith) {
            return [closeWith](CKsDialog& d) {
                auto& color = test::ctrl<ui::control::CSystemColorComboBox>(d, Color);
                color.chooseEntry(color.getOtherColorIndex());
                QCOMPARE(color.getCurColor().getRGB(), 0x4080C0u);
                QVERIFY(click(d, closeWith));
            };
        };
        const auto& custom = *host.config().getSetting<ui::setting::CColorSetting>();
        CDrawCommonSetting setting;
        QVERIFY(!runOnce(setting, nullptr, mix(IDCANCEL)));
        QVERIFY(custom.getCustomColors().empty());
        QVERIFY(runOnce(setting, nullptr, mix(IDOK)));
        QCOMPARE(custom.getCustomColors(), std::vector<std::uint32_t>{0x4080C0});
        QCOMPARE(setting.getColor().getRGB(), 0x4080C0u);
        ColorChooserHook::setHandler(previous);
    }
};

QTEST_MAIN(TestDrawCommonDlg)
#include "tst_drawcommondlg.moc"
