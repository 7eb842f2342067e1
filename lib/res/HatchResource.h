#pragma once

#include "res/CommonResource.h"

namespace kesto::ui::config::res {

enum HatchString : int {
    IDS_HATCH_CAPTION = 6940,                  // "ハッチングパターンの設定"
    IDS_HATCH_BASE_FIGURE_UNREGISTERED = 6941, // picked figure hatch, base figure not in the system
};

} // namespace kesto::ui::config::res
