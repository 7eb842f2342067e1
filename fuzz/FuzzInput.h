#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <cstdint>
#include <cstdlib>

// The fuzzer's bytes, and the same as a file for loaders that read a path.
inline QByteArray bytesOf(const std::uint8_t* data, std::size_t size)
{
    return QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
}

inline QString writeInput(const QByteArray& input, const QString& name = QStringLiteral("input.xml"))
{
    static QTemporaryDir dir;
    const QString path = dir.filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(input) != input.size())
        std::abort();
    return path;
}

// A property the loader must keep; failing it is a finding.
inline void require(bool holds)
{
    if (!holds)
        std::abort();
}
