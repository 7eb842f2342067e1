#pragma once

#include "core/Application.h"
#include "framework/KsDialog.h"

#include <QString>
#include <QTemporaryDir>

#include <memory>

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
bool isShown(ui::framework::CKsDialog& dialog, int id);
bool isEnabled(ui::framework::CKsDialog& dialog, int id);

// A double click as a platform delivers it (QTest::mouseDClick omits the second press that
// item views need).
void doubleClick(QWidget* widget, const QPoint& at);

// A file of the test data (tests/data, or KS_DATA_DIR).
QString dataFile(const QString& relative);

} // namespace kesto::test
