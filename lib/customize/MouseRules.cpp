#include "customize/MouseRules.h"

#include "command/CommandTable.h"
#include "framework/Resources.h"
#include "res/CustomizeResource.h"
#include "utility/NumberFormat.h"
#include "utility/Xml.h"

#include <algorithm>

namespace kesto::ui::config::mouserules {

using setting::SMouseSetting;

std::vector<setting::SMouseCommands> readMouseCommands(const std::wstring& path)
{
    std::vector<setting::SMouseCommands> list;
    QDomDocument doc;
    if (path.empty() || !utility::xml::load(doc, path))
        return list;
    const QDomElement root = doc.documentElement();
    if (root.tagName() != setting::SMouseCommands::getXMLRootName())
        return list;
    const QString node = setting::SMouseCommands::getXMLNodeName();
    for (QDomElement e = root.firstChildElement(node); !e.isNull();
         e = e.nextSiblingElement(node)) {
        setting::SMouseCommands record;
        if (record.loadXMLNode(e))
            list.push_back(std::move(record));
    }
    return list;
}

const setting::SMouseCommands* findViewCommands(const std::vector<setting::SMouseCommands>& list,
                                                const std::wstring& viewName)
{
    const auto it = std::find_if(list.begin(), list.end(), [&](const setting::SMouseCommands& r) {
        return r.viewName == viewName;
    });
    return it == list.end() ? nullptr : &*it;
}

QString viewTabCaption(const SViewNames& names, bool writeInRed,
                       core::IMainFrame::EFrameMode frameMode)
{
    using framework::loadString;
    if (frameMode == core::IMainFrame::FrameMode3D)
        return loadString(res::IDS_MOUSE_VIEW_3D);
    if (writeInRed)
        return loadString(res::IDS_MOUSE_VIEW_RED);
    if (names.first.isEmpty())
        return loadString(res::IDS_MOUSE_VIEW_2D);
    // The host names its modes ("平面図モード"); the tab names the view.
    QString caption = names.first;
    caption.remove(QStringLiteral("モード"));
    if (!names.third.isEmpty())
        caption += u'/' + names.third;
    return caption;
}

QStringList buttonTabCaptions(int viewIndex)
{
    const int id =
        viewIndex == kView3D ? res::IDS_MOUSE_BUTTON_TABS_3D : res::IDS_MOUSE_BUTTON_TABS_2D;
    return framework::loadString(id).split(u'\n');
}

EPage pageFor(int viewIndex, int buttonIndex)
{
    static const EPage pages2D[] = {Right2D, Both2D, Wheel2D};
    static const EPage pages3D[] = {Right3D, Left3D, Both3D, Wheel3D};
    if (viewIndex == kView3D)
        return buttonIndex >= 0 && buttonIndex < 4 ? pages3D[buttonIndex] : PageCount;
    return buttonIndex >= 0 && buttonIndex < 3 ? pages2D[buttonIndex] : PageCount;
}

QString helpTopic(EPage page)
{
    static const char* const topics[] = {
        "DLG_HLP_SET_MOUSE_RBUTTON",    "DLG_HLP_SET_MOUSE_RLBUTTON",
        "DLG_HLP_SET_MOUSE_WHEEL",      "DLG_HLP_SET_MOUSE_RBUTTON_3D",
        "DLG_HLP_SET_MOUSE_LBUTTON_3D", "DLG_HLP_SET_MOUSE_RLBUTTON_3D",
        "DLG_HLP_SET_MOUSE_WHEEL_3D",
    };
    return page < PageCount ? QString::fromLatin1(topics[page]) : QString();
}

std::vector<SCandidate> resolveCandidates(const std::vector<std::wstring>& ids,
                                          const utility::CCommandTable* commands)
{
    std::vector<SCandidate> candidates;
    candidates.reserve(ids.size());
    for (const std::wstring& id : ids) {
        const utility::SCommand* command = commands ? commands->findCommand(id) : nullptr;
        candidates.push_back({id, QString::fromStdWString(command ? command->name : id)});
    }
    return candidates;
}

QString commandRowText(const std::wstring& id, const QString& displayName)
{
    using framework::formatString;
    using framework::loadString;
    static const wchar_t* const directEditOnly[] = {
        L"ID_TOOL_ELEMENT_STATUS",
        L"ID_EDIT_PROPERTY_COPY",
        L"ID_EDIT_PROPERTY_ACTIVE",
        L"ID_EDIT_MOVE_MOVE",
        L"ID_EDIT_MOVE_ROTATE",
        L"ID_EDIT_COPY_COPY",
        L"ID_EDIT_ERASE",
        L"ID_EDIT_ZORDER_TOP",
        L"ID_EDIT_ZORDER_BOTTOM",
        L"ID_MISC_ACTIVE_ATTRIBUTE",
        L"ID_MISC_ACTIVE_SCALE",
        L"ID_EDIT_CUT",
        L"ID_EDIT_COPY",
        L"ID_LAYER_VISIBLE",
        L"ID_LAYER_INVISIBLE_THIS",
        L"ID_LAYER_INVISIBLE",
    };
    if (id == L"ID_VIEW_SELECT_RANGE_DISPLAY")
        return loadString(res::IDS_MOUSE_ROW_RANGE_DISPLAY);
    if (id == L"ID_VIEW_ROTATE_ELEMENT_HORIZONTALLY")
        return loadString(res::IDS_MOUSE_ROW_ROTATE_DISPLAY);
    if (id == L"ID_EDIT_TEXT_CONTENTS")
        return loadString(res::IDS_MOUSE_ROW_TEXT_CONTENTS);
    if (id == L"ID_TOOL_HYPERLINK_SETUP")
        return loadString(res::IDS_MOUSE_ROW_HYPERLINK);
    if (std::find(std::begin(directEditOnly), std::end(directEditOnly), id)
        != std::end(directEditOnly))
        return formatString(res::IDS_MOUSE_DIRECT_EDIT_ROW, {displayName});
    return displayName;
}

QString menuItemRowText(const control::SContextMenuDataItem& item,
                        const utility::CCommandTable* commands)
{
    if (item.type == control::SContextMenuDataItem::Separator)
        return framework::loadString(res::IDS_MOUSE_SEPARATOR_ROW);
    const utility::SCommand* command = commands ? commands->findCommand(item.id) : nullptr;
    const std::wstring& name = command ? command->name : (item.name.empty() ? item.id : item.name);
    return commandRowText(item.id, QString::fromStdWString(name));
}

int commandComboIndex(const std::vector<SCandidate>& candidates, const std::wstring& id)
{
    if (id.empty())
        return 0;
    const auto it = std::find_if(candidates.begin(), candidates.end(),
                                 [&](const SCandidate& c) { return c.id == id; });
    return it == candidates.end() ? 0 : static_cast<int>(it - candidates.begin()) + 1;
}

std::wstring commandOfComboIndex(const std::vector<SCandidate>& candidates, int index)
{
    if (index < 1 || index > static_cast<int>(candidates.size()))
        return {};
    return candidates[static_cast<std::size_t>(index) - 1].id;
}

namespace {
std::array<std::wstring SMouseSetting::*, 5> cornerFields()
{
    return {&SMouseSetting::leftUpCommand, &SMouseSetting::leftDownCommand,
            &SMouseSetting::samePointCommand, &SMouseSetting::rightUpCommand,
            &SMouseSetting::rightDownCommand};
}
} // namespace

SBothButtonsControls loadBothButtons(const SMouseSetting& view,
                                     const std::vector<SCandidate>& candidates)
{
    SBothButtonsControls controls;
    switch (view.bothButtonsAction) {
    case setting::MOUSE_DRAG_CORNER_COMMAND:
        controls.radio = 0;
        break;
    case setting::MOUSE_DRAG_SMOOTH_SCROLL:
        controls.radio = 1;
        break;
    default:
        controls.radio = 2;
        break;
    }
    const auto fields = cornerFields();
    for (std::size_t i = 0; i < fields.size(); ++i)
        controls.corners[i] = commandComboIndex(candidates, view.*fields[i]);
    return controls;
}

void storeBothButtons(const SBothButtonsControls& controls,
                      const std::vector<SCandidate>& candidates, SMouseSetting& view)
{
    static const int codes[] = {setting::MOUSE_DRAG_CORNER_COMMAND,
                                setting::MOUSE_DRAG_SMOOTH_SCROLL, setting::MOUSE_DRAG_NONE};
    view.bothButtonsAction = controls.radio >= 0 && controls.radio < 3 ? codes[controls.radio]
                                                                       : setting::MOUSE_DRAG_NONE;
    const auto fields = cornerFields();
    for (std::size_t i = 0; i < fields.size(); ++i)
        view.*fields[i] = commandOfComboIndex(candidates, controls.corners[i]);
}

int rotateComboIndex(int code)
{
    return code >= setting::MOUSE_ROTATE_NONE && code <= setting::MOUSE_ROTATE_TOOL_PANEL_MODE
               ? code
               : 0;
}

int dragComboIndex(int code)
{
    if (code == setting::MOUSE_DRAG_SMOOTH_SCROLL)
        return 1;
    if (code == setting::MOUSE_DRAG_TOOL_PANEL_MODE)
        return 2;
    return 0;
}

int dragCodeOfIndex(int index)
{
    if (index == 1)
        return setting::MOUSE_DRAG_SMOOTH_SCROLL;
    if (index == 2)
        return setting::MOUSE_DRAG_TOOL_PANEL_MODE;
    return setting::MOUSE_DRAG_NONE;
}

QString zoomRateText(double rate)
{
    return utility::formatDecimal(rate * 100.0, 6);
}

SWheelControls loadWheel(const SMouseSetting& view, const std::vector<SCandidate>& candidates)
{
    SWheelControls c;
    c.wheelCommands = view.wheelCommands;
    c.rotate = {rotateComboIndex(view.wheelRotate), rotateComboIndex(view.ctrlWheelRotate),
                rotateComboIndex(view.shiftWheelRotate)};
    c.drag = {dragComboIndex(view.wheelDrag), dragComboIndex(view.ctrlWheelDrag)};
    c.click = {commandComboIndex(candidates, view.wheelClick),
               commandComboIndex(candidates, view.ctrlWheelClick)};
    c.zoomRate = zoomRateText(view.stepZoomRate);
    c.upDirection = view.wheelUpZoomsIn ? 1 : 0;
    c.downDirection = c.upDirection;
    return c;
}

void storeWheel(const SWheelControls& c, const std::vector<SCandidate>& candidates,
                SMouseSetting& view)
{
    view.wheelCommands = c.wheelCommands;
    view.wheelRotate = rotateComboIndex(c.rotate[0]);
    view.ctrlWheelRotate = rotateComboIndex(c.rotate[1]);
    view.shiftWheelRotate = rotateComboIndex(c.rotate[2]);
    view.wheelDrag = dragCodeOfIndex(c.drag[0]);
    view.ctrlWheelDrag = dragCodeOfIndex(c.drag[1]);
    view.wheelClick = commandOfComboIndex(candidates, c.click[0]);
    view.ctrlWheelClick = commandOfComboIndex(candidates, c.click[1]);
    // Any number is taken as typed; text that is no number leaves the rate as it was.
    if (const std::optional<double> percent = utility::parseDecimal(c.zoomRate))
        view.stepZoomRate = *percent / 100.0;
    view.wheelUpZoomsIn = c.upDirection == 1;
}

S3DControls load3D(const SMouseSetting& view)
{
    S3DControls c;
    c.leftRotates = view.leftDragAction == setting::MOUSE_DRAG_ROTATE_VIEW;
    c.bothScrolls = view.bothButtonsAction == setting::MOUSE_DRAG_SMOOTH_SCROLL;
    c.wheelStepZooms = view.wheelRotate == setting::MOUSE_ROTATE_STEP_ZOOM;
    return c;
}

void store3D(const S3DControls& c, SMouseSetting& view)
{
    view.leftDragAction =
        c.leftRotates ? setting::MOUSE_DRAG_ROTATE_VIEW : setting::MOUSE_DRAG_SMOOTH_SCROLL;
    view.bothButtonsAction =
        c.bothScrolls ? setting::MOUSE_DRAG_SMOOTH_SCROLL : setting::MOUSE_DRAG_ROTATE_VIEW;
    view.wheelRotate =
        c.wheelStepZooms ? setting::MOUSE_ROTATE_STEP_ZOOM : setting::MOUSE_ROTATE_AROUND_X;
}

SMenuButtonStates menuButtonStates(bool commandSelected, int selectedItem, int itemCount)
{
    const bool itemSelected = selectedItem >= 0 && selectedItem < itemCount;
    SMenuButtonStates s;
    s.add = commandSelected;
    s.insert = commandSelected && itemSelected;
    s.remove = itemSelected;
    s.up = itemSelected && selectedItem > 0;
    s.down = itemSelected && selectedItem < itemCount - 1;
    s.separator = itemSelected;
    return s;
}

} // namespace kesto::ui::config::mouserules
