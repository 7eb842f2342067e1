// Rules of the mouse settings dialog: the candidate file, captions and pages, and every code
// mapping between the setting and the controls in both directions.
#include "support/TestSupport.h"

#include "command/CommandTable.h"
#include "config/LibraryModule.h"
#include "customize/MouseRules.h"

#include <QTest>

using namespace kesto;
using namespace kesto::ui::config::mouserules;
using ui::setting::SMouseSetting;

namespace {

using Codes = std::array<int, 3>; // left drag, both buttons, wheel rotation

const std::vector<SCandidate> kCandidates = {
    {L"ID_VIEW_REDRAW", QStringLiteral("再描画")},
    {L"ID_VIEW_ZOOM_ALL", QStringLiteral("全体表示")},
    {L"ID_EDIT_UNDO", QStringLiteral("元に戻す")},
};

} // namespace

class TestMouseRules : public QObject {
    Q_OBJECT

private slots:
    // The texts come from the library's string table.
    void initTestCase() { QVERIFY(ui::config::libraryResourceHandle()); }

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
};

QTEST_MAIN(TestMouseRules)
#include "tst_mouserules.moc"
