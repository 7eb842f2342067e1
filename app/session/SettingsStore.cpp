#include "session/SettingsStore.h"

#include "config/DialogDataFile.h"
#include "core/SystemConfig.h"
#include "utility/Xml.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace kesto::workbench {

SettingsStore::SettingsStore(QString folder)
    : m_folder(std::move(folder))
{}

QString SettingsStore::fileOf(const ui::setting::CSettingBase& setting) const
{
    return QDir(m_folder).filePath(setting.xmlRootName() + QStringLiteral(".xml"));
}

std::vector<SettingsStore::Problem>
SettingsStore::loadAll(const std::vector<SettingFactory>& factories, core::CSystemConfig& config)
{
    std::vector<Problem> problems;
    for (const SettingFactory& makeDefault : factories) {
        std::unique_ptr<ui::setting::CSettingBase> setting = makeDefault();
        const QString file = fileOf(*setting);
        if (QFileInfo::exists(file)) {
            QString reason;
            if (!setting->loadXML(file.toStdWString(), &reason)) {
                problems.push_back(setAside(file, reason));
                setting = makeDefault();
            }
        }
        config.putSetting(std::move(setting));
    }
    return problems;
}

SettingsStore::Problem SettingsStore::setAside(const QString& file, const QString& reason)
{
    const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    const QString backup = file + QStringLiteral(".broken-") + stamp;
    if (QFile::rename(file, backup))
        return {file, reason, backup};
    m_blocked.insert(file);
    return {file, reason, QString()};
}

bool SettingsStore::save(const ui::setting::CSettingBase& setting, QString* error)
{
    const QString file = fileOf(setting);
    if (m_blocked.contains(file)) {
        if (error)
            *error = QStringLiteral("読み込めなかった %1 を退避できなかったため、上書きしません。")
                         .arg(file);
        return false;
    }
    return setting.saveXML(file.toStdWString(), error);
}

namespace {

// An empty store of remembered dialog data; a file that appeared meanwhile is left alone.
bool createDialogData(const QString& file, QString* error)
{
    const QByteArray bytes("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<DialogData/>\n");
    QFile out(file);
    if (!out.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        *error = out.errorString();
        return false;
    }
    if (out.write(bytes) != bytes.size() || !out.flush()) {
        *error = out.errorString();
        out.remove(); // ours, and incomplete
        return false;
    }
    return true;
}

} // namespace

std::optional<SettingsStore::Problem> SettingsStore::prepareDialogData()
{
    const QString file =
        QDir(m_folder).filePath(QString::fromWCharArray(ui::config::dialogdata::kFileName));
    QString reason;
    if (QFileInfo::exists(file)) {
        QDomDocument doc;
        QDomElement root;
        if (utility::xml::load(doc, file.toStdWString(), false, ui::config::dialogdata::kMaxBytes,
                               &reason)
            && utility::xml::getRootElement(root, doc))
            return std::nullopt;
        if (reason.isEmpty())
            reason = QStringLiteral("the file has no root element");
        Problem problem = setAside(file, reason);
        if (!problem.backup.isEmpty() && !createDialogData(file, &reason))
            problem.reason += QStringLiteral("; a new file could not be written: ") + reason;
        return problem;
    }
    if (createDialogData(file, &reason))
        return std::nullopt;
    return Problem{file, QStringLiteral("could not be created: ") + reason, QString()};
}

} // namespace kesto::workbench
