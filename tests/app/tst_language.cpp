// Languages: the workbench speaks the language asked for, else the locale's, else Japanese;
// English comes from the shipped translations, and Qt's own texts follow the language.
#include "WorkbenchFixture.h"
#include "support/TestSupport.h"

#include "language/Language.h"
#include "window/WorkbenchWindow.h"

#include "config/LibraryModule.h"
#include "framework/ModalHook.h"
#include "framework/Resources.h"
#include "res/Resource.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QPushButton>
#include <QTest>

using namespace kesto;
using namespace kesto::workbench;
using ui::framework::formatString;
using ui::framework::loadString;

namespace {

// The library's texts by id, in the language installed now.
QHash<int, QString> libraryTexts()
{
    QHash<int, QString> texts;
    const auto* library = ui::config::libraryResourceHandle();
    for (int id : library->stringIds())
        texts.insert(id, *library->findString(id));
    return texts;
}

} // namespace

class TestLanguage : public QObject {
    Q_OBJECT

private slots:
    void cleanup() { installLanguage(QStringLiteral("ja")); }

    void theOptionElseTheLocaleElseJapanese()
    {
        const struct {
            const char* option;
            const char* locale;
            const char* chosen; // "-": refused
        } cases[] = {
            {"", "ja_JP", "ja"},   {"", "en_GB", "en"},   {"", "de_DE", "ja"},  {"", "C", "ja"},
            {"en", "ja_JP", "en"}, {"ja", "en_US", "ja"}, {"fr", "fr_FR", "-"},
        };
        for (const auto& c : cases) {
            const auto chosen = chooseLanguage(QString::fromLatin1(c.option),
                                               QLocale(QString::fromLatin1(c.locale)));
            QCOMPARE(chosen.value_or(QStringLiteral("-")), QString::fromLatin1(c.chosen));
        }
        QCOMPARE(languageOption().names(), QStringList({QStringLiteral("lang")}));
    }

    void englishCoversEveryTextOfTheLibrary()
    {
        const QHash<int, QString> japanese = libraryTexts();
        QCOMPARE(installLanguage(QStringLiteral("en")), QStringList());
        const QHash<int, QString> english = libraryTexts();
        QStringList same;
        for (auto it = english.begin(); it != english.end(); ++it) {
            if (it.value() == japanese.value(it.key()))
                same << it.value();
        }
        same.sort();
        // Marks the dialogs read back, and the separator row.
        QCOMPARE(same, QStringList({QStringLiteral("*"), QStringLiteral("×"), QStringLiteral("×"),
                                    QStringLiteral("────────────"), QStringLiteral("○"),
                                    QStringLiteral("○")}));
        QCOMPARE(loadString(ui::config::res::IDS_TAB_DRAWING), QStringLiteral("In Drawing"));
        QCOMPARE(formatString(ui::config::res::IDS_FRAME_DUPLICATE_NAME, {2, QStringLiteral("A4")}),
                 QStringLiteral("Row 2\nThis name is already used.\nName: A4"));
        QCOMPARE(loadString(31999), QStringLiteral("Couldn't find Resource(id = 31999)."));

        installLanguage(QStringLiteral("ja"));
        QCOMPARE(libraryTexts(), japanese);
    }

    void anEnglishWorkbenchShowsEnglishDialogs()
    {
        QCOMPARE(installLanguage(QStringLiteral("en")), QStringList());
        QTemporaryDir folder;
        test::Workbench bench(folder.path());
        WorkbenchWindow window(bench.session);
        QCOMPARE(window.windowTitle(), QStringLiteral("Settings Workbench - kesto-settings"));
        QStringList seen;
        ui::framework::ScopedModalDrivers drivers([&](ui::framework::CKsDialog& dialog) {
            seen << dialog.windowTitle()
                 << dialog.GetDlgItem(ui::framework::IDCANCEL)->property("text").toString();
            test::pressCancel(dialog);
        });
        QVERIFY(!bench.open(QStringLiteral("system-scale")));
        QCOMPARE(seen, QStringList({QStringLiteral("Scale Settings"), QStringLiteral("Cancel")}));
    }

    void aJapaneseLocaleGetsQtsOwnTextsInJapanese()
    {
        const auto language = chooseLanguage(QString(), QLocale(QStringLiteral("ja_JP")));
        QCOMPARE(installLanguage(language.value()), QStringList());
        QDialogButtonBox buttons(QDialogButtonBox::Cancel);
        QCOMPARE(buttons.button(QDialogButtonBox::Cancel)->text(), QStringLiteral("キャンセル"));
        QFileDialog files;
        files.setOption(QFileDialog::DontUseNativeDialog);
        QCOMPARE(files.findChild<QLabel*>(QStringLiteral("fileTypeLabel"))->text(),
                 QStringLiteral("ファイルの種類:"));
        QCOMPARE(loadString(ui::config::res::IDS_TAB_DRAWING), QStringLiteral("図面内"));
    }
};

QTEST_MAIN(TestLanguage)
#include "tst_language.moc"
