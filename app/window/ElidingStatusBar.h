#pragma once

#include <QStatusBar>

namespace kesto::workbench {

// A status bar whose message, when too long for it, is shortened in the middle (so that a
// path's end stays readable) rather than cut off, and shown whole as the bar's tool tip.
class CElidingStatusBar : public QStatusBar {
    Q_OBJECT

public:
    explicit CElidingStatusBar(QWidget* parent = nullptr);

    // The message as it is drawn: the whole message when it fits.
    QString shownText() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QRect messageRect() const;
    void showWholeInToolTip();
};

} // namespace kesto::workbench
