#include "framework/HandlerGuard.h"

#include "core/Application.h"


namespace kesto::ui::framework {

void logHandlerException(const QString& className, const QString& method)
{
    core::Application::getInstance()->log().error(
        QStringLiteral("%1: %2() catch ...").arg(className, method));
}

void logHandlerEntry(const QString& className, const QString& method)
{
    core::Application::getInstance()->log().info(QStringLiteral("%1: %2()").arg(className, method));
}

} // namespace kesto::ui::framework
