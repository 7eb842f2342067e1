#include "setting/MouseSetting.h"

#include "utility/Xml.h"

#include <QLocale>

#include <algorithm>

namespace kesto::ui::setting {

namespace {

template <class T>
struct Field {
    const char* name;
    T SMouseSetting::*member;
};

const Field<bool> kBoolFields[] = {
    {"showShortcutMenu", &SMouseSetting::showShortcutMenu},
    {"wheelCommands", &SMouseSetting::wheelCommands},
    {"wheelUpZoomsIn", &SMouseSetting::wheelUpZoomsIn},
};

const Field<int> kIntFields[] = {
    {"leftDragAction", &SMouseSetting::leftDragAction},
    {"bothButtonsAction", &SMouseSetting::bothButtonsAction},
    {"wheelRotate", &SMouseSetting::wheelRotate},
    {"wheelDrag", &SMouseSetting::wheelDrag},
    {"ctrlWheelRotate", &SMouseSetting::ctrlWheelRotate},
    {"ctrlWheelDrag", &SMouseSetting::ctrlWheelDrag},
    {"shiftWheelRotate", &SMouseSetting::shiftWheelRotate},
};

const Field<std::wstring> kTextFields[] = {
    {"samePointCommand", &SMouseSetting::samePointCommand},
    {"leftUpCommand", &SMouseSetting::leftUpCommand},
    {"rightUpCommand", &SMouseSetting::rightUpCommand},
    {"leftDownCommand", &SMouseSetting::leftDownCommand},
    {"rightDownCommand", &SMouseSetting::rightDownCommand},
    {"wheelClick", &SMouseSetting::wheelClick},
    {"ctrlWheelClick", &SMouseSetting::ctrlWheelClick},
};

const char* const kStepZoomRate = "stepZoomRate";

QString viewTag()
{
    return QStringLiteral("View");
}
QString menuTag()
{
    return QStringLiteral("ShortcutMenu");
}

bool readBool(const QDomElement& e, const QString& name, bool& out)
{
    if (!e.hasAttribute(name))
        return true;
    const QString text = e.attribute(name);
    if (text != u"0" && text != u"1")
        return false;
    out = text == u"1";
    return true;
}

bool readView(const QDomElement& e, SMouseSetting& view)
{
    using utility::xml::readDoubleAttribute;
    using utility::xml::readIntAttribute;
    for (const auto& f : kBoolFields) {
        if (!readBool(e, QLatin1String(f.name), view.*f.member))
            return false;
    }
    for (const auto& f : kIntFields) {
        const QString name = QLatin1String(f.name);
        if (e.hasAttribute(name) && !readIntAttribute(e, name, view.*f.member))
            return false;
    }
    for (const auto& f : kTextFields)
        view.*f.member = e.attribute(QLatin1String(f.name)).toStdWString();
    const QString rate = QLatin1String(kStepZoomRate);
    if (e.hasAttribute(rate) && !readDoubleAttribute(e, rate, view.stepZoomRate))
        return false;
    const QDomElement menu = e.firstChildElement(menuTag());
    return menu.isNull() || view.shortcutMenu.loadXMLNode(menu);
}

void writeView(QDomDocument& doc, QDomElement& e, const SMouseSetting& view)
{
    for (const auto& f : kBoolFields)
        e.setAttribute(QLatin1String(f.name), view.*f.member ? 1 : 0);
    for (const auto& f : kIntFields)
        e.setAttribute(QLatin1String(f.name), view.*f.member);
    for (const auto& f : kTextFields)
        e.setAttribute(QLatin1String(f.name), QString::fromStdWString(view.*f.member));
    e.setAttribute(QLatin1String(kStepZoomRate),
                   QString::number(view.stepZoomRate, 'g', QLocale::FloatingPointShortest));
    QDomElement menu = doc.createElement(menuTag());
    view.shortcutMenu.saveXMLNode(doc, menu);
    e.appendChild(menu);
}

SMouseSetting default2DView()
{
    SMouseSetting view;
    const wchar_t* const menu[] = {
        L"ID_EDIT_UNDO",
        L"ID_EDIT_REDO",
        L"",
        L"ID_EDIT_CUT",
        L"ID_EDIT_COPY",
        L"ID_EDIT_PASTE",
        L"",
        L"ID_EDIT_ERASE",
        L"ID_EDIT_MOVE_MOVE",
        L"ID_EDIT_COPY_COPY",
        L"ID_EDIT_MOVE_ROTATE",
        L"",
        L"ID_EDIT_PROPERTY_COPY",
        L"ID_TOOL_ELEMENT_STATUS",
        L"",
        L"ID_VIEW_SELECT_RANGE_DISPLAY",
        L"ID_VIEW_ZOOM_ALL",
    };
    bool pendingBreak = false;
    for (const wchar_t* id : menu) {
        pendingBreak = pendingBreak || !*id;
        if (*id) {
            view.shortcutMenu.addCommandId(id, pendingBreak);
            pendingBreak = false;
        }
    }
    view.shortcutMenu.setRecentCommand(true);
    view.leftUpCommand = L"ID_VIEW_ZOOM_PREVIOUS";
    view.rightUpCommand = L"ID_VIEW_ZOOM_ALL";
    view.leftDownCommand = L"ID_EDIT_UNDO";
    view.rightDownCommand = L"ID_VIEW_SELECT_RANGE_DISPLAY";
    view.samePointCommand = L"ID_VIEW_REDRAW";
    view.ctrlWheelRotate = MOUSE_ROTATE_VERTICAL_SCROLL;
    view.ctrlWheelDrag = MOUSE_DRAG_TOOL_PANEL_MODE;
    return view;
}

SMouseSetting default3DView()
{
    SMouseSetting view;
    for (const wchar_t* id : {L"ID_VIEW_ZOOM_ALL", L"ID_VIEW_3D_FRONT", L"ID_VIEW_3D_TOP",
                              L"ID_VIEW_3D_ISOMETRIC", L"ID_VIEW_REDRAW"})
        view.shortcutMenu.addCommandId(id);
    view.shortcutMenu.setRecentCommand(true);
    view.leftDragAction = MOUSE_DRAG_ROTATE_VIEW;
    view.bothButtonsAction = MOUSE_DRAG_SMOOTH_SCROLL;
    view.wheelRotate = MOUSE_ROTATE_STEP_ZOOM;
    return view;
}

} // namespace

CMouseSetting CMouseSetting::makeDefault()
{
    CMouseSetting setting;
    setting.setMouseSetting(k2DView, default2DView());
    setting.setMouseSetting(k3DView, default3DView());
    return setting;
}

SMouseSetting* CMouseSetting::getMouseSetting(const wchar_t* viewName)
{
    return const_cast<SMouseSetting*>(std::as_const(*this).getMouseSetting(viewName));
}

const SMouseSetting* CMouseSetting::getMouseSetting(const wchar_t* viewName) const
{
    if (!viewName)
        return nullptr;
    for (const auto& [name, view] : m_views) {
        if (name == viewName)
            return &view;
    }
    return nullptr;
}

void CMouseSetting::setMouseSetting(const wchar_t* viewName, const SMouseSetting& setting)
{
    if (SMouseSetting* existing = getMouseSetting(viewName))
        *existing = setting;
    else if (viewName)
        m_views.emplace_back(viewName, setting);
}

bool CMouseSetting::removeMouseSetting(const wchar_t* viewName)
{
    return viewName && std::erase_if(m_views, [&](const auto& v) { return v.first == viewName; });
}

bool CMouseSetting::loadXMLNode(const QDomElement& element)
{
    std::vector<std::pair<std::wstring, SMouseSetting>> views;
    for (QDomElement e = element.firstChildElement(viewTag()); !e.isNull();
         e = e.nextSiblingElement(viewTag())) {
        const std::wstring name = e.attribute(QStringLiteral("name")).toStdWString();
        SMouseSetting view;
        const bool repeated =
            std::any_of(views.begin(), views.end(), [&](const auto& v) { return v.first == name; });
        if (name.empty() || repeated || !readView(e, view)) {
            if (utility::xml::skipEntry(e))
                continue;
            return false;
        }
        views.emplace_back(name, std::move(view));
    }
    m_views = std::move(views);
    return true;
}

void CMouseSetting::saveXMLNode(QDomDocument& doc, QDomElement& element) const
{
    for (const auto& [name, view] : m_views) {
        QDomElement e = doc.createElement(viewTag());
        e.setAttribute(QStringLiteral("name"), QString::fromStdWString(name));
        writeView(doc, e, view);
        element.appendChild(e);
    }
}

} // namespace kesto::ui::setting
