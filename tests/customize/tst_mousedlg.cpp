// "マウスの設定": its rules without widgets (the candidate file, captions and pages, every code
// mapping between the setting and the controls in both directions), then end to end through
// doMouseDlg with its tabs and pages operated as a user does.
#include "support/TestSupport.h"

#include "command/CommandTable.h"
#include "config/CustomizeEntries.h"
#include "config/LibraryModule.h"
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

using Codes = std::array<int, 3>; // left drag, both buttons, wheel rotation

const std::vector<SCandidate> kCandidates = {
    {L"ID_VIEW_REDRAW", QStringLiteral("再描画")},
    {L"ID_VIEW_ZOOM_ALL", QStringLiteral("全体表示")},
    {L"ID_EDIT_UNDO", QStringLiteral("元に戻す")},
};

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
    void theCandidateFileIsReadRecordByRecord()
    {
        test::HostFixture host;
        const QString path = host.path(QStringLiteral("mouse-commands.xml"));
        QVERIFY(test::writeFile(path, R"(<MouseCommands>
            <Commands view="2DView "><Menu><Command id="X"/></Menu></Commands>
            <Commands><Menu><Command id="Y"/></Menu></Commands>
            <Commands view="2DView"><Menu><Command id="A"/></Menu><Action><Command id="B"/></Action></Commands>
            <Commands view="2DView"><Menu><Command id="Z"/></Menu></Commands>
            <Commands view="3DView"><Menu><Command id="C"/></Menu></Commands>
            </MouseCommands>)"));
        const auto list = readMouseCommands(path.toStdWString());
        QCOMPARE(list.size(), std::size_t(4)); // the record without a view is left out
        const auto* view2D = findViewCommands(list, L"2DView");
        QVERIFY(view2D);
        QCOMPARE(view2D->menuCommands, std::vector<std::wstring>{L"A"}); // exact name, first one
        QCOMPARE(view2D->actionCommands, std::vector<std::wstring>{L"B"});
        QCOMPARE(findViewCommands(list, L"3DView")->menuCommands, std::vector<std::wstring>{L"C"});
        QVERIFY(!findViewCommands(list, L"2dview") && !findViewCommands(list, L"2DVie"));

        QVERIFY(readMouseCommands(host.path(QStringLiteral("none.xml")).toStdWString()).empty());
        QVERIFY(readMouseCommands(L"").empty());
        for (const char* bad : {"<MouseCommands><Commands view=\"2DView\">",
                                "<Other><Commands view=\"2DView\"/></Other>"}) {
            QVERIFY(test::writeFile(path, bad));
            QVERIFY(readMouseCommands(path.toStdWString()).empty());
        }
    }

    void theViewTabIsNamedAfterTheHostsView()
    {
        using core::IMainFrame;
        const QString plan = QStringLiteral("平面図モード");
        const std::tuple<SViewNames, bool, IMainFrame::EFrameMode, const char*> cases[] = {
            {{}, false, IMainFrame::FrameMode2D, "2Dビュー"},
            {{plan, {}}, false, IMainFrame::FrameMode2D, "平面図"},
            {{plan, QStringLiteral("縦断図")}, false, IMainFrame::FrameMode2D, "平面図/縦断図"},
            {{plan, {}}, true, IMainFrame::FrameModeRed, "朱書きビュー"},
            {{plan, {}}, false, IMainFrame::FrameMode3D, "3Dビュー"},
        };
        for (const auto& [names, red, mode, caption] : cases)
            QCOMPARE(viewTabCaption(names, red, mode), QString::fromUtf8(caption));
    }

    void tabsChoosePagesAndHelpTopics()
    {
        QCOMPARE(buttonTabCaptions(0), QStringList({"右ボタン", "左右ボタン", "ホイール"}));
        QCOMPARE(buttonTabCaptions(1),
                 QStringList({"右ボタン", "左ボタン", "左右ボタン", "ホイール"}));
        const std::pair<std::pair<int, int>, const char*> expected[] = {
            {{0, 0}, "DLG_HLP_SET_MOUSE_RBUTTON"},    {{0, 1}, "DLG_HLP_SET_MOUSE_RLBUTTON"},
            {{0, 2}, "DLG_HLP_SET_MOUSE_WHEEL"},      {{1, 0}, "DLG_HLP_SET_MOUSE_RBUTTON_3D"},
            {{1, 1}, "DLG_HLP_SET_MOUSE_LBUTTON_3D"}, {{1, 2}, "DLG_HLP_SET_MOUSE_RLBUTTON_3D"},
            {{1, 3}, "DLG_HLP_SET_MOUSE_WHEEL_3D"},
        };
        for (const auto& [tabs, topic] : expected)
            QCOMPARE(helpTopic(pageFor(tabs.first, tabs.second)), QString::fromLatin1(topic));
        QCOMPARE(pageFor(0, 3), PageCount);
        QCOMPARE(pageFor(1, -1), PageCount);
        QCOMPARE(helpTopic(PageCount), QString());
    }

    void rowTextsMarkCommandsOfDirectEditing()
    {
        const std::pair<const wchar_t*, const char*> fixed[] = {
            {L"ID_VIEW_SELECT_RANGE_DISPLAY", "表示範囲"},
            {L"ID_VIEW_ROTATE_ELEMENT_HORIZONTALLY", "回転表示"},
            {L"ID_EDIT_TEXT_CONTENTS", "文字内容編集 ※"},
            {L"ID_TOOL_HYPERLINK_SETUP", "ハイパーリンクの設定 ※"},
            {L"ID_EDIT_PASTE", "名前"},
        };
        for (const auto& [id, text] : fixed)
            QCOMPARE(commandRowText(id, QStringLiteral("名前")), QString::fromUtf8(text));
        const QString marked = QStringLiteral(
            "ID_TOOL_ELEMENT_STATUS ID_EDIT_PROPERTY_COPY ID_EDIT_PROPERTY_ACTIVE "
            "ID_EDIT_MOVE_MOVE "
            "ID_EDIT_MOVE_ROTATE ID_EDIT_COPY_COPY ID_EDIT_ERASE ID_EDIT_ZORDER_TOP "
            "ID_EDIT_ZORDER_BOTTOM ID_MISC_ACTIVE_ATTRIBUTE ID_MISC_ACTIVE_SCALE ID_EDIT_CUT "
            "ID_EDIT_COPY ID_LAYER_VISIBLE ID_LAYER_INVISIBLE_THIS ID_LAYER_INVISIBLE");
        for (const QString& id : marked.split(u' '))
            QCOMPARE(commandRowText(id.toStdWString(), QStringLiteral("名前")),
                     QStringLiteral("名前 ※"));

        const utility::CCommandTable table = test::commandTable(QStringLiteral(
            R"(<CommandTable><Group name="g"><Command number="5" id="ID_EDIT_ERASE" name="削除"/>
            </Group></CommandTable>)"));
        ui::control::SContextMenuDataItem item;
        item.id = L"ID_EDIT_ERASE";
        item.name = L"古い名前";
        QCOMPARE(menuItemRowText(item, &table), QStringLiteral("削除 ※")); // the table's name
        QCOMPARE(menuItemRowText(item, nullptr), QStringLiteral("古い名前 ※"));
        item.id = L"ID_UNKNOWN";
        item.name.clear();
        QCOMPARE(menuItemRowText(item, &table), QStringLiteral("ID_UNKNOWN"));
        item.type = ui::control::SContextMenuDataItem::Separator;
        QVERIFY(menuItemRowText(item, &table).startsWith(u'─'));
        const auto resolved = resolveCandidates({L"ID_EDIT_ERASE", L"ID_UNKNOWN"}, &table);
        QCOMPARE(resolved[0].name, QStringLiteral("削除"));
        QCOMPARE(resolved[1].name, QStringLiteral("ID_UNKNOWN"));
    }

    // Corner combos hold "なし" and the candidates; an unknown command or a selection past the
    // list stores nothing.
    void bothButtonsLoadAndStore_data()
    {
        QTest::addColumn<int>("stored");
        QTest::addColumn<int>("radio");
        QTest::addColumn<int>("written");
        QTest::newRow("corner commands") << 1 << 0 << 1;
        QTest::newRow("smooth scroll") << 2 << 1 << 2;
        QTest::newRow("disabled") << 0 << 2 << 0;
        QTest::newRow("3-D rotation") << 3 << 2 << 0;
        QTest::newRow("tool panel") << 4 << 2 << 0;
        QTest::newRow("unknown") << -7 << 2 << 0;
    }
    void bothButtonsLoadAndStore()
    {
        QFETCH(int, stored);
        SMouseSetting view;
        view.bothButtonsAction = stored;
        view.leftUpCommand = L"ID_VIEW_ZOOM_ALL";
        view.leftDownCommand = L"ID_GONE";
        view.samePointCommand = L"ID_VIEW_REDRAW";
        view.rightDownCommand = L"ID_EDIT_UNDO";
        SBothButtonsControls controls = loadBothButtons(view, kCandidates);
        QTEST(controls.radio, "radio");
        QCOMPARE(controls.corners, (std::array<int, 5>{2, 0, 1, 0, 3}));
        SMouseSetting out;
        storeBothButtons(controls, kCandidates, out);
        QTEST(out.bothButtonsAction, "written");
        view.leftDownCommand.clear();
        view.bothButtonsAction = out.bothButtonsAction;
        QVERIFY(out == view);

        controls.corners = {4, 9, -1, 3, 1};
        storeBothButtons(controls, kCandidates, out);
        const std::wstring corners[] = {out.leftUpCommand, out.leftDownCommand,
                                        out.samePointCommand, out.rightUpCommand,
                                        out.rightDownCommand};
        QCOMPARE(corners[0] + corners[1] + corners[2], std::wstring());
        QCOMPARE(corners[3] + L"," + corners[4], std::wstring(L"ID_EDIT_UNDO,ID_VIEW_REDRAW"));
    }

    void wheelDragCodes_data()
    {
        QTest::addColumn<int>("stored");
        QTest::addColumn<int>("item");
        QTest::addColumn<int>("written");
        QTest::newRow("nothing") << 0 << 0 << 0;
        QTest::newRow("corner command is no drag") << 1 << 0 << 0;
        QTest::newRow("smooth scroll") << 2 << 1 << 2;
        QTest::newRow("view rotation is 3-D") << 3 << 0 << 0;
        QTest::newRow("tool panel") << 4 << 2 << 4;
        QTest::newRow("unknown") << 99 << 0 << 0;
    }
    void wheelDragCodes()
    {
        QFETCH(int, stored);
        QFETCH(int, item);
        SMouseSetting view;
        view.wheelDrag = view.ctrlWheelDrag = stored;
        const SWheelControls controls = loadWheel(view, kCandidates);
        QCOMPARE(controls.drag, (std::array<int, 2>{item, item}));
        SMouseSetting out;
        storeWheel(controls, kCandidates, out);
        QTEST(out.wheelDrag, "written");
        QTEST(out.ctrlWheelDrag, "written");
    }

    void wheelRotationClicksZoomAndDirection()
    {
        SMouseSetting view;
        view.wheelCommands = false;
        view.wheelRotate = 2;
        view.ctrlWheelRotate = 3;
        view.shiftWheelRotate = 4; // the X rotation is 3-D only: "なし"
        view.wheelClick = L"ID_VIEW_ZOOM_ALL";
        view.ctrlWheelClick = L"ID_GONE";
        view.stepZoomRate = 0.125;
        view.wheelUpZoomsIn = false;
        SWheelControls c = loadWheel(view, kCandidates);
        QVERIFY(!c.wheelCommands);
        QCOMPARE(c.rotate, (std::array<int, 3>{2, 3, 0}));
        QCOMPARE(c.click, (std::array<int, 2>{2, 0}));
        QCOMPARE(c.zoomRate, QStringLiteral("12.5"));
        QCOMPARE(c.upDirection + c.downDirection, 0);

        c.wheelCommands = true;
        c.rotate = {1, 0, 2};
        c.click = {3, 1};
        c.zoomRate = QStringLiteral("２５０");
        c.upDirection = 1;
        SMouseSetting out;
        storeWheel(c, kCandidates, out);
        QVERIFY(out.wheelCommands && out.wheelUpZoomsIn);
        QCOMPARE((std::array{out.wheelRotate, out.ctrlWheelRotate, out.shiftWheelRotate}),
                 (std::array{1, 0, 2}));
        QCOMPARE(out.wheelClick, std::wstring(L"ID_EDIT_UNDO"));
        QCOMPARE(out.ctrlWheelClick, std::wstring(L"ID_VIEW_REDRAW"));
        QCOMPARE(out.stepZoomRate, 2.5);
        QVERIFY(loadWheel(out, kCandidates).upDirection == 1);

        c.zoomRate = QStringLiteral("-40"); // no range check
        storeWheel(c, kCandidates, out);
        QCOMPARE(out.stepZoomRate, -0.4);
        c.zoomRate = QStringLiteral("abc"); // not a number: the rate stays
        storeWheel(c, kCandidates, out);
        QCOMPARE(out.stepZoomRate, -0.4);
    }

    void threeDimensionalCodesAreRewritten_data()
    {
        QTest::addColumn<Codes>("stored");  // left drag, both buttons, wheel
        QTest::addColumn<Codes>("written"); // the same after load and store
        QTest::newRow("first choices") << std::array{3, 2, 1} << std::array{3, 2, 1};
        QTest::newRow("second choices") << std::array{2, 3, 4} << std::array{2, 3, 4};
        QTest::newRow("zeros") << std::array{0, 0, 0} << std::array{2, 3, 4};
        QTest::newRow("others") << std::array{1, 4, 2} << std::array{2, 3, 4};
    }
    void threeDimensionalCodesAreRewritten()
    {
        QFETCH(Codes, stored);
        SMouseSetting view;
        view.leftDragAction = stored[0];
        view.bothButtonsAction = stored[1];
        view.wheelRotate = stored[2];
        store3D(load3D(view), view);
        QTEST((std::array{view.leftDragAction, view.bothButtonsAction, view.wheelRotate}),
              "written");
    }

    // add, insert, remove, up, down, separator
    void menuButtonsFollowTheSelections()
    {
        const auto states = [](bool command, int item, int count) {
            const SMenuButtonStates s = menuButtonStates(command, item, count);
            return test::bits({s.add, s.insert, s.remove, s.up, s.down, s.separator});
        };
        QCOMPARE(states(false, -1, 3), QStringLiteral("000000"));
        QCOMPARE(states(true, 0, 3), QStringLiteral("111011"));
        QCOMPARE(states(false, 2, 3), QStringLiteral("001101"));
        QCOMPARE(states(true, 1, 3), QStringLiteral("111111"));
        QCOMPARE(states(true, -1, 0), QStringLiteral("100000"));
        QCOMPARE(states(true, 3, 3), QStringLiteral("100000"));
    }
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
            QVERIFY(!checked(page(d, Both2D), RadioSecond));
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
