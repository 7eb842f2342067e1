// "線幅の設定" end to end through doLineWidthDlg.
#include "support/TestSupport.h"

#include "config/SystemEntries.h"
#include "control/KsListCtrl.h"
#include "db/MemoryDataBase.h"
#include "framework/MessageBox.h"
#include "framework/ModalHook.h"

#include <QComboBox>
#include <QTabBar>
#include <QTest>

using namespace kesto;
using namespace kesto::ui::framework;
using kesto::test::choose;
using kesto::test::click;
using kesto::test::columnTexts;
using kesto::test::ctrl;
using kesto::test::isEnabled;
using kesto::test::isShown;
using kesto::test::itemTexts;
using kesto::test::listOf;
using ui::config::doLineWidthDlg;
using ui::control::CKsListCtrl;
using ui::setting::CLineWidthSetting;
using ui::setting::SLineWidth;

namespace {

constexpr int Tab = 7071, Add = 7501, Insert = 7698, Delete = 7502, Up = 7401, Down = 7503,
              Reset = 7704;
constexpr int Register = 13000, Note = 7700, Thin = 7705, Bold = 7706, ExtraBold = 7707,
              Help = 7500;

// Fixed 0.13 and 0.18 (thin), then the office's 0.3 (bold) and 0.6 (extra bold).
CLineWidthSetting fourWidths()
{
    CLineWidthSetting setting;
    std::vector<SLineWidth> widths;
    widths.emplace_back(0.13, 0x00FFFF, 1, L"水色", true);
    widths.emplace_back(0.18, 0xFFFFFF, 1, L"白", true);
    widths.emplace_back(0.3, 0x808080, 1, L"灰");
    widths.emplace_back(0.6, 0xFF0000, 1, L"赤");
    setting.setUserLineWidths(widths);
    setting.setThinLineWidth(widths[1]);
    setting.setBoldLineWidth(widths[2]);
    setting.setExtraBoldLineWidth(widths[3]);
    return setting;
}

QComboBox& combo(CKsDialog& d, int id)
{
    return test::ctrl<QComboBox>(d, id);
}
QStringList names(const CLineWidthSetting& setting)
{
    QStringList out;
    for (const SLineWidth& w : setting.getLineWidths())
        out << QString::fromStdWString(w.getWidthName());
    return out;
}

// A drawing with its own line widths, 0.25 in red and 0.8 in white.
struct Drawing {
    CMemoryDataBase db{L"道路平面図"};
    KsLineWidth* red = db.add<KsLineWidth>(0.25);
    KsLineWidth* white = db.add<KsLineWidth>(0.8);
    Drawing()
    {
        red->setColor(0xFF0000);
        red->setColorName(L"赤");
        white->setColor(0xFFFFFF);
        white->setColorName(L"白");
    }
};

} // namespace

class TestLineWidthDlg : public QObject {
    Q_OBJECT

private slots:
    void withoutADrawingOnlyTheSystemTableIsShown()
    {
        test::HostFixture host;
        CLineWidthSetting setting = fourWidths();
        ScopedModalDrivers drivers([](CKsDialog& d) {
            QCOMPARE(d.windowTitle(), QStringLiteral("線幅の設定"));
            QCOMPARE(test::tabTexts(ctrl<QTabBar>(d, Tab)), QStringList{"システム"});
            CKsListCtrl& list = listOf(d);
            QCOMPARE(test::headerTexts(list).mid(1), QStringList({"幅", "色"}));
            QCOMPARE(list.columnWidth(0), 15);
            QCOMPARE(columnTexts(list, 0), QStringList({"*", "*", "", ""}));
            QCOMPARE(columnTexts(list, 1), QStringList({"0.13", "0.18", "0.3", "0.6"}));
            QCOMPARE(list.getCellColor(3, 2), QRgb(0xFF0000));
            QVERIFY(!list.isCellEditable(1, 1) && list.isCellEditable(2, 1));
            QVERIFY(list.isCellEditable(1, 2)); // a fixed entry's colour may change
            QCOMPARE(d.GetDlgItem(Note)->property("text").toString(),
                     QStringLiteral("*はシステムの規定値であり、線幅の変更不可"));
            QVERIFY(isShown(d, Note) && !isShown(d, Register));
            QCOMPARE(itemTexts(combo(d, Thin)), columnTexts(list, 1));
            QCOMPARE(combo(d, Thin).currentText(), QStringLiteral("0.18"));
            QCOMPARE(combo(d, Bold).currentText(), QStringLiteral("0.3"));
            QCOMPARE(combo(d, ExtraBold).currentText(), QStringLiteral("0.6"));
            QVERIFY(click(d, Help));
            test::pressCancel(d);
        });
        QVERIFY(!doLineWidthDlg(setting, CLineWidthSetting::makeDefault(), nullptr));
        QCOMPARE(host.helpTopics(), QStringList{QStringLiteral("DLG_HLP_SYS_LINEWIDTH")});
        QVERIFY(!host.savedPlacement(QStringLiteral("LineWidthDlg/geometry")).isNull());
    }

    // Entries move only among the office's own; a width another entry has is dropped
    // silently, others are read as typed (0 included); new entries show against the
    // background.
    void theSystemTableIsEditedAroundTheFixedEntries()
    {
        test::HostFixture host;
        MessageBoxRecorder boxes;
        core::Application::getInstance()->setBackgroundColor(0xFFFFFF);
        CLineWidthSetting setting = fourWidths();
        ScopedModalDrivers drivers([](CKsDialog& d) {
            CKsListCtrl& list = listOf(d);
            list.selectRow(1);
            QVERIFY(!isEnabled(d, Delete) && !isEnabled(d, Down));
            list.selectRow(2);
            QVERIFY(!isEnabled(d, Up)); // not past the fixed 0.18
            QVERIFY(click(d, Down));
            QCOMPARE(columnTexts(list, 1), QStringList({"0.13", "0.18", "0.6", "0.3"}));
            QCOMPARE(list.getSelectedRow(), 3);
            QVERIFY(click(d, Delete));
            QCOMPARE(list.getSelectedRow(), 2);
            QVERIFY(!list.commitCellText(2, 1, QStringLiteral("0.13")));
            QVERIFY(!list.commitCellText(0, 1, QStringLiteral("0.1"))); // fixed entry
            QCOMPARE(list.getCellText(2, 1), QStringLiteral("0.6"));
            QVERIFY(list.commitCellText(2, 1, QStringLiteral("0.1304")));
            QCOMPARE(combo(d, ExtraBold).currentIndex(), -1); // 0.6 is gone
            QVERIFY(click(d, Add));
            QCOMPARE(list.getSelectedRow(), 3);
            QCOMPARE(list.getCellText(3, 1), QStringLiteral("0"));
            QCOMPARE(list.getCellColor(3, 2), QRgb(0x000000));
            QVERIFY(list.commitCellText(3, 1, QStringLiteral("0.45")));
            QVERIFY(list.commitCellText(3, 1, QStringLiteral("太め")));
            QCOMPARE(list.getCellText(3, 1), QStringLiteral("0"));
            list.selectRow(2);
            QVERIFY(click(d, Insert));
            QCOMPARE(list.getSelectedRow(), 2);
            QCOMPARE(itemTexts(combo(d, Bold)), columnTexts(list, 1));
            test::pressOk(d);
        });
        QVERIFY(doLineWidthDlg(setting, {}, nullptr));
        core::Application::getInstance()->setBackgroundColor(0x000000);
        QCOMPARE(boxes.count(), std::size_t(0));
        QCOMPARE(names(setting), QStringList({"0.13", "0.18", "0", "0.13", "0"}));
        const auto& widths = setting.getLineWidths();
        QCOMPARE(widths[3].getWidth(), 0.1304);
        QVERIFY(widths[2].getColor() == 0 && widths[4].getColorName() == L"黒");
        QVERIFY(!widths[2].isSystemDefault() && !widths[4].isSystemDefault());
    }

    void coloursAndTheKindsChosenAreStored()
    {
        test::HostFixture host;
        host.putTables();
        CLineWidthSetting setting = fourWidths();
        ScopedModalDrivers drivers([](CKsDialog& d) {
            QVERIFY(listOf(d).commitCellColor(0, 2, 0x0000FF));
            QVERIFY(listOf(d).commitCellColor(2, 2, 0x123456));
            choose(combo(d, Bold), 0);
            choose(combo(d, ExtraBold), 2);
            test::pressOk(d);
        });
        QVERIFY(doLineWidthDlg(setting, {}, nullptr));
        const auto& widths = setting.getLineWidths();
        QCOMPARE(widths[0].getColor(), 0x0000FFu);
        QVERIFY(widths[0].getColorName() == L"青" && widths[0].getColorType() == 1);
        QCOMPARE(widths[2].getColor(), 0x123456u);
        QCOMPARE(widths[2].getColorType(), 2);
        QCOMPARE(setting.getThinLineWidth().getWidth(), 0.18);
        QCOMPARE(setting.getBoldLineWidth().getWidth(), 0.13);
        QVERIFY(setting.getBoldLineWidth().getColorName() == L"青");
        QCOMPARE(setting.getExtraBoldLineWidth().getWidth(), 0.3);
    }

    void resetRestoresTheDefaultsAndCancelKeepsEverything()
    {
        test::HostFixture host;
        CLineWidthSetting setting = fourWidths();
        const CLineWidthSetting defaults = CLineWidthSetting::makeDefault();
        ScopedModalDrivers drivers;
        drivers.add([](CKsDialog& d) {
            click(d, Add);
            choose(combo(d, Thin), 0);
            test::pressCancel(d);
        });
        drivers.add([](CKsDialog& d) {
            click(d, Add);
            listOf(d).selectRow(2);
            QVERIFY(click(d, Reset));
            QCOMPARE(listOf(d).getRowCount(), 10);
            QCOMPARE(listOf(d).getSelectedRow(), -1);
            QCOMPARE(combo(d, Thin).currentText(), QStringLiteral("0.18"));
            QCOMPARE(combo(d, ExtraBold).currentText(), QStringLiteral("0.7"));
            test::pressOk(d);
        });
        QVERIFY(!doLineWidthDlg(setting, defaults, nullptr));
        QVERIFY(setting.isSame(fourWidths()));
        QVERIFY(doLineWidthDlg(setting, defaults, nullptr));
        QVERIFY(setting.isSame(defaults));
    }

    void theDrawingTabEditsTheDrawingsWidthsAndRegistersNewOnes()
    {
        test::HostFixture host;
        host.putTables();
        Drawing drawing;
        MessageBoxRecorder boxes;
        CLineWidthSetting setting = fourWidths();
        auto widths = setting.getLineWidths();
        widths.emplace_back(0.25, 0, 1, L"黒");
        setting.setUserLineWidths(widths);
        const CLineWidthSetting before = setting;
        ScopedModalDrivers drivers([](CKsDialog& d) { // Cancel leaves the drawing alone
            ctrl<QTabBar>(d, Tab).setCurrentIndex(1);
            listOf(d).commitCellText(0, 1, QStringLiteral("2"));
            choose(combo(d, Thin), 1);
            test::pressCancel(d);
        });
        drivers.add([&](CKsDialog& d) {
            QCOMPARE(test::tabTexts(ctrl<QTabBar>(d, Tab)), QStringList({"システム", "図面内"}));
            ctrl<QTabBar>(d, Tab).setCurrentIndex(1);
            CKsListCtrl& list = listOf(d);
            QCOMPARE(columnTexts(list, 1), QStringList({"0.25", "0.8"}));
            QCOMPARE(columnTexts(list, 0), QStringList({"", ""}));
            QVERIFY(!isShown(d, Note));
            QVERIFY(isShown(d, Register) && !isEnabled(d, Register));
            QVERIFY(!isEnabled(d, Add) && !isEnabled(d, Reset));
            QCOMPARE(itemTexts(combo(d, Bold)), QStringList({"0.25", "0.8"}));
            QCOMPARE(combo(d, Thin).currentIndex(), -1);

            list.selectRow(0);
            QVERIFY(!isEnabled(d, Insert) && !isEnabled(d, Delete) && !isEnabled(d, Up));
            QVERIFY(click(d, Register));
            QCOMPARE(test::lastBox(boxes),
                     QStringLiteral("入力値エラー|既に同じ線幅がシステム設定に存在しています。"));
            list.selectRow(1);
            QVERIFY(click(d, Register));
            QCOMPARE(boxes.count(), std::size_t(1));

            // The drawing's own widths skip the duplicate test.
            QVERIFY(list.commitCellText(0, 1, QStringLiteral("0.18")));
            QCOMPARE(list.getCellText(0, 1), QStringLiteral("0.18"));
            QVERIFY(list.commitCellColor(1, 2, 0x00A000));
            choose(combo(d, Bold), 1);

            ctrl<QTabBar>(d, Tab).setCurrentIndex(0);
            QCOMPARE(columnTexts(listOf(d), 1).last(), QStringLiteral("0.8"));
            QVERIFY(!isShown(d, Register));
            test::pressOk(d);
        });
        QVERIFY(!doLineWidthDlg(setting, {}, &drawing.db));
        QCOMPARE(drawing.red->getWidth(), 0.25);
        KsLineWidth kind;
        QVERIFY(drawing.db.getLineWidthOfKind(KsLineWidth::Thin, kind) && kind.getWidth() == 0.18);
        QVERIFY(drawing.db.getChangeRecord().empty() && setting.isSame(before));

        QVERIFY(doLineWidthDlg(setting, {}, &drawing.db));
        QCOMPARE(names(setting), QStringList({"0.13", "0.18", "0.3", "0.6", "0.25", "0.8"}));
        QVERIFY(setting.getLineWidths().back().getColorName() == L"白");
        QCOMPARE(drawing.red->getWidth(), 0.18);
        QVERIFY(drawing.red->getName() == L"0.18");
        QCOMPARE(drawing.white->getColor(), 0x00A000u);
        QVERIFY(drawing.white->getColorName() == L"緑");
        QVERIFY(drawing.db.getLineWidthOfKind(KsLineWidth::Bold, kind));
        QCOMPARE(kind.getWidth(), 0.8);
        QCOMPARE(kind.getColor(), 0x00A000u);
        QVERIFY(drawing.db.getLineWidthOfKind(KsLineWidth::Thin, kind));
        QCOMPARE(kind.getWidth(), 0.18);
        // Once by the dialog, once by the entry function.
        QCOMPARE(drawing.db.getChangeRecord(),
                 (std::vector<std::wstring>{L"線幅設定", L"線幅設定"}));
    }
};

QTEST_MAIN(TestLineWidthDlg)
#include "tst_linewidthdlg.moc"
