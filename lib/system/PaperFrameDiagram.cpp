#include "system/PaperFrameDiagram.h"

#include "system/PaperRules.h"

#include <QPainter>
#include <QPainterPath>

namespace kesto::ui::config {

namespace {

const QColor kPaper(0xFF, 0xFF, 0xFF);
const QColor kFrameLine(0x20, 0x20, 0x20);
const QColor kCutLine(0x80, 0x80, 0x80);
const QColor kDimension(0x1F, 0x5F, 0xBF);
constexpr int kLegendHeight = 22;

using SLayout = CPaperFrameDiagram::SLayout;

SLayout layoutIn(const QRectF& area)
{
    SLayout l;
    l.cut = area.adjusted(6, 6, -6, -6);
    l.frame = l.cut.adjusted(l.cut.width() * 0.17, l.cut.height() * 0.15, -l.cut.width() * 0.16,
                             -l.cut.height() * 0.15);
    l.inner = l.frame.adjusted(l.frame.width() * 0.09, l.frame.height() * 0.14,
                               -l.frame.width() * 0.09, -l.frame.height() * 0.14);
    const QSizeF title(l.inner.width() * 0.5, l.inner.height() * 0.36);
    l.title = QRectF(l.inner.bottomRight() - QPointF(title.width(), title.height()), title);
    return l;
}

void arrowHead(QPainter& p, const QPointF& tip, const QPointF& from)
{
    const QLineF back(tip, from);
    QLineF side = back;
    side.setLength(5);
    QPainterPath head;
    head.moveTo(tip);
    side.setAngle(back.angle() + 25);
    head.lineTo(side.p2());
    side.setAngle(back.angle() - 25);
    head.lineTo(side.p2());
    head.closeSubpath();
    p.fillPath(head, kDimension);
}

// A dimension line between a and b with arrow heads and its label at labelAt.
void dimension(QPainter& p, const QPointF& a, const QPointF& b, const QString& label,
               const QPointF& labelAt, Qt::Alignment align)
{
    p.setPen(QPen(kDimension, 1));
    p.drawLine(a, b);
    arrowHead(p, a, b);
    arrowHead(p, b, a);
    const QFontMetrics fm(p.font());
    QRectF box(QPointF(0, 0), QSizeF(fm.horizontalAdvance(label) + 6, fm.height() + 2));
    if (align & Qt::AlignRight)
        box.moveRight(labelAt.x());
    else if (align & Qt::AlignLeft)
        box.moveLeft(labelAt.x());
    else
        box.moveCenter(QPointF(labelAt.x(), box.center().y()));
    if (align & Qt::AlignTop)
        box.moveTop(labelAt.y());
    else if (align & Qt::AlignBottom)
        box.moveBottom(labelAt.y());
    else
        box.moveCenter(QPointF(box.center().x(), labelAt.y()));
    p.fillRect(box, QColor(255, 255, 255, 230));
    p.setPen(kDimension);
    p.drawText(box, Qt::AlignCenter, label);
}

QPen linePen(const QColor& color, qreal width, Qt::PenStyle style, bool drawn)
{
    QColor c = color;
    if (!drawn)
        c.setAlpha(70);
    return QPen(c, width, drawn ? style : Qt::DotLine);
}

} // namespace

CPaperFrameDiagram::CPaperFrameDiagram(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void CPaperFrameDiagram::setFrame(const std::optional<setting::SPaperFrame>& frame)
{
    m_frame = frame;
    update();
}

void CPaperFrameDiagram::setLineNames(const QString& drawFrame, const QString& innerFrame,
                                      const QString& cutLine)
{
    m_lineNames[0] = drawFrame;
    m_lineNames[1] = innerFrame;
    m_lineNames[2] = cutLine;
    update();
}

QString CPaperFrameDiagram::labelOf(int dimension) const
{
    const QString letter = paperrules::frame::dimensionLetter(dimension);
    if (!m_frame)
        return letter;
    return QStringLiteral("%1=%2").arg(letter).arg(m_frame->dimensions[dimension]);
}

void CPaperFrameDiagram::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.fillRect(rect(), palette().color(QPalette::Base));
    const SLayout l = layoutIn(QRectF(rect()).adjusted(0, 0, 0, -kLegendHeight));
    paintLines(p, l);
    paintTitleBlock(p, l.title);
    paintDimensions(p, l);
    paintLegend(p);
}

std::array<QPen, 3> CPaperFrameDiagram::linePens() const
{
    const bool drawFrame = !m_frame || m_frame->drawFrame;
    const bool innerFrame = !m_frame || m_frame->innerFrame;
    const bool cutLine = !m_frame || m_frame->cutLine;
    return {linePen(kFrameLine, 2.2, Qt::SolidLine, drawFrame),
            linePen(kFrameLine, 0.8, Qt::SolidLine, innerFrame),
            linePen(kCutLine, 1, Qt::DashLine, cutLine)};
}

void CPaperFrameDiagram::paintLines(QPainter& p, const SLayout& l) const
{
    const std::array<QPen, 3> pens = linePens();
    p.fillRect(l.cut, kPaper);
    p.setPen(pens[2]);
    p.drawRect(l.cut);
    p.setPen(pens[0]);
    p.drawRect(l.frame);
    p.setPen(pens[1]);
    p.drawRect(l.inner);
}

// The title block: its name on the left, a few rows of its table on the right.
void CPaperFrameDiagram::paintTitleBlock(QPainter& p, const QRectF& title) const
{
    p.setPen(QPen(kFrameLine, 0.8));
    p.drawRect(title);
    const qreal split = title.left() + title.width() * 0.5;
    p.drawLine(QPointF(split, title.top()), QPointF(split, title.bottom()));
    for (int i = 1; i < 3; ++i) {
        const qreal y = title.top() + title.height() * i / 3;
        p.drawLine(QPointF(split, y), QPointF(title.right(), y));
    }
    QFont font = p.font();
    font.setPixelSize(11);
    p.setFont(font);
    p.drawText(QRectF(title.left(), title.top(), split - title.left(), title.height()),
               Qt::AlignCenter, property("titleBlockText").toString());
}

void CPaperFrameDiagram::paintDimensions(QPainter& p, const SLayout& l) const
{
    QFont font = QWidget::font();
    font.setBold(true);
    p.setFont(font);
    const qreal midY = l.frame.center().y();
    // A, B: cut line to drawing frame, left and right.
    dimension(p, {l.cut.left(), midY - 10}, {l.frame.left(), midY - 10}, labelOf(0),
              {l.cut.left() + 2, midY - 14}, Qt::AlignLeft | Qt::AlignBottom);
    dimension(p, {l.frame.right(), midY + 10}, {l.cut.right(), midY + 10}, labelOf(1),
              {l.cut.right() - 2, midY + 6}, Qt::AlignRight | Qt::AlignBottom);
    // C, D: top and bottom.
    const qreal x = l.frame.left() + l.frame.width() * 0.22;
    dimension(p, {x, l.cut.top()}, {x, l.frame.top()}, labelOf(2), {x + 4, l.cut.top() + 1},
              Qt::AlignLeft | Qt::AlignTop);
    dimension(p, {x, l.frame.bottom()}, {x, l.cut.bottom()}, labelOf(3),
              {x + 4, l.cut.bottom() - 1}, Qt::AlignLeft | Qt::AlignBottom);
    // E, F: drawing frame to inner frame line.
    const qreal yE = l.inner.top() + l.inner.height() * 0.3;
    dimension(p, {l.frame.left(), yE}, {l.inner.left(), yE}, labelOf(4), {l.inner.left() + 3, yE},
              Qt::AlignLeft);
    const qreal xF = l.inner.left() + l.inner.width() * 0.3;
    dimension(p, {xF, l.frame.top()}, {xF, l.inner.top()}, labelOf(5), {xF + 4, l.inner.top() + 1},
              Qt::AlignLeft | Qt::AlignTop);
    // G, H: the title block.
    const qreal yG = l.title.top() - 7;
    dimension(p, {l.title.left(), yG}, {l.title.right(), yG}, labelOf(6),
              {l.title.center().x(), yG - 1}, Qt::AlignHCenter | Qt::AlignBottom);
    const qreal xH = l.title.left() - 7;
    dimension(p, {xH, l.title.top()}, {xH, l.title.bottom()}, labelOf(7),
              {xH - 3, l.title.center().y()}, Qt::AlignRight);
}

// The three lines as the picture draws them, with their names.
void CPaperFrameDiagram::paintLegend(QPainter& p) const
{
    p.setFont(QWidget::font());
    const std::array<QPen, 3> pens = linePens();
    const qreal y = rect().bottom() - kLegendHeight / 2.0;
    qreal left = 8;
    for (int i = 0; i < 3; ++i) {
        p.setPen(pens[static_cast<std::size_t>(i)]);
        p.drawLine(QPointF(left, y), QPointF(left + 22, y));
        p.setPen(palette().color(QPalette::Text));
        const qreal width = p.fontMetrics().horizontalAdvance(m_lineNames[i]);
        p.drawText(QRectF(left + 26, y - kLegendHeight / 2.0, width + 4, kLegendHeight),
                   Qt::AlignLeft | Qt::AlignVCenter, m_lineNames[i]);
        left += 26 + width + 18;
    }
}

} // namespace kesto::ui::config
