#pragma once

#include <QByteArray>
#include <QString>

namespace kesto::workbench::dxf {

// The longest line (in bytes, line end excluded) given to the DXF parser, which splits lines
// of 1,023 bytes or more; longer lines are cut to it before parsing.
constexpr int kMaxLineLength = 1000;

// Checks a DXF file's text before it is parsed, so that a broken or hostile file is refused
// with a reason instead of misleading the parser: a binary or empty file, a group code that is
// not a number, a missing value, a section left open, a file without EOF (truncated), and a
// count (of vertices, knots, edges, ...) that promises more values than its entity holds.
// On success, text is what the parser may read (long lines cut, when there were any).
bool checkDxfText(QByteArray& text, QString* error);

} // namespace kesto::workbench::dxf
