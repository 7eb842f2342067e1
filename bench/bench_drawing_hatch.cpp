// The drawing hatch remembered in dialogdata.xml beside other dialogs' data, a picked hatch
// taken over, and the system's hatching registry read from its file.
#include "BenchMain.h"

#include "config/HatchSettingDlgData.h"
#include "core/Application.h"
#include "element/MemoryHatchElements.h"
#include "setting/SystemHatchingSetting.h"

#include <QFile>
#include <QTemporaryDir>

using namespace kesto;
using ui::config::SDrawingHatch;
using ui::setting::CSystemHatchingSetting;

namespace {

struct Host {
    Host()
    {
        config->setSettingFolder(dir.path().toStdWString());
        core::Application::getInstance()->setSystemConfig(config);
    }
    ~Host() { core::Application::getInstance()->setSystemConfig(nullptr); }

    // dialogdata.xml with the data of `others` other dialogs, a few elements each.
    void writeDialogData(int others) const
    {
        QByteArray bytes = "<?xml version=\"1.0\"?>\n<DialogData>\n";
        for (int i = 0; i < others; ++i)
            bytes += "<dlgdata name=\"Dlg" + QByteArray::number(i)
                     + "\"><Page>2</Page><Filter mode=\"1\">道路*</Filter><Width>120</Width>"
                       "</dlgdata>\n";
        bytes += "</DialogData>\n";
        QFile file(dir.filePath(QStringLiteral("dialogdata.xml")));
        file.open(QIODevice::WriteOnly);
        file.write(bytes);
    }

    QTemporaryDir dir;
    std::shared_ptr<core::CSystemConfig> config = std::make_shared<core::CSystemConfig>();
};

SDrawingHatch fullHatch()
{
    SDrawingHatch h;
    h.initByDefault();
    h.slantPattern.lines.resize(4, h.slantPattern.lines.front());
    h.figurePattern.innerFrames.resize(20);
    return h;
}

void BM_SaveDialogData(benchmark::State& state)
{
    Host host;
    host.writeDialogData(static_cast<int>(state.range(0)));
    const SDrawingHatch hatch = fullHatch();
    for (auto _ : state)
        benchmark::DoNotOptimize(hatch.saveDialogData());
}
BENCHMARK(BM_SaveDialogData)->Arg(10)->Arg(2000)->Unit(benchmark::kMillisecond);

void BM_LoadDialogData(benchmark::State& state)
{
    Host host;
    host.writeDialogData(static_cast<int>(state.range(0)));
    fullHatch().saveDialogData();
    SDrawingHatch hatch;
    for (auto _ : state)
        benchmark::DoNotOptimize(hatch.loadDialogData());
}
BENCHMARK(BM_LoadDialogData)->Arg(10)->Arg(2000)->Unit(benchmark::kMillisecond);

// A figure hatch picked from a drawing, its base figure looked up among many.
void BM_TakePickedFigureHatch(benchmark::State& state)
{
    Host host;
    std::vector<ui::setting::SBaseFigure> figures;
    for (int i = 0; i < state.range(0); ++i)
        figures.push_back({L"図形" + std::to_wstring(i), {{0, 0, 1, 1}}});
    auto registry = std::make_unique<CSystemHatchingSetting>();
    registry->setBaseFigures(figures);
    host.config->putSetting(std::move(registry));
    auto element = std::make_shared<element::CFigureHatchElement>(
        figures.back().name, element::CFigureHatchElement::Placement{0, 0, 10, 90, 10, 10, 10});
    element->addBoundary(element::CBoundary({{0, 0}, {10, 0}, {10, 10}}));
    element->addBoundary(element::CBoundary({{2, 2}, {4, 2}, {4, 4}}));
    ui::config::SHatchSettingDlgData data;
    data.pickedElement = element;
    data.mode = ui::config::SHatchSettingDlgData::ModeFigure;
    for (auto _ : state)
        benchmark::DoNotOptimize(data.setDrawHatchFromHandle());
}
BENCHMARK(BM_TakePickedFigureHatch)->Arg(100)->Arg(5000)->Unit(benchmark::kMicrosecond);

// The registry with `n` slant and `n` coating patterns, read from its file.
void BM_LoadSystemHatching(benchmark::State& state)
{
    Host host;
    CSystemHatchingSetting setting = CSystemHatchingSetting::makeDefault();
    std::vector<ui::setting::SSlantPattern> slants;
    std::vector<ui::setting::SCoatingPattern> coatings;
    for (int i = 0; i < state.range(0); ++i) {
        slants.push_back(setting.getSlantPatterns()[2]);
        slants.back().name = L"斜線" + std::to_wstring(i);
        coatings.push_back(setting.getCoatingPatterns()[1]);
        coatings.back().name = L"塗り" + std::to_wstring(i);
    }
    setting.setSlantPatterns(slants);
    setting.setCoatingPatterns(coatings);
    const std::wstring path = host.dir.filePath(QStringLiteral("h.xml")).toStdWString();
    setting.saveXML(path);
    for (auto _ : state) {
        CSystemHatchingSetting loaded;
        benchmark::DoNotOptimize(loaded.loadXML(path));
    }
    state.SetComplexityN(state.range(0));
    state.SetItemsProcessed(state.iterations() * state.range(0) * 2);
}
// Linear in the patterns: the per-pattern time of 100 and of 2,000 agree.
BENCHMARK(BM_LoadSystemHatching)
    ->Arg(100)
    ->Arg(400)
    ->Arg(2000)
    ->Complexity(benchmark::oN)
    ->Unit(benchmark::kMillisecond);

} // namespace

KS_BENCHMARK_MAIN();
