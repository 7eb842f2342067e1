// "図面枠の設定" end to end through doSystemPaperFrameDlg.
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

#include <QComboBox>
#include <QTest>

using namespace kesto;
using namespace kesto::ui::framework;
using kesto::test::click;
using kesto::test::listOf;
using kesto::test::rowTexts;
using ui::control::CKsListCtrl;
using ui::control::CSystemColorComboBox;
using ui::control::CSystemLineTypeComboBox;
using ui::control::SelectLineWidthComboBox;
using ui::setting::CSystemPaperFrameSetting;
using ui::setting::SPaperFrame;

namespace {

constexpr int Add = 7501, Delete = 7502, Reset = 7699, Picture = 7526, InitName = 7697, Help = 7500;
constexpr int DrawColor = 7683, DrawWidth = 7685, InnerColor = 7472, InnerWidth = 7474,
              CutColor = 7690, CutLineType = 7692;

// Two frames, A1 and A3; new drawings start with A1.
CSystemPaperFrameSetting twoFrames()
{
    CSystemPaperFrameSetting setting = CSystemPaperFrameSetting::makeDefault();
    std::vector<SPaperFrame> frames = setting.getPaperFrames();
    setting.setPaperFrames({frames[1], frames[3]});
    return setting;
}

} // namespace

class TestPaperFrameDlg : public QObject {
    Q_OBJECT

private slots:
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
            QCOMPARE(list.columnWidth(0), 160);
            QCOMPARE(list.columnWidth(8), 30);
            QCOMPARE(list.columnWidth(11), 70);
            QCOMPARE(rowTexts(list, 1), QStringList({"A3", "25", "10", "10", "10", "2", "2", "120",
                                                     "40", "○", "×", "○"}));
            QCOMPARE(list.tableModel()->column(10).items, QStringList({"○", "×"}));
            auto* color = d.dlgItem<CSystemColorComboBox>(InnerColor);
            QCOMPARE(color->itemText(0), QStringLiteral("レイヤ依存"));
            QCOMPARE(color->itemText(color->count() - 1), QStringLiteral("他の色"));
            QCOMPARE(color->currentText(), QStringLiteral("白"));
            auto* lineType = d.dlgItem<CSystemLineTypeComboBox>(CutLineType);
            QCOMPARE(lineType->itemText(lineType->count() - 1), QStringLiteral("他の線種"));
            QCOMPARE(lineType->currentText(), QStringLiteral("実線"));
            auto* width = d.dlgItem<SelectLineWidthComboBox>(DrawWidth);
            QCOMPARE(width->getKind(width->currentIndex()), int(KsLineWidth::Bold));
            QCOMPARE(d.dlgItem<QComboBox>(InitName)->currentText(), QStringLiteral("A1"));
            test::pressCancel(d);
        });
        QVERIFY(!ui::config::doSystemPaperFrameDlg(setting, {}));
    }

    void editedFramesAndLooksAreStoredOnOk()
    {
        test::HostFixture host;
        host.putTables();
        CSystemPaperFrameSetting setting = twoFrames();
        ScopedModalDrivers drivers([](CKsDialog& d) {
            CKsListCtrl& list = listOf(d);
            QVERIFY(list.commitCellText(0, 7, QStringLiteral("１８０")));
            QCOMPARE(list.getCellText(0, 7), QStringLiteral("180"));
            QVERIFY(list.commitCellText(0, 11, QStringLiteral("×")));
            QVERIFY(list.commitCellText(1, 9, QStringLiteral("o"))); // not "○": false

            auto* color = d.dlgItem<CSystemColorComboBox>(DrawColor);
            color->chooseEntry(color->findText(QStringLiteral("赤")));
            auto* inner = d.dlgItem<CSystemColorComboBox>(InnerColor);
            inner->chooseEntry(0);
            auto* lineType = d.dlgItem<CSystemLineTypeComboBox>(CutLineType);
            lineType->chooseEntry(lineType->findText(QStringLiteral("破線")));
            auto* width = d.dlgItem<SelectLineWidthComboBox>(InnerWidth);
            width->setCurrentIndex(width->findText(QStringLiteral("0.5")));
            d.dlgItem<QComboBox>(InitName)->setCurrentIndex(1);
            test::pressOk(d);
        });
        QVERIFY(ui::config::doSystemPaperFrameDlg(setting, {}));
        const auto& frames = setting.getPaperFrames();
        QCOMPARE(frames[0].dimensions[6], 180);
        QVERIFY(!frames[0].cutLine && frames[0].drawFrame);
        QVERIFY(!frames[1].drawFrame);
        QCOMPARE(setting.getDrawFrameColor().getName(), std::wstring(L"赤"));
        QCOMPARE(setting.getDrawFrameColor().getColorType(), int(KsColor::System));
        QVERIFY(setting.getInnerFrameColor().isByLayer());
        QCOMPARE(setting.getCutFrameLineType().getName(), std::wstring(L"破線"));
        QCOMPARE(setting.getCutFrameLineType().getId(), 12);
        QCOMPARE(setting.getInnerFrameLineWidth().getKind(), int(KsLineWidth::Explicit));
        QCOMPARE(setting.getInnerFrameLineWidth().getWidth(), 0.5);
        QCOMPARE(setting.getDrawFrameLineWidth().getKind(), int(KsLineWidth::Bold));
        QCOMPARE(setting.getInitFrameName(), std::wstring(L"A3"));
    }

    void okRefusesMissingAndRepeatedNames()
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
            test::expectOkRefused(
                d, boxes, QStringLiteral("入力値エラー|2 行目のデータに名前がありません！"));
            QCOMPARE(list.getSelectedRow(), 1);
            list.commitCellText(1, 0, QStringLiteral("A3"));
            list.commitCellText(2, 0, QStringLiteral("A1"));
            test::expectOkRefused(
                d, boxes, QStringLiteral("入力値エラー|3 行目\n名称が重複しています\n重複名：A1"));
            QCOMPARE(list.getSelectedRow(), 2);
            while (list.getRowCount() > 0) {
                list.selectRow(0);
                QVERIFY(click(d, Delete));
            }
            QCOMPARE(d.dlgItem<QComboBox>(InitName)->count(), 0);
            test::expectOkRefused(
                d, boxes,
                QStringLiteral("入力値エラー|図面データがありません！\n１つ以上の図面データを設定"
                               "してください。"));
            test::pressCancel(d);
        });
        QVERIFY(!ui::config::doSystemPaperFrameDlg(setting, {}));
        QVERIFY(setting.isSame(twoFrames()));
    }

    // Dimensions are read as integers when typed, without bounds or messages.
    void dimensionsAreReadAsIntegers()
    {
        test::HostFixture host;
        host.putTables();
        MessageBoxRecorder boxes;
        CSystemPaperFrameSetting setting = twoFrames();
        ScopedModalDrivers drivers([&](CKsDialog& d) {
            CKsListCtrl& list = listOf(d);
            list.commitCellText(1, 3, QStringLiteral("12.5"));
            QCOMPARE(list.getCellText(1, 3), QStringLiteral("12"));
            list.commitCellText(0, 1, QStringLiteral("0"));
            list.commitCellText(0, 2, QStringLiteral("abc"));
            list.commitCellText(0, 4, QStringLiteral("-3"));
            test::pressOk(d);
        });
        QVERIFY(ui::config::doSystemPaperFrameDlg(setting, {}));
        QCOMPARE(boxes.count(), std::size_t(0));
        QCOMPARE(setting.getPaperFrames()[1].dimensions[2], 12);
        const auto& first = setting.getPaperFrames()[0].dimensions;
        QCOMPARE((std::vector<int>{first[0], first[1], first[3]}), (std::vector<int>{0, 0, -3}));
    }

    void thePictureShowsTheSelectedFramesValues()
    {
        test::HostFixture host;
        host.putTables();
        CSystemPaperFrameSetting setting = twoFrames();
        ScopedModalDrivers drivers([](CKsDialog& d) {
            auto* picture = d.dlgItem<ui::config::CPaperFrameDiagram>(Picture);
            QVERIFY(picture);
            QCOMPARE(picture->labelOf(0), QStringLiteral("A"));
            CKsListCtrl& list = listOf(d);
            list.selectRow(1);
            QCOMPARE(picture->labelOf(6), QStringLiteral("G=120"));
            QVERIFY(!picture->frame()->innerFrame);
            list.commitCellText(1, 8, QStringLiteral("45"));
            QCOMPARE(picture->labelOf(7), QStringLiteral("H=45"));
            const QImage image = picture->grab().toImage();
            QVERIFY(image.width() >= 300 && image.height() >= 200);
            test::pressCancel(d);
        });
        ui::config::doSystemPaperFrameDlg(setting, {});
    }

    void anotherColourIsMixedKeptAndStored()
    {
        test::HostFixture host;
        host.putTables();
        CSystemPaperFrameSetting setting = twoFrames();
        const auto previous =
            ColorChooserHook::setHandler([](const QColor&) { return QColor(0x33, 0x66, 0x99); });
        ScopedModalDrivers drivers([](CKsDialog& d) {
            auto* color = d.dlgItem<CSystemColorComboBox>(CutColor);
            color->chooseEntry(color->getOtherColorIndex());
            test::pressOk(d);
        });
        QVERIFY(ui::config::doSystemPaperFrameDlg(setting, {}));
        ColorChooserHook::setHandler(previous);
        QCOMPARE(setting.getCutFrameColor().getRGB(), 0x336699u);
        QCOMPARE(setting.getCutFrameColor().getColorType(), int(KsColor::User));
        QCOMPARE(host.config().getSetting<ui::setting::CColorSetting>()->getCustomColors(),
                 std::vector<std::uint32_t>{0x336699});
    }

    void resetHelpAndPlacement()
    {
        test::HostFixture host;
        host.putTables();
        CSystemPaperFrameSetting setting = twoFrames();
        ScopedModalDrivers drivers([](CKsDialog& d) {
            QVERIFY(click(d, Reset));
            QCOMPARE(listOf(d).getRowCount(), 7);
            QVERIFY(click(d, Help));
            test::pressOk(d);
        });
        QVERIFY(
            ui::config::doSystemPaperFrameDlg(setting, CSystemPaperFrameSetting::makeDefault()));
        QVERIFY(setting.isSame(CSystemPaperFrameSetting::makeDefault()));
        QCOMPARE(host.helpTopics(), QStringList{QStringLiteral("DLG_HLP_SYS_FRAME")});
        QVERIFY(!host.savedPlacement(QStringLiteral("SystemPaperFrameDlg/geometry")).isNull());
    }
};

QTEST_MAIN(TestPaperFrameDlg)
#include "tst_paperframedlg.moc"
