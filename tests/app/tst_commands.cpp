// The workbench runs its commands by the keys the user set in "ショートカットキーの設定", and
// renders the customisation and table dialogs.
#include "WorkbenchFixture.h"
#include "support/TestSupport.h"

#include "window/CommandActions.h"
#include "window/ElidingStatusBar.h"
#include "window/Screenshots.h"
#include "window/WorkbenchWindow.h"

#include "command/CommandTable.h"
#include "core/Application.h"
#include "framework/ModalHook.h"
#include "setting/MouseSetting.h"

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTabBar>
#include <QTest>
#include <QTreeWidget>

using namespace kesto;
using namespace kesto::workbench;
using ui::framework::CKsDialog;
using ui::framework::ScopedModalDrivers;

namespace {

using test::CommandTableLoaded;

// The workbench with its window shown and active.
struct Workbench : test::Workbench {
    std::unique_ptr<WorkbenchWindow> window;
    bool active = false;

    explicit Workbench(const QString& folder)
        : test::Workbench(folder)
        , window(std::make_unique<WorkbenchWindow>(session))
    {
        window->show();
        window->activateWindow();
        active = QTest::qWaitForWindowActive(window.get());
    }

    QWidget* focusTarget() const { return window->findChild<QTreeWidget*>(); }
    const Topic& shortCutTopic() const
    {
        return *session.findTopic(QStringLiteral("shortcut-keys"));
    }
    QString status() const { return window->statusBar()->currentMessage(); }
};

// In the shortcut dialog: the command of the given name gets the key.
ui::framework::ModalHook::Driver bind(const QString& command, Qt::Key key,
                                      Qt::KeyboardModifiers modifiers = {})
{
    return [=](CKsDialog& d) {
        auto* tree = d.dlgItem<QTreeWidget>(8001);
        const auto found = tree->findItems(command, Qt::MatchExactly | Qt::MatchRecursive);
        QCOMPARE(found.size(), 1);
        tree->setCurrentItem(found.first());
        auto* edit = d.dlgItem<QLineEdit>(8002);
        edit->setFocus();
        QTest::keyClick(edit, key, modifiers);
        QVERIFY(test::click(d, 7501));
        QVERIFY(test::click(d, 1));
    };
}

} // namespace

class TestCommands : public QObject {
    Q_OBJECT

private slots:
    void theDefaultKeysRunTheirCommands()
    {
        test::HostFixture host;
        CommandTableLoaded table;
        QVERIFY(table.loaded);
        Workbench bench(host.folder());
        QSignalSpy runs(bench.window->commands(), &CommandActions::commandRun);
        QTest::keyClick(bench.focusTarget(), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(runs.size(), 1);
        QCOMPARE(runs.at(0).at(1).toString(), QStringLiteral("ID_FILE_SAVE"));
        QVERIFY(bench.status().contains(QStringLiteral("上書き保存")));
        QVERIFY(host.log().contains(core::LogLevel::Information,
                                    QStringLiteral("command run: ID_FILE_SAVE 上書き保存")));
        QTest::keyClick(bench.focusTarget(), Qt::Key_F12);
        QCOMPARE(runs.size(), 1); // F12 is nobody's
        const utility::SCommand* save =
            core::Application::getInstance()->getCommandTable()->findCommand(L"ID_FILE_SAVE");
        QCOMPARE(bench.window->commands()->actionOf(save->number)->text(),
                 QStringLiteral("上書き保存\tCtrl+S"));
    }

    // Shortened in the middle, so that both ends stay readable, and whole in the tool tip.
    void aStatusTooLongForTheBarIsShortenedNotCut()
    {
        test::HostFixture host;
        Workbench bench(host.folder());
        auto* bar = qobject_cast<CElidingStatusBar*>(bench.window->statusBar());
        QVERIFY(bar);
        const QString lead = QStringLiteral("設定フォルダ: ");
        const QString folder = QStringLiteral("/home/利用者/とても長い名前のフォルダ").repeated(4)
                               + QStringLiteral("/kesto-settings");
        bar->showMessage(lead + folder);
        const QString shown = bar->shownText();
        QVERIFY2(shown.startsWith(lead) && shown.endsWith(QStringLiteral("/kesto-settings"))
                     && shown.contains(QChar(0x2026)),
                 qPrintable(shown));
        QVERIFY(bar->fontMetrics().horizontalAdvance(shown) < bar->width());
        QCOMPARE(bar->toolTip(), lead + folder);
        bar->showMessage(QStringLiteral("図面を開きました。"));
        QCOMPARE(bar->shownText(), QStringLiteral("図面を開きました。"));
        QVERIFY(bar->toolTip().isEmpty());
    }

    void aKeyBoundInTheDialogRunsItsCommandAfterOk()
    {
        test::HostFixture host;
        CommandTableLoaded table;
        {
            Workbench bench(host.folder());
            QSignalSpy runs(bench.window->commands(), &CommandActions::commandRun);
            ScopedModalDrivers drivers(bind(QStringLiteral("線分"), Qt::Key_F12));
            bench.window->openTopic(bench.shortCutTopic());
            QVERIFY(QFile::exists(host.path(QStringLiteral("ShortCutSetting.xml"))));
            QTest::keyClick(bench.focusTarget(), Qt::Key_F12);
            QCOMPARE(runs.size(), 1);
            QCOMPARE(runs.at(0).at(1).toString(), QStringLiteral("ID_DRAW_LINE"));
            QVERIFY(bench.status().contains(QStringLiteral("線分")));
            QVERIFY(host.log().contains(core::LogLevel::Information,
                                        QStringLiteral("command run: ID_DRAW_LINE 線分")));
        }
        Workbench restarted(host.folder());
        QSignalSpy runs(restarted.window->commands(), &CommandActions::commandRun);
        QTest::keyClick(restarted.focusTarget(), Qt::Key_F12);
        QCOMPARE(runs.size(), 1);
        QCOMPARE(runs.at(0).at(1).toString(), QStringLiteral("ID_DRAW_LINE"));
    }

    void aMovedKeyRunsOnlyItsNewCommandAndBeatsTheWindowsOwnShortcut()
    {
        test::HostFixture host;
        CommandTableLoaded table;
        Workbench bench(host.folder());
        QVERIFY(bench.active); // the window's own shortcuts are live
        QSignalSpy runs(bench.window->commands(), &CommandActions::commandRun);
        ScopedModalDrivers drivers;
        drivers.add(bind(QStringLiteral("線分"), Qt::Key_S, Qt::ControlModifier));
        drivers.add(bind(QStringLiteral("円 (中心・半径)"), Qt::Key_Q, Qt::ControlModifier));
        bench.window->openTopic(bench.shortCutTopic());
        bench.window->openTopic(bench.shortCutTopic());
        auto* own = new QAction(bench.window.get()); // a shortcut of the window itself
        own->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
        bench.window->addAction(own);
        QSignalSpy ownRuns(own, &QAction::triggered);
        QTest::keyClick(bench.focusTarget(), Qt::Key_S, Qt::ControlModifier);
        QTest::keyClick(bench.focusTarget(), Qt::Key_Q, Qt::ControlModifier);
        QCOMPARE(runs.size(), 2);
        QCOMPARE(runs.at(0).at(1).toString(), QStringLiteral("ID_DRAW_LINE"));
        QCOMPARE(runs.at(1).at(1).toString(), QStringLiteral("ID_DRAW_CIRCLE_CENTER"));
        QCOMPARE(ownRuns.size(), 0);
        QTest::keyClick(bench.focusTarget(), Qt::Key_Q, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(runs.size(), 2); // Ctrl+Shift+Q is nobody's
    }

    void settingCommandsOpenTheirDialogs()
    {
        test::HostFixture host;
        CommandTableLoaded table;
        Workbench bench(host.folder());
        QStringList opened;
        ScopedModalDrivers drivers([&](CKsDialog& d) { opened << d.windowTitle(); });
        const auto* command = core::Application::getInstance()->getCommandTable()->findCommand(
            L"ID_SETTING_SHORTCUT");
        bench.window->commands()->actionOf(command->number)->trigger();
        QCOMPARE(opened, QStringList{"ショートカットキーの設定"});
    }

    void theMouseTopicRoundTripsThroughItsFile()
    {
        test::HostFixture host;
        CommandTableLoaded table;
        const Topic* mouseTopic = nullptr;
        {
            Workbench bench(host.folder());
            mouseTopic = bench.session.findTopic(QStringLiteral("mouse"));
            QVERIFY(mouseTopic);
            ScopedModalDrivers drivers([](CKsDialog& d) {
                // The shipped candidates are offered, by their names in the command table.
                QListWidget* commands = nullptr; // the list of the page on show
                for (auto* list : d.findChildren<QListWidget*>(QStringLiteral("commandList")))
                    commands = list->isVisible() ? list : commands;
                QVERIFY(commands && commands->count() > 20);
                QCOMPARE(commands->item(0)->text(), QStringLiteral("元に戻す"));
                auto* tab = d.dlgItem<QTabBar>(8042);
                tab->setCurrentIndex(2);
                auto* wheel = d.findChild<QComboBox*>(QStringLiteral("comboRotate"));
                wheel->setCurrentIndex(2);
                QVERIFY(test::click(d, 1));
            });
            bool changed = false;
            QString error;
            QVERIFY(bench.session.openTopic(*mouseTopic, &changed, &error));
            QVERIFY(changed);
        }
        Workbench restarted(host.folder());
        const auto* mouse = restarted.config->getSetting<ui::setting::CMouseSetting>();
        QCOMPARE(mouse->getMouseSetting(L"2DView")->wheelRotate, 2);
    }

    void theDialogsAreRenderedWithoutChangingSettingsOrDrawing()
    {
        test::HostFixture host;
        CommandTableLoaded table;
        Workbench bench(host.folder());
        QString error;
        QVERIFY(bench.session.openDrawing(test::sampleDrawing(), &error));
        const QString dir = host.path(QStringLiteral("shots"));
        const QStringList files = renderTopicScreenshots(bench.session, dir, &error);
        for (const char* name :
             {"shortcut-keys", "shortcut-keys-capture", "mouse", "mouse-both-buttons",
              "mouse-wheel", "system-linewidth", "system-linewidth-drawing", "system-papersize",
              "system-paperframe", "system-paperframe-selected"}) {
            const QString file = QDir(dir).filePath(QString::fromLatin1(name) + ".png");
            QVERIFY2(files.contains(file), name);
            QVERIFY(QImage(file).width() > 400);
        }
        QVERIFY(!QFile::exists(host.path(QStringLiteral("ShortCutSetting.xml"))));
        QVERIFY(bench.session.drawing()->getChangeRecord().empty());
    }

    // What the README tells of the command table is what ships.
    void theReadmeCountsTheShippedCommandTable()
    {
        CommandTableLoaded table;
        QVERIFY(table.loaded);
        const utility::CCommandTable& commands =
            *core::Application::getInstance()->getCommandTable();
        const QString claim =
            QStringLiteral("%1 commands of a civil-engineering drafting application in %2 groups")
                .arg(commands.size())
                .arg(commands.groups().size());
        const QByteArray readme = test::readFile(QStringLiteral(KS_SOURCE_DIR "/README.md"));
        QVERIFY2(QString::fromUtf8(readme).simplified().contains(claim), qPrintable(claim));
    }

    void cancelKeepsTheKeysAsTheyWere()
    {
        test::HostFixture host;
        CommandTableLoaded table;
        Workbench bench(host.folder());
        QSignalSpy runs(bench.window->commands(), &CommandActions::commandRun);
        ScopedModalDrivers drivers([](CKsDialog& d) {
            auto* tree = d.dlgItem<QTreeWidget>(8001);
            tree->setCurrentItem(
                tree->findItems(QStringLiteral("線分"), Qt::MatchExactly | Qt::MatchRecursive)
                    .first());
            auto* edit = d.dlgItem<QLineEdit>(8002);
            QTest::keyClick(edit, Qt::Key_F12);
            QVERIFY(test::click(d, 7501));
            QVERIFY(test::click(d, 2));
        });
        bench.window->openTopic(bench.shortCutTopic());
        QVERIFY(!QFile::exists(host.path(QStringLiteral("ShortCutSetting.xml"))));
        QTest::keyClick(bench.focusTarget(), Qt::Key_F12);
        QCOMPARE(runs.size(), 0);
    }
};

QTEST_MAIN(TestCommands)
#include "tst_commands.moc"
