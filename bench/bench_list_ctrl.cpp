// The shared grid with 100,000 rows: filling, painting while scrolling, finding, editing.
#include "BenchMain.h"

#include "control/KsListCtrl.h"

#include <QPixmap>
#include <QScrollBar>

using namespace kesto::ui::control;

namespace {

std::vector<SListRow> makeRows(int count)
{
    std::vector<SListRow> rows;
    rows.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        rows.emplace_back(
            QStringList{QStringLiteral("レイヤ%1").arg(i), QString::number(i), QStringLiteral("○")},
            static_cast<std::uint64_t>(i));
    return rows;
}

// Paints the visible rows for real (an offscreen window skips repaint()).
void paint(CKsListCtrl& list)
{
    static QPixmap canvas(list.viewport()->size());
    list.viewport()->render(&canvas);
}

void setUp(CKsListCtrl& list)
{
    list.resize(600, 400);
    list.addColumn(QStringLiteral("名称"), 120);
    list.addColumn(QStringLiteral("値"), 80, EColumnType::Text, Qt::AlignRight);
    list.addColumn(QStringLiteral("表示"), 60, EColumnType::Combo);
    list.setColumnItems(2, {QStringLiteral("○"), QStringLiteral("×")});
    list.show();
}

void BM_FillRows(benchmark::State& state)
{
    const int count = static_cast<int>(state.range(0));
    CKsListCtrl list;
    setUp(list);
    for (auto _ : state) {
        state.PauseTiming();
        std::vector<SListRow> rows = makeRows(count);
        state.ResumeTiming();
        list.setRows(std::move(rows));
        paint(list);
    }
    state.SetItemsProcessed(state.iterations() * count);
}
BENCHMARK(BM_FillRows)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond);

void BM_AddRowsOneByOne(benchmark::State& state)
{
    const int count = static_cast<int>(state.range(0));
    CKsListCtrl list;
    setUp(list);
    for (auto _ : state) {
        list.removeAllRows();
        for (int i = 0; i < count; ++i)
            list.addRow(
                {QStringLiteral("レイヤ%1").arg(i), QString::number(i), QStringLiteral("○")});
    }
    state.SetItemsProcessed(state.iterations() * count);
}
BENCHMARK(BM_AddRowsOneByOne)->Arg(10000)->Unit(benchmark::kMillisecond);

// One page step of scrolling, painted.
void BM_ScrollAndPaint(benchmark::State& state)
{
    CKsListCtrl list;
    setUp(list);
    list.setRows(makeRows(100000));
    QScrollBar* bar = list.verticalScrollBar();
    for (auto _ : state) {
        bar->setValue(
            bar->value() + bar->pageStep() > bar->maximum() ? 0 : bar->value() + bar->pageStep());
        paint(list);
    }
}
BENCHMARK(BM_ScrollAndPaint)->Unit(benchmark::kMicrosecond);

void BM_FindLastRow(benchmark::State& state)
{
    CKsListCtrl list;
    setUp(list);
    list.setRows(makeRows(100000));
    const QString last = QStringLiteral("レイヤ99999");
    for (auto _ : state)
        benchmark::DoNotOptimize(list.findRow(0, last));
}
BENCHMARK(BM_FindLastRow)->Unit(benchmark::kMicrosecond);

} // namespace

KS_BENCHMARK_MAIN()
