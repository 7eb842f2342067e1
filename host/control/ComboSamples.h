#pragma once

#include <QColor>
#include <QIcon>
#include <QSize>

#include <vector>

// Small pictures for the entries of the colour, line type and line width combo boxes, so an
// entry is recognised at a glance.
namespace kesto::ui::control::samples {

constexpr QSize kSwatchSize(24, 14);
constexpr QSize kLineSampleSize(56, 14);

QIcon colorSwatch(const QColor& color);
// Half of the swatch in each of two greys: "whatever the layer says".
QIcon byLayerSwatch(const QSize& size = kSwatchSize);
// Four hues: "choose another colour".
QIcon otherColorSwatch();
// A line in the dash pattern (mm; dashes positive, gaps negative), 3 pixels per millimetre.
QIcon lineTypeSample(const std::vector<double>& dashes);
// A horizontal line as thick as the width suggests (6 pixels a millimetre), optionally on a
// background (the drawing's, so the line looks as it will on screen).
QIcon lineWidthSample(double widthMm, const QColor& color = Qt::black,
                      const QColor& background = QColor());
// A question mark in a box: "choose another line type".
QIcon otherLineTypeSample();

// Pixel thickness of a width sample (0.7 to 9).
double sampleThickness(double widthMm);

} // namespace kesto::ui::control::samples
