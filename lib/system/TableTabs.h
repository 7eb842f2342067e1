#pragma once

class QTabBar;

namespace kesto::ui::config {

// The tabs of a system table dialog: "システム", and "図面内" when a drawing is open.
void setupTableTabs(QTabBar& tab, bool withDrawing);

} // namespace kesto::ui::config
