#include "core/Log.h"

#include <algorithm>
#include <cstdio>

namespace kesto::core {

bool MemoryLogSink::contains(LogLevel level, const QString& text) const
{
    return std::any_of(m_entries.begin(), m_entries.end(),
                       [&](const LogEntry& e) { return e.level == level && e.text == text; });
}

void StreamLogSink::write(const LogEntry& entry)
{
    if (entry.level > m_threshold)
        return;
    const QByteArray line =
        (logLevelName(entry.level) + QStringLiteral(": ") + entry.text + u'\n').toUtf8();
    std::fwrite(line.constData(), 1, static_cast<size_t>(line.size()), stderr);
}

void Log::write(LogLevel level, const QString& text)
{
    const LogEntry entry{level, text};
    for (const auto& sink : m_sinks)
        sink->write(entry);
}

void Log::addSink(std::shared_ptr<ILogSink> sink)
{
    if (sink)
        m_sinks.push_back(std::move(sink));
}

void Log::removeSink(const std::shared_ptr<ILogSink>& sink)
{
    std::erase(m_sinks, sink);
}

QString logLevelName(LogLevel level)
{
    switch (level) {
    case LogLevel::Error:
        return QStringLiteral("error");
    case LogLevel::Warning:
        return QStringLiteral("warning");
    case LogLevel::Information:
        return QStringLiteral("info");
    case LogLevel::Debug:
        return QStringLiteral("debug");
    }
    return QStringLiteral("log");
}

} // namespace kesto::core
