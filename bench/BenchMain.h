#pragma once

#include "core/Application.h"
#include "framework/KsDialog.h"

#include <QApplication>
#include <QImage>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace kesto::bench {

// Paints a shown window as a screen would get it, after the events its showing posted (layout,
// polish, resizes) have run. Offscreen windows skip repaint(), so the window renders into an
// image of its size.
inline void paintNow(QWidget& window)
{
    QCoreApplication::processEvents();
    QImage canvas(window.size(), QImage::Format_ARGB32_Premultiplied);
    window.render(&canvas);
    benchmark::DoNotOptimize(canvas.constBits());
}

// A modal driver that lets the dialog come up and paint, then cancels it.
inline void paintAndCancel(ui::framework::CKsDialog& dialog)
{
    paintNow(dialog);
    dialog.EndDialog(ui::framework::IDCANCEL);
}

// The host's files of a benchmark run (window placements) live in a private temporary folder,
// never in the user's own settings; the placements are written out before it is removed.
class PrivateSettingsFolder {
public:
    PrivateSettingsFolder()
    {
        core::Application::getInstance()->placements().useFile(
            m_dir.filePath(QStringLiteral("placements.ini")));
    }
    ~PrivateSettingsFolder() { core::Application::getInstance()->placements().useMemory(); }
    PrivateSettingsFolder(const PrivateSettingsFolder&) = delete;
    PrivateSettingsFolder& operator=(const PrivateSettingsFolder&) = delete;
    QString path() const { return m_dir.path(); }

private:
    QTemporaryDir m_dir;
};

} // namespace kesto::bench

// main() for benchmarks that need widgets: a headless QApplication around Google Benchmark, on
// a private settings folder.
#define KS_BENCHMARK_MAIN()                                                                        \
    int main(int argc, char** argv)                                                                \
    {                                                                                              \
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))                                        \
            qputenv("QT_QPA_PLATFORM", "offscreen");                                               \
        QApplication app(argc, argv);                                                              \
        const kesto::bench::PrivateSettingsFolder settings;                                        \
        benchmark::Initialize(&argc, argv);                                                        \
        benchmark::RunSpecifiedBenchmarks();                                                       \
        benchmark::Shutdown();                                                                     \
        return 0;                                                                                  \
    }
