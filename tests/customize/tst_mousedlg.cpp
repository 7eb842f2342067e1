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
using kesto::test::click;
using kesto::test::isEnabled;
using ui::config::CMouseDlg;
using ui::config::CMousePage;
using ui::setting::CMouseSetting;
using ui::setting::SMouseSetting;
namespace mouserules = ui::config::mouserules;

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

const char* const kCandidateFile = R"(<MouseCommands>
    <Commands view="2DView">
      <Menu><Command id="ID_EDIT_UNDO"/><Command id="ID_EDIT_ERASE"/><Command id="ID_EDIT_PASTE"/>
            <Command id="ID_VIEW_SELECT_RANGE_DISPLAY"/></Menu>
      <Action><Command id="ID_VIEW_REDRAW"/><Command id="ID_VIEW_ZOOM_ALL"/>
              <Command id="ID_EDIT_UNDO"/></Action>
    </Commands>
    <Commands view="3DView">
      <Menu><Command id="ID_VIEW_3D_TOP"/><Command id="ID_VIEW_REDRAW"/></Menu>
    </Commands></MouseCommands>)";

// A host with a candidate file in its folder.
struct Host : test::HostFixture {
    QString candidates = path(QStringLiteral("mousecommands.xml"));
    Host() { test::writeFile(candidates, kCandidateFile); }
    bool run(CMouseSetting& setting, const CMouseSetting& defaults = CMouseSetting::makeDefault())
    {
        return ui::config::doMouseDlg(setting, defaults, candidates.toStdWString().c_str(),
                                      &table());
    }
};

// A main frame that answers the dialog's questions as told.
struct Frame : core::IMainFrame {
    EFrameMode mode = FrameMode2D;
    bool twoDimensionalOnly = false;
    QStringList names;
    QWidget* getWidget() const override { return nullptr; }
    EFrameMode getFrameMode() const override { return mode; }
    bool isTwoDimensionalOnly() const override { return twoDimensionalOnly; }
    QString getViewName(int index) const override { return names.value(index); }
};
struct FrameInstalled {
    Frame frame;
    FrameInstalled() { core::Application::getInstance()->setMainFrame(&frame); }
    ~FrameInstalled() { core::Application::getInstance()->setMainFrame(nullptr); }
};

CMouseDlg& mouseDlg(CKsDialog& d)
{
    return dynamic_cast<CMouseDlg&>(d);
}
CMousePage& page(CKsDialog& d, mouserules::EPage p)
{
    return *mouseDlg(d).page(p);
}
QTabBar& tab(CKsDialog& d, int id)
{
    return *d.dlgItem<QTabBar>(id);
}
QStringList tabTexts(QTabBar& bar)
{
    QStringList out;
    for (int i = 0; i < bar.count(); ++i)
        out << bar.tabText(i);
    return out;
}
QStringList rows(QListWidget& list)
{
    QStringList out;
    for (int i = 0; i < list.count(); ++i)
        out << list.item(i)->text();
    return out;
}
QListWidget& listOf(CMousePage& p, int id)
{
    return *p.dlgItem<QListWidget>(id);
}
QComboBox& comboOf(CMousePage& p, int id)
{
    return *p.dlgItem<QComboBox>(id);
}
void check(CMousePage& p, int id, bool on)
{
    auto* box = p.dlgItem<QAbstractButton>(id);
    if (box->isChecked() != on)
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
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
    v.leftDownCommand = L"";
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

    void opensOnTheRightButtonOfTheOneViewTab()
    {
        Host host;
        CMouseSetting setting = CMouseSetting::makeDefault();
        ScopedModalDrivers drivers([&](CKsDialog& d) {
            QCOMPARE(d.windowTitle(), QStringLiteral("マウスの設定"));
            QCOMPARE(tabTexts(tab(d, ViewTab)), QStringList{"2Dビュー"});
            QCOMPARE(tabTexts(tab(d, ButtonTab)),
                     QStringList({"右ボタン", "左右ボタン", "ホイール"}));
            QCOMPARE(mouseDlg(d).shownPage(), mouserules::Right2D);
            QVERIFY(page(d, mouserules::Right2D).isVisible());
            QVERIFY(!page(d, mouserules::Both2D).isVisible());
            QCOMPARE(core::Application::getInstance()->dialogs().find("MouseDlg"), &d);
            CMousePage& right = page(d, mouserules::Right2D);
            QCOMPARE(rows(listOf(right, CommandList)),
                     QStringList({"元に戻す", "削除 ※", "貼り付け", "表示範囲"}));
            QVERIFY(!right.dlgItem<QWidget>(ShowMenu)->toolTip().isEmpty());
            tab(d, ButtonTab).setCurrentIndex(1);
            QCOMPARE(mouseDlg(d).shownPage(), mouserules::Both2D);
            QVERIFY(page(d, mouserules::Both2D).isVisible()
                    && page(d, mouserules::Both2D).isEnabled());
            QVERIFY(!page(d, mouserules::Right2D).isVisible()
                    && !page(d, mouserules::Right2D).isEnabled());
            QCOMPARE(comboOf(page(d, mouserules::Both2D), LeftUp).itemText(0),
                     QStringLiteral("なし"));
            QCOMPARE(comboOf(page(d, mouserules::Both2D), LeftUp).count(), 4);
            QVERIFY(click(d, Help)); // the topic of the page on show
            test::pressCancel(d);
        });
        QVERIFY(!host.run(setting));
        QCOMPARE(host.helpTopics(), QStringList{"DLG_HLP_SET_MOUSE_RLBUTTON"});
        QVERIFY(!core::Application::getInstance()->dialogs().find("MouseDlg"));
    }

    void everyFieldRoundTripsUntouched()
    {
        Host host;
        const CMouseSetting original = fullSetting();
        CMouseSetting setting = original;
        ScopedModalDrivers drivers([](CKsDialog& d) {
            CMousePage& both = page(d, mouserules::Both2D);
            QVERIFY(both.dlgItem<QRadioButton>(RadioSecond)->isChecked());
            QCOMPARE(comboOf(both, LeftUp).currentText(), QStringLiteral("全体表示"));
            QCOMPARE(comboOf(both, LeftDown).currentIndex(), 0);
            CMousePage& wheel = page(d, mouserules::Wheel2D);
            QCOMPARE(comboOf(wheel, WheelRotate).currentText(),
                     QStringLiteral("ツールパネルモード変更"));
            QCOMPARE(comboOf(wheel, CtrlDrag).currentText(), QStringLiteral("スムーズスクロール"));
            QCOMPARE(wheel.dlgItem<QLineEdit>(ZoomRate)->text(), QStringLiteral("37.5"));
            QCOMPARE(comboOf(wheel, WheelUp).currentText(), QStringLiteral("縮小"));
            QCOMPARE(comboOf(wheel, WheelDown).currentText(), QStringLiteral("拡大"));
            test::pressOk(d);
        });
        QVERIFY(host.run(setting));
        QVERIFY(*setting.getMouseSetting(L"2DView") == full2D());
        QVERIFY(*setting.getMouseSetting(L"3DView") == full3D());
    }

    void everyTwoDimensionalControlIsStored()
    {
        Host host;
        CMouseSetting setting = CMouseSetting::makeDefault();
        ScopedModalDrivers drivers([](CKsDialog& d) {
            CMousePage& right = page(d, mouserules::Right2D);
            check(right, ShowMenu, false);
            check(right, Recent, false);
            CMousePage& both = page(d, mouserules::Both2D);
            both.dlgItem<QRadioButton>(RadioFirst)->setChecked(true);
            comboOf(both, LeftUp).setCurrentIndex(3);
            comboOf(both, LeftDown).setCurrentIndex(2);
            comboOf(both, SamePoint).setCurrentIndex(0);
            comboOf(both, RightUp).setCurrentIndex(1);
            comboOf(both, RightDown).setCurrentIndex(3);
            tab(d, ButtonTab).setCurrentIndex(2);
            CMousePage& wheel = page(d, mouserules::Wheel2D);
            check(wheel, WheelCommands, false);
            comboOf(wheel, WheelRotate).setCurrentIndex(2);
            comboOf(wheel, CtrlRotate).setCurrentIndex(3);
            comboOf(wheel, ShiftRotate).setCurrentIndex(1);
            comboOf(wheel, WheelDrag).setCurrentIndex(2);
            comboOf(wheel, CtrlDrag).setCurrentIndex(0);
            comboOf(wheel, WheelClick).setCurrentIndex(1);
            comboOf(wheel, CtrlClick).setCurrentIndex(2);
            auto* rate = wheel.dlgItem<QLineEdit>(ZoomRate);
            rate->selectAll();
            QTest::keyClicks(rate, QStringLiteral("150"));
            comboOf(wheel, WheelDown).setCurrentIndex(0); // "拡大" going down: "↑" shrinks
            test::pressOk(d);
        });
        QVERIFY(host.run(setting));
        const SMouseSetting& v = *setting.getMouseSetting(L"2DView");
        QVERIFY(!v.showShortcutMenu);
        QVERIFY(!v.shortcutMenu.isRecentCommand());
        QCOMPARE(v.bothButtonsAction, 1);
        QCOMPARE(v.leftUpCommand, std::wstring(L"ID_EDIT_UNDO"));
        QCOMPARE(v.leftDownCommand, std::wstring(L"ID_VIEW_ZOOM_ALL"));
        QCOMPARE(v.samePointCommand, std::wstring());
        QCOMPARE(v.rightUpCommand, std::wstring(L"ID_VIEW_REDRAW"));
        QCOMPARE(v.rightDownCommand, std::wstring(L"ID_EDIT_UNDO"));
        QVERIFY(!v.wheelCommands);
        QCOMPARE(v.wheelRotate, 2);
        QCOMPARE(v.ctrlWheelRotate, 3);
        QCOMPARE(v.shiftWheelRotate, 1);
        QCOMPARE(v.wheelDrag, 4);
        QCOMPARE(v.ctrlWheelDrag, 0);
        QCOMPARE(v.wheelClick, std::wstring(L"ID_VIEW_REDRAW"));
        QCOMPARE(v.ctrlWheelClick, std::wstring(L"ID_VIEW_ZOOM_ALL"));
        QCOMPARE(v.stepZoomRate, 1.5);
        QVERIFY(!v.wheelUpZoomsIn);
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
            auto& right = page(d, mouserules::Right2D);
            QListWidget& commands = listOf(right, CommandList);
            QListWidget& menu = listOf(right, MenuList);
            QCOMPARE(rows(menu).size(), 3); // the stored break is an item of its own
            QCOMPARE(rows(menu)[0], QStringLiteral("元に戻す"));
            QCOMPARE(rows(menu)[2], QStringLiteral("貼り付け"));
            QVERIFY(!isEnabled(right, Add) && !isEnabled(right, Delete));
            commands.setCurrentRow(1); // 削除 ※
            QVERIFY(isEnabled(right, Add) && !isEnabled(right, Insert));
            QVERIFY(click(right, Add));
            QCOMPARE(rows(menu).last(), QStringLiteral("削除 ※"));
            QCOMPARE(menu.currentRow(), 3);
            QVERIFY(!isEnabled(right, Down) && isEnabled(right, Up));
            QVERIFY(click(right, Add)); // refused: the menu holds it
            QCOMPARE(menu.count(), 4);
            commands.setCurrentRow(3); // 表示範囲
            menu.setCurrentRow(0);
            QVERIFY(!isEnabled(right, Up));
            QVERIFY(click(right, Insert));
            QCOMPARE(rows(menu)[0], QStringLiteral("表示範囲"));
            QVERIFY(click(right, Down));
            QCOMPARE(rows(menu)[1], QStringLiteral("表示範囲"));
            QCOMPARE(menu.currentRow(), 1);
            QVERIFY(click(right, Separator)); // before 表示範囲
            QVERIFY(click(right, Up));
            QVERIFY(!click(right, Up));    // first now
            QVERIFY(click(right, Delete)); // the separator again
            menu.setCurrentRow(2);         // the stored break
            QVERIFY(click(right, Delete));
            menu.setCurrentRow(0);
            QVERIFY(click(right, Separator));
            const QStringList expected = {QString(), "元に戻す", "表示範囲", "貼り付け", "削除 ※"};
            QCOMPARE(rows(menu).size(), expected.size());
            for (int i = 1; i < expected.size(); ++i)
                QCOMPARE(rows(menu)[i], expected[i]);
            test::pressOk(d);
        });
        QVERIFY(host.run(setting));
        const ui::control::CContextMenuData& menu =
            setting.getMouseSetting(L"2DView")->shortcutMenu;
        QCOMPARE(menu.getCount(), 4); // the leading separator cannot stand in a menu
        QCOMPARE(menu.getItem(0)->id, std::wstring(L"ID_EDIT_UNDO"));
        QCOMPARE(menu.getItem(1)->id, std::wstring(L"ID_VIEW_SELECT_RANGE_DISPLAY"));
        QCOMPARE(menu.getItem(1)->commandNumber, 4);
        QCOMPARE(menu.getItem(2)->id, std::wstring(L"ID_EDIT_PASTE"));
        QVERIFY(!menu.getItem(2)->breakBefore);
        QCOMPARE(menu.getItem(3)->id, std::wstring(L"ID_EDIT_ERASE"));
        for (int i = 0; i < 4; ++i)
            QCOMPARE(menu.getItem(i)->type, ui::control::SContextMenuDataItem::Command);
    }

    void choicesEnableTheirCombos()
    {
        Host host;
        CMouseSetting setting = CMouseSetting::makeDefault();
        ScopedModalDrivers drivers([](CKsDialog& d) {
            tab(d, ButtonTab).setCurrentIndex(1);
            CMousePage& both = page(d, mouserules::Both2D);
            for (int radio : {RadioSecond, RadioDisabled, RadioFirst}) {
                both.dlgItem<QRadioButton>(radio)->setChecked(true);
                for (int combo : {LeftUp, LeftDown, SamePoint, RightUp, RightDown})
                    QCOMPARE(comboOf(both, combo).isEnabled(), radio == RadioFirst);
            }
            CMousePage& wheel = page(d, mouserules::Wheel2D);
            tab(d, ButtonTab).setCurrentIndex(2);
            for (bool on : {false, true}) {
                check(wheel, WheelCommands, on);
                for (int combo : {WheelRotate, WheelDrag, WheelClick, CtrlRotate, CtrlDrag,
                                  CtrlClick, ShiftRotate})
                    QCOMPARE(comboOf(wheel, combo).isEnabled(), on);
                QVERIFY(wheel.dlgItem<QLineEdit>(ZoomRate)->isEnabled());
                QVERIFY(comboOf(wheel, WheelUp).isEnabled()
                        && comboOf(wheel, WheelDown).isEnabled());
            }
            // "↑" and "↓" name opposite actions.
            comboOf(wheel, WheelUp).setCurrentIndex(0);
            QCOMPARE(comboOf(wheel, WheelDown).currentText(), QStringLiteral("拡大"));
            comboOf(wheel, WheelDown).setCurrentIndex(1);
            QCOMPARE(comboOf(wheel, WheelUp).currentText(), QStringLiteral("拡大"));
            test::pressCancel(d);
        });
        host.run(setting);
    }

    void aSecondViewTabShowsTheThreeDimensionalPages()
    {
        Host host;
        CMouseSetting setting = CMouseSetting::makeDefault();
        ScopedModalDrivers drivers([](CKsDialog& d) {
            QTabBar& views = tab(d, ViewTab);
            views.addTab(QStringLiteral("3D")); // the host offers the second view
            views.setCurrentIndex(1);
            QCOMPARE(tabTexts(tab(d, ButtonTab)),
                     QStringList({"右ボタン", "左ボタン", "左右ボタン", "ホイール"}));
            QCOMPARE(mouseDlg(d).shownPage(), mouserules::Right3D);
            QCOMPARE(rows(listOf(page(d, mouserules::Right3D), CommandList)),
                     QStringList({"上面", "再描画"}));
            const std::pair<mouserules::EPage, QString> groups[] = {
                {mouserules::Left3D, "ドラッグ時"},
                {mouserules::Both3D, "ドラッグ時"},
                {mouserules::Wheel3D, "回転時"}};
            for (int i = 1; i <= 3; ++i) {
                tab(d, ButtonTab).setCurrentIndex(i);
                const auto& [shown, title] = groups[i - 1];
                QCOMPARE(mouseDlg(d).shownPage(), shown);
                QCOMPARE(page(d, shown).dlgItem<QGroupBox>(8048)->title(), title);
            }
            auto& left = static_cast<ui::config::CSimplePage&>(page(d, mouserules::Left3D));
            QCOMPARE(left.dlgItem<QRadioButton>(RadioFirst)->text(), QStringLiteral("回転"));
            QVERIFY(left.isFirstChosen()); // the default rotates
            left.chooseFirst(false);
            auto& wheel = static_cast<ui::config::CSimplePage&>(page(d, mouserules::Wheel3D));
            QCOMPARE(wheel.dlgItem<QRadioButton>(RadioSecond)->text(),
                     QStringLiteral("Ｘ軸まわりに回転"));
            wheel.chooseFirst(false);
            views.setCurrentIndex(0);
            QCOMPARE(tabTexts(tab(d, ButtonTab)).size(), 3);
            QCOMPARE(mouseDlg(d).shownPage(), mouserules::Right2D);
            test::pressOk(d);
        });
        QVERIFY(host.run(setting));
        const SMouseSetting& out = *setting.getMouseSetting(L"3DView");
        QCOMPARE(out.leftDragAction, 2);
        QCOMPARE(out.bothButtonsAction, 2);
        QCOMPARE(out.wheelRotate, 4);
    }

    void aTwoDimensionalHostLeavesTheThreeDimensionalRecordAlone()
    {
        Host host;
        FrameInstalled installed;
        installed.frame.twoDimensionalOnly = true;
        CMouseSetting setting = fullSetting();
        SMouseSetting& view3D = *setting.getMouseSetting(L"3DView");
        view3D.leftDragAction = 0;
        view3D.bothButtonsAction = 0;
        view3D.wheelRotate = 0;
        const SMouseSetting before3D = view3D;
        ScopedModalDrivers drivers([](CKsDialog& d) {
            QVERIFY(mouseDlg(d).isTwoDimensionalOnly());
            for (mouserules::EPage p :
                 {mouserules::Right3D, mouserules::Left3D, mouserules::Both3D, mouserules::Wheel3D})
                QVERIFY(!mouseDlg(d).page(p));
            check(page(d, mouserules::Right2D), ShowMenu, true);
            test::pressOk(d);
        });
        QVERIFY(host.run(setting));
        QVERIFY(*setting.getMouseSetting(L"3DView") == before3D);
        QVERIFY(setting.getMouseSetting(L"2DView")->showShortcutMenu);
    }

    void theViewTabTakesTheHostsNames()
    {
        Host host;
        FrameInstalled installed;
        installed.frame.names = {QStringLiteral("平面図モード"), QStringLiteral("3D"),
                                 QStringLiteral("縦断図")};
        CMouseSetting setting = CMouseSetting::makeDefault();
        ScopedModalDrivers drivers([](CKsDialog& d) {
            QCOMPARE(tab(d, ViewTab).tabText(0), QStringLiteral("平面図/縦断図"));
        });
        host.run(setting);
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
            QCOMPARE(boxes.last().text,
                     QStringLiteral("マウスの設定を初期化します。\nよろしいですか？"));
            QCOMPARE(boxes.last().caption, QStringLiteral("設定初期化"));
            QCOMPARE(boxes.last().type, unsigned(MB_OKCANCEL | MB_ICONQUESTION));
            QVERIFY(page(d, mouserules::Both2D).dlgItem<QRadioButton>(RadioSecond)->isChecked());
            QVERIFY(click(d, Reset)); // answered with OK
            QVERIFY(page(d, mouserules::Both2D).dlgItem<QRadioButton>(RadioFirst)->isChecked());
            QCOMPARE(comboOf(page(d, mouserules::Wheel2D), WheelDrag).currentText(),
                     QStringLiteral("スムーズスクロール"));
            QVERIFY(page(d, mouserules::Right2D).dlgItem<QCheckBox>(ShowMenu)->isChecked());
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

    void aMissingViewRecordIsNeitherLoadedNorWritten()
    {
        Host host;
        CMouseSetting setting;
        setting.setMouseSetting(CMouseSetting::k3DView, full3D());
        ScopedModalDrivers drivers(test::pressOk);
        QVERIFY(host.run(setting));
        QVERIFY(!setting.getMouseSetting(L"2DView"));
        QCOMPARE(setting.viewCount(), std::size_t(1));
    }

    void withoutACandidateFileTheListsAreEmpty()
    {
        Host host;
        CMouseSetting setting = CMouseSetting::makeDefault();
        ScopedModalDrivers drivers([](CKsDialog& d) {
            QCOMPARE(listOf(page(d, mouserules::Right2D), CommandList).count(), 0);
            QCOMPARE(comboOf(page(d, mouserules::Both2D), LeftUp).count(), 1);
            QCOMPARE(comboOf(page(d, mouserules::Wheel2D), WheelClick).itemText(0),
                     QStringLiteral("なし"));
            test::pressOk(d);
        });
        QVERIFY(ui::config::doMouseDlg(setting, setting, L"/nonexistent/mouse.xml", &table()));
        // The corner commands were not candidates, so they are stored empty.
        QCOMPARE(setting.getMouseSetting(L"2DView")->leftUpCommand, std::wstring());
        CMouseSetting untouched = CMouseSetting::makeDefault();
        QVERIFY(!ui::config::doMouseDlg(untouched, untouched, nullptr, nullptr));
        QVERIFY(untouched.isSame(CMouseSetting::makeDefault()));
    }

    void aDialogWithoutItsTabStripsTellsAndEnds()
    {
        Host host;
        MessageBoxRecorder boxes;
        ui::framework::ResourceSwitch resources(ui::config::libraryResourceHandle());
        CMouseDlg dlg;
        delete dlg.GetDlgItem(ButtonTab);
        ScopedModalDrivers drivers([](CKsDialog&) { QFAIL("the dialog must not run"); });
        QVERIFY(dlg.DoModal() != IDOK);
        QCOMPARE(boxes.count(), std::size_t(1));
        QCOMPARE(boxes.last().text, QStringLiteral("マウスの設定ダイアログ作成に失敗しました。"));
        QCOMPARE(boxes.last().caption, QStringLiteral("マウスの設定"));
    }
};

QTEST_MAIN(TestMouseDlg)
#include "tst_mousedlg.moc"
