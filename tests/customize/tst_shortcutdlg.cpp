// "ショートカットキーの設定" end to end through doShortCutDlg, with keys pressed as a user
// presses them.
#include "support/TestSupport.h"

#include "command/CommandTable.h"
#include "command/CommandTree.h"
#include "config/CustomizeEntries.h"
#include "control/KsListCtrl.h"
#include "customize/ShortCutRules.h"
#include "framework/ModalHook.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTreeWidget>

using namespace kesto;
using namespace kesto::ui::framework;
using kesto::test::click;
using kesto::test::ctrl;
using kesto::test::isEnabled;
using ui::control::CKsListCtrl;
using ui::helper::commandNumberOf;
using ui::setting::CShortCutSetting;

namespace {

constexpr int Tree = 8001, Edit = 8002, CurrentKeys = 8003, AllKeys = 8004, Owner = 13017;
constexpr int Assign = 7501, Delete = 7502, Reset = 7704, Help = 7500;
enum { Save = 10, SaveAs = 11, Open = 12, Line = 20, Circle = 21, Erase = 30 };

const utility::CCommandTable& table()
{
    static const utility::CCommandTable commands =
        test::commandTable(QStringLiteral(R"(<CommandTable>
            <Group name="ファイル">
              <Command number="10" id="ID_FILE_SAVE" name="上書き保存" keys="Ctrl+S"/>
              <Command number="11" id="ID_FILE_SAVE_AS" name="名前を付けて保存" keys="Ctrl+Shift+S"/>
              <Command number="12" id="ID_FILE_OPEN" name="開く" keys="Ctrl+O"/>
            </Group>
            <Group name="作図">
              <Command number="20" id="ID_DRAW_LINE" name="線分"/>
              <Command number="21" id="ID_DRAW_CIRCLE" name="円"/>
            </Group>
            <Group name="編集">
              <Command number="30" id="ID_EDIT_ERASE" name="削除" keys="Del"/>
            </Group></CommandTable>)"));
    return commands;
}

CShortCutSetting defaults()
{
    CShortCutSetting setting;
    setting.setupByTable(&table());
    return setting;
}

bool run(CShortCutSetting& setting)
{
    return ui::config::doShortCutDlg(setting, &table());
}

QTreeWidget& treeOf(CKsDialog& d)
{
    return ctrl<QTreeWidget>(d, Tree);
}
QLineEdit& editOf(CKsDialog& d)
{
    return ctrl<QLineEdit>(d, Edit);
}
CKsListCtrl& allKeys(CKsDialog& d)
{
    return test::listOf(d, AllKeys);
}
QString ownerOf(CKsDialog& d)
{
    return ctrl<QLabel>(d, Owner).text();
}
int treeCommand(CKsDialog& d)
{
    return commandNumberOf(treeOf(d).currentItem());
}

// The rows of a list, cells joined by "|".
QStringList rows(CKsListCtrl& list)
{
    QStringList out;
    for (int r = 0; r < list.getRowCount(); ++r)
        out << test::rowTexts(list, r).join(u'|');
    return out;
}
QStringList currentKeys(CKsDialog& d)
{
    return rows(test::listOf(d, CurrentKeys));
}

QTreeWidgetItem* itemOf(CKsDialog& d, int number)
{
    for (QTreeWidgetItemIterator it(&treeOf(d)); *it; ++it) {
        if (commandNumberOf(*it) == number)
            return *it;
    }
    return nullptr;
}

// Clicks a tree item where it is drawn, as a user does.
void clickCommand(CKsDialog& d, int number)
{
    QTreeWidget& tree = treeOf(d);
    QTreeWidgetItem* item = itemOf(d, number);
    QVERIFY(item);
    tree.scrollToItem(item);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(item).center());
    QCOMPARE(tree.currentItem(), item);
}

// A key pressed in the capture edit. The Japanese keyboard's own keys, which QTest cannot
// type, are delivered as a platform delivers them.
void press(CKsDialog& d, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    if (key != Qt::Key_Muhenkan && key != Qt::Key_Eisu_toggle) {
        QTest::keyClick(&editOf(d), key, modifiers);
        return;
    }
    for (QEvent::Type type : {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers);
        QApplication::sendEvent(&editOf(d), &event);
    }
}

QStringList bindings(const CShortCutSetting& setting)
{
    QStringList out;
    for (const auto& s : setting.items())
        out << QString::fromStdWString(s.makeShortCutSz()) + u'='
                   + QString::number(s.commandNumber);
    out.sort();
    return out;
}

} // namespace

class TestShortCutDlg : public QObject {
    Q_OBJECT

private slots:
    void opensWithTheTreeAndAllBindings()
    {
        test::HostFixture host;
        CShortCutSetting setting = defaults();
        ScopedModalDrivers drivers([&](CKsDialog& d) {
            QCOMPARE(d.windowTitle(), QStringLiteral("ショートカットキーの設定"));
            QCOMPARE(core::Application::getInstance()->dialogs().find("ShortCutDlg"), &d);
            QTreeWidget& tree = treeOf(d);
            QCOMPARE(tree.topLevelItemCount(), 3);
            QCOMPARE(tree.topLevelItem(1)->text(0), QStringLiteral("作図"));
            QVERIFY(commandNumberOf(tree.topLevelItem(1)) <= 0);
            QCOMPARE(tree.topLevelItem(1)->child(0)->text(0), QStringLiteral("線分"));
            QCOMPARE(test::headerTexts(allKeys(d)), QStringList({"コマンド名", "割り当てキー"}));
            QCOMPARE(rows(allKeys(d)),
                     QStringList({"上書き保存|Ctrl+S", "名前を付けて保存|Ctrl+Shift+S",
                                  "開く|Ctrl+O", "削除|Del"}));
            QCOMPARE(test::headerTexts(test::listOf(d, CurrentKeys)), QStringList{"割り当てキー"});
            QVERIFY(!isEnabled(d, Assign) && !isEnabled(d, Delete));
            QVERIFY(click(d, Help));
            // Growing the dialog grows the tree and the list.
            const QSize first = d.size();
            QCOMPARE(d.minimumSize(), first);
            const QRect treeAt = treeOf(d).geometry();
            const QRect listAt = allKeys(d).geometry();
            const QRect editAt = editOf(d).geometry();
            const QRect okAt = d.GetDlgItem(IDOK)->geometry();
            d.resize(first + QSize(200, 120));
            QApplication::processEvents();
            QVERIFY(treeOf(d).height() > treeAt.height() + 100);
            QVERIFY(allKeys(d).height() > listAt.height() + 100);
            QVERIFY(treeOf(d).width() + allKeys(d).width() > treeAt.width() + listAt.width() + 150);
            QCOMPARE(editOf(d).geometry().top(), editAt.top() + 120);
            QCOMPARE(d.GetDlgItem(IDOK)->geometry().right(), okAt.right() + 200);
            test::pressCancel(d);
        });
        QVERIFY(!run(setting));
        QCOMPARE(host.helpTopics(), QStringList{"DLG_HLP_SET_SHORTCUT"});
        QVERIFY(!core::Application::getInstance()->dialogs().find("ShortCutDlg"));
        // Without a command table nothing opens.
        drivers.add([](CKsDialog&) { QFAIL("no dialog expected"); });
        QVERIFY(!ui::config::doShortCutDlg(setting, nullptr));
        QCOMPARE(drivers.pending(), std::size_t(1));
    }

    // What the edit shows after each press, and who owns that key: keys that cannot serve
    // are kept out, those that end dialogs clear the capture and end nothing.
    void keysAreCapturedAsTheyArePressed()
    {
        test::HostFixture host;
        CShortCutSetting setting = defaults();
        // Qt key|modifiers (test::modifiersOf)|text shown|owner named
        const QString presses = QStringLiteral(
            "Key_Control|C||; Key_S|C|Ctrl+S|上書き保存; Key_Shift||Ctrl+S|上書き保存; "
            "Key_Alt||Ctrl+S|上書き保存; Key_Left||Ctrl+S|上書き保存; Key_Up||Ctrl+S|上書き保存; "
            "Key_Right||Ctrl+S|上書き保存; Key_Down||Ctrl+S|上書き保存; "
            "Key_Super_L||Ctrl+S|上書き保存; "
            "Key_Super_R||Ctrl+S|上書き保存; Key_Menu||Ctrl+S|上書き保存; "
            "Key_NumLock||Ctrl+S|上書き保存; "
            "Key_5|KC|Ctrl+Num 5|; Key_F10||F10|; Key_X|A|Alt+X|; "
            "Key_Exclam|CS|Ctrl+Shift+1|; Key_Delete||Del|削除; Key_Tab|||; "
            "Key_S|C|Ctrl+S|上書き保存; Key_Return|||; Key_S|C|Ctrl+S|上書き保存; Key_Enter|||; "
            "Key_Delete||Del|削除; Key_Escape|||; Key_S|C|Ctrl+S|上書き保存; Key_F1|||; "
            "Key_S|C|Ctrl+S|上書き保存; Key_Muhenkan|||; Key_S|C|Ctrl+S|上書き保存; "
            "Key_Eisu_toggle|||; Key_Backtab|S||");
        ScopedModalDrivers drivers([&](CKsDialog& d) {
            editOf(d).setFocus();
            for (const QString& entry : presses.split(QStringLiteral("; "))) {
                const QStringList p = entry.split(u'|');
                press(d, test::keyNamed(p[0]), test::modifiersOf(p[1]));
                QCOMPARE(editOf(d).text(), p[2]);
                QCOMPARE(ownerOf(d), p[3].isEmpty() ? p[3] : "現在の割り当て\n" + p[3]);
                QVERIFY(editOf(d).hasFocus() || !QApplication::focusWidget());
                QVERIFY(!d.isEnded());
            }
            test::pressCancel(d);
        });
        QVERIFY(!run(setting));
        QCOMPARE(ui::config::shortcutrules::ownerText({}), QString()); // a nameless owner
    }

    void assigningAKeyOfAnotherCommandMovesIt()
    {
        test::HostFixture host;
        CShortCutSetting setting = defaults();
        ScopedModalDrivers drivers([&](CKsDialog& d) {
            clickCommand(d, Line);
            QVERIFY(!isEnabled(d, Assign)); // no key yet
            editOf(d).setFocus();
            press(d, Qt::Key_S, Qt::ControlModifier);
            QVERIFY(click(d, Assign));
            QCOMPARE(rows(allKeys(d)), QStringList({"線分|Ctrl+S", "名前を付けて保存|Ctrl+Shift+S",
                                                    "開く|Ctrl+O", "削除|Del"}));
            QCOMPARE(allKeys(d).getSelectedRow(), 0);
            QCOMPARE(treeCommand(d), int(Line));
            QCOMPARE(currentKeys(d), QStringList{"Ctrl+S"});
            QCOMPARE(editOf(d).text() + ownerOf(d), QString());
            QVERIFY(!isEnabled(d, Assign));
            press(d, Qt::Key_L, Qt::ControlModifier); // a second key for the same command
            QVERIFY(click(d, Assign));
            QCOMPARE(currentKeys(d), QStringList({"Ctrl+S", "Ctrl+L"}));
            test::pressOk(d);
        });
        QVERIFY(run(setting));
        QCOMPARE(bindings(setting),
                 QStringList({"Ctrl+L=20", "Ctrl+O=12", "Ctrl+S=20", "Ctrl+Shift+S=11", "Del=30"}));
        const auto* line = setting.findByShortCut(9, 'S');
        QVERIFY(line->id == L"ID_DRAW_LINE" && line->name == L"線分");
    }

    // Assign needs a command and a key not already its own; an OK that undid its edits
    // is no change.
    void assignNeedsACommandAndAKeyNotAlreadyItsOwn()
    {
        test::HostFixture host;
        CShortCutSetting setting = defaults();
        ScopedModalDrivers drivers([&](CKsDialog& d) {
            editOf(d).setFocus();
            press(d, Qt::Key_S, Qt::ControlModifier);
            QVERIFY(!isEnabled(d, Assign)); // nothing chosen in the tree
            press(d, Qt::Key_F12);
            treeOf(d).setCurrentItem(treeOf(d).topLevelItem(1)); // a group
            QVERIFY(!isEnabled(d, Assign));
            QCOMPARE(editOf(d).text(), QStringLiteral("F12")); // a free key stays
            press(d, Qt::Key_S, Qt::ControlModifier);
            treeOf(d).setCurrentItem(itemOf(d, Save));
            QCOMPARE(editOf(d).text(), QString()); // listed in "一覧": cleared
            press(d, Qt::Key_S, Qt::ControlModifier);
            QVERIFY(!isEnabled(d, Assign)); // already the key of 上書き保存
            press(d, Qt::Key_F12);
            QVERIFY(isEnabled(d, Assign));

            allKeys(d).selectRow(2); // Ctrl+O, deleted and given back
            QVERIFY(click(d, Delete));
            clickCommand(d, Open);
            press(d, Qt::Key_O, Qt::ControlModifier);
            QVERIFY(click(d, Assign));
            test::pressOk(d);
        });
        QVERIFY(!run(setting));
        QVERIFY(setting.isSame(defaults()));
    }

    // Rows, tree and current keys follow each other; "削除" removes the selected binding.
    void deleteRemovesTheSelectedBinding()
    {
        test::HostFixture host;
        CShortCutSetting setting = defaults();
        setting.addItem(1, 0x74, Save, L"ID_FILE_SAVE", L"上書き保存"); // F5
        ScopedModalDrivers drivers([&](CKsDialog& d) {
            CKsListCtrl& all = allKeys(d);
            all.selectRow(4); // F5 of 上書き保存
            QCOMPARE(treeCommand(d), int(Save));
            QCOMPARE(currentKeys(d), QStringList({"Ctrl+S", "F5"}));
            QCOMPARE(all.getSelectedRow(), 4); // the tree following does not move the row
            clickCommand(d, Open);
            QCOMPARE(all.getSelectedRow(), 2);
            QCOMPARE(currentKeys(d), QStringList{"Ctrl+O"});
            clickCommand(d, Circle);
            QCOMPARE(all.getSelectedRow(), -1);
            QCOMPARE(currentKeys(d), QStringList());
            QVERIFY(!isEnabled(d, Delete));
            all.selectRow(1);
            editOf(d).setFocus();
            press(d, Qt::Key_F7);
            QVERIFY(click(d, Delete));
            QCOMPARE(rows(all), QStringList({"上書き保存|Ctrl+S", "開く|Ctrl+O", "削除|Del",
                                             "上書き保存|F5"}));
            QCOMPARE(all.getSelectedRow(), 1); // the next row, which the tree follows
            QCOMPARE(treeCommand(d), int(Open));
            QCOMPARE(currentKeys(d), QStringList{"Ctrl+O"});
            QCOMPARE(editOf(d).text(), QString());
            all.selectRow(3);
            QVERIFY(click(d, Delete));
            QCOMPARE(all.getSelectedRow(), 2); // the new last row
            for (int row : {2, 1, 0}) {
                all.selectRow(row);
                QVERIFY(click(d, Delete));
            }
            QCOMPARE(all.getRowCount(), 0);
            QVERIFY(!treeOf(d).currentItem() || !treeOf(d).currentItem()->isSelected());
            QCOMPARE(currentKeys(d), QStringList());
            QVERIFY(!isEnabled(d, Delete));
            test::pressOk(d);
        });
        QVERIFY(run(setting));
        QCOMPARE(setting.getCount(), 0);
    }

    void resetRestoresTheTablesKeysAndCountsOnlyARealChange()
    {
        test::HostFixture host;
        CShortCutSetting custom;
        custom.addItem(9, 'Q', Circle, L"ID_DRAW_CIRCLE", L"円");
        CShortCutSetting setting = custom;
        ScopedModalDrivers drivers([&](CKsDialog& d) {
            allKeys(d).selectRow(0);
            QVERIFY(click(d, Reset));
            QCOMPARE(allKeys(d).getRowCount(), 4);
            QCOMPARE(currentKeys(d), QStringList());
            test::pressCancel(d);
        });
        for (int i = 0; i < 2; ++i) {
            drivers.add([&](CKsDialog& d) {
                QVERIFY(click(d, Reset));
                test::pressOk(d);
            });
        }
        QVERIFY(!run(setting));
        QVERIFY(setting.isSame(custom));
        QVERIFY(run(setting));
        QVERIFY(setting.isSame(defaults()));
        QVERIFY(!run(setting)); // defaults again: no change
    }
};

QTEST_MAIN(TestShortCutDlg)
#include "tst_shortcutdlg.moc"
