// The shared grid with 100,000 rows: filling and painting, painting while scrolling, finding,
// editing; and the same table in a plain QTableWidget, with items and with cell widgets.
#include "BenchMain.h"

#include "control/KsListCtrl.h"

#include <QComboBox>
#include <QScrollBar>
#include <QTableWidget>

using namespace kesto::ui::control;
using kesto::bench::paintNow;

namespace {

QString nameOf(int row)
{
    return QStringLiteral("レイヤ") + QString::number(row);
}

const QStringList& marks()
{
    static const QStringList items{QStringLiteral("○"), QStringLiteral("×")};
    return items;
}

std::vector<SListRow> makeRows(int count)
{
    std::vector<SListRow> rows;
    rows.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        rows.emplace_back(QStringList{nameOf(i), QString::number(i), marks()[i % 2]},
                          static_cast<std::uint64_t>(i));
    return rows;
}

void setUp(CKsListCtrl& list)
{
    list.resize(600, 400);
    list.addColumn(QStringLiteral("名称"), 120);
    list.addColumn(QStringLiteral("値"), 80, EColumnType::Text, Qt::AlignRight);
    list.addColumn(QStringLiteral("表示"), 60, EColumnType::Combo);
    list.setColumnItems(2, marks());
    list.show();
}

// The rows built from the caller's data, set and painted: what the user waits for.
void BM_FillRows(benchmark::State& state)
{
    const int count = static_cast<int>(state.range(0));
    CKsListCtrl list;
    setUp(list);
    for (auto _ : state) {
        list.setRows(makeRows(count));
        paintNow(list);
    }
    state.SetItemsProcessed(state.iterations() * count);
}
BENCHMARK(BM_FillRows)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

// The same table in a plain QTableWidget: the name and value as items, the mark as an item
// (cellWidgets 0) or as a combo box in its cell (cellWidgets 1).
void BM_PeerTableWidget(benchmark::State& state)
{
    const int count = static_cast<int>(state.range(0));
    const bool cellWidgets = state.range(1) != 0;
    QTableWidget table(0, 3);
    table.resize(600, 400);
    table.setHorizontalHeaderLabels(
        {QStringLiteral("名称"), QStringLiteral("値"), QStringLiteral("表示")});
    table.show();
    for (auto _ : state) {
        table.setRowCount(0);
        table.setRowCount(count);
        for (int i = 0; i < count; ++i) {
            table.setItem(i, 0, new QTableWidgetItem(nameOf(i)));
            auto* value = new QTableWidgetItem(QString::number(i));
            value->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            table.setItem(i, 1, value);
            if (cellWidgets) {
                auto* combo = new QComboBox;
                combo->addItems(marks());
                combo->setCurrentIndex(i % 2);
                table.setCellWidget(i, 2, combo);
            } else {
                table.setItem(i, 2, new QTableWidgetItem(marks()[i % 2]));
            }
        }
        paintNow(table);
    }
    state.SetItemsProcessed(state.iterations() * count);
}
BENCHMARK(BM_PeerTableWidget)
    ->ArgNames({"rows", "cellWidgets"})
    ->Args({1000, 0})
    ->Args({10000, 0})
    ->Args({100000, 0})
    ->Args({1000, 1})
    ->Args({10000, 1})
    ->Unit(benchmark::kMillisecond);

void BM_AddRowsOneByOne(benchmark::State& state)
{
    const int count = static_cast<int>(state.range(0));
    CKsListCtrl list;
    setUp(list);
    for (auto _ : state) {
        list.removeAllRows();
        for (int i = 0; i < count; ++i)
            list.addRow({nameOf(i), QString::number(i), marks()[i % 2]});
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
        paintNow(*list.viewport());
    }
}
BENCHMARK(BM_ScrollAndPaint)->Unit(benchmark::kMicrosecond);

void BM_FindLastRow(benchmark::State& state)
{
    CKsListCtrl list;
    setUp(list);
    list.setRows(makeRows(100000));
    const QString last = nameOf(99999);
    for (auto _ : state)
        benchmark::DoNotOptimize(list.findRow(0, last));
}
BENCHMARK(BM_FindLastRow)->Unit(benchmark::kMicrosecond);

} // namespace

KS_BENCHMARK_MAIN()
