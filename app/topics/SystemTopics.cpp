#include "topics/Topic.h"

#include "KsSystemConfigDlg.h"
#include "core/Application.h"
#include "framework/KsDialog.h"

#include "control/KsListCtrl.h"
#include "res/Resource.h"

#include <QCoreApplication>
#include <QTabBar>

namespace kesto::workbench {

namespace {

void showDrawingTab(ui::framework::CKsDialog& dialog)
{
    if (auto* tab = dialog.dlgItem<QTabBar>(ui::config::res::IDC_TAB); tab && tab->count() > 1)
        tab->setCurrentIndex(1);
}
void selectSecondRow(ui::framework::CKsDialog& dialog)
{
    if (auto* list = dialog.dlgItem<ui::control::CKsListCtrl>(ui::config::res::IDC_LIST);
        list && list->getRowCount() > 1)
        list->selectRow(1);
}

// The workbench's open drawing, whose line widths the line width dialog edits.
IDataBase* openDrawing()
{
    const core::CSystemConfig* config = core::Application::getInstance()->getSystemConfig();
    return config ? config->getCurrentDataBase() : nullptr;
}

bool editLineWidths(ui::setting::CLineWidthSetting& setting,
                    const ui::setting::CLineWidthSetting& defaults)
{
    return ui::config::doLineWidthDlg(setting, defaults, openDrawing());
}
} // namespace

void addSystemTopics(std::vector<Topic>& topics)
{
    using ui::setting::CSystemScaleSetting;
    const QString group = QCoreApplication::translate("Topics", "システム設定");
    topics.push_back(makeSettingTopic<CSystemScaleSetting>(
        group, QCoreApplication::translate("Topics", "スケールの設定"),
        QStringLiteral("system-scale"), &CSystemScaleSetting::makeDefault,
        &ui::config::doSystemScaleDlg,
        {{QString(), {}}, {QStringLiteral("drawing"), showDrawingTab}}));
    using ui::setting::CLineWidthSetting;
    topics.push_back(makeSettingTopic<CLineWidthSetting>(
        group, QCoreApplication::translate("Topics", "線幅の設定"),
        QStringLiteral("system-linewidth"), &CLineWidthSetting::makeDefault, &editLineWidths,
        {{QString(), {}}, {QStringLiteral("drawing"), showDrawingTab}}));
    using ui::setting::CSystemPaperSizeSetting;
    topics.push_back(makeSettingTopic<CSystemPaperSizeSetting>(
        group, QCoreApplication::translate("Topics", "用紙サイズの設定"),
        QStringLiteral("system-papersize"), &CSystemPaperSizeSetting::makeDefault,
        &ui::config::doPaperSizeDlg));
    using ui::setting::CSystemPaperFrameSetting;
    topics.push_back(makeSettingTopic<CSystemPaperFrameSetting>(
        group, QCoreApplication::translate("Topics", "図面枠の設定"),
        QStringLiteral("system-paperframe"), &CSystemPaperFrameSetting::makeDefault,
        &ui::config::doSystemPaperFrameDlg,
        {{QString(), {}}, {QStringLiteral("selected"), selectSecondRow}}));
}

} // namespace kesto::workbench
