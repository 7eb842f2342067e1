#pragma once

#include "setting/ContextMenuData.h"
#include "setting/SettingBase.h"

#include <string>
#include <utility>
#include <vector>

namespace kesto::ui::setting {

// What dragging does (leftDragAction, bothButtonsAction, wheelDrag, ctrlWheelDrag).
enum EMouseDragCode {
    MOUSE_DRAG_NONE = 0,           // nothing; for both buttons in 2-D: both buttons disabled
    MOUSE_DRAG_CORNER_COMMAND = 1, // both buttons in 2-D: the command of the release corner
    MOUSE_DRAG_SMOOTH_SCROLL = 2,
    MOUSE_DRAG_ROTATE_VIEW = 3, // 3-D
    MOUSE_DRAG_TOOL_PANEL_MODE = 4,
};

// What turning the wheel does (wheelRotate, ctrlWheelRotate, shiftWheelRotate).
enum EMouseRotateCode {
    MOUSE_ROTATE_NONE = 0,
    MOUSE_ROTATE_STEP_ZOOM = 1,
    MOUSE_ROTATE_VERTICAL_SCROLL = 2,
    MOUSE_ROTATE_TOOL_PANEL_MODE = 3,
    MOUSE_ROTATE_AROUND_X = 4, // 3-D
};

// The mouse assignments of one view.
struct SMouseSetting {
    bool showShortcutMenu = true;
    bool wheelCommands = true;
    control::CContextMenuData shortcutMenu;
    int leftDragAction = MOUSE_DRAG_ROTATE_VIEW;
    int bothButtonsAction = MOUSE_DRAG_CORNER_COMMAND;
    std::wstring samePointCommand;
    std::wstring leftUpCommand;
    std::wstring rightUpCommand;
    std::wstring leftDownCommand;
    std::wstring rightDownCommand;
    int wheelRotate = MOUSE_ROTATE_STEP_ZOOM;
    int wheelDrag = MOUSE_DRAG_SMOOTH_SCROLL;
    std::wstring wheelClick;
    int ctrlWheelRotate = MOUSE_ROTATE_NONE;
    int ctrlWheelDrag = MOUSE_DRAG_NONE;
    std::wstring ctrlWheelClick;
    int shiftWheelRotate = MOUSE_ROTATE_NONE;
    double stepZoomRate = 0.25; // a fraction: 0.25 zooms by 25 % a step
    bool wheelUpZoomsIn = true;

    bool operator==(const SMouseSetting& other) const = default;
};

// The mouse settings of the drawing views, by view name ("2DView", "3DView").
class CMouseSetting : public TSetting<CMouseSetting> {
public:
    static constexpr const wchar_t* k2DView = L"2DView";
    static constexpr const wchar_t* k3DView = L"3DView";

    // Both views with the assignments a drafter starts with.
    static CMouseSetting makeDefault();

    // Null when the view has no record.
    SMouseSetting* getMouseSetting(const wchar_t* viewName);
    const SMouseSetting* getMouseSetting(const wchar_t* viewName) const;
    // Adds the view's record or replaces it.
    void setMouseSetting(const wchar_t* viewName, const SMouseSetting& setting);
    bool removeMouseSetting(const wchar_t* viewName);
    std::size_t viewCount() const { return m_views.size(); }

    bool isSame(const CMouseSetting& other) const { return m_views == other.m_views; }

    QString xmlRootName() const override { return QStringLiteral("MouseSetting"); }
    // <View name="2DView" ...fields as attributes...><ShortcutMenu>..</ShortcutMenu></View>;
    // a missing field keeps its default, a malformed one fails the whole load.
    bool loadXMLNode(const QDomElement& element) override;
    void saveXMLNode(QDomDocument& doc, QDomElement& element) const override;

private:
    std::vector<std::pair<std::wstring, SMouseSetting>> m_views;
};

} // namespace kesto::ui::setting
