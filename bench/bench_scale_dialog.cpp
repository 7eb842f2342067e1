// "スケールの設定" with large system and drawing lists: opened and painted, both tabs painted,
// and what closing costs the user.
#include "BenchMain.h"

#include "config/SystemEntries.h"
#include "core/Application.h"
#include "db/MemoryDataBase.h"
#include "framework/KsDialog.h"
#include "framework/ModalHook.h"
#include "types/KsScale.h"

#include <QTabBar>

#include <chrono>

using namespace kesto;
using ui::framework::CKsDialog;
using ui::framework::ModalHook;

namespace {

ui::setting::CSystemScaleSetting makeScales(int count)
{
    std::vector<ui::setting::SSystemScale> scales;
    scales.reserve(static_cast<std::size_t>(count));
    for (int i = 1; i <= count; ++i)
        scales.push_back({KsScale::makeName(1, i), 1.0, static_cast<double>(i)});
    ui::setting::CSystemScaleSetting setting;
    setting.setSystemScales(scales);
    return setting;
}

struct Host {
    explicit Host(int drawingScales)
    {
        for (int i = 1; i <= drawingScales; ++i)
            drawing.add<KsScale>(1.0, static_cast<double>(i) + 0.5);
        config->setCurrentDataBase(&drawing);
        core::Application::getInstance()->setSystemConfig(config);
    }
    ~Host() { core::Application::getInstance()->setSystemConfig(nullptr); }
    CMemoryDataBase drawing;
    std::shared_ptr<core::CSystemConfig> config = std::make_shared<core::CSystemConfig>();
};

void BM_OpenScaleDialog(benchmark::State& state)
{
    const int count = static_cast<int>(state.range(0));
    Host host(count);
    ui::setting::CSystemScaleSetting setting = makeScales(count);
    const ui::setting::CSystemScaleSetting defaults = makeScales(10);
    ModalHook::setStandingDriver(&bench::paintAndCancel);
    for (auto _ : state)
        benchmark::DoNotOptimize(ui::config::doSystemScaleDlg(setting, defaults));
    ModalHook::setStandingDriver({});
    state.SetItemsProcessed(state.iterations() * count * 2);
}
BENCHMARK(BM_OpenScaleDialog)->Arg(100)->Arg(10000)->Unit(benchmark::kMillisecond);

// Opening, then showing the drawing's tab and going back, each painted.
void BM_OpenScaleDialogBothTabs(benchmark::State& state)
{
    const int count = static_cast<int>(state.range(0));
    Host host(count);
    ui::setting::CSystemScaleSetting setting = makeScales(count);
    const ui::setting::CSystemScaleSetting defaults = makeScales(10);
    ModalHook::setStandingDriver([](CKsDialog& dialog) {
        bench::paintNow(dialog);
        auto* tab = dialog.dlgItem<QTabBar>(7071);
        tab->setCurrentIndex(1);
        bench::paintNow(dialog);
        tab->setCurrentIndex(0);
        bench::paintAndCancel(dialog);
    });
    for (auto _ : state)
        benchmark::DoNotOptimize(ui::config::doSystemScaleDlg(setting, defaults));
    ModalHook::setStandingDriver({});
}
BENCHMARK(BM_OpenScaleDialogBothTabs)->Arg(10000)->Unit(benchmark::kMillisecond);

// From Cancel until the user's event loop is free again, with a placement that changed (the
// dialog was moved), so that it has to be written.
void BM_CloseScaleDialog(benchmark::State& state)
{
    Host host(10);
    ui::setting::CSystemScaleSetting setting = makeScales(10);
    const ui::setting::CSystemScaleSetting defaults = makeScales(10);
    int step = 0;
    ModalHook::setStandingDriver([&](CKsDialog& dialog) {
        bench::paintNow(dialog);
        dialog.move(++step % 200, 40);
        const auto start = std::chrono::steady_clock::now();
        dialog.EndDialog(2);
        QCoreApplication::processEvents();
        state.SetIterationTime(
            std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    });
    for (auto _ : state)
        benchmark::DoNotOptimize(ui::config::doSystemScaleDlg(setting, defaults));
    ModalHook::setStandingDriver({});
}
BENCHMARK(BM_CloseScaleDialog)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

KS_BENCHMARK_MAIN()
