#include "picking/CommonReference.h"
#include "picking/FigureListModel.h"
#include "picking/FigurePickDlg.h"
#include "topics/Topic.h"
#include "window/WorkbenchResources.h"

#include "core/Application.h"
#include "framework/KsDialog.h"
#include "res/Resource.h"
#include "types/KsFigure.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QItemSelectionModel>
#include <QTableView>

namespace kesto::workbench {

namespace {

const IDataBase* openDrawing()
{
    const core::CSystemConfig* config = core::Application::getInstance()->getSystemConfig();
    return config ? config->getCurrentDataBase() : nullptr;
}

bool editCommon(ui::setting::CDrawCommonSetting& setting, const ui::setting::CDrawCommonSetting&)
{
    return editCommonSettings(setting, commonDrawRecord(), openDrawing(), &CFigurePickDlg::pick);
}

// The first figure with a colour of its own, else the first.
int interestingRow(const CFigureListModel& model)
{
    for (int row = 0; row < model.rowCount(); ++row) {
        if (!model.figureAt(row)->isColorByLayer())
            return row;
    }
    return 0;
}

// Presses "図面参照", picks a figure in the list and shows the dialog again with it.
void pickFromDrawing(ui::framework::CKsDialog& dialog)
{
    static int step = 0;
    if (dialog.getTemplateId() == ui::config::res::IDD_DRAW_COMMON) {
        auto* button = dialog.dlgItem<QAbstractButton>(ui::config::res::IDC_DRAW_REFERENCE);
        const bool press = step == 0 && button && button->isEnabled();
        step = press ? 1 : 0;
        if (press)
            button->click();
        return;
    }
    auto* list = dialog.dlgItem<QTableView>(IDC_PICK_LIST);
    auto* model = list ? dynamic_cast<CFigureListModel*>(list->model()) : nullptr;
    if (!model || model->rowCount() == 0)
        return;
    const int row = interestingRow(*model);
    list->selectRow(row);
    list->scrollTo(model->index(row, 0));
    if (auto* ok = dialog.dlgItem<QAbstractButton>(ui::framework::IDOK)) {
        step = 2;
        ok->click();
    }
}

} // namespace

ui::config::SDrawCommonDlgData& commonDrawRecord()
{
    static ui::config::SDrawCommonDlgData record;
    return record;
}

void addDrawTopics(std::vector<Topic>& topics)
{
    using ui::setting::CDrawCommonSetting;
    topics.push_back(makeSettingTopic<CDrawCommonSetting>(
        QCoreApplication::translate("Topics", "要素の作図設定"),
        QCoreApplication::translate("Topics", "共通設定"), QStringLiteral("draw-common"),
        [] { return CDrawCommonSetting(); }, &editCommon,
        {{QString(), {}}, {QStringLiteral("reference"), pickFromDrawing}}));
}

} // namespace kesto::workbench
