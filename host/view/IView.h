#pragma once

// A view of the drawing on screen.
class IView {
public:
    virtual ~IView() = default;
    // Draws the view again from the drawing's current state.
    virtual void redraw() = 0;
};
