#pragma once

#include "setting/SystemPaperFrameSetting.h"

#include <QPen>
#include <QWidget>

#include <array>
#include <optional>

namespace kesto::ui::config {

// The picture of a drawing frame that explains the dimensions A to H: the cut line, the
// drawing frame, the inner frame line and the title block, with a dimension line for each
// letter. With a frame given, each letter shows its value and lines not drawn are faint.
class CPaperFrameDiagram : public QWidget {
    Q_OBJECT

public:
    explicit CPaperFrameDiagram(QWidget* parent = nullptr);

    void setFrame(const std::optional<setting::SPaperFrame>& frame);
    const std::optional<setting::SPaperFrame>& frame() const { return m_frame; }
    // Names of the three lines for the legend: drawing frame, inner frame line, cut line.
    void setLineNames(const QString& drawFrame, const QString& innerFrame, const QString& cutLine);
    // "A=30": the text beside a dimension line.
    QString labelOf(int dimension) const;

    QSize sizeHint() const override { return {330, 230}; }

    // The rectangles of the schematic, margins exaggerated so every dimension can be read.
    struct SLayout {
        QRectF cut;
        QRectF frame;
        QRectF inner;
        QRectF title;
    };

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    // Drawing frame, inner frame line, cut line; faint where the frame does not draw them.
    std::array<QPen, 3> linePens() const;
    void paintLines(QPainter& p, const SLayout& layout) const;
    void paintTitleBlock(QPainter& p, const QRectF& title) const;
    void paintDimensions(QPainter& p, const SLayout& layout) const;
    void paintLegend(QPainter& p) const;

    QString m_lineNames[3];
    std::optional<setting::SPaperFrame> m_frame;
};

} // namespace kesto::ui::config
