#include "session/Session.h"

#include "drawing/DrawingFile.h"

#include "core/SystemConfig.h"

#include <QCoreApplication>

#include <algorithm>
#include <typeinfo>

namespace kesto::workbench {

Session::Session(std::vector<Topic> topics, std::shared_ptr<core::CSystemConfig> config,
                 SettingsStore store)
    : m_topics(std::move(topics))
    , m_config(std::move(config))
    , m_store(std::move(store))
{}

Session::~Session()
{
    closeDrawing();
}

std::vector<SettingsStore::Problem> Session::load()
{
    std::vector<SettingFactory> factories = hostSettings();
    for (const Topic& topic : m_topics)
        factories.push_back(topic.makeDefault);
    std::vector<SettingsStore::Problem> problems = m_store.loadAll(factories, *m_config);
    if (auto problem = m_store.prepareDialogData())
        problems.push_back(*problem);
    return problems;
}

const Topic* Session::findTopic(const QString& id) const
{
    for (const Topic& topic : m_topics) {
        if (topic.id == id)
            return &topic;
    }
    return nullptr;
}

ui::setting::CSettingBase* Session::currentSetting(const Topic& topic) const
{
    const std::unique_ptr<ui::setting::CSettingBase> probe = topic.makeDefault();
    for (const auto& setting : m_config->settings()) {
        if (typeid(*setting) == typeid(*probe))
            return setting.get();
    }
    return nullptr;
}

bool Session::openTopic(const Topic& topic, bool* changed, QString* error)
{
    *changed = false;
    ui::setting::CSettingBase* current = currentSetting(topic);
    if (!current) {
        *error = QStringLiteral("%1: no current setting").arg(topic.title);
        return false;
    }
    std::vector<std::unique_ptr<ui::setting::CSettingBase>> before;
    for (const auto& setting : m_config->settings())
        before.push_back(setting->clone());
    const std::unique_ptr<ui::setting::CSettingBase> defaults = topic.makeDefault();
    topic.open(*current, *defaults);
    bool saved = true;
    for (const auto& setting : m_config->settings()) {
        const bool unchanged = std::any_of(before.begin(), before.end(),
                                           [&](const auto& old) { return setting->equals(*old); });
        if (unchanged)
            continue;
        *changed = true;
        QString reason;
        if (m_store.save(*setting, &reason))
            continue;
        for (const auto& old : before) { // not saved: back to what its file holds
            if (setting->assign(*old))
                break;
        }
        if (saved && error)
            *error = reason;
        saved = false;
    }
    return saved;
}

bool Session::openDrawing(const QString& path, QString* message)
{
    std::unique_ptr<CMemoryDataBase> db = workbench::openDrawing(path, message);
    if (!db)
        return false;
    addStarterViews(*db);
    m_config->setCurrentDataBase(db.get());
    m_drawing = std::move(db);
    m_selectedViews.clear();
    return true;
}

void Session::closeDrawing()
{
    m_config->setCurrentDataBase(nullptr);
    m_drawing.reset();
    m_selectedViews.clear();
}

const DrawingTopic* Session::findDrawingTopic(const QString& id) const
{
    for (const DrawingTopic& topic : m_drawingTopics) {
        if (topic.id == id)
            return &topic;
    }
    return nullptr;
}

bool Session::openDrawingTopic(const DrawingTopic& topic, QString* message)
{
    if (!m_drawing) {
        *message = QCoreApplication::translate("Session", "図面を開いてください。");
        return false;
    }
    return topic.open(*this, message);
}

} // namespace kesto::workbench
