#pragma once

#include "res/CommonResource.h"

namespace kesto::ui::config::res {

enum SystemTemplate : int {
    IDD_SYSTEM_SCALE = 2039, // "スケールの設定"
};

enum SystemString : int {
    IDS_SAME_LINEWIDTH_EXISTS = 6006,
    IDS_SAME_SCALE_EXISTS = 6007,
    IDS_SCALE_COLUMN_NAME = 6901,
    IDS_SCALE_COLUMN_NUMERATOR = 6902,
    IDS_SCALE_COLUMN_DENOMINATOR = 6903,
    IDS_SCALE_VALUE_NOT_POSITIVE = 6904,
};

} // namespace kesto::ui::config::res
