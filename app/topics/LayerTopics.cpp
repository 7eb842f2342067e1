#include "session/Session.h"
#include "topics/Topic.h"

#include "control/KsListCtrl.h"
#include "element/KsCrossSectionView.h"
#include "element/KsViewPort.h"
#include "framework/KsDialog.h"
#include "res/Resource.h"

#include <QAbstractButton>
#include <QCoreApplication>

namespace kesto::workbench {

namespace {

using namespace ui::config::res;

void press(ui::framework::CKsDialog& dialog, int id)
{
    if (auto* button = dialog.dlgItem<QAbstractButton>(id); button && button->isEnabled())
        button->click();
}

void selectRows(ui::framework::CKsDialog& dialog, std::vector<int> rows)
{
    if (auto* list = dialog.dlgItem<ui::control::CKsListCtrl>(IDC_LIST)) {
        std::erase_if(rows, [&](int row) { return row >= list->getRowCount(); });
        list->setRowsSelected(rows);
    }
}

// A few rows hidden and one shown, as a user sets up a view.
void setSomeFlags(ui::framework::CKsDialog& dialog)
{
    selectRows(dialog, {1, 2, 4});
    press(dialog, IDC_LAYER_OFF);
    selectRows(dialog, {0});
    press(dialog, IDC_LAYER_ON);
}

void keepSomeRows(ui::framework::CKsDialog& dialog)
{
    setSomeFlags(dialog);
    selectRows(dialog, {3, 5});
    press(dialog, IDC_LAYER_KEEP);
}

// The picked views of a kind, or every view of it when none is picked.
template <class View>
std::vector<View*> chosen(Session& session, std::vector<View*> all)
{
    std::vector<View*> picked;
    for (View* view : all) {
        if (session.selectedViews().contains(QString::fromStdWString(view->getViewName())))
            picked.push_back(view);
    }
    return picked.empty() ? all : picked;
}

bool report(const SLayerDialogOutcome& outcome, QString* message)
{
    *message = outcome.message;
    return outcome.applied;
}

} // namespace

void addLayerDrawingTopics(std::vector<DrawingTopic>& topics)
{
    const QString group = QCoreApplication::translate("Topics", "図面のレイヤ");
    const std::vector<Shot> createShots{{QString(), {}}, {QStringLiteral("flags"), setSomeFlags}};
    const std::vector<Shot> editShots{{QString(), {}}, {QStringLiteral("keep"), keepSomeRows}};
    topics.push_back(
        {group,
         QCoreApplication::translate("Topics", "表示・非表示レイヤの設定 (新しいビューポート)"),
         QStringLiteral("layer-viewport-new"),
         [](Session& s, QString* message) {
             return report(createViewPort(*s.drawing(), s.view()), message);
         },
         createShots});
    topics.push_back(
        {group,
         QCoreApplication::translate("Topics", "表示・非表示レイヤの設定 (ビューポートの編集)"),
         QStringLiteral("layer-viewport-edit"),
         [](Session& s, QString* message) {
             const auto views = chosen(s, viewPortsOf(*s.drawing()));
             return report(editViewPorts(*s.drawing(), s.view(), views), message);
         },
         editShots});
    topics.push_back(
        {group,
         QCoreApplication::translate("Topics", "参照・非参照レイヤの設定 (新しい断面ビュー)"),
         QStringLiteral("layer-section-new"),
         [](Session& s, QString* message) {
             return report(createCrossSectionView(*s.drawing(), s.view()), message);
         },
         createShots});
    topics.push_back(
        {group,
         QCoreApplication::translate("Topics", "参照・非参照レイヤの設定 (断面ビューの編集)"),
         QStringLiteral("layer-section-edit"),
         [](Session& s, QString* message) {
             const auto views = chosen(s, crossSectionViewsOf(*s.drawing()));
             return report(editCrossSectionViews(*s.drawing(), s.view(), views), message);
         },
         editShots});
}

} // namespace kesto::workbench
