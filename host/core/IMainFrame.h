#pragma once

class QWidget;

namespace kesto::core {

// The host's main window as the dialogs may ask about it.
class IMainFrame {
public:
    enum EFrameMode { FrameMode2D = 0, FrameModeRed = 1, FrameMode3D = 2 };

    virtual ~IMainFrame() = default;
    virtual QWidget* getWidget() const = 0;
    virtual EFrameMode getFrameMode() const = 0;
};

} // namespace kesto::core
