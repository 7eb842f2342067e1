#pragma once

#include <QString>

#include <utility>

namespace kesto::ui::framework {

// Logs "Class: Method() catch ..." at error level; used by guardHandler.
void logHandlerException(const QString& className, const QString& method);
// Logs "Class: Method()" at information level.
void logHandlerEntry(const QString& className, const QString& method);

// Runs a message handler; an exception is logged with the handler's name and rethrown.
template <class F>
decltype(auto) guardHandler(const QString& className, const QString& method, F&& handler)
{
    try {
        return std::forward<F>(handler)();
    } catch (...) {
        logHandlerException(className, method);
        throw;
    }
}

} // namespace kesto::ui::framework
