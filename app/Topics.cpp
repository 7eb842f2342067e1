#include "Topic.h"

namespace kesto::workbench {

std::vector<Topic> allTopics()
{
    std::vector<Topic> topics;
    addSystemTopics(topics);
    return topics;
}

} // namespace kesto::workbench
