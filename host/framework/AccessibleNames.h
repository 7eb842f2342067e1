#pragma once

#include <QList>
#include <QString>

class QWidget;

namespace kesto::ui::framework {

// The controls of a window a keyboard user reaches: widgets that take focus by Tab, other than
// static texts and the inner parts of another control (a combo box's edit field, a list's
// scroll bars).
QList<QWidget*> keyboardControls(const QWidget& window);

// Gives each of the window's keyboard controls without an accessible name one: the text of the
// label that is its buddy, else its own text, else the label just before it in its layout, else
// the title of the group box, tab page or window it lies in. Mnemonics ("&" and "(&X)") and a
// trailing colon are left out.
void nameControls(QWidget& window);

// A label or button text as read aloud.
QString plainText(const QString& text);

} // namespace kesto::ui::framework
