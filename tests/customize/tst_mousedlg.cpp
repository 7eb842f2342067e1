// "マウスの設定" end to end through doMouseDlg: its tabs and pages operated as a user does.
#include "support/TestSupport.h"

#include "command/CommandTable.h"
#include "config/CustomizeEntries.h"
#include "core/IMainFrame.h"
#include "customize/MouseDlg.h"
#include "customize/RightBtnPage.h"
#include "customize/SimplePage.h"
#include "framework/MessageBox.h"
#include "framework/ModalHook.h"
#include "tooltip/DlgToolTipManager.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QTabBar>
#include <QTest>

using namespace kesto;
using namespace kesto::ui::framework;
using namespace kesto::ui::config::mouserules;
using kesto::test::click;
using kesto::test::ctrl;
using kesto::test::isEnabled;
using kesto::test::tabTexts;
using ui::config::CMouseDlg;
using ui::setting::CMouseSetting;
using ui::setting::SMouseSetting;

namespace {

// The dialog's controls, then those of the right button, both buttons and wheel pages.
constexpr int ViewTab = 8041, ButtonTab = 8042, Reset = 7704, Help = 24000;
constexpr int CommandList = 8016, MenuList = 8020, ShowMenu = 8043, Recent = 8044, Separator = 8031;
constexpr int Add = 7501, Insert = 7698, Delete = 7502, Up = 7401, Down = 7503;
constexpr int RadioFirst = 8045, RadioSecond = 8046, RadioDisabled = 13495;
constexpr int LeftUp = 8049, LeftDown = 8050, RightUp = 8051, RightDown = 8052, SamePoint = 8079;
constexpr int WheelCommands = 8047, WheelRotate = 8053, WheelDrag = 8054, WheelClick = 8055;
constexpr int CtrlRotate = 8056, CtrlDrag = 8057, CtrlClick = 8058, ShiftRotate = 8059;
constexpr int ZoomRate = 8060, WheelUp = 8061, WheelDown = 8062;

const utility::CCommandTable& table()
{
    static const utility::CCommandTable commands =
        test::commandTable(QStringLiteral(R"(<CommandTable><Group name="g">
            <Command number="1" id="ID_EDIT_UNDO" name="元に戻す"/>
            <Command number="2" id="ID_EDIT_ERASE" name="削除"/>
            <Command number="3" id="ID_EDIT_PASTE" name="貼り付け"/>
            <Command number="4" id="ID_VIEW_SELECT_RANGE_DISPLAY" name="範囲を指定して表示"/>
            <Command number="5" id="ID_VIEW_REDRAW" name="再描画"/>
            <Command number="6" id="ID_VIEW_ZOOM_ALL" name="全体表示"/>
            <Command number="7" id="ID_VIEW_3D_TOP" name="上面" frames="3d"/>
            </Group></CommandTable>)"));
    return commands;
}

// A host with a candidate file in its folder.
struct Host : test::HostFixture {
    QString candidates = path(QStringLiteral("mousecommands.xml"));
    Host()
    {
        test::writeFile(candidates, R"(<MouseCommands><Commands view="2DView">
          <Menu><Command id="ID_EDIT_UNDO"/><Command id="ID_EDIT_ERASE"/><Command id="ID_EDIT_PASTE"/>
                <Command id="ID_VIEW_SELECT_RANGE_DISPLAY"/></Menu>
          <Action><Command id="ID_VIEW_REDRAW"/><Command id="ID_VIEW_ZOOM_ALL"/>
                  <Command id="ID_EDIT_UNDO"/></Action></Commands>
          <Commands view="3DView">
            <Menu><Command id="ID_VIEW_3D_TOP"/><Command id="ID_VIEW_REDRAW"/></Menu>
          </Commands></MouseCommands>)");
    }
    bool run(CMouseSetting& setting, const CMouseSetting& defaults = CMouseSetting::makeDefault())
    {
        return ui::config::doMouseDlg(setting, defaults, candidates.toStdWString().c_str(),
                                      &table());
    }
};

// A main frame that answers the dialog's questions as told, installed for a scope.
struct Frame : core::IMainFrame {
    bool twoDimensionalOnly = false;
    QStringList names;
    Frame() { core::Application::getInstance()->setMainFrame(this); }
    ~Frame() override { core::Application::getInstance()->setMainFrame(nullptr); }
    QWidget* getWidget() const override { return nullptr; }
    EFrameMode getFrameMode() const override { return FrameMode2D; }
    bool isTwoDimensionalOnly() const override { return twoDimensionalOnly; }
    QString getViewName(int index) const override { return names.value(index); }
};

CMouseDlg& mouseDlg(CKsDialog& d)
{
    return dynamic_cast<CMouseDlg&>(d);
}
CKsDialog& page(CKsDialog& d, EPage p)
{
    return *mouseDlg(d).page(p);
}
QComboBox& combo(CKsDialog& p, int id)
{
    return ctrl<QComboBox>(p, id);
}
QStringList rows(CKsDialog& p, int id)
{
    const auto& list = ctrl<QListWidget>(p, id);
    QStringList out;
    for (int i = 0; i < list.count(); ++i)
        out << list.item(i)->text();
    return out;
}
void check(CKsDialog& p, int id, bool on)
{
    auto& box = ctrl<QAbstractButton>(p, id);
    if (box.isChecked() != on)
        QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(8, box.height() / 2));
}
bool checked(CKsDialog& p, int id)
{
    return ctrl<QAbstractButton>(p, id).isChecked();
}

// Every field of the 2-D view set away from the defaults, in values the pages can show.
SMouseSetting full2D()
{
    SMouseSetting v;
    v.showShortcutMenu = false;
    v.shortcutMenu.addCommandId(L"ID_EDIT_ERASE");
    v.shortcutMenu.addCommandId(L"ID_EDIT_UNDO", true);
    v.shortcutMenu.setRecentCommand(false);
    v.bothButtonsAction = 2;
    v.samePointCommand = L"ID_EDIT_UNDO";
    v.leftUpCommand = L"ID_VIEW_ZOOM_ALL";
    v.rightUpCommand = L"ID_VIEW_REDRAW";
    v.rightDownCommand = L"ID_VIEW_ZOOM_ALL";
    v.wheelCommands = false;
    v.wheelRotate = 3;
    v.wheelDrag = 4;
    v.wheelClick = L"ID_VIEW_REDRAW";
    v.ctrlWheelRotate = 1;
    v.ctrlWheelDrag = 2;
    v.ctrlWheelClick = L"ID_EDIT_UNDO";
    v.shiftWheelRotate = 2;
    v.stepZoomRate = 0.375;
    v.wheelUpZoomsIn = false;
    v.leftDragAction = 77; // not on a 2-D page: left alone
    return v;
}

SMouseSetting full3D()
{
    SMouseSetting v;
    v.showShortcutMenu = false;
    v.shortcutMenu.addCommandId(L"ID_VIEW_3D_TOP");
    v.leftDragAction = 2;
    v.bothButtonsAction = 3;
    v.wheelRotate = 4;
    v.wheelClick = L"ID_NOT_ON_A_3D_PAGE";
    v.stepZoomRate = 9.0;
    return v;
}

CMouseSetting fullSetting()
{
    CMouseSetting setting;
    setting.setMouseSetting(CMouseSetting::k2DView, full2D());
    setting.setMouseSetting(CMouseSetting::k3DView, full3D());
    return setting;
}

} // namespace

class TestMouseDlg : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(ui::tooltip::ToolTipCatalog::instance().loadXML(
            QStringLiteral(KS_SOURCE_DIR "/app/resources/tooltips.xml")));
    }

    // One view tab at start, the 2-D pages by the button tabs, the 3-D ones when the host
    // offers a second view; the help topic of the page on show.
    void tabsShowTheirPages()
    {
        Host host;
        CMouseSetting setting = CMouseSetting::makeDefault();
        ScopedModalDrivers drivers([&](CKsDialog& d) {
            QCOMPARE(d.windowTitle(), QStringLiteral("マウスの設定"));
            QTabBar& views = ctrl<QTabBar>(d, ViewTab);
            QTabBar& buttons = ctrl<QTabBar>(d, ButtonTab);
            QCOMPARE(tabTexts(views), QStringList{"2Dビュー"});
            QCOMPARE(tabTexts(buttons), QStringList({"右ボタン", "左右ボタン", "ホイール"}));
            QCOMPARE(mouseDlg(d).shownPage(), Right2D);
            QCOMPARE(core::Application::getInstance()->dialogs().find("MouseDlg"), &d);
            CKsDialog& right = page(d, Right2D);
            QCOMPARE(rows(right, CommandList),
                     QStringList({"元に戻す", "削除 ※", "貼り付け", "表示範囲"}));
            QVERIFY(!right.GetDlgItem(ShowMenu)->toolTip().isEmpty());
            buttons.setCurrentIndex(1);
            QCOMPARE(mouseDlg(d).shownPage(), Both2D);
            QVERIFY(page(d, Both2D).isVisible() && page(d, Both2D).isEnabled());
            QVERIFY(!right.isVisible() && !right.isEnabled());
            QCOMPARE(test::itemTexts(combo(page(d, Both2D), LeftUp)),
                     QStringList({"なし", "再描画", "全体表示", "元に戻す"}));
            QVERIFY(click(d, Help));
            // Choices enable their combos; "↑" and "↓" name opposite actions.
            CKsDialog& both = page(d, Both2D);
            for (int radio : {RadioSecond, RadioDisabled, RadioFirst}) {
                ctrl<QRadioButton>(both, radio).setChecked(true);
                for (int id : {LeftUp, LeftDown, SamePoint, RightUp, RightDown})
                    QCOMPARE(combo(both, id).isEnabled(), radio == RadioFirst);
            }
            CKsDialog& wheel = page(d, Wheel2D);
            buttons.setCurrentIndex(2);
            for (bool on : {false, true}) {
                check(wheel, WheelCommands, on);
                for (int id : {WheelRotate, WheelDrag, WheelClick, CtrlRotate, CtrlDrag, CtrlClick,
                               ShiftRotate})
                    QCOMPARE(combo(wheel, id).isEnabled(), on);
                QVERIFY(isEnabled(wheel, ZoomRate) && isEnabled(wheel, WheelUp)
                        && isEnabled(wheel, WheelDown));
            }
            combo(wheel, WheelUp).setCurrentIndex(0);
            QCOMPARE(combo(wheel, WheelDown).currentText(), QStringLiteral("拡大"));
            combo(wheel, WheelDown).setCurrentIndex(1);
            QCOMPARE(combo(wheel, WheelUp).currentText(), QStringLiteral("拡大"));

            views.addTab(QStringLiteral("3D"));
            views.setCurrentIndex(1);
            QCOMPARE(tabTexts(buttons),
                     QStringList({"右ボタン", "左ボタン", "左右ボタン", "ホイール"}));
            QCOMPARE(mouseDlg(d).shownPage(), Right3D);
            QCOMPARE(rows(page(d, Right3D), CommandList), QStringList({"上面", "再描画"}));
            const std::pair<EPage, QString> groups[] = {
                {Left3D, "ドラッグ時"}, {Both3D, "ドラッグ時"}, {Wheel3D, "回転時"}};
            for (int i = 1; i <= 3; ++i) {
                buttons.setCurrentIndex(i);
                const auto& [shown, title] = groups[i - 1];
                QCOMPARE(mouseDlg(d).shownPage(), shown);
                QCOMPARE(ctrl<QGroupBox>(page(d, shown), 8048).title(), title);
            }
            auto& left = static_cast<ui::config::CSimplePage&>(page(d, Left3D));
            QCOMPARE(ctrl<QRadioButton>(left, RadioFirst).text(), QStringLiteral("回転"));
            QVERIFY(left.isFirstChosen()); // the default rotates
            left.chooseFirst(false);
            auto& wheel3D = static_cast<ui::config::CSimplePage&>(page(d, Wheel3D));
            QCOMPARE(ctrl<QRadioButton>(wheel3D, RadioSecond).text(),
                     QStringLiteral("Ｘ軸まわりに回転"));
            wheel3D.chooseFirst(false);
            views.setCurrentIndex(0);
            QCOMPARE(buttons.count(), 3);
            QCOMPARE(mouseDlg(d).shownPage(), Right2D);
            test::pressOk(d);
        });
        QVERIFY(host.run(setting));
        QCOMPARE(host.helpTopics(), QStringList{"DLG_HLP_SET_MOUSE_RLBUTTON"});
        QVERIFY(!core::Application::getInstance()->dialogs().find("MouseDlg"));
        const SMouseSetting& out = *setting.getMouseSetting(L"3DView");
        QCOMPARE((std::array{out.leftDragAction, out.bothButtonsAction, out.wheelRotate}),
                 (std::array{2, 2, 4}));
    }

    void everyFieldRoundTripsUntouched()
    {
        Host host;
        CMouseSetting setting = fullSetting();
        ScopedModalDrivers drivers([](CKsDialog& d) {
            CKsDialog& both = page(d, Both2D);
            QVERIFY(checked(both, RadioSecond));
            QCOMPARE(combo(both, LeftUp).currentText(), QStringLiteral("全体表示"));
            QCOMPARE(combo(both, LeftDown).currentIndex(), 0);
            CKsDialog& wheel = page(d, Wheel2D);
            QCOMPARE(combo(wheel, WheelRotate).currentText(),
                     QStringLiteral("ツールパネルモード変更"));
            QCOMPARE(combo(wheel, CtrlDrag).currentText(), QStringLiteral("スムーズスクロール"));
            QCOMPARE(ctrl<QLineEdit>(wheel, ZoomRate).text(), QStringLiteral("37.5"));
            QCOMPARE(combo(wheel, WheelUp).currentText(), QStringLiteral("縮小"));
            QCOMPARE(combo(wheel, WheelDown).currentText(), QStringLiteral("拡大"));
            test::pressOk(d);
        });
        QVERIFY(host.run(setting));
        QVERIFY(*setting.getMouseSetting(L"2DView") == full2D());
        QVERIFY(*setting.getMouseSetting(L"3DView") == full3D());
    }

    // The default setting's controls turned to the values of full2D() store full2D().
    void everyTwoDimensionalControlIsStored()
    {
        Host host;
        CMouseSetting setting = CMouseSetting::makeDefault();
        SMouseSetting expected = full2D();
        const SMouseSetting& start = *setting.getMouseSetting(L"2DView");
        expected.shortcutMenu = start.shortcutMenu;
        expected.shortcutMenu.setRecentCommand(false);
        expected.leftDragAction = start.leftDragAction;
        ScopedModalDrivers drivers([](CKsDialog& d) {
            check(page(d, Right2D), ShowMenu, false);
            check(page(d, Right2D), Recent, false);
            ctrl<QRadioButton>(page(d, Both2D), RadioSecond).setChecked(true);
            const std::pair<int, int> corners[] = {
                {LeftUp, 2}, {LeftDown, 0}, {SamePoint, 3}, {RightUp, 1}, {RightDown, 2}};
            for (auto [id, index] : corners)
                combo(page(d, Both2D), id).setCurrentIndex(index);
            ctrl<QTabBar>(d, ButtonTab).setCurrentIndex(2);
            CKsDialog& wheel = page(d, Wheel2D);
            check(wheel, WheelCommands, false);
            const std::pair<int, int> wheels[] = {
                {WheelRotate, 3}, {CtrlRotate, 1}, {ShiftRotate, 2}, {WheelDrag, 2},
                {CtrlDrag, 1},    {WheelClick, 1}, {CtrlClick, 3},   {WheelDown, 0}};
            for (auto [id, index] : wheels)
                combo(wheel, id).setCurrentIndex(index); // "↓" enlarges: "↑" shrinks
            auto& rate = ctrl<QLineEdit>(wheel, ZoomRate);
            rate.selectAll();
            QTest::keyClicks(&rate, QStringLiteral("37.5"));
            test::pressOk(d);
        });
        QVERIFY(host.run(setting));
        QVERIFY(*setting.getMouseSetting(L"2DView") == expected);
    }

    void theShortcutMenuIsEditedWithItsButtons()
    {
        Host host;
        CMouseSetting setting;
        SMouseSetting view;
        view.shortcutMenu.addCommandId(L"ID_EDIT_UNDO");
        view.shortcutMenu.addCommandId(L"ID_EDIT_PASTE", true);
        setting.setMouseSetting(CMouseSetting::k2DView, view);
        ScopedModalDrivers drivers([](CKsDialog& d) {
            CKsDialog& right = page(d, Right2D);
            auto& commands = ctrl<QListWidget>(right, CommandList);
            auto& menu = ctrl<QListWidget>(right, MenuList);
            QCOMPARE(menu.count(), 3); // the stored break is an item of its own
            QVERIFY(!isEnabled(right, Add) && !isEnabled(right, Delete));
            commands.setCurrentRow(1); // 削除 ※
            QVERIFY(isEnabled(right, Add) && !isEnabled(right, Insert));
            QVERIFY(click(right, Add));
            QCOMPARE(menu.currentItem()->text(), QStringLiteral("削除 ※"));
            QCOMPARE(menu.currentRow(), 3);
            QVERIFY(!isEnabled(right, Down) && isEnabled(right, Up));
            QVERIFY(click(right, Add)); // refused: the menu holds it
            QCOMPARE(menu.count(), 4);
            commands.setCurrentRow(3); // 表示範囲
            menu.setCurrentRow(0);
            QVERIFY(click(right, Insert));
            QVERIFY(click(right, Down));
            QCOMPARE(menu.currentItem()->text(), QStringLiteral("表示範囲"));
            QCOMPARE(menu.currentRow(), 1);
            QVERIFY(click(right, Separator)); // before 表示範囲
            QVERIFY(click(right, Up));
            QVERIFY(!click(right, Up));    // first now
            QVERIFY(click(right, Delete)); // the separator again
            menu.setCurrentRow(2);         // the stored break
            QVERIFY(click(right, Delete));
            menu.setCurrentRow(0);
            QVERIFY(click(right, Separator));
            QCOMPARE(rows(right, MenuList).mid(1),
                     QStringList({"元に戻す", "表示範囲", "貼り付け", "削除 ※"}));
            test::pressOk(d);
        });
        QVERIFY(host.run(setting));
        // The leading separator cannot stand in a menu; the break before 貼り付け is gone.
        const auto& menu = setting.getMouseSetting(L"2DView")->shortcutMenu;
        QStringList ids;
        for (const auto& item : menu.items())
            ids << QString::fromStdWString(item.id) + (item.breakBefore ? "^" : "");
        QCOMPARE(ids, QStringList({"ID_EDIT_UNDO", "ID_VIEW_SELECT_RANGE_DISPLAY", "ID_EDIT_PASTE",
                                   "ID_EDIT_ERASE"}));
        QCOMPARE(menu.getItem(1)->commandNumber, 4);
    }

    // The tab takes the host's names; a 2-D host leaves the 3-D record exactly as it came.
    void aTwoDimensionalHostLeavesTheThreeDimensionalRecordAlone()
    {
        Host host;
        Frame frame;
        frame.twoDimensionalOnly = true;
        frame.names = {QStringLiteral("平面図モード"), QStringLiteral("3D"),
                       QStringLiteral("縦断図")};
        CMouseSetting setting = fullSetting();
        SMouseSetting& view3D = *setting.getMouseSetting(L"3DView");
        view3D.leftDragAction = view3D.bothButtonsAction = view3D.wheelRotate = 0;
        const SMouseSetting before3D = view3D;
        ScopedModalDrivers drivers([](CKsDialog& d) {
            QCOMPARE(ctrl<QTabBar>(d, ViewTab).tabText(0), QStringLiteral("平面図/縦断図"));
            QVERIFY(mouseDlg(d).isTwoDimensionalOnly());
            for (EPage p : {Right3D, Left3D, Both3D, Wheel3D})
                QVERIFY(!mouseDlg(d).page(p));
            check(page(d, Right2D), ShowMenu, true);
            test::pressOk(d);
        });
        QVERIFY(host.run(setting));
        QVERIFY(*setting.getMouseSetting(L"3DView") == before3D);
        QVERIFY(setting.getMouseSetting(L"2DView")->showShortcutMenu);
    }

    void resetAsksThenReloadsAndCancelKeepsTheCallersSetting()
    {
        Host host;
        MessageBoxRecorder boxes;
        CMouseSetting defaults = CMouseSetting::makeDefault(); // with candidates at the corners
        SMouseSetting& corners = *defaults.getMouseSetting(L"2DView");
        corners.leftUpCommand = L"ID_VIEW_ZOOM_ALL";
        corners.leftDownCommand = L"ID_EDIT_UNDO";
        corners.rightUpCommand = corners.rightDownCommand = corners.samePointCommand = L"";
        const CMouseSetting original = fullSetting();
        CMouseSetting setting = original;
        ScopedModalDrivers drivers;
        drivers.add([&](CKsDialog& d) {
            boxes.answerNext(IDCANCEL);
            QVERIFY(click(d, Reset));
            QCOMPARE(boxes.count(), std::size_t(1));
            QCOMPARE(test::lastBox(boxes),
                     QStringLiteral("設定初期化|マウスの設定を初期化します。\nよろしいですか？"));
            QCOMPARE(boxes.last().type, unsigned(MB_OKCANCEL | MB_ICONQUESTION));
            QVERIFY(checked(page(d, Both2D), RadioSecond));
            QVERIFY(click(d, Reset)); // answered with OK
            QVERIFY(checked(page(d, Both2D), RadioFirst));
            QCOMPARE(combo(page(d, Wheel2D), WheelDrag).currentText(),
                     QStringLiteral("スムーズスクロール"));
            QVERIFY(checked(page(d, Right2D), ShowMenu));
            test::pressCancel(d);
        });
        drivers.add([&](CKsDialog& d) {
            QVERIFY(click(d, Reset));
            test::pressOk(d);
        });
        QVERIFY(!host.run(setting, defaults));
        QVERIFY(setting.isSame(original));
        QVERIFY(host.run(setting, defaults));
        QVERIFY(setting.isSame(defaults));
    }

    // No candidate file: empty lists; no 2-D record: none is written.
    void missingCandidatesAndViewRecordsAreNeitherLoadedNorWritten()
    {
        Host host;
        CMouseSetting setting;
        setting.setMouseSetting(CMouseSetting::k3DView, full3D());
        ScopedModalDrivers drivers([](CKsDialog& d) {
            QCOMPARE(ctrl<QListWidget>(page(d, Right2D), CommandList).count(), 0);
            QCOMPARE(test::itemTexts(combo(page(d, Wheel2D), WheelClick)), QStringList{"なし"});
            test::pressOk(d);
        });
        QVERIFY(ui::config::doMouseDlg(setting, setting, L"/nonexistent/mouse.xml", &table()));
        QVERIFY(!setting.getMouseSetting(L"2DView"));
        QCOMPARE(setting.viewCount(), std::size_t(1));
        QVERIFY(!ui::config::doMouseDlg(setting, setting, nullptr, nullptr));
        QCOMPARE(drivers.pending(), std::size_t(0));
    }

    void aDialogWithoutItsTabStripsTellsAndEnds()
    {
        Host host;
        MessageBoxRecorder boxes;
        ResourceSwitch resources(ui::config::libraryResourceHandle());
        CMouseDlg dlg;
        delete dlg.GetDlgItem(ButtonTab);
        ScopedModalDrivers drivers([](CKsDialog&) { QFAIL("the dialog must not run"); });
        QVERIFY(dlg.DoModal() != IDOK);
        QCOMPARE(boxes.count(), std::size_t(1));
        QCOMPARE(test::lastBox(boxes),
                 QStringLiteral("マウスの設定|マウスの設定ダイアログ作成に失敗しました。"));
    }
};

QTEST_MAIN(TestMouseDlg)
#include "tst_mousedlg.moc"
