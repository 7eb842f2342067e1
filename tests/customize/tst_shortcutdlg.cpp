// "ショートカットキーの設定" end to end through doShortCutDlg, with keys pressed as a user
// presses them.
#include "support/TestSupport.h"

#include "command/CommandTable.h"
#include "command/CommandTree.h"
#include "config/CustomizeEntries.h"
#include "control/KsListCtrl.h"
#include "framework/ModalHook.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTreeWidget>

using namespace kesto;
using namespace kesto::ui::framework;
using kesto::test::click;
using kesto::test::isEnabled;
using ui::control::CKsListCtrl;
using ui::setting::CShortCutSetting;

namespace {

constexpr int Tree = 8001, Edit = 8002, CurrentKeys = 8003, AllKeys = 8004, Owner = 13017;
constexpr int Assign = 7501, Delete = 7502, Reset = 7704, Help = 7500;
enum { Save = 10, SaveAs = 11, Open = 12, Line = 20, Circle = 21, Erase = 30 };
const std::uint16_t kCtrl = 9;

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

QTreeWidget& treeOf(CKsDialog& d)
{
    return *d.dlgItem<QTreeWidget>(Tree);
}
QLineEdit& editOf(CKsDialog& d)
{
    return *d.dlgItem<QLineEdit>(Edit);
}
CKsListCtrl& allKeysOf(CKsDialog& d)
{
    return test::listOf(d, AllKeys);
}
CKsListCtrl& currentKeysOf(CKsDialog& d)
{
    return test::listOf(d, CurrentKeys);
}
QString ownerOf(CKsDialog& d)
{
    return d.dlgItem<QLabel>(Owner)->text();
}

QStringList rows(CKsListCtrl& list)
{
    QStringList out;
    for (int r = 0; r < list.getRowCount(); ++r)
        out << test::rowTexts(list, r).join(u'|');
    return out;
}

QTreeWidgetItem* itemOf(CKsDialog& d, int number)
{
    for (QTreeWidgetItemIterator it(&treeOf(d)); *it; ++it) {
        if (ui::helper::commandNumberOf(*it) == number)
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

void press(CKsDialog& d, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    QTest::keyClick(&editOf(d), key, modifiers);
}

// Keys QTest cannot type (the Japanese keyboard's own), delivered as a platform delivers them.
void pressJapaneseKey(CKsDialog& d, Qt::Key key)
{
    for (QEvent::Type type : {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier);
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
            QVERIFY(ui::helper::commandNumberOf(tree.topLevelItem(1)) <= 0);
            QCOMPARE(tree.topLevelItem(1)->child(0)->text(0), QStringLiteral("線分"));
            CKsListCtrl& all = allKeysOf(d);
            QCOMPARE(test::headerTexts(all), QStringList({"コマンド名", "割り当てキー"}));
            QCOMPARE(rows(all), QStringList({"上書き保存|Ctrl+S", "名前を付けて保存|Ctrl+Shift+S",
                                             "開く|Ctrl+O", "削除|Del"}));
            QCOMPARE(test::headerTexts(currentKeysOf(d)), QStringList{"割り当てキー"});
            QVERIFY(!isEnabled(d, Assign) && !isEnabled(d, Delete));
            QVERIFY(click(d, Help));
            test::pressCancel(d);
        });
        QVERIFY(!ui::config::doShortCutDlg(setting, &table()));
        QCOMPARE(host.helpTopics(), QStringList{"DLG_HLP_SET_SHORTCUT"});
        QVERIFY(!core::Application::getInstance()->dialogs().find("ShortCutDlg"));
    }

    void keysAreCapturedAsTheyArePressed()
    {
        test::HostFixture host;
        CShortCutSetting setting = defaults();
        ScopedModalDrivers drivers([&](CKsDialog& d) {
            QLineEdit& edit = editOf(d);
            edit.setFocus();
            press(d, Qt::Key_Control, Qt::ControlModifier); // Ctrl alone
            QCOMPARE(edit.text(), QString());
            press(d, Qt::Key_S, Qt::ControlModifier);
            QCOMPARE(edit.text(), QStringLiteral("Ctrl+S"));
            QCOMPARE(ownerOf(d), QStringLiteral("現在の割り当て\n上書き保存"));
            for (Qt::Key kept :
                 {Qt::Key_Shift, Qt::Key_Alt, Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down,
                  Qt::Key_Super_L, Qt::Key_Super_R, Qt::Key_Menu, Qt::Key_NumLock})
                press(d, kept);
            QCOMPARE(edit.text(), QStringLiteral("Ctrl+S"));
            press(d, Qt::Key_5, Qt::KeypadModifier | Qt::ControlModifier);
            QCOMPARE(edit.text(), QStringLiteral("Ctrl+Num 5"));
            QCOMPARE(ownerOf(d), QString());
            press(d, Qt::Key_F10);
            QCOMPARE(edit.text(), QStringLiteral("F10"));
            press(d, Qt::Key_X, Qt::AltModifier);
            QCOMPARE(edit.text(), QStringLiteral("Alt+X"));
            press(d, Qt::Key_Exclam, Qt::ControlModifier | Qt::ShiftModifier);
            QCOMPARE(edit.text(), QStringLiteral("Ctrl+Shift+1"));
            press(d, Qt::Key_Delete);
            QCOMPARE(edit.text(), QStringLiteral("Del"));
            QCOMPARE(ownerOf(d), QStringLiteral("現在の割り当て\n削除"));
            QVERIFY(!d.isEnded());
            test::pressCancel(d);
        });
        QVERIFY(!ui::config::doShortCutDlg(setting, &table()));
    }

    void tabEnterEscapeAndF1ClearTheCaptureAndCloseNothing()
    {
        test::HostFixture host;
        CShortCutSetting setting = defaults();
        ScopedModalDrivers drivers([&](CKsDialog& d) {
            QLineEdit& edit = editOf(d);
            edit.setFocus();
            for (Qt::Key clearing : {Qt::Key_Tab, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape,
                                     Qt::Key_F1, Qt::Key_Muhenkan, Qt::Key_Eisu_toggle}) {
                press(d, Qt::Key_S, Qt::ControlModifier);
                QCOMPARE(edit.text(), QStringLiteral("Ctrl+S"));
                if (clearing == Qt::Key_Muhenkan || clearing == Qt::Key_Eisu_toggle)
                    pressJapaneseKey(d, clearing);
                else
                    press(d, clearing);
                QCOMPARE(edit.text(), QString());
                QCOMPARE(ownerOf(d), QString());
                QVERIFY(edit.hasFocus() || !QApplication::focusWidget());
                QVERIFY(!d.isEnded());
            }
            press(d, Qt::Key_Backtab, Qt::ShiftModifier);
            QVERIFY(!d.isEnded());
            test::pressCancel(d);
        });
        QVERIFY(!ui::config::doShortCutDlg(setting, &table()));
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
            QVERIFY(isEnabled(d, Assign));
            QVERIFY(click(d, Assign));
            CKsListCtrl& all = allKeysOf(d);
            QCOMPARE(rows(all), QStringList({"線分|Ctrl+S", "名前を付けて保存|Ctrl+Shift+S",
                                             "開く|Ctrl+O", "削除|Del"}));
            QCOMPARE(all.getSelectedRow(), 0);
            QCOMPARE(ui::helper::commandNumberOf(treeOf(d).currentItem()), int(Line));
            QCOMPARE(rows(currentKeysOf(d)), QStringList{"Ctrl+S"});
            QCOMPARE(editOf(d).text(), QString());
            QCOMPARE(ownerOf(d), QString());
            QVERIFY(!isEnabled(d, Assign));
            // A second key for the same command.
            press(d, Qt::Key_L, Qt::ControlModifier);
            QVERIFY(click(d, Assign));
            QCOMPARE(rows(currentKeysOf(d)), QStringList({"Ctrl+S", "Ctrl+L"}));
            test::pressOk(d);
        });
        QVERIFY(ui::config::doShortCutDlg(setting, &table()));
        QCOMPARE(bindings(setting),
                 QStringList({"Ctrl+L=20", "Ctrl+O=12", "Ctrl+S=20", "Ctrl+Shift+S=11", "Del=30"}));
        const auto* line = setting.findByShortCut(kCtrl, 'S');
        QCOMPARE(line->id, std::wstring(L"ID_DRAW_LINE"));
        QCOMPARE(line->name, std::wstring(L"線分"));
    }

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
            // Ctrl+S is listed, so choosing in the tree clears the capture.
            QCOMPARE(editOf(d).text(), QString());
            press(d, Qt::Key_S, Qt::ControlModifier);
            QVERIFY(!isEnabled(d, Assign)); // already the key of 上書き保存
            press(d, Qt::Key_F12);
            QVERIFY(isEnabled(d, Assign));
            test::pressOk(d);
        });
        QVERIFY(!ui::config::doShortCutDlg(setting, &table())); // OK without a change
        QVERIFY(setting.isSame(defaults()));
    }

    void rowsTreeAndCurrentKeysFollowEachOther()
    {
        test::HostFixture host;
        CShortCutSetting setting = defaults();
        setting.addItem(1, 0x74, Save, L"ID_FILE_SAVE", L"上書き保存"); // F5
        ScopedModalDrivers drivers([&](CKsDialog& d) {
            CKsListCtrl& all = allKeysOf(d);
            CKsListCtrl& current = currentKeysOf(d);
            all.selectRow(4); // F5 of 上書き保存
            QCOMPARE(ui::helper::commandNumberOf(treeOf(d).currentItem()), int(Save));
            QCOMPARE(rows(current), QStringList({"Ctrl+S", "F5"}));
            QCOMPARE(all.getSelectedRow(), 4); // the tree following does not move the row
            QVERIFY(isEnabled(d, Delete));
            clickCommand(d, Open);
            QCOMPARE(all.getSelectedRow(), 2);
            QCOMPARE(rows(current), QStringList{"Ctrl+O"});
            clickCommand(d, Circle);
            QCOMPARE(all.getSelectedRow(), -1);
            QCOMPARE(rows(current), QStringList());
            QVERIFY(!isEnabled(d, Delete));
            test::pressCancel(d);
        });
        ui::config::doShortCutDlg(setting, &table());
    }

    void deleteRemovesTheSelectedBinding()
    {
        test::HostFixture host;
        CShortCutSetting setting = defaults();
        ScopedModalDrivers drivers([&](CKsDialog& d) {
            CKsListCtrl& all = allKeysOf(d);
            all.selectRow(1);
            editOf(d).setFocus();
            press(d, Qt::Key_F7);
            QVERIFY(click(d, Delete));
            QCOMPARE(rows(all), QStringList({"上書き保存|Ctrl+S", "開く|Ctrl+O", "削除|Del"}));
            QCOMPARE(all.getSelectedRow(), 1); // the next row, which the tree follows
            QCOMPARE(ui::helper::commandNumberOf(treeOf(d).currentItem()), int(Open));
            QCOMPARE(rows(currentKeysOf(d)), QStringList{"Ctrl+O"});
            QCOMPARE(editOf(d).text(), QString());
            all.selectRow(2);
            QVERIFY(click(d, Delete));
            QCOMPARE(all.getSelectedRow(), 1);
            all.selectRow(1);
            QVERIFY(click(d, Delete));
            all.selectRow(0);
            QVERIFY(click(d, Delete));
            QCOMPARE(all.getRowCount(), 0);
            QVERIFY(!treeOf(d).currentItem() || !treeOf(d).currentItem()->isSelected());
            QCOMPARE(currentKeysOf(d).getRowCount(), 0);
            QVERIFY(!isEnabled(d, Delete));
            test::pressOk(d);
        });
        QVERIFY(ui::config::doShortCutDlg(setting, &table()));
        QCOMPARE(setting.getCount(), 0);
    }

    void resetRestoresTheTablesKeysAndCountsOnlyARealChange()
    {
        test::HostFixture host;
        CShortCutSetting custom;
        custom.addItem(kCtrl, 'Q', Circle, L"ID_DRAW_CIRCLE", L"円");
        CShortCutSetting setting = custom;
        ScopedModalDrivers drivers;
        drivers.add([&](CKsDialog& d) {
            allKeysOf(d).selectRow(0);
            QVERIFY(click(d, Reset));
            QCOMPARE(rows(allKeysOf(d)).size(), 4);
            QCOMPARE(currentKeysOf(d).getRowCount(), 0);
            test::pressCancel(d);
        });
        drivers.add([&](CKsDialog& d) {
            QVERIFY(click(d, Reset));
            test::pressOk(d);
        });
        drivers.add([&](CKsDialog& d) {
            QVERIFY(click(d, Reset));
            test::pressOk(d);
        });
        QVERIFY(!ui::config::doShortCutDlg(setting, &table()));
        QVERIFY(setting.isSame(custom));
        QVERIFY(ui::config::doShortCutDlg(setting, &table()));
        QVERIFY(setting.isSame(defaults()));
        QVERIFY(!ui::config::doShortCutDlg(setting, &table())); // defaults again: no change
    }

    void undoingAnEditIsNoChange()
    {
        test::HostFixture host;
        CShortCutSetting setting = defaults();
        ScopedModalDrivers drivers([&](CKsDialog& d) {
            allKeysOf(d).selectRow(2); // Ctrl+O
            QVERIFY(click(d, Delete));
            clickCommand(d, Open);
            editOf(d).setFocus();
            press(d, Qt::Key_O, Qt::ControlModifier);
            QVERIFY(click(d, Assign));
            test::pressOk(d);
        });
        QVERIFY(!ui::config::doShortCutDlg(setting, &table()));
    }

    void withoutACommandTableNothingOpens()
    {
        test::HostFixture host;
        CShortCutSetting setting = defaults();
        ScopedModalDrivers drivers([](CKsDialog&) { QFAIL("no dialog expected"); });
        QVERIFY(!ui::config::doShortCutDlg(setting, nullptr));
        QCOMPARE(drivers.pending(), std::size_t(1));
    }

    void growingTheDialogGrowsTheTreeAndTheList()
    {
        test::HostFixture host;
        CShortCutSetting setting = defaults();
        ScopedModalDrivers drivers([&](CKsDialog& d) {
            const QSize first = d.size();
            QCOMPARE(d.minimumSize(), first);
            const QRect tree = treeOf(d).geometry();
            const QRect list = allKeysOf(d).geometry();
            const QRect edit = editOf(d).geometry();
            const QRect ok = d.GetDlgItem(IDOK)->geometry();
            d.resize(first + QSize(200, 120));
            QApplication::processEvents();
            QVERIFY(treeOf(d).height() > tree.height() + 100);
            QVERIFY(allKeysOf(d).height() > list.height() + 100);
            QVERIFY(treeOf(d).width() + allKeysOf(d).width() > tree.width() + list.width() + 150);
            QCOMPARE(editOf(d).geometry().top(), edit.top() + 120);
            QCOMPARE(d.GetDlgItem(IDOK)->geometry().right(), ok.right() + 200);
            test::pressCancel(d);
        });
        ui::config::doShortCutDlg(setting, &table());
    }
};

QTEST_MAIN(TestShortCutDlg)
#include "tst_shortcutdlg.moc"
