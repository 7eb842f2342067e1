#include "topics/Topic.h"
#include "window/CommandActions.h"

#include "KsSystemConfigDlg.h"
#include "command/CommandTable.h"
#include "core/Application.h"
#include "framework/KsDialog.h"
#include "res/Resource.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QTabBar>
#include <QTreeWidget>

namespace kesto::workbench {

namespace {

const utility::CCommandTable* commandTable()
{
    return core::Application::getInstance()->getCommandTable();
}

ui::setting::CShortCutSetting defaultShortCuts()
{
    ui::setting::CShortCutSetting setting;
    setting.setupByTable(commandTable());
    return setting;
}

// The shortcut dialog as a user binds a key: a command chosen, a key pressed that another
// command owns.
void captureKeyOfAnotherCommand(ui::framework::CKsDialog& dialog)
{
    auto* tree = dialog.dlgItem<QTreeWidget>(ui::config::res::IDC_COMMAND_TREE);
    const auto found =
        tree ? tree->findItems(QStringLiteral("線分"), Qt::MatchExactly | Qt::MatchRecursive)
             : QList<QTreeWidgetItem*>();
    if (!found.isEmpty())
        tree->setCurrentItem(found.first());
    if (QWidget* edit = dialog.GetDlgItem(ui::config::res::IDC_SHORTCUT_EDIT)) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_S, Qt::ControlModifier);
        QCoreApplication::sendEvent(edit, &press);
    }
}

// The mouse dialog on another tab of its inner strip.
std::function<void(ui::framework::CKsDialog&)> showButtonTab(int index)
{
    return [index](ui::framework::CKsDialog& dialog) {
        if (auto* tab = dialog.dlgItem<QTabBar>(ui::config::res::IDC_BUTTON_TAB))
            tab->setCurrentIndex(index);
    };
}

} // namespace

void addCustomizeTopics(std::vector<Topic>& topics)
{
    using ui::setting::CShortCutSetting;
    const QString group = QCoreApplication::translate("Topics", "ユーザーインターフェース");
    topics.push_back(makeSettingTopic<CShortCutSetting>(
        group, QCoreApplication::translate("Topics", "ショートカットキーの設定"),
        QStringLiteral("shortcut-keys"), &defaultShortCuts,
        [](CShortCutSetting& setting, const CShortCutSetting&) {
            return ui::config::doShortCutDlg(setting, commandTable());
        },
        {{QString(), {}}, {QStringLiteral("capture"), captureKeyOfAnotherCommand}}));

    using ui::setting::CMouseSetting;
    topics.push_back(makeSettingTopic<CMouseSetting>(
        group, QCoreApplication::translate("Topics", "マウスの設定"), QStringLiteral("mouse"),
        &CMouseSetting::makeDefault,
        [](CMouseSetting& setting, const CMouseSetting& defaults) {
            return ui::config::doMouseDlg(
                setting, defaults, mouseCommandFile().toStdWString().c_str(), commandTable());
        },
        {{QString(), {}},
         {QStringLiteral("both-buttons"), showButtonTab(1)},
         {QStringLiteral("wheel"), showButtonTab(2)}}));
}

} // namespace kesto::workbench
