#pragma once

#include <QString>
#include <QStringList>

class QWidget;

namespace kesto::workbench {

class Session;

// Opens every topic's dialog through its entry function, renders each shot to
// DIR/<topic id>[-<suffix>].png and cancels. Returns the files written.
QStringList renderTopicScreenshots(Session& session, const QString& dir, QString* error);

bool renderWidget(QWidget& widget, const QString& file);

} // namespace kesto::workbench
