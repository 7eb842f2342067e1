// Eight processes saving their own records into one dialogdata.xml 1,000 times each, at once:
// the time it takes, and the records that did not end with their last value (lost: 0).
#include "BenchMain.h"

#include <QDomDocument>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <memory>
#include <vector>

namespace {

int lostRecords(const QString& file, int writers, int saves)
{
    QFile in(file);
    QDomDocument doc;
    if (!in.open(QIODevice::ReadOnly) || !doc.setContent(&in))
        return writers;
    int lost = writers;
    const QDomNodeList records = doc.elementsByTagName(QStringLiteral("dlgdata"));
    for (int i = 0; i < records.size(); ++i)
        lost -= records.at(i).toElement().text() == QString::number(saves) ? 1 : 0;
    return lost;
}

void BM_ConcurrentSaves(benchmark::State& state)
{
    const int writers = int(state.range(0));
    const int saves = int(state.range(1));
    int lost = 0;
    for (auto _ : state) {
        QTemporaryDir dir;
        const QString file = dir.filePath(QStringLiteral("dialogdata.xml"));
        QFile out(file);
        out.open(QIODevice::WriteOnly);
        out.write("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<DialogData/>\n");
        out.close();
        std::vector<std::unique_ptr<QProcess>> running;
        for (int i = 0; i < writers; ++i) {
            running.push_back(std::make_unique<QProcess>());
            running.back()->start(
                QStringLiteral(KS_DIALOGDATA_WRITER),
                {dir.path(), QStringLiteral("Writer%1").arg(i), QString::number(saves)});
        }
        for (const auto& writer : running)
            writer->waitForFinished(-1);
        lost = lostRecords(file, writers, saves);
    }
    state.counters["lost"] = lost;
    state.counters["saves_per_s"] =
        benchmark::Counter(double(writers * saves), benchmark::Counter::kIsIterationInvariantRate);
}

} // namespace

BENCHMARK(BM_ConcurrentSaves)
    ->Args({8, 1000})
    ->Iterations(1)
    ->Unit(benchmark::kSecond)
    ->UseRealTime();

KS_BENCHMARK_MAIN();
