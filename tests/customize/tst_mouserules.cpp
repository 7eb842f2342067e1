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
        QVERIFY(!findViewCommands(list, L"2dview"));
        QVERIFY(!findViewCommands(list, L"2DVie"));

        QVERIFY(readMouseCommands(host.path(QStringLiteral("none.xml")).toStdWString()).empty());
        QVERIFY(readMouseCommands(L"").empty());
        QVERIFY(test::writeFile(path, "<MouseCommands><Commands view=\"2DView\">"));
        QVERIFY(readMouseCommands(path.toStdWString()).empty());
        QVERIFY(test::writeFile(path, "<Other><Commands view=\"2DView\"/></Other>"));
        QVERIFY(readMouseCommands(path.toStdWString()).empty());
    }

    void theViewTabIsNamedAfterTheHostsView()
    {
        using core::IMainFrame;
        QCOMPARE(viewTabCaption({}, false, IMainFrame::FrameMode2D), QStringLiteral("2Dビュー"));
        QCOMPARE(
            viewTabCaption({QStringLiteral("平面図モード"), {}}, false, IMainFrame::FrameMode2D),
            QStringLiteral("平面図"));
        QCOMPARE(viewTabCaption({QStringLiteral("平面図モード"), QStringLiteral("縦断図")}, false,
                                IMainFrame::FrameMode2D),
                 QStringLiteral("平面図/縦断図"));
        QCOMPARE(
            viewTabCaption({QStringLiteral("平面図モード"), {}}, true, IMainFrame::FrameModeRed),
            QStringLiteral("朱書きビュー"));
        QCOMPARE(
            viewTabCaption({QStringLiteral("平面図モード"), {}}, false, IMainFrame::FrameMode3D),
            QStringLiteral("3Dビュー"));
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
        QCOMPARE(commandRowText(L"ID_VIEW_SELECT_RANGE_DISPLAY", QStringLiteral("範囲表示")),
                 QStringLiteral("表示範囲"));
        QCOMPARE(commandRowText(L"ID_VIEW_ROTATE_ELEMENT_HORIZONTALLY", QStringLiteral("x")),
                 QStringLiteral("回転表示"));
        QCOMPARE(commandRowText(L"ID_EDIT_TEXT_CONTENTS", QStringLiteral("x")),
                 QStringLiteral("文字内容編集 ※"));
        QCOMPARE(commandRowText(L"ID_TOOL_HYPERLINK_SETUP", QStringLiteral("x")),
                 QStringLiteral("ハイパーリンクの設定 ※"));
        const QString marked = QStringLiteral(
            "ID_TOOL_ELEMENT_STATUS ID_EDIT_PROPERTY_COPY ID_EDIT_PROPERTY_ACTIVE "
            "ID_EDIT_MOVE_MOVE "
            "ID_EDIT_MOVE_ROTATE ID_EDIT_COPY_COPY ID_EDIT_ERASE ID_EDIT_ZORDER_TOP "
            "ID_EDIT_ZORDER_BOTTOM ID_MISC_ACTIVE_ATTRIBUTE ID_MISC_ACTIVE_SCALE ID_EDIT_CUT "
            "ID_EDIT_COPY ID_LAYER_VISIBLE ID_LAYER_INVISIBLE_THIS ID_LAYER_INVISIBLE");
        for (const QString& id : marked.split(u' '))
            QCOMPARE(commandRowText(id.toStdWString(), QStringLiteral("名前")),
                     QStringLiteral("名前 ※"));
        QCOMPARE(commandRowText(L"ID_EDIT_PASTE", QStringLiteral("貼り付け")),
                 QStringLiteral("貼り付け"));

        utility::CCommandTable table;
        table.addGroup(L"編集");
        utility::SCommand erase;
        erase.number = 5;
        erase.id = L"ID_EDIT_ERASE";
        erase.name = L"削除";
        erase.group = 0;
        QVERIFY(table.addCommand(erase));
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

    void cornerCommandsMapToComboPositions()
    {
        QCOMPARE(commandComboIndex(kCandidates, L"ID_EDIT_UNDO"), 3);
        QCOMPARE(commandComboIndex(kCandidates, L""), 0);
        QCOMPARE(commandComboIndex(kCandidates, L"ID_GONE"), 0);
        QCOMPARE(commandOfComboIndex(kCandidates, 1), std::wstring(L"ID_VIEW_REDRAW"));
        QCOMPARE(commandOfComboIndex(kCandidates, 0), std::wstring());
        QCOMPARE(commandOfComboIndex(kCandidates, 4), std::wstring()); // past the end
        QCOMPARE(commandOfComboIndex({}, 1), std::wstring());
    }

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
        QFETCH(int, radio);
        QFETCH(int, written);
        SMouseSetting view;
        view.bothButtonsAction = stored;
        view.leftUpCommand = L"ID_VIEW_ZOOM_ALL";
        view.leftDownCommand = L"ID_GONE";
        view.samePointCommand = L"ID_VIEW_REDRAW";
        view.rightUpCommand = L"";
        view.rightDownCommand = L"ID_EDIT_UNDO";
        const SBothButtonsControls controls = loadBothButtons(view, kCandidates);
        QCOMPARE(controls.radio, radio);
        QCOMPARE(controls.corners, (std::array<int, 5>{2, 0, 1, 0, 3}));
        SMouseSetting out;
        storeBothButtons(controls, kCandidates, out);
        QCOMPARE(out.bothButtonsAction, written);
        QCOMPARE(out.leftUpCommand, view.leftUpCommand);
        QCOMPARE(out.leftDownCommand, std::wstring()); // an unknown command is not kept
        QCOMPARE(out.samePointCommand, view.samePointCommand);
        QCOMPARE(out.rightUpCommand, std::wstring());
        QCOMPARE(out.rightDownCommand, view.rightDownCommand);
    }

    void cornerSelectionsPastTheListStoreNothing()
    {
        SBothButtonsControls controls;
        controls.radio = 0;
        controls.corners = {4, 9, -1, 3, 1};
        SMouseSetting view;
        view.leftUpCommand = L"ID_OLD";
        storeBothButtons(controls, kCandidates, view);
        QCOMPARE(view.leftUpCommand, std::wstring());
        QCOMPARE(view.leftDownCommand, std::wstring());
        QCOMPARE(view.samePointCommand, std::wstring());
        QCOMPARE(view.rightUpCommand, std::wstring(L"ID_EDIT_UNDO"));
        QCOMPARE(view.rightDownCommand, std::wstring(L"ID_VIEW_REDRAW"));
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
        QFETCH(int, written);
        SMouseSetting view;
        view.wheelDrag = stored;
        view.ctrlWheelDrag = stored;
        const SWheelControls controls = loadWheel(view, kCandidates);
        QCOMPARE(controls.drag, (std::array<int, 2>{item, item}));
        SMouseSetting out;
        storeWheel(controls, kCandidates, out);
        QCOMPARE(out.wheelDrag, written);
        QCOMPARE(out.ctrlWheelDrag, written);
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
        QCOMPARE(c.upDirection, 0);
        QCOMPARE(c.downDirection, 0);

        c.wheelCommands = true;
        c.rotate = {1, 0, 2};
        c.click = {3, 1};
        c.zoomRate = QStringLiteral("２５０");
        c.upDirection = 1;
        SMouseSetting out;
        storeWheel(c, kCandidates, out);
        QVERIFY(out.wheelCommands);
        QCOMPARE(out.wheelRotate, 1);
        QCOMPARE(out.ctrlWheelRotate, 0);
        QCOMPARE(out.shiftWheelRotate, 2);
        QCOMPARE(out.wheelClick, std::wstring(L"ID_EDIT_UNDO"));
        QCOMPARE(out.ctrlWheelClick, std::wstring(L"ID_VIEW_REDRAW"));
        QCOMPARE(out.stepZoomRate, 2.5);
        QVERIFY(out.wheelUpZoomsIn);

        c.zoomRate = QStringLiteral("-40"); // no range check
        storeWheel(c, kCandidates, out);
        QCOMPARE(out.stepZoomRate, -0.4);
        c.zoomRate = QStringLiteral("abc"); // not a number: the rate stays
        storeWheel(c, kCandidates, out);
        QCOMPARE(out.stepZoomRate, -0.4);
    }

    void threeDimensionalCodesAreRewritten_data()
    {
        QTest::addColumn<int>("leftDrag");
        QTest::addColumn<int>("bothButtons");
        QTest::addColumn<int>("wheelRotate");
        QTest::addColumn<int>("leftDragOut");
        QTest::addColumn<int>("bothButtonsOut");
        QTest::addColumn<int>("wheelRotateOut");
        QTest::newRow("first choices") << 3 << 2 << 1 << 3 << 2 << 1;
        QTest::newRow("second choices") << 2 << 3 << 4 << 2 << 3 << 4;
        QTest::newRow("zeros") << 0 << 0 << 0 << 2 << 3 << 4;
        QTest::newRow("others") << 1 << 4 << 2 << 2 << 3 << 4;
    }
    void threeDimensionalCodesAreRewritten()
    {
        QFETCH(int, leftDrag);
        QFETCH(int, bothButtons);
        QFETCH(int, wheelRotate);
        SMouseSetting view;
        view.leftDragAction = leftDrag;
        view.bothButtonsAction = bothButtons;
        view.wheelRotate = wheelRotate;
        store3D(load3D(view), view);
        QTEST(view.leftDragAction, "leftDragOut");
        QTEST(view.bothButtonsAction, "bothButtonsOut");
        QTEST(view.wheelRotate, "wheelRotateOut");
    }

    void menuButtonsFollowTheSelections()
    {
        const SMenuButtonStates none = menuButtonStates(false, -1, 3);
        QVERIFY(!none.add && !none.insert && !none.remove && !none.up && !none.down
                && !none.separator);
        const SMenuButtonStates first = menuButtonStates(true, 0, 3);
        QVERIFY(first.add && first.insert && first.remove && !first.up && first.down
                && first.separator);
        const SMenuButtonStates last = menuButtonStates(false, 2, 3);
        QVERIFY(!last.add && !last.insert && last.remove && last.up && !last.down);
        const SMenuButtonStates empty = menuButtonStates(true, -1, 0);
        QVERIFY(empty.add && !empty.insert && !empty.remove && !empty.separator);
    }
};

QTEST_MAIN(TestMouseRules)
#include "tst_mouserules.moc"
