#pragma once

#include "session/Session.h"
#include "window/CommandActions.h"

#include "core/Application.h"
#include "core/SystemConfig.h"

#include <QString>

namespace kesto::test {

// The workbench's sample drawing.
inline QString sampleDrawing()
{
    return QStringLiteral(KS_SOURCE_DIR "/app/samples/civil-sample.xml");
}

// A workbench session on a settings folder, started as the workbench starts it.
struct Workbench {
    std::shared_ptr<core::CSystemConfig> config = std::make_shared<core::CSystemConfig>();
    workbench::Session session;
    std::vector<workbench::SettingsStore::Problem> problems;

    explicit Workbench(const QString& folder)
        : session(workbench::allTopics(), config, workbench::SettingsStore(folder))
    {
        config->setSettingFolder(folder.toStdWString());
        core::Application::getInstance()->setSystemConfig(config);
        problems = session.load();
    }
    ~Workbench() { core::Application::getInstance()->setSystemConfig(nullptr); }
    Workbench(const Workbench&) = delete;
    Workbench& operator=(const Workbench&) = delete;

    // Runs a topic's dialog; true when it was confirmed with a change.
    bool open(const QString& id)
    {
        bool changed = false;
        QString error;
        const workbench::Topic* topic = session.findTopic(id);
        return topic && session.openTopic(*topic, &changed, &error) && changed;
    }
};

// The shipped command table as the host's, for a scope.
struct CommandTableLoaded {
    CommandTableLoaded()
    {
        QString error;
        loaded = workbench::loadCommandTable(workbench::commandTableFile(), &error);
        if (!loaded)
            qWarning("%s", qPrintable(error));
    }
    ~CommandTableLoaded() { core::Application::getInstance()->setCommandTable(nullptr); }
    CommandTableLoaded(const CommandTableLoaded&) = delete;
    CommandTableLoaded& operator=(const CommandTableLoaded&) = delete;
    bool loaded = false;
};

} // namespace kesto::test
