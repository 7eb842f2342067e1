#include "config/LibraryModule.h"

#include "res/ResourceTables.h"

#include <QtGlobal>

#include <cstdio>
#include <cstdlib>

// The compiled translations, a Qt resource of this library's objects; named here so that a
// static link keeps them.
static void initTranslationResources()
{
    Q_INIT_RESOURCE(KsSystemConfigDlgObjects_translations);
}

namespace kesto::ui::config {

namespace {

framework::ResourceModule* createModule()
{
    initTranslationResources();
    auto* module = new framework::ResourceModule(QStringLiteral("KsSystemConfigDlg"));
    module->setTranslations(QStringLiteral(":/i18n/KsSystemConfigDlg"));
    const bool ok = res::registerCommonResources(*module) && res::registerSystemResources(*module)
                    && res::registerCustomizeResources(*module)
                    && res::registerLayerResources(*module) && res::registerHatchResources(*module)
                    && res::registerDrawResources(*module)
                    && framework::ResourceChain::instance().add(module);
    if (!ok) {
        delete module;
        return nullptr;
    }
    return module;
}

// Registration when the library loads; a library whose resources cannot be registered
// refuses to load.
struct ModuleLoad {
    ModuleLoad()
    {
        if (!libraryResourceHandle()) {
            std::fputs("KsSystemConfigDlg: registering the resources failed\n", stderr);
            std::abort();
        }
    }
    ~ModuleLoad() { framework::ResourceChain::instance().remove(libraryResourceHandle()); }
};
const ModuleLoad s_moduleLoad;

} // namespace

framework::ResourceHandle libraryResourceHandle()
{
    // Kept for the life of the process; unloading only takes it off the chain.
    static const framework::ResourceModule* const module = createModule();
    return module;
}

} // namespace kesto::ui::config
