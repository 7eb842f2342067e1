#pragma once

#include <QCommandLineOption>
#include <QLocale>
#include <QString>
#include <QStringList>

#include <optional>

namespace kesto::workbench {

// "--lang ja|en".
QCommandLineOption languageOption();

// The language the workbench speaks ("ja", the source texts, or "en"): the option when given,
// else the first of the locale's languages that is one of them, else Japanese. nullopt when
// the option names another language.
std::optional<QString> chooseLanguage(const QString& option, const QLocale& locale);

// Speaks the language from now on: the translations of the library, the host and the
// workbench (through the resource chain) and Qt's own (file dialogs, standard buttons), with
// the language's number formats. Returns the translations that could not be installed.
QStringList installLanguage(const QString& language);

} // namespace kesto::workbench
