#include "topics/Topic.h"

#include "setting/LineEndSetting.h"
#include "setting/SystemColorSetting.h"
#include "setting/SystemHatchingSetting.h"
#include "setting/SystemLineTypeSetting.h"

namespace kesto::workbench {

std::vector<Topic> allTopics()
{
    std::vector<Topic> topics;
    addSystemTopics(topics);
    addCustomizeTopics(topics);
    addDrawTopics(topics);
    return topics;
}

std::vector<SettingFactory> hostSettings()
{
    using namespace ui::setting;
    return {
        [] { return std::make_unique<CSystemColorSetting>(CSystemColorSetting::makeDefault()); },
        [] { return std::make_unique<CColorSetting>(); },
        [] {
            return std::make_unique<CSystemLineTypeSetting>(CSystemLineTypeSetting::makeDefault());
        },
        [] { return std::make_unique<CLineEndSetting>(CLineEndSetting::makeDefault()); },
        [] {
            return std::make_unique<CSystemHatchingSetting>(CSystemHatchingSetting::makeDefault());
        },
    };
}

std::vector<DrawingTopic> allDrawingTopics()
{
    std::vector<DrawingTopic> topics;
    addLayerDrawingTopics(topics);
    return topics;
}

} // namespace kesto::workbench
