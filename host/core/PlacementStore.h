#pragma once

#include <QString>

#include <memory>

class QSettings;
class QWidget;

namespace kesto::core {

// Window placements and list column widths, per dialog key, on QSettings.
class PlacementStore {
public:
    PlacementStore();
    ~PlacementStore();

    // Keeps the store in an INI file (the workbench's settings folder, a test's temporary
    // folder) instead of the user's QSettings location.
    void useFile(const QString& iniPath);

    void savePlacement(const QString& key, const QWidget* window);
    // False when nothing was saved under the key (the window keeps its size).
    bool restorePlacement(const QString& key, QWidget* window) const;

    void writeInt(const QString& key, const QString& name, int value);
    int readInt(const QString& key, const QString& name, int fallback) const;

    void sync();

private:
    std::unique_ptr<QSettings> m_settings;
};

} // namespace kesto::core
