#include "config/LayerEntries.h"

#include "config/LibraryModule.h"

#include <memory>

namespace kesto {

namespace {

// Built and set up with the library's resources current; a failed set-up destroys the dialog.
template <class Dialog, class Setup>
Dialog* createDialog(IDataBase* db, IView* view, Setup&& setup)
{
    if (!db || !view)
        return nullptr;
    const ui::framework::ResourceSwitch resources(ui::config::libraryResourceHandle());
    auto dialog = std::make_unique<Dialog>();
    if (!setup(*dialog))
        return nullptr;
    return dialog.release();
}

} // namespace

ui::config::CEditViewPortLayersDlg*
createCEditViewPortLayersDlgForCreate(IDataBase* db, IView* view,
                                      const std::map<std::wstring, char>& flags)
{
    return createDialog<ui::config::CEditViewPortLayersDlg>(
        db, view, [&](auto& dialog) { return dialog.setup(db, view, flags); });
}

ui::config::CEditViewPortLayersDlg*
createCEditViewPortLayersDlgForEdit(IDataBase* db, IView* view,
                                    const std::map<std::wstring, char>& flags,
                                    const std::vector<const element::IViewPort*>& viewports)
{
    return createDialog<ui::config::CEditViewPortLayersDlg>(
        db, view, [&](auto& dialog) { return dialog.setupEdit(db, view, flags, viewports); });
}

ui::config::CEditCrossSectionLayersDlg*
createCEditCrossSectionLayersDlgForCreate(IDataBase* db, IView* view,
                                          const std::map<std::wstring, char>& flags)
{
    return createDialog<ui::config::CEditCrossSectionLayersDlg>(
        db, view, [&](auto& dialog) { return dialog.setup(db, view, flags); });
}

ui::config::CEditCrossSectionLayersDlg*
createCEditCrossSectionLayersDlgForEdit(IDataBase* db, IView* view,
                                        const std::map<std::wstring, char>& flags,
                                        const std::vector<const element::ICrossSectionView*>& views)
{
    return createDialog<ui::config::CEditCrossSectionLayersDlg>(
        db, view, [&](auto& dialog) { return dialog.setupEdit(db, view, flags, views); });
}

} // namespace kesto
