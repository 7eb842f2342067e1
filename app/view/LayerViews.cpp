#include "view/LayerViews.h"

#include "KsSystemConfigDlg.h"
#include "core/Application.h"
#include "db/MemoryDataBase.h"
#include "element/KsCrossSectionView.h"
#include "element/KsViewPort.h"
#include "framework/DialogIds.h"

#include <QCoreApplication>

#include <memory>

namespace kesto::workbench {

using element::LayerFlagMap;

void CWorkbenchView::redraw()
{
    ++m_redraws;
    core::Application::getInstance()->log().info(QStringLiteral("view: redraw %1").arg(m_redraws));
}

namespace {

template <class View>
std::vector<View*> viewsOf(const CMemoryDataBase& db, const wchar_t* type)
{
    return db.elementsOf<View>(type);
}

template <class View>
std::wstring nextName(const CMemoryDataBase& db, const wchar_t* type, const QString& base)
{
    const std::size_t count = viewsOf<View>(db, type).size();
    return (base + QString::number(count + 1)).toStdWString();
}

template <class View, class Create>
SLayerDialogOutcome createView(CMemoryDataBase& db, IView& view, const wchar_t* type,
                               const QString& base, Create create)
{
    const std::unique_ptr<ui::config::CEditLayersDlgBase> dialog(
        create(&db, &view, LayerFlagMap()));
    if (!dialog)
        return {false, QCoreApplication::translate("LayerViews", "図面にレイヤがありません。")};
    if (dialog->DoModal() != ui::framework::IDOK)
        return {false, QCoreApplication::translate("LayerViews", "キャンセルしました。")};
    LayerFlagMap flags;
    dialog->modifyLayerFlgs(flags);
    auto* created = db.add<View>(nextName<View>(db, type, base));
    created->setLayerFlgs(std::move(flags));
    view.redraw();
    return {true, QCoreApplication::translate("LayerViews", "「%1」を作成しました。")
                      .arg(QString::fromStdWString(created->getViewName()))};
}

template <class View, class Interface, class Edit>
SLayerDialogOutcome editViews(CMemoryDataBase& db, IView& view, const std::vector<View*>& views,
                              Edit edit)
{
    if (views.empty())
        return {false, QCoreApplication::translate("LayerViews", "編集するビューがありません。")};
    const std::vector<const Interface*> edited(views.begin(), views.end());
    const std::vector<const element::ILayerFlagView*> flagViews(views.begin(), views.end());
    const std::unique_ptr<ui::config::CEditLayersDlgBase> dialog(
        edit(&db, &view, commonFlags(flagViews), edited));
    if (!dialog)
        return {false, QCoreApplication::translate("LayerViews", "図面にレイヤがありません。")};
    if (dialog->DoModal() != ui::framework::IDOK)
        return {false, QCoreApplication::translate("LayerViews", "キャンセルしました。")};
    int changed = 0;
    for (View* target : views) {
        LayerFlagMap flags = target->getLayerFlgs();
        if (dialog->modifyLayerFlgs(flags)) {
            target->setLayerFlgs(std::move(flags));
            ++changed;
        }
    }
    if (changed > 0)
        view.redraw();
    return {changed > 0,
            changed > 0
                ? QCoreApplication::translate("LayerViews", "%1 個のビューを変更しました。")
                      .arg(changed)
                : QCoreApplication::translate("LayerViews", "ビューは変更されていません。")};
}

} // namespace

std::vector<KsViewPort*> viewPortsOf(const CMemoryDataBase& db)
{
    return viewsOf<KsViewPort>(db, L"VIEWPORT");
}

std::vector<KsCrossSectionView*> crossSectionViewsOf(const CMemoryDataBase& db)
{
    return viewsOf<KsCrossSectionView>(db, L"CROSSSECTIONVIEW");
}

void addStarterViews(CMemoryDataBase& db)
{
    if (viewPortsOf(db).empty()) {
        db.add<KsViewPort>(L"ビューポート1");
        db.add<KsViewPort>(L"ビューポート2");
    }
    if (crossSectionViewsOf(db).empty()) {
        db.add<KsCrossSectionView>(L"断面ビュー1");
        db.add<KsCrossSectionView>(L"断面ビュー2");
    }
}

LayerFlagMap commonFlags(const std::vector<const element::ILayerFlagView*>& views)
{
    LayerFlagMap common;
    if (views.empty())
        return common;
    // Every layer any view names; a layer a view does not name has flag 0 there.
    for (const element::ILayerFlagView* view : views) {
        for (const auto& entry : view->getLayerFlgs())
            common.emplace(entry.first, element::LayerFlagNone);
    }
    for (auto& [name, flag] : common) {
        flag = views.front()->getLayerFlg(name);
        for (const element::ILayerFlagView* view : views) {
            if (view->getLayerFlg(name) != flag)
                flag = element::LayerFlagKeep;
        }
    }
    return common;
}

QString describeView(const element::ILayerFlagView& view)
{
    int on = 0;
    int off = 0;
    for (const auto& entry : view.getLayerFlgs()) {
        on += entry.second == element::LayerFlagOn ? 1 : 0;
        off += entry.second == element::LayerFlagOff ? 1 : 0;
    }
    const bool viewport = dynamic_cast<const KsViewPort*>(&view) != nullptr;
    return QStringLiteral("%1: %2 %3, %4 %5")
        .arg(QString::fromStdWString(view.getViewName()),
             viewport ? QCoreApplication::translate("LayerViews", "表示")
                      : QCoreApplication::translate("LayerViews", "参照"),
             QString::number(on),
             viewport ? QCoreApplication::translate("LayerViews", "非表示")
                      : QCoreApplication::translate("LayerViews", "非参照"),
             QString::number(off));
}

SLayerDialogOutcome createViewPort(CMemoryDataBase& db, IView& view)
{
    return createView<KsViewPort>(db, view, L"VIEWPORT", QStringLiteral("ビューポート"),
                                  &createCEditViewPortLayersDlgForCreate);
}

SLayerDialogOutcome editViewPorts(CMemoryDataBase& db, IView& view,
                                  const std::vector<KsViewPort*>& viewports)
{
    return editViews<KsViewPort, element::IViewPort>(db, view, viewports,
                                                     &createCEditViewPortLayersDlgForEdit);
}

SLayerDialogOutcome createCrossSectionView(CMemoryDataBase& db, IView& view)
{
    return createView<KsCrossSectionView>(db, view, L"CROSSSECTIONVIEW",
                                          QStringLiteral("断面ビュー"),
                                          &createCEditCrossSectionLayersDlgForCreate);
}

SLayerDialogOutcome editCrossSectionViews(CMemoryDataBase& db, IView& view,
                                          const std::vector<KsCrossSectionView*>& views)
{
    return editViews<KsCrossSectionView, element::ICrossSectionView>(
        db, view, views, &createCEditCrossSectionLayersDlgForEdit);
}

} // namespace kesto::workbench
