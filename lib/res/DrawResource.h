#pragma once

#include "res/CommonResource.h"

namespace kesto::ui::config::res {

enum DrawTemplate : int {
    IDD_DRAW_COMMON = 2051, // "共通設定"
};

enum DrawControl : int {
    IDC_DRAW_REFERENCE = 7491,     // "図面参照"
    IDC_DRAW_COLOR = 7495,         // "色"
    IDC_DRAW_COORDSYS = 7781,      // "座標系"
    IDC_DRAW_SCALE = 7782,         // "スケール"
    IDC_DRAW_LAYER = 7783,         // "レイヤ"
    IDC_DRAW_LINETYPE = 7784,      // "線種"
    IDC_DRAW_LINEWIDTH = 7785,     // "線幅"
    IDC_DRAW_START_LINEEND = 7786, // "始点:"
    IDC_DRAW_END_LINEEND = 7787,   // "終点:"
    IDC_DRAW_VIRTUAL = 7788,       // "仮想要素にする"
};

} // namespace kesto::ui::config::res
