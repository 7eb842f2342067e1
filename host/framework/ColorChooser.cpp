#include "framework/ColorChooser.h"

#include <QColorDialog>

namespace kesto::ui::framework {

static ColorChooserHook::Handler& currentHandler()
{
    static ColorChooserHook::Handler handler;
    return handler;
}

std::optional<QColor> chooseColor(QWidget* parent, const QColor& initial)
{
    if (const auto& handler = currentHandler())
        return handler(initial);
    const QColor chosen = QColorDialog::getColor(initial, parent);
    if (!chosen.isValid())
        return std::nullopt;
    return chosen;
}

ColorChooserHook::Handler ColorChooserHook::setHandler(Handler handler)
{
    std::swap(handler, currentHandler());
    return handler;
}

} // namespace kesto::ui::framework
