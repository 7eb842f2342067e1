// Opening a DXF drawing against the bare dxflib parse of the same file, side by side: time and
// the peak memory each adds (the drawing view's spatial index is not part of opening). Also the
// hostile 69-byte file whose text goes on after EOF.
#include "PeakMemory.h"

#include "dxf/DxfReader.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <dl_creationadapter.h>
#include <dl_dxf.h>

#include <fstream>

using namespace kesto;

namespace {

// A drawing of 40 layers and the given number of entities: lines, circles, texts and polylines
// of 20 vertices, each with its own layer, colour and line weight.
QByteArray generatedDrawing(int entities)
{
    QByteArray text = "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1015\n0\nENDSEC\n"
                      "0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nLAYER\n";
    for (int i = 0; i < 40; ++i)
        text += "0\nLAYER\n2\nL" + QByteArray::number(i) + "\n70\n0\n62\n"
                + QByteArray::number(i % 7 + 1) + "\n6\nCONTINUOUS\n";
    text += "0\nENDTAB\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n";
    for (int i = 0; i < entities; ++i) {
        const QByteArray layer = "8\nL" + QByteArray::number(i % 40) + "\n62\n"
                                 + QByteArray::number(i % 255 + 1) + "\n370\n25\n";
        const QByteArray x = QByteArray::number(i * 0.5, 'f', 3);
        switch (i % 4) {
        case 0:
            text += "0\nLINE\n" + layer + "10\n" + x + "\n20\n1.5\n30\n0\n11\n" + x
                    + "\n21\n9.25\n31\n0\n";
            break;
        case 1:
            text += "0\nCIRCLE\n" + layer + "10\n" + x + "\n20\n3.0\n30\n0\n40\n2.5\n";
            break;
        case 2:
            text += "0\nTEXT\n" + layer + "10\n" + x + "\n20\n4.0\n30\n0\n40\n2.5\n1\n測点 No."
                    + QByteArray::number(i) + "\n";
            break;
        default:
            text += "0\nLWPOLYLINE\n" + layer + "90\n20\n70\n0\n";
            for (int v = 0; v < 20; ++v)
                text += "10\n" + QByteArray::number(i * 0.5 + v, 'f', 3) + "\n20\n"
                        + QByteArray::number(v * 0.75, 'f', 3) + "\n";
        }
    }
    return text + "0\nENDSEC\n0\nEOF\n";
}

struct Drawing {
    explicit Drawing(int entities)
        : path(dir.filePath(QStringLiteral("drawing.dxf")))
    {
        QFile file(path);
        file.open(QIODevice::WriteOnly);
        file.write(generatedDrawing(entities));
    }
    double megabytes() const { return double(QFileInfo(path).size()) / (1024 * 1024); }

    QTemporaryDir dir;
    QString path;
};

void parseBare(const QString& path)
{
    std::ifstream in(path.toStdString());
    DL_CreationAdapter ignore;
    DL_Dxf().in(in, &ignore);
}

std::unique_ptr<CMemoryDataBase> open(const QString& path)
{
    utility::CReadReport report;
    return workbench::dxf::readDxfDrawing(path, report);
}

const bool kRegistered =
    registerPeakWork("bare", [](const QString& path) { parseBare(path); })
    && registerPeakWork("open", [](const QString& path) { benchmark::DoNotOptimize(open(path)); });

void BM_BareDxflibParse(benchmark::State& state)
{
    const Drawing drawing(int(state.range(0)));
    for (auto _ : state)
        parseBare(drawing.path);
    state.counters["file_MB"] = drawing.megabytes();
    state.counters["peak_MB"] = peakMegabytes("bare", drawing.path);
}

void BM_OpenDxfDrawing(benchmark::State& state)
{
    const Drawing drawing(int(state.range(0)));
    for (auto _ : state) {
        auto db = open(drawing.path);
        state.PauseTiming();
        db.reset();
        state.ResumeTiming();
    }
    state.counters["file_MB"] = drawing.megabytes();
    state.counters["peak_MB"] = peakMegabytes("open", drawing.path);
}

void BM_OpenHostileAfterEof(benchmark::State& state)
{
    const QString path = QStringLiteral(KS_DATA_DIR "/dxf/hostile_after_eof.dxf");
    for (auto _ : state)
        benchmark::DoNotOptimize(open(path));
    state.counters["peak_MB"] = peakMegabytes("open", path);
}

} // namespace

BENCHMARK(BM_BareDxflibParse)->Arg(200000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_OpenDxfDrawing)->Arg(200000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_OpenHostileAfterEof)->Unit(benchmark::kMicrosecond);

KS_PEAK_BENCHMARK_MAIN();
