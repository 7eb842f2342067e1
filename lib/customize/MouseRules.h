#pragma once

#include "core/IMainFrame.h"
#include "setting/ContextMenuData.h"
#include "setting/MouseCommands.h"
#include "setting/MouseSetting.h"

#include <QString>
#include <QStringList>

#include <array>
#include <optional>
#include <vector>

namespace kesto::utility {
class CCommandTable;
}

// Rules of the mouse settings dialog, free of widgets: the candidate file, tab captions, pages,
// and the mapping between the setting's codes and the controls.
namespace kesto::ui::config::mouserules {

// The pages by the tabs that show them.
enum EPage { Right2D, Both2D, Wheel2D, Right3D, Left3D, Both3D, Wheel3D, PageCount };
constexpr int kView2D = 0;
constexpr int kView3D = 1;

// The candidate-command file; a missing or unreadable file gives no record, a malformed record
// is left out.
std::vector<setting::SMouseCommands> readMouseCommands(const std::wstring& path);
// The first record of the view (names compared exactly), or null.
const setting::SMouseCommands* findViewCommands(const std::vector<setting::SMouseCommands>& list,
                                                const std::wstring& viewName);

// The host's names of its views (index 0, 1, 2), empty where it has none.
struct SViewNames {
    QString first;
    QString third;
};
QString viewTabCaption(const SViewNames& names, bool writeInRed,
                       core::IMainFrame::EFrameMode frameMode);
QStringList buttonTabCaptions(int viewIndex);
// The page shown for the tabs; PageCount when there is none.
EPage pageFor(int viewIndex, int buttonIndex);
QString helpTopic(EPage page);

// A candidate command: its identifier and the name it is shown by.
struct SCandidate {
    std::wstring id;
    QString name;
};
// Names from the command table; an identifier the table does not know stands for itself.
std::vector<SCandidate> resolveCandidates(const std::vector<std::wstring>& ids,
                                          const utility::CCommandTable* commands);
// The text of a command in the lists of the right-button page.
QString commandRowText(const std::wstring& id, const QString& displayName);
QString menuItemRowText(const control::SContextMenuDataItem& item,
                        const utility::CCommandTable* commands);

// Combos of commands hold "なし" and then the candidates.
int commandComboIndex(const std::vector<SCandidate>& candidates, const std::wstring& id);
std::wstring commandOfComboIndex(const std::vector<SCandidate>& candidates, int index);

// The 2-D both-buttons page: radio 0 runs the corner commands, 1 scrolls, 2 disables.
struct SBothButtonsControls {
    int radio = 2;
    std::array<int, 5> corners{}; // combo indices: left up, left down, same point, right up,
                                  // right down
};
SBothButtonsControls loadBothButtons(const setting::SMouseSetting& view,
                                     const std::vector<SCandidate>& candidates);
void storeBothButtons(const SBothButtonsControls& controls,
                      const std::vector<SCandidate>& candidates, setting::SMouseSetting& view);

// The 2-D wheel page.
struct SWheelControls {
    bool wheelCommands = false;
    std::array<int, 3> rotate{}; // alone, Ctrl, Shift
    std::array<int, 2> drag{};   // alone, Ctrl
    std::array<int, 2> click{};  // alone, Ctrl
    QString zoomRate;
    int upDirection = 0;   // "↑": 0 "縮小", 1 "拡大"
    int downDirection = 0; // "↓": 0 "拡大", 1 "縮小"
};
SWheelControls loadWheel(const setting::SMouseSetting& view,
                         const std::vector<SCandidate>& candidates);
void storeWheel(const SWheelControls& controls, const std::vector<SCandidate>& candidates,
                setting::SMouseSetting& view);
int rotateComboIndex(int code);
int dragComboIndex(int code);
int dragCodeOfIndex(int index);
QString zoomRateText(double rate);

// The 3-D pages: whether their first radio is chosen.
struct S3DControls {
    bool leftRotates = false;    // "回転" rather than "スムーズスクロール"
    bool bothScrolls = false;    // "スムーズスクロール" rather than "回転"
    bool wheelStepZooms = false; // "ステップズーム" rather than "Ｘ軸まわりに回転"
};
S3DControls load3D(const setting::SMouseSetting& view);
void store3D(const S3DControls& controls, setting::SMouseSetting& view);

// The buttons of the right-button page.
struct SMenuButtonStates {
    bool add = false;
    bool insert = false;
    bool remove = false;
    bool up = false;
    bool down = false;
    bool separator = false;
};
SMenuButtonStates menuButtonStates(bool commandSelected, int selectedItem, int itemCount);

} // namespace kesto::ui::config::mouserules
