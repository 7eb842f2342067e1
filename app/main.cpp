#include "language/Language.h"
#include "session/Session.h"
#include "session/SettingsFolder.h"
#include "window/CommandActions.h"
#include "window/Screenshots.h"
#include "window/WorkbenchWindow.h"

#include "core/Application.h"
#include "tooltip/DlgToolTipManager.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QMessageBox>
#include <QStandardPaths>

#include <cstdio>

using namespace kesto;

namespace {

void printLine(const QString& text)
{
    std::fprintf(stderr, "%s\n", text.toLocal8Bit().constData());
}

// The language from --lang or the locale; false when --lang names one the workbench lacks.
bool useLanguage(const QString& option)
{
    const std::optional<QString> language = workbench::chooseLanguage(option, QLocale::system());
    if (!language) {
        printLine(QStringLiteral("--lang: no dialogs in \"%1\"; use ja or en.").arg(option));
        return false;
    }
    for (const QString& missing : workbench::installLanguage(*language))
        printLine(QStringLiteral("translations not found: %1").arg(missing));
    return true;
}

std::shared_ptr<core::CSystemConfig> setUpHost(const QString& settingsFolder)
{
    auto config = std::make_shared<core::CSystemConfig>();
    config->setSettingFolder(settingsFolder.toStdWString());
    core::Application* host = core::Application::getInstance();
    host->setSystemConfig(config);
    host->log().addSink(std::make_shared<core::StreamLogSink>(core::LogLevel::Warning));
    host->placements().useFile(QDir(settingsFolder).filePath(QStringLiteral("placements.ini")));
    host->setResourceFolder(QDir(QCoreApplication::applicationDirPath())
                                .filePath(QStringLiteral("resources"))
                                .toStdWString());
    QString error;
    if (!ui::tooltip::ToolTipCatalog::instance().loadXML(QStringLiteral(":/kesto/tooltips.xml"),
                                                         &error))
        host->log().warning(QStringLiteral("tool tips not loaded: %1").arg(error));
    if (!workbench::loadCommandTable(workbench::commandTableFile(), &error))
        host->log().error(QStringLiteral("command table not loaded: %1").arg(error));
    host->setUserDataFolder(
        QStandardPaths::writableLocation(QStandardPaths::AppDataLocation).toStdWString());
    return config;
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("kesto"));
    QApplication::setApplicationName(QStringLiteral("kesto-settings"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Settings workbench of the CAD dialogs"));
    parser.addHelpOption();
    const QCommandLineOption settingsOption(
        QStringLiteral("settings"), QStringLiteral("Settings folder."), QStringLiteral("DIR"));
    const QCommandLineOption drawingOption(
        QStringLiteral("drawing"), QStringLiteral("Drawing to open."), QStringLiteral("FILE"));
    const QCommandLineOption shotOption(QStringLiteral("screenshot"),
                                        QStringLiteral("Render every dialog to PNG in DIR."),
                                        QStringLiteral("DIR"));
    const QCommandLineOption languageOption = workbench::languageOption();
    parser.addOptions({settingsOption, drawingOption, shotOption, languageOption});
    parser.process(app);
    if (!useLanguage(parser.value(languageOption)))
        return 2;

    // Without a display (pictures only) nobody could answer a window.
    const bool rendering = parser.isSet(shotOption);
    QString problem;
    const QString settingsFolder = workbench::settleSettingsFolder(
        parser.isSet(settingsOption)
            ? parser.value(settingsOption)
            : QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation),
        rendering ? workbench::FolderChooser() : &workbench::chooseSettingsFolder, &problem);
    if (settingsFolder.isEmpty()) {
        printLine(problem);
        return 2;
    }
    auto config = setUpHost(settingsFolder);
    workbench::Session session(workbench::allTopics(), config,
                               workbench::SettingsStore(settingsFolder));
    QStringList notices;
    for (const auto& problem : session.load())
        notices << problem.message;
    if (parser.isSet(drawingOption)) {
        QString message;
        session.openDrawing(parser.value(drawingOption), &message);
        if (!message.isEmpty())
            notices << message;
    }
    for (const QString& notice : notices)
        printLine(notice);

    if (parser.isSet(shotOption)) {
        const QString dir = QDir(parser.value(shotOption)).absolutePath();
        workbench::WorkbenchWindow window(session);
        QString error;
        QStringList files = workbench::renderTopicScreenshots(session, dir, &error);
        if (workbench::renderWidget(window, QDir(dir).filePath(QStringLiteral("workbench.png"))))
            files << QDir(dir).filePath(QStringLiteral("workbench.png"));
        for (const QString& file : files)
            printLine(file);
        if (!error.isEmpty())
            printLine(error);
        return files.isEmpty() ? 1 : 0;
    }

    workbench::WorkbenchWindow window(session);
    window.show();
    if (!notices.isEmpty())
        QMessageBox::warning(&window, window.windowTitle(), notices.join(u"\n\n"));
    return app.exec();
}
