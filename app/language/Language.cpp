#include "language/Language.h"

#include "window/WorkbenchResources.h"

#include "framework/Resources.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QPointer>
#include <QTranslator>

#include <memory>

namespace kesto::workbench {

namespace {

const QStringList& spokenLanguages()
{
    static const QStringList languages{QStringLiteral("ja"), QStringLiteral("en")};
    return languages;
}

// Qt's own texts, from Qt's translations folder; replaces those installed before. Qt's source
// texts are English.
bool installQtTranslations(const QString& language)
{
    static QPointer<QTranslator> installed;
    delete installed.data();
    if (language == u"en")
        return true;
    auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
    if (!translator->load(QLocale(language), QStringLiteral("qtbase"), QStringLiteral("_"),
                          QLibraryInfo::path(QLibraryInfo::TranslationsPath))
        || !QCoreApplication::installTranslator(translator.get()))
        return false;
    installed = translator.release();
    return true;
}

} // namespace

QCommandLineOption languageOption()
{
    return QCommandLineOption(
        QStringLiteral("lang"),
        QStringLiteral("Language of the dialogs: ja or en (default: the locale's, else ja)."),
        QStringLiteral("LANG"));
}

std::optional<QString> chooseLanguage(const QString& option, const QLocale& locale)
{
    if (!option.isEmpty()) {
        if (spokenLanguages().contains(option))
            return option;
        return std::nullopt;
    }
    for (const QString& name : locale.uiLanguages()) {
        const QString language = name.section(u'-', 0, 0);
        if (spokenLanguages().contains(language))
            return language;
    }
    return QString::fromLatin1(ui::framework::kSourceLanguage);
}

QStringList installLanguage(const QString& language)
{
    QStringList missing;
    workbenchResourceHandle(); // puts the workbench's module on the chain
    for (const QString& module : ui::framework::ResourceChain::instance().setLanguage(language))
        missing << QStringLiteral("%1_%2").arg(module, language);
    if (!installQtTranslations(language))
        missing << QStringLiteral("qtbase_%1 in %2")
                       .arg(language, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    QLocale::setDefault(QLocale(language));
    return missing;
}

} // namespace kesto::workbench
