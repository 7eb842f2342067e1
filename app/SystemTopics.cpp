#include "Topic.h"

#include "KsSystemConfigDlg.h"
#include "framework/KsDialog.h"

#include <QTabBar>

namespace kesto::workbench {

namespace {
constexpr int kTableTab = 7071;

void showDrawingTab(ui::framework::CKsDialog& dialog)
{
    if (auto* tab = dialog.dlgItem<QTabBar>(kTableTab); tab && tab->count() > 1)
        tab->setCurrentIndex(1);
}
} // namespace

void addSystemTopics(std::vector<Topic>& topics)
{
    using ui::setting::CSystemScaleSetting;
    const QString group = QStringLiteral("システム設定");
    topics.push_back(makeSettingTopic<CSystemScaleSetting>(
        group, QStringLiteral("スケールの設定"), QStringLiteral("system-scale"),
        &CSystemScaleSetting::makeDefault, &ui::config::doSystemScaleDlg,
        {{QString(), {}}, {QStringLiteral("drawing"), showDrawingTab}}));
}

} // namespace kesto::workbench
