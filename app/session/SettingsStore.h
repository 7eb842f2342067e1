#pragma once

#include "topics/Topic.h"

#include <QSet>
#include <QString>

#include <optional>
#include <vector>

namespace kesto::core {
class CSystemConfig;
}

namespace kesto::workbench {

// The workbench's settings folder: one XML file per setting, named after its root element.
// Reading never changes or moves a file. A file that cannot be read fully is reported once, with
// its lines and reasons; what could be read is used and the rest comes from the defaults. Before
// the first save over such a file, its bytes are copied to NAME.xml.bak-DATE.
class SettingsStore {
public:
    struct Problem {
        QString file;
        QString message; // for the user, naming the file and what happens to it
    };

    explicit SettingsStore(QString folder);

    const QString& folder() const { return m_folder; }
    QString fileOf(const ui::setting::CSettingBase& setting) const;

    // Puts every setting into the configuration: what its file holds, the rest from the
    // built-in defaults.
    std::vector<Problem> loadAll(const std::vector<SettingFactory>& factories,
                                 core::CSystemConfig& config);

    // Creates dialogdata.xml with its root element when it is missing. An existing file is
    // only read: one that cannot be read is reported and left as it is (the dialogs then
    // neither read nor write it).
    std::optional<Problem> prepareDialogData();

    // Writes the setting's file under its lock, atomically, keeping the original of a file
    // that was not read fully first. False with error (the file, the reason and what to do).
    bool save(const ui::setting::CSettingBase& setting, QString* error);

private:
    bool keepOriginal(const QString& file, const ui::setting::CSettingBase& setting,
                      QString* error) const;

    QString m_folder;
    QSet<QString> m_partlyRead; // files to copy aside before they are first written
};

} // namespace kesto::workbench
