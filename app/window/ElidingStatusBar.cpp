#include "window/ElidingStatusBar.h"

#include <QPainter>
#include <QStyleOption>

namespace kesto::workbench {

CElidingStatusBar::CElidingStatusBar(QWidget* parent)
    : QStatusBar(parent)
{
    connect(this, &QStatusBar::messageChanged, this, &CElidingStatusBar::showWholeInToolTip);
}

// Where QStatusBar draws its message, left of the size grip.
QRect CElidingStatusBar::messageRect() const
{
    const int grip = isSizeGripEnabled() ? style()->pixelMetric(QStyle::PM_SizeGripSize) : 0;
    return QRect(6, 0, std::max(0, width() - 12 - grip), height());
}

QString CElidingStatusBar::shownText() const
{
    return fontMetrics().elidedText(currentMessage(), Qt::ElideMiddle, messageRect().width());
}

void CElidingStatusBar::showWholeInToolTip()
{
    const QString message = currentMessage();
    setToolTip(shownText() == message ? QString() : message);
}

void CElidingStatusBar::paintEvent(QPaintEvent* event)
{
    if (currentMessage().isEmpty()) {
        QStatusBar::paintEvent(event);
        return;
    }
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_PanelStatusBar, &option, &painter, this);
    painter.setPen(palette().windowText().color());
    painter.drawText(messageRect(), Qt::AlignLeading | Qt::AlignVCenter | Qt::TextSingleLine,
                     shownText());
}

void CElidingStatusBar::resizeEvent(QResizeEvent* event)
{
    QStatusBar::resizeEvent(event);
    showWholeInToolTip();
}

} // namespace kesto::workbench
