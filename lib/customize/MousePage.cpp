#include "customize/MousePage.h"

#include <QKeyEvent>
#include <QLabel>

namespace kesto::ui::config {

CMousePage::CMousePage(int templateId, QWidget* parent)
    : CKsDialog(templateId, parent)
{
    setWindowFlags(Qt::Widget);
}

void CMousePage::setCommands(const utility::CCommandTable*, const setting::SMouseCommands*) {}

void CMousePage::loadFrom(const setting::SMouseSetting&) {}

void CMousePage::storeTo(setting::SMouseSetting&) const {}

void CMousePage::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        event->ignore();
        return;
    default:
        CKsDialog::keyPressEvent(event);
    }
}

QList<QWidget*> CMousePage::controlWithLabels(int controlId) const
{
    QList<QWidget*> widgets;
    QWidget* control = GetDlgItem(controlId);
    if (!control)
        return widgets;
    widgets << control;
    const auto labels = findChildren<QLabel*>();
    for (QLabel* label : labels) {
        if (label->buddy() == control)
            widgets << label;
    }
    return widgets;
}

void CMousePage::addToolTip(int controlId, const QString& key)
{
    for (QWidget* widget : controlWithLabels(controlId))
        m_toolTips.addTool(widget, key);
}

void CMousePage::setControlEnabled(int controlId, bool enabled)
{
    for (QWidget* widget : controlWithLabels(controlId))
        widget->setEnabled(enabled);
}

} // namespace kesto::ui::config
