#pragma once

#include "res/CommonResource.h"

namespace kesto::ui::config::res {

enum LayerTemplate : int {
    IDD_EDIT_VIEWPORT_LAYERS = 9020,     // "表示・非表示レイヤの設定"
    IDD_EDIT_CROSSSECTION_LAYERS = 9033, // "参照・非参照レイヤの設定"
};

enum LayerString : int {
    IDS_LAYER_VISIBLE = 6960,          // "表示": column header and the viewport's flag 1
    IDS_LAYER_HIDDEN = 6961,           // "非表示": the viewport's flag 2
    IDS_LAYER_REFERENCE = 6962,        // "参照": column header and the cross-section's flag 1
    IDS_LAYER_NO_REFERENCE = 6963,     // "非参照": the cross-section's flag 2
    IDS_LAYER_KEEP = 6964,             // "(そのまま)": flag 3
    IDS_LAYER_COLUMN_VIEWPORT = 6965,  // "表示・非表示"
    IDS_LAYER_COLUMN_SECTION = 6966,   // "参照・非参照"
    IDS_LAYER_COLUMN_FIGURE = 6967,    // "図形"
    IDS_LAYER_COLUMN_EDITABLE = 6968,  // "編集"
    IDS_LAYER_COLUMN_NAME = 6969,      // "レイヤ名称"
    IDS_LAYER_COLUMN_COLOR = 6970,     // "色"
    IDS_LAYER_COLUMN_LINETYPE = 6971,  // "線種"
    IDS_LAYER_COLUMN_LINEWIDTH = 6972, // "線幅"
    IDS_LAYER_COLUMN_COMMENT = 6973,   // "コメント"
    IDS_LAYER_MARK_FIGURE = 6974,      // "*": the layer holds figures
    IDS_LAYER_MARK_TRUE = 6975,        // "○"
    IDS_LAYER_MARK_FALSE = 6976,       // "×"
};

enum LayerControl : int {
    IDC_LAYER_ON = 1039,       // "表示" / "参照"
    IDC_LAYER_OFF = 1040,      // "非表示" / "非参照"
    IDC_LAYER_IGNORE = 1043,   // "無記入"
    IDC_LAYER_KEEP = 1044,     // "(そのまま)"
    IDC_LAYER_EXPLAIN = 13407, // what the four flags mean
};

} // namespace kesto::ui::config::res
