#pragma once

// Numbers shared by the library's dialogs: strings 6000-6999, controls 1-32767.
// Strings 6900-6999 are the library's own additions (per subsystem: system 6900-6919,
// drawing 6920-6939, hatching 6940-6959, layers 6960-6979, customisation 6980-6999).
namespace kesto::ui::config::res {

enum CommonString : int {
    IDS_TAB_SYSTEM = 6004,          // "システム"
    IDS_TAB_DRAWING = 6005,         // "図面内"
    IDS_ELEMENT_COLOR = 6009,       // "要素の色"
    IDS_FRAME_COLOR = 6010,         // "枠の色"
    IDS_BY_LAYER = 6011,            // "レイヤ依存"
    IDS_OTHER_COLOR = 6012,         // "他の色"
    IDS_OTHER_LINETYPE = 6013,      // "他の線種"
    IDS_CAPTION_INPUT_ERROR = 6900, // "入力値エラー"
};

enum CommonControl : int {
    IDC_HELP = 7500,
    IDC_TAB = 7071,
    IDC_LIST = 7062,
    IDC_ADD = 7501,
    IDC_DELETE = 7502,
    IDC_INSERT = 7698,
    IDC_RESET = 7704,
    IDC_REGISTER_SYSTEM = 13000,
};

} // namespace kesto::ui::config::res
