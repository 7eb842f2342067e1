#pragma once

#include <QApplication>

#include <benchmark/benchmark.h>

// main() for benchmarks that need widgets: a headless QApplication around Google Benchmark.
#define KS_BENCHMARK_MAIN()                                                                        \
    int main(int argc, char** argv)                                                                \
    {                                                                                              \
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))                                        \
            qputenv("QT_QPA_PLATFORM", "offscreen");                                               \
        QApplication app(argc, argv);                                                              \
        benchmark::Initialize(&argc, argv);                                                        \
        benchmark::RunSpecifiedBenchmarks();                                                       \
        benchmark::Shutdown();                                                                     \
        return 0;                                                                                  \
    }
