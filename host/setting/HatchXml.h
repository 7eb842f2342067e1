#pragma once

#include "types/KsColor.h"

#include <QDomElement>
#include <QString>

#include <string>

namespace kesto::ui::setting {
class ISystemLineTypeSetting;
}

// Attribute readers and writers shared by the hatch pattern records. A reader returns true when
// the attribute is missing (out untouched) or well formed, false when it is malformed.
namespace kesto::ui::setting::hatchxml {

bool readBool(const QDomElement& e, const QString& name, bool& out);
bool readInt(const QDomElement& e, const QString& name, int& out, int min, int max);
bool readDouble(const QDomElement& e, const QString& name, double& out, double min, double max);
void readText(const QDomElement& e, const QString& name, std::wstring& out);
// Attributes color ("#RRGGBB"), colorType and colorName.
bool readColor(const QDomElement& e, KsColor& out);

void writeBool(QDomElement& e, const QString& name, bool value);
// The shortest text that reads back as the same double.
void writeDouble(QDomElement& e, const QString& name, double value);
void writeText(QDomElement& e, const QString& name, const std::wstring& value);
void writeColor(QDomElement& e, const KsColor& color);

// The stored line-type rule of the pattern records (see HatchPatterns.h).
void resolveLineType(std::wstring& name, bool byLayer, const ISystemLineTypeSetting* lineTypes);

// Largest magnitude accepted for lengths, coordinates and angles read from files.
constexpr double kMaxMagnitude = 1.0e9;

} // namespace kesto::ui::setting::hatchxml
