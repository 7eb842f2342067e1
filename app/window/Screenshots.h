#pragma once

#include <QPixmap>
#include <QString>
#include <QStringList>

class QWidget;

namespace kesto::workbench {

class Session;

// Opens every topic's dialog through its entry function, renders each shot to
// DIR/<topic id>[-<suffix>].png and cancels; a picture a topic already has is not written
// again. Returns the files written.
QStringList renderTopicScreenshots(Session& session, const QString& dir, QString* error);

// The window as a picture with a title bar drawn on, and that picture written as PNG.
QPixmap framedPicture(QWidget& widget);
bool renderWidget(QWidget& widget, const QString& file);

} // namespace kesto::workbench
