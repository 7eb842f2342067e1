#include "framework/HandlerGuard.h"

#include "core/Application.h"

namespace kesto::ui::framework {

void logHandlerException(const char* className, const char* method)
{
    core::Application::getInstance()->log().error(
        QStringLiteral("%1: %2() catch ...").arg(QLatin1String(className), QLatin1String(method)));
}

void logHandlerEntry(const char* className, const char* method)
{
    core::Application::getInstance()->log().info(
        QStringLiteral("%1: %2()").arg(QLatin1String(className), QLatin1String(method)));
}

} // namespace kesto::ui::framework
