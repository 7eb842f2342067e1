// The host's side of the customising dialogs: keys as shortcuts store them, the shortcut
// setting, the command table with its shipped file and the command tree; the mouse setting
// and its file, the shortcut menu's items and the candidate-command records.
#include "support/TestSupport.h"

#include "command/CommandTable.h"
#include "command/CommandTree.h"
#include "setting/ContextMenuData.h"
#include "setting/MouseCommands.h"
#include "setting/MouseSetting.h"
#include "setting/ShortCutSetting.h"
#include "utility/VirtualKey.h"

#include <QDomDocument>
#include <QKeyEvent>
#include <QSet>
#include <QTest>
#include <QTreeWidget>

using namespace kesto;
using namespace kesto::utility::keys;
using ui::control::CContextMenuData;
using ui::control::SContextMenuDataItem;
using ui::setting::CMouseSetting;
using ui::setting::CShortCutSetting;
using ui::setting::SMouseSetting;
using ui::setting::SShortCut;
using utility::CCommandTable;

namespace {

const std::uint16_t kCtrl = FVIRTKEY | FCONTROL;

QString shippedTable()
{
    return QStringLiteral(KS_SOURCE_DIR "/app/resources/commands.xml");
}

bool loadTableText(CCommandTable& table, const QString& text, QString* error = nullptr)
{
    QDomDocument doc;
    return doc.setContent(text) && table.loadXMLNode(doc.documentElement(), error);
}

CCommandTable smallTable()
{
    return test::commandTable(QStringLiteral(R"(<CommandTable>
        <Group name="ファイル">
          <Command number="10" id="ID_FILE_SAVE" name="上書き保存" keys="Ctrl+S"/>
          <Command number="11" id="ID_FILE_MRU1" name="最近のファイル" keyBindable="0"/>
        </Group>
        <Group name="3D">
          <Command number="20" id="ID_3D_BOX" name="直方体" frames="3d" keys="Ctrl+S | F12"/>
        </Group>
        <Group name="空"/>
        <Group name="朱書き">
          <Command number="30" id="ID_RED_CLOUD" name="雲マーク" frames="red" keys="F12"/>
        </Group></CommandTable>)"));
}

QStringList keyTexts(const CShortCutSetting& setting)
{
    QStringList out;
    for (const SShortCut& s : setting.items())
        out << QString::fromStdWString(s.makeShortCutSz()) + u'='
                   + QString::number(s.commandNumber);
    return out;
}

utility::SCommand command(int number, const std::wstring& id, const std::wstring& name)
{
    utility::SCommand c;
    c.number = number;
    c.id = id;
    c.name = name;
    return c;
}

// The menu as text: commands by identifier, "|" for a separator item, "^" for a break mark.
QString shape(const CContextMenuData& menu)
{
    QStringList out;
    for (const SContextMenuDataItem& item : menu.items()) {
        if (item.type == SContextMenuDataItem::Separator)
            out << QStringLiteral("|");
        else
            out << (item.breakBefore ? QStringLiteral("^") : QString())
                       + QString::fromStdWString(item.id);
    }
    return out.join(u' ');
}

CContextMenuData menuOf(const QString& text)
{
    CContextMenuData menu;
    int pos = 0;
    for (const QString& word : text.split(u' ', Qt::SkipEmptyParts)) {
        if (word == u"|")
            menu.insertBreak(pos);
        else
            menu.insertButton(pos, command(pos + 1, word.toStdWString(), L"name"), 0);
        ++pos;
    }
    return menu;
}

SMouseSetting unusualView()
{
    SMouseSetting v;
    v.showShortcutMenu = false;
    v.wheelCommands = false;
    v.shortcutMenu.addCommandId(L"ID_EDIT_UNDO");
    v.shortcutMenu.addCommandId(L"ID_EDIT_ERASE", true);
    v.shortcutMenu.setRecentCommand(true);
    v.leftDragAction = 0;
    v.bothButtonsAction = 7;
    v.samePointCommand = L"ID_VIEW_REDRAW";
    v.leftUpCommand = L"ID_A";
    v.rightUpCommand = L"ID_B";
    v.leftDownCommand = L"ID_C";
    v.rightDownCommand = L"ID_D \"<&>\"";
    v.wheelRotate = 4;
    v.wheelDrag = 3;
    v.wheelClick = L"ID_E";
    v.ctrlWheelRotate = 2;
    v.ctrlWheelDrag = 4;
    v.ctrlWheelClick = L"ID_F";
    v.shiftWheelRotate = 3;
    v.stepZoomRate = 0.123456789012345;
    v.wheelUpZoomsIn = false;
    return v;
}

QDomElement elementOf(QDomDocument& doc, const QString& text)
{
    doc.setContent(text);
    return doc.documentElement();
}

} // namespace

class TestCustomizeModel : public QObject {
    Q_OBJECT

private slots:
    // Keypad keys by the keypad modifier (home and clear with num lock off), shifted symbols to
    // the key that carries them.
    void qtKeysMapToVirtualKeys()
    {
        // Qt key, modifiers (test::modifiersOf; - for none), virtual key in hex.
        const QString keys = QStringLiteral(
            "Key_S - 53, Key_Z S 5A, Key_7 - 37, Key_Exclam S 31, Key_ParenRight S 30, "
            "Key_F1 - 70, Key_F13 - 7C, Key_F24 - 87, Key_0 K 60, Key_9 K 69, Key_Asterisk K 6A, "
            "Key_Plus K 6B, Key_Minus K 6D, Key_Period K 6E, Key_Slash K 6F, Key_Enter K 0D, "
            "Key_Home K 24, Key_Clear K 0C, Key_Home - 24, Key_End - 23, Key_PageUp - 21, "
            "Key_PageDown - 22, Key_Insert - 2D, Key_Delete - 2E, Key_Backspace - 08, "
            "Key_Backtab S 09, Key_Minus - BD, Key_Underscore S BD, Key_Semicolon - BA, "
            "Key_Colon S BA, Key_Equal - BB, Key_Comma - BC, Key_Period - BE, Key_Slash - BF, "
            "Key_QuoteLeft - C0, Key_BracketLeft - DB, Key_Backslash - DC, Key_yen - DC, "
            "Key_BracketRight - DD, Key_Apostrophe - DE, Key_Muhenkan - 1D, "
            "Key_Eisu_toggle - F0, Key_Super_L - 5B, Key_Menu - 5D, Key_NumLock - 90, "
            "Key_unknown - 00");
        for (const QString& entry : keys.split(QStringLiteral(", "))) {
            const QStringList parts = entry.split(u' ');
            const int vk = virtualKeyOf(test::keyNamed(parts[0]), test::modifiersOf(parts[1]));
            const QString hex = QString::number(vk, 16).toUpper().rightJustified(2, u'0');
            QCOMPARE(parts[0] + u' ' + parts[1] + u' ' + hex, entry);
        }
        const QKeyEvent ctrlShiftS(QEvent::KeyPress, Qt::Key_S,
                                   Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(keyStrokeOf(ctrlShiftS), (SKeyStroke{1 | 4 | 8, 0x53}));
        const QKeyEvent altDel(QEvent::KeyPress, Qt::Key_Delete, Qt::AltModifier);
        QCOMPARE(keyStrokeOf(altDel), (SKeyStroke{1 | 16, 0x2E}));
        const QKeyEvent num5(QEvent::KeyPress, Qt::Key_5, Qt::KeypadModifier);
        QCOMPARE(keyStrokeOf(num5), (SKeyStroke{1, 0x65}));
    }

    // Key texts are clear and each reads back; malformed texts are refused.
    void keyTextsAreClear()
    {
        QCOMPARE(keyStrokeText(1 | 4 | 8, 'S'), QStringLiteral("Ctrl+Shift+S"));
        QCOMPARE(keyStrokeText(1, 0x74), QStringLiteral("F5"));
        QCOMPARE(keyStrokeText(1 | 16, 0x2E), QStringLiteral("Alt+Del"));
        QCOMPARE(keyStrokeText(1 | 8 | 16, 0x65), QStringLiteral("Ctrl+Alt+Num 5"));
        QCOMPARE(keyStrokeText(kCtrl, 0xBD), QStringLiteral("Ctrl+-"));
        QCOMPARE(keyStrokeText(kCtrl, 0xE1), QStringLiteral("Ctrl+0xE1"));
        QCOMPARE(keyStrokeText(kCtrl, 0), QString());
        QCOMPARE(SShortCut::makeShortCutSz(9, 83), std::wstring(L"Ctrl+S"));
        for (const char* text :
             {"", "Ctrl+", "Hyper+S", "Ctrl+Ctrl+S", "0x00", "0x1FF", "SS", "Ctrl S"})
            QVERIFY2(!parseKeyStroke(QString::fromLatin1(text)), text);
        QCOMPARE(*parseKeyStroke(QStringLiteral(" shift+ctrl+f5 ")), (SKeyStroke{1 | 4 | 8, 0x74}));
        QCOMPARE(*parseKeyStroke(QStringLiteral("Ctrl+Num +")), (SKeyStroke{kCtrl, 0x6B}));
    }

    // Rows are found by their key text, so every key must have a text of its own that reads back.
    void everyKeyTextIsUniqueAndReadsBack()
    {
        QSet<QString> seen;
        for (std::uint16_t flags = 0; flags < 8; ++flags) {
            const auto accel =
                static_cast<std::uint16_t>(FVIRTKEY | (flags & 1 ? FSHIFT : 0)
                                           | (flags & 2 ? FCONTROL : 0) | (flags & 4 ? FALT : 0));
            for (std::uint16_t key = 1; key < 0xFF; ++key) {
                const QString text = keyStrokeText(accel, key);
                QVERIFY2(!seen.contains(text), qPrintable(text));
                seen.insert(text);
                const std::optional<SKeyStroke> back = parseKeyStroke(text);
                QVERIFY2(back && *back == (SKeyStroke{accel, key}), qPrintable(text));
            }
        }
    }

    void aKeyBelongsToOneCommand()
    {
        CShortCutSetting setting;
        QVERIFY(setting.addItem(kCtrl, 'S', 10, L"ID_FILE_SAVE", L"上書き保存"));
        QVERIFY(setting.addItem(1, 0x74, 10, L"ID_FILE_SAVE", L"上書き保存"));
        QVERIFY(setting.addItem(kCtrl, 'O', 12, L"ID_FILE_OPEN", L"開く"));
        QVERIFY(setting.addItem(kCtrl, 'S', 20, L"ID_DRAW_LINE", L"線分")); // moves Ctrl+S
        QCOMPARE(keyTexts(setting), QStringList({"F5=10", "Ctrl+O=12", "Ctrl+S=20"}));
        QCOMPARE(setting.findByShortCut(kCtrl, 'S')->commandNumber, 20);
        QCOMPARE(setting.findByShortCut(kCtrl & ~FVIRTKEY, 'S')->commandNumber, 20);
        QVERIFY(!setting.findByShortCut(kCtrl | FSHIFT, 'S'));
        std::vector<SShortCut> found;
        QCOMPARE(setting.findItemsById(found, 10), 1);
        QCOMPARE(found.front().key, std::uint16_t(0x74));
        QVERIFY(!setting.addItem(kCtrl, 0, 10, L"ID_FILE_SAVE", L"上書き保存"));
        QVERIFY(!setting.addItem(kCtrl, 'Q', 0, L"ID_NONE", L""));
        QCOMPARE(setting.getCount(), 3);
        QVERIFY(!setting.getItem(3));
        QVERIFY(setting.deleteItem(L"Ctrl+O"));
        QVERIFY(!setting.deleteItem(L"Ctrl+O"));
        QVERIFY(setting.deleteItem(1, 0x74));
        QCOMPARE(keyTexts(setting), QStringList({"Ctrl+S=20"}));

        // The same bindings in another order are the same.
        CShortCutSetting other;
        other.addItem(kCtrl, 'O', 12, L"ID_FILE_OPEN", L"開く");
        other.addItem(kCtrl, 'S', 20, L"ID_DRAW_LINE", L"線分");
        setting.addItem(kCtrl, 'O', 12, L"ID_FILE_OPEN", L"開く");
        QVERIFY(setting.isSame(other));
        other.addItem(kCtrl, 'S', 12, L"ID_FILE_OPEN", L"開く");
        QVERIFY(!setting.isSame(other));
        other.deleteItem(kCtrl, 'S');
        QVERIFY(!setting.isSame(other));
    }

    void defaultsComeFromTheTableWithoutTakingAKeyTwice()
    {
        const CCommandTable table = smallTable();
        CShortCutSetting setting;
        setting.addItem(kCtrl, 'Q', 10, L"ID_FILE_SAVE", L"上書き保存");
        setting.setupByTable(&table);
        QCOMPARE(keyTexts(setting), QStringList({"Ctrl+S=10", "F12=20"}));
        setting.setupByTable(nullptr);
        QCOMPARE(setting.getCount(), 0);
    }

    void settingFileRoundTripsAndRefusesBrokenFiles()
    {
        test::HostFixture host;
        CShortCutSetting setting;
        setting.addItem(kCtrl | FSHIFT, 'S', 10, L"ID_FILE_SAVE_AS", L"名前を付けて保存");
        setting.addItem(FVIRTKEY | FALT, 0x2E, 11, L"ID_EDIT_ERASE", L"削除");
        CShortCutSetting loaded;
        QVERIFY(test::roundTrips(host, setting, loaded));
        QCOMPARE(loaded.items(), setting.items());

        const char* broken[] = {
            R"(<ShortCutSetting><ShortCut flags="9" key="83" command="1"/><ShortCut flags="9" key="83" command="2"/></ShortCutSetting>)",
            R"(<ShortCutSetting><ShortCut flags="8" key="83" command="1"/></ShortCutSetting>)",
            R"(<ShortCutSetting><ShortCut flags="41" key="83" command="1"/></ShortCutSetting>)",
            R"(<ShortCutSetting><ShortCut flags="9" key="0" command="1"/></ShortCutSetting>)",
            R"(<ShortCutSetting><ShortCut flags="9" key="300" command="1"/></ShortCutSetting>)",
            R"(<ShortCutSetting><ShortCut flags="9" key="83" command="0"/></ShortCutSetting>)",
            R"(<ShortCutSetting><ShortCut flags="9" key="S" command="1"/></ShortCutSetting>)",
            R"(<ShortCutSetting><ShortCut flags="9" key="83" command="1"/>)",
        };
        for (const char* text : broken) {
            QVERIFY2(!test::loadsText(host, loaded, text), text);
            QCOMPARE(loaded.items(), setting.items());
        }
    }

    void theShippedCommandTableLoads()
    {
        CCommandTable table;
        QString error;
        QVERIFY2(table.loadXML(shippedTable().toStdWString(), &error), qPrintable(error));
        QVERIFY(table.size() >= 300);
        QVERIFY(table.groups().size() >= 10);
        // The commands the mouse dialog names.
        const QString named = QStringLiteral(
            "ID_VIEW_SELECT_RANGE_DISPLAY ID_VIEW_ROTATE_ELEMENT_HORIZONTALLY "
            "ID_EDIT_TEXT_CONTENTS "
            "ID_TOOL_HYPERLINK_SETUP ID_TOOL_ELEMENT_STATUS ID_EDIT_PROPERTY_COPY "
            "ID_EDIT_PROPERTY_ACTIVE ID_EDIT_MOVE_MOVE ID_EDIT_MOVE_ROTATE ID_EDIT_COPY_COPY "
            "ID_EDIT_ERASE ID_EDIT_ZORDER_TOP ID_EDIT_ZORDER_BOTTOM ID_MISC_ACTIVE_ATTRIBUTE "
            "ID_MISC_ACTIVE_SCALE ID_EDIT_CUT ID_EDIT_COPY ID_LAYER_VISIBLE "
            "ID_LAYER_INVISIBLE_THIS ID_LAYER_INVISIBLE");
        for (const QString& id : named.split(u' '))
            QVERIFY2(table.findCommand(id.toStdWString()), qPrintable(id));
        utility::SCommand save;
        QVERIFY(table.GetCommand(L"ID_FILE_SAVE", save));
        QCOMPARE(save.name, std::wstring(L"上書き保存"));
        QCOMPARE(save.defaultKeys, (std::vector<SKeyStroke>{{kCtrl, 'S'}}));
        // Default keys are what a fresh installation binds; none may be given twice.
        CShortCutSetting defaults;
        defaults.setupByTable(&table);
        std::size_t keyCount = 0;
        for (const utility::SCommand& c : table.commands())
            keyCount += c.defaultKeys.size();
        QCOMPARE(std::size_t(defaults.getCount()), keyCount);
    }

    void malformedCommandTablesAreRefusedWhole()
    {
        CCommandTable table = smallTable();
        const char* broken[] = {
            R"(<Commands/>)",
            R"(<CommandTable><Group name="a"><Command number="1" id="A" name="a"/><Command number="1" id="B" name="b"/></Group></CommandTable>)",
            R"(<CommandTable><Group name="a"><Command number="1" id="A" name="a"/><Command number="2" id="A" name="b"/></Group></CommandTable>)",
            R"(<CommandTable><Group name="a"><Command number="0" id="A" name="a"/></Group></CommandTable>)",
            R"(<CommandTable><Group name="a"><Command number="x" id="A" name="a"/></Group></CommandTable>)",
            R"(<CommandTable><Group name="a"><Command number="1" id="A" name=""/></Group></CommandTable>)",
            R"(<CommandTable><Group name="a"><Command number="1" id="A" name="a" keys="Ctrl+Hyper"/></Group></CommandTable>)",
            R"(<CommandTable><Group name="a"><Command number="1" id="A" name="a" frames="4d"/></Group></CommandTable>)",
        };
        for (const char* text : broken) {
            QString error;
            QVERIFY2(!loadTableText(table, QString::fromUtf8(text), &error), text);
            QVERIFY(!error.isEmpty());
            QCOMPARE(table.size(), std::size_t(4));
        }
        QVERIFY(!table.loadXML(L"/nonexistent/commands.xml"));
        QCOMPARE(table.size(), std::size_t(4));
    }

    void namesForTheSixCharacterStyleHaveAtMostSixteenCharacters()
    {
        QVERIFY(CCommandTable::isProperFor6Name(L"１２３４５６７８９０１２３４５６"));
        QVERIFY(!CCommandTable::isProperFor6Name(L"１２３４５６７８９０１２３４５６７"));
        QVERIFY(CCommandTable::isProperFor6Name(L"𠮷𠮷𠮷𠮷𠮷𠮷𠮷𠮷𠮷𠮷𠮷𠮷𠮷𠮷𠮷𠮷"));
    }

    void theTreeOffersTheCommandsOfTheModeAndFrame()
    {
        const CCommandTable table = smallTable();
        QTreeWidget tree;
        using core::IMainFrame;
        ui::helper::setupCommandTree(tree, &table, ui::helper::SCT_SHORTCUT,
                                     IMainFrame::FrameMode2D);
        QCOMPARE(tree.topLevelItemCount(), 1); // groups without a command are left out
        QCOMPARE(tree.topLevelItem(0)->text(0), QStringLiteral("ファイル"));
        QVERIFY(ui::helper::commandNumberOf(tree.topLevelItem(0)) <= 0);
        QCOMPARE(tree.topLevelItem(0)->childCount(), 1); // the recent file takes no key
        QCOMPARE(ui::helper::commandNumberOf(tree.topLevelItem(0)->child(0)), 10);

        ui::helper::setupCommandTree(tree, &table, ui::helper::SCT_ALL, IMainFrame::FrameMode3D);
        QCOMPARE(tree.topLevelItemCount(), 2);
        QCOMPARE(tree.topLevelItem(0)->childCount(), 2);
        QCOMPARE(tree.topLevelItem(1)->text(0), QStringLiteral("3D"));
        QVERIFY(ui::helper::commandNumberOf(tree.topLevelItem(1)) <= 0);
        QCOMPARE(ui::helper::commandNumberOf(tree.topLevelItem(1)->child(0)), 20);

        ui::helper::setupCommandTree(tree, &table, ui::helper::SCT_ALL, IMainFrame::FrameModeRed);
        QCOMPARE(tree.topLevelItem(1)->text(0), QStringLiteral("朱書き"));
        QCOMPARE(ui::helper::commandNumberOf(tree.topLevelItem(1)), -3);

        ui::helper::setupCommandTree(tree, nullptr, ui::helper::SCT_ALL, IMainFrame::FrameMode2D);
        QCOMPARE(tree.topLevelItemCount(), 0);
    }

    // Stored breaks become separator items and back; separators a menu cannot show (leading,
    // trailing, doubled) are dropped.
    void breaksSeparateIntoItemsAndMergeBack()
    {
        CContextMenuData menu;
        menu.addCommandId(L"A");
        menu.addCommandId(L"B", true);
        menu.addCommandId(L"C", true);
        menu.separateBreaks();
        menu.separateBreaks(); // nothing left to split
        QCOMPARE(shape(menu), QStringLiteral("A | B | C"));
        menu.mergeBreaks();
        QCOMPARE(shape(menu), QStringLiteral("A ^B ^C"));
        menu = menuOf(QStringLiteral("| | A | | B |"));
        menu.mergeBreaks();
        QCOMPARE(shape(menu), QStringLiteral("A ^B"));
        menu = menuOf(QStringLiteral("| |"));
        menu.mergeBreaks();
        QCOMPARE(menu.getCount(), 0);
    }

    void itemsAreEditedByPosition()
    {
        CContextMenuData menu;
        menu.addButton(command(1, L"A", L"エー"), 0);
        menu.addButton(command(2, L"B", L"ビー"), 0);
        QVERIFY(menu.insertButton(1, command(3, L"C", L"シー"), 2));
        QVERIFY(menu.insertButton(3, command(4, L"D", L"ディー"), 0)); // at the end
        QVERIFY(!menu.insertButton(5, command(5, L"E", L"イー"), 0));
        QVERIFY(!menu.insertButton(-1, command(5, L"E", L"イー"), 0));
        QCOMPARE(shape(menu), QStringLiteral("A C B D"));
        const SContextMenuDataItem& c = *menu.getItem(1);
        QVERIFY(c.style == 2 && c.name == L"シー" && c.commandNumber == 3);
        QVERIFY(menu.insertBreak(0));
        QVERIFY(menu.moveItemNext(0));
        QCOMPARE(shape(menu), QStringLiteral("A | C B D"));
        QVERIFY(!menu.moveItemPrev(0));
        QVERIFY(!menu.moveItemNext(4));
        QVERIFY(menu.moveItemPrev(4));
        QCOMPARE(shape(menu), QStringLiteral("A | C D B"));
        QVERIFY(menu.deleteItem(1));
        QVERIFY(!menu.deleteItem(4));
        QCOMPARE(shape(menu), QStringLiteral("A C D B"));

        SContextMenuDataItem item;
        QStringList walked;
        for (int pass = 0; pass < 2; ++pass) {
            menu.ResetItemPos();
            while (menu.GetNextItem(item))
                walked << QString::fromStdWString(item.id);
        }
        QCOMPARE(walked.join(u' '), QStringLiteral("A C D B A C D B"));
    }

    void everyFieldOfBothViewsSurvivesTheFile()
    {
        test::HostFixture host;
        CMouseSetting setting = CMouseSetting::makeDefault();
        setting.setMouseSetting(CMouseSetting::k3DView, unusualView());
        CMouseSetting loaded;
        QVERIFY(test::roundTrips(host, setting, loaded));
        QVERIFY(*loaded.getMouseSetting(L"3DView") == unusualView());
        QCOMPARE(loaded.getMouseSetting(L"3DView")->stepZoomRate, 0.123456789012345);
        QVERIFY(loaded.getMouseSetting(L"2DView")->shortcutMenu
                == CMouseSetting::makeDefault().getMouseSetting(L"2DView")->shortcutMenu);
        QVERIFY(!loaded.getMouseSetting(L"3dview"));
        QVERIFY(!loaded.getMouseSetting(nullptr));
        // Views are replaced by name, and removed.
        SMouseSetting view;
        view.wheelRotate = 2;
        loaded.setMouseSetting(CMouseSetting::k2DView, view);
        QCOMPARE(loaded.viewCount(), std::size_t(2));
        QCOMPARE(loaded.getMouseSetting(L"2DView")->wheelRotate, 2);
        QVERIFY(loaded.removeMouseSetting(L"2DView"));
        QVERIFY(!loaded.removeMouseSetting(L"2DView"));
        QCOMPARE(loaded.viewCount(), std::size_t(1));
    }

    void aMalformedFileChangesNothing()
    {
        test::HostFixture host;
        const char* broken[] = {
            R"(<MouseSetting><View name="2DView" wheelRotate="x"/></MouseSetting>)",
            R"(<MouseSetting><View name="2DView" stepZoomRate="inf"/></MouseSetting>)",
            R"(<MouseSetting><View name="2DView" wheelCommands="yes"/></MouseSetting>)",
            R"(<MouseSetting><View name=""/></MouseSetting>)",
            R"(<MouseSetting><View name="2DView"/><View name="2DView"/></MouseSetting>)",
            R"(<MouseSetting><View name="2DView"><ShortcutMenu><Item id=""/></ShortcutMenu></View></MouseSetting>)",
            R"(<MouseSetting><View name="2DView">)",
        };
        CMouseSetting setting = CMouseSetting::makeDefault();
        for (const char* text : broken) {
            QVERIFY2(!test::loadsText(host, setting, text), text);
            QVERIFY(setting.isSame(CMouseSetting::makeDefault()));
        }
        // Fields left out keep their defaults.
        QVERIFY(test::loadsText(
            host, setting,
            R"(<MouseSetting><View name="2DView" wheelRotate="2"/></MouseSetting>)"));
        QCOMPARE(setting.viewCount(), std::size_t(1));
        SMouseSetting expected;
        expected.wheelRotate = 2;
        QVERIFY(*setting.getMouseSetting(L"2DView") == expected);
    }

    void candidateRecordsNeedAViewAndIdentifiers()
    {
        QDomDocument doc;
        ui::setting::SMouseCommands record;
        QVERIFY(record.loadXMLNode(elementOf(
            doc, QStringLiteral(
                     R"(<Commands view="2DView"><Menu><Command id="A"/><Command id=" B "/></Menu>
               <Action><Command id="C"/></Action></Commands>)"))));
        QCOMPARE(record.viewName, std::wstring(L"2DView"));
        QCOMPARE(record.menuCommands, (std::vector<std::wstring>{L"A", L"B"}));
        QCOMPARE(record.actionCommands, (std::vector<std::wstring>{L"C"}));
        QVERIFY(
            !record.loadXMLNode(elementOf(doc, QStringLiteral(R"(<Commands><Menu/></Commands>)"))));
        QVERIFY(!record.loadXMLNode(elementOf(
            doc, QStringLiteral(R"(<Commands view="3DView"><Menu><Command/></Menu></Commands>)"))));
        QCOMPARE(record.viewName, std::wstring(L"2DView")); // unchanged
        QVERIFY(record.loadXMLNode(elementOf(doc, QStringLiteral(R"(<Commands view="3DView"/>)"))));
        QVERIFY(record.menuCommands.empty() && record.actionCommands.empty());
    }
};

QTEST_MAIN(TestCustomizeModel)
#include "tst_customizemodel.moc"
