#include "session/SettingsFolder.h"

#include "framework/DialogIds.h"
#include "framework/MessageBox.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>

#include <filesystem>

namespace kesto::workbench {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("SettingsFolder", text);
}

QString reasonOf(const std::error_code& error)
{
    switch (static_cast<std::errc>(error.value())) {
    case std::errc::permission_denied:
    case std::errc::operation_not_permitted:
        return tr("書き込みが許可されていません");
    case std::errc::read_only_file_system:
        return tr("読み取り専用の場所です");
    case std::errc::file_exists:
        return tr("同じ名前のファイルがあります");
    case std::errc::not_a_directory:
        return tr("パスの途中にフォルダでないものがあります");
    case std::errc::no_space_on_device:
        return tr("空き容量がありません");
    default:
        return tr("作成できませんでした");
    }
}

// Empty when the folder is there (made now or before), else why it is not.
QString makeFolder(const QString& folder)
{
    std::error_code error;
    const std::filesystem::path path(QFile::encodeName(folder).toStdString());
    std::filesystem::create_directories(path, error);
    if (!error && QFileInfo(folder).isDir())
        return {};
    return reasonOf(error ? error : std::make_error_code(std::errc::file_exists));
}

} // namespace

QString settleSettingsFolder(const QString& folder, const FolderChooser& choose, QString* problem)
{
    QString wanted = QDir(folder).absolutePath();
    for (;;) {
        const QString reason = makeFolder(wanted);
        if (reason.isEmpty())
            return wanted;
        *problem = tr("設定フォルダ %1 を作成できません (%2)。")
                       .arg(QDir::toNativeSeparators(wanted), reason);
        if (!choose)
            return {};
        const int answer = ui::framework::MessageBox(
            nullptr, *problem + u'\n' + tr("別のフォルダを選びますか？"), tr("設定フォルダ"),
            ui::framework::MB_YESNO | ui::framework::MB_ICONWARNING);
        const QString chosen = answer == ui::framework::IDYES ? choose(wanted) : QString();
        if (chosen.isEmpty())
            return {};
        wanted = QDir(chosen).absolutePath();
    }
}

QString chooseSettingsFolder(const QString& failed)
{
    QFileInfo start(failed); // the nearest folder that is there
    while (!start.isDir() && start.absolutePath() != start.absoluteFilePath())
        start = QFileInfo(start.absolutePath());
    return QFileDialog::getExistingDirectory(nullptr, tr("設定フォルダを選ぶ"),
                                             start.absoluteFilePath());
}

} // namespace kesto::workbench
