// "スケールの設定" end to end through doSystemScaleDlg and doSystemScaleDlgAddMode.
#include "support/TestSupport.h"

#include "config/SystemEntries.h"
#include "control/KsListCtrl.h"
#include "db/MemoryDataBase.h"
#include "framework/MessageBox.h"
#include "framework/ModalHook.h"
#include "types/KsScale.h"

#include <QLineEdit>
#include <QSettings>
#include <QTabBar>
#include <QTest>

using namespace kesto;
using namespace kesto::ui::framework;
using kesto::test::click;
using kesto::test::isEnabled;
using kesto::test::isShown;
using ui::control::CKsListCtrl;
using ui::setting::CSystemScaleSetting;

namespace {

enum {
    Tab = 7071,
    List = 7062,
    Add = 7501,
    Insert = 7698,
    Delete = 7502,
    Reset = 7704,
    Register = 13000,
    Help = 7500
};

CSystemScaleSetting scales(std::initializer_list<std::pair<double, double>> values)
{
    std::vector<ui::setting::SSystemScale> list;
    for (auto [n, d] : values)
        list.push_back({KsScale::makeName(n, d), n, d});
    CSystemScaleSetting setting;
    setting.setSystemScales(list);
    return setting;
}

CKsListCtrl& listOf(CKsDialog& d)
{
    return *d.dlgItem<CKsListCtrl>(List);
}

QTabBar& tabOf(CKsDialog& d)
{
    return *d.dlgItem<QTabBar>(Tab);
}

QStringList names(const CSystemScaleSetting& setting)
{
    QStringList out;
    for (const auto& s : setting.getSystemScales())
        out << QString::fromStdWString(s.name);
    return out;
}

QStringList column(CKsListCtrl& list, int c)
{
    QStringList out;
    for (int r = 0; r < list.getRowCount(); ++r)
        out << list.getCellText(r, c);
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
    void withoutADrawingThereIsOnlyTheSystemTab()
    {
        test::HostFixture host;
        CSystemScaleSetting setting = scales({{1, 100}, {1, 200}});
        ScopedModalDrivers drivers([](CKsDialog& d) {
            QCOMPARE(d.windowTitle(), QStringLiteral("スケールの設定"));
            QCOMPARE(tabOf(d).count(), 1);
            QCOMPARE(tabOf(d).tabText(0), QStringLiteral("システム"));
            CKsListCtrl& list = listOf(d);
            QCOMPARE(list.model()->headerData(0, Qt::Horizontal).toString(),
                     QStringLiteral("名称"));
            QCOMPARE(list.model()->headerData(1, Qt::Horizontal).toString(),
                     QStringLiteral("分子"));
            QCOMPARE(list.model()->headerData(2, Qt::Horizontal).toString(),
                     QStringLiteral("分母"));
            QCOMPARE(column(list, 0), QStringList({"1/100", "1/200"}));
            QVERIFY(isEnabled(d, Add));
            QVERIFY(isShown(d, Insert) && !isEnabled(d, Insert));
            QVERIFY(isShown(d, Delete) && !isEnabled(d, Delete));
            QVERIFY(!isShown(d, Register));
            QVERIFY(isShown(d, Reset));
            list.selectRow(1);
            QVERIFY(isEnabled(d, Insert) && isEnabled(d, Delete));
            click(d, IDCANCEL);
        });
        QVERIFY(!ui::config::doSystemScaleDlg(setting, CSystemScaleSetting::makeDefault()));
    }

    void addedScaleIsEditedNamedAndStoredOnOk()
    {
        test::HostFixture host;
        CSystemScaleSetting setting = scales({{1, 100}});
        ScopedModalDrivers drivers([](CKsDialog& d) {
            CKsListCtrl& list = listOf(d);
            QVERIFY(click(d, Add));
            QCOMPARE(list.getRowCount(), 2);
            QCOMPARE(list.getSelectedRow(), 1);
            QCOMPARE(column(list, 0).last(), QStringLiteral("1/1"));
            QVERIFY(list.commitCellText(1, 2, QStringLiteral("2.5")));
            QCOMPARE(list.getCellText(1, 2), QStringLiteral("2.5"));
            QCOMPARE(list.getCellText(1, 0), QStringLiteral("1/2.5"));
            QVERIFY(list.commitCellText(1, 1, QStringLiteral("３")));
            QCOMPARE(list.getCellText(1, 1), QStringLiteral("3"));
            QVERIFY(click(d, IDOK));
        });
        QVERIFY(ui::config::doSystemScaleDlg(setting, CSystemScaleSetting::makeDefault()));
        QCOMPARE(names(setting), QStringList({"1/100", "3/2.5"}));
        QCOMPARE(setting.getSystemScales()[1].numerator, 3.0);
        QCOMPARE(setting.getSystemScales()[1].denominator, 2.5);
    }

    void typedValuesAreStoredWithSixDecimalsAndShownAsStored()
    {
        test::HostFixture host;
        CSystemScaleSetting setting = scales({{1, 100}});
        ScopedModalDrivers drivers([](CKsDialog& d) {
            CKsListCtrl& list = listOf(d);
            list.commitCellText(0, 2, QStringLiteral("1.23456789"));
            QCOMPARE(list.getCellText(0, 2), QStringLiteral("1.234568"));
            list.commitCellText(0, 1, QStringLiteral("2.0000000"));
            QCOMPARE(list.getCellText(0, 1), QStringLiteral("2"));
            click(d, IDOK);
        });
        QVERIFY(ui::config::doSystemScaleDlg(setting, {}));
        QCOMPARE(setting.getSystemScales()[0].denominator, 1.234568);
        QCOMPARE(names(setting), QStringList({"2/1.234568"}));
    }

    void valuesThatAreNotAboveZeroAreRefusedWithAMessage()
    {
        test::HostFixture host;
        MessageBoxRecorder boxes;
        CSystemScaleSetting setting = scales({{1, 100}, {1, 200}});
        ScopedModalDrivers drivers([&](CKsDialog& d) {
            CKsListCtrl& list = listOf(d);
            list.commitCellText(1, 2, QStringLiteral("abc"));
            QCOMPARE(list.getCellText(1, 2), QStringLiteral("200"));
            QCOMPARE(boxes.count(), std::size_t(1));
            QCOMPARE(boxes.last().text,
                     QStringLiteral("2 行目の分母には 0 より大きい数値を入力してください。"));
            QCOMPARE(boxes.last().caption, QStringLiteral("入力値エラー"));
            list.commitCellText(0, 1, QStringLiteral("0.0000004")); // rounds to zero
            QCOMPARE(boxes.last().text,
                     QStringLiteral("1 行目の分子には 0 より大きい数値を入力してください。"));
            QCOMPARE(list.getCellText(0, 1), QStringLiteral("1"));
            list.commitCellText(0, 1, QStringLiteral("-5"));
            QCOMPARE(boxes.count(), std::size_t(3));
            click(d, IDOK);
        });
        QVERIFY(ui::config::doSystemScaleDlg(setting, {}));
        QCOMPARE(names(setting), QStringList({"1/100", "1/200"}));
    }

    void theNameColumnIsNotEditable()
    {
        test::HostFixture host;
        CSystemScaleSetting setting = scales({{1, 100}});
        ScopedModalDrivers drivers([](CKsDialog& d) {
            QVERIFY(!listOf(d).commitCellText(0, 0, QStringLiteral("好きな名前")));
            click(d, IDOK);
        });
        QVERIFY(ui::config::doSystemScaleDlg(setting, {}));
        QCOMPARE(names(setting), QStringList({"1/100"}));
    }

    void aCellIsEditedInPlaceWithTheKeyboard()
    {
        test::HostFixture host;
        CSystemScaleSetting setting = scales({{1, 100}});
        ScopedModalDrivers drivers([](CKsDialog& d) {
            CKsListCtrl& list = listOf(d);
            const QModelIndex cell = list.model()->index(0, 2);
            list.setCurrentIndex(cell);
            list.edit(cell);
            auto* editor = list.findChild<QLineEdit*>();
            QVERIFY(editor);
            editor->selectAll();
            QTest::keyClicks(editor, QStringLiteral("250"));
            QTest::keyClick(editor, Qt::Key_Return);
            QTRY_COMPARE(list.getCellText(0, 0), QStringLiteral("1/250"));
            click(d, IDOK);
        });
        QVERIFY(ui::config::doSystemScaleDlg(setting, {}));
        QCOMPARE(names(setting), QStringList({"1/250"}));
    }

    void insertAndDeleteActOnTheSelectedRow()
    {
        test::HostFixture host;
        CSystemScaleSetting setting = scales({{1, 10}, {1, 20}, {1, 50}});
        ScopedModalDrivers drivers([](CKsDialog& d) {
            CKsListCtrl& list = listOf(d);
            list.selectRow(1);
            QVERIFY(click(d, Insert));
            QCOMPARE(column(list, 0), QStringList({"1/10", "1/1", "1/20", "1/50"}));
            QCOMPARE(list.getSelectedRow(), 1);
            list.selectRow(3);
            QVERIFY(click(d, Delete));
            QCOMPARE(column(list, 0), QStringList({"1/10", "1/1", "1/20"}));
            QCOMPARE(list.getSelectedRow(), 2);
            list.clearSelection();
            QVERIFY(!click(d, Delete));
            click(d, IDOK);
        });
        QVERIFY(ui::config::doSystemScaleDlg(setting, {}));
        QCOMPARE(names(setting), QStringList({"1/10", "1/1", "1/20"}));
    }

    void resetRestoresTheDefaultsUntilOk()
    {
        test::HostFixture host;
        const CSystemScaleSetting defaults = scales({{1, 1}, {1, 1000}});
        CSystemScaleSetting setting = scales({{1, 100}});
        ScopedModalDrivers drivers;
        drivers.add([](CKsDialog& d) {
            QVERIFY(click(d, Reset));
            QCOMPARE(column(listOf(d), 0), QStringList({"1/1", "1/1000"}));
            click(d, IDCANCEL);
        });
        drivers.add([](CKsDialog& d) {
            QVERIFY(click(d, Reset));
            click(d, IDOK);
        });
        QVERIFY(!ui::config::doSystemScaleDlg(setting, defaults));
        QCOMPARE(names(setting), QStringList({"1/100"}));
        QVERIFY(ui::config::doSystemScaleDlg(setting, defaults));
        QVERIFY(setting.isSame(defaults));
    }

    void cancelDiscardsEveryEdit()
    {
        test::HostFixture host;
        CSystemScaleSetting setting = scales({{1, 100}});
        ScopedModalDrivers drivers([](CKsDialog& d) {
            click(d, Add);
            listOf(d).commitCellText(0, 2, QStringLiteral("5"));
            QTest::keyClick(&d, Qt::Key_Escape);
        });
        QVERIFY(!ui::config::doSystemScaleDlg(setting, {}));
        QCOMPARE(names(setting), QStringList({"1/100"}));
    }

    void drawingTabListsTheDrawingsScalesAndRegistersNewOnes()
    {
        test::HostFixture host;
        OpenDrawing drawing(host);
        MessageBoxRecorder boxes;
        CSystemScaleSetting setting = scales({{1, 100}});
        ScopedModalDrivers drivers([&](CKsDialog& d) {
            QCOMPARE(tabOf(d).count(), 2);
            QCOMPARE(tabOf(d).tabText(1), QStringLiteral("図面内"));
            tabOf(d).setCurrentIndex(1);
            CKsListCtrl& list = listOf(d);
            QCOMPARE(column(list, 0), QStringList({"平面 1/100", "1/600"}));
            QVERIFY(!isEnabled(d, Add));
            QVERIFY(!isEnabled(d, Insert) && !isEnabled(d, Delete));
            QVERIFY(isShown(d, Register));
            QVERIFY(!list.commitCellText(0, 2, QStringLiteral("5"))); // read only
            list.selectRow(0);
            QVERIFY(click(d, Register)); // same values, other name
            QCOMPARE(boxes.count(), std::size_t(1));
            QCOMPARE(boxes.last().text,
                     QStringLiteral("既に同じスケールがシステム設定に存在しています。"));
            QCOMPARE(boxes.last().caption, QStringLiteral("入力値エラー"));
            list.selectRow(1);
            QVERIFY(click(d, Register));
            QCOMPARE(boxes.count(), std::size_t(1));
            tabOf(d).setCurrentIndex(0);
            QCOMPARE(column(listOf(d), 0), QStringList({"1/100", "1/600"}));
            QVERIFY(!isShown(d, Register));
            click(d, IDOK);
        });
        QVERIFY(ui::config::doSystemScaleDlg(setting, {}));
        QCOMPARE(names(setting), QStringList({"1/100", "1/600"}));
        QCOMPARE(drawing.db.countElements(L"SCALE"), std::size_t(2));
    }

    void addModeWithoutAddingIsACancel()
    {
        test::HostFixture host;
        OpenDrawing drawing(host);
        CSystemScaleSetting setting = scales({{1, 100}});
        ScopedModalDrivers drivers;
        drivers.add([](CKsDialog& d) {
            QVERIFY(!isShown(d, Insert));
            QVERIFY(!isShown(d, Delete));
            QVERIFY(!isShown(d, Reset));
            tabOf(d).setCurrentIndex(1);
            QVERIFY(!isShown(d, Register));
            tabOf(d).setCurrentIndex(0);
            QVERIFY(click(d, IDOK));
        });
        drivers.add([](CKsDialog& d) {
            QVERIFY(click(d, Add));
            listOf(d).commitCellText(1, 2, QStringLiteral("300"));
            QVERIFY(click(d, IDOK));
        });
        QVERIFY(!ui::config::doSystemScaleDlgAddMode(setting));
        QCOMPARE(names(setting), QStringList({"1/100"}));
        QVERIFY(ui::config::doSystemScaleDlgAddMode(setting));
        QCOMPARE(names(setting), QStringList({"1/100", "1/300"}));
    }

    void helpOpensTheScaleTopicAndThePlacementIsKept()
    {
        test::HostFixture host;
        CSystemScaleSetting setting = scales({{1, 100}});
        QSize first;
        QSize reopened;
        ScopedModalDrivers drivers;
        drivers.add([&](CKsDialog& d) {
            QVERIFY(click(d, Help));
            first = d.size();
            QCOMPARE(d.minimumSize(), first); // cannot be made smaller than it opened
            d.resize(first + QSize(40, 30));
            click(d, IDCANCEL);
        });
        drivers.add([&](CKsDialog& d) { reopened = d.size(); });
        ui::config::doSystemScaleDlg(setting, {});
        QCOMPARE(host.helpTopics(), QStringList{QStringLiteral("DLG_HLP_SYS_SCALE")});
        core::Application::getInstance()->placements().sync();
        QSettings saved(host.path(QStringLiteral("placements.ini")), QSettings::IniFormat);
        QVERIFY(!saved.value(QStringLiteral("SystemScaleDlg/geometry")).toByteArray().isEmpty());
        ui::config::doSystemScaleDlg(setting, {});
        QCOMPARE(reopened, first + QSize(40, 30));
    }
};

QTEST_MAIN(TestScaleDlg)
#include "tst_scaledlg.moc"
