// The mouse setting and its file, the shortcut menu's items, and the candidate-command records.
#include "support/TestSupport.h"

#include "command/CommandTable.h"
#include "setting/ContextMenuData.h"
#include "setting/MouseCommands.h"
#include "setting/MouseSetting.h"

#include <QDomDocument>
#include <QTest>

using namespace kesto;
using ui::control::CContextMenuData;
using ui::control::SContextMenuDataItem;
using ui::setting::CMouseSetting;
using ui::setting::SMouseSetting;

namespace {

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

class TestMouseModel : public QObject {
    Q_OBJECT

private slots:
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

QTEST_MAIN(TestMouseModel)
#include "tst_mousemodel.moc"
