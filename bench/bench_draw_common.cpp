// "共通設定" on a large drawing (10,000 layers, 1,000 scales), the pick list of its drawing
// reference over a million figures (both opened and painted), and what a figure costs in memory.
#include "BenchMain.h"

#include "picking/FigurePickDlg.h"
#include "window/WorkbenchResources.h"

#include "config/DrawEntries.h"
#include "core/Application.h"
#include "db/MemoryDataBase.h"
#include "framework/KsDialog.h"
#include "framework/ModalHook.h"
#include "setting/LineEndSetting.h"
#include "setting/LineWidthSetting.h"
#include "setting/SystemColorSetting.h"
#include "setting/SystemLineTypeSetting.h"
#include "types/KsCoordinateSystem.h"
#include "types/KsFigure.h"
#include "types/KsLayer.h"
#include "types/KsScale.h"

#include <QComboBox>

#include <malloc.h>

using namespace kesto;
using ui::setting::CDrawCommonSetting;

namespace {

constexpr int kLayers = 10000;
constexpr int kScales = 1000;
constexpr int kFigures = 1000000;

// Every fourth figure has a colour, line type and width of its own, as in a drafted sheet.
void addFigures(CMemoryDataBase& db, const std::vector<KsLayer*>& layers,
                const std::vector<KsLineType*>& lineTypes, int count)
{
    for (int i = 0; i < count; ++i) {
        auto* figure = db.add<KsFigure>(L"LINE", layers[static_cast<std::size_t>(i) % 9000]);
        if (i % 4 == 0) {
            figure->setColor(KsColor(0xFF8000, KsColor::System));
            figure->setLineType(lineTypes[static_cast<std::size_t>(i / 4) % lineTypes.size()]);
            figure->setLineWidth(0.35);
        }
    }
}

struct LargeDrawing {
    CMemoryDataBase db{L"大規模造成平面図"};
    std::shared_ptr<core::CSystemConfig> config = std::make_shared<core::CSystemConfig>();
    std::vector<KsLayer*> layers;
    std::vector<KsLineType*> lineTypes;

    LargeDrawing()
    {
        for (int i = 0; i < 50; ++i)
            db.add<KsCoordinateSystem>(L"平面直角座標系 " + std::to_wstring(i + 1));
        for (int i = 0; i < kScales; ++i)
            db.add<KsScale>(1.0, 10.0 + i);
        for (int i = 0; i < kLayers; ++i)
            layers.push_back(db.add<KsLayer>(L"レイヤ" + std::to_wstring(i)));
        for (int i = 0; i < 40; ++i)
            lineTypes.push_back(
                db.add<KsLineType>(KsLineType::kFirstDrawingId + i, L"線種" + std::to_wstring(i),
                                   KsLineType::Pattern, std::vector<double>{3.0, -1.0}));
        addFigures(db, layers, lineTypes, kFigures);
        using namespace ui::setting;
        config->putSetting(
            std::make_unique<CSystemColorSetting>(CSystemColorSetting::makeDefault()));
        config->putSetting(std::make_unique<CColorSetting>());
        config->putSetting(
            std::make_unique<CSystemLineTypeSetting>(CSystemLineTypeSetting::makeDefault()));
        config->putSetting(std::make_unique<CLineWidthSetting>(CLineWidthSetting::makeDefault()));
        config->putSetting(std::make_unique<CLineEndSetting>(CLineEndSetting::makeDefault()));
        config->setCurrentDataBase(&db);
        core::Application::getInstance()->setSystemConfig(config);
    }
    ~LargeDrawing() { core::Application::getInstance()->setSystemConfig(nullptr); }
};

LargeDrawing& drawing()
{
    static LargeDrawing large;
    return large;
}

// Opening (lists filled, the record's names selected, combo boxes prepared), painted and
// confirmed.
void BM_OpenCommonDialog(benchmark::State& state)
{
    drawing();
    ui::config::SDrawCommonDlgData record;
    record.referenceEnabled = true;
    record.layerName = L"レイヤ9999";
    record.scaleName = L"1/1009";
    CDrawCommonSetting setting;
    ui::framework::ModalHook::setStandingDriver([](ui::framework::CKsDialog& dialog) {
        bench::paintNow(dialog);
        dialog.EndDialog(ui::framework::IDOK);
    });
    for (auto _ : state)
        benchmark::DoNotOptimize(ui::config::doDrawCommonDlg(setting, &record));
    ui::framework::ModalHook::setStandingDriver({});
    state.SetItemsProcessed(state.iterations() * (kLayers + kScales));
}
BENCHMARK(BM_OpenCommonDialog)->Unit(benchmark::kMillisecond);

// The pick list over a million figures, opened and painted.
void BM_PickListOfAMillionFigures(benchmark::State& state)
{
    LargeDrawing& d = drawing();
    ui::framework::ModalHook::setStandingDriver(&bench::paintAndCancel);
    for (auto _ : state)
        benchmark::DoNotOptimize(workbench::CFigurePickDlg::pick(d.db));
    ui::framework::ModalHook::setStandingDriver({});
    state.SetItemsProcessed(state.iterations() * kFigures);
}
BENCHMARK(BM_PickListOfAMillionFigures)->Unit(benchmark::kMillisecond);

// Choosing one layer in the pick list: its figures listed and painted.
void BM_PickListShowsOneLayer(benchmark::State& state)
{
    LargeDrawing& d = drawing();
    ui::framework::ModalHook::setStandingDriver([&](ui::framework::CKsDialog& dialog) {
        auto* layers = dialog.dlgItem<QComboBox>(workbench::IDC_PICK_LAYER);
        bench::paintNow(dialog);
        for (auto _ : state) {
            layers->setCurrentIndex(layers->currentIndex() == 17 ? 18 : 17);
            bench::paintNow(dialog);
        }
        dialog.EndDialog(ui::framework::IDCANCEL);
    });
    workbench::CFigurePickDlg::pick(d.db);
    ui::framework::ModalHook::setStandingDriver({});
}
BENCHMARK(BM_PickListShowsOneLayer)->Unit(benchmark::kMillisecond);

// Heap bytes per figure held by a drawing, figure and its slot in the drawing included.
void BM_MemoryPerFigure(benchmark::State& state)
{
    LargeDrawing& d = drawing();
    double perFigure = 0;
    for (auto _ : state) {
        CMemoryDataBase db;
        const std::size_t before = mallinfo2().uordblks;
        addFigures(db, d.layers, d.lineTypes, kFigures);
        perFigure = static_cast<double>(mallinfo2().uordblks - before) / kFigures;
    }
    state.counters["bytes/figure"] = perFigure;
    state.counters["sizeof(KsFigure)"] = static_cast<double>(sizeof(KsFigure));
    state.SetItemsProcessed(state.iterations() * kFigures);
}
BENCHMARK(BM_MemoryPerFigure)->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace

KS_BENCHMARK_MAIN()
