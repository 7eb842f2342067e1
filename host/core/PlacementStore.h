#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

#include <future>
#include <mutex>

class QWidget;

namespace kesto::core {

// Window placements and list column widths, per dialog key. Kept in memory; with a file
// (useFile) each change is written to it in the background, atomically, so that closing a
// dialog never waits for the disk. Without a file nothing is written anywhere.
class PlacementStore {
public:
    PlacementStore();
    ~PlacementStore();
    PlacementStore(const PlacementStore&) = delete;
    PlacementStore& operator=(const PlacementStore&) = delete;

    // Keeps the store in an INI file (the workbench's settings folder, a test's temporary
    // folder), starting from what the file holds.
    void useFile(const QString& iniPath);
    // Keeps the store in memory only, starting empty.
    void useMemory();
    QString file() const;

    void savePlacement(const QString& key, const QWidget* window);
    // False when nothing was saved under the key (the window keeps its size).
    bool restorePlacement(const QString& key, QWidget* window) const;

    void writeInt(const QString& key, const QString& name, int value);
    int readInt(const QString& key, const QString& name, int fallback) const;

    // Waits until every change made so far is in the file; false when the last write failed.
    bool sync();

private:
    void setValue(const QString& key, const QVariant& value);
    QVariant value(const QString& key) const;
    void writeWhileChanged();

    mutable std::mutex m_mutex;
    QMap<QString, QVariant> m_values;
    QString m_path;
    bool m_changed = false;
    bool m_writing = false;
    bool m_lastWriteFailed = false;
    std::future<void> m_writer;
};

} // namespace kesto::core
