#include "core/PlacementStore.h"

#include <QSettings>
#include <QWidget>

namespace kesto::core {

static QString geometryKey(const QString& key)
{
    return key + QStringLiteral("/geometry");
}

PlacementStore::PlacementStore()
    : m_settings(
        std::make_unique<QSettings>(QStringLiteral("kesto"), QStringLiteral("kesto-settings")))
{}

PlacementStore::~PlacementStore() = default;

void PlacementStore::useFile(const QString& iniPath)
{
    m_settings = std::make_unique<QSettings>(iniPath, QSettings::IniFormat);
}

void PlacementStore::savePlacement(const QString& key, const QWidget* window)
{
    if (window)
        m_settings->setValue(geometryKey(key), window->saveGeometry());
}

bool PlacementStore::restorePlacement(const QString& key, QWidget* window) const
{
    const QByteArray geometry = m_settings->value(geometryKey(key)).toByteArray();
    return window && !geometry.isEmpty() && window->restoreGeometry(geometry);
}

void PlacementStore::writeInt(const QString& key, const QString& name, int value)
{
    m_settings->setValue(key + u'/' + name, value);
}

int PlacementStore::readInt(const QString& key, const QString& name, int fallback) const
{
    bool ok = false;
    const int value = m_settings->value(key + u'/' + name).toInt(&ok);
    return ok ? value : fallback;
}

void PlacementStore::sync()
{
    m_settings->sync();
}

} // namespace kesto::core
