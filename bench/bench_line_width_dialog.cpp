// "線幅の設定" with 1,000 system widths and a drawing of 1,000 line widths, opened and painted.
#include "BenchMain.h"

#include "config/SystemEntries.h"
#include "core/Application.h"
#include "db/MemoryDataBase.h"
#include "framework/KsDialog.h"
#include "framework/ModalHook.h"

#include <QAbstractButton>
#include <QTabBar>

using namespace kesto;
using ui::framework::CKsDialog;
using ui::framework::ModalHook;
using ui::setting::CLineWidthSetting;

namespace {

CLineWidthSetting makeWidths(int count)
{
    std::vector<ui::setting::SLineWidth> widths;
    widths.reserve(static_cast<std::size_t>(count));
    for (int i = 1; i <= count; ++i)
        widths.emplace_back(i * 0.005, 0xFFFFFF, 1, L"白", i <= 8);
    CLineWidthSetting setting;
    setting.setUserLineWidths(widths);
    setting.setThinLineWidth(widths[count / 4]);
    setting.setBoldLineWidth(widths[count / 2]);
    setting.setExtraBoldLineWidth(widths[count - 1]);
    return setting;
}

struct Host {
    explicit Host(int drawingWidths)
    {
        for (int i = 1; i <= drawingWidths; ++i)
            drawing.add<KsLineWidth>(i * 0.007);
        core::Application::getInstance()->setSystemConfig(config);
    }
    ~Host() { core::Application::getInstance()->setSystemConfig(nullptr); }
    CMemoryDataBase drawing;
    std::shared_ptr<core::CSystemConfig> config = std::make_shared<core::CSystemConfig>();
};

void run(benchmark::State& state, const ModalHook::Driver& driver)
{
    const int count = static_cast<int>(state.range(0));
    Host host(count);
    CLineWidthSetting setting = makeWidths(count);
    const CLineWidthSetting defaults = CLineWidthSetting::makeDefault();
    ModalHook::setStandingDriver(driver);
    for (auto _ : state)
        benchmark::DoNotOptimize(ui::config::doLineWidthDlg(setting, defaults, &host.drawing));
    ModalHook::setStandingDriver({});
    state.SetItemsProcessed(state.iterations() * count * 2);
}

void BM_OpenLineWidthDialog(benchmark::State& state)
{
    run(state, &bench::paintAndCancel);
}
BENCHMARK(BM_OpenLineWidthDialog)->Arg(1000)->Unit(benchmark::kMillisecond);

// Opening, showing the drawing's tab, going back (each painted), and confirming (which writes
// the drawing).
void BM_LineWidthDialogBothTabsAndOk(benchmark::State& state)
{
    run(state, [](CKsDialog& dialog) {
        bench::paintNow(dialog);
        auto* tab = dialog.dlgItem<QTabBar>(7071);
        tab->setCurrentIndex(1);
        bench::paintNow(dialog);
        tab->setCurrentIndex(0);
        bench::paintNow(dialog);
        dialog.dlgItem<QAbstractButton>(1)->click();
    });
}
BENCHMARK(BM_LineWidthDialogBothTabsAndOk)->Arg(1000)->Unit(benchmark::kMillisecond);

} // namespace

KS_BENCHMARK_MAIN()
