// "表示・非表示レイヤの設定" on a large drawing: a factory and the dialog opened and painted, and
// the four flag buttons on every row selected, with the list painted again.
#include "BenchMain.h"

#include "config/LayerEntries.h"
#include "control/KsListCtrl.h"
#include "core/Application.h"
#include "db/MemoryDataBase.h"
#include "element/KsViewPort.h"
#include "framework/ModalHook.h"
#include "types/KsFigure.h"
#include "types/KsLayer.h"
#include "view/IView.h"

#include <QAbstractButton>

#include <numeric>

using namespace kesto;
using ui::framework::ModalHook;

namespace {

constexpr int kLayers = 10000;
constexpr int kFigures = 1000000;

class NullView : public IView {
public:
    void redraw() override { ++redraws; }
    long redraws = 0;
};

// 10,000 layers; a million figures on nine layers in ten, in runs as drawings hold them.
struct LargeDrawing {
    CMemoryDataBase db{L"大規模造成平面図"};
    NullView view;
    KsViewPort north{L"北側"};
    KsViewPort south{L"南側"};
    std::shared_ptr<core::CSystemConfig> config = std::make_shared<core::CSystemConfig>();

    LargeDrawing()
    {
        std::vector<KsLayer*> layers;
        for (int i = 0; i < kLayers; ++i) {
            auto* layer = db.add<KsLayer>(L"レイヤ" + std::to_wstring(i));
            layer->setColor(KsColor(0x102030u * static_cast<unsigned>(i % 7), KsColor::System));
            layer->setLineType(KsLineType(0, L"実線"));
            layer->setLineWidth(KsLineWidth(0.13 + (i % 5) * 0.05));
            layer->setComment(i % 3 ? L"" : L"測量成果");
            layers.push_back(layer);
        }
        const int perRun = kFigures / (kLayers * 9 / 10);
        for (int i = 0, run = 0; i < kFigures; ++i, run = i / perRun)
            db.add<KsFigure>(L"LINE",
                             layers[static_cast<std::size_t>((run % (kLayers / 10)) * 10
                                                             + (run / (kLayers / 10)) % 9)]);
        north.setLayerFlgs({{L"レイヤ1", 2}, {L"レイヤ2", 1}});
        core::Application::getInstance()->setSystemConfig(config);
    }
    ~LargeDrawing() { core::Application::getInstance()->setSystemConfig(nullptr); }
};

LargeDrawing& drawing()
{
    static LargeDrawing large;
    return large;
}

void BM_OpenForNewViewport(benchmark::State& state)
{
    LargeDrawing& d = drawing();
    ModalHook::setStandingDriver(&bench::paintAndCancel);
    for (auto _ : state) {
        std::unique_ptr<ui::config::CEditViewPortLayersDlg> dialog(
            createCEditViewPortLayersDlgForCreate(&d.db, &d.view, d.north.getLayerFlgs()));
        benchmark::DoNotOptimize(dialog->DoModal());
    }
    ModalHook::setStandingDriver({});
    state.SetItemsProcessed(state.iterations() * kLayers);
}
BENCHMARK(BM_OpenForNewViewport)->Unit(benchmark::kMillisecond);

void BM_OpenForTwoViewports(benchmark::State& state)
{
    LargeDrawing& d = drawing();
    const std::vector<const element::IViewPort*> views{&d.north, &d.south};
    ModalHook::setStandingDriver(&bench::paintAndCancel);
    for (auto _ : state) {
        std::unique_ptr<ui::config::CEditViewPortLayersDlg> dialog(
            createCEditViewPortLayersDlgForEdit(&d.db, &d.view, d.north.getLayerFlgs(), views));
        benchmark::DoNotOptimize(dialog->DoModal());
    }
    ModalHook::setStandingDriver({});
}
BENCHMARK(BM_OpenForTwoViewports)->Unit(benchmark::kMillisecond);

std::vector<int> everyRow()
{
    std::vector<int> rows(kLayers);
    std::iota(rows.begin(), rows.end(), 0);
    return rows;
}

// One press of a flag button with all 10,000 rows selected (edit mode: all four buttons act).
void BM_ButtonOnAllRows(benchmark::State& state)
{
    LargeDrawing& d = drawing();
    const std::vector<const element::IViewPort*> views{&d.north, &d.south};
    std::unique_ptr<ui::config::CEditViewPortLayersDlg> dialog(
        createCEditViewPortLayersDlgForEdit(&d.db, &d.view, {}, views));
    dialog->initialize();
    dialog->show();
    auto* list = dialog->dlgItem<ui::control::CKsListCtrl>(7062);
    list->setRowsSelected(everyRow()); // every row, as a list of rows
    const int buttons[] = {1039, 1040, 1043, 1044};
    int next = 0;
    const long redrawsBefore = d.view.redraws;
    for (auto _ : state) {
        dialog->dlgItem<QAbstractButton>(buttons[next++ % 4])->click();
        bench::paintNow(*dialog);
    }
    state.counters["redraws/press"] =
        benchmark::Counter(static_cast<double>(d.view.redraws - redrawsBefore)
                           / static_cast<double>(state.iterations()));
    state.SetItemsProcessed(state.iterations() * kLayers);
}
BENCHMARK(BM_ButtonOnAllRows)->Unit(benchmark::kMillisecond);

// The same in mode 1, where the preview changes the layers themselves.
void BM_ButtonOnAllRowsNewViewport(benchmark::State& state)
{
    LargeDrawing& d = drawing();
    std::unique_ptr<ui::config::CEditViewPortLayersDlg> dialog(
        createCEditViewPortLayersDlgForCreate(&d.db, &d.view, {}));
    dialog->initialize();
    dialog->show();
    auto* list = dialog->dlgItem<ui::control::CKsListCtrl>(7062);
    list->setRowsSelected(everyRow()); // every row, as a list of rows
    const int buttons[] = {1039, 1040, 1043};
    int next = 0;
    for (auto _ : state) {
        dialog->dlgItem<QAbstractButton>(buttons[next++ % 3])->click();
        bench::paintNow(*dialog);
    }
    state.SetItemsProcessed(state.iterations() * kLayers);
}
BENCHMARK(BM_ButtonOnAllRowsNewViewport)->Unit(benchmark::kMillisecond);

} // namespace

KS_BENCHMARK_MAIN()
