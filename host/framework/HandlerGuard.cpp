#include "framework/HandlerGuard.h"

#include "core/Application.h"

#include <string_view>

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

QString methodOf(const std::source_location& where)
{
    std::string_view name = where.function_name();
    name = name.substr(0, name.find('('));
    if (const auto scope = name.rfind("::"); scope != std::string_view::npos)
        name.remove_prefix(scope + 2);
    if (const auto blank = name.rfind(' '); blank != std::string_view::npos)
        name.remove_prefix(blank + 1);
    return QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size()));
}

} // namespace kesto::ui::framework
