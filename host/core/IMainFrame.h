#pragma once

#include <QString>

class QWidget;

namespace kesto::core {

// The host's main window as the dialogs may ask about it.
class IMainFrame {
public:
    enum EFrameMode { FrameMode2D = 0, FrameModeRed = 1, FrameMode3D = 2 };

    virtual ~IMainFrame() = default;
    virtual QWidget* getWidget() const = 0;
    virtual EFrameMode getFrameMode() const = 0;
    // A host that offers no three-dimensional view.
    virtual bool isTwoDimensionalOnly() const { return false; }
    virtual bool isWriteInRedMode() const { return getFrameMode() == FrameModeRed; }
    // The host's own name of a view (0: two-dimensional, 1: three-dimensional, 2: the
    // two-dimensional view's second name); empty where it has none.
    virtual QString getViewName(int /*index*/) const { return {}; }
};

} // namespace kesto::core
