#pragma once

#include <QString>

#include <source_location>
#include <utility>

namespace kesto::ui::framework {

// Logs "Class: Method() catch ..." at error level; used by guardHandler.
void logHandlerException(const QString& className, const QString& method);
// Logs "Class: Method()" at information level.
void logHandlerEntry(const QString& className, const QString& method);

// The bare name of the function a location is in: "OnOK" for
// "void kesto::ui::config::CXxxDlg::OnOK()" and for a lambda inside it.
QString methodOf(const std::source_location& where);

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
