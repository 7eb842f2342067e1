// "用紙サイズの設定" end to end through doPaperSizeDlg.
#include "support/TestSupport.h"

#include "config/SystemEntries.h"
#include "control/KsListCtrl.h"
#include "framework/MessageBox.h"
#include "framework/ModalHook.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>

using namespace kesto;
using namespace kesto::ui::framework;
using kesto::test::click;
using kesto::test::columnTexts;
using kesto::test::isEnabled;
using kesto::test::itemTexts;
using kesto::test::listOf;
using ui::control::CKsListCtrl;
using ui::setting::CSystemPaperSizeSetting;

namespace {

enum { Add = 1001, Insert = 1002, Delete = 1003, Reset = 1004, InitName = 7081 };

CSystemPaperSizeSetting threeSizes()
{
    CSystemPaperSizeSetting setting;
    setting.setup(L"A1", {{L"A0", 841, 1189}, {L"A1", 594, 841}, {L"A3", 297, 420}});
    return setting;
}

QComboBox& initOf(CKsDialog& d)
{
    return *d.dlgItem<QComboBox>(InitName);
}

QStringList names(const CSystemPaperSizeSetting& setting)
{
    QStringList out;
    for (const auto& size : setting.getPaperSizes())
        out << QString::fromStdWString(size.name);
    return out;
}

} // namespace

class TestPaperSizeDlg : public QObject {
    Q_OBJECT

private slots:
    void theListAndTheInitialPaperAreShown()
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
            QCOMPARE(itemTexts(initOf(d)), QStringList({"A0", "A1", "A3"}));
            QCOMPARE(initOf(d).currentText(), QStringLiteral("A1"));
            QVERIFY(isEnabled(d, Add) && isEnabled(d, Reset));
            QVERIFY(!isEnabled(d, Insert) && !isEnabled(d, Delete));
            list.selectRow(0);
            QVERIFY(isEnabled(d, Insert) && isEnabled(d, Delete));
            test::pressCancel(d);
        });
        QVERIFY(!ui::config::doPaperSizeDlg(setting, CSystemPaperSizeSetting::makeDefault()));
    }

    void okWithoutAChangeIsNotAChange()
    {
        test::HostFixture host;
        CSystemPaperSizeSetting setting = threeSizes();
        ScopedModalDrivers drivers;
        drivers.add(test::pressOk);
        drivers.add([](CKsDialog& d) {
            // Typed back to what it was: still no change.
            listOf(d).commitCellText(0, 1, QStringLiteral("８４１"));
            QVERIFY(click(d, IDOK));
        });
        drivers.add([](CKsDialog& d) {
            listOf(d).commitCellText(2, 1, QStringLiteral("３００"));
            QCOMPARE(listOf(d).getCellText(2, 1), QStringLiteral("300"));
            QVERIFY(click(d, IDOK));
        });
        QVERIFY(!ui::config::doPaperSizeDlg(setting, {}));
        QVERIFY(!ui::config::doPaperSizeDlg(setting, {}));
        QVERIFY(setting.isSame(threeSizes()));
        QVERIFY(ui::config::doPaperSizeDlg(setting, {}));
        QCOMPARE(setting.getPaperSizes()[2].height, 300);
    }

    void okChecksEachRowInOrder()
    {
        test::HostFixture host;
        MessageBoxRecorder boxes;
        CSystemPaperSizeSetting setting = threeSizes();
        ScopedModalDrivers drivers([&](CKsDialog& d) {
            CKsListCtrl& list = listOf(d);
            QVERIFY(click(d, Add));
            QCOMPARE(columnTexts(list, 0).last(), QStringLiteral("新サイズ"));
            QCOMPARE(list.getCellText(3, 1), QStringLiteral("1"));
            list.commitCellText(1, 0, QString());
            list.commitCellText(2, 1, QStringLiteral("0"));
            list.commitCellText(2, 2, QStringLiteral("abc"));
            QCOMPARE(list.getCellText(2, 2), QStringLiteral("0"));
            test::expectOkRefused(d, boxes,
                                  QStringLiteral("入力値エラー|2 行目のデータに名前がありません"));
            QCOMPARE(list.getSelectedRow(), 1);
            list.commitCellText(1, 0, QStringLiteral("A3"));
            test::expectOkRefused(
                d, boxes,
                QStringLiteral(
                    "入力値エラー|3 行目の高さが小さすぎです\n0 よりも大きくしてください"));
            QCOMPARE(list.getSelectedRow(), 2);
            list.commitCellText(2, 1, QStringLiteral("297"));
            test::expectOkRefused(
                d, boxes,
                QStringLiteral(
                    "入力値エラー|3 行目の幅が小さすぎです\n0 よりも大きくしてください"));
            list.commitCellText(2, 2, QStringLiteral("420"));
            test::expectOkRefused(d, boxes,
                                  QStringLiteral("入力値エラー|3 行目\n名前が重複しています"));
            QCOMPARE(list.getSelectedRow(), 2);
            list.commitCellText(2, 0, QStringLiteral("A3横"));
            QVERIFY(click(d, IDOK));
            QVERIFY(d.isEnded());
        });
        QVERIFY(ui::config::doPaperSizeDlg(setting, {}));
        QCOMPARE(names(setting), QStringList({"A0", "A3", "A3横", "新サイズ"}));
        QCOMPARE(setting.getInitPaperName(), std::wstring(L"A3"));
    }

    void theInitialPaperFollowsItsRow()
    {
        test::HostFixture host;
        MessageBoxRecorder boxes;
        CSystemPaperSizeSetting setting = threeSizes();
        ScopedModalDrivers drivers([&](CKsDialog& d) {
            CKsListCtrl& list = listOf(d);
            list.commitCellText(1, 0, QStringLiteral("A1横"));
            QCOMPARE(initOf(d).currentText(), QStringLiteral("A1横"));
            list.selectRow(0);
            QVERIFY(click(d, Insert));
            QCOMPARE(itemTexts(initOf(d)), QStringList({"新サイズ", "A0", "A1横", "A3"}));
            QCOMPARE(initOf(d).currentText(), QStringLiteral("A1横"));
            list.selectRow(2);
            QVERIFY(click(d, Delete));
            QCOMPARE(initOf(d).currentIndex(), -1);
            // The stored initial paper is gone: refused without a caption.
            test::expectOkRefused(d, boxes,
                                  QStringLiteral("|初期値指定した用紙サイズデータがありません"));
            initOf(d).setCurrentIndex(2);
            QVERIFY(click(d, IDOK));
        });
        QVERIFY(ui::config::doPaperSizeDlg(setting, {}));
        QCOMPARE(names(setting), QStringList({"新サイズ", "A0", "A3"}));
        QCOMPARE(setting.getInitPaperName(), std::wstring(L"A3"));
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
        QVERIFY(ui::config::doPaperSizeDlg(setting, {}));
        QCOMPARE(setting.getPaperSizes()[2].height, 300);
    }

    void resetRestoresTheDefaultsUntilCancel()
    {
        test::HostFixture host;
        CSystemPaperSizeSetting setting = threeSizes();
        ScopedModalDrivers drivers([](CKsDialog& d) {
            QVERIFY(click(d, Reset));
            QCOMPARE(listOf(d).getRowCount(), 7);
            QCOMPARE(initOf(d).currentText(), QStringLiteral("A1"));
            QTest::keyClick(&d, Qt::Key_Escape);
        });
        QVERIFY(!ui::config::doPaperSizeDlg(setting, CSystemPaperSizeSetting::makeDefault()));
        QVERIFY(setting.isSame(threeSizes()));
    }

    void columnWidthsAreKeptAndHelpOpensThePaperTopic()
    {
        test::HostFixture host;
        CSystemPaperSizeSetting setting = threeSizes();
        int reopened = 0;
        ScopedModalDrivers drivers;
        drivers.add([](CKsDialog& d) {
            listOf(d).setColumnWidth(0, 150);
            QVERIFY(click(d, 7500));
            test::pressCancel(d);
        });
        drivers.add([&](CKsDialog& d) {
            reopened = listOf(d).columnWidth(0);
            test::pressCancel(d);
        });
        ui::config::doPaperSizeDlg(setting, {});
        QCOMPARE(host.savedPlacement(QStringLiteral("SystemPaperSizeDlg/head0")).toInt(), 150);
        QCOMPARE(host.savedPlacement(QStringLiteral("SystemPaperSizeDlg/head2")).toInt(), 100);
        ui::config::doPaperSizeDlg(setting, {});
        QCOMPARE(reopened, 150);
        QCOMPARE(host.helpTopics(), QStringList{QStringLiteral("DLG_HLP_SYS_PAPER")});
    }
};

QTEST_MAIN(TestPaperSizeDlg)
#include "tst_papersizedlg.moc"
