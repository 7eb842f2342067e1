#include "control/ComboSamples.h"

#include <QHash>
#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <cmath>

namespace kesto::ui::control::samples {

namespace {

constexpr double kPixelsPerMm = 3.0;
const QColor kFrame(0x70, 0x70, 0x70);

QPixmap blank(const QSize& size)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    return pixmap;
}

void frame(QPainter& painter, const QRect& rect)
{
    painter.setPen(kFrame);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect.adjusted(0, 0, -1, -1));
}

} // namespace

QIcon colorSwatch(const QColor& color)
{
    QPixmap pixmap = blank(kSwatchSize);
    QPainter painter(&pixmap);
    painter.fillRect(pixmap.rect(), color);
    frame(painter, pixmap.rect());
    return QIcon(pixmap);
}

QIcon byLayerSwatch(const QSize& size)
{
    QPixmap pixmap = blank(size);
    QPainter painter(&pixmap);
    const QRect r = pixmap.rect();
    painter.fillRect(r, QColor(0xF0, 0xF0, 0xF0));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x60, 0x60, 0x60));
    painter.drawPolygon(QPolygon({r.topRight() + QPoint(1, 0), r.bottomRight() + QPoint(1, 1),
                                  r.bottomLeft() + QPoint(0, 1)}));
    painter.setRenderHint(QPainter::Antialiasing, false);
    frame(painter, r);
    return QIcon(pixmap);
}

QIcon otherColorSwatch()
{
    QPixmap pixmap = blank(kSwatchSize);
    QPainter painter(&pixmap);
    const int w = kSwatchSize.width() / 4;
    const QColor hues[] = {QColor(0xE0, 0x30, 0x30), QColor(0xF0, 0xC0, 0x20),
                           QColor(0x30, 0xA0, 0x40), QColor(0x30, 0x60, 0xE0)};
    for (int i = 0; i < 4; ++i)
        painter.fillRect(
            QRect(i * w, 0, i == 3 ? kSwatchSize.width() - 3 * w : w, kSwatchSize.height()),
            hues[i]);
    frame(painter, pixmap.rect());
    return QIcon(pixmap);
}

QIcon lineTypeSample(const std::vector<double>& dashes)
{
    QPixmap pixmap = blank(kLineSampleSize);
    QPainter painter(&pixmap);
    const int y = kLineSampleSize.height() / 2;
    painter.setPen(QPen(Qt::black, 2, Qt::SolidLine, Qt::FlatCap));
    double total = 0.0;
    for (double d : dashes)
        total += std::fabs(d);
    if (dashes.empty() || total <= 0.0) {
        painter.drawLine(1, y, kLineSampleSize.width() - 2, y);
        return QIcon(pixmap);
    }
    double x = 1.0;
    for (std::size_t i = 0; x < kLineSampleSize.width() - 1; i = (i + 1) % dashes.size()) {
        const double length = std::max(2.0, std::fabs(dashes[i]) * kPixelsPerMm);
        const double end = std::min<double>(x + length, kLineSampleSize.width() - 1);
        if (dashes[i] >= 0.0)
            painter.drawLine(QPointF(x, y), QPointF(end, y));
        x = end;
    }
    return QIcon(pixmap);
}

double sampleThickness(double widthMm)
{
    return std::clamp(widthMm * 6.0, 0.7, 9.0);
}

QIcon lineWidthSample(double widthMm, const QColor& color, const QColor& background)
{
    // Long tables repeat a few thicknesses and colours: draw each look once.
    static QHash<QString, QIcon> cache;
    const QString key = QStringLiteral("%1/%2/%3")
                            .arg(std::lround(sampleThickness(widthMm) * 10))
                            .arg(color.rgba())
                            .arg(background.isValid() ? background.rgba() : 0u);
    if (const auto it = cache.constFind(key); it != cache.constEnd())
        return *it;
    if (cache.size() > 4096)
        cache.clear();
    QPixmap pixmap = blank(kLineSampleSize);
    QPainter painter(&pixmap);
    if (background.isValid()) {
        painter.fillRect(pixmap.rect(), background);
        frame(painter, pixmap.rect());
    }
    // Fractional thicknesses are antialiased, so 0.13 and 0.18 still look different.
    const double thickness = sampleThickness(widthMm);
    const double top = (kLineSampleSize.height() - thickness) / 2.0;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(QRectF(2, top, kLineSampleSize.width() - 4, thickness), color);
    painter.end();
    return *cache.insert(key, QIcon(pixmap));
}

QIcon otherLineTypeSample()
{
    QPixmap pixmap = blank(kLineSampleSize);
    QPainter painter(&pixmap);
    painter.setPen(QPen(Qt::black, 1, Qt::DotLine));
    const int y = kLineSampleSize.height() / 2;
    painter.drawLine(2, y, kLineSampleSize.width() - 18, y);
    QFont font = painter.font();
    font.setBold(true);
    font.setPixelSize(11);
    painter.setFont(font);
    painter.setPen(Qt::black);
    painter.drawText(QRect(kLineSampleSize.width() - 16, 0, 14, kLineSampleSize.height()),
                     Qt::AlignCenter, QStringLiteral("…"));
    return QIcon(pixmap);
}

} // namespace kesto::ui::control::samples
