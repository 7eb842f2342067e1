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
#include "setting/LineWidthSetting.h"
#include "setting/SystemColorSetting.h"
#include "setting/SystemLineTypeSetting.h"
#include "system/PaperFrameDiagram.h"

#include <QComboBox>
#include <QSettings>
#include <QTest>

using namespace kesto;
using namespace kesto::ui::framework;
using kesto::test::click;
using ui::control::CKsListCtrl;
using ui::control::CSystemColorComboBox;
using ui::control::CSystemLineTypeComboBox;
using ui::control::SelectLineWidthComboBox;
using ui::setting::CSystemPaperFrameSetting;
using ui::setting::SPaperFrame;

namespace {

enum {
    List = 7062,
    Add = 7501,
    Insert = 7698,
    Delete = 7502,
    Reset = 7699,
    DrawColor = 7683,
    DrawLineType = 7684,
    DrawWidth = 7685,
    InnerColor = 7472,
    InnerLineType = 7473,
    InnerWidth = 7474,
    CutColor = 7690,
    CutLineType = 7692,
    CutWidth = 7694,
    Picture = 7526,
    InitName = 7697,
    Help = 7500
};

// Two frames, A1 and A3; new drawings start with A1.
CSystemPaperFrameSetting twoFrames()
{
    CSystemPaperFrameSetting setting = CSystemPaperFrameSetting::makeDefault();
    std::vector<SPaperFrame> frames = setting.getPaperFrames();
    setting.setPaperFrames({frames[1], frames[3]});
    return setting;
}

void putTables(test::HostFixture& host)
{
    using namespace ui::setting;
    host.config().putSetting(
        std::make_unique<CSystemColorSetting>(CSystemColorSetting::makeDefault()));
    host.config().putSetting(std::make_unique<CColorSetting>());
    host.config().putSetting(
        std::make_unique<CSystemLineTypeSetting>(CSystemLineTypeSetting::makeDefault()));
    host.config().putSetting(std::make_unique<CLineWidthSetting>(CLineWidthSetting::makeDefault()));
}

CKsListCtrl& listOf(CKsDialog& d)
{
    return *d.dlgItem<CKsListCtrl>(List);
}

QStringList row(CKsListCtrl& list, int r)
{
    QStringList out;
    for (int c = 0; c < list.getColumnCount(); ++c)
        out << list.getCellText(r, c);
    return out;
}

QStringList headers(CKsListCtrl& list)
{
    QStringList out;
    for (int c = 0; c < list.getColumnCount(); ++c)
        out << list.model()->headerData(c, Qt::Horizontal).toString();
    return out;
}

void expectRefusal(CKsDialog& d, MessageBoxRecorder& boxes, const QString& text)
{
    const std::size_t before = boxes.count();
    QVERIFY(click(d, IDOK));
    QCOMPARE(boxes.count(), before + 1);
    QCOMPARE(boxes.last().text, text);
    QCOMPARE(boxes.last().caption, QStringLiteral("入力値エラー"));
    QVERIFY(!d.isEnded());
}

} // namespace

class TestPaperFrameDlg : public QObject {
    Q_OBJECT

private slots:
    void framesAndLineLooksAreShown()
    {
        test::HostFixture host;
        putTables(host);
        CSystemPaperFrameSetting setting = twoFrames();
        ScopedModalDrivers drivers([](CKsDialog& d) {
            QCOMPARE(d.windowTitle(), QStringLiteral("図面枠の設定"));
            CKsListCtrl& list = listOf(d);
            QCOMPARE(headers(list), QStringList({"名称", "A", "B", "C", "D", "E", "F", "G", "H",
                                                 "図面枠", "内枠線", "切取線"}));
            QCOMPARE(list.columnWidth(0), 160);
            QCOMPARE(list.columnWidth(8), 30);
            QCOMPARE(list.columnWidth(11), 70);
            QCOMPARE(row(list, 1), QStringList({"A3", "25", "10", "10", "10", "2", "2", "120", "40",
                                                "○", "×", "○"}));
            QCOMPARE(list.listModel()->column(10).items, QStringList({"○", "×"}));
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
            click(d, IDCANCEL);
        });
        QVERIFY(!ui::config::doSystemPaperFrameDlg(setting, {}));
    }

    void editedFramesAndLooksAreStoredOnOk()
    {
        test::HostFixture host;
        putTables(host);
        CSystemPaperFrameSetting setting = twoFrames();
        ScopedModalDrivers drivers([](CKsDialog& d) {
            CKsListCtrl& list = listOf(d);
            QVERIFY(list.commitCellText(0, 7, QStringLiteral("１８０")));
            QCOMPARE(list.getCellText(0, 7), QStringLiteral("180"));
            // A flag chosen in its cell's combo box.
            const QModelIndex flag = list.model()->index(0, 11);
            list.setCurrentIndex(flag);
            list.edit(flag);
            auto* editor = list.findChild<QComboBox*>();
            QVERIFY(editor);
            editor->setCurrentIndex(1);
            emit editor->activated(1);
            QTRY_COMPARE(list.getCellText(0, 11), QStringLiteral("×"));
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
            click(d, IDOK);
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
        putTables(host);
        MessageBoxRecorder boxes;
        CSystemPaperFrameSetting setting = twoFrames();
        ScopedModalDrivers drivers([&](CKsDialog& d) {
            CKsListCtrl& list = listOf(d);
            QVERIFY(click(d, Add));
            QCOMPARE(row(list, 2), QStringList({"新規枠", "1", "1", "1", "1", "1", "1", "1", "1",
                                                "○", "○", "○"}));
            list.commitCellText(1, 0, QString());
            expectRefusal(d, boxes, QStringLiteral("2 行目のデータに名前がありません！"));
            QCOMPARE(list.getSelectedRow(), 1);
            list.commitCellText(1, 0, QStringLiteral("A3"));
            list.commitCellText(2, 0, QStringLiteral("A1"));
            expectRefusal(d, boxes, QStringLiteral("3 行目\n名称が重複しています\n重複名：A1"));
            QCOMPARE(list.getSelectedRow(), 2);
            while (list.getRowCount() > 0) {
                list.selectRow(0);
                QVERIFY(click(d, Delete));
            }
            QCOMPARE(d.dlgItem<QComboBox>(InitName)->count(), 0);
            expectRefusal(d, boxes,
                          QStringLiteral("図面データがありません！\n１つ以上の図面データを設定"
                                         "してください。"));
            click(d, IDCANCEL);
        });
        QVERIFY(!ui::config::doSystemPaperFrameDlg(setting, {}));
        QVERIFY(setting.isSame(twoFrames()));
    }

    void aDimensionMustBeAWholeNumberAboveZero()
    {
        test::HostFixture host;
        putTables(host);
        MessageBoxRecorder boxes;
        CSystemPaperFrameSetting setting = twoFrames();
        ScopedModalDrivers drivers([&](CKsDialog& d) {
            CKsListCtrl& list = listOf(d);
            list.commitCellText(1, 3, QStringLiteral("12"));
            list.commitCellText(1, 3, QStringLiteral("0"));
            QCOMPARE(list.getCellText(1, 3), QStringLiteral("12"));
            QCOMPARE(boxes.count(), std::size_t(1));
            QCOMPARE(boxes.last().text,
                     QStringLiteral("2 行目のCには 0 より大きい数値を入力してください。"));
            QCOMPARE(boxes.last().caption, QStringLiteral("入力値エラー"));
            list.commitCellText(0, 1, QStringLiteral("2.5"));
            QCOMPARE(list.getCellText(0, 1), QStringLiteral("30"));
            QCOMPARE(boxes.count(), std::size_t(2));
            click(d, IDOK);
        });
        QVERIFY(ui::config::doSystemPaperFrameDlg(setting, {}));
        QCOMPARE(setting.getPaperFrames()[1].dimensions[2], 12);
        QCOMPARE(setting.getPaperFrames()[0].dimensions[0], 30);
    }

    void thePictureShowsTheSelectedFramesValues()
    {
        test::HostFixture host;
        putTables(host);
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
            click(d, IDCANCEL);
        });
        ui::config::doSystemPaperFrameDlg(setting, {});
    }

    void anotherColourIsMixedKeptAndStored()
    {
        test::HostFixture host;
        putTables(host);
        CSystemPaperFrameSetting setting = twoFrames();
        const auto previous =
            ColorChooserHook::setHandler([](const QColor&) { return QColor(0x33, 0x66, 0x99); });
        ScopedModalDrivers drivers([](CKsDialog& d) {
            auto* color = d.dlgItem<CSystemColorComboBox>(CutColor);
            color->chooseEntry(color->getOtherColorIndex());
            click(d, IDOK);
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
        putTables(host);
        CSystemPaperFrameSetting setting = twoFrames();
        ScopedModalDrivers drivers([](CKsDialog& d) {
            QVERIFY(click(d, Reset));
            QCOMPARE(listOf(d).getRowCount(), 7);
            QVERIFY(click(d, Help));
            click(d, IDOK);
        });
        QVERIFY(
            ui::config::doSystemPaperFrameDlg(setting, CSystemPaperFrameSetting::makeDefault()));
        QVERIFY(setting.isSame(CSystemPaperFrameSetting::makeDefault()));
        QCOMPARE(host.helpTopics(), QStringList{QStringLiteral("DLG_HLP_SYS_FRAME")});
        core::Application::getInstance()->placements().sync();
        QSettings saved(host.path(QStringLiteral("placements.ini")), QSettings::IniFormat);
        QVERIFY(
            !saved.value(QStringLiteral("SystemPaperFrameDlg/geometry")).toByteArray().isEmpty());
    }
};

QTEST_MAIN(TestPaperFrameDlg)
#include "tst_paperframedlg.moc"
