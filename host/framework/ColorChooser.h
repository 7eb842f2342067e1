#pragma once

#include <QColor>

#include <functional>
#include <optional>

class QWidget;

namespace kesto::ui::framework {

// The host's colour picker; tests and scripted hosts replace it through ColorChooserHook.
std::optional<QColor> chooseColor(QWidget* parent, const QColor& initial);

class ColorChooserHook {
public:
    using Handler = std::function<std::optional<QColor>(const QColor& initial)>;
    // Returns the previous handler; an empty handler shows the real picker.
    static Handler setHandler(Handler handler);
};

} // namespace kesto::ui::framework
