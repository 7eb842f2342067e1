#pragma once

#include <QString>

#include <memory>
#include <vector>

namespace kesto::core {

// Lower is more severe; a sink takes entries up to its threshold.
enum class LogLevel { Error = 1, Warning = 2, Information = 3, Debug = 4 };

struct LogEntry {
    LogLevel level;
    QString text;
};

class ILogSink {
public:
    virtual ~ILogSink() = default;
    virtual void write(const LogEntry& entry) = 0;
};

// Keeps every entry; used by tests and by the workbench's log view.
class MemoryLogSink : public ILogSink {
public:
    void write(const LogEntry& entry) override { m_entries.push_back(entry); }
    const std::vector<LogEntry>& entries() const { return m_entries; }
    bool contains(LogLevel level, const QString& text) const;
    void clear() { m_entries.clear(); }

private:
    std::vector<LogEntry> m_entries;
};

// Writes to standard error, prefixed by the level name.
class StreamLogSink : public ILogSink {
public:
    explicit StreamLogSink(LogLevel threshold)
        : m_threshold(threshold)
    {}
    void write(const LogEntry& entry) override;

private:
    LogLevel m_threshold;
};

class Log {
public:
    void write(LogLevel level, const QString& text);
    void error(const QString& text) { write(LogLevel::Error, text); }
    void warning(const QString& text) { write(LogLevel::Warning, text); }
    void info(const QString& text) { write(LogLevel::Information, text); }
    void debug(const QString& text) { write(LogLevel::Debug, text); }

    void addSink(std::shared_ptr<ILogSink> sink);
    void removeSink(const std::shared_ptr<ILogSink>& sink);

private:
    std::vector<std::shared_ptr<ILogSink>> m_sinks;
};

QString logLevelName(LogLevel level);

} // namespace kesto::core
