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
class SettingsStore {
public:
    struct Problem {
        QString file;
        QString reason;
        QString backup; // where the unreadable file was moved; empty when it could not be
    };

    explicit SettingsStore(QString folder);

    const QString& folder() const { return m_folder; }
    QString fileOf(const ui::setting::CSettingBase& setting) const;

    // Puts every setting into the configuration: from its file when there is one, else the
    // built-in defaults. An unreadable file is moved aside and reported.
    std::vector<Problem> loadAll(const std::vector<SettingFactory>& factories,
                                 core::CSystemConfig& config);

    // Creates dialogdata.xml with its root element when it is missing. An existing file is
    // never written over: an unreadable one is moved aside (and replaced) and reported.
    std::optional<Problem> prepareDialogData();

    // Writes atomically; refuses a file that was unreadable and could not be moved aside.
    bool save(const ui::setting::CSettingBase& setting, QString* error);

private:
    Problem setAside(const QString& file, const QString& reason);

    QString m_folder;
    QSet<QString> m_blocked;
};

} // namespace kesto::workbench
