#include "core/PlacementStore.h"

#include <QSettings>
#include <QWidget>

namespace kesto::core {

namespace {

QString geometryKey(const QString& key)
{
    return key + QStringLiteral("/geometry");
}

QMap<QString, QVariant> readIni(const QString& path)
{
    QMap<QString, QVariant> values;
    const QSettings ini(path, QSettings::IniFormat);
    for (const QString& key : ini.allKeys())
        values.insert(key, ini.value(key));
    return values;
}

// QSettings writes through QSaveFile: the file is replaced whole or not at all.
bool writeIni(const QString& path, const QMap<QString, QVariant>& values)
{
    QSettings ini(path, QSettings::IniFormat);
    ini.clear();
    for (auto it = values.cbegin(); it != values.cend(); ++it)
        ini.setValue(it.key(), it.value());
    ini.sync();
    return ini.status() == QSettings::NoError;
}

} // namespace

PlacementStore::PlacementStore() = default;

PlacementStore::~PlacementStore()
{
    sync();
}

void PlacementStore::useFile(const QString& iniPath)
{
    sync();
    QMap<QString, QVariant> values = readIni(iniPath);
    const std::lock_guard lock(m_mutex);
    m_values = std::move(values);
    m_path = iniPath;
    m_lastWriteFailed = false;
}

void PlacementStore::useMemory()
{
    sync();
    const std::lock_guard lock(m_mutex);
    m_values.clear();
    m_path.clear();
    m_lastWriteFailed = false;
}

QString PlacementStore::file() const
{
    const std::lock_guard lock(m_mutex);
    return m_path;
}

void PlacementStore::savePlacement(const QString& key, const QWidget* window)
{
    if (window)
        setValue(geometryKey(key), window->saveGeometry());
}

bool PlacementStore::restorePlacement(const QString& key, QWidget* window) const
{
    const QByteArray geometry = value(geometryKey(key)).toByteArray();
    return window && !geometry.isEmpty() && window->restoreGeometry(geometry);
}

void PlacementStore::writeInt(const QString& key, const QString& name, int value)
{
    setValue(key + u'/' + name, value);
}

int PlacementStore::readInt(const QString& key, const QString& name, int fallback) const
{
    bool ok = false;
    const int read = value(key + u'/' + name).toInt(&ok);
    return ok ? read : fallback;
}

QVariant PlacementStore::value(const QString& key) const
{
    const std::lock_guard lock(m_mutex);
    return m_values.value(key);
}

// A change starts a writer unless one is running; a running writer writes again while there
// are changes it has not written.
void PlacementStore::setValue(const QString& key, const QVariant& value)
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_values.constFind(key);
    if (found != m_values.cend() && found.value() == value)
        return;
    m_values.insert(key, value);
    if (m_path.isEmpty())
        return;
    m_changed = true;
    if (m_writing)
        return;
    m_writing = true;
    m_writer = std::async(std::launch::async, [this] { writeWhileChanged(); });
}

void PlacementStore::writeWhileChanged()
{
    for (;;) {
        QMap<QString, QVariant> values;
        QString path;
        {
            const std::lock_guard lock(m_mutex);
            if (!m_changed) {
                m_writing = false;
                return;
            }
            m_changed = false;
            values = m_values;
            path = m_path;
        }
        const bool written = writeIni(path, values);
        const std::lock_guard lock(m_mutex);
        m_lastWriteFailed = !written;
    }
}

bool PlacementStore::sync()
{
    std::future<void> writer;
    {
        const std::lock_guard lock(m_mutex);
        writer = std::move(m_writer);
    }
    if (writer.valid())
        writer.wait();
    const std::lock_guard lock(m_mutex);
    return !m_lastWriteFailed;
}

} // namespace kesto::core
