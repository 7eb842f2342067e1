// Hostile and large XML files through the host's one reader: each is loaded or refused with a
// message; time and the peak memory it adds. The 60 MB files and the 100,000-level files must
// take under 2 s and 500 MB; a UTF-16 file of entities must not expand them. Settings files are
// read into a DOM (capped at 4 MB); XML drawings are read as a stream (capped at 256 MB).
#include "PeakMemory.h"

#include "drawing/XmlDrawing.h"
#include "setting/SystemScaleSetting.h"
#include "utility/ReadReport.h"

#include <QFile>
#include <QTemporaryDir>

using namespace kesto;
using ui::setting::CSystemScaleSetting;

namespace {

QByteArray scales(qint64 bytes)
{
    QByteArray text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<SystemScaleSetting>\n";
    for (int n = 1; text.size() < bytes; ++n)
        text += "  <Scale name=\"1/" + QByteArray::number(n) + "\" numerator=\"1\" denominator=\""
                + QByteArray::number(n) + "\"/>\n";
    return text + "</SystemScaleSetting>\n";
}

QByteArray deep(int levels)
{
    return "<SystemScaleSetting>" + QByteArray("<a>").repeated(levels)
           + QByteArray("</a>").repeated(levels) + "</SystemScaleSetting>";
}

// One entity of 4,000 characters referenced 25,000 times, in UTF-16.
QByteArray utf16Entities()
{
    const QString text =
        QChar(QChar::ByteOrderMark)
        + QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-16\"?>\n<!DOCTYPE s [<!ENTITY e \"")
        + QString(4000, u'x') + QStringLiteral("\">]>\n<SystemScaleSetting>")
        + QStringLiteral("&e;").repeated(25000) + QStringLiteral("</SystemScaleSetting>");
    return QByteArray(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
}

QByteArray fileFor(int which)
{
    switch (which) {
    case 0:
        return scales(60LL * 1024 * 1024);
    case 1:
        return deep(100000);
    case 2:
        return utf16Entities();
    default:
        return scales(4LL * 1024 * 1024 - 1024); // just under the cap: read whole
    }
}

utility::CReadReport loadSettings(const QString& path)
{
    CSystemScaleSetting setting = CSystemScaleSetting::makeDefault();
    utility::CReadReport report;
    setting.readXML(path.toStdWString(), report);
    return report;
}

std::pair<bool, utility::CReadReport> openDrawing(const QString& path)
{
    utility::CReadReport report;
    const bool opened = bool(workbench::readXmlDrawing(path, report));
    return {opened, report};
}

const bool kRegistered =
    registerPeakWork("settings", [](const QString& path) { loadSettings(path); })
    && registerPeakWork("drawing", [](const QString& path) { openDrawing(path); });

const char* const kNames[] = {"60 MB settings file", "100,000 levels", "UTF-16 entities",
                              "4 MB settings file"};

void BM_LoadSettingsFile(benchmark::State& state)
{
    QTemporaryDir dir;
    const std::wstring path = dir.filePath(QStringLiteral("SystemScaleSetting.xml")).toStdWString();
    {
        QFile file(QString::fromStdWString(path));
        file.open(QIODevice::WriteOnly);
        file.write(fileFor(int(state.range(0))));
    }
    const auto load = [&path] { return loadSettings(QString::fromStdWString(path)); };
    utility::CReadReport report;
    for (auto _ : state)
        report = load();
    state.SetLabel(
        std::string(kNames[state.range(0)]) + ": "
        + (report.isComplete() ? std::string("loaded") : report.details().toStdString()));
    state.counters["peak_MB"] = peakMegabytes("settings", QString::fromStdWString(path));
}

QByteArray drawing(int which)
{
    if (which == 1)
        return "<drawing>" + QByteArray("<a>").repeated(100000)
               + QByteArray("</a>").repeated(100000) + "</drawing>";
    QByteArray text = "<drawing>\n";
    for (int n = 0; n < 100; ++n)
        text +=
            "  <layer name=\"L" + QByteArray::number(n) + "\" color=\"#FF0000\" width=\"0.25\"/>\n";
    for (int n = 0; text.size() < 60LL * 1024 * 1024; ++n)
        text += "  <figure layer=\"L" + QByteArray::number(n % 100)
                + "\" kind=\"LINE\" color=\"#00FF00\" width=\"0.35\"/>\n";
    return text + "</drawing>\n";
}

void BM_OpenXmlDrawing(benchmark::State& state)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("drawing.xml"));
    {
        QFile file(path);
        file.open(QIODevice::WriteOnly);
        file.write(drawing(int(state.range(0))));
    }
    const auto open = [&path] { return openDrawing(path); };
    std::pair<bool, utility::CReadReport> result;
    for (auto _ : state)
        result = open();
    state.SetLabel(std::string(state.range(0) ? "100,000 levels: " : "60 MB: ")
                   + (result.second.isComplete() ? std::string("opened")
                                                 : result.second.details().toStdString()));
    state.counters["peak_MB"] = peakMegabytes("drawing", path);
}

} // namespace

BENCHMARK(BM_LoadSettingsFile)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_OpenXmlDrawing)->DenseRange(0, 1)->Unit(benchmark::kMillisecond);

KS_PEAK_BENCHMARK_MAIN();
