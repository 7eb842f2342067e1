#include "support/TestSupport.h"

#include "command/CommandTable.h"
#include "control/KsListCtrl.h"
#include "framework/MessageBox.h"
#include "setting/LineEndSetting.h"
#include "setting/LineWidthSetting.h"
#include "setting/SystemColorSetting.h"
#include "setting/SystemLineTypeSetting.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QMetaEnum>
#include <QMouseEvent>
#include <QSettings>
#include <QTabBar>
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
    host->placements().useMemory();
}

void HostFixture::putTables()
{
    using namespace ui::setting;
    m_config->putSetting(std::make_unique<CSystemColorSetting>(CSystemColorSetting::makeDefault()));
    m_config->putSetting(std::make_unique<CColorSetting>());
    m_config->putSetting(
        std::make_unique<CSystemLineTypeSetting>(CSystemLineTypeSetting::makeDefault()));
    m_config->putSetting(std::make_unique<CLineWidthSetting>(CLineWidthSetting::makeDefault()));
    m_config->putSetting(std::make_unique<CLineEndSetting>(CLineEndSetting::makeDefault()));
}

QVariant HostFixture::savedPlacement(const QString& key) const
{
    core::Application::getInstance()->placements().sync();
    return QSettings(path(QStringLiteral("placements.ini")), QSettings::IniFormat).value(key);
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

void pressOk(ui::framework::CKsDialog& dialog)
{
    QVERIFY(click(dialog, ui::framework::IDOK));
}

void pressCancel(ui::framework::CKsDialog& dialog)
{
    QVERIFY(click(dialog, ui::framework::IDCANCEL));
}

void doubleClick(QWidget* widget, const QPoint& at)
{
    QTest::mouseClick(widget, Qt::LeftButton, {}, at);
    QMouseEvent event(QEvent::MouseButtonDblClick, QPointF(at), widget->mapToGlobal(QPointF(at)),
                      Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
    QTest::mouseRelease(widget, Qt::LeftButton, {}, at);
}

Qt::Key keyNamed(const QString& name)
{
    bool found = false;
    const int key = QMetaEnum::fromType<Qt::Key>().keyToValue(name.toLatin1(), &found);
    if (!found)
        qFatal("no key %s", qPrintable(name));
    return Qt::Key(key);
}

Qt::KeyboardModifiers modifiersOf(const QString& letters)
{
    Qt::KeyboardModifiers out;
    out.setFlag(Qt::ControlModifier, letters.contains(u'C'));
    out.setFlag(Qt::ShiftModifier, letters.contains(u'S'));
    out.setFlag(Qt::AltModifier, letters.contains(u'A'));
    out.setFlag(Qt::KeypadModifier, letters.contains(u'K'));
    return out;
}

QString dataFile(const QString& relative)
{
    const QString root = qEnvironmentVariable("KS_DATA_DIR");
    return QDir(root).filePath(relative);
}

QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate)
           && file.write(bytes) == bytes.size();
}

ui::control::CKsListCtrl& listOf(ui::framework::CKsDialog& dialog, int id)
{
    auto* list = dialog.dlgItem<ui::control::CKsListCtrl>(id);
    Q_ASSERT(list);
    return *list;
}

QStringList columnTexts(const ui::control::CKsListCtrl& list, int column)
{
    QStringList out;
    for (int r = 0; r < list.getRowCount(); ++r)
        out << list.getCellText(r, column);
    return out;
}

QStringList rowTexts(const ui::control::CKsListCtrl& list, int row)
{
    QStringList out;
    for (int c = 0; c < list.getColumnCount(); ++c)
        out << list.getCellText(row, c);
    return out;
}

QStringList headerTexts(const ui::control::CKsListCtrl& list)
{
    QStringList out;
    for (int c = 0; c < list.getColumnCount(); ++c)
        out << list.model()->headerData(c, Qt::Horizontal).toString();
    return out;
}

QStringList itemTexts(const QComboBox& combo)
{
    QStringList out;
    for (int i = 0; i < combo.count(); ++i)
        out << combo.itemText(i);
    return out;
}

QStringList tabTexts(const QTabBar& bar)
{
    QStringList out;
    for (int i = 0; i < bar.count(); ++i)
        out << bar.tabText(i);
    return out;
}

QString bits(std::initializer_list<bool> states)
{
    QString out;
    for (bool on : states)
        out += on ? u'1' : u'0';
    return out;
}

void choose(QComboBox& combo, int index)
{
    combo.setCurrentIndex(index);
    emit combo.activated(index);
}

QString lastBox(const ui::framework::MessageBoxRecorder& boxes)
{
    if (boxes.count() == 0)
        return QStringLiteral("(no message box)");
    return boxes.last().caption + u'|' + boxes.last().text;
}

void expectOkRefused(ui::framework::CKsDialog& dialog,
                     const ui::framework::MessageBoxRecorder& boxes, const QString& box)
{
    const std::size_t before = boxes.count();
    QVERIFY(click(dialog, ui::framework::IDOK));
    QCOMPARE(boxes.count(), before + 1);
    QCOMPARE(lastBox(boxes), box);
    QVERIFY(!dialog.isEnded());
}

bool roundTrips(const HostFixture& host, const ui::setting::CSettingBase& saved,
                ui::setting::CSettingBase& loaded)
{
    const std::wstring path = host.path(QStringLiteral("round-trip.xml")).toStdWString();
    return saved.saveXML(path) && loaded.loadXML(path) && loaded.equals(saved);
}

bool loadsText(const HostFixture& host, ui::setting::CSettingBase& setting, const QByteArray& text,
               QString* error)
{
    const QString path = host.path(QStringLiteral("loaded.xml"));
    return writeFile(path, text) && setting.loadXML(path.toStdWString(), error);
}

utility::CCommandTable commandTable(const QString& xml)
{
    utility::CCommandTable table;
    QDomDocument doc;
    QString error;
    if (!doc.setContent(xml) || !table.loadXMLNode(doc.documentElement(), &error))
        qFatal("test command table refused: %s", qPrintable(error));
    return table;
}

} // namespace kesto::test
