#pragma once

#include "BenchMain.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QString>

#include <cstdio>
#include <cstring>
#include <map>
#include <string>

// The peak memory a piece of work takes, measured in a fresh run of the benchmark program itself
// (a forked process would share, and reuse, what this one already holds).
using PeakWork = void (*)(const QString& argument);

// Works by name, registered before main runs.
inline std::map<std::string, PeakWork>& peakWorks()
{
    static std::map<std::string, PeakWork> works{{"none", [](const QString&) {}}};
    return works;
}

inline bool registerPeakWork(const char* name, PeakWork work)
{
    return peakWorks().emplace(name, work).second;
}

// This process's peak resident memory in kB (VmHWM).
inline long peakKilobytesHere()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').front().toLong();
    }
    return 0;
}

inline long peakKilobytesOfRun(const char* work, const QString& argument)
{
    QProcess run;
    run.start(QCoreApplication::applicationFilePath(),
              {QStringLiteral("--peak-of"), QString::fromLatin1(work), argument});
    run.waitForFinished(-1);
    return run.readAllStandardOutput().trimmed().toLong();
}

// The peak resident memory, in MB, that the work adds to a fresh process.
inline double peakMegabytes(const char* work, const QString& argument)
{
    return double(peakKilobytesOfRun(work, argument) - peakKilobytesOfRun("none", argument))
           / 1024.0;
}

// main() of the benchmarks that measure memory: a run asked for one work does only that, and
// prints its peak.
#define KS_PEAK_BENCHMARK_MAIN()                                                                   \
    int main(int argc, char** argv)                                                                \
    {                                                                                              \
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))                                        \
            qputenv("QT_QPA_PLATFORM", "offscreen");                                               \
        QApplication app(argc, argv);                                                              \
        if (argc == 4 && std::strcmp(argv[1], "--peak-of") == 0) {                                 \
            peakWorks().at(argv[2])(QString::fromLocal8Bit(argv[3]));                              \
            std::printf("%ld\n", peakKilobytesHere());                                             \
            return 0;                                                                              \
        }                                                                                          \
        benchmark::Initialize(&argc, argv);                                                        \
        benchmark::RunSpecifiedBenchmarks();                                                       \
        benchmark::Shutdown();                                                                     \
        return 0;                                                                                  \
    }
