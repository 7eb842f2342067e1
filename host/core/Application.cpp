#include "core/Application.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QUrl>

namespace kesto::core {

Application* Application::getInstance()
{
    static Application instance;
    return &instance;
}

// Placements still being written are finished while Qt is still whole.
Application::Application()
{
    m_helpHandler = [this](const QString& topic) { openHelpPage(topic); };
    qAddPostRoutine([] { getInstance()->placements().sync(); });
}

std::wstring Application::getSettingFolder() const
{
    return m_config ? m_config->getSettingFolder() : std::wstring();
}

void Application::OpenHtmlHelp(const QString& topic)
{
    m_log.info(QStringLiteral("help topic %1").arg(topic));
    if (m_helpHandler)
        m_helpHandler(topic);
}

Application::HelpHandler Application::setHelpHandler(HelpHandler handler)
{
    std::swap(handler, m_helpHandler);
    return handler;
}

// Help pages are HTML files named after their topic in the resource folder's "help" folder.
void Application::openHelpPage(const QString& topic)
{
    const QDir helpDir(QString::fromStdWString(m_resourceFolder) + QStringLiteral("/help"));
    const QFileInfo page(helpDir.filePath(topic + QStringLiteral(".html")));
    if (!page.isFile()) {
        m_log.warning(QStringLiteral("no help page for topic %1 in %2").arg(topic, helpDir.path()));
        return;
    }
    QDesktopServices::openUrl(QUrl::fromLocalFile(page.absoluteFilePath()));
}

} // namespace kesto::core
