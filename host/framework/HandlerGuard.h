#pragma once

#include <utility>

namespace kesto::ui::framework {

// Logs "Class: Method() catch ..." at error level; used by guardHandler.
void logHandlerException(const char* className, const char* method);
// Logs "Class: Method()" at information level.
void logHandlerEntry(const char* className, const char* method);

// Runs a message handler; an exception is logged with the handler's name and rethrown.
template <class F>
decltype(auto) guardHandler(const char* className, const char* method, F&& handler)
{
    try {
        return std::forward<F>(handler)();
    } catch (...) {
        logHandlerException(className, method);
        throw;
    }
}

} // namespace kesto::ui::framework
