#include "session/SettingsStore.h"

#include "config/DialogDataFile.h"
#include "core/SystemConfig.h"
#include "utility/Xml.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace kesto::workbench {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("kesto::workbench::SettingsStore", text);
}

QString shown(const QString& file)
{
    return QDir::toNativeSeparators(file);
}

QString settingProblem(const QString& file, const utility::CReadReport& report)
{
    const QString what =
        report.isRefused()
            ? tr("設定ファイル %1 を読み込めませんでした。この設定は既定値を使います。")
            : tr("設定ファイル %1 "
                 "の一部を読み込めませんでした。読めた値を使い、残りは既定値にします。");
    return what.arg(shown(file)) + u'\n' + report.details() + u'\n'
           + tr("この設定を次に保存する前に、元のファイルを %1.bak-日時 として残します。")
                 .arg(QFileInfo(file).fileName());
}

// A free name beside the file: NAME.xml.bak-DATE, with -2, -3 ... when it is taken.
QString backupName(const QString& file)
{
    const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    QString name = file + QStringLiteral(".bak-") + stamp;
    for (int n = 2; QFileInfo::exists(name); ++n)
        name = file + QStringLiteral(".bak-") + stamp + u'-' + QString::number(n);
    return name;
}

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
            utility::CReadReport report;
            setting->readXML(file.toStdWString(), report);
            if (!report.isComplete()) {
                problems.push_back({file, settingProblem(file, report)});
                m_partlyRead.insert(file);
            }
        }
        config.putSetting(std::move(setting));
    }
    return problems;
}

// A file that was not read fully, or that no longer reads fully, is copied aside first.
bool SettingsStore::keepOriginal(const QString& file, const ui::setting::CSettingBase& setting,
                                 QString* error) const
{
    if (!QFileInfo::exists(file))
        return true;
    if (!m_partlyRead.contains(file)) {
        utility::CReadReport report;
        setting.clone()->readXML(file.toStdWString(), report);
        if (report.isComplete())
            return true;
    }
    const QString backup = backupName(file);
    if (QFile::copy(file, backup))
        return true;
    *error = tr("元のファイルを %1 に残せなかったため、上書きしませんでした。").arg(shown(backup));
    return false;
}

bool SettingsStore::save(const ui::setting::CSettingBase& setting, QString* error)
{
    const QString file = fileOf(setting);
    QString reason;
    const bool saved = utility::xml::rewrite(
        file,
        [&](QDomDocument& doc) {
            if (!keepOriginal(file, setting, &reason))
                return false;
            doc = setting.toXML();
            return true;
        },
        &reason);
    if (saved) {
        m_partlyRead.remove(file);
        return true;
    }
    if (error)
        *error = tr("設定ファイル %1 を保存できませんでした。%2\nフォルダの書き込み権限と空き容量を"
                    "確かめるか、--settings で別の設定フォルダを指定してください。")
                     .arg(shown(file), reason);
    return false;
}

std::optional<SettingsStore::Problem> SettingsStore::prepareDialogData()
{
    const QString file =
        QDir(m_folder).filePath(QString::fromWCharArray(ui::config::dialogdata::kFileName));
    if (!QFileInfo::exists(file)) {
        QString reason;
        if (createDialogData(file, &reason))
            return std::nullopt;
        return Problem{file,
                       tr("ダイアログの記憶ファイル %1 を作れませんでした (%2)。ダイアログは"
                          "前回の値を覚えません。設定フォルダの書き込み権限を確かめてください。")
                           .arg(shown(file), reason)};
    }
    QDomDocument doc;
    utility::xml::SLimits limits =
        utility::xml::SLimits::forSize(ui::config::dialogdata::kMaxBytes);
    utility::CReadReport report = utility::xml::readDocument(doc, file, limits);
    if (report.isComplete() && doc.documentElement().isNull())
        report.refuse(tr("ルート要素がありません"));
    if (report.isComplete())
        return std::nullopt;
    return Problem{file,
                   tr("ダイアログの記憶ファイル %1 を読み込めません。\n%2\nファイルはそのまま"
                      "残し、ダイアログは前回の値を読まず、このファイルに書きもしません。直すか"
                      "別の名前に変えてから、ワークベンチを起動し直してください。")
                       .arg(shown(file), report.details())};
}

} // namespace kesto::workbench
