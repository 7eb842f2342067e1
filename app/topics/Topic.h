#pragma once

#include "setting/SettingBase.h"

#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace kesto::ui::framework {
class CKsDialog;
}

namespace kesto::workbench {

class SettingsStore;
class Session;

using SettingFactory = std::function<std::unique_ptr<ui::setting::CSettingBase>()>;

// One state of a dialog worth a picture: the file suffix and how to arrange the dialog.
struct Shot {
    QString suffix;
    std::function<void(ui::framework::CKsDialog&)> arrange;
};

// A settings topic of the workbench: where it is listed, its built-in defaults, and how its
// entry function is called on the current setting.
struct Topic {
    QString group; // subsystem, as listed
    QString title; // the dialog's title
    QString id;    // stable key for files and pictures
    SettingFactory makeDefault;
    // Runs the entry function on the current setting; true when it changed the setting.
    std::function<bool(ui::setting::CSettingBase& current, const ui::setting::CSettingBase& reset)>
        open;
    std::vector<Shot> shots;
};

// Wraps a typed entry function taking (setting, reset value).
template <class S>
Topic makeSettingTopic(QString group, QString title, QString id, std::function<S()> defaults,
                       std::function<bool(S&, const S&)> entry, std::vector<Shot> shots = {})
{
    Topic topic;
    topic.group = std::move(group);
    topic.title = std::move(title);
    topic.id = std::move(id);
    topic.makeDefault = [defaults] { return std::make_unique<S>(defaults()); };
    topic.open = [entry](ui::setting::CSettingBase& current,
                         const ui::setting::CSettingBase& reset) {
        auto* typed = dynamic_cast<S*>(&current);
        const auto* typedReset = dynamic_cast<const S*>(&reset);
        return typed && typedReset && entry(*typed, *typedReset);
    };
    topic.shots = shots.empty() ? std::vector<Shot>{{QString(), {}}} : std::move(shots);
    return topic;
}

// Every topic built so far, in the order they are listed.
std::vector<Topic> allTopics();

// The host's own tables the dialogs read (colours, line types, ...), with their defaults.
std::vector<SettingFactory> hostSettings();

// Per subsystem.
void addSystemTopics(std::vector<Topic>& topics);
void addCustomizeTopics(std::vector<Topic>& topics);
void addDrawTopics(std::vector<Topic>& topics);

// A dialog the workbench opens on the current drawing rather than on a setting (the layer
// flags of the drawing's views). Listed and rendered only while a drawing is open.
struct DrawingTopic {
    QString group;
    QString title;
    QString id;
    // Runs the dialog on the session's drawing; true when it changed the drawing. message
    // says what happened.
    std::function<bool(Session& session, QString* message)> open;
    std::vector<Shot> shots;
};

std::vector<DrawingTopic> allDrawingTopics();
void addLayerDrawingTopics(std::vector<DrawingTopic>& topics);

} // namespace kesto::workbench

namespace kesto::ui::config {
struct SDrawCommonDlgData;
}

namespace kesto::workbench {

// What the drawing commands keep between calls of "共通設定": the chosen coordinate system,
// scale and layer.
ui::config::SDrawCommonDlgData& commonDrawRecord();

} // namespace kesto::workbench
