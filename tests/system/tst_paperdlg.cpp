// "用紙サイズの設定" and "図面枠の設定" end to end through doPaperSizeDlg and
// doSystemPaperFrameDlg.
#include "support/TestSupport.h"

#include "config/SystemEntries.h"
#include "control/KsListCtrl.h"
#include "control/SelectLineWidthComboBox.h"
#include "control/SystemColorComboBox.h"
#include "control/SystemLineTypeComboBox.h"
#include "framework/ColorChooser.h"
#include "framework/MessageBox.h"
#include "framework/ModalHook.h"
#include "setting/SystemColorSetting.h"
#include "system/PaperFrameDiagram.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>

using namespace kesto;
using namespace kesto::ui::framework;
using kesto::test::click;
using kesto::test::columnTexts;
using kesto::test::ctrl;
using kesto::test::expectOkRefused;
using kesto::test::isEnabled;
using kesto::test::itemTexts;
using kesto::test::listOf;
using kesto::test::rowTexts;
using ui::config::doPaperSizeDlg;
using ui::config::doSystemPaperFrameDlg;
using ui::control::CKsListCtrl;
using ui::control::CSystemColorComboBox;
using ui::control::CSystemLineTypeComboBox;
using ui::control::SelectLineWidthComboBox;
using ui::setting::CSystemPaperFrameSetting;
using ui::setting::CSystemPaperSizeSetting;

namespace {

enum { SizeAdd = 1001, SizeInsert = 1002, SizeDelete = 1003, SizeReset = 1004, SizeInit = 7081 };
constexpr int Add = 7501, Delete = 7502, Reset = 7699, Picture = 7526, FrameInit = 7697,
              Help = 7500;
constexpr int DrawColor = 7683, DrawWidth = 7685, InnerColor = 7472, InnerWidth = 7474,
              CutColor = 7690, CutLineType = 7692;

CSystemPaperSizeSetting threeSizes()
{
    CSystemPaperSizeSetting setting;
    setting.setup(L"A1", {{L"A0", 841, 1189}, {L"A1", 594, 841}, {L"A3", 297, 420}});
    return setting;
}

QStringList names(const CSystemPaperSizeSetting& setting)
{
    QStringList out;
    for (const auto& size : setting.getPaperSizes())
        out << QString::fromStdWString(size.name);
    return out;
}

// Two frames, A1 and A3; new drawings start with A1.
CSystemPaperFrameSetting twoFrames()
{
    CSystemPaperFrameSetting setting = CSystemPaperFrameSetting::makeDefault();
    const auto frames = setting.getPaperFrames();
    setting.setPaperFrames({frames[1], frames[3]});
    return setting;
}

QComboBox& combo(CKsDialog& d, int id)
{
    return ctrl<QComboBox>(d, id);
}

} // namespace

class TestPaperDlg : public QObject {
    Q_OBJECT

private slots:
    // Shown, with the user's column widths kept under their keys.
    void sizesAndTheInitialPaperAreShown()
    {
        test::HostFixture host;
        CSystemPaperSizeSetting setting = threeSizes();
        ScopedModalDrivers drivers([](CKsDialog& d) {
            QCOMPARE(d.windowTitle(), QStringLiteral("用紙サイズの設定"));
            CKsListCtrl& list = listOf(d);
            QCOMPARE(test::headerTexts(list), QStringList({"名称", "高さ(mm)", "幅(mm)"}));
            for (int c = 0; c < 3; ++c)
                QCOMPARE(list.columnWidth(c), 100);
            QCOMPARE(columnTexts(list, 1), QStringList({"841", "594", "297"}));
            QCOMPARE(itemTexts(combo(d, SizeInit)), QStringList({"A0", "A1", "A3"}));
            QCOMPARE(combo(d, SizeInit).currentText(), QStringLiteral("A1"));
            QVERIFY(isEnabled(d, SizeAdd) && isEnabled(d, SizeReset));
            QVERIFY(!isEnabled(d, SizeInsert) && !isEnabled(d, SizeDelete));
            list.selectRow(0);
            QVERIFY(isEnabled(d, SizeInsert) && isEnabled(d, SizeDelete));
            list.setColumnWidth(0, 150);
            QVERIFY(click(d, Help));
            test::pressCancel(d);
        });
        int reopened = 0;
        drivers.add([&](CKsDialog& d) { reopened = listOf(d).columnWidth(0); });
        QVERIFY(!doPaperSizeDlg(setting, CSystemPaperSizeSetting::makeDefault()));
        QCOMPARE(host.savedPlacement(QStringLiteral("SystemPaperSizeDlg/head0")).toInt(), 150);
        QCOMPARE(host.savedPlacement(QStringLiteral("SystemPaperSizeDlg/head2")).toInt(), 100);
        QCOMPARE(host.helpTopics(), QStringList{QStringLiteral("DLG_HLP_SYS_PAPER")});
        doPaperSizeDlg(setting, {});
        QCOMPARE(reopened, 150);
    }

    // OK without a change, or with edits typed back, is not a change; a reset is kept
    // only until Cancel.
    void okWithoutAChangeIsNotAChange()
    {
        test::HostFixture host;
        CSystemPaperSizeSetting setting = threeSizes();
        ScopedModalDrivers drivers(test::pressOk);
        drivers.add([](CKsDialog& d) {
            listOf(d).commitCellText(0, 1, QStringLiteral("８４１"));
            QVERIFY(click(d, IDOK));
        });
        drivers.add([](CKsDialog& d) {
            QVERIFY(click(d, SizeReset));
            QCOMPARE(listOf(d).getRowCount(), 7);
            QCOMPARE(combo(d, SizeInit).currentText(), QStringLiteral("A1"));
            QTest::keyClick(&d, Qt::Key_Escape);
        });
        drivers.add([](CKsDialog& d) {
            listOf(d).commitCellText(2, 1, QStringLiteral("３００"));
            QCOMPARE(listOf(d).getCellText(2, 1), QStringLiteral("300"));
            QVERIFY(click(d, IDOK));
        });
        for (int run = 0; run < 3; ++run)
            QVERIFY(!doPaperSizeDlg(setting, CSystemPaperSizeSetting::makeDefault()));
        QVERIFY(setting.isSame(threeSizes()));
        QVERIFY(doPaperSizeDlg(setting, {}));
        QCOMPARE(setting.getPaperSizes()[2].height, 300);
    }

    void okChecksEachSizeInOrder()
    {
        test::HostFixture host;
        MessageBoxRecorder boxes;
        CSystemPaperSizeSetting setting = threeSizes();
        ScopedModalDrivers drivers([&](CKsDialog& d) {
            CKsListCtrl& list = listOf(d);
            QVERIFY(click(d, SizeAdd));
            QCOMPARE(rowTexts(list, 3), QStringList({"新サイズ", "1", "1"}));
            list.commitCellText(1, 0, QString());
            list.commitCellText(2, 1, QStringLiteral("0"));
            list.commitCellText(2, 2, QStringLiteral("abc"));
            QCOMPARE(list.getCellText(2, 2), QStringLiteral("0"));
            expectOkRefused(d, boxes,
                            QStringLiteral("入力値エラー|2 行目のデータに名前がありません"));
            QCOMPARE(list.getSelectedRow(), 1);
            list.commitCellText(1, 0, QStringLiteral("A3"));
            expectOkRefused(d, boxes,
                            QStringLiteral("入力値エラー|3 行目の高さが小さすぎです\n0 "
                                           "よりも大きくしてください"));
            QCOMPARE(list.getSelectedRow(), 2);
            list.commitCellText(2, 1, QStringLiteral("297"));
            expectOkRefused(d, boxes,
                            QStringLiteral("入力値エラー|3 行目の幅が小さすぎです\n0 "
                                           "よりも大きくしてください"));
            list.commitCellText(2, 2, QStringLiteral("420"));
            expectOkRefused(d, boxes, QStringLiteral("入力値エラー|3 行目\n名前が重複しています"));
            QCOMPARE(list.getSelectedRow(), 2);
            list.commitCellText(2, 0, QStringLiteral("A3横"));
            QVERIFY(click(d, IDOK));
            QVERIFY(d.isEnded());
        });
        QVERIFY(doPaperSizeDlg(setting, {}));
        QCOMPARE(names(setting), QStringList({"A0", "A3", "A3横", "新サイズ"}));
        QVERIFY(setting.getInitPaperName() == L"A3");
    }

    void theInitialPaperFollowsItsRow()
    {
        test::HostFixture host;
        MessageBoxRecorder boxes;
        CSystemPaperSizeSetting setting = threeSizes();
        ScopedModalDrivers drivers([&](CKsDialog& d) {
            CKsListCtrl& list = listOf(d);
            QComboBox& initial = combo(d, SizeInit);
            list.commitCellText(1, 0, QStringLiteral("A1横"));
            QCOMPARE(initial.currentText(), QStringLiteral("A1横"));
            list.selectRow(0);
            QVERIFY(click(d, SizeInsert));
            QCOMPARE(itemTexts(initial), QStringList({"新サイズ", "A0", "A1横", "A3"}));
            QCOMPARE(initial.currentText(), QStringLiteral("A1横"));
            list.selectRow(2);
            QVERIFY(click(d, SizeDelete));
            QCOMPARE(initial.currentIndex(), -1);
            // The stored initial paper is gone: refused without a caption.
            expectOkRefused(d, boxes,
                            QStringLiteral("|初期値指定した用紙サイズデータがありません"));
            initial.setCurrentIndex(2);
            QVERIFY(click(d, IDOK));
        });
        QVERIFY(doPaperSizeDlg(setting, {}));
        QCOMPARE(names(setting), QStringList({"新サイズ", "A0", "A3"}));
        QVERIFY(setting.getInitPaperName() == L"A3");
    }

    // Tab leaves the grid, F2 edits a cell, Enter confirms the dialog.
    void theGridDialogIsUsedWithTheKeyboardAlone()
    {
        test::HostFixture host;
        CSystemPaperSizeSetting setting = threeSizes();
        ScopedModalDrivers drivers([](CKsDialog& d) {
            d.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&d));
            CKsListCtrl& list = listOf(d);
            list.setFocus();
            list.setCurrentIndex(list.model()->index(2, 1));
            QTest::keyClick(&list, Qt::Key_F2);
            auto* editor = list.findChild<QLineEdit*>();
            QVERIFY(editor);
            QTest::keyClicks(editor, QStringLiteral("300"));
            QTest::keyClick(editor, Qt::Key_Return);
            QTRY_COMPARE(list.getCellText(2, 1), QStringLiteral("300")); // committed queued
            QTest::keyClick(&list, Qt::Key_Tab);
            QVERIFY(QApplication::focusWidget() != &list);
            QVERIFY(d.isAncestorOf(QApplication::focusWidget()));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
            QVERIFY(d.isEnded());
        });
        QVERIFY(doPaperSizeDlg(setting, {}));
        QCOMPARE(setting.getPaperSizes()[2].height, 300);
    }

    void framesAndLineLooksAreShown()
    {
        test::HostFixture host;
        host.putTables();
        CSystemPaperFrameSetting setting = twoFrames();
        ScopedModalDrivers drivers([](CKsDialog& d) {
            QCOMPARE(d.windowTitle(), QStringLiteral("図面枠の設定"));
            CKsListCtrl& list = listOf(d);
            QCOMPARE(test::headerTexts(list),
                     QStringList({"名称", "A", "B", "C", "D", "E", "F", "G", "H", "図面枠",
                                  "内枠線", "切取線"}));
            QCOMPARE((std::array{list.columnWidth(0), list.columnWidth(8), list.columnWidth(11)}),
                     (std::array{160, 30, 70}));
            QCOMPARE(rowTexts(list, 1), QStringList({"A3", "25", "10", "10", "10", "2", "2", "120",
                                                     "40", "○", "×", "○"}));
            QCOMPARE(list.tableModel()->column(10).items, QStringList({"○", "×"}));
            auto& color = ctrl<CSystemColorComboBox>(d, InnerColor);
            QCOMPARE(color.itemText(0), QStringLiteral("レイヤ依存"));
            QCOMPARE(color.itemText(color.count() - 1), QStringLiteral("他の色"));
            QCOMPARE(color.currentText(), QStringLiteral("白"));
            auto& lineType = ctrl<CSystemLineTypeComboBox>(d, CutLineType);
            QCOMPARE(lineType.itemText(lineType.count() - 1), QStringLiteral("他の線種"));
            QCOMPARE(lineType.currentText(), QStringLiteral("実線"));
            auto& width = ctrl<SelectLineWidthComboBox>(d, DrawWidth);
            QCOMPARE(width.getKind(width.currentIndex()), int(KsLineWidth::Bold));
            QCOMPARE(combo(d, FrameInit).currentText(), QStringLiteral("A1"));
            QVERIFY(click(d, Help));
            test::pressCancel(d);
        });
        QVERIFY(!doSystemPaperFrameDlg(setting, {}));
        QCOMPARE(host.helpTopics(), QStringList{QStringLiteral("DLG_HLP_SYS_FRAME")});
        QVERIFY(!host.savedPlacement(QStringLiteral("SystemPaperFrameDlg/geometry")).isNull());
    }

    // Dimensions are read as integers when typed, without bounds or messages; a boolean
    // cell is true only when it reads "○"; a mixed colour is kept as a custom colour.
    void editedFramesAndLooksAreStoredOnOk()
    {
        test::HostFixture host;
        host.putTables();
        MessageBoxRecorder boxes;
        CSystemPaperFrameSetting setting = twoFrames();
        const auto previous =
            ColorChooserHook::setHandler([](const QColor&) { return QColor(0x33, 0x66, 0x99); });
        ScopedModalDrivers drivers([](CKsDialog& d) {
            CKsListCtrl& list = listOf(d);
            QVERIFY(list.commitCellText(0, 7, QStringLiteral("１８０")));
            QCOMPARE(list.getCellText(0, 7), QStringLiteral("180"));
            QVERIFY(list.commitCellText(1, 3, QStringLiteral("12.5")));
            QCOMPARE(list.getCellText(1, 3), QStringLiteral("12"));
            const std::pair<int, const char*> typed[] = {{1, "0"}, {2, "abc"}, {4, "-3"}};
            for (const auto& [column, text] : typed)
                list.commitCellText(0, column, QString::fromLatin1(text));
            QVERIFY(list.commitCellText(0, 11, QStringLiteral("×")));
            QVERIFY(list.commitCellText(1, 9, QStringLiteral("o"))); // not "○": false

            auto& color = ctrl<CSystemColorComboBox>(d, DrawColor);
            color.chooseEntry(color.findText(QStringLiteral("赤")));
            ctrl<CSystemColorComboBox>(d, InnerColor).chooseEntry(0);
            auto& cut = ctrl<CSystemColorComboBox>(d, CutColor);
            cut.chooseEntry(cut.getOtherColorIndex());
            auto& lineType = ctrl<CSystemLineTypeComboBox>(d, CutLineType);
            lineType.chooseEntry(lineType.findText(QStringLiteral("破線")));
            auto& width = ctrl<SelectLineWidthComboBox>(d, InnerWidth);
            width.setCurrentIndex(width.findText(QStringLiteral("0.5")));
            combo(d, FrameInit).setCurrentIndex(1);
            test::pressOk(d);
        });
        QVERIFY(doSystemPaperFrameDlg(setting, {}));
        ColorChooserHook::setHandler(previous);
        QCOMPARE(boxes.count(), std::size_t(0));
        const auto& frames = setting.getPaperFrames();
        const auto& first = frames[0].dimensions;
        QCOMPARE((std::array{first[0], first[1], first[3], first[6]}), (std::array{0, 0, -3, 180}));
        QCOMPARE(frames[1].dimensions[2], 12);
        QVERIFY(!frames[0].cutLine && frames[0].drawFrame && !frames[1].drawFrame);
        QVERIFY(setting.getDrawFrameColor().getName() == L"赤");
        QCOMPARE(setting.getDrawFrameColor().getColorType(), int(KsColor::System));
        QVERIFY(setting.getInnerFrameColor().isByLayer());
        QCOMPARE(setting.getCutFrameColor().getRGB(), 0x336699u);
        QCOMPARE(setting.getCutFrameColor().getColorType(), int(KsColor::User));
        QCOMPARE(host.config().getSetting<ui::setting::CColorSetting>()->getCustomColors(),
                 std::vector<std::uint32_t>{0x336699});
        QVERIFY(setting.getCutFrameLineType().getName() == L"破線");
        QCOMPARE(setting.getCutFrameLineType().getId(), 12);
        QCOMPARE(setting.getInnerFrameLineWidth().getKind(), int(KsLineWidth::Explicit));
        QCOMPARE(setting.getInnerFrameLineWidth().getWidth(), 0.5);
        QCOMPARE(setting.getDrawFrameLineWidth().getKind(), int(KsLineWidth::Bold));
        QVERIFY(setting.getInitFrameName() == L"A3");
    }

    // Missing and repeated names and an empty list are refused; "初期化" brings the
    // defaults back.
    void okRefusesMissingAndRepeatedFrameNames()
    {
        test::HostFixture host;
        host.putTables();
        MessageBoxRecorder boxes;
        CSystemPaperFrameSetting setting = twoFrames();
        ScopedModalDrivers drivers([&](CKsDialog& d) {
            CKsListCtrl& list = listOf(d);
            QVERIFY(click(d, Add));
            QCOMPARE(rowTexts(list, 2), QStringList({"新規枠", "1", "1", "1", "1", "1", "1", "1",
                                                     "1", "○", "○", "○"}));
            list.commitCellText(1, 0, QString());
            expectOkRefused(d, boxes,
                            QStringLiteral("入力値エラー|2 行目のデータに名前がありません！"));
            QCOMPARE(list.getSelectedRow(), 1);
            list.commitCellText(1, 0, QStringLiteral("A3"));
            list.commitCellText(2, 0, QStringLiteral("A1"));
            expectOkRefused(
                d, boxes, QStringLiteral("入力値エラー|3 行目\n名称が重複しています\n重複名：A1"));
            QCOMPARE(list.getSelectedRow(), 2);
            while (list.getRowCount() > 0) {
                list.selectRow(0);
                QVERIFY(click(d, Delete));
            }
            QCOMPARE(combo(d, FrameInit).count(), 0);
            expectOkRefused(
                d, boxes,
                QStringLiteral("入力値エラー|図面データがありません！\n１つ以上の図面デー"
                               "タを設定してください。"));
            QVERIFY(click(d, Reset));
            QCOMPARE(list.getRowCount(), 7);
            test::pressOk(d);
        });
        QVERIFY(doSystemPaperFrameDlg(setting, CSystemPaperFrameSetting::makeDefault()));
        QVERIFY(setting.isSame(CSystemPaperFrameSetting::makeDefault()));
    }

    void thePictureShowsTheSelectedFramesValues()
    {
        test::HostFixture host;
        host.putTables();
        CSystemPaperFrameSetting setting = twoFrames();
        ScopedModalDrivers drivers([](CKsDialog& d) {
            auto& picture = ctrl<ui::config::CPaperFrameDiagram>(d, Picture);
            QCOMPARE(picture.labelOf(0), QStringLiteral("A"));
            CKsListCtrl& list = listOf(d);
            list.selectRow(1);
            QCOMPARE(picture.labelOf(6), QStringLiteral("G=120"));
            QVERIFY(!picture.frame()->innerFrame);
            list.commitCellText(1, 8, QStringLiteral("45"));
            QCOMPARE(picture.labelOf(7), QStringLiteral("H=45"));
            const QImage image = picture.grab().toImage();
            QVERIFY(image.width() >= 300 && image.height() >= 200);
            test::pressCancel(d);
        });
        doSystemPaperFrameDlg(setting, {});
    }
};

QTEST_MAIN(TestPaperDlg)
#include "tst_paperdlg.moc"
