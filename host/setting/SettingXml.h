#pragma once

#include "types/KsColor.h"
#include "types/KsLineType.h"
#include "types/KsLineWidth.h"

#include <QDomElement>

#include <cstdint>

// Attribute forms of the value types, shared by the settings files. Readers return false and
// leave out alone when an attribute is missing or malformed.
namespace kesto::ui::setting::xmlform {

// rgb, colorType, colorName
void writeColor(QDomElement& element, const KsColor& color);
bool readColor(const QDomElement& element, KsColor& out);

// lineTypeId, lineType, lineTypeKind
void writeLineType(QDomElement& element, const KsLineType& lineType);
bool readLineType(const QDomElement& element, KsLineType& out);

// width, widthKind
void writeLineWidth(QDomElement& element, const KsLineWidth& lineWidth);
bool readLineWidth(const QDomElement& element, KsLineWidth& out);

// "1" or "0"; a missing attribute reads as fallback, anything else is malformed.
bool readFlag(const QDomElement& element, const QString& name, bool fallback, bool& out);

} // namespace kesto::ui::setting::xmlform
