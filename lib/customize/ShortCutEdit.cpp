#include "customize/ShortCutEdit.h"

#include "customize/ShortCutRules.h"

#include <QKeyEvent>

namespace kesto::ui::config {

namespace keys = utility::keys;

CShortCutEdit::CShortCutEdit(QWidget* parent)
    : QLineEdit(parent)
{
    setReadOnly(true);
    setContextMenuPolicy(Qt::NoContextMenu);
    setAttribute(Qt::WA_InputMethodEnabled, false);
}

bool CShortCutEdit::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        // Every key comes to this field as a press, none runs a shortcut.
        event->accept();
        return true;
    case QEvent::KeyPress:
        onKeyPress(static_cast<const QKeyEvent&>(*event));
        return true;
    case QEvent::KeyRelease:
        return true;
    default:
        return QLineEdit::event(event);
    }
}

void CShortCutEdit::onKeyPress(const QKeyEvent& event)
{
    const keys::SKeyStroke stroke = keys::keyStrokeOf(event);
    switch (shortcutrules::captureAction(stroke.key)) {
    case shortcutrules::ECapture::Keep:
        return;
    case shortcutrules::ECapture::Clear:
        setCapture({});
        return;
    case shortcutrules::ECapture::Show:
        setCapture(stroke);
        return;
    }
}

void CShortCutEdit::clearCapture()
{
    setCapture({});
}

void CShortCutEdit::setCapture(const keys::SKeyStroke& stroke)
{
    m_captured = stroke;
    setText(keys::keyStrokeText(stroke.flags, stroke.key));
    notify(EVENT_CAPTURE_CHANGED, &m_captured);
}

} // namespace kesto::ui::config
