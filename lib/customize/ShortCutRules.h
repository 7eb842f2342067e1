#pragma once

#include "setting/ShortCutSetting.h"
#include "utility/VirtualKey.h"

#include <QString>
#include <QStringList>

// Rules of the shortcut key dialog, free of widgets.
namespace kesto::ui::config::shortcutrules {

using utility::keys::SKeyStroke;

// What a key press does to the captured key.
enum class ECapture {
    Keep,  // nothing changes
    Clear, // the capture is emptied
    Show,  // the press becomes the captured key
};

// For a press of the key with virtual-key code key (0: a key without a code).
ECapture captureAction(std::uint16_t key);

// Columns of the list of all bindings.
enum EColumn { ColumnName = 0, ColumnKey = 1 };

struct SButtonStates {
    bool assignEnabled = false;
    bool deleteEnabled = false;
};

// selectedCommand: the number of the tree's selected item (0 or less for a group or none);
// owner: the binding that holds the captured key, if any.
SButtonStates buttonStates(int selectedCommand, const SKeyStroke& captured,
                           const setting::SShortCut* owner, bool rowSelected);

// The note under the key: who owns it now, empty when nobody does.
QString ownerText(const QString& ownerName);

} // namespace kesto::ui::config::shortcutrules
