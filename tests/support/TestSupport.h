#pragma once

#include "core/Application.h"
#include "framework/KsDialog.h"
#include "setting/SettingBase.h"

#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QVariant>

#include <memory>

class QComboBox;
class QTabBar;

namespace kesto::utility {
class CCommandTable;
}
namespace kesto::ui::control {
class CKsListCtrl;
}
namespace kesto::ui::framework {
class MessageBoxRecorder;
}

namespace kesto::test {

// A fresh host for one test: its own configuration, settings folder, placement file and
// log sink; the previous host state comes back when it ends.
class HostFixture {
public:
    HostFixture();
    ~HostFixture();
    HostFixture(const HostFixture&) = delete;
    HostFixture& operator=(const HostFixture&) = delete;

    core::CSystemConfig& config() { return *m_config; }
    core::MemoryLogSink& log() { return *m_log; }
    QString folder() const { return m_dir.path(); }
    QString path(const QString& name) const { return m_dir.filePath(name); }
    const QStringList& helpTopics() const { return m_helpTopics; }

    // The colour, custom colour, line type, line width and line end tables, as the workbench
    // keeps them.
    void putTables();
    // A value of the placement file ("Key/name"), read after the host wrote it out.
    QVariant savedPlacement(const QString& key) const;

private:
    QTemporaryDir m_dir;
    std::shared_ptr<core::CSystemConfig> m_config;
    std::shared_ptr<core::MemoryLogSink> m_log;
    core::Application::HelpHandler m_previousHelp;
    QStringList m_helpTopics;
};

// Clicks a button of a dialog as a user would: only when it is shown and enabled.
// Returns whether the click happened.
bool click(ui::framework::CKsDialog& dialog, int id);
// A control of a dialog by its number; the test stops when the layout lacks it.
template <class T>
T& ctrl(ui::framework::CKsDialog& dialog, int id)
{
    T* control = dialog.dlgItem<T>(id);
    if (!control)
        qFatal("control %d missing", id);
    return *control;
}
bool isShown(ui::framework::CKsDialog& dialog, int id);
bool isEnabled(ui::framework::CKsDialog& dialog, int id);
// Drivers that end a dialog with OK or Cancel (and fail when the button cannot be clicked).
void pressOk(ui::framework::CKsDialog& dialog);
void pressCancel(ui::framework::CKsDialog& dialog);

// A double click as a platform delivers it (QTest::mouseDClick omits the second press that
// item views need).
void doubleClick(QWidget* widget, const QPoint& at);

// A key by its Qt name ("Key_S"), and modifiers by letters: C Ctrl, S Shift, A Alt, K keypad.
Qt::Key keyNamed(const QString& name);
Qt::KeyboardModifiers modifiersOf(const QString& letters);

// A file of the test data (tests/data, or KS_DATA_DIR).
QString dataFile(const QString& relative);
// A whole file read (empty when it cannot be) or written (false when it cannot be).
QByteArray readFile(const QString& path);
bool writeFile(const QString& path, const QByteArray& bytes);

// The grid of a dialog (7062 unless told), and its texts.
ui::control::CKsListCtrl& listOf(ui::framework::CKsDialog& dialog, int id = 7062);
QStringList columnTexts(const ui::control::CKsListCtrl& list, int column);
QStringList rowTexts(const ui::control::CKsListCtrl& list, int row);
QStringList headerTexts(const ui::control::CKsListCtrl& list);
QStringList itemTexts(const QComboBox& combo);
QStringList tabTexts(const QTabBar& bar);
// States as a string of 1 and 0, in the order given.
QString bits(std::initializer_list<bool> states);
// A user's pick of a combo box entry.
void choose(QComboBox& combo, int index);

// The last message box as "caption|text".
QString lastBox(const ui::framework::MessageBoxRecorder& boxes);
// OK is refused with one more message box, "caption|text"; the dialog stays open.
void expectOkRefused(ui::framework::CKsDialog& dialog,
                     const ui::framework::MessageBoxRecorder& boxes, const QString& box);

// Saves the setting as a file of the host's folder and loads it into `loaded`: true when both
// worked and the loaded setting is the same as the saved one.
bool roundTrips(const HostFixture& host, const ui::setting::CSettingBase& saved,
                ui::setting::CSettingBase& loaded);
template <class Setting>
bool roundTrips(const HostFixture& host, const Setting& saved)
{
    Setting loaded;
    return roundTrips(host, saved, loaded);
}
// Writes the text as a file of the host's folder and loads the setting from it.
bool loadsText(const HostFixture& host, ui::setting::CSettingBase& setting, const QByteArray& text,
               QString* error = nullptr);

// A command table read from its XML text.
utility::CCommandTable commandTable(const QString& xml);

} // namespace kesto::test
