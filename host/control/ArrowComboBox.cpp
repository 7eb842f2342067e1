#include "control/ArrowComboBox.h"

#include "setting/LineEndSetting.h"

#include <QPainter>
#include <QPainterPath>

namespace kesto::ui::control {

namespace {

constexpr int kTypeRole = Qt::UserRole + 1;

// Draws the end at (tip) of a line coming from the left.
void drawEnd(QPainter& p, const std::wstring& type, QPointF tip, qreal h)
{
    using namespace setting::lineendtype;
    const qreal len = h * 0.9;
    const qreal half = h * 0.3;
    if (type == OpenArrow || type == FilledArrow) {
        QPainterPath arrow;
        arrow.moveTo(tip.x() - len, tip.y() - half);
        arrow.lineTo(tip);
        arrow.lineTo(tip.x() - len, tip.y() + half);
        if (type == FilledArrow) {
            arrow.closeSubpath();
            p.fillPath(arrow, p.pen().color());
        }
        p.drawPath(arrow);
    } else if (type == FilledDot || type == OpenDot) {
        p.setBrush(type == FilledDot ? p.pen().color() : QColor(Qt::white));
        p.drawEllipse(tip - QPointF(half, 0), half, half);
    } else if (type == Slash) {
        p.drawLine(tip + QPointF(-half, half), tip + QPointF(half, -half));
    } else if (type == Tick) {
        p.drawLine(tip + QPointF(0, -half), tip + QPointF(0, half));
    }
}

} // namespace

CArrowComboBox::CArrowComboBox(QWidget* parent)
    : QComboBox(parent)
{
    setIconSize(QSize(40, 14));
}

int CArrowComboBox::addArrow(const std::wstring& type, const std::wstring& name)
{
    addItem(QIcon(arrowPicture(type, iconSize(), palette().color(QPalette::Text))),
            QString::fromStdWString(name));
    const int index = count() - 1;
    setItemData(index, QString::fromStdWString(type), kTypeRole);
    return index;
}

std::wstring CArrowComboBox::getArrowType(int index) const
{
    return itemData(index, kTypeRole).toString().toStdWString();
}

int CArrowComboBox::SelectString(int startAfter, const QString& text)
{
    for (int i = std::max(startAfter + 1, 0); i < count(); ++i) {
        if (itemText(i).startsWith(text, Qt::CaseInsensitive)) {
            setCurrentIndex(i);
            return i;
        }
    }
    return -1;
}

QPixmap CArrowComboBox::arrowPicture(const std::wstring& type, const QSize& size, const QColor& ink)
{
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter p(&picture);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(ink, 1.2));
    const qreal y = size.height() / 2.0;
    const QPointF tip(size.width() - 4.0, y);
    p.drawLine(QPointF(2, y), tip);
    drawEnd(p, type, tip, size.height());
    return picture;
}

} // namespace kesto::ui::control
