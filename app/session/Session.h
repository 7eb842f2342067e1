#pragma once

#include "session/SettingsStore.h"
#include "topics/Topic.h"
#include "view/LayerViews.h"

#include "db/MemoryDataBase.h"

#include <QMap>

#include <memory>

namespace kesto::core {
class CSystemConfig;
}

namespace kesto::workbench {

// What the workbench works on: the topics, their current settings in the host's
// configuration, the settings folder and the open drawing.
class Session {
public:
    Session(std::vector<Topic> topics, std::shared_ptr<core::CSystemConfig> config,
            SettingsStore store);
    ~Session();

    // Loads every topic's setting; returns the files that could not be read.
    std::vector<SettingsStore::Problem> load();

    const std::vector<Topic>& topics() const { return m_topics; }
    const Topic* findTopic(const QString& id) const;
    ui::setting::CSettingBase* currentSetting(const Topic& topic) const;
    const SettingsStore& store() const { return m_store; }

    // Runs the topic's dialog; every setting it changed (its own, and host tables such as the
    // custom colours) is saved, and changed says whether there was any. False with error set
    // when a change could not be saved: that setting goes back to what it was, so what the
    // workbench uses is what its files hold.
    bool openTopic(const Topic& topic, bool* changed, QString* error);

    // False with message when nothing of the drawing could be read; true with message when it
    // opened in part (message empty when all of it was read).
    bool openDrawing(const QString& path, QString* message);
    void closeDrawing();
    const CMemoryDataBase* drawing() const { return m_drawing.get(); }
    CMemoryDataBase* drawing() { return m_drawing.get(); }

    // The dialogs opened on the drawing; false with message when there is no drawing.
    const std::vector<DrawingTopic>& drawingTopics() const { return m_drawingTopics; }
    const DrawingTopic* findDrawingTopic(const QString& id) const;
    bool openDrawingTopic(const DrawingTopic& topic, QString* message);
    // The view the dialogs preview in.
    CWorkbenchView& view() { return m_view; }
    // The views picked in the window: the edit dialogs take these, or every view of their kind.
    void setSelectedViews(QStringList names) { m_selectedViews = std::move(names); }
    const QStringList& selectedViews() const { return m_selectedViews; }

private:
    std::vector<Topic> m_topics;
    std::shared_ptr<core::CSystemConfig> m_config;
    SettingsStore m_store;
    std::unique_ptr<CMemoryDataBase> m_drawing;
    std::vector<DrawingTopic> m_drawingTopics = allDrawingTopics();
    CWorkbenchView m_view;
    QStringList m_selectedViews;
};

} // namespace kesto::workbench
