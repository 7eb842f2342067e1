#include "support/TestSupport.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QMouseEvent>
#include <QTest>

namespace kesto::test {

HostFixture::HostFixture()
    : m_config(std::make_shared<core::CSystemConfig>())
    , m_log(std::make_shared<core::MemoryLogSink>())
{
    core::Application* host = core::Application::getInstance();
    m_config->setSettingFolder(m_dir.path().toStdWString());
    host->setSystemConfig(m_config);
    host->log().addSink(m_log);
    host->placements().useFile(m_dir.filePath(QStringLiteral("placements.ini")));
    m_previousHelp = host->setHelpHandler([this](const QString& topic) { m_helpTopics << topic; });
}

HostFixture::~HostFixture()
{
    core::Application* host = core::Application::getInstance();
    host->setSystemConfig(nullptr);
    host->log().removeSink(m_log);
    host->setHelpHandler(m_previousHelp);
    host->placements().useFile(QDir::temp().filePath(QStringLiteral("kesto-test-placements.ini")));
}

bool isShown(ui::framework::CKsDialog& dialog, int id)
{
    QWidget* widget = dialog.GetDlgItem(id);
    return widget && widget->isVisibleTo(&dialog);
}

bool isEnabled(ui::framework::CKsDialog& dialog, int id)
{
    QWidget* widget = dialog.GetDlgItem(id);
    return widget && widget->isEnabled();
}

bool click(ui::framework::CKsDialog& dialog, int id)
{
    auto* button = dialog.dlgItem<QAbstractButton>(id);
    if (!button || !button->isVisibleTo(&dialog) || !button->isEnabled())
        return false;
    QTest::mouseClick(button, Qt::LeftButton);
    return true;
}

void doubleClick(QWidget* widget, const QPoint& at)
{
    QTest::mouseClick(widget, Qt::LeftButton, {}, at);
    QMouseEvent event(QEvent::MouseButtonDblClick, QPointF(at), widget->mapToGlobal(QPointF(at)),
                      Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
    QTest::mouseRelease(widget, Qt::LeftButton, {}, at);
}

QString dataFile(const QString& relative)
{
    const QString root = qEnvironmentVariable("KS_DATA_DIR");
    return QDir(root).filePath(relative);
}

} // namespace kesto::test
