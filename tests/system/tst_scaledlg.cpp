// "スケールの設定" end to end through doSystemScaleDlg and doSystemScaleDlgAddMode.
#include "support/TestSupport.h"

#include "config/SystemEntries.h"
#include "control/KsListCtrl.h"
#include "db/MemoryDataBase.h"
#include "framework/MessageBox.h"
#include "framework/ModalHook.h"
#include "types/KsScale.h"

#include <QLineEdit>
#include <QTabBar>
#include <QTest>

using namespace kesto;
using namespace kesto::ui::framework;
using kesto::test::click;
using kesto::test::columnTexts;
using kesto::test::isEnabled;
using kesto::test::isShown;
using kesto::test::listOf;
using ui::config::doSystemScaleDlg;
using ui::control::CKsListCtrl;
using ui::setting::CSystemScaleSetting;

namespace {

constexpr int Tab = 7071, Add = 7501, Insert = 7698, Delete = 7502, Reset = 7704, Register = 13000,
              Help = 7500;

CSystemScaleSetting scales(std::initializer_list<std::pair<double, double>> values)
{
    std::vector<ui::setting::SSystemScale> list;
    for (auto [n, d] : values)
        list.push_back({KsScale::makeName(n, d), n, d});
    CSystemScaleSetting setting;
    setting.setSystemScales(list);
    return setting;
}

QTabBar& tabOf(CKsDialog& d)
{
    return test::ctrl<QTabBar>(d, Tab);
}

QStringList names(const CSystemScaleSetting& setting)
{
    QStringList out;
    for (const auto& s : setting.getSystemScales())
        out << QString::fromStdWString(s.name);
    return out;
}

// A drawing with its own scales, open in the host.
struct OpenDrawing {
    CMemoryDataBase db{L"道路平面図"};
    explicit OpenDrawing(test::HostFixture& host)
    {
        db.add<KsScale>(L"平面 1/100", 1.0, 100.0);
        db.add<KsScale>(L"1/600", 1.0, 600.0);
        host.config().setCurrentDataBase(&db);
    }
};

} // namespace

class TestScaleDlg : public QObject {
    Q_OBJECT

private slots:
    // Without a drawing only the system tab; the placement is kept and the dialog cannot be
    // made smaller than it opened.
    void withoutADrawingThereIsOnlyTheSystemTab()
    {
        test::HostFixture host;
        CSystemScaleSetting setting = scales({{1, 100}, {1, 200}});
        QSize first;
        ScopedModalDrivers drivers([&](CKsDialog& d) {
            QCOMPARE(d.windowTitle(), QStringLiteral("スケールの設定"));
            QCOMPARE(test::tabTexts(tabOf(d)), QStringList{"システム"});
            CKsListCtrl& list = listOf(d);
            QCOMPARE(test::headerTexts(list), QStringList({"名称", "分子", "分母"}));
            QCOMPARE(columnTexts(list, 0), QStringList({"1/100", "1/200"}));
            QVERIFY(isShown(d, Insert) && !isEnabled(d, Insert));
            QVERIFY(!isShown(d, Register) && isShown(d, Reset));
            list.selectRow(1);
            QVERIFY(isEnabled(d, Insert) && isEnabled(d, Delete));
            QVERIFY(click(d, Help));
            first = d.size();
            QCOMPARE(d.minimumSize(), first);
            d.resize(first + QSize(40, 30));
            test::pressCancel(d);
        });
        QSize reopened;
        drivers.add([&](CKsDialog& d) { reopened = d.size(); });
        QVERIFY(!doSystemScaleDlg(setting, CSystemScaleSetting::makeDefault()));
        QCOMPARE(host.helpTopics(), QStringList{QStringLiteral("DLG_HLP_SYS_SCALE")});
        QVERIFY(!host.savedPlacement(QStringLiteral("SystemScaleDlg/geometry")).isNull());
        doSystemScaleDlg(setting, {});
        QCOMPARE(reopened, first + QSize(40, 30));
    }

    // Any typed value is read, kept with six decimals and named after on OK; 0 too, without
    // a message.
    void editedScalesAreNamedAfterTheirValuesAndStoredOnOk()
    {
        test::HostFixture host;
        MessageBoxRecorder boxes;
        CSystemScaleSetting setting = scales({{1, 100}, {1, 200}});
        ScopedModalDrivers drivers([](CKsDialog& d) {
            CKsListCtrl& list = listOf(d);
            QVERIFY(click(d, Add));
            QCOMPARE(list.getSelectedRow(), 2);
            QCOMPARE(list.getCellText(2, 0), QStringLiteral("1/1"));
            QVERIFY(list.commitCellText(2, 2, QStringLiteral("1.23456789")));
            QCOMPARE(list.getCellText(2, 2), QStringLiteral("1.234568"));
            QCOMPARE(list.getCellText(2, 0), QStringLiteral("1/1.234568"));
            QVERIFY(list.commitCellText(2, 1, QStringLiteral("３.0000")));
            QCOMPARE(list.getCellText(2, 1), QStringLiteral("3"));
            QVERIFY(!list.commitCellText(0, 0, QStringLiteral("好きな名前")));
            list.commitCellText(1, 2, QStringLiteral("abc"));
            QCOMPARE(list.getCellText(1, 2), QStringLiteral("0"));
            list.commitCellText(1, 1, QStringLiteral("0.0000004"));
            QCOMPARE(list.getCellText(1, 1), QStringLiteral("0"));
            list.commitCellText(1, 2, QStringLiteral("-5"));
            // Typed in place, as a user does.
            const QModelIndex cell = list.model()->index(0, 2);
            list.setCurrentIndex(cell);
            list.edit(cell);
            auto* editor = list.findChild<QLineEdit*>();
            QVERIFY(editor);
            editor->selectAll();
            QTest::keyClicks(editor, QStringLiteral("250"));
            QTest::keyClick(editor, Qt::Key_Return);
            QTRY_COMPARE(list.getCellText(0, 0), QStringLiteral("1/250"));
            test::pressOk(d);
        });
        QVERIFY(doSystemScaleDlg(setting, CSystemScaleSetting::makeDefault()));
        QCOMPARE(boxes.count(), std::size_t(0));
        QCOMPARE(names(setting), QStringList({"1/250", "0/-5", "3/1.234568"}));
        QCOMPARE(setting.getSystemScales()[2].numerator, 3.0);
        QCOMPARE(setting.getSystemScales()[2].denominator, 1.234568);
    }

    // Insert and delete act on the selected row; "初期化" shows the defaults until OK.
    void rowsAreInsertedDeletedAndReset()
    {
        test::HostFixture host;
        const CSystemScaleSetting defaults = scales({{1, 1}, {1, 1000}});
        CSystemScaleSetting setting = scales({{1, 10}, {1, 20}, {1, 50}});
        const CSystemScaleSetting original = setting;
        ScopedModalDrivers drivers([](CKsDialog& d) {
            CKsListCtrl& list = listOf(d);
            list.selectRow(1);
            QVERIFY(click(d, Insert));
            QCOMPARE(columnTexts(list, 0), QStringList({"1/10", "1/1", "1/20", "1/50"}));
            QCOMPARE(list.getSelectedRow(), 1);
            list.selectRow(3);
            QVERIFY(click(d, Delete));
            QCOMPARE(columnTexts(list, 0), QStringList({"1/10", "1/1", "1/20"}));
            QCOMPARE(list.getSelectedRow(), 2);
            list.clearSelection();
            QVERIFY(!click(d, Delete));
            QVERIFY(click(d, Reset));
            QCOMPARE(columnTexts(listOf(d), 0), QStringList({"1/1", "1/1000"}));
            QTest::keyClick(&d, Qt::Key_Escape);
        });
        drivers.add([](CKsDialog& d) {
            QVERIFY(click(d, Reset));
            test::pressOk(d);
        });
        QVERIFY(!doSystemScaleDlg(setting, defaults));
        QVERIFY(setting.isSame(original));
        QVERIFY(doSystemScaleDlg(setting, defaults));
        QVERIFY(setting.isSame(defaults));
    }

    void drawingTabListsTheDrawingsScalesAndRegistersNewOnes()
    {
        test::HostFixture host;
        OpenDrawing drawing(host);
        MessageBoxRecorder boxes;
        CSystemScaleSetting setting = scales({{1, 100}});
        ScopedModalDrivers drivers([&](CKsDialog& d) {
            QCOMPARE(test::tabTexts(tabOf(d)), QStringList({"システム", "図面内"}));
            tabOf(d).setCurrentIndex(1);
            CKsListCtrl& list = listOf(d);
            QCOMPARE(columnTexts(list, 0), QStringList({"平面 1/100", "1/600"}));
            QVERIFY(!isEnabled(d, Add) && isShown(d, Register));
            QVERIFY(!list.commitCellText(0, 2, QStringLiteral("5"))); // read only
            list.selectRow(0);
            QVERIFY(click(d, Register)); // same values, other name
            QCOMPARE(
                test::lastBox(boxes),
                QStringLiteral("入力値エラー|既に同じスケールがシステム設定に存在しています。"));
            list.selectRow(1);
            QVERIFY(click(d, Register));
            QCOMPARE(boxes.count(), std::size_t(1));
            tabOf(d).setCurrentIndex(0);
            QCOMPARE(columnTexts(listOf(d), 0), QStringList({"1/100", "1/600"}));
            QVERIFY(!isShown(d, Register));
            test::pressOk(d);
        });
        QVERIFY(doSystemScaleDlg(setting, {}));
        QCOMPARE(names(setting), QStringList({"1/100", "1/600"}));
        QCOMPARE(drawing.db.countElements(L"SCALE"), std::size_t(2));
    }

    void addModeWithoutAddingIsACancel()
    {
        test::HostFixture host;
        OpenDrawing drawing(host);
        CSystemScaleSetting setting = scales({{1, 100}});
        ScopedModalDrivers drivers([](CKsDialog& d) {
            QVERIFY(!isShown(d, Insert) && !isShown(d, Delete) && !isShown(d, Reset));
            tabOf(d).setCurrentIndex(1);
            QVERIFY(!isShown(d, Register));
            tabOf(d).setCurrentIndex(0);
            test::pressOk(d);
        });
        drivers.add([](CKsDialog& d) {
            QVERIFY(click(d, Add));
            listOf(d).commitCellText(1, 2, QStringLiteral("300"));
            test::pressOk(d);
        });
        QVERIFY(!ui::config::doSystemScaleDlgAddMode(setting));
        QCOMPARE(names(setting), QStringList({"1/100"}));
        QVERIFY(ui::config::doSystemScaleDlgAddMode(setting));
        QCOMPARE(names(setting), QStringList({"1/100", "1/300"}));
    }
};

QTEST_MAIN(TestScaleDlg)
#include "tst_scaledlg.moc"
